// Sides and usual widths of the columns of records.
#include "window/records/mColumns.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "engine/records/RegionalDates.h"
#include "engine/records/mPlayers.h"
#include "engine/state/cData.h"

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

TableColumn Column(std::string_view heading) {
    TableColumn column{.Heading = QString::fromUtf8(heading.data(), static_cast<qsizetype>(heading.size()))};
    if (heading == "Game") {
        column.Usual = LongGames();
    } else if (heading == "Player") {
        column.Usual = Players();
    } else if (heading == "Date") {
        column.Usual = Dates();
    } else if (heading == "Status") {
        column.Usual = {QStringLiteral("Running")};
    } else if (heading != "Day" && heading != "Month" && heading != "Year") {
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

}  // namespace mColumns
