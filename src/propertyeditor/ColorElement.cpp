#include <KvUICore/propertyeditor/ColorElement.h>

#include <KvUICore/propertyeditor/Binding.h>
#include <KvUICore/propertyeditor/PropertyEditorElementImp.h>
#include <KvUICore/widgets/ColorMath_p.h>
#include <KvUICore/widgets/ColorSwatch.h>

namespace Kavrel::UICore {

const QString ColorElement::ColorAttribute = QStringLiteral("Color");
const QString ColorElement::AlphaEnabledAttribute = QStringLiteral("IsAlphaEnabled");

namespace {

class ColorElementImp : public PropertyEditorElementImp
{
public:
    ColorElementImp()
        : PropertyEditorElementImp(PropertyEditorElement::Leaf)
    {}

    void LoadAttributes(XmlFiler& filer) override
    {
        // Hex colours are read here, so that "#rrggbbaa" means alpha last, as
        // the picker writes it; anything else (a binding) goes the usual way.
        const QString text = filer.ReadString(ColorElement::ColorAttribute);
        QColor color;
        if (Internal::ParseHexColor(text, &color))
            mpOwner->SetBinding(ColorElement::ColorAttribute, new Binding(QVariant(color), QMetaType::QColor));
        else
            BindAttributeText(ColorElement::ColorAttribute, text, QMetaType::QColor);
        BindAttributeText(ColorElement::AlphaEnabledAttribute,
                          filer.ReadString(ColorElement::AlphaEnabledAttribute, QStringLiteral("False")),
                          QMetaType::Bool);
    }
};

} // namespace

ColorElement::ColorElement(QObject* parent)
    : PropertyEditorElement(std::make_unique<ColorElementImp>(), parent)
{}

ColorElement::~ColorElement() = default;

QColor ColorElement::GetColor() const
{
    const QVariant value = GetValue(ColorAttribute);
    if (value.metaType().id() == QMetaType::QColor)
        return value.value<QColor>();
    QColor color;
    if (value.metaType().id() == QMetaType::QString && Internal::ParseHexColor(value.toString(), &color))
        return color;
    return QColor();
}

void ColorElement::SetColor(const QColor& color)
{
    SetAttributeValue(ColorAttribute, color, QMetaType::QColor);
}

void ColorElement::SetColor(Binding* binding)
{
    SetBinding(ColorAttribute, binding);
}

bool ColorElement::IsAlphaEnabled() const
{
    return GetValue(AlphaEnabledAttribute).toBool();
}

void ColorElement::SetAlphaEnabled(bool enabled)
{
    SetAttributeValue(AlphaEnabledAttribute, enabled, QMetaType::Bool);
}

void ColorElement::SetAlphaEnabled(Binding* binding)
{
    SetBinding(AlphaEnabledAttribute, binding);
}

void ColorElement::TargetColorChanged(const QColor&)
{
    UpdateSourceValue(ColorAttribute);
}

QWidget* ColorElement::CreateWidgetOverride(QWidget* parent)
{
    auto* swatch = new ColorSwatch(parent);
    connect(swatch, &ColorSwatch::ColorChanged, this, &ColorElement::TargetColorChanged);
    return swatch;
}

void ColorElement::UpdateWidgetOverride(const QString& attribute)
{
    auto* swatch = qobject_cast<ColorSwatch*>(GetWidget());
    if (swatch && attribute == ColorAttribute) {
        const QColor color = GetColor();
        if (swatch->GetColor() != color)
            swatch->SetColor(color);
        return;
    }
    if (swatch && attribute == AlphaEnabledAttribute) {
        swatch->SetAlphaEnabled(IsAlphaEnabled());
        return;
    }
    PropertyEditorElement::UpdateWidgetOverride(attribute);
}

QVariant ColorElement::GetWidgetValueOverride(const QString& attribute) const
{
    if (auto* swatch = qobject_cast<ColorSwatch*>(GetWidget())) {
        if (attribute == ColorAttribute)
            return swatch->GetColor();
        if (attribute == AlphaEnabledAttribute)
            return swatch->IsAlphaEnabled();
    }
    return PropertyEditorElement::GetWidgetValueOverride(attribute);
}

int ColorElement::GetUpdateOrder(const QString& attribute) const
{
    if (attribute == AlphaEnabledAttribute)
        return -1;
    return PropertyEditorElement::GetUpdateOrder(attribute);
}

} // namespace Kavrel::UICore
