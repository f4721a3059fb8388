#pragma once

#include <KvUICore/KvUICoreExport.h>
#include <KvUICore/widgets/IMessageBoxProvider.h>

namespace Kavrel::UICore {

/// The provider the core manager falls back to: the library's own message box.
class KVUICORE_EXPORT MessageBoxProvider : public IMessageBoxProvider
{
public:
    /// The library's provider.
    MessageBoxProvider();
    ~MessageBoxProvider() override;

    IMessageBox* CreateMessageBox() override;
    void DestroyMessageBox(IMessageBox* messageBox) override;
};

} // namespace Kavrel::UICore
