#include "../PaintProbe.h"

#include <KvUICore/theme/ThemeFileKey.h>
#include <KvUICore/widgets/NumericField.h>
#include <KvUICore/widgets/Slider.h>
#include <KvUICore/widgets/SliderControl.h>

#include <KvCoreUnits/UnitsTypes.h>

#include <QLabel>
#include <QLineEdit>
#include <QSignalSpy>
#include <QStyleOptionSlider>
#include <QTest>
#include <QVBoxLayout>
#include <QWheelEvent>

using namespace Kavrel::UICore;
namespace units = kavrel::platform::core::units;
using Units = kvp::IDesignPropertyUnits;

namespace {

// Records the user-change signals of a slider in the order they come.
class SignalLog : public QObject
{
public:
    explicit SignalLog(Slider* slider)
    {
        connect(slider, &Slider::SliderPressed, this, [this] { mEntries << QStringLiteral("pressed"); });
        connect(slider, &Slider::SliderReleased, this, [this] { mEntries << QStringLiteral("released"); });
        connect(slider, &Slider::SliderChangeCancelled, this, [this] { mEntries << QStringLiteral("cancelled"); });
        connect(slider, &Slider::ValueChanged, this,
                [this](double value) { mEntries << QStringLiteral("changed %1").arg(value); });
    }
    QStringList mEntries;
};

QRect SubControl(SliderControl* control, QStyle::SubControl sub)
{
    QStyleOptionSlider option;
    option.initFrom(control);
    option.orientation = control->orientation();
    option.minimum = control->minimum();
    option.maximum = control->maximum();
    option.sliderPosition = control->sliderPosition();
    option.sliderValue = control->value();
    option.singleStep = control->singleStep();
    option.pageStep = control->pageStep();
    option.subControls = QStyle::SC_All;
    return control->style()->subControlRect(QStyle::CC_Slider, &option, sub, control);
}

// Replaces the field's text by typing and confirms it with Return.
void TypeAndConfirm(NumericField* field, const QString& text)
{
    field->setFocus();
    field->selectAll();
    QTest::keyClicks(field, text);
    QTest::keyClick(field, Qt::Key_Return);
}

} // namespace

