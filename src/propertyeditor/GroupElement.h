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
    Q_PROPERTY(bool IsCheckable READ IsCheckable WRITE SetCheckable NOTIFY AttributesChanged)
    Q_PROPERTY(bool IsChecked READ IsChecked WRITE SetCheck NOTIFY AttributesChanged)
    Q_PROPERTY(bool IsCollapsed READ IsCollapsed WRITE SetCollapsed NOTIFY AttributesChanged)

public:
    enum DividerMark
    {
        NoDivider = 0,
        DividerAbove = 1,
        DividerBelow = 2,
    };

    explicit GroupElement(QObject* parent = nullptr);
    ~GroupElement() override;

    bool IsCheckable() const;
    bool IsChecked() const;
    bool IsCollapsed() const;
    void SetCheckable(bool checkable);
    void SetCheck(bool checked);
    void SetCheck(Binding* binding);
    void SetCollapsed(bool collapsed);
    void SetCollapsed(Binding* binding);

    int GetDividerMark() const;
    /// The group's rollout container and grid once the widget is built.
    RolloutContainer* GetRolloutContainer() const;
    QGridLayout* GetGridLayout() const;

protected Q_SLOTS:
    void CheckStateChanged(bool checked);
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
