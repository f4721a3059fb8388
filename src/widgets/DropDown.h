#pragma once

#include <KvUICore/KvUICoreExport.h>

#include <QIcon>
#include <QList>
#include <QPushButton>
#include <QVariant>

#include <memory>

class QAction;
class QActionGroup;

namespace Kavrel::UICore {

class DropDownImp;
class DropDownMenu;

/// The library's themed drop-down button. It shows the current item's text and
/// icon and opens a DropDownMenu listing its items. Items are actions arranged in
/// numbered groups (0, 1, ...) with a separator between groups; an item's index is
/// its position in the menu, separators included.
class KVUICORE_EXPORT DropDown : public QPushButton
{
    Q_OBJECT
    /// The texts of the items, in order; setting it replaces every item.
    Q_PROPERTY(QStringList items READ GetItems WRITE SetItems NOTIFY ItemsChanged)
    /// The index of the current item, or -1 when there is none.
    Q_PROPERTY(int currentIndex READ GetCurrentIndex WRITE SetCurrentIndex NOTIFY CurrentIndexChanged)
    /// Where the menu opens.
    Q_PROPERTY(AlignmentMode alignment READ GetAlignment WRITE SetAlignment)

public:
    /// What the items of a group are. Other values behave as NormalItem.
    enum ItemType : int
    {
        /// A choice: the button shows the current item's text and icon.
        NormalItem = 0,
        /// A check item: triggering toggles it; exclusive groups keep one checked.
        CheckableItem = 1,
        /// A command: triggering runs it; the button's text stays.
        CommandItem = 2,
        /// A header row naming the items that follow; it cannot be chosen.
        GroupLabelItem = 3
    };
    Q_ENUM(ItemType)

    /// Where the menu opens: its right edge under the button's right edge, or its
    /// left edge under the button's left edge.
    enum AlignmentMode
    {
        AlignRight = 0,
        AlignLeft = 1
    };
    Q_ENUM(AlignmentMode)

    /// An empty drop-down without items or groups.
    explicit DropDown(QWidget* parent = nullptr);
    ~DropDown() override;
    /// The texts of the items in menu order, without separators, group labels and sub-menu items.
    QStringList GetItems() const;
    /// Replaces every item with one normal item per text and makes the first one current; emits ItemsChanged when the
    /// texts differ.
    void SetItems(const QStringList& items);

    ///@{
    /// Adds an item and returns its action; null when nothing was added. The
    /// group-less forms add to the last group (group 0 when there is
    /// none). A group id may be an existing group or the next new one; other ids
    /// add nothing and give null.
    QAction* AddItem(const QString& text, const QVariant& data = QVariant());
    QAction* AddItem(const QIcon& icon, const QString& text, const QVariant& data = QVariant());
    QAction* AddItem(int group, const QString& text, const QVariant& data = QVariant());
    QAction* AddItem(int group, const QIcon& icon, const QString& text, const QVariant& data = QVariant());
    ///@}
    ///@{
    /// Inserts before the item at index, into that item's group.
    QAction* InsertItem(int index, const QString& text, const QVariant& data = QVariant());
    QAction* InsertItem(int index, const QIcon& icon, const QString& text, const QVariant& data = QVariant());
    ///@}
    /// Adds an action of the caller's as an item of the group (an existing group or the
    /// next new one); false for a null action, an action already added or another group
    /// id. The action is not owned.
    bool AddAction(QAction* action, int group);
    /// As the other AddAction, with the item's data.
    bool AddAction(QAction* action, int group, const QVariant& data);
    /// Inserts an action of the caller's before the entry at index (Count() appends),
    /// into that entry's group; false for a null action, one already added or an index
    /// out of range.
    bool InsertAction(int index, QAction* action);
    /// Inserts before the entry `before`; an action that is no entry appends.
    bool InsertAction(QAction* before, QAction* action);
    /// Removes the entry of the action; an action that is no entry is ignored. Actions
    /// the drop-down made are deleted.
    void RemoveAction(QAction* action);
    /// Removes every item, separator and group; the actions the drop-down made are deleted.
    void RemoveAllActions();
    /// As RemoveAllActions, and the button's text and icon are cleared.
    void ClearItems();
    /// Adds a separator to the group and returns it; null for a group id that is neither
    /// an existing group nor the next new one.
    QAction* AddSeparator(int group);
    /// Adds an item that opens a sub-menu; gives its index, or -1.
    int AddMenu(int group, const QIcon& icon, const QString& text);
    /// Adds an item to the sub-menu of the item at menuIndex.
    QAction* AddSubMenuItem(int menuIndex, const QString& text, const QVariant& data = QVariant());
    /// As the other AddSubMenuItem, with an icon; null when the entry at menuIndex opens
    /// no sub-menu.
    QAction* AddSubMenuItem(int menuIndex, const QIcon& icon, const QString& text, const QVariant& data = QVariant());
    /// Enables or disables the sub-menu of the entry at menuIndex; ignored when it opens
    /// none.
    void EnableSubMenu(int menuIndex, bool enable);
    /// Hides or shows an item of the sub-menu at menuIndex by its index; ignored when
    /// either index does not exist.
    void HideOrShowSubMenuItem(int menuIndex, int subIndex, bool show);
    /// Hides or shows the items of the sub-menu at menuIndex whose data equals data.
    void HideOrShowSubMenuItem(int menuIndex, const QVariant& data, bool show);
    /// Hides or shows every entry of a group; an unknown group is ignored.
    void HideOrShowItemGroup(int group, bool show);

