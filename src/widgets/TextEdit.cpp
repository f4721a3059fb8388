#include <KvUICore/widgets/TextEdit.h>

#include <KvUICore/core/CoreUIUtil_p.h>
#include <KvUICore/theme/CustomStylePainting_p.h>
#include <KvUICore/theme/ThemeFileKey.h>
#include <KvUICore/theme/ThemeManager.h>
#include <KvUICore/widgets/NavigationCommon_p.h>
#include <KvUICore/widgets/TextBox.h>
#include <KvUICore/widgets/ThemedColor_p.h>
#include <KvUICore/widgets/ThemedFont_p.h>

#include <QKeyEvent>
#include <QMimeData>
#include <QPainter>
#include <QScrollBar>
#include <QTextBlock>

namespace Kavrel::UICore {

namespace {

constexpr int kFrameMargin = 3;
const QString kScrollBarStyleSheetKey = QStringLiteral("ScrollBarGlobal");

// The part of text that fits into room characters, never splitting a surrogate pair.
QString Fitting(const QString& text, int room)
{
    if (room <= 0)
        return QString();
    if (text.size() <= room)
        return text;
    QString cut = text.left(room);
    if (!cut.isEmpty() && cut.back().isHighSurrogate())
        cut.chop(1);
    return cut;
}

} // namespace

class TextEditImp
{
public:
    explicit TextEditImp(TextEdit* owner)
        : mpOwner(owner)
    {}

    // Characters the limit still allows in place of the selection; INT_MAX without a limit.
    int Room() const
    {
        if (miMaxLength <= 0)
            return INT_MAX;
        const int selected = int(mpOwner->textCursor().selectedText().size());
        return miMaxLength - (mpOwner->GetLength() - selected);
    }

    void ApplyPalette()
    {
        QPalette palette = mpOwner->palette();
        QColor prompt =
            Internal::ThemeColorOr(ThemeFileKey::FontSearchPrompt, palette.color(QPalette::PlaceholderText));
        if (!mpOwner->isEnabled())
            prompt = Internal::DimmedColor(prompt);
        for (auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled})
            palette.setColor(group, QPalette::PlaceholderText, prompt);
        if (palette != mpOwner->palette())
            mpOwner->setPalette(palette);
        mpTextColor->Apply();
    }

    void ApplyScrollBarStyle()
    {
        const QString sheet = ThemeManager::GetInstance()->GetStyleSheet(kScrollBarStyleSheetKey);
        for (QScrollBar* bar : {mpOwner->verticalScrollBar(), mpOwner->horizontalScrollBar()}) {
            if (bar->styleSheet() != sheet)
                bar->setStyleSheet(sheet);
        }
    }

    void PaintFrame(QPainter& painter) const
    {
        const bool enabled = mpOwner->isEnabled();
        const bool focused = enabled && mpOwner->hasFocus();
        const bool hovered = enabled && mpOwner->underMouse();
        ThemeManager* themes = ThemeManager::GetInstance();
        const QRect panel = mpOwner->rect().adjusted(1, 1, -1, -1);
        const QRect inner = panel.adjusted(1, 1, -1, -1);
        QBrush background = themes->GetBrush(ThemeFileKey::WidgetContainer9, inner);
        QColor border = themes->GetColor(ThemeFileKey::WidgetOutline3);
        if (focused) {
            background = themes->GetBrush(ThemeFileKey::WidgetContainer12, inner);
            border = themes->GetColor(ThemeFileKey::FocusOutline2);
        } else if (hovered) {
            background = themes->GetBrush(ThemeFileKey::WidgetContainer12, inner);
            border = themes->GetColor(ThemeFileKey::HoverOutline4);
        }
        if (!enabled) {
            const QColor disabledFill = themes->GetColor(ThemeFileKey::WidgetContainerDisable);
            background = disabledFill.isValid() ? QBrush(disabledFill) : Internal::DimmedBrush(background);
            const QColor disabledBorder = themes->GetColor(ThemeFileKey::WidgetOutlineDisable);
            border = disabledBorder.isValid() ? disabledBorder : Internal::DimmedColor(border);
        }
        const int lineWidth = qMax(1, qRound(mpOwner->devicePixelRatio()));
        TextBox::DrawTextBoxPanel(&painter, panel, background, lineWidth);
        TextBox::DrawTextBoxFrame(&painter, panel, border, lineWidth);
        if (focused)
            TextBox::DrawTextBoxFrame(&painter, mpOwner->rect(), themes->GetColor(ThemeFileKey::WidgetOutline6),
                                      lineWidth);
    }

    TextEdit* const mpOwner;
    Internal::ThemedColor* mpTextColor = nullptr;
    QString msCommitted;
    int miMaxLength = 0;
};

TextEdit::TextEdit(QWidget* parent)
    : QPlainTextEdit(parent)
    , mpImp(std::make_unique<TextEditImp>(this))
{
    Internal::InstallNavigationAccessibility();
    setAttribute(Qt::WA_Hover);
    setFrameShape(QFrame::NoFrame);
    new Internal::ThemedFont(this);
    setTabChangesFocus(true);
    setViewportMargins(kFrameMargin, kFrameMargin, kFrameMargin, kFrameMargin);
    // The frame painted around the viewport shows through it.
    viewport()->setAutoFillBackground(false);
    mpImp->mpTextColor = new Internal::ThemedColor(this, ThemeFileKey::FontNormal1);
    connect(ThemeManager::GetInstance(), &ThemeManager::ThemeChanged, this, &TextEdit::OnThemeChanged);
    OnThemeChanged();
}

