#pragma once

#include <QByteArray>
#include <QString>
#include <QStringView>

namespace Kavrel::UICore::Internal {

struct XmlLimits
{
    int miMaxDepth;
    int miMaxAttributes;
    qint64 miMaxNodes; // elements, attributes, texts, comments, instructions
};

// The first limit the XML input goes beyond, worded for a diagnostic; empty
// when it stays within all of them. The check is one linear pass over the
// characters, made before any XML parser sees the input: Qt's parsers compare
// each attribute with every one before it, so a tag with a few hundred
// thousand attributes would keep them busy for minutes, and the DOM grows
// with every level and node. Malformed input passes, for the parser to refuse.
QString XmlLimitReached(QStringView text, const XmlLimits& limits);
// The same for encoded bytes; UTF-16 and UTF-32 input is decoded first.
QString XmlLimitReached(const QByteArray& bytes, const XmlLimits& limits);

} // namespace Kavrel::UICore::Internal
