#include "../PaintProbe.h"

#include <KvUICore/theme/CustomStyle.h>
#include <KvUICore/theme/ThemeFileKey.h>
#include <KvUICore/theme/ThemeManager.h>
#include <KvUICore/widgets/CheckBox.h>

#include <QSignalSpy>
#include <QtTest>

using namespace Kavrel::UICore;

class tst_CheckBox : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void setUpFollowsLibraryLook();
    void cutLabelExplainsItself_data();
    void cutLabelExplainsItself();
    void toolTipChangesAreSignalled();
    void textColourFollowsEnabledState();
    void themeSwitchReappliesColour();
    void plainCheckBoxWithStyleAlsoGetsToolTip();
    void colourSurvivesStyleSheetRepolish();
};

void tst_CheckBox::initTestCase()
{
    Probe::UseRepositoryThemes();
}

void tst_CheckBox::setUpFollowsLibraryLook()
{
    CheckBox box(QStringLiteral("Check"));
    // The application's global style sheet may wrap the style; the library's
    // metrics show through either way.
    QCOMPARE(box.style()->pixelMetric(QStyle::PM_SliderLength, nullptr, &box), 4);
    QVERIFY(box.testAttribute(Qt::WA_Hover));
    QCOMPARE(box.focusPolicy(), Qt::StrongFocus);
    QCOMPARE(box.GetTextColorThemeKey(), ThemeFileKey::FontNormal1);
    QCOMPARE(box.font(), QApplication::font("QAbstractItemView"));
}

void tst_CheckBox::cutLabelExplainsItself_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("width");
    QTest::addColumn<bool>("alwaysShow");
    QTest::addColumn<QString>("hostTip");
    QTest::addColumn<QString>("expected");
    const QString longText = QStringLiteral("A check box label that cannot possibly fit in the box");
    QTest::newRow("fits") << QStringLiteral("Fits") << 200 << false << QStringLiteral("stale") << QString();
    QTest::newRow("cut") << longText << 90 << false << QString() << longText;
    QTest::newRow("cut, always show keeps host tip")
        << longText << 90 << true << QStringLiteral("Host tip") << QStringLiteral("Host tip");
    QTest::newRow("fits, always show keeps host tip")
        << QStringLiteral("Fits") << 200 << true << QStringLiteral("Host tip") << QStringLiteral("Host tip");
}

void tst_CheckBox::cutLabelExplainsItself()
{
    QFETCH(QString, text);
    QFETCH(int, width);
    QFETCH(bool, alwaysShow);
    QFETCH(QString, hostTip);
    QFETCH(QString, expected);
    CheckBox box(text);
    box.SetAlwaysShowTooltip(alwaysShow);
    box.setToolTip(hostTip);
    box.resize(width, 24);
    box.grab();
    QCOMPARE(box.toolTip(), expected);
}

void tst_CheckBox::toolTipChangesAreSignalled()
{
    CheckBox box(QStringLiteral("A check box label that cannot possibly fit"));
    box.resize(80, 24);
    QSignalSpy changed(&box, &CheckBox::ToolTipChanged);
    box.grab();
    QCOMPARE(changed.count(), 1);
    // Painting again with the same cut sets nothing new.
    box.grab();
    QCOMPARE(changed.count(), 1);
    box.resize(600, 24);
    box.grab();
    QCOMPARE(changed.count(), 2);
    QVERIFY(box.toolTip().isEmpty());
}

void tst_CheckBox::textColourFollowsEnabledState()
{
    ThemeManager* themes = ThemeManager::GetInstance();
    const QColor normal = themes->GetColor(ThemeFileKey::FontNormal1);
    const QColor disabled = themes->GetColor(ThemeFileKey::FontColorDisabled);
    QVERIFY(normal.isValid());
    QVERIFY(disabled.isValid());
    CheckBox box(QStringLiteral("Check"));
    QCOMPARE(box.palette().color(QPalette::Active, QPalette::WindowText), normal);
    box.setEnabled(false);
    QCOMPARE(box.palette().color(QPalette::Disabled, QPalette::WindowText), disabled);
    box.setEnabled(true);
    QCOMPARE(box.palette().color(QPalette::Active, QPalette::WindowText), normal);
}

void tst_CheckBox::themeSwitchReappliesColour()
{
    ThemeManager* themes = ThemeManager::GetInstance();
    CheckBox box(QStringLiteral("Check"));
    QVERIFY(themes->SetCurrentTheme(QStringLiteral("Dark")));
    QCOMPARE(box.palette().color(QPalette::WindowText), themes->GetColor(ThemeFileKey::FontNormal1));
    QVERIFY(themes->SetCurrentTheme(QStringLiteral("Light")));
    QCOMPARE(box.palette().color(QPalette::WindowText), themes->GetColor(ThemeFileKey::FontNormal1));
}

void tst_CheckBox::plainCheckBoxWithStyleAlsoGetsToolTip()
{
    const QString longText = QStringLiteral("A plain check box label that cannot possibly fit");
    QCheckBox box(longText);
    box.setStyle(CustomStyle::GetInstance());
    box.resize(80, 24);
    box.grab();
    QCOMPARE(box.toolTip(), longText);
}

void tst_CheckBox::colourSurvivesStyleSheetRepolish()
{
    // A host that sets its style sheet again after a theme switch repolishes
    // every widget, which brings back the palette saved at the last polish.
    ThemeManager* themes = ThemeManager::GetInstance();
    const QString original = qApp->styleSheet();
    qApp->setStyleSheet(QStringLiteral("QToolTip { padding: 2px; }"));
    CheckBox box(QStringLiteral("Check"));
    box.show();
    QVERIFY(QTest::qWaitForWindowExposed(&box));
    QVERIFY(themes->SetCurrentTheme(QStringLiteral("Dark")));
    qApp->setStyleSheet(qApp->styleSheet());
    QCOMPARE(box.palette().color(QPalette::WindowText), themes->GetColor(ThemeFileKey::FontNormal1));
    QVERIFY(themes->SetCurrentTheme(QStringLiteral("Light")));
    qApp->setStyleSheet(qApp->styleSheet());
    QCOMPARE(box.palette().color(QPalette::WindowText), themes->GetColor(ThemeFileKey::FontNormal1));
    qApp->setStyleSheet(original);
}

QTEST_MAIN(tst_CheckBox)
#include "tst_checkbox.moc"
