#pragma once

#include <KvUICore/KvUICoreExport.h>

#include <QBrush>
#include <QColor>
#include <QPen>
#include <QRectF>
#include <QString>

class QPainter;
class QWidget;

namespace Kavrel::UICore::Internal {

// How strokes land on the device: the widget's scale factor, the width of a
// cosmetic stroke in device pixels (the resolution bucket) and that width in
// logical pixels.
struct StrokeGrid
{
    float factor = 1.0f;
    float bucket = 1.0f;
    float unit = 1.0f;
};

// The grid of the device being painted (the widget's device scale factor,
// rounded to 5 % steps as for the widget); the widget's own ratio without a painter.
KVUICORE_EXPORT StrokeGrid StrokeGridOf(const QWidget* widget, const QPainter* painter);

// The cosmetic pen of the grid's width: square caps and mitre joins.
KVUICORE_EXPORT QPen CosmeticPen(const QBrush& brush, const StrokeGrid& grid, qreal widthFactor = 1.0,
                                 Qt::PenCapStyle cap = Qt::SquareCap, Qt::PenJoinStyle join = Qt::MiterJoin);

// The centre lines of one-stroke-wide edges lying inside rect on whole device
// pixels of the painter, `inset` strokes further in. Drawn antialiased with the
// grid's cosmetic pen, such edges cover whole device pixels: no blurred halves.
KVUICORE_EXPORT QRectF StrokeRect(const QPainter* painter, const QRectF& rect, const StrokeGrid& grid, int inset = 0);

// The width and height of one stroke in the painter's logical coordinates.
KVUICORE_EXPORT QPointF StrokeUnits(const QPainter* painter, const StrokeGrid& grid);

// Strokes the four edges of a StrokeRect (a plain outline, corners included).
KVUICORE_EXPORT void StrokeOutline(QPainter* painter, const QRectF& strokeRect, const QColor& color,
                                   const StrokeGrid& grid);

// The library's framed rectangle around a StrokeRect: the inside filled, the
// four edges drawn as separate lines that stop one stroke short of the corners,
// so the corners stay empty and the frame looks slightly rounded. An invalid
// colour or an empty brush leaves its part out.
KVUICORE_EXPORT void DrawFramedRect(QPainter* painter, const QRectF& strokeRect, const QBrush& fill,
                                    const QColor& outline, const StrokeGrid& grid);

// The brush with its colour (or every gradient stop) dimmed as for a disabled control.
KVUICORE_EXPORT QBrush DimmedBrush(const QBrush& brush);

// The theme keys of a framed box's fill and border in its three states.
struct StateFrameKeys
{
    const QString& normalFill;
    const QString& normalBorder;
    const QString& hoverFill;
    const QString& hoverBorder;
    const QString& activeFill;
    const QString& activeBorder;
};

enum class FrameState
{
    Normal,
    Hover,
    Active
};

// The widget's framed box in a state's colours (dimmed when the widget is
// disabled), antialiased on the stroke grid; returns the grid it used.
KVUICORE_EXPORT StrokeGrid DrawStateFrame(QPainter* painter, const QWidget* widget, const QRect& box,
                                          const StateFrameKeys& keys, FrameState state);

// A solid antialiased triangle, such as a drop-down arrow; the painter's state is kept.
KVUICORE_EXPORT void FillAntialiasedTriangle(QPainter* painter, const QPointF (&points)[3], const QColor& color);

// The colour of the keyboard focus ring: the theme's FocusOutline1, which every
// built-in theme keeps at 3:1 or more against its panels and fields; the
// widget's highlight colour where a theme lacks the key.
KVUICORE_EXPORT QColor FocusRingColor(const QWidget* widget = nullptr);

// The keyboard focus ring every control draws: two strokes of the grid along
// the inside of rect, on whole device pixels, rounded when radius > 0. The
// painter's state is kept. A control whose theme keys name a focus colour of
// its own passes it as color; an invalid one means FocusRingColor().
KVUICORE_EXPORT void DrawFocusRing(QPainter* painter, const QWidget* widget, const QRectF& rect, qreal radius = 0.0,
                                   const QColor& color = QColor());

} // namespace Kavrel::UICore::Internal

class QIcon;
class QAbstractButton;
class QFont;
class QLabel;
namespace Kavrel::UICore::Internal {

// Schedules the repaint a theme switch needs. The container is marked dirty
// as a whole: every control repaints on a switch anyway, and one rectangle per
// container spares Qt merging a dirty region per control, which dominates a
// switch in a window of many controls.
KVUICORE_EXPORT void RepaintAfterThemeChange(QWidget* widget);

// The icon behind a theme key: an "Icon" entry's image of that size, or the
// file a "String" entry names. A null icon when the key holds neither.
KVUICORE_EXPORT QIcon IconFromTheme(const QString& key, const QSize& size);

// The font at the theme's pixel size, when the theme sets one and the host
// has not set an application font of its own (which then wins whole).
KVUICORE_EXPORT QFont WithThemePixelSize(QFont font);

// Aligns a label that Qt aligns by its text's direction (wrapped or rich
// text) to its layout's leading edge, unless the host aligned it otherwise.
KVUICORE_EXPORT void AlignToLayoutDirection(QLabel* label);

// Gives a button-like control the icon of iconKey, when the theme has one at
// its icon size. (Its text colour belongs to its ThemedColor.)
KVUICORE_EXPORT void ApplyThemedIcon(QAbstractButton* button, const QString& iconKey);

} // namespace Kavrel::UICore::Internal
