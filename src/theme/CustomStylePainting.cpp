#include <KvUICore/core/CoreUIUtil_p.h>
#include <KvUICore/core/DrawingHelpers_p.h>
#include <KvUICore/theme/CustomStylePainting_p.h>

#include <KvUICore/theme/ThemeFileKey.h>
#include <KvUICore/theme/ThemeManager.h>

#include <QAbstractButton>
#include <QApplication>
#include <QFont>
#include <QFontDatabase>

#include <QIcon>
#include <QLabel>
#include <QPaintDevice>
#include <QPainter>
#include <QWidget>

#include <cmath>

namespace Kavrel::UICore::Internal {

namespace {

// A small allowance so that edges a rounding error off the grid are not moved
// by a whole pixel.
constexpr qreal kGridTolerance = 0.01;

bool IsPlainScale(const QTransform& transform)
{
    return transform.type() <= QTransform::TxScale && transform.m11() > 0 && transform.m22() > 0;
}

} // namespace

StrokeGrid StrokeGridOf(const QWidget* widget, const QPainter* painter)
{
    // While painting, the device carries the widget's ratio and is cheaper to
    // ask than the widget, which looks up its screen.
    const QPaintDevice* device = painter ? painter->device() : nullptr;
    const qreal ratio = device ? device->devicePixelRatioF() : (widget ? widget->devicePixelRatioF() : 1.0);
    StrokeGrid grid;
    grid.factor = DeviceScaleFactorForRatio(float(ratio));
    grid.bucket = ResolutionBucket(grid.factor);
    grid.unit = StrokeUnit(grid.factor);
    return grid;
}

QPen CosmeticPen(const QBrush& brush, const StrokeGrid& grid, qreal widthFactor, Qt::PenCapStyle cap,
                 Qt::PenJoinStyle join)
{
    QPen pen(brush, qreal(grid.bucket) * widthFactor, Qt::SolidLine, cap, join);
    pen.setCosmetic(true);
    return pen;
}

QPointF StrokeUnits(const QPainter* painter, const StrokeGrid& grid)
{
    const QTransform transform = painter->deviceTransform();
    if (!IsPlainScale(transform))
        return QPointF(grid.unit, grid.unit);
    return QPointF(grid.bucket / transform.m11(), grid.bucket / transform.m22());
}

QRectF StrokeRect(const QPainter* painter, const QRectF& rect, const StrokeGrid& grid, int inset)
{
    const QTransform transform = painter->deviceTransform();
    if (!IsPlainScale(transform)) {
        const qreal half = grid.unit * (0.5 + inset);
        return rect.adjusted(half, half, -half, -half);
    }
    const qreal sx = transform.m11();
    const qreal sy = transform.m22();
    const qreal stroke = grid.bucket;
    const qreal in = stroke * (0.5 + inset);
    qreal left = std::ceil(rect.left() * sx + transform.dx() - kGridTolerance) + in;
    qreal top = std::ceil(rect.top() * sy + transform.dy() - kGridTolerance) + in;
    qreal right = std::floor(rect.right() * sx + transform.dx() + kGridTolerance) - in;
    qreal bottom = std::floor(rect.bottom() * sy + transform.dy() + kGridTolerance) - in;
    right = std::max(right, left);
    bottom = std::max(bottom, top);
    // Work from an origin on the device grid, so that the snapping helper sees
    // edges on its unit grid and cuts the size to whole strokes.
    const QPointF origin((left - stroke * 0.5 - transform.dx()) / sx, (top - stroke * 0.5 - transform.dy()) / sy);
    const float unitX = float(stroke / sx);
    const float unitY = float(stroke / sy);
    const QRectF snappedX = SnappedRect(QRectF(0, 0, (right - left) / sx + unitX * 0.01, 1), 0, 0, 0, 0, unitX);
    const QRectF snappedY = SnappedRect(QRectF(0, 0, 1, (bottom - top) / sy + unitY * 0.01), 0, 0, 0, 0, unitY);
    return QRectF(origin.x() + snappedX.left(), origin.y() + snappedY.top(), snappedX.width() - 0.001,
                  snappedY.height() - 0.001);
}

// Edges are filled as stroke-wide rectangles on whole device pixels rather
// than stroked: antialiased lines leave a percent or so of coverage on the
// neighbouring pixel row, which shows as a faint seam at fractional scales.
void StrokeOutline(QPainter* painter, const QRectF& strokeRect, const QColor& color, const StrokeGrid& grid)
{
    if (!color.isValid())
        return;
    const QPointF units = StrokeUnits(painter, grid);
    const qreal hx = units.x() / 2;
    const qreal hy = units.y() / 2;
    const QRectF outer = strokeRect.adjusted(-hx, -hy, hx, hy);
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing, false);
    painter->setPen(Qt::NoPen);
    painter->setBrush(color);
    const QRectF edges[4] = {
        QRectF(outer.left(), outer.top(), outer.width(), units.y()),
        QRectF(outer.left(), outer.bottom() - units.y(), outer.width(), units.y()),
        QRectF(outer.left(), outer.top() + units.y(), units.x(), outer.height() - 2 * units.y()),
        QRectF(outer.right() - units.x(), outer.top() + units.y(), units.x(), outer.height() - 2 * units.y()),
    };
    painter->drawRects(edges, 4);
    painter->restore();
}

