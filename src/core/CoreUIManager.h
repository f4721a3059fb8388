#pragma once

#include <KvUICore/KvUICoreExport.h>

#include <functional>
#include <memory>

namespace Kavrel::UICore {

class CoreUIManagerImp;
class IMessageBoxProvider;

// The built-in themes. The underlying type is fixed so that any int a host
// passes is a valid value (it names "Dark").
enum Theme : int
{
    Dark = 1,
    Light = 2,
    HIGLight = 3,
};

// The library's process-wide entry point: start-up and shut-down, locale and
// translators, the message-box provider and the global style sheet.
//
// Call Initialize once after creating the application object and Uninitialize
// before shutting down. Text crosses this interface as wide strings; getters
// copy into (buffer, capacity) and return the number of characters copied.
class KVUICORE_EXPORT CoreUIManager
{
public:
    static bool Initialize(void* reserved = nullptr);
    static bool Uninitialize();
    static CoreUIManager* GetInstance();
    static void EnableGlobalStyleSheet(bool enable);
    static bool IsGlobalStyleSheetEnabled();

    // An empty name selects the system locale; "de_DE" is stored as "de-DE".
    bool SetCurrentLocale(const wchar_t* localeName);
    int GetCurrentLocale(wchar_t* buffer, int capacity);
    const char* GetCurrentLocaleThreeLetterISOLanguageName();
    unsigned int GetCurrentLCID() const;

    bool InstallTranslator(const wchar_t* baseName);
    bool SetTranslatorFilesPath(const wchar_t* path);
    int GetTranslatorFilesPath(wchar_t* buffer, int capacity);

    void SetThemeFilesPath(const wchar_t* path);
    int GetThemeFilesPath(wchar_t* buffer, int capacity);
    const wchar_t* GetThemeName(const Theme& theme);

    // Takes ownership of the provider and releases the one held before.
    void SetMessageBoxProvider(IMessageBoxProvider* provider);
    // The installed provider; the default one is created on first request.
    IMessageBoxProvider* GetMessageBoxProvider();

    // How serious a diagnostic is. Debug texts trace normal work (a binding
    // resolved, a widget updated); warnings report a problem the library
    // worked around or refused (a broken binding, an unknown element, a file
    // over a limit, an unreadable theme file).
    enum class DiagnosticSeverity : int
    {
        Debug = 0,
        Warning = 1,
    };

    // Receives one diagnostic: the logging category it belongs to
    // ("kvuicore.theme", "kvuicore.propertyeditor", "kvuicore.binding",
    // "kvuicore.filer" or "kvuicore.translation"), its severity and its text.
    using DiagnosticHandler =
        std::function<void(const char* category, DiagnosticSeverity severity, const wchar_t* text)>;

    // Every diagnostic is also logged through its QLoggingCategory, with
    // warnings on and debug off by default; the handler receives exactly what
    // the categories let through, so QLoggingCategory::setFilterRules (or
    // QT_LOGGING_RULES) chooses for both. The handler may be called from any
    // thread that uses the library, and must not call back into it. An empty
    // handler removes the one installed. Survives Uninitialize.
    static void SetDiagnosticHandler(DiagnosticHandler handler);

    // Applies the global scroll-bar and tool-tip style sheets of the theme to
    // the application, once.
    void OverrideApplicationStyleSheet();

    ~CoreUIManager();

private:
    CoreUIManager();
    CoreUIManager(const CoreUIManager&) = delete;
    CoreUIManager& operator=(const CoreUIManager&) = delete;

    friend class CoreUIManagerImp;
    std::unique_ptr<CoreUIManagerImp> const mpImp;
};

} // namespace Kavrel::UICore
