#include <KvUICore/core/CoreUIManager_p.h>
#include <KvUICore/util/Diagnostics_p.h>
#include <KvUICore/util/TranslationTable.h>
#include <KvUICore/util/XmlLimits_p.h>

#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QStringList>
#include <QXmlStreamReader>

#include <limits>
#include <map>

namespace Kavrel::UICore {

class TranslationTableImp
{
public:
    QString msName;
    QHash<QString, QString> mTexts;
    bool mbLoaded = false;
    QString msLoadedLocale;
    QString msLoadedFolder;

    // The file of that name in the folder, its name matched without regard to
    // case, so that a table's spelling doesn't depend on the file system.
    static QString FindInFolder(const QDir& dir, const QString& fileName)
    {
        const QString exact = QDir::cleanPath(dir.absoluteFilePath(fileName));
        if (QFileInfo(exact).isFile())
            return exact;
        const QFileInfo info(exact);
        const QDir folder = info.dir();
        const QString leaf = info.fileName();
        if (leaf.contains(QLatin1Char('*')) || leaf.contains(QLatin1Char('?')) || leaf.contains(QLatin1Char('[')))
            return QString();
        const QStringList matches = folder.entryList(QStringList{leaf}, QDir::Files, QDir::Name);
        return matches.isEmpty() ? QString() : QDir::cleanPath(folder.absoluteFilePath(matches.first()));
    }

    static QString FindFile(const QString& name, const QString& locale, const QString& folder)
    {
        if (name.isEmpty())
            return QString();
        const QDir dir(folder.isEmpty() ? QStringLiteral(".") : folder);
        if (name.endsWith(QLatin1String(".xlf"), Qt::CaseInsensitive)
            || name.endsWith(QLatin1String(".xliff"), Qt::CaseInsensitive)) {
            return FindInFolder(dir, name);
        }
        QStringList suffixes;
        if (!locale.isEmpty()) {
            QString dashed = locale;
            dashed.replace(QLatin1Char('_'), QLatin1Char('-'));
            QString underscored = dashed;
            underscored.replace(QLatin1Char('-'), QLatin1Char('_'));
            suffixes << QLatin1Char('_') + dashed << QLatin1Char('_') + underscored;
            const QString language = dashed.section(QLatin1Char('-'), 0, 0);
            if (!language.isEmpty())
                suffixes << QLatin1Char('_') + language;
        }
        suffixes << QString();
        suffixes.removeDuplicates();
        for (const QString& suffix : std::as_const(suffixes)) {
            for (const char* extension : {".xlf", ".xliff"}) {
                const QString path = FindInFolder(dir, name + suffix + QLatin1String(extension));
                if (!path.isEmpty())
                    return path;
            }
        }
        return QString();
    }

