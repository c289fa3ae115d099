// The table of figures, as tools/winnability.py has written it.
#include "engine/catalogue/mWinnability.h"

#include <algorithm>
#include <array>

namespace {

// Behind an empty row, so that there may be none.
constexpr auto table = std::to_array<Winnability>({
    {},
#include "engine/catalogue/winnability.inc"
});
constexpr auto rows = std::span(table).subspan(1);

constexpr bool IsSound(const Winnability& row) {
    return row.Deals > 0 && row.Won >= 0 && row.Lost >= 0 && row.Unknown >= 0 &&
           row.Won + row.Lost + row.Unknown == row.Deals && (row.Moves > 0) == (row.Won > 0) &&
           (row.States > 0) == (row.Unknown > 0);
}
static_assert(std::all_of(rows.begin(), rows.end(), IsSound));

}  // namespace

namespace mWinnability {

std::span<const Winnability> All() { return rows; }

const Winnability* Find(std::string_view game) {
    const auto found =
        std::find_if(rows.begin(), rows.end(), [game](const Winnability& row) { return row.Game == game; });
    return found == rows.end() ? nullptr : &*found;
}

bool IsMostlyWinnable(const Winnability& found) {
    constexpr std::int64_t Whole = 100;
    return found.Won * Whole >= std::int64_t{MostlyPercent} * found.Deals;
}

bool IsHard(const Winnability& found) {
    constexpr std::int64_t Whole = 100;
    return (std::int64_t{found.Won} + found.Unknown) * Whole <= std::int64_t{HardPercent} * found.Deals;
}

}  // namespace mWinnability
