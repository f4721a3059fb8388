#pragma once

#include <KvUICore/propertyeditor/ListItem.h>

#include <QAbstractListModel>
#include <QList>

namespace Kavrel::UICore {

// Holds the rows of a ListModel and answers for them.
class ListModelImp : public QAbstractListModel
{
    Q_OBJECT

public:
    explicit ListModelImp(QObject* parent = nullptr);
    ~ListModelImp() override;

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant Data(int row, int role) const;

    QList<ListItem*> mItems; // owned
};

} // namespace Kavrel::UICore
