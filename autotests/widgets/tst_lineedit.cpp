#include "../PaintProbe.h"

#include <KvUICore/theme/ThemeFileKey.h>
#include <KvUICore/widgets/LineEdit.h>

#include <QApplication>
#include <QContextMenuEvent>
#include <QMenu>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>
#include <QVBoxLayout>

using namespace Kavrel::UICore;

class tst_LineEdit : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { Probe::UseRepositoryThemes(); }
    void cleanup();

    void focusPolicyAndSizeHints();
    void promptingShowsInItalicsWhileEmptyAndUnfocused();
    void longTextIsElidedUntilFocused_data();
    void longTextIsElidedUntilFocused();
    void firstClickSelectsAllOnlyOnce();
    void homeAlwaysKeepsTheCursorAtTheStartAndReturnSelectsAll();
    void hoverStateAndEnterSignal();
    void preventedContextMenuDoesNotOpen();
    void contextMenuFollowsTheThemeAndKeepsTheSelection_data();
    void contextMenuFollowsTheThemeAndKeepsTheSelection();

private:
    LineEdit* shownLineEdit();
    static bool focus(LineEdit* edit) { return Probe::Focus(edit, Qt::TabFocusReason); }
    QList<QWidget*> mWidgets;
};

void tst_LineEdit::cleanup()
{
    qDeleteAll(mWidgets);
    mWidgets.clear();
    QVERIFY(ThemeManager::GetInstance()->SetCurrentTheme(QStringLiteral("Light")));
}

LineEdit* tst_LineEdit::shownLineEdit()
{
    auto* window = new QWidget;
    mWidgets << window;
    auto* layout = new QVBoxLayout(window);
    auto* edit = new LineEdit(window);
    layout->addWidget(edit);
    auto* other = new QLineEdit(window);
    layout->addWidget(other);
    window->resize(160, 80);
    if (!Probe::ShowActive(window) || !Probe::Focus(other))
        return nullptr;
    return edit;
}

void tst_LineEdit::focusPolicyAndSizeHints()
{
    LineEdit standAlone;
    QCOMPARE(standAlone.focusPolicy(), Qt::StrongFocus);
    // The embedded editor leaves the focus policy to its box.
    LineEdit embedded(nullptr, true);
    QCOMPARE(embedded.focusPolicy(), QLineEdit().focusPolicy());
    QCOMPARE(standAlone.sizeHint(), QSize(QWIDGETSIZE_MAX, standAlone.fontMetrics().height() + 2));
    QVERIFY(!standAlone.minimumSizeHint().isValid());
}

void tst_LineEdit::promptingShowsInItalicsWhileEmptyAndUnfocused()
{
    LineEdit* edit = shownLineEdit();
    QVERIFY(edit);
    edit->SetPrompting(QStringLiteral("Search"));
    QVERIFY(edit->IsPrompting());
    QCOMPARE(edit->text(), QStringLiteral("Search"));
    QCOMPARE(edit->GetText(), QString());
    QVERIFY(edit->font().italic());
    QVERIFY(edit->GetCurrentFont().italic());

    QVERIFY(focus(edit));
    QVERIFY(!edit->IsPrompting());
    QCOMPARE(edit->text(), QString());
    QVERIFY(!edit->font().italic());

    QVERIFY(Probe::Unfocus(edit));
    QTRY_VERIFY(edit->IsPrompting());

    // Text set by code ends the prompting and announces the full text once.
    QSignalSpy changed(edit, &QLineEdit::textChanged);
    edit->SetText(QStringLiteral("value"));
    QVERIFY(!edit->IsPrompting());
    QCOMPARE(edit->GetText(), QStringLiteral("value"));
    edit->SetText(QStringLiteral("value"));
    QCOMPARE(changed.count(), 1);
    QCOMPARE(changed.at(0).at(0).toString(), QStringLiteral("value"));
    // Emptying shows the hint again, until the prompting is unset.
    edit->SetText(QString());
    QVERIFY(edit->IsPrompting());
    QCOMPARE(edit->GetText(), QString());
    edit->UnsetPrompting();
    QVERIFY(!edit->IsPrompting());
    QCOMPARE(edit->text(), QString());
}

void tst_LineEdit::longTextIsElidedUntilFocused_data()
{
    QTest::addColumn<Qt::TextElideMode>("mode");
    QTest::newRow("right") << Qt::ElideRight;
    QTest::newRow("middle") << Qt::ElideMiddle;
    QTest::newRow("left") << Qt::ElideLeft;
}

void tst_LineEdit::longTextIsElidedUntilFocused()
{
    QFETCH(Qt::TextElideMode, mode);
    LineEdit* edit = shownLineEdit();
    QVERIFY(edit);
    const QString longText = QStringLiteral("C:/Projects/House/Textures/brick_wall_diffuse_4k.png");
    edit->SetElideMode(mode);
    QCOMPARE(edit->GetElideMode(), mode);
    edit->SetText(longText);
    QVERIFY(edit->text() != longText);
    QVERIFY(edit->text().contains(QChar(0x2026)));
    QCOMPARE(edit->GetText(), longText);

    QVERIFY(focus(edit));
    QTRY_COMPARE(edit->text(), longText);
    QVERIFY(Probe::Unfocus(edit));
    QTRY_VERIFY(edit->text() != longText);

    // Wide enough: shown whole.
    edit->window()->resize(900, 80);
    QTRY_COMPARE(edit->text(), longText);
}

