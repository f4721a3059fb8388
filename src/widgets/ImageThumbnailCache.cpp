#include <KvUICore/widgets/ImageThumbnailCache_p.h>

#include <QCache>
#include <QCoreApplication>
#include <QDateTime>
#include <QFileInfo>
#include <QHash>
#include <QImageReader>

#include <algorithm>

namespace Kavrel::UICore::Internal {

namespace {

struct ThumbnailKey
{
    QString path;
    qint64 modified = 0;
    qint64 fileBytes = 0;
    QSize size;

    bool operator==(const ThumbnailKey& other) const
    {
        return path == other.path && modified == other.modified && fileBytes == other.fileBytes && size == other.size;
    }
};

size_t qHash(const ThumbnailKey& key, size_t seed = 0)
{
    return qHashMulti(seed, key.path, key.modified, key.fileBytes, key.size.width(), key.size.height());
}

QCache<ThumbnailKey, QImage>& Cache()
{
    static QCache<ThumbnailKey, QImage> cache(kThumbnailCacheBytes);
    return cache;
}

int& DecodeCount()
{
    static int count = 0;
    return count;
}

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(Kavrel::UICore::ImageSwatch)
};

// Readers that decode straight to a smaller size instead of decoding the whole
// image first.
bool DecodesScaled(const QByteArray& format)
{
    const QByteArray f = format.toLower();
    return f == "jpeg" || f == "jpg" || f == "svg" || f == "svgz";
}

bool IsVector(const QByteArray& format)
{
    const QByteArray f = format.toLower();
    return f == "svg" || f == "svgz";
}

bool Rotated(const QImageReader& reader)
{
    return reader.transformation() & QImageIOHandler::TransformationRotate90;
}

} // namespace

ImageFileInfo ProbeImageFile(const QString& path)
{
    ImageFileInfo info;
    if (path.isEmpty())
        return info;
    const QFileInfo file(path);
    info.path = file.absoluteFilePath();
    if (!file.exists()) {
        info.status = ImageFileInfo::Missing;
        info.reason = Text::tr("The file does not exist.");
        return info;
    }
    info.status = ImageFileInfo::Refused;
    if (!file.isFile()) {
        info.reason = Text::tr("This is not a regular file.");
        return info;
    }
    info.modified = file.lastModified().toMSecsSinceEpoch();
    info.fileBytes = file.size();
    if (info.fileBytes > kMaxFileBytes) {
        info.reason = Text::tr("The file is larger than %1 MiB.").arg(kMaxFileBytes >> 20);
        return info;
    }
    QImageReader reader(info.path);
    reader.setAutoTransform(true);
    if (!reader.canRead()) {
        info.reason = Text::tr("The file is not an image in a format that can be read.");
        return info;
    }
    QSize size = reader.size();
    if (!size.isValid() || size.isEmpty()) {
        info.reason = Text::tr("The image's header gives no size.");
        return info;
    }
    if (qint64(size.width()) * size.height() > kMaxSourcePixels) {
        info.reason = Text::tr("The image has %1 × %2 pixels, more than the %3 megapixels a swatch decodes.")
                          .arg(size.width())
                          .arg(size.height())
                          .arg(kMaxSourcePixels / 1000000);
        return info;
    }
    if (Rotated(reader))
        size.transpose();
    info.pixelSize = size;
    info.format = reader.format();
    info.status = ImageFileInfo::Readable;
    return info;
}

QImage DecodeThumbnail(const ImageFileInfo& info, const QSize& box, QString* error)
{
    const auto fail = [error](const QString& reason) {
        if (error)
            *error = reason;
        return QImage();
    };
    if (info.status != ImageFileInfo::Readable)
        return fail(info.reason);
    if (box.isEmpty())
        return fail(QString());
    QSize target = info.pixelSize;
    // Drawings are rendered at the box's size; pixels are never enlarged.
    if (IsVector(info.format) || target.width() > box.width() || target.height() > box.height())
        target = target.scaled(box, Qt::KeepAspectRatio);
    target = target.expandedTo(QSize(1, 1));

    const ThumbnailKey key{info.path, info.modified, info.fileBytes, target};
    if (const QImage* cached = Cache().object(key))
        return *cached;

    const qint64 wholeBytes = qint64(info.pixelSize.width()) * info.pixelSize.height() * 4;
    if (!DecodesScaled(info.format) && wholeBytes > kMaxFullDecodeBytes)
        return fail(Text::tr("Decoding this image would take %1 MiB, more than the %2 MiB allowed.")
                        .arg((wholeBytes + (1 << 20) - 1) >> 20)
                        .arg(kMaxFullDecodeBytes >> 20));

    QImageReader reader(info.path, info.format);
    reader.setAutoTransform(true);
    reader.setAllocationLimit(int(kMaxFullDecodeBytes >> 20));
    QSize readerTarget = target;
    if (Rotated(reader))
        readerTarget.transpose();
    if (target != info.pixelSize)
        reader.setScaledSize(readerTarget);
    QImage image;
    ++DecodeCount();
    if (!reader.read(&image) || image.isNull())
        return fail(Text::tr("The image could not be decoded: %1").arg(reader.errorString()));
    if (image.size() != target)
        image = image.scaled(target, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    image = image.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    // Each entry costs at least a share of the budget, which bounds the count too.
    const qint64 cost = std::max<qint64>(image.sizeInBytes(), kThumbnailCacheBytes / kThumbnailCacheCount);
    if (cost <= kThumbnailCacheBytes)
        Cache().insert(key, new QImage(image), cost);
    return image;
}

int ThumbnailCacheCount()
{
    return int(Cache().count());
}

qint64 ThumbnailCacheBytes()
{
    return Cache().totalCost();
}

int ThumbnailDecodeCount()
{
    return DecodeCount();
}

void ClearThumbnailCache()
{
    Cache().clear();
}

} // namespace Kavrel::UICore::Internal
