#pragma once

#include <KvUICore/KvUICoreExport.h>

#include <QAbstractListModel>
#include <QImage>
#include <QString>
#include <QVariant>

#include <memory>

namespace Kavrel::UICore {

class ListItem;
class ListModelImp;

/// A flat list of ListItem rows behind the list elements of the property
/// editor. Qt::DisplayRole gives an item's text, Qt::DecorationRole its image
/// (a QImage), Qt::UserRole its value; other roles and rows out of range give
/// an invalid QVariant. Items are only appended, each append inserting exactly
/// one row at the end. The model owns its items.
class KVUICORE_EXPORT ListModel : public QAbstractListModel
{
    Q_OBJECT

public:
    /// An empty list.
    explicit ListModel(QObject* parent = nullptr);
    ~ListModel() override;

    /// Takes ownership; a null item is ignored.
    void Add(ListItem* item);
    /// Appends an item with this text.
    void Add(const QString& text);
    /// Appends an item with this text, image and value.
    void Add(const QString& text, const QImage& image, const QVariant& value);

    /// The item of that row, or null.
    ListItem* GetItem(int row) const;
    /// The number of items.
    int GetCount() const;

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;

private:
    Q_DISABLE_COPY_MOVE(ListModel)
    std::unique_ptr<ListModelImp> const mpImp;
};

} // namespace Kavrel::UICore
