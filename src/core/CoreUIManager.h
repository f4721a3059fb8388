#pragma once

#include <KvUICore/KvUICoreExport.h>

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
    static bool Initialize(void* reserved = nullptr);
    static bool Uninitialize();
    static CoreUIManager* GetInstance();
    static void EnableGlobalStyleSheet(bool enable);
    static bool IsGlobalStyleSheetEnabled();

    /// An empty name selects the system locale; "de_DE" is stored as "de-DE".
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

    /// Takes ownership of the provider and releases the one held before.
    void SetMessageBoxProvider(IMessageBoxProvider* provider);
    /// The installed provider; the default one is created on first request.
    IMessageBoxProvider* GetMessageBoxProvider();

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
