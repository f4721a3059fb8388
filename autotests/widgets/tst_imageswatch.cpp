#include "../PaintProbe.h"

#include <KvUICore/widgets/ImageSwatch.h>
#include <KvUICore/widgets/ImageThumbnailCache_p.h>
#include <KvUICore/widgets/TextureSwatch.h>

#include <QAccessible>
#include <QFile>
#include <QMimeData>
#include <QPainter>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QUrl>
#include <QtEndian>
#include <QtTest>

using namespace Kavrel::UICore;

namespace {

quint32 Crc32(const QByteArray& data)
{
    quint32 crc = 0xffffffffu;
    for (const char byte : data) {
        crc ^= quint8(byte);
        for (int bit = 0; bit < 8; ++bit)
            crc = (crc >> 1) ^ (0xedb88320u & (0u - (crc & 1u)));
    }
    return ~crc;
}

QByteArray Chunk(const char* type, const QByteArray& payload)
{
    QByteArray body = QByteArray(type) + payload;
    QByteArray chunk(4, '\0');
    qToBigEndian(quint32(payload.size()), chunk.data());
    chunk += body;
    QByteArray crc(4, '\0');
    qToBigEndian(Crc32(body), crc.data());
    return chunk + crc;
}

// A PNG whose header claims width × height; its pixel data is a few bytes.
QByteArray PngHeaderClaiming(quint32 width, quint32 height)
{
    QByteArray header(13, '\0');
    qToBigEndian(width, header.data());
    qToBigEndian(height, header.data() + 4);
    header[8] = 8; // bit depth
    header[9] = 6; // RGBA
    return QByteArray("\x89PNG\r\n\x1a\n", 8) + Chunk("IHDR", header) + Chunk("IDAT", QByteArray(16, '\x01')) +
           Chunk("IEND", QByteArray());
}

QImage TwoColourImage(int width, int height)
{
    QImage image(width, height, QImage::Format_RGB32);
    image.fill(Qt::red);
    QPainter(&image).fillRect(width / 2, 0, width - width / 2, height, Qt::blue);
    return image;
}

} // namespace

class tst_ImageSwatch : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        Probe::UseRepositoryThemes();
        QVERIFY(mDir.isValid());
        QVERIFY(TwoColourImage(300, 150).save(Path("good.png")));
        QFile good(Path("good.png"));
        QVERIFY(good.open(QIODevice::ReadOnly));
        // The header intact, the pixel data damaged (its checksum no longer fits).
        QByteArray damaged = good.readAll();
        const qsizetype data = damaged.indexOf("IDAT") + 8;
        for (qsizetype i = data; i < data + 16 && i < damaged.size() - 12; ++i)
            damaged[i] = char(~damaged[i]);
        Write("damaged.png", damaged);
        Write("corrupt.png", "this is no image at all");
        Write("huge.png", PngHeaderClaiming(20000, 20000));
        Write("toobig.png", PngHeaderClaiming(10000, 10000));
        Write("drawing.svg", "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"40\" height=\"20\">"
                             "<rect width=\"40\" height=\"20\" fill=\"#00ff00\"/></svg>");
        QVERIFY(!Probe::HostileFile(Path("folder.png"), QStringLiteral("folder")).isEmpty());
#ifdef Q_OS_UNIX
        QVERIFY(!Probe::HostileFile(Path("pipe.png"), QStringLiteral("fifo")).isEmpty());
