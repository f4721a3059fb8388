#include <KvUICore/widgets/SliderControl.h>

#include <KvUICore/widgets/ControlsAccessible_p.h>
#include <KvUICore/widgets/ThemedColor_p.h>

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPointer>
#include <QStyleOptionSlider>
#include <QWheelEvent>

#include <algorithm>
#include <climits>
#include <cmath>

namespace Kavrel::UICore {

namespace {

constexpr int kWheelNotch = 120;
constexpr int kPageKeyStep = 10;
constexpr int kDisplayTextInset = 5;

bool IsSteppingKey(int key)
{
    switch (key) {
    case Qt::Key_Left:
    case Qt::Key_Up:
    case Qt::Key_Right:
    case Qt::Key_Down:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
        return true;
    default:
        return false;
    }
}

} // namespace

class SliderControlImp
{
public:
    explicit SliderControlImp(SliderControl* owner)
        : mpOwner(owner)
    {}

    void ApplyStoredRange() { mpOwner->QAbstractSlider::setRange(miStoredMinimum, miStoredMaximum); }

    // Adds an input; the first one held starts the interaction. False when
    // a sliderPressed() handler deleted the slider.
    bool Hold(int input)
    {
        if (mHeldInputs.isEmpty()) {
            QPointer<SliderControl> owner(mpOwner);
            Q_EMIT mpOwner->sliderPressed();
            if (!owner)
                return false;
        }
        mHeldInputs.append(input);
        return true;
    }

    // Drops an input; the last one released ends the interaction. Inputs that
    // Escape or a focus loss already dropped end nothing.
    void Release(int input)
    {
        if (mHeldInputs.removeAll(input) > 0 && mHeldInputs.isEmpty())
            Q_EMIT mpOwner->sliderReleased();
    }

    void MoveOnePosition(int direction)
    {
        mbEmitValue = false;
        mpOwner->setValue(mpOwner->value() + direction);
        mbEmitValue = true;
    }

    void FineStep(int key)
    {
        int number = 0;
        switch (key) {
        case Qt::Key_PageUp:
            number = kPageKeyStep;
            break;
        case Qt::Key_PageDown:
            number = -kPageKeyStep;
            break;
        case Qt::Key_Down:
        case Qt::Key_Left:
            number = -1;
            break;
        default:
            number = 1;
            break;
        }
        miKeyAccumulator += number;
        QPointer<SliderControl> owner(mpOwner);
        Q_EMIT mpOwner->IncDecKeyPressed(number);
        if (!owner)
            return;
        if (miKeyAccumulator < 0) {
            MoveOnePosition(-1);
            miKeyAccumulator += miKeyThreshold;
        } else if (miKeyAccumulator >= miKeyThreshold) {
            MoveOnePosition(1);
            miKeyAccumulator -= miKeyThreshold;
        }
    }

    int Coordinate(const QPointF& point) const
    {
        return mpOwner->orientation() == Qt::Horizontal ? qRound(point.x()) : -qRound(point.y());
    }

    void Drag(int coordinate)
    {
        QStyleOptionSlider option;
        mpOwner->initStyleOption(&option);
        QStyle* style = mpOwner->style();
        const int space = style->pixelMetric(QStyle::PM_SliderSpaceAvailable, &option, mpOwner);
        const int handle = style->pixelMetric(QStyle::PM_SliderLength, &option, mpOwner);
        const int span = mpOwner->maximum() - mpOwner->minimum();
        if (space <= handle || span == 0)
            return;
        const float pixelsPerPosition = float(space - handle) / float(span);
        const float moved = float(miPositionAtPress) + float(coordinate - miPressX) / pixelsPerPosition;
        const int position = int(std::clamp(moved, float(INT_MIN / 2), float(INT_MAX / 2)));
        if (position < 0 && miRangeMode == 0 && miStoredMinimum < 0) {
            miRangeMode = 1;
            ApplyStoredRange();
        } else if (miRangeMode == 1 && position > 0 && miStoredMaximum > 0) {
            miRangeMode = 0;
            ApplyStoredRange();
        }
        // valueChanged() handlers may delete the slider.
        QPointer<SliderControl> owner(mpOwner);
        mpOwner->setSliderPosition(position);
        if (owner)
            Q_EMIT mpOwner->sliderMoved(mpOwner->sliderPosition());
    }

