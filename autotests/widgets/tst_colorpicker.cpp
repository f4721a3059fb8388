#include "../PaintProbe.h"

#include <KvUICore/widgets/ColorPicker.h>
#include <KvUICore/widgets/ColorPickerParts_p.h>
#include <KvUICore/widgets/ColorWheel.h>
#include <KvUICore/widgets/DoubleSpinBox.h>
#include <KvUICore/widgets/NumericField.h>
#include <KvUICore/widgets/ToolButton.h>

#include <QLineEdit>
#include <QSignalSpy>
#include <QtTest>

using namespace Kavrel::UICore;

namespace {

// Types text into a field as a user would and finishes the edit.
void Type(QWidget* field, const QString& text)
{
    auto* edit = qobject_cast<QLineEdit*>(field);
    if (!edit)
        edit = field->findChild<QLineEdit*>();
    QVERIFY(edit);
    edit->setFocus();
    edit->selectAll();
    if (text.isEmpty())
        QTest::keyClick(edit, Qt::Key_Delete);
    QTest::keyClicks(edit, text);
    QTest::keyClick(edit, Qt::Key_Return);
}

} // namespace

class tst_ColorPicker : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { Probe::UseRepositoryThemes(); }
    void init() { ColorPicker::ClearRecentColors(); }

    void fieldsShowTheColour()
    {
        ColorPicker picker;
        picker.SetAlphaEnabled(true);
        picker.SetColor(QColor(255, 128, 0, 64));
        QCOMPARE(picker.findChild<DoubleSpinBox*>("red")->value(), 255.0);
        QCOMPARE(picker.findChild<DoubleSpinBox*>("green")->value(), 128.0);
        QCOMPARE(picker.findChild<DoubleSpinBox*>("hue")->value(), 30.0);
        QCOMPARE(picker.findChild<DoubleSpinBox*>("saturation")->value(), 100.0);
        QCOMPARE(picker.findChild<DoubleSpinBox*>("alpha")->value(), 64.0);
        QCOMPARE(picker.findChild<NumericField*>("hex")->text(), QStringLiteral("#ff800040"));
        QCOMPARE(picker.GetWheel()->GetColor(), QColor(255, 128, 0, 64));
    }

    void typedValuesChangeTheColour_data()
    {
        QTest::addColumn<QString>("field");
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("alpha");
        QTest::addColumn<QColor>("expected");
        QTest::addColumn<QString>("hexShown");
        const QColor start(10, 20, 30);
        QTest::newRow("red") << "red" << QStringLiteral("200") << false << QColor(200, 20, 30) << "#c8141e";
        QTest::newRow("red above range") << "red" << QStringLiteral("999") << false << QColor(255, 20, 30) << "#ff141e";
        QTest::newRow("hue") << "hue" << QStringLiteral("120") << false << QColor(10, 30, 10) << "#0a1e0a";
        QTest::newRow("hex") << "hex" << QStringLiteral("#00FF00") << false << QColor(0, 255, 0) << "#00ff00";
        QTest::newRow("short hex") << "hex" << QStringLiteral("abc") << false << QColor(0xaa, 0xbb, 0xcc) << "#aabbcc";
        QTest::newRow("hex with alpha") << "hex" << QStringLiteral("#11223344") << true
                                        << QColor(0x11, 0x22, 0x33, 0x44) << "#11223344";
        QTest::newRow("six digits keep alpha")
            << "hex" << QStringLiteral("#112233") << true << QColor(0x11, 0x22, 0x33, 0x80) << "#11223380";
        QTest::newRow("bad hex reverts") << "hex" << QStringLiteral("#12345") << false << start << "#0a141e";
        QTest::newRow("words revert") << "hex" << QStringLiteral("not a colour") << false << start << "#0a141e";
        QTest::newRow("empty reverts") << "hex" << QStringLiteral("") << false << start << "#0a141e";
    }

    void typedValuesChangeTheColour()
    {
        QFETCH(QString, field);
        QFETCH(QString, text);
        QFETCH(bool, alpha);
        QFETCH(QColor, expected);
        ColorPicker picker;
        picker.SetAlphaEnabled(alpha);
        picker.SetColor(QColor(10, 20, 30, alpha ? 0x80 : 255));
        QVERIFY(Probe::Shown(&picker));
        QSignalSpy changed(&picker, &ColorPicker::ColorChanged);
        QSignalSpy committed(&picker, &ColorPicker::ColorCommitted);
        Type(picker.findChild<QWidget*>(field), text);
        QCOMPARE(picker.GetColor(), expected);
        QTEST(picker.findChild<NumericField*>("hex")->text(), "hexShown");
        const bool changes = expected != QColor(10, 20, 30, alpha ? 0x80 : 255);
        QCOMPARE(changed.count(), changes ? 1 : 0);
        QCOMPARE(committed.count(), changes ? 1 : 0);
    }

    void commitsEnterTheRecentColoursOnce()
    {
        ColorPicker picker;
        QVERIFY(Probe::Shown(&picker));
        Type(picker.findChild<QWidget*>("red"), QStringLiteral("100"));
        Type(picker.findChild<QWidget*>("red"), QStringLiteral("120"));
        // One session of one picker leaves one entry: its last colour.
        QCOMPARE(ColorPicker::GetRecentColors().size(), 1);
        QCOMPARE(ColorPicker::GetRecentColors().first().red(), 120);
        ColorPicker::AddRecentColor(QColor(Qt::blue));
        Type(picker.findChild<QWidget*>("red"), QStringLiteral("140"));
        QCOMPARE(ColorPicker::GetRecentColors().size(), 3);
        for (int i = 0; i < 40; ++i)
            ColorPicker::AddRecentColor(QColor(i, i, i));
        QCOMPARE(ColorPicker::GetRecentColors().size(), ColorPicker::kMaxRecentColors);

        auto* row = picker.findChild<RecentColorsRow*>();
        QTest::mouseClick(row, Qt::LeftButton, {}, row->CellRect(0).center());
        QCOMPARE(picker.GetColor(), QColor(39, 39, 39));
    }

    void oldColourComesBackOnClick()
    {
        ColorPicker picker;
        picker.SetColor(QColor(Qt::red));
        QVERIFY(Probe::Shown(&picker));
        Type(picker.findChild<QWidget*>("hex"), QStringLiteral("#0000ff"));
        QCOMPARE(picker.GetOldColor(), QColor(Qt::red));
        auto* old = picker.findChild<ColorChip*>("oldColor");
        QTest::mouseClick(old, Qt::LeftButton, {}, old->rect().center());
        QCOMPARE(picker.GetColor(), QColor(Qt::red));
    }

    void alphaBarFollowsKeys()
    {
        ColorPicker picker;
        picker.SetAlphaEnabled(true);
        auto* bar = picker.findChild<AlphaBar*>();
        QVERIFY(bar);
        QSignalSpy committed(&picker, &ColorPicker::ColorCommitted);
        QTest::keyClick(bar, Qt::Key_Home);
        QCOMPARE(picker.GetColor().alpha(), 0);
        QTest::keyClick(bar, Qt::Key_Right, Qt::ShiftModifier);
        QCOMPARE(picker.GetColor().alpha(), 16);
        QCOMPARE(committed.count(), 2);
        QCOMPARE(picker.findChild<DoubleSpinBox*>("alpha")->value(), 16.0);
        picker.SetAlphaEnabled(false);
        QCOMPARE(picker.GetColor().alpha(), 255);
        QVERIFY(bar->isHidden());
    }

    void eyedropperSaysWhyItIsOff()
    {
        if (ColorPicker::IsEyedropperSupported())
            QSKIP("the platform can read the screen; the disabled state shows only where it cannot");
        ColorPicker picker;
        auto* button = picker.findChild<ToolButton*>("eyedropper");
        QVERIFY(!button->isEnabled());
        QVERIFY(button->toolTip().contains(QStringLiteral("not available")));
        picker.StartEyedropper();
        QVERIFY(!picker.IsPicking());
    }
};

QTEST_MAIN(tst_ColorPicker)
#include "tst_colorpicker.moc"