#endif
    }

    void states_data()
    {
        QTest::addColumn<QString>("file");
        QTest::addColumn<int>("state");
        QTest::addColumn<QSize>("thumbnail");
        QTest::addColumn<QString>("why");
        QTest::newRow("no path") << QString() << int(ImageSwatch::NoImage) << QSize(0, 0) << QString();
        QTest::newRow("loaded, aspect kept") << "good.png" << int(ImageSwatch::Loaded) << QSize(56, 28) << QString();
        QTest::newRow("svg fills the swatch")
            << "drawing.svg" << int(ImageSwatch::Loaded) << QSize(56, 28) << QString();
        QTest::newRow("missing") << "gone.png" << int(ImageSwatch::Missing) << QSize(0, 0) << "does not exist";
        QTest::newRow("not an image") << "corrupt.png" << int(ImageSwatch::Unreadable) << QSize(0, 0) << "format";
        QTest::newRow("damaged pixel data")
            << "damaged.png" << int(ImageSwatch::Unreadable) << QSize(0, 0) << "decoded";
        QTest::newRow("header beyond the pixel limit")
            << "huge.png" << int(ImageSwatch::Unreadable) << QSize(0, 0) << "20000 × 20000";
        QTest::newRow("whole decode beyond the budget")
            << "toobig.png" << int(ImageSwatch::Unreadable) << QSize(0, 0) << "MiB";
        QTest::newRow("folder") << "folder.png" << int(ImageSwatch::Unreadable) << QSize(0, 0) << "regular file";
#ifdef Q_OS_UNIX
        QTest::newRow("pipe") << "pipe.png" << int(ImageSwatch::Unreadable) << QSize(0, 0) << "regular file";
#endif
    }

    void states()
    {
        QFETCH(QString, file);
        QFETCH(QSize, thumbnail);
        QFETCH(QString, why);
        ImageSwatch swatch;
        swatch.resize(64, 64);
        const int decodes = Internal::ThumbnailDecodeCount();
        swatch.SetFilePath(file.isEmpty() ? QString() : Path(file));
        QTEST(int(swatch.GetState()), "state");
        QVERIFY2(swatch.GetStateText().contains(why), qPrintable(swatch.GetStateText()));
        QCOMPARE(swatch.GetThumbnail().size(), thumbnail * swatch.devicePixelRatio());
        // Files refused by their header are never decoded.
        if (file == QLatin1String("huge.png") || file == QLatin1String("toobig.png"))
            QCOMPARE(Internal::ThumbnailDecodeCount(), decodes);
        swatch.grab();
    }

    void accessibleNameIsTheFileName()
    {
        ImageSwatch swatch;
        swatch.SetFilePath(Path("good.png"));
        QAccessibleInterface* iface = QAccessible::queryAccessibleInterface(&swatch);
        QCOMPARE(iface->role(), QAccessible::Graphic);
        QCOMPARE(iface->text(QAccessible::Name), QStringLiteral("good.png"));
        QCOMPARE(iface->text(QAccessible::Value), QStringLiteral("300 × 150 pixels"));
        QCOMPARE(iface->text(QAccessible::Description), QDir::toNativeSeparators(Path("good.png")));
    }

    void thumbnailsAreSharedUntilTheFileChanges()
    {
        QVERIFY(TwoColourImage(120, 120).save(Path("shared.png")));
        Internal::ClearThumbnailCache();
        const int decodes = Internal::ThumbnailDecodeCount();
        ImageSwatch first;
        ImageSwatch second;
        for (ImageSwatch* swatch : {&first, &second}) {
            swatch->resize(64, 64);
            swatch->SetFilePath(Path("shared.png"));
            swatch->grab();
        }
        QCOMPARE(Internal::ThumbnailDecodeCount(), decodes + 1);
        QVERIFY(Internal::ThumbnailCacheBytes() <= Internal::kThumbnailCacheBytes);

        QVERIFY(TwoColourImage(200, 120).save(Path("shared.png")));
        QFile file(Path("shared.png"));
        QVERIFY(file.open(QIODevice::ReadWrite));
        QVERIFY(file.setFileTime(QDateTime::currentDateTime().addSecs(60), QFileDevice::FileModificationTime));
        file.close();
        first.Reload();
        first.grab();
        QCOMPARE(Internal::ThumbnailDecodeCount(), decodes + 2);
    }

    void largeJpegIsDecodedAtThumbnailSize()
    {
        QVERIFY(TwoColourImage(16384, 512).save(Path("wide.jpg"), "JPEG", 50));
        ImageSwatch swatch;
        swatch.resize(64, 64);
        swatch.SetFilePath(Path("wide.jpg"));
        QCOMPARE(swatch.GetState(), ImageSwatch::Loaded);
        QCOMPARE(swatch.GetImageSize(), QSize(16384, 512));
        QVERIFY(swatch.GetThumbnail().width() <= 56 * swatch.devicePixelRatio());
    }

    void droppedImageBecomesTheFile()
    {
        ImageSwatch swatch;
        QSignalSpy changed(&swatch, &ImageSwatch::FilePathChanged);
        for (const char* name : {"notes.txt", "good.png"}) {
            QMimeData mime;
            mime.setUrls({QUrl::fromLocalFile(Path(QString::fromLatin1(name)))});
            QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, &mime, Qt::LeftButton, Qt::NoModifier);
            QCoreApplication::sendEvent(&swatch, &enter);
            QCOMPARE(enter.isAccepted(), QLatin1String(name) == QLatin1String("good.png"));
            QDropEvent drop(QPointF(5, 5), Qt::CopyAction, &mime, Qt::LeftButton, Qt::NoModifier);
            QCoreApplication::sendEvent(&swatch, &drop);
        }
        QCOMPARE(changed.count(), 1);
        QCOMPARE(swatch.GetFilePath(), Path("good.png"));
        QTest::keyClick(&swatch, Qt::Key_Delete);
        QCOMPARE(swatch.GetState(), ImageSwatch::NoImage);
        QCOMPARE(changed.count(), 2);
    }

    void textureTilesAtItsScale()
    {
        QVERIFY(TwoColourImage(100, 100).save(Path("tile.png")));
        TextureSwatch swatch;
        swatch.resize(104, 104);
        swatch.SetTileScale(0.5);
        swatch.SetFilePath(Path("tile.png"));
        const QImage image = Probe::Grab(&swatch);
        // The content starts 4 pixels in; tiles of 48 pixels, red then blue halves.
        const int y = 30;
        PROBE_COMPARE_COLOR(Probe::PixelAt(image, QPoint(4 + 12, y)), QColor(Qt::red));
        PROBE_COMPARE_COLOR(Probe::PixelAt(image, QPoint(4 + 36, y)), QColor(Qt::blue));
        PROBE_COMPARE_COLOR(Probe::PixelAt(image, QPoint(4 + 60, y)), QColor(Qt::red));
        PROBE_COMPARE_COLOR(Probe::PixelAt(image, QPoint(4 + 84, y)), QColor(Qt::blue));
    }

    void floatingPreviewComesAndGoes()
    {
        TextureSwatch swatch;
        swatch.SetFilePath(Path("good.png"));
        QVERIFY(Probe::Shown(&swatch));
        swatch.ShowFloatingPreview();
        QVERIFY(!swatch.GetFloatingPreview());
        swatch.SetFloatingPreviewEnabled(true);
        QTest::keyClick(&swatch, Qt::Key_Space, Qt::ShiftModifier);
        QVERIFY(swatch.GetFloatingPreview());
        QTest::keyClick(&swatch, Qt::Key_Escape);
        QVERIFY(!swatch.GetFloatingPreview());
    }

private:
    QString Path(const QString& name) const
    {
        return mDir.filePath(name);
    }
    void Write(const QString& name, const QByteArray& bytes)
    {
        QVERIFY(Probe::WriteFile(Path(name), bytes));
    }

    QTemporaryDir mDir;
};

QTEST_MAIN(tst_ImageSwatch)
#include "tst_imageswatch.moc"