void tst_LineEdit::firstClickSelectsAllOnlyOnce()
{
    LineEdit* edit = shownLineEdit();
    QVERIFY(edit);
    edit->SetText(QStringLiteral("select me"));
    // A click focuses the edit only in the active window; another window may
    // have been activated meanwhile on a busy machine.
    const auto click = [edit] {
        QVERIFY(Probe::ShowActive(edit->window()));
        QTest::mouseClick(edit, Qt::LeftButton, {}, QPoint(5, edit->height() / 2));
        QTRY_VERIFY_WITH_TIMEOUT(edit->hasFocus(), Probe::kTimeoutMs);
    };
    click();
    QCOMPARE(edit->selectedText(), QStringLiteral("select me"));
    QCOMPARE(edit->HoverState(), 1);
    click();
    QCOMPARE(edit->selectedText(), QString());

    // Leaving forgets it.
    QVERIFY(Probe::Unfocus(edit));
    click();
    QCOMPARE(edit->selectedText(), QStringLiteral("select me"));

    QVERIFY(Probe::Unfocus(edit));
    edit->AllowFocusInSelectAll(false);
    click();
    QCOMPARE(edit->selectedText(), QString());
}

void tst_LineEdit::homeAlwaysKeepsTheCursorAtTheStartAndReturnSelectsAll()
{
    LineEdit* edit = shownLineEdit();
    QVERIFY(edit);
    edit->SetText(QStringLiteral("abcdef"));
    QCOMPARE(edit->cursorPosition(), 6);
    edit->SetHomeAlways(true);
    edit->SetText(QStringLiteral("ghijkl"));
    QCOMPARE(edit->cursorPosition(), 0);
    edit->setCursorPosition(4);
    QVERIFY(focus(edit));
    QCOMPARE(edit->cursorPosition(), 0);
    QTest::keyClicks(edit, QStringLiteral("typed"));
    QCOMPARE(edit->selectedText(), QString());
    QTest::keyClick(edit, Qt::Key_Return);
    QCOMPARE(edit->selectedText(), QStringLiteral("typedghijkl"));
}

void tst_LineEdit::hoverStateAndEnterSignal()
{
    LineEdit edit;
    QSignalSpy entered(&edit, &LineEdit::Enter);
    QCOMPARE(edit.HoverState(), 0);
    QEnterEvent enter(QPointF(2, 2), QPointF(2, 2), QPointF(2, 2));
    QApplication::sendEvent(&edit, &enter);
    QCOMPARE(edit.HoverState(), 1);
    QCOMPARE(entered.count(), 1);
    QEvent leave(QEvent::Leave);
    QApplication::sendEvent(&edit, &leave);
    QCOMPARE(edit.HoverState(), 0);
}

void tst_LineEdit::preventedContextMenuDoesNotOpen()
{
    LineEdit* edit = shownLineEdit();
    QVERIFY(edit);
    edit->SetPreventContextMenu(true);
    QContextMenuEvent event(QContextMenuEvent::Mouse, QPoint(3, 3), edit->mapToGlobal(QPoint(3, 3)));
    // A context menu would run a modal loop here; a prevented one returns at once.
    QApplication::sendEvent(edit, &event);
    QVERIFY(event.isAccepted());
    QVERIFY(!QApplication::activePopupWidget());
}

void tst_LineEdit::contextMenuFollowsTheThemeAndKeepsTheSelection_data()
{
    QTest::addColumn<QString>("theme");
    QTest::newRow("Light") << "Light";
    QTest::newRow("Dark") << "Dark";
    QTest::newRow("HIGLight") << "HIGLight";
}

void tst_LineEdit::contextMenuFollowsTheThemeAndKeepsTheSelection()
{
    QFETCH(QString, theme);
    QVERIFY(ThemeManager::GetInstance()->SetCurrentTheme(theme));
    LineEdit* edit = shownLineEdit();
    QVERIFY(edit);
    edit->SetText(QStringLiteral("keep me selected"));
    QVERIFY(focus(edit));
    edit->selectAll();

    QString styleSheet;
    QTimer timer;
    timer.setInterval(10);
    connect(&timer, &QTimer::timeout, this, [&] {
        auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        if (!menu || !menu->isVisible())
            return;
        timer.stop();
        styleSheet = menu->styleSheet();
        QTest::keyClick(menu, Qt::Key_Escape);
    });
    timer.start();
    QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint(3, 3), edit->mapToGlobal(QPoint(3, 3)));
    QApplication::sendEvent(edit, &event);
    QTRY_VERIFY_WITH_TIMEOUT(!QApplication::activePopupWidget(), Probe::kTimeoutMs);

    const QColor background = Probe::ThemeColor(ThemeFileKey::MenuBuiltInBackgroundColor1);
    const QColor border = Probe::ThemeColor(ThemeFileKey::MenuBuiltInBorderColor1);
    const QColor separator = Probe::ThemeColor(ThemeFileKey::MenuBuiltInSeparator1);
    QVERIFY(background.isValid() && border.isValid() && separator.isValid());
    QVERIFY2(styleSheet.startsWith(QStringLiteral("QMenu{background-color: ") + background.name(QColor::HexArgb) +
                                   QStringLiteral("; border:")),
             qPrintable(styleSheet));
    QVERIFY(styleSheet.contains(border.name(QColor::HexArgb) + QStringLiteral("; border-radius: 4px} ")));
    QVERIFY(styleSheet.contains(QStringLiteral("QMenu::separator{height: 1px; background-color: ") +
                                separator.name(QColor::HexArgb) + QStringLiteral("}")));
    // Opening the menu took the focus for a moment; the selection is still
    // there. (The window's activation comes back through the platform, which
    // may be late on a busy machine.)
    QVERIFY(Probe::ShowActive(edit->window()));
    QTRY_VERIFY_WITH_TIMEOUT(edit->hasFocus(), Probe::kTimeoutMs);
    QCOMPARE(edit->selectedText(), QStringLiteral("keep me selected"));
}

QTEST_MAIN(tst_LineEdit)
#include "tst_lineedit.moc"
