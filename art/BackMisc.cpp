// Card backs "Misc": an ornament, sun and moon, the carnival.
#include <initializer_list>
#include <tuple>
#include <utility>

#include <fmt/format.h>

#include "BackMotifs.h"
#include "Drawing.h"
#include "Shapes.h"

namespace BackMotifs {

namespace {

constexpr double MiddleX = Shapes::CardWidth / 2;
constexpr double MiddleY = Shapes::CardHeight / 2;

// Draws what a function draws in the upper left quarter in all four, mirrored.
template <typename Draw>
void Quartered(Drawing& drawing, Draw draw) {
    drawing.OpenGroup("", "quarter");
    draw();
    drawing.CloseGroup();
    drawing.Repeat("quarter", "translate(71 0) scale(-1 1)");
    drawing.Repeat("quarter", "translate(0 96) scale(1 -1)");
    drawing.Repeat("quarter", "translate(71 96) scale(-1 -1)");
}

}  // namespace

void Scrolls(Drawing& drawing) {
    static constexpr std::string_view Cream = "#fdeeda";
    drawing.FadeOut("glow", MiddleX, MiddleY, 54, "#bb2b38", "#8a1622");
    drawing.Box(1, 1, 69, 94, 4, "url(#glow)");
    drawing.BoxEdge(5.6, 5.6, 59.8, 84.8, 2, Cream, 0.8);
    drawing.BoxEdge(7.4, 7.4, 56.2, 81.2, 1, Cream, 0.35, 0.7);
    Quartered(drawing, [&drawing] {
        // Acanthus in the corner.
        drawing.Line("M10 29C10 19 13 11 24 10.6C29 10.6 31 15 28 17.4C25.6 19 22.8 16.8 24.4 14.8", Cream,
                     1.1);
        drawing.Line("M10 10L17 18C20 22 18.4 27 14.8 26.4C12.2 25.8 12.6 22.4 15 22.8", Cream, 1.1);
        drawing.Fill("M9.6 9.6C14.6 9.8 18.6 12.8 18.4 18.8C12.8 18.8 9.8 14.8 9.6 9.6Z", Cream);
        drawing.Fill("M24 10.6C27 8.6 30.6 8.8 33 10.8C30.4 12.8 27 12.8 24 10.6Z", Cream);
        drawing.Fill("M10 29C8.2 32.2 8.4 35.8 10.4 38.4C12.2 35.6 12.2 32.2 10 29Z", Cream);
        // A tendril from the medallion to the side.
        drawing.Line("M35.5 27C28 22.6 21 25.6 20.6 32C20.4 37 26 38.6 27.4 34.8C28 32.4 25.4 31.2 24.4 33",
                     Cream, 1.1);
        drawing.Line("M20.8 33.6C16 33.2 12 37 11.6 43.4C11.4 46 13.4 47.2 14.8 46", Cream, 1.1);
        drawing.Fill("M20.8 33.6C17.4 30 16.8 26 18.6 22.8C21.8 25.4 22.6 29.6 20.8 33.6Z", Cream);
        drawing.Disc(31.2, 19.4, 1, Cream);
        drawing.Disc(15.2, 39.4, 1, Cream);
    });
    drawing.Disc(MiddleX, MiddleY, 16, Cream);
    drawing.Disc(MiddleX, MiddleY, 14.9, "#8a1622");
    drawing.Ring(MiddleX, MiddleY, 13.4, Cream, 0.4);
    for (int i = 0; i < 8; ++i) {
        drawing.OpenGroup(Placed(MiddleX, MiddleY, 1, i * 45));
        drawing.Fill("M0 0C-3.2 -3.6 -3 -8.2 0 -12C3 -8.2 3.2 -3.6 0 0Z", i % 2 == 0 ? Cream : "#e9b98f");
        drawing.Line("M0 -2V-8.6", "#8a1622", 0.6);
        drawing.CloseGroup();
    }
    drawing.Disc(MiddleX, MiddleY, 2.6, "#e0b04a");
    drawing.Ring(MiddleX, MiddleY, 2.6, "#8a1622", 0.6);
}

void SunAndMoon(Drawing& drawing) {
    drawing.FadeDown("night", 3, 93, "#24367a", "#131a3d");
    drawing.Box(1, 1, 69, 94, 4, "url(#night)");
    constexpr std::string_view Gold = "#f0c34f";
    drawing.BoxEdge(5.6, 5.6, 59.8, 84.8, 2, Gold, 0.7);
    for (const auto& [x, y, size] : std::initializer_list<std::tuple<double, double, double>>{{13, 14, 2.2},
                                                                                              {58, 14, 2.2},
                                                                                              {13, 82, 2.2},
                                                                                              {58, 82, 2.2},
                                                                                              {35.5, 13, 3},
                                                                                              {35.5, 83, 3},
                                                                                              {10.5, 48, 2},
                                                                                              {60.5, 48, 2},
                                                                                              {22, 17, 1},
                                                                                              {49, 17, 1},
                                                                                              {22, 79, 1},
                                                                                              {49, 79, 1},
                                                                                              {11, 31, 1},
                                                                                              {60, 31, 1},
                                                                                              {11, 65, 1},
                                                                                              {60, 65, 1}}) {
        drawing.Fill(Shapes::Star(x, y, 4, size, size * 0.36), "#fdf3cf");
    }
    drawing.Fill(Shapes::Star(MiddleX, MiddleY, 16, 27, 16.6), "#c9862a");
    drawing.Fill(Shapes::Star(MiddleX, MiddleY, 16, 24, 16.2, 11.25), Gold);
    drawing.Disc(MiddleX, MiddleY, 16.4, "#131a3d");
    drawing.Disc(MiddleX, MiddleY, 15.2, Gold);
    drawing.Disc(MiddleX, MiddleY, 13.8, "#f8dc86");
    // The moon looks to the left across the sun's face.
    drawing.Fill(
        "M37.5 34.6A13.6 13.6 0 1 0 37.5 61.4C32.6 58.4 30.4 55 30.6 51.6C28.8 50.8 27.6 49.8 27.4 48.6"
        "C28.8 48 29.4 46.4 29.6 44.8C30 40.4 33 37 37.5 34.6Z",
        "#dfe6f6");
    drawing.Line("M30.4 51.4C31.6 51.6 32.4 51.4 33 50.8", "#5a6a9c", 0.7);
    drawing.Line("M31 44.4C32 43.6 33.2 43.6 34 44.2", "#5a6a9c", 0.8);
    drawing.Line("M38.4 44.4C39.6 43.4 42.2 43.4 43.4 44.4", "#9a5f18", 0.9);
    drawing.Line("M36.4 53.6C39 56 42.6 55.2 44 52.4", "#9a5f18", 0.9);
    drawing.Disc(44.6, 49.4, 1.8, "#f0a95a", 0.7);
}

void Carnival(Drawing& drawing) {
    // A harlequin's lozenges, and a mask with a bell upon them.
    constexpr int Columns = 6;
    constexpr int Rows = 6;
    constexpr double StepX = (PanelRight - PanelLeft) / Columns;
    constexpr double StepY = (PanelBottom - PanelTop) / Rows;
    std::string red, yellow;
    for (int row = 0; row <= 2 * Rows; ++row) {
        for (int column = row % 2; column <= 2 * Columns; column += 2) {
            const double x = PanelLeft + column * StepX / 2;
            const double y = PanelTop + row * StepY / 2;
            (row % 2 == 0 ? red : yellow) +=
                Shapes::Cut({{x, y - StepY / 2}, {x + StepX / 2, y}, {x, y + StepY / 2}, {x - StepX / 2, y}},
                            PanelLeft - 1, PanelTop - 1, PanelRight + 1, PanelBottom + 1);
        }
    }
    drawing.Fill(red, "#b03a48");
    drawing.Fill(yellow, "#e7c56a");
    drawing.OpenGroup(Placed(MiddleX, MiddleY, 1));
    // Plumes behind the mask.
    for (const int side : {-1, 1}) {
        drawing.OpenGroup(side < 0 ? "scale(-1 1)" : "");
        drawing.Shape("M2 -6C4 -18 12 -26 22 -24C25 -16 20 -8 11 -4Z", "#2f7f8a", "#2b2440", 0.8);
        drawing.Line("M6 -7C10 -14 15 -19 20 -21.4", "#bfe3e3", 0.8);
        drawing.CloseGroup();
    }
    drawing.Shape("M0 -4C-4.4 -14 -3 -24 0 -29C3 -24 4.4 -14 0 -4Z", "#6d3b8f", "#2b2440", 0.8);
    drawing.Line("M0 -9V-24", "#e2c9f2", 0.8);
    drawing.Shape(
        "M0 -5.4C-8 -9.6 -18 -9.6 -24.4 -6.4C-24.6 3 -20 11 -11.6 11.4C-6 11.4 -3.4 7.6 0 5"
        "C3.4 7.6 6 11.4 11.6 11.4C20 11 24.6 3 24.4 -6.4C18 -9.6 8 -9.6 0 -5.4Z",
        "#fdf7e8", "#2b2440", 1);
    for (const int side : {-1, 1}) {
        drawing.OpenGroup(side < 0 ? "scale(-1 1)" : "");
        drawing.Fill("M4 1.6C7.4 -3.8 14.6 -4.6 19.4 -1C16.4 5 8.4 6.4 4 1.6Z", "#2b2440");
        drawing.Line("M3.4 -4C9 -7.4 16 -7.8 21.4 -5.4", "#e0a83a", 1);
        drawing.Disc(21, 1.4, 0.9, "#b03a48");
        drawing.Disc(19.4, 4.4, 0.9, "#b03a48");
        drawing.Disc(17, 6.9, 0.9, "#b03a48");
        drawing.CloseGroup();
    }
    drawing.Shape("M0 -7.6L2.6 -3.2L0 1.2L-2.6 -3.2Z", "#e0a83a", "#2b2440", 0.7);
    drawing.CloseGroup();
}

}  // namespace BackMotifs
