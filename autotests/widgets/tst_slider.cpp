#include <KvUICore/core/CoreUIUtil_p.h>
#include <KvUICore/theme/ThemeFileKey.h>
#include <KvUICore/theme/ThemeManager.h>
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

} // namespace

class tst_Slider : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanup();

    void constructionDefaults();
    void positionsFollowThePrecision_data();
    void positionsFollowThePrecision();
    void typedValuesEmitPressedChangedReleased_data();
    void typedValuesEmitPressedChangedReleased();
    void typedValueWithinToleranceEmitsNothing();
    void valueSetFromCodeMovesTheSliderSilently();
    void arrowKeysStepTheValueFinely_data();
    void arrowKeysStepTheValueFinely();
    void degreeMinuteSecondKeysStepByTheShownPart_data();
    void degreeMinuteSecondKeysStepByTheShownPart();
    void escapeDuringAKeyboardDragCancels();
    void wheelNotchAwayFromTheUserLowersThePosition();
    void dragStartsWhereTheThumbIsAndFollowsTheMouse();
    void rightButtonDragsAndOtherButtonsDoNothing();
    void refusedValuesLeaveValueAndPosition();
    void rangeChangesClampTheValue();
    void deferredUpdatesWaitForUpdateForUnits();
    void unitSymbolLabelShowsTheDisplayName();
    void valuesCanBeTreatedAsFloat();
    void focusLossIsAnnounced();
    void textColourFollowsThemeAndEnabledState();
    void textColoursSurviveStyleSheetRepolish();
    void displayTextIsPaintedOnTheGroove();

private:
    Slider* shownSlider();
    QList<QWidget*> mWidgets;
};

void tst_Slider::initTestCase()
{
    Internal::SetWarningHook([](const QString&, const QString&) { return true; });
    ThemeManager::GetInstance()->SetThemeFilesPath(QStringLiteral(KVUICORE_THEMES_DIR).toStdWString().c_str());
    QVERIFY(ThemeManager::GetInstance()->SetCurrentTheme(QStringLiteral("Light")));
}

void tst_Slider::cleanup()
{
    qDeleteAll(mWidgets);
    mWidgets.clear();
    QVERIFY(ThemeManager::GetInstance()->SetCurrentTheme(QStringLiteral("Light")));
}

Slider* tst_Slider::shownSlider()
{
    auto* window = new QWidget;
    mWidgets << window;
    auto* layout = new QVBoxLayout(window);
    auto* slider = new Slider(window);
    slider->SetSeparators(QStringLiteral("."), QStringLiteral(","));
    layout->addWidget(slider);
    auto* other = new QLineEdit(window);
    other->setObjectName(QStringLiteral("other"));
    layout->addWidget(other);
    window->resize(320, 90);
    window->show();
    window->activateWindow();
    if (!QTest::qWaitForWindowActive(window))
        return nullptr;
    other->setFocus();
    return slider;
}

void tst_Slider::constructionDefaults()
{
    Slider slider;
    SliderControl* control = slider.GetSliderControl();
    QVERIFY(control);
    QVERIFY(slider.GetNumericField());
    QCOMPARE(control->orientation(), Qt::Horizontal);
    QCOMPARE(control->pageStep(), 10);
    QCOMPARE(control->minimum(), 0);
    QCOMPARE(control->maximum(), 10000);
    QCOMPARE(control->GetStoredMaximum(), 10000);
    QCOMPARE(slider.GetMinimum(), 0.0);
    QCOMPARE(slider.GetMaximum(), 100.0);
    QCOMPARE(slider.property("maximum").toDouble(), 100.0);
    QCOMPARE(slider.GetDecimalPrecision(), 2);
    QCOMPARE(slider.GetUnitSymbolLabel(), QString());
    QVERIFY(!slider.findChild<QLabel*>()->isVisibleTo(&slider));
    QVERIFY(control->DefaultKeyHandling());
    QCOMPARE(control->KeyThreshold(), 1);
}

