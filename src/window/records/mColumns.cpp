// Sides and usual widths of the columns of records.
#include "window/records/mColumns.h"

#include <algorithm>
#include <array>
#include <optional>
#include <string_view>
#include <utility>

#include "engine/records/RegionalDates.h"
#include "engine/records/mPlayers.h"
#include "engine/state/cData.h"
#include "window/controls/ListCommands.h"
#include "window/controls/TextTable.h"

namespace {

QStringList LongGames() {
    constexpr std::size_t Long = 20;  // characters; the longest has 24
    QStringList names;
    for (const std::string& name : gData->GameNames()) {
        if (name.size() >= Long) names << QString::fromStdString(name);
    }
    return names;
}

QStringList Players() {
    QStringList names;
    for (const std::string& name : mPlayers::Names()) names << QString::fromStdString(name);
    return names;
}

/// A date of two-digit day and month, with the months that have long names.
QStringList Dates() {
    const RegionalDates dates = RegionalDates::Current();
    QStringList texts;
    for (const int month : {9, 10, 12}) {
        texts << QString::fromStdString(dates.ShortDate(CivilTime{.Year = 2028, .Month = month, .Day = 28}));
    }
    return texts;
}

/// Usual figures of one game; what is longer, such as a sum, a table finds in its rows.
QStringList Figures(std::string_view heading) {
    if (heading == "Score") return {QStringLiteral("-8888")};
    if (heading == "Time") return {QStringLiteral("88:88:88")};
    if (heading == "Moves") return {QStringLiteral("8888")};
    if (heading == "Game No." || heading == "Game No" || heading == "Game Number") {
        return {QStringLiteral("888888888888888")};
    }
    return {};
}

/// Headings of columns that hold texts; of some of them the rows come sorted.
constexpr std::array<std::string_view, 5> Texts{"Game", "Player", "Status", "Group", "Record"};
constexpr std::array<std::string_view, 4> Periods{"Day", "Month", "Year", "Time of Day"};

bool IsOf(std::span<const std::string_view> headings, std::string_view heading) {
    return std::find(headings.begin(), headings.end(), heading) != headings.end();
}

mSorting::Values ValuesOf(std::string_view heading) {
    using mSorting::Values;
    if (heading == "Date" || heading == "Week from") return Values::Date;
    if (heading == "Time") return Values::Time;
    if (IsOf(Periods, heading)) return Values::Given;
    if (IsOf(Texts, heading)) return Values::Text;
    return Values::Number;
}

TableColumn Column(std::string_view heading) {
    TableColumn column{.Heading = QString::fromUtf8(heading.data(), static_cast<qsizetype>(heading.size()))};
    column.Values = ValuesOf(heading);
    if (heading == "Game") {
        column.Usual = LongGames();
    } else if (heading == "Player") {
        column.Usual = Players();
    } else if (heading == "Date") {
        column.Usual = Dates();
    } else if (heading == "Status") {
        column.Usual = {QStringLiteral("Running")};
    } else if (!IsOf(Periods, heading) && !IsOf(Texts, heading) && heading != "Week from") {
        column.Side = Qt::AlignRight;
        column.Usual = Figures(heading);
    }
    return column;
}

}  // namespace

namespace mColumns {

std::vector<TableColumn> Of(std::span<const char* const> headings) {
    std::vector<TableColumn> columns;
    columns.reserve(headings.size());
    for (const char* heading : headings) columns.push_back(Column(heading));
    return columns;
}

void OfferDeals(TextTable* table, const TableModel* rows, std::function<QString()> game) {
    const auto place = [rows](const auto& isThat) {
        const std::vector<TableColumn>& columns = rows->Columns();
        const auto found = std::find_if(columns.begin(), columns.end(),
                                        [&](const TableColumn& column) { return isThat(column.Heading); });
        return found == columns.end() ? -1 : static_cast<int>(found - columns.begin());
    };
    const int named = place([](const QString& heading) { return heading == QLatin1String("Game"); });
    const int number = place([](const QString& heading) {
        return heading.startsWith(QLatin1String("Game N"));  // "Game No", "Game No.", "Game Number"
    });
    table->Commands()->OfferDeals([=](int row) -> std::optional<tFav> {
        const QString name = named < 0 ? game() : rows->CellText(row, named);
        if (name.isEmpty()) return std::nullopt;
        return tFav{name.toStdString(), rows->CellText(row, number).toStdString()};
    });
}

}  // namespace mColumns
