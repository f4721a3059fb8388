#pragma once

#include <KvUICore/KvUICoreExport.h>

namespace Kavrel::UICore {

class IMessageBox;

/// Creates and destroys every message box of the library. A host installs its
/// own provider through CoreUIManager::SetMessageBoxProvider to take over their
/// presentation; the core manager owns the installed provider.
class KVUICORE_EXPORT IMessageBoxProvider
{
public:
    /// A new message box, owned by the caller until handed back to DestroyMessageBox.
    virtual IMessageBox* CreateMessageBox() = 0;
    /// Does nothing for null.
    virtual void DestroyMessageBox(IMessageBox* messageBox) = 0;
    /// Hosts must not rely on their provider's destructor doing work: the
    /// library guarantees only that the provider's storage is released.
    virtual ~IMessageBoxProvider() = default;
};

} // namespace Kavrel::UICore
