#include "../PaintProbe.h"

#include <KvUICore/theme/ThemeFileKey.h>
#include <KvUICore/widgets/DoubleSpinBox.h>
#include <KvUICore/widgets/NumericField.h>

#include <KvCoreUnits/UnitsTypes.h>

#include <QLineEdit>
#include <QSignalSpy>
#include <QStyleOptionSpinBox>
#include <QTest>
#include <QVBoxLayout>
#include <QWheelEvent>

using namespace Kavrel::UICore;
namespace units = kavrel::platform::core::units;
using Units = kvp::IDesignPropertyUnits;

namespace {

// Opens the protected operations to the test.
class TestSpinBox : public DoubleSpinBox
{
public:
    using DoubleSpinBox::DoubleSpinBox;
    using DoubleSpinBox::event;
    using DoubleSpinBox::SetCanChangeQtDecimals;
    using DoubleSpinBox::UpdateForUnits;

    QRect SubControl(QStyle::SubControl sub)
    {
        QStyleOptionSpinBox option;
        initStyleOption(&option);
        return style()->subControlRect(QStyle::CC_SpinBox, &option, sub, this);
    }

    // Replaces the whole text by typing and confirms it with Return.
    void TypeAndConfirm(const QString& text)
    {
        GetNumericField()->selectAll();
        QTest::keyClicks(this, text);
        QTest::keyClick(this, Qt::Key_Return);
    }
};

} // namespace

