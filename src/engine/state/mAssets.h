// The numbers and names of what the table can look like: backgrounds and card backs by group, and the
// colours. The settings hold these numbers; the pictures themselves belong to the window.
#pragma once

#include <span>
#include <string>

namespace mAssets {

/// Numbers in a row that show one subject.
struct PictureGroup {
    const char* Name;
    int First;
    int Count;
};
/// Tiles, below 1000.
[[nodiscard]] std::span<const PictureGroup> BackgroundGroups();
/// Card backs.
[[nodiscard]] std::span<const PictureGroup> DeckGroups();
/// "Bricks 01"; `member` counts from 1.
[[nodiscard]] std::string MemberName(const PictureGroup& group, int member);

inline constexpr int CustomColorId = 1000;  ///< the background in the player's own colour

/// A colour number: red + 256 × green + 65536 × blue.
[[nodiscard]] constexpr int ColorNumber(int red, int green, int blue) {
    return red + 256 * green + 65536 * blue;
}
/// One colour of the background table.
struct NamedColor {
    int Id;
    const char* Name;
    int Color;
};
/// The colours that the player can choose, 1001 to 1020.
[[nodiscard]] std::span<const NamedColor> ListedColors();
/// The colour of an id from 1001 to 1025; nullptr for any other.
[[nodiscard]] const NamedColor* GetCol(int id);

}  // namespace mAssets
