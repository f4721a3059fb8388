// test-options: SCALES 1.25 1.5 2
#include "../PaintProbe.h"
#include <KvUICore/core/CoreUIUtil_p.h>
#include <KvUICore/theme/ThemeFileKey.h>
#include <KvUICore/theme/ThemeManager.h>
#include <KvUICore/widgets/LineEdit.h>
#include <KvUICore/widgets/TextBox.h>

#include <QAction>
#include <QApplication>
#include <QBoxLayout>
#include <QLabel>
#include <QMetaMethod>
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

} // namespace

class tst_TextBox : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanup();

    void validateText_data();
    void validateText();
    void validateCutsAndLooksForAllowedCharacters();
    void typedNameWithColonShowsErrorAndReturnRestoresLastValidText();
    void blanksAroundATypedNameAreTrimmedWhenEditingEnds();
    void validationWithoutInitializationRejectsEveryText();
    void setTextWithValidationTakesOnlyValidText();
    void setTextAnnouncesOnlyChanges();
    void cutTextBecomesTheEditorTooltip();
    void editorActivityIsRepublished();
    void escapeAndPageKeys();
    void iconClickTriggersActionOnlyForLeftButton_data();
    void iconClickTriggersActionOnlyForLeftButton();
    void iconPressAndReleaseElsewhereOnItTriggersOnce();
    void nullIconHidesLabelAndKeepsTextMargins();
    void imageActionGivesItsIcon();
    void iconPositionLayouts_data();
    void iconPositionLayouts();
    void paintsPanelAndBorderFromTheme_data();
    void paintsPanelAndBorderFromTheme();
    void outerIconStaysOutsideTheFrame();
    void sharedFrameAndPanelPainters();
    void promptingTextShowsWhileEmptyAndUnfocused();
    void metaObjectInterface();
    void sizeHints();

private:
    TextBox* shownBox(int width = 200);
    QList<QWidget*> mWidgets;
};

void tst_TextBox::initTestCase()
{
    Internal::SetWarningHook([](const QString&, const QString&) { return true; });
    ThemeManager::GetInstance()->SetThemeFilesPath(QStringLiteral(KVUICORE_THEMES_DIR).toStdWString().c_str());
    QVERIFY(ThemeManager::GetInstance()->SetCurrentTheme(QStringLiteral("Light")));
}

void tst_TextBox::cleanup()
{
    qDeleteAll(mWidgets);
    mWidgets.clear();
    QToolTip::hideText();
}

TextBox* tst_TextBox::shownBox(int width)
{
    auto* window = new QWidget;
    mWidgets << window;
    auto* layout = new QVBoxLayout(window);
    auto* box = new TextBox(window);
    layout->addWidget(box);
    // Something else to take the focus away from the box.
    auto* other = new QLineEdit(window);
    layout->addWidget(other);
    window->resize(width, 80);
    window->show();
    window->activateWindow();
    if (!QTest::qWaitForWindowActive(window))
        return nullptr;
    other->setFocus(Qt::OtherFocusReason);
    return box;
}

void tst_TextBox::validateText_data()
{
    QTest::addColumn<QString>("in");
    QTest::addColumn<bool>("valid");
    QTest::addColumn<QString>("out");
    QTest::addColumn<QString>("error");

    QTest::newRow("plain") << "name" << true << "name"
                           << "";
    QTest::newRow("empty") << "" << true << ""
                           << "";
    QTest::newRow("leading and trailing blanks") << " name " << true << "name"
                                                 << "";
    QTest::newRow("inner blank kept") << "my name" << true << "my name"
                                      << "";
    QTest::newRow("exactly the maximum") << QString(10, QLatin1Char('a')) << true << QString(10, QLatin1Char('a'))
                                         << "";
    QTest::newRow("one above the maximum")
        << QString(11, QLatin1Char('a')) << false << QString(11, QLatin1Char('a')) << kTooLong;
    const QString forbidden = QStringLiteral("\\/:*?\"<>|;=`,");
    for (QChar c : forbidden) {
        const QString text = QStringLiteral("a") + c + QStringLiteral("b");
        QTest::newRow(qPrintable(QStringLiteral("forbidden ") + c)) << text << false << text << kForbidden;
    }
    QTest::newRow("length checked first") << QStringLiteral("a:bcdefghijk") << false << "a:bcdefghijk" << kTooLong;
}

