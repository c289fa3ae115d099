// The tables of backgrounds, card backs and colours.
#include "engine/commands/mAssets.h"

#include <algorithm>
#include <array>

namespace mAssets {

namespace {

// clang-format off
constexpr std::array<PictureGroup, 8> Backgrounds = {{
    {"Bricks",    1, 5},
    {"Marbles",  11, 3},
    {"Paper",    21, 5},
    {"Rocks",    31, 4},
    {"Stars",    41, 3},
    {"Surfaces", 51, 5},
    {"Water",    61, 5},
    {"Wood",     71, 3},
}};

constexpr std::array<PictureGroup, 5> Decks = {{
    {"Flowers",  501, 3},
    {"Garden",   511, 2},
    {"Geometry", 521, 3},
    {"Misc",     531, 3},
    {"Nature",   541, 4},
}};

constexpr std::array<NamedColor, 25> Colors = {{
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
    // Known by their numbers, in no list.
    {1021, "Red",              ColorNumber(255,   0,   0)},
    {1022, "Saddle Brown",     ColorNumber(139,  69,  19)},
    {1023, "Sea Green",        ColorNumber( 46, 139,  87)},
    {1024, "Sienna",           ColorNumber(160,  82,  45)},
    {1025, "Tomato",           ColorNumber(255,  99,  71)},
}};
// clang-format on
constexpr std::size_t Listed = 20;

}  // namespace

std::span<const PictureGroup> BackgroundGroups() { return Backgrounds; }

std::span<const PictureGroup> DeckGroups() { return Decks; }

std::string MemberName(const PictureGroup& group, int member) {
    return std::string(group.Name) + " 0" + std::to_string(member);
}

std::span<const NamedColor> ListedColors() { return std::span(Colors).first(Listed); }

const NamedColor* GetCol(int id) {
    const auto found =
        std::find_if(Colors.begin(), Colors.end(), [id](const NamedColor& color) { return color.Id == id; });
    return found == Colors.end() ? nullptr : &*found;
}

}  // namespace mAssets
