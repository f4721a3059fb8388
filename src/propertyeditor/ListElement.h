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
    /// The current item's data in the current role.
    Q_PROPERTY(QVariant Current READ GetCurrent WRITE SetCurrent NOTIFY AttributesChanged)

public:
    ~ListElement() override;

    /// The model of the items, by the precedence above; null when there are none.
    virtual QAbstractItemModel* GetItems() const;
    /// The Current attribute.
    virtual QVariant GetCurrent() const;
    /// The role Current is compared in; Qt::DisplayRole unless set.
    virtual Qt::ItemDataRole GetCurrentRole() const;
    /// Binds the Items attribute; see SetBinding.
    virtual void SetItems(Binding* binding);
    /// The model is not owned.
    virtual void SetItems(QAbstractItemModel* model);
    /// Makes the items a list of these texts, replacing an Items binding that holds a
    /// value.
    virtual void SetItems(const QList<QString>& items);
    /// Binds the Current attribute; see SetBinding.
    virtual void SetCurrent(Binding* binding);
    /// Sets the Current attribute (through its binding when it has one).
    virtual void SetCurrent(const QVariant& current);
    /// Sets the role Current is compared in and selects the current item again.
    virtual void SetCurrentRole(Qt::ItemDataRole role);

    /// The row of the current item in the items, or -1.
    int GetCurrentIndex() const;

protected:
    /// For the list kinds, each with an implementation of its own.
    explicit ListElement(std::unique_ptr<PropertyEditorElementImp> imp, QObject* parent = nullptr);

    /// Tells a built widget that the items changed; the kinds rebuild their
    /// entries and select the current item again.
    virtual void ItemsChanged();

private:
    Q_DISABLE_COPY_MOVE(ListElement)
    friend class ListElementImp;
};

} // namespace Kavrel::UICore
