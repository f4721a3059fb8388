#include <KvUICore/widgets/RolloutContainer.h>

#include <KvUICore/theme/CustomStylePainting_p.h>

#include <KvUICore/theme/ThemeFileKey.h>
#include <KvUICore/theme/ThemeManager.h>
#include <KvUICore/widgets/CheckBox.h>
#include <KvUICore/widgets/ControlsAccessible_p.h>
#include <KvUICore/widgets/ThemedColor_p.h>
#include <KvUICore/widgets/ThemedFont_p.h>

#include <QApplication>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QLayout>
#include <QMouseEvent>
#include <QPainter>
#include <QPointer>
#include <QStyle>
#include <QToolTip>

namespace Kavrel::UICore {

namespace {

constexpr int kTitleLeft = 2;
constexpr int kTitleExtraWidth = 13;
constexpr int kCheckableExtraWidth = 18;
constexpr int kIndentStep = 16;
constexpr int kTriangleColumnWidth = 9;
constexpr int kIndicatorSize = 14;
constexpr int kGap = 4;
// Room kept beside an elided title for the triangle, the check box and padding.
constexpr int kElideReserve = 62;
// The range metrics from the theme or the host are taken in, so that no
// value turns geometry arithmetic into an overflow.
constexpr int kMaxMetric = 4096;

int BoundMetric(int value)
{
    return qBound(0, value, kMaxMetric);
}

} // namespace

class RolloutContainerImp
{
public:
    explicit RolloutContainerImp(RolloutContainer* owner)
        : mpOwner(owner)
    {}

    ~RolloutContainerImp() { delete mpHiddenChildren; }

    QFont TitleFont() const
    {
        QFont font = mpOwner->font();
        if (font.weight() < QFont::Medium + 1)
            font.setWeight(QFont::Bold);
        return font;
    }

    int ComputeTitleHeight() const
    {
        ThemeManager* themes = ThemeManager::GetInstance();
        if (themes->Exists(ThemeFileKey::RolloutcontainerTitleHeight))
            return BoundMetric(themes->GetInt(ThemeFileKey::RolloutcontainerTitleHeight));
        return BoundMetric(QFontMetrics(TitleFont()).height());
    }

    int ComputeIndentLevel() const
    {
        auto* parent = qobject_cast<RolloutContainer*>(mpOwner->parentWidget());
        return parent ? parent->IndentLevel() + 1 : 0;
    }

    void HideContent()
    {
        if (!mpHiddenChildren)
            mpHiddenChildren = new QList<QPointer<QWidget>>();
        mpHiddenChildren->clear();
        const QList<QWidget*> children = mpOwner->findChildren<QWidget*>(Qt::FindDirectChildrenOnly);
        for (QWidget* child : children) {
            // A child that was never shown explicitly is still to be shown by its
            // layout; it counts as content, or it would appear in a collapsed container.
            const bool hiddenBefore = child->isHidden() && child->testAttribute(Qt::WA_WState_ExplicitShowHide);
            if (child == mpCheckBox || hiddenBefore || child->isWindow())
                continue;
            mpHiddenChildren->append(child);
            child->hide();
        }
    }

    void ShowContent()
    {
        if (!mpHiddenChildren)
            return;
        for (const QPointer<QWidget>& child : std::as_const(*mpHiddenChildren)) {
            if (child && child->parentWidget() == mpOwner)
                child->show();
        }
        mpHiddenChildren->clear();
    }

    void ApplyCheckState(bool checked)
    {
        const QList<QWidget*> children = mpOwner->findChildren<QWidget*>(Qt::FindDirectChildrenOnly);
        for (QWidget* child : children) {
            // Children the host disabled itself keep their state.
            if (child == mpCheckBox || child->isWindow() || child->testAttribute(Qt::WA_ForceDisabled))
                continue;
            if (checked) {
                child->setEnabled(true);
            } else {
                child->setEnabled(false);
                child->setAttribute(Qt::WA_ForceDisabled, false);
            }
        }
    }

    // Collapses or expands; false when nothing changed.
    bool ChangeCollapsed(bool collapsed)
    {
        if (!mbExpandButtonVisible || collapsed == mbCollapsed)
            return false;
        mbCollapsed = collapsed;
        if (collapsed)
            HideContent();
        else
            ShowContent();
        mpOwner->updateGeometry();
        mpOwner->update();
        QAccessible::State changed;
        changed.expanded = changed.collapsed = true;
        Internal::AnnounceStateChange(mpOwner, changed);
        Q_EMIT mpOwner->Collapsed(mbCollapsed);
        return true;
    }

    QString DisplayTitle() const
    {
        if (mElideMode == Qt::ElideNone)
            return msTitle;
        return QFontMetrics(TitleFont()).elidedText(msTitle, mElideMode, mpOwner->width() - kElideReserve);
    }

