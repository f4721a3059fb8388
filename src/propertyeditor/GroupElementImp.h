#pragma once

#include <KvUICore/propertyeditor/ElementRegistry_p.h>
#include <KvUICore/propertyeditor/GroupElement.h>
#include <KvUICore/propertyeditor/PropertyEditorElementImp.h>

#include <QList>
#include <QPointer>
#include <QWidget>

class QGridLayout;
class QVBoxLayout;

namespace Kavrel::UICore {

class Divider;
class RolloutContainer;

// The widget that holds a group's grid. The user drags the right edge of the
// label column to resize it in every group of the editor.
class GroupGrid : public QWidget
{
    Q_OBJECT

public:
    explicit GroupGrid(GroupElement* group, QWidget* parent = nullptr);
    ~GroupGrid() override;

    // The x of the label column's right edge, or -1 when there is none.
    int LabelColumnEdge() const;
    GroupElement* GetGroup() const;

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;

private:
    bool IsNearEdge(int x) const;

    QPointer<GroupElement> mpGroup;
    bool mbDragging = false;
    int miDragOffset = 0;
};

class GroupElementImp : public PropertyEditorElementImp
{
    Q_OBJECT

public:
    GroupElementImp();
    ~GroupElementImp() override;

    void LoadAttributes(XmlFiler& filer) override;
    QWidget* GetChildParentWidget() const override;

    // Marks the child groups: a divider above each group that isn't first, and
    // below the last group when other elements follow it.
    void AssignDividerMarks();
    void ApplyDividerMark();
    void ApplyColumnWidths(const Internal::ColumnWidths& widths);
    // Empties the grid; the children's widgets stay, the placement's own
    // widgets (column keepers, indent wrappers) go.
    void ClearGrid(QGridLayout* grid);

    int miDividerMark = GroupElement::NoDivider;
    QPointer<QVBoxLayout> mpOuterLayout;
    QPointer<RolloutContainer> mpRollout;
    QPointer<GroupGrid> mpGrid;
    QPointer<Divider> mpDividerAbove;
    QPointer<Divider> mpDividerBelow;
    QList<QPointer<QWidget>> mPlacementWidgets;
};

// Applies the editor's column widths to a built group's grid.
void GroupElementApplyColumnWidths(GroupElement* group, const Internal::ColumnWidths& widths);

} // namespace Kavrel::UICore
