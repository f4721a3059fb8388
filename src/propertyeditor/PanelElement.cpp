#include <KvUICore/propertyeditor/PanelElement.h>

#include <KvUICore/propertyeditor/PropertyEditorElementImp.h>

#include <QHBoxLayout>
#include <QWidget>

namespace Kavrel::UICore {

namespace {

class PanelElementImp : public PropertyEditorElementImp
{
public:
    PanelElementImp()
        : PropertyEditorElementImp(PropertyEditorElement::Container)
    {}
};

} // namespace

PanelElement::PanelElement(QObject* parent)
    : PropertyEditorElement(std::make_unique<PanelElementImp>(), parent)
{}

PanelElement::~PanelElement() = default;

bool PanelElement::CanAddChild(PropertyEditorElement* child) const
{
    return PropertyEditorElement::CanAddChild(child);
}

QWidget* PanelElement::CreateWidgetOverride(QWidget* parent)
{
    auto* widget = new QWidget(parent);
    auto* layout = new QHBoxLayout(widget);
    layout->setContentsMargins(0, 0, 0, 0);
    return widget;
}

void PanelElement::AddChildWidgetsOverride()
{
    QWidget* widget = GetWidget();
    auto* layout = widget ? qobject_cast<QBoxLayout*>(widget->layout()) : nullptr;
    if (!layout)
        return;
    while (QLayoutItem* item = layout->takeAt(0))
        delete item;
    for (int i = 0; i < GetChildCount(); ++i) {
        if (QWidget* child = GetChild(i)->GetWidget())
            layout->addWidget(child);
    }
}

} // namespace Kavrel::UICore
