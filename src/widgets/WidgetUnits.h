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
    using UnitType = kvp::IDesignPropertyUnits::teType;
    using UnitSymbol = kavrel::platform::core::units::UnitSymbol;
    using NumberFormat = kavrel::platform::core::units::NumberFormat;
    using UnitsFormatter = kavrel::platform::core::units::UnitsFormatter;

    WidgetUnits();
    virtual ~WidgetUnits();

    /// Notifications for deriving controls; they do nothing here.
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

    double GetValue() const;
    /// Values within GetTolerance() of the current one change nothing; values
    /// within tolerance of zero become exactly zero.
    void SetValue(double value);

    UnitType GetUnitType() const;
    /// Unknown types are ignored.
    void SetUnitType(UnitType type);
    /// The invariant name of the unit type.
    QString GetUnit() const;

    UnitSymbol GetUnitSymbolType() const;
    void SetUnitSymbolType(UnitSymbol symbol);
    /// The invariant name of the unit symbol.
    QString GetUnitSymbol() const;
    /// By invariant name; an unknown name changes nothing.
    void SetUnitSymbol(const QString& name);
    /// The human-readable name of a symbol, empty when there is none.
    QString GetUnitDisplayName(int symbol) const;

    bool GetUnitSymbolDisplayEnabled() const;
    /// Notifies even when the flag does not change, but only when the formatter
    /// accepts the matching formatting string.
    void SetUnitSymbolDisplayEnabled(bool enabled);

    int GetDecimalPrecision() const;
    void SetDecimalPrecision(int precision);

    QString GetDecimalSeparator() const;
    QString GetGroupSeparator() const;
    /// An empty text selects the system locale's separator; the notification
    /// still carries the text as passed.
    void SetDecimalSeparator(const QString& separator);
    void SetGroupSeparator(const QString& separator);
    void SetSeparators(const QString& decimalSeparator, const QString& groupSeparator);

    NumberFormat GetNumberFormatId() const;
    void SetNumberFormatId(NumberFormat format);
    QString GetNumberFormatW() const;
    /// By invariant name ("Decimal", "Scientific"); unknown names change nothing.
    void SetNumberFormat(const QString& name);

    /// Always notify, also when the flag stays the same.
    void ShowPositiveNumberSign(bool show);
    void ShowPositiveExponentSign(bool show);

    UnitsFormatter& GetFormatter();
    const UnitsFormatter& GetFormatter() const;

protected:
    /// Returns whether the value changed; notifies only when asked to.
    bool SetValue(double value, bool notify);

    /// Parses user text into a value in the unit type; false when it cannot be
    /// read (the value argument must not be used then).
    virtual bool ValidateValue(const QString& text, double& value);
    /// Formats with the own formatter; returns the format used, or -1 with an
    /// empty text on failure.
    virtual NumberFormat GetLocaleStringFromValue(double value, QString& text) const;
    virtual double GetTolerance() const;

    NumberFormat GetLocaleStringFromValue(const UnitsFormatter& formatter, double value, QString& text,
                                          double* displayed) const;
    NumberFormat GetExponentStringFromValue(double value, QString& text) const;
    void ApplyFormatterProperties(UnitsFormatter& target) const;
    bool ApplyCustomSymbolString(UnitSymbol symbol);
    bool RemoveCustomSymbolString(UnitSymbol symbol);

    bool HasDash(UnitSymbol symbol) const;
    bool HasDegreeMinuteSecond(UnitSymbol symbol) const;
    bool HasFraction(UnitSymbol symbol) const;

    /// The smallest step the display can show at a precision.
    double CalculateStepForDegreeMinuteSecond(int precision) const;
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
