#include <KvUICore/widgets/BreadcrumbItem.h>

#include <KvUICore/core/CoreUIUtil_p.h>
#include <KvUICore/theme/CustomStylePainting_p.h>
#include <KvUICore/theme/ThemeFileKey.h>
#include <KvUICore/theme/ThemeManager.h>
#include <KvUICore/widgets/NavigationCommon_p.h>
#include <KvUICore/widgets/ThemedColor_p.h>
#include <KvUICore/widgets/ThemedFont_p.h>

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QStyle>

#include <climits>

namespace Kavrel::UICore {

namespace {
constexpr int kHeight = 24;
constexpr int kPadding = 6;
constexpr int kSeparatorWidth = 14;
constexpr int kIconGap = 4;
} // namespace

class BreadcrumbItemImp
{
public:
    explicit BreadcrumbItemImp(BreadcrumbItem* owner)
        : mpOwner(owner)
    {}

    int IconWidth() const
    {
        const int width = ThemeManager::GetInstance()->GetInt(ThemeFileKey::BreadCrumbIconWidth);
        return width > 0 ? width : 16;
    }

    bool ShowsIcon() const { return !mpOwner->icon().isNull(); }
    bool ShowsText() const { return !mbIconOnly || !ShowsIcon(); }

    QFont TextFont() const
    {
        QFont font = mpOwner->font();
        if (mbCurrent && mbHighlighted)
            font.setBold(true);
        return font;
    }

    // The label part (icon and text) in left-to-right terms.
    QRect LabelRect() const
    {
        const int separator = mbSeparator ? kSeparatorWidth : 0;
        return QRect(0, 0, mpOwner->width() - separator, mpOwner->height());
    }

    QRect Visual(const QRect& r) const { return QStyle::visualRect(mpOwner->layoutDirection(), mpOwner->rect(), r); }

    void DrawBackground(QPainter& painter) const;
    void DrawLabel(QPainter& painter) const;
    void DrawSeparator(QPainter& painter) const;

