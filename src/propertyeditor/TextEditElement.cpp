#include <KvUICore/propertyeditor/TextEditElement.h>

#include <KvUICore/propertyeditor/Binding.h>
#include <KvUICore/propertyeditor/PropertyEditorElementImp.h>
#include <KvUICore/widgets/TextEdit.h>

namespace Kavrel::UICore {

namespace {

class TextEditElementImp : public PropertyEditorElementImp
{
public:
    TextEditElementImp()
        : PropertyEditorElementImp(PropertyEditorElement::Leaf)
    {}

    void LoadAttributes(XmlFiler& filer) override
    {
        BindAttributeText(AttributeName::Text, filer.ReadString(AttributeName::Text), QMetaType::QString);
    }
};

} // namespace

TextEditElement::TextEditElement(QObject* parent)
    : PropertyEditorElement(std::make_unique<TextEditElementImp>(), parent)
{}

TextEditElement::~TextEditElement() = default;

QString TextEditElement::GetText() const
{
    return GetValue(AttributeName::Text).toString();
}

void TextEditElement::SetText(const QString& text)
{
    SetAttributeValue(AttributeName::Text, text, QMetaType::QString);
}

void TextEditElement::SetText(Binding* binding)
{
    SetBinding(AttributeName::Text, binding);
}

void TextEditElement::TargetTextCommitted(const QString& /*text*/)
{
    UpdateSourceValue(AttributeName::Text);
}

QWidget* TextEditElement::CreateWidgetOverride(QWidget* parent)
{
    auto* edit = new TextEdit(parent);
    connect(edit, &TextEdit::TextCommitted, this, &TextEditElement::TargetTextCommitted);
    return edit;
}

void TextEditElement::UpdateWidgetOverride(const QString& attribute)
{
    auto* edit = qobject_cast<TextEdit*>(GetWidget());
    if (edit && attribute == AttributeName::Text) {
        // A text the editor holds already is left alone, so the caret stays.
        const QString text = GetText();
        if (edit->GetText() != text)
            edit->SetText(text);
        return;
    }
    PropertyEditorElement::UpdateWidgetOverride(attribute);
}

QVariant TextEditElement::GetWidgetValueOverride(const QString& attribute) const
{
    auto* edit = qobject_cast<TextEdit*>(GetWidget());
    if (edit && attribute == AttributeName::Text)
        return edit->GetText();
    return PropertyEditorElement::GetWidgetValueOverride(attribute);
}

} // namespace Kavrel::UICore
