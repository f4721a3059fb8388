#include <KvUICore/widgets/ItemGroup.h>

#include <QAction>
#include <QActionGroup>

namespace Kavrel::UICore {

ItemGroup::ItemGroup(QObject* parent)
    : QObject(parent)
    , mpActionGroup(new QActionGroup(this))
{}

ItemGroup::~ItemGroup() = default;

DropDown::ItemType ItemGroup::GetItemType() const
{
    return mItemType;
}

void ItemGroup::SetItemType(DropDown::ItemType type)
{
    mItemType = type;
}

QActionGroup* ItemGroup::GetActionGroup() const
{
    return mpActionGroup;
}

bool ItemGroup::IsSeparatorVisible() const
{
    return mbSeparatorVisible;
}

void ItemGroup::SetSeparatorVisible(bool visible)
{
    mbSeparatorVisible = visible;
}

const QList<QAction*>& ItemGroup::GetActions() const
{
    return mActions;
}

QList<QAction*>& ItemGroup::Actions()
{
    return mActions;
}

QAction* ItemGroup::GetTrailingSeparator() const
{
    return mpTrailingSeparator;
}

void ItemGroup::SetTrailingSeparator(QAction* separator)
{
    mpTrailingSeparator = separator;
}

int ItemGroup::ItemCount() const
{
    return int(mActions.size()) - (mpTrailingSeparator ? 1 : 0);
}

} // namespace Kavrel::UICore
