#pragma once

#include <KvUICore/KvUICoreExport.h>
#include <KvUICore/core/CoreUIManager.h>

#include <QString>

namespace Kavrel::UICore {
class IMessageBoxProvider;
}

// What the core manager offers the layers above it, and what it needs from
// them. Start-up and shut-down must reach the theme manager, the default
// message box and the property editor's element kinds; each of those layers
// fills in its part when the library loads, so core calls up through these
// without including anything above it.
namespace Kavrel::UICore::Internal {

struct ThemeLayer
{
    // The global scroll-bar and tool-tip style sheets, loading the embedded
    // base file first when the theme lacks them. Empty when no theme manager
    // exists or the base file does not load.
    QString (*mpGlobalStyleSheet)() = nullptr;
    void (*mpSetThemeFilesPath)(const wchar_t* directory) = nullptr;
    int (*mpGetThemeFilesPath)(wchar_t* buffer, int capacity) = nullptr;
    // Destroys the theme manager singleton, if there is one.
    void (*mpDestroy)() = nullptr;
};

struct MessageBoxLayer
{
    IMessageBoxProvider* (*mpCreateDefaultProvider)() = nullptr;
    void (*mpReleaseProvider)(IMessageBoxProvider* provider) = nullptr;
};

struct PropertyEditorLayer
{
    void (*mpRegisterElementTypes)() = nullptr;
    void (*mpClearRememberedColumnWidths)() = nullptr;
};

KVUICORE_EXPORT void RegisterThemeLayer(const ThemeLayer& layer);
KVUICORE_EXPORT void RegisterMessageBoxLayer(const MessageBoxLayer& layer);
KVUICORE_EXPORT void RegisterPropertyEditorLayer(const PropertyEditorLayer& layer);

// Whether the singleton exists, without creating it.
KVUICORE_EXPORT bool CoreUIManagerExists();

// The current locale name ("de-DE") and the translator files folder as the
// manager holds them.
KVUICORE_EXPORT QString CurrentLocaleName();
KVUICORE_EXPORT QString TranslatorFilesPath();

// The message-box style. Setting a different one also releases the stored
// provider, so that the next box comes from a fresh default provider.
KVUICORE_EXPORT int MessageBoxStyle();
KVUICORE_EXPORT void SetMessageBoxStyle(int style);

// After a theme switch: forgets that the global style sheet was applied and
// applies it again from the new theme.
KVUICORE_EXPORT void ReapplyGlobalStyleSheet();

// Hands a diagnostic to the host's handler, if one is installed.
KVUICORE_EXPORT void CallDiagnosticHandler(const char* category, CoreUIManager::DiagnosticSeverity severity,
                                           const QString& text);

} // namespace Kavrel::UICore::Internal
