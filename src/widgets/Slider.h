#pragma once

#include <KvUICore/KvUICoreExport.h>
#include <KvUICore/widgets/WidgetUnits.h>

#include <QWidget>

#include <memory>

namespace Kavrel::UICore {

class NumericField;
class SliderControl;
class SliderImp;

/// The unit-aware slider: an integer slider, a numeric text field and an
/// optional unit label side by side, all showing the one value of the
/// WidgetUnits part. The slider works on positions of value × 10^min(precision,
/// 3) in the unit of the symbol; finer precisions are reached with the arrow
/// keys, which step the value by the smallest shown decimal.
///
/// User changes are announced with ValueChanged() between SliderPressed() and
/// SliderReleased(): a drag or held keys emit pressed first and released last,
/// and a value typed into the field emits all three at once. Values set from
/// code with SetValue() move the slider silently. Every candidate value passes
/// ValidateChangingValue(), whose listeners may adjust or refuse it.
class KVUICORE_EXPORT Slider : public QWidget, public WidgetUnits
{
    Q_OBJECT
    /// The symbol of the unit the value is shown in.
    Q_PROPERTY(QString unitSymbol READ GetUnitSymbol WRITE SetUnitSymbol NOTIFY UnitSymbolChanged)
    /// How many decimals the value is shown with.
    Q_PROPERTY(int decimalPrecision READ GetDecimalPrecision WRITE SetDecimalPrecision NOTIFY DecimalPrecisionChanged)
    /// The lowest value, in the unit type.
    Q_PROPERTY(double minimum READ GetMinimum WRITE SetMinimum)
    /// The highest value, in the unit type.
    Q_PROPERTY(double maximum READ GetMaximum WRITE SetMaximum)
    /// The value, in the unit type, within the range (declared after the range so a
    /// loaded value is not clamped to the default range first).
    Q_PROPERTY(double value READ GetValue WRITE SetValue NOTIFY ValueUpdated)

public:
    /// A slider with its numeric field, unitless.
    explicit Slider(QWidget* parent = nullptr);
    ~Slider() override;

    /// The range, in the unit type.
    double GetMinimum() const;
    /// The highest value, in the unit type.
    double GetMaximum() const;
    /// Sets the lowest value.
    void SetMinimum(double minimum);
    /// Sets the highest value.
    void SetMaximum(double maximum);
    /// Sets both ends of the range.
    void SetRange(double minimum, double maximum);

    /// A text painted into the slider's groove.
    void SetDisplayText(const QString& text);

    /// Shows or hides the numeric field.
    void SetNumFieldVisible(bool visible);
    /// Shows or hides the slider control.
    void SetSliderControlVisible(bool visible);

    /// The label beside the field; it shows only while showing is enabled and
    /// its text is not empty.
    void SetUnitSymbolLabel(const QString& text);
    /// The text of the label beside the field.
    QString GetUnitSymbolLabel() const;
    /// Enables showing the label beside the field (it still needs a text).
    void ShowUnitSymbolLabel(bool show);

    /// The slider control part.
    SliderControl* GetSliderControl() const;
    /// The numeric field part.
    NumericField* GetNumericField() const;

    /// The numeric field's width.
    int GetTextBoxFixedWidth() const;
    /// Makes next follow the numeric field in the tab order; null is ignored.
    void SetTabOrderNextWidget(QWidget* next);

    /// Rounds parsed values to single precision.
    void SetTreatValueAsFloat(bool treatAsFloat);
    /// Whether parsed values are rounded to single precision.
    bool TreatValueAsFloat() const;

    /// The field's sticky modified flag.
    bool IsModified() const;
    /// Clears the field's modified flag.
    void ClearModified();

    /// While set, format changes only mark that an update is due; the owner
    /// switches deferring off and calls UpdateForUnits() once after the batch.
    void SetDeferUpdateForUnits(bool defer);
    /// Whether format changes are being deferred.
    bool DeferUpdateForUnits() const;
    /// Whether a deferred update is due.
    bool HaveDeferredUpdatesForUnits() const;
    /// Shows the value and the range in the current format; while deferring only marks
    /// that an update is due.
    void UpdateForUnits();

    /// Sets the geometry and updates the layout's size information.
    void setGeometry(const QRect& rect);

    void OnChanged_DecimalPrecision(int oldPrecision, int newPrecision) override;
    void OnChanged_UnitSymbol(UnitSymbol oldSymbol, UnitSymbol newSymbol) override;
    void OnChanged_Value(double oldValue, double newValue) override;
    void OnChanged_DecimalSeparator(QString oldSeparator, QString newSeparator) override;
    void OnChanged_GroupSeparator(QString oldSeparator, QString newSeparator) override;
    void OnChanged_NumberSign(bool oldShown, bool newShown) override;
    void OnChanged_ExponentSign(bool oldShown, bool newShown) override;
    void OnChanged_UnitSymbolDisplayEnabled(bool oldEnabled, bool newEnabled) override;

Q_SIGNALS:
    /// Lets a handler adjust a typed value or refuse it (valid false) before it is taken.
    void ValidateChangingValue(double& value, bool& valid);
    /// The value changed by the slider, the field or the arrow keys.
    void ValueChanged(double newValue);
    /// The slider was pressed, or a typed value is about to be taken.
    void SliderPressed();
    /// The slider was released, or a typed value was taken.
    void SliderReleased();
    /// The slider was dragged to position.
    void SliderMoved(int position);
    /// Escape was released: the change under way was cancelled.
    void SliderChangeCancelled();
    /// The slider control or the field lost focus.
    void SliderFocusOut();
    /// Emitted when the unit symbol changes; gives the symbol's name.
    void UnitSymbolChanged(const QString& symbol);
    /// Emitted when the number of decimals shown changes.
    void DecimalPrecisionChanged(int precision);
    /// Emitted whenever the value changes, in code or by the user; ValueChanged reports the user's edits only.
    void ValueUpdated(double value);

public Q_SLOTS:
    /// Moves the value to a slider position; ignored while the slider is being placed or
    /// when the position is unchanged.
    void UpdateSliderValue(int scaleValue);
    /// Takes the value typed into the field: a valid one is clamped to the range and
    /// announced, an invalid one is replaced by the current value.
    void TextEditComplete();
    /// Emits SliderPressed.
    void OnSliderPressed();
    /// Emits SliderReleased.
    void OnSliderReleased();
    /// Emits SliderMoved.
    void OnSliderMoved(int position);
    /// Applies the theme's colours again.
    void OnThemeChanged();
    /// Emits SliderChangeCancelled.
    void EscapeReleased();
    /// Steps the value by number of the smallest shown steps, clamped to the range, and
    /// emits ValueChanged.
    void IncDecKeyPressed(int number);

protected:
    bool ValidateValue(const QString& text, double& value) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    Q_DISABLE_COPY_MOVE(Slider)
    friend class SliderImp;
    std::unique_ptr<SliderImp> const mpImp;
};

} // namespace Kavrel::UICore