    static bool ReadXliff(QIODevice* device, QHash<QString, QString>* texts, QString* error)
    {
        QXmlStreamReader reader(device);
        QStringList ids;
        QString target;
        bool inUnit = false;
        bool skipUnit = false;
        while (!reader.atEnd()) {
            const QXmlStreamReader::TokenType token = reader.readNext();
            if (token == QXmlStreamReader::StartElement) {
                const QStringView name = reader.name();
                // XLIFF 2 calls the unit <unit> and may split it in segments.
                if (name == QLatin1String("trans-unit") || name == QLatin1String("unit")) {
                    inUnit = true;
                    const QXmlStreamAttributes attributes = reader.attributes();
                    ids.clear();
                    for (const char* key : {"id", "resname"}) {
                        const QString id = attributes.value(QLatin1String(key)).toString();
                        if (!id.isEmpty() && !ids.contains(id))
                            ids.append(id);
                    }
                    skipUnit = attributes.value(QLatin1String("translate")) == QLatin1String("no");
                    target.clear();
                } else if (inUnit && name == QLatin1String("alt-trans")) {
                    // Suggested alternatives, not the translation.
                    reader.skipCurrentElement();
                } else if (inUnit && name == QLatin1String("target")) {
                    // Inline markup (<g>, <x/>, ...) contributes its text.
                    target += reader.readElementText(QXmlStreamReader::IncludeChildElements);
                }
            } else if (token == QXmlStreamReader::EndElement
                       && (reader.name() == QLatin1String("trans-unit") || reader.name() == QLatin1String("unit"))) {
                if (!skipUnit && !target.isEmpty()) {
                    for (const QString& id : std::as_const(ids))
                        texts->insert(id, target);
                }
                inUnit = false;
            }
        }
        if (reader.hasError()) {
            *error = QStringLiteral("line %1: %2").arg(reader.lineNumber()).arg(reader.errorString());
            return false;
        }
        return true;
    }
};

TranslationTable::TranslationTable(const QString& name)
    : mpImp(std::make_unique<TranslationTableImp>())
{
    mpImp->msName = name;
}

TranslationTable::~TranslationTable() = default;

QString TranslationTable::GetName() const
{
    return mpImp->msName;
}

void TranslationTable::SetName(const QString& name)
{
    if (name == mpImp->msName)
        return;
    mpImp->msName = name;
    Clear();
}

QString TranslationTable::GetText(const QString& id) const
{
    const auto it = mpImp->mTexts.constFind(id);
    return it == mpImp->mTexts.constEnd() ? id : it.value();
}

bool TranslationTable::Contains(const QString& id) const
{
    return mpImp->mTexts.contains(id);
}

int TranslationTable::GetCount() const
{
    return int(mpImp->mTexts.size());
}

void TranslationTable::Insert(const QString& id, const QString& text)
{
    mpImp->mTexts.insert(id, text);
}

void TranslationTable::Clear()
{
    mpImp->mTexts.clear();
    mpImp->mbLoaded = false;
    mpImp->msLoadedLocale.clear();
    mpImp->msLoadedFolder.clear();
}

QString TranslationTable::FindTranslationFile() const
{
    return TranslationTableImp::FindFile(mpImp->msName, Internal::CurrentLocaleName(), Internal::TranslatorFilesPath());
}

bool TranslationTable::Load()
{
    const QString locale = Internal::CurrentLocaleName();
    const QString folder = Internal::TranslatorFilesPath();
    const QString file = TranslationTableImp::FindFile(mpImp->msName, locale, folder);
    const bool ok = !file.isEmpty() && LoadFile(file);
    if (file.isEmpty())
        mpImp->mTexts.clear();
    // Remembered even without a file: the next refresh for the same locale
    // and folder has nothing new to find.
    mpImp->mbLoaded = true;
    mpImp->msLoadedLocale = locale;
    mpImp->msLoadedFolder = folder;
    return ok;
}

bool TranslationTable::LoadFile(const QString& fileName)
{
    mpImp->mTexts.clear();
    const QFileInfo info(fileName);
    if (!info.exists())
        return false;
    // A pipe would block the reading and a device never end.
    if (!info.isFile()) {
        Internal::WriteDiagnostic(Internal::DiagnosticChannel::Translation, QtWarningMsg,
            QStringLiteral("TranslationTable: Failed to open file %1. Not a regular file").arg(fileName));
        return false;
    }
    if (info.size() > kMaxFileSize) {
        Internal::WriteDiagnostic(Internal::DiagnosticChannel::Translation, QtWarningMsg, QStringLiteral("TranslationTable: Refused %1: the file is larger than %2 bytes.")
                                      .arg(fileName)
                                      .arg(kMaxFileSize));
        return false;
    }
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly)) {
        if (file.exists())
            Internal::WriteDiagnostic(Internal::DiagnosticChannel::Translation, QtWarningMsg, QStringLiteral("TranslationTable: Failed to open file %1. %2 (Error code: %3)")
                                          .arg(fileName, file.errorString(), QString::number(int(file.error()))));
        return false;
    }
    // Read from memory, so a file that grew since it was looked at stops at the limit.
    QByteArray bytes = file.read(kMaxFileSize + 1);
    if (bytes.size() > kMaxFileSize) {
        Internal::WriteDiagnostic(Internal::DiagnosticChannel::Translation, QtWarningMsg, QStringLiteral("TranslationTable: Refused %1: the file is larger than %2 bytes.")
                                      .arg(fileName)
                                      .arg(kMaxFileSize));
        return false;
    }
    static constexpr Internal::XmlLimits limits{kMaxDepth, kMaxAttributes, std::numeric_limits<qint64>::max()};
    const QString limit = Internal::XmlLimitReached(bytes, limits);
    if (!limit.isEmpty()) {
        Internal::WriteDiagnostic(Internal::DiagnosticChannel::Translation, QtWarningMsg, QStringLiteral("TranslationTable: Refused %1: %2.").arg(fileName, limit));
        return false;
    }
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    QHash<QString, QString> texts;
    QString error;
    if (!TranslationTableImp::ReadXliff(&buffer, &texts, &error)) {
        Internal::WriteDiagnostic(Internal::DiagnosticChannel::Translation, QtWarningMsg, QStringLiteral("TranslationTable: Failed to read file %1. %2").arg(fileName, error));
        return false;
    }
    mpImp->mTexts = std::move(texts);
    return true;
}

void TranslationTable::Refresh()
{
    if (!mpImp->mbLoaded || mpImp->msLoadedLocale != Internal::CurrentLocaleName() ||
        mpImp->msLoadedFolder != Internal::TranslatorFilesPath())
        Load();
}

namespace {
std::map<QString, std::unique_ptr<TranslationTable>>& tableCache()
{
    static std::map<QString, std::unique_ptr<TranslationTable>> cache;
    return cache;
}
} // namespace

TranslationTable* TranslationTable::GetCached(const QString& name)
{
    if (name.isEmpty())
        return nullptr;
    std::unique_ptr<TranslationTable>& table = tableCache()[name.toLower()];
    if (!table)
        table = std::make_unique<TranslationTable>(name);
    table->Refresh();
    return table.get();
}

void TranslationTable::ClearCache()
{
    tableCache().clear();
}

} // namespace Kavrel::UICore
