#include <KvUICore/widgets/TextBox.h>

#include <KvUICore/core/CoreUIUtil_p.h>
#include <KvUICore/core/DrawingHelpers_p.h>
#include <KvUICore/core/ScalableValues.h>
#include <KvUICore/theme/ThemeFileKey.h>
#include <KvUICore/theme/ThemeManager.h>
#include <KvUICore/widgets/ControlsAccessible_p.h>
#include <KvUICore/widgets/LineEdit.h>
#include <KvUICore/widgets/TextBoxImp.h>
#include <KvUICore/widgets/TextBoxStyle_p.h>
#include <KvUICore/widgets/ThemedColor_p.h>
#include <KvUICore/widgets/ThemedFont_p.h>

#include <QAction>
#include <QApplication>
#include <QBoxLayout>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QPainter>
#include <QRegularExpression>
#include <QToolTip>

namespace Kavrel::UICore {

namespace {

// The toolkit's standard control height at 100 %.
constexpr int kStandardControlHeight = 24;
// The longest text Validate() lets through.
constexpr int kValidateMaxLength = 255;

const QRegularExpression& ForbiddenCharacters()
{
    static const QRegularExpression expression(QStringLiteral("[\\\\/:*?\"<>|;=`,]"));
    return expression;
}

const QRegularExpression& AllowedRun()
{
    static const QRegularExpression expression(QStringLiteral("[^\\\\/:*?\"<>|;=`,]+"));
    return expression;
}

// The text box shape: the rectangle shrunk by one filled, the four edges drawn
// as separate lines that stop short of the corners, so the corners look rounded.
void DrawTextBoxShape(QPainter* painter, const QRect& rect, const QBrush& fill, const QColor& outline, int lineWidth)
{
    if (!painter || rect.width() < 2 || rect.height() < 2)
        return;
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing, false);
    if (fill.style() != Qt::NoBrush)
        painter->fillRect(rect.adjusted(1, 1, -1, -1), fill);
    if (outline.isValid() && outline.alpha() > 0) {
        QPen pen(outline, qMax(1, lineWidth), Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin);
        pen.setCosmetic(true);
        painter->setPen(pen);
        const int l = rect.left();
        const int t = rect.top();
        const int r = rect.right();
        const int b = rect.bottom();
        painter->drawLine(l + 1, t, r - 1, t);
        painter->drawLine(l + 1, b, r - 1, b);
        painter->drawLine(l, t + 1, l, b - 1);
        painter->drawLine(r, t + 1, r, b - 1);
    }
    painter->restore();
}

// Disabled boxes take the theme's disabled container and outline; a theme
// without them gets the enabled colours dimmed.
QBrush DisabledBrush(const QBrush& normal, const QBrush& disabled)
{
    if (disabled.style() != Qt::NoBrush && disabled.color().isValid())
        return disabled;
    QBrush dimmed = normal;
    dimmed.setColor(Internal::DimmedColor(normal.color()));
    return dimmed;
}

QColor DisabledColor(const QColor& normal, const QColor& disabled)
{
    return disabled.isValid() ? disabled : Internal::DimmedColor(normal);
}

// The host's text colour where it set a palette on the box, else the theme's.
QColor BoxTextColor(const QWidget* box)
{
    if (const Internal::ThemedColor* color = Internal::ThemedColor::Of(box))
        return color->GetEnabledColor(false);
    return ThemeManager::GetInstance()->GetColor(ThemeFileKey::FontNormal1);
}

} // namespace

// ---- Event filters --------------------------------------------------------

TextBoxEventFilter::TextBoxEventFilter(TextBox* box)
    : QObject(box)
    , mpBox(box)
{}

