#include "../PaintProbe.h"

#include <KvUICore/widgets/ColorPicker.h>
#include <KvUICore/widgets/ColorPickerParts_p.h>
#include <KvUICore/widgets/GradientSwatch.h>
#include <KvUICore/widgets/NumericField.h>

#include <QAccessible>
#include <QSignalSpy>
#include <QtTest>

#include <cmath>
#include <memory>

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
    void init()
    {
        mSwatch = std::make_unique<GradientSwatch>();
        mSwatch->resize(220, 40);
    }

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
        QSignalSpy changed(mSwatch.get(), &GradientSwatch::GradientChanged);
        mSwatch->SetStops(stops);
        QTEST(Positions(mSwatch->GetStops()), "positions");
        QCOMPARE(changed.count(), 0);
    }

    void clickOnTheBarAddsTheColourThere()
    {
        mSwatch->SetStops(kThreeStops);
        QSignalSpy changed(mSwatch.get(), &GradientSwatch::GradientChanged);
        const QRect bar = mSwatch->BarRect();
        const QPoint at(bar.left() + (bar.width() - 1) / 4, bar.center().y());
        QTest::mouseClick(mSwatch.get(), Qt::LeftButton, {}, at);
        QCOMPARE(mSwatch->GetStops().size(), 4);
        QCOMPARE(mSwatch->GetSelectedStop(), 1);
        const QGradientStop added = mSwatch->GetStops().at(1);
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
        mSwatch->SetStops(kThreeStops);
        const QRect bar = mSwatch->BarRect();
        const QPoint from = mSwatch->NodePoint(stop) + QPoint(0, 6);
        const QPoint to(bar.left() + int(std::lround(target * (bar.width() - 1))), from.y());
        QTest::mousePress(mSwatch.get(), Qt::LeftButton, {}, from);
        QCOMPARE(mSwatch->GetSelectedStop(), stop);
        QMouseEvent move(QEvent::MouseMove, QPointF(to), mSwatch->mapToGlobal(QPointF(to)), Qt::NoButton,
                         Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(mSwatch.get(), &move);
        QTest::mouseRelease(mSwatch.get(), Qt::LeftButton, {}, to);
        const QGradientStops stops = mSwatch->GetStops();
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
        mSwatch->setLayoutDirection(rightToLeft ? Qt::RightToLeft : Qt::LeftToRight);
        mSwatch->SetStops(kThreeStops);
        mSwatch->SetSelectedStop(1);
        QTest::keyClick(mSwatch.get(), Qt::Key(key), Qt::KeyboardModifiers(modifiers));
        const QList<double> actual = Positions(mSwatch->GetStops());
        QCOMPARE(actual.size(), positions.size());
        for (int i = 0; i < actual.size(); ++i)
            QVERIFY(qFuzzyCompare(1.0 + actual.at(i), 1.0 + positions.at(i)));
        QTEST(mSwatch->GetSelectedStop(), "selected");
    }

    void neverFewerThanTwoStops()
    {
        QSignalSpy changed(mSwatch.get(), &GradientSwatch::GradientChanged);
        QTest::keyClick(mSwatch.get(), Qt::Key_Delete);
        QTest::mouseClick(mSwatch.get(), Qt::LeftButton, {}, mSwatch->DeleteButtonRect().center());
        QCOMPARE(mSwatch->GetStops().size(), 2);
        QCOMPARE(changed.count(), 0);
        mSwatch->AddStop(0.5);
        QTest::mouseClick(mSwatch.get(), Qt::LeftButton, {}, mSwatch->DeleteButtonRect().center());
        QCOMPARE(mSwatch->GetStops().size(), 2);
        QCOMPARE(changed.count(), 2);
    }

    void doubleClickEditsTheStopColour()
    {
        mSwatch->SetStops(kThreeStops);
        QVERIFY(Probe::Shown(mSwatch.get()));
        QTest::mouseDClick(mSwatch.get(), Qt::LeftButton, {}, mSwatch->NodePoint(1) + QPoint(0, 6));
        ColorPicker* picker = mSwatch->GetPicker();
        QVERIFY(picker);
        QCOMPARE(picker->GetColor(), QColor(Qt::red));
        auto* hex = picker->findChild<NumericField*>("hex");
        hex->setFocus();
        hex->selectAll();
        QTest::keyClicks(hex, QStringLiteral("#00ff0080"));
        QTest::keyClick(hex, Qt::Key_Tab);
        QCOMPARE(mSwatch->GetStops().at(1).second, QColor(0, 255, 0, 128));
        QTest::keyClick(mSwatch->findChild<ColorPickerPopup*>(), Qt::Key_Escape);
        QCOMPARE(mSwatch->GetStops().at(1).second, QColor(Qt::red));
    }

    void barPaintsTheGradient()
    {
        mSwatch->SetStops({{0.0, QColor(0, 0, 255)}, {1.0, QColor(0, 0, 255)}});
        const QImage image = Probe::Grab(mSwatch.get());
        PROBE_COMPARE_COLOR(Probe::PixelAt(image, mSwatch->BarRect().center()), QColor(0, 0, 255));
    }

    void accessibleValueCountsTheStops()
    {
        mSwatch->SetStops(kThreeStops);
        mSwatch->SetSelectedStop(1);
        QAccessibleInterface* iface = QAccessible::queryAccessibleInterface(mSwatch.get());
        QVERIFY(iface->text(QAccessible::Value).startsWith(QStringLiteral("3 stops")));
        QCOMPARE(iface->valueInterface()->currentValue().toDouble(), 50.0);
        iface->valueInterface()->setCurrentValue(25.0);
        QCOMPARE(mSwatch->GetStops().at(1).first, 0.25);
    }

private:
    std::unique_ptr<GradientSwatch> mSwatch;
};

QTEST_MAIN(tst_GradientSwatch)
#include "tst_gradientswatch.moc"