void tst_Slider::positionsFollowThePrecision_data()
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

void tst_Slider::positionsFollowThePrecision()
{
    QFETCH(int, precision);
    QFETCH(int, maximumPosition);
    QFETCH(bool, defaultKeys);
    QFETCH(int, threshold);

    Slider slider;
    slider.SetValue(25.0);
    QSignalSpy changed(&slider, &Slider::ValueChanged);
    slider.SetDecimalPrecision(precision);
    SliderControl* control = slider.GetSliderControl();
    QCOMPARE(control->maximum(), maximumPosition);
    QCOMPARE(control->value(), maximumPosition / 4);
    QCOMPARE(control->DefaultKeyHandling(), defaultKeys);
    QCOMPARE(control->KeyThreshold(), threshold);
    QCOMPARE(changed.count(), 0);
}

void tst_Slider::typedValuesEmitPressedChangedReleased_data()
{
    QTest::addColumn<int>("unitType");
    QTest::addColumn<int>("symbol");
    QTest::addColumn<double>("maximum");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<double>("expected");
    QTest::addColumn<int>("position");

    QTest::newRow("plain number") << int(Units::eUnitless) << int(units::kSymbolUnitless) << 100.0 << "42.5" << 42.5
                                  << 4250;
    QTest::newRow("above the maximum") << int(Units::eUnitless) << int(units::kSymbolUnitless) << 100.0 << "500"
                                       << 100.0 << 10000;
    QTest::newRow("below the minimum") << int(Units::eUnitless) << int(units::kSymbolUnitless) << 100.0 << "-3" << 0.0
                                       << 0;
    QTest::newRow("inches into millimetres")
        << int(Units::eMillimeter) << int(units::kSymbolMillimeter) << 1000.0 << "2 in" << 50.8 << 5080;
    QTest::newRow("feet, inches and millimetres")
        << int(Units::eMillimeter) << int(units::kSymbolMillimeter) << 1000.0 << "1ft 3in + 20mm" << 401.0 << 40100;
    QTest::newRow("shown in inches") << int(Units::eMillimeter) << int(units::kSymbolInch) << 1000.0 << "254mm" << 254.0
                                     << 1000;
}

void tst_Slider::typedValuesEmitPressedChangedReleased()
{
    QFETCH(int, unitType);
    QFETCH(int, symbol);
    QFETCH(double, maximum);
    QFETCH(QString, typed);
    QFETCH(double, expected);
    QFETCH(int, position);

    Slider* slider = shownSlider();
    QVERIFY(slider);
    slider->SetUnitType(Units::teType(unitType));
    slider->SetUnitSymbolType(units::UnitSymbol(symbol));
    slider->SetMaximum(maximum);
    slider->SetValue(10.0);
    SignalLog log(slider);
    QSignalSpy moved(slider, &Slider::SliderMoved);

    NumericField* field = slider->GetNumericField();
    field->setFocus();
    field->selectAll();
    QTest::keyClicks(field, typed);
    QVERIFY(log.mEntries.isEmpty());
    QTest::keyClick(field, Qt::Key_Return);

    QVERIFY2(qAbs(slider->GetValue() - expected) < 1e-9, qPrintable(QString::number(slider->GetValue())));
    QCOMPARE(slider->GetSliderControl()->value(), position);
    const QStringList expectedLog{QStringLiteral("pressed"), QStringLiteral("changed %1").arg(slider->GetValue()),
                                  QStringLiteral("released")};
    QCOMPARE(log.mEntries, expectedLog);
    QCOMPARE(moved.count(), 0);
    QVERIFY(!slider->IsModified());
    QCOMPARE(field->selectedText(), field->text());

    // Leaving the field finishes no second edit.
    slider->window()->findChild<QLineEdit*>(QStringLiteral("other"))->setFocus();
    QTRY_VERIFY(!field->hasFocus());
    QCOMPARE(log.mEntries, expectedLog);
}

