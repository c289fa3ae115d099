// The rows of careers.
#include "window/records/CareerModel.h"

#include <utility>

#include "engine/records/mSorting.h"
#include "window/records/mColumns.h"

namespace {

std::vector<TableColumn> ColumnsOf(const mCareerTables::Table& table) {
    std::vector<const char*> headings;
    for (const mCareerTables::Heading& heading : table.Headings) headings.push_back(heading.Shown);
    return mColumns::Of(headings);
}

}  // namespace

CareerModel::CareerModel(mCareerTables::Table table) : TableModel(ColumnsOf(table)) {
    SetTable(std::move(table));
}

void CareerModel::SetTable(mCareerTables::Table table) {
    table_ = std::move(table);
    const QString first = QString::fromLatin1(table_.Headings.front().Shown);
    if (first != Columns().front().Heading) SetHeading(0, first);
    SetRows(mCareerTables::ShownRows(table_));
}

std::vector<double> CareerModel::Keys(int column) const {
    using mSorting::Values;
    const Values values = Columns().at(static_cast<std::size_t>(column)).Values;
    if (values == Values::Text || values == Values::Given) return TableModel::Keys(column);
    const RegionalDates dates = RegionalDates::Current();
    std::vector<double> keys;
    for (const auto& row : table_.Rows) {
        const std::string& plain = row.at(static_cast<std::size_t>(column)).Plain;
        keys.push_back(mSorting::Key(values == Values::Date ? Values::Date : Values::Number, plain, dates));
    }
    return keys;
}
