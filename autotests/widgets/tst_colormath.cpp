#include <KvUICore/widgets/ColorMath_p.h>

#include <QColor>
#include <QtTest>

using namespace Kavrel::UICore::Internal;

class tst_ColorMath : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyRgbColourSurvivesHsv()
    {
        int failures = 0;
        for (int r = 0; r < 256; ++r) {
            for (int g = 0; g < 256; ++g) {
                for (int b = 0; b < 256; ++b) {
                    const QColor back = RgbOf(HsvOf(r, g, b));
                    if (back.red() != r || back.green() != g || back.blue() != b) {
                        if (++failures < 5)
                            qWarning("%d,%d,%d came back as %s", r, g, b, qPrintable(back.name()));
                    }
                }
            }
        }
        QCOMPARE(failures, 0);
    }

    void greysKeepTheHueTheyHad_data()
    {
        QTest::addColumn<QColor>("color");
        QTest::addColumn<double>("hue");
        QTest::addColumn<double>("saturation");
        QTest::newRow("grey keeps hue, loses saturation") << QColor(128, 128, 128) << 200.0 << 0.0;
        QTest::newRow("black keeps hue and saturation") << QColor(0, 0, 0) << 200.0 << 0.75;
        QTest::newRow("a colour has its own hue") << QColor(0, 255, 0) << 120.0 << 1.0;
    }

    void greysKeepTheHueTheyHad()
    {
        QFETCH(QColor, color);
        const Hsv hsv = HsvOf(color, Hsv{200.0, 0.75, 0.5});
        QTEST(hsv.h, "hue");
        QTEST(hsv.s, "saturation");
        QCOMPARE(RgbOf(hsv), color);
    }

    void hsvOutOfRangeIsTamed()
    {
        QCOMPARE(RgbOf(Hsv{480.0, 1.0, 1.0}), RgbOf(Hsv{120.0, 1.0, 1.0}));
        QCOMPARE(RgbOf(Hsv{-120.0, 1.0, 1.0}), RgbOf(Hsv{240.0, 1.0, 1.0}));
        QCOMPARE(RgbOf(Hsv{std::nan(""), 2.0, -1.0}), QColor(0, 0, 0));
    }

    void hexText_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("ok");
        QTest::addColumn<QColor>("color");
        QTest::addColumn<bool>("hasAlpha");
        const QColor none;
        QTest::newRow("six digits") << "#ff8000" << true << QColor(255, 128, 0) << false;
        QTest::newRow("upper case, no hash") << "FF8000" << true << QColor(255, 128, 0) << false;
        QTest::newRow("blanks around") << "  #ff8000\t" << true << QColor(255, 128, 0) << false;
        QTest::newRow("three digits") << "#a5f" << true << QColor(0xaa, 0x55, 0xff) << false;
        QTest::newRow("alpha last") << "#11223344" << true << QColor(0x11, 0x22, 0x33, 0x44) << true;
        QTest::newRow("empty") << "" << false << none << false;
        QTest::newRow("hash only") << "#" << false << none << false;
        QTest::newRow("two hashes") << "##ff8000" << false << none << false;
        QTest::newRow("five digits") << "#12345" << false << none << false;
        QTest::newRow("seven digits") << "#1234567" << false << none << false;
        QTest::newRow("ten digits") << "#ff0000ff00" << false << none << false;
        QTest::newRow("not hex") << "#gg0000" << false << none << false;
        QTest::newRow("sign") << "#-12345" << false << none << false;
        QTest::newRow("0x prefix") << "0x123456" << false << none << false;
        QTest::newRow("colour name") << "red" << false << none << false;
        QTest::newRow("inner blank") << "#ff 8000" << false << none << false;
        QTest::newRow("nul inside") << QString::fromUtf16(u"#ff\u00008000", 8) << false << none << false;
        QTest::newRow("full-width digits") << QString::fromUtf16(u"#\uff11\uff12\uff13") << false << none << false;
        QTest::newRow("arabic digits") << QString::fromUtf16(u"#\u0661\u0662\u0663") << false << none << false;
        QTest::newRow("a megabyte of digits") << QString(1 << 20, QLatin1Char('f')) << false << none << false;
    }

    void hexText()
    {
        QFETCH(QString, text);
        QFETCH(bool, ok);
        QFETCH(QColor, color);
        const QColor before(1, 2, 3);
        QColor parsed = before;
        bool parsedAlpha = false;
        QCOMPARE(ParseHexColor(text, &parsed, &parsedAlpha), ok);
        QCOMPARE(parsed, ok ? color : before);
        QTEST(parsedAlpha, "hasAlpha");
        if (ok) {
            QColor again;
            QVERIFY(ParseHexColor(HexColorText(parsed, true), &again));
            QCOMPARE(again, parsed);
        }
    }

    void markersStandOut_data()
    {
        QTest::addColumn<QColor>("color");
        QTest::addColumn<QColor>("marker");
        QTest::newRow("on yellow") << QColor(Qt::yellow) << QColor(Qt::black);
        QTest::newRow("on navy") << QColor(0, 0, 128) << QColor(Qt::white);
        QTest::newRow("on white") << QColor(Qt::white) << QColor(Qt::black);
    }

    void markersStandOut()
    {
        QFETCH(QColor, color);
        QFETCH(QColor, marker);
        QCOMPARE(MarkerColorOver(color), marker);
        QVERIFY(ContrastRatio(color, marker) >= 4.5);
    }
};

QTEST_MAIN(tst_ColorMath)
#include "tst_colormath.moc"
