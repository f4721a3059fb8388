// Building a whole property editor page from a UI definition and showing it,
// to the end of its first paint, against QUiLoader building and showing an
// equivalent Qt Designer form the same way: groups of labelled sliders (with
// their number field), text boxes, check boxes and combo boxes in a grid.
// Both at 1,000 and 10,000 elements, for the growth, with the heap each
// element takes.
#include "BenchRatio.h"

#include <KvUICore/core/CoreUIManager.h>
#include <KvUICore/propertyeditor/PropertyEditor.h>
#include <KvUICore/propertyeditor/PropertyEditorElement.h>
#include <KvUICore/theme/ThemeManager.h>

#include <QBuffer>
#include <QCoreApplication>
#include <QPixmap>
#include <QScrollArea>
#include <QUiLoader>
#include <QWidget>

#include <malloc.h>

#include <memory>

using namespace Kavrel::UICore;

namespace {

constexpr int kElementsPerGroup = 10;

// The kind of the i-th element of a group: slider, text box, check box, combo box.
int KindOf(int index)
{
    return index % 4;
}

QString EditorDefinition(int elements)
{
    QString text;
    text.reserve(elements * 160);
    text += QStringLiteral("<Editor LabelColumnWidth=\"110\"><ColumnWidths><W Width=\"110\"/><W Width=\"0\"/>"
                           "</ColumnWidths><PageElement>");
    const int groups = (elements + kElementsPerGroup - 1) / kElementsPerGroup;
    int made = 0;
    for (int g = 0; g < groups; ++g) {
        text += QStringLiteral("<GroupElement Id=\"g%1\" Label=\"Group %1\">").arg(g);
        for (int i = 0; i < kElementsPerGroup && made < elements; ++i, ++made) {
            const QString id = QStringLiteral("e%1").arg(made);
            switch (KindOf(i)) {
            case 0:
                text += QStringLiteral("<SliderElement Id=\"%1\" Label=\"Slider %1\" LabelPlacement=\"Left\" "
                                       "Minimum=\"0\" Maximum=\"100\" Number=\"25\"/>")
                            .arg(id);
                break;
            case 1:
                text += QStringLiteral("<TextBoxElement Id=\"%1\" Label=\"Text %1\" LabelPlacement=\"Left\" "
                                       "Text=\"Value %1\"/>")
                            .arg(id);
                break;
            case 2:
                text += QStringLiteral("<CheckBoxElement Id=\"%1\" Label=\"Check %1\" IsChecked=\"True\"/>").arg(id);
                break;
            default:
                text += QStringLiteral("<ComboBoxElement Id=\"%1\" Label=\"Choice %1\" LabelPlacement=\"Left\" "
                                       "Current=\"Two\"><Item Text=\"One\"/><Item Text=\"Two\"/><Item Text=\"Three\"/>"
                                       "</ComboBoxElement>")
                            .arg(id);
                break;
            }
        }
        text += QStringLiteral("</GroupElement>");
    }
    text += QStringLiteral("</PageElement></Editor>");
    return text;
}

QString Property(const char* name, const QString& value)
{
    return QStringLiteral("<property name=\"%1\">%2</property>").arg(QLatin1String(name), value);
}

QString Widget(const char* className, const QString& name, const QString& body)
{
    return QStringLiteral("<widget class=\"%1\" name=\"%2\">%3</widget>").arg(QLatin1String(className), name, body);
}

QString Item(int row, int column, const QString& widget)
{
    return QStringLiteral("<item row=\"%1\" column=\"%2\">%3</item>").arg(row).arg(column).arg(widget);
}

// The same form for Qt Designer: a group box with a grid per group, a label
// beside each control (wrapping, as the editor's labels do by default), and a
// slider with a spin box for each slider element.
QByteArray DesignerForm(int elements)
{
    QString body;
    body.reserve(elements * 500);
    const int groups = (elements + kElementsPerGroup - 1) / kElementsPerGroup;
    int made = 0;
    for (int g = 0; g < groups; ++g) {
        QString grid;
        for (int i = 0; i < kElementsPerGroup && made < elements; ++i, ++made) {
            const QString id = QStringLiteral("e%1").arg(made);
            const QString label =
                Widget("QLabel", id + QStringLiteral("_label"),
                       Property("text", QStringLiteral("<string>Label %1</string>").arg(id)) +
                           Property("alignment", QStringLiteral("<set>Qt::AlignRight|Qt::AlignVCenter</set>")) +
                           Property("wordWrap", QStringLiteral("<bool>true</bool>")));
            QString control;
            switch (KindOf(i)) {
            case 0:
                control =
                    Widget("QWidget", id,
                           QStringLiteral("<layout class=\"QHBoxLayout\" name=\"%1_layout\">"
                                          "<property name=\"leftMargin\"><number>0</number></property>"
                                          "<property name=\"rightMargin\"><number>0</number></property>"
                                          "<item>%2</item><item>%3</item></layout>")
                               .arg(id,
                                    Widget("QSlider", id + QStringLiteral("_slider"),
                                           Property("orientation", QStringLiteral("<enum>Qt::Horizontal</enum>")) +
                                               Property("maximum", QStringLiteral("<number>10000</number>")) +
                                               Property("value", QStringLiteral("<number>2500</number>"))),
                                    Widget("QDoubleSpinBox", id + QStringLiteral("_field"),
                                           Property("maximum", QStringLiteral("<double>100</double>")) +
                                               Property("value", QStringLiteral("<double>25</double>")))));
                break;
            case 1:
                control =
                    Widget("QLineEdit", id, Property("text", QStringLiteral("<string>Value %1</string>").arg(id)));
                break;
            case 2:
                control = Widget("QCheckBox", id,
                                 Property("text", QStringLiteral("<string>Check %1</string>").arg(id)) +
                                     Property("checked", QStringLiteral("<bool>true</bool>")));
                break;
            default:
                control =
                    Widget("QComboBox", id,
                           QStringLiteral("<item><property name=\"text\"><string>One</string></property></item>"
                                          "<item><property name=\"text\"><string>Two</string></property></item>"
                                          "<item><property name=\"text\"><string>Three</string></property></item>") +
                               Property("currentIndex", QStringLiteral("<number>1</number>")));
                break;
            }
            if (KindOf(i) == 2) {
                grid += Item(i, 1, control);
            } else {
                grid += Item(i, 0, label);
                grid += Item(i, 1, control);
            }
        }
        body += QStringLiteral("<item>%1</item>")
                    .arg(Widget("QGroupBox", QStringLiteral("g%1").arg(g),
                                Property("title", QStringLiteral("<string>Group %1</string>").arg(g)) +
                                    QStringLiteral("<property name=\"checkable\"><bool>false</bool></property>"
                                                   "<layout class=\"QGridLayout\" name=\"g%1_grid\">%2</layout>")
                                        .arg(g)
                                        .arg(grid)));
    }
    const QString form =
        QStringLiteral("<?xml version=\"1.0\" encoding=\"UTF-8\"?><ui version=\"4.0\"><class>Form</class>"
                       "<widget class=\"QWidget\" name=\"Form\">"
                       "<layout class=\"QVBoxLayout\" name=\"page\">%1"
                       "<item><spacer name=\"stretch\"><property name=\"orientation\">"
                       "<enum>Qt::Vertical</enum></property></spacer></item></layout></widget>"
                       "<resources/><connections/></ui>")
            .arg(body);
    return form.toUtf8();
}

// Shows the form in a scroll area, as forms this long are shown, and lets it
// paint: the editor builds its whole page at its first paint, the page and
// the loaded form show through the events that follow, and the visible part
// is painted once more, synchronously, so that both end on a painted screen.
std::unique_ptr<QScrollArea> ShowUntilPainted(QWidget* widget)
{
    auto area = std::make_unique<QScrollArea>();
    area->setWidgetResizable(true);
    area->resize(600, 800);
    area->setWidget(widget);
    area->show();
    // Events posted while events are handled wait for the next round.
    for (int round = 0; round < 4; ++round)
        QCoreApplication::processEvents();
    const QPixmap painted = area->grab();
    benchmark::DoNotOptimize(painted.cacheKey());
    return area;
}

std::size_t HeapInUse()
{
    return mallinfo2().uordblks;
}

void EnsureLibrary()
{
    static bool done = false;
    if (done)
        return;
    done = true;
    CoreUIManager::Initialize(nullptr);
    ThemeManager::GetInstance()->SetThemeFilesPath(QStringLiteral(KVUICORE_THEMES_DIR).toStdWString().c_str());
    // The theme loads on first use; that belongs to no single page.
    ThemeManager::GetInstance()->GetCurrentTheme();
    auto* warmUp = new PropertyEditor();
    warmUp->LoadUI(EditorDefinition(4));
    ShowUntilPainted(warmUp);
}

void BM_PropertyEditorWholePage(benchmark::State& state)
{
    EnsureLibrary();
    const int elements = int(state.range(0));
    const QString definition = EditorDefinition(elements);
    const QString lastId = QStringLiteral("e%1").arg(elements - 1);
    double bytes = 0;
    for (auto _ : state) {
        const std::size_t before = HeapInUse();
        auto* editor = new PropertyEditor();
        if (!editor->LoadUI(definition))
            state.SkipWithError("the definition did not load");
        std::unique_ptr<QScrollArea> area = ShowUntilPainted(editor);
        bytes = double(HeapInUse() - before);
        state.PauseTiming();
        auto* last = qobject_cast<PropertyEditorElement*>(editor->FindElement(lastId));
        if (!editor->IsBuilt() || !last || !last->GetWidget())
            state.SkipWithError("the page was not built whole at its first paint");
        area.reset();
        QCoreApplication::processEvents();
        state.ResumeTiming();
    }
    state.counters["bytes_per_element"] = bytes / elements;
}

void BM_QUiLoaderFirstPaint(benchmark::State& state)
{
    EnsureLibrary();
    const int elements = int(state.range(0));
    const QByteArray form = DesignerForm(elements);
    QUiLoader loader;
    double bytes = 0;
    for (auto _ : state) {
        const std::size_t before = HeapInUse();
        QBuffer buffer;
        buffer.setData(form);
        buffer.open(QIODevice::ReadOnly);
        QWidget* widget = loader.load(&buffer);
        if (!widget) {
            state.SkipWithError("the form did not load");
            break;
        }
        std::unique_ptr<QScrollArea> area = ShowUntilPainted(widget);
        bytes = double(HeapInUse() - before);
        state.PauseTiming();
        area.reset();
        QCoreApplication::processEvents();
        state.ResumeTiming();
    }
    state.counters["bytes_per_element"] = bytes / elements;
}

} // namespace

BENCHMARK(BM_PropertyEditorWholePage)->Arg(1000)->Arg(10000)->Unit(benchmark::kMillisecond)->Iterations(3);
BENCHMARK(BM_QUiLoaderFirstPaint)->Arg(1000)->Arg(10000)->Unit(benchmark::kMillisecond)->Iterations(3);

KVBENCH_RATIO("1,000 elements, whole page to first paint, vs QUiLoader", "BM_PropertyEditorWholePage/1000",
              "BM_QUiLoaderFirstPaint/1000", 1.0);
KVBENCH_RATIO("10,000 elements, whole page to first paint, vs QUiLoader", "BM_PropertyEditorWholePage/10000",
              "BM_QUiLoaderFirstPaint/10000", 1.0);
KVBENCH_RATIO("page: 10,000 elements vs 1,000", "BM_PropertyEditorWholePage/10000", "BM_PropertyEditorWholePage/1000",
              11.0);
KVBENCH_RATIO("QUiLoader: 10,000 elements vs 1,000", "BM_QUiLoaderFirstPaint/10000", "BM_QUiLoaderFirstPaint/1000",
              11.0);

KVBENCH_MAIN();
