#include <KvUICore/propertyeditor/ListModel.h>
#include <KvUICore/propertyeditor/ListModelImp.h>

namespace Kavrel::UICore {

ListModelImp::ListModelImp(QObject* parent)
    : QAbstractListModel(parent)
{
}

ListModelImp::~ListModelImp()
{
    qDeleteAll(mItems);
}

int ListModelImp::rowCount(const QModelIndex& parent) const
{
    // A flat list: only the root has rows.
    return parent.isValid() ? 0 : int(mItems.size());
}

QVariant ListModelImp::data(const QModelIndex& index, int role) const
{
    return Data(index.row(), role);
}

QVariant ListModelImp::Data(int row, int role) const
{
    if (row < 0 || row >= mItems.size())
        return QVariant();
    const ListItem* item = mItems.at(row);
    switch (role) {
    case Qt::DisplayRole:
        return item->GetText();
    case Qt::DecorationRole:
        return item->GetImage();
    case Qt::UserRole:
        return item->GetValue();
    default:
        return QVariant();
    }
}

ListModel::ListModel(QObject* parent)
    : QAbstractListModel(parent)
    , mpImp(std::make_unique<ListModelImp>())
{
}

ListModel::~ListModel() = default;

void ListModel::Add(ListItem* item)
{
    if (!item || mpImp->mItems.contains(item))
        return;
    const int row = int(mpImp->mItems.size());
    beginInsertRows(QModelIndex(), row, row);
    mpImp->mItems.append(item);
    endInsertRows();
}

void ListModel::Add(const QString& text)
{
    Add(new ListItem(text));
}

void ListModel::Add(const QString& text, const QImage& image, const QVariant& value)
{
    Add(new ListItem(text, image, value));
}

ListItem* ListModel::GetItem(int row) const
{
    return row >= 0 && row < mpImp->mItems.size() ? mpImp->mItems.at(row) : nullptr;
}

int ListModel::GetCount() const
{
    return int(mpImp->mItems.size());
}

int ListModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : mpImp->rowCount();
}

QVariant ListModel::data(const QModelIndex& index, int role) const
{
    return mpImp->Data(index.row(), role);
}

} // namespace Kavrel::UICore
