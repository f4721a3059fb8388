#include <KvUICore/propertyeditor/LabelElement.h>

#include <KvUICore/propertyeditor/Binding.h>
#include <KvUICore/propertyeditor/PropertyEditorElementImp.h>
#include <KvUICore/widgets/Label.h>

namespace Kavrel::UICore {

namespace {

class LabelElementImp : public PropertyEditorElementImp
{
public:
    LabelElementImp()
        : PropertyEditorElementImp(PropertyEditorElement::Leaf)
    {
        mbLibraryKind = true;
    }

    void LoadAttributes(XmlFiler& filer) override
    {
        BindAttributeText(AttributeName::Text, filer.ReadString(AttributeName::Text), QMetaType::QString);
    }
};

} // namespace

LabelElement::LabelElement(QObject* parent)
    : PropertyEditorElement(std::make_unique<LabelElementImp>(), parent)
{}

LabelElement::~LabelElement() = default;

QString LabelElement::GetText() const
{
    return GetValue(AttributeName::Text).toString();
}

void LabelElement::SetText(const QString& text)
{
    SetAttributeValue(AttributeName::Text, text, QMetaType::QString);
}

void LabelElement::SetText(Binding* binding)
{
    SetBinding(AttributeName::Text, binding);
}

QWidget* LabelElement::CreateWidgetOverride(QWidget* parent)
{
    auto* label = new Label(parent);
    label->setWordWrap(true);
    return label;
}

void LabelElement::UpdateWidgetOverride(const QString& attribute)
{
    auto* label = qobject_cast<Label*>(GetWidget());
    if (label && attribute == AttributeName::Text) {
        const QString text = GetText();
        if (label->text() != text)
            label->setText(text);
        return;
    }
    PropertyEditorElement::UpdateWidgetOverride(attribute);
}

QVariant LabelElement::GetWidgetValueOverride(const QString& attribute) const
{
    auto* label = qobject_cast<Label*>(GetWidget());
    if (label && attribute == AttributeName::Text)
        return label->text();
    return PropertyEditorElement::GetWidgetValueOverride(attribute);
}

} // namespace Kavrel::UICore
