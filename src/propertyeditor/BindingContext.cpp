#include <KvUICore/propertyeditor/BindingContext.h>

namespace Kavrel::UICore {

BindingContext::BindingContext(QObject* parent)
    : QObject(parent)
{
}

BindingContext::~BindingContext() = default;

QObject* BindingContext::GetContextObject() const
{
    return nullptr;
}

QObject* BindingContext::GetContextObject(const QString&) const
{
    return nullptr;
}

} // namespace Kavrel::UICore
