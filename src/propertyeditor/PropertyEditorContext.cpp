#include <KvUICore/propertyeditor/PropertyEditorContext.h>

#include <QHash>
#include <QPointer>

namespace Kavrel::UICore {

class PropertyEditorContextImp
{
public:
    struct NamedObject
    {
        QString msName;
        QPointer<QObject> mpObject;
    };

    explicit PropertyEditorContextImp(PropertyEditorContext* owner)
        : mpOwner(owner)
    {
    }

    bool IsReferenced(QObject* object) const
    {
        if (mpDefaultObject == object)
            return true;
        for (const NamedObject& named : mNamedObjects) {
            if (named.mpObject == object)
                return true;
        }
        return false;
    }

    void Watch(QObject* object)
    {
        if (!object || mWatched.contains(object))
            return;
        mWatched.insert(object, QObject::connect(object, &QObject::destroyed, mpOwner, [this](QObject* gone) {
            mWatched.remove(gone);
            for (auto it = mNamedObjects.begin(); it != mNamedObjects.end();) {
                if (it->mpObject.isNull())
                    it = mNamedObjects.erase(it);
                else
                    ++it;
            }
            emit mpOwner->ContextChanged();
        }));
    }

    void Unwatch(QObject* object)
    {
        if (!object || IsReferenced(object))
            return;
        const auto it = mWatched.find(object);
        if (it != mWatched.end()) {
            QObject::disconnect(it.value());
            mWatched.erase(it);
        }
    }

    PropertyEditorContext* const mpOwner;
    QPointer<QObject> mpDefaultObject;
    QHash<QString, NamedObject> mNamedObjects; // by lower-cased name
    QHash<QObject*, QMetaObject::Connection> mWatched;
    QPointer<BindingContext> mpParentContext;
    QMetaObject::Connection mParentChangedConnection;
    QMetaObject::Connection mParentDestroyedConnection;
    PropertyEditorContext::Resolver mResolver;
};

PropertyEditorContext::PropertyEditorContext(QObject* parent)
    : BindingContext(parent)
    , mpImp(std::make_unique<PropertyEditorContextImp>(this))
{
}

PropertyEditorContext::PropertyEditorContext(BindingContext* parentContext, QObject* parent)
    : PropertyEditorContext(parent)
{
    SetParentContext(parentContext);
}

PropertyEditorContext::~PropertyEditorContext()
{
    for (const QMetaObject::Connection& connection : std::as_const(mpImp->mWatched))
        disconnect(connection);
}

bool PropertyEditorContext::SetParentContext(BindingContext* parentContext)
{
    if (parentContext == mpImp->mpParentContext)
        return true;
    // A cycle would pass every change around for ever.
    for (BindingContext* context = parentContext; context;) {
        if (context == this)
            return false;
        auto* editorContext = qobject_cast<PropertyEditorContext*>(context);
        context = editorContext ? editorContext->GetParentContext() : nullptr;
    }
    disconnect(mpImp->mParentChangedConnection);
    disconnect(mpImp->mParentDestroyedConnection);
    mpImp->mpParentContext = parentContext;
    if (parentContext) {
        mpImp->mParentChangedConnection = connect(parentContext, &BindingContext::ContextChanged, this,
                                                  &PropertyEditorContext::ParentContextChanged);
        mpImp->mParentDestroyedConnection =
            connect(parentContext, &QObject::destroyed, this, &PropertyEditorContext::ParentContextChanged);
    }
    emit ContextChanged();
    return true;
}

BindingContext* PropertyEditorContext::GetParentContext() const
{
    return mpImp->mpParentContext;
}

void PropertyEditorContext::SetContextObject(QObject* object)
{
    QObject* previous = mpImp->mpDefaultObject;
    if (previous == object)
        return;
    mpImp->mpDefaultObject = object;
    mpImp->Unwatch(previous);
    mpImp->Watch(object);
    emit ContextChanged();
}

void PropertyEditorContext::SetContextObject(const QString& name, QObject* object)
{
    const QString key = name.toLower();
    const auto it = mpImp->mNamedObjects.find(key);
    QObject* previous = it == mpImp->mNamedObjects.end() ? nullptr : it->mpObject.data();
    if (previous == object)
        return;
    if (object)
        mpImp->mNamedObjects.insert(key, {name, object});
    else
        mpImp->mNamedObjects.erase(it);
    mpImp->Unwatch(previous);
    mpImp->Watch(object);
    emit ContextChanged();
}

QStringList PropertyEditorContext::GetContextObjectNames() const
{
    QStringList names;
    for (const auto& named : std::as_const(mpImp->mNamedObjects))
        names.append(named.msName);
    names.sort(Qt::CaseInsensitive);
    return names;
}

QObject* PropertyEditorContext::GetContextObject() const
{
    if (QObject* object = GetLocalDefaultObject())
        return object;
    return mpImp->mpParentContext ? mpImp->mpParentContext->GetContextObject() : nullptr;
}

QObject* PropertyEditorContext::GetContextObject(const QString& name) const
{
    if (QObject* object = FindLocalContextObject(name))
        return object;
    return mpImp->mpParentContext ? mpImp->mpParentContext->GetContextObject(name) : nullptr;
}

void PropertyEditorContext::SetResolver(Resolver resolver)
{
    mpImp->mResolver = std::move(resolver);
    emit ContextChanged();
}

void PropertyEditorContext::NotifyContextChanged()
{
    emit ContextChanged();
}

void PropertyEditorContext::ParentContextChanged()
{
    emit ContextChanged();
}

QObject* PropertyEditorContext::FindLocalContextObject(const QString& name) const
{
    const auto it = mpImp->mNamedObjects.constFind(name.toLower());
    if (it != mpImp->mNamedObjects.constEnd() && it->mpObject)
        return it->mpObject;
    return mpImp->mResolver ? mpImp->mResolver(name) : nullptr;
}

QObject* PropertyEditorContext::GetLocalDefaultObject() const
{
    return mpImp->mpDefaultObject;
}

} // namespace Kavrel::UICore
