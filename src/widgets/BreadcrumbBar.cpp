#include <KvUICore/widgets/BreadcrumbBar.h>

#include <KvUICore/core/CoreUIUtil_p.h>
#include <KvUICore/theme/CustomStylePainting_p.h>
#include <KvUICore/theme/ThemeFileKey.h>
#include <KvUICore/theme/ThemeManager.h>
#include <KvUICore/widgets/BreadcrumbItem.h>
#include <KvUICore/widgets/DropDownMenu.h>
#include <KvUICore/widgets/NavigationCommon_p.h>
#include <KvUICore/widgets/ThemedFont_p.h>

#include <QAction>
#include <QEvent>
#include <QHash>
#include <QPointer>
#include <QStyle>

#include <climits>

namespace Kavrel::UICore {

namespace {
constexpr int kHeight = 24;
constexpr int kMaximumChoices = 1000;
} // namespace

class BreadcrumbBarImp
{
public:
    explicit BreadcrumbBarImp(BreadcrumbBar* owner)
        : mpOwner(owner)
    {}

    bool ThemeFlag(const QString& key, bool fallback) const
    {
        ThemeManager* themes = ThemeManager::GetInstance();
        return themes->Exists(key) ? themes->GetInt(key) != 0 : fallback;
    }

    void ApplyThemeToItems()
    {
        const bool home = ThemeFlag(ThemeFileKey::ShowHomeIcon_BreadCrumb, true);
        const bool otherIcons = ThemeFlag(ThemeFileKey::ShowIconForNonGroupBreadCrumbButton, false);
        const bool highlight = ThemeFlag(ThemeFileKey::HighlightCurrentSelectedBreadCrumButtom, true);
        const QIcon homeIcon = Internal::IconFromTheme(ThemeFileKey::TreeHomeIcon, QSize(16, 16));
        for (int level = 0; level < mItems.size(); ++level) {
            BreadcrumbItem* item = mItems.at(level);
            if (level == 0 && home && !homeIcon.isNull()) {
                item->setIcon(homeIcon);
                item->SetIconOnly(true);
                item->setToolTip(item->text());
            } else {
                item->setIcon(otherIcons ? mIcons.value(level) : QIcon());
                item->SetIconOnly(false);
            }
            item->SetCurrent(level == mItems.size() - 1);
            item->SetHighlighted(highlight);
            item->SetSeparatorVisible(!mChoices.value(level + 1).isEmpty());
        }
    }

    void Layout();
    void OpenOverflowMenu();
    void Navigate(BreadcrumbItem* from, int step);

    QRect Visual(const QRect& r) const { return QStyle::visualRect(mpOwner->layoutDirection(), mpOwner->rect(), r); }