void tst_Slider::typedValueWithinToleranceEmitsNothing()
{
    Slider* slider = shownSlider();
    QVERIFY(slider);
    slider->SetValue(12.0);
    SignalLog log(slider);
    NumericField* field = slider->GetNumericField();
    field->setFocus();
    field->selectAll();
    QTest::keyClicks(field, QStringLiteral("12.0000000001"));
    QTest::keyClick(field, Qt::Key_Return);
    QVERIFY(log.mEntries.isEmpty());
    QCOMPARE(field->text(), QStringLiteral("12.00"));

    field->selectAll();
    QTest::keyClicks(field, QStringLiteral("not a number"));
    QTest::keyClick(field, Qt::Key_Return);
    QVERIFY(log.mEntries.isEmpty());
    QCOMPARE(field->text(), QStringLiteral("12.00"));
    QCOMPARE(slider->GetValue(), 12.0);
}

void tst_Slider::valueSetFromCodeMovesTheSliderSilently()
{
    Slider slider;
    slider.SetSeparators(QStringLiteral("."), QStringLiteral(","));
    SignalLog log(&slider);
    QSignalSpy validate(&slider, &Slider::ValidateChangingValue);
    slider.SetValue(33.33);
    QCOMPARE(slider.GetSliderControl()->value(), 3333);
    QCOMPARE(slider.GetNumericField()->text(), QStringLiteral("33.33"));
    QCOMPARE(slider.GetNumericField()->cursorPosition(), 0);
    // Outside the range the value stays as set; the thumb stops at the end.
    slider.SetValue(150.0);
    QCOMPARE(slider.GetValue(), 150.0);
    QCOMPARE(slider.GetSliderControl()->value(), 10000);
    QVERIFY(log.mEntries.isEmpty());
    QCOMPARE(validate.count(), 0);
}

void tst_Slider::arrowKeysStepTheValueFinely_data()
{
    QTest::addColumn<int>("precision");
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("presses");
    QTest::addColumn<double>("valueStep");
    QTest::addColumn<int>("positionMove");

    QTest::newRow("2 decimals, right") << 2 << int(Qt::Key_Right) << 3 << 0.01 << 3;
    QTest::newRow("2 decimals, page up") << 2 << int(Qt::Key_PageUp) << 2 << 0.1 << 20;
    QTest::newRow("2 decimals, down") << 2 << int(Qt::Key_Down) << 4 << -0.01 << -4;
    QTest::newRow("5 decimals, up") << 5 << int(Qt::Key_Up) << 100 << 0.00001 << 1;
    QTest::newRow("5 decimals, 99 up") << 5 << int(Qt::Key_Up) << 99 << 0.00001 << 0;
    QTest::newRow("5 decimals, page up") << 5 << int(Qt::Key_PageUp) << 10 << 0.0001 << 1;
    // Going down, the thumb moves on the first press and then every hundredth.
    QTest::newRow("5 decimals, left") << 5 << int(Qt::Key_Left) << 101 << -0.00001 << -2;
    QTest::newRow("5 decimals, page down") << 5 << int(Qt::Key_PageDown) << 3 << -0.0001 << -1;
}

void tst_Slider::arrowKeysStepTheValueFinely()
{
    QFETCH(int, precision);
    QFETCH(int, key);
    QFETCH(int, presses);
    QFETCH(double, valueStep);
    QFETCH(int, positionMove);

    Slider* slider = shownSlider();
    QVERIFY(slider);
    slider->SetDecimalPrecision(precision);
    slider->SetValue(50.0);
    SliderControl* control = slider->GetSliderControl();
    const int startPosition = control->value();
    QSignalSpy changed(slider, &Slider::ValueChanged);
    QSignalSpy pressed(slider, &Slider::SliderPressed);
    QSignalSpy released(slider, &Slider::SliderReleased);
    control->setFocus();
    for (int i = 0; i < presses; ++i) {
        QTest::keyClick(control, Qt::Key(key));
        QVERIFY(qAbs(slider->GetValue() - (50.0 + (i + 1) * valueStep)) < qAbs(valueStep) / 100);
    }
    QCOMPARE(control->value() - startPosition, positionMove);
    QCOMPARE(changed.count(), presses);
    QCOMPARE(pressed.count(), presses);
    QCOMPARE(released.count(), presses);
    QCOMPARE(changed.last().at(0).toDouble(), slider->GetValue());
}

