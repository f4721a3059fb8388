#pragma once

#include <KvUICore/util/XmlFiler.h>

#include <QStringList>

namespace Kavrel::UICore::Internal {

// Records which attributes are asked for while it lives, so that a reader can
// name the attributes of the current element it does not know. Logs nest: an
// inner one hides the reads from the outer one until it ends.
class KVUICORE_EXPORT AttributeReadLog
{
public:
    explicit AttributeReadLog(XmlFiler& filer);
    ~AttributeReadLog();
    Q_DISABLE_COPY_MOVE(AttributeReadLog)

    // The current element's attributes that nobody asked for, namespace
    // declarations and qualified names aside.
    QStringList Unread() const;

private:
    XmlFiler& mFiler;
    QStringList* const mpPrevious;
    QStringList mNames;
};

} // namespace Kavrel::UICore::Internal
