#include <KvCoreUnits/LocaleUtil.h>

#include <QDir>
#include <QFileInfo>
#include <QLocale>

#include <iterator>

namespace kavrel::platform::core::locale {

namespace {

struct LocaleRow
{
    const char* name; // canonical "ll-CC"
    std::uint32_t lcid;
};

// Windows locale identifiers of the locales the toolkit ships translations for,
// plus the common regional variants of the same languages.
constexpr LocaleRow kLocales[] = {
    {"cs-CZ", 0x0405}, {"en-US", 0x0409}, {"de-DE", 0x0407}, {"es-ES", 0x0C0A},
    {"fr-FR", 0x040C}, {"hu-HU", 0x040E}, {"it-IT", 0x0410}, {"ja-JP", 0x0411},
    {"ko-KR", 0x0412}, {"pl-PL", 0x0415}, {"pt-BR", 0x0416}, {"ru-RU", 0x0419},
    {"zh-CN", 0x0804}, {"zh-TW", 0x0404}, {"tr-TR", 0x041F}, {"en-GB", 0x0809},
    {"en-CA", 0x1009}, {"en-AU", 0x0C09}, {"de-AT", 0x0C07}, {"de-CH", 0x0807},
    {"fr-CA", 0x0C0C}, {"fr-CH", 0x100C}, {"fr-BE", 0x080C}, {"it-CH", 0x0810},
    {"es-MX", 0x080A}, {"pt-PT", 0x0816}, {"nl-NL", 0x0413}, {"sv-SE", 0x041D},
    {"da-DK", 0x0406}, {"nb-NO", 0x0414}, {"fi-FI", 0x040B}, {"sk-SK", 0x041B},
    {"zh-HK", 0x0C04},
};

struct LanguageRow
{
    const char* language;
    const char* iso3;
};

constexpr LanguageRow kLanguages[] = {
    {"cs", "ces"}, {"en", "eng"}, {"de", "deu"}, {"es", "spa"}, {"fr", "fra"},
    {"hu", "hun"}, {"it", "ita"}, {"ja", "jpn"}, {"ko", "kor"}, {"pl", "pol"},
    {"pt", "por"}, {"ru", "rus"}, {"zh", "zho"}, {"tr", "tur"}, {"nl", "nld"},
    {"sv", "swe"}, {"da", "dan"}, {"nb", "nob"}, {"fi", "fin"}, {"sk", "slk"},
};

QString normalised(const QString& localeName)
{
    QString name = localeName.trimmed();
    name.replace(QLatin1Char('_'), QLatin1Char('-'));
    return name;
}

QString languagePart(const QString& localeName)
{
    const QString name = normalised(localeName);
    return name.section(QLatin1Char('-'), 0, 0).toLower();
}

} // namespace

QString LocaleUtil::GetCurrentSystemLocale()
{
    const QLocale system = QLocale::system();
    if (system.language() == QLocale::C)
        return QStringLiteral("en-US");
    return normalised(system.name());
}

std::uint32_t LocaleUtil::LocaleNameToLCID(const QString& localeName)
{
    const QString name = normalised(localeName);
    for (const LocaleRow& row : kLocales) {
        if (name.compare(QLatin1String(row.name), Qt::CaseInsensitive) == 0)
            return row.lcid;
    }
    return 0;
}

QString LocaleUtil::LCIDToLocaleName(std::uint32_t lcid)
{
    for (const LocaleRow& row : kLocales) {
        if (row.lcid == lcid)
            return QLatin1String(row.name);
    }
    return QString();
}

const char* LocaleUtil::LocaleNameToThreeLetterISOLanguageName(const QString& localeName)
{
    const QString language = languagePart(localeName);
    for (const LanguageRow& row : kLanguages) {
        if (language == QLatin1String(row.language))
            return row.iso3;
    }
    return nullptr;
}

QString LocaleUtil::LocaleNameToQtLocaleName(const QString& localeName)
{
    const QString name = normalised(localeName);
    if (name.isEmpty())
        return QString();
    const QLocale locale(name);
    if (locale.language() == QLocale::C)
        return QString();
    // QLocale falls back to the language's main territory for unknown regions;
    // keep the region the caller asked for when it is well-formed.
    const QStringList parts = name.split(QLatin1Char('-'));
    if (parts.size() >= 2 && parts.at(1).size() == 2)
        return parts.at(0).toLower() + QLatin1Char('_') + parts.at(1).toUpper();
    return locale.name();
}

QString LocaleUtil::ResolveTranslatorFile(const QString& baseName, const QString& secondBaseName,
                                          const QString& localeName, const QString& directory)
{
    const QString qtName = LocaleNameToQtLocaleName(localeName);
    const QString language = languagePart(localeName);
    const QString dir = directory.isEmpty() ? QStringLiteral(".") : directory;

    QStringList candidates;
    for (const QString& base : {baseName, secondBaseName}) {
        if (base.isEmpty())
            continue;
        if (!qtName.isEmpty())
            candidates << dir + QLatin1Char('/') + base + QLatin1Char('_') + qtName + QLatin1String(".qm");
        if (!language.isEmpty())
            candidates << dir + QLatin1Char('/') + base + QLatin1Char('_') + language + QLatin1String(".qm");
        candidates << dir + QLatin1Char('/') + base + QLatin1String(".qm");
    }
    candidates.removeDuplicates();
    for (const QString& candidate : std::as_const(candidates)) {
        if (QFileInfo(candidate).isFile())
            return QDir::cleanPath(candidate);
    }
    return candidates.isEmpty() ? QString() : QDir::cleanPath(candidates.first());
}

} // namespace kavrel::platform::core::locale
