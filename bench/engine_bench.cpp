// The engine's speed without a window: dealing, play by a random player over many games, and the rules pages.
// Prints figures and their limits and fails when one is missed by more than a quarter.
#include <benchmark/benchmark.h>

#include <vector>

#include "mEngineWork.h"
#include "mFigures.h"
#include "support/Fixture.h"

namespace {

/// Microseconds for one turn, or for one item where items are counted.
constexpr const char* Limit = "limit";

void Deal(benchmark::State& state) {
    const Engine engine;
    mGen::AsideGame aside;
    long number = 0;
    for (auto _ : state) mEngineWork::Deal(aside, ++number);
    state.counters[Limit] = 50;
}
BENCHMARK(Deal)->Name("a game of 104 cards shuffled and dealt");

void Play(benchmark::State& state) {
    const Engine engine;
    RandomPlayer player(1);
    long number = 0;
    long moves = 0;
    for (auto _ : state) moves += mEngineWork::Play(player, ++number);
    state.SetItemsProcessed(moves);
    state.counters[Limit] = 1;
}
BENCHMARK(Play)->Name("random play, a MoveCard");

void Pages(benchmark::State& state) {
    const Engine engine;
    for (auto _ : state) benchmark::DoNotOptimize(mEngineWork::Pages());
    state.counters[Limit] = 100e3;
}
BENCHMARK(Pages)->Name("the rules pages of all games");

class Table : public benchmark::BenchmarkReporter {
public:
    bool ReportContext(const Context&) override { return true; }
    void ReportRuns(const std::vector<Run>& runs) override {
        for (const Run& run : runs) {
            const auto items = run.counters.find("items_per_second");
            const double microseconds =
                items == run.counters.end() ? run.GetAdjustedRealTime() / 1e3 : 1e6 / items->second.value;
            mFigures::Print(run.benchmark_name().c_str(), microseconds, "us", run.counters.at(Limit).value);
        }
    }
};

}  // namespace

int main(int argc, char** argv) {
    benchmark::Initialize(&argc, argv);
    Table table;
    benchmark::RunSpecifiedBenchmarks(&table);
    return mFigures::ExitCode();
}