bool TextBoxEventFilter::eventFilter(QObject* watched, QEvent* event)
{
    // The box's handlers only observe: the editor decides about acceptance.
    const bool accepted = event->isAccepted();
    const QPointer<TextBox> box(mpBox);
    switch (event->type()) {
    case QEvent::FocusIn:
        mpBox->focusInEvent(static_cast<QFocusEvent*>(event));
        break;
    case QEvent::FocusOut:
        mpBox->focusOutEvent(static_cast<QFocusEvent*>(event));
        break;
    case QEvent::MouseButtonPress:
        mpBox->mousePressEvent(static_cast<QMouseEvent*>(event));
        break;
    case QEvent::MouseButtonRelease:
        mpBox->mouseReleaseEvent(static_cast<QMouseEvent*>(event));
        break;
    default:
        break;
    }
    // A handler deleted the box, and with it the editor and this filter:
    // filtering the event out keeps Qt from delivering it to the editor.
    if (!box)
        return true;
    event->setAccepted(accepted);
    return QObject::eventFilter(watched, event);
}

ImageEventFilter::ImageEventFilter(TextBox* box)
    : QObject(box)
    , mpBox(box)
{}

bool ImageEventFilter::eventFilter(QObject*, QEvent* event)
{
    if (event->type() == QEvent::MouseButtonPress) {
        auto* mouse = static_cast<QMouseEvent*>(event);
        if (mouse->button() == Qt::LeftButton) {
            mpBox->ImagePressEvent(mouse);
            mpBox->mpImp->mbImagePressed = true;
        }
    } else if (event->type() == QEvent::MouseButtonRelease) {
        auto* mouse = static_cast<QMouseEvent*>(event);
        if (mouse->button() == Qt::LeftButton) {
            QPointer<TextBox> box(mpBox);
            mpBox->ImageReleaseEvent(mouse);
            if (box && box->mpImp->mbImagePressed) {
                box->mpImp->mbImagePressed = false;
                box->ImageClickedEvent(mouse);
                if (box)
                    Q_EMIT box->ImageClicked();
                if (box && box->mpImp->mpImageAction)
                    box->mpImp->mpImageAction->trigger();
            }
            if (!box)
                return true;
            box->mpImp->mbImagePressed = false;
        }
    }
    // The events go on to the label unless a handler deleted the box with it.
    return false;
}

// ---- TextBoxImp -----------------------------------------------------------

TextBoxImp::TextBoxImp(TextBox* owner)
    : mpOwner(owner)
{}

QRect TextBoxImp::FrameRect() const
{
    if (mIconPosition != TextBox::OuterLeft && mIconPosition != TextBox::OuterRight)
        return mpOwner->rect();
    const TextBox::Margins text = mpOwner->TextMargins();
    const QRect editor = mpTextBoxControl->geometry();
    return QRect(QPoint(editor.left() - text.left, 0), QPoint(editor.right() + text.right, mpOwner->height() - 1));
}

void TextBoxImp::PushEditorLook(const QColor& textColor)
{
    // The editor follows the theme by itself; a colour is pushed only where
    // the box's look differs from that (a derived box's own colours, the
    // dimmed text of a disabled box), and taken back when it no longer does.
    const QColor themed = ThemeManager::GetInstance()->GetColor(ThemeFileKey::FontNormal1);
    const auto pushed = [&themed](const QColor& color) { return color == themed ? QColor() : color; };
    const QFont textFont = mpOwner->TextFont();
    if (mpTextBoxControl->GetTextFont() != textFont)
        mpTextBoxControl->SetTextFont(textFont);
    mpTextBoxControl->SetTextColor(pushed(textColor));
    const QFont promptingFont = mpOwner->PromptingFont();
    if (mpTextBoxControl->GetPromptingFont() != promptingFont)
        mpTextBoxControl->SetPromptingFont(promptingFont);
    QColor promptingColor = mpOwner->PromptingColor();
    if (!mpOwner->isEnabled())
        promptingColor = Internal::DimmedColor(promptingColor);
    mpTextBoxControl->SetPromptingColor(pushed(promptingColor));
}