    BreadcrumbBar* const mpOwner;
    QStringList mPath;
    QList<BreadcrumbItem*> mItems;
    QHash<int, QStringList> mChoices;
    QHash<int, QIcon> mIcons;
    QList<int> mOverflow;
    BreadcrumbItem* mpOverflowButton = nullptr;
    DropDownMenu* mpMenu = nullptr;
};

void BreadcrumbBarImp::Layout()
{
    // A font change while the bar is being made arrives before its parts exist.
    if (!mpOverflowButton)
        return;
    const int available = mpOwner->width();
    const int count = int(mItems.size());
    QList<int> widths;
    int total = 0;
    for (BreadcrumbItem* item : std::as_const(mItems)) {
        widths.append(item->sizeHint().width());
        total += widths.last();
    }
    // Levels fold from the top until the rest fits beside the overflow button;
    // the current level stays, cut when it must.
    mOverflow.clear();
    int first = 0;
    if (total > available && count > 0) {
        const int overflowWidth = mpOverflowButton->sizeHint().width();
        while (first < count - 1 && total + overflowWidth > available) {
            total -= widths.at(first);
            mOverflow.append(first);
            ++first;
        }
    }
    int x = 0;
    if (!mOverflow.isEmpty()) {
        const QSize hint = mpOverflowButton->sizeHint();
        mpOverflowButton->setGeometry(Visual(QRect(0, 0, hint.width(), kHeight)));
        mpOverflowButton->show();
        x = hint.width();
    } else {
        mpOverflowButton->hide();
    }
    for (int level = 0; level < count; ++level) {
        BreadcrumbItem* item = mItems.at(level);
        if (level < first) {
            item->hide();
            continue;
        }
        int width = widths.at(level);
        if (level == count - 1)
            width = qMax(qMin(width, available - x), item->minimumSizeHint().width());
        item->setGeometry(Visual(QRect(x, 0, width, kHeight)));
        item->show();
        x += width;
    }
}

void BreadcrumbBarImp::OpenOverflowMenu()
{
    if (mOverflow.isEmpty())
        return;
    if (!mpMenu)
        mpMenu = new DropDownMenu(mpOwner);
    mpMenu->clear();
    for (int level : std::as_const(mOverflow)) {
        QAction* action = mpMenu->addAction(mPath.at(level));
        QObject::connect(action, &QAction::triggered, mpOwner, [this, level] { Q_EMIT mpOwner->PathActivated(level); });
    }
    mpMenu->UpdateWidth();
    const QRect button = mpOverflowButton->geometry();
    const QPoint corner = mpOwner->layoutDirection() == Qt::RightToLeft
                              ? QPoint(button.right() + 1 - mpMenu->sizeHint().width(), button.bottom() + 1)
                              : QPoint(button.left(), button.bottom() + 1);
    mpMenu->popup(mpOwner->mapToGlobal(corner), mpMenu->actions().value(0));
}

void BreadcrumbBarImp::Navigate(BreadcrumbItem* from, int step)
{
    QList<BreadcrumbItem*> visible;
    if (mpOverflowButton->isVisible())
        visible.append(mpOverflowButton);
    for (BreadcrumbItem* item : std::as_const(mItems)) {
        if (item->isVisible())
            visible.append(item);
    }
    if (visible.isEmpty())
        return;
    int index = int(visible.indexOf(from));
    if (step == INT_MIN)
        index = 0;
    else if (step == INT_MAX)
        index = int(visible.size()) - 1;
    else
        index = qBound(0, index + step, int(visible.size()) - 1);
    visible.at(index)->setFocus(Qt::TabFocusReason);
}

BreadcrumbBar::BreadcrumbBar(QWidget* parent)
    : QWidget(parent)
    , mpImp(std::make_unique<BreadcrumbBarImp>(this))
{
    Internal::InstallNavigationAccessibility();
    setFixedHeight(kHeight);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    new Internal::ThemedFont(this);
    BreadcrumbBarImp& d = *mpImp;
    d.mpOverflowButton = new BreadcrumbItem(QStringLiteral("\u2026"), this);
    d.mpOverflowButton->setObjectName(QStringLiteral("BreadcrumbOverflow"));
    d.mpOverflowButton->SetLevel(-1);
    d.mpOverflowButton->SetSeparatorVisible(true);
    d.mpOverflowButton->setAccessibleName(tr("Hidden levels"));
    d.mpOverflowButton->setToolTip(tr("Hidden levels"));
    d.mpOverflowButton->hide();
    connect(d.mpOverflowButton, &QAbstractButton::clicked, this, [this] { mpImp->OpenOverflowMenu(); });
    connect(d.mpOverflowButton, &BreadcrumbItem::SeparatorActivated, this, [this] { mpImp->OpenOverflowMenu(); });
    connect(d.mpOverflowButton, &BreadcrumbItem::NavigateRequested, this,
            [this](int step) { mpImp->Navigate(mpImp->mpOverflowButton, step); });
    connect(ThemeManager::GetInstance(), &ThemeManager::ThemeChanged, this, &BreadcrumbBar::OnThemeChanged);
}

BreadcrumbBar::~BreadcrumbBar() = default;

void BreadcrumbBar::SetPath(const QStringList& texts)
{
    BreadcrumbBarImp& d = *mpImp;
    const QStringList path = texts.mid(qMax<qsizetype>(0, texts.size() - MaximumLevels));
    if (path == d.mPath)
        return;
    d.mPath = path;
    // Items are reused: the focus stays on a level that is still there.
    while (d.mItems.size() > path.size())
        delete d.mItems.takeLast();
    for (int level = 0; level < path.size(); ++level) {
        if (level == d.mItems.size()) {
            auto* item = new BreadcrumbItem(QString(), this);
            item->SetLevel(level);
            connect(item, &QAbstractButton::clicked, this, [this, item] { Q_EMIT PathActivated(item->GetLevel()); });
            connect(item, &BreadcrumbItem::SeparatorActivated, this,
                    [this, item] { ShowChoicesMenu(item->GetLevel() + 1); });
            connect(item, &BreadcrumbItem::NavigateRequested, this,
                    [this, item](int step) { mpImp->Navigate(item, step); });
            d.mItems.append(item);
        }
        d.mItems.at(level)->setText(path.at(level));
        d.mItems.at(level)->setAccessibleName(path.at(level));
    }
    d.ApplyThemeToItems();
    d.Layout();
    updateGeometry();
    Q_EMIT PathChanged(path);
}

QStringList BreadcrumbBar::GetPath() const
{
    return mpImp->mPath;
}

int BreadcrumbBar::GetLevelCount() const
{
    return int(mpImp->mPath.size());
}

void BreadcrumbBar::SetChoices(int level, const QStringList& choices)
{
    if (level < 0 || level > MaximumLevels)
        return;
    if (choices.isEmpty())
        mpImp->mChoices.remove(level);
    else
        mpImp->mChoices.insert(level, choices.mid(0, kMaximumChoices));
    mpImp->ApplyThemeToItems();
    mpImp->Layout();
    updateGeometry();
}

QStringList BreadcrumbBar::GetChoices(int level) const
{
    return mpImp->mChoices.value(level);
}

void BreadcrumbBar::SetItemIcon(int level, const QIcon& icon)
{
    if (level < 0 || level > MaximumLevels)
        return;
    mpImp->mIcons.insert(level, icon);
    mpImp->ApplyThemeToItems();
    mpImp->Layout();
}

BreadcrumbItem* BreadcrumbBar::GetItem(int level) const
{
    return mpImp->mItems.value(level);
}

QList<int> BreadcrumbBar::GetOverflowLevels() const
{
    return mpImp->mOverflow;
}

QWidget* BreadcrumbBar::GetOverflowButton() const
{
    return mpImp->mpOverflowButton;
}

QWidget* BreadcrumbBar::ShowChoicesMenu(int level)
{
    BreadcrumbBarImp& d = *mpImp;
    QPointer<BreadcrumbBar> guard(this);
    Q_EMIT ChoicesRequested(level);
    if (!guard)
        return nullptr;
    const QStringList choices = d.mChoices.value(level);
    BreadcrumbItem* owner = d.mItems.value(level - 1);
    if (choices.isEmpty() || !owner)
        return nullptr;
    if (!d.mpMenu)
        d.mpMenu = new DropDownMenu(this);
    d.mpMenu->clear();
    const QString current = d.mPath.value(level);
    QAction* active = nullptr;
    for (const QString& choice : choices) {
        QAction* action = d.mpMenu->addAction(choice);
        if (choice == current) {
            action->setCheckable(true);
            action->setChecked(true);
            active = action;
        }
        connect(action, &QAction::triggered, this, [this, level, choice] { Q_EMIT ChoiceActivated(level, choice); });
    }
    d.mpMenu->UpdateWidth();
    const QRect separator = owner->SeparatorRect().translated(owner->pos());
    const QPoint corner = layoutDirection() == Qt::RightToLeft
                              ? QPoint(separator.right() + 1 - d.mpMenu->sizeHint().width(), separator.bottom() + 1)
                              : QPoint(separator.left(), separator.bottom() + 1);
    d.mpMenu->popup(mapToGlobal(corner), active ? active : d.mpMenu->actions().value(0));
    return d.mpMenu;
}

QSize BreadcrumbBar::sizeHint() const
{
    int width = 0;
    for (BreadcrumbItem* item : mpImp->mItems)
        width += item->sizeHint().width();
    return QSize(qMax(width, 60), kHeight);
}

QSize BreadcrumbBar::minimumSizeHint() const
{
    const int current = mpImp->mItems.isEmpty() ? 0 : mpImp->mItems.last()->minimumSizeHint().width();
    return QSize(mpImp->mpOverflowButton->sizeHint().width() + current, kHeight);
}

void BreadcrumbBar::OnThemeChanged()
{
    mpImp->ApplyThemeToItems();
    mpImp->Layout();
}

void BreadcrumbBar::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    mpImp->Layout();
}

void BreadcrumbBar::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LayoutDirectionChange || event->type() == QEvent::FontChange)
        mpImp->Layout();
}

} // namespace Kavrel::UICore