class tst_Slider : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { Probe::UseRepositoryThemes(); }
    void init() { QVERIFY(mSlider = shownSlider()); }
    void cleanup()
    {
        qDeleteAll(mWidgets);
        mWidgets.clear();
        QVERIFY(ThemeManager::GetInstance()->SetCurrentTheme(QStringLiteral("Light")));
    }

    void positionsFollowThePrecision_data()
    {
        QTest::addColumn<int>("precision");
        QTest::addColumn<int>("maximumPosition");
        QTest::addColumn<bool>("defaultKeys");
        QTest::addColumn<int>("threshold");

        QTest::newRow("0 decimals") << 0 << 100 << true << 1;
        QTest::newRow("2 decimals") << 2 << 10000 << true << 1;
        QTest::newRow("3 decimals") << 3 << 100000 << true << 1;
        QTest::newRow("5 decimals") << 5 << 100000 << false << 100;
    }

    void positionsFollowThePrecision()
    {
        QFETCH(int, precision);
        QFETCH(int, maximumPosition);

        Slider slider;
        slider.SetValue(25.0);
        QSignalSpy changed(&slider, &Slider::ValueChanged);
        slider.SetDecimalPrecision(precision);
        SliderControl* control = slider.GetSliderControl();
        QCOMPARE(control->maximum(), maximumPosition);
        QCOMPARE(control->value(), maximumPosition / 4);
        QTEST(control->DefaultKeyHandling(), "defaultKeys");
        QTEST(control->KeyThreshold(), "threshold");
        QCOMPARE(changed.count(), 0);
    }

    void typedValuesEmitPressedChangedReleased_data()
    {
        QTest::addColumn<int>("unitType");
        QTest::addColumn<int>("symbol");
        QTest::addColumn<double>("maximum");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<double>("expected");
        QTest::addColumn<int>("position");
        QTest::addColumn<bool>("asFloat");

        const int none = int(Units::eUnitless), mm = int(Units::eMillimeter);
        const int plain = int(units::kSymbolUnitless), mmSymbol = int(units::kSymbolMillimeter);
        QTest::newRow("plain number") << none << plain << 100.0 << "42.5" << 42.5 << 4250 << false;
        QTest::newRow("above the maximum") << none << plain << 100.0 << "500" << 100.0 << 10000 << false;
        QTest::newRow("below the minimum") << none << plain << 100.0 << "-3" << 0.0 << 0 << false;
        QTest::newRow("inches into millimetres") << mm << mmSymbol << 1000.0 << "2 in" << 50.8 << 5080 << false;
        QTest::newRow("shown in inches") << mm << int(units::kSymbolInch) << 1000.0 << "254mm" << 254.0 << 1000
                                         << false;
        QTest::newRow("treated as float") << none << plain << 100.0 << "0.1" << double(0.1f) << 10 << true;
        // Nothing is announced for these: the value stays at 10.
        QTest::newRow("within tolerance") << none << plain << 100.0 << "10.0000000001" << 10.0 << 1000 << false;
        QTest::newRow("not a number") << none << plain << 100.0 << "not a number" << 10.0 << 1000 << false;
    }

    void typedValuesEmitPressedChangedReleased()
    {
        QFETCH(int, unitType);
        QFETCH(int, symbol);
        QFETCH(double, maximum);
        QFETCH(QString, typed);
        QFETCH(double, expected);
        QFETCH(bool, asFloat);

        mSlider->SetUnitType(Units::teType(unitType));
        mSlider->SetUnitSymbolType(units::UnitSymbol(symbol));
        mSlider->SetMaximum(maximum);
        mSlider->SetTreatValueAsFloat(asFloat);
        mSlider->SetValue(10.0);
        SignalLog log(mSlider);
        QSignalSpy moved(mSlider, &Slider::SliderMoved);

        NumericField* field = mSlider->GetNumericField();
        field->setFocus();
        field->selectAll();
        QTest::keyClicks(field, typed);
        QVERIFY(log.mEntries.isEmpty());
        QTest::keyClick(field, Qt::Key_Return);

        QVERIFY2(qAbs(mSlider->GetValue() - expected) < 1e-9,
                 qPrintable(QString::number(mSlider->GetValue(), 'g', 17)));
        QTEST(mSlider->GetSliderControl()->value(), "position");
        QStringList expectedLog{QStringLiteral("pressed"), QStringLiteral("changed %1").arg(mSlider->GetValue()),
                                QStringLiteral("released")};
        if (expected == 10.0) {
            expectedLog.clear();
            QCOMPARE(field->text(), QStringLiteral("10.00"));
        }
        QCOMPARE(log.mEntries, expectedLog);
        QCOMPARE(moved.count(), 0);
        QVERIFY(!mSlider->IsModified());
        QCOMPARE(field->selectedText(), field->text());

        // Leaving the field finishes no second edit.
        QVERIFY(Probe::Focus(mSlider->window()->findChild<QLineEdit*>(QStringLiteral("other"))));
        QCOMPARE(log.mEntries, expectedLog);
    }

    void arrowKeysStepTheValueFinely_data()
    {
        QTest::addColumn<int>("angleUnit"); // 0 for a plain number
        QTest::addColumn<int>("precision");
        QTest::addColumn<int>("key");
        QTest::addColumn<int>("presses");
        QTest::addColumn<double>("valueStep");
        QTest::addColumn<int>("positionMove");

        QTest::newRow("2 decimals, right") << 0 << 2 << int(Qt::Key_Right) << 3 << 0.01 << 3;
        QTest::newRow("2 decimals, page up") << 0 << 2 << int(Qt::Key_PageUp) << 2 << 0.1 << 20;
        QTest::newRow("2 decimals, down") << 0 << 2 << int(Qt::Key_Down) << 4 << -0.01 << -4;
        QTest::newRow("5 decimals, up") << 0 << 5 << int(Qt::Key_Up) << 100 << 0.00001 << 1;
        QTest::newRow("5 decimals, 99 up") << 0 << 5 << int(Qt::Key_Up) << 99 << 0.00001 << 0;
        QTest::newRow("5 decimals, page up") << 0 << 5 << int(Qt::Key_PageUp) << 10 << 0.0001 << 1;
        // Going down, the thumb moves on the first press and then every hundredth.
        QTest::newRow("5 decimals, left") << 0 << 5 << int(Qt::Key_Left) << 101 << -0.00001 << -2;
        QTest::newRow("5 decimals, page down") << 0 << 5 << int(Qt::Key_PageDown) << 3 << -0.0001 << -1;
        // Degrees, minutes and seconds step by the shown part: seconds, or tenths of a second.
        QTest::newRow("seconds, up") << int(Units::eDegree) << 4 << int(Qt::Key_Up) << 2 << 1.0 / 3600 << -1;
        QTest::newRow("seconds, page down")
            << int(Units::eDegree) << 4 << int(Qt::Key_PageDown) << 1 << -10.0 / 3600 << -1;
        QTest::newRow("tenths of a second, up")
            << int(Units::eDegree) << 5 << int(Qt::Key_Up) << 2 << 1.0 / 36000 << -1;
        QTest::newRow("tenths of a second, page down")
            << int(Units::eDegree) << 5 << int(Qt::Key_PageDown) << 1 << -1.0 / 3600 << -1;
        // The step is added to the value as it is, whatever unit the value is held in.
        QTest::newRow("seconds on a value in radians")
            << int(Units::eRadian) << 4 << int(Qt::Key_Up) << 2 << 1.0 / 3600 << -1;
    }

    void arrowKeysStepTheValueFinely()
    {
        QFETCH(int, angleUnit);
        const bool degrees = angleUnit != 0;
        QFETCH(int, precision);
        QFETCH(int, key);
        QFETCH(int, presses);
        QFETCH(double, valueStep);

        if (degrees) {
            mSlider->SetUnitType(Units::teType(angleUnit));
            mSlider->SetUnitSymbolType(units::kSymbolDegreesMinutesSeconds);
            mSlider->SetRange(0.0, 360.0);
        }
        mSlider->SetDecimalPrecision(precision);
        mSlider->SetValue(50.0);
        SliderControl* control = mSlider->GetSliderControl();
        if (degrees)
            QVERIFY(!control->DefaultKeyHandling());
        const int startPosition = control->value();
        QSignalSpy changed(mSlider, &Slider::ValueChanged);
        QSignalSpy pressed(mSlider, &Slider::SliderPressed);
        QSignalSpy released(mSlider, &Slider::SliderReleased);
        control->setFocus();
        for (int i = 0; i < presses; ++i) {
            QTest::keyClick(control, Qt::Key(key));
            QVERIFY(qAbs(mSlider->GetValue() - (50.0 + (i + 1) * valueStep)) < qAbs(valueStep) / 100);
        }
        if (!degrees)
            QTEST(control->value() - startPosition, "positionMove");
        QCOMPARE(changed.count(), presses);
        QCOMPARE(pressed.count(), presses);
        QCOMPARE(released.count(), presses);
        QCOMPARE(changed.last().at(0).toDouble(), mSlider->GetValue());
    }

    void escapeDuringAKeyboardDragCancels()
    {
        mSlider->SetValue(20.0);
        SliderControl* control = mSlider->GetSliderControl();
        control->setFocus();
        SignalLog log(mSlider);
        QTest::keyPress(control, Qt::Key_Right);
        QKeyEvent repeat(QEvent::KeyPress, Qt::Key_Right, Qt::NoModifier, QString(), true);
        QApplication::sendEvent(control, &repeat);
        QCOMPARE(control->HeldInputs(), QList<int>{Qt::Key_Right});
        QTest::keyClick(control, Qt::Key_Escape);
        QVERIFY(control->HeldInputs().isEmpty());
        // The key let go after the cancel ends nothing more.
        QTest::keyRelease(control, Qt::Key_Right);
        QCOMPARE(log.mEntries, QStringList({"pressed", "changed 20.01", "changed 20.02", "cancelled"}));
    }

    void wheelNotchAwayFromTheUserLowersThePosition()
    {
        mSlider->SetValue(40.0);
        SliderControl* control = mSlider->GetSliderControl();
        SignalLog log(mSlider);
        const QPointF centre = QRectF(control->rect()).center();
        const auto wheel = [&](int delta) {
            QWheelEvent event(centre, control->mapToGlobal(centre), QPoint(), QPoint(0, delta), Qt::NoButton,
                              Qt::NoModifier, Qt::NoScrollPhase, false);
            QApplication::sendEvent(control, &event);
        };
        wheel(120);
        QCOMPARE(control->value(), 3999);
        QCOMPARE(mSlider->GetValue(), 39.99);
        wheel(-240);
        QCOMPARE(control->value(), 4001);
        // Less than a notch does nothing.
        wheel(60);
        QCOMPARE(control->value(), 4001);
        QCOMPARE(log.mEntries,
                 QStringList({"pressed", "changed 39.99", "released", "pressed", "changed 40.01", "released"}));
    }

    void dragStartsWhereTheThumbIsAndFollowsTheMouse()
    {
        mSlider->SetDecimalPrecision(0);
        mSlider->SetValue(50.0);
        SliderControl* control = mSlider->GetSliderControl();
        SignalLog log(mSlider);
        QSignalSpy moved(mSlider, &Slider::SliderMoved);

        const QRect groove = SubControl(control, QStyle::SC_SliderGroove);
        const QPoint press(groove.left() + groove.width() / 5, groove.center().y());
        QTest::mousePress(control, Qt::LeftButton, {}, press);
        QCOMPARE(mSlider->GetValue(), 50.0);
        QCOMPARE(log.mEntries, QStringList({"pressed"}));

        QStyleOptionSlider option;
        option.initFrom(control);
        option.orientation = Qt::Horizontal;
        const int space = control->style()->pixelMetric(QStyle::PM_SliderSpaceAvailable, &option, control);
        const int handle = control->style()->pixelMetric(QStyle::PM_SliderLength, &option, control);
        const float pixelsPerPosition = float(space - handle) / 100.0f;
        const int dx = 40;
        QMouseEvent move(QEvent::MouseMove, QPointF(press + QPoint(dx, 0)), control->mapToGlobal(QPointF(press)),
                         Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(control, &move);
        const int expected = 50 + int(float(dx) / pixelsPerPosition);
        QCOMPARE(control->value(), expected);
        QCOMPARE(mSlider->GetValue(), double(expected));
        QCOMPARE(moved.count(), 1);
        QCOMPARE(moved.last().at(0).toInt(), expected);

        QTest::mouseRelease(control, Qt::LeftButton, {}, press + QPoint(dx, 0));
        QCOMPARE(log.mEntries, (QStringList{QStringLiteral("pressed"), QStringLiteral("changed %1").arg(expected),
                                            QStringLiteral("released")}));
        QVERIFY(control->HeldInputs().isEmpty());
    }

    void rightButtonDragsAndOtherButtonsDoNothing()
    {
        mSlider->SetDecimalPrecision(0);
        mSlider->SetRange(-100.0, 100.0);
        mSlider->SetValue(0.0);
        SliderControl* control = mSlider->GetSliderControl();
        QCOMPARE(control->GetStoredMinimum(), -100);
        SignalLog log(mSlider);
        const QRect groove = SubControl(control, QStyle::SC_SliderGroove);
        const QPoint press = groove.center();

        QTest::mousePress(control, Qt::MiddleButton, {}, press);
        QTest::mouseRelease(control, Qt::MiddleButton, {}, press);
        QVERIFY(log.mEntries.isEmpty());
        QCOMPARE(mSlider->GetValue(), 0.0);

        QTest::mousePress(control, Qt::RightButton, {}, press);
        // The left button is ignored while the right one drags.
        QTest::mousePress(control, Qt::LeftButton, {}, press);
        QCOMPARE(control->HeldInputs(), QList<int>{SliderControl::MouseInput});
        QMouseEvent move(QEvent::MouseMove, QPointF(groove.left(), press.y()), control->mapToGlobal(QPointF(press)),
                         Qt::NoButton, Qt::RightButton, Qt::NoModifier);
        QApplication::sendEvent(control, &move);
        QVERIFY(mSlider->GetValue() < 0.0);
        QCOMPARE(control->minimum(), -100);
        QCOMPARE(control->maximum(), 100);
        QTest::mouseRelease(control, Qt::RightButton, {}, QPoint(groove.left(), press.y()));
        QCOMPARE(log.mEntries.first(), QStringLiteral("pressed"));
        QCOMPARE(log.mEntries.last(), QStringLiteral("released"));
        QCOMPARE(log.mEntries.count(), 3);
    }

    void refusedValuesLeaveValueAndPosition()
    {
        mSlider->SetValue(30.0);
        SliderControl* control = mSlider->GetSliderControl();
        connect(mSlider, &Slider::ValidateChangingValue, mSlider, [](double& value, bool& valid) {
            if (value > 30.0)
                valid = false;
        });
        QSignalSpy changed(mSlider, &Slider::ValueChanged);
        control->setFocus();
        QTest::keyClick(control, Qt::Key_Right);
        QCOMPARE(mSlider->GetValue(), 30.0);
        QCOMPARE(control->value(), 3000);
        QTest::keyClick(control, Qt::Key_Left);
        QCOMPARE(mSlider->GetValue(), 29.99);

        TypeAndConfirm(mSlider->GetNumericField(), QStringLiteral("55"));
        QCOMPARE(mSlider->GetValue(), 29.99);
        QCOMPARE(mSlider->GetNumericField()->text(), QStringLiteral("29.99"));
        QCOMPARE(changed.count(), 1);
    }

    void valueFromCodeMovesSilentlyAndRangeChangesClamp()
    {
        SignalLog log(mSlider);
        QSignalSpy validate(mSlider, &Slider::ValidateChangingValue);
        mSlider->SetValue(33.33);
        QCOMPARE(mSlider->GetSliderControl()->value(), 3333);
        QCOMPARE(mSlider->GetNumericField()->text(), QStringLiteral("33.33"));
        QCOMPARE(mSlider->GetNumericField()->cursorPosition(), 0);
        // Outside the range the value stays as set; the thumb stops at the end.
        mSlider->SetValue(150.0);
        QCOMPARE(mSlider->GetValue(), 150.0);
        QCOMPARE(mSlider->GetSliderControl()->value(), 10000);
        QVERIFY(log.mEntries.isEmpty());
        QCOMPARE(validate.count(), 0);

        mSlider->SetValue(80.0);
        QSignalSpy changed(mSlider, &Slider::ValueChanged);
        mSlider->SetRange(-50.0, 200.0);
        QCOMPARE(mSlider->GetSliderControl()->minimum(), -5000);
        QCOMPARE(mSlider->GetSliderControl()->maximum(), 20000);
        QCOMPARE(mSlider->GetSliderControl()->value(), 8000);
        QCOMPARE(changed.count(), 0);
        mSlider->SetMaximum(60.0);
        QCOMPARE(mSlider->GetValue(), 60.0);
        QCOMPARE(changed.count(), 1);
        mSlider->setProperty("minimum", 10.0);
        QCOMPARE(mSlider->GetMinimum(), 10.0);
        QCOMPARE(mSlider->GetSliderControl()->minimum(), 1000);
    }

    void deferredUpdatesWaitForUpdateForUnits()
    {
        mSlider->SetUnitType(Units::eMillimeter);
        mSlider->SetRange(0.0, 1000.0);
        mSlider->SetValue(254.0);
        QCOMPARE(mSlider->GetNumericField()->text(), QStringLiteral("254.00"));
        QCOMPARE(mSlider->GetSliderControl()->maximum(), 100000);

        mSlider->SetDeferUpdateForUnits(true);
        // The number format is not among the changes the slider follows.
        mSlider->SetNumberFormatId(units::kNumberFormatFractional);
        mSlider->SetNumberFormatId(units::kNumberFormatDecimal);
        QVERIFY(!mSlider->HaveDeferredUpdatesForUnits());
        mSlider->SetDecimalPrecision(1);
        mSlider->SetUnitSymbolType(units::kSymbolInch);
        mSlider->SetDecimalSeparator(QStringLiteral(","));
        QVERIFY(mSlider->HaveDeferredUpdatesForUnits());
        QCOMPARE(mSlider->GetNumericField()->text(), QStringLiteral("254.00"));
        QCOMPARE(mSlider->GetSliderControl()->maximum(), 100000);
        QCOMPARE(mSlider->GetUnitSymbolLabel(), QString());
        // Still deferring: the call only marks.
        mSlider->UpdateForUnits();
        QVERIFY(mSlider->HaveDeferredUpdatesForUnits());

        mSlider->SetDeferUpdateForUnits(false);
        mSlider->UpdateForUnits();
        QVERIFY(!mSlider->HaveDeferredUpdatesForUnits());
        QCOMPARE(mSlider->GetNumericField()->text(), QStringLiteral("10,0"));
        QCOMPARE(mSlider->GetSliderControl()->maximum(), 394);
        QCOMPARE(mSlider->GetSliderControl()->value(), 100);
        QCOMPARE(mSlider->GetUnitSymbolLabel(), QStringLiteral("Inches"));
    }

    void unitSymbolLabelShowsTheDisplayName()
    {
        QLabel* label = mSlider->findChild<QLabel*>();
        QVERIFY(label);
        mSlider->SetUnitType(Units::eMillimeter);
        mSlider->SetUnitSymbolType(units::kSymbolMillimeter);
        QCOMPARE(mSlider->GetUnitSymbolLabel(), QStringLiteral("Millimeters"));
        QVERIFY(!label->isVisibleTo(mSlider));
        mSlider->ShowUnitSymbolLabel(true);
        QVERIFY(label->isVisibleTo(mSlider));
        mSlider->SetUnitSymbolLabel(QString());
        QVERIFY(!label->isVisibleTo(mSlider));
        mSlider->SetUnitSymbolLabel(QStringLiteral("mm"));
        QVERIFY(label->isVisibleTo(mSlider));
        mSlider->ShowUnitSymbolLabel(false);
        QVERIFY(!label->isVisibleTo(mSlider));
    }

    void focusLossIsAnnounced()
    {
        QSignalSpy focusOut(mSlider, &Slider::SliderFocusOut);
        QLineEdit* other = mSlider->window()->findChild<QLineEdit*>(QStringLiteral("other"));
        SliderControl* control = mSlider->GetSliderControl();
        QVERIFY(Probe::Focus(control));
        QTest::keyPress(control, Qt::Key_Up);
        other->setFocus();
        QTRY_COMPARE(focusOut.count(), 1);
        QVERIFY(control->HeldInputs().isEmpty());
        QVERIFY(Probe::Focus(mSlider->GetNumericField()));
        other->setFocus();
        QTRY_COMPARE(focusOut.count(), 2);
    }

    void displayTextIsPaintedOnTheGroove()
    {
        mSlider->SetNumFieldVisible(false);
        SliderControl* control = mSlider->GetSliderControl();
        mSlider->SetValue(0.0);
        const QRect groove = SubControl(control, QStyle::SC_SliderGroove);
        const QImage before = Probe::Grab(control);
        mSlider->SetDisplayText(QStringLiteral("Opacity"));
        QCOMPARE(control->property("attributeTextTerm").toString(), QStringLiteral("Opacity"));
        const QImage after = Probe::Grab(control);
        QCOMPARE(after.size(), before.size());
        // The text changes pixels around the groove's middle, and nowhere near the ends.
        const qreal ratio = after.devicePixelRatio();
        const QColor text = Probe::ThemeColor(ThemeFileKey::FontNormal1);
        int changed = 0;
        int nearText = 0;
        for (int y = 0; y < after.height(); ++y) {
            for (int x = 0; x < after.width(); ++x) {
                if (after.pixel(x, y) == before.pixel(x, y))
                    continue;
                ++changed;
                QVERIFY(x / ratio > groove.left() + 5 && x / ratio < groove.right() - 5);
                const QColor c = after.pixelColor(x, y);
                if (qAbs(c.red() - text.red()) + qAbs(c.green() - text.green()) + qAbs(c.blue() - text.blue()) < 60)
                    ++nearText;
            }
        }
        QVERIFY2(changed > 20, qPrintable(QString::number(changed)));
        QVERIFY2(nearText > 5, qPrintable(QString::number(nearText)));
    }

private:
    Slider* shownSlider()
    {
        Slider* slider = Probe::ShownWithOther<Slider>(mWidgets, QSize(320, 90));
        if (slider)
            slider->SetSeparators(QStringLiteral("."), QStringLiteral(","));
        return slider;
    }

    QList<QWidget*> mWidgets;
    Slider* mSlider = nullptr;
};

QTEST_MAIN(tst_Slider)
#include "tst_slider.moc"