void TextBoxImp::UpdateEditorTooltip(const QString& text)
{
    if (!mbTooltipEnabled || !mpOwner->toolTip().isEmpty())
        return;
    const QFontMetrics metrics(mpTextBoxControl->font());
    if (metrics.elidedText(text, Qt::ElideRight, mpOwner->width() - 6) != text) {
        if (mpTextBoxControl->toolTip() != text)
            mpTextBoxControl->setToolTip(text);
    } else {
        mpTextBoxControl->setToolTip(QString());
    }
}

void TextBoxImp::ShowIcon()
{
    const int side = qMax(1, mpImageControl->width());
    mpImageControl->setPixmap(mIcon.isNull() ? QPixmap()
                                             : mIcon.pixmap(QSize(side, side), mpOwner->devicePixelRatio()));
}

// ---- TextBox --------------------------------------------------------------

TextBox::TextBox(QWidget* parent)
    : QWidget(parent)
    , mpImp(std::make_unique<TextBoxImp>(this))
{
    Internal::InstallControlsAccessibility();
    mpImp->mpImageControl = new TextBoxIcon(this);
    mpImp->mpImageControl->setAlignment(Qt::AlignCenter);
    mpImp->mpTextBoxControl = new LineEdit(this, true);
    mpImp->mpTextBoxFilter = new TextBoxEventFilter(this);
    mpImp->mpImageFilter = new ImageEventFilter(this);
    mpImp->mpTextBoxControl->installEventFilter(mpImp->mpTextBoxFilter);
    mpImp->mpImageControl->installEventFilter(mpImp->mpImageFilter);

    mpImp->mpLayout = new QBoxLayout(QBoxLayout::LeftToRight, this);
    mpImp->mpLayout->setContentsMargins(0, 0, 0, 0);
    mpImp->mpLayout->setSpacing(0);
    mpImp->mpLayout->addWidget(mpImp->mpImageControl, 0, Qt::AlignVCenter);
    mpImp->mpLayout->addWidget(mpImp->mpTextBoxControl);

    setStyle(TextBoxStyle::GetInstance());
    setAttribute(Qt::WA_NoSystemBackground, true);
    setAttribute(Qt::WA_Hover, true);
    setFocusProxy(mpImp->mpTextBoxControl);
    setFocusPolicy(Qt::StrongFocus);
    const int height = PreferredSize().height();
    setFixedHeight(height);
    mpImp->mpTextBoxControl->setFixedHeight(height);
    setSizePolicy(QSizePolicy::Preferred, sizePolicy().verticalPolicy());

    LineEdit* editor = mpImp->mpTextBoxControl;
    connect(editor, &QLineEdit::textEdited, this, &TextBox::OnTextEdited);
    connect(editor, &QLineEdit::cursorPositionChanged, this, &TextBox::OnCursorPositionChanged);
    connect(editor, &QLineEdit::editingFinished, this, &TextBox::OnEditingFinished);
    connect(editor, &QLineEdit::returnPressed, this, &TextBox::OnReturnPressed);
    connect(editor, &QLineEdit::selectionChanged, this, &TextBox::OnSelectionChanged);
    connect(editor, &QLineEdit::textChanged, this, &TextBox::OnTextChanged);
    // The box paints its own disabled look (the text dimmed) and pushes it.
    Internal::ThemedColor* editorColor = Internal::ThemedColor::Of(editor);
    editorColor->SetDisabledKey(QString());
    editorColor->SetThemeChangedHandler([this] { update(); });
    // The box's own colour and font are what it pushes into the editor, so a
    // palette or application font the host sets reaches the text; like the
    // editor, the box dims its disabled text itself.
    new Internal::ThemedColor(this, ThemeFileKey::FontNormal1, QString());
    new Internal::ThemedFont(this);

    editor->setAccessibleName(QStringLiteral("mpTextBoxControl"));
    mpImp->mpImageControl->setAccessibleName(QStringLiteral("mpImageControl"));
    UpdateLayout();
}

