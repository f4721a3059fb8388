#include <KvUICore/widgets/GradientSwatch.h>

#include <KvUICore/core/CoreUIUtil_p.h>
#include <KvUICore/theme/CustomStylePainting_p.h>
#include <KvUICore/theme/ThemeFileKey.h>
#include <KvUICore/theme/ThemeManager.h>
#include <KvUICore/widgets/ColorMath_p.h>
#include <KvUICore/widgets/ColorPicker.h>
#include <KvUICore/widgets/ColorPickerParts_p.h>
#include <KvUICore/widgets/ThemedColor_p.h>

#include <QAccessible>
#include <QIcon>
#include <QKeyEvent>
#include <QLinearGradient>
#include <QMouseEvent>
#include <QPainter>
#include <QPointer>

#include <algorithm>
#include <cmath>

namespace Kavrel::UICore {

namespace {

constexpr int kRingSpace = 2;
constexpr int kNodeHalfWidth = 7;
constexpr int kBarHeight = 16;
constexpr int kNodeRowHeight = 16;
constexpr int kIconSize = 16;
constexpr int kDeleteGap = 4;
constexpr double kSmallStep = 0.01;
constexpr double kLargeStep = 0.10;

bool StopLess(const QGradientStop& a, const QGradientStop& b)
{
    return a.first < b.first;
}

QGradientStops DefaultStops()
{
    return {{0.0, QColor(Qt::black)}, {1.0, QColor(Qt::white)}};
}

} // namespace

class GradientSwatchImp
{
public:
    explicit GradientSwatchImp(GradientSwatch* owner)
        : mpOwner(owner)
    {}

    bool Mirrored() const { return mpOwner->layoutDirection() == Qt::RightToLeft; }

    int XFor(double position) const
    {
        const QRect bar = mpOwner->BarRect();
        const double f = Mirrored() ? 1.0 - position : position;
        return bar.left() + int(std::lround(f * (bar.width() - 1)));
    }

    QRect NodeRect(int index) const
    {
        const QPoint tip = mpOwner->NodePoint(index);
        return QRect(tip.x() - kNodeHalfWidth, tip.y() - 1, 2 * kNodeHalfWidth + 1, kNodeRowHeight);
    }

    // The node under a point; the selected node wins where nodes overlap.
    int NodeAt(const QPoint& point) const
    {
        if (miSelected >= 0 && NodeRect(miSelected).contains(point))
            return miSelected;
        for (int i = int(mStops.size()) - 1; i >= 0; --i) {
            if (NodeRect(i).contains(point))
                return i;
        }
        return -1;
    }

    bool CanRemove() const { return miSelected >= 0 && mStops.size() > GradientSwatch::kMinimumStops; }

    void Changed()
    {
        mpOwner->update();
        if (QAccessible::isActive()) {
            QAccessibleEvent event(mpOwner, QAccessible::ValueChanged);
            QAccessible::updateAccessibility(&event);
        }
        Q_EMIT mpOwner->StopsUpdated(mStops);
        Q_EMIT mpOwner->GradientChanged(mStops);
    }

    void Select(int index)
    {
        if (index < -1 || index >= mStops.size())
            index = -1;
        if (index == miSelected)
            return;
        miSelected = index;
        mpOwner->update();
        Q_EMIT mpOwner->SelectedStopChanged(index);
    }

    void DrawBar(QPainter& painter) const;
    void DrawNodes(QPainter& painter) const;
    void DrawHoverDiamond(QPainter& painter) const;
    void DrawDeleteButton(QPainter& painter) const;
    void DrawFocus(QPainter& painter) const;

