#pragma once

#include <KvCoreUnits/KvCoreUnitsExport.h>

#include <QString>

#include <cstdint>

namespace kavrel::platform::core::locale {

/// Locale names as the toolkit uses them: language and region joined by '-'
/// ("en-US"), with conversions to Windows LCIDs, ISO 639-2 names and Qt's
/// locale names.
class KVCOREUNITS_EXPORT LocaleUtil
{
public:
    LocaleUtil() = delete;

    /// The user's locale in the form "en-US"; "en-US" when the system reports
    /// only the C locale.
    static QString GetCurrentSystemLocale();

    /// The Windows locale identifier of a locale name ('-' or '_' accepted,
    /// case-insensitive); 0 for a name the table does not know.
    static std::uint32_t LocaleNameToLCID(const QString& localeName);
    /// The locale name ("de-DE") of a Windows locale identifier; empty for an identifier the table does
    /// not know.
    static QString LCIDToLocaleName(std::uint32_t lcid);

    /// The three-letter ISO 639-2 language name ("deu" for "de-DE"); the language
    /// part alone decides, so "de-AT" gives "deu" too. Null for an unknown language.
    static const char* LocaleNameToThreeLetterISOLanguageName(const QString& localeName);

    /// Qt's name of the locale ("de_DE"); empty when Qt does not know the language.
    static QString LocaleNameToQtLocaleName(const QString& localeName);

    /// The path of the translation file for a base name and locale in a folder.
    /// Naming rule, first existing file wins:
    ///   `<dir>/<base>_<ll_CC>.qm`, `<dir>/<base>_<ll>.qm`, `<dir>/<base>.qm`,
    /// tried for the base name and then for the second base name, where ll_CC is
    /// Qt's locale name ("de_DE") and ll its language ("de"). Base names that
    /// already carry the language, as Qt's "qt_de", are found by the last form.
    /// When no candidate exists the first candidate is returned.
    static QString ResolveTranslatorFile(const QString& baseName, const QString& secondBaseName,
                                         const QString& localeName, const QString& directory);
};

} // namespace kavrel::platform::core::locale
