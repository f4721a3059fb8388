#pragma once

#include <QByteArray>
#include <QString>
#include <QStringView>

namespace Kavrel::UICore::Internal {

// Checks made on a UI definition before it is parsed, so that a hostile file
// costs neither unbounded memory nor time nor stack in the XML parser and the
// document tree. Each returns an empty text when the definition may be
// loaded, and otherwise the diagnostic that says why not; sourceName names the
// definition in it.

// Nesting depth and attribute count per element, by a linear scan of the
// markup that builds nothing.
QString CheckDefinitionMarkup(QStringView text, const QString& sourceName);

// A regular file of at most the size limit, checked before anything is read,
// then its markup. A file that can't be read passes, so that the filer's open
// reports it.
QString CheckDefinitionFile(const QString& fileName);

} // namespace Kavrel::UICore::Internal
