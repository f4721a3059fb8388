#pragma once

#include <KvUICore/KvUICoreExport.h>

namespace Kavrel::UICore::Internal {

// Registers the accessible interfaces of the property editor and its group
// grids with Qt, once; both call it from their constructors.
KVUICORE_EXPORT void InstallPropertyEditorAccessibility();

} // namespace Kavrel::UICore::Internal
