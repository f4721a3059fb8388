#include <KvUICore/widgets/DropDown.h>

#include <KvUICore/core/CoreUIUtil_p.h>
#include <KvUICore/core/DrawingHelpers_p.h>
#include <KvUICore/core/ScalableValues.h>
#include <KvUICore/theme/CustomStylePainting_p.h>
#include <KvUICore/theme/ThemeFileKey.h>
#include <KvUICore/theme/ThemeManager.h>
#include <KvUICore/widgets/ControlsAccessible_p.h>
#include <KvUICore/widgets/DropDownMenu.h>
#include <KvUICore/widgets/ItemGroup.h>
#include <KvUICore/widgets/ThemedColor_p.h>
#include <KvUICore/widgets/ThemedFont_p.h>

#include <QAction>
#include <QActionGroup>
#include <QApplication>
#include <QHash>
#include <QKeyEvent>
#include <QPainter>
#include <QPointer>
#include <QStyle>
#include <QToolTip>

#include <unordered_set>

namespace Kavrel::UICore {

namespace {

// The toolkit's standard control height at 100 %.
constexpr int kStandardControlHeight = 24;
constexpr int kIconOnlyWidth = 36;
constexpr int kArrowColumnWidth = 16;
constexpr int kTextLeft = 5;

// Every drop-down alive. A host may delete a drop-down from a slot while its
// menu runs a modal loop inside the drop-down's own mouse handler; the handler
// looks itself up here before touching its members again.
std::unordered_set<const DropDown*>& LiveDropDowns()
{
    static std::unordered_set<const DropDown*> live;
    return live;
}

bool IsLive(const DropDown* dropDown)
{
    return LiveDropDowns().count(dropDown) != 0;
}

} // namespace

class DropDownImp
{
public:
    explicit DropDownImp(DropDown* owner)
        : mpOwner(owner)
    {}

    struct ItemInfo
    {
        int group = 0;
        QVariant data;
    };

    QList<QAction*> MenuActions() const { return mpMenu ? mpMenu->actions() : QList<QAction*>(); }

    QAction* ActionAt(int index) const
    {
        const QList<QAction*> actions = MenuActions();
        return index >= 0 && index < actions.size() ? actions.at(index) : nullptr;
    }

    int GroupStart(int group) const
    {
        int start = 0;
        for (int g = 0; g < group && g < mGroups.size(); ++g)
            start += int(mGroups.at(g)->GetActions().size());
        return start;
    }

    // The group an insertion at the menu position joins: the position may be
    // any item of the group or the place right after its last item.
    int GroupForPosition(int position) const
    {
        int start = 0;
        for (int g = 0; g < mGroups.size(); ++g) {
            if (position >= start && position <= start + mGroups.at(g)->ItemCount())
                return g;
            start += int(mGroups.at(g)->GetActions().size());
        }
        return mGroups.isEmpty() ? 0 : int(mGroups.size()) - 1;
    }

    // The map from action to index is rebuilt on the first lookup after a
    // change, so that filling a long list stays linear.
    void InvalidateIndex() { mbIndexDirty = true; }

    int IndexOf(QAction* action)
    {
        if (mbIndexDirty) {
            mItemIndex.clear();
            const QList<QAction*> actions = MenuActions();
            mItemIndex.reserve(actions.size());
            for (int i = 0; i < actions.size(); ++i)
                mItemIndex.insert(actions.at(i), i);
            mbIndexDirty = false;
        }
        return mItemIndex.value(action, -1);
    }

    void UpdateSeparatorVisibility(ItemGroup* group)
    {
        QAction* separator = group->GetTrailingSeparator();
        if (!separator)
            return;
        // A group label row separates by itself, and a hidden group takes its separator along.
        const bool wanted = group->IsSeparatorVisible() && group->GetItemType() != DropDown::GroupLabelItem &&
                            !mHiddenGroups.contains(group);
        bool anyShown = false;
        for (QAction* action : group->GetActions()) {
            if (action != separator && action->isVisible()) {
                anyShown = true;
                break;
            }
        }
        separator->setVisible(wanted && anyShown);
    }

    void UpdateSeparatorVisibility()
    {
        for (ItemGroup* group : std::as_const(mGroups))
            UpdateSeparatorVisibility(group);
    }

    void ApplyItemType(ItemGroup* group, QAction* action)
    {
        if (action->isSeparator() || action == group->GetTrailingSeparator())
            return;
        const DropDown::ItemType type = group->GetItemType();
        if (type == DropDown::GroupLabelItem) {
            action->setProperty(DropDownMenu::GroupLabelProperty, true);
            action->setEnabled(false);
            action->setCheckable(false);
        } else if (type == DropDown::CheckableItem) {
            action->setCheckable(true);
        }
    }

