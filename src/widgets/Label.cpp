#include <KvUICore/widgets/Label.h>

#include <KvUICore/core/CoreUIUtil_p.h>
#include <KvUICore/theme/CustomStylePainting_p.h>
#include <KvUICore/theme/ThemeFileKey.h>
#include <KvUICore/theme/ThemeManager.h>
#include <KvUICore/widgets/ThemedColor_p.h>
#include <KvUICore/widgets/ThemedFont_p.h>

#include <QBitmap>
#include <QHelpEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QStaticText>
#include <QStyle>
#include <QTextDocument>
#include <QToolTip>

namespace Kavrel::UICore {

namespace {
// The room kept at the right for the right pixmap, and the largest side it gets.
constexpr int kRightPixmapSpace = 18;
constexpr int kRightPixmapSide = 16;
constexpr int kStandardControlHeight = 24;
} // namespace

class LabelImp
{
public:
    explicit LabelImp(Label* owner)
        : mpOwner(owner)
    {}

    bool HasRightPixmapSpace() const
    {
        return !mRightPixmap.isNull() && !mpOwner->wordWrap() && mpOwner->width() > kRightPixmapSpace;
    }

    QRect RightPixmapRect() const
    {
        if (!HasRightPixmapSpace())
            return QRect();
        const QRect r = mpOwner->rect();
        const int side = std::min(r.height(), kRightPixmapSide);
        // At the trailing end: the left one in a right-to-left layout.
        return QStyle::visualRect(mpOwner->layoutDirection(), r,
                                  QRect(r.right() - side, r.top() + (r.height() - side) / 2, side, side));
    }

    int AvailableTextWidth() const { return mpOwner->width() - (HasRightPixmapSpace() ? kRightPixmapSpace : 0); }

    bool PaintsAsPlainLabel() const
    {
        const QString text = mpOwner->text();
        if (mpOwner->wordWrap() || text.isEmpty())
            return true;
        const Qt::TextFormat format = mpOwner->textFormat();
        return format == Qt::RichText || (format == Qt::AutoText && Qt::mightBeRichText(text));
    }

    // The right pixmap at the size it is drawn, with white made transparent.
    const QPixmap& PreparedRightPixmap(const QSize& size)
    {
        if (mPreparedPixmap.isNull() || mPreparedPixmap.size() != size) {
            mPreparedPixmap = mRightPixmap.scaled(size, Qt::IgnoreAspectRatio, Qt::FastTransformation);
            mPreparedPixmap.setMask(mPreparedPixmap.createMaskFromColor(Qt::white));
        }
        return mPreparedPixmap;
    }

    // The text cut to width and laid out once: painting only places it.
    const QStaticText& ShownText(int width)
    {
        const QString text = mpOwner->text();
        const QFont font = mpOwner->font();
        if (width != miShownWidth || text != msShownSource || font != mShownFont) {
            msShownSource = text;
            miShownWidth = width;
            mShownFont = font;
            mShownText.setTextFormat(Qt::PlainText);
            mShownText.setText(QFontMetrics(font).elidedText(text, Qt::ElideRight, width));
            mShownText.prepare(QTransform(), font);
        }
        return mShownText;
    }

    void UpdateFixedWidth()
    {
        if (!mbAutoFixedWidth)
            return;
        msFixedWidthText = mpOwner->text();
        const QMargins margins = mpOwner->contentsMargins();
        int width = mpOwner->getTextWidth() + margins.left() + margins.right() + 2 * mpOwner->margin();
        if (!mRightPixmap.isNull())
            width += kRightPixmapSpace;
        mpOwner->setFixedWidth(std::max(width, 1));
    }

