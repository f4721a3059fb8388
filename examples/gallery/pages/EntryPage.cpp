// Text boxes with every icon position, validation and prompting texts;
// drop-downs with groups, icons, sub-menus and both alignments; nested rollout
// containers, one of them checkable.
#include "GalleryPage.h"

#include <KvUICore/theme/ThemeFileKey.h>
#include <KvUICore/theme/ThemeManager.h>
#include <KvUICore/widgets/DropDown.h>
#include <KvUICore/widgets/Label.h>
#include <KvUICore/widgets/LineEdit.h>
#include <KvUICore/widgets/RolloutContainer.h>
#include <KvUICore/widgets/TextBox.h>

#include <QAction>
#include <QCoreApplication>
#include <QFormLayout>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QScrollArea>
#include <QVBoxLayout>

using namespace Kavrel::UICore;

namespace {

QString tr(const char* text)
{
    return QCoreApplication::translate("EntryPage", text);
}

// A themed icon read from the theme's image path, so it follows theme switches.
class ThemedIcon : public QObject
{
public:
    ThemedIcon(QObject* parent, const QString& key, std::function<void(const QIcon&)> apply)
        : QObject(parent)
        , msKey(key)
        , mApply(std::move(apply))
    {
        connect(ThemeManager::GetInstance(), &ThemeManager::ThemeChanged, this, [this] { Apply(); });
        Apply();
    }

private:
    void Apply()
    {
        const QString path = ThemeManager::GetInstance()->GetString(msKey);
        mApply(path.isEmpty() ? QIcon() : QIcon(path));
    }

