#include <KvUICore/propertyeditor/ListItem.h>

namespace Kavrel::UICore {

class ListItemImp
{
public:
    QString msText;
    QImage mImage;
    QVariant mValue;
};

ListItem::ListItem(const QString& text, const QImage& image, const QVariant& value)
    : mpImp(std::make_unique<ListItemImp>())
{
    mpImp->msText = text;
    mpImp->mImage = image;
    mpImp->mValue = value;
}

ListItem::~ListItem() = default;

QString ListItem::GetText() const
{
    return mpImp->msText;
}

QImage ListItem::GetImage() const
{
    return mpImp->mImage;
}

QVariant ListItem::GetValue() const
{
    return mpImp->mValue;
}

} // namespace Kavrel::UICore
