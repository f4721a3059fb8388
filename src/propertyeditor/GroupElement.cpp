#include <KvUICore/propertyeditor/GroupElementImp.h>

#include <KvUICore/propertyeditor/Binding.h>
#include <KvUICore/propertyeditor/PageElement.h>
#include <KvUICore/propertyeditor/PropertyEditorAccessible_p.h>
#include <KvUICore/propertyeditor/PropertyEditorImp.h>
#include <KvUICore/widgets/Divider.h>
#include <KvUICore/widgets/Label.h>
#include <KvUICore/widgets/RolloutContainer.h>

#include <QGridLayout>
#include <QHBoxLayout>
#include <QMouseEvent>
#include <QVBoxLayout>

namespace Kavrel::UICore {

namespace {

// Half the width of the band around the label column's edge that grabs the mouse.
constexpr int kEdgeGrip = 3;

// The widths a group uses when it has no editor.
constexpr Internal::ColumnWidths kStandaloneColumnWidths = {150, 0, 50};

GroupElementImp* ImpOf(const GroupElement* group)
{
    return static_cast<GroupElementImp*>(group->GetImp());
}

} // namespace

// ---- GroupGrid -----------------------------------------------------------------

GroupGrid::GroupGrid(GroupElement* group, QWidget* parent)
    : QWidget(parent)
    , mpGroup(group)
{
    Internal::InstallPropertyEditorAccessibility();
    setMouseTracking(true);
}

GroupGrid::~GroupGrid() = default;

GroupElement* GroupGrid::GetGroup() const
{
    return mpGroup;
}

int GroupGrid::LabelColumnEdge() const
{
    // Cell rectangles of a grid are only valid right after it was laid out,
    // so the edge is read off the placed items: controls of column 1 start
    // at the column's left, the label column's keeper fills its cell.
    auto* grid = qobject_cast<QGridLayout*>(layout());
    if (!grid)
        return -1;
    const int spacing = qMax(0, grid->horizontalSpacing());
    int controlsLeft = -1;
    int keeperRight = -1;
    for (int i = 0; i < grid->count(); ++i) {
        QLayoutItem* item = grid->itemAt(i);
        if (!item || item->isEmpty())
            continue;
        int row = 0;
        int column = 0;
        int rowSpan = 0;
        int columnSpan = 0;
        grid->getItemPosition(i, &row, &column, &rowSpan, &columnSpan);
        const QRect geometry = item->geometry();
        if (column == 1 && !item->alignment() && geometry.width() > 0)
            controlsLeft = controlsLeft < 0 ? geometry.left() : qMin(controlsLeft, geometry.left());
        else if (column == 0 && columnSpan == 1 && !item->alignment() && geometry.width() > 0)
            keeperRight = qMax(keeperRight, geometry.right() + 1);
    }
    if (controlsLeft >= 0)
        return controlsLeft - (spacing + 1) / 2;
    return keeperRight >= 0 ? keeperRight + spacing / 2 : -1;
}

bool GroupGrid::IsNearEdge(int x) const
{
    const int edge = LabelColumnEdge();
    return edge >= 0 && qAbs(x - edge) <= kEdgeGrip && mpGroup && mpGroup->GetEditor();
}

void GroupGrid::mousePressEvent(QMouseEvent* event)
{
    const int x = int(event->position().x());
    if (event->button() == Qt::LeftButton && IsNearEdge(x)) {
        mbDragging = true;
        miDragOffset = LabelColumnEdge() - x;
        event->accept();
        return;
    }
    QWidget::mousePressEvent(event);
}

void GroupGrid::mouseMoveEvent(QMouseEvent* event)
{
    const int x = int(event->position().x());
    if (mbDragging && mpGroup) {
        auto* grid = qobject_cast<QGridLayout*>(layout());
        PropertyEditorImp* editor = ImpOf(mpGroup)->GetEditorImp();
        if (grid && editor) {
            const int spacing = qMax(0, grid->horizontalSpacing());
            const int left = grid->contentsMargins().left();
            // Room stays for the controls at the right.
            const int maximum = qMax(1, width() - left - 40);
            const int wanted = x + miDragOffset - spacing / 2 - left;
            editor->SetLabelColumnWidthByUser(qBound(1, wanted, maximum));
        }
        event->accept();
        return;
    }
    if (IsNearEdge(x))
        setCursor(Qt::SplitHCursor);
    else
        unsetCursor();
    QWidget::mouseMoveEvent(event);
}

void GroupGrid::mouseReleaseEvent(QMouseEvent* event)
{
    if (mbDragging && event->button() == Qt::LeftButton) {
        mbDragging = false;
        if (!IsNearEdge(int(event->position().x())))
            unsetCursor();
        event->accept();
        return;
    }
    QWidget::mouseReleaseEvent(event);
}

void GroupGrid::leaveEvent(QEvent* event)
{
    if (!mbDragging)
        unsetCursor();
    QWidget::leaveEvent(event);
}

// ---- GroupElementImp -----------------------------------------------------------

GroupElementImp::GroupElementImp()
    : PropertyEditorElementImp(PropertyEditorElement::Container)
{}

GroupElementImp::~GroupElementImp() = default;

void GroupElementImp::LoadAttributes(XmlFiler& filer)
{
    BindAttributeText(AttributeName::IsCheckable, filer.ReadString(AttributeName::IsCheckable, QStringLiteral("False")),
                      QMetaType::Bool);
    BindAttributeText(AttributeName::IsCollapsed, filer.ReadString(AttributeName::IsCollapsed, QStringLiteral("False")),
                      QMetaType::Bool);
    BindAttributeText(AttributeName::IsChecked, filer.ReadString(AttributeName::IsChecked, QStringLiteral("True")),
                      QMetaType::Bool);
}

QWidget* GroupElementImp::GetChildParentWidget() const
{
    return mpGrid ? static_cast<QWidget*>(mpGrid.data()) : mpWidget.data();
}

void GroupElementImp::AssignDividerMarks()
{
    GroupElementImp* remembered = nullptr;
    for (int index = 0; index < mChildren.size(); ++index) {
        auto* group = qobject_cast<GroupElement*>(mChildren.at(index));
        if (!group)
            continue;
        remembered = ImpOf(group);
        // Marks are assigned, not combined: the last group can trade its
        // divider above for one below.
        remembered->miDividerMark = index != 0 ? GroupElement::DividerAbove : GroupElement::NoDivider;
    }
    if (remembered && !mChildren.isEmpty() && !qobject_cast<GroupElement*>(mChildren.last()))
        remembered->miDividerMark = GroupElement::DividerBelow;
}

void GroupElementImp::ApplyDividerMark()
{
    if (!mpOuterLayout || !mpWidget)
        return;
    const bool above = miDividerMark == GroupElement::DividerAbove;
    const bool below = miDividerMark == GroupElement::DividerBelow;
    if (above && !mpDividerAbove) {
        mpDividerAbove = new Divider(Qt::Horizontal, mpWidget);
        mpOuterLayout->insertWidget(0, mpDividerAbove);
    } else if (!above && mpDividerAbove) {
        delete mpDividerAbove.data();
    }
    if (below && !mpDividerBelow) {
        mpDividerBelow = new Divider(Qt::Horizontal, mpWidget);
        mpOuterLayout->addWidget(mpDividerBelow);
    } else if (!below && mpDividerBelow) {
        delete mpDividerBelow.data();
    }
}

void GroupElementImp::ApplyColumnWidths(const Internal::ColumnWidths& widths)
{
    auto* grid = mpGrid ? qobject_cast<QGridLayout*>(mpGrid->layout()) : nullptr;
    if (!grid)
        return;
    grid->setColumnMinimumWidth(0, qMax(0, widths[0]));
    grid->setColumnStretch(0, 0);
    for (int column = 1; column < 3; ++column) {
        const int width = widths[size_t(column)];
        if (width < 0)
            continue;
        grid->setColumnStretch(column, width == 0 ? 100 : 0);
        if (width > 0)
            grid->setColumnMinimumWidth(column, width);
    }
}

void GroupElementImp::ClearGrid(QGridLayout* grid)
{
    while (QLayoutItem* item = grid->takeAt(0))
        delete item;
    for (const QPointer<QWidget>& widget : std::as_const(mPlacementWidgets)) {
        if (!widget)
            continue;
        // Controls inside an indent wrapper move back to the grid first.
        for (PropertyEditorElement* child : std::as_const(mChildren)) {
            PropertyEditorElementImp* childImp = Of(child);
            if (childImp->mpPlacedWrapper == widget && childImp->mpWidget)
                childImp->mpWidget->setParent(mpGrid);
        }
        delete widget.data();
    }
    mPlacementWidgets.clear();
}

void GroupElementApplyColumnWidths(GroupElement* group, const Internal::ColumnWidths& widths)
{
    ImpOf(group)->ApplyColumnWidths(widths);
}

// ---- GroupElement ----------------------------------------------------------------

GroupElement::GroupElement(QObject* parent)
    : PropertyEditorElement(std::make_unique<GroupElementImp>(), parent)
{}

GroupElement::~GroupElement() = default;

bool GroupElement::IsCheckable() const
{
    const QVariant value = GetValue(AttributeName::IsCheckable);
    return value.isValid() && value.toBool();
}

bool GroupElement::IsChecked() const
{
    const QVariant value = GetValue(AttributeName::IsChecked);
    return !value.isValid() || value.toBool();
}

bool GroupElement::IsCollapsed() const
{
    const QVariant value = GetValue(AttributeName::IsCollapsed);
    return value.isValid() && value.toBool();
}

void GroupElement::SetCheckable(bool checkable)
{
    SetAttributeValue(AttributeName::IsCheckable, checkable, QMetaType::Bool);
}

void GroupElement::SetCheck(bool checked)
{
    SetAttributeValue(AttributeName::IsChecked, checked, QMetaType::Bool);
}

void GroupElement::SetCheck(Binding* binding)
{
    SetBinding(AttributeName::IsChecked, binding);
}

void GroupElement::SetCollapsed(bool collapsed)
{
    SetAttributeValue(AttributeName::IsCollapsed, collapsed, QMetaType::Bool);
}

void GroupElement::SetCollapsed(Binding* binding)
{
    SetBinding(AttributeName::IsCollapsed, binding);
}

int GroupElement::GetDividerMark() const
{
    return ImpOf(this)->miDividerMark;
}

RolloutContainer* GroupElement::GetRolloutContainer() const
{
    return ImpOf(this)->mpRollout;
}

QGridLayout* GroupElement::GetGridLayout() const
{
    GroupElementImp* imp = ImpOf(this);
    return imp->mpGrid ? qobject_cast<QGridLayout*>(imp->mpGrid->layout()) : nullptr;
}

void GroupElement::CheckStateChanged(bool /*checked*/)
{
    UpdateSourceValue(AttributeName::IsChecked);
}

void GroupElement::CollapseStateChanged(bool /*collapsed*/)
{
    UpdateSourceValue(AttributeName::IsCollapsed);
}

bool GroupElement::CanAddChild(PropertyEditorElement* child) const
{
    return PropertyEditorElement::CanAddChild(child);
}

bool GroupElement::CanBindProperty(const QString& attribute) const
{
    // A group has no value of its own: only its common attributes and its
    // title bar's states can be bound.
    return attribute == AttributeName::IsEnabled || attribute == AttributeName::IsVisible ||
           attribute == AttributeName::Tooltip || attribute == AttributeName::Label ||
           attribute == AttributeName::IsCheckable || attribute == AttributeName::IsChecked ||
           attribute == AttributeName::IsCollapsed;
}

QWidget* GroupElement::CreateWidgetOverride(QWidget* parent)
{
    GroupElementImp* imp = ImpOf(this);
    imp->AssignDividerMarks();

    auto* outer = new QWidget(parent);
    auto* outerLayout = new QVBoxLayout(outer);
    outerLayout->setContentsMargins(0, 0, 0, 0);
    imp->mpOuterLayout = outerLayout;

    auto* rollout = new RolloutContainer(outer);
    rollout->SetElideMode(Qt::ElideRight);
    imp->mpRollout = rollout;

    auto* rolloutLayout = new QVBoxLayout(rollout);
    rolloutLayout->setContentsMargins(7, 1, 0, 0);
    auto* gridWidget = new GroupGrid(this, rollout);
    auto* grid = new QGridLayout(gridWidget);
    grid->setContentsMargins(7, 1, 0, 0);
    rolloutLayout->addWidget(gridWidget);
    imp->mpGrid = gridWidget;

    PropertyEditorImp* editor = imp->GetEditorImp();
    imp->ApplyColumnWidths(editor ? editor->GetColumnWidths() : kStandaloneColumnWidths);

    // Collapsing hides the content the container holds, so the grid comes
    // first; the signals are connected after, as this is no user's doing.
    rollout->SetIsCollapsed(IsCollapsed());
    connect(rollout, &RolloutContainer::CheckBoxToggled, this, &GroupElement::CheckStateChanged);
    connect(rollout, &RolloutContainer::Collapsed, this, &GroupElement::CollapseStateChanged);

    outerLayout->addWidget(rollout);
    imp->mpWidget = outer;
    imp->ApplyDividerMark();
    return outer;
}

void GroupElement::AddChildWidgetsOverride()
{
    GroupElementImp* imp = ImpOf(this);
    auto* grid = dynamic_cast<QGridLayout*>(imp->mpGrid ? imp->mpGrid->layout() : nullptr);
    if (!grid)
        return;
    QWidget* gridWidget = imp->mpGrid;
    imp->ClearGrid(grid);

    // Child groups built earlier follow the current marks.
    imp->AssignDividerMarks();
    for (PropertyEditorElement* child : std::as_const(imp->mChildren)) {
        if (auto* group = qobject_cast<GroupElement*>(child))
            ImpOf(group)->ApplyDividerMark();
    }

    // Empty keepers hold the columns' widths while no child occupies them.
    const int columns = qMin(grid->columnCount(), 3);
    for (int column = 0; column < columns; ++column) {
        if (imp->mChildren.isEmpty() || grid->columnMinimumWidth(column) <= 0)
            continue;
        auto* keeper = new QWidget(gridWidget);
        new QHBoxLayout(keeper);
        grid->addWidget(keeper, 0, column);
        imp->mPlacementWidgets.append(keeper);
    }

    int row = 0;
    for (PropertyEditorElement* child : std::as_const(imp->mChildren)) {
        const LayoutInfo info = child->GetLayoutInfoOverride();
        PropertyEditorElementImp* childImp = PropertyEditorElementImp::Of(child);
        childImp->mpPlacedWrapper = nullptr;

        const bool automatic = info.miColumn == -1;
        const bool ownLabel = info.miLabelPlacement == LabelLeft || info.miLabelPlacement == LabelFullRow;
        Label* label = nullptr;
        if (ownLabel && automatic) {
            const Qt::Alignment alignment = Qt::Alignment(info.miLabelAlignment);
            label = new Label(child->GetLabel(), gridWidget);
            label->setAlignment(alignment);
            label->setWordWrap(info.miLabelWrap == LabelWordWrap);
            childImp->SetLabelWidget(label);
            if (info.miLabelPlacement == LabelFullRow) {
                grid->addWidget(label, row, 0, 1, 2);
                ++row;
            } else {
                grid->addWidget(label, row, 0, alignment);
            }
        } else {
            childImp->SetLabelWidget(nullptr);
        }

        QWidget* control = childImp->mpWidget;
        if (!control)
            continue;
        // The label names its control, for screen readers too.
        if (label)
            label->setBuddy(control);
        QWidget* placed = control;
        if (info.miControlIndent > 0) {
            auto* wrapper = new QWidget(gridWidget);
            auto* wrapperLayout = new QVBoxLayout(wrapper);
            QMargins margins = wrapperLayout->contentsMargins();
            margins.setLeft(info.miControlIndent);
            wrapperLayout->setContentsMargins(margins);
            wrapperLayout->addWidget(control);
            if (!child->IsVisible())
                wrapper->hide();
            childImp->mpPlacedWrapper = wrapper;
            imp->mPlacementWidgets.append(wrapper);
            placed = wrapper;
        }

        if (automatic) {
            if (info.miControlPlacement == ControlFullRow) {
                if (info.miLabelPlacement == LabelLeft)
                    ++row;
                grid->addWidget(placed, row, 0, 1, -1);
            } else {
                grid->addWidget(placed, row, 1);
            }
            ++row;
        } else {
            // An explicit column shares the row of the element placed before
            // it. Before any element that row would be -1, which a grid can't
            // hold (Qt indexes its rows with it), so such an element takes row 0.
            grid->addWidget(placed, qMax(row - 1, 0), info.miColumn, 1, info.miColumnSpan);
        }
    }
}

void GroupElement::UpdateWidgetOverride(const QString& attribute)
{
    GroupElementImp* imp = ImpOf(this);
    RolloutContainer* rollout = imp->mpRollout;
    if (!rollout) {
        PropertyEditorElement::UpdateWidgetOverride(attribute);
        return;
    }
    if (attribute == AttributeName::Label) {
        rollout->SetTitle(GetLabel());
        rollout->update();
    } else if (attribute == AttributeName::IsCheckable) {
        rollout->SetIsCheckable(IsCheckable());
        if (IsCheckable() && rollout->IsChecked() != IsChecked())
            rollout->SetChecked(IsChecked());
    } else if (attribute == AttributeName::IsChecked) {
        if (rollout->IsChecked() != IsChecked())
            rollout->SetChecked(IsChecked());
    } else if (attribute == AttributeName::IsCollapsed) {
        if (rollout->IsCollapsed() != IsCollapsed())
            rollout->SetIsCollapsed(IsCollapsed());
    } else if (attribute == AttributeName::Tooltip) {
        rollout->SetTitleToolTip(GetTooltip());
    } else {
        PropertyEditorElement::UpdateWidgetOverride(attribute);
    }
}

QVariant GroupElement::GetWidgetValueOverride(const QString& attribute) const
{
    RolloutContainer* rollout = ImpOf(this)->mpRollout;
    if (rollout) {
        if (attribute == AttributeName::IsChecked)
            return rollout->IsChecked();
        if (attribute == AttributeName::IsCollapsed)
            return rollout->IsCollapsed();
        if (attribute == AttributeName::IsCheckable)
            return rollout->IsCheckable();
    }
    return PropertyEditorElement::GetWidgetValueOverride(attribute);
}

} // namespace Kavrel::UICore