    void UpdateLabel()
    {
        QAction* current = ActionAt(miCurrentIndex);
        if (current && mItems.contains(current)) {
            const ItemGroup* group = GroupOf(current);
            const int type = group ? int(group->GetItemType()) : 0;
            const bool fromItem = type == 0 || type > 3;
            if (!mbIconOnly && fromItem && !mbForceDisplayText)
                mpOwner->setText(current->text());
            if (mbIconOnly || (fromItem && !mbForceDisplayText))
                mpOwner->setIcon(current->icon());
        }
        mpOwner->updateGeometry();
        mpOwner->update();
    }

    ItemGroup* GroupOf(QAction* action) const
    {
        const auto it = mItems.constFind(action);
        if (it == mItems.constEnd())
            return nullptr;
        return mGroups.value(it->group);
    }

    void ChangeCurrent(int index)
    {
        const int old = miCurrentIndex;
        if (index == old)
            return;
        miCurrentIndex = index;
        UpdateLabel();
        Internal::AnnounceValueChange(mpOwner, mpOwner->GetCurrentText());
        Q_EMIT mpOwner->CurrentIndexChanged(index, old);
    }

    // Structural changes shift the indices of the items after them; the current
    // item keeps being the same item.
    void ShiftCurrentAfterInsert(int position)
    {
        if (miCurrentIndex >= 0 && position <= miCurrentIndex && miCurrentIndex < int(MenuActions().size()) - 1)
            ++miCurrentIndex;
    }

    QAction* MakeAction(const QIcon& icon, const QString& text)
    {
        auto* action = new QAction(icon, text, mpMenu);
        mOwnedActions.insert(action);
        return action;
    }

    // The drop-down's own actions go with the menu; the menu may be inside its
    // own event handler when this runs, hence the deferred deletion.
    void DisposeAction(QAction* action)
    {
        auto* subMenu = qobject_cast<DropDownMenu*>(action->menu());
        if (subMenu && subMenu->parent() == mpMenu) {
            subMenu->deleteLater();
            return;
        }
        if (mOwnedActions.remove(action))
            action->deleteLater();
    }

    DropDownMenu* SubMenuAt(int menuIndex) const
    {
        QAction* action = ActionAt(menuIndex);
        return action ? qobject_cast<DropDownMenu*>(action->menu()) : nullptr;
    }

    // The parts are laid out left to right and mirrored for a right-to-left layout.
    QRect Visual(const QRect& logical) const
    {
        return QStyle::visualRect(mpOwner->layoutDirection(), mpOwner->rect(), logical);
    }

    // In left-to-right terms.
    QRect ArrowColumn() const
    {
        const QRect r = mpOwner->rect();
        return QRect(r.right() - kArrowColumnWidth + 1, r.top(), kArrowColumnWidth, r.height());
    }

    int LineWidth() const { return int(Internal::ResolutionBucket(Internal::DeviceScaleFactor(mpOwner))); }

    void DrawHighlightRect(QPainter& painter) const;
    void DrawIcon(QPainter& painter) const;
    void DrawText(QPainter& painter) const;
    void DrawTriangleArrow(QPainter& painter) const;

