// test-options: SCALES 1.25 1.5 2 LABELS visual
#include "../PaintProbe.h"

#include <KvUICore/theme/ThemeFileKey.h>
#include <KvUICore/theme/ThemeManager.h>
#include <KvUICore/widgets/Divider.h>
#include <KvUICore/widgets/ImageLabel.h>
#include <KvUICore/widgets/RadioButton.h>
#include <KvUICore/widgets/TextLabel.h>
#include <KvUICore/widgets/ToolButton.h>

#include <QHBoxLayout>
#include <QSignalSpy>
#include <QtTest>

using namespace Kavrel::UICore;

// The small controls that follow the labels' and buttons' pattern: tool
// button, radio tile, divider, image label and text label.
class tst_SimpleControls : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { Probe::UseRepositoryThemes(); }

    void toolButtonIconFollowsTheme()
    {
        ThemeManager* themes = ThemeManager::GetInstance();
        ToolButton button;
        QVERIFY(button.icon().isNull());
        button.SetIconThemeKey(ThemeFileKey::CheckMarkIcon);
        QVERIFY(!button.icon().isNull());
        const qint64 before = button.icon().cacheKey();
        QVERIFY(themes->SetCurrentTheme(QStringLiteral("Dark")));
        QVERIFY(!button.icon().isNull());
        QVERIFY(button.icon().cacheKey() != before);
        QVERIFY(themes->SetCurrentTheme(QStringLiteral("Light")));
    }

    void radioTileFollowsState_data()
    {
        QTest::addColumn<bool>("hovered");
        QTest::addColumn<bool>("checked");
        QTest::addColumn<QString>("fillKey");
        QTest::addColumn<QString>("outlineKey");
        QTest::newRow("idle") << false << false << QString() << QString();
        QTest::newRow("hovered") << true << false << ThemeFileKey::HoverContainer1 << ThemeFileKey::HoverOutline1;
        QTest::newRow("checked") << false << true << ThemeFileKey::ActiveContainer1 << ThemeFileKey::ActiveOutline1;
        QTest::newRow("hovered and checked")
            << true << true << ThemeFileKey::ActiveContainer1 << ThemeFileKey::ActiveOutline1;
    }

    void radioTileFollowsState()
    {
        QFETCH(bool, hovered);
        QFETCH(bool, checked);
        QFETCH(QString, fillKey);
        QFETCH(QString, outlineKey);
        ThemeManager* themes = ThemeManager::GetInstance();
        RadioButton tile(QStringLiteral("Tile"));
        tile.resize(80, 24);
        tile.setChecked(checked);
        tile.setAttribute(Qt::WA_UnderMouse, hovered);
        const QImage image = Probe::Grab(&tile);
        const QColor background = tile.palette().color(QPalette::Window);
        const int b = Probe::Bucket(image);
        // The left edge column, away from the centred text.
        const int row = image.height() / 2;
        if (fillKey.isEmpty()) {
            PROBE_COMPARE_COLOR(Probe::Pixel(image, 0, row), background);
            PROBE_COMPARE_COLOR(Probe::Pixel(image, b + 2, row), background);
            return;
        }
        const QColor outline = themes->GetColor(outlineKey);
        QVERIFY2(outline.isValid(), qPrintable(outlineKey));
        QVERIFY2(themes->Exists(fillKey), qPrintable(fillKey));
        for (int i = 0; i < b; ++i)
            PROBE_COMPARE_COLOR(Probe::Pixel(image, i, row), outline);
        const QColor expected =
            Probe::Reference(image, background, themes->GetBrush(fillKey, tile.rect()), tile.rect(), b + 2, row);
        PROBE_COMPARE_COLOR(Probe::Pixel(image, b + 2, row), expected);
    }

    void radioTilesAreExclusiveAndWhollyClickable()
    {
        QWidget host;
        auto* layout = new QHBoxLayout(&host);
        auto* first = new RadioButton(QStringLiteral("First"), &host);
        auto* second = new RadioButton(QStringLiteral("Second"), &host);
        layout->addWidget(first);
        layout->addWidget(second);
        QVERIFY(Probe::Shown(&host));
        QTest::mouseClick(first, Qt::LeftButton, {}, QPoint(first->width() - 2, first->height() - 2));
        QVERIFY(first->isChecked());
        QTest::mouseClick(second, Qt::LeftButton, {}, QPoint(second->width() / 2, 2));
        QVERIFY(second->isChecked());
        QVERIFY(!first->isChecked());
        QVERIFY(first->sizeHint().width() > first->fontMetrics().horizontalAdvance(first->text()));
    }

    void dividerIsOneStrokeWide_data()
    {
        QTest::addColumn<Qt::Orientation>("orientation");
        QTest::newRow("horizontal") << Qt::Horizontal;
        QTest::newRow("vertical") << Qt::Vertical;
    }

    void dividerIsOneStrokeWide()
    {
        QFETCH(Qt::Orientation, orientation);
        const QColor line = Probe::ThemeColor(ThemeFileKey::Separator1);
        Divider divider(orientation);
        divider.resize(orientation == Qt::Horizontal ? QSize(60, 5) : QSize(5, 60));
        const QImage image = Probe::Grab(&divider);
        const QRgb background = divider.palette().color(QPalette::Window).rgba();
        const bool horizontal = orientation == Qt::Horizontal;
        const int fixed = (horizontal ? image.width() : image.height()) / 2;
        const int last = (horizontal ? image.height() : image.width()) - 1;
        const QList<Probe::Run> runs = Probe::Foreground(Probe::Runs(image, fixed, 0, last, horizontal), background);
        QVERIFY2(runs.size() == 1, qPrintable(Probe::Describe(runs)));
        PROBE_COMPARE_COLOR(QColor::fromRgba(runs.first().color), line);
        QCOMPARE(runs.first().length, Probe::Bucket(image));
    }

    void imageLabelShowsThemeImage()
    {
        ImageLabel label(ThemeFileKey::Rendering_01, QSize(16, 16));
        QVERIFY(!label.pixmap().isNull());
        QCOMPARE(label.pixmap().deviceIndependentSize().toSize(), QSize(16, 16));
        label.SetImageThemeKey(QStringLiteral("NoSuchImageKey"));
        QVERIFY(label.pixmap().isNull());
        label.SetImageThemeKey(ThemeFileKey::MiniButtonToggleOff);
        QVERIFY(!label.pixmap().isNull());
        const QImage enabled = label.pixmap().toImage();
        label.setEnabled(false);
        QVERIFY(label.pixmap().toImage() != enabled);
    }

    void textLabelColourKeyAndWeight()
    {
        ThemeManager* themes = ThemeManager::GetInstance();
        TextLabel label(QStringLiteral("Header"));
        label.SetTextColorThemeKey(ThemeFileKey::FontGroupHeader);
        QCOMPARE(label.palette().color(QPalette::WindowText), themes->GetColor(ThemeFileKey::FontGroupHeader));
        label.SetTextColorThemeKey(QStringLiteral("NoSuchColourKey"));
        QCOMPARE(label.GetTextColorThemeKey(), ThemeFileKey::FontGroupHeader);
        label.SetBold(true);
        QCOMPARE(label.font().bold(), themes->GetInt(ThemeFileKey::StaticLabelFontBold) != 0);
    }
};

QTEST_MAIN(tst_SimpleControls)
#include "tst_simplecontrols.moc"
