#pragma once

#include <KvUICore/propertyeditor/PropertyEditorElement.h>

class QGridLayout;

namespace Kavrel::UICore {

class RolloutContainer;

/// A collapsible, optionally checkable group (a RolloutContainer titled with
/// the label) that lays its children out in a grid: column 0 holds labels,
/// columns 1 and 2 the controls. A group inside a group gets a divider above
/// it, or below it when it is the last group before other elements.
class KVUICORE_EXPORT GroupElement : public PropertyEditorElement
{
    Q_OBJECT
    /// Whether the group's title carries a check box; false unless set.
    Q_PROPERTY(bool IsCheckable READ IsCheckable WRITE SetCheckable NOTIFY AttributesChanged)
    /// Whether a checkable group is checked; true unless set.
    Q_PROPERTY(bool IsChecked READ IsChecked WRITE SetCheck NOTIFY AttributesChanged)
    /// Whether the group is collapsed; false unless set.
    Q_PROPERTY(bool IsCollapsed READ IsCollapsed WRITE SetCollapsed NOTIFY AttributesChanged)

public:
    /// Where a group inside a group draws its divider.
    enum DividerMark
    {
        NoDivider = 0,
        DividerAbove = 1,
        DividerBelow = 2,
    };

    /// An empty, expanded group.
    explicit GroupElement(QObject* parent = nullptr);
    ~GroupElement() override;

    /// The IsCheckable attribute; false unless set.
    bool IsCheckable() const;
    /// The IsChecked attribute; true unless set.
    bool IsChecked() const;
    /// The IsCollapsed attribute; false unless set.
    bool IsCollapsed() const;
    /// Sets the IsCheckable attribute.
    void SetCheckable(bool checkable);
    /// Sets the IsChecked attribute (through its binding when it has one).
    void SetCheck(bool checked);
    /// Binds the IsChecked attribute; see SetBinding.
    void SetCheck(Binding* binding);
    /// Sets the IsCollapsed attribute (through its binding when it has one).
    void SetCollapsed(bool collapsed);
    /// Binds the IsCollapsed attribute; see SetBinding.
    void SetCollapsed(Binding* binding);

    /// The group's DividerMark, decided when its parent group lays it out.
    int GetDividerMark() const;
    /// The group's rollout container and grid once the widget is built.
    RolloutContainer* GetRolloutContainer() const;
    /// The grid of the children; null until the widget is built.
    QGridLayout* GetGridLayout() const;

protected Q_SLOTS:
    /// Writes the title check box's state back through the IsChecked binding (connected
    /// to the rollout).
    void CheckStateChanged(bool checked);
    /// Writes the collapsed state back through the IsCollapsed binding (connected to the
    /// rollout).
    void CollapseStateChanged(bool collapsed);

protected:
    bool CanAddChild(PropertyEditorElement* child) const override;
    bool CanBindProperty(const QString& attribute) const override;
    QWidget* CreateWidgetOverride(QWidget* parent) override;
    void AddChildWidgetsOverride() override;
    void UpdateWidgetOverride(const QString& attribute) override;
    QVariant GetWidgetValueOverride(const QString& attribute) const override;

private:
    Q_DISABLE_COPY_MOVE(GroupElement)
    friend class GroupElementImp;
};

} // namespace Kavrel::UICore
