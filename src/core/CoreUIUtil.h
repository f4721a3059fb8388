#pragma once

#include <KvUICore/KvUICoreExport.h>

#include <QList>
#include <QString>

namespace Kavrel::UICore {

/// Small services shared by the library and its hosts.
class KVUICORE_EXPORT CoreUIUtil
{
public:
    CoreUIUtil() = delete;

    /// The set bits of flags as single-bit values, lowest first; all 32 bit
    /// positions count, so bit 31 gives the value with only the sign bit set.
    static QList<int> GetOneBits(int flags);

    /// The cleaned target of a symbolic link, a relative target resolved against
    /// the link's folder; anything else comes back unchanged.
    static QString GetSymbolicLinkTarget(const QString& path);

    /// The hook through which every diagnostic of the library passes. It writes
    /// nothing; callers keep calling it so that a build can route the texts.
    /// Hosts read the diagnostics through their logging categories or
    /// CoreUIManager::SetDiagnosticHandler.
    static void OutputDebugQString(const QString& text);
};

} // namespace Kavrel::UICore
