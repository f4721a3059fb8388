#pragma once

#include <KvUICore/propertyeditor/Binding.h>
#include <KvUICore/propertyeditor/BindingContext.h>

#include <QMetaProperty>
#include <QPointer>
#include <QStringList>

namespace Kavrel::UICore {

class BindingImp : public QObject
{
    Q_OBJECT

public:
    explicit BindingImp(Binding* owner);
    ~BindingImp() override;

    // The parts of a text in call form, a "(" followed by a ")": the name
    // before the first "(" (may be empty), the arguments between it and the
    // last ")", split at "," and trimmed.
    static bool ParseCallForm(const QString& text, QString* name, QStringList* arguments);

    bool Resolve();
    bool Bind(QObject* source, const QString& property);
    // Drops the source; the property name is cleared when clearProperty is set.
    void Unbind(bool clearProperty);
    // Emits ValueChanged() and BindingModified(); false when a receiver
    // deleted the binding meanwhile.
    bool NotifyRebound();
    // Unbinds an expression and resolves it again; notifies when the source
    // or the property changed.
    void Reresolve();
    // Reads the source property into the value and returns it.
    const QVariant& ReadSource();
    static QVariant ConvertLiteral(const QVariant& value, QMetaType::Type type);

    QString msExpression;
    QPointer<QObject> mpSource;
    QString msSourceProperty;
    QVariant mValue;
    QMetaType::Type mValueType = QMetaType::UnknownType;
    int miValueTypeId = QMetaType::UnknownType;
    QPointer<BindingContext> mpContext;
    Binding* const mpOwner;

    QMetaProperty mProperty;
    int miPropertyIndex = -1;
    QMetaType mPropertyType;
    bool mbReadInPlace = false;
    QMetaObject::Connection mNotifyConnection;
    QMetaObject::Connection mDestroyedConnection;
    QMetaObject::Connection mContextConnection;
    QMetaObject::Connection mContextDestroyedConnection;
    // Set while signals are emitted; tells the emitter that the binding died.
    bool* mpDeletedFlag = nullptr;
    // Set while ValueChanged() and BindingModified() go out; a source change
    // that arrives meanwhile has come round a loop of bindings.
    bool mbNotifying = false;

public Q_SLOTS:
    void SourceValueChangedSlot();
    void ContextChanged();

private:
    void SourceDestroyed();
};

} // namespace Kavrel::UICore