void tst_TextBox::validateText()
{
    QFETCH(QString, in);
    QFETCH(bool, valid);
    QFETCH(QString, out);
    QFETCH(QString, error);

    TextBox box;
    box.TextValidationInitialize({kTooLong, kForbidden}, 10);
    QString result;
    QString message;
    QCOMPARE(box.ValidateText(in, result, message), valid);
    QCOMPARE(result, out);
    QCOMPARE(message, error);
}

void tst_TextBox::validateCutsAndLooksForAllowedCharacters()
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

void tst_TextBox::typedNameWithColonShowsErrorAndReturnRestoresLastValidText()
{
    TextBox* box = shownBox();
    QVERIFY(box);
    box->SetNeedValidate(true);
    box->TextValidationInitialize({kTooLong, kForbidden}, 64);
    box->SetText(QStringLiteral("drawing"));
    QCOMPARE(box->GetText(), QStringLiteral("drawing"));

    QSignalSpy finished(box, &TextBox::EditingFinished);
    QSignalSpy returned(box, &TextBox::ReturnPressed);
    box->setFocus(Qt::TabFocusReason);
    QTRY_VERIFY(box->GetLineEdit()->hasFocus());
    box->GetLineEdit()->selectAll();
    QTest::keyClicks(box->GetLineEdit(), QStringLiteral("part:one"));
    QCOMPARE(box->GetLineEdit()->text(), QStringLiteral("part:one"));
    QTRY_VERIFY(QToolTip::isVisible());
    QCOMPARE(QToolTip::text(), kForbidden);

    QTest::keyClick(box->GetLineEdit(), Qt::Key_Return);
    QCOMPARE(returned.count(), 1);
    QVERIFY(finished.count() >= 1);
    QCOMPARE(box->GetText(), QStringLiteral("drawing"));

    // A valid text hides the error again.
    box->GetLineEdit()->selectAll();
    QTest::keyClicks(box->GetLineEdit(), QStringLiteral("part"));
    QTRY_VERIFY(!QToolTip::isVisible());
}

void tst_TextBox::blanksAroundATypedNameAreTrimmedWhenEditingEnds()
{
    TextBox* box = shownBox();
    QVERIFY(box);
    box->SetNeedValidate(true);
    box->TextValidationInitialize({kTooLong, kForbidden}, 64);
    QSignalSpy finished(box, &TextBox::EditingFinished);

    box->setFocus(Qt::TabFocusReason);
    QTRY_VERIFY(box->GetLineEdit()->hasFocus());
    QTest::keyClicks(box->GetLineEdit(), QStringLiteral(" name "));
    QCOMPARE(box->GetLineEdit()->text(), QStringLiteral(" name "));
    // Leaving the box ends the editing.
    box->window()->findChildren<QLineEdit*>().last()->setFocus(Qt::TabFocusReason);
    QTRY_COMPARE(finished.count(), 1);
    QCOMPARE(box->GetText(), QStringLiteral("name"));

    // The trimmed text is now the last valid text.
    box->setFocus(Qt::TabFocusReason);
    QTRY_VERIFY(box->GetLineEdit()->hasFocus());
    box->GetLineEdit()->selectAll();
    QTest::keyClicks(box->GetLineEdit(), QStringLiteral("a<b"));
    QTest::keyClick(box->GetLineEdit(), Qt::Key_Return);
    QCOMPARE(box->GetText(), QStringLiteral("name"));
}

void tst_TextBox::validationWithoutInitializationRejectsEveryText()
{
    TextBox* box = shownBox();
    QVERIFY(box);
    box->SetNeedValidate(true);
    box->setFocus(Qt::TabFocusReason);
    QTRY_VERIFY(box->GetLineEdit()->hasFocus());
    QTest::keyClicks(box->GetLineEdit(), QStringLiteral("abc"));
    // Invalid, but there is no message to show.
    QVERIFY(!QToolTip::isVisible());
    QTest::keyClick(box->GetLineEdit(), Qt::Key_Return);
    QCOMPARE(box->GetText(), QString());
}

