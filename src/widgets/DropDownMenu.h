#pragma once

#include <KvUICore/KvUICoreExport.h>

#include <QMenu>

#include <memory>

namespace Kavrel::UICore {

class DropDownMenuImp;

/// The menu of a DropDown (and of its sub-menus). It paints its items itself
/// from the theme's drop-down keys, group labels included, and sizes itself to
/// its items; a drop-down that owns it keeps it at least as wide as itself.
class KVUICORE_EXPORT DropDownMenu : public QMenu
{
    Q_OBJECT

public:
    /// The dynamic property that marks an action as a group label row (the
    /// custom style reads the same name).
    static const char* const GroupLabelProperty;
    /// The dynamic property raised while the standard menu painting runs, so
    /// that the custom style paints no items then.
    static const char* const StandardMenuPaintProperty;

    /// An empty menu in the drop-down look.
    explicit DropDownMenu(QWidget* parent = nullptr);
    ~DropDownMenu() override;

    /// 0 or less: as wide as the items need and at least minimumListWidth.
    void SetListWidth(int width);
    /// The width set with SetListWidth; 0 or less for the width the items need.
    int GetListWidth() const;
    /// Sets the least width the menu takes and recomputes its width.
    void SetMinimumListWidth(int width);
    /// Paint through the style only, without the menu's own item painting.
    void SetUseDefaultPaintEvent(bool useDefault);
    /// Whether the menu paints through the style only.
    bool IsUseDefaultPaintEvent() const;
    /// The action to highlight when the menu next shows.
    void SetActiveOnShow(QAction* action);

    /// Whether the action is a group label row; false for null.
    static bool IsGroupLabel(const QAction* action);

    /// Recomputes the width from the items.
    void UpdateWidth();
    /// The width the items need.
    int ContentWidth() const;
    /// The width the menu takes when it opens.
    int TargetWidth() const;

    /// Type-ahead as in a combo box: adds typed to what was typed within the
    /// keyboard input interval and gives the next item, after `after` and
    /// wrapping round, whose text begins with it; typing one letter again steps
    /// through the items that begin with that letter. Null when none matches.
    QAction* TypeAhead(const QString& typed, QAction* after);

    QSize sizeHint() const override;

Q_SIGNALS:
    /// The mouse moved over the menu; action is the entry under it, or null.
    void MouseMoveOnMenu(QAction* action);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void showEvent(QShowEvent* event) override;
    /// Typed letters move the highlight by TypeAhead(); other keys work as in any menu.
    void keyPressEvent(QKeyEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    Q_DISABLE_COPY_MOVE(DropDownMenu)
    friend class DropDownMenuImp;
    std::unique_ptr<DropDownMenuImp> const mpImp;
};

} // namespace Kavrel::UICore
