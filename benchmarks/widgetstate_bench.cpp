// Saving a widget's state: into a state file that holds other widgets' states
// (read, replace one element, write atomically) and as a string, each against
// the same DOM work done directly.
#include "BenchRatio.h"

#include <KvUICore/widgets/WidgetImp.h>

#include <QDomDocument>
#include <QFile>
#include <QTemporaryDir>
#include <QTextStream>

namespace {

constexpr int kOtherWidgets = 20;
constexpr int kSettings = 40;

void writeSettings(QDomElement& element, int salt)
{
    for (int i = 0; i < kSettings; ++i)
        element.setAttribute(QStringLiteral("setting%1").arg(i), QString::number(i * 7 + salt));
}

class PanelWidget : public WidgetImp
{
public:
    using WidgetImp::SaveState;

protected:
    void SaveState(QDomElement& element) const override { writeSettings(element, 3); }
    QString StateNodeId() const override { return QStringLiteral("Panel"); }
};

QString prepareStateFile(const QTemporaryDir& dir)
{
    QDomDocument document;
    QDomElement root = document.createElement(QStringLiteral("Root"));
    document.appendChild(root);
    QDomElement dialogs = document.createElement(QStringLiteral("Dialogs"));
    root.appendChild(dialogs);
    for (int i = 0; i < kOtherWidgets; ++i) {
        QDomElement other = document.createElement(QStringLiteral("Widget%1").arg(i));
        writeSettings(other, i);
        dialogs.appendChild(other);
    }
    const QString path = dir.filePath(QStringLiteral("state.xml"));
    QFile file(path);
    file.open(QIODevice::WriteOnly);
    QTextStream stream(&file);
    document.save(stream, 4);
    return path;
}

void BM_SaveStateToFile(benchmark::State& state)
{
    QTemporaryDir dir;
    const QString path = prepareStateFile(dir);
    PanelWidget widget;
    for (auto _ : state)
        benchmark::DoNotOptimize(widget.SaveState(path, QStringLiteral("Dialogs/Panel")));
}

// The same read, replace and write, straight over the file without the
// temporary copy and the swap.
void BM_DomRewriteInPlace(benchmark::State& state)
{
    QTemporaryDir dir;
    const QString path = prepareStateFile(dir);
    for (auto _ : state) {
        QDomDocument document;
        {
            QFile file(path);
            file.open(QIODevice::ReadOnly);
            document.setContent(&file);
        }
        QDomElement dialogs = document.documentElement().firstChildElement(QStringLiteral("Dialogs"));
        QDomElement panel = dialogs.firstChildElement(QStringLiteral("Panel"));
        if (panel.isNull()) {
            panel = document.createElement(QStringLiteral("Panel"));
            dialogs.appendChild(panel);
        }
        writeSettings(panel, 3);
        QFile file(path);
        file.open(QIODevice::WriteOnly | QIODevice::Truncate);
        QTextStream stream(&file);
        document.save(stream, 4, QDomNode::EncodingFromTextStream);
    }
}

void BM_SaveStateString(benchmark::State& state)
{
    PanelWidget widget;
    for (auto _ : state)
        benchmark::DoNotOptimize(widget.SaveState());
}

void BM_DomToString(benchmark::State& state)
{
    for (auto _ : state) {
        QDomDocument document;
        QDomElement element = document.createElement(QStringLiteral("Panel"));
        writeSettings(element, 3);
        document.appendChild(element);
        benchmark::DoNotOptimize(document.toString(1));
    }
}

} // namespace

BENCHMARK(BM_SaveStateToFile);
BENCHMARK(BM_DomRewriteInPlace);
BENCHMARK(BM_SaveStateString);
BENCHMARK(BM_DomToString);

// The atomic replacement (temporary file, flush to disk, rename) is the price
// of never losing the other widgets' states.
KVBENCH_RATIO("SaveState to file vs DOM rewrite in place", "BM_SaveStateToFile", "BM_DomRewriteInPlace", 4.0);
KVBENCH_RATIO("SaveState string vs QDomDocument::toString", "BM_SaveStateString", "BM_DomToString", 1.5);

KVBENCH_MAIN();
