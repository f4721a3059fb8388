// A source property changing 100,000 times, followed through a Binding and
// through a direct connection (reading the value through its typed getter,
// and as a QVariant through its meta-property, as a binding's subscriber gets
// it); and a 10,000-element settings file read through the XML filer and
// parsed by a bare QDomDocument.

#include "BenchRatio.h"

#include <KvUICore/propertyeditor/Binding.h>
#include <KvUICore/util/XmlFiler.h>

#include <QDomDocument>
#include <QFile>
#include <QMetaProperty>
#include <QObject>
#include <QTemporaryDir>

using Kavrel::UICore::Binding;
using Kavrel::UICore::XmlFiler;

class BenchSource : public QObject
{
    Q_OBJECT
    Q_PROPERTY(int Value READ GetValue WRITE SetValue NOTIFY ValueChanged)

public:
    int GetValue() const { return miValue; }
    void SetValue(int value)
    {
        if (value == miValue)
            return;
        miValue = value;
        emit ValueChanged();
    }

Q_SIGNALS:
    void ValueChanged();

private:
    int miValue = -1;
};

namespace {

constexpr int kChanges = 100000;
constexpr int kElements = 10000;

void BM_BindingPropagation(benchmark::State& state)
{
    BenchSource source;
    Binding binding(&source, QStringLiteral("Value"));
    qint64 sum = 0;
    int next = 0;
    QObject::connect(&binding, &Binding::ValueChanged, [&sum, &binding] { sum += binding.GetValue().toInt(); });
    for (auto _ : state) {
        for (int i = 0; i < kChanges; ++i)
            source.SetValue(++next);
        benchmark::DoNotOptimize(sum);
    }
}
BENCHMARK(BM_BindingPropagation)->Unit(benchmark::kMillisecond);

void BM_DirectConnection(benchmark::State& state)
{
    BenchSource source;
    qint64 sum = 0;
    int next = 0;
    QObject::connect(&source, &BenchSource::ValueChanged, [&sum, &source] { sum += source.GetValue(); });
    for (auto _ : state) {
        for (int i = 0; i < kChanges; ++i)
            source.SetValue(++next);
        benchmark::DoNotOptimize(sum);
    }
}
BENCHMARK(BM_DirectConnection)->Unit(benchmark::kMillisecond);

// The same subscriber work as through a binding: the value arrives as a
// QVariant read through the property's meta-property.
void BM_DirectConnectionVariantRead(benchmark::State& state)
{
    BenchSource source;
    const QMetaProperty property = source.metaObject()->property(source.metaObject()->indexOfProperty("Value"));
    qint64 sum = 0;
    int next = 0;
    QObject::connect(&source, &BenchSource::ValueChanged,
                     [&sum, &source, &property] { sum += property.read(&source).toInt(); });
    for (auto _ : state) {
        for (int i = 0; i < kChanges; ++i)
            source.SetValue(++next);
        benchmark::DoNotOptimize(sum);
    }
}
BENCHMARK(BM_DirectConnectionVariantRead)->Unit(benchmark::kMillisecond);

// A settings file of kElements entries, written once per program run.
const QString& settingsFile()
{
    static QTemporaryDir dir;
    static const QString path = [] {
        const QString file = dir.filePath(QStringLiteral("settings.xml"));
        QString xml = QStringLiteral("<?xml version=\"1.0\"?>\n<Settings>\n");
        for (int i = 0; i < kElements; ++i) {
            xml += QStringLiteral("    <Entry Name=\"Entry%1\" Value=\"%2\" Enabled=\"True\" "
                                  "Bounds=\"%1,%2,640,480\"/>\n")
                       .arg(i)
                       .arg(i * 7);
        }
        xml += QStringLiteral("</Settings>\n");
        QFile out(file);
        if (out.open(QIODevice::WriteOnly))
            out.write(xml.toUtf8());
        return file;
    }();
    return path;
}

void BM_XmlFilerOpen(benchmark::State& state)
{
    const QString& path = settingsFile();
    for (auto _ : state) {
        XmlFiler filer;
        if (!filer.Open(path))
            state.SkipWithError("open failed");
        benchmark::DoNotOptimize(filer.GetElementName());
    }
}
BENCHMARK(BM_XmlFilerOpen)->Unit(benchmark::kMillisecond);

void BM_XmlFilerOpenAndRead(benchmark::State& state)
{
    const QString& path = settingsFile();
    for (auto _ : state) {
        XmlFiler filer;
        if (!filer.Open(path))
            state.SkipWithError("open failed");
        qint64 sum = 0;
        if (filer.GoToFirstChild(QStringLiteral("Entry"))) {
            do {
                sum += filer.ReadInt(QStringLiteral("Value")) + filer.ReadString(QStringLiteral("Name")).size();
            } while (filer.GoToNextSibling(QStringLiteral("Entry")));
        }
        benchmark::DoNotOptimize(sum);
    }
}
BENCHMARK(BM_XmlFilerOpenAndRead)->Unit(benchmark::kMillisecond);

void BM_DomSetContent(benchmark::State& state)
{
    const QString& path = settingsFile();
    for (auto _ : state) {
        QFile file(path);
        if (!file.open(QIODevice::ReadOnly))
            state.SkipWithError("open failed");
        QDomDocument document;
        if (!document.setContent(&file, false))
            state.SkipWithError("parse failed");
        benchmark::DoNotOptimize(document.documentElement());
    }
}
BENCHMARK(BM_DomSetContent)->Unit(benchmark::kMillisecond);

} // namespace

KVBENCH_RATIO("Binding vs direct slot, typed getter", "BM_BindingPropagation", "BM_DirectConnection", 2.0);
KVBENCH_RATIO("Binding vs direct slot, QVariant read", "BM_BindingPropagation", "BM_DirectConnectionVariantRead", 2.0);
KVBENCH_RATIO("XmlFiler open vs QDomDocument::setContent", "BM_XmlFilerOpen", "BM_DomSetContent", 1.5);
KVBENCH_RATIO("XmlFiler open + read all vs setContent", "BM_XmlFilerOpenAndRead", "BM_DomSetContent", 1.5);
KVBENCH_MAIN();

#include "binding_bench.moc"
