// test-options: SCALES 1.5 2
#include "../PaintProbe.h"

#include <KvUICore/widgets/ColorMath_p.h>
#include <KvUICore/widgets/ColorWheel.h>

#include <QAccessible>
#include <QAccessibleValueInterface>
#include <QSignalSpy>
#include <QtTest>

using namespace Kavrel::UICore;

class tst_ColorWheel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { Probe::UseRepositoryThemes(); }

    void colourSetComesBackUnchanged_data()
    {
        QTest::addColumn<QColor>("color");
        QTest::newRow("orange") << QColor(255, 128, 0);
        QTest::newRow("dark teal") << QColor(1, 77, 78);
        QTest::newRow("grey") << QColor(127, 127, 127);
        QTest::newRow("translucent") << QColor(10, 200, 30, 77);
    }

    void colourSetComesBackUnchanged()
    {
        QFETCH(QColor, color);
        ColorWheel wheel;
        QSignalSpy changed(&wheel, &ColorWheel::ColorChanged);
        wheel.SetColor(color);
        QCOMPARE(wheel.GetColor(), color);
        QCOMPARE(changed.count(), 0);
    }

    void greyKeepsTheHueOnTheRing()
    {
        ColorWheel wheel;
        wheel.SetHsv(200.0, 0.5, 0.5);
        wheel.SetColor(QColor(90, 90, 90));
        QCOMPARE(wheel.GetHue(), 200.0);
    }

    void dragChangesThenCommitsOnRelease()
    {
        ColorWheel wheel;
        wheel.resize(200, 200);
        wheel.SetHsv(0.0, 0.0, 0.0);
        QSignalSpy changed(&wheel, &ColorWheel::ColorChanged);
        QSignalSpy committed(&wheel, &ColorWheel::ColorCommitted);
        const QPoint start = wheel.PointForSaturationValue(0.2, 0.2).toPoint();
        const QPoint end = wheel.PointForSaturationValue(1.0, 1.0).toPoint() + QPoint(30, -30);
        QTest::mousePress(&wheel, Qt::LeftButton, {}, start);
        QMouseEvent move(QEvent::MouseMove, QPointF(end), wheel.mapToGlobal(QPointF(end)), Qt::NoButton, Qt::LeftButton,
                         Qt::NoModifier);
        QCoreApplication::sendEvent(&wheel, &move);
        QVERIFY(changed.count() >= 2);
        QCOMPARE(committed.count(), 0);
        QTest::mouseRelease(&wheel, Qt::LeftButton, {}, end);
        QCOMPARE(committed.count(), 1);
        // Beyond the square's corner the marker stays on it: pure red.
        QCOMPARE(wheel.GetColor(), QColor(255, 0, 0));
        QCOMPARE(committed.first().first().value<QColor>(), QColor(255, 0, 0));
    }

    void ringPressPicksHue()
    {
        ColorWheel wheel;
        wheel.resize(200, 200);
        wheel.SetHsv(0.0, 1.0, 1.0);
        QTest::mouseClick(&wheel, Qt::LeftButton, {}, wheel.PointForHue(120.0).toPoint());
        QVERIFY(std::abs(wheel.GetHue() - 120.0) < 1.0);
    }

    void keys_data()
    {
        QTest::addColumn<int>("key");
        QTest::addColumn<int>("modifiers");
        QTest::addColumn<bool>("rightToLeft");
        QTest::addColumn<double>("hue");
        QTest::addColumn<double>("saturation");
        QTest::addColumn<double>("value");
        QTest::newRow("right") << int(Qt::Key_Right) << 0 << false << 100.0 << 0.51 << 0.5;
        QTest::newRow("shift right") << int(Qt::Key_Right) << int(Qt::ShiftModifier) << false << 100.0 << 0.6 << 0.5;
        QTest::newRow("right, right to left") << int(Qt::Key_Right) << 0 << true << 100.0 << 0.49 << 0.5;
        QTest::newRow("up") << int(Qt::Key_Up) << 0 << false << 100.0 << 0.5 << 0.51;
        QTest::newRow("page up") << int(Qt::Key_PageUp) << 0 << false << 105.0 << 0.5 << 0.5;
        QTest::newRow("shift page down") << int(Qt::Key_PageDown) << int(Qt::ShiftModifier) << false << 99.0 << 0.5
                                         << 0.5;
    }

    void keys()
    {
        QFETCH(int, key);
        QFETCH(int, modifiers);
        QFETCH(bool, rightToLeft);
        QFETCH(double, hue);
        QFETCH(double, saturation);
        QFETCH(double, value);
        ColorWheel wheel;
        wheel.setLayoutDirection(rightToLeft ? Qt::RightToLeft : Qt::LeftToRight);
        wheel.SetHsv(100.0, 0.5, 0.5);
        QSignalSpy changed(&wheel, &ColorWheel::ColorChanged);
        QSignalSpy committed(&wheel, &ColorWheel::ColorCommitted);
        QTest::keyClick(&wheel, Qt::Key(key), Qt::KeyboardModifiers(modifiers));
        QVERIFY(qFuzzyCompare(wheel.GetHue(), hue));
        QVERIFY(qFuzzyCompare(wheel.GetSaturation(), saturation));
        QVERIFY(qFuzzyCompare(wheel.GetValue(), value));
        QCOMPARE(changed.count(), 1);
        QCOMPARE(committed.count(), 1);
    }

    void rightToLeftMirrorsTheSquare()
    {
        ColorWheel wheel;
        wheel.resize(200, 200);
        const qreal ltr = wheel.PointForSaturationValue(1.0, 1.0).x();
        wheel.setLayoutDirection(Qt::RightToLeft);
        QVERIFY(wheel.PointForSaturationValue(1.0, 1.0).x() < ltr);
        QCOMPARE(wheel.PointForSaturationValue(1.0, 1.0).x(), wheel.SquareRect().left());
    }

    void imagesRenderOnlyWhenNeeded()
    {
        ColorWheel wheel;
        wheel.resize(200, 200);
        wheel.SetHsv(10.0, 0.5, 0.5);
        wheel.grab();
        QCOMPARE(wheel.GetRingRenderCount(), 1);
        QCOMPARE(wheel.GetSquareRenderCount(), 1);
        wheel.SetHsv(10.0, 0.9, 0.2);
        wheel.grab();
        QCOMPARE(wheel.GetSquareRenderCount(), 1);
        wheel.SetHsv(50.0, 0.9, 0.2);
        wheel.grab();
        QCOMPARE(wheel.GetRingRenderCount(), 1);
        QCOMPARE(wheel.GetSquareRenderCount(), 2);
        wheel.resize(240, 240);
        wheel.grab();
        QCOMPARE(wheel.GetRingRenderCount(), 2);
        QCOMPARE(wheel.GetSquareRenderCount(), 3);
    }

    void paintsHueAndSquareCrisply()
    {
        ColorWheel wheel;
        wheel.resize(200, 200);
        wheel.SetHsv(240.0, 0.0, 1.0);
        const QImage image = Probe::Grab(&wheel);
        // The ring at hue 60 (away from the marker) is yellow.
        QVERIFY(Probe::Near(Probe::PixelAt(image, wheel.PointForHue(60.0).toPoint()), QColor(255, 255, 0), 6));
        // The square's top-right corner is the pure hue, its bottom black, at any scale.
        const QRectF square = wheel.SquareRect();
        const QPoint topRight = (square.topRight() + QPointF(-2, 2)).toPoint();
        QVERIFY(Probe::Near(Probe::PixelAt(image, topRight), QColor(0, 0, 255), 12));
        QVERIFY(
            Probe::Near(Probe::PixelAt(image, (square.bottomLeft() + QPointF(30, -1)).toPoint()), QColor(0, 0, 0), 8));
    }

    void accessibleValueIsTheHue()
    {
        ColorWheel wheel;
        wheel.SetColor(QColor(255, 0, 0));
        QAccessibleInterface* iface = QAccessible::queryAccessibleInterface(&wheel);
        QVERIFY(iface);
        QCOMPARE(iface->role(), QAccessible::ColorChooser);
        QVERIFY(iface->text(QAccessible::Value).startsWith(QStringLiteral("#ff0000")));
        QSignalSpy committed(&wheel, &ColorWheel::ColorCommitted);
        iface->valueInterface()->setCurrentValue(120.0);
        QCOMPARE(wheel.GetColor(), QColor(0, 255, 0));
        QCOMPARE(committed.count(), 1);
    }
};

QTEST_MAIN(tst_ColorWheel)
#include "tst_colorwheel.moc"
