#include <KvUICore/widgets/DropDownMenu.h>

#include <KvUICore/core/DrawingHelpers_p.h>
#include <KvUICore/theme/CustomStyle.h>
#include <KvUICore/theme/CustomStylePainting_p.h>
#include <KvUICore/theme/ThemeFileKey.h>
#include <KvUICore/theme/ThemeManager.h>

#include <QActionEvent>
#include <QApplication>
#include <QElapsedTimer>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QPainterPath>
#include <QPointer>
#include <QStyle>

#include <algorithm>

namespace Kavrel::UICore {

namespace {

constexpr int kColumnWidth = 16;
constexpr int kColumnsLeft = 4;
constexpr int kTextLeft = 7;
constexpr int kTextRightPadding = 12;
constexpr int kSubMenuArrowWidth = 12;

} // namespace

const char* const DropDownMenu::GroupLabelProperty = CustomStyle::GroupLabelProperty;
const char* const DropDownMenu::StandardMenuPaintProperty = CustomStyle::StandardMenuPaintProperty;

class DropDownMenuImp
{
public:
    explicit DropDownMenuImp(DropDownMenu* owner)
        : mpOwner(owner)
    {}

    struct Columns
    {
        bool check = false;
        bool icon = false;
        int Count() const { return (check ? 1 : 0) + (icon ? 1 : 0); }
    };

    Columns LeadingColumns() const
    {
        Columns columns;
        for (QAction* action : mpOwner->actions()) {
            if (!action->isVisible() || action->isSeparator() || DropDownMenu::IsGroupLabel(action))
                continue;
            columns.check = columns.check || action->isCheckable();
            columns.icon = columns.icon || !action->icon().isNull();
        }
        return columns;
    }

    QFont LabelFont() const
    {
        QFont font = mpOwner->font();
        font.setBold(true);
        return font;
    }

    int LineWidth() const { return int(Internal::ResolutionBucket(Internal::DeviceScaleFactor(mpOwner))); }

    void DrawSeparator(QPainter& painter, const QRect& rect) const
    {
        QPen pen(ThemeManager::GetInstance()->GetColor(ThemeFileKey::DropDownMenuSeparator), LineWidth());
        pen.setCosmetic(true);
        painter.setPen(pen);
        const int y = rect.top() + rect.height() / 2;
        painter.drawLine(rect.left() + 4, y, rect.right() - 4, y);
    }

    void DrawGroupLabel(QPainter& painter, QAction* action, const QRect& rect) const
    {
        ThemeManager* themes = ThemeManager::GetInstance();
        painter.fillRect(rect, themes->GetBrush(ThemeFileKey::DropDownGroupLabel, rect));
        painter.setFont(LabelFont());
        painter.setPen(themes->GetColor(ThemeFileKey::FontGroupHeader));
        const QRect textRect = rect.adjusted(kTextLeft, 0, -kTextRightPadding, 0);
        painter.drawText(textRect, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine | Qt::TextShowMnemonic,
                         painter.fontMetrics().elidedText(action->text(), Qt::ElideRight, textRect.width()));
    }