    GradientSwatch* const mpOwner;
    QGradientStops mStops = DefaultStops();
    int miSelected = 0;
    int miDragged = -1;
    int miDragOffset = 0;
    int miHoverX = -1;
    bool mbDeleteHovered = false;
    QPointer<ColorPickerPopup> mpPopup;
    int miPickerStop = -1;
};

void GradientSwatchImp::DrawBar(QPainter& painter) const
{
    ThemeManager* themes = ThemeManager::GetInstance();
    const QRect bar = mpOwner->BarRect();
    const QRectF inside = QRectF(bar).adjusted(1, 1, -1, -1);
    Internal::DrawCheckerboard(&painter, inside);
    QLinearGradient gradient(Mirrored() ? inside.topRight() : inside.topLeft(),
                             Mirrored() ? inside.topLeft() : inside.topRight());
    gradient.setStops(mStops);
    painter.fillRect(inside, gradient);
    const bool active = miDragged >= 0 || (mpPopup && mpPopup->IsOpen());
    QColor outline =
        themes->GetColor(active ? ThemeFileKey::GradientBarClickOutline : ThemeFileKey::GradientBarOutline);
    if (!mpOwner->isEnabled())
        outline = Internal::DimmedColor(outline);
    const Internal::StrokeGrid grid = Internal::StrokeGridOf(mpOwner, &painter);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing, true);
    Internal::StrokeOutline(&painter, Internal::StrokeRect(&painter, QRectF(bar), grid), outline, grid);
    painter.restore();
}

void GradientSwatchImp::DrawNodes(QPainter& painter) const
{
    ThemeManager* themes = ThemeManager::GetInstance();
    const QIcon idle = Internal::IconFromTheme(ThemeFileKey::GradientNodeIdleIcon, QSize(kIconSize, kIconSize));
    const QIcon selected = Internal::IconFromTheme(ThemeFileKey::GradientNodeSelectedIcon, QSize(kIconSize, kIconSize));
    const QColor idleFrame = themes->GetColor(ThemeFileKey::GradientNodeColor);
    const QColor selectedFrame = themes->GetColor(ThemeFileKey::GradientNodeColor2);
    // The selected node last, so it is on top where nodes overlap.
    QList<int> order;
    for (int i = 0; i < mStops.size(); ++i) {
        if (i != miSelected)
            order.append(i);
    }
    if (miSelected >= 0)
        order.append(miSelected);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing, true);
    for (const int i : std::as_const(order)) {
        const QPoint tip = mpOwner->NodePoint(i);
        const bool isSelected = i == miSelected;
        const QRect iconRect(tip.x() - kIconSize / 2, tip.y() - 2, kIconSize, kIconSize);
        (isSelected ? selected : idle).paint(&painter, iconRect);
        // The stop's colour in the node's body, framed so that it shows on the icon.
        const QRectF chip(tip.x() - 3.5, tip.y() + 5.5, 8, 6);
        const QColor& color = mStops.at(i).second;
        if (color.alpha() < 255)
            Internal::DrawCheckerboard(&painter, chip, 2.0);
        painter.setPen(QPen(isSelected ? selectedFrame : idleFrame, 1.0));
        painter.setBrush(color);
        painter.drawRect(chip);
    }
    painter.restore();
}

void GradientSwatchImp::DrawHoverDiamond(QPainter& painter) const
{
    if (miHoverX < 0 || miDragged >= 0 || !mpOwner->isEnabled())
        return;
    const QRect bar = mpOwner->BarRect();
    const QIcon diamond = Internal::IconFromTheme(ThemeFileKey::GradientDiamondIcon, QSize(kIconSize, kIconSize));
    painter.save();
    painter.setOpacity(0.7);
    diamond.paint(&painter, QRect(miHoverX - kIconSize / 2, bar.bottom() + 1, kIconSize, kIconSize));
    painter.restore();
}

void GradientSwatchImp::DrawDeleteButton(QPainter& painter) const
{
    const QRect button = mpOwner->DeleteButtonRect();
    painter.save();
    const bool enabled = mpOwner->isEnabled() && CanRemove();
    if (enabled && mbDeleteHovered)
        painter.fillRect(button, ThemeManager::GetInstance()->GetBrush(ThemeFileKey::HoverContainer1, button));
    if (!enabled)
        painter.setOpacity(0.4);
    Internal::IconFromTheme(ThemeFileKey::DeleteNodeIcon, button.size()).paint(&painter, button);
    painter.restore();
}

