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
    void init() { QVERIFY(mEdit = shownLineEdit()); }
    void cleanup()
    {
        qDeleteAll(mWidgets);
        mWidgets.clear();
        QVERIFY(ThemeManager::GetInstance()->SetCurrentTheme(QStringLiteral("Light")));
    }

    void focusPolicyAndSizeHints()
    {
        LineEdit standAlone;
        QCOMPARE(standAlone.focusPolicy(), Qt::StrongFocus);
        // The embedded editor leaves the focus policy to its box.
        LineEdit embedded(nullptr, true);
        QCOMPARE(embedded.focusPolicy(), QLineEdit().focusPolicy());
        QCOMPARE(standAlone.sizeHint(), QSize(QWIDGETSIZE_MAX, standAlone.fontMetrics().height() + 2));
        QVERIFY(!standAlone.minimumSizeHint().isValid());
    }

    void promptingShowsInItalicsWhileEmptyAndUnfocused()
    {
        mEdit->SetPrompting(QStringLiteral("Search"));
        QVERIFY(mEdit->IsPrompting());
        QCOMPARE(mEdit->text(), QStringLiteral("Search"));
        QCOMPARE(mEdit->GetText(), QString());
        QVERIFY(mEdit->font().italic());
        QVERIFY(mEdit->GetCurrentFont().italic());

        QVERIFY(focus(mEdit));
        QVERIFY(!mEdit->IsPrompting());
        QCOMPARE(mEdit->text(), QString());
        QVERIFY(!mEdit->font().italic());

        QVERIFY(Probe::Unfocus(mEdit));
        QTRY_VERIFY(mEdit->IsPrompting());

        // Text set by code ends the prompting and announces the full text once.
        QSignalSpy changed(mEdit, &QLineEdit::textChanged);
        mEdit->SetText(QStringLiteral("value"));
        QVERIFY(!mEdit->IsPrompting());
        QCOMPARE(mEdit->GetText(), QStringLiteral("value"));
        mEdit->SetText(QStringLiteral("value"));
        QCOMPARE(changed.count(), 1);
        QCOMPARE(changed.at(0).at(0).toString(), QStringLiteral("value"));
        // Emptying shows the hint again, until the prompting is unset.
        mEdit->SetText(QString());
        QVERIFY(mEdit->IsPrompting());
        QCOMPARE(mEdit->GetText(), QString());
        mEdit->UnsetPrompting();
        QVERIFY(!mEdit->IsPrompting());
        QCOMPARE(mEdit->text(), QString());
    }

    void longTextIsElidedUntilFocused_data()
    {
        QTest::addColumn<Qt::TextElideMode>("mode");
        QTest::newRow("right") << Qt::ElideRight;
        QTest::newRow("middle") << Qt::ElideMiddle;
        QTest::newRow("left") << Qt::ElideLeft;
    }

    void longTextIsElidedUntilFocused()
    {
        QFETCH(Qt::TextElideMode, mode);
        const QString longText = QStringLiteral("C:/Projects/House/Textures/brick_wall_diffuse_4k.png");
        mEdit->SetElideMode(mode);
        QCOMPARE(mEdit->GetElideMode(), mode);
        mEdit->SetText(longText);
        QVERIFY(mEdit->text() != longText);
        QVERIFY(mEdit->text().contains(QChar(0x2026)));
        QCOMPARE(mEdit->GetText(), longText);

        QVERIFY(focus(mEdit));
        QTRY_COMPARE(mEdit->text(), longText);
        QVERIFY(Probe::Unfocus(mEdit));
        QTRY_VERIFY(mEdit->text() != longText);

        // Wide enough: shown whole.
        mEdit->window()->resize(900, 80);
        QTRY_COMPARE(mEdit->text(), longText);
    }

    void firstClickSelectsAllOnlyOnce()
    {
        mEdit->SetText(QStringLiteral("select me"));
        // A click focuses the edit only in the active window; another window may
        // have been activated meanwhile on a busy machine.
        const auto click = [this] {
            QVERIFY(Probe::ShowActive(mEdit->window()));
            QTest::mouseClick(mEdit, Qt::LeftButton, {}, QPoint(5, mEdit->height() / 2));
            QTRY_VERIFY_WITH_TIMEOUT(mEdit->hasFocus(), Probe::kTimeoutMs);
        };
        click();
        QCOMPARE(mEdit->selectedText(), QStringLiteral("select me"));
        QCOMPARE(mEdit->HoverState(), 1);
        click();
        QCOMPARE(mEdit->selectedText(), QString());

        // Leaving forgets it.
        QVERIFY(Probe::Unfocus(mEdit));
        click();
        QCOMPARE(mEdit->selectedText(), QStringLiteral("select me"));

        QVERIFY(Probe::Unfocus(mEdit));
        mEdit->AllowFocusInSelectAll(false);
        click();
        QCOMPARE(mEdit->selectedText(), QString());
    }

    void homeAlwaysKeepsTheCursorAtTheStartAndReturnSelectsAll()
    {
        mEdit->SetText(QStringLiteral("abcdef"));
        QCOMPARE(mEdit->cursorPosition(), 6);
        mEdit->SetHomeAlways(true);
        mEdit->SetText(QStringLiteral("ghijkl"));
        QCOMPARE(mEdit->cursorPosition(), 0);
        mEdit->setCursorPosition(4);
        QVERIFY(focus(mEdit));
        QCOMPARE(mEdit->cursorPosition(), 0);
        QTest::keyClicks(mEdit, QStringLiteral("typed"));
        QCOMPARE(mEdit->selectedText(), QString());
        QTest::keyClick(mEdit, Qt::Key_Return);
        QCOMPARE(mEdit->selectedText(), QStringLiteral("typedghijkl"));
    }

    void hoverStateAndEnterSignal()
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

    void preventedContextMenuDoesNotOpen()
    {
        mEdit->SetPreventContextMenu(true);
        QContextMenuEvent event(QContextMenuEvent::Mouse, QPoint(3, 3), mEdit->mapToGlobal(QPoint(3, 3)));
        // A context menu would run a modal loop here; a prevented one returns at once.
        QApplication::sendEvent(mEdit, &event);
        QVERIFY(event.isAccepted());
        QVERIFY(!QApplication::activePopupWidget());
    }

    void contextMenuFollowsTheThemeAndKeepsTheSelection_data()
    {
        QTest::addColumn<QString>("theme");
        QTest::newRow("Light") << "Light";
        QTest::newRow("Dark") << "Dark";
        QTest::newRow("HIGLight") << "HIGLight";
    }

    void contextMenuFollowsTheThemeAndKeepsTheSelection()
    {
        QFETCH(QString, theme);
        QVERIFY(ThemeManager::GetInstance()->SetCurrentTheme(theme));
        mEdit->SetText(QStringLiteral("keep me selected"));
        QVERIFY(focus(mEdit));
        mEdit->selectAll();

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
        QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint(3, 3), mEdit->mapToGlobal(QPoint(3, 3)));
        QApplication::sendEvent(mEdit, &event);
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
        QVERIFY(Probe::ShowActive(mEdit->window()));
        QTRY_VERIFY_WITH_TIMEOUT(mEdit->hasFocus(), Probe::kTimeoutMs);
        QCOMPARE(mEdit->selectedText(), QStringLiteral("keep me selected"));
    }

private:
    LineEdit* shownLineEdit()
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

    static bool focus(LineEdit* edit) { return Probe::Focus(edit, Qt::TabFocusReason); }
    QList<QWidget*> mWidgets;
    LineEdit* mEdit = nullptr;
};

QTEST_MAIN(tst_LineEdit)
#include "tst_lineedit.moc"
