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

    explicit DropDown(QWidget* parent = nullptr);
    ~DropDown() override;

    /// Items. The group-less forms add to the last group (group 0 when there is
    /// none). A group id may be an existing group or the next new one; other ids
    /// add nothing and give null.
    QAction* AddItem(const QString& text, const QVariant& data = QVariant());
    QAction* AddItem(const QIcon& icon, const QString& text, const QVariant& data = QVariant());
    QAction* AddItem(int group, const QString& text, const QVariant& data = QVariant());
    QAction* AddItem(int group, const QIcon& icon, const QString& text, const QVariant& data = QVariant());
    /// Inserts before the item at index, into that item's group.
    QAction* InsertItem(int index, const QString& text, const QVariant& data = QVariant());
    QAction* InsertItem(int index, const QIcon& icon, const QString& text, const QVariant& data = QVariant());
    bool AddAction(QAction* action, int group);
    bool AddAction(QAction* action, int group, const QVariant& data);
    bool InsertAction(int index, QAction* action);
    bool InsertAction(QAction* before, QAction* action);
    void RemoveAction(QAction* action);
    /// Removes every item, separator and group; the actions the drop-down made are deleted.
    void RemoveAllActions();
    /// As RemoveAllActions, and the button's text and icon are cleared.
    void ClearItems();
    QAction* AddSeparator(int group);
    /// Adds an item that opens a sub-menu; gives its index, or -1.
    int AddMenu(int group, const QIcon& icon, const QString& text);
    /// Adds an item to the sub-menu of the item at menuIndex.
    QAction* AddSubMenuItem(int menuIndex, const QString& text, const QVariant& data = QVariant());
    QAction* AddSubMenuItem(int menuIndex, const QIcon& icon, const QString& text, const QVariant& data = QVariant());
    void EnableSubMenu(int menuIndex, bool enable);
    void HideOrShowSubMenuItem(int menuIndex, int subIndex, bool show);
    void HideOrShowSubMenuItem(int menuIndex, const QVariant& data, bool show);
    void HideOrShowItemGroup(int group, bool show);

    /// Queries.
    int Count() const;
    int GetCurrentIndex() const;
    QString GetCurrentText() const;
    QString GetItemText(int index) const;
    QIcon GetItemIcon(int index) const;
    QVariant ItemData(int index) const;
    /// Qt::DisplayRole compares texts; any other role the items' data.
    int FindData(const QVariant& data, int role = Qt::UserRole) const;
    int FindText(const QString& text, Qt::CaseSensitivity sensitivity = Qt::CaseSensitive) const;
    QList<QAction*> GetActions() const;
    QActionGroup* GetActionGroup(int group) const;
    int GetGroupId(int index) const;
    int ItemIndexInMenu(int group, int index) const;
    DropDownMenu* GetDropDownMenu() const;
    AlignmentMode GetAlignment() const;
    ItemType GetItemType(int group = 0) const;
    bool GetGroupItemExclusive(int group) const;
    bool IsGroupSeparatorVisible(int group) const;
    bool IsDropDownWithIcon() const;

    /// Settings.
    /// No range check: any index other than the current one is stored and announced.
    void SetCurrentIndex(int index);
    void SetCheckedItem(int group, int index);
    void SetCheckedItemByIndex(int index);
    void SetDisplayedText(const QString& text);
    /// Keeps the displayed text whatever item is current.
    void EnableForceDisplayText(bool enable);
    void SetItemText(int index, const QString& text);
    void SetItemIcon(int index, const QIcon& icon);
    void SetItemData(int index, const QVariant& data);
    void SetItemType(ItemType type, int group = 0);
    void SetGroupItemExclusive(bool exclusive);
    void SetGroupItemExclusive(int group, bool exclusive);
    void SetGroupSeparatorVisible(bool visible, int group);
    void SetIconOnly(bool iconOnly);
    /// A transparent button shows its background and border only under the mouse.
    void SetTransparent(bool transparent);
    /// 0 or less: the menu is as wide as its items and at least as wide as the button.
    void SetDropDownListWidth(int width);
    void SetAlignment(const AlignmentMode& alignment);
    /// The menu paints through its style only instead of its own item painting.
    void SetIsDropDownMenuUseDefaultPaintEvent(bool useDefault);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    void CurrentIndexChanged(int newIndex, int oldIndex);
    void DropDownListAboutToShow();
    void Triggered(QAction* action);

public Q_SLOTS:
    void ActionTriggered(QAction* action);

protected Q_SLOTS:
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
