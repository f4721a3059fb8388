#include <KvUICore/widgets/KvMessageBoxImp.h>
#include <KvUICore/widgets/MessageBoxProvider.h>

namespace Kavrel::UICore {

MessageBoxProvider::MessageBoxProvider() = default;

MessageBoxProvider::~MessageBoxProvider() = default;

IMessageBox* MessageBoxProvider::CreateMessageBox()
{
    return new KvMessageBoxImp;
}

void MessageBoxProvider::DestroyMessageBox(IMessageBox* messageBox)
{
    delete messageBox;
}

} // namespace Kavrel::UICore
