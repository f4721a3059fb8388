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
    ListItem(const QString& text = QString(), const QImage& image = QImage(), const QVariant& value = QVariant());
    ~ListItem();

    QString GetText() const;
    QImage GetImage() const;
    QVariant GetValue() const;

private:
    Q_DISABLE_COPY_MOVE(ListItem)
    std::unique_ptr<ListItemImp> const mpImp;
};

} // namespace Kavrel::UICore
