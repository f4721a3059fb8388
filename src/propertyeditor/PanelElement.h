#pragma once

#include <KvUICore/propertyeditor/PropertyEditorElement.h>

namespace Kavrel::UICore {

/// A container whose children sit side by side.
class KVUICORE_EXPORT PanelElement : public PropertyEditorElement
{
    Q_OBJECT

public:
    /// An empty panel.
    explicit PanelElement(QObject* parent = nullptr);
    ~PanelElement() override;

protected:
    bool CanAddChild(PropertyEditorElement* child) const override;
    QWidget* CreateWidgetOverride(QWidget* parent) override;
    void AddChildWidgetsOverride() override;

private:
    Q_DISABLE_COPY_MOVE(PanelElement)
};

} // namespace Kavrel::UICore
