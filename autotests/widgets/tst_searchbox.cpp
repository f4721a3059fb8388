#include "../PaintProbe.h"

#include <KvUICore/theme/ThemeFileKey.h>
#include <KvUICore/widgets/SearchBox.h>

#include <QAbstractButton>
#include <QAccessible>
#include <QLineEdit>
#include <QScopeGuard>
#include <QSignalSpy>
#include <QTest>

using namespace Kavrel::UICore;

class tst_SearchBox : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { Probe::UseRepositoryThemes(); }

    void typingIsAnnouncedOnceAfterThePause()
    {
        SearchBox box;
        box.SetSearchDelay(80);
        QSignalSpy changed(&box, &SearchBox::SearchChanged);
        QSignalSpy typed(&box, &SearchBox::TextChanged);
        QTest::keyClicks(box.GetLineEdit(), QStringLiteral("oak"));
        QCOMPARE(typed.count(), 3);
        // Still inside the pause: nothing announced yet.
        QVERIFY(box.IsSearchPending());
        QCOMPARE(changed.count(), 0);
        QTRY_COMPARE(changed.count(), 1);
        QCOMPARE(changed.first().first().toString(), QStringLiteral("oak"));
        QVERIFY(!box.IsSearchPending());
        // The same text again is no new search.
        QTest::keyClick(box.GetLineEdit(), Qt::Key_Backspace);
        QTest::keyClicks(box.GetLineEdit(), QStringLiteral("k"));
        QTRY_VERIFY(!box.IsSearchPending());
        QCOMPARE(changed.count(), 1);
    }

    void zeroDelayAnnouncesEveryChange()
    {
        SearchBox box;
        box.SetSearchDelay(0);
        QSignalSpy changed(&box, &SearchBox::SearchChanged);
        QTest::keyClicks(box.GetLineEdit(), QStringLiteral("ab"));
        QCOMPARE(changed.count(), 2);
        QCOMPARE(changed.at(1).first().toString(), QStringLiteral("ab"));
        box.SetSearchDelay(-5);
        QCOMPARE(box.GetSearchDelay(), 0);
    }

    void hostTextAndClearingAreAnnouncedAtOnce()
    {
        SearchBox box;
        QSignalSpy changed(&box, &SearchBox::SearchChanged);
        box.SetText(QStringLiteral("steel"));
        QCOMPARE(changed.count(), 1);
        box.SetText(QStringLiteral("steel"));
        QCOMPARE(changed.count(), 1);
        box.Clear();
        QCOMPARE(changed.count(), 2);
        QCOMPARE(changed.last().first().toString(), QString());
    }

    void returnSubmitsAndRemembersTheSearch()
    {
        SearchBox box;
        box.SetSearchDelay(10000);
        box.SetRecentSearchesEnabled(true);
        QSignalSpy changed(&box, &SearchBox::SearchChanged);
        QSignalSpy submitted(&box, &SearchBox::SearchSubmitted);
        QTest::keyClicks(box.GetLineEdit(), QStringLiteral("glass"));
        QTest::keyClick(box.GetLineEdit(), Qt::Key_Return);
        // Return does not wait for the pause.
        QCOMPARE(changed.count(), 1);
        QCOMPARE(submitted.count(), 1);
        QCOMPARE(submitted.first().first().toString(), QStringLiteral("glass"));
        QCOMPARE(box.GetRecentSearches(), QStringList{QStringLiteral("glass")});
    }

    void escapeClearsThenLeavesTheKeyToTheWindow()
    {
        QWidget window;
        auto* box = new SearchBox(&window);
        box->SetText(QStringLiteral("walnut"));
        QKeyEvent first(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
        QCoreApplication::sendEvent(box->GetLineEdit(), &first);
        QVERIFY(first.isAccepted());
        QCOMPARE(box->GetText(), QString());
        QKeyEvent second(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
        QCoreApplication::sendEvent(box->GetLineEdit(), &second);
        QVERIFY(!second.isAccepted());
    }

    void clearButtonAppearsWithText()
    {
        SearchBox box;
        box.resize(200, box.sizeHint().height());
        box.show();
        auto* clear = box.findChild<QAbstractButton*>(QStringLiteral("SearchBoxClear"));
        QVERIFY(clear);
        QVERIFY(!clear->isVisible());
        box.SetText(QStringLiteral("x"));
        QVERIFY(clear->isVisible());
        clear->click();
        QCOMPARE(box.GetText(), QString());
        QVERIFY(!clear->isVisible());
    }

    void recentSearchesStayUniqueAndBounded()
    {
        SearchBox box;
        box.SetRecentSearchesEnabled(true);
        box.SetMaximumRecentSearches(3);
        box.SetRecentSearches({QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("a"), QStringLiteral(" "),
                               QStringLiteral("c"), QStringLiteral("d")});
        QCOMPARE(box.GetRecentSearches(), (QStringList{QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c")}));
        box.SetText(QStringLiteral("c"));
        QTest::keyClick(box.GetLineEdit(), Qt::Key_Return);
        QCOMPARE(box.GetRecentSearches(), (QStringList{QStringLiteral("c"), QStringLiteral("a"), QStringLiteral("b")}));
        box.SetMaximumRecentSearches(-1);
        QCOMPARE(box.GetRecentSearches(), QStringList{QStringLiteral("c")});
    }

    void mirroredRightToLeft()
    {
        SearchBox box;
        box.resize(200, box.sizeHint().height());
        box.show();
        const int leftToRight = box.GetLineEdit()->geometry().left();
        box.setLayoutDirection(Qt::RightToLeft);
        // The editor starts after the icon, which is now at the right.
        QCOMPARE(box.GetLineEdit()->geometry().right(), box.width() - 1 - leftToRight);
    }

    void accessibleAsSearchField()
    {
        SearchBox box;
        box.SetPrompt(QStringLiteral("Search materials"));
        box.SetText(QStringLiteral("oak"));
        QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(&box);
        QVERIFY(accessible);
        QCOMPARE(accessible->role(), QAccessible::EditableText);
        QCOMPARE(accessible->text(QAccessible::Name), QStringLiteral("Search materials"));
        QCOMPARE(accessible->text(QAccessible::Value), QStringLiteral("oak"));
    }
};

QTEST_MAIN(tst_SearchBox)
#include "tst_searchbox.moc"