    SliderControl* const mpOwner;
    bool mbKeepCursor = true;
    int miPressX = 0;
    int miCurrentX = 0;
    int miPositionAtPress = 0;
    int miStoredMinimum = 0;
    int miStoredMaximum = 50;
    int miRangeMode = 0;
    bool mbLeftButtonDown = false;
    bool mbRightButtonDown = false;
    QList<int> mHeldInputs;
    int miPrecision = 2;
    int miEffectivePrecision = 2;
    int miKeyThreshold = 1;
    int miKeyAccumulator = 0;
    bool mbDefaultKeyHandling = true;
    bool mbEmitValue = true;
    QString msDisplayText;
};

SliderControl::SliderControl(QWidget* parent)
    : QSlider(Qt::Horizontal, parent)
    , mpImp(std::make_unique<SliderControlImp>(this))
{
    Internal::InstallControlsAccessibility();
    // The text painted into the groove.
    new Internal::ThemedColor(this);
}

SliderControl::~SliderControl() = default;

void SliderControl::SetRange(int minimum, int maximum)
{
    mpImp->miStoredMinimum = minimum;
    mpImp->miStoredMaximum = maximum;
    mpImp->ApplyStoredRange();
}

int SliderControl::GetStoredMinimum() const
{
    return mpImp->miStoredMinimum;
}

int SliderControl::GetStoredMaximum() const
{
    return mpImp->miStoredMaximum;
}

void SliderControl::SetPrecision(int precision, int effectivePrecision)
{
    mpImp->miPrecision = precision;
    mpImp->miEffectivePrecision = effectivePrecision;
    if (effectivePrecision < precision) {
        mpImp->mbDefaultKeyHandling = false;
        mpImp->miKeyThreshold = int(std::lround(std::pow(10.0, precision - effectivePrecision)));
    } else {
        mpImp->mbDefaultKeyHandling = true;
        mpImp->miKeyThreshold = 1;
    }
    mpImp->miKeyAccumulator = 0;
}

int SliderControl::GetPrecision() const
{
    return mpImp->miPrecision;
}

int SliderControl::GetEffectivePrecision() const
{
    return mpImp->miEffectivePrecision;
}

bool SliderControl::DefaultKeyHandling() const
{
    return mpImp->mbDefaultKeyHandling;
}

int SliderControl::KeyThreshold() const
{
    return mpImp->miKeyThreshold;
}

bool SliderControl::EmitValue() const
{
    return mpImp->mbEmitValue;
}

QString SliderControl::GetDisplayText() const
{
    return mpImp->msDisplayText;
}

void SliderControl::SetDisplayText(const QString& text)
{
    if (mpImp->msDisplayText == text)
        return;
    mpImp->msDisplayText = text;
    update();
}

void SliderControl::SetKeepCursor(bool keep)
{
    mpImp->mbKeepCursor = keep;
    if (keep)
        unsetCursor();
    update();
}

bool SliderControl::KeepCursor() const
{
    return mpImp->mbKeepCursor;
}

QList<int> SliderControl::HeldInputs() const
{
    return mpImp->mHeldInputs;
}

void SliderControl::keyPressEvent(QKeyEvent* event)
{
    const int key = event->key();
    if (key == Qt::Key_Escape && !mpImp->mHeldInputs.isEmpty()) {
        // Keeps a dialog from closing while a change is being made.
        event->accept();
        return;
    }
    if (!IsSteppingKey(key)) {
        QSlider::keyPressEvent(event);
        return;
    }
    event->accept();
    if (!event->isAutoRepeat() && !mpImp->Hold(key))
        return;
    if (mpImp->mHeldInputs.isEmpty() || mpImp->mHeldInputs.last() != key)
        return;
    if (mpImp->mbDefaultKeyHandling)
        QSlider::keyPressEvent(event);
    else
        mpImp->FineStep(key);
}

void SliderControl::keyReleaseEvent(QKeyEvent* event)
{
    const int key = event->key();
    if (event->isAutoRepeat() || (key != Qt::Key_Escape && !IsSteppingKey(key))) {
        QSlider::keyReleaseEvent(event);
        return;
    }
    event->accept();
    if (key == Qt::Key_Escape) {
        mpImp->mHeldInputs.clear();
        Q_EMIT EscapeReleased();
        return;
    }
    mpImp->Release(key);
}

void SliderControl::mousePressEvent(QMouseEvent* event)
{
    const Qt::MouseButton button = event->button();
    if ((button != Qt::LeftButton && button != Qt::RightButton) || mpImp->mbLeftButtonDown ||
        mpImp->mbRightButtonDown) {
        event->ignore();
        return;
    }
    (button == Qt::LeftButton ? mpImp->mbLeftButtonDown : mpImp->mbRightButtonDown) = true;
    mpImp->miPressX = mpImp->Coordinate(event->position());
    mpImp->miCurrentX = mpImp->miPressX;
    mpImp->miPositionAtPress = sliderPosition();
    event->accept();
    mpImp->Hold(MouseInput);
}

void SliderControl::mouseMoveEvent(QMouseEvent* event)
{
    event->accept();
    if (mpImp->mHeldInputs.isEmpty() || mpImp->mHeldInputs.last() != MouseInput ||
        !(mpImp->mbLeftButtonDown || mpImp->mbRightButtonDown))
        return;
    mpImp->miCurrentX = mpImp->Coordinate(event->position());
    mpImp->Drag(mpImp->miCurrentX);
}

void SliderControl::mouseReleaseEvent(QMouseEvent* event)
{
    bool& down = event->button() == Qt::LeftButton ? mpImp->mbLeftButtonDown : mpImp->mbRightButtonDown;
    if ((event->button() != Qt::LeftButton && event->button() != Qt::RightButton) || !down) {
        event->ignore();
        return;
    }
    down = false;
    mpImp->Release(MouseInput);
    event->accept();
}

void SliderControl::wheelEvent(QWheelEvent* event)
{
    // A notch away from the user lowers the position: intended.
    const int steps = -(event->angleDelta().y() / kWheelNotch);
    event->accept();
    if (steps == 0)
        return;
    if (!mpImp->mHeldInputs.isEmpty()) {
        setSliderPosition(sliderPosition() + steps);
    } else if (isEnabled()) {
        QPointer<SliderControl> self(this);
        Q_EMIT sliderPressed();
        if (self)
            setSliderPosition(sliderPosition() + steps);
        if (self)
            Q_EMIT sliderReleased();
    }
}

void SliderControl::focusOutEvent(QFocusEvent* event)
{
    mpImp->mHeldInputs.clear();
    QPointer<SliderControl> self(this);
    Q_EMIT FocusOut();
    if (self)
        QSlider::focusOutEvent(event);
}

void SliderControl::paintEvent(QPaintEvent* event)
{
    if (!mpImp->mbKeepCursor)
        setCursor(Qt::SizeHorCursor);
    QSlider::paintEvent(event);
    if (mpImp->msDisplayText.isEmpty())
        return;
    QStyleOptionSlider option;
    initStyleOption(&option);
    // Base styles differ in how thin their groove is, so the text takes the
    // groove's length and is centred on its middle line.
    const QRect groove = style()->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderGroove, this);
    const int textHeight = fontMetrics().height();
    const QRect textRect(groove.left() + kDisplayTextInset, groove.center().y() - textHeight / 2,
                         groove.width() - 2 * kDisplayTextInset, textHeight);
    if (textRect.width() <= 0)
        return;
    QPainter painter(this);
    painter.setFont(font());
    painter.setPen(Internal::ThemedColor::Of(this)->GetColor());
    painter.drawText(textRect, Qt::AlignCenter,
                     fontMetrics().elidedText(mpImp->msDisplayText, Qt::ElideRight, textRect.width()));
}

} // namespace Kavrel::UICore