    Label* mpOwner;
    // The label switches its key itself when it is disabled; the colour
    // object's disabled key is there for a host colour, which replaces the key.
    Internal::ThemedColor* mpColor = nullptr;
    QString msReservedToolTip;
    QPixmap mRightPixmap;
    QPixmap mPreparedPixmap;
    QString msRightPixmapToolTip;
    QString msFixedWidthText;
    bool mbAutoFixedWidth = false;
    QStaticText mShownText;
    QString msShownSource;
    QFont mShownFont;
    int miShownWidth = -1;
};

Label::Label(QWidget* parent, Qt::WindowFlags flags)
    : QLabel(parent, flags)
    , mpImp(std::make_unique<LabelImp>(this))
{
    Initialize();
}

Label::Label(const QString& text, QWidget* parent, Qt::WindowFlags flags)
    : QLabel(text, parent, flags)
    , mpImp(std::make_unique<LabelImp>(this))
{
    Initialize();
}

Label::~Label() = default;

void Label::Initialize()
{
    new Internal::ThemedFont(this);
    mpImp->mpColor = new Internal::ThemedColor(this, ThemeFileKey::FontNormal1);
    setMinimumHeight(kStandardControlHeight);
    Internal::AlignToLayoutDirection(this);
}

QString Label::GetTextColorThemeKey() const
{
    return mpImp->mpColor->GetKey();
}

void Label::SetTextColorThemeKey(const QString& key, bool force)
{
    if (!ThemeManager::GetInstance()->Exists(key))
        return;
    if (key == mpImp->mpColor->GetKey() && !force)
        return;
    mpImp->mpColor->SetKey(key);
    mpImp->mpColor->DropHostColor();
    mpImp->mpColor->Apply();
    update();
}

QString Label::GetReservedToolTip() const
{
    return mpImp->msReservedToolTip;
}

void Label::SetText(const QString& text)
{
    if (text == this->text())
        return;
    setText(text);
    Q_EMIT TextChanged(text);
}

void Label::SetReservedToolTip(const QString& toolTip)
{
    mpImp->msReservedToolTip = toolTip;
}

QPixmap Label::GetRightPixmap() const
{
    return mpImp->mRightPixmap;
}

void Label::SetRightPixmap(const QPixmap& pixmap)
{
    mpImp->mRightPixmap = pixmap;
    mpImp->mPreparedPixmap = QPixmap();
    mpImp->UpdateFixedWidth();
    update();
}

QString Label::GetRightPixmapTooltip() const
{
    return mpImp->msRightPixmapToolTip;
}

void Label::SetRightPixmapTooltip(const QString& toolTip)
{
    mpImp->msRightPixmapToolTip = toolTip;
}

bool Label::GetAutoFixedWidth() const
{
    return mpImp->mbAutoFixedWidth;
}

void Label::SetAutoFixedWidth(bool autoFixedWidth)
{
    if (autoFixedWidth == mpImp->mbAutoFixedWidth)
        return;
    mpImp->mbAutoFixedWidth = autoFixedWidth;
    if (autoFixedWidth) {
        mpImp->UpdateFixedWidth();
    } else {
        setMinimumWidth(0);
        setMaximumWidth(QWIDGETSIZE_MAX);
    }
}

int Label::getTextWidth() const
{
    return fontMetrics().boundingRect(text()).width();
}

void Label::OnThemeChanged()
{
    mpImp->mpColor->Apply();
}

bool Label::event(QEvent* event)
{
    if (event->type() != QEvent::ToolTip)
        return QLabel::event(event);

    auto* help = static_cast<QHelpEvent*>(event);
    QString tip;
    if (mpImp->RightPixmapRect().contains(help->pos())) {
        tip = mpImp->msRightPixmapToolTip;
    } else {
        const QString full = text();
        const QString elided = fontMetrics().elidedText(full, Qt::ElideRight, mpImp->AvailableTextWidth());
        tip = elided == full ? mpImp->msReservedToolTip : full;
    }
    if (tip.isEmpty())
        QToolTip::hideText();
    else
        QToolTip::showText(help->globalPos(), tip, this);
    return true;
}

void Label::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::EnabledChange) {
        const QString& key = isEnabled() ? ThemeFileKey::FontNormal1 : ThemeFileKey::FontColorDisabled;
        if (ThemeManager::GetInstance()->Exists(key))
            mpImp->mpColor->SetKey(key);
    } else if (event->type() == QEvent::FontChange) {
        mpImp->UpdateFixedWidth();
    } else if (event->type() == QEvent::LayoutDirectionChange) {
        // Wrapped and rich texts are painted by QLabel, which aligns by the text.
        Internal::AlignToLayoutDirection(this);
    }
    QLabel::changeEvent(event);
}

void Label::mouseReleaseEvent(QMouseEvent* event)
{
    QLabel::mouseReleaseEvent(event);
    if (event->button() == Qt::LeftButton && mpImp->RightPixmapRect().contains(event->position().toPoint()))
        Q_EMIT RightPixmapClicked();
}

void Label::moveEvent(QMoveEvent* event)
{
    QLabel::moveEvent(event);
    Q_EMIT GeometryChanged();
}

void Label::resizeEvent(QResizeEvent* event)
{
    QLabel::resizeEvent(event);
    Q_EMIT GeometryChanged();
}

void Label::showEvent(QShowEvent* event)
{
    Q_EMIT AboutToShow();
    if (mpImp->mbAutoFixedWidth && mpImp->msFixedWidthText != text())
        mpImp->UpdateFixedWidth();
    QLabel::showEvent(event);
}

void Label::paintEvent(QPaintEvent* event)
{
    if (mpImp->mbAutoFixedWidth && mpImp->msFixedWidthText != text())
        mpImp->UpdateFixedWidth();
    if (mpImp->PaintsAsPlainLabel()) {
        QLabel::paintEvent(event);
    } else {
        QPainter painter(this);
        const QRect contents = contentsRect().adjusted(margin(), margin(), -margin(), -margin());
        const int textWidth = std::min(contents.width(), mpImp->AvailableTextWidth() - contents.left());
        const QStaticText& shown = mpImp->ShownText(textWidth);
        QColor color = mpImp->mpColor->GetColor();
        if (!color.isValid())
            color = palette().color(QPalette::WindowText);
        painter.setPen(color);
        const QSizeF size = shown.size();
        const Qt::Alignment align = QStyle::visualAlignment(layoutDirection(), alignment());
        qreal x = QStyle::visualRect(layoutDirection(), rect(), QRect(contents.left(), 0, textWidth, 1)).left();
        if (align & Qt::AlignRight)
            x += textWidth - size.width();
        else if (align & Qt::AlignHCenter)
            x += (textWidth - size.width()) / 2;
        qreal y = contents.top() + (contents.height() - size.height()) / 2;
        if (align & Qt::AlignTop)
            y = contents.top();
        else if (align & Qt::AlignBottom)
            y = contents.top() + contents.height() - size.height();
        painter.drawStaticText(QPointF(x, y), shown);
    }
    const QRect pixmapRect = mpImp->RightPixmapRect();
    if (pixmapRect.isValid()) {
        QPainter painter(this);
        painter.drawPixmap(pixmapRect.topLeft(), mpImp->PreparedRightPixmap(pixmapRect.size()));
    }
}

} // namespace Kavrel::UICore
