// Qt Designer sees every control through one small description each; the
// starting properties in the dropped XML are the ones a host changes first.
// String lists start untranslated: uic then sets them in setupUi, in order,
// before the properties that depend on them (a drop-down's current index),
// instead of later in retranslateUi.
#include "KvUICoreDesignerPlugin.h"

#include <KvUICore/widgets/BreadcrumbBar.h>
#include <KvUICore/widgets/CheckBox.h>
#include <KvUICore/widgets/ColorPicker.h>
#include <KvUICore/widgets/ColorSwatch.h>
#include <KvUICore/widgets/ColorWheel.h>
#include <KvUICore/widgets/Divider.h>
#include <KvUICore/widgets/DoubleSpinBox.h>
#include <KvUICore/widgets/DropDown.h>
#include <KvUICore/widgets/DropDownTree.h>
#include <KvUICore/widgets/GradientSwatch.h>
#include <KvUICore/widgets/ImageLabel.h>
#include <KvUICore/widgets/ImageSwatch.h>
#include <KvUICore/widgets/Label.h>
#include <KvUICore/widgets/LineEdit.h>
#include <KvUICore/widgets/LinkMessage.h>
#include <KvUICore/widgets/MessageFacility.h>
#include <KvUICore/widgets/NumericField.h>
#include <KvUICore/widgets/ProgressBar.h>
#include <KvUICore/widgets/ProgressMeter.h>
#include <KvUICore/widgets/PushButton.h>
#include <KvUICore/widgets/RadioButton.h>
#include <KvUICore/widgets/RolloutContainer.h>
#include <KvUICore/widgets/SearchBox.h>
#include <KvUICore/widgets/Slider.h>
#include <KvUICore/widgets/TextBox.h>
#include <KvUICore/widgets/TextEdit.h>
#include <KvUICore/widgets/TextLabel.h>
#include <KvUICore/widgets/TextureSwatch.h>
#include <KvUICore/widgets/ToolButton.h>

