#include <KvUICore/propertyeditor/LabelElement.h>

#include <KvUICore/propertyeditor/Binding.h>
#include <KvUICore/propertyeditor/TextElement_p.h>
#include <KvUICore/widgets/Label.h>

namespace Kavrel::UICore {

namespace {
using LabelText = Internal::TextWidget<QLabel, &QLabel::text, &QLabel::setText>;
} // namespace

LabelElement::LabelElement(QObject* parent)
    : PropertyEditorElement(std::make_unique<Internal::TextElementImp>(), parent)
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
    if (!LabelText::Update(*this, attribute))
        PropertyEditorElement::UpdateWidgetOverride(attribute);
}

QVariant LabelElement::GetWidgetValueOverride(const QString& attribute) const
{
    const QVariant value = LabelText::Value(*this, attribute);
    return value.isValid() ? value : PropertyEditorElement::GetWidgetValueOverride(attribute);
}

} // namespace Kavrel::UICore