void tst_Slider::degreeMinuteSecondKeysStepByTheShownPart_data()
{
    QTest::addColumn<int>("precision");
    QTest::addColumn<double>("step");

    QTest::newRow("seconds") << 4 << 1.0 / 3600;
    QTest::newRow("tenths of a second") << 5 << 1.0 / 36000;
}

void tst_Slider::degreeMinuteSecondKeysStepByTheShownPart()
{
    QFETCH(int, precision);
    QFETCH(double, step);

    Slider* slider = shownSlider();
    QVERIFY(slider);
    slider->SetUnitType(Units::eDegree);
    slider->SetUnitSymbolType(units::kSymbolDegreesMinutesSeconds);
    slider->SetRange(0.0, 360.0);
    slider->SetDecimalPrecision(precision);
    slider->SetValue(45.5);
    SliderControl* control = slider->GetSliderControl();
    QVERIFY(!control->DefaultKeyHandling());
    control->setFocus();
    QTest::keyClick(control, Qt::Key_Up);
    QTest::keyClick(control, Qt::Key_Up);
    QVERIFY(qAbs(slider->GetValue() - (45.5 + 2 * step)) < 1e-12);
    QTest::keyClick(control, Qt::Key_PageDown);
    QVERIFY(qAbs(slider->GetValue() - (45.5 - 8 * step)) < 1e-12);
}

void tst_Slider::escapeDuringAKeyboardDragCancels()
{
    Slider* slider = shownSlider();
    QVERIFY(slider);
    slider->SetValue(20.0);
    SliderControl* control = slider->GetSliderControl();
    control->setFocus();
    SignalLog log(slider);
    QTest::keyPress(control, Qt::Key_Right);
    QKeyEvent repeat(QEvent::KeyPress, Qt::Key_Right, Qt::NoModifier, QString(), true);
    QApplication::sendEvent(control, &repeat);
    QCOMPARE(control->HeldInputs(), QList<int>{Qt::Key_Right});
    QTest::keyClick(control, Qt::Key_Escape);
    QVERIFY(control->HeldInputs().isEmpty());
    // The key let go after the cancel ends nothing more.
    QTest::keyRelease(control, Qt::Key_Right);
    const QStringList expected{QStringLiteral("pressed"), QStringLiteral("changed 20.01"),
                               QStringLiteral("changed 20.02"), QStringLiteral("cancelled")};
    QCOMPARE(log.mEntries, expected);
}