    DropDown* const mpOwner;
    int miMouseState = 0;
    DropDownMenu* mpMenu = nullptr;
    DropDown::AlignmentMode mAlignment = DropDown::AlignRight;
    int miCurrentIndex = -1;
    QHash<QAction*, int> mItemIndex;
    bool mbIndexDirty = false;
    QHash<QAction*, ItemInfo> mItems;
    QList<ItemGroup*> mGroups;
    QSet<ItemGroup*> mHiddenGroups;
    QSet<QAction*> mOwnedActions;
    bool mbIconOnly = false;
    bool mbForceDisplayText = false;
    bool mbKeyArmed = false;
    bool mbTransparent = false;
    bool mbMenuOpen = false;
};

void DropDownImp::DrawHighlightRect(QPainter& painter) const
{
    ThemeManager* themes = ThemeManager::GetInstance();
    const bool enabled = mpOwner->isEnabled();
    const bool pressed = enabled && (mbMenuOpen || mpOwner->isDown());
    const bool hovered = enabled && mpOwner->underMouse();
    const QRect box = mpOwner->rect().adjusted(1, 1, -1, -1);
    QBrush fill;
    QColor border;
    if (pressed) {
        fill = themes->GetBrush(ThemeFileKey::DropDownButtonClickedBackground, box);
        border = themes->GetColor(ThemeFileKey::DropDownButtonClickedBorder);
    } else if (hovered) {
        fill = themes->GetBrush(ThemeFileKey::DropDownButtonHoverBackground, box);
        border = themes->GetColor(ThemeFileKey::DropDownButtonHoverBorder2);
    } else if (!mbTransparent) {
        fill = themes->GetBrush(ThemeFileKey::DropDownContainer, box);
        border = themes->GetColor(ThemeFileKey::DropDownButtonNormalBorderColor);
    }
    if (!enabled) {
        fill.setColor(Internal::DimmedColor(fill.color()));
        border = Internal::DimmedColor(border);
    }
    if (fill.style() != Qt::NoBrush)
        painter.fillRect(box.adjusted(1, 1, -1, -1), fill);
    QPen pen(border, LineWidth());
    pen.setCosmetic(true);
    if (border.isValid() && border.alpha() > 0) {
        painter.setPen(pen);
        painter.drawLine(box.left() + 1, box.top(), box.right() - 1, box.top());
        painter.drawLine(box.left() + 1, box.bottom(), box.right() - 1, box.bottom());
        painter.drawLine(box.left(), box.top() + 1, box.left(), box.bottom() - 1);
        painter.drawLine(box.right(), box.top() + 1, box.right(), box.bottom() - 1);
    }
    if (enabled && mpOwner->hasFocus() && !pressed)
        Internal::DrawFocusRing(&painter, mpOwner, mpOwner->rect(), 0.0,
                                themes->GetColor(ThemeFileKey::DropDownButtonFocusOutline));
}

void DropDownImp::DrawIcon(QPainter& painter) const
{
    const QIcon icon = mpOwner->icon();
    if (icon.isNull())
        return;
    const QSize size = mpOwner->iconSize();
    const QRect r = mpOwner->rect();
    QRect cell;
    if (mbIconOnly)
        cell = QRect(r.left() + (r.width() - kArrowColumnWidth - size.width()) / 2 + 1,
                     r.top() + (r.height() - size.height()) / 2, size.width(), size.height());
    else
        cell = QRect(r.left() + kTextLeft - 2, r.top() + (r.height() - size.height()) / 2, size.width(), size.height());
    icon.paint(&painter, Visual(cell), Qt::AlignCenter, mpOwner->isEnabled() ? QIcon::Normal : QIcon::Disabled);
}

void DropDownImp::DrawText(QPainter& painter) const
{
    if (mbIconOnly || mpOwner->text().isEmpty())
        return;
    const QRect r = mpOwner->rect();
    const int left = mpOwner->icon().isNull() ? kTextLeft : kTextLeft + mpOwner->iconSize().width();
    const QRect textRect = Visual(QRect(left, r.top(), qMax(0, ArrowColumn().left() - left), r.height()));
    painter.setFont(mpOwner->font());
    painter.setPen(Internal::ThemedColor::Of(mpOwner)->GetColor());
    const Qt::Alignment align = QStyle::visualAlignment(mpOwner->layoutDirection(), Qt::AlignLeft | Qt::AlignVCenter);
    painter.drawText(textRect, int(align) | Qt::TextSingleLine,
                     painter.fontMetrics().elidedText(mpOwner->text(), Qt::ElideRight, textRect.width()));
}

void DropDownImp::DrawTriangleArrow(QPainter& painter) const
{
    ThemeManager* themes = ThemeManager::GetInstance();
    QColor color = themes->GetColor(mbMenuOpen ? ThemeFileKey::DropDownTriangle2 : ThemeFileKey::DropDownTriangle);
    if (!color.isValid())
        color = themes->GetColor(ThemeFileKey::DropDownTriangle);
    if (!mpOwner->isEnabled())
        color = Internal::DimmedColor(color);
    // Whole-pixel corners keep the arrow crisp.
    const QRect column = Visual(ArrowColumn());
    const int width = 8;
    const int height = 4;
    const qreal x = column.left() + (column.width() - width) / 2 - 1;
    const qreal y = column.top() + (column.height() - height) / 2;
    const QPointF points[3] = {QPointF(x, y), QPointF(x + width, y), QPointF(x + width / 2.0, y + height)};
    Internal::FillAntialiasedTriangle(&painter, points, color);
}

DropDown::DropDown(QWidget* parent)
    : QPushButton(parent)
    , mpImp(std::make_unique<DropDownImp>(this))
{
    Internal::InstallControlsAccessibility();
    LiveDropDowns().insert(this);
    setAttribute(Qt::WA_Hover, true);
    setFocusPolicy(Qt::StrongFocus);
    setFixedHeight(ScalableIntY(kStandardControlHeight));
    setIconSize(QSize(16, 16));
    mpImp->mpMenu = new DropDownMenu(this);
    connect(mpImp->mpMenu, &QMenu::triggered, this, &DropDown::ActionTriggered);
    connect(mpImp->mpMenu, &QMenu::aboutToShow, this, &DropDown::DropDownListAboutToShow);
    connect(mpImp->mpMenu, &DropDownMenu::MouseMoveOnMenu, this, &DropDown::MouseMoveOnMenu);
    // The menu's items are measured in the theme's fonts: a switch settles its width again.
    new Internal::ThemedFont(this);
    auto* color = new Internal::ThemedColor(this);
    color->SetThemeChangedHandler([this] {
        if (mpImp->mpMenu)
            mpImp->mpMenu->UpdateWidth();
    });
}

DropDown::~DropDown()
{
    LiveDropDowns().erase(this);
    DropDownMenu* menu = mpImp->mpMenu;
    mpImp->mpMenu = nullptr;
    if (menu) {
        // The menu may be delivering the very event whose slot deletes us; it
        // goes (with the items it parents) once control is back in the event loop.
        menu->disconnect(this);
        menu->hide();
        menu->setParent(nullptr, menu->windowFlags());
        menu->deleteLater();
    }
}

QAction* DropDown::AddItem(const QString& text, const QVariant& data)
{
    return AddItem(QIcon(), text, data);
}

QAction* DropDown::AddItem(const QIcon& icon, const QString& text, const QVariant& data)
{
    return AddItem(mpImp->mGroups.isEmpty() ? 0 : int(mpImp->mGroups.size()) - 1, icon, text, data);
}

QAction* DropDown::AddItem(int group, const QString& text, const QVariant& data)
{
    return AddItem(group, QIcon(), text, data);
}

QAction* DropDown::AddItem(int group, const QIcon& icon, const QString& text, const QVariant& data)
{
    if (group < 0 || group > mpImp->mGroups.size() || !mpImp->mpMenu)
        return nullptr;
    QAction* action = mpImp->MakeAction(icon, text);
    if (!AddAction(action, group, data)) {
        mpImp->mOwnedActions.remove(action);
        delete action;
        return nullptr;
    }
    return action;
}

QAction* DropDown::InsertItem(int index, const QString& text, const QVariant& data)
{
    return InsertItem(index, QIcon(), text, data);
}

QAction* DropDown::InsertItem(int index, const QIcon& icon, const QString& text, const QVariant& data)
{
    if (!mpImp->mpMenu)
        return nullptr;
    QAction* action = mpImp->MakeAction(icon, text);
    if (!InsertAction(index, action)) {
        mpImp->mOwnedActions.remove(action);
        delete action;
        return nullptr;
    }
    mpImp->mItems[action].data = data;
    return action;
}

bool DropDown::AddAction(QAction* action, int group)
{
    return AddAction(action, group, QVariant());
}

bool DropDown::AddAction(QAction* action, int group, const QVariant& data)
{
    DropDownImp* d = mpImp.get();
    if (!action || !d->mpMenu || group < 0 || group > d->mGroups.size() || d->mItems.contains(action))
        return false;
    if (group == d->mGroups.size()) {
        if (!d->mGroups.isEmpty()) {
            ItemGroup* previous = d->mGroups.last();
            auto* separator = new QAction(d->mpMenu);
            separator->setSeparator(true);
            d->mOwnedActions.insert(separator);
            d->mpMenu->addAction(separator);
            previous->Actions().append(separator);
            previous->SetTrailingSeparator(separator);
        }
        d->mGroups.append(new ItemGroup(this));
    }
    ItemGroup* itemGroup = d->mGroups.at(group);
    const int position = ItemIndexInMenu(group, 0) + itemGroup->ItemCount();
    if (position > Count())
        return false;
    if (!action->isChecked())
        action->setCheckable(false);
    d->mpMenu->insertAction(d->ActionAt(position), action);
    itemGroup->Actions().insert(itemGroup->ItemCount(), action);
    itemGroup->GetActionGroup()->addAction(action);
    d->mItems.insert(action, DropDownImp::ItemInfo{group, data});
    d->ApplyItemType(itemGroup, action);
    if (d->mHiddenGroups.contains(itemGroup))
        action->setVisible(false);
    d->InvalidateIndex();
    d->ShiftCurrentAfterInsert(position);
    d->UpdateSeparatorVisibility(itemGroup);
    if (group > 0)
        d->UpdateSeparatorVisibility(d->mGroups.at(group - 1));
    updateGeometry();
    return true;
}

bool DropDown::InsertAction(int index, QAction* action)
{
    DropDownImp* d = mpImp.get();
    if (!action || !d->mpMenu || index < 0 || index > Count() || d->mItems.contains(action))
        return false;
    if (d->mGroups.isEmpty())
        return AddAction(action, 0);
    const int group = d->GroupForPosition(index);
    ItemGroup* itemGroup = d->mGroups.at(group);
    const int start = ItemIndexInMenu(group, 0);
    const int position = qBound(start, index, start + itemGroup->ItemCount());
    if (!action->isChecked())
        action->setCheckable(false);
    d->mpMenu->insertAction(d->ActionAt(position), action);
    itemGroup->Actions().insert(position - start, action);
    itemGroup->GetActionGroup()->addAction(action);
    d->mItems.insert(action, DropDownImp::ItemInfo{group, QVariant()});
    d->ApplyItemType(itemGroup, action);
    d->InvalidateIndex();
    d->ShiftCurrentAfterInsert(position);
    d->UpdateSeparatorVisibility(itemGroup);
    updateGeometry();
    return true;
}

bool DropDown::InsertAction(QAction* before, QAction* action)
{
    const int found = mpImp->IndexOf(before);
    const int index = found >= 0 ? found : Count();
    return InsertAction(index, action);
}

void DropDown::RemoveAction(QAction* action)
{
    DropDownImp* d = mpImp.get();
    if (!action || !d->mpMenu || !d->mItems.contains(action))
        return;
    const int position = d->IndexOf(action);
    const DropDownImp::ItemInfo info = d->mItems.take(action);
    if (ItemGroup* group = d->mGroups.value(info.group)) {
        group->Actions().removeOne(action);
        group->GetActionGroup()->removeAction(action);
    }
    d->mpMenu->removeAction(action);
    action->setProperty(DropDownMenu::GroupLabelProperty, QVariant());
    d->DisposeAction(action);
    d->InvalidateIndex();
    d->UpdateSeparatorVisibility();
    if (position >= 0 && position < d->miCurrentIndex)
        --d->miCurrentIndex;
    else if (position >= 0 && position == d->miCurrentIndex)
        d->ChangeCurrent(-1);
    updateGeometry();
}

void DropDown::RemoveAllActions()
{
    DropDownImp* d = mpImp.get();
    if (!d->mpMenu)
        return;
    const QList<QAction*> actions = d->mpMenu->actions();
    for (QAction* action : actions) {
        d->mpMenu->removeAction(action);
        if (d->mItems.contains(action))
            action->setProperty(DropDownMenu::GroupLabelProperty, QVariant());
        d->DisposeAction(action);
    }
    for (ItemGroup* group : std::as_const(d->mGroups)) {
        for (QAction* action : group->GetActionGroup()->actions())
            group->GetActionGroup()->removeAction(action);
        group->deleteLater();
    }
    d->mGroups.clear();
    d->mHiddenGroups.clear();
    d->mItems.clear();
    d->InvalidateIndex();
    d->ChangeCurrent(-1);
    updateGeometry();
}

QStringList DropDown::GetItems() const
{
    QStringList texts;
    for (const QAction* action : mpImp->MenuActions()) {
        if (!action->isSeparator() && !action->property(DropDownMenu::GroupLabelProperty).toBool())
            texts.append(action->text());
    }
    return texts;
}

void DropDown::SetItems(const QStringList& items)
{
    if (items == GetItems())
        return;
    ClearItems();
    for (const QString& text : items)
        AddItem(text);
    if (!items.isEmpty())
        SetCurrentIndex(0);
    Q_EMIT ItemsChanged(items);
}

void DropDown::ClearItems()
{
    RemoveAllActions();
    setText(QString());
    setIcon(QIcon());
}

QAction* DropDown::AddSeparator(int group)
{
    DropDownImp* d = mpImp.get();
    if (group < 0 || group > d->mGroups.size() || !d->mpMenu)
        return nullptr;
    QAction* separator = d->MakeAction(QIcon(), QString());
    separator->setSeparator(true);
    if (!AddAction(separator, group)) {
        d->mOwnedActions.remove(separator);
        delete separator;
        return nullptr;
    }
    return separator;
}

int DropDown::AddMenu(int group, const QIcon& icon, const QString& text)
{
    DropDownImp* d = mpImp.get();
    if (group < 0 || group > d->mGroups.size() || !d->mpMenu)
        return -1;
    auto* subMenu = new DropDownMenu(d->mpMenu);
    subMenu->setTitle(text);
    subMenu->setIcon(icon);
    QAction* action = subMenu->menuAction();
    if (!AddAction(action, group))
        return -1;
    return d->IndexOf(action);
}

QAction* DropDown::AddSubMenuItem(int menuIndex, const QString& text, const QVariant& data)
{
    return AddSubMenuItem(menuIndex, QIcon(), text, data);
}

QAction* DropDown::AddSubMenuItem(int menuIndex, const QIcon& icon, const QString& text, const QVariant& data)
{
    DropDownMenu* subMenu = mpImp->SubMenuAt(menuIndex);
    if (!subMenu)
        return nullptr;
    QAction* action = subMenu->addAction(icon, text);
    action->setData(data);
    return action;
}

void DropDown::EnableSubMenu(int menuIndex, bool enable)
{
    if (DropDownMenu* subMenu = mpImp->SubMenuAt(menuIndex))
        subMenu->menuAction()->setEnabled(enable);
}

void DropDown::HideOrShowSubMenuItem(int menuIndex, int subIndex, bool show)
{
    DropDownMenu* subMenu = mpImp->SubMenuAt(menuIndex);
    if (!subMenu)
        return;
    const QList<QAction*> actions = subMenu->actions();
    if (subIndex >= 0 && subIndex < actions.size())
        actions.at(subIndex)->setVisible(show);
}

void DropDown::HideOrShowSubMenuItem(int menuIndex, const QVariant& data, bool show)
{
    DropDownMenu* subMenu = mpImp->SubMenuAt(menuIndex);
    if (!subMenu)
        return;
    for (QAction* action : subMenu->actions()) {
        if (action->data() == data)
            action->setVisible(show);
    }
}

void DropDown::HideOrShowItemGroup(int group, bool show)
{
    DropDownImp* d = mpImp.get();
    ItemGroup* itemGroup = d->mGroups.value(group);
    if (!itemGroup)
        return;
    if (show)
        d->mHiddenGroups.remove(itemGroup);
    else
        d->mHiddenGroups.insert(itemGroup);
    for (QAction* action : itemGroup->GetActions()) {
        if (action != itemGroup->GetTrailingSeparator())
            action->setVisible(show);
    }
    d->UpdateSeparatorVisibility();
}

int DropDown::Count() const
{
    return int(mpImp->MenuActions().size());
}

int DropDown::GetCurrentIndex() const
{
    return mpImp->miCurrentIndex;
}

QString DropDown::GetCurrentText() const
{
    QAction* current = mpImp->ActionAt(mpImp->miCurrentIndex);
    return current ? current->text() : QString();
}

QString DropDown::GetItemText(int index) const
{
    QAction* action = mpImp->ActionAt(index);
    return action ? action->text() : QString();
}

QIcon DropDown::GetItemIcon(int index) const
{
    QAction* action = mpImp->ActionAt(index);
    return action ? action->icon() : QIcon();
}

QVariant DropDown::ItemData(int index) const
{
    QAction* action = mpImp->ActionAt(index);
    if (!action)
        return QVariant();
    const auto it = mpImp->mItems.constFind(action);
    return it != mpImp->mItems.constEnd() ? it->data : QVariant();
}

int DropDown::FindData(const QVariant& data, int role) const
{
    const QList<QAction*> actions = mpImp->MenuActions();
    for (int i = 0; i < actions.size(); ++i) {
        QAction* action = actions.at(i);
        if (action->isSeparator())
            continue;
        const QVariant value = role == Qt::DisplayRole ? QVariant(action->text()) : ItemData(i);
        if (value.isValid() && value == data)
            return i;
    }
    return -1;
}

int DropDown::FindText(const QString& text, Qt::CaseSensitivity sensitivity) const
{
    const QList<QAction*> actions = mpImp->MenuActions();
    for (int i = 0; i < actions.size(); ++i) {
        if (!actions.at(i)->isSeparator() && actions.at(i)->text().compare(text, sensitivity) == 0)
            return i;
    }
    return -1;
}

QList<QAction*> DropDown::GetActions() const
{
    return mpImp->MenuActions();
}

QActionGroup* DropDown::GetActionGroup(int group) const
{
    ItemGroup* itemGroup = mpImp->mGroups.value(group);
    return itemGroup ? itemGroup->GetActionGroup() : nullptr;
}

int DropDown::GetGroupId(int index) const
{
    if (index < 0 || index >= Count())
        return -1;
    QAction* action = mpImp->ActionAt(index);
    for (int g = 0; g < mpImp->mGroups.size(); ++g) {
        if (mpImp->mGroups.at(g)->GetActions().contains(action))
            return g;
    }
    return -1;
}

int DropDown::ItemIndexInMenu(int group, int index) const
{
    return mpImp->GroupStart(group) + index;
}

DropDownMenu* DropDown::GetDropDownMenu() const
{
    return mpImp->mpMenu;
}

DropDown::AlignmentMode DropDown::GetAlignment() const
{
    return mpImp->mAlignment;
}

DropDown::ItemType DropDown::GetItemType(int group) const
{
    ItemGroup* itemGroup = mpImp->mGroups.value(group);
    return itemGroup ? itemGroup->GetItemType() : NormalItem;
}

bool DropDown::GetGroupItemExclusive(int group) const
{
    ItemGroup* itemGroup = mpImp->mGroups.value(group);
    if (!itemGroup)
        return false;
    if (itemGroup->GetItemType() != CheckableItem)
        return true;
    QActionGroup* actionGroup = itemGroup->GetActionGroup();
    return actionGroup && actionGroup->exclusionPolicy() != QActionGroup::ExclusionPolicy::None;
}

bool DropDown::IsGroupSeparatorVisible(int group) const
{
    ItemGroup* itemGroup = mpImp->mGroups.value(group);
    return itemGroup && itemGroup->IsSeparatorVisible();
}

bool DropDown::IsDropDownWithIcon() const
{
    return !icon().isNull();
}

void DropDown::SetCurrentIndex(int index)
{
    mpImp->ChangeCurrent(index);
}

void DropDown::SetCheckedItem(int group, int index)
{
    ItemGroup* itemGroup = mpImp->mGroups.value(group);
    if (!itemGroup || index < 0 || index >= itemGroup->ItemCount())
        return;
    SetCheckedItemByIndex(ItemIndexInMenu(group, index));
}

void DropDown::SetCheckedItemByIndex(int index)
{
    QAction* action = mpImp->ActionAt(index);
    if (!action || action->isSeparator() || DropDownMenu::IsGroupLabel(action))
        return;
    action->setCheckable(true);
    action->setChecked(true);
}

void DropDown::SetDisplayedText(const QString& text)
{
    setText(text);
    updateGeometry();
}

void DropDown::EnableForceDisplayText(bool enable)
{
    mpImp->mbForceDisplayText = enable;
}

void DropDown::SetItemText(int index, const QString& text)
{
    if (QAction* action = mpImp->ActionAt(index)) {
        action->setText(text);
        if (index == mpImp->miCurrentIndex)
            mpImp->UpdateLabel();
    }
}

void DropDown::SetItemIcon(int index, const QIcon& icon)
{
    if (QAction* action = mpImp->ActionAt(index)) {
        action->setIcon(icon);
        if (index == mpImp->miCurrentIndex)
            mpImp->UpdateLabel();
    }
}

void DropDown::SetItemData(int index, const QVariant& data)
{
    QAction* action = mpImp->ActionAt(index);
    if (action && mpImp->mItems.contains(action))
        mpImp->mItems[action].data = data;
}

void DropDown::SetItemType(ItemType type, int group)
{
    ItemGroup* itemGroup = mpImp->mGroups.value(group);
    if (!itemGroup)
        return;
    const ItemType old = itemGroup->GetItemType();
    itemGroup->SetItemType(type);
    for (QAction* action : itemGroup->GetActions()) {
        if (old == GroupLabelItem && type != GroupLabelItem) {
            action->setProperty(DropDownMenu::GroupLabelProperty, QVariant());
            action->setEnabled(true);
        }
        if (old == CheckableItem && type != CheckableItem && !action->isChecked())
            action->setCheckable(false);
        mpImp->ApplyItemType(itemGroup, action);
    }
    mpImp->UpdateSeparatorVisibility();
    mpImp->UpdateLabel();
}

void DropDown::SetGroupItemExclusive(bool exclusive)
{
    for (int g = 0; g < mpImp->mGroups.size(); ++g)
        SetGroupItemExclusive(g, exclusive);
}

void DropDown::SetGroupItemExclusive(int group, bool exclusive)
{
    if (QActionGroup* actionGroup = GetActionGroup(group))
        actionGroup->setExclusionPolicy(exclusive ? QActionGroup::ExclusionPolicy::Exclusive
                                                  : QActionGroup::ExclusionPolicy::None);
}

void DropDown::SetGroupSeparatorVisible(bool visible, int group)
{
    ItemGroup* itemGroup = mpImp->mGroups.value(group);
    if (!itemGroup)
        return;
    itemGroup->SetSeparatorVisible(visible);
    mpImp->UpdateSeparatorVisibility();
}

void DropDown::SetIconOnly(bool iconOnly)
{
    if (mpImp->mbIconOnly == iconOnly)
        return;
    mpImp->mbIconOnly = iconOnly;
    mpImp->UpdateLabel();
}

void DropDown::SetTransparent(bool transparent)
{
    if (mpImp->mbTransparent == transparent)
        return;
    mpImp->mbTransparent = transparent;
    update();
}

void DropDown::SetDropDownListWidth(int width)
{
    if (mpImp->mpMenu)
        mpImp->mpMenu->SetListWidth(width);
}

void DropDown::SetAlignment(const AlignmentMode& alignment)
{
    mpImp->mAlignment = alignment;
}

void DropDown::SetIsDropDownMenuUseDefaultPaintEvent(bool useDefault)
{
    if (mpImp->mpMenu)
        mpImp->mpMenu->SetUseDefaultPaintEvent(useDefault);
}

QSize DropDown::sizeHint() const
{
    const int height = ScalableIntY(kStandardControlHeight);
    if (mpImp->mbIconOnly)
        return QSize(kIconOnlyWidth, height);
    if (text().isEmpty())
        return QPushButton::sizeHint();
    const int iconPart = icon().isNull() ? 5 : iconSize().width() + 5;
    return QSize(fontMetrics().horizontalAdvance(text()) + 16 + iconPart, height);
}

QSize DropDown::minimumSizeHint() const
{
    return QSize(13, ScalableIntY(kStandardControlHeight));
}

void DropDown::ActionTriggered(QAction* action)
{
    const int index = mpImp->IndexOf(action);
    // Items of sub-menus are not items of the drop-down: they only announce themselves.
    if (index >= 0 && mpImp->mItems.contains(action) && index != mpImp->miCurrentIndex) {
        mpImp->ChangeCurrent(index);
        if (!IsLive(this))
            return;
    }
    Q_EMIT Triggered(action);
}

void DropDown::OpenDropDownMenu()
{
    DropDownMenu* menu = mpImp->mpMenu;
    if (!menu)
        return;
    menu->SetMinimumListWidth(width());
    menu->SetActiveOnShow(mpImp->ActionAt(mpImp->miCurrentIndex));
    menu->UpdateWidth();
    // A menu is read by its window title: the list is named after its drop-down.
    if (QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(this))
        menu->setWindowTitle(accessible->text(QAccessible::Name));
    QPoint position;
    if (mpImp->mAlignment == AlignLeft)
        position = mapToGlobal(QPoint(0, height()));
    else
        position = mapToGlobal(QPoint(rect().right() - menu->sizeHint().width(), height()));
    mpImp->mbMenuOpen = true;
    update();
    QPointer<DropDownMenu> guard(menu);
    menu->exec(position);
    if (!IsLive(this))
        return;
    mpImp->mbMenuOpen = false;
    if (guard && (guard->hasFocus() || QApplication::focusWidget() == guard.data()))
        setFocus(Qt::PopupFocusReason);
    update();
}

void DropDown::MouseMoveOnMenu(QAction* action)
{
    DropDownMenu* menu = mpImp->mpMenu;
    if (!menu)
        return;
    // A cut item text explains itself on hover.
    if (action && !action->isSeparator()) {
        const QRect rect = menu->actionGeometry(action);
        const int needed = menu->ContentWidth();
        if (needed > menu->width() || !action->toolTip().isEmpty()) {
            const QString tip = needed > menu->width() ? action->text() : action->toolTip();
            QToolTip::showText(menu->mapToGlobal(rect.bottomLeft()), tip, menu, rect);
            return;
        }
    }
    QToolTip::hideText();
}

void DropDown::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    mpImp->DrawHighlightRect(painter);
    mpImp->DrawIcon(painter);
    mpImp->DrawText(painter);
    mpImp->DrawTriangleArrow(painter);
}

