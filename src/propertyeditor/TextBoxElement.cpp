#include <KvUICore/propertyeditor/TextBoxElement.h>

#include <KvUICore/propertyeditor/Binding.h>
#include <KvUICore/propertyeditor/TextElement_p.h>
#include <KvUICore/widgets/TextBox.h>

namespace Kavrel::UICore {

namespace {
using BoxText = Internal::TextWidget<TextBox, &TextBox::GetText, &TextBox::SetText>;
} // namespace

TextBoxElement::TextBoxElement(QObject* parent)
    : PropertyEditorElement(std::make_unique<Internal::TextElementImp>(), parent)
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
    if (!BoxText::Update(*this, attribute))
        PropertyEditorElement::UpdateWidgetOverride(attribute);
}

QVariant TextBoxElement::GetWidgetValueOverride(const QString& attribute) const
{
    const QVariant value = BoxText::Value(*this, attribute);
    return value.isValid() ? value : PropertyEditorElement::GetWidgetValueOverride(attribute);
}

} // namespace Kavrel::UICore
