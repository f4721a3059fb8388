// test-options: SCALES 1.25 2 LABELS visual
#include "../PaintProbe.h"

#include <KvUICore/theme/ThemeFileKey.h>
#include <KvUICore/theme/ThemeManager.h>
#include <KvUICore/widgets/ProgressBar.h>

#include <QtTest>

using namespace Kavrel::UICore;

class tst_ProgressBar : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { Probe::UseRepositoryThemes(); }

    void fillFollowsValue_data()
    {
        QTest::addColumn<int>("value");
        QTest::addColumn<bool>("inverted");
        QTest::newRow("empty") << 0 << false;
        QTest::newRow("quarter") << 25 << false;
        QTest::newRow("three quarters") << 75 << false;
        QTest::newRow("full") << 100 << false;
        QTest::newRow("quarter, inverted") << 25 << true;
    }

    void fillFollowsValue()
    {
        QFETCH(int, value);
        QFETCH(bool, inverted);
        ProgressBar bar;
        bar.setTextVisible(false);
        bar.setRange(0, 100);
        bar.setValue(value);
        bar.setInvertedAppearance(inverted);
        bar.resize(204, 16);
        const QImage image = Probe::Grab(&bar);
        const int y = image.height() / 2;
        const QColor groove(50, 50, 50);
        // Probe away from the boundary of the filled part.
        for (int percent = 2; percent < 100; percent += 10) {
            const int x = image.width() * percent / 100;
            const bool filled = inverted ? percent > 100 - value : percent < value;
            const QColor pixel = Probe::Pixel(image, x, y);
            if (filled)
                QVERIFY2(pixel.blue() > pixel.red() + 40, qPrintable(QString::number(percent) + pixel.name()));
            else
                PROBE_COMPARE_COLOR(pixel, groove);
        }
    }

    void grooveOutlineIsCrisp()
    {
        ProgressBar bar;
        bar.setTextVisible(false);
        bar.resize(200, 16);
        const QImage image = Probe::Grab(&bar);
        const int b = Probe::Bucket(image);
        const QList<Probe::Run> runs = Probe::Runs(image, image.width() / 2, 0, image.height() - 1);
        QVERIFY2(runs.size() == 3, qPrintable(Probe::Describe(runs)));
        PROBE_COMPARE_COLOR(QColor::fromRgba(runs.first().color), QColor(31, 31, 31));
        QCOMPARE(runs.first().length, b);
        PROBE_COMPARE_COLOR(QColor::fromRgba(runs.at(1).color), QColor(50, 50, 50));
        QCOMPARE(runs.last().length, b);
    }
};

QTEST_MAIN(tst_ProgressBar)
#include "tst_progressbar.moc"
