// iconpack: renders an SVG at several pixel sizes and writes them as one ICO
// container of PNG images, smallest first. Qt's own ICO writer stores a single
// image only, so the container is written here.
//
//   iconpack <output.ico> <input.svg> [size ...]     (default sizes 16 24 32 48 64)

#include <QBuffer>
#include <QCoreApplication>
#include <QFile>
#include <QGuiApplication>
#include <QImage>
#include <QList>
#include <QPainter>
#include <QSaveFile>
#include <QSvgRenderer>
#include <QtEndian>

#include <cstdio>

namespace {

int Fail(const QString& message)
{
    std::fprintf(stderr, "iconpack: %s\n", qPrintable(message));
    return 1;
}

void AppendLE16(QByteArray& out, quint16 value)
{
    char bytes[2];
    qToLittleEndian(value, bytes);
    out.append(bytes, 2);
}

void AppendLE32(QByteArray& out, quint32 value)
{
    char bytes[4];
    qToLittleEndian(value, bytes);
    out.append(bytes, 4);
}

} // namespace

int main(int argc, char* argv[])
{
    // Rendering needs no window system.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication app(argc, argv);
    const QStringList args = QCoreApplication::arguments().mid(1);
    if (args.size() < 2)
        return Fail(QStringLiteral("usage: iconpack <output.ico> <input.svg> [size ...]"));

    QList<int> sizes;
    for (int i = 2; i < args.size(); ++i) {
        bool ok = false;
        const int size = args.at(i).toInt(&ok);
        // An ICO directory entry stores 256 as 0; larger images can't be described.
        if (!ok || size < 1 || size > 256)
            return Fail(QStringLiteral("invalid size \"%1\" (1 to 256)").arg(args.at(i)));
        sizes.append(size);
    }
    if (sizes.isEmpty())
        sizes = {16, 24, 32, 48, 64};

    QSvgRenderer renderer(args.at(1));
    if (!renderer.isValid())
        return Fail(QStringLiteral("cannot read the SVG file %1").arg(args.at(1)));

    QList<QByteArray> payloads;
    for (int size : sizes) {
        QImage image(size, size, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        QPainter painter(&image);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        renderer.render(&painter, QRectF(0, 0, size, size));
        painter.end();

        QByteArray png;
        QBuffer buffer(&png);
        buffer.open(QIODevice::WriteOnly);
        if (!image.convertToFormat(QImage::Format_ARGB32).save(&buffer, "PNG"))
            return Fail(QStringLiteral("cannot encode the %1-pixel image as PNG").arg(size));
        payloads.append(png);
    }

    // Header: reserved 0, type 1 (icon), image count.
    QByteArray ico;
    AppendLE16(ico, 0);
    AppendLE16(ico, 1);
    AppendLE16(ico, quint16(sizes.size()));
    quint32 offset = quint32(6 + 16 * sizes.size());
    for (int i = 0; i < sizes.size(); ++i) {
        const int size = sizes.at(i);
        ico.append(char(size == 256 ? 0 : size)); // width
        ico.append(char(size == 256 ? 0 : size)); // height
        ico.append(char(0));                      // palette colours
        ico.append(char(0));                      // reserved
        AppendLE16(ico, 1);                       // colour planes
        AppendLE16(ico, 32);                      // bits per pixel
        AppendLE32(ico, quint32(payloads.at(i).size()));
        AppendLE32(ico, offset);
        offset += quint32(payloads.at(i).size());
    }
    for (const QByteArray& png : payloads)
        ico.append(png);

    QSaveFile file(args.at(0));
    if (!file.open(QIODevice::WriteOnly))
        return Fail(QStringLiteral("cannot write %1: %2").arg(args.at(0), file.errorString()));
    file.write(ico);
    if (!file.commit())
        return Fail(QStringLiteral("cannot write %1: %2").arg(args.at(0), file.errorString()));
    return 0;
}
