#include <KvUICore/widgets/ColorWheel.h>

#include <KvUICore/core/DrawingHelpers_p.h>
#include <KvUICore/theme/CustomStylePainting_p.h>
#include <KvUICore/theme/ThemeFileKey.h>
#include <KvUICore/theme/ThemeManager.h>
#include <KvUICore/widgets/ColorMath_p.h>
#include <KvUICore/widgets/ThemedColor_p.h>

#include <QAccessible>
#include <QImage>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace Kavrel::UICore {

namespace {

constexpr int kFocusMargin = 3;
constexpr int kPreferredSide = 180;
constexpr int kMinimumSide = 96;
constexpr double kPi = 3.14159265358979323846;
constexpr double kSmallStep = 0.01;
constexpr double kLargeStep = 0.10;
constexpr double kHueStep = 5.0;
constexpr double kFineHueStep = 1.0;

struct WheelGeometry
{
    QPointF centre;
    double outer = 0.0;
    double inner = 0.0;
    QRectF square;
};

double Wrapped(double hue)
{
    double h = std::fmod(hue, 360.0);
    if (h < 0.0)
        h += 360.0;
    return h;
}

} // namespace

class ColorWheelImp
{
public:
    explicit ColorWheelImp(ColorWheel* owner)
        : mpOwner(owner)
    {}

    enum class Drag
    {
        None,
        Ring,
        Square
    };

    WheelGeometry Geometry() const
    {
        WheelGeometry g;
        const QRectF r = QRectF(mpOwner->rect()).adjusted(kFocusMargin, kFocusMargin, -kFocusMargin, -kFocusMargin);
        const double side = std::max(0.0, std::min(r.width(), r.height()));
        g.centre = r.center();
        g.outer = side / 2.0;
        const double ring = std::clamp(g.outer * 0.16, 8.0, 24.0);
        g.inner = std::max(0.0, g.outer - ring);
        const double gap = std::max(3.0, ring * 0.3);
        const double half = std::max(0.0, (g.inner - gap) / std::sqrt(2.0));
        // Whole pixels, so the square's image lands on the pixel grid.
        const double snapped = std::floor(half);
        g.square =
            QRectF(std::round(g.centre.x() - snapped), std::round(g.centre.y() - snapped), 2 * snapped, 2 * snapped);
        return g;
    }

    bool Mirrored() const { return mpOwner->layoutDirection() == Qt::RightToLeft; }

    QColor Color() const { return Internal::RgbOf(mHsv, miAlpha); }

    // Takes new HSV; announces a new colour when asked to.
    void Change(const Internal::Hsv& hsv, bool announce)
    {
        Internal::Hsv next = hsv;
        next.h = Wrapped(next.h);
        next.s = std::clamp(next.s, 0.0, 1.0);
        next.v = std::clamp(next.v, 0.0, 1.0);
        if (next.h == mHsv.h && next.s == mHsv.s && next.v == mHsv.v)
            return;
        const QColor before = Color();
        mHsv = next;
        mpOwner->update();
        const QColor after = Color();
        if (after == before)
            return;
        Q_EMIT mpOwner->ColorUpdated(after);
        if (QAccessible::isActive()) {
            QAccessibleValueChangeEvent event(mpOwner, mHsv.h);
            QAccessible::updateAccessibility(&event);
        }
        if (announce) {
            mbPendingCommit = true;
            Q_EMIT mpOwner->ColorChanged(after);
        }
    }

    void Commit()
    {
        if (!mbPendingCommit)
            return;
        mbPendingCommit = false;
        Q_EMIT mpOwner->ColorCommitted(Color());
    }

    double HueAt(const QPointF& point, const WheelGeometry& g) const
    {
        const double dx = point.x() - g.centre.x();
        const double dy = g.centre.y() - point.y();
        return Wrapped(std::atan2(dy, dx) * 180.0 / kPi);
    }

    void SaturationValueAt(const QPointF& point, const WheelGeometry& g, double* s, double* v) const
    {
        const QRectF& sq = g.square;
        double fx = sq.width() > 0 ? (point.x() - sq.left()) / sq.width() : 0.0;
        if (Mirrored())
            fx = 1.0 - fx;
        *s = std::clamp(fx, 0.0, 1.0);
        *v = std::clamp(sq.height() > 0 ? 1.0 - (point.y() - sq.top()) / sq.height() : 0.0, 0.0, 1.0);
    }

    Drag HitTest(const QPointF& point, const WheelGeometry& g) const
    {
        const double distance = std::hypot(point.x() - g.centre.x(), point.y() - g.centre.y());
        if (distance >= g.inner - 2.0 && distance <= g.outer + 2.0)
            return Drag::Ring;
        if (g.square.adjusted(-4, -4, 4, 4).contains(point))
            return Drag::Square;
        return Drag::None;
    }

