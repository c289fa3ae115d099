// The solver's speed: the deals 1 to 100 of two games by the program's own shuffle, processor time for each
// different position met. The least of some rounds: a round is the same work each time, and what others do on
// the machine can only make it longer.
#include <algorithm>
#include <cstddef>
#include <ctime>
#include <limits>
#include <string>

#include <sys/resource.h>

#include "engine/catalogue/definition.h"
#include "engine/catalogue/families.h"
#include "mFigures.h"
#include "solver/Games.h"
#include "solver/Search.h"

namespace {

void Measure(const std::string& name, const char* what) {
    constexpr int Deals = 100;
    constexpr int Rounds = 5;
    constexpr Solver::Limits limits{.States = 100000};
    const cGames game = Solver::NumbersOf(*mFamilies::Find(name));
    Solver::Search search(game, {});
    // The first deal fetches the memory.
    static_cast<void>(search.Solve(mDeal::Deal(game, 1), limits));
    double least = std::numeric_limits<double>::infinity();
    for (int round = 0; round < Rounds; ++round) {
        std::size_t states = 0;
        const std::clock_t begin = std::clock();
        for (int number = 1; number <= Deals; ++number)
            states += search.Solve(mDeal::Deal(game, number), limits).States;
        const double seconds = static_cast<double>(std::clock() - begin) / CLOCKS_PER_SEC;
        least = std::min(least, seconds * 1e6 / static_cast<double>(states));
    }
    mFigures::Print(what, least, "us");
}

// What a search of a million states makes the process grow by, at its highest.
double BytesOfState() {
    constexpr std::size_t States = 1000000;
    const auto highest = [] {
        rusage usage{};
        getrusage(RUSAGE_SELF, &usage);
        return static_cast<double>(usage.ru_maxrss) * 1024;
    };
    const cGames game = Solver::NumbersOf(*mFamilies::Find("Simple Simon"));
    Solver::Search search(game, {});
    const double before = highest();
    std::size_t most = 0;
    for (int number = 1; most < States; ++number) {
        most = std::max(most, search.Solve(mDeal::Deal(game, number), {.States = States}).States);
    }
    return (highest() - before) / static_cast<double>(most);
}

}  // namespace

int main() {
    mFigures::Print("the solver, memory a state", BytesOfState(), "bytes");
    Measure("Freecell", "the solver, a state of \"Freecell\"");
    Measure("Fan", "the solver, a state of \"Fan\"");
}