void DropDown::mousePressEvent(QMouseEvent* event)
{
    QPushButton::mousePressEvent(event);
    if (!IsLive(this))
        return;
    mpImp->miMouseState = 2;
    OpenDropDownMenu();
    // The menu ran a modal loop; the host may have deleted us from a slot.
    if (!IsLive(this))
        return;
    setDown(false);
    update();
}

void DropDown::mouseReleaseEvent(QMouseEvent* event)
{
    QPushButton::mouseReleaseEvent(event);
    if (!IsLive(this))
        return;
    mpImp->miMouseState = 3;
    update();
}

void DropDown::keyPressEvent(QKeyEvent* event)
{
    const int key = event->key();
    const Qt::KeyboardModifiers modifiers = event->modifiers() & ~Qt::KeypadModifier;
    // The keys that open a combo box arm the opening on their release, as Up
    // and Down do.
    const bool opening = modifiers == Qt::NoModifier &&
                         (key == Qt::Key_Space || key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_F4);
    if (key == Qt::Key_Up || key == Qt::Key_Down || opening) {
        mpImp->mbKeyArmed = true;
        event->accept();
        return;
    }
    const QString text = event->text();
    const bool typing = !(modifiers & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) && !text.isEmpty() &&
                        text.front().isPrint();
    if (typing) {
        event->accept();
        // The same type-ahead as in the open list.
        QAction* current = mpImp->ActionAt(mpImp->miCurrentIndex);
        QAction* match = mpImp->mpMenu ? mpImp->mpMenu->TypeAhead(text, current) : nullptr;
        if (match && match != current && mpImp->mItems.contains(match) && !match->menu())
            ActionTriggered(match);
        return;
    }
    QPushButton::keyPressEvent(event);
}

void DropDown::keyReleaseEvent(QKeyEvent* event)
{
    const int key = event->key();
    const bool opens = (key == Qt::Key_Space || key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Down ||
                        key == Qt::Key_F4) &&
                       !event->isAutoRepeat() && mpImp->mbKeyArmed;
    mpImp->mbKeyArmed = false;
    if (opens) {
        event->accept();
        OpenDropDownMenu();
        return;
    }
    QPushButton::keyReleaseEvent(event);
}

void DropDown::resizeEvent(QResizeEvent* event)
{
    QPushButton::resizeEvent(event);
    if (mpImp->mpMenu)
        mpImp->mpMenu->SetMinimumListWidth(width());
}

} // namespace Kavrel::UICore
