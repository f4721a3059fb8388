#include <KvUICore/widgets/LineEdit.h>

#include <KvUICore/core/CoreUIUtil_p.h>
#include <KvUICore/theme/CustomStyle.h>
#include <KvUICore/theme/CustomStylePainting_p.h>
#include <KvUICore/theme/ThemeFileKey.h>
#include <KvUICore/theme/ThemeManager.h>
#include <KvUICore/widgets/ControlsAccessible_p.h>
#include <KvUICore/widgets/EditAnnouncer_p.h>
#include <KvUICore/widgets/TextBoxStyle_p.h>
#include <KvUICore/widgets/ThemedColor_p.h>
#include <KvUICore/widgets/ThemedFont_p.h>

#include <QAccessible>
#include <QApplication>
#include <QContextMenuEvent>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QPainter>
#include <QPointer>
#include <QSignalBlocker>

namespace Kavrel::UICore {

class LineEditImp
{
public:
    explicit LineEditImp(LineEdit* owner, bool embedded)
        : mpOwner(owner)
        , mbEmbedded(embedded)
    {}

    // Puts text on the display without announcing it: prompting texts and
    // elided forms are presentation, not edits.
    void Display(const QString& text)
    {
        const QSignalBlocker blocker(mpOwner);
        mpOwner->QLineEdit::setText(text);
    }

    QString DisplayForm() const
    {
        if (mElideMode == Qt::ElideNone || mpOwner->hasFocus())
            return msFullText;
        return mpOwner->fontMetrics().elidedText(msFullText, mElideMode, EditWidth());
    }

    int EditWidth() const
    {
        const QMargins margins = mpOwner->textMargins();
        return qMax(0, mpOwner->width() - margins.left() - margins.right() - 4);
    }

    void ApplyLook()
    {
        const QFont& font = mbIsPrompting ? mPromptingFont : mTextFont;
        if (mpOwner->font() != font)
            mpOwner->setFont(font);
        mpColor->SetAlternateActive(mbIsPrompting);
    }

    void SetTextFont(const QFont& font)
    {
        if (mTextFont == font)
            return;
        mTextFont = font;
        if (!mbIsPrompting) {
            ApplyLook();
            ShowFullOrElided();
        }
    }

    void ShowFullOrElided()
    {
        if (mbIsPrompting)
            return;
        const QString shown = DisplayForm();
        if (mpOwner->QLineEdit::text() != shown) {
            const int cursor = mpOwner->cursorPosition();
            Display(shown);
            mpOwner->setCursorPosition(mbHomeAlways ? 0 : qMin(cursor, int(shown.size())));
        }
    }

    QString ContextMenuStyleSheet() const
    {
        ThemeManager* themes = ThemeManager::GetInstance();
        const auto name = [themes](const QString& key) { return themes->GetColor(key).name(QColor::HexArgb); };
        const QString common = QStringLiteral("QMenu{background-color: %1; border:%2; border-radius: 4px} "
                                              "QMenu::separator{height: 1px; background-color: %3}");
        const QString theme = themes->GetCurrentTheme();
        if (theme.compare(QStringLiteral("Dark"), Qt::CaseInsensitive) == 0 ||
            theme.compare(QStringLiteral("HigLight"), Qt::CaseInsensitive) == 0) {
            return common.arg(name(ThemeFileKey::MenuBuiltInBackgroundColor1),
                              QStringLiteral("1px solid ") + name(ThemeFileKey::MenuBuiltInBorderColor1),
                              name(ThemeFileKey::MenuBuiltInSeparator1)) +
                   QStringLiteral(" QMenu::item{color: %1; padding: 4px 24px 4px 20px; background: transparent}"
                                  " QMenu::item:selected{background-color: %2}"
                                  " QMenu::item:pressed{background-color: %3}"
                                  " QMenu::item:disabled{color: %4}"
                                  " QMenu::item:disabled:selected{background-color: %5}")
                       .arg(name(ThemeFileKey::FontBuiltInNormal1),
                            name(ThemeFileKey::MenuBuiltInItemSelectedBackgroundColor1),
                            name(ThemeFileKey::MenuBuiltInItemPressedBackgroundColor1),
                            name(ThemeFileKey::FontBuiltInDisable1),
                            name(ThemeFileKey::MenuBuiltInDisabledItemSelectedBackgroundColor1));
        }
        return common.arg(name(ThemeFileKey::MenuBuiltInBackgroundColor1),
                          QStringLiteral("1px solid ") + name(ThemeFileKey::MenuBuiltInBorderColor1),
                          name(ThemeFileKey::MenuBuiltInSeparator1)) +
               QStringLiteral(" QMenu{padding: 2px 0px} QMenu::item{color: %1; padding: 3px 24px 3px 18px;"
                              " margin: 0px 2px; background: transparent}"
                              " QMenu::item:selected{background-color: %2; border-radius: 2px}"
                              " QMenu::item:pressed{background-color: %3}"
                              " QMenu::item:disabled{color: %4}")
                   .arg(name(ThemeFileKey::FontBuiltInNormal1),
                        name(ThemeFileKey::MenuBuiltInEnabledItemSelectedBackgroundColor1),
                        name(ThemeFileKey::MenuBuiltInItemPressedBackgroundColor1),
                        name(ThemeFileKey::FontBuiltInDisable1));
    }