namespace Kavrel::UICore::Designer {

namespace {

template <typename Control> QWidget* Create(QWidget* parent)
{
    return new Control(parent);
}

// The XML of a dropped control: its object name and size, then its starting properties.
#define KV_DOM(cls, object, width, height, properties)                                                                 \
    "<ui language=\"c++\" displayname=\"" cls "\"><widget class=\"Kavrel::UICore::" cls "\" name=\"" object "\">"      \
    "<property name=\"geometry\"><rect><x>0</x><y>0</y><width>" #width "</width><height>" #height                      \
    "</height></rect></property>" properties "</widget></ui>"
#define KV_STRING(name, value) "<property name=\"" name "\"><string>" value "</string></property>"
#define KV_OWN_STRING(name, value) "<property name=\"" name "\" stdset=\"0\"><string>" value "</string></property>"

const ControlDescription kControls[] = {
    {"Kavrel::UICore::Label", "<KvUICore/widgets/Label.h>", "ReadOnly.svg",
     "A single-line label that cuts long text and shows it whole as a tool tip",
     KV_DOM("Label", "label", 100, 20, KV_OWN_STRING("text", "Label")), false, &Create<Label>},
    {"Kavrel::UICore::TextLabel", "<KvUICore/widgets/TextLabel.h>", "Legacy.svg",
     "A static text: captions, headers and wrapped notes in a theme colour",
     KV_DOM("TextLabel", "textLabel", 120, 20, KV_OWN_STRING("text", "Text")), false, &Create<TextLabel>},
    {"Kavrel::UICore::LinkMessage", "<KvUICore/widgets/LinkMessage.h>", "Link.svg",
     "A message with links written as [text](target)",
     KV_DOM("LinkMessage", "linkMessage", 200, 20, KV_OWN_STRING("message", "See [the details](details)")), false,
     &Create<LinkMessage>},
    {"Kavrel::UICore::ImageLabel", "<KvUICore/widgets/ImageLabel.h>", "Image16.svg",
     "An image from the theme that follows theme switches",
     KV_DOM("ImageLabel", "imageLabel", 16, 16, KV_OWN_STRING("imageThemeKey", "AlertIcon")), false,
     &Create<ImageLabel>},
    {"Kavrel::UICore::PushButton", "<KvUICore/widgets/PushButton.h>", "Add_Idle.svg",
     "A push button painted from the theme", KV_DOM("PushButton", "pushButton", 90, 24, KV_STRING("text", "Button")),
     false, &Create<PushButton>},
    {"Kavrel::UICore::ToolButton", "<KvUICore/widgets/ToolButton.h>", "ToolbarExtension.svg",
     "A small flat tool button with an icon from the theme", KV_DOM("ToolButton", "toolButton", 28, 24, ""), false,
     &Create<ToolButton>},
    {"Kavrel::UICore::CheckBox", "<KvUICore/widgets/CheckBox.h>", "CheckMark.svg", "A themed check box",
     KV_DOM("CheckBox", "checkBox", 120, 20, KV_STRING("text", "Check box")), false, &Create<CheckBox>},
    {"Kavrel::UICore::RadioButton", "<KvUICore/widgets/RadioButton.h>", "MiniButtonToggleOn.svg",
     "A themed radio button", KV_DOM("RadioButton", "radioButton", 120, 20, KV_STRING("text", "Option")), false,
     &Create<RadioButton>},
    {"Kavrel::UICore::DropDown", "<KvUICore/widgets/DropDown.h>", "Expand.svg",
     "A drop-down button choosing one of its items; edit them in the items property",
     KV_DOM("DropDown", "dropDown", 120, 24,
            "<property name=\"items\" stdset=\"0\"><stringlist notr=\"true\"><string>First</string><string>Second</string>"
            "</stringlist></property>"),
     false, &Create<DropDown>},
    {"Kavrel::UICore::DropDownTree", "<KvUICore/widgets/DropDownTree.h>", "TreeCategory.svg",
     "A drop-down choosing an item of a tree, with a search field",
     KV_DOM("DropDownTree", "dropDownTree", 160, 24, KV_OWN_STRING("prompt", "Choose")), false, &Create<DropDownTree>},
    {"Kavrel::UICore::Slider", "<KvUICore/widgets/Slider.h>", "Linear16.svg", "A slider with a numeric field, in units",
     KV_DOM("Slider", "slider", 200, 24, ""), false, &Create<Slider>},
    {"Kavrel::UICore::DoubleSpinBox", "<KvUICore/widgets/DoubleSpinBox.h>", "Exchange.svg",
     "A spin box for numbers in units", KV_DOM("DoubleSpinBox", "doubleSpinBox", 90, 24, ""), false,
     &Create<DoubleSpinBox>},
    {"Kavrel::UICore::NumericField", "<KvUICore/widgets/NumericField.h>", "Edit_Idle.svg",
     "A field for a number, as used by the slider and spin box", KV_DOM("NumericField", "numericField", 80, 24, ""),
     false, &Create<NumericField>},
    {"Kavrel::UICore::LineEdit", "<KvUICore/widgets/LineEdit.h>", "Edit_Idle.svg", "A themed single-line text field",
     KV_DOM("LineEdit", "lineEdit", 140, 24, ""), false, &Create<LineEdit>},
    {"Kavrel::UICore::TextBox", "<KvUICore/widgets/TextBox.h>", "EditMaterial.svg",
     "A text field with an optional icon, validation and a read-only mode", KV_DOM("TextBox", "textBox", 160, 24, ""),
     false, &Create<TextBox>},
    {"Kavrel::UICore::TextEdit", "<KvUICore/widgets/TextEdit.h>", "EditMaterialOpen.svg",
     "A multi-line text field with a prompt and a length limit", KV_DOM("TextEdit", "textEdit", 200, 80, ""), false,
     &Create<TextEdit>},
    {"Kavrel::UICore::SearchBox", "<KvUICore/widgets/SearchBox.h>", "Search.svg", "A search field with recent searches",
     KV_DOM("SearchBox", "searchBox", 180, 24, KV_OWN_STRING("prompt", "Search")), false, &Create<SearchBox>},
    {"Kavrel::UICore::BreadcrumbBar", "<KvUICore/widgets/BreadcrumbBar.h>", "TreeHome.svg",
     "A path of levels, each opening a menu of its siblings",
     KV_DOM("BreadcrumbBar", "breadcrumbBar", 240, 24,
            "<property name=\"path\" stdset=\"0\"><stringlist notr=\"true\"><string>Home</string><string>Folder</string>"
            "</stringlist></property>"),
     false, &Create<BreadcrumbBar>},
    {"Kavrel::UICore::RolloutContainer", "<KvUICore/widgets/RolloutContainer.h>", "Collapse.svg",
     "A collapsible group with a title bar; drop controls into it",
     KV_DOM("RolloutContainer", "rolloutContainer", 240, 120, KV_OWN_STRING("title", "Group")), true,
     &Create<RolloutContainer>},
    {"Kavrel::UICore::Divider", "<KvUICore/widgets/Divider.h>", "Dotted16.svg",
     "A thin line between groups of controls", KV_DOM("Divider", "divider", 160, 1, ""), false, &Create<Divider>},
    {"Kavrel::UICore::ProgressBar", "<KvUICore/widgets/ProgressBar.h>", "Progress10.svg", "A themed progress bar",
     KV_DOM("ProgressBar", "progressBar", 160, 16, ""), false, &Create<ProgressBar>},
    {"Kavrel::UICore::ProgressMeter", "<KvUICore/widgets/ProgressMeter.h>", "Rendering_01.svg",
     "A small busy indicator with an optional text",
     KV_DOM("ProgressMeter", "progressMeter", 120, 16, KV_OWN_STRING("text", "Working")), false,
     &Create<ProgressMeter>},
    {"Kavrel::UICore::MessageFacility", "<KvUICore/widgets/MessageFacility.h>", "Warning.svg",
     "A stack of information, warning and error messages", KV_DOM("MessageFacility", "messageFacility", 300, 40, ""),
     false, &Create<MessageFacility>},
    {"Kavrel::UICore::ColorWheel", "<KvUICore/widgets/ColorWheel.h>", "HueWheel.svg",
     "A hue ring around a saturation and value square", KV_DOM("ColorWheel", "colorWheel", 160, 160, ""), false,
     &Create<ColorWheel>},
    {"Kavrel::UICore::ColorPicker", "<KvUICore/widgets/ColorPicker.h>", "Picker.svg",
     "A colour wheel with fields for red, green, blue, hue, saturation, value and alpha",
     KV_DOM("ColorPicker", "colorPicker", 420, 260, ""), false, &Create<ColorPicker>},
    {"Kavrel::UICore::ColorSwatch", "<KvUICore/widgets/ColorSwatch.h>", "ColorBook.svg",
     "A colour chip that opens a colour picker", KV_DOM("ColorSwatch", "colorSwatch", 40, 24, ""), false,
     &Create<ColorSwatch>},
    {"Kavrel::UICore::GradientSwatch", "<KvUICore/widgets/GradientSwatch.h>", "Gradient16.svg",
     "A gradient bar with stops to add, move, recolour and remove",
     KV_DOM("GradientSwatch", "gradientSwatch", 240, 40, ""), false, &Create<GradientSwatch>},
    {"Kavrel::UICore::ImageSwatch", "<KvUICore/widgets/ImageSwatch.h>", "Camera16.svg",
     "A thumbnail of an image file, chosen by click or drop", KV_DOM("ImageSwatch", "imageSwatch", 64, 64, ""), false,
     &Create<ImageSwatch>},
    {"Kavrel::UICore::TextureSwatch", "<KvUICore/widgets/TextureSwatch.h>", "Tiles16.svg",
     "An image swatch that shows its image tiled", KV_DOM("TextureSwatch", "textureSwatch", 64, 64, ""), false,
     &Create<TextureSwatch>},
};

#undef KV_DOM
#undef KV_STRING
#undef KV_OWN_STRING

} // namespace

ControlInterface::ControlInterface(const ControlDescription& description)
    : mDescription(description)
{}

QString ControlInterface::name() const
{
    return QString::fromLatin1(mDescription.className);
}

QString ControlInterface::group() const
{
    return QStringLiteral("KvUICore");
}

QString ControlInterface::toolTip() const
{
    return QString::fromUtf8(mDescription.toolTip);
}

QString ControlInterface::whatsThis() const
{
    return toolTip();
}

QString ControlInterface::includeFile() const
{
    return QString::fromLatin1(mDescription.header);
}

QIcon ControlInterface::icon() const
{
    return QIcon(QStringLiteral(":/icons/") + QString::fromLatin1(mDescription.iconFile));
}

bool ControlInterface::isContainer() const
{
    return mDescription.container;
}

QWidget* ControlInterface::createWidget(QWidget* parent)
{
    return mDescription.create(parent);
}

bool ControlInterface::isInitialized() const
{
    return mbInitialized;
}

void ControlInterface::initialize(QDesignerFormEditorInterface*)
{
    mbInitialized = true;
}

QString ControlInterface::domXml() const
{
    return QString::fromUtf8(mDescription.domXml);
}

ControlCollection::ControlCollection(QObject* parent)
    : QObject(parent)
{
    for (const ControlDescription& description : kControls)
        mControls.append(new ControlInterface(description));
}

ControlCollection::~ControlCollection()
{
    qDeleteAll(mControls);
}

QList<QDesignerCustomWidgetInterface*> ControlCollection::customWidgets() const
{
    return mControls;
}

} // namespace Kavrel::UICore::Designer
