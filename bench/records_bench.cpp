// How long the views of a large store take, and what a record costs in memory. Prints figures and
// their limits and fails when one is missed by more than a quarter; a number on the command line sets the
// records of each of the 20 players.
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <optional>
#include <utility>

#include "StoreBench.h"
#include "engine/records/Career.h"
#include "engine/records/mCareerTables.h"
#include "engine/records/mLog.h"
#include "engine/records/mRanking.h"
#include "engine/records/mSorting.h"
#include "engine/records/mStatistics.h"
#include "mFigures.h"

namespace {

void Print(const char* what, double milliseconds) { mFigures::Print(what, milliseconds, "ms", ViewLimit); }

std::size_t HeapBytes() {
    const struct mallinfo2 info = ::mallinfo2();
    return info.uordblks + info.hblkhd;
}

/// Each choice of "More Statistics", with the longest of its tables.
std::size_t MoreStatistics() {
    constexpr double OpenLimit = 200.0;  // beyond the load
    std::size_t rows = 0;
    std::optional<Career> career;
    Career::Result result;
    mFigures::Print("more statistics: up", Milliseconds([&] {
                        career.emplace(gScore->Store());
                        result = career->Work({});
                        rows += mCareerTables::Summary(*career, result).Rows.size();
                    }),
                    "ms", OpenLimit);
    const std::pair<const char*, CareerFilter> filters[] = {
        {"all", {}},
        {"a player", {.Player = "Player7", .Gid = 0, .Days = {}}},
        {"a group", {.Player = {}, .Gid = 1, .Days = {}}},
        {"12 months", {.Player = {}, .Gid = 0, .Days = mCareerTables::Days("Last 12 Months")}},
    };
    for (const auto& [name, filter] : filters) {
        Print(
            (std::string("more statistics: ") + name).c_str(), Milliseconds([&] {
                result = career->Work(filter);
                rows +=
                    mCareerTables::Games(*career, result, filter, mCareerTables::GameChoice::All).Rows.size();
            }));
        Print((std::string("more statistics: the records of ") + name).c_str(),
              Milliseconds([&] { rows += career->Records(filter).size(); }));
    }
    Print("more statistics: by week",
          Milliseconds([&] { rows += mCareerTables::Times(result, mCareerTables::Unit::Week).Rows.size(); }));
    return rows;
}

void Run(const RecordPlan& plan) {
    const StoreBench store(plan);
    const std::size_t before = HeapBytes();
    const double load = Milliseconds([] { gScore->OpenAllScore(); });
    const std::size_t used = HeapBytes() - before;
    std::printf("%d records of %d players, dates %s\n", gScore->ScoreTop(), plan.Players,
                plan.Regional ? "regional" : "fixed");
    mFigures::Print("OpenAllScore", load, "ms", LoadLimit);
    mFigures::Print("OpenAllScore, loaded before", Milliseconds([] { gScore->OpenAllScore(); }), "ms",
                    LoadLimit);
    mFigures::Print("memory a record", static_cast<double>(used) / std::max(1, gScore->ScoreTop()), "bytes",
                    250.0);

    std::size_t rows = 0;  // used below, so that no query can be left out
    Print("statistics: general",
          Milliseconds([&] { rows += mStatistics::GeneralLines(gScore->TotalStat()).size(); }));
    Print("statistics: 350 games", Milliseconds([&] { rows += mStatistics::GameRows().size(); }));
    Print("statistics: chart of a game",
          Milliseconds([&] { rows += mStatistics::RecordsChart("Klondike").Rows.size(); }));
    for (const mStatistics::DateRange& range : mStatistics::DateRanges) {
        Print((std::string("statistics: ") + range.Text).c_str(),
              Milliseconds([&] { rows += mStatistics::Dates(range).Rows.size(); }));
    }
    Print("statistics: players", Milliseconds([&] { rows += mStatistics::PlayerRows().size(); }));
    Print("high scores: all", Milliseconds([&] { rows += mRanking::TopRows().size(); }));
    Print("high scores: a game", Milliseconds([&] { rows += mRanking::GameRows("Klondike").size(); }));
    Print("high scores: a player", Milliseconds([&] { rows += mRanking::PlayerRows("Player7").size(); }));
    for (const char* key : mRanking::FinishedKeys) {
        Print((std::string("high scores: finished by ") + key).c_str(),
              Milliseconds([&] { rows += mRanking::FinishedRows(key).size(); }));
    }
    for (const mLog::DateChoice& choice : mLog::DateChoices) {
        Print((std::string("log: ") + choice.Text).c_str(), Milliseconds([&] {
                  rows += mLog::Select(mLog::AllPlayers, mLog::AllGames, choice.Text).size();
              }));
    }
    Print("log: a player and a game",
          Milliseconds([&] { rows += mLog::Select("Player7", "Klondike", mLog::ShowAll).size(); }));
    rows += MoreStatistics();
    const RegionalDates dates = RegionalDates::Current();
    constexpr int Shown = 1000;
    Print("log: 1000 rows", Milliseconds([&] {
              for (int i = 1; i <= std::min(Shown, gScore->ScoreTop()); ++i) {
                  rows += mLog::Row(gScore->GetScore(i), dates).size();
              }
          }));
    std::vector<int> all = mLog::Select(mLog::AllPlayers, mLog::AllGames, mLog::ShowAll);
    const auto ranks = [](const std::vector<std::string>& names) {
        return std::vector<double>(names.size(), 1.0);
    };
    for (int column = 0; column < static_cast<int>(mLog::Columns.size()); ++column) {
        Print((std::string("log: sorted by ") + mLog::Columns.at(static_cast<std::size_t>(column))).c_str(),
              Milliseconds([&] { rows += mSorting::Order(mLog::Keys(all, column, ranks), true).size(); }));
    }
    mFigures::Print("export",
                    Milliseconds([&] { rows += gScore->WriteStat(store.Folder + "/export.txt") ? 1 : 0; }),
                    "ms");
    std::printf("  rows in all: %zu\n", rows);
}

}  // namespace

int main(int argc, char** argv) {
    RecordPlan plan;
    if (argc > 1) plan.RecordsEach = std::max(1, std::atoi(argv[1]));
    for (const bool regional : {false, true}) {
        plan.Regional = regional;
        Run(plan);
    }
    return mFigures::ExitCode();
}
