// The columns of the tables that show records.
#pragma once

#include <functional>
#include <span>
#include <vector>

#include "window/controls/TableModel.h"

class TextTable;

namespace mColumns {

/// The columns of these headings: texts stand left, numbers right, with room for usual values.
[[nodiscard]] std::vector<TableColumn> Of(std::span<const char* const> headings);

/// Offers the rows of a table as deals, by their game and its number. `game` answers the game of all rows
/// where no column names it.
void OfferDeals(TextTable* table, const TableModel* rows, std::function<QString()> game = {});

}  // namespace mColumns
