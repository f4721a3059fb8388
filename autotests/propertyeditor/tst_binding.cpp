#include <KvUICore/propertyeditor/Binding.h>
#include <KvUICore/propertyeditor/PropertyEditorContext.h>
#include <KvUICore/propertyeditor/PropertyEditorSourceContext.h>
#include <KvUICore/util/Diagnostics_p.h>

#include <QPointer>
#include <QSignalSpy>
#include <QTest>

#include <memory>

using namespace Kavrel::UICore;

// A source with notifying, silent, read-only and object-valued properties.
class Source : public QObject
{
    Q_OBJECT
    Q_PROPERTY(int Width READ GetWidth WRITE SetWidth NOTIFY WidthChanged)
    Q_PROPERTY(double Zoom READ GetZoom WRITE SetZoom NOTIFY ZoomChanged)
    Q_PROPERTY(QString Caption READ GetCaption WRITE SetCaption)
    Q_PROPERTY(int Fixed READ GetFixed)
    Q_PROPERTY(QObject* Camera READ GetCamera WRITE SetCamera NOTIFY CameraChanged)

public:
    explicit Source(const QString& name = QString(), QObject* parent = nullptr)
        : QObject(parent)
    {
        setObjectName(name);
    }

    int GetWidth() const { return miWidth; }
    void SetWidth(int width)
    {
        ++miWrites;
        Set(miWidth, width, &Source::WidthChanged);
    }
    double GetZoom() const { return mdZoom; }
    void SetZoom(double zoom) { Set(mdZoom, zoom, &Source::ZoomChanged); }
    QString GetCaption() const { return msCaption; }
    void SetCaption(const QString& caption) { msCaption = caption; }
    int GetFixed() const { return 7; }
    QObject* GetCamera() const { return mpCamera; }
    void SetCamera(QObject* camera) { Set(mpCamera, QPointer<QObject>(camera), &Source::CameraChanged); }

    int miWidth = 0;
    int miWrites = 0;
    double mdZoom = 1.0;
    QString msCaption;
    QPointer<QObject> mpCamera;

Q_SIGNALS:
    void WidthChanged();
    void ZoomChanged();
    void CameraChanged();

private:
    template <typename T> void Set(T& field, const T& value, void (Source::*changed)())
    {
        if (field == value)
            return;
        field = value;
        emit(this->*changed)();
    }
};

