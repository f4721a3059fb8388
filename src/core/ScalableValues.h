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

class KVUICORE_EXPORT ScalableInt
{
public:
    ScalableInt() = default;
    ScalableInt(int value) : miValue(value) {}
    operator int() const;

private:
    int miValue = 0;
};

class KVUICORE_EXPORT ScalableIntX
{
public:
    ScalableIntX() = default;
    ScalableIntX(int value) : miValue(value) {}
    operator int() const;

private:
    int miValue = 0;
};

class KVUICORE_EXPORT ScalableIntY
{
public:
    ScalableIntY() = default;
    ScalableIntY(int value) : miValue(value) {}
    operator int() const;

private:
    int miValue = 0;
};

class KVUICORE_EXPORT ScalableSize
{
public:
    ScalableSize() = default;
    ScalableSize(int width, int height) : mSize(width, height) {}
    ScalableSize(const QSize& size) : mSize(size) {}
    operator QSize() const;
    int width() const;
    int height() const;

private:
    QSize mSize;
};

class KVUICORE_EXPORT ScalableImage
{
public:
    explicit ScalableImage(const QString& fileName);
    ScalableImage(const QImage& image);
    operator QImage() const;
    operator QVariant() const;

private:
    QImage mImage;
};

class KVUICORE_EXPORT ScalablePixmap
{
public:
    explicit ScalablePixmap(const QString& fileName);
    ScalablePixmap(const QPixmap& pixmap);
    operator QPixmap() const;
    operator QVariant() const;

private:
    QPixmap mPixmap;
};
