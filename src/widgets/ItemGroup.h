#pragma once

#include <KvUICore/KvUICoreExport.h>
#include <KvUICore/widgets/DropDown.h>

#include <QList>
#include <QObject>

class QAction;
class QActionGroup;

namespace Kavrel::UICore {

/// One numbered group of a DropDown: its item type, the QActionGroup its items
/// belong to, its menu actions in menu order (separators included, the separator
/// that follows the group last) and whether that following separator shows.
class KVUICORE_EXPORT ItemGroup : public QObject
{
    Q_OBJECT

public:
    /// An empty group of normal items with a visible separator.
    explicit ItemGroup(QObject* parent = nullptr);
    ~ItemGroup() override;

    /// What the group's items are.
    DropDown::ItemType GetItemType() const;
    /// Sets what the group's items are.
    void SetItemType(DropDown::ItemType type);
    /// The action group the items belong to.
    QActionGroup* GetActionGroup() const;
    /// Whether the separator after the group shows.
    bool IsSeparatorVisible() const;
    /// Shows or hides the separator after the group.
    void SetSeparatorVisible(bool visible);

    /// The group's actions in menu order, the trailing separator included.
    const QList<QAction*>& GetActions() const;
    /// The group's actions in menu order, for the drop-down to change.
    QList<QAction*>& Actions();
    /// The separator between this group and the next one, or null.
    QAction* GetTrailingSeparator() const;
    /// Sets the separator between this group and the next one (null for none).
    void SetTrailingSeparator(QAction* separator);
    /// The number of actions before the trailing separator.
    int ItemCount() const;

private:
    Q_DISABLE_COPY_MOVE(ItemGroup)
    DropDown::ItemType mItemType = DropDown::NormalItem;
    QActionGroup* const mpActionGroup;
    bool mbSeparatorVisible = true;
    QList<QAction*> mActions;
    QAction* mpTrailingSeparator = nullptr;
};

} // namespace Kavrel::UICore
