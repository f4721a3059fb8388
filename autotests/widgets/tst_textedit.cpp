#include "../PaintProbe.h"

#include <KvUICore/theme/ThemeFileKey.h>
#include <KvUICore/widgets/TextEdit.h>

#include <QAccessible>
#include <QClipboard>
#include <QGuiApplication>
#include <QLineEdit>
#include <QMimeData>
#include <QSignalSpy>
#include <QTest>

using namespace Kavrel::UICore;

class tst_TextEdit : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { Probe::UseRepositoryThemes(); }
    void cleanup()
    {
        qDeleteAll(mWidgets);
        mWidgets.clear();
    }

    void pasteBeyondTheLimitKeepsWhatFits_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("selectionStart");
        QTest::addColumn<int>("caret");
        QTest::addColumn<QString>("pasted");
        QTest::addColumn<QString>("result");
        QTest::addColumn<int>("caretAfter");
        // Limit 10 throughout.
        QTest::newRow("fits whole") << "abc" << 3 << 3 << "def" << QStringLiteral("abcdef") << 6;
        QTest::newRow("cut to the room left") << "abcdefgh" << 4 << 4 << "XYZ" << QStringLiteral("abcdXYefgh") << 6;
        QTest::newRow("replaces the selection")
            << "abcdefghij" << 2 << 5 << "12345" << QStringLiteral("ab123fghij") << 5;
        QTest::newRow("full: nothing changes, caret kept")
            << "abcdefghij" << 4 << 4 << "zz" << QStringLiteral("abcdefghij") << 4;
        QTest::newRow("never half a surrogate pair")
            << "abcdefghi" << 9 << 9 << QString::fromUtf8("\xF0\x9F\x8C\xB3") << "abcdefghi" << 9;
    }

    void pasteBeyondTheLimitKeepsWhatFits()
    {
        QFETCH(QString, text);
        QFETCH(int, selectionStart);
        QFETCH(int, caret);
        QFETCH(QString, pasted);
        TextEdit edit;
        edit.SetMaximumLength(10);
        edit.SetText(text);
        QTextCursor cursor = edit.textCursor();
        cursor.setPosition(selectionStart);
        cursor.setPosition(caret, QTextCursor::KeepAnchor);
        edit.setTextCursor(cursor);
        QGuiApplication::clipboard()->setText(pasted);
        edit.paste();
        QTEST(edit.GetText(), "result");
        QTEST(edit.textCursor().position(), "caretAfter");
        QVERIFY(edit.GetLength() <= 10);
    }

    void typingStopsAtTheLimit()
    {
        TextEdit edit;
        edit.SetMaximumLength(5);
        QTest::keyClicks(&edit, QStringLiteral("abcd"));
        QTest::keyClick(&edit, Qt::Key_Return);
        QTest::keyClicks(&edit, QStringLiteral("xyz"));
        QCOMPARE(edit.GetText(), QStringLiteral("abcd\n"));
        // Deleting makes room again.
        QTest::keyClick(&edit, Qt::Key_Backspace);
        QTest::keyClicks(&edit, QStringLiteral("e"));
        QCOMPARE(edit.GetText(), QStringLiteral("abcde"));
    }

    void loweringTheLimitCutsTheText()
    {
        TextEdit edit;
        edit.SetText(QStringLiteral("a long paragraph"));
        edit.SetMaximumLength(6);
        QCOMPARE(edit.GetText(), QStringLiteral("a long"));
        edit.SetText(QStringLiteral("0123456789"));
        QCOMPARE(edit.GetText(), QStringLiteral("012345"));
        edit.SetMaximumLength(0);
        edit.SetText(QStringLiteral("0123456789"));
        QCOMPARE(edit.GetLength(), 10);
    }

    void focusOutCommitsOnlyAChange()
    {
        auto* edit = Probe::ShownWithOther<TextEdit>(mWidgets, QSize(240, 160));
        QVERIFY(edit);
        auto* other = edit->window()->findChild<QLineEdit*>(QStringLiteral("other"));
        edit->SetText(QStringLiteral("first"));
        QSignalSpy committed(edit, &TextEdit::TextCommitted);
        QVERIFY(Probe::Focus(edit));
        QVERIFY(Probe::Focus(other));
        QCOMPARE(committed.count(), 0);

        QVERIFY(Probe::Focus(edit));
        edit->moveCursor(QTextCursor::End);
        QTest::keyClicks(edit, QStringLiteral(" line"));
        QCOMPARE(committed.count(), 0);
        other->setFocus();
        QTRY_COMPARE(committed.count(), 1);
        QCOMPARE(committed.first().first().toString(), QStringLiteral("first line"));
        QCOMPARE(edit->GetCommittedText(), QStringLiteral("first line"));

        // Ctrl+Return commits without leaving.
        QVERIFY(Probe::Focus(edit));
        QTest::keyClicks(edit, QStringLiteral("!"));
        QTest::keyClick(edit, Qt::Key_Return, Qt::ControlModifier);
        QCOMPARE(committed.count(), 2);
        QVERIFY(!edit->GetText().contains(QLatin1Char('\n')));
    }

    void escapeReturnsToTheCommittedText()
    {
        TextEdit edit;
        edit.SetText(QStringLiteral("kept"));
        edit.moveCursor(QTextCursor::End);
        QTest::keyClicks(&edit, QStringLiteral(" typed"));
        QKeyEvent escape(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
        QCoreApplication::sendEvent(&edit, &escape);
        QVERIFY(escape.isAccepted());
        QCOMPARE(edit.GetText(), QStringLiteral("kept"));
        // Nothing left to undo: the window gets the key.
        QKeyEvent again(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
        QCoreApplication::sendEvent(&edit, &again);
        QVERIFY(!again.isAccepted());
    }

    void focusShowsTheHaloInTheThemesColour()
    {
        auto* edit = Probe::ShownWithOther<TextEdit>(mWidgets, QSize(240, 160));
        QVERIFY(edit);
        const QPoint border(edit->width() / 2, 1);
        PROBE_COMPARE_COLOR(Probe::PixelAt(Probe::Grab(edit), border), Probe::ThemeColor(ThemeFileKey::WidgetOutline3));
        QVERIFY(Probe::Focus(edit));
        const QImage focused = Probe::Grab(edit);
        PROBE_COMPARE_COLOR(Probe::PixelAt(focused, border), Probe::ThemeColor(ThemeFileKey::FocusOutline2));
        PROBE_COMPARE_COLOR(Probe::PixelAt(focused, QPoint(edit->width() / 2, 0)),
                            Probe::ThemeColor(ThemeFileKey::WidgetOutline6));
    }

    void promptNamesTheField()
    {
        TextEdit edit;
        edit.SetPrompt(QStringLiteral("Notes"));
        QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(&edit);
        QCOMPARE(accessible->role(), QAccessible::EditableText);
        QCOMPARE(accessible->text(QAccessible::Name), QStringLiteral("Notes"));
        edit.setAccessibleName(QStringLiteral("Material notes"));
        edit.SetPrompt(QStringLiteral("Type notes"));
        QCOMPARE(edit.accessibleName(), QStringLiteral("Material notes"));
    }

private:
    QList<QWidget*> mWidgets;
};

QTEST_MAIN(tst_TextEdit)
#include "tst_textedit.moc"
