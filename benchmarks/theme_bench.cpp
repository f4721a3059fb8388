// Theme lookups and theme file loading against their raw Qt equivalents.
#include "BenchRatio.h"
#include "BenchTheme.h"

#include <KvUICore/core/CoreUIManager.h>
#include <KvUICore/theme/ThemeKeyCatalogue.h>
#include <KvUICore/theme/ThemeManager.h>

#include <QColor>
#include <QFile>
#include <QHash>
#include <QVariant>
#include <QXmlStreamReader>

using namespace Kavrel::UICore;

namespace {

ThemeManager* themes()
{
    return kvbench::UseRepositoryTheme();
}

// The colour keys the theme defines, as a control would pass them.
const QStringList& colourKeys()
{
    static const QStringList keys = [] {
        QStringList result;
        std::size_t count = 0;
        const ThemeKeyEntry* entries = ThemeKeyCatalogue(&count);
        for (std::size_t i = 0; i < count; ++i) {
            const QString key = QString::fromLatin1(entries[i].text);
            if (themes()->GetColor(key).isValid())
                result << key;
        }
        return result;
    }();
    return keys;
}

QString themeFile()
{
    return QStringLiteral(KVUICORE_THEMES_DIR "/LightTheme.xbel");
}

void BM_GetColor(benchmark::State& state)
{
    ThemeManager* manager = themes();
    const QStringList& keys = colourKeys();
    for (auto _ : state) {
        for (const QString& key : keys)
            benchmark::DoNotOptimize(manager->GetColor(key));
    }
    state.SetItemsProcessed(state.iterations() * keys.size());
}
BENCHMARK(BM_GetColor);

void BM_GetBrush(benchmark::State& state)
{
    ThemeManager* manager = themes();
    const QStringList& keys = colourKeys();
    const QRect rect(0, 0, 100, 24);
    for (auto _ : state) {
        for (const QString& key : keys)
            benchmark::DoNotOptimize(manager->GetBrush(key, rect));
    }
    state.SetItemsProcessed(state.iterations() * keys.size());
}
BENCHMARK(BM_GetBrush);

void BM_RawHashLookup(benchmark::State& state)
{
    // The same entries as the theme holds, so both tables are the same size.
    QHash<QString, QVariant*> table;
    std::size_t count = 0;
    const ThemeKeyEntry* entries = ThemeKeyCatalogue(&count);
    for (std::size_t i = 0; i < count; ++i) {
        const QString key = QString::fromLatin1(entries[i].text);
        if (themes()->Exists(key))
            table.insert(key, new QVariant(themes()->GetColor(key)));
    }
    const QStringList& keys = colourKeys();
    for (auto _ : state) {
        for (const QString& key : keys)
            benchmark::DoNotOptimize(table.value(key)->value<QColor>());
    }
    state.SetItemsProcessed(state.iterations() * keys.size());
    qDeleteAll(table);
}
BENCHMARK(BM_RawHashLookup);

void BM_LoadThemeFile(benchmark::State& state)
{
    ThemeManager* manager = themes();
    const QString path = themeFile();
    for (auto _ : state)
        benchmark::DoNotOptimize(manager->LoadThemeFile(path, true));
}
BENCHMARK(BM_LoadThemeFile)->Unit(benchmark::kMicrosecond);

void BM_RawXmlTokenPass(benchmark::State& state)
{
    const QString path = themeFile();
    for (auto _ : state) {
        QFile file(path);
        file.open(QIODevice::ReadOnly | QIODevice::Text);
        QXmlStreamReader reader(&file);
        int tokens = 0;
        while (!reader.atEnd()) {
            reader.readNext();
            ++tokens;
        }
        benchmark::DoNotOptimize(tokens);
    }
}
BENCHMARK(BM_RawXmlTokenPass)->Unit(benchmark::kMicrosecond);

} // namespace

KVBENCH_RATIO("GetColor vs raw QHash lookup", "BM_GetColor", "BM_RawHashLookup", 1.5);
KVBENCH_RATIO("GetBrush vs raw QHash lookup", "BM_GetBrush", "BM_RawHashLookup", 1.5);
KVBENCH_RATIO("load LightTheme.xbel vs bare QXmlStreamReader pass", "BM_LoadThemeFile", "BM_RawXmlTokenPass", 3.0);
KVBENCH_MAIN();
