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

// Reads one XBEL theme file into a value table. References $(Name) in style
// sheets and numbers are expanded through the substitution callback.
class KVUICORE_EXPORT ThemeFileReader
{
public:
    using Substitute = std::function<QString(const QString&)>;

    ThemeFileReader(ThemeValueTable& table, Substitute substitute);

    // True when the stream reported no error; entries read before an error stay.
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
    int ReadNumber(const QString& attribute);
    void RaiseError(const QString& message);
    void Store(const QString& name, const QVariant& value);

    QXmlStreamReader mReader;
    ThemeValueTable& mTable;
    Substitute mSubstitute;
};

// Forgets the decoded icon files that theme loads share.
KVUICORE_EXPORT void ClearIconCache();

// The text that a reference $(Name) to a stored value expands to.
KVUICORE_EXPORT QString ThemeValueText(const QVariant* value);

// Expands every $(Name) reference of text, left to right, including references
// inside expanded text; a name whose text contains itself expands once.
KVUICORE_EXPORT QString SubstituteReferences(QString text, const std::function<QString(const QString&)>& textOf);

} // namespace Kavrel::UICore::Internal
