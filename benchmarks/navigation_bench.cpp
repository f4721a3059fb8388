// Opening a DropDownTree on a large model and filtering it, against a QComboBox
// with a QTreeView popup on the same model (and a QSortFilterProxyModel under a
// QTreeView for the filtering); showing many messages in a MessageFacility,
// against a plain column of one label per message.
#include "BenchRatio.h"
#include "BenchTheme.h"

#include <KvUICore/core/CoreUIManager.h>
#include <KvUICore/theme/ThemeManager.h>
#include <KvUICore/widgets/DropDownTree.h>
#include <KvUICore/widgets/MessageFacility.h>
#include <KvUICore/widgets/SearchBox.h>

#include <QComboBox>
#include <QLabel>
#include <QSortFilterProxyModel>
#include <QStandardItemModel>
#include <QTreeView>
#include <QVBoxLayout>

#include <map>
#include <memory>

using namespace Kavrel::UICore;

namespace {

void ensureTheme()
{
    kvbench::UseRepositoryTheme();
}

// A three-level library of `count` leaves: 50 groups, each of 20 folders.
QStandardItemModel* libraryModel(int count)
{
    static std::map<int, std::unique_ptr<QStandardItemModel>> models;
    auto& model = models[count];
    if (model)
        return model.get();
    model = std::make_unique<QStandardItemModel>();
    const int groups = 50;
    const int folders = 20;
    const int leaves = qMax(1, count / (groups * folders));
    for (int g = 0; g < groups; ++g) {
        auto* group = new QStandardItem(QStringLiteral("Group %1").arg(g));
        for (int f = 0; f < folders; ++f) {
            auto* folder = new QStandardItem(QStringLiteral("Folder %1.%2").arg(g).arg(f));
            QList<QStandardItem*> items;
            items.reserve(leaves);
            for (int l = 0; l < leaves; ++l)
                items.append(new QStandardItem(QStringLiteral("Item %1.%2.%3").arg(g).arg(f).arg(l)));
            folder->appendColumn(items);
            group->appendRow(folder);
        }
        model->appendRow(group);
    }
    return model.get();
}

const QString kFilters[2] = {QStringLiteral("Item 7.3.4"), QStringLiteral("Item 31.12.8")};

void BM_DropDownTreeOpen(benchmark::State& state)
{
    ensureTheme();
    QStandardItemModel* model = libraryModel(int(state.range(0)));
    for (auto _ : state) {
        DropDownTree tree;
        tree.SetModel(model);
        tree.resize(240, 24);
        tree.ShowPopup();
        QCoreApplication::processEvents();
        tree.HidePopup();
    }
}
BENCHMARK(BM_DropDownTreeOpen)->Arg(10000)->Arg(100000)->Unit(benchmark::kMillisecond);

void BM_ComboBoxTreeOpen(benchmark::State& state)
{
    ensureTheme();
    QStandardItemModel* model = libraryModel(int(state.range(0)));
    for (auto _ : state) {
        QComboBox combo;
        auto* view = new QTreeView;
        view->setHeaderHidden(true);
        view->setUniformRowHeights(true);
        combo.setView(view);
        combo.setModel(model);
        combo.resize(240, 24);
        combo.showPopup();
        QCoreApplication::processEvents();
        combo.hidePopup();
    }
}
BENCHMARK(BM_ComboBoxTreeOpen)->Arg(10000)->Arg(100000)->Unit(benchmark::kMillisecond);

void BM_DropDownTreeFilter(benchmark::State& state)
{
    ensureTheme();
    QStandardItemModel* model = libraryModel(int(state.range(0)));
    DropDownTree tree;
    tree.SetModel(model);
    tree.SetFilterDelay(0);
    tree.resize(240, 24);
    tree.ShowPopup();
    QCoreApplication::processEvents();
    int i = 0;
    for (auto _ : state) {
        tree.SetFilterText(kFilters[i++ % 2]);
        QCoreApplication::processEvents();
    }
    tree.HidePopup();
}
BENCHMARK(BM_DropDownTreeFilter)->Arg(10000)->Arg(100000)->Unit(benchmark::kMillisecond);

void BM_ProxyTreeFilter(benchmark::State& state)
{
    ensureTheme();
    QStandardItemModel* model = libraryModel(int(state.range(0)));
    QWidget popup(nullptr, Qt::Popup);
    auto* layout = new QVBoxLayout(&popup);
    auto* view = new QTreeView(&popup);
    view->setHeaderHidden(true);
    view->setUniformRowHeights(true);
    layout->addWidget(view);
    QSortFilterProxyModel proxy;
    proxy.setRecursiveFilteringEnabled(true);
    proxy.setFilterCaseSensitivity(Qt::CaseInsensitive);
    proxy.setSourceModel(model);
    view->setModel(&proxy);
    popup.resize(240, 320);
    popup.show();
    QCoreApplication::processEvents();
    int i = 0;
    for (auto _ : state) {
        proxy.setFilterFixedString(kFilters[i++ % 2]);
        view->expandAll();
        QCoreApplication::processEvents();
    }
    popup.hide();
}
BENCHMARK(BM_ProxyTreeFilter)->Arg(10000)->Arg(100000)->Unit(benchmark::kMillisecond);

void BM_MessageFacilityShow(benchmark::State& state)
{
    ensureTheme();
    const int count = int(state.range(0));
    int widgets = 0;
    for (auto _ : state) {
        MessageFacility facility;
        for (int i = 0; i < count; ++i)
            facility.ShowMessage(MessageFacility::Severity::Warning,
                                 QStringLiteral("Texture %1 could not be found.").arg(i));
        widgets = int(facility.findChildren<QWidget*>().size());
        benchmark::DoNotOptimize(widgets);
    }
    state.counters["widgets"] = widgets;
}
BENCHMARK(BM_MessageFacilityShow)->Arg(10)->Arg(100)->Unit(benchmark::kMicrosecond);

void BM_LabelColumnShow(benchmark::State& state)
{
    ensureTheme();
    const int count = int(state.range(0));
    int widgets = 0;
    for (auto _ : state) {
        QWidget column;
        auto* layout = new QVBoxLayout(&column);
        for (int i = 0; i < count; ++i)
            layout->addWidget(new QLabel(QStringLiteral("Texture %1 could not be found.").arg(i), &column));
        widgets = int(column.findChildren<QWidget*>().size());
        benchmark::DoNotOptimize(widgets);
    }
    state.counters["widgets"] = widgets;
}
BENCHMARK(BM_LabelColumnShow)->Arg(10)->Arg(100)->Unit(benchmark::kMicrosecond);

} // namespace

KVBENCH_RATIO("open a DropDownTree, 10,000 items vs QComboBox+QTreeView", "BM_DropDownTreeOpen/10000",
              "BM_ComboBoxTreeOpen/10000", 1.2);
KVBENCH_RATIO("open a DropDownTree, 100,000 items vs QComboBox+QTreeView", "BM_DropDownTreeOpen/100000",
              "BM_ComboBoxTreeOpen/100000", 1.2);
KVBENCH_RATIO("filter a DropDownTree, 10,000 items vs proxy+QTreeView", "BM_DropDownTreeFilter/10000",
              "BM_ProxyTreeFilter/10000", 1.2);
KVBENCH_RATIO("filter a DropDownTree, 100,000 items vs proxy+QTreeView", "BM_DropDownTreeFilter/100000",
              "BM_ProxyTreeFilter/100000", 1.2);
// The facility keeps widgets for the shown messages only; the label column makes one per message.
KVBENCH_RATIO("show 100 messages in a MessageFacility vs a label column", "BM_MessageFacilityShow/100",
              "BM_LabelColumnShow/100", 1.0);

KVBENCH_MAIN()
