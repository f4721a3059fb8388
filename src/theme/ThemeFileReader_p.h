#pragma once

#include <KvUICore/KvUICoreExport.h>

#include <QHash>
#include <QString>
#include <QVariant>
#include <QXmlStreamReader>

#include <functional>

class QIODevice;

namespace Kavrel::UICore::Internal {

using ThemeValueTable = QHash<QString, QVariant*>;

// Limits that keep a hostile theme file from hanging the application or
// exhausting its memory. Files beyond them fail with a clear message.
// - A theme file, and an icon file a theme names, is read only when it is a
//   regular file (no FIFO, device or folder) of at most kMaximumFileSize bytes.
// - $(Name) references expand at most kMaximumExpansions times per value, a
//   value may grow to at most kMaximumValueLength characters, and the
//   expansions of one file may insert at most kMaximumFileExpansion characters
//   in all. Each limit is checked before the text grows.
// - An icon file gives at most kMaximumIconImages images, which decode to at
//   most kMaximumIconBytes in all; the images past either limit are dropped.
//   Decoded icons stay cached by path for theme switches, up to
//   kMaximumIconCacheBytes; beyond that the oldest entries go first.
constexpr qint64 kMaximumFileSize = 8 * 1024 * 1024;
constexpr int kMaximumIconImages = 64;
constexpr qint64 kMaximumIconBytes = 64 * 1024 * 1024;
constexpr qint64 kMaximumIconCacheBytes = 256 * 1024 * 1024;
constexpr int kMaximumExpansions = 4096;
constexpr qsizetype kMaximumValueLength = 1024 * 1024;
constexpr qsizetype kMaximumFileExpansion = 16 * 1024 * 1024;

// Why a file cannot be read, or empty when it is a regular file within the
// size limit.
KVUICORE_EXPORT QString UnreadableFileReason(const QString& path);

// Reads one XBEL theme file into a value table. References $(Name) in style
// sheets and numbers expand to the text form of the value the callback finds.
class KVUICORE_EXPORT ThemeFileReader
{
public:
    using TextOf = std::function<QString(const QString& name)>;

    ThemeFileReader(ThemeValueTable& table, TextOf textOf);

    // True when the stream reported no error; entries read before an error
    // stay. A sequential device or one larger than kMaximumFileSize fails.
    bool Read(QIODevice* device);

    QString ErrorString() const { return mReader.errorString(); }
    qint64 LineNumber() const { return mReader.lineNumber(); }
    qint64 ColumnNumber() const { return mReader.columnNumber(); }

    // The two-or-more-colour form of "Color" and the multi-image form of "Icon".
    static void RegisterMetaTypes();

private:
    void ReadRoot();
    void ReadColor(const QString& name);
    void ReadIcon(const QString& name);
    void ReadStyleSheet(const QString& name);
    void ReadSize(const QString& name);
    void ReadInt(const QString& name, bool scalable);
    void ReadString(const QString& name);
    QColor ReadHexColor();
    QColor ReadRgbaColor();
    int ReadNumber(const QString& attribute, bool substitute);
    bool Substitute(QString& text);
    void SkipToEndElement();
    void RaiseError(const QString& message);
    void Store(const QString& name, const QVariant& value);

    QXmlStreamReader mReader;
    ThemeValueTable& mTable;
    TextOf mTextOf;
    QString msEntryName; // the entry being read, for messages
    qsizetype miExpansionBudget = kMaximumFileExpansion;
};

// Forgets the decoded icon files that theme loads share.
KVUICORE_EXPORT void ClearIconCache();

// The text that a reference $(Name) to a stored value expands to.
KVUICORE_EXPORT QString ThemeValueText(const QVariant* value);

// How SubstituteReferences ended.
enum class Substitution
{
    Done,
    ValueTooLong, // the value would outgrow kMaximumValueLength
    BudgetSpent,  // the insertions would outgrow *budget
};

// Expands every $(Name) reference of text, left to right, including references
// inside expanded text; a name whose text contains itself expands once. The
// scan is linear in the text it produces. budget, when given, is the number of
// characters insertions may still add, and is reduced by what they add.
KVUICORE_EXPORT Substitution SubstituteReferences(QString& text, const std::function<QString(const QString&)>& textOf,
                                                  qsizetype* budget = nullptr);

} // namespace Kavrel::UICore::Internal