TextBox::~TextBox()
{
    // The editor dies after this box has stopped being a TextBox; when it has
    // the focus, its focus loss must not reach the box's handlers.
    mpImp->mpTextBoxControl->removeEventFilter(mpImp->mpTextBoxFilter);
    mpImp->mpImageControl->removeEventFilter(mpImp->mpImageFilter);
    mpImp->mpTextBoxControl->disconnect(this);
}

QString TextBox::GetText() const
{
    return mpImp->mpTextBoxControl->GetText();
}

void TextBox::SetText(const QString& text)
{
    LineEdit* editor = mpImp->mpTextBoxControl;
    if (text != editor->GetText()) {
        if (!mpImp->mbNeedValidate) {
            mpImp->msLastValidText = text;
            editor->SetText(text);
        } else {
            QString out;
            QString error;
            if (ValidateText(text, out, error)) {
                mpImp->msLastValidText = out;
                editor->SetText(out);
            }
        }
    }
    editor->setCursorPosition(0);
    mpImp->UpdateEditorTooltip(editor->GetText());
}

void TextBox::UpdateText(const QString& text)
{
    SetText(text);
}

void TextBox::SetPrompt(const QString& prompt)
{
    mpImp->mpTextBoxControl->SetPrompting(prompt);
}

void TextBox::SetIsPrompting(bool prompting)
{
    mpImp->mpTextBoxControl->SetIsPrompting(prompting);
}

void TextBox::UnsetPrompting()
{
    mpImp->mpTextBoxControl->UnsetPrompting();
}

void TextBox::SetReadOnly(bool readOnly)
{
    mpImp->mpTextBoxControl->setReadOnly(readOnly);
}

bool TextBox::IsReadOnly() const
{
    return mpImp->mpTextBoxControl->isReadOnly();
}

void TextBox::SetElideMode(Qt::TextElideMode mode)
{
    mpImp->mpTextBoxControl->SetElideMode(mode);
}

Qt::TextElideMode TextBox::GetElideMode() const
{
    return mpImp->mpTextBoxControl ? mpImp->mpTextBoxControl->GetElideMode() : Qt::ElideNone;
}

void TextBox::SetHomeAlways(bool homeAlways)
{
    mpImp->mpTextBoxControl->SetHomeAlways(homeAlways);
}

void TextBox::AllowFocusInSelectAll(bool allow)
{
    mpImp->mpTextBoxControl->AllowFocusInSelectAll(allow);
}

void TextBox::SetIcon(const QIcon& icon)
{
    if (icon.cacheKey() == mpImp->mIcon.cacheKey())
        return;
    mpImp->mIcon = icon;
    if (icon.isNull())
        mpImp->mIconPosition = NoIcon;
    else if (mpImp->mIconPosition == NoIcon)
        mpImp->mIconPosition = OuterLeft;
    UpdateLayout();
    mpImp->ShowIcon();
}

QIcon TextBox::GetIcon() const
{
    return mpImp->mIcon;
}

void TextBox::SetIconPosition(IconPosition position)
{
    mpImp->mIconPosition = position;
    UpdateLayout();
}

TextBox::IconPosition TextBox::GetIconPosition() const
{
    return mpImp->mIconPosition;
}

void TextBox::SetImageAction(QAction* action)
{
    if (action == mpImp->mpImageAction)
        return;
    if (mpImp->mpImageAction)
        disconnect(mpImp->mpImageAction, &QAction::changed, this, &TextBox::ImageActionChanged);
    mpImp->mpImageAction = action;
    if (action) {
        SetIcon(action->icon());
        connect(action, &QAction::changed, this, &TextBox::ImageActionChanged);
    }
}

QAction* TextBox::GetImageAction() const
{
    return mpImp->mpImageAction;
}

void TextBox::ImageActionChanged()
{
    if (mpImp->mpImageAction)
        SetIcon(mpImp->mpImageAction->icon());
}

void TextBox::SetImageLabelTooltip(const QString& tooltip)
{
    if (mpImp->mbTooltipEnabled)
        mpImp->mpImageControl->setToolTip(tooltip);
}

