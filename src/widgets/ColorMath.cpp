#include <KvUICore/widgets/ColorMath_p.h>

#include <KvUICore/core/DrawingHelpers_p.h>
#include <KvUICore/theme/ThemeFileKey.h>
#include <KvUICore/theme/ThemeManager.h>

#include <QCoreApplication>
#include <QImage>
#include <QPainter>
#include <QPainterPath>
#include <QWidget>

#include <algorithm>
#include <cmath>

namespace Kavrel::UICore::Internal {

namespace {

// Longer texts are never colours; they are refused before any work.
constexpr qsizetype kMaxHexTextLength = 64;

int HexDigit(QChar c)
{
    const char16_t u = c.unicode();
    if (u >= u'0' && u <= u'9')
        return u - u'0';
    if (u >= u'a' && u <= u'f')
        return u - u'a' + 10;
    if (u >= u'A' && u <= u'F')
        return u - u'A' + 10;
    return -1;
}

int Channel8(double unit)
{
    return std::clamp(int(std::lround(unit * 255.0)), 0, 255);
}

double Linear(int channel)
{
    const double c = channel / 255.0;
    return c <= 0.04045 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
}

double Luminance(const QColor& color)
{
    return 0.2126 * Linear(color.red()) + 0.7152 * Linear(color.green()) + 0.0722 * Linear(color.blue());
}

} // namespace

Hsv HsvOf(int red, int green, int blue)
{
    const int maximum = std::max({red, green, blue});
    const int minimum = std::min({red, green, blue});
    const int delta = maximum - minimum;
    Hsv hsv;
    hsv.v = maximum / 255.0;
    hsv.s = maximum == 0 ? 0.0 : double(delta) / maximum;
    if (delta == 0)
        return hsv;
    double sector;
    if (maximum == red)
        sector = double(green - blue) / delta;
    else if (maximum == green)
        sector = double(blue - red) / delta + 2.0;
    else
        sector = double(red - green) / delta + 4.0;
    hsv.h = sector * 60.0;
    if (hsv.h < 0.0)
        hsv.h += 360.0;
    if (hsv.h >= 360.0)
        hsv.h -= 360.0;
    return hsv;
}

Hsv HsvOf(const QColor& color, const Hsv& previous)
{
    const QColor rgb = color.toRgb();
    Hsv hsv = HsvOf(rgb.red(), rgb.green(), rgb.blue());
    if (hsv.s == 0.0) {
        hsv.h = previous.h;
        if (hsv.v == 0.0)
            hsv.s = previous.s;
    }
    return hsv;
}

QColor RgbOf(const Hsv& hsv, int alpha)
{
    double h = std::isfinite(hsv.h) ? std::fmod(hsv.h, 360.0) : 0.0;
    if (h < 0.0)
        h += 360.0;
    const double s = std::isfinite(hsv.s) ? std::clamp(hsv.s, 0.0, 1.0) : 0.0;
    const double v = std::isfinite(hsv.v) ? std::clamp(hsv.v, 0.0, 1.0) : 0.0;
    const double chroma = v * s;
    const double sector = h / 60.0;
    const double x = chroma * (1.0 - std::fabs(std::fmod(sector, 2.0) - 1.0));
    const double m = v - chroma;
    double r = 0.0, g = 0.0, b = 0.0;
    switch (int(sector)) {
    case 0:
        r = chroma, g = x;
        break;
    case 1:
        r = x, g = chroma;
        break;
    case 2:
        g = chroma, b = x;
        break;
    case 3:
        g = x, b = chroma;
        break;
    case 4:
        r = x, b = chroma;
        break;
    default:
        r = chroma, b = x;
        break;
    }
    return QColor(Channel8(r + m), Channel8(g + m), Channel8(b + m), std::clamp(alpha, 0, 255));
}

bool ParseHexColor(QStringView text, QColor* color, bool* hasAlpha)
{
    if (text.size() > kMaxHexTextLength)
        return false;
    QStringView digits = text.trimmed();
    if (digits.startsWith(QLatin1Char('#')))
        digits = digits.mid(1);
    const qsizetype length = digits.size();
    if (length != 3 && length != 6 && length != 8)
        return false;
    int values[8] = {};
    for (qsizetype i = 0; i < length; ++i) {
        values[i] = HexDigit(digits.at(i));
        if (values[i] < 0)
            return false;
    }
    QColor result;
    if (length == 3)
        result = QColor(values[0] * 17, values[1] * 17, values[2] * 17);
    else
        result = QColor(values[0] * 16 + values[1], values[2] * 16 + values[3], values[4] * 16 + values[5],
                        length == 8 ? values[6] * 16 + values[7] : 255);
    if (color)
        *color = result;
    if (hasAlpha)
        *hasAlpha = length == 8;
    return true;
}

QString HexColorText(const QColor& color, bool withAlpha)
{
    if (!color.isValid())
        return QString();
    const QColor rgb = color.toRgb();
    QString text = rgb.name(QColor::HexRgb);
    if (withAlpha)
        text += QStringLiteral("%1").arg(rgb.alpha(), 2, 16, QLatin1Char('0'));
    return text;
}

QString AccessibleColorText(const QColor& color)
{
    if (!color.isValid())
        return QCoreApplication::translate("Kavrel::UICore::ColorSwatch", "no colour");
    return HexColorText(color, color.alpha() != 255);
}

double ContrastRatio(const QColor& a, const QColor& b)
{
    const double la = Luminance(a);
    const double lb = Luminance(b);
    return (std::max(la, lb) + 0.05) / (std::min(la, lb) + 0.05);
}

QColor MarkerColorOver(const QColor& color)
{
    // Deliberate constants: the marker sits on the user's colour, not the theme's.
    static const QColor kDark(0, 0, 0);
    static const QColor kLight(255, 255, 255);
    return ContrastRatio(color, kDark) >= ContrastRatio(color, kLight) ? kDark : kLight;
}

void DrawCheckerboard(QPainter* painter, const QRectF& rect, qreal cell)
{
    if (!painter || rect.isEmpty() || cell <= 0.0)
        return;
    ThemeManager* themes = ThemeManager::GetInstance();
    const QColor light = themes->GetColor(ThemeFileKey::WidgetContainer9);
    const QColor dark = themes->GetColor(ThemeFileKey::NoImageSelectedContainer);
    // Two cells by two, in device pixels, repeated by the brush.
    const qreal ratio = painter->device() ? painter->device()->devicePixelRatioF() : 1.0;
    const int side = std::max(1, int(std::lround(cell * ratio)));
    QImage tile(2 * side, 2 * side, QImage::Format_ARGB32_Premultiplied);
    tile.fill(light.isValid() ? light : QColor(Qt::white));
    {
        QPainter tilePainter(&tile);
        const QColor other = dark.isValid() ? dark : QColor(Qt::lightGray);
        tilePainter.fillRect(side, 0, side, side, other);
        tilePainter.fillRect(0, side, side, side, other);
    }
    tile.setDevicePixelRatio(ratio);
    QBrush brush(tile);
    painter->save();
    painter->setBrushOrigin(rect.topLeft());
    painter->fillRect(rect, brush);
    painter->restore();
}

} // namespace Kavrel::UICore::Internal
