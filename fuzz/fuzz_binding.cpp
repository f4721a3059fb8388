// Arbitrary text as a binding expression resolved against a context with a
// default object and named ones, read and written; the text after the first
// NUL is the value written, and also a literal of every type.
#include "FuzzSupport.h"

#include <KvUICore/propertyeditor/Binding.h>
#include <KvUICore/propertyeditor/PropertyEditorContext.h>

#include <QStringList>

#include <array>

using namespace Kavrel::UICore;

namespace {

class Source : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QString Name MEMBER msName NOTIFY Changed)
    Q_PROPERTY(double Width MEMBER mdWidth NOTIFY Changed)
    Q_PROPERTY(int Count MEMBER miCount NOTIFY Changed)
    Q_PROPERTY(bool Visible MEMBER mbVisible NOTIFY Changed)
    Q_PROPERTY(QStringList Items MEMBER mItems NOTIFY Changed)
    Q_PROPERTY(int ReadOnly READ ReadOnly CONSTANT)

public:
    int ReadOnly() const { return 7; }

    QString msName;
    double mdWidth = 1.5;
    int miCount = 3;
    bool mbVisible = true;
    QStringList mItems;

Q_SIGNALS:
    void Changed();
};

constexpr std::array<QMetaType::Type, 8> kLiteralTypes{QMetaType::Bool,    QMetaType::Int,   QMetaType::UInt,
                                                       QMetaType::Double,  QMetaType::Float, QMetaType::LongLong,
                                                       QMetaType::QString, QMetaType::QColor};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    KvFuzz::EnsureApplication();
    const KvFuzz::Split parts = KvFuzz::SplitAtNul(data, size);
    const QString expression = QString::fromUtf8(parts.head.isNull() ? parts.body : parts.head);
    const QString value = QString::fromUtf8(parts.body);

    Source defaultObject;
    Source camera;
    Source dotted;
    PropertyEditorContext context;
    context.SetContextObject(&defaultObject);
    context.SetContextObject(QStringLiteral("camera"), &camera);
    context.SetContextObject(QStringLiteral("a.b"), &dotted);

    Binding::IsExpression(expression);
    Binding binding;
    binding.SetContext(&context);
    binding.SetExpression(expression);
    binding.Evaluate();
    binding.GetValue();
    int typeId = 0;
    binding.GetValueType(typeId);
    binding.SetValue(value);
    Q_EMIT defaultObject.Changed();
    // The context changing under a resolved binding, then losing an object.
    context.SetContextObject(QStringLiteral("camera"), &dotted);
    context.SetContextObject(QStringLiteral("a.b"), nullptr);
    binding.GetValue();

    for (QMetaType::Type type : kLiteralTypes) {
        Binding literal(value, type);
        literal.GetValue();
        literal.SetValue(expression);
    }
    return 0;
}

#include "fuzz_binding.moc"
