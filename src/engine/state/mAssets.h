// The numbers and names of what the table can look like: backgrounds and card backs by group, and the
// colours. The settings hold these numbers; the pictures themselves belong to the window.
#pragma once

#include <array>
#include <span>
#include <string>

namespace mAssets {

/// Numbers in a row that show one subject.
struct PictureGroup {
    const char* Name;
    int First;
    int Count;
};
// clang-format off
/// Tiles, below 1000.
inline constexpr std::array<PictureGroup, 8> Backgrounds = {{
    {"Bricks",    1, 5},
    {"Marbles",  11, 3},
    {"Paper",    21, 5},
    {"Rocks",    31, 4},
    {"Stars",    41, 3},
    {"Surfaces", 51, 5},
    {"Water",    61, 5},
    {"Wood",     71, 3},
}};

/// Card backs. The setting takes a number from the first to the last of them.
inline constexpr std::array<PictureGroup, 5> Decks = {{
    {"Flowers",  501, 3},
    {"Garden",   511, 2},
    {"Geometry", 521, 3},
    {"Misc",     531, 3},
    {"Nature",   541, 4},
}};
// clang-format on
inline constexpr int FirstDeck = Decks.front().First;
inline constexpr int LastDeck = Decks.back().First + Decks.back().Count - 1;
inline constexpr int UsualDeck = 531;
inline constexpr int FirstBackground = Backgrounds.front().First;
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
// clang-format off
inline constexpr std::array<NamedColor, 25> Colors = {{
    {1001, "Blue",             ColorNumber(  0,   0, 255)},
    {1002, "Brown",            ColorNumber(165,  42,  42)},
    {1003, "Chocolate",        ColorNumber(210, 105,  30)},
    {1004, "Corn Flower",      ColorNumber(100, 149, 237)},
    {1005, "Crimson",          ColorNumber(220,  20,  60)},
    {1006, "Dark Blue",        ColorNumber(  0,   0, 139)},
    {1007, "Dark Green",       ColorNumber(  0, 100,   0)},
    {1008, "Dark Magenta",     ColorNumber(139,   0, 139)},
    {1009, "Dark Olive Green", ColorNumber( 85, 107,  47)},
    {1010, "Dark Red",         ColorNumber(139,   0,   0)},
    {1011, "Dark Slate Blue",  ColorNumber( 72,  61, 139)},
    {1012, "Dark Slate Gray",  ColorNumber( 47,  79,  79)},
    {1013, "Dark Violet",      ColorNumber(148,   0, 211)},
    {1014, "Deep Pink",        ColorNumber(255,  20, 147)},
    {1015, "Deep Sky Blue",    ColorNumber(  0, 191, 255)},
    {1016, "Forest Green",     ColorNumber( 34, 139,  34)},
    {1017, "Green",            ColorNumber(  0, 128,   0)},
    {1018, "Indigo",           ColorNumber( 75,   0, 130)},
    {1019, "Orange Red",       ColorNumber(255,  69,   0)},
    {1020, "Purple",           ColorNumber(128,   0, 128)},
    // In no list. Who has such a number among the settings keeps the colour.
    {1021, "Red",              ColorNumber(255,   0,   0)},
    {1022, "Saddle Brown",     ColorNumber(139,  69,  19)},
    {1023, "Sea Green",        ColorNumber( 46, 139,  87)},
    {1024, "Sienna",           ColorNumber(160,  82,  45)},
    {1025, "Tomato",           ColorNumber(255,  99,  71)},
}};
// clang-format on
inline constexpr std::size_t ListedCount = 20;
inline constexpr int UsualBackground = 1007;
inline constexpr int LastBackground = Colors.back().Id;
/// The colours that the player can choose, 1001 to 1020.
[[nodiscard]] std::span<const NamedColor> ListedColors();
/// The colour of an id from 1001 to 1025; nullptr for any other.
[[nodiscard]] const NamedColor* GetCol(int id);

}  // namespace mAssets
