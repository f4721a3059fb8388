#include "../PaintProbe.h"

#include <KvUICore/theme/ThemeFileKey.h>
#include <KvUICore/widgets/SearchBox.h>

#include <QAbstractButton>
#include <QAccessible>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTest>
#include <QVBoxLayout>

using namespace Kavrel::UICore;

namespace {

// WCAG's contrast ratio of two opaque colours.
double Contrast(const QColor& a, const QColor& b)
{
    auto luminance = [](const QColor& c) {
        auto channel = [](double v) { return v <= 0.03928 ? v / 12.92 : std::pow((v + 0.055) / 1.055, 2.4); };
        return 0.2126 * channel(c.redF()) + 0.7152 * channel(c.greenF()) + 0.0722 * channel(c.blueF());
    };
    const double la = luminance(a);
    const double lb = luminance(b);
    return (qMax(la, lb) + 0.05) / (qMin(la, lb) + 0.05);
}

} // namespace

class tst_SearchBox : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { Probe::UseRepositoryThemes(); }

    void typingIsAnnouncedOnceAfterThePause();
    void zeroDelayAnnouncesEveryChange();
    void hostTextAndClearingAreAnnouncedAtOnce();
    void returnSubmitsAndRemembersTheSearch();
    void escapeClearsThenLeavesTheKeyToTheWindow();
    void clearButtonAppearsWithText();
    void recentSearchesStayUniqueAndBounded();
    void focusRingIsVisibleInEveryTheme_data();
    void focusRingIsVisibleInEveryTheme();
    void mirroredRightToLeft();
    void accessibleAsSearchField();
};

void tst_SearchBox::typingIsAnnouncedOnceAfterThePause()
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

void tst_SearchBox::zeroDelayAnnouncesEveryChange()
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

void tst_SearchBox::hostTextAndClearingAreAnnouncedAtOnce()
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

void tst_SearchBox::returnSubmitsAndRemembersTheSearch()
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

void tst_SearchBox::escapeClearsThenLeavesTheKeyToTheWindow()
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

void tst_SearchBox::clearButtonAppearsWithText()
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

void tst_SearchBox::recentSearchesStayUniqueAndBounded()
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

void tst_SearchBox::focusRingIsVisibleInEveryTheme_data()
{
    QTest::addColumn<QString>("theme");
    QTest::newRow("light") << QStringLiteral("Light");
    QTest::newRow("dark") << QStringLiteral("Dark");
    QTest::newRow("high contrast") << QStringLiteral("HIGLight");
}

void tst_SearchBox::focusRingIsVisibleInEveryTheme()
{
    QFETCH(QString, theme);
    Probe::UseRepositoryThemes(theme);
    QWidget window;
    auto* layout = new QVBoxLayout(&window);
    auto* box = new SearchBox(&window);
    auto* other = new QLineEdit(&window);
    layout->addWidget(box);
    layout->addWidget(other);
    window.resize(240, 80);
    QVERIFY(Probe::Shown(&window));
    other->setFocus();
    QTRY_VERIFY(other->hasFocus());
    // The middle of the top border: inside the halo row is the border row.
    const QPoint borderPoint(box->width() / 2, 1);
    const QColor unfocused = Probe::PixelAt(Probe::Grab(box), borderPoint);
    box->setFocus();
    QTRY_VERIFY(box->hasFocus());
    const QImage focusedImage = Probe::Grab(box);
    const QColor focused = Probe::PixelAt(focusedImage, borderPoint);
    PROBE_COMPARE_COLOR(focused, Probe::ThemeColor(ThemeFileKey::SearchBoxFocusedBorder));
    QVERIFY(!Probe::Near(focused, unfocused));
    const QColor inside = Probe::PixelAt(focusedImage, QPoint(box->width() / 2, box->height() / 2 + 8));
    QVERIFY2(Contrast(focused, inside) >= 3.0, qPrintable(focused.name() + QLatin1Char('/') + inside.name()));
    // The window background the gallery and hosts paint: the theme's container.
    const QColor surroundings = Probe::ThemeColor(ThemeFileKey::Container1);
    QVERIFY2(Contrast(focused, surroundings) >= 3.0,
             qPrintable(focused.name() + QLatin1Char('/') + surroundings.name()));
    Probe::UseRepositoryThemes(QStringLiteral("Light"));
}

void tst_SearchBox::mirroredRightToLeft()
{
    SearchBox box;
    box.resize(200, box.sizeHint().height());
    box.show();
    const int leftToRight = box.GetLineEdit()->geometry().left();
    box.setLayoutDirection(Qt::RightToLeft);
    // The editor starts after the icon, which is now at the right.
    QCOMPARE(box.GetLineEdit()->geometry().right(), box.width() - 1 - leftToRight);
}

void tst_SearchBox::accessibleAsSearchField()
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

QTEST_MAIN(tst_SearchBox)
#include "tst_searchbox.moc"