    QString msKey;
    std::function<void(const QIcon&)> mApply;
};

QWidget* textBoxes(QWidget* parent)
{
    auto* page = new QWidget(parent);
    auto* form = new QFormLayout(page);
    form->setLabelAlignment(Qt::AlignLeft);

    auto* plain = new TextBox(page);
    plain->SetPrompt(tr("Type a name"));
    form->addRow(new Label(tr("No icon, prompting"), page), plain);

    auto* outerLeft = new TextBox(page);
    outerLeft->SetIconPosition(TextBox::OuterLeft);
    outerLeft->SetPrompt(tr("Search materials"));
    new ThemedIcon(outerLeft, ThemeFileKey::SearchIcon, [outerLeft](const QIcon& icon) {
        outerLeft->SetIcon(icon);
        outerLeft->SetIconPosition(TextBox::OuterLeft);
    });
    form->addRow(new Label(tr("Outer left"), page), outerLeft);

    auto* status = new Label(page);
    auto* outerRight = new TextBox(page);
    outerRight->SetText(QStringLiteral("C:/Projects/House/Textures/brick_wall_diffuse.png"));
    outerRight->SetElideMode(Qt::ElideMiddle);
    auto* browse = new QAction(tr("Browse"), outerRight);
    QObject::connect(browse, &QAction::triggered, status, [status] { status->setText(tr("Browse clicked")); });
    outerRight->SetImageAction(browse);
    outerRight->SetImageLabelTooltip(tr("Choose a file"));
    new ThemedIcon(outerRight, ThemeFileKey::EditorAddIdleIcon, [browse, outerRight](const QIcon& icon) {
        browse->setIcon(icon);
        outerRight->SetIconPosition(TextBox::OuterRight);
    });
    form->addRow(new Label(tr("Outer right, action"), page), outerRight);

    auto* innerLeft = new TextBox(page);
    innerLeft->SetText(tr("Oak, natural"));
    new ThemedIcon(innerLeft, ThemeFileKey::DownloadIcon, [innerLeft](const QIcon& icon) {
        innerLeft->SetIcon(icon);
        innerLeft->SetIconPosition(TextBox::InnerLeft);
    });
    form->addRow(new Label(tr("Inner left"), page), innerLeft);

    auto* innerRight = new TextBox(page);
    innerRight->SetPrompt(tr("Filter"));
    innerRight->SetText(tr("steel"));
    auto* clear = new QAction(tr("Clear"), innerRight);
    QObject::connect(clear, &QAction::triggered, innerRight, [innerRight] { innerRight->SetText(QString()); });
    innerRight->SetImageAction(clear);
    new ThemedIcon(innerRight, ThemeFileKey::ClearSearchIcon, [clear, innerRight](const QIcon& icon) {
        clear->setIcon(icon);
        innerRight->SetIconPosition(TextBox::InnerRight);
    });
    form->addRow(new Label(tr("Inner right, clears"), page), innerRight);

    auto* validated = new TextBox(page);
    validated->SetNeedValidate(true);
    validated->TextValidationInitialize(
        {tr("A name has at most 24 characters."), tr("A name cannot hold \\ / : * ? \" < > | ; = ` or ,")}, 24);
    validated->SetText(tr("Living room"));
    validated->SetPrompt(tr("Scene name"));
    form->addRow(new Label(tr("Validated name"), page), validated);

    auto* readOnly = new TextBox(page);
    readOnly->SetText(tr("Read only"));
    readOnly->SetReadOnly(true);
    form->addRow(new Label(tr("Read only"), page), readOnly);

    auto* disabled = new TextBox(page);
    disabled->SetText(tr("Disabled"));
    disabled->setEnabled(false);
    form->addRow(new Label(tr("Disabled"), page), disabled);

    auto* lineEdit = new LineEdit(page);
    lineEdit->SetPrompting(tr("A stand-alone line edit"));
    form->addRow(new Label(tr("Line edit, frameless"), page), lineEdit);

    form->addRow(new Label(page), status);
    for (TextBox* box : page->findChildren<TextBox*>())
        box->setMinimumWidth(180);
    return page;
}

QWidget* dropDowns(QWidget* parent)
{
    auto* page = new QWidget(parent);
    auto* form = new QFormLayout(page);
    auto* status = new Label(page);

    auto* units = new DropDown(page);
    units->AddItem(0, tr("Metric"));
    units->SetItemType(DropDown::GroupLabelItem, 0);
    units->AddItem(1, tr("Millimetres"), QStringLiteral("mm"));
    units->AddItem(1, tr("Centimetres"), QStringLiteral("cm"));
    units->AddItem(1, tr("Metres"), QStringLiteral("m"));
    units->AddItem(2, tr("Imperial"));
    units->SetItemType(DropDown::GroupLabelItem, 2);
    units->AddItem(3, tr("Inches"), QStringLiteral("in"));
    units->AddItem(3, tr("Feet and inches"), QStringLiteral("ftin"));
    units->SetCurrentIndex(units->FindData(QStringLiteral("cm")));
    QObject::connect(units, &DropDown::CurrentIndexChanged, status, [units, status](int index) {
        status->setText(tr("Unit: %1").arg(units->ItemData(index).toString()));
    });
    form->addRow(new Label(tr("Groups with labels"), page), units);

    auto* materials = new DropDown(page);
    const int wood = 0;
    materials->AddItem(wood, tr("Oak"));
    materials->AddItem(wood, tr("Walnut"));
    materials->AddItem(1, tr("Brushed steel"));
    materials->AddItem(1, tr("Copper"));
    materials->SetCurrentIndex(0);
    new ThemedIcon(materials, ThemeFileKey::EditMaterialIcon, [materials](const QIcon& icon) {
        materials->SetItemIcon(0, icon);
        materials->SetItemIcon(1, icon);
    });
    new ThemedIcon(materials, ThemeFileKey::ApplyMaterialIcon, [materials](const QIcon& icon) {
        materials->SetItemIcon(3, icon);
        materials->SetItemIcon(4, icon);
    });
    form->addRow(new Label(tr("Icons, right aligned"), page), materials);

    auto* export_ = new DropDown(page);
    export_->AddItem(0, tr("PNG image"));
    export_->AddItem(0, tr("JPEG image"));
    const int more = export_->AddMenu(1, QIcon(), tr("More formats"));
    export_->AddSubMenuItem(more, tr("OpenEXR"), QStringLiteral("exr"));
    export_->AddSubMenuItem(more, tr("TIFF"), QStringLiteral("tif"));
    export_->AddSubMenuItem(more, tr("Radiance HDR"), QStringLiteral("hdr"));
    export_->SetCurrentIndex(0);
    export_->SetAlignment(DropDown::AlignLeft);
    QObject::connect(export_, &DropDown::Triggered, status,
                     [status](QAction* action) { status->setText(tr("Triggered: %1").arg(action->text())); });
    form->addRow(new Label(tr("Sub-menu, left aligned"), page), export_);

    auto* options = new DropDown(page);
    options->AddItem(0, tr("Show grid"));
    options->AddItem(0, tr("Show axes"));
    options->AddItem(0, tr("Show bounding boxes"));
    options->SetItemType(DropDown::CheckableItem, 0);
    options->SetGroupItemExclusive(0, false);
    options->SetCheckedItem(0, 0);
    options->SetCheckedItem(0, 1);
    options->AddItem(1, tr("Reset view"));
    options->SetItemType(DropDown::CommandItem, 1);
    options->SetDisplayedText(tr("View options"));
    options->SetAlignment(DropDown::AlignLeft);
    form->addRow(new Label(tr("Check items and a command"), page), options);

    auto* iconOnly = new DropDown(page);
    iconOnly->AddItem(tr("Add"));
    iconOnly->AddItem(tr("Delete"));
    iconOnly->SetIconOnly(true);
    iconOnly->SetTransparent(true);
    iconOnly->SetCurrentIndex(0);
    new ThemedIcon(iconOnly, ThemeFileKey::EditorAddIdleIcon,
                   [iconOnly](const QIcon& icon) { iconOnly->SetItemIcon(0, icon); });
    new ThemedIcon(iconOnly, ThemeFileKey::EditorDeleteIdleIcon,
                   [iconOnly](const QIcon& icon) { iconOnly->SetItemIcon(1, icon); });
    auto* row = new QHBoxLayout;
    row->addWidget(iconOnly);
    row->addStretch();
    form->addRow(new Label(tr("Icon only, transparent"), page), row);

    auto* disabled = new DropDown(page);
    disabled->AddItem(tr("Unavailable"));
    disabled->SetCurrentIndex(0);
    disabled->setEnabled(false);
    form->addRow(new Label(tr("Disabled"), page), disabled);

    form->addRow(new Label(page), status);
    return page;
}

QWidget* rollouts(QWidget* parent)
{
    auto* page = new QWidget(parent);
    auto* column = new QVBoxLayout(page);
    column->setSpacing(2);

    auto* geometry = new RolloutContainer(page);
    geometry->SetTitle(tr("Geometry"));
    geometry->SetTitleToolTip(tr("Size and placement of the selected part"));
    auto* geometryLayout = new QFormLayout(geometry);
    geometry->setContentsMargins(4, 4, 4, 4);
    auto* width = new TextBox(geometry);
    width->SetText(QStringLiteral("1200 mm"));
    auto* height = new TextBox(geometry);
    height->SetText(QStringLiteral("850 mm"));
    geometryLayout->addRow(new Label(tr("Width"), geometry), width);
    geometryLayout->addRow(new Label(tr("Height"), geometry), height);

    auto* pivot = new RolloutContainer(geometry);
    pivot->SetTitle(tr("Pivot point"));
    pivot->setContentsMargins(4, 4, 4, 4);
    auto* pivotLayout = new QFormLayout(pivot);
    auto* anchor = new DropDown(pivot);
    anchor->AddItem(tr("Centre"));
    anchor->AddItem(tr("Bottom left"));
    anchor->AddItem(tr("Bottom centre"));
    anchor->SetCurrentIndex(0);
    pivotLayout->addRow(new Label(tr("Anchor"), pivot), anchor);

    auto* offset = new RolloutContainer(pivot);
    offset->SetTitle(tr("Offset"));
    offset->setContentsMargins(4, 4, 4, 4);
    auto* offsetLayout = new QFormLayout(offset);
    auto* dx = new TextBox(offset);
    dx->SetText(QStringLiteral("0 mm"));
    offsetLayout->addRow(new Label(tr("Along X"), offset), dx);
    pivotLayout->addRow(offset);
    geometryLayout->addRow(pivot);
    column->addWidget(geometry);

    auto* shadows = new RolloutContainer(page);
    shadows->SetTitle(tr("Cast shadows"));
    shadows->SetIsCheckable(true);
    shadows->SetCheckboxToolTip(tr("Switches the shadow settings on and off"));
    shadows->setContentsMargins(4, 4, 4, 4);
    auto* shadowLayout = new QFormLayout(shadows);
    auto* softness = new TextBox(shadows);
    softness->SetText(QStringLiteral("35 %"));
    auto* needsLight = new Label(tr("Needs a sun light (disabled by the host)"), shadows);
    needsLight->setEnabled(false);
    shadowLayout->addRow(new Label(tr("Softness"), shadows), softness);
    shadowLayout->addRow(needsLight);
    column->addWidget(shadows);

    auto* collapsed = new RolloutContainer(page);
    collapsed->SetTitle(tr("Advanced (collapsed)"));
    auto* advancedLayout = new QFormLayout(collapsed);
    advancedLayout->addRow(new Label(tr("Tolerance"), collapsed), new TextBox(collapsed));
    collapsed->SetIsCollapsed(true);
    column->addWidget(collapsed);

    auto* elided = new RolloutContainer(page);
    elided->SetTitle(tr("A long title that is cut when the container is narrow, and explains itself on hover"));
    elided->SetElideMode(Qt::ElideRight);
    elided->SetExpandButtonVisible(false);
    // The title's full width would otherwise set the column's width.
    elided->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    elided->setMinimumWidth(200);
    auto* elidedLayout = new QVBoxLayout(elided);
    elidedLayout->addWidget(new Label(tr("The expand button is hidden: this one stays open."), elided));
    column->addWidget(elided);
    column->addStretch();
    return page;
}

GalleryPageRegistration registration(400, QStringLiteral("Entry and groups"), [](QWidget* parent) {
    QScrollArea* area = NewPageArea(parent);
    auto* content = new QWidget(area);
    auto* grid = new QGridLayout(content);
    grid->setHorizontalSpacing(24);
    AddGridSection(grid, tr("Text boxes"), textBoxes, 0, 0);
    AddGridSection(grid, tr("Drop-downs"), dropDowns, 0, 1);
    AddGridSection(grid, tr("Rollout containers"), rollouts, 2, 0, 2);
    grid->setColumnStretch(0, 1);
    grid->setColumnStretch(1, 1);
    grid->setRowStretch(4, 1);
    area->setWidget(content);
    return area;
});

} // namespace