    void DragTo(const QPointF& point)
    {
        const WheelGeometry g = Geometry();
        Internal::Hsv hsv = mHsv;
        if (mDrag == Drag::Ring)
            hsv.h = HueAt(point, g);
        else if (mDrag == Drag::Square)
            SaturationValueAt(point, g, &hsv.s, &hsv.v);
        else
            return;
        Change(hsv, true);
    }

    void RenderRing(const WheelGeometry& g, qreal ratio);
    void RenderSquare(const WheelGeometry& g, qreal ratio);

    void DrawRing(QPainter& painter, const WheelGeometry& g);
    void DrawSquare(QPainter& painter, const WheelGeometry& g);
    void DrawMarkers(QPainter& painter, const WheelGeometry& g) const;
    void DrawFocus(QPainter& painter, const WheelGeometry& g) const;

    ColorWheel* const mpOwner;
    Internal::Hsv mHsv;
    int miAlpha = 255;
    Drag mDrag = Drag::None;
    bool mbPendingCommit = false;

    QImage mRing;
    double mdRingOuter = -1.0;
    double mdRingInner = -1.0;
    qreal mdRingRatio = 0.0;
    int miRingRenders = 0;

    QImage mSquare;
    QSizeF mSquareSize;
    double mdSquareHue = -1.0;
    bool mbSquareMirrored = false;
    qreal mdSquareRatio = 0.0;
    int miSquareRenders = 0;
};

void ColorWheelImp::RenderRing(const WheelGeometry& g, qreal ratio)
{
    if (g.outer == mdRingOuter && g.inner == mdRingInner && ratio == mdRingRatio && !mRing.isNull())
        return;
    mdRingOuter = g.outer;
    mdRingInner = g.inner;
    mdRingRatio = ratio;
    ++miRingRenders;
    const int side = std::max(1, int(std::ceil(2.0 * g.outer * ratio)));
    mRing = QImage(side, side, QImage::Format_ARGB32_Premultiplied);
    mRing.fill(Qt::transparent);
    const double outer = g.outer * ratio;
    const double inner = g.inner * ratio;
    const double centre = side / 2.0;
    for (int y = 0; y < side; ++y) {
        auto* line = reinterpret_cast<QRgb*>(mRing.scanLine(y));
        const double dy = centre - (y + 0.5);
        for (int x = 0; x < side; ++x) {
            const double dx = (x + 0.5) - centre;
            const double distance = std::sqrt(dx * dx + dy * dy);
            // Coverage of the pixel by the ring, for smooth edges at any scale.
            const double coverage =
                std::clamp(outer - distance + 0.5, 0.0, 1.0) * std::clamp(distance - inner + 0.5, 0.0, 1.0);
            if (coverage <= 0.0)
                continue;
            const QColor hue = Internal::RgbOf({Wrapped(std::atan2(dy, dx) * 180.0 / kPi), 1.0, 1.0});
            const int a = int(std::lround(coverage * 255.0));
            line[x] = qPremultiply(qRgba(hue.red(), hue.green(), hue.blue(), a));
        }
    }
    mRing.setDevicePixelRatio(ratio);
}

void ColorWheelImp::RenderSquare(const WheelGeometry& g, qreal ratio)
{
    const bool mirrored = Mirrored();
    if (g.square.size() == mSquareSize && ratio == mdSquareRatio && mHsv.h == mdSquareHue &&
        mirrored == mbSquareMirrored && !mSquare.isNull())
        return;
    mSquareSize = g.square.size();
    mdSquareRatio = ratio;
    mdSquareHue = mHsv.h;
    mbSquareMirrored = mirrored;
    ++miSquareRenders;
    const int w = std::max(1, int(std::lround(g.square.width() * ratio)));
    const int h = std::max(1, int(std::lround(g.square.height() * ratio)));
    mSquare = QImage(w, h, QImage::Format_RGB32);
    const QColor pure = Internal::RgbOf({mHsv.h, 1.0, 1.0});
    const float base[3] = {float(pure.red()), float(pure.green()), float(pure.blue())};
    for (int y = 0; y < h; ++y) {
        auto* line = reinterpret_cast<QRgb*>(mSquare.scanLine(y));
        const float v = 1.0f - (float(y) + 0.5f) / float(h);
        for (int x = 0; x < w; ++x) {
            float s = (float(x) + 0.5f) / float(w);
            if (mirrored)
                s = 1.0f - s;
            // value × (white mixed towards the pure hue by saturation)
            const float r = v * (255.0f - s * (255.0f - base[0]));
            const float gg = v * (255.0f - s * (255.0f - base[1]));
            const float b = v * (255.0f - s * (255.0f - base[2]));
            line[x] = qRgb(int(r + 0.5f), int(gg + 0.5f), int(b + 0.5f));
        }
    }
    mSquare.setDevicePixelRatio(ratio);
}

