// Jack, Queen and King: a half-figure above a diagonal ribbon, and the same turned about the card's centre.
// The rank shows in the silhouette (crown and beard; long hair; cap with a feather), the suit in the colours
// and in what the figure holds: Hearts a rose, Spades a sword, Diamonds a sceptre, Clubs a leafy staff.
#include <array>

#include <fmt/format.h>

#include "Drawing.h"
#include "Pictures.h"
#include "Shapes.h"

namespace {

constexpr std::string_view Ink = "#20202c";
constexpr std::string_view Skin = "#f8d9bb";
constexpr std::string_view Blush = "#eda58f";
constexpr std::string_view Gold = "#f0b93a";
constexpr std::string_view White = "#fffdf6";
constexpr std::string_view Silver = "#d5dce6";
constexpr std::string_view Leaf = "#3d8f57";
constexpr std::string_view Lips = "#c0303a";
constexpr double Edge = 0.6;

struct Scheme {
    std::string_view Ground, Robe, RobeShade, Panel, Trim, Jewel;
    std::array<std::string_view, 3> Hair;  // Jack, Queen, King
};

// clang-format off
constexpr std::array<Scheme, 4> TwoColors = {{
//   ground     robe       shade      panel      trim       jewel      Jack       Queen      King
    {"#fdf1e6", "#cf2b3c", "#9e1b2c", "#f3c14b", "#fffdf6", "#2b4a8c", {"#c98a35", "#e3ae4a", "#8a4a26"}},
    {"#e9eff8", "#2a4684", "#1a2f60", "#9fc1e6", "#fffdf6", "#cf2b3c", {"#5a3a24", "#2b2733", "#3a3036"}},
    {"#fdf5de", "#e5862a", "#b9601a", "#c2343f", "#fffdf6", "#2f7f9a", {"#7a3e1e", "#a8481f", "#d8a548"}},
    {"#edf4e8", "#2f7a4f", "#1d5636", "#e9c765", "#fffdf6", "#8c3a78", {"#3a2a22", "#6b3d22", "#c3c6cc"}},
}};
// In a deck of four colours nobody is dressed in the colour of another suit.
constexpr std::array<Scheme, 4> FourColors = {{
    {"#fdeeea", "#cf2b3c", "#9e1b2c", "#f3c14b", "#fffdf6", "#8f1b2c", {"#c98a35", "#e3ae4a", "#8a4a26"}},
    {"#eff0f2", "#454853", "#2b2d35", "#c3c7d1", "#fffdf6", "#33363f", {"#5a3a24", "#2b2733", "#3a3036"}},
    {"#e8effc", "#2b57d8", "#1a3a9c", "#f3c14b", "#fffdf6", "#1a3a9c", {"#7a3e1e", "#a8481f", "#d8a548"}},
    {"#e9f5ec", "#17884b", "#0f5f34", "#e9c765", "#fffdf6", "#0f5f34", {"#3a2a22", "#6b3d22", "#c3c6cc"}},
}};
// clang-format on

// The ribbon's middle runs from the frame's left side down at 12.5, 55 to its right side at 58.5, 41.
double RibbonY(double x) { return 48 - 14.0 / 46.0 * (x - 35.5); }

// A path that starts and ends on the ribbon's middle and is closed along it.
std::string Above(double fromX, std::string_view path, double toX) {
    return fmt::format("M{} {}{}L{} {}Z", Num(fromX), Num(RibbonY(fromX)), path, Num(toX), Num(RibbonY(toX)));
}

void DrawFeatures(Drawing& drawing, double y, bool woman) {
    for (const int side : {-1, 1}) {
        const double x = 35 + side * 2.75;
        drawing.Oval(x, y, 1.25, woman ? 0.85 : 0.75, White);
        drawing.Disc(x + 0.15, y, 0.78, Ink);
        drawing.Line(fmt::format("M{} {}Q{} {} {} {}", Num(x - side * 1.1), Num(y - 1.5), Num(x + side * 0.4),
                                 Num(y - 2.3), Num(x + side * 1.9), Num(y - 1.2)),
                     Ink, woman ? 0.4 : 0.65);
        drawing.Disc(35 + side * 3.9, y + 3, 1.25, Blush, 0.6);
    }
    drawing.Line(fmt::format("M35.1 {}L34.5 {}L35.6 {}", Num(y + 0.2), Num(y + 2.7), Num(y + 2.9)), "#b9805f",
                 0.55);
}

void DrawMouth(Drawing& drawing, double y, double width) {
    drawing.Fill(fmt::format("M{0} {1}Q{2} {3} 35 {4}Q{5} {3} {6} {1}Q35 {7} {0} {1}Z", Num(35 - width),
                             Num(y), Num(35 - width / 2), Num(y - 0.8), Num(y - 0.35), Num(35 + width / 2),
                             Num(35 + width), Num(y + 1.5)),
                 Lips);
}

void DrawRose(Drawing& drawing) {
    drawing.Line("M52.3 40C52.8 33 51.6 27 52 19", Leaf, 1.2);
    drawing.Shape("M52 30C48.6 30.4 46.6 28.4 46.2 25.6C49.4 25.6 51.6 27.2 52 30Z", Leaf, Ink, 0.4);
    drawing.Shape("M52 25.8C54.6 25.6 56.6 24 57 21.4C54 21.4 52.2 23.2 52 25.8Z", Leaf, Ink, 0.4);
    drawing.Shape(
        "M52 8.2C54.4 7.6 57 9.6 57.2 12.4C58 15.6 55.6 18.8 52 19C48.4 18.8 46 15.6 46.8 12.4"
        "C47 9.6 49.6 7.6 52 8.2Z",
        "#d8324a", Ink, Edge);
    drawing.Fill("M48.6 12C49.4 9.6 54 9.2 55.2 11.8C56 14.4 54.2 16.4 52 16.4C49.8 16.4 48 14.4 48.6 12Z",
                 "#f0607a");
    drawing.Line("M50 12.8C50.4 11 53.6 10.8 54 12.8C54.2 14.6 51.4 15 51.4 13.4", "#9e1b2c", 0.6);
}

void DrawSword(Drawing& drawing) {
    drawing.Shape("M50.9 28.5L50.9 10L52.3 6.6L53.7 10L53.7 28.5Z", Silver, Ink, Edge);
    drawing.SharpLine("M52.3 9.5V28", "#8d99ab", 0.6);
    drawing.Shape(
        "M47.2 28C48 27 49 28 50 28L54.6 28C55.6 28 56.6 27 57.4 28C57.8 29.4 56.4 30.6 55 30.2"
        "L49.6 30.2C48.2 30.6 46.8 29.4 47.2 28Z",
        Gold, Ink, 0.5);
    drawing.Shape("M51.2 30.2L53.4 30.2L53.4 38L51.2 38Z", "#7a3e2a", Ink, 0.5);
}

void DrawSceptre(Drawing& drawing) {
    drawing.Shape("M51.3 19L53.1 19L53.1 40L51.3 40Z", Gold, Ink, 0.5);
    drawing.Shape("M49.4 19.8L55 19.8L54 17.6L50.4 17.6Z", Gold, Ink, 0.5);
    drawing.Shape(
        "M52.2 17.8C48 17 46.4 13.6 48.2 10.4C49.4 12.4 50.6 12.8 52.2 10.6C53.8 12.8 55 12.4 56.2 10.4"
        "C58 13.6 56.4 17 52.2 17.8Z",
        Gold, Ink, Edge);
    drawing.Shape("M52.2 5.6L54.8 9.6L52.2 13.6L49.6 9.6Z", "#d8324a", Ink, 0.5);
    drawing.Fill("M52.2 6.8L53 9.4L52.2 11L51 9.4Z", "#f58a97");
    drawing.Box(49.8, 23, 4.8, 1.4, 0.6, "#c2343f");
}

void DrawStaff(Drawing& drawing) {
    drawing.Line("M52.2 40C51.6 32 52.8 24 52.2 11", "#7a4c2a", 1.5);
    struct Twig {
        double X, Y, Turn, Size;
    };
    for (const auto& [x, y, turn, size] :
         {Twig{52.2, 14, 0, 1.15}, Twig{52, 18.4, -56, 0.82}, Twig{52.4, 17.4, 56, 0.82},
          Twig{52.2, 25.4, -60, 0.78}, Twig{52.4, 24, 60, 0.76}}) {
        drawing.OpenGroup(Placed(x, y, size, turn));
        drawing.Shape("M0 0C-3.2 -1.6 -3.2 -5.2 0 -8C3.2 -5.2 3.2 -1.6 0 0Z", Leaf, Ink, 0.5);
        drawing.Line("M0 -0.6V-5.8", "#bfe0b0", 0.5);
        drawing.CloseGroup();
    }
}

void DrawAttribute(Drawing& drawing, int suit) {
    switch (suit) {
        case 0:
            return DrawRose(drawing);
        case 1:
            return DrawSword(drawing);
        case 2:
            return DrawSceptre(drawing);
        default:
            return DrawStaff(drawing);
    }
}

void DrawArm(Drawing& drawing, const Scheme& scheme) {
    drawing.Shape(Above(43.5, "C45 41.8 47.6 39.4 49.2 38.2L55.4 38.8C56.4 39.6 57.2 40.6 57.6 41.3", 57.6),
                  scheme.Robe, Ink, Edge);
    drawing.Shape("M48.2 39.6L48.8 36.4L56 37L56 40.2C53.6 39 50.6 38.8 48.2 39.6Z", scheme.Trim, Ink, 0.5);
    drawing.Shape("M49.6 36.4C48.8 34.4 49.8 32.6 51.6 32.4L53.6 32.4C55.4 32.8 55.8 34.8 55.2 36.8Z", Skin,
                  Ink, Edge);
    drawing.Line("M50 34.2L54.8 34.3M50.2 35.5L54.8 35.6", "#b9805f", 0.4);
}

void DrawKing(Drawing& drawing, int suit, const Scheme& scheme) {
    const std::string_view hair = scheme.Hair[2];
    drawing.Shape(
        "M28 15C24.6 18 24 21 25 23.4C23.4 25.6 23.8 28.8 25.8 30.4C25.4 33 27 35 30 35L40 35"
        "C43 35 44.6 33 44.2 30.4C46.2 28.8 46.6 25.6 45 23.4C46 21 45.4 18 42 15Z",
        hair, Ink, Edge);
    drawing.Shape(Above(12.5, "V47C14.4 40 20 36.4 27.6 34.4L42.4 34.4C50 36 56 38.6 58.5 41", 58.5),
                  scheme.Robe, Ink, Edge);
    drawing.Fill(Above(12.5, "V49C15 45 17 42.6 19.6 41C18.6 45 18.4 49 18.6 53.1", 18.6), scheme.RobeShade);
    drawing.Shape(Above(27.5, "L29.4 36L40.6 36L42.5 45.9", 42.5), scheme.Panel, Ink, 0.5);
    drawing.SharpLine("M35 40V48M31.2 40L29.8 49.6M38.8 40L40.2 46.6", scheme.Robe, 0.8);
    drawing.Shape(
        "M19.4 40.6C21 36.2 25 34.2 28 32.6C30 36.6 32.6 37.6 35 37.6C37.4 37.6 40 36.6 42 32.6"
        "C45 34.2 48 35.4 50 38.6C47 42.6 41 44.4 35 44.4C28.6 44.4 22.6 43.6 19.4 40.6Z",
        White, Ink, Edge);
    for (const auto& [x, y] : {std::pair{23.0, 39.4}, std::pair{26.8, 37.6}, std::pair{27.4, 41.6},
                               std::pair{42.8, 37.8}, std::pair{43.0, 41.6}, std::pair{46.8, 39.2}}) {
        drawing.Fill(fmt::format("M{} {}l0.7 1.9l-1.4 0Z", Num(x), Num(y - 0.9)), Ink);
    }
    DrawAttribute(drawing, suit);
    DrawArm(drawing, scheme);
    drawing.Shape("M28.6 15L41.4 15L41.6 23C41.6 28 38.6 31 35 31C31.4 31 28.4 28 28.4 23Z", Skin, Ink, 0.5);
    constexpr std::array<std::string_view, 4> Beards = {
        "M28.2 21.4C29.4 24.6 31.6 24.8 35 24.8C38.4 24.8 40.6 24.6 41.8 21.4C43.4 25 43.4 29 41.6 31.6"
        "C42 34.6 39.4 36.8 37.4 36.4C36.2 38 33.8 38 32.6 36.4C30.6 36.8 28 34.6 28.4 31.6C26.6 29 26.6 25 "
        "28.2 21.4Z",
        "M28.2 21.4C29.4 24.6 31.6 24.8 35 24.8C38.4 24.8 40.6 24.6 41.8 21.4C43 28 40 35 35 41C30 35 27 28 "
        "28.2 21.4Z",
        "M28.2 21.4C29.4 24.6 31.6 24.8 35 24.8C38.4 24.8 40.6 24.6 41.8 21.4C43.4 28 42.4 34.4 39.2 40"
        "C37.8 38.4 36.2 36 35 33.4C33.8 36 32.2 38.4 30.8 40C27.6 34.4 26.6 28 28.2 21.4Z",
        "M28.2 21.4C29.4 24.6 31.6 24.8 35 24.8C38.4 24.8 40.6 24.6 41.8 21.4C43 26 42.6 30.4 41.8 33.6"
        "C39.8 36.4 37.4 37.2 35 37.2C32.6 37.2 30.2 36.4 28.2 33.6C27.4 30.4 27 26 28.2 21.4Z",
    };
    drawing.Shape(Beards.at(static_cast<std::size_t>(suit)), hair, Ink, Edge);
    DrawMouth(drawing, 27.3, 1.9);
    drawing.Shape(
        "M35 24.6C33.4 23.6 31.4 24 30 26.6C32 26.9 34 26.8 35 25.8C36 26.8 38 26.9 40 26.6"
        "C38.6 24 36.6 23.6 35 24.6Z",
        hair, Ink, 0.4);
    drawing.Line("M32 30.5C32.2 32.5 32.6 33.8 33.4 35M38 30.5C37.8 32.5 37.4 33.8 36.6 35", Ink, 0.4, 0.5);
    DrawFeatures(drawing, 20.6, false);
    drawing.Shape("M27.6 14.6L25.2 7.2L30.2 10.4L35 5.4L39.8 10.4L44.8 7.2L42.4 14.6Z", Gold, Ink, Edge);
    drawing.Shape("M27.2 13.6C32 12.4 38 12.4 42.8 13.6L42.6 17C38 15.8 32 15.8 27.4 17Z", Gold, Ink, Edge);
    for (const auto& [x, y] : {std::pair{25.2, 7.2}, std::pair{35.0, 5.9}, std::pair{44.8, 7.2}}) {
        drawing.Disc(x, y, 1.2, scheme.Robe);
    }
    drawing.Disc(35, 14.3, 1, scheme.Jewel);
    drawing.Disc(30.7, 14.9, 0.75, "#d8324a");
    drawing.Disc(39.3, 14.9, 0.75, "#d8324a");
}

void DrawQueen(Drawing& drawing, int suit, const Scheme& scheme) {
    const std::string_view hair = scheme.Hair[1];
    // A standing collar behind the hair makes the widest silhouette of the three.
    drawing.Shape("M22 40C19.6 33 20.4 28 22.6 24.4L47.4 24.4C49 28 49.6 32 48.6 37Z", scheme.Panel, Ink,
                  Edge);
    drawing.Line("M24 26L27 38M21.6 31.5L26 38.6M46 26L43.4 37.4M48.6 30.5L44.6 37.6", scheme.RobeShade, 0.5,
                 0.7);
    drawing.Shape(
        "M35 9.4C25.6 9.4 24 16.6 24.6 23C24.8 28 22 31 22.6 36.4C25.4 39.6 30 38.6 31 34L39 34"
        "C40 38.6 44.6 39.6 47.4 36.4C48 31 45.2 28 45.4 23C46 16.6 44.4 9.4 35 9.4Z",
        hair, Ink, Edge);
    drawing.Line(
        "M26.6 22C26.6 28 24.4 31 24.8 36M29 27C29 31 27.4 34 27.4 37.4M43.4 22C43.4 28 45.6 31 45.2 36"
        "M41 27C41 31 42.6 34 42.6 37.4",
        Ink, 0.45, 0.45);
    drawing.Shape("M32.2 26L37.8 26L38.2 32.6L43.6 36.2L35 45L26.4 36.2L31.8 32.6Z", Skin, Ink, 0.5);
    drawing.Shape(Above(12.5,
                        "V49.6C14.4 42.6 20 39 26.6 36C28.4 41.6 31.6 43 35 43C38.4 43 41.6 41.6 43.4 36"
                        "C50 37.4 56 39.4 58.5 41",
                        58.5),
                  scheme.Robe, Ink, Edge);
    drawing.Fill(Above(12.5, "V51.4C15 46.8 17 44 20 42C18.8 46 18.6 49.6 18.6 53.1", 18.6),
                 scheme.RobeShade);
    drawing.Line("M26.8 36.4C28.6 41.8 31.8 43.2 35 43.2C38.2 43.2 41.4 41.8 43.2 36.4", scheme.Trim, 1.5);
    drawing.Line("M25.9 36.9C27.9 42.6 31.4 44.1 35 44.1C38.6 44.1 42.1 42.6 44.1 36.9", Ink, 0.4);
    drawing.Fill(Above(31, "L31.6 44.6C33.6 45.2 36.4 45.2 38.4 44.6L39 46.9", 39), scheme.Panel);
    drawing.Line("M31 34.2C32.6 37.4 37.4 37.4 39 34.2", Gold, 0.9);
    drawing.Shape("M35 36.2L36.5 38.2L35 40.4L33.5 38.2Z", scheme.Jewel, Ink, 0.35);
    DrawAttribute(drawing, suit);
    DrawArm(drawing, scheme);
    drawing.Shape(
        "M35 12C39.4 12 41.2 15.6 41.2 19.6C41.2 24.4 38.4 29.2 35 29.2C31.6 29.2 28.8 24.4 28.8 19.6"
        "C28.8 15.6 30.6 12 35 12Z",
        Skin, Ink, 0.5);
    constexpr std::array<std::string_view, 4> Fringes = {
        "M35 12.4C31.6 14 29.2 17 28.6 22.4C26.4 17 27 10.4 35 10.2C43 10.4 43.6 17 41.4 22.4C40.8 17 38.4 "
        "14 35 12.4Z",
        "M28.6 22.4C26.2 17 27 10.4 35 10.2C43 10.4 43.8 17 41.4 22.4C41 19 40.6 17 39.6 15.4C36 15.6 32 "
        "15.6 30.4 15.4"
        "C29.4 17 29 19 28.6 22.4Z",
        "M28.6 22.4C26.2 17 27 10.4 35 10.2C43 10.4 43.8 17 41.4 22.4C40.8 19 39 16 36.6 14C34 16 31 16.6 "
        "29.6 17.4"
        "C29 19 28.8 20.6 28.6 22.4Z",
        "M28.6 23.4C26.2 17 27 10.4 35 10.2C43 10.4 43.8 17 41.4 23.4C41.4 19.4 39.6 15.4 37.4 15C36.6 15.8 "
        "35.8 15 35 14.4"
        "C34.2 15 33.4 15.8 32.6 15C30.4 15.4 28.6 19.4 28.6 23.4Z",
    };
    drawing.Shape(Fringes.at(static_cast<std::size_t>(suit)), hair, Ink, 0.45);
    DrawFeatures(drawing, 20, true);
    DrawMouth(drawing, 25.2, 1.4);
    drawing.Shape(
        "M29.2 11.6C27.8 8.6 29.8 7 31.6 8.4C32 5.4 38 5.4 38.4 8.4C40.2 7 42.2 8.6 40.8 11.6"
        "C37 10.4 33 10.4 29.2 11.6Z",
        Gold, Ink, Edge);
    for (const auto& [x, y] : {std::pair{29.2, 7.4}, std::pair{35.0, 6.0}, std::pair{40.8, 7.4}}) {
        drawing.Disc(x, y, 1.15, Ink);
        drawing.Disc(x, y, 0.85, White);
    }
    drawing.Disc(35, 9.1, 0.9, scheme.Jewel);
    for (const double x : {28.4, 41.6}) drawing.Disc(x, 24.4, 0.8, Gold);
}

void DrawCap(Drawing& drawing, int suit, const Scheme& scheme) {
    // The feather rises to the left, where nothing else stands.
    drawing.Shape("M29.4 16C25.6 14.6 22.8 10.6 24.2 5.6C25.6 6.4 26.2 7.4 26.4 8.6C27.4 8.4 28.4 9 29 10Z",
                  scheme.Trim, Ink, Edge);
    drawing.Line("M25 7.6C25 10.4 26.4 13 28.8 14.8", scheme.Jewel, 0.8);
    constexpr std::array<std::string_view, 4> Crowns = {
        "M26.4 14.6C24.6 8.8 29 6 35.6 6C43 6 47.8 8.8 46.4 12.6C45.8 14 44.6 14.6 43.6 14.8Z",
        "M26.2 14.8C27.6 9.6 32 7.6 36 5.4C40.4 6.6 44.4 9.4 43.8 14.8Z",
        "M26 14.8L25.4 9.8C28 8.4 31 9.4 32.4 6.8C35 5.8 38.4 6 39.6 7.6C42 7.4 44.6 8.4 44.8 10L44 14.8Z",
        "M26 14.8C23.2 10 27 6.4 31.4 7.4C33.6 4.8 39.6 5 41.4 7.6C45.8 7.2 47 12 43.8 14.8Z",
    };
    drawing.Shape(Crowns.at(static_cast<std::size_t>(suit)), scheme.Robe, Ink, Edge);
    drawing.Shape("M25.8 14C31 12.4 39 12.4 44.2 14L44 17.4C39 15.8 31 15.8 26 17.4Z", scheme.Panel, Ink,
                  Edge);
    drawing.Disc(28.8, 14.9, 1.3, Ink);
    drawing.Disc(28.8, 14.9, 0.95, Gold);
}

void DrawJack(Drawing& drawing, int suit, const Scheme& scheme) {
    const std::string_view hair = scheme.Hair[0];
    drawing.Shape(
        "M27.4 14C24.6 19 25 25 24.8 28.6C25.8 31.2 29.6 31.4 31 29.4L39 29.4C40.4 31.4 44.2 31.2 45.2 28.6"
        "C45 25 45.4 19 42.6 14Z",
        hair, Ink, Edge);
    drawing.Shape("M32 27L38 27L38.4 35L31.6 35Z", Skin, Ink, 0.5);
    drawing.Shape(Above(14.5, "L16.4 45C17.6 40 23 37 29.4 34.8L40.6 34.8C48 36.4 55 39 58.5 41", 58.5),
                  scheme.Robe, Ink, Edge);
    // Stripes down the tunic, the middle one with the suit upon it.
    drawing.Fill(Above(19.2, "C19.6 46 20.6 42 22.4 38.4L25.6 36.8C24 42 23.4 46 23.4 51.6", 23.4),
                 scheme.Panel);
    drawing.Fill(Above(43.5, "C44 42 44 39.6 43.4 36.4L46.6 37.2C47.2 39.6 47.2 42 47 44.5", 47),
                 scheme.Panel);
    drawing.Shape(Above(30.6, "L31 37L39 37L39.4 46.8", 39.4), scheme.Panel, Ink, 0.5);
    drawing.Shape("M28.8 32.4L35 38.2L41.2 32.4L45 36.6C42 40 38.6 41.6 35 41.6C31.4 41.6 28 40 25 36.6Z",
                  White, Ink, Edge);
    drawing.Line("M35 38.2V41.6M30.4 36.2L29 39.4M39.6 36.2L41 39.4", Ink, 0.4, 0.6);
    drawing.Disc(35, 43.9, 0.8, Ink);
    DrawAttribute(drawing, suit);
    DrawArm(drawing, scheme);
    drawing.Shape("M29.2 15L40.8 15L40.8 21.6C40.8 26.6 38.2 30 35 30C31.8 30 29.2 26.6 29.2 21.6Z", Skin,
                  Ink, 0.5);
    drawing.Shape("M28.2 15.4C32 14.6 32.2 18.6 29.4 23.6C27.6 21.6 27.4 18 28.2 15.4Z", hair, Ink, 0.4);
    drawing.Shape("M41.8 15.4C38 14.6 37.8 18.6 40.6 23.6C42.4 21.6 42.6 18 41.8 15.4Z", hair, Ink, 0.4);
    DrawFeatures(drawing, 20.8, false);
    DrawMouth(drawing, 26, 1.5);
    DrawCap(drawing, suit, scheme);
}

// The frame leaves out the corners with the indices.
constexpr std::string_view Frame =
    "M22.5 4.5L58.5 4.5L58.5 82.5L48.5 82.5L48.5 91.5L12.5 91.5L12.5 13.5L22.5 13.5Z";

}  // namespace

