#pragma once

#include <KvUICore/KvUICoreExport.h>
#include <KvUICore/propertyeditor/BindingContext.h>

#include <QStringList>

#include <functional>
#include <memory>

namespace Kavrel::UICore {

class PropertyEditorContextImp;

/// The context of a property editor: a default object and named objects set by
/// the host, an optional resolver for further names (the editor's elements by
/// Id), and an optional parent context asked for whatever this one doesn't
/// know. A change of the parent context is passed on as this context's change.
///
/// Names are matched without regard to case and may contain dots. Objects are
/// not owned; a destroyed object leaves the context, which then reports a
/// change.
class KVUICORE_EXPORT PropertyEditorContext : public BindingContext
{
    Q_OBJECT

public:
    explicit PropertyEditorContext(QObject* parent = nullptr);
    explicit PropertyEditorContext(BindingContext* parentContext, QObject* parent = nullptr);
    ~PropertyEditorContext() override;

    /// A context that has this one above it is refused.
    bool SetParentContext(BindingContext* parentContext);
    BindingContext* GetParentContext() const;

    void SetContextObject(QObject* object);
    /// A null object removes the name.
    void SetContextObject(const QString& name, QObject* object);
    QStringList GetContextObjectNames() const;

    QObject* GetContextObject() const override;
    QObject* GetContextObject(const QString& name) const override;

    /// Asked for names that were not set, before the parent context.
    using Resolver = std::function<QObject*(const QString& name)>;
    void SetResolver(Resolver resolver);

    /// Tells the bindings that lookups may give other answers now (for
    /// instance because the resolver knows new names).
    void NotifyContextChanged();

public Q_SLOTS:
    void ParentContextChanged();

protected:
    /// The object set under that name or given by the resolver, without
    /// asking the parent context.
    QObject* FindLocalContextObject(const QString& name) const;
    QObject* GetLocalDefaultObject() const;

private:
    Q_DISABLE_COPY_MOVE(PropertyEditorContext)
    friend class PropertyEditorContextImp;
    std::unique_ptr<PropertyEditorContextImp> const mpImp;
};

} // namespace Kavrel::UICore
