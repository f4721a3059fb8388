#include "../PaintProbe.h"

#include <KvUICore/theme/ThemeFileKey.h>
#include <KvUICore/widgets/BreadcrumbBar.h>
#include <KvUICore/widgets/BreadcrumbItem.h>

#include <QAccessible>
#include <QMenu>
#include <QSignalSpy>
#include <QTest>

using namespace Kavrel::UICore;

namespace {

const QStringList kPath = {QStringLiteral("Home"), QStringLiteral("Library"), QStringLiteral("Wood"),
                           QStringLiteral("Oak, natural"), QStringLiteral("Matte finish")};

int TotalItemWidth(const BreadcrumbBar& bar)
{
    int width = 0;
    for (int level = 0; level < bar.GetLevelCount(); ++level)
        width += bar.GetItem(level)->sizeHint().width();
    return width;
}

} // namespace

class tst_Breadcrumb : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { Probe::UseRepositoryThemes(); }

    void levelsFoldFromTheTopWhenNarrow_data()
    {
        QTest::addColumn<int>("missing");
        QTest::addColumn<bool>("folds");
        QTest::newRow("everything fits") << -20 << false;
        QTest::newRow("a little short") << 10 << true;
        QTest::newRow("far too narrow") << 2000 << true;
    }

    void levelsFoldFromTheTopWhenNarrow()
    {
        QFETCH(int, missing);
        QFETCH(bool, folds);
        BreadcrumbBar bar;
        bar.SetPath(kPath);
        bar.resize(qMax(10, TotalItemWidth(bar) - missing), 24);
        bar.show();
        const QList<int> folded = bar.GetOverflowLevels();
        QCOMPARE(!folded.isEmpty(), folds);
        QCOMPARE(bar.GetOverflowButton()->isVisible(), folds);
        // Folded levels are the top ones, in order; the current level always stays.
        for (int i = 0; i < folded.size(); ++i) {
            QCOMPARE(folded.at(i), i);
            QVERIFY(!bar.GetItem(i)->isVisible());
        }
        QVERIFY(!folded.contains(kPath.size() - 1));
        QVERIFY(bar.GetItem(int(kPath.size()) - 1)->isVisible());
        // What is shown fits, unless only the current level is left.
        int right = 0;
        for (int level = 0; level < kPath.size(); ++level) {
            if (bar.GetItem(level)->isVisible())
                right = qMax(right, bar.GetItem(level)->geometry().right());
        }
        if (folded.size() < kPath.size() - 1)
            QVERIFY(right < bar.width());
    }

    void overflowMenuActivatesHiddenLevels()
    {
        BreadcrumbBar bar;
        bar.SetPath(kPath);
        bar.resize(TotalItemWidth(bar) / 2, 24);
        bar.show();
        QVERIFY(!bar.GetOverflowLevels().isEmpty());
        QSignalSpy activated(&bar, &BreadcrumbBar::PathActivated);
        static_cast<QAbstractButton*>(bar.GetOverflowButton())->click();
        auto* menu = bar.findChild<QMenu*>();
        QVERIFY(menu);
        QTRY_VERIFY(menu->isVisible());
        QCOMPARE(menu->actions().size(), bar.GetOverflowLevels().size());
        menu->actions().at(1)->trigger();
        QCOMPARE(activated.count(), 1);
        QCOMPARE(activated.first().first().toInt(), 1);
        menu->hide();
    }

    void clickAndReturnActivateTheirLevel()
    {
        BreadcrumbBar bar;
        bar.SetPath(kPath);
        bar.resize(TotalItemWidth(bar) + 10, 24);
        bar.show();
        QSignalSpy activated(&bar, &BreadcrumbBar::PathActivated);
        QTest::mouseClick(bar.GetItem(2), Qt::LeftButton, {}, QPoint(8, 12));
        QTest::keyClick(bar.GetItem(3), Qt::Key_Return);
        QCOMPARE(activated.count(), 2);
        QCOMPARE(activated.at(0).first().toInt(), 2);
        QCOMPARE(activated.at(1).first().toInt(), 3);
    }

    void separatorMenuOffersTheNextLevelsChoices()
    {
        BreadcrumbBar bar;
        bar.SetPath(kPath);
        QVERIFY(!bar.GetItem(1)->IsSeparatorVisible());
        const QStringList woods = {QStringLiteral("Wood"), QStringLiteral("Metal")};
        bar.SetChoices(2, woods);
        QVERIFY(bar.GetItem(1)->IsSeparatorVisible());
        bar.resize(TotalItemWidth(bar) + 10, 24);
        bar.show();
        QSignalSpy requested(&bar, &BreadcrumbBar::ChoicesRequested);
        QSignalSpy chosen(&bar, &BreadcrumbBar::ChoiceActivated);
        QTest::keyClick(bar.GetItem(1), Qt::Key_Down);
        QCOMPARE(requested.count(), 1);
        QCOMPARE(requested.first().first().toInt(), 2);
        auto* menu = bar.findChild<QMenu*>();
        QVERIFY(menu);
        QCOMPARE(menu->actions().size(), woods.size());
        // The level's present choice is marked.
        QVERIFY(menu->actions().at(0)->isChecked());
        menu->actions().at(1)->trigger();
        QCOMPARE(chosen.count(), 1);
        QCOMPARE(chosen.first().at(0).toInt(), 2);
        QCOMPARE(chosen.first().at(1).toString(), QStringLiteral("Metal"));
        menu->hide();
        // Without choices there is no menu.
        QVERIFY(!bar.ShowChoicesMenu(4));
    }

    void arrowKeysMoveFocusBetweenLevels()
    {
        BreadcrumbBar bar;
        bar.SetPath(kPath);
        bar.resize(TotalItemWidth(bar) + 10, 24);
        QVERIFY(Probe::Shown(&bar));
        QVERIFY(Probe::Focus(bar.GetItem(2)));
        QTest::keyClick(bar.GetItem(2), Qt::Key_Right);
        QVERIFY(bar.GetItem(3)->hasFocus());
        QTest::keyClick(bar.GetItem(3), Qt::Key_Home);
        QVERIFY(bar.GetItem(0)->hasFocus());
        QTest::keyClick(bar.GetItem(0), Qt::Key_Left);
        QVERIFY(bar.GetItem(0)->hasFocus());
        QTest::keyClick(bar.GetItem(0), Qt::Key_End);
        QVERIFY(bar.GetItem(4)->hasFocus());
    }

    void rightToLeftReversesTheOrder()
    {
        BreadcrumbBar bar;
        bar.SetPath(kPath);
        bar.setLayoutDirection(Qt::RightToLeft);
        bar.resize(TotalItemWidth(bar) + 10, 24);
        QVERIFY(Probe::Shown(&bar));
        QCOMPARE(bar.GetItem(0)->geometry().right(), bar.width() - 1);
        for (int level = 1; level < kPath.size(); ++level)
            QVERIFY(bar.GetItem(level)->x() < bar.GetItem(level - 1)->x());
        // Visual arrows: Left goes on in reading order.
        QVERIFY(Probe::Focus(bar.GetItem(1)));
        QTest::keyClick(bar.GetItem(1), Qt::Key_Left);
        QVERIFY(bar.GetItem(2)->hasFocus());
    }

    void homeAndCurrentFollowTheTheme()
    {
        BreadcrumbBar bar;
        bar.SetPath(kPath);
        ThemeManager* themes = ThemeManager::GetInstance();
        const bool home = themes->GetInt(ThemeFileKey::ShowHomeIcon_BreadCrumb) != 0;
        const bool highlight = themes->GetInt(ThemeFileKey::HighlightCurrentSelectedBreadCrumButtom) != 0;
        QCOMPARE(bar.GetItem(0)->IsIconOnly(), home);
        QCOMPARE(bar.GetItem(0)->toolTip().isEmpty(), !home);
        const int last = int(kPath.size()) - 1;
        QVERIFY(bar.GetItem(last)->IsCurrent());
        QCOMPARE(bar.GetItem(last)->IsHighlighted(), highlight);
        QVERIFY(!bar.GetItem(last - 1)->IsCurrent());
        // Shortening the path moves the current level.
        bar.SetPath(kPath.mid(0, 2));
        QCOMPARE(bar.GetLevelCount(), 2);
        QVERIFY(bar.GetItem(1)->IsCurrent());
        QVERIFY(!bar.GetItem(2));
    }

    void focusRingUsesTheBreadcrumbOutline()
    {
        BreadcrumbBar bar;
        bar.SetPath(kPath);
        bar.resize(TotalItemWidth(bar) + 10, 24);
        QVERIFY(Probe::Shown(&bar));
        BreadcrumbItem* item = bar.GetItem(2);
        const QPoint top(item->width() / 3, 0);
        QVERIFY(!Probe::Near(Probe::PixelAt(Probe::Grab(item), top),
                             Probe::ThemeColor(ThemeFileKey::BreadcrumbItemFocusOutline)));
        QVERIFY(Probe::Focus(item));
        PROBE_COMPARE_COLOR(Probe::PixelAt(Probe::Grab(item), top),
                            Probe::ThemeColor(ThemeFileKey::BreadcrumbItemFocusOutline));
    }

    void accessibleAsToolBarOfButtons()
    {
        BreadcrumbBar bar;
        bar.SetPath(kPath);
        QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(&bar);
        QVERIFY(accessible);
        QCOMPARE(accessible->role(), QAccessible::ToolBar);
        QAccessibleInterface* item = QAccessible::queryAccessibleInterface(bar.GetItem(2));
        QCOMPARE(item->role(), QAccessible::Button);
        QCOMPARE(item->text(QAccessible::Name), QStringLiteral("Wood"));
    }
};

QTEST_MAIN(tst_Breadcrumb)
#include "tst_breadcrumb.moc"
