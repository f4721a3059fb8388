#include <KvUICore/widgets/PushButton.h>

#include <KvUICore/core/CoreUIUtil_p.h>
#include <KvUICore/theme/CustomStylePainting_p.h>
#include <KvUICore/theme/ThemeFileKey.h>
#include <KvUICore/theme/ThemeManager.h>
#include <KvUICore/widgets/ControlsAccessible_p.h>
#include <KvUICore/widgets/ThemedColor_p.h>
#include <KvUICore/widgets/ThemedFont_p.h>

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPointer>
#include <QStaticText>

namespace Kavrel::UICore {

namespace {
constexpr int kIconAndTextLayout = 2;
constexpr int kTextGap = 4;
constexpr int kTextPadding = 8;
const QSize kIconSize(16, 16);
} // namespace

class PushButtonImp
{
public:
    explicit PushButtonImp(PushButton* owner)
        : mpOwner(owner)
    {}

    bool IsHot() const { return miMouseState == PushButton::Hovered || miMouseState == PushButton::Pressed; }

    QString MiniIconKey() const
    {
        if (mpOwner->isChecked())
            return IsHot() ? ThemeFileKey::MiniButtonToggleOnHover : ThemeFileKey::MiniButtonToggleOn;
        return IsHot() ? ThemeFileKey::MiniButtonToggleOffHover : ThemeFileKey::MiniButtonToggleOff;
    }

    // Lays out again when the text, the icon or the size changed since the
    // last layout (QAbstractButton::setText does not reach updateGeometry).
    void EnsureLayout()
    {
        const qint64 iconKey = mpOwner->icon().cacheKey();
        if (msLaidOutText == mpOwner->text() && mLaidOutSize == mpOwner->size() && miLaidOutIcon == iconKey)
            return;
        mpOwner->updateGeometry();
        if (!mpOwner->text().isEmpty())
            mpOwner->UpdateToolTip();
    }

    void UpdateTextLook() { mpColor->SetAlternateActive(mpOwner->isChecked() && !mbIsMiniIcon); }

    PushButton* mpOwner;
    Internal::ThemedColor* mpColor = nullptr;
    bool mbIsMiniIcon = false;
    int miMouseState = PushButton::Idle;
    QImage mIconImage;
    QRect mIconRect;
    QRect mTextRect;
    int miLayoutKind = 0;
    bool mbToggleOnLocked = false;
    QString msReservedToolTip;

    QString msLaidOutText;
    QSize mLaidOutSize;
    qint64 miLaidOutIcon = 0;

    // The width the text is painted in. Beside an icon the text rectangle
    // ends at the preferred block's edge, a little short of the text itself
    // (the tool tip rule measures against it); painting may use the room up
    // to the button's own edge, so a button that has the room shows its text.
    int PaintedTextWidth() const
    {
        if (miLayoutKind != kIconAndTextLayout)
            return mTextRect.width();
        return std::max(mTextRect.width(), mpOwner->rect().right() - mTextRect.left() + 1);
    }

    // The text cut to the width it is painted in and laid out once.
    const QStaticText& ShownText()
    {
        const QString text = mpOwner->text();
        const QFont font = mpOwner->font();
        const int width = PaintedTextWidth();
        if (width != miShownWidth || text != msShownSource || font != mShownFont) {
            msShownSource = text;
            miShownWidth = width;
            mShownFont = font;
            QString shown = QFontMetrics(font).elidedText(text, Qt::ElideMiddle, width, Qt::TextShowMnemonic);
            // Mnemonic markers are not drawn; a doubled one stands for itself.
            shown.replace(QStringLiteral("&&"), QStringLiteral("\x01"));
            shown.remove(QLatin1Char('&'));
            shown.replace(QStringLiteral("\x01"), QStringLiteral("&"));
            mShownText.setTextFormat(Qt::PlainText);
            mShownText.setText(shown);
            mShownText.prepare(QTransform(), font);
        }
        return mShownText;
    }

