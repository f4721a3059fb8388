#pragma once

#include <QByteArray>
#include <QStringView>

namespace Kavrel::UICore::Internal {

// Whether no start tag of the XML input carries more than `maxAttributes`
// attributes. The check runs before any XML parser sees the input, in one
// linear pass over the characters: Qt's parsers compare each attribute with
// every one before it, so a tag with a few hundred thousand attributes would
// keep them busy for minutes. Malformed input passes, for the parser to refuse.
bool AttributesWithinLimit(QStringView text, int maxAttributes);
// The same for encoded bytes; UTF-16 and UTF-32 input is decoded first.
bool AttributesWithinLimit(const QByteArray& bytes, int maxAttributes);

} // namespace Kavrel::UICore::Internal
