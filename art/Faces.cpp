// The 52 faces: the corner indices, the pips in the classic arrangement, the Aces.
#include <initializer_list>
#include <tuple>
#include <utility>
#include <vector>

#include <fmt/format.h>

#include "Drawing.h"
#include "Pictures.h"
#include "Shapes.h"

namespace {

using Pictures::SuitName;
using Shapes::CardHeight;
using Shapes::CardWidth;

constexpr int Ranks = 13;
constexpr int Jack = 10;
constexpr int Spades = 1;
const std::string HalfTurn = "rotate(180 35.5 48)";

// In fans only the top 12 or the left 12 pixels of a card show. So the rank has its suit beside it in the
// top line, and once more below it in the left column.
void DrawIndex(Drawing& drawing, int suit, int rank, Shapes::Colors colors) {
    const std::string color(Shapes::SuitColor(suit, colors));
    const std::string name = fmt::format("index{}-{}", suit, rank);
    const double rankLeft = rank == 9 ? 2.5 : 2.1;
    drawing.OpenGroup("", name);
    Shapes::DrawRank(drawing, rank, rankLeft, 2.3, 1, color);
    drawing.Use(SuitName(suit), Placed(16.8, 6.9, 0.09), color);
    drawing.Use(SuitName(suit), Placed(6.4, 17.3, 0.083), color);
    drawing.CloseGroup();
    drawing.Repeat(name, HalfTurn);
}

using Places = std::vector<std::pair<double, double>>;

// Column -1, 0, 1 and height 0 (top) to 1 (bottom).
Places PipPlaces(int count) {
    const auto columns = [](std::initializer_list<double> heights, std::initializer_list<double> middle) {
        Places places;
        for (const double height : heights) {
            places.emplace_back(-1, height);
            places.emplace_back(1, height);
        }
        for (const double height : middle) places.emplace_back(0, height);
        return places;
    };
    constexpr double Third = 1.0 / 3.0;
    switch (count) {
        case 2:
            return columns({}, {0, 1});
        case 3:
            return columns({}, {0, 0.5, 1});
        case 4:
            return columns({0, 1}, {});
        case 5:
            return columns({0, 1}, {0.5});
        case 6:
            return columns({0, 0.5, 1}, {});
        case 7:
            return columns({0, 0.5, 1}, {0.25});
        case 8:
            return columns({0, 0.5, 1}, {0.25, 0.75});
        case 9:
            return columns({0, Third, 2 * Third, 1}, {0.5});
        default:
            return columns({0, Third, 2 * Third, 1}, {Third / 2, 1 - Third / 2});
    }
}

void DrawPips(Drawing& drawing, int suit, int count, Shapes::Colors colors) {
    constexpr double Top = 20.5;
    constexpr double Side = 13.3;
    constexpr double Size = 0.136;
    for (const auto& [column, height] : PipPlaces(count)) {
        const double x = CardWidth / 2 + column * Side;
        const double y = Top + height * (CardHeight - 2 * Top);
        drawing.Use(SuitName(suit), Placed(x, y, Size, height > 0.51 ? 180 : 0),
                    Shapes::SuitColor(suit, colors));
    }
}

// A large spade with a light line inside its edge, and in it a lily that stands on a golden clasp.
void DrawAceOfSpades(Drawing& drawing) {
    constexpr std::string_view Gold = "#e3b23c";
    drawing.Use(SuitName(Spades), Placed(CardWidth / 2, 47, 0.52), Shapes::Ink);
    drawing.OpenGroup(Placed(CardWidth / 2, 45.4, 1));
    drawing.Line(
        "M0 -17.2C-4.2 -9.6 -14.6 -4.2 -15.6 4.6C-16.3 11.4 -7.6 13.9 -2.9 8.3L0 12.6L2.9 8.3C7.6 13.9 16.3 "
        "11.4 "
        "15.6 4.6C14.6 -4.2 4.2 -9.6 0 -17.2Z",
        Shapes::Paper, 0.9);
    drawing.Fill("M0 -10.6C2.7 -6.6 2.7 -3 0.9 0.8L-0.9 0.8C-2.7 -3 -2.7 -6.6 0 -10.6Z", Shapes::Paper);
    for (const int side : {-1, 1}) {
        drawing.OpenGroup(side < 0 ? "scale(-1 1)" : "", "");
        drawing.Fill(
            "M1.5 0.8C2.4 -3.4 4.6 -5.4 6.8 -4.8C9.2 -4.1 9 -0.9 6.7 -0.7C7.2 -2.2 5.9 -3 4.9 -1.8C4.2 -1 "
            "3.9 -0.2 "
            "3.8 0.8Z",
            Shapes::Paper);
        drawing.Fill("M0.8 3L3.2 3C3.4 4.6 4.4 5.6 5.6 5.6C4.6 7 1.9 6.4 0.8 3Z", Shapes::Paper);
        drawing.CloseGroup();
    }
    drawing.Fill("M-0.8 3L0.8 3L0.5 7.4L0 8.6L-0.5 7.4Z", Shapes::Paper);
    drawing.Box(-4.4, 1.2, 8.8, 1.4, 0.7, Gold);
    drawing.CloseGroup();
}

void DrawAce(Drawing& drawing, int suit, Shapes::Colors colors) {
    if (suit == Spades) {
        DrawAceOfSpades(drawing);
    } else {
        drawing.Use(SuitName(suit), Placed(CardWidth / 2, CardHeight / 2, 0.32),
                    Shapes::SuitColor(suit, colors));
    }
}

}  // namespace

namespace Pictures {

std::string SuitName(int suit) { return fmt::format("suit{}", suit); }

void DefineSuit(Drawing& drawing, int suit) { drawing.Define(SuitName(suit), Shapes::Suit(suit)); }

void DrawFace(Drawing& drawing, int suit, int rank, Shapes::Colors colors) {
    Shapes::DrawCard(drawing);
    if (rank >= Jack) {
        DrawCourt(drawing, suit, rank, colors);
    } else if (rank == 0) {
        DrawAce(drawing, suit, colors);
    } else {
        DrawPips(drawing, suit, rank + 1, colors);
    }
    DrawIndex(drawing, suit, rank, colors);
    Shapes::DrawCardEdge(drawing);
}

std::string Face(int number, Shapes::Colors colors) {
    const int suit = (number - 1) / Ranks;
    Drawing drawing(CardWidth, CardHeight);
    DefineSuit(drawing, suit);
    DrawFace(drawing, suit, (number - 1) % Ranks, colors);
    return drawing.Text();
}

}  // namespace Pictures