class tst_Binding : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        mMessages.clear();
        Internal::SetDiagnosticHook([this](const QString& text) { mMessages.append(text); });
    }

    void cleanup() { Internal::SetDiagnosticHook({}); }

    void callForm_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("expression");

        QTest::newRow("binding") << "Binding(Width)" << true;
        QTest::newRow("lower case with blanks") << "binding( X )" << true;
        QTest::newRow("two arguments") << "Binding(a, b)" << true;
        QTest::newRow("other name") << "Lookup(x)" << true;
        QTest::newRow("trailing blanks") << "Binding(x)  " << true;
        QTest::newRow("plain text") << "Width" << false;
        QTest::newRow("no closing parenthesis") << "Binding(Width" << false;
        QTest::newRow("closing before opening") << "a)b(" << false;
        // A "(" followed by a ")" is all a call takes.
        QTest::newRow("no name") << "(optional)" << true;
        QTest::newRow("text after call") << "Binding(x) and more" << true;
        QTest::newRow("empty") << "" << false;
    }

    void callForm()
    {
        QFETCH(QString, text);
        QFETCH(bool, expression);

        QCOMPARE(Binding::IsExpression(text), expression);
        Binding binding;
        QCOMPARE(binding.SetExpression(text), expression);
        QCOMPARE(binding.GetExpression(), expression ? text : QString());
    }

    void literals_data()
    {
        QTest::addColumn<QVariant>("value");
        QTest::addColumn<int>("type");
        QTest::addColumn<QVariant>("expected");

        QTest::newRow("True") << QVariant(QStringLiteral("True")) << int(QMetaType::Bool) << QVariant(true);
        QTest::newRow("false any case") << QVariant(QStringLiteral("fAlSe")) << int(QMetaType::Bool) << QVariant(false);
        QTest::newRow("bool from garbage") << QVariant(QStringLiteral("maybe")) << int(QMetaType::Bool) << QVariant();
        QTest::newRow("double") << QVariant(QStringLiteral(" 12.5 ")) << int(QMetaType::Double) << QVariant(12.5);
        QTest::newRow("double empty") << QVariant(QString()) << int(QMetaType::Double) << QVariant();
        QTest::newRow("double garbage") << QVariant(QStringLiteral("12,5")) << int(QMetaType::Double) << QVariant();
        QTest::newRow("string") << QVariant(QStringLiteral("Tip")) << int(QMetaType::QString)
                                << QVariant(QStringLiteral("Tip"));
        QTest::newRow("int to double") << QVariant(3) << int(QMetaType::Double) << QVariant(3.0);
    }

    void literals()
    {
        QFETCH(QVariant, value);
        QFETCH(int, type);
        QFETCH(QVariant, expected);

        // Written against the variant's type enumeration, as hosts do.
        QT_WARNING_PUSH
        QT_WARNING_DISABLE_DEPRECATED
        Binding binding(value, QVariant::Type(type));
        QCOMPARE(binding.GetValueType(), QVariant::Type(type));
        int typeId = -1;
        QCOMPARE(binding.GetValueType(typeId), QVariant::Type(type));
        QT_WARNING_POP
        QCOMPARE(typeId, type);
        QCOMPARE(binding.GetValueMetaType(), QMetaType::Type(type));
        QVERIFY(binding.GetExpression().isEmpty());
        const QVariant actual = binding.GetValue();
        QCOMPARE(actual.isValid(), expected.isValid());
        if (expected.isValid()) {
            QCOMPARE(actual.metaType(), expected.metaType());
            QCOMPARE(actual, expected);
        }
    }

    void literalsNeverResolve()
    {
        Source source;
        PropertyEditorContext context;
        context.SetContextObject(&source);
        Binding binding(QVariant(QStringLiteral("True")), QMetaType::Bool);
        binding.SetContext(&context);
        binding.Evaluate();
        QCOMPARE(binding.GetValue(), QVariant(true));
        QVERIFY(!binding.GetSource());
        for (const QString& message : std::as_const(mMessages))
            QVERIFY2(!message.startsWith(QStringLiteral("Resolving")), qPrintable(message));

        // Values set on a literal are converted and report only real changes.
        mMessages.clear();
        QSignalSpy changed(&binding, &Binding::ValueChanged);
        QVERIFY(binding.SetValue(true));
        QCOMPARE(changed.count(), 0);
        QVERIFY(binding.SetValue(QStringLiteral("false")));
        QCOMPARE(binding.GetValue(), QVariant(false));
        QCOMPARE(changed.count(), 1);
        QVERIFY(binding.SetValue(false));
        QCOMPARE(changed.count(), 1);
        QVERIFY(mMessages.isEmpty());
    }

    void resolve_data()
    {
        QTest::addColumn<QString>("expression");
        QTest::addColumn<QString>("expectedSource");
        QTest::addColumn<QString>("expectedProperty");

        QTest::newRow("default object") << "Binding(Width)" << QStringLiteral("default") << "Width";
        QTest::newRow("lower case with blanks") << "binding( Width )" << QStringLiteral("default") << "Width";
        QTest::newRow("named object") << "Binding(camera.Zoom)" << QStringLiteral("camera") << "Zoom";
        QTest::newRow("dotted object name") << "Binding(a.b.Width)" << QStringLiteral("a.b") << "Width";
        QTest::newRow("leading dot is the default object") << "Binding(.Width)" << QStringLiteral("default") << "Width";
        QTest::newRow("unknown object") << "Binding(nobody.Width)" << QStringLiteral("") << "";
        QTest::newRow("missing property") << "Binding(Missing)" << QStringLiteral("") << "";
        QTest::newRow("empty property") << "Binding(camera.)" << QStringLiteral("") << "";
        QTest::newRow("empty path") << QStringLiteral("Binding()") << QStringLiteral("") << QStringLiteral("");
        QTest::newRow("two arguments") << QStringLiteral("Binding(a, b)") << QStringLiteral("") << QStringLiteral("");
        QTest::newRow("other call") << QStringLiteral("Lookup(Width)") << QStringLiteral("") << QStringLiteral("");
    }

    void resolve()
    {
        QFETCH(QString, expression);
        QFETCH(QString, expectedSource);

        Source defaultObject(QStringLiteral("default"));
        Source camera(QStringLiteral("camera"));
        Source dotted(QStringLiteral("a.b"));
        Source a(QStringLiteral("a"));
        PropertyEditorContext context;
        context.SetContextObject(&defaultObject);
        context.SetContextObject(QStringLiteral("camera"), &camera);
        context.SetContextObject(QStringLiteral("a.b"), &dotted);
        context.SetContextObject(QStringLiteral("a"), &a);

        Binding binding;
        binding.SetContext(&context);
        QSignalSpy modified(&binding, &Binding::BindingModified);
        QVERIFY(binding.SetExpression(expression));
        QCOMPARE(binding.GetSource() ? binding.GetSource()->objectName() : QString(), expectedSource);
        QTEST(binding.GetSourceProperty(), "expectedProperty");
        QCOMPARE(binding.IsBound(), !expectedSource.isEmpty());
        QCOMPARE(modified.count(), expectedSource.isEmpty() ? 0 : 1);
    }

    void resolutionMessages()
    {
        Source source;
        PropertyEditorContext context;
        context.SetContextObject(&source);
        Binding binding;
        binding.SetContext(&context);

        mMessages.clear();
        QVERIFY(binding.SetExpression(QStringLiteral("Binding(a, b)")));
        QCOMPARE(mMessages, QStringList({QStringLiteral("Binding error: Invalid binding expression Binding(a, b)\n"),
                                         QStringLiteral("Resolving binding expression: Binding(a, b)\n")}));

        mMessages.clear();
        QVERIFY(binding.SetExpression(QStringLiteral("Binding(Missing)")));
        QCOMPARE(mMessages,
                 QStringList({QStringLiteral("Resolving binding expression: Binding(Missing)\n"),
                              QStringLiteral("Binding error: Property Missing is not found in object Source\n")}));

        // Unchanged expression: nothing happens.
        mMessages.clear();
        QVERIFY(binding.SetExpression(QStringLiteral("Binding(Missing)")));
        QVERIFY(mMessages.isEmpty());

        // Without a context the invalid expression is still reported, once.
        Binding loose;
        mMessages.clear();
        QVERIFY(loose.SetExpression(QStringLiteral("binding(x,)")));
        QCOMPARE(mMessages, QStringList({QStringLiteral("Binding error: Invalid binding expression binding(x,)\n")}));

        // Setting a context says so, once.
        PropertyEditorContext empty;
        Binding width(QVariant(QStringLiteral("Binding(Width)")), QMetaType::Double);
        mMessages.clear();
        width.SetContext(&empty);
        QVERIFY(!mMessages.isEmpty());
        QCOMPARE(mMessages.first(),
                 QStringLiteral("Setting binding context in 0x%1: context: 0x%2, expr: Binding(Width), property: \n")
                     .arg(QString::number(quintptr(&width), 16), QString::number(quintptr(&empty), 16)));
        mMessages.clear();
        width.SetContext(&empty);
        QVERIFY(mMessages.isEmpty());
    }

    void notifyPropertyIsFollowed()
    {
        Source source;
        PropertyEditorContext context;
        context.SetContextObject(&source);
        Binding binding(QVariant(QStringLiteral("Binding(Width)")), QMetaType::Double);
        binding.SetContext(&context);
        QCOMPARE(binding.GetSource(), &source);
        QCOMPARE(binding.GetValueMetaType(), QMetaType::Int);

        QSignalSpy valueChanged(&binding, &Binding::ValueChanged);
        QSignalSpy modified(&binding, &Binding::BindingModified);
        QList<int> order;
        connect(&binding, &Binding::ValueChanged, this, [&order] { order.append(1); });
        connect(&binding, &Binding::BindingModified, this, [&order] { order.append(2); });
        mMessages.clear();
        source.SetWidth(42);
        QCOMPARE(valueChanged.count(), 1);
        QCOMPARE(modified.count(), 1);
        QCOMPARE(order, QList<int>({1, 2}));
        QCOMPARE(binding.GetValue(), QVariant(42));
        QCOMPARE(mMessages, QStringList{QStringLiteral("Source value changed: Source::Width\n")});

        source.SetWidth(42);
        QCOMPARE(valueChanged.count(), 1);
    }

    void propertyWithoutNotifyIsReadOnDemand()
    {
        Source source;
        Binding binding(&source, QStringLiteral("Caption"));
        QVERIFY(binding.IsBound());
        QSignalSpy valueChanged(&binding, &Binding::ValueChanged);
        source.SetCaption(QStringLiteral("Hello"));
        QCOMPARE(valueChanged.count(), 0);
        QCOMPARE(binding.GetValue(), QVariant(QStringLiteral("Hello")));

        Binding fixed(&source, QStringLiteral("Fixed"));
        QCOMPARE(fixed.GetValue(), QVariant(7));
        QVERIFY(fixed.SetValue(8));
        QCOMPARE(fixed.GetValue(), QVariant(7));
    }

    void setValueWritesBack()
    {
        Source source;
        source.SetWidth(5);
        source.miWrites = 0;
        Binding binding(&source, QStringLiteral("Width"));
        QSignalSpy valueChanged(&binding, &Binding::ValueChanged);
        mMessages.clear();

        QVERIFY(binding.SetValue(5));
        QCOMPARE(source.miWrites, 0);
        QVERIFY(mMessages.isEmpty());

        QVERIFY(binding.SetValue(9));
        QCOMPARE(source.miWrites, 1);
        QCOMPARE(source.GetWidth(), 9);
        QCOMPARE(valueChanged.count(), 1);
        QCOMPARE(mMessages.first(), QStringLiteral("Updating binding source property: Source::Width\n"));

        // The stored value is the source's, even after the source changed on its own.
        source.SetWidth(3);
        QVERIFY(binding.SetValue(9));
        QCOMPARE(source.GetWidth(), 9);
    }

    void setValueResolvesPendingExpression()
    {
        Source source;
        PropertyEditorContext context;
        Binding binding(QVariant(QStringLiteral("Binding(w.Width)")), QMetaType::Int);
        binding.SetContext(&context);
        QVERIFY(!binding.IsBound());
        // The object turns up without the context telling anyone.
        QSignalSpy modified(&binding, &Binding::BindingModified);
        const QSignalBlocker blocker(&context);
        context.SetContextObject(QStringLiteral("w"), &source);
        QVERIFY(!binding.IsBound());
        QVERIFY(binding.SetValue(11));
        QCOMPARE(binding.GetSource(), &source);
        QCOMPARE(source.GetWidth(), 11);
        // Once for the new source, once for its changed value.
        QCOMPARE(modified.count(), 2);
    }

    void rebindDisconnectsPreviousSource()
    {
        Source first;
        Source second;
        Binding binding(&first, QStringLiteral("Width"));
        QSignalSpy valueChanged(&binding, &Binding::ValueChanged);
        binding.SetSource(&second, QStringLiteral("Width"));
        QCOMPARE(valueChanged.count(), 1);
        first.SetWidth(1);
        QCOMPARE(valueChanged.count(), 1);
        second.SetWidth(1);
        QCOMPARE(valueChanged.count(), 2);

        // A failed rebind keeps the binding where it was.
        binding.SetSource(&first, QStringLiteral("Missing"));
        QCOMPARE(binding.GetSource(), &second);
        binding.SetSource(nullptr, QStringLiteral("Width"));
        QVERIFY(!binding.IsBound());
        second.SetWidth(2);
        QCOMPARE(valueChanged.count(), 3);
    }

    void contextSwitchedWhileBound()
    {
        Source first;
        Source second;
        first.SetWidth(1);
        second.SetWidth(2);
        PropertyEditorContext one;
        PropertyEditorContext two;
        one.SetContextObject(&first);
        two.SetContextObject(&second);

        Binding binding(QVariant(QStringLiteral("Binding(Width)")), QMetaType::Int);
        binding.SetContext(&one);
        QCOMPARE(binding.GetValue(), QVariant(1));
        QSignalSpy modified(&binding, &Binding::BindingModified);
        binding.SetContext(&two);
        QCOMPARE(binding.GetSource(), &second);
        QCOMPARE(binding.GetValue(), QVariant(2));
        QCOMPARE(modified.count(), 1);

        first.SetWidth(10);
        one.SetContextObject(&second);
        QCOMPARE(modified.count(), 1);
        second.SetWidth(20);
        QCOMPARE(modified.count(), 2);

        binding.SetContext(nullptr);
        QVERIFY(!binding.IsBound());
        QCOMPARE(binding.GetExpression(), QStringLiteral("Binding(Width)"));
    }

    void contextObjectReplaced()
    {
        Source first;
        Source second;
        PropertyEditorContext context;
        context.SetContextObject(QStringLiteral("target"), &first);
        Binding binding(QVariant(QStringLiteral("Binding(target.Zoom)")), QMetaType::Double);
        binding.SetContext(&context);
        QCOMPARE(binding.GetSource(), &first);

        QSignalSpy modified(&binding, &Binding::BindingModified);
        context.SetContextObject(QStringLiteral("target"), &second);
        QCOMPARE(binding.GetSource(), &second);
        QCOMPARE(modified.count(), 1);
        first.SetZoom(3);
        QCOMPARE(modified.count(), 1);

        // A change that leaves the answer the same doesn't disturb the binding.
        context.SetContextObject(QStringLiteral("unrelated"), &first);
        QCOMPARE(modified.count(), 1);

        context.SetContextObject(QStringLiteral("target"), nullptr);
        QVERIFY(!binding.IsBound());
        QCOMPARE(modified.count(), 2);
    }

    void parentContextsReachBindingsWithoutCycles()
    {
        Source camera;
        PropertyEditorContext root;
        PropertyEditorContext middle(&root);
        PropertyEditorContext leaf(&middle);
        Binding binding(QVariant(QStringLiteral("Binding(camera.Zoom)")), QMetaType::Double);
        binding.SetContext(&leaf);
        QVERIFY(!binding.IsBound());

        QSignalSpy leafChanged(&leaf, &BindingContext::ContextChanged);
        root.SetContextObject(QStringLiteral("camera"), &camera);
        QCOMPARE(leafChanged.count(), 1);
        QCOMPARE(binding.GetSource(), &camera);

        // A nearer context shadows the one above.
        Source closer;
        leaf.SetContextObject(QStringLiteral("Camera"), &closer);
        QCOMPARE(binding.GetSource(), &closer);

        // No context may become its own ancestor.
        QVERIFY(!root.SetParentContext(&leaf));
        QVERIFY(!root.SetParentContext(&root));
        QCOMPARE(root.GetParentContext(), nullptr);
        QVERIFY(middle.SetParentContext(nullptr));
        QVERIFY(root.SetParentContext(&leaf));
    }

    void destroyedSourceAndContextAreDropped()
    {
        auto source = std::make_unique<Source>();
        source->SetWidth(4);
        auto context = std::make_unique<PropertyEditorContext>();
        context->SetContextObject(source.get());
        Binding binding(QVariant(QStringLiteral("Binding(Width)")), QMetaType::Int);
        binding.SetContext(context.get());
        QCOMPARE(binding.GetValue(), QVariant(4));

        QSignalSpy modified(&binding, &Binding::BindingModified);
        source.reset();
        QVERIFY(!binding.IsBound());
        QVERIFY(modified.count() >= 1);
        QCOMPARE(binding.GetValue(), QVariant(4));
        QCOMPARE(context->GetContextObject(), nullptr);

        Source replacement;
        context->SetContextObject(&replacement);
        QCOMPARE(binding.GetSource(), &replacement);
        context.reset();
        QVERIFY(!binding.IsBound());
        QCOMPARE(binding.GetContext(), nullptr);
        QVERIFY(binding.SetValue(12));
        QCOMPARE(replacement.GetWidth(), 0);
    }

    void sourceContextFollowsObjectProperties()
    {
        Source owner;
        Source firstCamera(QStringLiteral("first"));
        Source secondCamera(QStringLiteral("second"));
        Source lens(QStringLiteral("Lens"), &secondCamera);
        owner.SetCamera(&firstCamera);

        PropertyEditorSourceContext context(&owner);
        QCOMPARE(context.GetContextObject(), &owner);
        Binding zoom(QVariant(QStringLiteral("Binding(Camera.Zoom)")), QMetaType::Double);
        zoom.SetContext(&context);
        QCOMPARE(zoom.GetSource(), &firstCamera);

        owner.SetCamera(&secondCamera);
        QCOMPARE(zoom.GetSource(), &secondCamera);

        // A child object by name, below an object-valued property.
        Binding lensZoom(QVariant(QStringLiteral("Binding(Camera.Lens.Zoom)")), QMetaType::Double);
        lensZoom.SetContext(&context);
        QCOMPARE(lensZoom.GetSource(), &lens);

        // Explicit names come first.
        Source named;
        context.SetContextObject(QStringLiteral("camera"), &named);
        QCOMPARE(zoom.GetSource(), &named);

        context.SetSourceObject(nullptr);
        QCOMPARE(lensZoom.GetSource(), nullptr);
    }

    void resolverAndNamesIgnoreCase()
    {
        Source element(QStringLiteral("Size"));
        PropertyEditorContext context;
        context.SetResolver([&element](const QString& name) -> QObject* {
            return name.compare(QStringLiteral("size"), Qt::CaseInsensitive) == 0 ? &element : nullptr;
        });
        Binding binding(QVariant(QStringLiteral("Binding(SIZE.Width)")), QMetaType::Int);
        binding.SetContext(&context);
        QCOMPARE(binding.GetSource(), &element);

        Source other;
        context.SetContextObject(QStringLiteral("SiZe"), &other);
        QCOMPARE(binding.GetSource(), &other);
        QCOMPARE(context.GetContextObjectNames(), QStringList{QStringLiteral("SiZe")});
        context.NotifyContextChanged();
        QCOMPARE(binding.GetSource(), &other);
    }

    void receiverMayDeleteBinding()
    {
        Source source;
        auto* binding = new Binding(&source, QStringLiteral("Width"));
        QPointer<Binding> guard(binding);
        int modified = 0;
        connect(binding, &Binding::ValueChanged, this, [binding] { delete binding; });
        connect(binding, &Binding::BindingModified, this, [&modified] { ++modified; });
        source.SetWidth(3);
        QVERIFY(guard.isNull());
        QCOMPARE(modified, 0);
        source.SetWidth(4);
    }

private:
    QStringList mMessages;
};

QTEST_MAIN(tst_Binding)
#include "tst_binding.moc"