    LineEdit* const mpOwner;
    QFont mTextFont = Internal::ThemedFont::ControlFont();
    // The text font follows the application font and the theme until one is set.
    bool mbDefaultTextFont = true;
    // The text colour, and the prompting colour as its alternate look; both
    // follow "FontNormal1" until a custom one is set.
    Internal::ThemedColor* mpColor = nullptr;
    QString msPrompting;
    QFont mPromptingFont = [] {
        QFont font;
        font.setItalic(true);
        return font;
    }();
    bool mbIsPrompting = false;
    bool mbHomeAlways = false;
    bool mbSelectedByClick = false;
    bool mbAllowFocusInSelectAll = true;
    bool mbInContextMenu = false;
    Qt::TextElideMode mElideMode = Qt::ElideNone;
    QString msFullText;
    bool mbPreventContextMenu = false;
    const bool mbEmbedded;
    int miHoverState = 0;
    Internal::EditAnnouncer* mpAnnouncer = nullptr;
};

LineEdit::LineEdit(QWidget* parent, bool embedded)
    : QLineEdit(parent)
    , mpImp(std::make_unique<LineEditImp>(this, embedded))
{
    Internal::InstallControlsAccessibility();
    setFont(mpImp->mTextFont);
    setAttribute(Qt::WA_Hover, true);
    setAttribute(Qt::WA_MacShowFocusRect, false);
    const int descent = fontMetrics().descent();
    setTextMargins(-3, -descent, -3, -descent);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    mpImp->mpColor = new Internal::ThemedColor(this);
    mpImp->mpColor->SetAlternateKey(ThemeFileKey::FontNormal1);
    mpImp->mpColor->SetThemeChangedHandler([this] { OnThemeChanged(); });
    connect(this, &QLineEdit::textEdited, this, &LineEdit::OnTextEdited);
    new Internal::ThemedFont(this, [this](const QFont& font) {
        if (mpImp->mbDefaultTextFont)
            mpImp->SetTextFont(font);
    });
    mpImp->mpAnnouncer = new Internal::EditAnnouncer(this);
    if (embedded) {
        setStyle(LineEditStyle::GetInstance());
    } else {
        setFocusPolicy(Qt::StrongFocus);
        setStyle(CustomStyle::GetInstance());
        setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    }
}

LineEdit::~LineEdit() = default;

QString LineEdit::GetText() const
{
    if (mpImp->mbIsPrompting)
        return QString();
    // Without eliding the display is the text, also after edits made through QLineEdit directly.
    if (mpImp->mElideMode == Qt::ElideNone)
        return QLineEdit::text();
    return mpImp->msFullText;
}

void LineEdit::SetText(const QString& text)
{
    const bool changed = text != mpImp->msFullText || mpImp->mbIsPrompting;
    mpImp->msFullText = text;
    if (!text.isEmpty() && text != mpImp->msPrompting)
        mpImp->mbIsPrompting = false;
    if (mpImp->mbIsPrompting) {
        UpdateText();
    } else {
        mpImp->ApplyLook();
        mpImp->Display(mpImp->DisplayForm());
        if (mpImp->mbHomeAlways)
            setCursorPosition(0);
        if (text.isEmpty())
            UpdateText();
    }
    if (changed)
        Q_EMIT textChanged(text);
}

void LineEdit::SetPrompting(const QString& prompting)
{
    if (mpImp->msPrompting == prompting)
        return;
    mpImp->msPrompting = prompting;
    if (mpImp->mbIsPrompting) {
        if (prompting.isEmpty())
            SetIsPrompting(false);
        else
            mpImp->Display(prompting);
    } else {
        UpdateText();
    }
}

QString LineEdit::GetPrompting() const
{
    return mpImp->msPrompting;
}

void LineEdit::SetIsPrompting(bool prompting)
{
    if (mpImp->mbIsPrompting == prompting)
        return;
    mpImp->mbIsPrompting = prompting;
    mpImp->ApplyLook();
    if (prompting) {
        mpImp->msFullText.clear();
        mpImp->Display(mpImp->msPrompting);
        setCursorPosition(0);
    } else {
        mpImp->Display(mpImp->DisplayForm());
    }
    update();
}

bool LineEdit::IsPrompting() const
{
    return mpImp->mbIsPrompting;
}

void LineEdit::UnsetPrompting()
{
    mpImp->msPrompting.clear();
    SetIsPrompting(false);
}

void LineEdit::SetPromptingFont(const QFont& font)
{
    if (mpImp->mPromptingFont == font)
        return;
    mpImp->mPromptingFont = font;
    if (mpImp->mbIsPrompting)
        mpImp->ApplyLook();
}

QFont LineEdit::GetPromptingFont() const
{
    return mpImp->mPromptingFont;
}

void LineEdit::SetPromptingColor(const QColor& color)
{
    mpImp->mpColor->SetAlternateCustomColor(color);
}

QColor LineEdit::GetPromptingColor() const
{
    return mpImp->mpColor->GetEnabledColor(true);
}

void LineEdit::SetTextFont(const QFont& font)
{
    mpImp->mbDefaultTextFont = false;
    mpImp->SetTextFont(font);
}

QFont LineEdit::GetTextFont() const
{
    return mpImp->mTextFont;
}

void LineEdit::SetTextColor(const QColor& color)
{
    mpImp->mpColor->SetCustomColor(color);
}

QColor LineEdit::GetTextColor() const
{
    return mpImp->mpColor->IsDefault() ? mpImp->mpColor->GetColor(false) : mpImp->mpColor->GetCustomColor();
}

QFont LineEdit::GetCurrentFont() const
{
    return mpImp->mbIsPrompting ? mpImp->mPromptingFont : mpImp->mTextFont;
}

bool LineEdit::IsUseDefaultTextColor() const
{
    return mpImp->mpColor->IsDefault();
}

void LineEdit::SetElideMode(Qt::TextElideMode mode)
{
    if (mpImp->mElideMode == mode)
        return;
    if (mpImp->mElideMode == Qt::ElideNone && !mpImp->mbIsPrompting)
        mpImp->msFullText = QLineEdit::text();
    mpImp->mElideMode = mode;
    mpImp->ShowFullOrElided();
}

Qt::TextElideMode LineEdit::GetElideMode() const
{
    return mpImp->mElideMode;
}

void LineEdit::SetHomeAlways(bool homeAlways)
{
    mpImp->mbHomeAlways = homeAlways;
}

void LineEdit::AllowFocusInSelectAll(bool allow)
{
    mpImp->mbAllowFocusInSelectAll = allow;
}

void LineEdit::SetPreventContextMenu(bool prevent)
{
    mpImp->mbPreventContextMenu = prevent;
}

void LineEdit::UpdateText()
{
    if (!mpImp->msPrompting.isEmpty() && !hasFocus() && mpImp->msFullText.isEmpty()) {
        if (!mpImp->mbIsPrompting || QLineEdit::text() != mpImp->msPrompting) {
            mpImp->mbIsPrompting = true;
            mpImp->ApplyLook();
            mpImp->Display(mpImp->msPrompting);
            setCursorPosition(0);
        }
    } else if (hasFocus() && mpImp->mbIsPrompting) {
        mpImp->mbIsPrompting = false;
        mpImp->ApplyLook();
        mpImp->Display(QString());
    }
}

int LineEdit::HoverState() const
{
    return mpImp->miHoverState;
}

QSize LineEdit::sizeHint() const
{
    return QSize(QWIDGETSIZE_MAX, fontMetrics().height() + 2);
}

QSize LineEdit::minimumSizeHint() const
{
    return QSize();
}

void LineEdit::UpdateAccessibleName(const QString& name)
{
    setAccessibleName(name);
}

void LineEdit::OnThemeChanged()
{
    mpImp->mpColor->Apply();
}

void LineEdit::OnTextEdited(const QString& text)
{
    // Typing replaces whatever was shown, so the displayed text is the full text.
    mpImp->msFullText = text;
    mpImp->mbIsPrompting = false;
}

void LineEdit::mousePressEvent(QMouseEvent* event)
{
    mpImp->miHoverState = 2;
    QPointer<LineEdit> self(this);
    QLineEdit::mousePressEvent(event);
    if (!self)
        return;
    if (mpImp->mbAllowFocusInSelectAll && !mpImp->mbSelectedByClick && !mpImp->mbIsPrompting) {
        selectAll();
        mpImp->mbSelectedByClick = true;
    }
}

void LineEdit::mouseReleaseEvent(QMouseEvent* event)
{
    mpImp->miHoverState = rect().contains(event->position().toPoint()) ? 1 : 0;
    QLineEdit::mouseReleaseEvent(event);
}

void LineEdit::focusInEvent(QFocusEvent* event)
{
    QPointer<LineEdit> self(this);
    QLineEdit::focusInEvent(event);
    if (!self)
        return;
    UpdateText();
    mpImp->ShowFullOrElided();
    if (mpImp->mbHomeAlways && !mpImp->mbSelectedByClick)
        setCursorPosition(0);
}

void LineEdit::focusOutEvent(QFocusEvent* event)
{
    QPointer<LineEdit> self(this);
    // editingFinished() handlers may delete the edit.
    mpImp->mpAnnouncer->FocusOut(event, [this, event] { QLineEdit::focusOutEvent(event); });
    if (self && !mpImp->mbInContextMenu) {
        mpImp->mbSelectedByClick = false;
        setCursorPosition(0);
        mpImp->ShowFullOrElided();
        UpdateText();
    }
}

void LineEdit::keyPressEvent(QKeyEvent* event)
{
    QPointer<LineEdit> self(this);
    // returnPressed() and editingFinished() handlers may delete the edit.
    mpImp->mpAnnouncer->KeyPress(event, [this, event] { QLineEdit::keyPressEvent(event); });
    if (self && (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter))
        selectAll();
}

void LineEdit::enterEvent(QEnterEvent* event)
{
    mpImp->miHoverState = 1;
    QLineEdit::enterEvent(event);
    Q_EMIT Enter();
}

void LineEdit::leaveEvent(QEvent* event)
{
    mpImp->miHoverState = 0;
    QLineEdit::leaveEvent(event);
}

void LineEdit::contextMenuEvent(QContextMenuEvent* event)
{
    if (mpImp->mbPreventContextMenu) {
        event->accept();
        return;
    }
    QPointer<QMenu> menu = createStandardContextMenu();
    if (!menu)
        return;
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->setStyleSheet(mpImp->ContextMenuStyleSheet());
    QPointer<LineEdit> self(this);
    mpImp->mbInContextMenu = true;
    menu->exec(event->globalPos());
    if (self)
        mpImp->mbInContextMenu = false;
    if (menu)
        delete menu.data();
}

void LineEdit::paintEvent(QPaintEvent* event)
{
    QLineEdit::paintEvent(event);
    // Embedded, the frame around the editor shows the focus.
    if (mpImp->mbEmbedded || !hasFocus())
        return;
    QPainter painter(this);
    Internal::DrawFocusRing(&painter, this, rect());
}

void LineEdit::resizeEvent(QResizeEvent* event)
{
    QLineEdit::resizeEvent(event);
    mpImp->ShowFullOrElided();
}

} // namespace Kavrel::UICore
