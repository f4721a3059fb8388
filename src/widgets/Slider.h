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
    Q_PROPERTY(double minimum READ GetMinimum WRITE SetMinimum)
    Q_PROPERTY(double maximum READ GetMaximum WRITE SetMaximum)

public:
    explicit Slider(QWidget* parent = nullptr);
    ~Slider() override;

    /// The range, in the unit type.
    double GetMinimum() const;
    double GetMaximum() const;
    void SetMinimum(double minimum);
    void SetMaximum(double maximum);
    void SetRange(double minimum, double maximum);

    /// A text painted into the slider's groove.
    void SetDisplayText(const QString& text);

    void SetNumFieldVisible(bool visible);
    void SetSliderControlVisible(bool visible);

    /// The label beside the field; it shows only while showing is enabled and
    /// its text is not empty.
    void SetUnitSymbolLabel(const QString& text);
    QString GetUnitSymbolLabel() const;
    void ShowUnitSymbolLabel(bool show);

    SliderControl* GetSliderControl() const;
    NumericField* GetNumericField() const;

    int GetTextBoxFixedWidth() const;
    void SetTabOrderNextWidget(QWidget* next);

    /// Rounds parsed values to single precision.
    void SetTreatValueAsFloat(bool treatAsFloat);
    bool TreatValueAsFloat() const;

    /// The field's sticky modified flag.
    bool IsModified() const;
    void ClearModified();

    /// While set, format changes only mark that an update is due; the owner
    /// switches deferring off and calls UpdateForUnits() once after the batch.
    void SetDeferUpdateForUnits(bool defer);
    bool DeferUpdateForUnits() const;
    bool HaveDeferredUpdatesForUnits() const;
    void UpdateForUnits();

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
    void ValidateChangingValue(double& value, bool& valid);
    void ValueChanged(double newValue);
    void SliderPressed();
    void SliderReleased();
    void SliderMoved(int position);
    void SliderChangeCancelled();
    void SliderFocusOut();

public Q_SLOTS:
    void UpdateSliderValue(int scaleValue);
    void TextEditComplete();
    void OnSliderPressed();
    void OnSliderReleased();
    void OnSliderMoved(int position);
    void OnThemeChanged();
    void EscapeReleased();
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