class tst_DoubleSpinBox : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { Probe::UseRepositoryThemes(); }
    void init() { QVERIFY(mSpin = shownSpinBox()); }
    void cleanup()
    {
        qDeleteAll(mWidgets);
        mWidgets.clear();
        QVERIFY(ThemeManager::GetInstance()->SetCurrentTheme(QStringLiteral("Light")));
    }

    void typedTextIsParsedWhenEditingFinishes_data()
    {
        QTest::addColumn<int>("unitType");
        QTest::addColumn<int>("symbol");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<double>("expected");
        QTest::addColumn<QString>("shown");

        const int none = int(Units::eUnitless), mm = int(Units::eMillimeter);
        const int plain = int(units::kSymbolUnitless), mmSymbol = int(units::kSymbolMillimeter);
        QTest::newRow("plain number") << none << plain << "12.5" << 12.5 << "12.50";
        QTest::newRow("unitless arithmetic") << none << plain << "(10+2)*3" << 36.0 << "36.00";
        QTest::newRow("millimetres") << mm << mmSymbol << "25" << 25.0 << "25.00 mm";
        QTest::newRow("inches into millimetres") << mm << mmSymbol << "2 in" << 50.8 << "50.80 mm";
        QTest::newRow("above the maximum") << mm << mmSymbol << "2 m" << 1000.0 << "1000.00 mm";
        QTest::newRow("below the minimum") << mm << mmSymbol << "-5" << 0.0 << "0.00 mm";
        QTest::newRow("degrees, minutes, seconds")
            << int(Units::eDegree) << int(units::kSymbolDegreesMinutesSeconds) << "45d30m" << 45.5 << "45°30'00\"";
    }

    void typedTextIsParsedWhenEditingFinishes()
    {
        QFETCH(int, unitType);
        QFETCH(int, symbol);
        QFETCH(QString, typed);
        QFETCH(double, expected);
        QFETCH(QString, shown);

        mSpin->SetUnitType(Units::teType(unitType));
        mSpin->SetUnitSymbolType(units::UnitSymbol(symbol));
        // Changing the symbol installs the number-only display; this brings the unit text back.
        mSpin->SetUnitSymbolDisplayEnabled(true);
        QSignalSpy changed(mSpin, qOverload<double>(&QDoubleSpinBox::valueChanged));
        QSignalSpy finished(mSpin, &QAbstractSpinBox::editingFinished);

        mSpin->setFocus();
        mSpin->GetNumericField()->selectAll();
        QTest::keyClicks(mSpin, typed);
        QCOMPARE(changed.count(), 0); // keyboard tracking is off
        QTest::keyClick(mSpin, Qt::Key_Return);

        QCOMPARE(finished.count(), 1);
        QVERIFY2(qAbs(mSpin->value() - expected) < 1e-9, qPrintable(QString::number(mSpin->value())));
        QCOMPARE(mSpin->GetValue(), mSpin->value());
        QCOMPARE(mSpin->GetAcceptedValue(), mSpin->value());
        if (!shown.contains(QChar(0xB0)))
            QCOMPARE(mSpin->GetNumericField()->text(), shown);
        QCOMPARE(changed.count(), expected == 0.0 ? 0 : 1);
    }

    void unreadableTextRestoresTheAcceptedValue()
    {
        mSpin->SetUnitType(Units::eMillimeter);
        mSpin->SetUnitSymbolType(units::kSymbolMillimeter);
        mSpin->SetUnitSymbolDisplayEnabled(true);
        mSpin->setFocus();
        mSpin->TypeAndConfirm(QStringLiteral("40"));
        QCOMPARE(mSpin->value(), 40.0);

        // Stepping changes the value but finishes no editing.
        QTest::keyClick(mSpin, Qt::Key_Up);
        QCOMPARE(mSpin->value(), 40.01);
        QCOMPARE(mSpin->GetAcceptedValue(), 40.0);

        QSignalSpy changed(mSpin, qOverload<double>(&QDoubleSpinBox::valueChanged));
        // A unit of another group is as unreadable as words.
        for (const char* unreadable : {"twelve furlongs", "3 kg"}) {
            mSpin->TypeAndConfirm(QString::fromLatin1(unreadable));
            QCOMPARE(mSpin->value(), 40.0);
            QCOMPARE(mSpin->GetNumericField()->text(), QStringLiteral("40.00 mm"));
        }
        QCOMPARE(changed.count(), 1);
    }

    void listenersCanAdjustOrRefuseTypedValues()
    {
        bool refuse = false;
        QList<double> seen;
        connect(mSpin, &DoubleSpinBox::ValidateChangingValue, mSpin, [&](double& value, bool& valid) {
            seen << value;
            QVERIFY(valid);
            if (refuse)
                valid = false;
            else
                value = value * 2;
        });
        mSpin->setFocus();
        mSpin->TypeAndConfirm(QStringLiteral("21"));
        QCOMPARE(seen, QList<double>{21.0});
        QCOMPARE(mSpin->value(), 42.0);

        refuse = true;
        mSpin->TypeAndConfirm(QStringLiteral("7"));
        QCOMPARE(mSpin->value(), 42.0);
        QCOMPARE(mSpin->GetNumericField()->text(), QStringLiteral("42.00"));

        // Text that does not parse never reaches the listeners.
        seen.clear();
        mSpin->TypeAndConfirm(QStringLiteral("abc"));
        QVERIFY(seen.isEmpty());
    }

    void textIsFormattedFromTheUnitPart()
    {
        DoubleSpinBox spin;
        spin.SetSeparators(QStringLiteral("."), QStringLiteral(","));
        spin.setRange(0.0, 10000.0);
        spin.SetUnitType(Units::eMillimeter);
        spin.SetUnitSymbolType(units::kSymbolInch);
        spin.SetUnitSymbolDisplayEnabled(true);
        spin.setValue(50.8);
        QCOMPARE(spin.GetValue(), 50.8);
        QCOMPARE(spin.GetNumericField()->text(), QStringLiteral("2.00 in"));
        QCOMPARE(spin.textFromValue(1.0), QStringLiteral("2.00 in"));

        spin.SetUnitSymbolDisplayEnabled(false);
        QCOMPARE(spin.GetNumericField()->text(), QStringLiteral("2.00"));
        // A bare number is read in the unit of the symbol.
        QCOMPARE(spin.valueFromText(QStringLiteral("3")), 76.2);
        QCOMPARE(spin.valueFromText(QStringLiteral("1000 in")), 10000.0);
    }

    void singleStepMatchesTheDisplay_data()
    {
        QTest::addColumn<int>("format");
        QTest::addColumn<int>("precision");
        QTest::addColumn<double>("step");

        QTest::newRow("decimal, 0") << int(units::kNumberFormatDecimal) << 0 << 1.0;
        QTest::newRow("decimal, 2") << int(units::kNumberFormatDecimal) << 2 << 0.01;
        QTest::newRow("decimal, 5") << int(units::kNumberFormatDecimal) << 5 << 0.00001;
        QTest::newRow("fractional, 3") << int(units::kNumberFormatFractional) << 3 << 0.125;
        QTest::newRow("fractional, 5") << int(units::kNumberFormatFractional) << 5 << 0.03125;
    }

    void singleStepMatchesTheDisplay()
    {
        QFETCH(int, format);
        QFETCH(int, precision);
        QFETCH(double, step);

        mSpin->SetNumberFormatId(units::NumberFormat(format));
        mSpin->SetDecimalPrecision(precision);
        QVERIFY(qFuzzyCompare(mSpin->singleStep(), step));
        QCOMPARE(mSpin->decimals(), precision);
        QVERIFY(qFuzzyCompare(mSpin->CalculateSingleStep(precision), step));

        // Keys and arrow buttons step by it.
        const bool decimal = format == int(units::kNumberFormatDecimal);
        mSpin->setValue(1.0);
        QSignalSpy changed(mSpin, qOverload<double>(&QDoubleSpinBox::valueChanged));
        mSpin->setFocus();

        QTest::keyClick(mSpin, Qt::Key_Up);
        QVERIFY(qAbs(mSpin->value() - (1.0 + step)) < step / 100);
        QCOMPARE(mSpin->GetValue(), mSpin->value());
        QTest::keyClick(mSpin, Qt::Key_PageUp);
        QVERIFY(qAbs(mSpin->value() - (1.0 + 11 * step)) < step / 100);
        QTest::keyClick(mSpin, Qt::Key_PageDown);
        QTest::keyClick(mSpin, Qt::Key_Down);
        QVERIFY(qAbs(mSpin->value() - 1.0) < step / 100);
        QCOMPARE(changed.count(), 4);
        QCOMPARE(changed.last().at(0).toDouble(), mSpin->value()); // announced on the display grid
        if (decimal)
            QCOMPARE(mSpin->GetNumericField()->text(), QString::number(1.0, 'f', precision));

        const QRect up = mSpin->SubControl(QStyle::SC_SpinBoxUp);
        QVERIFY(up.isValid());
        QTest::mouseClick(mSpin, Qt::LeftButton, {}, up.center());
        QVERIFY(qAbs(mSpin->value() - (1.0 + step)) < step / 100);
        if (decimal)
            QCOMPARE(mSpin->GetNumericField()->text(), QString::number(1.0 + step, 'f', precision));
        const QRect down = mSpin->SubControl(QStyle::SC_SpinBoxDown);
        QTest::mouseClick(mSpin, Qt::LeftButton, {}, down.center());
        QVERIFY(qAbs(mSpin->value() - 1.0) < step / 100);
    }

    void precisionChangeKeepsQtDecimalsWhenAsked()
    {
        mSpin->SetDecimalPrecision(4);
        QCOMPARE(mSpin->decimals(), 4);
        mSpin->SetCanChangeQtDecimals(false);
        mSpin->SetDecimalPrecision(1);
        QCOMPARE(mSpin->decimals(), 4);
        QVERIFY(qFuzzyCompare(mSpin->singleStep(), 0.1));
    }

    void deferredUpdatesWaitForUpdateForUnits()
    {
        mSpin->setValue(2.5);
        QCOMPARE(mSpin->GetNumericField()->text(), QStringLiteral("2.50"));

        mSpin->SetDeferUpdateForUnits(true);
        mSpin->SetDecimalSeparator(QStringLiteral(","));
        mSpin->ShowPositiveNumberSign(true);
        QCOMPARE(mSpin->GetNumericField()->text(), QStringLiteral("2.50"));
        QVERIFY(mSpin->HaveDeferredUpdatesForUnits());

        mSpin->SetDeferUpdateForUnits(false);
        QVERIFY(mSpin->HaveDeferredUpdatesForUnits());
        mSpin->UpdateForUnits();
        QCOMPARE(mSpin->GetNumericField()->text(), QStringLiteral("+2,50"));
        QVERIFY(!mSpin->HaveDeferredUpdatesForUnits());

        // Without deferring every change shows at once.
        mSpin->SetDecimalSeparator(QStringLiteral("."));
        QCOMPARE(mSpin->GetNumericField()->text(), QStringLiteral("+2.50"));
        QVERIFY(!mSpin->HaveDeferredUpdatesForUnits());
    }

    void wheelIsIgnoredWhileDisabled()
    {
        mSpin->setValue(5.0);
        const QPointF centre = QRectF(mSpin->rect()).center();
        const auto wheel = [&] {
            QWheelEvent event(centre, mSpin->mapToGlobal(centre), QPoint(), QPoint(0, 120), Qt::NoButton,
                              Qt::NoModifier, Qt::NoScrollPhase, false);
            return mSpin->event(&event);
        };
        mSpin->setFocus();
        QVERIFY(wheel());
        QCOMPARE(mSpin->value(), 5.01);

        mSpin->setEnabled(false);
        QSignalSpy changed(mSpin, qOverload<double>(&QDoubleSpinBox::valueChanged));
        QVERIFY(!wheel());
        QCOMPARE(mSpin->value(), 5.01);
        QCOMPARE(changed.count(), 0);
    }

    void focusChangesTheFieldBackground()
    {
        QLineEdit* edit = mSpin->GetNumericField();
        const auto background = [edit](QPalette::ColorGroup group) {
            return edit->palette().brush(group, edit->backgroundRole()).color();
        };
        QVERIFY(Probe::Focus(mSpin));
        QCOMPARE(background(QPalette::Active), Probe::ThemeColor(ThemeFileKey::ActiveContainer1));
        QCOMPARE(background(QPalette::Inactive), Probe::ThemeColor(ThemeFileKey::ActiveContainer1));
        QVERIFY(Probe::Focus(mSpin->window()->findChild<QLineEdit*>(QStringLiteral("other"))));
        QCOMPARE(background(QPalette::Active), Probe::ThemeColor(ThemeFileKey::WidgetContainer3));
    }

    void returnSelectsAllAndModifiedFlagIsStickyUntilCleared()
    {
        QVERIFY(Probe::Focus(mSpin));
        QVERIFY(!mSpin->IsModified());
        mSpin->GetNumericField()->selectAll();
        QTest::keyClicks(mSpin, QStringLiteral("8"));
        QVERIFY(mSpin->IsModified());
        // Return rewrites the text and selects it all; the flag stays.
        QTest::keyClick(mSpin, Qt::Key_End);
        QTest::keyClick(mSpin, Qt::Key_Return);
        QCOMPARE(mSpin->GetNumericField()->selectedText(), QStringLiteral("8.00"));
        QVERIFY(!mSpin->GetNumericField()->isModified());
        QVERIFY(mSpin->IsModified());
        mSpin->ClearModified();
        QVERIFY(!mSpin->IsModified());
    }

    void anyTextIsAcceptableAndSizeHints()
    {
        // Text is read when editing finishes, so the validator never blocks typing.
        DoubleSpinBox normal;
        int pos = 0;
        QString anything = QStringLiteral("no number at all");
        QCOMPARE(normal.validate(anything, pos), QValidator::Acceptable);

        DoubleSpinBox compact(nullptr, true);
        QCOMPARE(compact.sizeHint(), QSize(56, 24));
        // Otherwise the spin box's own hints, untouched.
        QCOMPARE(normal.sizeHint(), normal.QDoubleSpinBox::sizeHint());
        QCOMPARE(normal.minimumSizeHint(), normal.QDoubleSpinBox::minimumSizeHint());
    }

private:
    TestSpinBox* shownSpinBox(double minimum = 0.0, double maximum = 1000.0)
    {
        TestSpinBox* spin = Probe::ShownWithOther<TestSpinBox>(mWidgets, QSize(200, 80));
        if (spin) {
            spin->SetSeparators(QStringLiteral("."), QStringLiteral(","));
            spin->setRange(minimum, maximum);
        }
        return spin;
    }

    QList<QWidget*> mWidgets;
    TestSpinBox* mSpin = nullptr;
};

QTEST_MAIN(tst_DoubleSpinBox)
#include "tst_doublespinbox.moc"
