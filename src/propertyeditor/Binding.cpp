#include <KvUICore/propertyeditor/BindingImp.h>
#include <KvUICore/util/Diagnostics_p.h>

#include <QLocale>
#include <QMetaMethod>

namespace Kavrel::UICore {

namespace {

QString hexAddress(const void* pointer)
{
    return QString::number(quintptr(pointer), 16);
}

QString className(const QObject* object)
{
    return QString::fromLatin1(object->metaObject()->className());
}

bool isBindingName(const QString& name)
{
    return name.compare(QLatin1String("Binding"), Qt::CaseInsensitive) == 0;
}

} // namespace

BindingImp::BindingImp(Binding* owner)
    : mpOwner(owner)
{}

BindingImp::~BindingImp()
{
    if (mpDeletedFlag)
        *mpDeletedFlag = true;
}

bool BindingImp::ParseCallForm(const QString& text, QString* name, QStringList* arguments)
{
    const qsizetype open = text.indexOf(QLatin1Char('('));
    if (open < 0)
        return false;
    // Any ")" after the "(" makes a call; the arguments end at the last one.
    const qsizetype close = text.lastIndexOf(QLatin1Char(')'));
    if (close < open)
        return false;
    if (name)
        *name = text.left(open).trimmed();
    if (arguments) {
        *arguments = text.mid(open + 1, close - open - 1).split(QLatin1Char(','), Qt::KeepEmptyParts);
        for (QString& argument : *arguments)
            argument = argument.trimmed();
    }
    return true;
}

bool BindingImp::Resolve()
{
    if (msExpression.isEmpty() || mpSource || !mpContext)
        return true;
    Internal::WriteDiagnostic(Internal::DiagnosticChannel::Binding, QtDebugMsg,
        [this] { return QStringLiteral("Resolving binding expression: %1\n").arg(msExpression); });
    QString name;
    QStringList arguments;
    if (!ParseCallForm(msExpression, &name, &arguments))
        return false;
    if (!isBindingName(name)) {
        Internal::WriteDiagnostic(Internal::DiagnosticChannel::Binding, QtWarningMsg, [&] {
            return QStringLiteral("Binding error: Unknown function %1 in expression %2\n").arg(name, msExpression);
        });
        return false;
    }
    if (arguments.size() != 1)
        return false;
    const QString& path = arguments.first();
    if (path.isEmpty())
        return false;
    const qsizetype dot = path.lastIndexOf(QLatin1Char('.'));
    const QString objectName = dot < 0 ? QString() : path.left(dot);
    const QString property = dot < 0 ? path : path.mid(dot + 1);
    if (property.isEmpty())
        return false;
    QObject* source = objectName.isEmpty() ? mpContext->GetContextObject() : mpContext->GetContextObject(objectName);
    if (!source) {
        // Not an error yet: the host may name the object after loading.
        Internal::WriteDiagnostic(Internal::DiagnosticChannel::Binding, QtDebugMsg, [&] {
            return QStringLiteral("Binding pending: no source object for expression %1\n").arg(msExpression);
        });
        return false;
    }
    return Bind(source, property);
}

bool BindingImp::Bind(QObject* source, const QString& property)
{
    const QMetaObject* metaObject = source->metaObject();
    const int index = metaObject->indexOfProperty(property.toLatin1().constData());
    if (index < 0 || !metaObject->property(index).isReadable()) {
        Internal::WriteDiagnostic(Internal::DiagnosticChannel::Binding, QtWarningMsg, [&] {
            return QStringLiteral("Binding error: Property %1 is not found in object %2\n")
                .arg(property, className(source));
        });
        return false;
    }
    // Rebinding lets go of the previous source first.
    Unbind(false);
    mpSource = source;
    msSourceProperty = property;
    mProperty = metaObject->property(index);
    miPropertyIndex = index;
    mPropertyType = mProperty.metaType();
    mbReadInPlace = mPropertyType.isValid() && mPropertyType != QMetaType::fromType<QVariant>();
    miValueTypeId = mProperty.metaType().id();
    mValueType = miValueTypeId < QMetaType::User ? QMetaType::Type(miValueTypeId) : QMetaType::User;
    if (mProperty.hasNotifySignal()) {
        static const QMetaMethod slot =
            staticMetaObject.method(staticMetaObject.indexOfSlot("SourceValueChangedSlot()"));
        mNotifyConnection = connect(source, mProperty.notifySignal(), this, slot);
    }
    mDestroyedConnection = connect(source, &QObject::destroyed, this, &BindingImp::SourceDestroyed);
    return true;
}

void BindingImp::Unbind(bool clearProperty)
{
    disconnect(mNotifyConnection);
    disconnect(mDestroyedConnection);
    mNotifyConnection = {};
    mDestroyedConnection = {};
    mpSource = nullptr;
    mProperty = QMetaProperty();
    if (clearProperty)
        msSourceProperty.clear();
}

bool BindingImp::NotifyRebound()
{
    // A receiver may delete the binding, for instance an element that drops
    // its bindings while updating its widget.
    bool deleted = false;
    bool* outer = mpDeletedFlag;
    mpDeletedFlag = &deleted;
    const bool wasNotifying = mbNotifying;
    mbNotifying = true;
    emit mpOwner->ValueChanged();
    if (!deleted)
        emit mpOwner->BindingModified();
    if (deleted) {
        if (outer)
            *outer = true;
        return false;
    }
    mbNotifying = wasNotifying;
    mpDeletedFlag = outer;
    return true;
}

void BindingImp::Reresolve()
{
    if (msExpression.isEmpty())
        return;
    const QObject* oldSource = mpSource.data();
    const QString oldProperty = msSourceProperty;
    Unbind(true);
    Resolve();
    if (mpSource.data() != oldSource || msSourceProperty != oldProperty)
        NotifyRebound();
}

const QVariant& BindingImp::ReadSource()
{
    const QMetaType type = mPropertyType;
    if (!mbReadInPlace) {
        mValue = mProperty.read(mpSource.data());
        return mValue;
    }
    // The property is read into the storage of the value last seen, which
    // already has the property's type: no variant is built per read.
    if (mValue.metaType() != type)
        mValue = QVariant(type);
    int status = -1;
    QVariant direct;
    void* storage = mValue.data();
    void* argv[] = {storage, &direct, &status};
    QMetaObject::metacall(mpSource.data(), QMetaObject::ReadProperty, miPropertyIndex, argv);
    if (status != -1)
        mValue = direct;
    else if (argv[0] != storage)
        mValue = QVariant(type, argv[0]);
    return mValue;
}

QVariant BindingImp::ConvertLiteral(const QVariant& value, QMetaType::Type type)
{
    if (!value.isValid() || type == QMetaType::UnknownType || value.metaType().id() == int(type))
        return value;
    const QMetaType metaType(type);
    if (value.metaType().id() == QMetaType::QString) {
        const QString text = value.toString().trimmed();
        if (type == QMetaType::QString)
            return value;
        if (text.isEmpty())
            return QVariant();
        if (type == QMetaType::Bool) {
            if (text.compare(QLatin1String("True"), Qt::CaseInsensitive) == 0 || text == QLatin1String("1"))
                return QVariant(true);
            if (text.compare(QLatin1String("False"), Qt::CaseInsensitive) == 0 || text == QLatin1String("0"))
                return QVariant(false);
            return QVariant();
        }
        if (type == QMetaType::Double || type == QMetaType::Float) {
            bool ok = false;
            const double number = QLocale::c().toDouble(text, &ok);
            if (!ok)
                return QVariant();
            QVariant result(number);
            result.convert(metaType);
            return result;
        }
        QVariant converted(text);
        return converted.convert(metaType) ? converted : QVariant();
    }
    QVariant converted = value;
    return converted.convert(metaType) ? converted : QVariant();
}

void BindingImp::SourceValueChangedSlot()
{
    QObject* source = mpSource.data();
    if (!source)
        return;
    if (mbNotifying) {
        // The change came back round to where it started: bindings that form
        // a loop settle after one round instead of recursing without end.
        Internal::WriteDiagnostic(Internal::DiagnosticChannel::Binding, QtWarningMsg, [&] {
            return QStringLiteral("Binding error: Binding loop stopped at %1::%2, expr: %3\n")
                .arg(className(source), msSourceProperty, msExpression);
        });
        return;
    }
    Internal::WriteDiagnostic(Internal::DiagnosticChannel::Binding, QtDebugMsg,
        [&] { return QStringLiteral("Source value changed: %1::%2\n").arg(className(source), msSourceProperty); });
    NotifyRebound();
}

void BindingImp::ContextChanged()
{
    Reresolve();
}

void BindingImp::SourceDestroyed()
{
    // An expression keeps waiting for its context; a direct binding keeps the
    // property it was given.
    Unbind(!msExpression.isEmpty());
    NotifyRebound();
}

Binding::Binding(QObject* parent)
    : QObject(parent)
    , mpImp(std::make_unique<BindingImp>(this))
{}

Binding::Binding(QObject* source, const QString& property, QObject* parent)
    : Binding(parent)
{
    SetSource(source, property);
}

QT_WARNING_PUSH
QT_WARNING_DISABLE_DEPRECATED
Binding::Binding(const QVariant& value, QVariant::Type type, QObject* parent)
    : Binding(value, QMetaType::Type(type), parent)
{}
QT_WARNING_POP

Binding::Binding(const QVariant& value, QMetaType::Type type, QObject* parent)
    : Binding(parent)
{
    mpImp->mValueType = type;
    mpImp->miValueTypeId = type;
    if (value.metaType().id() == QMetaType::QString && IsExpression(value.toString()))
        SetExpression(value.toString());
    else
        mpImp->mValue = BindingImp::ConvertLiteral(value, type);
}

Binding::~Binding() = default;

bool Binding::SetExpression(const QString& expression)
{
    QString name;
    QStringList arguments;
    if (!BindingImp::ParseCallForm(expression, &name, &arguments))
        return false;
    if (expression == mpImp->msExpression)
        return true;
    const bool wasBound = mpImp->mpSource;
    mpImp->msExpression = expression;
    mpImp->Unbind(true);
    if (isBindingName(name) && arguments.size() != 1)
        Internal::WriteDiagnostic(Internal::DiagnosticChannel::Binding, QtWarningMsg,
            [&] { return QStringLiteral("Binding error: Invalid binding expression %1\n").arg(expression); });
    mpImp->Resolve();
    if (wasBound || mpImp->mpSource)
        mpImp->NotifyRebound();
    return true;
}

QString Binding::GetExpression() const
{
    return mpImp->msExpression;
}

void Binding::SetSource(QObject* source, const QString& property)
{
    if (source == mpImp->mpSource && property == mpImp->msSourceProperty)
        return;
    if (!source) {
        const bool wasBound = mpImp->mpSource;
        mpImp->Unbind(false);
        mpImp->msSourceProperty = property;
        if (wasBound)
            mpImp->NotifyRebound();
        return;
    }
    if (mpImp->Bind(source, property))
        mpImp->NotifyRebound();
}

QObject* Binding::GetSource() const
{
    return mpImp->mpSource;
}

QString Binding::GetSourceProperty() const
{
    return mpImp->msSourceProperty;
}

bool Binding::IsBound() const
{
    return mpImp->mpSource;
}

QVariant Binding::GetValue() const
{
    return mpImp->mpSource ? mpImp->ReadSource() : mpImp->mValue;
}

bool Binding::SetValue(const QVariant& value)
{
    if (value == (mpImp->mpSource ? mpImp->ReadSource() : mpImp->mValue))
        return true;
    if (!mpImp->msExpression.isEmpty() && !mpImp->mpSource) {
        mpImp->Resolve();
        if (mpImp->mpSource && !mpImp->NotifyRebound())
            return true;
    }
    if (!mpImp->mpSource) {
        const QVariant stored = value.metaType().id() == QMetaType::QString && mpImp->mValueType != QMetaType::QString
                                    ? BindingImp::ConvertLiteral(value, mpImp->mValueType)
                                    : value;
        if (stored != mpImp->mValue || stored.metaType() != mpImp->mValue.metaType()) {
            mpImp->mValue = stored;
            emit ValueChanged();
        }
        return true;
    }
    QObject* source = mpImp->mpSource;
    Internal::WriteDiagnostic(Internal::DiagnosticChannel::Binding, QtDebugMsg, [&] {
        return QStringLiteral("Updating binding source property: %1::%2\n")
            .arg(className(source), mpImp->msSourceProperty);
    });
    source->setProperty(mpImp->msSourceProperty.toLatin1().constData(), value);
    return true;
}

QT_WARNING_PUSH
QT_WARNING_DISABLE_DEPRECATED
QVariant::Type Binding::GetValueType() const
{
    return QVariant::Type(mpImp->mValueType);
}

QVariant::Type Binding::GetValueType(int& typeId) const
{
    typeId = mpImp->miValueTypeId;
    return QVariant::Type(mpImp->mValueType);
}
QT_WARNING_POP

QMetaType::Type Binding::GetValueMetaType() const
{
    return mpImp->mValueType;
}

void Binding::SetContext(BindingContext* context)
{
    if (context == mpImp->mpContext)
        return;
    Internal::WriteDiagnostic(Internal::DiagnosticChannel::Binding, QtDebugMsg, [&] {
        return QStringLiteral("Setting binding context in 0x%1: context: 0x%2, expr: %3, property: %4\n")
            .arg(hexAddress(this), hexAddress(context), mpImp->msExpression, mpImp->msSourceProperty);
    });
    disconnect(mpImp->mContextConnection);
    disconnect(mpImp->mContextDestroyedConnection);
    mpImp->mpContext = context;
    if (context) {
        mpImp->mContextConnection =
            connect(context, &BindingContext::ContextChanged, mpImp.get(), &BindingImp::ContextChanged);
        mpImp->mContextDestroyedConnection =
            connect(context, &QObject::destroyed, mpImp.get(), &BindingImp::ContextChanged);
    }
    mpImp->Reresolve();
}

BindingContext* Binding::GetContext() const
{
    return mpImp->mpContext;
}

void Binding::Evaluate()
{
    if (mpImp->mpSource)
        return;
    mpImp->Resolve();
    if (mpImp->mpSource)
        mpImp->NotifyRebound();
}

bool Binding::IsExpression(const QString& text)
{
    return BindingImp::ParseCallForm(text, nullptr, nullptr);
}

} // namespace Kavrel::UICore
