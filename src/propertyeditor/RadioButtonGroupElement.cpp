#include <KvUICore/propertyeditor/RadioButtonGroupElement.h>

#include <KvUICore/propertyeditor/Binding.h>
#include <KvUICore/propertyeditor/ListElementImp.h>

#include <QAbstractItemModel>
#include <QButtonGroup>
#include <QIcon>
#include <QImage>
#include <QPixmap>
#include <QRadioButton>
#include <QVBoxLayout>

namespace Kavrel::UICore {

class RadioButtonGroupElementImp : public ListElementImp
{
public:
    void DropModelConnections()
    {
        for (const QMetaObject::Connection& connection : std::as_const(mModelConnections))
            QObject::disconnect(connection);
        mModelConnections.clear();
    }

    void RebuildButtons(RadioButtonGroupElement* owner, QAbstractItemModel* model)
    {
        QWidget* widget = mpWidget;
        QButtonGroup* group = mpButtonGroup;
        const QList<QAbstractButton*> buttons = group->buttons();
        for (QAbstractButton* button : buttons) {
            group->removeButton(button);
            button->hide();
            // A button may be in the middle of reporting a click.
            button->deleteLater();
        }
        auto* layout = qobject_cast<QBoxLayout*>(widget->layout());
        const int rows = model->rowCount();
        for (int row = 0; row < rows; ++row) {
            const QModelIndex index = model->index(row, 0);
            auto* button = new QRadioButton(index.data(Qt::DisplayRole).toString(), widget);
            const QVariant decoration = index.data(Qt::DecorationRole);
            if (decoration.canConvert<QImage>() && !decoration.value<QImage>().isNull())
                button->setIcon(QIcon(QPixmap::fromImage(decoration.value<QImage>())));
            else if (decoration.canConvert<QIcon>())
                button->setIcon(decoration.value<QIcon>());
            group->addButton(button, row);
            if (layout)
                layout->addWidget(button);
            QObject::connect(button, &QAbstractButton::toggled, owner,
                             &RadioButtonGroupElement::RadioButtonGroupCurrentIndexChanged);
        }
    }

    bool mbItemsDirty = false;
    QPointer<QButtonGroup> mpButtonGroup;
    QPointer<QAbstractItemModel> mpShownModel;
    QList<QMetaObject::Connection> mModelConnections;
};

namespace {

RadioButtonGroupElementImp* ImpOf(const RadioButtonGroupElement* element)
{
    return static_cast<RadioButtonGroupElementImp*>(element->GetImp());
}

} // namespace

RadioButtonGroupElement::RadioButtonGroupElement(QObject* parent)
    : ListElement(std::make_unique<RadioButtonGroupElementImp>(), parent)
{}

RadioButtonGroupElement::~RadioButtonGroupElement() = default;

QButtonGroup* RadioButtonGroupElement::GetButtonGroup() const
{
    return ImpOf(this)->mpButtonGroup;
}

void RadioButtonGroupElement::RadioButtonGroupCurrentIndexChanged(bool checked)
{
    // The button that was unchecked reports too; only the new one counts.
    if (checked)
        UpdateSourceValue(AttributeName::Current);
}

QWidget* RadioButtonGroupElement::CreateWidgetOverride(QWidget* parent)
{
    auto* widget = new QWidget(parent);
    auto* layout = new QVBoxLayout(widget);
    layout->setContentsMargins(0, 0, 0, 0);
    auto* group = new QButtonGroup(widget);
    group->setExclusive(true);
    ImpOf(this)->mpButtonGroup = group;
    // Items given without a binding reach the new buttons too.
    GetImp()->mpWidget = widget;
    UpdateWidget(AttributeName::Items);
    return widget;
}

void RadioButtonGroupElement::UpdateWidgetOverride(const QString& attribute)
{
    RadioButtonGroupElementImp* imp = ImpOf(this);
    QWidget* widget = GetWidget();
    QButtonGroup* group = imp->mpButtonGroup;
    if (!widget || !group) {
        ListElement::UpdateWidgetOverride(attribute);
        return;
    }
    if (attribute == AttributeName::Items) {
        QAbstractItemModel* model = imp->ResolveItems();
        // Sources often notify every property at once: the same items keep
        // their buttons, one of which may be reporting a click right now.
        if (model != imp->mpShownModel || imp->mbItemsDirty) {
            imp->mbItemsDirty = false;
            imp->RebuildButtons(this, model);
        }
        if (imp->mpShownModel != model) {
            imp->DropModelConnections();
            imp->mpShownModel = model;
            auto rebuild = [this, imp] {
                imp->mbItemsDirty = true;
                UpdateWidget(AttributeName::Items);
            };
            imp->mModelConnections = {
                connect(model, &QAbstractItemModel::rowsInserted, this, rebuild),
                connect(model, &QAbstractItemModel::rowsRemoved, this, rebuild),
                connect(model, &QAbstractItemModel::modelReset, this, rebuild),
                connect(model, &QAbstractItemModel::dataChanged, this, rebuild),
            };
        }
        UpdateWidgetOverride(AttributeName::Current);
    } else if (attribute == AttributeName::Current) {
        const int row = imp->FindRow(imp->mpShownModel, GetCurrent());
        if (QAbstractButton* button = group->button(row)) {
            if (!button->isChecked())
                button->setChecked(true);
        } else if (QAbstractButton* checked = group->checkedButton()) {
            // No item is current: an exclusive group can't uncheck its last button.
            group->setExclusive(false);
            checked->setChecked(false);
            group->setExclusive(true);
        }
    } else {
        ListElement::UpdateWidgetOverride(attribute);
    }
}

QVariant RadioButtonGroupElement::GetWidgetValueOverride(const QString& attribute) const
{
    RadioButtonGroupElementImp* imp = ImpOf(this);
    if (imp->mpButtonGroup && attribute == AttributeName::Current) {
        const int row = imp->mpButtonGroup->checkedId();
        if (row < 0 || !imp->mpShownModel)
            return QVariant();
        return imp->mpShownModel->index(row, 0).data(GetCurrentRole());
    }
    return ListElement::GetWidgetValueOverride(attribute);
}

void RadioButtonGroupElement::ItemsChanged()
{
    UpdateWidget(AttributeName::Items);
}

} // namespace Kavrel::UICore
