#pragma once

#include <KvUICore/KvUICoreExport.h>

#include <QImage>
#include <QString>
#include <QVariant>

#include <memory>

namespace Kavrel::UICore {

class ListItemImp;

// One row of a ListModel: a text, an image and a value.
class KVUICORE_EXPORT ListItem
{
public:
    ListItem(const QString& text = QString(), const QImage& image = QImage(), const QVariant& value = QVariant());
    ~ListItem();

    QString GetText() const;
    void SetText(const QString& text);
    QImage GetImage() const;
    void SetImage(const QImage& image);
    QVariant GetValue() const;
    void SetValue(const QVariant& value);

private:
    Q_DISABLE_COPY_MOVE(ListItem)
    std::unique_ptr<ListItemImp> const mpImp;
};

} // namespace Kavrel::UICore
