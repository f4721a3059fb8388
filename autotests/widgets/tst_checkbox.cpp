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
    void initTestCase()
    {
        Probe::UseRepositoryThemes();
    }

    void setUpFollowsLibraryLook()
    {
        CheckBox box(QStringLiteral("Check"));
        // The application's global style sheet may wrap the style; the library's
        // metrics show through either way.
        QCOMPARE(box.style()->pixelMetric(QStyle::PM_SliderLength, nullptr, &box), 4);
        QCOMPARE(box.font(), QApplication::font("QAbstractItemView"));
    }

    void cutLabelExplainsItself_data()
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

    void cutLabelExplainsItself()
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

    void toolTipChangesAreSignalled()
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

    void textColourFollowsEnabledState()
    {
        ThemeManager* themes = ThemeManager::GetInstance();
        const QColor normal = themes->GetColor(ThemeFileKey::FontNormal1);
        const QColor disabled = themes->GetColor(ThemeFileKey::FontColorDisabled);
        QVERIFY(disabled.isValid() && disabled != normal);
        CheckBox box(QStringLiteral("Check"));
        QCOMPARE(box.palette().color(QPalette::Active, QPalette::WindowText), normal);
        box.setEnabled(false);
        QCOMPARE(box.palette().color(QPalette::Disabled, QPalette::WindowText), disabled);
        box.setEnabled(true);
        QCOMPARE(box.palette().color(QPalette::Active, QPalette::WindowText), normal);
    }

    void plainCheckBoxWithStyleAlsoGetsToolTip()
    {
        const QString longText = QStringLiteral("A plain check box label that cannot possibly fit");
        QCheckBox box(longText);
        box.setStyle(CustomStyle::GetInstance());
        box.resize(80, 24);
        box.grab();
        QCOMPARE(box.toolTip(), longText);
    }

    void colourSurvivesStyleSheetRepolish()
    {
        // A theme switch reapplies the colour. A host that sets its style sheet
        // again after a switch repolishes every widget, which brings back the
        // palette saved at the last polish.
        ThemeManager* themes = ThemeManager::GetInstance();
        const QString original = qApp->styleSheet();
        qApp->setStyleSheet(QStringLiteral("QToolTip { padding: 2px; }"));
        CheckBox box(QStringLiteral("Check"));
        QVERIFY(Probe::Shown(&box));
        QVERIFY(themes->SetCurrentTheme(QStringLiteral("Dark")));
        QCOMPARE(box.palette().color(QPalette::WindowText), themes->GetColor(ThemeFileKey::FontNormal1));
        qApp->setStyleSheet(qApp->styleSheet());
        QCOMPARE(box.palette().color(QPalette::WindowText), themes->GetColor(ThemeFileKey::FontNormal1));
        QVERIFY(themes->SetCurrentTheme(QStringLiteral("Light")));
        qApp->setStyleSheet(qApp->styleSheet());
        QCOMPARE(box.palette().color(QPalette::WindowText), themes->GetColor(ThemeFileKey::FontNormal1));
        qApp->setStyleSheet(original);
    }
};

QTEST_MAIN(tst_CheckBox)
#include "tst_checkbox.moc"
