#pragma once

#include <KvUICore/KvUICoreExport.h>

#include <QString>

#include <functional>

namespace Kavrel::UICore::Internal {

// Every diagnostic text of the filer, the bindings and the property editor
// passes through here on its way to CoreUIUtil::OutputDebugQString. Tests
// install a hook to read the texts; the hook sees each text after the output
// hook was called. An empty function removes the hook.
using DiagnosticHook = std::function<void(const QString& text)>;
KVUICORE_EXPORT void SetDiagnosticHook(DiagnosticHook hook);
KVUICORE_EXPORT void WriteDiagnostic(const QString& text);

} // namespace Kavrel::UICore::Internal