void tst_TextBox::setTextWithValidationTakesOnlyValidText()
{
    TextBox box;
    box.SetNeedValidate(true);
    box.TextValidationInitialize({kTooLong, kForbidden}, 8);
    box.SetText(QStringLiteral("  ok  "));
    QCOMPARE(box.GetText(), QStringLiteral("ok"));
    box.SetText(QStringLiteral("no|pe"));
    QCOMPARE(box.GetText(), QStringLiteral("ok"));
    box.SetText(QStringLiteral("far too long"));
    QCOMPARE(box.GetText(), QStringLiteral("ok"));
    box.UpdateText(QStringLiteral("fine"));
    QCOMPARE(box.GetText(), QStringLiteral("fine"));
    QCOMPARE(box.GetLineEdit()->cursorPosition(), 0);
}

void tst_TextBox::setTextAnnouncesOnlyChanges()
{
    TextBox box;
    QSignalSpy changed(&box, &TextBox::TextChanged);
    QSignalSpy edited(&box, &TextBox::TextEdited);
    box.SetText(QStringLiteral("alpha"));
    QCOMPARE(changed.count(), 1);
    QCOMPARE(changed.at(0).at(0).toString(), QStringLiteral("alpha"));
    box.SetText(QStringLiteral("alpha"));
    QCOMPARE(changed.count(), 1);
    QCOMPARE(edited.count(), 0);
}

void tst_TextBox::cutTextBecomesTheEditorTooltip()
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

void tst_TextBox::editorActivityIsRepublished()
{
    TextBox* box = shownBox();
    QVERIFY(box);
    QSignalSpy edited(box, &TextBox::TextEdited);
    QSignalSpy cursor(box, &TextBox::CursorPositionChanged);
    QSignalSpy selection(box, &TextBox::SelectionChanged);
    QSignalSpy focusIn(box, &TextBox::FocusIn);
    QSignalSpy focusOut(box, &TextBox::FocusOut);
    QSignalSpy tabIn(box, &TextBox::TabFocusIn);
    QSignalSpy clickIn(box, &TextBox::ClickFocusIn);

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

    box->window()->findChildren<QLineEdit*>().last()->setFocus(Qt::TabFocusReason);
    QTRY_COMPARE(focusOut.count(), 1);
    // Declared for users; the box never emits them itself.
    QCOMPARE(tabIn.count(), 0);
    QCOMPARE(clickIn.count(), 0);
}

void tst_TextBox::escapeAndPageKeys()
{
    TextBox* box = shownBox();
    QVERIFY(box);
    box->SetText(QStringLiteral("hello"));
    box->setFocus(Qt::TabFocusReason);
    QTRY_VERIFY(box->GetLineEdit()->hasFocus());
    QSignalSpy escape(box, &TextBox::EscapePressed);
    QTest::keyClick(box->GetLineEdit(), Qt::Key_Escape);
    QCOMPARE(escape.count(), 1);

    box->GetLineEdit()->setCursorPosition(2);
    QTest::keyClick(box->GetLineEdit(), Qt::Key_PageDown);
    QCOMPARE(box->GetLineEdit()->cursorPosition(), 5);
    QTest::keyClick(box->GetLineEdit(), Qt::Key_PageUp);
    QCOMPARE(box->GetLineEdit()->cursorPosition(), 0);
}

void tst_TextBox::iconClickTriggersActionOnlyForLeftButton_data()
{
    QTest::addColumn<Qt::MouseButton>("button");
    QTest::addColumn<int>("triggered");
    QTest::newRow("left") << Qt::LeftButton << 1;
    QTest::newRow("right") << Qt::RightButton << 0;
    QTest::newRow("middle") << Qt::MiddleButton << 0;
}

