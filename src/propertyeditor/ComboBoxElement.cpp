#include <KvUICore/propertyeditor/ComboBoxElement.h>

#include <KvUICore/propertyeditor/Binding.h>
#include <KvUICore/propertyeditor/ListElementImp.h>

#include <QAbstractItemModel>
#include <QComboBox>

namespace Kavrel::UICore {

namespace {

class ComboBoxElementImp : public ListElementImp
{
public:
    void DropModelConnections()
    {
        for (const QMetaObject::Connection& connection : std::as_const(mModelConnections))
            QObject::disconnect(connection);
        mModelConnections.clear();
        miModelChanging = 0;
    }

    QList<QMetaObject::Connection> mModelConnections;
    // Set while the model changes: the combo box then moves its current row
    // by itself, which is no edit.
    int miModelChanging = 0;
};

ComboBoxElementImp* ImpOf(const ComboBoxElement* element)
{
    return static_cast<ComboBoxElementImp*>(element->GetImp());
}

} // namespace

ComboBoxElement::ComboBoxElement(QObject* parent)
    : ListElement(std::make_unique<ComboBoxElementImp>(), parent)
{}

ComboBoxElement::~ComboBoxElement() = default;

void ComboBoxElement::ComboBoxCurrentIndexChanged(int /*index*/)
{
    if (ImpOf(this)->miModelChanging > 0)
        return;
    UpdateSourceValue(QStringLiteral("Current"));
}

QWidget* ComboBoxElement::CreateWidgetOverride(QWidget* parent)
{
    auto* combo = new QComboBox(parent);
    // Sized to its items when first shown. Every other policy makes the combo
    // box build its popup list at once, which dominates building long pages.
    combo->setSizeAdjustPolicy(QComboBox::AdjustToContentsOnFirstShow);
    // Connected by signature text, written with blanks before the
    // parentheses: Qt normalises both signatures.
    // clang-format off
    connect(combo, SIGNAL(currentIndexChanged (int)), this, SLOT(ComboBoxCurrentIndexChanged (int)));
    // clang-format on
    // Items given without a binding reach the new combo box too.
    GetImp()->mpWidget = combo;
    UpdateWidget(AttributeName::Items);
    return combo;
}

void ComboBoxElement::UpdateWidgetOverride(const QString& attribute)
{
    auto* combo = qobject_cast<QComboBox*>(GetWidget());
    if (!combo) {
        ListElement::UpdateWidgetOverride(attribute);
        return;
    }
    ComboBoxElementImp* imp = ImpOf(this);
    if (attribute == AttributeName::Items) {
        QAbstractItemModel* model = imp->ResolveItems();
        if (combo->model() != model) {
            imp->DropModelConnections();
            auto hold = [imp] { ++imp->miModelChanging; };
            auto release = [this, imp] {
                if (imp->miModelChanging > 0 && --imp->miModelChanging == 0)
                    UpdateWidget(AttributeName::Current);
            };
            imp->mModelConnections = {
                connect(model, &QAbstractItemModel::rowsAboutToBeInserted, this, hold),
                connect(model, &QAbstractItemModel::rowsAboutToBeRemoved, this, hold),
                connect(model, &QAbstractItemModel::modelAboutToBeReset, this, hold),
            };
            combo->setModel(model);
            // Connected after the combo box's own connections, so these run after them.
            imp->mModelConnections.append(connect(model, &QAbstractItemModel::rowsInserted, this, release));
            imp->mModelConnections.append(connect(model, &QAbstractItemModel::rowsRemoved, this, release));
            imp->mModelConnections.append(connect(model, &QAbstractItemModel::modelReset, this, release));
        }
        UpdateWidgetOverride(AttributeName::Current);
    } else if (attribute == AttributeName::Current) {
        const int row = imp->FindRow(combo->model(), GetCurrent());
        if (combo->currentIndex() != row)
            combo->setCurrentIndex(row);
    } else {
        ListElement::UpdateWidgetOverride(attribute);
    }
}

QVariant ComboBoxElement::GetWidgetValueOverride(const QString& attribute) const
{
    auto* combo = qobject_cast<QComboBox*>(GetWidget());
    if (combo && attribute == AttributeName::Current) {
        const int row = combo->currentIndex();
        if (row < 0 || !combo->model())
            return QVariant();
        return combo->model()->index(row, 0).data(GetCurrentRole());
    }
    return ListElement::GetWidgetValueOverride(attribute);
}

int ComboBoxElement::GetUpdateOrder(const QString& attribute) const
{
    // The current item can only be chosen among items the combo box has.
    if (attribute == AttributeName::Items)
        return -2;
    if (attribute == AttributeName::Current)
        return 1;
    return ListElement::GetUpdateOrder(attribute);
}

void ComboBoxElement::ItemsChanged()
{
    UpdateWidget(AttributeName::Items);
}

} // namespace Kavrel::UICore