void tst_Slider::wheelNotchAwayFromTheUserLowersThePosition()
{
    Slider* slider = shownSlider();
    QVERIFY(slider);
    slider->SetValue(40.0);
    SliderControl* control = slider->GetSliderControl();
    SignalLog log(slider);
    const QPointF centre = QRectF(control->rect()).center();
    const auto wheel = [&](int delta) {
        QWheelEvent event(centre, control->mapToGlobal(centre), QPoint(), QPoint(0, delta), Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(control, &event);
    };
    wheel(120);
    QCOMPARE(control->value(), 3999);
    QCOMPARE(slider->GetValue(), 39.99);
    wheel(-240);
    QCOMPARE(control->value(), 4001);
    // Less than a notch does nothing.
    wheel(60);
    QCOMPARE(control->value(), 4001);
    const QStringList expected{QStringLiteral("pressed"), QStringLiteral("changed 39.99"), QStringLiteral("released"),
                               QStringLiteral("pressed"), QStringLiteral("changed 40.01"), QStringLiteral("released")};
    QCOMPARE(log.mEntries, expected);
}

void tst_Slider::dragStartsWhereTheThumbIsAndFollowsTheMouse()
{
    Slider* slider = shownSlider();
    QVERIFY(slider);
    slider->SetDecimalPrecision(0);
    slider->SetValue(50.0);
    SliderControl* control = slider->GetSliderControl();
    SignalLog log(slider);
    QSignalSpy moved(slider, &Slider::SliderMoved);

    const QRect groove = SubControl(control, QStyle::SC_SliderGroove);
    const QPoint press(groove.left() + groove.width() / 5, groove.center().y());
    QTest::mousePress(control, Qt::LeftButton, {}, press);
    QCOMPARE(slider->GetValue(), 50.0);
    QCOMPARE(log.mEntries, QStringList{QStringLiteral("pressed")});

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
    QCOMPARE(slider->GetValue(), double(expected));
    QCOMPARE(moved.count(), 1);
    QCOMPARE(moved.last().at(0).toInt(), expected);

    QTest::mouseRelease(control, Qt::LeftButton, {}, press + QPoint(dx, 0));
    const QStringList log1{QStringLiteral("pressed"), QStringLiteral("changed %1").arg(expected),
                           QStringLiteral("released")};
    QCOMPARE(log.mEntries, log1);
    QVERIFY(control->HeldInputs().isEmpty());
}

void tst_Slider::rightButtonDragsAndOtherButtonsDoNothing()
{
    Slider* slider = shownSlider();
    QVERIFY(slider);
    slider->SetDecimalPrecision(0);
    slider->SetRange(-100.0, 100.0);
    slider->SetValue(0.0);
    SliderControl* control = slider->GetSliderControl();
    QCOMPARE(control->GetStoredMinimum(), -100);
    SignalLog log(slider);
    const QRect groove = SubControl(control, QStyle::SC_SliderGroove);
    const QPoint press = groove.center();

    QTest::mousePress(control, Qt::MiddleButton, {}, press);
    QTest::mouseRelease(control, Qt::MiddleButton, {}, press);
    QVERIFY(log.mEntries.isEmpty());
    QCOMPARE(slider->GetValue(), 0.0);

    QTest::mousePress(control, Qt::RightButton, {}, press);
    // The left button is ignored while the right one drags.
    QTest::mousePress(control, Qt::LeftButton, {}, press);
    QCOMPARE(control->HeldInputs(), QList<int>{SliderControl::MouseInput});
    QMouseEvent move(QEvent::MouseMove, QPointF(groove.left(), press.y()), control->mapToGlobal(QPointF(press)),
                     Qt::NoButton, Qt::RightButton, Qt::NoModifier);
    QApplication::sendEvent(control, &move);
    QVERIFY(slider->GetValue() < 0.0);
    QCOMPARE(control->minimum(), -100);
    QCOMPARE(control->maximum(), 100);
    QTest::mouseRelease(control, Qt::RightButton, {}, QPoint(groove.left(), press.y()));
    QCOMPARE(log.mEntries.first(), QStringLiteral("pressed"));
    QCOMPARE(log.mEntries.last(), QStringLiteral("released"));
    QCOMPARE(log.mEntries.count(), 3);
}

void tst_Slider::refusedValuesLeaveValueAndPosition()
{
    Slider* slider = shownSlider();
    QVERIFY(slider);
    slider->SetValue(30.0);
    SliderControl* control = slider->GetSliderControl();
    connect(slider, &Slider::ValidateChangingValue, slider, [](double& value, bool& valid) {
        if (value > 30.0)
            valid = false;
    });
    QSignalSpy changed(slider, &Slider::ValueChanged);
    control->setFocus();
    QTest::keyClick(control, Qt::Key_Right);
    QCOMPARE(slider->GetValue(), 30.0);
    QCOMPARE(control->value(), 3000);
    QTest::keyClick(control, Qt::Key_Left);
    QCOMPARE(slider->GetValue(), 29.99);

    NumericField* field = slider->GetNumericField();
    field->setFocus();
    field->selectAll();
    QTest::keyClicks(field, QStringLiteral("55"));
    QTest::keyClick(field, Qt::Key_Return);
    QCOMPARE(slider->GetValue(), 29.99);
    QCOMPARE(field->text(), QStringLiteral("29.99"));
    QCOMPARE(changed.count(), 1);
}

void tst_Slider::rangeChangesClampTheValue()
{
    Slider slider;
    slider.SetValue(80.0);
    QSignalSpy changed(&slider, &Slider::ValueChanged);
    slider.SetRange(-50.0, 200.0);
    QCOMPARE(slider.GetSliderControl()->minimum(), -5000);
    QCOMPARE(slider.GetSliderControl()->maximum(), 20000);
    QCOMPARE(slider.GetSliderControl()->value(), 8000);
    QCOMPARE(changed.count(), 0);
    slider.SetMaximum(60.0);
    QCOMPARE(slider.GetValue(), 60.0);
    QCOMPARE(changed.count(), 1);
    slider.setProperty("minimum", 10.0);
    QCOMPARE(slider.GetMinimum(), 10.0);
    QCOMPARE(slider.GetSliderControl()->minimum(), 1000);
}

void tst_Slider::deferredUpdatesWaitForUpdateForUnits()
{
    Slider slider;
    slider.SetSeparators(QStringLiteral("."), QStringLiteral(","));
    slider.SetUnitType(Units::eMillimeter);
    slider.SetRange(0.0, 1000.0);
    slider.SetValue(254.0);
    QCOMPARE(slider.GetNumericField()->text(), QStringLiteral("254.00"));
    QCOMPARE(slider.GetSliderControl()->maximum(), 100000);

    slider.SetDeferUpdateForUnits(true);
    slider.SetDecimalPrecision(1);
    slider.SetUnitSymbolType(units::kSymbolInch);
    slider.SetDecimalSeparator(QStringLiteral(","));
    QVERIFY(slider.HaveDeferredUpdatesForUnits());
    QCOMPARE(slider.GetNumericField()->text(), QStringLiteral("254.00"));
    QCOMPARE(slider.GetSliderControl()->maximum(), 100000);
    QCOMPARE(slider.GetUnitSymbolLabel(), QString());
    // Still deferring: the call only marks.
    slider.UpdateForUnits();
    QVERIFY(slider.HaveDeferredUpdatesForUnits());

    slider.SetDeferUpdateForUnits(false);
    slider.UpdateForUnits();
    QVERIFY(!slider.HaveDeferredUpdatesForUnits());
    QCOMPARE(slider.GetNumericField()->text(), QStringLiteral("10,0"));
    QCOMPARE(slider.GetSliderControl()->maximum(), 394);
    QCOMPARE(slider.GetSliderControl()->value(), 100);
    QCOMPARE(slider.GetUnitSymbolLabel(), QStringLiteral("Inches"));
}

void tst_Slider::unitSymbolLabelShowsTheDisplayName()
{
    Slider slider;
    QLabel* label = slider.findChild<QLabel*>();
    QVERIFY(label);
    slider.SetUnitType(Units::eMillimeter);
    slider.SetUnitSymbolType(units::kSymbolMillimeter);
    QCOMPARE(slider.GetUnitSymbolLabel(), QStringLiteral("Millimeters"));
    QVERIFY(!label->isVisibleTo(&slider));
    slider.ShowUnitSymbolLabel(true);
    QVERIFY(label->isVisibleTo(&slider));
    slider.SetUnitSymbolLabel(QString());
    QVERIFY(!label->isVisibleTo(&slider));
    slider.SetUnitSymbolLabel(QStringLiteral("mm"));
    QVERIFY(label->isVisibleTo(&slider));
    slider.ShowUnitSymbolLabel(false);
    QVERIFY(!label->isVisibleTo(&slider));
}

void tst_Slider::valuesCanBeTreatedAsFloat()
{
    Slider* slider = shownSlider();
    QVERIFY(slider);
    slider->SetDecimalPrecision(3);
    slider->SetTreatValueAsFloat(true);
    QVERIFY(slider->TreatValueAsFloat());
    NumericField* field = slider->GetNumericField();
    field->setFocus();
    field->selectAll();
    QTest::keyClicks(field, QStringLiteral("0.1"));
    QTest::keyClick(field, Qt::Key_Return);
    QCOMPARE(slider->GetValue(), double(0.1f));
}

void tst_Slider::focusLossIsAnnounced()
{
    Slider* slider = shownSlider();
    QVERIFY(slider);
    QSignalSpy focusOut(slider, &Slider::SliderFocusOut);
    QLineEdit* other = slider->window()->findChild<QLineEdit*>(QStringLiteral("other"));
    SliderControl* control = slider->GetSliderControl();
    control->setFocus();
    QTRY_VERIFY(control->hasFocus());
    QTest::keyPress(control, Qt::Key_Up);
    other->setFocus();
    QTRY_COMPARE(focusOut.count(), 1);
    QVERIFY(control->HeldInputs().isEmpty());
    slider->GetNumericField()->setFocus();
    QTRY_VERIFY(slider->GetNumericField()->hasFocus());
    other->setFocus();
    QTRY_COMPARE(focusOut.count(), 2);
}

void tst_Slider::textColourFollowsThemeAndEnabledState()
{
    Slider slider;
    ThemeManager* themes = ThemeManager::GetInstance();
    QLabel* label = slider.findChild<QLabel*>();
    QCOMPARE(label->palette().color(QPalette::WindowText), themes->GetColor(ThemeFileKey::FontNormal1));
    QVERIFY(themes->SetCurrentTheme(QStringLiteral("Dark")));
    QCOMPARE(label->palette().color(QPalette::WindowText), themes->GetColor(ThemeFileKey::FontNormal1));
    QCOMPARE(slider.GetNumericField()->palette().color(QPalette::Text), themes->GetColor(ThemeFileKey::FontNormal1));
    slider.setEnabled(false);
    QCOMPARE(label->palette().color(QPalette::WindowText), themes->GetColor(ThemeFileKey::FontColorDisabled));
}

void tst_Slider::textColoursSurviveStyleSheetRepolish()
{
    Slider* slider = shownSlider();
    QVERIFY(slider);
    ThemeManager* themes = ThemeManager::GetInstance();
    qApp->setStyleSheet(QStringLiteral("QToolTip { padding: 2px; }"));
    QVERIFY(themes->SetCurrentTheme(QStringLiteral("Dark")));
    // A host re-applies its style sheet after a theme switch: every widget is polished again.
    qApp->setStyleSheet(qApp->styleSheet() + QLatin1Char(' '));
    const QColor text = themes->GetColor(ThemeFileKey::FontNormal1);
    QCOMPARE(slider->GetNumericField()->palette().color(QPalette::Text), text);
    QCOMPARE(slider->findChild<QLabel*>()->palette().color(QPalette::WindowText), text);
    qApp->setStyleSheet(QString());
}

void tst_Slider::displayTextIsPaintedOnTheGroove()
{
    Slider* slider = shownSlider();
    QVERIFY(slider);
    slider->SetNumFieldVisible(false);
    SliderControl* control = slider->GetSliderControl();
    slider->SetValue(0.0);
    const QRect groove = SubControl(control, QStyle::SC_SliderGroove);
    const QImage before = control->grab().toImage();
    slider->SetDisplayText(QStringLiteral("Opacity"));
    QCOMPARE(control->property("attributeTextTerm").toString(), QStringLiteral("Opacity"));
    const QImage after = control->grab().toImage();
    QCOMPARE(after.size(), before.size());
    // The text changes pixels around the groove's middle, and nowhere near the ends.
    const qreal ratio = after.devicePixelRatio();
    const QColor text = ThemeManager::GetInstance()->GetColor(ThemeFileKey::FontNormal1);
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

QTEST_MAIN(tst_Slider)
#include "tst_slider.moc"
