#include "../PaintProbe.h"

#include <KvUICore/core/CoreUIManager.h>
#include <KvUICore/propertyeditor/Binding.h>
#include <KvUICore/propertyeditor/CheckBoxElement.h>
#include <KvUICore/propertyeditor/ElementRegistry_p.h>
#include <KvUICore/propertyeditor/GroupElement.h>
#include <KvUICore/propertyeditor/PageElement.h>
#include <KvUICore/propertyeditor/PropertyEditor.h>
#include <KvUICore/propertyeditor/PropertyEditorContext.h>
#include <KvUICore/propertyeditor/TextBoxElement.h>
#include <KvUICore/theme/ThemeManager.h>
#include <KvUICore/util/Diagnostics_p.h>
#include <KvUICore/util/TranslationTable.h>
#include <KvUICore/widgets/Divider.h>
#include <KvUICore/widgets/Label.h>
#include <KvUICore/widgets/RolloutContainer.h>

#include <QApplication>
#include <QCheckBox>
#include <QDir>
#include <QDomElement>
#include <QGridLayout>
#include <QLoggingCategory>
#include <QMouseEvent>
#include <QRegularExpression>
#include <QScopeGuard>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QUrl>

using namespace Kavrel::UICore;

namespace {

using Element = PropertyEditorElement;

// A whole definition around the elements of one group.
QString GroupDocument(const QString& groupChildren, const QString& head = QString(),
                      const QString& beforePage = QString())
{
    return QStringLiteral("<Editor %1>%2<PageElement><GroupElement Id=\"g\" Label=\"Group\">%3</GroupElement>"
                          "</PageElement></Editor>")
        .arg(head, beforePage, groupChildren);
}

// Builds the page as the first paint would.
void Build(PropertyEditor& editor)
{
    editor.grab();
}

template <typename T = PropertyEditorElement> T* Find(PropertyEditor& editor, const char* id)
{
    return qobject_cast<T*>(editor.FindElement(QString::fromLatin1(id)));
}

QString WriteFile(const QTemporaryDir& folder, const char* name, const QByteArray& content)
{
    const QString path = folder.filePath(QString::fromLatin1(name));
    return Probe::WriteFile(path, content) ? path : QString();
}

struct Cell
{
    int row = -2;
    int column = -2;
    int rowSpan = 0;
    int columnSpan = 0;
};

Cell CellOf(QGridLayout* grid, QWidget* widget)
{
    Cell cell;
    const int index = grid ? grid->indexOf(widget) : -1;
    if (index >= 0)
        grid->getItemPosition(index, &cell.row, &cell.column, &cell.rowSpan, &cell.columnSpan);
    return cell;
}

// An element type of another module that reads an attribute of its own and
// fails to load when it is missing.
class StrictElement : public PropertyEditorElement
{
    Q_OBJECT

public:
    StrictElement()
        : PropertyEditorElement(Leaf)
    {}

    QString msRequired;

    // Open to the tests.
    bool Load(const QDomElement& element) override
    {
        if (!PropertyEditorElement::Load(element))
            return false;
        msRequired = element.attribute(QStringLiteral("Required"));
        return !msRequired.isEmpty();
    }
};

class HostPanel : public PropertyEditorElement
{
public:
    HostPanel()
        : PropertyEditorElement(Container)
    {}
    using PropertyEditorElement::Load;
};

enum DefinitionSource
{
    Text,
    File,
    SparseFile,
    Pipe,
    Folder,
};

// Deletes the editor from whatever signal it is connected to.
class Deleter : public QObject
{
    Q_OBJECT

public:
    explicit Deleter(QPointer<PropertyEditor> editor)
        : mpEditor(editor)
    {}

public Q_SLOTS:
    void DeleteEditor() { delete mpEditor.data(); }

private:
    QPointer<PropertyEditor> mpEditor;
};

} // namespace

