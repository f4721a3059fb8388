#pragma once

#include <KvUICore/KvUICoreExport.h>

#include <QMetaType>
#include <QObject>
#include <QString>
#include <QVariant>

#include <memory>

namespace Kavrel::UICore {

class BindingContext;
class BindingImp;

/// Connects one attribute of a property editor element to a value: a literal
/// of a fixed type, a property of a source object, or a binding expression
/// that names such a property and is resolved against a BindingContext.
///
/// Expressions have the call form Name(arguments). "Binding(Width)" names the
/// property Width of the context's default object, "Binding(camera.Zoom)" the
/// property Zoom of the context object named "camera"; everything before the
/// last "." names the object, so "Binding(a.b.c)" asks for the object "a.b".
/// The name "Binding" matches without regard to case. Other names are kept but
/// never resolve. Texts without parentheses are literals.
///
/// A bound binding follows the source property's notify signal and emits
/// ValueChanged() and then BindingModified() when it fires; binding to another
/// source, or losing the source, emits both as well. A binding never re-enters
/// its own notification: when bindings form a loop (two elements bound to each
/// other, or an element bound to its own attribute, whose attributes share one
/// notify signal), the change goes round once, stops where it started and a
/// diagnostic names the loop. Diagnostics go to
/// CoreUIUtil::OutputDebugQString and to the "kvuicore.binding" logging
/// category (errors as warnings, tracing as debug output). The binding does not own its source or its
/// context; when either is destroyed the binding lets go of it.
class KVUICORE_EXPORT Binding : public QObject
{
    Q_OBJECT

public:
    /// An unbound binding without expression, holding an invalid literal.
    explicit Binding(QObject* parent = nullptr);
    /// A binding to a property of source, as SetSource.
    Binding(QObject* source, const QString& property, QObject* parent = nullptr);
    /// A string value in call form becomes the expression; any other value is
    /// held as a literal converted to the type: "True"/"False" (any case, or
    /// "1"/"0") for bool, C-locale numbers for the numeric types. A text that
    /// doesn't convert, or an empty text for a non-string type, holds an
    /// invalid value of that type.
    Binding(const QVariant& value, QMetaType::Type type, QObject* parent = nullptr);
    /// The same with the type as a QVariant type number (1 bool, 6 double,
    /// 10 string), for code written against the variant's type enumeration.
    QT_WARNING_PUSH
    QT_WARNING_DISABLE_DEPRECATED
    Binding(const QVariant& value, QVariant::Type type, QObject* parent = nullptr);
    QT_WARNING_POP
    ~Binding() override;

    /// Sets the expression; false when the text doesn't have the call form.
    bool SetExpression(const QString& expression);
    /// The expression; empty for a literal or a binding made with a source.
    QString GetExpression() const;

    /// Binds to a property of an object; a property that is missing or not
    /// readable leaves the binding unbound. A null object unbinds.
    void SetSource(QObject* source, const QString& property);
    /// The object bound to; null when unbound.
    QObject* GetSource() const;
    /// The name of the property bound to; empty when unbound.
    QString GetSourceProperty() const;
    /// Whether the binding follows a source property.
    bool IsBound() const;

    /// The source property's value when bound, the literal otherwise.
    QVariant GetValue() const;
    /// Writes the value to the source property when bound, or stores it as the
    /// literal; nothing happens when it equals the current value.
    bool SetValue(const QVariant& value);

    ///@{
    /// The type of the value; for a bound binding the property's type, with
    /// UserType standing for every type above it. The second form also gives
    /// the full meta-type id.
    QT_WARNING_PUSH
    QT_WARNING_DISABLE_DEPRECATED
    QVariant::Type GetValueType() const;
    QVariant::Type GetValueType(int& typeId) const;
    ///@}
    QT_WARNING_POP
    /// The same type as a meta-type.
    QMetaType::Type GetValueMetaType() const;

    /// The context that expressions are resolved against; not owned.
    void SetContext(BindingContext* context);
    /// The context expressions are resolved against; null when none is set.
    BindingContext* GetContext() const;

    /// Resolves the expression if it isn't resolved yet.
    void Evaluate();

    /// Whether the text has the call form Name(arguments).
    static bool IsExpression(const QString& text);

Q_SIGNALS:
    /// The value changed: the source property notified a change, the binding
    /// was bound to another source or lost its source, or a new literal was
    /// stored.
    void ValueChanged();
    /// Follows ValueChanged for a bound binding's change and for binding to
    /// another source or losing it; not for a new literal.
    void BindingModified();

private:
    Q_DISABLE_COPY_MOVE(Binding)
    friend class BindingImp;
    std::unique_ptr<BindingImp> const mpImp;
};

} // namespace Kavrel::UICore
