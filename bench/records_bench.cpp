// How long the views of a large store take, and what a record costs in memory. A number on the
// command line sets the records of each of the 20 players.
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <optional>
#include <string>
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

std::size_t HeapBytes() {
    const struct mallinfo2 info = ::mallinfo2();
    return info.uordblks + info.hblkhd;
}

/// Each choice of "More Statistics", with the longest of its tables.
std::size_t MoreStatistics(const std::string& dates) {
    std::size_t rows = 0;
    std::optional<Career> career;
    Career::Result result;
    mFigures::Longest longest("the longest of \"More Statistics\"" + dates);
    longest.Add("more statistics: up", Milliseconds([&] {
                    career.emplace(gScore->Store());
                    result = career->Work({});
                    rows += mCareerTables::Summary(*career, result).Rows.size();
                }));
    const std::pair<const char*, CareerFilter> filters[] = {
        {"all", {}},
        {"a player", {.Player = "Player7", .Gid = 0, .Days = {}}},
        {"a group", {.Player = {}, .Gid = 1, .Days = {}}},
        {"12 months", {.Player = {}, .Gid = 0, .Days = mCareerTables::Days("Last 12 Months")}},
    };
    for (const auto& [name, filter] : filters) {
        longest.Add(
            std::string("more statistics: ") + name, Milliseconds([&] {
                result = career->Work(filter);
                rows +=
                    mCareerTables::Games(*career, result, filter, mCareerTables::GameChoice::All).Rows.size();
            }));
        longest.Add(std::string("more statistics: the records of ") + name,
                    Milliseconds([&] { rows += career->Records(filter).size(); }));
    }
    longest.Add("more statistics: by week", Milliseconds([&] {
                    rows += mCareerTables::Times(result, mCareerTables::Unit::Week).Rows.size();
                }));
    return rows;
}

void Run(const RecordPlan& plan) {
    const StoreBench store(plan);
    const std::size_t before = HeapBytes();
    const double load = Milliseconds([] { gScore->OpenAllScore(); });
    const std::size_t used = HeapBytes() - before;
    std::printf("%d records of %d players\n", gScore->ScoreTop(), plan.Players);
    const std::string dates = plan.Regional ? ", regional dates" : ", written dates";
    mFigures::Print("all records loaded" + dates, load, "ms");
    mFigures::Print("all records loaded again" + dates, Milliseconds([] { gScore->OpenAllScore(); }), "ms");
    mFigures::Print("memory a record" + dates, static_cast<double>(used) / std::max(1, gScore->ScoreTop()),
                    "bytes");

    std::size_t rows = 0;  // used below, so that no query can be left out
    {
        mFigures::Longest longest("the longest view of all records" + dates);
        const auto view = [&](const std::string& name, const std::function<void()>& task) {
            longest.Add(name, Milliseconds(task));
        };
        view("statistics: general", [&] { rows += mStatistics::GeneralLines(gScore->TotalStat()).size(); });
        view("statistics: all games", [&] { rows += mStatistics::GameRows().size(); });
        view("statistics: chart of a game",
             [&] { rows += mStatistics::RecordsChart("Klondike").Rows.size(); });
        for (const mStatistics::DateRange& range : mStatistics::DateRanges) {
            view(std::string("statistics: ") + range.Text,
                 [&] { rows += mStatistics::Dates(range).Rows.size(); });
        }
        view("statistics: players", [&] { rows += mStatistics::PlayerRows().size(); });
        view("high scores: all", [&] { rows += mRanking::TopRows().size(); });
        view("high scores: a game", [&] { rows += mRanking::GameRows("Klondike").size(); });
        view("high scores: a player", [&] { rows += mRanking::PlayerRows("Player7").size(); });
        for (const char* key : mRanking::FinishedKeys) {
            view(std::string("high scores: finished by ") + key,
                 [&] { rows += mRanking::FinishedRows(key).size(); });
        }
        for (const mLog::DateChoice& choice : mLog::DateChoices) {
            view(std::string("log: ") + choice.Text,
                 [&] { rows += mLog::Select(mLog::AllPlayers, mLog::AllGames, choice.Text).size(); });
        }
        view("log: a player and a game",
             [&] { rows += mLog::Select("Player7", "Klondike", mLog::ShowAll).size(); });
        const RegionalDates shown = RegionalDates::Current();
        view("log: 1000 rows", [&] {
            for (int i = 1; i <= std::min(1000, gScore->ScoreTop()); ++i)
                rows += mLog::Row(gScore->GetScore(i), shown).size();
        });
    }
    rows += MoreStatistics(dates);
    {
        mFigures::Longest longest("the longest sorting of all records" + dates);
        std::vector<int> all = mLog::Select(mLog::AllPlayers, mLog::AllGames, mLog::ShowAll);
        const auto ranks = [](const std::vector<std::string>& names) {
            return std::vector<double>(names.size(), 1.0);
        };
        for (int column = 0; column < static_cast<int>(mLog::Columns.size()); ++column) {
            longest.Add(
                std::string("log: sorted by ") + mLog::Columns.at(static_cast<std::size_t>(column)),
                Milliseconds([&] { rows += mSorting::Order(mLog::Keys(all, column, ranks), true).size(); }));
        }
    }
    mFigures::Print("all records exported" + dates,
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
}
