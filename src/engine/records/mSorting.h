// How rows of records are sorted: numbers, times and dates by their value, not by their texts.
#pragma once

#include <string>
#include <vector>

#include "engine/records/RegionalDates.h"

namespace mSorting {

/// What the texts of a column stand for.
enum class Values {
    Text,
    Number,  ///< a percent sign may stand behind it
    Time,    ///< "1:05:09"
    Date,    ///< in the way of the region
    Given,   ///< sorted already as the rows come, such as the labels of months
};

/// The number that stands for no value.
extern const double None;

/// What a cell of numbers, times or dates sorts by; None for a text that is no such value.
[[nodiscard]] double Key(Values values, const std::string& text, const RegionalDates& dates);

/// The rows in the order of their keys. Equal ones stay as they came, and those without a value are last
/// whichever way the others go.
[[nodiscard]] std::vector<int> Order(const std::vector<double>& keys, bool descending);

}  // namespace mSorting
