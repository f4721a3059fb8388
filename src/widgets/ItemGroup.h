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
    explicit ItemGroup(QObject* parent = nullptr);
    ~ItemGroup() override;

    DropDown::ItemType GetItemType() const;
    void SetItemType(DropDown::ItemType type);
    QActionGroup* GetActionGroup() const;
    bool IsSeparatorVisible() const;
    void SetSeparatorVisible(bool visible);

    /// The group's actions in menu order, the trailing separator included.
    const QList<QAction*>& GetActions() const;
    QList<QAction*>& Actions();
    /// The separator between this group and the next one, or null.
    QAction* GetTrailingSeparator() const;
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
