#pragma once

#include <KvUICore/KvUICoreExport.h>

#include <KvCoreUnits/UnitsFormatter.h>
#include <KvCoreUnits/UnitsTypes.h>

#include <QString>

#include <cstddef>

namespace Kavrel::UICore {

/// The value-and-format holder behind every numeric control: one double in a
/// unit type, shown with a unit symbol and a number format. It formats the value
/// into text and parses typed text back, and tells a deriving control through
/// the OnChanged_* notifications whenever a property changes. Each notification
/// is made after the new state is stored, old value first.
class KVUICORE_EXPORT WidgetUnits
{
public:
    /// A unit type of the units component.
    using UnitType = kvp::IDesignPropertyUnits::teType;
    /// A unit symbol of the units component.
    using UnitSymbol = kavrel::platform::core::units::UnitSymbol;
    /// A number format of the units component.
    using NumberFormat = kavrel::platform::core::units::NumberFormat;
    /// The units component's formatter.
    using UnitsFormatter = kavrel::platform::core::units::UnitsFormatter;

    WidgetUnits();
    virtual ~WidgetUnits();

    ///@{
    /// Notifications for deriving controls, made after the new state is
    /// stored, old value first; the base implementations do nothing.
    virtual void OnChanged_DecimalPrecision(int oldPrecision, int newPrecision);
    virtual void OnChanged_UnitType(UnitType oldType, UnitType newType);
    virtual void OnChanged_UnitSymbol(UnitSymbol oldSymbol, UnitSymbol newSymbol);
    virtual void OnChanged_NumberFormat(NumberFormat oldFormat, NumberFormat newFormat);
    virtual void OnChanged_Value(double oldValue, double newValue);
    virtual void OnChanged_DecimalSeparator(QString oldSeparator, QString newSeparator);
    virtual void OnChanged_GroupSeparator(QString oldSeparator, QString newSeparator);
    virtual void OnChanged_NumberSign(bool oldShown, bool newShown);
    virtual void OnChanged_ExponentSign(bool oldShown, bool newShown);
    virtual void OnChanged_UnitSymbolDisplayEnabled(bool oldEnabled, bool newEnabled);
    ///@}

    /// The value, in the unit type.
    double GetValue() const;
    /// Values within GetTolerance() of the current one change nothing; values
    /// within tolerance of zero become exactly zero.
    void SetValue(double value);

    /// The unit type of the value; unitless unless set.
    UnitType GetUnitType() const;
    /// Unknown types are ignored.
    void SetUnitType(UnitType type);
    /// The invariant name of the unit type.
    QString GetUnit() const;

    /// The symbol the value is shown with.
    UnitSymbol GetUnitSymbolType() const;
    /// Shows the value with another symbol; unknown symbols are ignored.
    void SetUnitSymbolType(UnitSymbol symbol);
    /// The invariant name of the unit symbol.
    QString GetUnitSymbol() const;
    /// By invariant name; an unknown name changes nothing.
    void SetUnitSymbol(const QString& name);
    /// The human-readable name of a symbol, empty when there is none.
    QString GetUnitDisplayName(int symbol) const;

    /// Whether the unit text is shown with the number.
    bool GetUnitSymbolDisplayEnabled() const;
    /// Notifies even when the flag does not change, but only when the formatter
    /// accepts the matching formatting string.
    void SetUnitSymbolDisplayEnabled(bool enabled);

    /// The decimals shown.
    int GetDecimalPrecision() const;
    /// Sets the decimals shown; notifies when the value changes.
    void SetDecimalPrecision(int precision);

    /// The decimal separator in use.
    QString GetDecimalSeparator() const;
    /// The group separator in use.
    QString GetGroupSeparator() const;
    /// An empty text selects the system locale's separator; the notification
    /// still carries the text as passed.
    void SetDecimalSeparator(const QString& separator);
    /// As SetDecimalSeparator, for the group separator.
    void SetGroupSeparator(const QString& separator);
    /// Sets both separators, as the two setters.
    void SetSeparators(const QString& decimalSeparator, const QString& groupSeparator);

    /// The number format.
    NumberFormat GetNumberFormatId() const;
    /// Sets the number format; notifies when it changes.
    void SetNumberFormatId(NumberFormat format);
    /// The invariant name of the number format ("Decimal").
    QString GetNumberFormatW() const;
    /// By invariant name ("Decimal", "Scientific"); unknown names change nothing.
    void SetNumberFormat(const QString& name);

    /// Always notify, also when the flag stays the same.
    void ShowPositiveNumberSign(bool show);
    /// Shows positive exponents with a sign, or without; always notifies.
    void ShowPositiveExponentSign(bool show);

    ///@{
    /// The formatter that formats and parses the value.
    UnitsFormatter& GetFormatter();
    const UnitsFormatter& GetFormatter() const;
    ///@}

protected:
    /// Returns whether the value changed; notifies only when asked to.
    bool SetValue(double value, bool notify);

    /// Parses user text into a value in the unit type; false when it cannot be
    /// read (the value argument must not be used then).
    virtual bool ValidateValue(const QString& text, double& value);
    /// Formats with the own formatter; returns the format used, or -1 with an
    /// empty text on failure.
    virtual NumberFormat GetLocaleStringFromValue(double value, QString& text) const;
    /// How close two values must be to count as equal: by precision for plain numbers,
    /// the angle or distance tolerance of the units component otherwise.
    virtual double GetTolerance() const;

    /// Formats with the given formatter; `displayed` (may be null) receives the number as
    /// shown. Values too large or small for the plain forms are written in the scientific
    /// form. Returns the format used, or -1 with an empty text on failure.
    NumberFormat GetLocaleStringFromValue(const UnitsFormatter& formatter, double value, QString& text,
                                          double* displayed) const;
    /// Writes the value in the scientific form unless the format already has an exponent;
    /// returns the format used, or -1 on failure.
    NumberFormat GetExponentStringFromValue(double value, QString& text) const;
    /// Copies this control's formatting settings into another formatter.
    void ApplyFormatterProperties(UnitsFormatter& target) const;
    /// Installs a formatting string without the unit text for the symbol; false when the
    /// formatter takes none.
    bool ApplyCustomSymbolString(UnitSymbol symbol);
    /// Returns the symbol to the library's formatting string; false when the formatter
    /// refuses.
    bool RemoveCustomSymbolString(UnitSymbol symbol);

    /// Whether the symbol joins feet and inches with a dash.
    bool HasDash(UnitSymbol symbol) const;
    /// Whether the symbol writes degrees, minutes and seconds.
    bool HasDegreeMinuteSecond(UnitSymbol symbol) const;
    /// Whether the symbol ends in a fraction.
    bool HasFraction(UnitSymbol symbol) const;

    /// The smallest step the display can show at a precision.
    double CalculateStepForDegreeMinuteSecond(int precision) const;
    /// The smallest fraction shown at a precision: 1/2^precision.
    double CalculateStepForFraction(int precision) const;

private:
    WidgetUnits(const WidgetUnits&) = delete;
    WidgetUnits& operator=(const WidgetUnits&) = delete;

    UnitsFormatter mFormatter;
    double mdValue;
    UnitType meUnitType;
    UnitSymbol meUnitSymbol;
    bool mbUnitSymbolDisplayEnabled;
    std::size_t mnDecimalSeparatorLength;
    std::size_t mnGroupSeparatorLength;
};

} // namespace Kavrel::UICore
