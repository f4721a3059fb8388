#include <KvUICore/core/CoreUIUtil.h>
#include <KvUICore/util/Diagnostics_p.h>

namespace Kavrel::UICore::Internal {

namespace {
DiagnosticHook& diagnosticHook()
{
    static DiagnosticHook hook;
    return hook;
}
} // namespace

void SetDiagnosticHook(DiagnosticHook hook)
{
    diagnosticHook() = std::move(hook);
}

void WriteDiagnostic(const QString& text)
{
    CoreUIUtil::OutputDebugQString(text);
    if (const DiagnosticHook& hook = diagnosticHook())
        hook(text);
}

bool IsDiagnosticListened()
{
    return bool(diagnosticHook());
}

} // namespace Kavrel::UICore::Internal
