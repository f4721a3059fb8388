// test-options: SCALES 1.25 1.5 2 LABELS visual
#include "../PaintProbe.h"

#include <KvUICore/theme/ThemeFileKey.h>
#include <KvUICore/widgets/LineEdit.h>
#include <KvUICore/widgets/TextBox.h>

#include <QAction>
#include <QApplication>
#include <QBoxLayout>
#include <QPainter>
#include <QSignalSpy>
#include <QTest>
#include <QToolTip>

using namespace Kavrel::UICore;

namespace {

const QString kTooLong = QStringLiteral("The name is too long.");
const QString kForbidden = QStringLiteral("The name holds a character that is not allowed.");

QIcon solidIcon(const QColor& color)
{
    QPixmap pixmap(32, 32);
    pixmap.fill(color);
    return QIcon(pixmap);
}

// Gives the box the focus, or moves it to the window's other line edit.
bool FocusBox(TextBox* box)
{
    box->setFocus(Qt::TabFocusReason);
    return QTest::qWaitFor([box] { return box->GetLineEdit()->hasFocus(); });
}

void FocusElsewhere(TextBox* box)
{
    box->window()->findChildren<QLineEdit*>().last()->setFocus(Qt::TabFocusReason);
}

} // namespace

class tst_TextBox : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { Probe::UseRepositoryThemes(); }
    void cleanup()
    {
        qDeleteAll(mWidgets);
        mWidgets.clear();
        QToolTip::hideText();
        QVERIFY(ThemeManager::GetInstance()->SetCurrentTheme(QStringLiteral("Light")));
    }

    void validateText_data()
    {
        QTest::addColumn<QString>("in");
        QTest::addColumn<bool>("valid");
        QTest::addColumn<QString>("out");
        QTest::addColumn<QString>("error");

        const QString ten(10, QLatin1Char('a')), eleven(11, QLatin1Char('a'));
        QTest::newRow("plain") << "name" << true << "name" << QString();
        QTest::newRow("empty") << "" << true << "" << QString();
        QTest::newRow("leading and trailing blanks") << " name " << true << "name" << QString();
        QTest::newRow("inner blank kept") << "my name" << true << "my name" << QString();
        QTest::newRow("exactly the maximum") << ten << true << ten << QString();
        QTest::newRow("one above the maximum") << eleven << false << eleven << kTooLong;
        const QString forbidden = QStringLiteral("\\/:*?\"<>|;=`,");
        for (QChar c : forbidden) {
            const QString text = QStringLiteral("a") + c + QStringLiteral("b");
            QTest::newRow(qPrintable(QStringLiteral("forbidden ") + c)) << text << false << text << kForbidden;
        }
        QTest::newRow("length checked first") << QStringLiteral("a:bcdefghijk") << false << "a:bcdefghijk" << kTooLong;
    }

    void validateText()
    {
        QFETCH(QString, in);

        TextBox box;
        box.TextValidationInitialize({kTooLong, kForbidden}, 10);
        QString result, message;
        QTEST(box.ValidateText(in, result, message), "valid");
        QTEST(result, "out");
        QTEST(message, "error");
    }

    void validateCutsAndLooksForAllowedCharacters()
    {
        TextBox box;
        box.SetText(QString(300, QLatin1Char('x')));
        QVERIFY(box.Validate());
        QCOMPARE(box.GetText().size(), 255);

        box.SetText(QStringLiteral(":*?"));
        QVERIFY(!box.Validate());
        box.SetText(QStringLiteral(":a?"));
        QVERIFY(box.Validate());
        box.SetText(QString());
        QVERIFY(!box.Validate());
    }

    void typedNamesAreTrimmedAndReturnRestoresLastValidText()
    {
        TextBox* box = shownBox();
        QVERIFY(box);
        box->SetNeedValidate(true);
        box->TextValidationInitialize({kTooLong, kForbidden}, 64);
        box->SetText(QStringLiteral("drawing"));
        QSignalSpy finished(box, &TextBox::EditingFinished);
        QSignalSpy returned(box, &TextBox::ReturnPressed);
        QLineEdit* editor = box->GetLineEdit();
        QVERIFY(FocusBox(box));
        editor->selectAll();
        QTest::keyClicks(editor, QStringLiteral(" name "));
        QCOMPARE(editor->text(), QStringLiteral(" name "));
        // Leaving the box ends the editing; the trimmed text becomes the last valid one.
        FocusElsewhere(box);
        QTRY_COMPARE(finished.count(), 1);
        QCOMPARE(box->GetText(), QStringLiteral("name"));

        QVERIFY(FocusBox(box));
        editor->selectAll();
        QTest::keyClicks(editor, QStringLiteral("part:one"));
        QCOMPARE(editor->text(), QStringLiteral("part:one"));
        QTRY_VERIFY(QToolTip::isVisible());
        QCOMPARE(QToolTip::text(), kForbidden);
        QTest::keyClick(editor, Qt::Key_Return);
        QCOMPARE(returned.count(), 1);
        QVERIFY(finished.count() >= 2);
        QCOMPARE(box->GetText(), QStringLiteral("name"));

        // A valid text hides the error again.
        editor->selectAll();
        QTest::keyClicks(editor, QStringLiteral("part"));
        QTRY_VERIFY(!QToolTip::isVisible());
    }

    void validationWithoutInitializationRejectsEveryText()
    {
        TextBox* box = shownBox();
        QVERIFY(box);
        box->SetNeedValidate(true);
        QVERIFY(FocusBox(box));
        QTest::keyClicks(box->GetLineEdit(), QStringLiteral("abc"));
        // Invalid, but there is no message to show.
        QVERIFY(!QToolTip::isVisible());
        QTest::keyClick(box->GetLineEdit(), Qt::Key_Return);
        QCOMPARE(box->GetText(), QString());
    }

    void setTextWithValidationTakesOnlyValidText()
    {
        TextBox box;
        box.SetNeedValidate(true);
        box.TextValidationInitialize({kTooLong, kForbidden}, 8);
        QSignalSpy changed(&box, &TextBox::TextChanged);
        QSignalSpy edited(&box, &TextBox::TextEdited);
        for (const char* text : {"  ok  ", "no|pe", "far too long", "ok"}) {
            box.SetText(QString::fromLatin1(text));
            QCOMPARE(box.GetText(), QStringLiteral("ok"));
        }
        // Only a change is announced, and never as an edit.
        QCOMPARE(changed.count(), 1);
        QCOMPARE(changed.at(0).at(0).toString(), QStringLiteral("ok"));
        box.UpdateText(QStringLiteral("fine"));
        QCOMPARE(box.GetText(), QStringLiteral("fine"));
        QCOMPARE(box.GetLineEdit()->cursorPosition(), 0);
        QCOMPARE(edited.count(), 0);
    }

    void cutTextBecomesTheEditorTooltip()
    {
        TextBox* box = shownBox(120);
        QVERIFY(box);
        const QString longText = QStringLiteral("a rather long name that cannot fit in the box");
        box->SetText(longText);
        QCOMPARE(box->GetLineEdit()->toolTip(), longText);
        box->SetText(QStringLiteral("short"));
        QCOMPARE(box->GetLineEdit()->toolTip(), QString());

        // A tooltip of the box's own wins, and is copied to the editor.
        box->setToolTip(QStringLiteral("own"));
        QCOMPARE(box->GetLineEdit()->toolTip(), QStringLiteral("own"));
        box->SetText(longText);
        QCOMPARE(box->GetLineEdit()->toolTip(), QStringLiteral("own"));

        box->SetIsTooltipEnabled(false);
        QCOMPARE(box->GetLineEdit()->toolTip(), QString());
    }

    void editorActivityIsRepublishedAndPageKeysJump()
    {
        TextBox* box = shownBox();
        QVERIFY(box);
        QSignalSpy edited(box, &TextBox::TextEdited);
        QSignalSpy cursor(box, &TextBox::CursorPositionChanged);
        QSignalSpy selection(box, &TextBox::SelectionChanged);
        QSignalSpy focusIn(box, &TextBox::FocusIn);
        QSignalSpy focusOut(box, &TextBox::FocusOut);
        QSignalSpy escape(box, &TextBox::EscapePressed);
        LineEdit* editor = box->GetLineEdit();

        box->setTabFocus();
        QTRY_VERIFY(box->GetLineEdit()->hasFocus());
        QCOMPARE(focusIn.count(), 1);
        QTest::keyClicks(box->GetLineEdit(), QStringLiteral("ab"));
        QCOMPARE(edited.count(), 2);
        QCOMPARE(edited.last().at(0).toString(), QStringLiteral("ab"));
        QVERIFY(cursor.count() >= 2);
        QCOMPARE(cursor.last().at(1).toInt(), 2);
        box->GetLineEdit()->selectAll();
        QVERIFY(selection.count() >= 1);
        QTest::keyClick(editor, Qt::Key_Escape);
        QCOMPARE(escape.count(), 1);
        // Page keys jump to the ends.
        editor->setCursorPosition(1);
        QTest::keyClick(editor, Qt::Key_PageDown);
        QCOMPARE(editor->cursorPosition(), 2);
        QTest::keyClick(editor, Qt::Key_PageUp);
        QCOMPARE(editor->cursorPosition(), 0);

        FocusElsewhere(box);
        QTRY_COMPARE(focusOut.count(), 1);
    }

    void iconClickTriggersActionOnlyForLeftButton_data()
    {
        QTest::addColumn<Qt::MouseButton>("button");
        QTest::addColumn<bool>("releaseElsewhere");
        QTest::addColumn<int>("triggered");
        QTest::newRow("left") << Qt::LeftButton << false << 1;
        QTest::newRow("left, released elsewhere on the icon") << Qt::LeftButton << true << 1;
        QTest::newRow("right") << Qt::RightButton << false << 0;
        QTest::newRow("middle") << Qt::MiddleButton << false << 0;
    }

    void iconClickTriggersActionOnlyForLeftButton()
    {
        QFETCH(Qt::MouseButton, button);
        QFETCH(bool, releaseElsewhere);
        QFETCH(int, triggered);

        TextBox* box = shownBox();
        QVERIFY(box);
        auto* action = new QAction(solidIcon(Qt::red), QStringLiteral("Browse"), box);
        box->SetImageAction(action);
        QSignalSpy actionSpy(action, &QAction::triggered);
        QSignalSpy clicked(box, &TextBox::ImageClicked);
        QWidget* label = box->GetImageLabel();
        QTRY_VERIFY(label->isVisible());
        const QPoint press = releaseElsewhere ? QPoint(2, 2) : label->rect().center();
        QTest::mousePress(label, button, Qt::NoModifier, press);
        QTest::mouseRelease(label, button, Qt::NoModifier,
                            releaseElsewhere ? label->rect().bottomRight() - QPoint(2, 2) : press);
        QCOMPARE(actionSpy.count(), triggered);
        QCOMPARE(clicked.count(), triggered);
        // A release without a press on the icon does nothing.
        QTest::mouseRelease(label, Qt::LeftButton, Qt::NoModifier, QPoint(3, 3));
        QCOMPARE(actionSpy.count(), triggered);
    }

    void iconsFromActionsAndNullIconHidesLabel()
    {
        TextBox* box = shownBox();
        QVERIFY(box);
        QCOMPARE(box->GetIconPosition(), TextBox::NoIcon);
        box->SetIcon(solidIcon(Qt::green));
        QCOMPARE(box->GetIconPosition(), TextBox::OuterLeft);
        QTRY_VERIFY(box->GetImageLabel()->isVisible());

        box->SetIcon(QIcon());
        QCOMPARE(box->GetIconPosition(), TextBox::NoIcon);
        QVERIFY(box->GetImageLabel()->isHidden());
        QCOMPARE(box->layout()->contentsMargins(), QMargins(4, 0, 4, 0));
        QCOMPARE(box->layout()->spacing(), 0);

        // An image action without an icon gives none until it gets one.
        QAction action(QStringLiteral("Pick"));
        box->SetImageAction(&action);
        QVERIFY(box->GetIcon().isNull());
        const QIcon icon = solidIcon(Qt::cyan);
        action.setIcon(icon);
        QCOMPARE(box->GetIcon().cacheKey(), icon.cacheKey());
        QCOMPARE(box->GetIconPosition(), TextBox::OuterLeft);
        QCOMPARE(box->property("imageAction").value<QAction*>(), &action);
    }

    void iconPositionLayouts_data()
    {
        QTest::addColumn<TextBox::IconPosition>("position");
        QTest::addColumn<QMargins>("margins");
        QTest::addColumn<int>("spacing");
        QTest::addColumn<bool>("iconLeft");

        // Text margins 4, image margins 3.
        QTest::newRow("outer left") << TextBox::OuterLeft << QMargins(0, 0, 4, 0) << 7 << true;
        QTest::newRow("outer right") << TextBox::OuterRight << QMargins(4, 0, 0, 0) << 7 << false;
        QTest::newRow("inner left") << TextBox::InnerLeft << QMargins(3, 0, 4, 0) << 4 << true;
        QTest::newRow("inner right") << TextBox::InnerRight << QMargins(4, 0, 3, 0) << 4 << false;
    }

    void iconPositionLayouts()
    {
        QFETCH(TextBox::IconPosition, position);
        QFETCH(QMargins, margins);
        QFETCH(int, spacing);
        QFETCH(bool, iconLeft);

        TextBox* box = shownBox();
        QVERIFY(box);
        box->SetIcon(solidIcon(Qt::magenta));
        box->SetIconPosition(position);
        QCOMPARE(box->property("iconPosition").value<TextBox::IconPosition>(), position);
        QCOMPARE(box->layout()->contentsMargins(), margins);
        QCOMPARE(box->layout()->spacing(), spacing);
        box->layout()->activate();
        const QRect icon = box->GetImageLabel()->geometry();
        const QRect editor = box->GetLineEdit()->geometry();
        // The icon is square: the box height less the image margins.
        QCOMPARE(icon.size(), QSize(box->height() - 6, box->height() - 6));
        if (iconLeft) {
            QCOMPARE(icon.left(), margins.left());
            QCOMPARE(editor.left(), icon.right() + 1 + spacing);
        } else {
            QCOMPARE(icon.right(), box->width() - 1 - margins.right());
            QCOMPARE(editor.right(), icon.left() - 1 - spacing);
        }
    }

    void paintsPanelAndBorderFromTheme_data()
    {
        QTest::addColumn<QString>("theme");
        QTest::newRow("Light") << "Light";
        QTest::newRow("Dark") << "Dark";
        QTest::newRow("HIGLight") << "HIGLight";
    }

    void paintsPanelAndBorderFromTheme()
    {
        QFETCH(QString, theme);
        QVERIFY(ThemeManager::GetInstance()->SetCurrentTheme(theme));
        TextBox* box = shownBox();
        QVERIFY(box);
        // Right of the (empty) text, inside the panel; and the middle of the top edge.
        const QPoint interior(box->width() - 8, box->height() / 2);
        const QPoint topEdge(box->width() / 2, 1);
        const auto expect = [&](const QString& background, const QString& border, const char* state) {
            const QImage image = Probe::Grab(box);
            QVERIFY2(Probe::ThemeColor(background).isValid() && Probe::ThemeColor(border).isValid(), state);
            QVERIFY2(Probe::PixelAt(image, interior).rgb() == Probe::ThemeColor(background).rgb(), state);
            QVERIFY2(Probe::PixelAt(image, topEdge).rgb() == Probe::ThemeColor(border).rgb(), state);
        };
        expect(ThemeFileKey::WidgetContainer9, ThemeFileKey::WidgetOutline3, "normal");
        box->setAttribute(Qt::WA_UnderMouse, true);
        expect(ThemeFileKey::WidgetContainer12, ThemeFileKey::HoverOutline4, "hovered");
        box->setAttribute(Qt::WA_UnderMouse, false);

        // Focused: a halo inside the outline.
        QVERIFY(FocusBox(box));
        expect(ThemeFileKey::WidgetContainer12, ThemeFileKey::FocusOutline2, "focused");
        QCOMPARE(Probe::PixelAt(Probe::Grab(box), QPoint(box->width() / 2, 0)).rgb(),
                 Probe::ThemeColor(ThemeFileKey::WidgetOutline6).rgb());

        FocusElsewhere(box);
        box->setEnabled(false);
        expect(ThemeFileKey::WidgetContainerDisable, ThemeFileKey::WidgetOutlineDisable, "disabled");
        // The editor's text is dimmed to 40 %.
        QCOMPARE(box->GetLineEdit()->GetTextColor().alpha(), 102);
    }

    void outerIconStaysOutsideTheFrame()
    {
        TextBox* box = shownBox();
        QVERIFY(box);
        box->SetIcon(solidIcon(Qt::transparent));
        box->SetIconPosition(TextBox::OuterLeft);
        box->layout()->activate();
        const QColor background = Probe::ThemeColor(ThemeFileKey::WidgetContainer9);
        const QImage image = Probe::Grab(box);
        const QRect editor = box->GetLineEdit()->geometry();
        // The frame starts 4 pixels left of the editor; the icon column left of it is not painted.
        const QPoint frameLeft(editor.left() - 4, box->height() / 2);
        QCOMPARE(Probe::PixelAt(image, frameLeft + QPoint(3, 0)).rgb(), background.rgb());
        QVERIFY(Probe::PixelAt(image, QPoint(2, box->height() / 2)).rgb() != background.rgb() ||
                Probe::PixelAt(image, QPoint(2, box->height() / 2)).alpha() == 0);
    }

    void sharedFrameAndPanelPainters()
    {
        const QRect rect(2, 2, 20, 12);
        const QColor outline(10, 20, 30);
        const QColor fill(200, 210, 220);
        const auto paint = [&](auto draw, const QColor& color) {
            QImage image(24, 16, QImage::Format_ARGB32);
            image.fill(Qt::transparent);
            QPainter painter(&image);
            draw(&painter, rect, color, 1);
            return image;
        };
        const QImage frame = paint(&TextBox::DrawTextBoxFrame, outline);
        for (const QPoint& edge : {QPoint(12, 2), QPoint(2, 8), QPoint(21, 8), QPoint(12, 13)})
            QCOMPARE(frame.pixelColor(edge), outline);
        // Transparent inside, and the corners stay empty.
        QCOMPARE(frame.pixelColor(12, 8).alpha(), 0);
        QCOMPARE(frame.pixelColor(2, 2).alpha(), 0);

        const QImage panel = paint(&TextBox::DrawTextBoxPanel, fill);
        QCOMPARE(panel.pixelColor(12, 8), fill);
        QCOMPARE(panel.pixelColor(3, 3), fill);
        // The outline is transparent.
        QCOMPARE(panel.pixelColor(12, 2).alpha(), 0);
    }

    void promptingTextShowsWhileEmptyAndUnfocused()
    {
        TextBox* box = shownBox();
        QVERIFY(box);
        box->SetPrompt(QStringLiteral("Type a name"));
        LineEdit* editor = box->GetLineEdit();
        QVERIFY(editor->IsPrompting());
        QCOMPARE(editor->text(), QStringLiteral("Type a name"));
        QCOMPARE(box->GetText(), QString());
        QVERIFY(editor->font().italic());

        QVERIFY(FocusBox(box));
        QVERIFY(!editor->IsPrompting());
        QCOMPARE(editor->text(), QString());
        QVERIFY(!editor->font().italic());

        QTest::keyClicks(editor, QStringLiteral("x"));
        FocusElsewhere(box);
        QTRY_VERIFY(!editor->hasFocus());
        QVERIFY(!editor->IsPrompting());
        QCOMPARE(box->GetText(), QStringLiteral("x"));

        box->UnsetPrompting();
        box->SetText(QString());
        QVERIFY(!editor->IsPrompting());
        QCOMPARE(editor->text(), QString());
    }

    void accessibleNamesAndSizeHints()
    {
        TextBox box;
        QCOMPARE(box.GetLineEdit()->accessibleName(), QStringLiteral("mpTextBoxControl"));
        QCOMPARE(box.GetImageLabel()->accessibleName(), QStringLiteral("mpImageControl"));
        box.setProperty("readOnly", true);
        QVERIFY(box.GetLineEdit()->isReadOnly());
        QCOMPARE(box.sizeHint(), QSize(120, 24));
        QVERIFY(!box.minimumSizeHint().isValid());
        QCOMPARE(box.GetLineEdit()->height(), 24);
        QCOMPARE(box.focusProxy(), box.GetLineEdit());
    }

private:
    TextBox* shownBox(int width = 200) { return Probe::ShownWithOther<TextBox>(mWidgets, QSize(width, 80)); }

    QList<QWidget*> mWidgets;
};

QTEST_MAIN(tst_TextBox)
#include "tst_textbox.moc"
