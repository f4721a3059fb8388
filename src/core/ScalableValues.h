#pragma once

#include <KvUICore/KvUICoreExport.h>

#include <QImage>
#include <QPixmap>
#include <QSize>
#include <QString>
#include <QVariant>

// Metrics and images at design size (100 %). Qt's own high-DPI handling does
// the scaling, so every conversion returns the held value unchanged; these
// types are the one place where a per-axis factor would be applied.

/// A metric at design size, for either axis.
class KVUICORE_EXPORT ScalableInt
{
public:
    ScalableInt() = default;
    /// Holds value.
    ScalableInt(int value) : miValue(value) {}
    /// The value for the screen; unchanged, as Qt's high-DPI handling scales.
    operator int() const;

private:
    int miValue = 0;
};

/// A horizontal metric at design size.
class KVUICORE_EXPORT ScalableIntX
{
public:
    ScalableIntX() = default;
    /// Holds value.
    ScalableIntX(int value) : miValue(value) {}
    /// The value for the screen; unchanged, as Qt's high-DPI handling scales.
    operator int() const;

private:
    int miValue = 0;
};

/// A vertical metric at design size.
class KVUICORE_EXPORT ScalableIntY
{
public:
    ScalableIntY() = default;
    /// Holds value.
    ScalableIntY(int value) : miValue(value) {}
    /// The value for the screen; unchanged, as Qt's high-DPI handling scales.
    operator int() const;

private:
    int miValue = 0;
};

/// A size at design size.
class KVUICORE_EXPORT ScalableSize
{
public:
    ScalableSize() = default;
    /// Holds the size width by height.
    ScalableSize(int width, int height) : mSize(width, height) {}
    /// Holds size.
    ScalableSize(const QSize& size) : mSize(size) {}
    /// The size for the screen: width() by height().
    operator QSize() const;
    /// The width for the screen; unchanged, as Qt's high-DPI handling scales.
    int width() const;
    /// The height for the screen; unchanged, as Qt's high-DPI handling scales.
    int height() const;

private:
    QSize mSize;
};

/// An image at design size.
class KVUICORE_EXPORT ScalableImage
{
public:
    /// Reads the image file; a file that can't be read gives a null image.
    explicit ScalableImage(const QString& fileName);
    /// Holds a copy of image.
    ScalableImage(const QImage& image);
    /// The image for the screen; an unchanged copy, as Qt's high-DPI handling scales.
    operator QImage() const;
    /// The image for the screen as a variant.
    operator QVariant() const;

private:
    QImage mImage;
};

/// A pixmap at design size.
class KVUICORE_EXPORT ScalablePixmap
{
public:
    /// Reads the image file; a file that can't be read gives a null pixmap.
    explicit ScalablePixmap(const QString& fileName);
    /// Holds a copy of pixmap.
    ScalablePixmap(const QPixmap& pixmap);
    /// The pixmap for the screen; an unchanged copy, as Qt's high-DPI handling scales.
    operator QPixmap() const;
    /// The pixmap for the screen as a variant.
    operator QVariant() const;

private:
    QPixmap mPixmap;
};