class tst_PropertyEditor : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        CoreUIManager::Initialize(nullptr);
        ThemeManager::GetInstance()->SetThemeFilesPath(QStringLiteral(KVUICORE_THEMES_DIR).toStdWString().c_str());
        PropertyEditorElement::RegisterElementType<StrictElement>("StrictElement");
    }

    void init()
    {
        mMessages.clear();
        Internal::SetDiagnosticHook([this](const QString& text) { mMessages.append(text); });
    }

    void cleanup() { Internal::SetDiagnosticHook({}); }

    // What a host sees without the private hook: the logging categories and
    // the core manager's handler, both ruled by the categories' filters.
    void hostDiagnostics_data()
    {
        QTest::addColumn<QString>("children");
        QTest::addColumn<QString>("filter");
        QTest::addColumn<QString>("category"); // empty: nothing reaches the host
        QTest::addColumn<QString>("fragment");

        const QString misspelt = QStringLiteral(R"x(<CheckBoxElement Id="c" IsEnabled="Bindng(c.IsChecked)"/>)x");
        const QString wellFormed = QStringLiteral(R"x(<CheckBoxElement Id="c" Tooltip="Binding(objectName)"/>)x");
        QTest::newRow("misspelt binding") << misspelt << "" << "kvuicore.binding" << "Unknown function Bindng";
        QTest::newRow("missing property") << R"x(<CheckBoxElement Id="c" IsEnabled="Binding(IsChekced)"/>)x" << ""
                                          << "kvuicore.binding" << "Property IsChekced is not found";
        QTest::newRow("unknown tag") << "<SpinnerElement Id=\"s\"/>" << "" << "kvuicore.propertyeditor"
                                     << "unknown element <SpinnerElement>";
        QTest::newRow("unknown attribute") << R"x(<CheckBoxElement Id="c" Lable="x" xmlns:a="urn:a" a:b="1"/>)x" << ""
                                           << "kvuicore.propertyeditor" << "unknown attribute Lable\n";
        QTest::newRow("category switched off") << misspelt << "kvuicore.binding.warning=false" << "" << "";
        QTest::newRow("well formed: tracing off by default") << wellFormed << "" << "" << "";
        QTest::newRow("tracing switched on") << wellFormed << "kvuicore.binding.debug=true" << "kvuicore.binding"
                                             << "Resolving binding expression: Binding(objectName)";
    }

    void hostDiagnostics()
    {
        QFETCH(QString, children);
        QFETCH(QString, filter);
        QFETCH(QString, category);
        QFETCH(QString, fragment);

        static QStringList logged;
        logged.clear();
        QStringList handled;
        QLoggingCategory::setFilterRules(filter);
        CoreUIManager::SetDiagnosticHandler(
            [&handled](const char* name, CoreUIManager::DiagnosticSeverity severity, const wchar_t* text) {
                handled.append(QStringLiteral("%1|%2|%3")
                                   .arg(QString::fromLatin1(name))
                                   .arg(int(severity))
                                   .arg(QString::fromWCharArray(text)));
            });
        const QtMessageHandler previous =
            qInstallMessageHandler([](QtMsgType type, const QMessageLogContext& context, const QString& text) {
                if (context.category && qstrncmp(context.category, "kvuicore.", 9) == 0)
                    logged.append(QStringLiteral("%1|%2|%3")
                                      .arg(QString::fromLatin1(context.category))
                                      .arg(type == QtDebugMsg ? 0 : 1)
                                      .arg(text));
            });
        const auto restore = qScopeGuard([previous] {
            qInstallMessageHandler(previous);
            CoreUIManager::SetDiagnosticHandler({});
            QLoggingCategory::setFilterRules(QString());
        });
        {
            PropertyEditor editor;
            editor.SetContextObject(this);
            setObjectName(QStringLiteral("diagnostics"));
            QVERIFY(editor.LoadUI(GroupDocument(children)));
        }
        QCOMPARE(handled, logged);
        if (category.isEmpty()) {
            QVERIFY2(handled.isEmpty(), qPrintable(handled.join(QLatin1Char('\n'))));
            return;
        }
        const bool found = std::any_of(handled.cbegin(), handled.cend(), [&](const QString& line) {
            return line.startsWith(category + QLatin1Char('|')) && (line + QLatin1Char('\n')).contains(fragment);
        });
        QVERIFY2(found, qPrintable(handled.join(QLatin1Char('\n'))));
    }

    void registeredKinds_data()
    {
        QTest::addColumn<QString>("tag");
        QTest::addColumn<bool>("registered");

        QTest::newRow("group") << "GroupElement" << true;
        QTest::newRow("check box") << "CheckBoxElement" << true;
        QTest::newRow("combo box") << "ComboBoxElement" << true;
        QTest::newRow("button") << "ButtonElement" << true;
        QTest::newRow("label") << "LabelElement" << true;
        QTest::newRow("slider") << "SliderElement" << true;
        QTest::newRow("text box") << "TextBoxElement" << true;
        QTest::newRow("panel") << "PanelElement" << true;
        QTest::newRow("radio buttons") << "RadioButtonGroupElement" << true;
        QTest::newRow("list: deliberately not") << "ListElement" << false;
        QTest::newRow("page: root only") << "PageElement" << false;
        QTest::newRow("other meta type") << "QString" << false;
        QTest::newRow("unknown") << "SpinnerElement" << false;
    }

    void registeredKinds()
    {
        QFETCH(QString, tag);
        QFETCH(bool, registered);
        std::unique_ptr<PropertyEditorElement> element(
            Internal::ElementTypeRegistry::Instance().Create(tag, QString()));
        QCOMPARE(element ? QString::fromLatin1(element->metaObject()->className()) : QString(),
                 registered ? QStringLiteral("Kavrel::UICore::") + tag : QString());
        if (registered)
            QVERIFY(QMetaType::fromName(tag.toLatin1()).isValid());
    }

    void columnWidths_data()
    {
        QTest::addColumn<QString>("head");
        QTest::addColumn<QString>("widths");
        QTest::addColumn<QList<int>>("expected");

        QTest::newRow("defaults") << QStringLiteral("") << QStringLiteral("") << QList<int>{100, -1, -1};
        QTest::newRow("label column width")
            << "LabelColumnWidth=\"120\"" << QStringLiteral("") << QList<int>{120, -1, -1};
        QTest::newRow("first width overrides label column width")
            << "LabelColumnWidth=\"120\"" << QStringLiteral("<W Width=\"90\"/>") << QList<int>{90, -1, -1};
        QTest::newRow("only one column stretches")
            << "" << QStringLiteral("<W Width=\"0\"/><W Width=\"0\"/><W Width=\"80\"/>") << QList<int>{0, -1, 80};
        QTest::newRow("missing width keeps the current one")
            << "LabelColumnWidth=\"70\"" << QStringLiteral("<W/><W Width=\"0\"/>") << QList<int>{70, 0, -1};
        QTest::newRow("fourth child is read and ignored")
            << "" << QStringLiteral("<A Width=\"1\"/><B Width=\"2\"/><C Width=\"3\"/><D Width=\"0\"/>")
            << QList<int>{1, 2, 3};
        QTest::newRow("non-numeric keeps the default")
            << "LabelColumnWidth=\"wide\"" << QStringLiteral("<W Width=\"x\"/><W Width=\"40\"/>")
            << QList<int>{100, 40, -1};
    }

    void columnWidths()
    {
        QFETCH(QString, head);
        QFETCH(QString, widths);

        PropertyEditor editor;
        const QString columnWidths =
            widths.isEmpty() ? QString() : QStringLiteral("<ColumnWidths>%1</ColumnWidths>").arg(widths);
        QVERIFY(editor.LoadUI(QStringLiteral("<Editor %1>%2<PageElement/></Editor>").arg(head, columnWidths)));
        QTEST((QList<int>{editor.GetColumnWidth(0), editor.GetColumnWidth(1), editor.GetColumnWidth(2)}), "expected");
        QCOMPARE(editor.GetColumnWidth(3), -1);
        QCOMPARE(editor.GetColumnWidth(-1), -1);
    }

    void columnWidthRule()
    {
        PropertyEditor editor;
        editor.SetColumnWidth(2, 0);
        QCOMPARE(editor.GetColumnWidth(2), 0);
        editor.SetColumnWidth(1, 0);
        QCOMPARE(editor.GetColumnWidth(1), -1);
        editor.SetColumnWidth(3, 40);
        QCOMPARE(editor.GetColumnWidth(2), 0);
        editor.SetColumnWidth(2, 60);
        editor.SetColumnWidth(1, 0);
        QCOMPARE(editor.GetColumnWidth(1), 0);
    }

    void layoutAttributes_data()
    {
        QTest::addColumn<QString>("attributes");
        QTest::addColumn<int>("controlPlacement");
        QTest::addColumn<int>("labelPlacement");
        QTest::addColumn<int>("labelAlignment");
        QTest::addColumn<int>("labelWrap");
        QTest::addColumn<int>("controlAlignment");
        QTest::addColumn<int>("indent");

        QTest::newRow("defaults") << "" << 0 << 0 << 0x82 << 1 << 0x81 << 0;
        QTest::newRow("words ignore case")
            << "ControlPlacement=\"fullrow\" LabelPlacement=\"LEFT\"" << 1 << 1 << 0x82 << 1 << 0x81 << 0;
        QTest::newRow("alignment list") << "LabelAlignment=\"alignleft,AlignTop\"" << 0 << 0 << 0x21 << 1 << 0x81 << 0;
        QTest::newRow("double comma") << "ControlAlignment=\"AlignRight,,AlignBottom\"" << 0 << 0 << 0x82 << 1 << 0x42
                                      << 0;
        QTest::newRow("unknown alignment keeps default")
            << "LabelAlignment=\"Diagonal\"" << 0 << 0 << 0x82 << 1 << 0x81 << 0;
        QTest::newRow("unknown placement keeps default")
            << "LabelPlacement=\"Above\"" << 0 << 0 << 0x82 << 1 << 0x81 << 0;
        QTest::newRow("full row label defaults") << "LabelPlacement=\"FullRow\"" << 0 << 2 << 0x81 << 0 << 0x81 << 0;
        QTest::newRow("full row label with explicit wrap and alignment")
            << "LabelPlacement=\"FullRow\" LabelWrap=\"WordWrap\" LabelAlignment=\"AlignCenter\"" << 0 << 2 << 0x84 << 1
            << 0x81 << 0;
        QTest::newRow("indent") << "ControlIndent=\"12\"" << 0 << 0 << 0x82 << 1 << 0x81 << 12;
        QTest::newRow("label placement control")
            << "LabelPlacement=\"Control\" LabelWrap=\"nowrap\"" << 0 << 3 << 0x82 << 0 << 0x81 << 0;
    }

    void layoutAttributes()
    {
        QFETCH(QString, attributes);
        PropertyEditor editor;
        QVERIFY(editor.LoadUI(GroupDocument(QStringLiteral("<TextBoxElement Id=\"t\" %1/>").arg(attributes))));
        auto* element = Find(editor, "t");
        QVERIFY(element);
        const PropertyEditorElement::LayoutInfo info = element->GetLayoutInfo();
        QTEST(int(info.miControlPlacement), "controlPlacement");
        QTEST(int(info.miLabelPlacement), "labelPlacement");
        QTEST(int(info.miLabelAlignment), "labelAlignment");
        QTEST(int(info.miLabelWrap), "labelWrap");
        QTEST(int(info.miControlAlignment), "controlAlignment");
        QTEST(int(info.miControlIndent), "indent");
    }

    void commonAttributesBecomeBindings()
    {
        PropertyEditor editor;
        QVERIFY(
            editor.LoadUI(GroupDocument(QStringLiteral("<CheckBoxElement Id=\"c\" Label=\"Check\" IsEnabled=\"False\" "
                                                       "Tooltip=\"Binding(Hint)\"/><LabelElement Id=\"l\"/>"))));
        auto* check = Find<CheckBoxElement>(editor, "C");
        QVERIFY(check);
        QCOMPARE(check->GetLabel(), QStringLiteral("Check"));
        QVERIFY(!check->IsEnabled());
        QVERIFY(check->IsVisible());
        QVERIFY(check->GetBinding(QStringLiteral("IsEnabled")));
        QCOMPARE(check->GetBinding(QStringLiteral("IsVisible"))->GetValueMetaType(), QMetaType::Bool);
        QCOMPARE(check->GetBinding(QStringLiteral("Tooltip"))->GetExpression(), QStringLiteral("Binding(Hint)"));
        QCOMPARE(check->GetBinding(QStringLiteral("Tooltip"))->GetContext(), editor.GetContext());

        auto* label = Find(editor, "l");
        QCOMPARE(label->GetBinding(QStringLiteral("Tooltip"))->GetValue().toString(), QString());
        QCOMPARE(label->GetParent(), editor.FindElement(QStringLiteral("g")));
        QCOMPARE(label->GetEditor(), &editor);
    }

    void loadedChildren_data()
    {
        QTest::addColumn<QString>("children");
        QTest::addColumn<bool>("loads");
        // Per child of the group: class, id and label.
        QTest::addColumn<QString>("shape");

        QTest::newRow("duplicate id loses its name")
            << "<LabelElement Id=\"a\" Label=\"first\"/><LabelElement Id=\"A\" Label=\"second\"/>"
               "<LabelElement Id=\"b\" Label=\"third\"/>"
            << true << "LabelElement:a:first LabelElement::second LabelElement:b:third";
        QTest::newRow("unknown, list and page tags are skipped")
            << "<ListElement Id=\"list\"/><Spinner Id=\"s\"/><TextBoxElement Id=\"t\"/><PageElement Id=\"p\"/>" << true
            << "TextBoxElement:t:";
        // Without a namespace a host's kind takes the common load, not its own.
        QTest::newRow("host kind without namespace")
            << "<StrictElement Id=\"strict\" Label=\"S\"/><LabelElement Id=\"after\"/>" << true
            << "StrictElement:strict:S LabelElement:after:";
    }

    void loadedChildren()
    {
        QFETCH(QString, children);

        PropertyEditor editor;
        QTEST(editor.LoadUI(GroupDocument(children)), "loads");
        auto* group = Find<GroupElement>(editor, "g");
        QStringList actual;
        for (int i = 0; i < group->GetChildCount(); ++i) {
            PropertyEditorElement* child = group->GetChild(i);
            const QString className =
                QString::fromLatin1(child->metaObject()->className()).section(QStringLiteral("::"), -1);
            actual.append(QStringList{className, child->GetId(), child->GetLabel()}.join(QLatin1Char(':')));
            if (!child->GetId().isEmpty())
                QCOMPARE(editor.FindElement(child->GetId()), child);
        }
        QTEST(actual.join(QLatin1Char(' ')), "shape");
        QVERIFY(!editor.FindElement(QStringLiteral("list")));
        if (auto* strict = Find<StrictElement>(editor, "strict"))
            QVERIFY(strict->msRequired.isEmpty());
    }

    void nodesLoadInPlace()
    {
        // The node of any document loads straight from it, with the nesting limit.
        QDomDocument document;
        QString nested;
        for (int i = 0; i < PropertyEditor::kMaxNestingDepth + 10; ++i)
            nested = QStringLiteral("<PanelElement Id=\"p%1\">%2</PanelElement>").arg(i).arg(nested);
        QVERIFY(document.setContent(QStringLiteral("<Doc><StrictElement Id=\"s\" Required=\"yes\" Label=\"L\"/>"
                                                   "<HostPanel>%1</HostPanel></Doc>")
                                        .arg(nested)));
        StrictElement strict;
        QVERIFY(strict.Load(document.documentElement().firstChildElement()));
        QCOMPARE(strict.GetId(), QStringLiteral("s"));
        QCOMPARE(strict.GetLabel(), QStringLiteral("L"));
        QCOMPARE(strict.msRequired, QStringLiteral("yes"));

        HostPanel host;
        QVERIFY(!host.Load(document.documentElement().lastChildElement()));
        QCOMPARE(mMessages.filter(QStringLiteral("deeper than 64 levels")).size(), 1);
        // What loaded before the failure stays.
        int depth = 0;
        for (PropertyEditorElement* element = &host; element->GetChildCount() == 1; element = element->GetChild(0))
            ++depth;
        QCOMPARE(depth, PropertyEditor::kMaxNestingDepth);
    }

    void malformedXmlFailsSilently()
    {
        PropertyEditor editor;
        QVERIFY(!editor.LoadUI(QStringLiteral("<Editor><PageElement></Editor>")));
        // No message box came up.
        QCOMPARE(QApplication::topLevelWidgets(), QWidgetList{&editor});
        QVERIFY(!editor.LoadUI(QStringLiteral("<Editor LabelColumnWidth=\"80\"><Page/></Editor>")));
        // The widths before the missing page were read all the same.
        QCOMPARE(editor.GetColumnWidth(0), 80);
    }

    void hostileDefinitions_data()
    {
        QTest::addColumn<int>("source");
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<bool>("loads");
        // A text that one diagnostic contains; empty when none may mention trouble.
        QTest::addColumn<QString>("message");

        const QByteArray head = "<E><PageElement><GroupElement Id=\"g\">";
        const QByteArray tail = "</GroupElement></PageElement></E>";
        const QByteArray loop = head +
                                "<CheckBoxElement Id=\"a\" IsEnabled=\"Binding(b.IsChecked)\"/>"
                                "<CheckBoxElement Id=\"b\" IsVisible=\"Binding(a.IsChecked)\"/>" +
                                tail;
        const QByteArray self = head + "<CheckBoxElement Id=\"a\" IsEnabled=\"Binding(a.IsChecked)\"/>" + tail;
        const auto attributes = [](int count) {
            QByteArray text = "<LabelElement Id=\"a\"";
            for (int i = 0; i < count; ++i)
                text += " x" + QByteArray::number(i) + "=\"1\"";
            return text + "/>";
        };
        const QByteArray deepUnknown = QByteArray("<x>").repeated(5000) + QByteArray("</x>").repeated(5000);
        const int tooDeep = PropertyEditor::kMaxDefinitionDepth;
        const QByteArray deepPanels =
            QByteArray("<PanelElement>").repeated(tooDeep) + QByteArray("</PanelElement>").repeated(tooDeep);
        const QByteArray laughs =
            "<!DOCTYPE E [<!ENTITY a \"aaaaaaaaaaaaaaaa\"><!ENTITY b \"&a;&a;&a;&a;&a;&a;&a;&a;\">"
            "<!ENTITY c \"&b;&b;&b;&b;&b;&b;&b;&b;\"><!ENTITY d \"&c;&c;&c;&c;&c;&c;&c;&c;\">"
            "<!ENTITY e \"&d;&d;&d;&d;&d;&d;&d;&d;\"><!ENTITY f \"&e;&e;&e;&e;&e;&e;&e;&e;\">]>" +
            head + "<LabelElement Id=\"a\" Label=\"&f;\"/>" + tail;
        // SECRET is replaced by the URL of a file the test writes.
        const QByteArray external =
            "<!DOCTYPE E [<!ENTITY x SYSTEM \"SECRET\">]>" + head + "<LabelElement Id=\"a\" Label=\"[&x;]\"/>" + tail;

        for (const int source : {Text, File}) {
            const char* via = source == Text ? "text: " : "file: ";
            const auto row = [via](const char* name) -> QTestData& {
                return QTest::newRow(qPrintable(QString::fromLatin1(via) + QString::fromLatin1(name)));
            };
            row("binding loop") << source << loop << true << "Binding loop";
            row("element bound to itself") << source << self << true << "Binding loop";
            row("deep unknown nesting") << source << head + deepUnknown + tail << false << "deeper than 256 levels";
            row("deep panels") << source << head + deepPanels + tail << false << "deeper than 256 levels";
            row("attributes at the limit")
                << source << head + attributes(PropertyEditor::kMaxAttributesPerElement - 1) + tail << true
                << "ignores the unknown attributes x0, x1, x10, x100, x101, x102, x103, x104 and 247 more";
            row("200000 attributes") << source << head + attributes(200000) + tail << false
                                     << "more than 256 attributes";
            row("entity expansion") << source << laughs << false << "";
            row("external entity") << source << external << false << "";
            row("unclosed element") << source << QByteArray("<Editor><PageElement></Editor>") << false << "";
            row("empty") << source << QByteArray() << false << "";
            row("not xml") << source << QByteArray("not xml at all") << false << "";
        }
        QTest::newRow("oversized file") << int(SparseFile) << QByteArray() << false << "larger than 8388608 bytes";
#ifdef Q_OS_UNIX
        QTest::newRow("pipe") << int(Pipe) << QByteArray() << false << "Not a regular file";
#endif
        QTest::newRow("folder") << int(Folder) << QByteArray() << false << "Not a regular file";
    }

    void hostileDefinitions()
    {
        QFETCH(int, source);
        QFETCH(QByteArray, content);
        QFETCH(bool, loads);
        QFETCH(QString, message);

        QTemporaryDir folder;
        const QString secret = WriteFile(folder, "secret.txt", "SECRET TEXT");
        content.replace("SECRET", QUrl::fromLocalFile(secret).toEncoded());
        const char* const kinds[] = {"", "", "sparse", "fifo", "folder"}; // by DefinitionSource
        const QString fileName = Probe::HostileFile(folder.filePath(QStringLiteral("hostile.xml")), kinds[source],
                                                    content, PropertyEditor::kMaxDefinitionFileSize + 1);
        QVERIFY(!fileName.isEmpty());

        PropertyEditor editor;
        editor.resize(400, 400);
        const bool loaded = source == Text ? editor.LoadUI(QString::fromUtf8(content))
                                           : editor.LoadUIFile(fileName, QString(), QString());
        QCOMPARE(loaded, loads);
        if (auto* a = Find<CheckBoxElement>(editor, "a")) {
            // The loop goes round once on every change, and settles.
            Build(editor);
            auto* b = Find<CheckBoxElement>(editor, "b");
            for (int i = 0; i < 2; ++i) {
                a->SetCheck(!a->IsChecked());
                QCOMPARE(a->IsEnabled(), (b ? b : a)->IsChecked());
            }
        }
        if (auto* element = Find(editor, "a")) {
            QVERIFY(element->GetLabel().size() < 1000);
            QVERIFY(!element->GetLabel().contains(QStringLiteral("SECRET")));
        }
        if (message.isEmpty()) {
            // Malformed XML fails silently, and nothing else is wrong.
            const QStringList trouble =
                mMessages.filter(QRegularExpression(QStringLiteral("^(Property editor|Binding error|XmlFiler)")));
            QVERIFY2(trouble.isEmpty(), qPrintable(trouble.join(QString())));
        } else {
            const QStringList matching = mMessages.filter(message);
            QVERIFY2(!matching.isEmpty(), qPrintable(mMessages.join(QString())));
            if (source != Text && !message.startsWith(QLatin1String("Binding")))
                QVERIFY(matching.first().contains(fileName));
        }
        if (!loads)
            QCOMPARE(editor.GetPage()->GetChildCount(), 0);
    }

    void editorDeletedFromHandlers_data()
    {
        QTest::addColumn<QMetaMethod>("signal");
        QTest::addColumn<bool>("byEdit");
        using E = PropertyEditorElement;
        QTest::newRow("BindingModified, source change") << QMetaMethod::fromSignal(&E::BindingModified) << false;
        QTest::newRow("AttributeChanged, source change") << QMetaMethod::fromSignal(&E::AttributeChanged) << false;
        QTest::newRow("AttributesChanged, source change") << QMetaMethod::fromSignal(&E::AttributesChanged) << false;
        QTest::newRow("AttributeChanged, edit") << QMetaMethod::fromSignal(&E::AttributeChanged) << true;
        QTest::newRow("ValueChanged, edit") << QMetaMethod::fromSignal(&E::ValueChanged) << true;
        QTest::newRow("PropertyModified, edit") << QMetaMethod::fromSignal(&PropertyEditor::PropertyModified) << true;
    }

    void editorDeletedFromHandlers()
    {
        QFETCH(QMetaMethod, signal);
        QFETCH(bool, byEdit);

        QPointer<PropertyEditor> editor = new PropertyEditor();
        QVERIFY(editor->LoadUI(GroupDocument(QStringLiteral(
            "<CheckBoxElement Id=\"source\"/><CheckBoxElement Id=\"c\" IsChecked=\"Binding(source.IsChecked)\"/>"))));
        Build(*editor);
        auto* element = Find<CheckBoxElement>(*editor, "c");
        const bool fromEditor = signal.enclosingMetaObject() == &PropertyEditor::staticMetaObject;
        QObject* sender = fromEditor ? static_cast<QObject*>(editor.data()) : element;
        Deleter deleter(editor);
        const QMetaObject* deleterType = deleter.metaObject();
        QVERIFY(connect(sender, signal, &deleter, deleterType->method(deleterType->indexOfSlot("DeleteEditor()"))));
        if (byEdit) {
            auto* box = qobject_cast<QCheckBox*>(element->GetWidget());
            box->blockSignals(true);
            box->setChecked(true);
            box->blockSignals(false);
            QVERIFY(QMetaObject::invokeMethod(element, "TargetCheckStateChanged", Q_ARG(int, Qt::Checked)));
        } else {
            Find<CheckBoxElement>(*editor, "source")->SetCheck(true);
        }
        QVERIFY(editor.isNull());
    }

    void translatedTexts()
    {
        QTemporaryDir folder;
        const QString texts = WriteFile(folder, "editortexts.xlf", R"(<?xml version="1.0"?>
    <xliff version="1.2"><file source-language="en" target-language="de"><body>
    <trans-unit id="title"><source>Title</source><target>Titel</target></trans-unit>
    <trans-unit id="tip"><source>Tip</source><target>Hinweis</target></trans-unit>
    </body></file></xliff>)");
        QVERIFY(!texts.isEmpty());

        const QString document = GroupDocument(
            QStringLiteral("<LabelElement Id=\"l\" Label=\" TR ( title ) \" Tooltip=\"tr(tip)\" Text=\"tr(missing)\"/>"
                           "<LabelElement Id=\"m\" Label=\"tr(title) and more\"/>"));
        PropertyEditor translated;
        QVERIFY(translated.LoadUI(document, texts));
        auto* label = Find(translated, "l");
        QCOMPARE(label->GetLabel(), QStringLiteral("Titel"));
        QCOMPARE(label->GetTooltip(), QStringLiteral("Hinweis"));
        QCOMPARE(label->GetValue(QStringLiteral("Text")).toString(), QStringLiteral("missing"));
        QCOMPARE(Find(translated, "m")->GetLabel(), QStringLiteral("tr(title) and more"));

        PropertyEditor untranslated;
        QVERIFY(untranslated.LoadUI(document));
        QCOMPARE(Find(untranslated, "l")->GetLabel(), QStringLiteral("title"));
        TranslationTable::ClearCache();
    }

    void gridPlacement_data()
    {
        QTest::addColumn<QString>("children");
        // Per child: row, column, row span, column span of the control, then of
        // its label (row -2 when it has none).
        QTest::addColumn<QList<QList<int>>>("cells");

        QTest::newRow("default placement has no label")
            << "<TextBoxElement/><TextBoxElement/>"
            << QList<QList<int>>{{0, 1, 1, 1, -2, -2, 0, 0}, {1, 1, 1, 1, -2, -2, 0, 0}};
        QTest::newRow("left label")
            << "<TextBoxElement LabelPlacement=\"Left\"/><CheckBoxElement LabelPlacement=\"Control\"/>"
            << QList<QList<int>>{{0, 1, 1, 1, 0, 0, 1, 1}, {1, 1, 1, 1, -2, -2, 0, 0}};
        QTest::newRow("full row label takes a row")
            << "<TextBoxElement LabelPlacement=\"FullRow\"/><TextBoxElement LabelPlacement=\"Left\"/>"
            << QList<QList<int>>{{1, 1, 1, 1, 0, 0, 1, 2}, {2, 1, 1, 1, 2, 0, 1, 1}};
        QTest::newRow("full row control below its left label")
            << "<TextBoxElement LabelPlacement=\"Left\" ControlPlacement=\"FullRow\"/><TextBoxElement/>"
            << QList<QList<int>>{{1, 0, 1, -1, 0, 0, 1, 1}, {2, 1, 1, 1, -2, -2, 0, 0}};
        QTest::newRow("full row control without label")
            << "<TextBoxElement ControlPlacement=\"FullRow\"/>" << QList<QList<int>>{{0, 0, 1, -1, -2, -2, 0, 0}};
        QTest::newRow("explicit column shares the previous row")
            << "<TextBoxElement LabelPlacement=\"Left\"/><CheckBoxElement Column=\"2\" LabelPlacement=\"Left\"/>"
               "<TextBoxElement/>"
            << QList<QList<int>>{{0, 1, 1, 1, 0, 0, 1, 1}, {0, 2, 1, 1, -2, -2, 0, 0}, {1, 1, 1, 1, -2, -2, 0, 0}};
        QTest::newRow("explicit column with span")
            << "<TextBoxElement/><LabelElement Column=\"1\" ColumnSpan=\"2\"/>"
            << QList<QList<int>>{{0, 1, 1, 1, -2, -2, 0, 0}, {0, 1, 1, 2, -2, -2, 0, 0}};
        // No row before it to share: row 0 rather than a row -1 that would break the grid.
        QTest::newRow("explicit column on the first child")
            << "<CheckBoxElement Column=\"2\" LabelPlacement=\"Left\" Label=\"no label here\"/>"
            << QList<QList<int>>{{0, 2, 1, 1, -2, -2, 0, 0}};
    }

    void gridPlacement()
    {
        QFETCH(QString, children);
        QFETCH(QList<QList<int>>, cells);

        PropertyEditor editor;
        editor.resize(500, 400);
        QVERIFY(editor.LoadUI(GroupDocument(children)));
        Build(editor);
        auto* group = Find<GroupElement>(editor, "g");
        QGridLayout* grid = group->GetGridLayout();
        QVERIFY(grid);
        QCOMPARE(group->GetChildCount(), cells.size());
        for (int i = 0; i < cells.size(); ++i) {
            PropertyEditorElement* child = group->GetChild(i);
            QList<int> expected = cells.at(i);
            const Cell control = CellOf(grid, child->GetWidget());
            // A span of -1 reaches the last column the grid has.
            if (expected.at(3) == -1)
                expected[3] = grid->columnCount() - expected.at(1);
            QCOMPARE((QList<int>{control.row, control.column, control.rowSpan, control.columnSpan}),
                     expected.mid(0, 4));
            const Cell label = CellOf(grid, child->GetLabelWidget());
            QCOMPARE((QList<int>{label.row, label.column, label.rowSpan, label.columnSpan}), expected.mid(4, 4));
            if (child->GetLabelWidget())
                QCOMPARE(child->GetLabelWidget()->parentWidget(), grid->parentWidget());
        }
        QVERIFY(group->GetWidget()->sizeHint().isValid());
    }

    void controlIndentWrapsControl()
    {
        PropertyEditor editor;
        QVERIFY(editor.LoadUI(GroupDocument(QStringLiteral("<TextBoxElement Id=\"t\" ControlIndent=\"16\"/>"
                                                           "<TextBoxElement Id=\"u\" ControlIndent=\"0\"/>"))));
        Build(editor);
        auto* group = Find<GroupElement>(editor, "g");
        QGridLayout* grid = group->GetGridLayout();
        QWidget* indented = Find(editor, "t")->GetWidget();
        QWidget* wrapper = indented->parentWidget();
        QVERIFY(wrapper != grid->parentWidget());
        QCOMPARE(wrapper->layout()->contentsMargins().left(), 16);
        QVERIFY(qobject_cast<QVBoxLayout*>(wrapper->layout()));
        QCOMPARE(CellOf(grid, wrapper).row, 0);
        QCOMPARE(CellOf(grid, wrapper).column, 1);
        QWidget* plain = Find(editor, "u")->GetWidget();
        QCOMPARE(plain->parentWidget(), grid->parentWidget());

        // Hiding the element hides its wrapper, so no empty margin stays behind.
        Find(editor, "t")->SetVisible(false);
        QVERIFY(indented->isHidden());
        QVERIFY(wrapper->isHidden());
    }

    void columnKeepersAndStretch()
    {
        PropertyEditor editor;
        QVERIFY(editor.LoadUI(GroupDocument(QStringLiteral("<TextBoxElement Id=\"t\" Column=\"1\"/>"), QString(),
                                            QStringLiteral("<ColumnWidths><W Width=\"90\"/><W Width=\"0\"/>"
                                                           "<W Width=\"60\"/></ColumnWidths>"))));
        Build(editor);
        auto* group = Find<GroupElement>(editor, "g");
        QGridLayout* grid = group->GetGridLayout();
        QCOMPARE(grid->columnMinimumWidth(0), 90);
        QCOMPARE(grid->columnStretch(0), 0);
        QCOMPARE(grid->columnStretch(1), 100);
        QCOMPARE(grid->columnStretch(2), 0);
        QCOMPARE(grid->columnMinimumWidth(2), 60);
        QCOMPARE(grid->contentsMargins(), QMargins(7, 1, 0, 0));
        // Empty keepers sit in row 0 of the columns with a minimum width.
        int keepers = 0;
        for (int i = 0; i < grid->count(); ++i) {
            QWidget* widget = grid->itemAt(i)->widget();
            int row, column, rowSpan, columnSpan;
            grid->getItemPosition(i, &row, &column, &rowSpan, &columnSpan);
            if (widget && qobject_cast<QHBoxLayout*>(widget->layout()) && widget->layout()->count() == 0) {
                ++keepers;
                QCOMPARE(row, 0);
                QVERIFY(column == 0 || column == 2);
            }
        }
        QCOMPARE(keepers, 2);
    }

    void dividerMarks_data()
    {
        QTest::addColumn<QString>("children");
        // Per nested group: its mark (N none, A above, B below), then its column (- divider, R rollout).
        QTest::addColumn<QString>("groups");

        QTest::newRow("groups among other elements")
            << "<GroupElement/><TextBoxElement/><GroupElement/><GroupElement/><CheckBoxElement/>"
            << QStringLiteral("NR A-R BR-");
        QTest::newRow("last child is a group") << "<TextBoxElement/><GroupElement/>" << QStringLiteral("A-R");
    }

    void dividerMarks()
    {
        QFETCH(QString, children);
        PropertyEditor editor;
        QVERIFY(editor.LoadUI(GroupDocument(children)));
        Build(editor);
        GroupElement* outer = Find<GroupElement>(editor, "g");
        QStringList groups;
        for (int i = 0; i < outer->GetChildCount(); ++i) {
            auto* group = qobject_cast<GroupElement*>(outer->GetChild(i));
            if (!group)
                continue;
            QString shape(QLatin1Char("NAB"[qBound(0, group->GetDividerMark(), 2)]));
            QLayout* layout = group->GetWidget()->layout();
            for (int item = 0; item < layout->count(); ++item) {
                QWidget* widget = layout->itemAt(item)->widget();
                shape += qobject_cast<Divider*>(widget)            ? QLatin1Char('-')
                         : qobject_cast<RolloutContainer*>(widget) ? QLatin1Char('R')
                                                                   : QLatin1Char('?');
            }
            groups.append(shape);
        }
        QTEST(groups.join(QLatin1Char(' ')), "groups");
    }

    void buildIsDeferredToPaint()
    {
        PropertyEditor editor;
        QVERIFY(editor.LoadUI(GroupDocument(QStringLiteral("<TextBoxElement Id=\"t\"/>"))));
        QVERIFY(!editor.GetPage()->GetWidget());
        QVERIFY(!editor.layout());
        Build(editor);
        QWidget* page = editor.GetPage()->GetWidget();
        QVERIFY(page);
        auto* layout = qobject_cast<QVBoxLayout*>(editor.layout());
        QVERIFY(layout);
        QCOMPARE(layout->contentsMargins(), QMargins(5, 5, 0, 0));
        QCOMPARE(layout->indexOf(page), 0);

        // Nothing is rebuilt until something changes.
        QWidget* text = Find(editor, "t")->GetWidget();
        QWidget* groupWidget = Find(editor, "g")->GetWidget();
        Build(editor);
        QCOMPARE(Find(editor, "t")->GetWidget(), text);

        // A second load adds to the page; a name it reuses stays with its first owner.
        QVERIFY(editor.LoadUI(QStringLiteral("<E LabelColumnWidth=\"130\"><PageElement><GroupElement Id=\"h\">"
                                             "<CheckBoxElement Id=\"c\"/><LabelElement Id=\"t\"/></GroupElement>"
                                             "</PageElement></E>")));
        QCOMPARE(editor.GetPage()->GetChildCount(), 2);
        QVERIFY(Find<TextBoxElement>(editor, "t"));
        Build(editor);
        QCOMPARE(Find(editor, "g")->GetWidget(), groupWidget);
        // The load's widths reach the groups built before it at that paint.
        QCOMPARE(Find<GroupElement>(editor, "g")->GetGridLayout()->columnMinimumWidth(0), 130);
        auto* pageLayout = qobject_cast<QBoxLayout*>(editor.GetPage()->GetWidget()->layout());
        QVERIFY(pageLayout);
        QCOMPARE(pageLayout->indexOf(Find(editor, "h")->GetWidget()), 1);
        QVERIFY(Find(editor, "c")->GetWidget());

        // Deleting an element removes its widget at once and replaces the rest at the next paint.
        auto* group = Find<GroupElement>(editor, "g");
        QPointer<QWidget> watched = text;
        group->DeleteChild(0);
        QVERIFY(watched.isNull());
        QVERIFY(!editor.FindElement(QStringLiteral("t")));
        Build(editor);
        // A group without children keeps no columns either.
        QCOMPARE(group->GetGridLayout()->count(), 0);
    }

    void firstPaintBuildsWholePage()
    {
        const auto groups = [](int first, int count) {
            QString text;
            for (int i = first; i < first + count; ++i)
                text += QStringLiteral("<GroupElement Id=\"g%1\"><TextBoxElement Id=\"t%1\" LabelPlacement=\"Left\"/>"
                                       "<CheckBoxElement/></GroupElement>")
                            .arg(i);
            return QStringLiteral("<E><PageElement>%1</PageElement></E>").arg(text);
        };
        PropertyEditor editor;
        editor.resize(400, 300);
        QVERIFY(editor.LoadUI(groups(0, 60)));
        QVERIFY(!editor.IsBuilt());
        editor.show();
        // Far below what shows, the last element has its widget after the first paint.
        QTRY_VERIFY(editor.IsBuilt());
        QVERIFY(Find(editor, "t59")->GetWidget());
        QWidget* page = editor.GetPage()->GetWidget();
        auto* layout = qobject_cast<QBoxLayout*>(page->layout());
        for (int i = 0; i < 60; ++i)
            QCOMPARE(layout->indexOf(editor.GetPage()->GetChild(i)->GetWidget()), i);
        QTRY_VERIFY(Find(editor, "t59")->GetWidget()->isVisible());

        // A load into the shown page builds its new widgets while the page is
        // hidden; the page shows again with them, and the focus stays.
        QVERIFY(Probe::ShowActive(&editor));
        QWidget* focused = Find(editor, "t0")->GetWidget();
        focused->setFocus();
        QTRY_VERIFY(focused->hasFocus() || focused->isAncestorOf(QApplication::focusWidget()));
        QWidget* focusedBefore = QApplication::focusWidget();
        QVERIFY(editor.LoadUI(groups(60, 20)));
        Build(editor);
        QVERIFY(page->isVisible());
        QCOMPARE(QApplication::focusWidget(), focusedBefore);
        QVERIFY(Find(editor, "t79")->GetWidget()->isVisible());

        // BuildNow builds without a paint.
        PropertyEditor other;
        QVERIFY(other.LoadUI(groups(0, 3)));
        other.BuildNow();
        QVERIFY(other.IsBuilt());
        QVERIFY(Find(other, "t2")->GetWidget());
    }

    void deepNestingIsRefused_data()
    {
        QTest::addColumn<int>("depth");
        QTest::addColumn<bool>("loads");

        QTest::newRow("at the limit") << PropertyEditor::kMaxNestingDepth << true;
        QTest::newRow("one level more") << PropertyEditor::kMaxNestingDepth + 1 << false;
        QTest::newRow("200 levels") << 200 << false;
    }

    void deepNestingIsRefused()
    {
        QFETCH(int, depth);
        QFETCH(bool, loads);

        QString text = QStringLiteral("<TextBoxElement Id=\"inner\"/>");
        for (int level = depth - 1; level >= 0; --level)
            text = QStringLiteral("<GroupElement Id=\"g%1\">%2</GroupElement>").arg(level).arg(text);
        PropertyEditor editor;
        editor.resize(400, 300);
        QCOMPARE(editor.LoadUI(QStringLiteral("<E><PageElement>%1</PageElement></E>").arg(text)), loads);
        const QStringList refusals = mMessages.filter(QStringLiteral("deeper than 64 levels"));
        QCOMPARE(refusals.size(), loads ? 0 : 1);
        // The levels up to the limit stay and paint.
        Build(editor);
        QVERIFY(Find(editor, "g63")->GetWidget());
        QVERIFY(!editor.FindElement(QStringLiteral("g64")));
        QCOMPARE(editor.FindElement(QStringLiteral("inner")) != nullptr, loads);
    }

    void loadFileWithElementPath()
    {
        QTemporaryDir folder;
        const QString fileName = WriteFile(folder, "definitions.xml", R"(<Definitions>
      <Material LabelColumnWidth="77">
        <PageElement><GroupElement Id="m"><TextBoxElement Id="name"/></GroupElement></PageElement>
      </Material>
      <Light><PageElement><CheckBoxElement Id="on"/></PageElement></Light>
    </Definitions>)");

        PropertyEditor editor;
        QVERIFY(editor.LoadUIFile(fileName, QStringLiteral("Material"), QString()));
        QCOMPARE(editor.GetUIFile(), QFileInfo(fileName).absoluteFilePath());
        QCOMPARE(editor.GetColumnWidth(0), 77);
        QCOMPARE(PropertyEditor::GetSchemaFile(),
                 QCoreApplication::applicationDirPath() + QStringLiteral("/PropertyEditorUIDefinitionSchema.xsd"));
        QVERIFY(editor.FindElement(QStringLiteral("name")));
        QVERIFY(!editor.FindElement(QStringLiteral("on")));

        // A file that was open is recorded even when the path in it is missing.
        PropertyEditor absolute;
        QVERIFY(!absolute.LoadUIFile(fileName, QStringLiteral("Nowhere"), QString()));
        QCOMPARE(absolute.GetUIFile(), QFileInfo(fileName).absoluteFilePath());
        QVERIFY(absolute.LoadUIFile(fileName, QStringLiteral("/Definitions/Light"), QString()));
        QVERIFY(absolute.FindElement(QStringLiteral("on")));

        // A missing file fails silently; the whole document has no PageElement of its own.
        PropertyEditor whole;
        mMessages.clear();
        QVERIFY(!whole.LoadUIFile(folder.filePath(QStringLiteral("missing.xml")), QString(), QString()));
        QVERIFY(whole.GetUIFile().isEmpty());
        QVERIFY(mMessages.isEmpty());
        QVERIFY(!whole.LoadUIFile(fileName, QString(), QString()));
        QCOMPARE(whole.GetUIFile(), QFileInfo(fileName).absoluteFilePath());
    }

    void labelColumnDragIsRemembered()
    {
        QTemporaryDir folder;
        // The control column stretches, so the label column is as wide as set.
        const QString fileName =
            WriteFile(folder, "drag.xml",
                      GroupDocument(QStringLiteral("<TextBoxElement Id=\"t\" Label=\"Name\" LabelPlacement=\"Left\"/>"),
                                    QStringLiteral("LabelColumnWidth=\"100\""),
                                    QStringLiteral("<ColumnWidths><W/><W Width=\"0\"/></ColumnWidths>"))
                          .toUtf8());

        {
            PropertyEditor editor;
            editor.resize(500, 300);
            QVERIFY(editor.LoadUIFile(fileName, QString(), QString()));
            QVERIFY(Probe::Shown(&editor));
            QTRY_VERIFY(editor.GetPage()->GetWidget());
            auto* group = Find<GroupElement>(editor, "g");
            QWidget* gridWidget = group->GetGridLayout()->parentWidget();
            QWidget* text = Find(editor, "t")->GetWidget();
            QTRY_VERIFY(text->isVisible() && text->x() > 100);
            const int spacing = group->GetGridLayout()->horizontalSpacing();
            // The controls start one spacing right of the label column.
            QCOMPARE(text->x(), 7 + 100 + spacing);
            const int edge = text->x() - (spacing + 1) / 2;
            const int y = text->geometry().center().y();
            QTest::mousePress(gridWidget, Qt::LeftButton, {}, QPoint(edge, y));
            QTest::mouseMove(gridWidget, QPoint(edge + 40, y));
            QTest::mouseRelease(gridWidget, Qt::LeftButton, {}, QPoint(edge + 40, y));
            QVERIFY(qAbs(editor.GetColumnWidth(0) - 140) <= 1);
            QCOMPARE(group->GetGridLayout()->columnMinimumWidth(0), editor.GetColumnWidth(0));
        }
        const int remembered =
            Internal::RememberedColumnWidths().value(QFileInfo(fileName).absoluteFilePath() + QLatin1Char('\n'))[0];
        QVERIFY(qAbs(remembered - 140) <= 1);

        // The next editor of the same definition opens with the width; others don't.
        PropertyEditor again;
        QVERIFY(again.LoadUIFile(fileName, QString(), QString()));
        QCOMPARE(again.GetColumnWidth(0), remembered);
        PropertyEditor fromText;
        QVERIFY(fromText.LoadUI(GroupDocument(QString(), QStringLiteral("LabelColumnWidth=\"100\""))));
        QCOMPARE(fromText.GetColumnWidth(0), 100);

        // Shutting the library down forgets them.
        CoreUIManager::Uninitialize();
        QVERIFY(Internal::RememberedColumnWidths().isEmpty());
        CoreUIManager::Initialize(nullptr);
        ThemeManager::GetInstance()->SetThemeFilesPath(QStringLiteral(KVUICORE_THEMES_DIR).toStdWString().c_str());
    }

    void namespaceUris_data()
    {
        QTest::addColumn<QString>("uri");
        // Namespace and module, or nothing when the text is refused.
        QTest::addColumn<QStringList>("parts");

        QTest::newRow("library") << "namespace=Kavrel::UICore;module=KvUICore"
                                 << QStringList{QStringLiteral("Kavrel::UICore"), QStringLiteral("KvUICore")};
        QTest::newRow("keys ignore case and blanks")
            << " NameSpace =Acme;; MODULE=AcmeElements;"
            << QStringList{QStringLiteral("Acme"), QStringLiteral("AcmeElements")};
        QTest::newRow("one part") << "namespace=Acme" << QStringList();
        QTest::newRow("three parts") << "namespace=A;module=B;extra=C" << QStringList();
        QTest::newRow("swapped") << "module=B;namespace=A" << QStringList();
        QTest::newRow("empty value") << "namespace=;module=B" << QStringList();
        QTest::newRow("no equals") << "namespace;module=B" << QStringList();
    }

    void namespaceUris()
    {
        QFETCH(QString, uri);
        QFETCH(QStringList, parts);
        Internal::ElementNamespace ns;
        QCOMPARE(Internal::ElementTypeRegistry::ParseNamespaceUri(uri, &ns), !parts.isEmpty());
        if (!parts.isEmpty())
            QCOMPARE((QStringList{ns.msNamespace, ns.msModule}), parts);
    }

    void moduleNamesWithPathsAreRefused_data()
    {
        QTest::addColumn<QString>("module");
        QTest::addColumn<bool>("acceptable");

        QTest::newRow("bare name") << "AcmeElements" << true;
        QTest::newRow("dotted name") << "acme.elements-2" << true;
        QTest::newRow("absolute path") << "/tmp/evil" << false;
        QTest::newRow("relative path") << "plugins/evil" << false;
        QTest::newRow("parent folder") << "../evil" << false;
        QTest::newRow("backslash") << "plugins\\evil" << false;
        QTest::newRow("drive") << "C:evil" << false;
        QTest::newRow("scheme") << "http://example.com/evil" << false;
        QTest::newRow("file scheme") << "file:evil" << false;
        QTest::newRow("dots only") << ".." << false;
        QTest::newRow("blank") << "evil module" << false;
        QTest::newRow("empty") << "" << false;
    }

    void moduleNamesWithPathsAreRefused()
    {
        QFETCH(QString, module);
        QFETCH(bool, acceptable);
        QCOMPARE(Internal::ElementTypeRegistry::IsAcceptableModuleName(module), acceptable);
        if (acceptable)
            return;
        // A refused module is never loaded and says why.
        QVERIFY(!Internal::ElementTypeRegistry::Instance().LoadModule(module));
        QVERIFY(!Internal::ElementTypeRegistry::Instance().IsModuleLoaded(module));
        QCOMPARE(mMessages.size(), 1);
        QVERIFY(mMessages.first().contains(QStringLiteral("refused")));

        mMessages.clear();
        const QString uri = QStringLiteral("namespace=Acme;module=%1").arg(module);
        if (Internal::ElementTypeRegistry::ParseNamespaceUri(uri, nullptr)) {
            QVERIFY(!Internal::ElementTypeRegistry::Instance().Create(QStringLiteral("GroupElement"), uri));
            QVERIFY(!Internal::ElementTypeRegistry::Instance().IsModuleLoaded(module));
        }
    }

    void foreignTypesNeedRegistration()
    {
        Internal::ElementTypeRegistry& registry = Internal::ElementTypeRegistry::Instance();
        // The library's own namespace names the bare kinds.
        std::unique_ptr<PropertyEditorElement> group(registry.Create(
            QStringLiteral("GroupElement"), QStringLiteral("namespace=Kavrel::UICore;module=KvUICore")));
        QVERIFY(qobject_cast<GroupElement*>(group.get()));

        // Another namespace prefixes the tag; a missing module is reported, not fatal.
        PropertyEditorElement::RegisterElementType<StrictElement>("Acme::Strict");
        std::unique_ptr<PropertyEditorElement> strict(
            registry.Create(QStringLiteral("Strict"), QStringLiteral("namespace=Acme;module=AcmeMissingModule")));
        QVERIFY(qobject_cast<StrictElement*>(strict.get()));
        QVERIFY(!registry.IsModuleLoaded(QStringLiteral("AcmeMissingModule")));
        QVERIFY(std::any_of(mMessages.cbegin(), mMessages.cend(),
                            [](const QString& text) { return text.contains(QStringLiteral("could not be loaded")); }));
        QVERIFY(!registry.Create(QStringLiteral("GroupElement"), QStringLiteral("namespace=Acme;module=KvUICore")));
    }

private:
    QStringList mMessages;
};

QTEST_MAIN(tst_PropertyEditor)
#include "tst_propertyeditor.moc"
