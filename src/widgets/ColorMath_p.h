#pragma once

#include <KvUICore/KvUICoreExport.h>

#include <QColor>
#include <QRectF>
#include <QString>
#include <QStringView>

class QPainter;
class QWidget;

namespace Kavrel::UICore::Internal {

// A colour in hue (degrees, 0 up to but not including 360), saturation and
// value (both 0 to 1), held in doubles so that every 8-bit RGB colour comes
// back unchanged from HsvOf followed by RgbOf.
struct Hsv
{
    double h = 0.0;
    double s = 0.0;
    double v = 0.0;
};

KVUICORE_EXPORT Hsv HsvOf(int red, int green, int blue);
// The colour's HSV. For a grey (no hue) the hue of previous is kept, and for
// black also its saturation, so that a marker does not jump when the user
// drags through the achromatic edge.
KVUICORE_EXPORT Hsv HsvOf(const QColor& color, const Hsv& previous = Hsv());
// The 8-bit colour of hsv (hue taken modulo 360, saturation and value clamped).
KVUICORE_EXPORT QColor RgbOf(const Hsv& hsv, int alpha = 255);

// "#rgb", "#rrggbb" or "#rrggbbaa" (the "#" optional, blanks around allowed,
// hex digits of either case). Anything else is refused and leaves *color as it
// was. hasAlpha tells whether the text gave an alpha.
KVUICORE_EXPORT bool ParseHexColor(QStringView text, QColor* color, bool* hasAlpha = nullptr);
// "#rrggbb", or "#rrggbbaa" with the alpha.
KVUICORE_EXPORT QString HexColorText(const QColor& color, bool withAlpha);
// The colour as a screen reader says it: "#rrggbb" (with the alpha when the
// colour is translucent), or "no colour".
KVUICORE_EXPORT QString AccessibleColorText(const QColor& color);

// WCAG contrast ratio (1 to 21) of two opaque colours.
KVUICORE_EXPORT double ContrastRatio(const QColor& a, const QColor& b);
// Black or white, whichever stands out more on the colour: markers drawn over
// user colours cannot take a theme colour and stay visible.
KVUICORE_EXPORT QColor MarkerColorOver(const QColor& color);

// A checkerboard behind translucent colours, its two cell colours taken from
// the theme's field and empty-image colours so that it fits every theme.
KVUICORE_EXPORT void DrawCheckerboard(QPainter* painter, const QRectF& rect, qreal cell = 4.0);

// The accessible interfaces of the colour and image controls, installed with
// Qt the first time one of the controls is built.
KVUICORE_EXPORT void InstallColorControlsAccessibility();

} // namespace Kavrel::UICore::Internal
