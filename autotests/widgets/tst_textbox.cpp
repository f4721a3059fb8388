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
    void init() { QVERIFY(mBox = shownBox()); }
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

        mBox->TextValidationInitialize({kTooLong, kForbidden}, 10);
        QString result, message;
        QTEST(mBox->ValidateText(in, result, message), "valid");
        QTEST(result, "out");
        QTEST(message, "error");
    }

    void validateCutsAndLooksForAllowedCharacters()
    {
        mBox->SetText(QString(300, QLatin1Char('x')));
        QVERIFY(mBox->Validate());
        QCOMPARE(mBox->GetText().size(), 255);

        mBox->SetText(QStringLiteral(":*?"));
        QVERIFY(!mBox->Validate());
        mBox->SetText(QStringLiteral(":a?"));
        QVERIFY(mBox->Validate());
        mBox->SetText(QString());
        QVERIFY(!mBox->Validate());
    }

    void typedNamesAreTrimmedAndReturnRestoresLastValidText()
    {
        mBox->SetNeedValidate(true);
        mBox->TextValidationInitialize({kTooLong, kForbidden}, 64);
        mBox->SetText(QStringLiteral("drawing"));
        QSignalSpy finished(mBox, &TextBox::EditingFinished);
        QSignalSpy returned(mBox, &TextBox::ReturnPressed);
        QLineEdit* editor = mBox->GetLineEdit();
        QVERIFY(FocusBox(mBox));
        editor->selectAll();
        QTest::keyClicks(editor, QStringLiteral(" name "));
        QCOMPARE(editor->text(), QStringLiteral(" name "));
        // Leaving the box ends the editing; the trimmed text becomes the last valid one.
        FocusElsewhere(mBox);
        QTRY_COMPARE(finished.count(), 1);
        QCOMPARE(mBox->GetText(), QStringLiteral("name"));

        QVERIFY(FocusBox(mBox));
        editor->selectAll();
        QTest::keyClicks(editor, QStringLiteral("part:one"));
        QCOMPARE(editor->text(), QStringLiteral("part:one"));
        QTRY_VERIFY(QToolTip::isVisible());
        QCOMPARE(QToolTip::text(), kForbidden);
        QTest::keyClick(editor, Qt::Key_Return);
        QCOMPARE(returned.count(), 1);
        QVERIFY(finished.count() >= 2);
        QCOMPARE(mBox->GetText(), QStringLiteral("name"));

        // A valid text hides the error again.
        editor->selectAll();
        QTest::keyClicks(editor, QStringLiteral("part"));
        QTRY_VERIFY(!QToolTip::isVisible());
    }

    void validationWithoutInitializationRejectsEveryText()
    {
        mBox->SetNeedValidate(true);
        QVERIFY(FocusBox(mBox));
        QTest::keyClicks(mBox->GetLineEdit(), QStringLiteral("abc"));
        // Invalid, but there is no message to show.
        QVERIFY(!QToolTip::isVisible());
        QTest::keyClick(mBox->GetLineEdit(), Qt::Key_Return);
        QCOMPARE(mBox->GetText(), QString());
    }

    void setTextWithValidationTakesOnlyValidText()
    {
        mBox->SetNeedValidate(true);
        mBox->TextValidationInitialize({kTooLong, kForbidden}, 8);
        QSignalSpy changed(mBox, &TextBox::TextChanged);
        QSignalSpy edited(mBox, &TextBox::TextEdited);
        for (const char* text : {"  ok  ", "no|pe", "far too long", "ok"}) {
            mBox->SetText(QString::fromLatin1(text));
            QCOMPARE(mBox->GetText(), QStringLiteral("ok"));
        }
        // Only a change is announced, and never as an edit.
        QCOMPARE(changed.count(), 1);
        QCOMPARE(changed.at(0).at(0).toString(), QStringLiteral("ok"));
        mBox->UpdateText(QStringLiteral("fine"));
        QCOMPARE(mBox->GetText(), QStringLiteral("fine"));
        QCOMPARE(mBox->GetLineEdit()->cursorPosition(), 0);
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
        QSignalSpy edited(mBox, &TextBox::TextEdited);
        QSignalSpy cursor(mBox, &TextBox::CursorPositionChanged);
        QSignalSpy selection(mBox, &TextBox::SelectionChanged);
        QSignalSpy focusIn(mBox, &TextBox::FocusIn);
        QSignalSpy focusOut(mBox, &TextBox::FocusOut);
        QSignalSpy escape(mBox, &TextBox::EscapePressed);
        LineEdit* editor = mBox->GetLineEdit();

        mBox->setTabFocus();
        QTRY_VERIFY(mBox->GetLineEdit()->hasFocus());
        QCOMPARE(focusIn.count(), 1);
        QTest::keyClicks(mBox->GetLineEdit(), QStringLiteral("ab"));
        QCOMPARE(edited.count(), 2);
        QCOMPARE(edited.last().at(0).toString(), QStringLiteral("ab"));
        QVERIFY(cursor.count() >= 2);
        QCOMPARE(cursor.last().at(1).toInt(), 2);
        mBox->GetLineEdit()->selectAll();
        QVERIFY(selection.count() >= 1);
        QTest::keyClick(editor, Qt::Key_Escape);
        QCOMPARE(escape.count(), 1);
        // Page keys jump to the ends.
        editor->setCursorPosition(1);
        QTest::keyClick(editor, Qt::Key_PageDown);
        QCOMPARE(editor->cursorPosition(), 2);
        QTest::keyClick(editor, Qt::Key_PageUp);
        QCOMPARE(editor->cursorPosition(), 0);

        FocusElsewhere(mBox);
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

        auto* action = new QAction(solidIcon(Qt::red), QStringLiteral("Browse"), mBox);
        mBox->SetImageAction(action);
        QSignalSpy actionSpy(action, &QAction::triggered);
        QSignalSpy clicked(mBox, &TextBox::ImageClicked);
        QWidget* label = mBox->GetImageLabel();
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
        QCOMPARE(mBox->GetIconPosition(), TextBox::NoIcon);
        mBox->SetIcon(solidIcon(Qt::green));
        QCOMPARE(mBox->GetIconPosition(), TextBox::OuterLeft);
        QTRY_VERIFY(mBox->GetImageLabel()->isVisible());

        mBox->SetIcon(QIcon());
        QCOMPARE(mBox->GetIconPosition(), TextBox::NoIcon);
        QVERIFY(mBox->GetImageLabel()->isHidden());
        QCOMPARE(mBox->layout()->contentsMargins(), QMargins(4, 0, 4, 0));
        QCOMPARE(mBox->layout()->spacing(), 0);

        // An image action without an icon gives none until it gets one.
        QAction action(QStringLiteral("Pick"));
        mBox->SetImageAction(&action);
        QVERIFY(mBox->GetIcon().isNull());
        const QIcon icon = solidIcon(Qt::cyan);
        action.setIcon(icon);
        QCOMPARE(mBox->GetIcon().cacheKey(), icon.cacheKey());
        QCOMPARE(mBox->GetIconPosition(), TextBox::OuterLeft);
        QCOMPARE(mBox->property("imageAction").value<QAction*>(), &action);
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

        mBox->SetIcon(solidIcon(Qt::magenta));
        mBox->SetIconPosition(position);
        QCOMPARE(mBox->property("iconPosition").value<TextBox::IconPosition>(), position);
        QCOMPARE(mBox->layout()->contentsMargins(), margins);
        QCOMPARE(mBox->layout()->spacing(), spacing);
        mBox->layout()->activate();
        const QRect icon = mBox->GetImageLabel()->geometry();
        const QRect editor = mBox->GetLineEdit()->geometry();
        // The icon is square: the box height less the image margins.
        QCOMPARE(icon.size(), QSize(mBox->height() - 6, mBox->height() - 6));
        if (iconLeft) {
            QCOMPARE(icon.left(), margins.left());
            QCOMPARE(editor.left(), icon.right() + 1 + spacing);
        } else {
            QCOMPARE(icon.right(), mBox->width() - 1 - margins.right());
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
        // Right of the (empty) text, inside the panel; and the middle of the top edge.
        const QPoint interior(mBox->width() - 8, mBox->height() / 2);
        const QPoint topEdge(mBox->width() / 2, 1);
        const auto expect = [&](const QString& background, const QString& border, const char* state) {
            const QImage image = Probe::Grab(mBox);
            QVERIFY2(Probe::ThemeColor(background).isValid() && Probe::ThemeColor(border).isValid(), state);
            QVERIFY2(Probe::PixelAt(image, interior).rgb() == Probe::ThemeColor(background).rgb(), state);
            QVERIFY2(Probe::PixelAt(image, topEdge).rgb() == Probe::ThemeColor(border).rgb(), state);
        };
        expect(ThemeFileKey::WidgetContainer9, ThemeFileKey::WidgetOutline3, "normal");
        mBox->setAttribute(Qt::WA_UnderMouse, true);
        expect(ThemeFileKey::WidgetContainer12, ThemeFileKey::HoverOutline4, "hovered");
        mBox->setAttribute(Qt::WA_UnderMouse, false);

        // Focused: a halo inside the outline.
        QVERIFY(FocusBox(mBox));
        expect(ThemeFileKey::WidgetContainer12, ThemeFileKey::FocusOutline2, "focused");
        QCOMPARE(Probe::PixelAt(Probe::Grab(mBox), QPoint(mBox->width() / 2, 0)).rgb(),
                 Probe::ThemeColor(ThemeFileKey::WidgetOutline6).rgb());

        FocusElsewhere(mBox);
        mBox->setEnabled(false);
        expect(ThemeFileKey::WidgetContainerDisable, ThemeFileKey::WidgetOutlineDisable, "disabled");
        // The editor's text is dimmed to 40 %.
        QCOMPARE(mBox->GetLineEdit()->GetTextColor().alpha(), 102);
    }

    void outerIconStaysOutsideTheFrame()
    {
        mBox->SetIcon(solidIcon(Qt::transparent));
        mBox->SetIconPosition(TextBox::OuterLeft);
        mBox->layout()->activate();
        const QColor background = Probe::ThemeColor(ThemeFileKey::WidgetContainer9);
        const QImage image = Probe::Grab(mBox);
        const QRect editor = mBox->GetLineEdit()->geometry();
        // The frame starts 4 pixels left of the editor; the icon column left of it is not painted.
        const QPoint frameLeft(editor.left() - 4, mBox->height() / 2);
        QCOMPARE(Probe::PixelAt(image, frameLeft + QPoint(3, 0)).rgb(), background.rgb());
        QVERIFY(Probe::PixelAt(image, QPoint(2, mBox->height() / 2)).rgb() != background.rgb() ||
                Probe::PixelAt(image, QPoint(2, mBox->height() / 2)).alpha() == 0);
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
        mBox->SetPrompt(QStringLiteral("Type a name"));
        LineEdit* editor = mBox->GetLineEdit();
        QVERIFY(editor->IsPrompting());
        QCOMPARE(editor->text(), QStringLiteral("Type a name"));
        QCOMPARE(mBox->GetText(), QString());
        QVERIFY(editor->font().italic());

        QVERIFY(FocusBox(mBox));
        QVERIFY(!editor->IsPrompting());
        QCOMPARE(editor->text(), QString());
        QVERIFY(!editor->font().italic());

        QTest::keyClicks(editor, QStringLiteral("x"));
        FocusElsewhere(mBox);
        QTRY_VERIFY(!editor->hasFocus());
        QVERIFY(!editor->IsPrompting());
        QCOMPARE(mBox->GetText(), QStringLiteral("x"));

        mBox->UnsetPrompting();
        mBox->SetText(QString());
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
    TextBox* mBox = nullptr;
};

QTEST_MAIN(tst_TextBox)
#include "tst_textbox.moc"
