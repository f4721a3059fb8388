#include <KvUICore/propertyeditor/PropertyEditorSourceContext.h>

#include <QMetaMethod>
#include <QMetaProperty>
#include <QPointer>

namespace Kavrel::UICore {

class PropertyEditorSourceContextImp : public QObject
{
    Q_OBJECT

public:
    explicit PropertyEditorSourceContextImp(PropertyEditorSourceContext* owner)
        : mpOwner(owner)
    {
    }

    // Follows one dotted path from the source; each property passed through
    // is watched, so that a new object there resolves the bindings again.
    QObject* FollowPath(const QString& path)
    {
        QObject* object = mpSource;
        if (!object)
            return nullptr;
        const QStringList components = path.split(QLatin1Char('.'));
        for (const QString& component : components) {
            if (component.isEmpty())
                return nullptr;
            object = Step(object, component);
            if (!object)
                return nullptr;
        }
        return object;
    }

    QObject* Step(QObject* object, const QString& name)
    {
        const QMetaObject* metaObject = object->metaObject();
        const int index = metaObject->indexOfProperty(name.toLatin1().constData());
        if (index >= 0) {
            const QMetaProperty property = metaObject->property(index);
            if (property.isReadable() && (property.metaType().flags() & QMetaType::PointerToQObject)) {
                Watch(object, property);
                return property.read(object).value<QObject*>();
            }
        }
        return object->findChild<QObject*>(name, Qt::FindDirectChildrenOnly);
    }

    void Watch(QObject* object, const QMetaProperty& property)
    {
        if (!property.hasNotifySignal())
            return;
        static const QMetaMethod slot = staticMetaObject.method(staticMetaObject.indexOfSlot("PathChanged()"));
        if (connect(object, property.notifySignal(), this, slot, Qt::UniqueConnection))
            mWatchedObjects.append(object);
    }

    void Reset()
    {
        // Watches belong to the paths of the previous source.
        for (const QPointer<QObject>& object : std::as_const(mWatchedObjects)) {
            if (object)
                disconnect(object, nullptr, this, nullptr);
        }
        mWatchedObjects.clear();
    }

    PropertyEditorSourceContext* const mpOwner;
    QPointer<QObject> mpSource;
    QList<QPointer<QObject>> mWatchedObjects;
    QMetaObject::Connection mSourceDestroyedConnection;

public Q_SLOTS:
    void PathChanged() { emit mpOwner->ContextChanged(); }
};

PropertyEditorSourceContext::PropertyEditorSourceContext(QObject* source, BindingContext* parentContext,
                                                         QObject* parent)
    : PropertyEditorContext(parentContext, parent)
    , mpImp(std::make_unique<PropertyEditorSourceContextImp>(this))
{
    SetSourceObject(source);
}

PropertyEditorSourceContext::~PropertyEditorSourceContext()
{
    disconnect(mpImp->mSourceDestroyedConnection);
}

void PropertyEditorSourceContext::SetSourceObject(QObject* source)
{
    if (source == mpImp->mpSource)
        return;
    disconnect(mpImp->mSourceDestroyedConnection);
    mpImp->Reset();
    mpImp->mpSource = source;
    if (source) {
        mpImp->mSourceDestroyedConnection = connect(source, &QObject::destroyed, this, [this] {
            mpImp->Reset();
            emit ContextChanged();
        });
    }
    emit ContextChanged();
}

QObject* PropertyEditorSourceContext::GetSourceObject() const
{
    return mpImp->mpSource;
}

QObject* PropertyEditorSourceContext::GetContextObject() const
{
    if (mpImp->mpSource)
        return mpImp->mpSource;
    return PropertyEditorContext::GetContextObject();
}

QObject* PropertyEditorSourceContext::GetContextObject(const QString& name) const
{
    if (QObject* object = FindLocalContextObject(name))
        return object;
    if (QObject* object = mpImp->FollowPath(name))
        return object;
    BindingContext* parentContext = GetParentContext();
    return parentContext ? parentContext->GetContextObject(name) : nullptr;
}

} // namespace Kavrel::UICore

#include "PropertyEditorSourceContext.moc"
