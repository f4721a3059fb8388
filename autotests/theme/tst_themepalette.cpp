// The theme offered to the host as a palette, and the opt-in that keeps the
// application palette in step with theme switches.
#include "../PaintProbe.h"

#include <KvUICore/core/CoreUIManager.h>
#include <KvUICore/theme/ThemeFileKey.h>
#include <KvUICore/theme/ThemeManager.h>

#include <QApplication>
#include <QWidget>
#include <QtTest>

using namespace Kavrel::UICore;

class tst_ThemePalette : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        CoreUIManager::Initialize();
        ThemeManager::GetInstance()->SetThemeFilesPath(QStringLiteral(KVUICORE_THEMES_DIR).toStdWString().c_str());
    }

    void cleanup()
    {
        ThemeManager* themes = ThemeManager::GetInstance();
        themes->SetApplicationPaletteFollowsTheme(false);
        themes->SetCurrentTheme(QStringLiteral("Light"));
    }

    void paletteIsReadableInEveryTheme_data()
    {
        QTest::addColumn<QString>("theme");
        QTest::addColumn<bool>("darkWindow");
        QTest::newRow("Light") << QStringLiteral("Light") << false;
        QTest::newRow("Dark") << QStringLiteral("Dark") << true;
        QTest::newRow("HIGLight") << QStringLiteral("HIGLight") << false;
    }

    void paletteIsReadableInEveryTheme()
    {
        QFETCH(QString, theme);
        ThemeManager* themes = ThemeManager::GetInstance();
        QVERIFY(themes->SetCurrentTheme(theme));
        const QPalette palette = themes->GetPalette();

        QTEST(Probe::Luminance(palette.color(QPalette::Window)) < 0.2, "darkWindow");
        QCOMPARE(palette.color(QPalette::WindowText), themes->GetColor(ThemeFileKey::FontNormal1));
        QCOMPARE(palette.color(QPalette::Disabled, QPalette::Text), themes->GetColor(ThemeFileKey::FontColorDisabled));
        const QPalette::ColorRole pairs[][2] = {
            {QPalette::WindowText, QPalette::Window},       {QPalette::Text, QPalette::Base},
            {QPalette::ButtonText, QPalette::Button},       {QPalette::HighlightedText, QPalette::Highlight},
            {QPalette::ToolTipText, QPalette::ToolTipBase}, {QPalette::Link, QPalette::Window}};
        for (const auto& pair : pairs) {
            const double ratio = Probe::Contrast(palette.color(pair[0]), palette.color(pair[1]));
            QVERIFY2(ratio >= 4.5,
                     qPrintable(QStringLiteral("roles %1/%2: %3:1").arg(pair[0]).arg(pair[1]).arg(ratio)));
        }
    }

    void applicationPaletteFollowsThemeUntilTurnedOff()
    {
        ThemeManager* themes = ThemeManager::GetInstance();
        const QColor before = QApplication::palette().color(QPalette::Window);
        QWidget hostWindow;
        hostWindow.show();

        themes->SetApplicationPaletteFollowsTheme(true);
        QVERIFY(themes->IsApplicationPaletteFollowingTheme());
        QTRY_COMPARE(hostWindow.palette().color(QPalette::Window), themes->GetColor(ThemeFileKey::Container1));

        QVERIFY(themes->SetCurrentTheme(QStringLiteral("Dark")));
        QTRY_COMPARE(hostWindow.palette().color(QPalette::Window), themes->GetColor(ThemeFileKey::Container1));
        QCOMPARE(hostWindow.palette().color(QPalette::WindowText), themes->GetColor(ThemeFileKey::FontNormal1));

        themes->SetApplicationPaletteFollowsTheme(false);
        QVERIFY(!themes->IsApplicationPaletteFollowingTheme());
        QCOMPARE(QApplication::palette().color(QPalette::Window), before);
        QVERIFY(themes->SetCurrentTheme(QStringLiteral("Light")));
        QCOMPARE(QApplication::palette().color(QPalette::Window), before);
    }

    void followingEndsWithTheThemeManagerAndRestoresThePalette()
    {
        const QColor before = QApplication::palette().color(QPalette::Window);
        ThemeManager* themes = ThemeManager::GetInstance();
        QVERIFY(themes->SetCurrentTheme(QStringLiteral("Dark")));
        themes->SetApplicationPaletteFollowsTheme(true);
        QVERIFY(QApplication::palette().color(QPalette::Window) != before);

        CoreUIManager::Uninitialize();
        QCOMPARE(QApplication::palette().color(QPalette::Window), before);
        CoreUIManager::Initialize();
        themes = ThemeManager::GetInstance();
        themes->SetThemeFilesPath(QStringLiteral(KVUICORE_THEMES_DIR).toStdWString().c_str());
        QVERIFY(!themes->IsApplicationPaletteFollowingTheme());
    }
};

QTEST_MAIN(tst_ThemePalette)
#include "tst_themepalette.moc"
