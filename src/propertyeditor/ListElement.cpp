#include <KvUICore/propertyeditor/ListElementImp.h>

#include <KvUICore/propertyeditor/Binding.h>
#include <KvUICore/propertyeditor/ListModel.h>
#include <KvUICore/theme/ThemeManager.h>

#include <QAbstractItemModel>
#include <QFileInfo>
#include <QImage>

namespace Kavrel::UICore {

namespace {

ListElementImp* ImpOf(const ListElement* element)
{
    return static_cast<ListElementImp*>(element->GetImp());
}

// An item's image: a file or resource path, or a theme key that holds one.
QImage LoadItemImage(const QString& image)
{
    if (image.isEmpty())
        return QImage();
    QString path = image;
    if (!QFileInfo::exists(path)) {
        ThemeManager* themes = ThemeManager::GetInstance();
        if (!themes->Exists(image))
            return QImage();
        path = themes->GetString(image);
    }
    return QImage(path);
}

bool ValuesMatch(const QVariant& data, const QVariant& value)
{
    if (!data.isValid() || !value.isValid())
        return false;
    if (data == value)
        return true;
    // Values read from a definition are texts; sources hold numbers or enums.
    return data.toString() == value.toString() && !value.toString().isEmpty();
}

} // namespace

ListElementImp::ListElementImp()
    : PropertyEditorElementImp(PropertyEditorElement::Leaf)
{}

ListElementImp::~ListElementImp() = default;

void ListElementImp::LoadAttributes(XmlFiler& filer)
{
    BindAttributeText(AttributeName::Items, filer.ReadString(AttributeName::Items), QMetaType::QString);
    BindAttributeText(AttributeName::Current, filer.ReadString(AttributeName::Current), QMetaType::QString);
    if (filer.GetChildElementCount() == 0)
        return;
    auto* model = new ListModel(this);
    filer.RememberPosition();
    for (bool more = filer.GoToFirstChild(); more; more = filer.GoToNextSibling()) {
        const QString text = filer.ReadString(QStringLiteral("Text"));
        const QVariant value = filer.HasAttribute(QStringLiteral("Value"))
                                   ? QVariant(filer.ReadString(QStringLiteral("Value")))
                                   : QVariant();
        model->Add(text, LoadItemImage(filer.ReadString(QStringLiteral("Image"))), value);
    }
    filer.RestorePosition();
    SetFixedModel(model, true);
}

QAbstractItemModel* ListElementImp::ResolveItems()
{
    const Binding* binding = FindBinding(AttributeName::Items);
    const QVariant value = binding ? binding->GetValue() : QVariant();
    if (value.isValid()) {
        if (value.metaType().flags() & QMetaType::PointerToQObject) {
            if (auto* model = qobject_cast<QAbstractItemModel*>(value.value<QObject*>()))
                return model;
        }
        const int type = value.metaType().id();
        QStringList items;
        bool isList = false;
        if (type == QMetaType::QStringList || type == QMetaType::QVariantList) {
            items = value.toStringList();
            isList = true;
        } else if (type == QMetaType::QString && !value.toString().isEmpty()) {
            items = value.toString().split(QLatin1Char(';'));
            for (QString& item : items)
                item = item.trimmed();
            isList = true;
        }
        if (isList) {
            if (!mpListModel || items != mListModelItems) {
                auto* model = new ListModel(this);
                for (const QString& item : std::as_const(items))
                    model->Add(item);
                // The old model goes once the widget holds the new one.
                if (mpListModel)
                    mpListModel->deleteLater();
                mpListModel = model;
                mListModelItems = items;
            }
            return mpListModel;
        }
    }
    if (mpFixedModel)
        return mpFixedModel;
    if (!mpEmptyModel)
        mpEmptyModel = new ListModel(this);
    return mpEmptyModel;
}

int ListElementImp::FindRow(QAbstractItemModel* model, const QVariant& value) const
{
    if (!model || !value.isValid())
        return -1;
    const int rows = model->rowCount();
    for (int row = 0; row < rows; ++row) {
        if (ValuesMatch(model->index(row, 0).data(meCurrentRole), value))
            return row;
    }
    return -1;
}

void ListElementImp::SetFixedModel(QAbstractItemModel* model, bool owned)
{
    if (model == mpFixedModel)
        return;
    QAbstractItemModel* previous = mpFixedModel;
    const bool previousOwned = mbFixedModelOwned;
    mpFixedModel = model;
    mbFixedModelOwned = owned && model;
    if (previous && previousOwned)
        previous->deleteLater();
}

ListElement::ListElement(std::unique_ptr<PropertyEditorElementImp> imp, QObject* parent)
    : PropertyEditorElement(std::move(imp), parent)
{}

ListElement::~ListElement() = default;

QAbstractItemModel* ListElement::GetItems() const
{
    return ImpOf(this)->ResolveItems();
}

QVariant ListElement::GetCurrent() const
{
    return GetValue(AttributeName::Current);
}

Qt::ItemDataRole ListElement::GetCurrentRole() const
{
    return ImpOf(this)->meCurrentRole;
}

void ListElement::SetItems(Binding* binding)
{
    SetBinding(AttributeName::Items, binding);
    ItemsChanged();
}

void ListElement::SetItems(QAbstractItemModel* model)
{
    ListElementImp* imp = ImpOf(this);
    // A model given directly replaces items from a binding.
    if (Binding* binding = GetBinding(AttributeName::Items); binding && binding->GetValue().isValid())
        DeleteBinding(AttributeName::Items);
    imp->SetFixedModel(model, false);
    ItemsChanged();
}

void ListElement::SetItems(const QList<QString>& items)
{
    ListElementImp* imp = ImpOf(this);
    auto* model = new ListModel(imp);
    for (const QString& item : items)
        model->Add(item);
    if (Binding* binding = GetBinding(AttributeName::Items); binding && binding->GetValue().isValid())
        DeleteBinding(AttributeName::Items);
    imp->SetFixedModel(model, true);
    ItemsChanged();
}

void ListElement::SetCurrent(Binding* binding)
{
    SetBinding(AttributeName::Current, binding);
}

void ListElement::SetCurrent(const QVariant& current)
{
    SetAttributeValue(AttributeName::Current, current, QMetaType::QString);
}

void ListElement::SetCurrentRole(Qt::ItemDataRole role)
{
    ListElementImp* imp = ImpOf(this);
    if (role == imp->meCurrentRole)
        return;
    imp->meCurrentRole = role;
    UpdateWidget(AttributeName::Current);
}

int ListElement::GetCurrentIndex() const
{
    ListElementImp* imp = ImpOf(this);
    return imp->FindRow(imp->ResolveItems(), GetCurrent());
}

void ListElement::ItemsChanged()
{
    UpdateWidget(AttributeName::Items);
}

} // namespace Kavrel::UICore
