#pragma once

#include <KvUICore/KvUICoreExport.h>
#include <KvUICore/widgets/WidgetUnits.h>

#include <QDoubleSpinBox>

#include <memory>

namespace Kavrel::UICore {

class DoubleSpinBoxImp;
class NumericField;

/// The unit-aware number entry: a spin box whose text is written and read by its
/// WidgetUnits part. A length typed with a unit ("3 in", "1ft 3in + 20mm") is
/// converted into the control's unit type; text that cannot be read falls back
/// to the value that editing last finished with. The value changes only when
/// editing finishes (Return, focus loss) or by stepping; every change is taken
/// over into the unit part before anyone hears of it, so GetValue() and value()
/// agree in valueChanged() handlers.
///
/// The shown text is always formatted from the unit part's value. Setting the
/// value through WidgetUnits::SetValue() alone does not refresh the spin box;
/// hosts set it with setValue().
class KVUICORE_EXPORT DoubleSpinBox : public QDoubleSpinBox, public WidgetUnits
{
    Q_OBJECT
    /// The symbol of the unit the value is shown in.
    Q_PROPERTY(QString unitSymbol READ GetUnitSymbol WRITE SetUnitSymbol NOTIFY UnitSymbolChanged)
    /// How many decimals the value is shown with.
    Q_PROPERTY(int decimalPrecision READ GetDecimalPrecision WRITE SetDecimalPrecision NOTIFY DecimalPrecisionChanged)

public:
    /// A unitless spin box; a compact one hints 56 × 24.
    explicit DoubleSpinBox(QWidget* parent = nullptr, bool compactSize = false);
    ~DoubleSpinBox() override;

    QString textFromValue(double value) const override;
    double valueFromText(const QString& text) const override;
    QValidator::State validate(QString& text, int& pos) const override;
    void stepBy(int steps) override;

    /// 1 / 2^precision for the fractional number format, else 0.1^precision:
    /// the smallest step the display shows.
    virtual double CalculateSingleStep(int precision);
    /// Sets the step to CalculateSingleStep of the current precision.
    virtual void ResetSingleStep();

    /// The line edit, a DoubleSpinBoxNumericField.
    NumericField* GetNumericField() const;

    /// The sticky modified flag of the line edit.
    bool IsModified() const;
    /// Clears the line edit's modified flag.
    void ClearModified();

    /// While set, format changes only mark that an update is due; the owner
    /// calls UpdateForUnits() once after the batch.
    void SetDeferUpdateForUnits(bool defer);
    /// Whether format changes are being deferred.
    bool DeferUpdateForUnits() const;
    /// Whether a deferred update is due.
    bool HaveDeferredUpdatesForUnits() const;

    void OnChanged_DecimalPrecision(int oldPrecision, int newPrecision) override;
    void OnChanged_UnitSymbol(UnitSymbol oldSymbol, UnitSymbol newSymbol) override;
    void OnChanged_NumberFormat(NumberFormat oldFormat, NumberFormat newFormat) override;
    void OnChanged_DecimalSeparator(QString oldSeparator, QString newSeparator) override;
    void OnChanged_GroupSeparator(QString oldSeparator, QString newSeparator) override;
    void OnChanged_NumberSign(bool oldShown, bool newShown) override;
    void OnChanged_ExponentSign(bool oldShown, bool newShown) override;
    void OnChanged_UnitSymbolDisplayEnabled(bool oldEnabled, bool newEnabled) override;

    /// 56 × 24 when made compact; otherwise the spin box's own hint.
    QSize sizeHint() const override;

Q_SIGNALS:
    /// Emitted for every successfully parsed text; a listener may adjust the
    /// value or set valid to false, which makes the text count as unreadable.
    void ValidateChangingValue(double& value, bool& valid);
    /// Emitted when the unit symbol changes; gives the symbol's name.
    void UnitSymbolChanged(const QString& symbol);
    /// Emitted when the number of decimals shown changes.
    void DecimalPrecisionChanged(int precision);

public Q_SLOTS:
    /// The value that editing last finished with.
    virtual double GetAcceptedValue();
    /// Stores the current value() as the accepted one (on every editingFinished).
    virtual void SaveAcceptedValue();
    /// Applies the theme's colours again.
    void OnThemeChanged();

protected:
    bool ValidateValue(const QString& text, double& value) override;

    /// Sets whether a precision change also sets the spin box's decimals; true by default.
    void SetCanChangeQtDecimals(bool canChange);
    /// Whether a precision change also sets the spin box's decimals.
    bool CanChangeQtDecimals() const;

    /// Formats the current value again and clears the deferred mark.
    void UpdateForUnits();
    /// Formats again unless updates are deferred, in which case it only marks.
    void UpdateForUnits(bool unused1, bool unused2);

    bool event(QEvent* event) override;

private:
    Q_DISABLE_COPY_MOVE(DoubleSpinBox)
    friend class DoubleSpinBoxImp;
    std::unique_ptr<DoubleSpinBoxImp> const mpImp;
};

} // namespace Kavrel::UICore
