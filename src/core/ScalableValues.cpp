#include <KvUICore/core/DrawingHelpers_p.h>
#include <KvUICore/core/ScalableValues.h>

#include <QWidget>

#include <algorithm>
#include <cmath>

using Kavrel::UICore::Internal::ScaleX;
using Kavrel::UICore::Internal::ScaleY;

ScalableInt::operator int() const { return ScaleX(miValue); }
ScalableIntX::operator int() const { return ScaleX(miValue); }
ScalableIntY::operator int() const { return ScaleY(miValue); }

ScalableSize::operator QSize() const { return QSize(width(), height()); }
int ScalableSize::width() const { return ScaleX(mSize.width()); }
int ScalableSize::height() const { return ScaleY(mSize.height()); }

namespace {
template<typename T>
T scaledCopy(const T& source)
{
    if (source.isNull())
        return source;
    const int h = ScaleY(source.height());
    const int w = ScaleX(source.width());
    return source.scaled(QSize(w, h), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}
} // namespace

ScalableImage::ScalableImage(const QString& fileName) : mImage(fileName) {}
ScalableImage::ScalableImage(const QImage& image) : mImage(image) {}
ScalableImage::operator QImage() const { return scaledCopy(mImage); }
ScalableImage::operator QVariant() const { return QVariant(scaledCopy(mImage)); }

ScalablePixmap::ScalablePixmap(const QString& fileName) : mPixmap(fileName) {}
ScalablePixmap::ScalablePixmap(const QPixmap& pixmap) : mPixmap(pixmap) {}
ScalablePixmap::operator QPixmap() const { return scaledCopy(mPixmap); }
ScalablePixmap::operator QVariant() const { return QVariant(scaledCopy(mPixmap)); }

namespace Kavrel::UICore::Internal {

float DeviceScaleFactor(const QWidget* widget)
{
    return DeviceScaleFactorForRatio(widget ? float(widget->devicePixelRatio()) : 1.0f);
}

float DeviceScaleFactorForRatio(float ratio)
{
    const int percent = int(std::trunc(double(ratio * 100.0f + 2.5f) / 5.0)) * 5;
    if (percent < 100)
        return 1.0f;
    return float(std::min(percent, 350)) * 0.01f;
}

float ResolutionBucket(float factor)
{
    if (factor < 1.5f)
        return 1.0f;
    if (factor < 2.5f)
        return 2.0f;
    return 3.0f;
}

QRectF SnappedRect(const QRectF& rect, float left, float top, float right, float bottom, float unit)
{
    const float half = unit * 0.5f;
    const double u = double(unit);
    const double fx = std::fmod(rect.left() + u, u);
    const float offX = fx < 0.001 ? half : 0.0f;
    const double fy = std::fmod(rect.top() + u, u);
    const float offY = fy < 0.001 ? half : 0.0f;
    const float w = float(std::trunc((rect.width() - double((left - right) * unit)) / u)) * unit + 0.001f;
    const float h = float(std::trunc((rect.height() - double((top - bottom) * unit)) / u)) * unit + 0.001f;
    return QRectF(rect.left() + offX + left * unit, rect.top() + offY + top * unit, w, h);
}

} // namespace Kavrel::UICore::Internal