void TextBox::SetIsTooltipEnabled(bool enabled)
{
    mpImp->mbTooltipEnabled = enabled;
    if (!enabled) {
        mpImp->mpImageControl->setToolTip(QString());
        mpImp->mpTextBoxControl->setToolTip(QString());
    }
}

bool TextBox::GetIsTooltipEnabled() const
{
    return mpImp->mbTooltipEnabled;
}

void TextBox::SetNeedValidate(bool needValidate)
{
    mpImp->mbNeedValidate = needValidate;
}

bool TextBox::NeedValidate() const
{
    return mpImp->mbNeedValidate;
}

void TextBox::TextValidationInitialize(const QList<QString>& errorMessages, int maxLength)
{
    mpImp->mErrorMessages = errorMessages;
    mpImp->miMaxLength = maxLength;
}

bool TextBox::Validate()
{
    LineEdit* editor = mpImp->mpTextBoxControl;
    QString text = editor->GetText();
    if (text.size() > kValidateMaxLength) {
        text.truncate(kValidateMaxLength);
        editor->SetText(text);
    }
    return AllowedRun().match(text).hasMatch();
}

bool TextBox::ValidateText(const QString& in, QString& out, QString& error) const
{
    out = in;
    if (in.size() > mpImp->miMaxLength) {
        if (!mpImp->mErrorMessages.isEmpty())
            error = mpImp->mErrorMessages.at(0);
        return false;
    }
    if (ForbiddenCharacters().match(in).hasMatch()) {
        if (mpImp->mErrorMessages.size() >= 2)
            error = mpImp->mErrorMessages.at(1);
        return false;
    }
    if (!in.isEmpty() && (in.front().isSpace() || in.back().isSpace()))
        out = in.trimmed();
    return true;
}

LineEdit* TextBox::GetLineEdit() const
{
    return mpImp->mpTextBoxControl;
}

QWidget* TextBox::GetImageLabel() const
{
    return mpImp->mpImageControl;
}

void TextBox::setTabFocus()
{
    setFocus(Qt::TabFocusReason);
}

void TextBox::UpdateAccessibleName(const QString& name)
{
    setAccessibleName(name);
}

QSize TextBox::sizeHint() const
{
    return PreferredSize();
}

QSize TextBox::minimumSizeHint() const
{
    return QSize();
}

void TextBox::DrawTextBoxFrame(QPainter* painter, const QRect& rect, const QColor& color, int lineWidth)
{
    DrawTextBoxShape(painter, rect, Qt::NoBrush, color, lineWidth);
}

void TextBox::DrawTextBoxPanel(QPainter* painter, const QRect& rect, const QBrush& brush, int lineWidth)
{
    DrawTextBoxShape(painter, rect, brush, Qt::transparent, lineWidth);
}

void TextBox::ImagePressEvent(QMouseEvent*) {}

void TextBox::ImageReleaseEvent(QMouseEvent*) {}

void TextBox::ImageClickedEvent(QMouseEvent*) {}

int TextBox::BorderNormalWidth() const
{
    return 1;
}

int TextBox::BorderFocusWidth() const
{
    return 1;
}

TextBox::Margins TextBox::TextMargins() const
{
    return Margins{4, 4, 4, 4};
}

TextBox::Margins TextBox::ImageMargins() const
{
    return Margins{3, 3, 3, 3};
}

QSize TextBox::PreferredSize() const
{
    return QSize(ScalableIntX(120), ScalableIntY(kStandardControlHeight));
}

QColor TextBox::BorderNormalColor() const
{
    return ThemeManager::GetInstance()->GetColor(ThemeFileKey::WidgetOutline3);
}

QColor TextBox::BorderHoverColor() const
{
    return ThemeManager::GetInstance()->GetColor(ThemeFileKey::HoverOutline4);
}

QColor TextBox::BorderFocusColor() const
{
    return ThemeManager::GetInstance()->GetColor(ThemeFileKey::WidgetOutline6);
}

