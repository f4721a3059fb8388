#pragma once

#include <KvUICore/KvUICoreExport.h>

#include <QString>

#include <functional>
#include <type_traits>

namespace Kavrel::UICore::Internal {

// Every diagnostic text of the filer, the bindings and the property editor
// passes through here on its way to CoreUIUtil::OutputDebugQString. Tests
// install a hook to read the texts; the hook sees each text after the output
// hook was called. An empty function removes the hook.
using DiagnosticHook = std::function<void(const QString& text)>;
KVUICORE_EXPORT void SetDiagnosticHook(DiagnosticHook hook);
KVUICORE_EXPORT void WriteDiagnostic(const QString& text);

// Whether a diagnostic text would reach anyone. OutputDebugQString writes
// nothing in this library, so only an installed hook listens.
KVUICORE_EXPORT bool IsDiagnosticListened();

// Formats the text only when someone listens: diagnostics sit on paths as hot
// as every source change of a binding.
template <typename Format, typename = std::enable_if_t<std::is_invocable_r_v<QString, Format>>>
void WriteDiagnostic(Format&& format)
{
    if (IsDiagnosticListened())
        WriteDiagnostic(format());
}

} // namespace Kavrel::UICore::Internal
