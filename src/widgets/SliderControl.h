#pragma once

#include <KvUICore/KvUICoreExport.h>

#include <QSlider>

#include <memory>

namespace Kavrel::UICore {

class SliderControlImp;

/// The integer slider of Slider. It does not jump to a clicked place: a press
/// starts a relative drag from the current position. Arrow and page keys step
/// one position (page: 10) or, when the owner's precision is finer than the
/// positions, emit IncDecKeyPressed() for every press and move the thumb one
/// position per "key threshold" presses. The first held key or button emits
/// sliderPressed(), the last one released emits sliderReleased(); Escape drops
/// every held input and emits EscapeReleased(). A display text can be painted
/// into the groove.
class KVUICORE_EXPORT SliderControl : public QSlider
{
    Q_OBJECT
    /// The text painted into the groove.
    Q_PROPERTY(QString attributeTextTerm READ GetDisplayText WRITE SetDisplayText)

public:
    /// The pseudo key code that stands for a mouse drag among the held inputs.
    static constexpr int MouseInput = 100;

    /// A horizontal slider control.
    explicit SliderControl(QWidget* parent = nullptr);
    ~SliderControl() override;

    /// Stores the range before applying it, so that it can be set again.
    void SetRange(int minimum, int maximum);
    /// The minimum last given to SetRange.
    int GetStoredMinimum() const;
    /// The maximum last given to SetRange.
    int GetStoredMaximum() const;

    /// The owner's decimal precision and the precision the positions resolve;
    /// recomputes the key handling.
    void SetPrecision(int precision, int effectivePrecision);
    /// The owner's decimal precision; 2 unless set.
    int GetPrecision() const;
    /// The precision the positions resolve; 2 unless set.
    int GetEffectivePrecision() const;
    /// Whether stepping keys move the slider as QSlider does: true unless the positions
    /// resolve fewer decimals than shown.
    bool DefaultKeyHandling() const;
    /// How many fine key steps make one position step: 10^(precision - effective
    /// precision), else 1.
    int KeyThreshold() const;

    /// While false the owner only follows the position, without taking it as
    /// the value (used while fine key steps move the thumb).
    bool EmitValue() const;

    /// The text painted into the groove.
    QString GetDisplayText() const;
    /// Sets the text painted into the groove.
    void SetDisplayText(const QString& text);

    /// When false, the control shows the horizontal resize cursor.
    void SetKeepCursor(bool keep);
    /// Whether the control keeps its cursor.
    bool KeepCursor() const;

    /// Key codes of held stepping keys, MouseInput for a drag.
    QList<int> HeldInputs() const;

Q_SIGNALS:
    /// Escape was pressed: held inputs are dropped and the change is to be cancelled.
    void EscapeReleased();
    /// The control lost focus; held inputs are dropped.
    void FocusOut();
    /// A fine stepping key was pressed: number is +1 or -1 smallest shown steps.
    void IncDecKeyPressed(int number);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    Q_DISABLE_COPY_MOVE(SliderControl)
    friend class SliderControlImp;
    std::unique_ptr<SliderControlImp> const mpImp;
};

} // namespace Kavrel::UICore