void tst_TextBox::iconClickTriggersActionOnlyForLeftButton()
{
    QFETCH(Qt::MouseButton, button);
    QFETCH(int, triggered);

    TextBox* box = shownBox();
    QVERIFY(box);
    auto* action = new QAction(solidIcon(Qt::red), QStringLiteral("Browse"), box);
    box->SetImageAction(action);
    QSignalSpy actionSpy(action, &QAction::triggered);
    QSignalSpy clicked(box, &TextBox::ImageClicked);
    QWidget* label = box->GetImageLabel();
    QTRY_VERIFY(label->isVisible());
    QTest::mouseClick(label, button, Qt::NoModifier, label->rect().center());
    QCOMPARE(actionSpy.count(), triggered);
    QCOMPARE(clicked.count(), triggered);
}

void tst_TextBox::iconPressAndReleaseElsewhereOnItTriggersOnce()
{
    TextBox* box = shownBox();
    QVERIFY(box);
    auto* action = new QAction(solidIcon(Qt::blue), QStringLiteral("Browse"), box);
    box->SetImageAction(action);
    box->SetIconPosition(TextBox::InnerRight);
    QSignalSpy actionSpy(action, &QAction::triggered);
    QWidget* label = box->GetImageLabel();
    QTRY_VERIFY(label->isVisible());
    QTest::mousePress(label, Qt::LeftButton, Qt::NoModifier, QPoint(2, 2));
    QTest::mouseRelease(label, Qt::LeftButton, Qt::NoModifier, label->rect().bottomRight() - QPoint(2, 2));
    QCOMPARE(actionSpy.count(), 1);
    // A release without a press on the icon does nothing.
    QTest::mouseRelease(label, Qt::LeftButton, Qt::NoModifier, QPoint(3, 3));
    QCOMPARE(actionSpy.count(), 1);
}

void tst_TextBox::nullIconHidesLabelAndKeepsTextMargins()
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
    const QMargins margins = box->layout()->contentsMargins();
    QCOMPARE(margins, QMargins(4, 0, 4, 0));
    QCOMPARE(box->layout()->spacing(), 0);
}

void tst_TextBox::imageActionGivesItsIcon()
{
    TextBox box;
    QAction action(QStringLiteral("Pick"));
    box.SetImageAction(&action);
    QVERIFY(box.GetIcon().isNull());
    const QIcon icon = solidIcon(Qt::cyan);
    action.setIcon(icon);
    QCOMPARE(box.GetIcon().cacheKey(), icon.cacheKey());
    QCOMPARE(box.GetIconPosition(), TextBox::OuterLeft);
    QCOMPARE(box.GetImageAction(), &action);
    QCOMPARE(box.property("imageAction").value<QAction*>(), &action);
}

void tst_TextBox::iconPositionLayouts_data()
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

void tst_TextBox::iconPositionLayouts()
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

void tst_TextBox::paintsPanelAndBorderFromTheme_data()
{
    QTest::addColumn<QString>("theme");
    QTest::newRow("Light") << "Light";
    QTest::newRow("Dark") << "Dark";
    QTest::newRow("HIGLight") << "HIGLight";
}