void ColorWheelImp::DrawRing(QPainter& painter, const WheelGeometry& g)
{
    RenderRing(g, mpOwner->devicePixelRatioF());
    painter.drawImage(QPointF(g.centre.x() - g.outer, g.centre.y() - g.outer), mRing);
}

void ColorWheelImp::DrawSquare(QPainter& painter, const WheelGeometry& g)
{
    if (g.square.isEmpty())
        return;
    RenderSquare(g, mpOwner->devicePixelRatioF());
    painter.drawImage(g.square.topLeft(), mSquare);
}

void ColorWheelImp::DrawMarkers(QPainter& painter, const WheelGeometry& g) const
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing, true);
    painter.setBrush(Qt::NoBrush);
    const double ringWidth = g.outer - g.inner;
    const QPointF huePoint = mpOwner->PointForHue(mHsv.h);
    const QColor hueColor = Internal::RgbOf({mHsv.h, 1.0, 1.0});
    const double hueRadius = std::max(3.0, ringWidth / 2.0 - 1.0);
    painter.setPen(QPen(Internal::MarkerColorOver(hueColor), 2.0));
    painter.drawEllipse(huePoint, hueRadius, hueRadius);

    const QPointF svPoint = mpOwner->PointForSaturationValue(mHsv.s, mHsv.v);
    const QColor inner = Internal::MarkerColorOver(Internal::RgbOf(mHsv));
    const QColor outer = inner == QColor(Qt::black) ? QColor(Qt::white) : QColor(Qt::black);
    painter.setPen(QPen(outer, 1.0));
    painter.drawEllipse(svPoint, 6.0, 6.0);
    painter.setPen(QPen(inner, 2.0));
    painter.drawEllipse(svPoint, 4.5, 4.5);
    painter.restore();
}

void ColorWheelImp::DrawFocus(QPainter& painter, const WheelGeometry& g) const
{
    if (!mpOwner->hasFocus() || !mpOwner->isEnabled())
        return;
    const double r = g.outer + kFocusMargin;
    const QRectF box(g.centre.x() - r, g.centre.y() - r, 2 * r, 2 * r);
    Internal::DrawFocusRing(&painter, mpOwner, box, r);
}

ColorWheel::ColorWheel(QWidget* parent)
    : QWidget(parent)
    , mpImp(std::make_unique<ColorWheelImp>(this))
{
    Internal::InstallColorControlsAccessibility();
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_Hover, true);
    QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Preferred);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
    new Internal::ThemedColor(this);
    connect(ThemeManager::GetInstance(), &ThemeManager::ThemeChanged, this, &ColorWheel::OnThemeChanged);
    mpImp->mHsv = {0.0, 1.0, 1.0};
}

ColorWheel::~ColorWheel() = default;

QColor ColorWheel::GetColor() const
{
    return mpImp->Color();
}

void ColorWheel::SetColor(const QColor& color)
{
    if (!color.isValid())
        return;
    const int alpha = color.alpha();
    const QColor before = GetColor();
    const bool alphaChanged = alpha != mpImp->miAlpha;
    mpImp->miAlpha = alpha;
    mpImp->Change(Internal::HsvOf(color, mpImp->mHsv), false);
    if (alphaChanged)
        update();
    // An alpha-only change leaves Change() silent.
    if (alphaChanged && GetColor() != before)
        Q_EMIT ColorUpdated(GetColor());
}

double ColorWheel::GetHue() const
{
    return mpImp->mHsv.h;
}

double ColorWheel::GetSaturation() const
{
    return mpImp->mHsv.s;
}

double ColorWheel::GetValue() const
{
    return mpImp->mHsv.v;
}

void ColorWheel::SetHsv(double hue, double saturation, double value)
{
    mpImp->Change({hue, saturation, value}, false);
}

QPointF ColorWheel::PointForHue(double hue) const
{
    const WheelGeometry g = mpImp->Geometry();
    const double radius = (g.outer + g.inner) / 2.0;
    const double angle = Wrapped(hue) * kPi / 180.0;
    return QPointF(g.centre.x() + radius * std::cos(angle), g.centre.y() - radius * std::sin(angle));
}

QPointF ColorWheel::PointForSaturationValue(double saturation, double value) const
{
    const QRectF sq = mpImp->Geometry().square;
    double fx = std::clamp(saturation, 0.0, 1.0);
    if (mpImp->Mirrored())
        fx = 1.0 - fx;
    return QPointF(sq.left() + fx * sq.width(), sq.top() + (1.0 - std::clamp(value, 0.0, 1.0)) * sq.height());
}