void GradientSwatchImp::DrawFocus(QPainter& painter) const
{
    if (mpOwner->hasFocus() && mpOwner->isEnabled())
        Internal::DrawFocusRing(&painter, mpOwner, mpOwner->rect());
}

GradientSwatch::GradientSwatch(QWidget* parent)
    : QWidget(parent)
    , mpImp(std::make_unique<GradientSwatchImp>(this))
{
    Internal::InstallColorControlsAccessibility();
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_Hover, true);
    setMouseTracking(true);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    new Internal::ThemedColor(this);
    connect(ThemeManager::GetInstance(), &ThemeManager::ThemeChanged, this, &GradientSwatch::OnThemeChanged);
}

GradientSwatch::~GradientSwatch() = default;

QGradientStops GradientSwatch::GetStops() const
{
    return mpImp->mStops;
}

void GradientSwatch::SetStops(const QGradientStops& stops)
{
    QGradientStops clean;
    clean.reserve(stops.size());
    for (const QGradientStop& stop : stops) {
        if (!std::isfinite(stop.first) || !stop.second.isValid())
            continue;
        clean.append({std::clamp(stop.first, 0.0, 1.0), stop.second.toRgb()});
    }
    std::stable_sort(clean.begin(), clean.end(), StopLess);
    if (clean.size() < kMinimumStops)
        clean = DefaultStops();
    if (clean == mpImp->mStops)
        return;
    mpImp->mStops = clean;
    if (mpImp->miSelected >= clean.size())
        mpImp->Select(int(clean.size()) - 1);
    update();
    Q_EMIT StopsUpdated(clean);
}

int GradientSwatch::GetSelectedStop() const
{
    return mpImp->miSelected;
}

void GradientSwatch::SetSelectedStop(int index)
{
    mpImp->Select(index);
}

int GradientSwatch::AddStop(double position)
{
    if (!std::isfinite(position))
        return -1;
    position = std::clamp(position, 0.0, 1.0);
    QGradientStops& stops = mpImp->mStops;
    const QColor color = ColorAt(stops, position);
    const auto at = std::upper_bound(stops.begin(), stops.end(), QGradientStop(position, color), StopLess);
    const int index = int(at - stops.begin());
    stops.insert(index, {position, color});
    mpImp->miSelected = -1;
    mpImp->Select(index);
    mpImp->Changed();
    return index;
}

bool GradientSwatch::RemoveStop(int index)
{
    QGradientStops& stops = mpImp->mStops;
    if (index < 0 || index >= stops.size() || stops.size() <= kMinimumStops)
        return false;
    stops.removeAt(index);
    const int selected = mpImp->miSelected;
    mpImp->miSelected = -1;
    mpImp->Select(selected > index ? selected - 1 : std::min(selected, int(stops.size()) - 1));
    mpImp->Changed();
    return true;
}

bool GradientSwatch::MoveStop(int index, double position)
{
    QGradientStops& stops = mpImp->mStops;
    if (index < 0 || index >= stops.size() || !std::isfinite(position))
        return false;
    const double lowest = index > 0 ? stops.at(index - 1).first : 0.0;
    const double highest = index + 1 < stops.size() ? stops.at(index + 1).first : 1.0;
    position = std::clamp(position, lowest, highest);
    if (position == stops.at(index).first)
        return false;
    stops[index].first = position;
    mpImp->Changed();
    return true;
}

bool GradientSwatch::SetStopColor(int index, const QColor& color)
{
    QGradientStops& stops = mpImp->mStops;
    if (index < 0 || index >= stops.size() || !color.isValid() || stops.at(index).second == color)
        return false;
    stops[index].second = color.toRgb();
    mpImp->Changed();
    return true;
}