    BreadcrumbItem* const mpOwner;
    int miLevel = 0;
    bool mbCurrent = false;
    bool mbHighlighted = false;
    bool mbIconOnly = false;
    bool mbSeparator = false;
    bool mbSeparatorPressed = false;
    bool mbSeparatorHovered = false;
};

void BreadcrumbItemImp::DrawBackground(QPainter& painter) const
{
    ThemeManager* themes = ThemeManager::GetInstance();
    const bool enabled = mpOwner->isEnabled();
    const QRect label = Visual(LabelRect());
    QBrush fill;
    if (enabled && mpOwner->isDown())
        fill = themes->GetBrush(ThemeFileKey::ClickContainer1, label);
    else if (enabled && mpOwner->underMouse() && !mbSeparatorHovered)
        fill = themes->GetBrush(ThemeFileKey::BreadcrumbItemFocusBackground, label);
    else if (mbCurrent && mbHighlighted)
        fill = themes->GetBrush(ThemeFileKey::BreadcrumbItemBackground, label);
    if (fill.style() != Qt::NoBrush)
        painter.fillRect(label.adjusted(1, 1, -1, -1), enabled ? fill : Internal::DimmedBrush(fill));
    if (mbSeparator && enabled && (mbSeparatorPressed || mbSeparatorHovered)) {
        const QRect separator = mpOwner->SeparatorRect();
        painter.fillRect(separator.adjusted(0, 1, -1, -1),
                         themes->GetBrush(mbSeparatorPressed ? ThemeFileKey::ClickContainer1
                                                             : ThemeFileKey::BreadcrumbItemFocusBackground,
                                          separator));
    }
}

void BreadcrumbItemImp::DrawLabel(QPainter& painter) const
{
    QRect r = LabelRect().adjusted(kPadding, 0, -kPadding, 0);
    const bool enabled = mpOwner->isEnabled();
    if (ShowsIcon()) {
        const int side = IconWidth();
        const QRect cell(r.left(), (mpOwner->height() - side) / 2, side, side);
        mpOwner->icon().paint(&painter, Visual(cell), Qt::AlignCenter, enabled ? QIcon::Normal : QIcon::Disabled);
        r.setLeft(cell.right() + 1 + kIconGap);
    }
    if (!ShowsText() || r.width() <= 0)
        return;
    painter.setFont(TextFont());
    painter.setPen(mpOwner->palette().color(QPalette::ButtonText));
    const QString text = painter.fontMetrics().elidedText(mpOwner->text(), Qt::ElideRight, r.width());
    painter.drawText(Visual(r), Qt::AlignVCenter | Qt::AlignLeading | Qt::TextSingleLine, text);
}

void BreadcrumbItemImp::DrawSeparator(QPainter& painter) const
{
    if (!mbSeparator)
        return;
    QColor color =
        Internal::ThemeColorOr(ThemeFileKey::DropDownTriangle, mpOwner->palette().color(QPalette::ButtonText));
    if (!mpOwner->isEnabled())
        color = Internal::DimmedColor(color);
    const QRect r = mpOwner->SeparatorRect();
    const QPointF c = QRectF(r).center();
    // A chevron pointing along the reading direction, down while its menu is open.
    const bool rtl = mpOwner->layoutDirection() == Qt::RightToLeft;
    QPolygonF chevron;
    if (mbSeparatorPressed)
        chevron << QPointF(c.x() - 3.5, c.y() - 1.5) << QPointF(c.x(), c.y() + 2) << QPointF(c.x() + 3.5, c.y() - 1.5);
    else if (rtl)
        chevron << QPointF(c.x() + 1.5, c.y() - 3.5) << QPointF(c.x() - 2, c.y()) << QPointF(c.x() + 1.5, c.y() + 3.5);
    else
        chevron << QPointF(c.x() - 1.5, c.y() - 3.5) << QPointF(c.x() + 2, c.y()) << QPointF(c.x() - 1.5, c.y() + 3.5);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing, true);
    painter.setPen(QPen(color, 1.3, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPolyline(chevron);
    painter.restore();
}

BreadcrumbItem::BreadcrumbItem(const QString& text, QWidget* parent)
    : QAbstractButton(parent)
    , mpImp(std::make_unique<BreadcrumbItemImp>(this))
{
    Internal::InstallNavigationAccessibility();
    setText(text);
    setAttribute(Qt::WA_Hover);
    setMouseTracking(true);
    setFocusPolicy(Qt::StrongFocus);
    new Internal::ThemedFont(this);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    new Internal::ThemedColor(this, ThemeFileKey::FontNormal1);
    connect(ThemeManager::GetInstance(), &ThemeManager::ThemeChanged, this, &BreadcrumbItem::OnThemeChanged);
}

BreadcrumbItem::~BreadcrumbItem() = default;

int BreadcrumbItem::GetLevel() const
{
    return mpImp->miLevel;
}

void BreadcrumbItem::SetLevel(int level)
{
    mpImp->miLevel = level;
}

bool BreadcrumbItem::IsCurrent() const
{
    return mpImp->mbCurrent;
}

void BreadcrumbItem::SetCurrent(bool current)
{
    if (current == mpImp->mbCurrent)
        return;
    mpImp->mbCurrent = current;
    updateGeometry();
    update();
}

bool BreadcrumbItem::IsHighlighted() const
{
    return mpImp->mbHighlighted;
}

void BreadcrumbItem::SetHighlighted(bool highlighted)
{
    if (highlighted == mpImp->mbHighlighted)
        return;
    mpImp->mbHighlighted = highlighted;
    updateGeometry();
    update();
}

bool BreadcrumbItem::IsIconOnly() const
{
    return mpImp->mbIconOnly;
}

void BreadcrumbItem::SetIconOnly(bool iconOnly)
{
    if (iconOnly == mpImp->mbIconOnly)
        return;
    mpImp->mbIconOnly = iconOnly;
    setToolTip(iconOnly ? text() : QString());
    updateGeometry();
    update();
}

bool BreadcrumbItem::IsSeparatorVisible() const
{
    return mpImp->mbSeparator;
}

void BreadcrumbItem::SetSeparatorVisible(bool visible)
{
    if (visible == mpImp->mbSeparator)
        return;
    mpImp->mbSeparator = visible;
    updateGeometry();
    update();
}

QRect BreadcrumbItem::SeparatorRect() const
{
    if (!mpImp->mbSeparator)
        return QRect();
    return mpImp->Visual(QRect(width() - kSeparatorWidth, 0, kSeparatorWidth, height()));
}

QSize BreadcrumbItem::sizeHint() const
{
    int width = 2 * kPadding + (mpImp->mbSeparator ? kSeparatorWidth : 0);
    if (mpImp->ShowsIcon())
        width += mpImp->IconWidth() + (mpImp->ShowsText() ? kIconGap : 0);
    // Two pixels more than the advance: laid out text may round up and be cut.
    if (mpImp->ShowsText())
        width += QFontMetrics(mpImp->TextFont()).horizontalAdvance(text()) + 2;
    return QSize(width, kHeight);
}

QSize BreadcrumbItem::minimumSizeHint() const
{
    const int label = mpImp->ShowsText() ? QFontMetrics(mpImp->TextFont()).horizontalAdvance(QStringLiteral("W…")) : 0;
    const int icon = mpImp->ShowsIcon() ? mpImp->IconWidth() + kIconGap : 0;
    return QSize(qMin(sizeHint().width(), 2 * kPadding + icon + label + (mpImp->mbSeparator ? kSeparatorWidth : 0)),
                 kHeight);
}

void BreadcrumbItem::OnThemeChanged()
{
    updateGeometry();
    update();
}

void BreadcrumbItem::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    mpImp->DrawBackground(painter);
    mpImp->DrawLabel(painter);
    mpImp->DrawSeparator(painter);
    if (hasFocus())
        Internal::DrawFocusRing(&painter, this, mpImp->Visual(mpImp->LabelRect()), 0.0,
                                Internal::ThemeColorOr(ThemeFileKey::BreadcrumbItemFocusOutline));
}

void BreadcrumbItem::mousePressEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton && SeparatorRect().contains(event->position().toPoint())) {
        mpImp->mbSeparatorPressed = true;
        update();
        event->accept();
        return;
    }
    QAbstractButton::mousePressEvent(event);
}