TextEdit::~TextEdit() = default;

QString TextEdit::GetText() const
{
    return toPlainText();
}

void TextEdit::SetText(const QString& text)
{
    const QString fitting = mpImp->miMaxLength > 0 ? Fitting(text, mpImp->miMaxLength) : text;
    mpImp->msCommitted = fitting;
    if (fitting != toPlainText())
        setPlainText(fitting);
}

QString TextEdit::GetCommittedText() const
{
    return mpImp->msCommitted;
}

void TextEdit::Commit()
{
    const QString text = toPlainText();
    if (text == mpImp->msCommitted)
        return;
    mpImp->msCommitted = text;
    Q_EMIT TextCommitted(text);
}

QString TextEdit::GetPrompt() const
{
    return placeholderText();
}

void TextEdit::SetPrompt(const QString& prompt)
{
    const QString old = placeholderText();
    if (prompt == old)
        return;
    setPlaceholderText(prompt);
    // The prompt names the field for assistive technology unless the host named it.
    if (accessibleName().isEmpty() || accessibleName() == old)
        setAccessibleName(prompt);
}

int TextEdit::GetMaximumLength() const
{
    return mpImp->miMaxLength;
}

void TextEdit::SetMaximumLength(int length)
{
    length = qMax(0, length);
    if (length == mpImp->miMaxLength)
        return;
    mpImp->miMaxLength = length;
    if (length > 0 && GetLength() > length) {
        QTextCursor cursor(document());
        cursor.setPosition(Fitting(toPlainText(), length).size());
        cursor.movePosition(QTextCursor::End, QTextCursor::KeepAnchor);
        cursor.removeSelectedText();
    }
}

int TextEdit::GetLength() const
{
    return qMax(0, document()->characterCount() - 1);
}

QSize TextEdit::sizeHint() const
{
    return QSize(240, fontMetrics().lineSpacing() * 4 + 2 * kFrameMargin + 6);
}

QSize TextEdit::minimumSizeHint() const
{
    return QSize(60, fontMetrics().lineSpacing() + 2 * kFrameMargin + 6);
}

void TextEdit::OnThemeChanged()
{
    mpImp->ApplyPalette();
    mpImp->ApplyScrollBarStyle();
    update();
    viewport()->update();
}

bool TextEdit::event(QEvent* event)
{
    switch (event->type()) {
    case QEvent::Paint: {
        // The scroll area's own paint: our frame instead of the style's.
        QPainter painter(this);
        mpImp->PaintFrame(painter);
        return true;
    }
    case QEvent::HoverEnter:
    case QEvent::HoverLeave:
        update();
        break;
    default:
        break;
    }
    return QPlainTextEdit::event(event);
}

void TextEdit::keyPressEvent(QKeyEvent* event)
{
    const bool returnKey = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (returnKey && (event->modifiers() & Qt::ControlModifier)) {
        Commit();
        event->accept();
        return;
    }
    if (event->key() == Qt::Key_Escape && event->modifiers() == Qt::NoModifier) {
        if (toPlainText() != mpImp->msCommitted) {
            setPlainText(mpImp->msCommitted);
            moveCursor(QTextCursor::End);
            event->accept();
            return;
        }
        event->ignore(); // the window may close on it
        return;
    }
    if (mpImp->miMaxLength > 0 && !isReadOnly()) {
        const QString text = returnKey ? QStringLiteral("\n") : event->text();
        const bool inserts = !text.isEmpty() && (returnKey || text.at(0).isPrint() || text.at(0) == QLatin1Char('\t'));
        if (inserts && int(text.size()) > mpImp->Room()) {
            event->accept();
            return;
        }
    }
    QPlainTextEdit::keyPressEvent(event);
}

void TextEdit::inputMethodEvent(QInputMethodEvent* event)
{
    if (mpImp->miMaxLength > 0 && !event->commitString().isEmpty()) {
        const QString fitting = Fitting(event->commitString(), mpImp->Room());
        if (fitting != event->commitString()) {
            QInputMethodEvent cut(event->preeditString(), event->attributes());
            cut.setCommitString(fitting, event->replacementStart(), event->replacementLength());
            QPlainTextEdit::inputMethodEvent(&cut);
            return;
        }
    }
    QPlainTextEdit::inputMethodEvent(event);
}

void TextEdit::insertFromMimeData(const QMimeData* source)
{
    if (!source || isReadOnly())
        return;
    if (mpImp->miMaxLength <= 0)
        return QPlainTextEdit::insertFromMimeData(source);
    const QString fitting = Fitting(source->text(), mpImp->Room());
    // Nothing fits: the text, the selection and the caret stay as they are.
    if (fitting.isEmpty())
        return;
    textCursor().insertText(fitting);
    ensureCursorVisible();
}

void TextEdit::focusInEvent(QFocusEvent* event)
{
    QPlainTextEdit::focusInEvent(event);
    update();
}

void TextEdit::focusOutEvent(QFocusEvent* event)
{
    QPlainTextEdit::focusOutEvent(event);
    update();
    // A context menu of our own is still part of the editing.
    if (event->reason() != Qt::PopupFocusReason)
        Commit();
}

void TextEdit::changeEvent(QEvent* event)
{
    QPlainTextEdit::changeEvent(event);
    if (event->type() == QEvent::EnabledChange)
        mpImp->ApplyPalette();
}

} // namespace Kavrel::UICore