namespace Pictures {

void DrawCourt(Drawing& drawing, int suit, int rank, Shapes::Colors colors) {
    const bool two = colors == Shapes::Colors::Two;
    const Scheme& scheme = (two ? TwoColors : FourColors).at(static_cast<std::size_t>(suit));
    const std::string_view suitColor = Shapes::SuitColor(suit, colors);
    drawing.Fill(Frame, scheme.Ground);
    const std::string half = fmt::format("half{}-{}", suit, rank);
    drawing.OpenGroup("", half);
    drawing.Use(SuitName(suit), Placed(17.7, 21.2, 0.092), suitColor);
    constexpr int Queen = 11;
    if (rank < Queen) {
        DrawJack(drawing, suit, scheme);
    } else if (rank == Queen) {
        DrawQueen(drawing, suit, scheme);
    } else {
        DrawKing(drawing, suit, scheme);
    }
    drawing.CloseGroup();
    drawing.Repeat(half, "rotate(180 35.5 48)");
    drawing.Shape("M12.5 53L58.5 39L58.5 43L12.5 57Z", scheme.Jewel, Ink, 0.5);
    drawing.SharpLine("M12.5 53.9L58.5 39.9M12.5 56.1L58.5 42.1", Gold, 0.5);
    for (int i = -3; i <= 3; ++i) {
        const double x = 35.5 + i * 6.6;
        drawing.Fill(Shapes::Star(x, RibbonY(x), 4, 1.2, 0.55, -17), Gold);
    }
    drawing.SharpLine(Frame, two ? "#3a4a78" : suitColor, 0.7);
}

}  // namespace Pictures
