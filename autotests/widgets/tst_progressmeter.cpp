#include "../PaintProbe.h"

#include <KvUICore/theme/ThemeFileKey.h>
#include <KvUICore/theme/ThemeManager.h>
#include <KvUICore/widgets/Label.h>
#include <KvUICore/widgets/ProgressMeter.h>

#include <QLabel>
#include <QTimer>
#include <QtTest>

using namespace Kavrel::UICore;

namespace {

QLabel* ImageLabel(ProgressMeter* meter)
{
    for (QLabel* label : meter->findChildren<QLabel*>(QString(), Qt::FindDirectChildrenOnly)) {
        if (!qobject_cast<Label*>(label))
            return label;
    }
    return nullptr;
}

Label* TextLabel(ProgressMeter* meter)
{
    return meter->findChild<Label*>(QString(), Qt::FindDirectChildrenOnly);
}

QList<QPixmap> NumberedFrames(int count)
{
    QList<QPixmap> frames;
    for (int i = 0; i < count; ++i) {
        QPixmap frame(16, 16);
        frame.fill(QColor(i * 10, 255 - i * 10, 7));
        frames.append(frame);
    }
    return frames;
}

// The index of the frame the image label shows, by its colour.
int ShownFrame(ProgressMeter* meter)
{
    const QPixmap pixmap = ImageLabel(meter)->pixmap();
    if (pixmap.isNull())
        return -1;
    return QColor(pixmap.toImage().pixel(0, 0)).red() / 10;
}

void Tick(ProgressMeter* meter)
{
    QVERIFY(QMetaObject::invokeMethod(meter, "UpdateProgressMeter"));
}

} // namespace

class tst_ProgressMeter : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { Probe::UseRepositoryThemes(); }

    void defaultFramesComeFromTheme()
    {
        ProgressMeter meter;
        const QList<QPixmap> frames = meter.GetImageFrameList();
        QCOMPARE(frames.size(), 24);
        for (const QPixmap& frame : frames) {
            QVERIFY(!frame.isNull());
            QCOMPARE(frame.deviceIndependentSize().toSize(), QSize(16, 16));
        }
        // Distinct images, not one frame repeated.
        QVERIFY(frames.first().toImage() != frames.at(6).toImage());
    }

    void animatesOnlyBetweenStartAndEnd()
    {
        ProgressMeter meter;
        meter.SetImageFrameList(NumberedFrames(24));
        auto* timer = meter.findChild<QTimer*>();
        QVERIFY(timer);
        QCOMPARE(timer->interval(), 41);
        QVERIFY(!timer->isActive());
        meter.Start();
        QTRY_VERIFY(ShownFrame(&meter) >= 2);
        meter.End();
        QVERIFY(!timer->isActive());
    }

    void framesCycleBackToStart()
    {
        ProgressMeter meter;
        meter.SetImageFrameList(NumberedFrames(24));
        QCOMPARE(ShownFrame(&meter), 0);
        QList<int> shown;
        for (int i = 0; i < 24; ++i) {
            Tick(&meter);
            shown.append(ShownFrame(&meter));
        }
        QCOMPARE(shown.first(), 1);
        QCOMPARE(shown.at(22), 23);
        QCOMPARE(shown.last(), 0);
    }

    void emptyFrameListChangesNothing()
    {
        ProgressMeter meter;
        meter.SetImageFrameList(NumberedFrames(3));
        Tick(&meter);
        QCOMPARE(ShownFrame(&meter), 1);
        meter.SetImageFrameList({});
        QVERIFY(meter.GetImageFrameList().isEmpty());
        QCOMPARE(ShownFrame(&meter), 1);
        Tick(&meter);
        QCOMPARE(ShownFrame(&meter), 1);
    }

    void setFramesShowsFirstAtOnce()
    {
        ProgressMeter meter;
        meter.SetImageFrameList(NumberedFrames(5));
        Tick(&meter);
        Tick(&meter);
        QCOMPARE(ShownFrame(&meter), 2);
        // The position is kept: the next tick moves on from it.
        meter.SetImageFrameList(NumberedFrames(5));
        QCOMPARE(ShownFrame(&meter), 0);
        Tick(&meter);
        QCOMPARE(ShownFrame(&meter), 3);
    }

    void endRewindsWithoutShowing()
    {
        ProgressMeter meter;
        meter.SetImageFrameList(NumberedFrames(6));
        meter.Start();
        for (int i = 0; i < 3; ++i)
            Tick(&meter);
        meter.End();
        QCOMPARE(ShownFrame(&meter), 3);
        meter.Start();
        Tick(&meter);
        QCOMPARE(ShownFrame(&meter), 1);
        meter.End();
    }

    void textSetsWidth_data()
    {
        QTest::addColumn<QString>("text");
        QTest::newRow("empty") << QString();
        QTest::newRow("short") << QStringLiteral("Busy");
        QTest::newRow("long") << QStringLiteral("Rendering the preview of the scene");
    }

    void textSetsWidth()
    {
        QFETCH(QString, text);
        ProgressMeter meter;
        meter.resize(300, 24);
        meter.SetText(text);
        QCOMPARE(meter.height(), 24);
        if (text.isEmpty())
            QCOMPARE(meter.width(), 300);
        else
            QCOMPARE(meter.width(), meter.fontMetrics().horizontalAdvance(text) + 33);
    }

    void layoutWithAndWithoutText()
    {
        ProgressMeter meter;
        meter.resize(100, 40);
        meter.updateGeometry();
        QCOMPARE(ImageLabel(&meter)->geometry(), QRect(42, 12, 16, 16));

        meter.SetText(QStringLiteral("Busy"));
        meter.setGeometry(QRect(0, 0, 120, 40));
        QCOMPARE(ImageLabel(&meter)->geometry(), QRect(0, 12, 16, 16));
        QCOMPARE(TextLabel(&meter)->geometry(), QRect(18, 0, 102, 40));

        // A resize of a shown meter lays it out again.
        QVERIFY(Probe::Shown(&meter));
        meter.resize(81, 31);
        QCOMPARE(ImageLabel(&meter)->geometry(), QRect(0, 7, 16, 16));
        QCOMPARE(TextLabel(&meter)->geometry(), QRect(18, 0, 63, 31));
    }
};

QTEST_MAIN(tst_ProgressMeter)
#include "tst_progressmeter.moc"