void DrawFramedRect(QPainter* painter, const QRectF& strokeRect, const QBrush& fill, const QColor& outline,
                    const StrokeGrid& grid)
{
    const QPointF units = StrokeUnits(painter, grid);
    const qreal ux = units.x();
    const qreal uy = units.y();
    const QRectF outer = strokeRect.adjusted(-ux / 2, -uy / 2, ux / 2, uy / 2);
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing, false);
    painter->setPen(Qt::NoPen);
    if (fill.style() != Qt::NoBrush) {
        const QRectF inside = outer.adjusted(ux, uy, -ux, -uy);
        if (inside.width() > 0 && inside.height() > 0)
            painter->fillRect(inside, fill);
    }
    if (outline.isValid()) {
        // Each edge stops one stroke short of the corners.
        painter->setBrush(outline);
        const QRectF edges[4] = {
            QRectF(outer.left() + ux, outer.top(), outer.width() - 2 * ux, uy),
            QRectF(outer.left() + ux, outer.bottom() - uy, outer.width() - 2 * ux, uy),
            QRectF(outer.left(), outer.top() + uy, ux, outer.height() - 2 * uy),
            QRectF(outer.right() - ux, outer.top() + uy, ux, outer.height() - 2 * uy),
        };
        painter->drawRects(edges, 4);
    }
    painter->restore();
}

QBrush DimmedBrush(const QBrush& brush)
{
    if (const QGradient* gradient = brush.gradient()) {
        QGradient dimmed = *gradient;
        QGradientStops stops = dimmed.stops();
        for (QGradientStop& stop : stops)
            stop.second = DimmedColor(stop.second);
        dimmed.setStops(stops);
        return QBrush(dimmed);
    }
    QBrush dimmed = brush;
    if (brush.style() != Qt::NoBrush)
        dimmed.setColor(DimmedColor(brush.color()));
    return dimmed;
}

StrokeGrid DrawStateFrame(QPainter* painter, const QWidget* widget, const QRect& box, const StateFrameKeys& keys,
                          FrameState state)
{
    ThemeManager* themes = ThemeManager::GetInstance();
    QBrush fill;
    QColor border;
    switch (state) {
    case FrameState::Active:
        fill = themes->GetBrush(keys.activeFill, box);
        border = themes->GetColor(keys.activeBorder);
        break;
    case FrameState::Hover:
        fill = themes->GetBrush(keys.hoverFill, box);
        border = themes->GetColor(keys.hoverBorder);
        break;
    case FrameState::Normal:
        fill = themes->GetBrush(keys.normalFill, box);
        border = themes->GetColor(keys.normalBorder);
        break;
    }
    if (!widget->isEnabled()) {
        fill = DimmedBrush(fill);
        border = DimmedColor(border);
    }
    const StrokeGrid grid = StrokeGridOf(widget, painter);
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing, true);
    DrawFramedRect(painter, StrokeRect(painter, box, grid), fill, border, grid);
    painter->restore();
    return grid;
}

