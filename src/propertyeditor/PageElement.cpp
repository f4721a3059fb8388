#include <KvUICore/propertyeditor/PageElement.h>

#include <KvUICore/propertyeditor/PropertyEditorElementImp.h>

#include <QVBoxLayout>
#include <QWidget>

namespace Kavrel::UICore {

namespace {

class PageElementImp : public PropertyEditorElementImp
{
public:
    PageElementImp()
        : PropertyEditorElementImp(PropertyEditorElement::Container)
    {}

    void LoadAttributes(XmlFiler& filer) override
    {
        // Read for compatibility with older definitions; it means nothing.
        msTemp = filer.ReadString(QStringLiteral("Temp"));
    }

    QString msTemp;
};

// Takes every item out of a box layout; the widgets stay with their parent.
void EmptyLayout(QLayout* layout)
{
    while (QLayoutItem* item = layout->takeAt(0))
        delete item;
}

} // namespace

PageElement::PageElement(QObject* parent)
    : PropertyEditorElement(std::make_unique<PageElementImp>(), parent)
{}

PageElement::~PageElement() = default;

bool PageElement::CanAddChild(PropertyEditorElement* child) const
{
    return PropertyEditorElement::CanAddChild(child);
}

QWidget* PageElement::CreateWidgetOverride(QWidget* parent)
{
    auto* widget = new QWidget(parent);
    auto* layout = new QVBoxLayout(widget);
    layout->setContentsMargins(0, 0, 0, 0);
    return widget;
}

void PageElement::AddChildWidgetsOverride()
{
    QWidget* widget = GetWidget();
    auto* layout = widget ? qobject_cast<QBoxLayout*>(widget->layout()) : nullptr;
    if (!layout)
        return;
    EmptyLayout(layout);
    for (int i = 0; i < GetChildCount(); ++i) {
        if (QWidget* child = GetChild(i)->GetWidget())
            layout->addWidget(child);
    }
    // The page keeps its elements at the top of a taller editor.
    layout->addStretch(1);
}

} // namespace Kavrel::UICore