    void DrawCheckMark(QPainter& painter, const QRect& cell, const QColor& color) const
    {
        const QString path = ThemeManager::GetInstance()->GetString(ThemeFileKey::CheckMarkIcon);
        const QIcon icon = path.isEmpty() ? QIcon() : QIcon(path);
        if (!icon.isNull()) {
            icon.paint(&painter, cell, Qt::AlignCenter);
            return;
        }
        painter.save();
        painter.setRenderHint(QPainter::Antialiasing, true);
        QPen pen(color, 2.0 * LineWidth() / mpOwner->devicePixelRatio(), Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
        painter.setPen(pen);
        const QPointF c = QRectF(cell).center();
        QPainterPath tick;
        tick.moveTo(c.x() - 4.5, c.y());
        tick.lineTo(c.x() - 1.5, c.y() + 3);
        tick.lineTo(c.x() + 4.5, c.y() - 3.5);
        painter.drawPath(tick);
        painter.restore();
    }

    void DrawSubMenuArrow(QPainter& painter, const QRect& rect, const QColor& color) const
    {
        const int size = qMax(3, rect.height() / 4);
        const int x = rect.right() - kSubMenuArrowWidth / 2 - size / 2;
        const int y = rect.top() + (rect.height() - 2 * size) / 2;
        const QPointF points[3] = {QPointF(x, y), QPointF(x + size, y + size), QPointF(x, y + 2 * size)};
        Internal::FillAntialiasedTriangle(&painter, points, color);
    }

    void DrawItem(QPainter& painter, QAction* action, const QRect& rect, const Columns& columns) const
    {
        ThemeManager* themes = ThemeManager::GetInstance();
        painter.fillRect(rect, themes->GetBrush(ThemeFileKey::DropDownMenuBackground, rect));
        if (action->isSeparator()) {
            DrawSeparator(painter, rect);
            return;
        }
        if (DropDownMenu::IsGroupLabel(action)) {
            DrawGroupLabel(painter, action, rect);
            return;
        }
        const bool enabled = action->isEnabled() && mpOwner->isEnabled();
        const bool pressed = enabled && mpPressedAction == action;
        const bool selected = enabled && mpOwner->activeAction() == action;
        if (pressed || selected) {
            const QString& fill =
                pressed ? ThemeFileKey::DropDownMenuClickedBackground : ThemeFileKey::DropDownMenuHoverBackground;
            const QString& border =
                pressed ? ThemeFileKey::DropDownMenuClickedBorder : ThemeFileKey::DropDownMenuHoverBorder;
            const QRect box = rect.adjusted(1, 0, -1, -1);
            painter.fillRect(box, themes->GetBrush(fill, box));
            QPen pen(themes->GetColor(border), LineWidth());
            pen.setCosmetic(true);
            painter.setPen(pen);
            painter.setBrush(Qt::NoBrush);
            painter.drawRect(box.adjusted(0, 0, -1, -1));
        }
        const QColor textColor = themes->GetColor(enabled ? ThemeFileKey::FontNormal3 : ThemeFileKey::FontDisable);
        int column = 0;
        const int top = rect.height() > 18 ? rect.top() + (rect.height() - kColumnWidth) / 2 : rect.top();
        if (columns.check) {
            const QRect cell(rect.left() + kColumnsLeft, top, kColumnWidth, kColumnWidth);
            if (action->isCheckable() && action->isChecked())
                DrawCheckMark(painter, cell, textColor);
            ++column;
        }
        if (columns.icon) {
            const QRect cell(rect.left() + kColumnsLeft + column * kColumnWidth, top, kColumnWidth, kColumnWidth);
            if (!action->icon().isNull())
                action->icon().paint(&painter, cell, Qt::AlignCenter, enabled ? QIcon::Normal : QIcon::Disabled);
            ++column;
        }
        const int right = action->menu() ? kSubMenuArrowWidth + 4 : kTextRightPadding;
        const QRect textRect = rect.adjusted(kTextLeft + column * kColumnWidth, 0, -right, 0);
        painter.setFont(mpOwner->font());
        painter.setPen(textColor);
        painter.drawText(
            textRect, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine | Qt::TextShowMnemonic,
            painter.fontMetrics().elidedText(action->text(), Qt::ElideRight, textRect.width(), Qt::TextShowMnemonic));
        if (action->menu())
            DrawSubMenuArrow(painter, rect, themes->GetColor(ThemeFileKey::DropDownTriangle));
    }

    DropDownMenu* const mpOwner;
    QString msTypeAhead;
    QElapsedTimer mTypeAheadClock;
    int miListWidth = 0;
    int miMinimumListWidth = 0;
    bool mbUseDefaultPaintEvent = false;
    QPointer<QAction> mpActiveOnShow;
    QPointer<QAction> mpPressedAction;
};

DropDownMenu::DropDownMenu(QWidget* parent)
    : QMenu(parent)
    , mpImp(std::make_unique<DropDownMenuImp>(this))
{
    setStyle(CustomStyle::GetInstance());
    // The width follows the items; it is settled before every opening, since
    // the style sizes the items from the menu's current width.
    connect(this, &QMenu::aboutToShow, this, &DropDownMenu::UpdateWidth);
}

DropDownMenu::~DropDownMenu() = default;

void DropDownMenu::SetListWidth(int width)
{
    mpImp->miListWidth = width;
    UpdateWidth();
}

int DropDownMenu::GetListWidth() const
{
    return mpImp->miListWidth;
}

void DropDownMenu::SetMinimumListWidth(int width)
{
    if (mpImp->miMinimumListWidth == width)
        return;
    mpImp->miMinimumListWidth = width;
    UpdateWidth();
}

void DropDownMenu::SetUseDefaultPaintEvent(bool useDefault)
{
    mpImp->mbUseDefaultPaintEvent = useDefault;
    update();
}

bool DropDownMenu::IsUseDefaultPaintEvent() const
{
    return mpImp->mbUseDefaultPaintEvent;
}

void DropDownMenu::SetActiveOnShow(QAction* action)
{
    mpImp->mpActiveOnShow = action;
}

bool DropDownMenu::IsGroupLabel(const QAction* action)
{
    return action && action->property(GroupLabelProperty).toBool();
}

int DropDownMenu::ContentWidth() const
{
    const DropDownMenuImp::Columns columns = mpImp->LeadingColumns();
    const QFontMetrics metrics(font());
    const QFontMetrics labelMetrics(mpImp->LabelFont());
    int widest = 0;
    for (QAction* action : actions()) {
        if (!action->isVisible() || action->isSeparator())
            continue;
        int width = 0;
        if (IsGroupLabel(action)) {
            width = kTextLeft + labelMetrics.horizontalAdvance(action->text()) + kTextRightPadding;
        } else {
            QString text = action->text();
            text.remove(QLatin1Char('&'));
            width = kTextLeft + columns.Count() * kColumnWidth + metrics.horizontalAdvance(text) +
                    (action->menu() ? kSubMenuArrowWidth + 4 : kTextRightPadding);
        }
        widest = qMax(widest, width);
    }
    // The frame takes one pixel on either side.
    return widest + 2;
}

int DropDownMenu::TargetWidth() const
{
    return mpImp->miListWidth > 0 ? mpImp->miListWidth : qMax(ContentWidth(), mpImp->miMinimumListWidth);
}

void DropDownMenu::UpdateWidth()
{
    const int width = TargetWidth();
    if (minimumWidth() != width || maximumWidth() != width)
        setFixedWidth(width);
}

QAction* DropDownMenu::TypeAhead(const QString& typed, QAction* after)
{
    DropDownMenuImp& d = *mpImp;
    if (!d.mTypeAheadClock.isValid() || d.mTypeAheadClock.elapsed() > QApplication::keyboardInputInterval())
        d.msTypeAhead.clear();
    d.mTypeAheadClock.start();
    d.msTypeAhead += typed;
    const QList<QAction*> items = actions();
    if (d.msTypeAhead.isEmpty() || items.isEmpty())
        return nullptr;
    const bool repeated = d.msTypeAhead.count(d.msTypeAhead.front()) == d.msTypeAhead.size();
    const QString prefix = repeated ? d.msTypeAhead.left(1) : d.msTypeAhead;
    // A new search starts after the current item; a longer one may keep it.
    const int start = std::max(0, int(items.indexOf(after)) + (repeated ? 1 : 0));
    for (int step = 0; step < items.size(); ++step) {
        QAction* action = items.at((start + step) % items.size());
        if (action->isVisible() && action->isEnabled() && !action->isSeparator() && !IsGroupLabel(action) &&
            QString(action->text()).remove(QLatin1Char('&')).startsWith(prefix, Qt::CaseInsensitive))
            return action;
    }
    return nullptr;
}

void DropDownMenu::keyPressEvent(QKeyEvent* event)
{
    const QString text = event->text();
    const bool typing = !(event->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) &&
                        text.size() == 1 && text.front().isPrint() && !text.front().isSpace();
    if (!typing) {
        QMenu::keyPressEvent(event);
        return;
    }
    if (QAction* match = TypeAhead(text, activeAction()))
        setActiveAction(match);
    event->accept();
}

QSize DropDownMenu::sizeHint() const
{
    return QSize(TargetWidth(), QMenu::sizeHint().height());
}

void DropDownMenu::paintEvent(QPaintEvent* event)
{
    if (mpImp->mbUseDefaultPaintEvent) {
        QMenu::paintEvent(event);
        return;
    }
    // The style paints panel, frame and scrollers; it leaves the items to us
    // while the property is raised.
    setProperty(StandardMenuPaintProperty, true);
    QMenu::paintEvent(event);
    setProperty(StandardMenuPaintProperty, false);

    QPainter painter(this);
    painter.setClipRegion(event->region());
    const DropDownMenuImp::Columns columns = mpImp->LeadingColumns();
    const int frame = style()->pixelMetric(QStyle::PM_MenuPanelWidth, nullptr, this);
    painter.setClipRect(rect().adjusted(frame, frame, -frame, -frame), Qt::IntersectClip);
    for (QAction* action : actions()) {
        if (!action->isVisible())
            continue;
        const QRect rect = actionGeometry(action);
        if (rect.isEmpty() || !event->region().intersects(rect))
            continue;
        mpImp->DrawItem(painter, action, rect, columns);
    }
}

void DropDownMenu::mouseMoveEvent(QMouseEvent* event)
{
    QPointer<DropDownMenu> self(this);
    QMenu::mouseMoveEvent(event);
    if (self)
        Q_EMIT MouseMoveOnMenu(actionAt(event->position().toPoint()));
}

void DropDownMenu::mousePressEvent(QMouseEvent* event)
{
    mpImp->mpPressedAction = actionAt(event->position().toPoint());
    QMenu::mousePressEvent(event);
    update();
}

void DropDownMenu::mouseReleaseEvent(QMouseEvent* event)
{
    QPointer<DropDownMenu> self(this);
    QMenu::mouseReleaseEvent(event);
    // Triggering may have ended the owner, and with it this menu's future.
    if (self) {
        mpImp->mpPressedAction = nullptr;
        update();
    }
}

void DropDownMenu::showEvent(QShowEvent* event)
{
    UpdateWidth();
    QMenu::showEvent(event);
    if (mpImp->mpActiveOnShow) {
        setActiveAction(mpImp->mpActiveOnShow);
        mpImp->mpActiveOnShow = nullptr;
    }
}

void DropDownMenu::changeEvent(QEvent* event)
{
    QMenu::changeEvent(event);
    if (event->type() == QEvent::FontChange)
        UpdateWidth();
}

} // namespace Kavrel::UICore
