#pragma once

#include <KvUICore/KvUICoreExport.h>

#include <QImage>
#include <QSize>
#include <QString>

namespace Kavrel::UICore::Internal {

// What the header of an image file says, read without decoding pixels.
struct ImageFileInfo
{
    enum Status
    {
        Readable,
        NoFile,  // empty path
        Missing, // nothing at the path
        Refused, // there, but not decoded: not a regular file, too large, unknown or broken header
    };

    Status status = NoFile;
    QString path;        // absolute
    qint64 modified = 0; // milliseconds since the epoch
    qint64 fileBytes = 0;
    QSize pixelSize; // the header's size (after the file's orientation)
    QByteArray format;
    QString reason; // why a file is refused, for the user
};

// The limits of decoding on the GUI thread. A header claiming more pixels
// than kMaxSourcePixels is refused. Formats whose reader decodes straight to a
// smaller size (JPEG, SVG) are read at thumbnail size; the others are decoded
// whole by their Qt reader and then scaled, which is allowed only while the
// whole image takes at most kMaxFullDecodeBytes.
constexpr qint64 kMaxSourcePixels = qint64(16384) * 16384;
constexpr qint64 kMaxFullDecodeBytes = qint64(256) << 20;
constexpr qint64 kMaxFileBytes = qint64(1) << 30;
// The decoded thumbnails kept for the process, by path, modification time,
// file size and thumbnail size.
constexpr qint64 kThumbnailCacheBytes = qint64(32) << 20;
constexpr int kThumbnailCacheCount = 512;

KVUICORE_EXPORT ImageFileInfo ProbeImageFile(const QString& path);

// The image scaled to fit box (device pixels), aspect ratio kept and never
// enlarged; from the cache when it holds the same file at the same size. A
// null image with *error set when the file cannot be decoded.
KVUICORE_EXPORT QImage DecodeThumbnail(const ImageFileInfo& info, const QSize& box, QString* error = nullptr);

KVUICORE_EXPORT int ThumbnailCacheCount();
KVUICORE_EXPORT qint64 ThumbnailCacheBytes();
KVUICORE_EXPORT int ThumbnailDecodeCount();
KVUICORE_EXPORT void ClearThumbnailCache();

} // namespace Kavrel::UICore::Internal