QColor TextBox::BorderFocusColorHalo() const
{
    return ThemeManager::GetInstance()->GetColor(ThemeFileKey::FocusOutline2);
}

QBrush TextBox::BackgroundNormalBrush() const
{
    return ThemeManager::GetInstance()->GetBrush(ThemeFileKey::WidgetContainer9, rect().adjusted(1, 1, -1, -1));
}

QBrush TextBox::BackgroundHoverBrush() const
{
    return ThemeManager::GetInstance()->GetBrush(ThemeFileKey::WidgetContainer12, rect().adjusted(1, 1, -1, -1));
}

QBrush TextBox::BackgroundFocusedBrush() const
{
    return ThemeManager::GetInstance()->GetBrush(ThemeFileKey::WidgetContainer12, rect().adjusted(1, 1, -1, -1));
}

QColor TextBox::TextColor() const
{
    return BoxTextColor(this);
}

QColor TextBox::TextFocusColor() const
{
    return BoxTextColor(this);
}

QFont TextBox::TextFont() const
{
    return font();
}

QFont TextBox::PromptingFont() const
{
    QFont italic = font();
    italic.setItalic(true);
    return italic;
}

QColor TextBox::PromptingColor() const
{
    return ThemeManager::GetInstance()->GetColor(ThemeFileKey::FontNormal1);
}

QBrush TextBox::BackgroundDisableBrush() const
{
    return QBrush(ThemeManager::GetInstance()->GetColor(ThemeFileKey::WidgetContainerDisable), Qt::SolidPattern);
}

QColor TextBox::BorderDisableColor() const
{
    return ThemeManager::GetInstance()->GetColor(ThemeFileKey::WidgetOutlineDisable);
}

void TextBox::OnTextChanged(const QString& text)
{
    Q_EMIT TextChanged(text);
    if (!mpImp->mbNeedValidate)
        return;
    QString out;
    QString error;
    if (!ValidateText(text, out, error) && !error.isEmpty())
        QToolTip::showText(mapToGlobal(QPoint(0, 0)), error, this);
    else
        QToolTip::hideText();
}

void TextBox::OnEditingFinished()
{
    if (mpImp->mbNeedValidate) {
        LineEdit* editor = mpImp->mpTextBoxControl;
        const QString text = editor->GetText();
        QString out;
        QString error;
        if (!ValidateText(text, out, error)) {
            editor->SetText(mpImp->msLastValidText);
        } else {
            if (out != text)
                editor->SetText(out);
            mpImp->msLastValidText = out;
        }
    }
    Q_EMIT EditingFinished();
}

void TextBox::OnTextEdited(const QString& text)
{
    Q_EMIT TextEdited(text);
}

void TextBox::OnCursorPositionChanged(int oldPos, int newPos)
{
    Q_EMIT CursorPositionChanged(oldPos, newPos);
}

void TextBox::OnReturnPressed()
{
    Q_EMIT ReturnPressed();
}

void TextBox::OnSelectionChanged()
{
    Q_EMIT SelectionChanged();
}

bool TextBox::event(QEvent* event)
{
    if (event->type() == QEvent::ToolTipChange && mpImp->mpTextBoxControl)
        mpImp->mpTextBoxControl->setToolTip(toolTip());
    return QWidget::event(event);
}

void TextBox::paintEvent(QPaintEvent*)
{
    const bool focused = hasFocus();
    const bool hovered = underMouse() || (mpImp->mpTextBoxControl && mpImp->mpTextBoxControl->underMouse());
    QBrush background = BackgroundNormalBrush();
    QColor border = BorderNormalColor();
    QColor text = TextColor();
    if (focused) {
        background = BackgroundFocusedBrush();
        border = BorderFocusColorHalo();
        text = TextFocusColor();
    } else if (hovered) {
        background = BackgroundHoverBrush();
        border = BorderHoverColor();
    }
    if (!isEnabled()) {
        background = DisabledBrush(background, BackgroundDisableBrush());
        border = DisabledColor(border, BorderDisableColor());
        text = Internal::DimmedColor(text);
    }
    const int lineWidth = qMax(1, qRound((focused ? BorderFocusWidth() : BorderNormalWidth()) * devicePixelRatio()));

    QPainter painter(this);
    const QRect panel = mpImp->FrameRect().adjusted(1, 1, -1, -1);
    DrawTextBoxShape(&painter, panel, background, border, lineWidth);
    if (focused && isEnabled())
        DrawTextBoxFrame(&painter, panel.adjusted(-1, -1, 1, 1), BorderFocusColor(), lineWidth);
    painter.end();

    mpImp->PushEditorLook(text);
}