void FillAntialiasedTriangle(QPainter* painter, const QPointF (&points)[3], const QColor& color)
{
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing, true);
    painter->setPen(Qt::NoPen);
    painter->setBrush(color);
    painter->drawPolygon(points, 3);
    painter->restore();
}

QColor FocusRingColor(const QWidget* widget)
{
    const QColor color = ThemeManager::GetInstance()->GetColor(ThemeFileKey::FocusOutline1);
    if (color.isValid())
        return color;
    return widget ? widget->palette().color(QPalette::Highlight) : QColor(Qt::blue);
}

void DrawFocusRing(QPainter* painter, const QWidget* widget, const QRectF& rect, qreal radius, const QColor& color)
{
    const StrokeGrid grid = StrokeGridOf(widget, painter);
    // Two strokes wide, so the ring reads as a ring and not as a border.
    if (!painter || rect.width() < 4 * grid.unit || rect.height() < 4 * grid.unit)
        return;
    const QColor ring = color.isValid() ? color : FocusRingColor(widget);
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing, true);
    if (radius > 0.0) {
        const qreal width = 2.0 * grid.unit;
        QPen pen(ring, width);
        pen.setJoinStyle(Qt::MiterJoin);
        painter->setPen(pen);
        painter->setBrush(Qt::NoBrush);
        painter->drawRoundedRect(rect.adjusted(width / 2, width / 2, -width / 2, -width / 2), radius, radius);
    } else {
        StrokeOutline(painter, StrokeRect(painter, rect, grid), ring, grid);
        StrokeOutline(painter, StrokeRect(painter, rect, grid, 1), ring, grid);
    }
    painter->restore();
}

void RepaintAfterThemeChange(QWidget* widget)
{
    QWidget* parent = widget->parentWidget();
    if (parent && !widget->isWindow())
        parent->update();
    widget->update();
}

QIcon IconFromTheme(const QString& key, const QSize& size)
{
    if (key.isEmpty())
        return QIcon();
    ThemeManager* themes = ThemeManager::GetInstance();
    const QImage image = themes->GetImage(key, size);
    if (!image.isNull())
        return QIcon(QPixmap::fromImage(image));
    const QString path = themes->GetString(key);
    return path.isEmpty() ? QIcon() : QIcon(path);
}

QFont WithThemePixelSize(QFont font)
{
    // The platform's font is what an application has until its host sets one.
    if (QApplication::font() != QFontDatabase::systemFont(QFontDatabase::GeneralFont))
        return font;
    ThemeManager* themes = ThemeManager::GetInstance();
    if (themes->Exists(ThemeFileKey::FontPixelSizeVal)) {
        const int pixelSize = themes->GetInt(ThemeFileKey::FontPixelSizeVal);
        if (pixelSize > 0)
            font.setPixelSize(pixelSize);
    }
    return font;
}

void AlignToLayoutDirection(QLabel* label)
{
    const Qt::Alignment horizontal = label->alignment() & Qt::AlignHorizontal_Mask;
    if (horizontal != Qt::AlignLeft && horizontal != (Qt::AlignRight | Qt::AlignAbsolute))
        return;
    const Qt::Alignment leading =
        label->layoutDirection() == Qt::RightToLeft ? Qt::AlignRight | Qt::AlignAbsolute : Qt::AlignLeft;
    label->setAlignment((label->alignment() & ~Qt::AlignHorizontal_Mask) | leading);
}

void ApplyThemedIcon(QAbstractButton* button, const QString& iconKey)
{
    if (iconKey.isEmpty())
        return;
    const QIcon icon = IconFromTheme(iconKey, button->iconSize());
    if (!icon.isNull())
        button->setIcon(icon);
}

} // namespace Kavrel::UICore::Internal