    /// The number of entries of the menu; indices below count every entry,
    /// separators and group labels included.
    int Count() const;
    /// The index of the current item; -1 when there is none.
    int GetCurrentIndex() const;
    /// The current item's text; empty when there is none.
    QString GetCurrentText() const;
    /// The text of the entry at index; empty for an index out of range.
    QString GetItemText(int index) const;
    /// The icon of the entry at index; null for an index out of range.
    QIcon GetItemIcon(int index) const;
    /// The data of the item at index; invalid for an index out of range or an entry
    /// without data.
    QVariant ItemData(int index) const;
    /// Qt::DisplayRole compares texts; any other role the items' data.
    int FindData(const QVariant& data, int role = Qt::UserRole) const;
    /// The index of the first entry (separators aside) with that text; -1 when none has
    /// it.
    int FindText(const QString& text, Qt::CaseSensitivity sensitivity = Qt::CaseSensitive) const;
    /// The actions of every entry, in menu order.
    QList<QAction*> GetActions() const;
    /// The action group of a group; null for an unknown group.
    QActionGroup* GetActionGroup(int group) const;
    /// The group of the entry at index; -1 for an index out of range.
    int GetGroupId(int index) const;
    /// The menu index of the group's index-th entry (no range check).
    int ItemIndexInMenu(int group, int index) const;
    /// The menu that opens from the button.
    DropDownMenu* GetDropDownMenu() const;
    /// Where the menu opens; AlignRight unless set.
    AlignmentMode GetAlignment() const;
    /// What the items of the group are; NormalItem for an unknown group.
    ItemType GetItemType(int group = 0) const;
    /// Whether the group keeps one item checked: true for groups that are not checkable,
    /// false for an unknown group.
    bool GetGroupItemExclusive(int group) const;
    /// Whether the separator before the group shows; false for an unknown group.
    bool IsGroupSeparatorVisible(int group) const;
    /// Whether the button shows an icon.
    bool IsDropDownWithIcon() const;

    /// Makes the entry at index the current item and emits CurrentIndexChanged.
    /// No range check: any index other than the current one is stored and announced.
    void SetCurrentIndex(int index);
    /// Checks the group's index-th item; ignored for an unknown group or index.
    void SetCheckedItem(int group, int index);
    /// Checks the entry at index; ignored for separators, group labels and indices out of
    /// range.
    void SetCheckedItemByIndex(int index);
    /// Shows text on the button (until the current item changes, unless
    /// EnableForceDisplayText).
    void SetDisplayedText(const QString& text);
    /// Keeps the displayed text whatever item is current.
    void EnableForceDisplayText(bool enable);
    /// Sets the text of the entry at index; ignored for an index out of range.
    void SetItemText(int index, const QString& text);
    /// Sets the icon of the entry at index; ignored for an index out of range.
    void SetItemIcon(int index, const QIcon& icon);
    /// Sets the data of the item at index; ignored for an index out of range.
    void SetItemData(int index, const QVariant& data);
    /// Sets what the items of a group are; ignored for an unknown group.
    void SetItemType(ItemType type, int group = 0);
    /// Makes every group keep one item checked, or not.
    void SetGroupItemExclusive(bool exclusive);
    /// Makes a group keep one item checked, or not; ignored for an unknown group.
    void SetGroupItemExclusive(int group, bool exclusive);
    /// Shows or hides the separator before a group; ignored for an unknown group.
    void SetGroupSeparatorVisible(bool visible, int group);
    /// Shows only the current item's icon on the button, without text.
    void SetIconOnly(bool iconOnly);
    /// A transparent button shows its background and border only under the mouse.
    void SetTransparent(bool transparent);
    /// 0 or less: the menu is as wide as its items and at least as wide as the button.
    void SetDropDownListWidth(int width);
    /// Sets where the menu opens.
    void SetAlignment(const AlignmentMode& alignment);
    /// The menu paints through its style only instead of its own item painting.
    void SetIsDropDownMenuUseDefaultPaintEvent(bool useDefault);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    /// The current item changed from oldIndex to newIndex.
    void CurrentIndexChanged(int newIndex, int oldIndex);
    /// The menu is about to open.
    void DropDownListAboutToShow();
    /// An entry or sub-menu item was triggered, after the current item changed.
    void Triggered(QAction* action);
    /// Emitted when SetItems replaces the items with different texts.
    void ItemsChanged(const QStringList& items);

public Q_SLOTS:
    /// Makes a triggered entry the current item and emits Triggered.
    void ActionTriggered(QAction* action);

protected Q_SLOTS:
    /// Opens the menu under the button, at least as wide as the button, with the current
    /// item active.
    void OpenDropDownMenu();

private Q_SLOTS:
    void MouseMoveOnMenu(QAction* action);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    Q_DISABLE_COPY_MOVE(DropDown)
    friend class DropDownImp;
    std::unique_ptr<DropDownImp> const mpImp;
};

} // namespace Kavrel::UICore
