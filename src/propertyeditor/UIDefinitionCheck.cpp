#include <KvUICore/propertyeditor/PropertyEditor.h>
#include <KvUICore/propertyeditor/UIDefinitionCheck_p.h>

#include <QFile>
#include <QFileInfo>
#include <QStringDecoder>

namespace Kavrel::UICore::Internal {

namespace {

// The position after the end marker, or the end of the text without one.
qsizetype SkipPast(QStringView text, qsizetype from, QLatin1String end)
{
    const qsizetype found = text.indexOf(end, from);
    return found < 0 ? text.size() : found + end.size();
}

// The position of the ">" that closes markup starting at from; quoted
// strings, and a bracketed internal subset of a document type, are skipped.
qsizetype FindClose(QStringView text, qsizetype from, bool brackets, int* equalSigns)
{
    int depth = 0;
    for (qsizetype i = from; i < text.size(); ++i) {
        const QChar c = text.at(i);
        if (c == u'"' || c == u'\'') {
            i = text.indexOf(c, i + 1);
            if (i < 0)
                return text.size();
        } else if (c == u'=') {
            ++*equalSigns;
        } else if (brackets && c == u'[') {
            ++depth;
        } else if (brackets && c == u']') {
            --depth;
        } else if (c == u'>' && depth <= 0) {
            return i;
        }
    }
    return text.size();
}

} // namespace

QString CheckDefinitionMarkup(QStringView text, const QString& sourceName)
{
    int depth = 0;
    qsizetype i = 0;
    while ((i = text.indexOf(u'<', i)) >= 0) {
        const QStringView rest = text.mid(i);
        int equalSigns = 0;
        if (rest.startsWith(QLatin1String("<!--"))) {
            i = SkipPast(text, i + 4, QLatin1String("-->"));
        } else if (rest.startsWith(QLatin1String("<![CDATA["))) {
            i = SkipPast(text, i + 9, QLatin1String("]]>"));
        } else if (rest.startsWith(QLatin1String("<?"))) {
            i = SkipPast(text, i + 2, QLatin1String("?>"));
        } else if (rest.startsWith(QLatin1String("<!"))) {
            i = FindClose(text, i + 2, true, &equalSigns) + 1;
        } else if (rest.startsWith(QLatin1String("</"))) {
            --depth;
            i = FindClose(text, i + 2, false, &equalSigns) + 1;
        } else {
            const qsizetype close = FindClose(text, i + 1, false, &equalSigns);
            // Every attribute has one "=" outside its quoted value.
            if (equalSigns > PropertyEditor::kMaxAttributesPerElement)
                return QStringLiteral("Property editor: %1 has an element with more than %2 attributes\n")
                    .arg(sourceName)
                    .arg(PropertyEditor::kMaxAttributesPerElement);
            const bool empty = close < text.size() && text.at(close - 1) == u'/';
            if (!empty && ++depth > PropertyEditor::kMaxDefinitionDepth)
                return QStringLiteral("Property editor: %1 nests elements deeper than %2 levels\n")
                    .arg(sourceName)
                    .arg(PropertyEditor::kMaxDefinitionDepth);
            i = close + 1;
        }
    }
    return QString();
}

QString CheckDefinitionFile(const QString& fileName)
{
    const QFileInfo info(fileName);
    // Devices, pipes and folders would block the read or never end it.
    if (!info.isFile())
        return QStringLiteral("Property editor: %1 is not a regular file\n").arg(fileName);
    const qint64 limit = PropertyEditor::kMaxDefinitionFileSize;
    const QString tooLarge = QStringLiteral("Property editor: %1 is larger than %2 bytes\n").arg(fileName).arg(limit);
    if (info.size() > limit)
        return tooLarge;
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly))
        return QString();
    // The file may have grown since it was measured.
    const QByteArray data = file.read(limit + 1);
    if (data.size() > limit)
        return tooLarge;
    // Only the markup characters matter, which every encoding the parser
    // accepts spells as in UTF-8 unless it is UTF-16 or UTF-32.
    const auto encoding = QStringConverter::encodingForData(data, u'<');
    QStringDecoder decoder(encoding.value_or(QStringConverter::Utf8));
    const QString text = decoder.decode(data);
    return CheckDefinitionMarkup(text, fileName);
}

} // namespace Kavrel::UICore::Internal
