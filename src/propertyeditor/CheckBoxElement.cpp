#include <KvUICore/propertyeditor/CheckBoxElement.h>

#include <KvUICore/propertyeditor/Binding.h>
#include <KvUICore/propertyeditor/PropertyEditorElementImp.h>
#include <KvUICore/widgets/CheckBox.h>

namespace Kavrel::UICore {

namespace {

class CheckBoxElementImp : public PropertyEditorElementImp
{
public:
    CheckBoxElementImp()
        : PropertyEditorElementImp(PropertyEditorElement::Leaf)
    {}

    void LoadAttributes(XmlFiler& filer) override
    {
        BindAttributeText(AttributeName::IsChecked, filer.ReadString(AttributeName::IsChecked, QStringLiteral("False")),
                          QMetaType::Bool);
    }
};

} // namespace

CheckBoxElement::CheckBoxElement(QObject* parent)
    : PropertyEditorElement(std::make_unique<CheckBoxElementImp>(), parent)
{}

CheckBoxElement::~CheckBoxElement() = default;

bool CheckBoxElement::IsChecked() const
{
    const QVariant value = GetValue(AttributeName::IsChecked);
    return value.isValid() && value.toBool();
}

void CheckBoxElement::SetCheck(bool checked)
{
    SetAttributeValue(AttributeName::IsChecked, checked, QMetaType::Bool);
}

void CheckBoxElement::SetCheck(Binding* binding)
{
    SetBinding(AttributeName::IsChecked, binding);
}

void CheckBoxElement::TargetCheckStateChanged(int /*state*/)
{
    UpdateSourceValue(AttributeName::IsChecked);
}

void CheckBoxElement::TargetToolTipChanged()
{
    if (IsUpdatingWidget())
        return;
    // The check box drops its own tool tip when its text fits again; the
    // element's tool tip then shows once more.
    auto* box = qobject_cast<CheckBox*>(GetWidget());
    const QString tooltip = GetTooltip();
    if (box && box->toolTip().isEmpty() && !tooltip.isEmpty())
        UpdateWidget(AttributeName::Tooltip);
}

QWidget* CheckBoxElement::CreateWidgetOverride(QWidget* parent)
{
    auto* box = new CheckBox(GetLabel(), parent);
    box->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    connect(box, &QCheckBox::stateChanged, this, &CheckBoxElement::TargetCheckStateChanged);
    connect(box, &CheckBox::ToolTipChanged, this, &CheckBoxElement::TargetToolTipChanged);
    return box;
}

void CheckBoxElement::UpdateWidgetOverride(const QString& attribute)
{
    auto* box = qobject_cast<CheckBox*>(GetWidget());
    if (!box) {
        PropertyEditorElement::UpdateWidgetOverride(attribute);
        return;
    }
    if (attribute == AttributeName::Label) {
        if (box->text() != GetLabel())
            box->setText(GetLabel());
    } else if (attribute == AttributeName::IsChecked) {
        if (box->isChecked() != IsChecked())
            box->setChecked(IsChecked());
    } else {
        PropertyEditorElement::UpdateWidgetOverride(attribute);
    }
}

QVariant CheckBoxElement::GetWidgetValueOverride(const QString& attribute) const
{
    if (auto* box = qobject_cast<CheckBox*>(GetWidget())) {
        if (attribute == AttributeName::IsChecked)
            return box->isChecked();
        if (attribute == AttributeName::Label)
            return box->text();
    }
    return PropertyEditorElement::GetWidgetValueOverride(attribute);
}

} // namespace Kavrel::UICore