void tst_TextBox::paintsPanelAndBorderFromTheme()
{
    QFETCH(QString, theme);
    QVERIFY(ThemeManager::GetInstance()->SetCurrentTheme(theme));

    TextBox* box = shownBox();
    QVERIFY(box);
    const QColor background = Probe::ThemeColor(ThemeFileKey::WidgetContainer9);
    const QColor border = Probe::ThemeColor(ThemeFileKey::WidgetOutline3);
    QVERIFY(background.isValid());
    QVERIFY(border.isValid());
    // Right of the (empty) text, inside the panel; and the middle of the top edge.
    const QPoint interior(box->width() - 8, box->height() / 2);
    const QPoint topEdge(box->width() / 2, 1);

    QImage image = box->grab().toImage();
    QCOMPARE(Probe::PixelAt(image, interior).rgb(), background.rgb());
    QCOMPARE(Probe::PixelAt(image, topEdge).rgb(), border.rgb());

    // Under the mouse.
    box->setAttribute(Qt::WA_UnderMouse, true);
    image = box->grab().toImage();
    const QColor hoverBackground = Probe::ThemeColor(ThemeFileKey::WidgetContainer12);
    const QColor hoverBorder = Probe::ThemeColor(ThemeFileKey::HoverOutline4);
    QVERIFY(hoverBackground.isValid() && hoverBorder.isValid());
    QCOMPARE(Probe::PixelAt(image, interior).rgb(), hoverBackground.rgb());
    QCOMPARE(Probe::PixelAt(image, topEdge).rgb(), hoverBorder.rgb());
    box->setAttribute(Qt::WA_UnderMouse, false);

    box->setFocus(Qt::TabFocusReason);
    QTRY_VERIFY(box->hasFocus());
    image = box->grab().toImage();
    const QColor focusBackground = Probe::ThemeColor(ThemeFileKey::WidgetContainer12);
    const QColor halo = Probe::ThemeColor(ThemeFileKey::FocusOutline2);
    const QColor focus = Probe::ThemeColor(ThemeFileKey::WidgetOutline6);
    QVERIFY(focusBackground.isValid() && halo.isValid() && focus.isValid());
    QCOMPARE(Probe::PixelAt(image, interior).rgb(), focusBackground.rgb());
    QCOMPARE(Probe::PixelAt(image, topEdge).rgb(), halo.rgb());
    QCOMPARE(Probe::PixelAt(image, QPoint(box->width() / 2, 0)).rgb(), focus.rgb());

    box->window()->findChildren<QLineEdit*>().last()->setFocus(Qt::TabFocusReason);
    box->setEnabled(false);
    image = box->grab().toImage();
    const QColor disabledBackground = Probe::ThemeColor(ThemeFileKey::WidgetContainerDisable);
    const QColor disabledBorder = Probe::ThemeColor(ThemeFileKey::WidgetOutlineDisable);
    QVERIFY(disabledBackground.isValid() && disabledBorder.isValid());
    QCOMPARE(Probe::PixelAt(image, interior).rgb(), disabledBackground.rgb());
    QCOMPARE(Probe::PixelAt(image, topEdge).rgb(), disabledBorder.rgb());
    // The editor's text is dimmed to 40 %.
    QCOMPARE(box->GetLineEdit()->GetTextColor().alpha(), 102);

    QVERIFY(ThemeManager::GetInstance()->SetCurrentTheme(QStringLiteral("Light")));
}

void tst_TextBox::outerIconStaysOutsideTheFrame()
{
    TextBox* box = shownBox();
    QVERIFY(box);
    box->SetIcon(solidIcon(Qt::transparent));
    box->SetIconPosition(TextBox::OuterLeft);
    box->layout()->activate();
    const QColor background = Probe::ThemeColor(ThemeFileKey::WidgetContainer9);
    QVERIFY(background.isValid());
    const QImage image = box->grab().toImage();
    const QRect editor = box->GetLineEdit()->geometry();
    // The frame starts 4 pixels left of the editor; the icon column left of it is not painted.
    const QPoint frameLeft(editor.left() - 4, box->height() / 2);
    QCOMPARE(Probe::PixelAt(image, frameLeft + QPoint(3, 0)).rgb(), background.rgb());
    QVERIFY(Probe::PixelAt(image, QPoint(2, box->height() / 2)).rgb() != background.rgb() ||
            Probe::PixelAt(image, QPoint(2, box->height() / 2)).alpha() == 0);
}

void tst_TextBox::sharedFrameAndPanelPainters()
{
    const QRect rect(2, 2, 20, 12);
    const QColor outline(10, 20, 30);
    const QColor fill(200, 210, 220);

    QImage frame(24, 16, QImage::Format_ARGB32);
    frame.fill(Qt::transparent);
    QPainter framePainter(&frame);
    TextBox::DrawTextBoxFrame(&framePainter, rect, outline, 1);
    framePainter.end();
    QCOMPARE(frame.pixelColor(12, 2), outline);
    QCOMPARE(frame.pixelColor(2, 8), outline);
    QCOMPARE(frame.pixelColor(21, 8), outline);
    QCOMPARE(frame.pixelColor(12, 13), outline);
    // Transparent inside, and the corners stay empty.
    QCOMPARE(frame.pixelColor(12, 8).alpha(), 0);
    QCOMPARE(frame.pixelColor(2, 2).alpha(), 0);

    QImage panel(24, 16, QImage::Format_ARGB32);
    panel.fill(Qt::transparent);
    QPainter panelPainter(&panel);
    TextBox::DrawTextBoxPanel(&panelPainter, rect, fill, 1);
    panelPainter.end();
    QCOMPARE(panel.pixelColor(12, 8), fill);
    QCOMPARE(panel.pixelColor(3, 3), fill);
    // The outline is transparent.
    QCOMPARE(panel.pixelColor(12, 2).alpha(), 0);
}

