#pragma once

#include <KvUICore/propertyeditor/ListElement.h>
#include <KvUICore/propertyeditor/PropertyEditorElementImp.h>

#include <QPointer>
#include <QStringList>

class QAbstractItemModel;

namespace Kavrel::UICore {

class ListModel;

class ListElementImp : public PropertyEditorElementImp
{
    Q_OBJECT

public:
    ListElementImp();
    ~ListElementImp() override;

    // Items and Current, then the fixed items of the child nodes.
    void LoadAttributes(XmlFiler& filer) override;

    // The model the items come from now (never null).
    QAbstractItemModel* ResolveItems();
    // The row whose data in the current role matches the value, or -1.
    int FindRow(QAbstractItemModel* model, const QVariant& value) const;
    // Replaces the fixed model; an owned one is deleted when replaced.
    void SetFixedModel(QAbstractItemModel* model, bool owned);

    QPointer<QAbstractItemModel> mpFixedModel;
    bool mbFixedModelOwned = false;
    // Built from a string list that the Items binding gives.
    ListModel* mpListModel = nullptr;
    QStringList mListModelItems;
    ListModel* mpEmptyModel = nullptr;
    Qt::ItemDataRole meCurrentRole = Qt::DisplayRole;
};

} // namespace Kavrel::UICore
