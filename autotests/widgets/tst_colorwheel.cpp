// test-options: SCALES 1.5 2
#include "../PaintProbe.h"

#include <KvUICore/widgets/ColorMath_p.h>
#include <KvUICore/widgets/ColorWheel.h>

#include <QAccessible>
#include <QAccessibleValueInterface>
#include <QSignalSpy>
#include <QtTest>

#include <memory>

using namespace Kavrel::UICore;

class tst_ColorWheel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { Probe::UseRepositoryThemes(); }
    void init()
    {
        mWheel = std::make_unique<ColorWheel>();
        mWheel->resize(200, 200);
    }

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
        QSignalSpy changed(mWheel.get(), &ColorWheel::ColorChanged);
        mWheel->SetColor(color);
        QCOMPARE(mWheel->GetColor(), color);
        QCOMPARE(changed.count(), 0);
    }

    void greyKeepsTheHueOnTheRing()
    {
        mWheel->SetHsv(200.0, 0.5, 0.5);
        mWheel->SetColor(QColor(90, 90, 90));
        QCOMPARE(mWheel->GetHue(), 200.0);
    }

    void dragChangesThenCommitsOnRelease()
    {
        mWheel->SetHsv(0.0, 0.0, 0.0);
        QSignalSpy changed(mWheel.get(), &ColorWheel::ColorChanged);
        QSignalSpy committed(mWheel.get(), &ColorWheel::ColorCommitted);
        const QPoint start = mWheel->PointForSaturationValue(0.2, 0.2).toPoint();
        const QPoint end = mWheel->PointForSaturationValue(1.0, 1.0).toPoint() + QPoint(30, -30);
        QTest::mousePress(mWheel.get(), Qt::LeftButton, {}, start);
        QMouseEvent move(QEvent::MouseMove, QPointF(end), mWheel->mapToGlobal(QPointF(end)), Qt::NoButton,
                         Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(mWheel.get(), &move);
        QVERIFY(changed.count() >= 2);
        QCOMPARE(committed.count(), 0);
        QTest::mouseRelease(mWheel.get(), Qt::LeftButton, {}, end);
        QCOMPARE(committed.count(), 1);
        // Beyond the square's corner the marker stays on it: pure red.
        QCOMPARE(mWheel->GetColor(), QColor(255, 0, 0));
        QCOMPARE(committed.first().first().value<QColor>(), QColor(255, 0, 0));
    }

    void ringPressPicksHue()
    {
        mWheel->SetHsv(0.0, 1.0, 1.0);
        QTest::mouseClick(mWheel.get(), Qt::LeftButton, {}, mWheel->PointForHue(120.0).toPoint());
        QVERIFY(std::abs(mWheel->GetHue() - 120.0) < 1.0);
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
        mWheel->setLayoutDirection(rightToLeft ? Qt::RightToLeft : Qt::LeftToRight);
        mWheel->SetHsv(100.0, 0.5, 0.5);
        QSignalSpy changed(mWheel.get(), &ColorWheel::ColorChanged);
        QSignalSpy committed(mWheel.get(), &ColorWheel::ColorCommitted);
        QTest::keyClick(mWheel.get(), Qt::Key(key), Qt::KeyboardModifiers(modifiers));
        QVERIFY(qFuzzyCompare(mWheel->GetHue(), hue));
        QVERIFY(qFuzzyCompare(mWheel->GetSaturation(), saturation));
        QVERIFY(qFuzzyCompare(mWheel->GetValue(), value));
        QCOMPARE(changed.count(), 1);
        QCOMPARE(committed.count(), 1);
    }

    void rightToLeftMirrorsTheSquare()
    {
        const qreal ltr = mWheel->PointForSaturationValue(1.0, 1.0).x();
        mWheel->setLayoutDirection(Qt::RightToLeft);
        QVERIFY(mWheel->PointForSaturationValue(1.0, 1.0).x() < ltr);
        QCOMPARE(mWheel->PointForSaturationValue(1.0, 1.0).x(), mWheel->SquareRect().left());
    }

    void imagesRenderOnlyWhenNeeded()
    {
        mWheel->SetHsv(10.0, 0.5, 0.5);
        mWheel->grab();
        QCOMPARE(mWheel->GetRingRenderCount(), 1);
        QCOMPARE(mWheel->GetSquareRenderCount(), 1);
        mWheel->SetHsv(10.0, 0.9, 0.2);
        mWheel->grab();
        QCOMPARE(mWheel->GetSquareRenderCount(), 1);
        mWheel->SetHsv(50.0, 0.9, 0.2);
        mWheel->grab();
        QCOMPARE(mWheel->GetRingRenderCount(), 1);
        QCOMPARE(mWheel->GetSquareRenderCount(), 2);
        mWheel->resize(240, 240);
        mWheel->grab();
        QCOMPARE(mWheel->GetRingRenderCount(), 2);
        QCOMPARE(mWheel->GetSquareRenderCount(), 3);
    }

    void paintsHueAndSquareCrisply()
    {
        mWheel->SetHsv(240.0, 0.0, 1.0);
        const QImage image = Probe::Grab(mWheel.get());
        // The ring at hue 60 (away from the marker) is yellow.
        QVERIFY(Probe::Near(Probe::PixelAt(image, mWheel->PointForHue(60.0).toPoint()), QColor(255, 255, 0), 6));
        // The square's top-right corner is the pure hue, its bottom black, at any scale.
        const QRectF square = mWheel->SquareRect();
        const QPoint topRight = (square.topRight() + QPointF(-2, 2)).toPoint();
        QVERIFY(Probe::Near(Probe::PixelAt(image, topRight), QColor(0, 0, 255), 12));
        QVERIFY(
            Probe::Near(Probe::PixelAt(image, (square.bottomLeft() + QPointF(30, -1)).toPoint()), QColor(0, 0, 0), 8));
    }

    void accessibleValueIsTheHue()
    {
        mWheel->SetColor(QColor(255, 0, 0));
        QAccessibleInterface* iface = QAccessible::queryAccessibleInterface(mWheel.get());
        QVERIFY(iface);
        QCOMPARE(iface->role(), QAccessible::ColorChooser);
        QVERIFY(iface->text(QAccessible::Value).startsWith(QStringLiteral("#ff0000")));
        QSignalSpy committed(mWheel.get(), &ColorWheel::ColorCommitted);
        iface->valueInterface()->setCurrentValue(120.0);
        QCOMPARE(mWheel->GetColor(), QColor(0, 255, 0));
        QCOMPARE(committed.count(), 1);
    }

private:
    std::unique_ptr<ColorWheel> mWheel;
};

QTEST_MAIN(tst_ColorWheel)
#include "tst_colorwheel.moc"