void tst_TextBox::promptingTextShowsWhileEmptyAndUnfocused()
{
    TextBox* box = shownBox();
    QVERIFY(box);
    box->SetPrompt(QStringLiteral("Type a name"));
    LineEdit* editor = box->GetLineEdit();
    QVERIFY(editor->IsPrompting());
    QCOMPARE(editor->text(), QStringLiteral("Type a name"));
    QCOMPARE(box->GetText(), QString());
    QVERIFY(editor->font().italic());

    box->setFocus(Qt::TabFocusReason);
    QTRY_VERIFY(editor->hasFocus());
    QVERIFY(!editor->IsPrompting());
    QCOMPARE(editor->text(), QString());
    QVERIFY(!editor->font().italic());

    QTest::keyClicks(editor, QStringLiteral("x"));
    box->window()->findChildren<QLineEdit*>().last()->setFocus(Qt::TabFocusReason);
    QTRY_VERIFY(!editor->hasFocus());
    QVERIFY(!editor->IsPrompting());
    QCOMPARE(box->GetText(), QStringLiteral("x"));

    box->UnsetPrompting();
    box->SetText(QString());
    QVERIFY(!editor->IsPrompting());
    QCOMPARE(editor->text(), QString());
}

void tst_TextBox::metaObjectInterface()
{
    const QMetaObject& meta = TextBox::staticMetaObject;
    QStringList signalNames;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
        if (meta.method(i).methodType() == QMetaMethod::Signal)
            signalNames << QString::fromLatin1(meta.method(i).methodSignature());
    }
    const QStringList expected = {"Enter()",           "TextChanged(QString)", "TextEdited(QString)",
                                  "FocusIn()",         "TabFocusIn()",         "ClickFocusIn()",
                                  "FocusOut()",        "ImageClicked()",       "CursorPositionChanged(int,int)",
                                  "EditingFinished()", "ReturnPressed()",      "EscapePressed()",
                                  "SelectionChanged()"};
    QCOMPARE(signalNames, expected);
    for (const char* slot :
         {"UpdateText(QString)", "setTabFocus()", "UpdateAccessibleName(QString)", "OnTextChanged(QString)",
          "OnEditingFinished()", "ImageActionChanged()", "OnTextEdited(QString)", "OnCursorPositionChanged(int,int)",
          "OnReturnPressed()", "OnSelectionChanged()"})
        QVERIFY2(meta.indexOfSlot(slot) >= 0, slot);
    for (const char* property : {"icon", "iconPosition", "readOnly", "imageAction"})
        QVERIFY2(meta.indexOfProperty(property) >= 0, property);

    TextBox box;
    QCOMPARE(box.GetLineEdit()->accessibleName(), QStringLiteral("mpTextBoxControl"));
    QCOMPARE(box.GetImageLabel()->accessibleName(), QStringLiteral("mpImageControl"));
    box.setProperty("readOnly", true);
    QVERIFY(box.GetLineEdit()->isReadOnly());
}

void tst_TextBox::sizeHints()
{
    TextBox box;
    QCOMPARE(box.sizeHint(), QSize(120, 24));
    QVERIFY(!box.minimumSizeHint().isValid());
    QCOMPARE(box.height(), 24);
    QCOMPARE(box.GetLineEdit()->height(), 24);
    QCOMPARE(box.focusProxy(), box.GetLineEdit());
    QCOMPARE(box.GetElideMode(), Qt::ElideNone);
}

QTEST_MAIN(tst_TextBox)
#include "tst_textbox.moc"