QRectF ColorWheel::SquareRect() const
{
    return mpImp->Geometry().square;
}

int ColorWheel::GetRingRenderCount() const
{
    return mpImp->miRingRenders;
}

int ColorWheel::GetSquareRenderCount() const
{
    return mpImp->miSquareRenders;
}

QSize ColorWheel::sizeHint() const
{
    return QSize(kPreferredSide, kPreferredSide);
}

QSize ColorWheel::minimumSizeHint() const
{
    return QSize(kMinimumSide, kMinimumSide);
}

bool ColorWheel::hasHeightForWidth() const
{
    return true;
}

int ColorWheel::heightForWidth(int width) const
{
    return width;
}

void ColorWheel::OnThemeChanged()
{
    // The images hold no theme colour; the focus ring does.
    Internal::RepaintAfterThemeChange(this);
}

void ColorWheel::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    const WheelGeometry g = mpImp->Geometry();
    if (g.outer <= 0.0)
        return;
    if (!isEnabled())
        painter.setOpacity(0.4);
    mpImp->DrawRing(painter, g);
    mpImp->DrawSquare(painter, g);
    mpImp->DrawMarkers(painter, g);
    painter.setOpacity(1.0);
    mpImp->DrawFocus(painter, g);
}

void ColorWheel::mousePressEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton) {
        QWidget::mousePressEvent(event);
        return;
    }
    mpImp->mDrag = mpImp->HitTest(event->position(), mpImp->Geometry());
    if (mpImp->mDrag == ColorWheelImp::Drag::None) {
        event->ignore();
        return;
    }
    mpImp->DragTo(event->position());
    event->accept();
}

void ColorWheel::mouseMoveEvent(QMouseEvent* event)
{
    if (mpImp->mDrag == ColorWheelImp::Drag::None || !(event->buttons() & Qt::LeftButton)) {
        QWidget::mouseMoveEvent(event);
        return;
    }
    mpImp->DragTo(event->position());
}

void ColorWheel::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton || mpImp->mDrag == ColorWheelImp::Drag::None) {
        QWidget::mouseReleaseEvent(event);
        return;
    }
    mpImp->DragTo(event->position());
    mpImp->mDrag = ColorWheelImp::Drag::None;
    mpImp->Commit();
}

void ColorWheel::keyPressEvent(QKeyEvent* event)
{
    const bool shift = event->modifiers() & Qt::ShiftModifier;
    const double step = shift ? kLargeStep : kSmallStep;
    const double towardsRight = mpImp->Mirrored() ? -step : step;
    Internal::Hsv hsv = mpImp->mHsv;
    switch (event->key()) {
    case Qt::Key_Left:
        hsv.s -= towardsRight;
        break;
    case Qt::Key_Right:
        hsv.s += towardsRight;
        break;
    case Qt::Key_Up:
        hsv.v += step;
        break;
    case Qt::Key_Down:
        hsv.v -= step;
        break;
    case Qt::Key_PageUp:
        hsv.h += shift ? kFineHueStep : kHueStep;
        break;
    case Qt::Key_PageDown:
        hsv.h -= shift ? kFineHueStep : kHueStep;
        break;
    default:
        QWidget::keyPressEvent(event);
        return;
    }
    // Steps land on the grid of the step, so repeated presses stay round.
    if (event->key() == Qt::Key_Left || event->key() == Qt::Key_Right)
        hsv.s = std::round(hsv.s / kSmallStep) * kSmallStep;
    if (event->key() == Qt::Key_Up || event->key() == Qt::Key_Down)
        hsv.v = std::round(hsv.v / kSmallStep) * kSmallStep;
    mpImp->Change(hsv, true);
    event->accept();
}

void ColorWheel::keyReleaseEvent(QKeyEvent* event)
{
    if (!event->isAutoRepeat())
        mpImp->Commit();
    QWidget::keyReleaseEvent(event);
}

void ColorWheel::focusInEvent(QFocusEvent* event)
{
    update();
    QWidget::focusInEvent(event);
}

void ColorWheel::focusOutEvent(QFocusEvent* event)
{
    // A drag or key cut short by a focus change still ends in a commit.
    mpImp->mDrag = ColorWheelImp::Drag::None;
    mpImp->Commit();
    update();
    QWidget::focusOutEvent(event);
}

void ColorWheel::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LayoutDirectionChange || event->type() == QEvent::EnabledChange)
        update();
    QWidget::changeEvent(event);
}

} // namespace Kavrel::UICore
