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
    /// An empty context without a parent.
    explicit PropertyEditorContext(QObject* parent = nullptr);
    /// An empty context asking parentContext for what it doesn't know.
    explicit PropertyEditorContext(BindingContext* parentContext, QObject* parent = nullptr);
    ~PropertyEditorContext() override;

    /// A context that has this one above it is refused.
    bool SetParentContext(BindingContext* parentContext);
    /// The parent context; null when none.
    BindingContext* GetParentContext() const;

    /// Sets the default object (null: none) and reports a change.
    void SetContextObject(QObject* object);
    /// A null object removes the name.
    void SetContextObject(const QString& name, QObject* object);
    /// The names set, sorted without regard to case.
    QStringList GetContextObjectNames() const;

    QObject* GetContextObject() const override;
    QObject* GetContextObject(const QString& name) const override;

    /// Asked for names that were not set, before the parent context.
    using Resolver = std::function<QObject*(const QString& name)>;
    /// Sets the function asked for names that were not set, and reports a change.
    void SetResolver(Resolver resolver);

    /// Tells the bindings that lookups may give other answers now (for
    /// instance because the resolver knows new names).
    void NotifyContextChanged();

public Q_SLOTS:
    /// Passes a change of the parent context on as this context's change.
    void ParentContextChanged();

protected:
    /// The object set under that name or given by the resolver, without
    /// asking the parent context.
    QObject* FindLocalContextObject(const QString& name) const;
    /// The default object set on this context, without asking the parent; null when none.
    QObject* GetLocalDefaultObject() const;

private:
    Q_DISABLE_COPY_MOVE(PropertyEditorContext)
    friend class PropertyEditorContextImp;
    std::unique_ptr<PropertyEditorContextImp> const mpImp;
};

} // namespace Kavrel::UICore