QColor GradientSwatch::ColorAt(const QGradientStops& stops, double position)
{
    if (stops.isEmpty())
        return QColor();
    if (position <= stops.first().first)
        return stops.first().second;
    if (position >= stops.last().first)
        return stops.last().second;
    for (int i = 1; i < stops.size(); ++i) {
        const QGradientStop& right = stops.at(i);
        if (position > right.first)
            continue;
        const QGradientStop& left = stops.at(i - 1);
        const double span = right.first - left.first;
        const double t = span > 0.0 ? (position - left.first) / span : 1.0;
        const auto mix = [t](int a, int b) { return int(std::lround(a + (b - a) * t)); };
        const QColor a = left.second.toRgb();
        const QColor b = right.second.toRgb();
        return QColor(mix(a.red(), b.red()), mix(a.green(), b.green()), mix(a.blue(), b.blue()),
                      mix(a.alpha(), b.alpha()));
    }
    return stops.last().second;
}

QRect GradientSwatch::BarRect() const
{
    const int side = kRingSpace + kNodeHalfWidth + 1;
    const int deleteSpace = kIconSize + kDeleteGap;
    QRect bar(side, kRingSpace + 1, std::max(8, width() - 2 * side - deleteSpace), kBarHeight);
    if (layoutDirection() == Qt::RightToLeft)
        bar.moveLeft(side + deleteSpace);
    return bar;
}

QPoint GradientSwatch::NodePoint(int index) const
{
    if (index < 0 || index >= mpImp->mStops.size())
        return QPoint();
    return QPoint(mpImp->XFor(mpImp->mStops.at(index).first), BarRect().bottom() + 1);
}

QRect GradientSwatch::DeleteButtonRect() const
{
    const QRect bar = BarRect();
    const int x =
        layoutDirection() == Qt::RightToLeft ? bar.left() - kDeleteGap - kIconSize : bar.right() + kDeleteGap + 1;
    return QRect(x, bar.top(), kIconSize, kIconSize);
}

double GradientSwatch::PositionAt(int x) const
{
    const QRect bar = BarRect();
    double f = bar.width() > 1 ? double(x - bar.left()) / (bar.width() - 1) : 0.0;
    if (layoutDirection() == Qt::RightToLeft)
        f = 1.0 - f;
    return std::clamp(f, 0.0, 1.0);
}

void GradientSwatch::OpenStopPicker(int index)
{
    if (!isEnabled() || index < 0 || index >= mpImp->mStops.size())
        return;
    if (mpImp->mpPopup && mpImp->mpPopup->IsOpen())
        return;
    if (!mpImp->mpPopup) {
        mpImp->mpPopup = new ColorPickerPopup(this);
        connect(mpImp->mpPopup, &ColorPickerPopup::ColorChanged, this,
                [this](const QColor& color) { SetStopColor(mpImp->miPickerStop, color); });
        connect(mpImp->mpPopup, &ColorPickerPopup::Finished, this, [this] {
            mpImp->miPickerStop = -1;
            update();
        });
    }
    mpImp->Select(index);
    mpImp->miPickerStop = index;
    const QPoint tip = NodePoint(index);
    const QRect anchor(mapToGlobal(QPoint(tip.x() - kNodeHalfWidth, 0)), QSize(2 * kNodeHalfWidth, height()));
    mpImp->mpPopup->Open(mpImp->mStops.at(index).second, true, anchor);
    update();
}

ColorPicker* GradientSwatch::GetPicker() const
{
    return mpImp->mpPopup && mpImp->mpPopup->IsOpen() ? mpImp->mpPopup->GetPicker() : nullptr;
}

QSize GradientSwatch::sizeHint() const
{
    return QSize(220, 2 * kRingSpace + 2 + kBarHeight + kNodeRowHeight);
}

QSize GradientSwatch::minimumSizeHint() const
{
    return QSize(80, sizeHint().height());
}

void GradientSwatch::OnThemeChanged()
{
    Internal::RepaintAfterThemeChange(this);
}

void GradientSwatch::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    if (!isEnabled())
        painter.setOpacity(0.4);
    mpImp->DrawBar(painter);
    mpImp->DrawHoverDiamond(painter);
    mpImp->DrawNodes(painter);
    painter.setOpacity(1.0);
    mpImp->DrawDeleteButton(painter);
    mpImp->DrawFocus(painter);
}

