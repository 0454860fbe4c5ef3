// The typed sort on a Qt tree widget of many rows, as a Qt program calls it: each run sorts the
// number column the other way round, so every run moves every row.
#include "velkor6/lib.h"
#include "velkor6/qt.h"

#include <QApplication>
#include <QTreeWidget>
#include <benchmark/benchmark.h>
#include <cstdint>

namespace {

// Rows "Item n" with a number in column 1 that runs in no order.
void fill(QTreeWidget& tree, int rows) {
    tree.setColumnCount(2);
    for (int i = 0; i < rows; ++i) {
        const int amount = static_cast<int>((static_cast<std::int64_t>(i) * 7919) % rows);
        new QTreeWidgetItem(&tree, {QStringLiteral("Item %1").arg(i), QString::number(amount)});
    }
}

void numericSort(benchmark::State& state) {
    velkor6::lib lib(velkor6::Module::createDefault());
    QTreeWidget tree;
    fill(tree, static_cast<int>(state.range(0)));
    const velkor6::ObjectRef list = velkor6::qt::wrap(&tree);
    for (auto _ : state)
        lib.vkrSortListView(list, 1);
    state.SetItemsProcessed(state.iterations() * state.range(0));
}
BENCHMARK(numericSort)->Arg(1000)->Arg(10000)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