    RolloutContainer* const mpOwner;
    bool mbCollapsed = false;
    QString msTitle;
    QString msDisplayTitle;
    Qt::TextElideMode mElideMode = Qt::ElideNone;
    bool mbCheckable = false;
    bool mbExpandableWhenDisabled = false;
    CheckBox* mpCheckBox = nullptr;
    QList<QPointer<QWidget>>* mpHiddenChildren = nullptr;
    QString msTitleToolTip;
    int mIndentLevel = 0;
    bool mbExpandButtonVisible = true;
    int mExtraTopMargin = 0;

    int miTitleHeight = 0;
};

RolloutContainer::RolloutContainer(QWidget* parent)
    : QWidget(parent)
    , mpImp(std::make_unique<RolloutContainerImp>(this))
{
    Internal::InstallControlsAccessibility();
    new Internal::ThemedFont(this, nullptr);
    new Internal::ThemedColor(this);
    mpImp->miTitleHeight = mpImp->ComputeTitleHeight();
    QWidget::setContentsMargins(0, mpImp->miTitleHeight, 0, 0);

    mpImp->mpCheckBox = new CheckBox(this);
    mpImp->mpCheckBox->setChecked(true);
    mpImp->mpCheckBox->hide();
    mpImp->mpCheckBox->setAccessibleName(QStringLiteral("RolloutContainer_CheckBox"));
    // The header is the container's one Tab stop; Ctrl+Space there toggles the box.
    mpImp->mpCheckBox->setFocusPolicy(Qt::NoFocus);
    connect(mpImp->mpCheckBox, &QCheckBox::toggled, this, &RolloutContainer::SetChecked);
    connect(mpImp->mpCheckBox, &QCheckBox::toggled, this, &RolloutContainer::CheckBoxToggled);
    connect(mpImp->mpCheckBox, &QCheckBox::clicked, this, &RolloutContainer::CheckBoxClicked);
    connect(ThemeManager::GetInstance(), &ThemeManager::ThemeChanged, this, &RolloutContainer::OnThemeChanged);
    setFocusPolicy(Qt::StrongFocus);
    mpImp->mIndentLevel = mpImp->ComputeIndentLevel();
}

RolloutContainer::~RolloutContainer() = default;

void RolloutContainer::SetTitle(QString const& title)
{
    if (title == mpImp->msTitle)
        return;
    mpImp->msTitle = title;
    mpImp->msDisplayTitle = title;
    updateGeometry();
    Q_EMIT TitleChanged(title);
}

QString RolloutContainer::GetTitle() const
{
    return mpImp->msTitle;
}

void RolloutContainer::SetTitleToolTip(QString const& toolTip)
{
    mpImp->msTitleToolTip = toolTip;
}

void RolloutContainer::SetElideMode(Qt::TextElideMode mode)
{
    if (mpImp->mElideMode == mode)
        return;
    mpImp->mElideMode = mode;
    update();
}

Qt::TextElideMode RolloutContainer::GetElideMode() const
{
    return mpImp->mElideMode;
}

void RolloutContainer::SetIsCheckable(bool checkable)
{
    mpImp->mbCheckable = checkable;
    mpImp->mpCheckBox->setVisible(checkable);
    updateGeometry();
    update();
}

bool RolloutContainer::IsCheckable() const
{
    return mpImp->mbCheckable;
}

bool RolloutContainer::IsChecked() const
{
    return mpImp->mpCheckBox && mpImp->mpCheckBox->isChecked();
}

void RolloutContainer::SetCheckboxEnabled(bool enabled)
{
    mpImp->mpCheckBox->setEnabled(enabled);
}

void RolloutContainer::SetCheckboxToolTip(QString const& toolTip)
{
    mpImp->mpCheckBox->setToolTip(toolTip);
}

void RolloutContainer::SetChecked(bool checked)
{
    if (!mpImp->mbCheckable)
        return;
    mpImp->mpCheckBox->setCheckState(checked ? Qt::Checked : Qt::Unchecked);
    mpImp->ApplyCheckState(checked);
}

void RolloutContainer::SetIsCollapsed(bool collapsed)
{
    mpImp->ChangeCollapsed(collapsed);
}

bool RolloutContainer::IsCollapsed() const
{
    return mpImp->mbCollapsed;
}

void RolloutContainer::SetExpandButtonVisible(bool visible)
{
    if (!visible && mpImp->mbCollapsed)
        mpImp->ChangeCollapsed(false);
    mpImp->mbExpandButtonVisible = visible;
    update();
}

bool RolloutContainer::IsExpandButtonVisible() const
{
    return mpImp->mbExpandButtonVisible;
}

void RolloutContainer::SetIsExpandableWhenDisabled(bool expandable)
{
    mpImp->mbExpandableWhenDisabled = expandable;
}

bool RolloutContainer::IsExpandableWhenDisabled() const
{
    return mpImp->mbExpandableWhenDisabled;
}

int RolloutContainer::IndentLevel() const
{
    return mpImp->mIndentLevel;
}

int RolloutContainer::TitleHeight() const
{
    return mpImp->miTitleHeight;
}

QRect RolloutContainer::GetTitleRect() const
{
    const QFontMetrics metrics(mpImp->TitleFont());
    const QRect text = metrics.boundingRect(QRect(), Qt::TextSingleLine | Qt::TextShowMnemonic, mpImp->msDisplayTitle);
    ThemeManager* themes = ThemeManager::GetInstance();
    const int height = themes->Exists(ThemeFileKey::RolloutcontainerTitleHeight)
                           ? BoundMetric(themes->GetInt(ThemeFileKey::RolloutcontainerTitleHeight))
                           : text.height();
    const int width = text.width() + kTitleExtraWidth + (mpImp->mbCheckable ? kCheckableExtraWidth : 0);
    return QStyle::visualRect(layoutDirection(), rect(),
                              QRect(rect().left() + kTitleLeft, rect().top(), width, height));
}

void RolloutContainer::setContentsMargins(int left, int top, int right, int bottom)
{
    mpImp->mExtraTopMargin = BoundMetric(top);
    QWidget::setContentsMargins(left, mpImp->miTitleHeight + mpImp->mExtraTopMargin, right, bottom);
}

QSize RolloutContainer::sizeHint() const
{
    QSize size(0, 0);
    if (QLayout* box = layout())
        size = box->totalSizeHint();
    if (mpImp->mbCollapsed) {
        size.setHeight(mpImp->miTitleHeight);
    } else if (!layout()) {
        const QRect children = childrenRect();
        size = QSize(children.right(), children.bottom());
    }
    size.setWidth(qMax(size.width(), GetTitleRect().width()));
    return size;
}

QSize RolloutContainer::minimumSizeHint() const
{
    QSize size(0, 0);
    if (QLayout* box = layout())
        size = box->totalMinimumSize();
    if (mpImp->mbCollapsed) {
        size.setHeight(mpImp->miTitleHeight);
    } else if (!layout()) {
        const QRect children = childrenRect();
        size = QSize(children.right(), children.bottom());
    }
    size.setWidth(qMax(size.width(), GetTitleRect().width()));
    return size;
}

void RolloutContainer::OnThemeChanged()
{
    mpImp->miTitleHeight = mpImp->ComputeTitleHeight();
    const QMargins margins = contentsMargins();
    QWidget::setContentsMargins(margins.left(), mpImp->miTitleHeight + mpImp->mExtraTopMargin, margins.right(),
                                margins.bottom());
    updateGeometry();
    update();
}

bool RolloutContainer::event(QEvent* event)
{
    switch (event->type()) {
    case QEvent::MouseButtonRelease:
        if (!isEnabled() && mpImp->mbExpandableWhenDisabled) {
            mouseReleaseEvent(static_cast<QMouseEvent*>(event));
            return true;
        }
        break;
    case QEvent::ToolTip: {
        auto* help = static_cast<QHelpEvent*>(event);
        if (!GetTitleRect().contains(help->pos())) {
            event->ignore();
            return false;
        }
        if (mpImp->msDisplayTitle == mpImp->msTitle) {
            if (mpImp->msTitleToolTip.isEmpty())
                QToolTip::hideText();
            else
                QToolTip::showText(help->globalPos(), mpImp->msTitleToolTip, this, GetTitleRect());
        } else {
            QToolTip::showText(help->globalPos(), mpImp->msTitle, this, GetTitleRect());
        }
        return true;
    }
    case QEvent::EnabledChange:
        SetChecked(IsChecked());
        break;
    case QEvent::ParentChange:
        mpImp->mIndentLevel = mpImp->ComputeIndentLevel();
        break;
    default:
        break;
    }
    return QWidget::event(event);
}

void RolloutContainer::keyPressEvent(QKeyEvent* event)
{
    const int key = event->key();
    const Qt::KeyboardModifiers modifiers = event->modifiers() & ~Qt::KeypadModifier;
    if ((key == Qt::Key_Up || key == Qt::Key_Down) && mpImp->mbExpandButtonVisible) {
        if (key == Qt::Key_Up && !mpImp->mbCollapsed)
            mpImp->ChangeCollapsed(true);
        else if (key == Qt::Key_Down && mpImp->mbCollapsed)
            mpImp->ChangeCollapsed(false);
        event->accept();
        return;
    }
    // Only while the header has the focus: keys a child leaves unhandled rise
    // to the container and must not fold it.
    if (!hasFocus()) {
        QWidget::keyPressEvent(event);
        return;
    }
    // The check box takes no focus of its own, so the header works it.
    if (key == Qt::Key_Space && modifiers == Qt::ControlModifier && mpImp->mbCheckable) {
        if (!event->isAutoRepeat() && mpImp->mpCheckBox->isEnabled())
            mpImp->mpCheckBox->click();
        event->accept();
        return;
    }
    const bool toggles = key == Qt::Key_Space || key == Qt::Key_Return || key == Qt::Key_Enter;
    if (toggles && modifiers == Qt::NoModifier && mpImp->mbExpandButtonVisible) {
        if (!event->isAutoRepeat())
            mpImp->ChangeCollapsed(!mpImp->mbCollapsed);
        event->accept();
        return;
    }
    QWidget::keyPressEvent(event);
}

void RolloutContainer::mousePressEvent(QMouseEvent* event)
{
    QWidget::mousePressEvent(event);
    event->accept();
}

void RolloutContainer::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton || !GetTitleRect().contains(event->position().toPoint())) {
        QWidget::mouseReleaseEvent(event);
        return;
    }
    if (mpImp->mbCollapsed)
        grabMouse();
    event->accept();
    QPointer<RolloutContainer> self(this);
    // A Collapsed() handler may delete the container.
    if (mpImp->mbExpandButtonVisible)
        mpImp->ChangeCollapsed(!mpImp->mbCollapsed);
    if (self && !mpImp->mbCollapsed)
        releaseMouse();
}

