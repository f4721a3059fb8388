#include <KvUICore/propertyeditor/ButtonElement.h>

#include <KvUICore/propertyeditor/Binding.h>
#include <KvUICore/propertyeditor/PropertyEditorElementImp.h>
#include <KvUICore/theme/ThemeManager.h>
#include <KvUICore/widgets/PushButton.h>

#include <QFileInfo>
#include <QIcon>

namespace Kavrel::UICore {

class ButtonElementImp : public PropertyEditorElementImp
{
public:
    ButtonElementImp()
        : PropertyEditorElementImp(PropertyEditorElement::Leaf)
    {}

    void LoadAttributes(XmlFiler& filer) override
    {
        BindAttributeText(AttributeName::IsCheckable,
                          filer.ReadString(AttributeName::IsCheckable, QStringLiteral("False")), QMetaType::Bool);
        BindAttributeText(AttributeName::IsChecked, filer.ReadString(AttributeName::IsChecked, QStringLiteral("True")),
                          QMetaType::Bool);
        msImage = filer.ReadString(QStringLiteral("Image"));
        msCheckedImage = filer.ReadString(QStringLiteral("CheckedImage"));
        ApplyIcon();
    }

    // A file or resource path, else a theme key that holds one.
    static QString ResolveImage(const QString& image)
    {
        if (image.isEmpty() || QFileInfo::exists(image))
            return image;
        ThemeManager* themes = ThemeManager::GetInstance();
        if (themes->Exists(image)) {
            const QString path = themes->GetString(image);
            if (!path.isEmpty())
                return path;
        }
        return image;
    }

    void ApplyIcon()
    {
        auto* button = qobject_cast<PushButton*>(mpWidget);
        if (!button)
            return;
        QIcon icon;
        const QString image = ResolveImage(msImage);
        const QString checkedImage = ResolveImage(msCheckedImage);
        if (!image.isEmpty())
            icon.addFile(image, QSize(), QIcon::Normal, QIcon::Off);
        if (!checkedImage.isEmpty())
            icon.addFile(checkedImage, QSize(), QIcon::Normal, QIcon::On);
        button->setIcon(icon);
    }

    QString msImage;
    QString msCheckedImage;
};

namespace {

ButtonElementImp* ImpOf(const ButtonElement* element)
{
    return static_cast<ButtonElementImp*>(element->GetImp());
}

} // namespace

ButtonElement::ButtonElement(QObject* parent)
    : PropertyEditorElement(std::make_unique<ButtonElementImp>(), parent)
{}

ButtonElement::~ButtonElement() = default;

bool ButtonElement::IsCheckable() const
{
    const QVariant value = GetValue(AttributeName::IsCheckable);
    return value.isValid() && value.toBool();
}

bool ButtonElement::IsChecked() const
{
    const QVariant value = GetValue(AttributeName::IsChecked);
    return !value.isValid() || value.toBool();
}

void ButtonElement::SetCheckable(bool checkable)
{
    SetAttributeValue(AttributeName::IsCheckable, checkable, QMetaType::Bool);
}

void ButtonElement::SetCheck(bool checked)
{
    SetAttributeValue(AttributeName::IsChecked, checked, QMetaType::Bool);
}

void ButtonElement::SetCheck(Binding* binding)
{
    SetBinding(AttributeName::IsChecked, binding);
}

void ButtonElement::SetImage(const QString& image)
{
    ImpOf(this)->msImage = image;
    ImpOf(this)->ApplyIcon();
}

void ButtonElement::SetCheckedImage(const QString& image)
{
    ImpOf(this)->msCheckedImage = image;
    ImpOf(this)->ApplyIcon();
}

QString ButtonElement::GetImage() const
{
    return ImpOf(this)->msImage;
}

QString ButtonElement::GetCheckedImage() const
{
    return ImpOf(this)->msCheckedImage;
}

void ButtonElement::TargetButtonClicked()
{
    if (IsCheckable()) {
        // A handler of the write-back may delete the editor and this element.
        const QPointer<ButtonElement> self(this);
        UpdateSourceValue(AttributeName::IsChecked);
        if (!self)
            return;
    }
    emit ButtonClicked();
}

QWidget* ButtonElement::CreateWidgetOverride(QWidget* parent)
{
    auto* button = new PushButton(parent);
    button->setText(GetLabel());
    button->setFocusPolicy(Qt::StrongFocus);
    button->SetCheckable(IsCheckable());
    if (IsCheckable())
        button->setChecked(IsChecked());
    connect(button, &QAbstractButton::clicked, this, &ButtonElement::TargetButtonClicked);
    GetImp()->mpWidget = button;
    ImpOf(this)->ApplyIcon();
    return button;
}

void ButtonElement::UpdateWidgetOverride(const QString& attribute)
{
    auto* button = qobject_cast<PushButton*>(GetWidget());
    if (!button) {
        PropertyEditorElement::UpdateWidgetOverride(attribute);
        return;
    }
    if (attribute == AttributeName::Label) {
        button->setText(GetLabel());
    } else if (attribute == AttributeName::IsCheckable) {
        button->SetCheckable(IsCheckable());
        if (IsCheckable() && button->isChecked() != IsChecked())
            button->setChecked(IsChecked());
    } else if (attribute == AttributeName::IsChecked) {
        if (button->isCheckable() && button->isChecked() != IsChecked())
            button->setChecked(IsChecked());
    } else {
        PropertyEditorElement::UpdateWidgetOverride(attribute);
    }
}

QVariant ButtonElement::GetWidgetValueOverride(const QString& attribute) const
{
    auto* button = qobject_cast<PushButton*>(GetWidget());
    if (button) {
        if (attribute == AttributeName::IsChecked)
            return button->isChecked();
        if (attribute == AttributeName::IsCheckable)
            return button->isCheckable();
        if (attribute == AttributeName::Label)
            return button->text();
    }
    return PropertyEditorElement::GetWidgetValueOverride(attribute);
}

} // namespace Kavrel::UICore
