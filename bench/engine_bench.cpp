// The engine's speed without a window: dealing, play by a random player over many games, and the rules pages.
#include <benchmark/benchmark.h>

#include <vector>

#include "mEngineWork.h"
#include "mFigures.h"
#include "support/Fixture.h"

namespace {

void Deal(benchmark::State& state) {
    const Engine engine;
    mGen::AsideGame aside;
    long number = 0;
    for (auto _ : state) mEngineWork::Deal(aside, ++number);
}
BENCHMARK(Deal)->Name("a game of 104 cards shuffled and dealt");

void Play(benchmark::State& state) {
    Engine engine;
    engine.Layer.Forms.Listening = false;  // as with most players
    RandomPlayer player(1);
    long number = 0;
    long moves = 0;
    for (auto _ : state) moves += mEngineWork::Play(player, ++number);
    state.SetItemsProcessed(moves);
}
BENCHMARK(Play)->Name("random play, a MoveCard");

void Pages(benchmark::State& state) {
    const Engine engine;
    for (auto _ : state) benchmark::DoNotOptimize(mEngineWork::Pages());
}
BENCHMARK(Pages)->Name("the rules pages of all games");

class Table : public benchmark::BenchmarkReporter {
public:
    bool ReportContext(const Context&) override { return true; }
    void ReportRuns(const std::vector<Run>& runs) override {
        for (const Run& run : runs) {
            // Of one turn, or of one item where items are counted.
            const auto items = run.counters.find("items_per_second");
            const double microseconds =
                items == run.counters.end() ? run.GetAdjustedRealTime() / 1e3 : 1e6 / items->second.value;
            mFigures::Print(run.benchmark_name(), microseconds, "us");
        }
    }
};

}  // namespace

int main(int argc, char** argv) {
    benchmark::Initialize(&argc, argv);
    Table table;
    benchmark::RunSpecifiedBenchmarks(&table);
}
