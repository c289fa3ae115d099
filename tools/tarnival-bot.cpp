// A bot that plays games of the catalogue headless, to find games that can never be won: a wrong number in
// a game's row mostly shows in that way. It knows all cards, open or not, and takes moves back.
//
//   tarnival-bot [--moves] [MINUTES [GAME ...]]
//
// Plays all games, or those named, for so many minutes in all (10 where none are given): in rounds, each of
// which looks harder at those that are not yet won. Prints a line a game: its name, the deals tried, and the
// deal won. With --moves it prints instead the commands of tarnival-lab that win a deal of each game.
#include <algorithm>
#include <array>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <random>
#include <string>
#include <string_view>
#include <vector>

#include <fmt/format.h>

#include "BeamSearch.h"
#include "engine/commands/mGen.h"
#include "engine/commands/mLoad.h"
#include "engine/commands/mMain.h"
#include "engine/outside/memorylayer.h"
#include "engine/state/RunningGame.h"
#include "engine/state/cData.h"
#include "mBotMoves.h"

namespace {

using Clock = BeamSearch::Clock;

constexpr int Widths = 3;

struct Record {
    std::string Game;
    std::array<Clock::duration, Widths> Spent{};  ///< on searches of each width
    int Deals = 0;
    int Won = 0;  ///< the number of the deal, 0 for none
    int Most = 0;
    int Needed = 0;
    std::vector<std::string> Commands;
};

// Plays the moves by mouse on a new deal; whether that wins.
bool Replays(Record& record, const std::vector<BotMove>& moves) {
    mGen::StartGame(record.Game, static_cast<double>(record.Deals));
    record.Commands = {fmt::format("start \"{}\" {}", record.Game, record.Deals)};
    for (const BotMove& move : moves) {
        if (!gData->Figures.GameRunning) return false;
        record.Commands.push_back(mBotMoves::Play(move));
    }
    return !gData->Figures.GameRunning;
}

// New deals until one is won. Narrow searches see many deals, wide ones look hard at a few: each width gets
// the same time.
void PlayUntil(Record& record, Clock::time_point deadline, int widths, std::mt19937& random) {
    constexpr std::array<std::size_t, Widths> allWidths{20, 100, 500};
    while (record.Won == 0 && Clock::now() < deadline) {
        const auto least = std::min_element(record.Spent.begin(), record.Spent.begin() + widths);
        const auto begin = Clock::now();
        ++record.Deals;
        mGen::StartGame(record.Game, static_cast<double>(record.Deals));
        record.Needed = mGen::CardsToWin();
        BeamSearch search(allWidths.at(static_cast<std::size_t>(least - record.Spent.begin())), random);
        const auto moves = gData->Figures.GameRunning ? search.Win(deadline) : std::vector<BotMove>{};
        record.Most = std::max(record.Most, search.MostOnFoundations());
        *least += Clock::now() - begin;
        if (!moves) continue;
        if (Replays(record, *moves)) {
            record.Won = record.Deals;
        } else {
            fmt::print(stderr, "{} {}: the moves found do not win by mouse\n", record.Game, record.Deals);
        }
    }
}

std::vector<Record> GamesNamed(int count, char** names) {
    std::vector<Record> records;
    for (int SiD = 1; SiD <= gData->TotalGames(); ++SiD) {
        const std::string& name = gData->GetGame(SiD);
        const bool wanted = std::any_of(names, names + count, [&](const char* n) { return name == n; });
        if (count == 0 || wanted) records.emplace_back().Game = name;
    }
    return records;
}

// In rounds, each of which ends when that part of the time is over; the later ones have wider searches, and
// fewer games are left for them.
void PlayAll(std::vector<Record>& records, Clock::duration time) {
    constexpr std::array<double, Widths + 1> ends{0.15, 0.3, 0.6, 1};
    const auto begin = Clock::now();
    std::mt19937 random(1);
    for (std::size_t round = 0; round < ends.size(); ++round) {
        const auto roundEnd = begin + std::chrono::duration_cast<Clock::duration>(time * ends.at(round));
        const int widths = std::min(static_cast<int>(round) + 1, Widths);
        auto open = std::count_if(records.begin(), records.end(), [](const Record& r) { return r.Won == 0; });
        for (Record& record : records) {
            if (record.Won != 0) continue;
            PlayUntil(record, Clock::now() + (roundEnd - Clock::now()) / open--, widths, random);
        }
    }
}

void Print(const Record& record, bool showMoves) {
    if (showMoves) {
        for (const std::string& command : record.Commands) fmt::print("{}\n", command);
    } else if (record.Won != 0) {
        fmt::print("{:26} {:6} deals, won deal {}\n", record.Game, record.Deals, record.Won);
    } else {
        fmt::print("{:26} {:6} deals, never won, at most {} of {} cards on the foundations\n", record.Game,
                   record.Deals, record.Most, record.Needed);
    }
}

constexpr const char* Usage =
    "tarnival-bot [--moves] [MINUTES [GAME ...]]\n"
    "Plays all games, or those named, for so many minutes in all (10 where none are\n"
    "given), and prints a line a game: its name, the deals tried, and the deal won.\n"
    "With --moves it prints the commands of tarnival-lab that win a deal of each game.\n";

}  // namespace

int main(int argc, char** argv) {
    if (argc > 1 && (std::string_view(argv[1]) == "--help" || std::string_view(argv[1]) == "-h")) {
        fmt::print("{}", Usage);
        return 0;
    }
    const bool showMoves = argc > 1 && std::string_view(argv[1]) == "--moves";
    if (showMoves) {
        --argc;
        ++argv;
    }
    constexpr double UsualMinutes = 10;
    const double minutes = argc > 1 ? std::atof(argv[1]) : UsualMinutes;
    MemoryLayer layer;
    mLoad::Main(layer.Layer());
    mMain::Load();
    gRunning.Quiet = true;
    std::vector<Record> records = GamesNamed(std::max(0, argc - 2), argv + 2);
    PlayAll(records,
            std::chrono::duration_cast<Clock::duration>(std::chrono::duration<double>(minutes * 60)));
    for (const Record& record : records) Print(record, showMoves);
    const auto won =
        std::count_if(records.begin(), records.end(), [](const Record& r) { return r.Won != 0; });
    if (!showMoves) fmt::print("{} of {} games won\n", won, records.size());
    mLoad::UnloadMain();
    return 0;
}
