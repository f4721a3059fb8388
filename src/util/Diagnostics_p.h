#pragma once

#include <KvUICore/KvUICoreExport.h>

#include <QLoggingCategory>
#include <QString>

#include <functional>
#include <type_traits>

namespace Kavrel::UICore::Internal {

// The subsystems a diagnostic comes from. Each has its logging category
// ("kvuicore.theme", ...), with warnings on and debug output off by default.
enum class DiagnosticChannel : int
{
    Theme,
    PropertyEditor,
    Binding,
    Filer,
    Translation,
};

KVUICORE_EXPORT const QLoggingCategory& DiagnosticCategory(DiagnosticChannel channel);

// Every diagnostic text of the library passes through here. It goes to
// CoreUIUtil::OutputDebugQString, to the test hook, and, where the channel's
// category lets the severity through, to the category's log and the host's
// handler (CoreUIManager::SetDiagnosticHandler).
KVUICORE_EXPORT void WriteDiagnostic(DiagnosticChannel channel, QtMsgType type, const QString& text);

// Tests install a hook that sees every text, whatever the categories say. An
// empty function removes the hook.
using DiagnosticHook = std::function<void(const QString& text)>;
KVUICORE_EXPORT void SetDiagnosticHook(DiagnosticHook hook);

// Whether a diagnostic of this channel and severity would reach anyone:
// OutputDebugQString writes nothing in this library, so only the test hook,
// or an enabled category (its log and the host's handler), listens.
KVUICORE_EXPORT bool IsDiagnosticListened(DiagnosticChannel channel, QtMsgType type);

// Formats the text only when someone listens: diagnostics sit on paths as hot
// as every source change of a binding.
template <typename Format, typename = std::enable_if_t<std::is_invocable_r_v<QString, Format>>>
void WriteDiagnostic(DiagnosticChannel channel, QtMsgType type, Format&& format)
{
    if (IsDiagnosticListened(channel, type))
        WriteDiagnostic(channel, type, format());
}

} // namespace Kavrel::UICore::Internal