    QStaticText mShownText;
    QString msShownSource;
    QFont mShownFont;
    int miShownWidth = -1;
};

PushButton::PushButton(QWidget* parent)
    : QPushButton(parent)
    , mpImp(std::make_unique<PushButtonImp>(this))
{
    Internal::InstallControlsAccessibility();
    new Internal::ThemedFont(this);
    setAttribute(Qt::WA_Hover);
    resize(ThemeFileKey::ButtonDefaultSize);
    setMinimumSize(ThemeFileKey::ButtonDefaultSize);
    // A checked button's text takes the active colour where the theme has one.
    mpImp->mpColor = new Internal::ThemedColor(this);
    mpImp->mpColor->SetAlternateKey(ThemeFileKey::FontActive1);
    mpImp->mpColor->SetThemeChangedHandler([this] { ThemeChanged(); });
    connect(this, &QObject::objectNameChanged, this, &PushButton::UpdateIcon);
    connect(this, &QAbstractButton::toggled, this, [this] {
        mpImp->UpdateTextLook();
        if (mpImp->mbIsMiniIcon)
            UpdateIcon();
    });
}

PushButton::~PushButton() = default;

void PushButton::SetCheckable(bool checkable, bool lockToggleOn)
{
    mpImp->mbToggleOnLocked = lockToggleOn;
    setCheckable(checkable);
}

bool PushButton::IsToggleOnStateLocked() const
{
    return mpImp->mbToggleOnLocked;
}

void PushButton::SetIsMiniIcon(bool miniIcon)
{
    if (miniIcon == mpImp->mbIsMiniIcon)
        return;
    mpImp->mbIsMiniIcon = miniIcon;
    mpImp->UpdateTextLook();
    UpdateIcon();
    update();
}

bool PushButton::IsMiniIcon() const
{
    return mpImp->mbIsMiniIcon;
}

int PushButton::GetMouseState() const
{
    return mpImp->miMouseState;
}

void PushButton::SetMouseState(int state)
{
    if (state == mpImp->miMouseState)
        return;
    mpImp->miMouseState = state;
    if (mpImp->mbIsMiniIcon)
        UpdateIcon();
}

void PushButton::setGeometry(const QRect& rect)
{
    QWidget::setGeometry(rect);
    updateGeometry();
}

void PushButton::updateGeometry()
{
    PushButtonImp& d = *mpImp;
    const QRect r = rect();
    const bool hasIcon = !icon().isNull();
    const bool hasText = !text().isEmpty();
    if (hasIcon && hasText) {
        d.miLayoutKind = kIconAndTextLayout;
        QRect block(QPoint(), GetPreferredSize());
        block.moveCenter(r.center());
        d.mIconRect = QRect(block.left(), block.top(), iconSize().width(), block.height());
        d.mTextRect = QRect(QPoint(d.mIconRect.right() + kTextGap, block.top()), QPoint(block.right(), r.bottom()));
    } else {
        d.miLayoutKind = hasIcon ? 1 : 0;
        d.mIconRect = QRect(QPoint(), iconSize());
        d.mIconRect.moveCenter(r.center());
        d.mTextRect = r.adjusted(kTextGap, 0, -kTextGap, 0);
    }
    d.msLaidOutText = text();
    d.mLaidOutSize = size();
    d.miLaidOutIcon = icon().cacheKey();
    QWidget::updateGeometry();
}

QSize PushButton::GetPreferredSize() const
{
    if (!icon().isNull() && !text().isEmpty()) {
        const QSize textSize = fontMetrics().size(Qt::TextSingleLine | Qt::TextShowMnemonic, text());
        return QSize(textSize.width() + 2 + iconSize().width(), height());
    }
    if (mpImp->mbIsMiniIcon)
        return iconSize() + QSize(2, 2);
    return QSize();
}

QSize PushButton::sizeHint() const
{
    const QSize minimum = ThemeFileKey::ButtonDefaultSize;
    if (!icon().isNull() && !text().isEmpty()) {
        const QSize textSize = fontMetrics().size(Qt::TextSingleLine | Qt::TextShowMnemonic, text());
        return QSize(textSize.width() + 2 + iconSize().width() + 2 * kTextPadding, minimum.height());
    }
    if (!text().isEmpty()) {
        const QSize textSize = fontMetrics().size(Qt::TextSingleLine | Qt::TextShowMnemonic, text());
        return QSize(std::max(textSize.width() + 2 * kTextPadding, minimum.width()), minimum.height());
    }
    return minimum.expandedTo(GetPreferredSize());
}

QSize PushButton::minimumSizeHint() const
{
    return ThemeFileKey::ButtonDefaultSize;
}

void PushButton::UpdateIcon()
{
    ThemeManager* themes = ThemeManager::GetInstance();
    QImage image;
    if (mpImp->mbIsMiniIcon) {
        image = themes->GetImage(mpImp->MiniIconKey(), iconSize());
    } else if (!objectName().isEmpty() && themes->Exists(objectName())) {
        const QString path = themes->GetString(objectName());
        image = QIcon(path).pixmap(kIconSize, devicePixelRatioF()).toImage();
    }
    if (image.isNull() || image == mpImp->mIconImage)
        return;
    mpImp->mIconImage = image;
    setIcon(QIcon(QPixmap::fromImage(image)));
    setIconSize(kIconSize);
    updateGeometry();
    update();
}

void PushButton::UpdateToolTip()
{
    const QString full = text();
    if (toolTip() != full)
        mpImp->msReservedToolTip = toolTip();
    const QString elided = fontMetrics().elidedText(full, Qt::ElideMiddle, mpImp->mTextRect.width());
    setToolTip(elided == full ? mpImp->msReservedToolTip : full);
}

void PushButton::ThemeChanged()
{
    mpImp->mpColor->Apply();
    UpdateIcon();
}

void PushButton::enterEvent(QEnterEvent* event)
{
    SetMouseState(Hovered);
    QPushButton::enterEvent(event);
    update();
}

void PushButton::leaveEvent(QEvent* event)
{
    SetMouseState(Idle);
    QPushButton::leaveEvent(event);
    update();
}

void PushButton::mousePressEvent(QMouseEvent* event)
{
    SetMouseState(Pressed);
    repaint();
    QPushButton::mousePressEvent(event);
}

void PushButton::mouseReleaseEvent(QMouseEvent* event)
{
    QPointer<PushButton> self(this);
    QPushButton::mouseReleaseEvent(event);
    // A clicked() handler may have deleted the button.
    if (!self)
        return;
    SetMouseState(testAttribute(Qt::WA_UnderMouse) ? Hovered : Released);
    repaint();
}

void PushButton::keyPressEvent(QKeyEvent* event)
{
    if (event->key() != Qt::Key_Space && event->key() != Qt::Key_Return) {
        QPushButton::keyPressEvent(event);
        return;
    }
    SetMouseState(Pressed);
    repaint();
}

void PushButton::keyReleaseEvent(QKeyEvent* event)
{
    if (event->key() != Qt::Key_Space && event->key() != Qt::Key_Return) {
        QPushButton::keyReleaseEvent(event);
        return;
    }
    // A held key repeats its releases; only the real release clicks.
    if (event->isAutoRepeat())
        return;
    SetMouseState(Released);
    repaint();
    // click() moves a checkable button on through nextCheckState, which keeps a
    // locked button checked.
    click();
}

void PushButton::nextCheckState()
{
    if (isCheckable() && mpImp->mbToggleOnLocked) {
        if (!isChecked())
            setChecked(true);
        return;
    }
    QPushButton::nextCheckState();
}

void PushButton::resizeEvent(QResizeEvent* event)
{
    QPushButton::resizeEvent(event);
    updateGeometry();
    if (!text().isEmpty())
        UpdateToolTip();
}

void PushButton::paintEvent(QPaintEvent*)
{
    PushButtonImp& d = *mpImp;
    d.EnsureLayout();
    ThemeManager* themes = ThemeManager::GetInstance();
    QPainter painter(this);
    const Internal::StrokeGrid grid = Internal::StrokeGridOf(this, &painter);
    const QRectF strokeRect = Internal::StrokeRect(&painter, rect(), grid);

    if (!d.mbIsMiniIcon) {
        QString fillKey = ThemeFileKey::WidgetContainer1;
        QString outlineKey = ThemeFileKey::WidgetOutline1;
        const bool pressed = d.miMouseState == Pressed || isDown();
        const bool hovered = d.miMouseState == Hovered || (d.miMouseState == Released && underMouse());
        if (!isEnabled()) {
            fillKey = ThemeFileKey::WidgetContainerDisable;
            outlineKey = ThemeFileKey::WidgetOutlineDisable;
        } else if (pressed) {
            fillKey = ThemeFileKey::ClickContainer1;
            outlineKey = ThemeFileKey::ClickOutline1;
        } else if (isChecked()) {
            fillKey = ThemeFileKey::ActiveContainer1;
            outlineKey = ThemeFileKey::ActiveOutline1;
        } else if (hovered) {
            fillKey = ThemeFileKey::HoverContainer1;
            outlineKey = ThemeFileKey::HoverOutline1;
        }
        const bool plain = isFlat() && isEnabled() && !pressed && !hovered && !isChecked();
        if (!plain) {
            QColor outline = themes->GetColor(outlineKey);
            if (hasFocus() && isEnabled())
                outline = themes->GetColor(ThemeFileKey::FocusOutline1);
            Internal::DrawFramedRect(&painter, strokeRect, themes->GetBrush(fillKey, rect()), outline, grid);
        }
    } else if (hasFocus()) {
        Internal::StrokeOutline(&painter, strokeRect, themes->GetColor(ThemeFileKey::FocusOutline1), grid);
    }

    if (!icon().isNull()) {
        const QIcon::Mode mode = isEnabled() ? QIcon::Normal : QIcon::Disabled;
        QRect target(QPoint(), iconSize());
        target.moveCenter(d.mIconRect.center());
        icon().paint(&painter, target, Qt::AlignCenter, mode, isChecked() ? QIcon::On : QIcon::Off);
    }
    if (!text().isEmpty()) {
        painter.setPen(d.mpColor->GetColor());
        const QStaticText& shown = d.ShownText();
        const QSizeF size = shown.size();
        const QRect& r = d.mTextRect;
        const qreal x = d.miLayoutKind == kIconAndTextLayout ? r.left() : r.left() + (r.width() - size.width()) / 2;
        painter.drawStaticText(QPointF(x, r.top() + (r.height() - size.height()) / 2), shown);
    }
}

} // namespace Kavrel::UICore
