#pragma once

#include <KvUICore/KvUICoreExport.h>

#include <QString>

#include <memory>

namespace Kavrel::UICore {

class TranslationTableImp;

/// The texts for the tr(id) values of UI definitions: a name and a map from id
/// to translated text, read from an XLIFF 1.2 translation file.
///
/// Translation files. For a table named N, the current locale of
/// CoreUIManager (say "de-DE") and its translator files folder F, the first of
/// these files that exists is read:
///   F/N_de-DE.xlf, F/N_de_DE.xlf, F/N_de.xlf, F/N.xlf
/// and the same names ending in ".xliff". A name that already ends in ".xlf"
/// or ".xliff" names the file itself, relative to F unless it is absolute.
/// File names match without regard to case.
///
/// In the file every `<trans-unit>` gives one entry: its "id" attribute is the
/// id (the "resname" attribute counts as a second id), the text of its
/// `<target>` the translation. Units without an id or with an empty target are
/// skipped, and so are units that the file marks translate="no". XLIFF 2
/// files are read the same way: a `<unit>` gives one entry, the targets of its
/// segments joined.
///
/// An id without a translation reads as the id itself.
///
/// Limits: a translation file must be a regular file (no folder, pipe or
/// device) of at most kMaxFileSize bytes, with elements nested at most
/// kMaxDepth levels and at most kMaxAttributes attributes per element. A file
/// beyond a limit is refused as the reading reaches it, like a malformed one:
/// the table stays empty, the load returns false and a diagnostic names the
/// file and the limit.
class KVUICORE_EXPORT TranslationTable
{
public:
    /// The largest translation file read, in bytes.
    static constexpr qint64 kMaxFileSize = 16 * 1024 * 1024;
    /// The deepest nesting of elements in a translation file.
    static constexpr int kMaxDepth = 256;
    /// The most attributes one element of a translation file may carry.
    static constexpr int kMaxAttributes = 256;

    /// An empty table of that name; Load reads its file.
    explicit TranslationTable(const QString& name = QString());
    ~TranslationTable();

    /// The table's name, the base of its translation file names.
    QString GetName() const;
    /// A different name empties the table; names that differ only in case
    /// are different names (the cache, not the table, ignores case).
    void SetName(const QString& name);

    /// The translation of the id, or the id itself.
    QString GetText(const QString& id) const;
    /// Whether the table has a translation for the id.
    bool Contains(const QString& id) const;
    /// The number of entries.
    int GetCount() const;
    /// Adds or replaces the translation of an id.
    void Insert(const QString& id, const QString& text);
    /// Removes every entry and forgets what the table was loaded for.
    void Clear();

    /// The translation file for the table's name and the current locale, by
    /// the rule above; empty when none exists.
    QString FindTranslationFile() const;
    /// Reads the translation file found by FindTranslationFile, replacing the
    /// entries; false when there is no file or it can't be read. The locale
    /// and folder it was read for are remembered for Refresh.
    bool Load();
    /// Reads an XLIFF file, replacing the entries. A file that is missing or
    /// isn't well-formed leaves the table empty and returns false.
    bool LoadFile(const QString& fileName);
    /// Reads the table again if it was loaded for another locale or folder
    /// than the current ones.
    void Refresh();

    /// The process-wide table of that name (keyed by the name in lower case),
    /// created and loaded on first request and refreshed on later ones; null
    /// for an empty name. The cache owns the tables.
    static TranslationTable* GetCached(const QString& name);
    /// Deletes every cached table.
    static void ClearCache();

private:
    Q_DISABLE_COPY_MOVE(TranslationTable)
    std::unique_ptr<TranslationTableImp> const mpImp;
};

} // namespace Kavrel::UICore
