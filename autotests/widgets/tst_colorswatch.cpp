// test-options: SCALES 2
#include "../PaintProbe.h"

#include <KvUICore/theme/ThemeFileKey.h>
#include <KvUICore/widgets/ColorMath_p.h>
#include <KvUICore/widgets/ColorPicker.h>
#include <KvUICore/widgets/ColorPickerParts_p.h>
#include <KvUICore/widgets/ColorSwatch.h>
#include <KvUICore/widgets/ColorWheel.h>
#include <KvUICore/widgets/GradientSwatch.h>
#include <KvUICore/widgets/ImageSwatch.h>
#include <KvUICore/widgets/NumericField.h>

#include <QAccessible>
#include <QAccessibleActionInterface>
#include <QSignalSpy>
#include <QtTest>

#include <functional>

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

using Factory = std::function<QWidget*(QWidget*)>;

} // namespace

Q_DECLARE_METATYPE(Factory)

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

    void focusRingStandsOutInEveryTheme_data()
    {
        QTest::addColumn<QString>("theme");
        QTest::addColumn<Factory>("create");
        QTest::addColumn<QPoint>("ring");
        const std::pair<const char*, Factory> controls[] = {
            {"swatch", [](QWidget* p) { return new ColorSwatch(p); }},
            {"gradient", [](QWidget* p) { return new GradientSwatch(p); }},
            {"image", [](QWidget* p) { return new ImageSwatch(p); }},
            {"wheel", [](QWidget* p) { return new ColorWheel(p); }},
        };
        for (const QString theme : {"Light", "Dark", "HIGLight"}) {
            for (const auto& [name, create] : controls) {
                // The wheel's ring is a circle around it; the others' run along their edges.
                const QPoint ring = QLatin1String(name) == QLatin1String("wheel") ? QPoint(1, 100) : QPoint(0, 12);
                QTest::addRow("%s, %s", qPrintable(theme), name) << theme << create << ring;
            }
        }
    }

    void focusRingStandsOutInEveryTheme()
    {
        QFETCH(QString, theme);
        QFETCH(Factory, create);
        QFETCH(QPoint, ring);
        Probe::UseRepositoryThemes(theme);
        QWidget surroundings;
        surroundings.setAutoFillBackground(true);
        QPalette palette = surroundings.palette();
        palette.setColor(QPalette::Window, Probe::ThemeColor(ThemeFileKey::Container1));
        surroundings.setPalette(palette);
        QWidget* control = create(&surroundings);
        control->setGeometry(10, 10, 200, 200);
        surroundings.resize(220, 220);
        QVERIFY(Probe::Shown(&surroundings));
        const QPoint probe = control->pos() + ring;
        control->clearFocus();
        QTRY_VERIFY(!control->hasFocus());
        const QColor without = Probe::PixelAt(Probe::Grab(&surroundings), probe);
        QVERIFY(Probe::Focus(control));
        const QColor with = Probe::PixelAt(Probe::Grab(&surroundings), probe);
        PROBE_COMPARE_COLOR(with, Internal::FocusRingColor());
        QVERIFY2(Internal::ContrastRatio(with, without) >= 3.0,
                 qPrintable(QStringLiteral("%1 on %2").arg(with.name(), without.name())));
        Probe::UseRepositoryThemes();
    }
};

QTEST_MAIN(tst_ColorSwatch)
#include "tst_colorswatch.moc"
