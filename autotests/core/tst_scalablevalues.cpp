#include <KvUICore/core/DrawingHelpers_p.h>
#include <KvUICore/core/ScalableValues.h>

#include <QTest>

using namespace Kavrel::UICore::Internal;

class tst_ScalableValues : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void valuesConvertUnchanged()
    {
        QCOMPARE(int(ScalableInt(7)), 7);
        QCOMPARE(int(ScalableIntX(-7)), -7);
        QCOMPARE(int(ScalableIntY(7)), 7);
        QCOMPARE(int(ScalableInt()), 0);
        QCOMPARE(ScalableSize(10, 20).width(), 10);
        QCOMPARE(ScalableSize(10, 20).height(), 20);
        QCOMPARE(QSize(ScalableSize(QSize(3, 4))), QSize(3, 4));
        QCOMPARE(QSize(ScalableSize()), QSize(-1, -1));
    }

    void imagesConvertToCopies()
    {
        QVERIFY(QImage(ScalableImage(QStringLiteral("/no/such/file.png"))).isNull());
        QVERIFY(QPixmap(ScalablePixmap(QStringLiteral("/no/such/file.png"))).isNull());

        QImage source(5, 3, QImage::Format_ARGB32);
        source.fill(Qt::red);
        const ScalableImage scalable(source);
        const QImage converted = scalable;
        QCOMPARE(converted.size(), QSize(5, 3));
        QCOMPARE(converted.pixelColor(2, 1), QColor(Qt::red));
        const QVariant variant = scalable;
        QCOMPARE(variant.value<QImage>().size(), QSize(5, 3));
    }

    void scaleFactorAndBucket_data()
    {
        QTest::addColumn<float>("ratio");
        QTest::addColumn<float>("factor");
        QTest::addColumn<float>("bucket");
        QTest::newRow("1.0") << 1.0f << 1.0f << 1.0f;
        QTest::newRow("1.22 rounds down") << 1.22f << 1.20f << 1.0f;
        QTest::newRow("1.225 rounds up") << 1.225f << 1.25f << 1.0f;
        QTest::newRow("1.5 exactly") << 1.5f << 1.5f << 2.0f;
        QTest::newRow("2.45") << 2.45f << 2.45f << 2.0f;
        QTest::newRow("2.5 exactly") << 2.5f << 2.5f << 3.0f;
        QTest::newRow("0.9 is at least 1") << 0.9f << 1.0f << 1.0f;
        QTest::newRow("4.0 is at most 3.5") << 4.0f << 3.5f << 3.0f;
    }

    void scaleFactorAndBucket()
    {
        QFETCH(float, ratio);
        QFETCH(float, factor);
        QCOMPARE(DeviceScaleFactorForRatio(ratio), factor);
        QTEST(ResolutionBucket(factor), "bucket");
    }

    void snappedRect_data()
    {
        QTest::addColumn<QRectF>("rect");
        QTest::addColumn<float>("unit");
        QTest::addColumn<QRectF>("expected");

        QTest::newRow("edge on the grid moves to the middle")
            << QRectF(10.0, 20.0, 30.0, 10.0) << 1.0f << QRectF(10.5, 20.5, 30.001, 10.001);
        QTest::newRow("edge off the grid stays")
            << QRectF(10.3, 20.3, 30.5, 10.5) << 1.0f << QRectF(10.3, 20.3, 30.001, 10.001);
        QTest::newRow("125 percent unit") << QRectF(0.0, 0.0, 10.0, 10.0) << 0.8f << QRectF(0.4, 0.4, 9.601, 9.601);
    }

    void snappedRect()
    {
        QFETCH(QRectF, rect);
        QFETCH(float, unit);
        QFETCH(QRectF, expected);
        const QRectF result = SnappedRect(rect, 0, 0, 0, 0, unit);
        QVERIFY2(qAbs(result.left() - expected.left()) < 1e-4, qPrintable(QString::number(result.left())));
        QVERIFY2(qAbs(result.top() - expected.top()) < 1e-4, qPrintable(QString::number(result.top())));
        QVERIFY2(qAbs(result.width() - expected.width()) < 1e-4, qPrintable(QString::number(result.width())));
        QVERIFY2(qAbs(result.height() - expected.height()) < 1e-4, qPrintable(QString::number(result.height())));
    }
};

QTEST_GUILESS_MAIN(tst_ScalableValues)
#include "tst_scalablevalues.moc"
