#pragma once

#include <KvUICore/KvUICoreExport.h>

#include <QImage>
#include <QString>
#include <QVariant>

#include <memory>

namespace Kavrel::UICore {

class ListItemImp;

/// One row of a ListModel: a text, an image and a value, fixed at construction
/// (a model's views are never told of changes to its rows).
class KVUICORE_EXPORT ListItem
{
public:
    /// An item with a text, an image and a value.
    ListItem(const QString& text = QString(), const QImage& image = QImage(), const QVariant& value = QVariant());
    ~ListItem();

    /// The item's text.
    QString GetText() const;
    /// The item's image; null when it has none.
    QImage GetImage() const;
    /// The item's value; invalid when it has none.
    QVariant GetValue() const;

private:
    Q_DISABLE_COPY_MOVE(ListItem)
    std::unique_ptr<ListItemImp> const mpImp;
};

} // namespace Kavrel::UICore
