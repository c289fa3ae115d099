// The columns of the tables that show records.
#pragma once

#include <span>
#include <vector>

#include "window/controls/TableModel.h"

namespace mColumns {

/// The columns of these headings: texts stand left, numbers right, with room for usual values.
[[nodiscard]] std::vector<TableColumn> Of(std::span<const char* const> headings);

}  // namespace mColumns