void TextBox::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    UpdateLayout();
}

void TextBox::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Escape:
        QWidget::keyPressEvent(event);
        Q_EMIT EscapePressed();
        break;
    case Qt::Key_PageUp:
        mpImp->mpTextBoxControl->home(false);
        event->accept();
        break;
    case Qt::Key_PageDown:
        mpImp->mpTextBoxControl->end(false);
        event->accept();
        break;
    default:
        QWidget::keyPressEvent(event);
    }
}

void TextBox::focusInEvent(QFocusEvent* event)
{
    const Qt::FocusReason reason = event->reason();
    if (reason == Qt::MouseFocusReason || reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason) {
        Q_EMIT FocusIn();
        update();
    } else {
        QWidget::focusInEvent(event);
    }
}

void TextBox::focusOutEvent(QFocusEvent* event)
{
    const Qt::FocusReason reason = event->reason();
    if (reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason)
        update();
    else
        QWidget::focusOutEvent(event);
    Q_EMIT FocusOut();
}

void TextBox::mousePressEvent(QMouseEvent*)
{
    if (hasFocus())
        Q_EMIT FocusIn();
    else
        setFocus(Qt::MouseFocusReason);
}

void TextBox::enterEvent(QEnterEvent* event)
{
    QWidget::enterEvent(event);
    Q_EMIT Enter();
}

void TextBox::UpdateLayout()
{
    const Margins text = TextMargins();
    const Margins image = ImageMargins();
    const int h = height() > 0 ? height() : PreferredSize().height();
    mpImp->mpTextBoxControl->SetTextFont(TextFont());
    mpImp->mpTextBoxControl->SetPromptingFont(PromptingFont());
    const int side = qMax(1, h - image.bottom - image.top);
    mpImp->mpImageControl->setFixedSize(side, side);

    QBoxLayout* layout = mpImp->mpLayout;
    switch (mpImp->mIconPosition) {
    case NoIcon:
        mpImp->mpImageControl->hide();
        layout->setDirection(QBoxLayout::LeftToRight);
        layout->setContentsMargins(text.left, 0, text.right, 0);
        layout->setSpacing(0);
        break;
    case OuterLeft:
        mpImp->mpImageControl->show();
        layout->setDirection(QBoxLayout::LeftToRight);
        layout->setContentsMargins(0, 0, text.right, 0);
        layout->setSpacing(image.right + text.left);
        break;
    case OuterRight:
        mpImp->mpImageControl->show();
        layout->setDirection(QBoxLayout::RightToLeft);
        layout->setContentsMargins(text.left, 0, 0, 0);
        layout->setSpacing(text.right + image.left);
        break;
    case InnerLeft:
        mpImp->mpImageControl->show();
        layout->setDirection(QBoxLayout::LeftToRight);
        layout->setContentsMargins(image.left, 0, text.right, 0);
        layout->setSpacing(qMax(image.right, text.left));
        break;
    case InnerRight:
        mpImp->mpImageControl->show();
        layout->setDirection(QBoxLayout::RightToLeft);
        layout->setContentsMargins(text.left, 0, image.right, 0);
        layout->setSpacing(qMax(text.right, image.left));
        break;
    }
    mpImp->ShowIcon();
    updateGeometry();
    update();
}

} // namespace Kavrel::UICore
