#pragma once

#include <KvUICore/KvUICoreExport.h>

#include <QString>

namespace Kavrel::UICore::Platform {

// The folder that holds the library's own module file, or empty when the
// platform cannot tell.
KVUICORE_EXPORT QString LibraryModuleDirectory();

// The target of a file-system symbolic link, cleaned; a relative target is
// resolved against the folder that holds the link. A path that is not a
// symbolic link (or does not exist) comes back unchanged.
KVUICORE_EXPORT QString SymbolicLinkTarget(const QString& path);

} // namespace Kavrel::UICore::Platform
