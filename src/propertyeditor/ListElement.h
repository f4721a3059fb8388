#pragma once

#include <KvUICore/propertyeditor/PropertyEditorElement.h>

#include <QList>
#include <QString>

class QAbstractItemModel;

namespace Kavrel::UICore {

/// The base of the elements that choose one item of a list: the items
/// (Items) and the current item (Current).
///
/// Items come, by precedence, from the Items binding (a QAbstractItemModel*,
/// a string list, or a literal text whose items are separated by ";"), or from
/// a model or list given to SetItems, or from the element's child nodes in the
/// definition: each child gives one item from its Text, Value and Image
/// attributes.
///
/// Current is the current item's data in the current role (the display text by
/// default; Qt::UserRole selects items by their values). A current value that
/// no item has selects nothing.
class KVUICORE_EXPORT ListElement : public PropertyEditorElement
{
    Q_OBJECT
    Q_PROPERTY(QVariant Current READ GetCurrent WRITE SetCurrent NOTIFY AttributesChanged)

public:
    ~ListElement() override;

    virtual QAbstractItemModel* GetItems() const;
    virtual QVariant GetCurrent() const;
    virtual Qt::ItemDataRole GetCurrentRole() const;
    virtual void SetItems(Binding* binding);
    /// The model is not owned.
    virtual void SetItems(QAbstractItemModel* model);
    virtual void SetItems(const QList<QString>& items);
    virtual void SetCurrent(Binding* binding);
    virtual void SetCurrent(const QVariant& current);
    virtual void SetCurrentRole(Qt::ItemDataRole role);

    /// The row of the current item in the items, or -1.
    int GetCurrentIndex() const;

protected:
    explicit ListElement(std::unique_ptr<PropertyEditorElementImp> imp, QObject* parent = nullptr);

    /// Tells a built widget that the items changed; the kinds rebuild their
    /// entries and select the current item again.
    virtual void ItemsChanged();

private:
    Q_DISABLE_COPY_MOVE(ListElement)
    friend class ListElementImp;
};

} // namespace Kavrel::UICore
