// Suits, ranks and the card's outline as paths.
#include "Shapes.h"

#include <array>
#include <cmath>
#include <numbers>
#include <span>
#include <utility>

#include <fmt/format.h>

#include "Drawing.h"

namespace Shapes {

namespace {

constexpr std::array<std::string_view, 4> Suits = {
    // The lobes are wide and the point is long: not to be taken for a diamond at eight pixels.
    "M0 -25C-5 -39 -15 -47 -27 -47C-41 -47 -50 -37 -50 -23C-50 3 -16 24 0 50C16 24 50 3 50 -23"
    "C50 -37 41 -47 27 -47C15 -47 5 -39 0 -25Z",
    "M0 -51C12 -27 48 -10 48 15C48 29 38 37 27 37C18 37 10 32 5 24C6 36 9 44 17 50L-17 50"
    "C-9 44 -6 36 -5 24C-10 32 -18 37 -27 37C-38 37 -48 29 -48 15C-48 -10 -12 -27 0 -51Z",
    "M0 -52C11 -31 25 -14 40 0C25 14 11 31 0 52C-11 31 -25 14 -40 0C-25 -14 -11 -31 0 -52Z",
    // Three discs that hardly touch, so that the leaves stay apart when small.
    "M-23 -27A23 23 0 0 1 23 -27C23 -18 17 -10 9 -4C14 -9 20 -12 27 -12A23 23 0 0 1 27 34C18 34 10 29 5 22"
    "C6 35 9 44 17 50L-17 50C-9 44 -6 35 -5 22C-10 29 -18 34 -27 34A23 23 0 0 1 -27 -12C-20 -12 -14 -9 -9 -4"
    "C-17 -10 -23 -18 -23 -27Z",
};

/// One part of a letterform: filled, or a line of that width.
struct Stroke {
    std::string_view Path;
    double Width;
};

constexpr double Pen = 1.7;

constexpr Stroke Ace[] = {
    {"M3.3 0L5.1 0L7.6 7.9L8.4 7.9L8.4 9L5 9L5 7.9L5.6 7.9L5.15 6.5L2.75 6.5L2.3 7.9L3 7.9"
     "L3 9L0 9L0 7.9L0.8 7.9ZM2.75 5.5L5.1 5.5L4 2Z",
     0}};
constexpr Stroke Two[] = {
    {"M1.2 3C1.2 1.5 2.4 0.85 4 0.85C5.8 0.85 6.8 1.7 6.8 2.9C6.8 4.6 4.4 5.6 1.7 8.2L7.9 8.2", Pen}};
constexpr Stroke Three[] = {
    {"M1.1 1.9C1.8 1.15 2.8 0.85 3.9 0.85C5.6 0.85 6.5 1.55 6.5 2.5C6.5 3.6 5.4 4.25 3.4 4.25"
     "C5.8 4.25 6.95 5.1 6.95 6.3C6.95 7.5 5.7 8.15 4 8.15C2.6 8.15 1.5 7.8 0.8 6.9",
     Pen}};
constexpr Stroke Four[] = {
    {"M4.6 0L6.5 0L6.5 5.6L8 5.6L8 7L6.5 7L6.5 9L4.7 9L4.7 7L0.3 7L0.3 5.8ZM4.7 2.3L2.3 5.6L4.7 5.6Z", 0}};
constexpr Stroke Five[] = {
    {"M7.2 0.8L2.1 0.8L1.8 4.6C2.4 4 3.1 3.75 4 3.75C5.8 3.75 6.9 4.6 6.9 5.9C6.9 7.3 5.7 8.15 3.9 8.15"
     "C2.6 8.15 1.5 7.7 0.8 6.9",
     Pen}};
constexpr Stroke Six[] = {
    {"M6.7 1.5C6 1 5.2 0.85 4.4 0.85C2.2 0.85 1.25 2.7 1.25 5.4C1.25 7.4 2.4 8.15 4.15 8.15"
     "C5.9 8.15 7.05 7.3 7.05 5.9C7.05 4.5 5.9 3.75 4.2 3.75C2.9 3.75 1.9 4.2 1.3 5.2",
     Pen}};
constexpr Stroke Seven[] = {{"M0.6 0L7.8 0L7.8 1.3L4.4 9L2.4 9L5.7 1.6L0.6 1.6Z", 0}};
constexpr Stroke Eight[] = {
    {"M4.2 4.25C2.6 4.25 1.6 3.6 1.6 2.55C1.6 1.5 2.6 0.85 4.2 0.85C5.8 0.85 6.8 1.5 6.8 2.55"
     "C6.8 3.6 5.8 4.25 4.2 4.25C2.4 4.25 1.2 5 1.2 6.2C1.2 7.4 2.4 8.15 4.2 8.15C6 8.15 7.2 7.4 7.2 6.2"
     "C7.2 5 6 4.25 4.2 4.25Z",
     Pen}};
constexpr Stroke Nine[] = {
    {"M1.7 7.5C2.4 8 3.2 8.15 4 8.15C6.2 8.15 7.15 6.3 7.15 3.6C7.15 1.6 6 0.85 4.25 0.85"
     "C2.5 0.85 1.35 1.7 1.35 3.1C1.35 4.5 2.5 5.25 4.2 5.25C5.5 5.25 6.5 4.8 7.1 3.8",
     Pen}};
constexpr Stroke Ten[] = {
    {"M1.2 0L2.6 0L2.6 9L0.9 9L0.9 2.1L-0.3 2.7L-0.3 1.2Z", 0},
    {"M6.15 0.8C7.5 0.8 8.1 2.1 8.1 4.5C8.1 6.9 7.5 8.2 6.15 8.2C4.8 8.2 4.2 6.9 4.2 4.5"
     "C4.2 2.1 4.8 0.8 6.15 0.8Z",
     1.55}};
constexpr Stroke Jack[] = {{"M3 0L7.7 0L7.7 1.1L3 1.1Z", 0},
                           {"M5.75 1.1V6.1C5.75 7.6 4.8 8.2 3.5 8.2C2.1 8.2 1.2 7.5 1.2 6", 1.8}};
constexpr Stroke Queen[] = {
    {"M4.2 0.85C6 0.85 7.25 2.1 7.25 4.2C7.25 6.3 6 7.6 4.2 7.6C2.4 7.6 1.15 6.3 1.15 4.2"
     "C1.15 2.1 2.4 0.85 4.2 0.85Z",
     Pen},
    {"M3.7 5.9L5.4 5.9L8.4 8.2L7.5 9.3L6.6 9.2Z", 0}};
constexpr Stroke King[] = {
    {"M0 0L3.4 0L3.4 1.1L2.8 1.1L2.8 4L5.2 1.1L4.5 1.1L4.5 0L7.9 0L7.9 1.1L7.1 1.1L4.9 3.7"
     "L7.5 7.9L8.4 7.9L8.4 9L4.9 9L4.9 7.9L5.2 7.9L3.6 5.2L2.8 6.1L2.8 7.9L3.4 7.9L3.4 9L0 9"
     "L0 7.9L0.8 7.9L0.8 1.1L0 1.1Z",
     0}};

constexpr std::array<std::span<const Stroke>, 13> Ranks = {Ace,   Two,  Three, Four, Five,  Six, Seven,
                                                           Eight, Nine, Ten,   Jack, Queen, King};

}  // namespace

std::string_view Suit(int suit) { return Suits.at(static_cast<std::size_t>(suit)); }

std::string_view SuitColor(int suit, Colors colors) {
    constexpr std::array<std::string_view, 4> FourColors = {Red, Ink, Blue, Green};
    if (colors == Colors::Four) return FourColors.at(static_cast<std::size_t>(suit));
    return suit % 2 == 0 ? Red : Ink;
}

void DrawRank(Drawing& drawing, int rank, double left, double top, double scale, std::string_view color) {
    drawing.OpenGroup(Placed(left, top, scale));
    for (const Stroke& stroke : Ranks.at(static_cast<std::size_t>(rank))) {
        if (stroke.Width > 0) {
            drawing.SharpLine(stroke.Path, color, stroke.Width);
        } else {
            drawing.Fill(stroke.Path, color);
        }
    }
    drawing.CloseGroup();
}

void DrawCard(Drawing& drawing, std::string_view paper) {
    drawing.Box(0, 0, CardWidth, CardHeight, CardRadius, paper);
}

void DrawCardEdge(Drawing& drawing) {
    // Light enough not to weigh at three times the size, dark enough that white on white reads as a pile.
    constexpr double Width = 0.66;
    drawing.BoxEdge(Width / 2, Width / 2, CardWidth - Width, CardHeight - Width, CardRadius - Width / 2,
                    "#3c3e46", Width, 0.85);
}

std::string Cut(const std::vector<Corner>& corners, double left, double top, double right, double bottom) {
    // One side of the box after the other takes away what lies beyond it.
    struct Side {
        double Corner::*Axis;
        double Limit;
        bool Below;
    };
    std::vector<Corner> rest = corners;
    for (const Side& side : {Side{&Corner::X, left, false}, Side{&Corner::X, right, true},
                             Side{&Corner::Y, top, false}, Side{&Corner::Y, bottom, true}}) {
        const auto inside = [&side](const Corner& corner) {
            return side.Below ? corner.*side.Axis <= side.Limit : corner.*side.Axis >= side.Limit;
        };
        std::vector<Corner> kept;
        for (std::size_t i = 0; i < rest.size(); ++i) {
            const Corner& from = rest[i];
            const Corner& to = rest[(i + 1) % rest.size()];
            if (inside(from)) kept.push_back(from);
            if (inside(from) != inside(to)) {
                const double share = (side.Limit - from.*side.Axis) / (to.*side.Axis - from.*side.Axis);
                kept.push_back({from.X + share * (to.X - from.X), from.Y + share * (to.Y - from.Y)});
            }
        }
        rest = std::move(kept);
    }
    std::string path;
    for (const Corner& corner : rest) {
        path += fmt::format("{}{} {}", path.empty() ? "M" : "L", Num(corner.X), Num(corner.Y));
    }
    return path.empty() ? path : path + "Z";
}

std::string Star(double x, double y, int points, double outer, double inner, double turn) {
    std::string path;
    for (int i = 0; i < 2 * points; ++i) {
        const double angle = (turn - 90.0 + i * 180.0 / points) * std::numbers::pi / 180;
        const double radius = i % 2 == 0 ? outer : inner;
        path += fmt::format("{}{} {}", i == 0 ? "M" : "L", Num(x + radius * std::cos(angle)),
                            Num(y + radius * std::sin(angle)));
    }
    return path + "Z";
}

}  // namespace Shapes
