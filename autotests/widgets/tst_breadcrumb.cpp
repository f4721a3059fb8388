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
    void init()
    {
        mpBar = std::make_unique<BreadcrumbBar>();
        mpBar->SetPath(kPath);
    }
    void cleanup() { mpBar.reset(); }

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
        mpBar->resize(qMax(10, TotalItemWidth(*mpBar) - missing), 24);
        mpBar->show();
        const QList<int> folded = mpBar->GetOverflowLevels();
        QCOMPARE(!folded.isEmpty(), folds);
        QCOMPARE(mpBar->GetOverflowButton()->isVisible(), folds);
        // Folded levels are the top ones, in order; the current level always stays.
        for (int i = 0; i < folded.size(); ++i) {
            QCOMPARE(folded.at(i), i);
            QVERIFY(!mpBar->GetItem(i)->isVisible());
        }
        QVERIFY(!folded.contains(kPath.size() - 1));
        QVERIFY(mpBar->GetItem(int(kPath.size()) - 1)->isVisible());
        // What is shown fits, unless only the current level is left.
        int right = 0;
        for (int level = 0; level < kPath.size(); ++level) {
            if (mpBar->GetItem(level)->isVisible())
                right = qMax(right, mpBar->GetItem(level)->geometry().right());
        }
        if (folded.size() < kPath.size() - 1)
            QVERIFY(right < mpBar->width());
    }

    void overflowMenuActivatesHiddenLevels()
    {
        mpBar->resize(TotalItemWidth(*mpBar) / 2, 24);
        mpBar->show();
        QVERIFY(!mpBar->GetOverflowLevels().isEmpty());
        QSignalSpy activated(mpBar.get(), &BreadcrumbBar::PathActivated);
        static_cast<QAbstractButton*>(mpBar->GetOverflowButton())->click();
        auto* menu = mpBar->findChild<QMenu*>();
        QVERIFY(menu);
        QTRY_VERIFY(menu->isVisible());
        QCOMPARE(menu->actions().size(), mpBar->GetOverflowLevels().size());
        menu->actions().at(1)->trigger();
        QCOMPARE(activated.count(), 1);
        QCOMPARE(activated.first().first().toInt(), 1);
        menu->hide();
    }

    void clickAndReturnActivateTheirLevel()
    {
        mpBar->resize(TotalItemWidth(*mpBar) + 10, 24);
        mpBar->show();
        QSignalSpy activated(mpBar.get(), &BreadcrumbBar::PathActivated);
        QTest::mouseClick(mpBar->GetItem(2), Qt::LeftButton, {}, QPoint(8, 12));
        QTest::keyClick(mpBar->GetItem(3), Qt::Key_Return);
        QCOMPARE(activated.count(), 2);
        QCOMPARE(activated.at(0).first().toInt(), 2);
        QCOMPARE(activated.at(1).first().toInt(), 3);
    }

    void separatorMenuOffersTheNextLevelsChoices()
    {
        QVERIFY(!mpBar->GetItem(1)->IsSeparatorVisible());
        const QStringList woods = {QStringLiteral("Wood"), QStringLiteral("Metal")};
        mpBar->SetChoices(2, woods);
        QVERIFY(mpBar->GetItem(1)->IsSeparatorVisible());
        mpBar->resize(TotalItemWidth(*mpBar) + 10, 24);
        mpBar->show();
        QSignalSpy requested(mpBar.get(), &BreadcrumbBar::ChoicesRequested);
        QSignalSpy chosen(mpBar.get(), &BreadcrumbBar::ChoiceActivated);
        QTest::keyClick(mpBar->GetItem(1), Qt::Key_Down);
        QCOMPARE(requested.count(), 1);
        QCOMPARE(requested.first().first().toInt(), 2);
        auto* menu = mpBar->findChild<QMenu*>();
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
        QVERIFY(!mpBar->ShowChoicesMenu(4));
    }

    void arrowKeysMoveFocusBetweenLevels()
    {
        mpBar->resize(TotalItemWidth(*mpBar) + 10, 24);
        QVERIFY(Probe::Shown(mpBar.get()));
        QVERIFY(Probe::Focus(mpBar->GetItem(2)));
        QTest::keyClick(mpBar->GetItem(2), Qt::Key_Right);
        QVERIFY(mpBar->GetItem(3)->hasFocus());
        QTest::keyClick(mpBar->GetItem(3), Qt::Key_Home);
        QVERIFY(mpBar->GetItem(0)->hasFocus());
        QTest::keyClick(mpBar->GetItem(0), Qt::Key_Left);
        QVERIFY(mpBar->GetItem(0)->hasFocus());
        QTest::keyClick(mpBar->GetItem(0), Qt::Key_End);
        QVERIFY(mpBar->GetItem(4)->hasFocus());
    }

    void rightToLeftReversesTheOrder()
    {
        mpBar->setLayoutDirection(Qt::RightToLeft);
        mpBar->resize(TotalItemWidth(*mpBar) + 10, 24);
        QVERIFY(Probe::Shown(mpBar.get()));
        QCOMPARE(mpBar->GetItem(0)->geometry().right(), mpBar->width() - 1);
        for (int level = 1; level < kPath.size(); ++level)
            QVERIFY(mpBar->GetItem(level)->x() < mpBar->GetItem(level - 1)->x());
        // Visual arrows: Left goes on in reading order.
        QVERIFY(Probe::Focus(mpBar->GetItem(1)));
        QTest::keyClick(mpBar->GetItem(1), Qt::Key_Left);
        QVERIFY(mpBar->GetItem(2)->hasFocus());
    }

    void homeAndCurrentFollowTheTheme()
    {
        ThemeManager* themes = ThemeManager::GetInstance();
        const bool home = themes->GetInt(ThemeFileKey::ShowHomeIcon_BreadCrumb) != 0;
        const bool highlight = themes->GetInt(ThemeFileKey::HighlightCurrentSelectedBreadCrumButtom) != 0;
        QCOMPARE(mpBar->GetItem(0)->IsIconOnly(), home);
        QCOMPARE(mpBar->GetItem(0)->toolTip().isEmpty(), !home);
        const int last = int(kPath.size()) - 1;
        QVERIFY(mpBar->GetItem(last)->IsCurrent());
        QCOMPARE(mpBar->GetItem(last)->IsHighlighted(), highlight);
        QVERIFY(!mpBar->GetItem(last - 1)->IsCurrent());
        // Shortening the path moves the current level.
        mpBar->SetPath(kPath.mid(0, 2));
        QCOMPARE(mpBar->GetLevelCount(), 2);
        QVERIFY(mpBar->GetItem(1)->IsCurrent());
        QVERIFY(!mpBar->GetItem(2));
    }

    void accessibleAsToolBarOfButtons()
    {
        QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(mpBar.get());
        QVERIFY(accessible);
        QCOMPARE(accessible->role(), QAccessible::ToolBar);
        QAccessibleInterface* item = QAccessible::queryAccessibleInterface(mpBar->GetItem(2));
        QCOMPARE(item->role(), QAccessible::Button);
        QCOMPARE(item->text(QAccessible::Name), QStringLiteral("Wood"));
    }

private:
    std::unique_ptr<BreadcrumbBar> mpBar;
};

QTEST_MAIN(tst_Breadcrumb)
#include "tst_breadcrumb.moc"
