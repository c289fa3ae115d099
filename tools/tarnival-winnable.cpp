// Solves many deals of a game, with all cards seen, and counts.
//
//   tarnival-winnable NAME FIRST LAST [options]
//   tarnival-winnable NAME --decks FILE [options]
//
// The file has a deck a line, card values by PicID. Prints at the end
// "NAME: N deals, W won, L lost, U unknown, M moves, S states, T s" (M: the median length of the wins found).
// Can be stopped at any time: what is printed stands. Options beside those of tarnival-solve:
//
//   --each      a line a deal as it is done: "NUMBER won|lost|unknown STATES MOVES"; deals of a file count
//   from 1
//   --jobs N    works in N processes
//   --replay    each win is played by the engine before it counts
//   --home-singly   single cards go to the foundations, as published rules have it, where by the game's own
//   rules only complete runs leave
#include <algorithm>
#include <array>
#include <atomic>
#include <chrono>
#include <cstdio>
#include <exception>
#include <fstream>
#include <memory>
#include <string>
#include <vector>

#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

#include <fmt/format.h>

#include "SolutionReplay.h"
#include "SolverArguments.h"

namespace {

/// What is known of a deal, as a worker hands it on through the pipe: small enough to be written at once.
struct Outcome {
    double Number;
    Solver::Answer Answer;
    std::size_t States;
    std::size_t Moves;
    bool Replayed;
};

std::vector<std::vector<int>> ReadDecks(const SolverArguments& arguments) {
    std::ifstream file(*arguments.Decks);
    if (!file) throw ArgumentError("The file " + *arguments.Decks + " cannot be read.");
    std::vector<std::vector<int>> decks;
    for (std::string line; std::getline(file, line);) {
        if (!line.empty()) decks.push_back(ReadDeck(line, arguments.Numbers));
    }
    return decks;
}

class Work {
public:
    explicit Work(const SolverArguments& arguments) : arguments_(arguments) {
        if (arguments.Decks) {
            decks_ = ReadDecks(arguments);
            count_ = decks_.size();
        } else if (arguments.GameNumbers[1] >= arguments.GameNumbers[0]) {
            count_ = static_cast<std::size_t>(arguments.GameNumbers[1] - arguments.GameNumbers[0]) + 1;
        }
    }

    /// Deals are taken from `next`, which all workers share.
    void Run(std::atomic<std::size_t>& next, int output) const {
        Solver::Search search(arguments_.Numbers, arguments_.Switches);
        std::unique_ptr<SolutionReplay> replay;
        if (arguments_.Replay) replay = std::make_unique<SolutionReplay>(arguments_.Switches.Autoplay);
        for (std::size_t i = next++; i < count_; i = next++) {
            const bool deck = arguments_.Decks.has_value();
            const double number =
                deck ? static_cast<double>(i + 1) : arguments_.GameNumbers[0] + static_cast<double>(i);
            const Solver::Result result = search.Solve(
                deck ? DealDeck(arguments_.Numbers, decks_[i]) : mDeal::Deal(arguments_.Numbers, number),
                arguments_.Limits);
            Outcome outcome{number, result.Answer, result.States, result.Moves.size(), true};
            if (replay && result.Answer == Solver::Answer::Won) {
                const auto deal = deck ? SolutionReplay::Deal(decks_[i]) : SolutionReplay::Deal(number);
                outcome.Replayed = replay->Wins(std::string(arguments_.Game->Name), deal, result.Moves);
            }
            if (write(output, &outcome, sizeof outcome) != sizeof outcome) return;
        }
    }

private:
    const SolverArguments& arguments_;
    std::vector<std::vector<int>> decks_;
    std::size_t count_ = 0;
};

struct Totals {
    std::size_t Deals = 0, Won = 0, Lost = 0, Unknown = 0, States = 0;
    std::vector<std::size_t> Lengths;

    void Add(const Outcome& outcome) {
        ++Deals;
        States += outcome.States;
        switch (outcome.Answer) {
            case Solver::Answer::Won:
                ++Won;
                Lengths.push_back(outcome.Moves);
                break;
            case Solver::Answer::Lost:
                ++Lost;
                break;
            case Solver::Answer::Unknown:
                ++Unknown;
                break;
        }
    }

    [[nodiscard]] std::size_t MedianLength() {
        if (Lengths.empty()) return 0;
        const auto middle = Lengths.begin() + static_cast<std::ptrdiff_t>(Lengths.size() / 2);
        std::nth_element(Lengths.begin(), middle, Lengths.end());
        return *middle;
    }
};

void PrintDeal(const Outcome& outcome) {
    const char* const answer = outcome.Answer == Solver::Answer::Won    ? "won"
                               : outcome.Answer == Solver::Answer::Lost ? "lost"
                                                                        : "unknown";
    fmt::print("{} {} {} {}\n", outcome.Number, answer, outcome.States, outcome.Moves);
    std::fflush(stdout);
}

/// The number of the next deal, for all workers.
std::atomic<std::size_t>& SharedCounter() {
    void* const memory = mmap(nullptr, sizeof(std::atomic<std::size_t>), PROT_READ | PROT_WRITE,
                              MAP_SHARED | MAP_ANONYMOUS, -1, 0);
    if (memory == MAP_FAILED) throw std::runtime_error("No memory is left.");
    return *new (memory) std::atomic<std::size_t>(0);
}

int Count(const SolverArguments& arguments) {
    const auto begin = std::chrono::steady_clock::now();
    const Work work(arguments);
    std::array<int, 2> ends{};
    if (pipe(ends.data()) != 0) throw std::runtime_error("No pipe can be opened.");
    std::atomic<std::size_t>& next = SharedCounter();
    for (int job = 0; job < arguments.Jobs; ++job) {
        const pid_t worker = fork();
        if (worker < 0) throw std::runtime_error("No process can be started.");
        if (worker == 0) {
            close(ends[0]);
            int status = 0;
            try {
                work.Run(next, ends[1]);
            } catch (const std::exception& error) {
                fmt::print(stderr, "{}\n", error.what());
                status = 1;
            }
            std::fflush(stderr);
            _exit(status);
        }
    }
    close(ends[1]);

    Totals totals;
    bool refused = false;
    for (Outcome outcome{}; read(ends[0], &outcome, sizeof outcome) == sizeof outcome;) {
        totals.Add(outcome);
        if (!outcome.Replayed) {
            refused = true;
            fmt::print(stderr, "{} {}: the engine refuses the moves found.\n", arguments.Game->Name,
                       outcome.Number);
        }
        if (arguments.Each) PrintDeal(outcome);
    }
    bool failed = refused;
    for (int status = 0; wait(&status) > 0;) failed = failed || status != 0;
    const std::chrono::duration<double> time = std::chrono::steady_clock::now() - begin;
    fmt::print("{}: {} deals, {} won, {} lost, {} unknown, {} moves, {} states, {:.2f} s\n",
               arguments.Game->Name, totals.Deals, totals.Won, totals.Lost, totals.Unknown,
               totals.MedianLength(), totals.States, time.count());
    return failed ? OwnFault : 0;
}

}  // namespace

int main(int argc, char** argv) { return RunTool(argc, argv, 2, "--decks", Count); }
