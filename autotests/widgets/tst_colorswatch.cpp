// test-options: SCALES 2
#include "../PaintProbe.h"

#include <KvUICore/theme/ThemeFileKey.h>
#include <KvUICore/widgets/ColorPicker.h>
#include <KvUICore/widgets/ColorPickerParts_p.h>
#include <KvUICore/widgets/ColorSwatch.h>
#include <KvUICore/widgets/NumericField.h>

#include <QAccessible>
#include <QAccessibleActionInterface>
#include <QSignalSpy>
#include <QtTest>

using namespace Kavrel::UICore;

namespace {

void TypeHex(ColorPicker* picker, const QString& text)
{
    auto* hex = picker->findChild<NumericField*>("hex");
    QVERIFY(hex);
    hex->setFocus();
    hex->selectAll();
    QTest::keyClicks(hex, text);
    // Tab finishes the edit; Return would also close the pop-up, as a dialog's default button does.
    QTest::keyClick(hex, Qt::Key_Tab);
}

} // namespace

class tst_ColorSwatch : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { Probe::UseRepositoryThemes(); }
    void init() { ColorPicker::ClearRecentColors(); }

    void escapeInThePickerGivesTheOldColourBack()
    {
        ColorSwatch swatch;
        swatch.SetColor(QColor(Qt::red));
        QVERIFY(Probe::Shown(&swatch));
        QSignalSpy changed(&swatch, &ColorSwatch::ColorChanged);
        QSignalSpy committed(&swatch, &ColorSwatch::ColorCommitted);
        QTest::mouseClick(&swatch, Qt::LeftButton, {}, swatch.rect().center());
        QVERIFY(swatch.IsPickerOpen());
        TypeHex(swatch.GetPicker(), QStringLiteral("#00ff00"));
        QCOMPARE(swatch.GetColor(), QColor(Qt::green));
        QCOMPARE(changed.count(), 1);

        QTest::keyClick(swatch.findChild<ColorPickerPopup*>(), Qt::Key_Escape);
        QVERIFY(!swatch.IsPickerOpen());
        QCOMPARE(swatch.GetColor(), QColor(Qt::red));
        QCOMPARE(changed.count(), 2);
        QCOMPARE(changed.last().first().value<QColor>(), QColor(Qt::red));
        QCOMPARE(committed.count(), 0);
        QVERIFY(ColorPicker::GetRecentColors().isEmpty());
    }

    void returnKeepsTheNewColour()
    {
        ColorSwatch swatch;
        swatch.SetColor(QColor(Qt::red));
        QVERIFY(Probe::Shown(&swatch));
        QSignalSpy committed(&swatch, &ColorSwatch::ColorCommitted);
        QTest::keyClick(&swatch, Qt::Key_Space);
        QVERIFY(swatch.IsPickerOpen());
        TypeHex(swatch.GetPicker(), QStringLiteral("#0000ff"));
        QTest::keyClick(swatch.findChild<ColorPickerPopup*>(), Qt::Key_Return);
        QVERIFY(!swatch.IsPickerOpen());
        QCOMPARE(committed.count(), 1);
        QCOMPARE(committed.first().first().value<QColor>(), QColor(Qt::blue));
        QCOMPARE(ColorPicker::GetRecentColors(), QList<QColor>{QColor(Qt::blue)});
    }

    void translucentColourShowsBothWays()
    {
        ColorSwatch swatch;
        swatch.SetAlphaEnabled(true);
        swatch.SetColor(QColor(255, 0, 0, 96));
        swatch.resize(80, 30);
        const QImage image = Probe::Grab(&swatch);
        // The leading half opaque, the trailing half over a checkerboard of two colours.
        PROBE_COMPARE_COLOR(Probe::PixelAt(image, QPoint(12, 15)), QColor(255, 0, 0));
        QSet<QRgb> trailing;
        for (int x = 48; x < 72; ++x)
            trailing.insert(Probe::PixelAt(image, QPoint(x, 10)).rgba());
        QCOMPARE(trailing.size(), 2);
        swatch.SetAlphaEnabled(false);
        QCOMPARE(swatch.GetColor(), QColor(255, 0, 0));
    }

    void accessibleButtonTellsTheColour()
    {
        ColorSwatch swatch;
        swatch.SetColor(QColor(0x12, 0x34, 0x56));
        QVERIFY(Probe::Shown(&swatch));
        QAccessibleInterface* iface = QAccessible::queryAccessibleInterface(&swatch);
        QCOMPARE(iface->role(), QAccessible::Button);
        QCOMPARE(iface->text(QAccessible::Value), QStringLiteral("#123456"));
        iface->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
        QVERIFY(swatch.IsPickerOpen());
        swatch.findChild<ColorPickerPopup*>()->Reject();
    }
};

QTEST_MAIN(tst_ColorSwatch)
#include "tst_colorswatch.moc"
