#include "../PaintProbe.h"

#include <KvUICore/widgets/ColorPicker.h>
#include <KvUICore/widgets/ColorPickerParts_p.h>
#include <KvUICore/widgets/GradientSwatch.h>
#include <KvUICore/widgets/NumericField.h>

#include <QAccessible>
#include <QSignalSpy>
#include <QtTest>

#include <cmath>

using namespace Kavrel::UICore;

Q_DECLARE_METATYPE(QGradientStops)

namespace {

const QGradientStops kThreeStops = {{0.0, QColor(Qt::black)}, {0.5, QColor(Qt::red)}, {1.0, QColor(Qt::white)}};

QList<double> Positions(const QGradientStops& stops)
{
    QList<double> positions;
    for (const QGradientStop& stop : stops)
        positions.append(stop.first);
    return positions;
}

} // namespace

class tst_GradientSwatch : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { Probe::UseRepositoryThemes(); }

    void stopsAreCleanedUp_data()
    {
        QTest::addColumn<QGradientStops>("stops");
        QTest::addColumn<QList<double>>("positions");
        QTest::newRow("unsorted") << QGradientStops{{0.7, Qt::red}, {0.2, Qt::blue}} << QList<double>{0.2, 0.7};
        QTest::newRow("out of range") << QGradientStops{{-3.0, Qt::red}, {9.0, Qt::blue}} << QList<double>{0.0, 1.0};
        QTest::newRow("not a number dropped")
            << QGradientStops{{std::nan(""), Qt::red}, {0.1, Qt::blue}, {0.9, Qt::green}} << QList<double>{0.1, 0.9};
        QTest::newRow("one stop is not enough") << QGradientStops{{0.5, Qt::red}} << QList<double>{0.0, 1.0};
    }

    void stopsAreCleanedUp()
    {
        QFETCH(QGradientStops, stops);
        GradientSwatch swatch;
        QSignalSpy changed(&swatch, &GradientSwatch::GradientChanged);
        swatch.SetStops(stops);
        QTEST(Positions(swatch.GetStops()), "positions");
        QCOMPARE(changed.count(), 0);
    }

    void clickOnTheBarAddsTheColourThere()
    {
        GradientSwatch swatch;
        swatch.resize(220, 40);
        swatch.SetStops(kThreeStops);
        QSignalSpy changed(&swatch, &GradientSwatch::GradientChanged);
        const QRect bar = swatch.BarRect();
        const QPoint at(bar.left() + (bar.width() - 1) / 4, bar.center().y());
        QTest::mouseClick(&swatch, Qt::LeftButton, {}, at);
        QCOMPARE(swatch.GetStops().size(), 4);
        QCOMPARE(swatch.GetSelectedStop(), 1);
        const QGradientStop added = swatch.GetStops().at(1);
        QVERIFY(std::abs(added.first - 0.25) < 0.01);
        QVERIFY(Probe::Near(added.second, QColor(128, 0, 0), 3));
        QCOMPARE(changed.count(), 1);
    }

    void dragKeepsTheOrder_data()
    {
        QTest::addColumn<int>("stop");
        QTest::addColumn<double>("target");
        QTest::addColumn<double>("expected");
        QTest::newRow("middle within its neighbours") << 1 << 0.3 << 0.3;
        QTest::newRow("middle past the right one") << 1 << 1.0 << 1.0;
        QTest::newRow("first past the middle") << 0 << 0.8 << 0.5;
        QTest::newRow("last below the middle") << 2 << 0.1 << 0.5;
        QTest::newRow("first below zero") << 0 << -0.5 << 0.0;
    }

    void dragKeepsTheOrder()
    {
        QFETCH(int, stop);
        QFETCH(double, target);
        QFETCH(double, expected);
        GradientSwatch swatch;
        swatch.resize(220, 40);
        swatch.SetStops(kThreeStops);
        const QRect bar = swatch.BarRect();
        const QPoint from = swatch.NodePoint(stop) + QPoint(0, 6);
        const QPoint to(bar.left() + int(std::lround(target * (bar.width() - 1))), from.y());
        QTest::mousePress(&swatch, Qt::LeftButton, {}, from);
        QCOMPARE(swatch.GetSelectedStop(), stop);
        QMouseEvent move(QEvent::MouseMove, QPointF(to), swatch.mapToGlobal(QPointF(to)), Qt::NoButton, Qt::LeftButton,
                         Qt::NoModifier);
        QCoreApplication::sendEvent(&swatch, &move);
        QTest::mouseRelease(&swatch, Qt::LeftButton, {}, to);
        const QGradientStops stops = swatch.GetStops();
        QVERIFY(std::abs(stops.at(stop).first - expected) < 0.006);
        QCOMPARE(stops.size(), 3);
        QVERIFY(std::is_sorted(stops.begin(), stops.end(),
                               [](const QGradientStop& a, const QGradientStop& b) { return a.first < b.first; }));
    }

    void keys_data()
    {
        QTest::addColumn<int>("key");
        QTest::addColumn<int>("modifiers");
        QTest::addColumn<bool>("rightToLeft");
        QTest::addColumn<QList<double>>("positions");
        QTest::addColumn<int>("selected");
        QTest::newRow("right") << int(Qt::Key_Right) << 0 << false << QList<double>{0.0, 0.51, 1.0} << 1;
        QTest::newRow("shift left") << int(Qt::Key_Left) << int(Qt::ShiftModifier) << false
                                    << QList<double>{0.0, 0.4, 1.0} << 1;
        QTest::newRow("right, right to left") << int(Qt::Key_Right) << 0 << true << QList<double>{0.0, 0.49, 1.0} << 1;
        QTest::newRow("down selects the next") << int(Qt::Key_Down) << 0 << false << QList<double>{0.0, 0.5, 1.0} << 2;
        QTest::newRow("delete") << int(Qt::Key_Delete) << 0 << false << QList<double>{0.0, 1.0} << 1;
        QTest::newRow("insert") << int(Qt::Key_Insert) << 0 << false << QList<double>{0.0, 0.5, 0.75, 1.0} << 2;
    }

    void keys()
    {
        QFETCH(int, key);
        QFETCH(int, modifiers);
        QFETCH(bool, rightToLeft);
        QFETCH(QList<double>, positions);
        GradientSwatch swatch;
        swatch.setLayoutDirection(rightToLeft ? Qt::RightToLeft : Qt::LeftToRight);
        swatch.SetStops(kThreeStops);
        swatch.SetSelectedStop(1);
        QTest::keyClick(&swatch, Qt::Key(key), Qt::KeyboardModifiers(modifiers));
        const QList<double> actual = Positions(swatch.GetStops());
        QCOMPARE(actual.size(), positions.size());
        for (int i = 0; i < actual.size(); ++i)
            QVERIFY(qFuzzyCompare(1.0 + actual.at(i), 1.0 + positions.at(i)));
        QTEST(swatch.GetSelectedStop(), "selected");
    }

    void neverFewerThanTwoStops()
    {
        GradientSwatch swatch;
        swatch.resize(220, 40);
        QSignalSpy changed(&swatch, &GradientSwatch::GradientChanged);
        QTest::keyClick(&swatch, Qt::Key_Delete);
        QTest::mouseClick(&swatch, Qt::LeftButton, {}, swatch.DeleteButtonRect().center());
        QCOMPARE(swatch.GetStops().size(), 2);
        QCOMPARE(changed.count(), 0);
        swatch.AddStop(0.5);
        QTest::mouseClick(&swatch, Qt::LeftButton, {}, swatch.DeleteButtonRect().center());
        QCOMPARE(swatch.GetStops().size(), 2);
        QCOMPARE(changed.count(), 2);
    }

    void doubleClickEditsTheStopColour()
    {
        GradientSwatch swatch;
        swatch.resize(220, 40);
        swatch.SetStops(kThreeStops);
        QVERIFY(Probe::Shown(&swatch));
        QTest::mouseDClick(&swatch, Qt::LeftButton, {}, swatch.NodePoint(1) + QPoint(0, 6));
        ColorPicker* picker = swatch.GetPicker();
        QVERIFY(picker);
        QCOMPARE(picker->GetColor(), QColor(Qt::red));
        auto* hex = picker->findChild<NumericField*>("hex");
        hex->setFocus();
        hex->selectAll();
        QTest::keyClicks(hex, QStringLiteral("#00ff0080"));
        QTest::keyClick(hex, Qt::Key_Tab);
        QCOMPARE(swatch.GetStops().at(1).second, QColor(0, 255, 0, 128));
        QTest::keyClick(swatch.findChild<ColorPickerPopup*>(), Qt::Key_Escape);
        QCOMPARE(swatch.GetStops().at(1).second, QColor(Qt::red));
    }

    void barPaintsTheGradient()
    {
        GradientSwatch swatch;
        swatch.resize(220, 40);
        swatch.SetStops({{0.0, QColor(0, 0, 255)}, {1.0, QColor(0, 0, 255)}});
        const QImage image = Probe::Grab(&swatch);
        PROBE_COMPARE_COLOR(Probe::PixelAt(image, swatch.BarRect().center()), QColor(0, 0, 255));
    }

    void accessibleValueCountsTheStops()
    {
        GradientSwatch swatch;
        swatch.SetStops(kThreeStops);
        swatch.SetSelectedStop(1);
        QAccessibleInterface* iface = QAccessible::queryAccessibleInterface(&swatch);
        QVERIFY(iface->text(QAccessible::Value).startsWith(QStringLiteral("3 stops")));
        QCOMPARE(iface->valueInterface()->currentValue().toDouble(), 50.0);
        iface->valueInterface()->setCurrentValue(25.0);
        QCOMPARE(swatch.GetStops().at(1).first, 0.25);
    }
};

QTEST_MAIN(tst_GradientSwatch)
#include "tst_gradientswatch.moc"