void RolloutContainer::paintEvent(QPaintEvent*)
{
    ThemeManager* themes = ThemeManager::GetInstance();
    mpImp->msDisplayTitle = mpImp->DisplayTitle();

    QPainter painter(this);
    const int titleHeight = mpImp->miTitleHeight;
    // Laid out left to right, then mirrored for a right-to-left layout.
    const Qt::LayoutDirection direction = layoutDirection();
    const auto visual = [this, direction](const QRect& logical) {
        return QStyle::visualRect(direction, rect(), logical);
    };
    QRect title = visual(GetTitleRect()); // back to left-to-right terms
    title.setHeight(titleHeight);
    QRect bar = title;
    if (bar.width() < width())
        bar.setWidth(width());
    bar = visual(bar);
    if (themes->Exists(ThemeFileKey::RolloutContainerTitleBackgroundColor))
        painter.fillRect(bar, themes->GetBrush(ThemeFileKey::RolloutContainerTitleBackgroundColor, bar));
    if (hasFocus())
        Internal::DrawFocusRing(&painter, this, bar);
    title.setLeft(title.left() + kIndentStep * mpImp->mIndentLevel);

    const QRect column(title.left(), title.top(), kTriangleColumnWidth, titleHeight);
    if (mpImp->mbExpandButtonVisible) {
        // Whole-pixel placement keeps the triangle's edges crisp.
        const QSize size = mpImp->mbCollapsed ? QSize(7, 10) : QSize(10, 7);
        const QPointF origin(column.left() + (column.width() - size.width()) / 2,
                             column.top() + (column.height() - size.height()) / 2);
        QPolygonF triangle;
        if (mpImp->mbCollapsed)
            triangle << QPointF(0, 0) << QPointF(0, 10) << QPointF(7, 5);
        else
            triangle << QPointF(0, 0) << QPointF(10, 0) << QPointF(5, 7);
        triangle.translate(origin);
        if (direction == Qt::RightToLeft) {
            // Mirrored about the widget's middle: a collapsed arrow points left.
            const qreal edge = rect().left() + rect().right() + 1;
            for (QPointF& point : triangle)
                point.setX(edge - point.x());
        }
        painter.save();
        painter.setRenderHint(QPainter::Antialiasing, true);
        painter.setPen(Qt::NoPen);
        painter.setBrush(themes->GetColor(ThemeFileKey::Triangle));
        painter.drawPolygon(triangle);
        painter.restore();
    }

    int textLeft = column.right() + 1 + kGap;
    if (mpImp->mbCheckable) {
        const QRect box(column.right() + 1 + kGap, title.top() + (titleHeight - kIndicatorSize) / 2, kIndicatorSize,
                        kIndicatorSize);
        if (mpImp->mpCheckBox->geometry() != visual(box))
            mpImp->mpCheckBox->setGeometry(visual(box));
        textLeft = box.right() + 1 + kGap;
    }

    painter.setFont(mpImp->TitleFont());
    painter.setPen(Internal::ThemedColor::Of(this)->GetColor());
    const QRect textRect = visual(QRect(textLeft, title.top(), qMax(0, width() - textLeft), titleHeight));
    painter.drawText(textRect,
                     int(QStyle::visualAlignment(direction, Qt::AlignLeft | Qt::AlignVCenter)) | Qt::TextSingleLine |
                         Qt::TextShowMnemonic,
                     mpImp->msDisplayTitle);
}

} // namespace Kavrel::UICore
