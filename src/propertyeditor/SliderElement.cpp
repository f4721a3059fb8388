#include <KvUICore/propertyeditor/SliderElement.h>

#include <KvUICore/propertyeditor/Binding.h>
#include <KvUICore/propertyeditor/PropertyEditorElementImp.h>
#include <KvUICore/widgets/Slider.h>

#include <cmath>

namespace Kavrel::UICore {

namespace {

class SliderElementImp : public PropertyEditorElementImp
{
public:
    SliderElementImp()
        : PropertyEditorElementImp(PropertyEditorElement::Leaf)
    {}

    void LoadAttributes(XmlFiler& filer) override
    {
        BindAttributeText(AttributeName::Minimum, filer.ReadString(AttributeName::Minimum), QMetaType::Double);
        BindAttributeText(AttributeName::Maximum, filer.ReadString(AttributeName::Maximum), QMetaType::Double);
        BindAttributeText(AttributeName::Number, filer.ReadString(AttributeName::Number), QMetaType::Double);
    }
};

// A double attribute's value, or the fallback while it has none.
double DoubleOr(const QVariant& value, double fallback)
{
    bool ok = false;
    const double number = value.toDouble(&ok);
    return ok && std::isfinite(number) ? number : fallback;
}

} // namespace

SliderElement::SliderElement(QObject* parent)
    : PropertyEditorElement(std::make_unique<SliderElementImp>(), parent)
{}

SliderElement::~SliderElement() = default;

double SliderElement::GetMinimum() const
{
    return DoubleOr(GetValue(AttributeName::Minimum), 0.0);
}

double SliderElement::GetMaximum() const
{
    return DoubleOr(GetValue(AttributeName::Maximum), 100.0);
}

double SliderElement::GetValue() const
{
    return DoubleOr(GetValue(AttributeName::Number), 0.0);
}

void SliderElement::SetMinimum(double minimum)
{
    SetAttributeValue(AttributeName::Minimum, minimum, QMetaType::Double);
}

void SliderElement::SetMinimum(Binding* binding)
{
    SetBinding(AttributeName::Minimum, binding);
}

void SliderElement::SetMaximum(double maximum)
{
    SetAttributeValue(AttributeName::Maximum, maximum, QMetaType::Double);
}

void SliderElement::SetMaximum(Binding* binding)
{
    SetBinding(AttributeName::Maximum, binding);
}

void SliderElement::SetValue(double value)
{
    SetAttributeValue(AttributeName::Number, value, QMetaType::Double);
}

void SliderElement::SetValue(Binding* binding)
{
    SetBinding(AttributeName::Number, binding);
}

void SliderElement::SetPrecision(Binding* binding)
{
    SetBinding(AttributeName::Precision, binding);
}

void SliderElement::TargetNumberChanged(double /*value*/)
{
    UpdateSourceValue(AttributeName::Number);
}

QWidget* SliderElement::CreateWidgetOverride(QWidget* parent)
{
    auto* slider = new Slider(parent);
    connect(slider, &Slider::ValueChanged, this, &SliderElement::TargetNumberChanged);
    return slider;
}

void SliderElement::UpdateWidgetOverride(const QString& attribute)
{
    auto* slider = qobject_cast<Slider*>(GetWidget());
    if (!slider) {
        PropertyEditorElement::UpdateWidgetOverride(attribute);
        return;
    }
    if (attribute == AttributeName::Minimum || attribute == AttributeName::Maximum) {
        const double minimum = GetMinimum();
        const double maximum = qMax(minimum, GetMaximum());
        if (slider->GetMinimum() != minimum || slider->GetMaximum() != maximum)
            slider->SetRange(minimum, maximum);
    } else if (attribute == AttributeName::Number) {
        const double value = GetValue();
        if (slider->WidgetUnits::GetValue() != value)
            slider->WidgetUnits::SetValue(value);
    } else if (attribute == AttributeName::Precision) {
        // Without a value the slider keeps the precision it has.
        bool ok = false;
        const int precision = GetValue(AttributeName::Precision).toInt(&ok);
        if (ok && precision >= 0 && precision != slider->GetDecimalPrecision())
            slider->SetDecimalPrecision(precision);
    } else {
        PropertyEditorElement::UpdateWidgetOverride(attribute);
    }
}

QVariant SliderElement::GetWidgetValueOverride(const QString& attribute) const
{
    if (auto* slider = qobject_cast<Slider*>(GetWidget())) {
        if (attribute == AttributeName::Number)
            return slider->WidgetUnits::GetValue();
        if (attribute == AttributeName::Minimum)
            return slider->GetMinimum();
        if (attribute == AttributeName::Maximum)
            return slider->GetMaximum();
        if (attribute == AttributeName::Precision)
            return slider->GetDecimalPrecision();
    }
    return PropertyEditorElement::GetWidgetValueOverride(attribute);
}

} // namespace Kavrel::UICore
