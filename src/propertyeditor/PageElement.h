#pragma once

#include <KvUICore/propertyeditor/PropertyEditorElement.h>

namespace Kavrel::UICore {

/// The root of a property editor page: its children stand one below the other.
class KVUICORE_EXPORT PageElement : public PropertyEditorElement
{
    Q_OBJECT

public:
    /// An empty page.
    explicit PageElement(QObject* parent = nullptr);
    ~PageElement() override;

protected:
    bool CanAddChild(PropertyEditorElement* child) const override;
    QWidget* CreateWidgetOverride(QWidget* parent) override;
    void AddChildWidgetsOverride() override;

private:
    Q_DISABLE_COPY_MOVE(PageElement)
};

} // namespace Kavrel::UICore