void GradientSwatch::mousePressEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton) {
        QWidget::mousePressEvent(event);
        return;
    }
    const QPoint point = event->position().toPoint();
    if (DeleteButtonRect().contains(point)) {
        RemoveStop(mpImp->miSelected);
        return;
    }
    int node = mpImp->NodeAt(point);
    if (node < 0 && BarRect().adjusted(0, 0, 0, 2).contains(point))
        node = AddStop(PositionAt(point.x()));
    if (node < 0)
        return;
    mpImp->Select(node);
    mpImp->miDragged = node;
    mpImp->miDragOffset = point.x() - NodePoint(node).x();
    update();
}

void GradientSwatch::mouseMoveEvent(QMouseEvent* event)
{
    const QPoint point = event->position().toPoint();
    if (mpImp->miDragged >= 0 && (event->buttons() & Qt::LeftButton)) {
        MoveStop(mpImp->miDragged, PositionAt(point.x() - mpImp->miDragOffset));
        return;
    }
    const int hoverX = BarRect().contains(point) && mpImp->NodeAt(point) < 0 ? point.x() : -1;
    const bool deleteHovered = DeleteButtonRect().contains(point);
    if (hoverX != mpImp->miHoverX || deleteHovered != mpImp->mbDeleteHovered) {
        mpImp->miHoverX = hoverX;
        mpImp->mbDeleteHovered = deleteHovered;
        update();
    }
}

void GradientSwatch::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton && mpImp->miDragged >= 0) {
        mpImp->miDragged = -1;
        update();
        return;
    }
    QWidget::mouseReleaseEvent(event);
}

void GradientSwatch::mouseDoubleClickEvent(QMouseEvent* event)
{
    const int node = mpImp->NodeAt(event->position().toPoint());
    if (event->button() == Qt::LeftButton && node >= 0) {
        mpImp->miDragged = -1;
        OpenStopPicker(node);
        return;
    }
    QWidget::mouseDoubleClickEvent(event);
}

void GradientSwatch::keyPressEvent(QKeyEvent* event)
{
    const int selected = mpImp->miSelected;
    const double step = (event->modifiers() & Qt::ShiftModifier) ? kLargeStep : kSmallStep;
    const double towardsRight = mpImp->Mirrored() ? -step : step;
    switch (event->key()) {
    case Qt::Key_Left:
    case Qt::Key_Right:
        if (selected >= 0) {
            const double delta = event->key() == Qt::Key_Right ? towardsRight : -towardsRight;
            MoveStop(selected, std::round((mpImp->mStops.at(selected).first + delta) / kSmallStep) * kSmallStep);
        }
        break;
    case Qt::Key_Up:
        mpImp->Select(std::max(0, selected - 1));
        break;
    case Qt::Key_Down:
        mpImp->Select(std::min(int(mpImp->mStops.size()) - 1, selected + 1));
        break;
    case Qt::Key_Delete:
    case Qt::Key_Backspace:
        RemoveStop(selected);
        break;
    case Qt::Key_Insert:
        if (selected >= 0) {
            const double here = mpImp->mStops.at(selected).first;
            const double next = selected + 1 < mpImp->mStops.size() ? mpImp->mStops.at(selected + 1).first : 1.0;
            AddStop((here + next) / 2.0);
        }
        break;
    case Qt::Key_Space:
    case Qt::Key_Return:
    case Qt::Key_Enter:
        OpenStopPicker(selected);
        break;
    default:
        QWidget::keyPressEvent(event);
        return;
    }
    event->accept();
}

void GradientSwatch::leaveEvent(QEvent* event)
{
    mpImp->miHoverX = -1;
    mpImp->mbDeleteHovered = false;
    update();
    QWidget::leaveEvent(event);
}

void GradientSwatch::focusInEvent(QFocusEvent* event)
{
    update();
    QWidget::focusInEvent(event);
}

void GradientSwatch::focusOutEvent(QFocusEvent* event)
{
    update();
    QWidget::focusOutEvent(event);
}

void GradientSwatch::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::EnabledChange || event->type() == QEvent::LayoutDirectionChange)
        update();
    QWidget::changeEvent(event);
}

} // namespace Kavrel::UICore
