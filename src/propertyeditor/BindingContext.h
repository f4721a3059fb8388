#pragma once

#include <KvUICore/KvUICoreExport.h>

#include <QObject>
#include <QString>

namespace Kavrel::UICore {

/// Hands out the objects that binding expressions name: a default object and
/// objects by name. Emits ContextChanged() whenever a lookup may give another
/// answer, so that bindings resolve again. This base knows no objects.
class KVUICORE_EXPORT BindingContext : public QObject
{
    Q_OBJECT

public:
    /// A context that knows no objects.
    explicit BindingContext(QObject* parent = nullptr);
    ~BindingContext() override;

    /// The default context object, or null.
    virtual QObject* GetContextObject() const;
    /// The context object of that name, or null.
    virtual QObject* GetContextObject(const QString& name) const;

Q_SIGNALS:
    /// A lookup may give another answer now; bindings resolve again.
    void ContextChanged();
};

} // namespace Kavrel::UICore
