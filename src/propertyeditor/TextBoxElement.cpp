#include <KvUICore/propertyeditor/TextBoxElement.h>

#include <KvUICore/propertyeditor/Binding.h>
#include <KvUICore/propertyeditor/PropertyEditorElementImp.h>
#include <KvUICore/widgets/TextBox.h>

namespace Kavrel::UICore {

namespace {

class TextBoxElementImp : public PropertyEditorElementImp
{
public:
    TextBoxElementImp()
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

TextBoxElement::TextBoxElement(QObject* parent)
    : PropertyEditorElement(std::make_unique<TextBoxElementImp>(), parent)
{}

TextBoxElement::~TextBoxElement() = default;

QString TextBoxElement::GetText() const
{
    return GetValue(AttributeName::Text).toString();
}

void TextBoxElement::SetText(const QString& text)
{
    SetAttributeValue(AttributeName::Text, text, QMetaType::QString);
}

void TextBoxElement::SetText(Binding* binding)
{
    SetBinding(AttributeName::Text, binding);
}

void TextBoxElement::TargetTextChanged(const QString& /*text*/)
{
    UpdateSourceValue(AttributeName::Text);
}

QWidget* TextBoxElement::CreateWidgetOverride(QWidget* parent)
{
    auto* box = new TextBox(parent);
    connect(box, &TextBox::TextEdited, this, &TextBoxElement::TargetTextChanged);
    return box;
}

void TextBoxElement::UpdateWidgetOverride(const QString& attribute)
{
    auto* box = qobject_cast<TextBox*>(GetWidget());
    if (box && attribute == AttributeName::Text) {
        // Text the box shows already is left alone, so typing keeps its cursor.
        const QString text = GetText();
        if (box->GetText() != text)
            box->SetText(text);
        return;
    }
    PropertyEditorElement::UpdateWidgetOverride(attribute);
}

QVariant TextBoxElement::GetWidgetValueOverride(const QString& attribute) const
{
    auto* box = qobject_cast<TextBox*>(GetWidget());
    if (box && attribute == AttributeName::Text)
        return box->GetText();
    return PropertyEditorElement::GetWidgetValueOverride(attribute);
}

} // namespace Kavrel::UICore