void BreadcrumbItem::mouseReleaseEvent(QMouseEvent* event)
{
    if (mpImp->mbSeparatorPressed && event->button() == Qt::LeftButton) {
        event->accept();
        if (SeparatorRect().contains(event->position().toPoint()))
            Q_EMIT SeparatorActivated();
        mpImp->mbSeparatorPressed = false;
        update();
        return;
    }
    QAbstractButton::mouseReleaseEvent(event);
}

void BreadcrumbItem::mouseMoveEvent(QMouseEvent* event)
{
    const bool overSeparator = SeparatorRect().contains(event->position().toPoint());
    if (overSeparator != mpImp->mbSeparatorHovered) {
        mpImp->mbSeparatorHovered = overSeparator;
        update();
    }
    QAbstractButton::mouseMoveEvent(event);
}

void BreadcrumbItem::keyPressEvent(QKeyEvent* event)
{
    const bool rtl = layoutDirection() == Qt::RightToLeft;
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        click();
        return;
    case Qt::Key_Down:
        if (mpImp->mbSeparator) {
            Q_EMIT SeparatorActivated();
            return;
        }
        break;
    case Qt::Key_Left:
        Q_EMIT NavigateRequested(rtl ? 1 : -1);
        return;
    case Qt::Key_Right:
        Q_EMIT NavigateRequested(rtl ? -1 : 1);
        return;
    case Qt::Key_Home:
        Q_EMIT NavigateRequested(INT_MIN);
        return;
    case Qt::Key_End:
        Q_EMIT NavigateRequested(INT_MAX);
        return;
    default:
        break;
    }
    QAbstractButton::keyPressEvent(event);
}

bool BreadcrumbItem::hitButton(const QPoint& position) const
{
    return mpImp->Visual(mpImp->LabelRect()).contains(position);
}

bool BreadcrumbItem::event(QEvent* event)
{
    if (event->type() == QEvent::HoverLeave && mpImp->mbSeparatorHovered) {
        mpImp->mbSeparatorHovered = false;
        update();
    }
    return QAbstractButton::event(event);
}

} // namespace Kavrel::UICore
