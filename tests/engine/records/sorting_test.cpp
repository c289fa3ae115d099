// Lists sort by what their texts stand for.
#include "engine/records/Records.h"
#include "engine/records/mLog.h"
#include "engine/records/mSorting.h"

using mSorting::Values;

namespace {

std::vector<int> Sorted(Values values, const std::vector<std::string>& texts, bool descending) {
    std::vector<double> keys;
    for (const std::string& text : texts)
        keys.push_back(mSorting::Key(values, text, RegionalDates(RegionalFormat{})));
    return mSorting::Order(keys, descending);
}

TEST(Sorting, IsByValueAndLeavesEqualRowsAsTheyCame) {
    struct Row {
        Values Kind;
        std::vector<std::string> Texts;
        std::vector<int> Up, Down;
    };
    const Row rows[] = {
        {Values::Number, {"10", "9", "-1", "9"}, {2, 1, 3, 0}, {0, 1, 3, 2}},
        {Values::Number, {"12.5%", "100%", "2%"}, {2, 0, 1}, {1, 0, 2}},
        {Values::Number, {"7", "", "seven", "0006"}, {3, 0, 1, 2}, {0, 3, 1, 2}},
        {Values::Time, {"10:00:00", "9:59:59", "0:00:00", "400000:00:00"}, {2, 1, 0, 3}, {3, 0, 1, 2}},
        {Values::Time, {"1:00", "0:00:01:00", "0:00:02"}, {2, 0, 1}, {2, 0, 1}},
        {Values::Date, {"12/1/2003", "1/2/2004", "10/9/2003", "never"}, {2, 0, 1, 3}, {1, 0, 2, 3}},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(Sorted(row.Kind, row.Texts, false), row.Up) << row.Texts[0];
        EXPECT_EQ(Sorted(row.Kind, row.Texts, true), row.Down) << row.Texts[0];
    }
}

TEST(Sorting, OfTheLogReadsRecordsOfEveryKind) {
    Records records({"Bob", "Ann"});
    records.AddLine("Bob", R"("2004-01-01 09:00:00","Yukon",10,60,100,50,1)");
    records.AddLine("Bob", R"("1/1/2004 8:00:00 AM","Klondike","0009",50,9,-80,0)");
    records.AddLine("Ann", R"("some day","Klondike","9.5",3671,8,70,1)");
    gScore->OpenAllScore();
    const auto ranks = [](const std::vector<std::string>& names) {
        std::vector<double> order;
        for (const std::string& name : names) order.push_back(name.front());
        return order;
    };
    const std::vector<int> ups[] = {
        {1, 0, 2}, {2, 0, 1}, {1, 2, 0}, {1, 0, 2},  // date, player, game, score
        {1, 0, 2}, {2, 1, 0}, {1, 0, 2}, {1, 2, 0},  // time, moves, status, number
    };
    for (int column = 0; column < static_cast<int>(mLog::Columns.size()); ++column) {
        const auto keys = mLog::Keys({1, 2, 3}, column, ranks);
        EXPECT_EQ(mSorting::Order(keys, false), ups[column])
            << mLog::Columns.at(static_cast<std::size_t>(column));
    }
}

}  // namespace
