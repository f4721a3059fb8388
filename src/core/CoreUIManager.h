#pragma once

#include <KvUICore/KvUICoreExport.h>

#include <functional>
#include <memory>

namespace Kavrel::UICore {

class CoreUIManagerImp;
class IMessageBoxProvider;

/// The built-in themes. The underlying type is fixed so that any int a host
/// passes is a valid value (it names "Dark").
enum Theme : int
{
    Dark = 1,
    Light = 2,
    HIGLight = 3,
};

/// The library's process-wide entry point: start-up and shut-down, locale and
/// translators, the message-box provider and the global style sheet.
///
/// Call Initialize once after creating the application object and Uninitialize
/// before shutting down. Text crosses this interface as wide strings; getters
/// copy into (buffer, capacity) and return the number of characters copied.
class KVUICORE_EXPORT CoreUIManager
{
public:
    /// Starts the library: registers the property editor's element types, initialises the
    /// units component and turns off fading tool tips. Call once after creating the
    /// application object; a second call does nothing. `reserved` is ignored. Returns
    /// true.
    static bool Initialize(void* reserved = nullptr);
    /// Shuts the library down: deletes the instance (its translators and message-box
    /// provider with it) and uninitialises the units component. Does nothing when not
    /// initialised. Returns true.
    static bool Uninitialize();
    /// The process-wide manager, created on first use with the system locale and the
    /// library's translator installed.
    static CoreUIManager* GetInstance();
    /// Sets whether OverrideApplicationStyleSheet sets the theme's global style sheet on the
    /// application; on by default and again after Uninitialize.
    static void EnableGlobalStyleSheet(bool enable);
    /// Whether the global style sheet is enabled (see EnableGlobalStyleSheet).
    static bool IsGlobalStyleSheetEnabled();

    /// An empty name selects the system locale; "de_DE" is stored as "de-DE".
    bool SetCurrentLocale(const wchar_t* localeName);
    /// Copies the current locale name ("de-DE") into the buffer, cut to fit and
    /// terminated; returns the number of characters copied (0 for a null buffer).
    int GetCurrentLocale(wchar_t* buffer, int capacity);
    /// The ISO 639-2 language name of the current locale ("deu"); null for a language the
    /// library does not know.
    const char* GetCurrentLocaleThreeLetterISOLanguageName();
    /// The Windows locale identifier of the current locale; 0 for a locale the library
    /// does not know.
    unsigned int GetCurrentLCID() const;

    /// Installs the translator of a base name for the current locale, from the translator
    /// files folder; it follows later locale and folder changes. Installing a name twice
    /// does nothing. Returns true, also when no file exists yet.
    bool InstallTranslator(const wchar_t* baseName);
    /// Sets the folder of the translation files and reloads the installed translators
    /// from it; false, nothing changed, without an application object.
    bool SetTranslatorFilesPath(const wchar_t* path);
    /// Copies the translation files folder into the buffer, cut to fit and terminated;
    /// returns the number of characters copied.
    int GetTranslatorFilesPath(wchar_t* buffer, int capacity);

    /// Adds a folder in front of the theme file search list (see
    /// ThemeManager::SetThemeFilesPath).
    void SetThemeFilesPath(const wchar_t* path);
    /// Copies the first folder of the theme file search list into the buffer, cut to fit
    /// and terminated; returns the number of characters copied.
    int GetThemeFilesPath(wchar_t* buffer, int capacity);
    /// The name of a built-in theme ("Light", "Dark", "HIGLight"); "Dark" for any other
    /// value.
    const wchar_t* GetThemeName(const Theme& theme);

    /// Takes ownership of the provider and releases the one held before.
    void SetMessageBoxProvider(IMessageBoxProvider* provider);
    /// The installed provider; the default one is created on first request.
    IMessageBoxProvider* GetMessageBoxProvider();

    /// How serious a diagnostic is. Debug texts trace normal work (a binding
    /// resolved, a widget updated); warnings report a problem the library
    /// worked around or refused (a broken binding, an unknown element, a file
    /// over a limit, an unreadable theme file).
    enum class DiagnosticSeverity : int
    {
        Debug = 0,
        Warning = 1,
    };

    /// Receives one diagnostic: the logging category it belongs to
    /// ("kvuicore.theme", "kvuicore.propertyeditor", "kvuicore.binding",
    /// "kvuicore.filer" or "kvuicore.translation"), its severity and its text.
    using DiagnosticHandler =
        std::function<void(const char* category, DiagnosticSeverity severity, const wchar_t* text)>;

    /// Every diagnostic is also logged through its QLoggingCategory, with
    /// warnings on and debug off by default; the handler receives exactly what
    /// the categories let through, so QLoggingCategory::setFilterRules (or
    /// QT_LOGGING_RULES) chooses for both. The handler may be called from any
    /// thread that uses the library, and must not call back into it. An empty
    /// handler removes the one installed. Survives Uninitialize.
    static void SetDiagnosticHandler(DiagnosticHandler handler);

    /// Applies the global scroll-bar and tool-tip style sheets of the theme to
    /// the application, once.
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
