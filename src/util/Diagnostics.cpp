#include <KvUICore/core/CoreUIManager_p.h>
#include <KvUICore/core/CoreUIUtil.h>
#include <KvUICore/util/Diagnostics_p.h>

namespace Kavrel::UICore::Internal {

namespace {
Q_LOGGING_CATEGORY(lcTheme, "kvuicore.theme", QtWarningMsg)
Q_LOGGING_CATEGORY(lcPropertyEditor, "kvuicore.propertyeditor", QtWarningMsg)
Q_LOGGING_CATEGORY(lcBinding, "kvuicore.binding", QtWarningMsg)
Q_LOGGING_CATEGORY(lcFiler, "kvuicore.filer", QtWarningMsg)
Q_LOGGING_CATEGORY(lcTranslation, "kvuicore.translation", QtWarningMsg)

DiagnosticHook& diagnosticHook()
{
    static DiagnosticHook hook;
    return hook;
}

bool isEnabled(const QLoggingCategory& category, QtMsgType type)
{
    // Anything above a warning counts as one: the library has no fatal texts.
    return type == QtDebugMsg ? category.isDebugEnabled()
                              : (type == QtInfoMsg ? category.isInfoEnabled() : category.isWarningEnabled());
}
} // namespace

const QLoggingCategory& DiagnosticCategory(DiagnosticChannel channel)
{
    switch (channel) {
    case DiagnosticChannel::Theme:
        return lcTheme();
    case DiagnosticChannel::PropertyEditor:
        return lcPropertyEditor();
    case DiagnosticChannel::Binding:
        return lcBinding();
    case DiagnosticChannel::Filer:
        return lcFiler();
    case DiagnosticChannel::Translation:
        break;
    }
    return lcTranslation();
}

void SetDiagnosticHook(DiagnosticHook hook)
{
    diagnosticHook() = std::move(hook);
}

void WriteDiagnostic(DiagnosticChannel channel, QtMsgType type, const QString& text)
{
    CoreUIUtil::OutputDebugQString(text);
    if (const DiagnosticHook& hook = diagnosticHook())
        hook(text);
    const QLoggingCategory& category = DiagnosticCategory(channel);
    if (!isEnabled(category, type))
        return;
    // The texts end in a line break for the debug-output hook; the log adds its own.
    const QString line = text.endsWith(QLatin1Char('\n')) ? text.chopped(1) : text;
    const bool debug = type == QtDebugMsg || type == QtInfoMsg;
    if (debug)
        qCDebug(category).noquote() << line;
    else
        qCWarning(category).noquote() << line;
    CallDiagnosticHandler(category.categoryName(),
                          debug ? CoreUIManager::DiagnosticSeverity::Debug : CoreUIManager::DiagnosticSeverity::Warning,
                          line);
}

bool IsDiagnosticListened(DiagnosticChannel channel, QtMsgType type)
{
    return bool(diagnosticHook()) || isEnabled(DiagnosticCategory(channel), type);
}

} // namespace Kavrel::UICore::Internal
