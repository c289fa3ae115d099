// Card backs "Flowers" and "Garden".
#include <algorithm>
#include <cmath>
#include <initializer_list>
#include <utility>

#include <fmt/format.h>

#include "BackMotifs.h"
#include "Drawing.h"
#include "Shapes.h"

namespace BackMotifs {

namespace {

constexpr double MiddleX = Shapes::CardWidth / 2;
constexpr double MiddleY = Shapes::CardHeight / 2;
constexpr std::string_view LeafPath = "M0 0C-3.4 -2 -3.4 -6.2 0 -9.4C3.4 -6.2 3.4 -2 0 0Z";

struct Spot {
    double X, Y, Size, Turn;
};

void DrawRose(Drawing& drawing, const Spot& spot) {
    drawing.OpenGroup(Placed(spot.X, spot.Y, spot.Size, spot.Turn));
    for (int i = 0; i < 5; ++i) drawing.Use("petal", fmt::format("rotate({})", i * 72), "#d84a5c");
    drawing.Disc(0, 0, 8.2, "#e8697a");
    for (int i = 0; i < 5; ++i) {
        drawing.OpenGroup(fmt::format("rotate({})", i * 72 + 36));
        drawing.Line("M-4.6 -4.6C-2.4 -8 2.4 -8 4.6 -4.6", "#a92a40", 0.9);
        drawing.CloseGroup();
    }
    drawing.Disc(0, 0, 4.6, "#f5a3ab");
    drawing.Line("M-2.6 0.4C-2.2 -3.2 3 -2.8 2.4 0.4C2 2.6 -1 2.2 -0.6 0.4", "#a92a40", 0.9);
    drawing.CloseGroup();
}

void DrawDaisy(Drawing& drawing, const Spot& spot) {
    drawing.OpenGroup(Placed(spot.X, spot.Y, spot.Size, spot.Turn));
    for (int i = 0; i < 12; ++i) {
        drawing.Use("petal", fmt::format("rotate({})", i * 30), i % 2 == 0 ? "#ffffff" : "#e3ecf6");
    }
    drawing.Disc(0, 0, 2.7, "#e0a021");
    drawing.Disc(-0.5, -0.5, 1.7, "#f6c945");
    drawing.CloseGroup();
}

void DrawTulip(Drawing& drawing, const Spot& spot, std::string_view color, std::string_view shade) {
    drawing.OpenGroup(Placed(spot.X, spot.Y, spot.Size, spot.Turn));
    drawing.Line("M0 2C0.5 8 0.3 13 0 18", "#3f8750", 1.3);
    drawing.Fill("M0 18C-5.4 15.6 -7 10.6 -6.4 5.6C-2.6 8.4 -0.6 12.6 0 18Z", "#4c9a5c");
    drawing.Fill("M0 18C5.4 15.6 7 10.6 6.4 5.6C2.6 8.4 0.6 12.6 0 18Z", "#357547");
    drawing.Fill("M0 3.4C-5 3.4 -6.6 -1.4 -5.8 -8L-2.6 -4.4L0 -9L2.6 -4.4L5.8 -8C6.6 -1.4 5 3.4 0 3.4Z",
                 color);
    drawing.Fill("M0 3.4C-3 1 -3.4 -4.6 0 -9C3.4 -4.6 3 1 0 3.4Z", shade);
    drawing.CloseGroup();
}

}  // namespace

void Roses(Drawing& drawing) {
    drawing.FadeOut("glow", MiddleX, MiddleY, 52, "#a62a42", "#6e1428");
    drawing.Box(1, 1, 69, 94, 4, "url(#glow)");
    drawing.Define("petal", "M0 2C-7 0 -10.6 -6 -7.4 -11.4C-5 -14.4 5 -14.4 7.4 -11.4C10.6 -6 7 0 0 2Z");
    drawing.Define("leaf", LeafPath);
    constexpr Spot Leaves[] = {
        {35.5, 30, 1.5, 0}, {35.5, 66, 1.5, 180}, {20, 43, 1.3, -62}, {51, 53, 1.3, 118}, {20, 53, 1.3, -118},
        {51, 43, 1.3, 62},  {23, 20, 1.1, 60},    {48, 20, 1.1, -60}, {23, 76, 1.1, 120}, {48, 76, 1.1, -120},
        {14, 30, 1.1, 160}, {57, 30, 1.1, -160},  {14, 66, 1.1, 20},  {57, 66, 1.1, -20},
    };
    for (const Spot& leaf : Leaves) {
        drawing.OpenGroup(Placed(leaf.X, leaf.Y, leaf.Size, leaf.Turn));
        drawing.Fill(LeafPath, "#3f7d4c");
        drawing.Line("M0 -0.8V-7", "#8fc48a", 0.5);
        drawing.CloseGroup();
    }
    for (const Spot& rose : std::initializer_list<Spot>{{MiddleX, MiddleY, 1.15, 0},
                                                        {15.5, 17.5, 0.72, 20},
                                                        {55.5, 17.5, 0.72, -20},
                                                        {15.5, 78.5, 0.72, 160},
                                                        {55.5, 78.5, 0.72, -160}}) {
        DrawRose(drawing, rose);
    }
    for (const auto& [x, y] :
         {std::pair{35.5, 12.0}, std::pair{35.5, 84.0}, std::pair{9.5, 48.0}, std::pair{61.5, 48.0}}) {
        drawing.Disc(x, y, 2.2, "#f5a3ab");
        drawing.Disc(x, y, 1, "#a92a40");
    }
    drawing.BoxEdge(5.4, 5.4, 60.2, 85.2, 2, "#e8b7a4", 0.6, 0.8);
}

void Daisies(Drawing& drawing) {
    drawing.FadeDown("sky", 0, 96, "#5a96d0", "#2f629f");
    drawing.Box(1, 1, 69, 94, 4, "url(#sky)");
    drawing.Define("petal", "M0 -1C-2.2 -3.4 -2 -7.2 0 -8.6C2 -7.2 2.2 -3.4 0 -1Z");
    drawing.Define("leaf", LeafPath);
    for (const Spot& leaf : std::initializer_list<Spot>{{26, 26, 0.8, 130},
                                                        {45, 31, 0.7, 20},
                                                        {20, 49, 0.8, 200},
                                                        {52, 55, 0.8, 15},
                                                        {33, 68, 0.8, 250},
                                                        {46, 76, 0.7, 60},
                                                        {12, 32, 0.7, 300},
                                                        {60, 82, 0.7, 180},
                                                        {34, 9, 0.6, 90},
                                                        {12, 84, 0.7, 30},
                                                        {60, 34, 0.7, 200}}) {
        drawing.Use("leaf", Placed(leaf.X, leaf.Y, leaf.Size, leaf.Turn), "#7fc29a");
    }
    for (const Spot& daisy : std::initializer_list<Spot>{{17, 17, 1.15, 0},
                                                         {50, 15, 0.85, 10},
                                                         {34.5, 34, 1.3, 5},
                                                         {12.5, 44, 0.85, 15},
                                                         {58, 44, 1.15, 3},
                                                         {28, 58, 0.95, 8},
                                                         {48.5, 65.5, 1.2, 12},
                                                         {14, 70, 1.1, 4},
                                                         {31, 82, 1.05, 0},
                                                         {58, 87, 0.8, 6}}) {
        DrawDaisy(drawing, daisy);
    }
    for (const auto& [x, y] :
         {std::pair{33.0, 14.0}, std::pair{62.0, 26.0}, std::pair{24.0, 43.0}, std::pair{42.0, 49.0},
          std::pair{62.0, 66.0}, std::pair{44.0, 86.0}, std::pair{8.0, 58.0}}) {
        drawing.Disc(x, y, 0.9, "#f6e7a8");
    }
}

void Tulips(Drawing& drawing) {
    constexpr double StepX = 16.15;
    constexpr double StepY = 22.4;
    for (int row = 0; row < 4; ++row) {
        for (int column = 0; column < 4; ++column) {
            const double x = PanelLeft + (column + 0.5) * StepX;
            const double y = PanelTop + row * StepY + 7.2;
            const int kind = (row + column) % 2;
            DrawTulip(drawing, {x, y + (kind == 0 ? 0.0 : 1.4), 0.72, 0}, kind == 0 ? "#d8433c" : "#e88f2c",
                      kind == 0 ? "#ef6a58" : "#f6b552");
        }
    }
    for (int row = 0; row < 4; ++row) {
        for (int column = 0; column < 3; ++column) {
            drawing.Disc(PanelLeft + (column + 1) * StepX, PanelTop + row * StepY + 3.4, 0.9, "#c9a96a");
        }
    }
}

void Trellis(Drawing& drawing) {
    drawing.FadeDown("hedge", 0, 96, "#3a7d52", "#23573a");
    drawing.Box(1, 1, 69, 94, 4, "url(#hedge)");
    std::string bars;
    constexpr double Step = 16.15;
    for (int i = -6; i <= 4; ++i) {
        // Cut to the panel, of which a bar reaches one side or the other.
        const double left = PanelLeft + i * Step;
        const double from = std::max(0.0, PanelLeft - left);
        const double to = std::min(PanelBottom - PanelTop, PanelRight - left);
        if (to <= from) continue;
        bars += fmt::format("M{} {}L{} {}", Num(left + from), Num(PanelTop + from), Num(left + to),
                            Num(PanelTop + to));
        bars += fmt::format("M{} {}L{} {}", Num(71 - left - from), Num(PanelTop + from), Num(71 - left - to),
                            Num(PanelTop + to));
    }
    drawing.SharpLine(bars, "#1b4029", 2.6, 0.7);
    drawing.SharpLine(bars, "#efe6cf", 1.8);
    drawing.Define("leaf", LeafPath);
    drawing.Line(
        "M12 93C4 80 22 74 18 62C14 50 30 44 40 50C52 57 62 47 55 36C48 25 34 31 28 22C24 15 30 8 40 3",
        "#2b5a30", 1.3);
    for (const Spot& leaf : std::initializer_list<Spot>{{10, 84, 0.7, -60},
                                                        {14, 76, 0.75, 60},
                                                        {19.5, 69, 0.8, -70},
                                                        {18, 60, 0.75, 80},
                                                        {18.5, 54, 0.8, -50},
                                                        {25, 48.6, 0.75, 150},
                                                        {32, 47.4, 0.8, -10},
                                                        {39, 49.6, 0.75, 170},
                                                        {46, 51.8, 0.8, 10},
                                                        {53, 48.8, 0.75, 130},
                                                        {57, 43, 0.8, 60},
                                                        {55, 35.6, 0.75, 100},
                                                        {50, 30.4, 0.8, -20},
                                                        {42, 28.4, 0.75, 160},
                                                        {34, 27.4, 0.8, -15},
                                                        {28.4, 23, 0.75, -100},
                                                        {27.4, 17, 0.8, 70},
                                                        {30, 11, 0.75, -70},
                                                        {36, 6.6, 0.7, 80}}) {
        drawing.Use("leaf", Placed(leaf.X, leaf.Y, leaf.Size, leaf.Turn),
                    leaf.Size > 0.76 ? "#8ccf6e" : "#5fae5a");
    }
    for (const Spot& bloom : std::initializer_list<Spot>{{15, 72, 1, 0},
                                                         {29, 52, 1.05, 30},
                                                         {58, 52, 0.9, 10},
                                                         {48, 26, 1.1, 50},
                                                         {24, 26, 0.9, 20},
                                                         {36, 14, 1, 40},
                                                         {52, 74, 1.15, 15},
                                                         {14, 36, 0.9, 25},
                                                         {34, 82, 0.9, 5},
                                                         {60, 14, 0.9, 45}}) {
        drawing.OpenGroup(Placed(bloom.X, bloom.Y, bloom.Size, bloom.Turn));
        for (int i = 0; i < 5; ++i) {
            const double angle = i * 1.2566;
            drawing.Disc(2.4 * std::sin(angle), -2.4 * std::cos(angle), 2, "#f3a7bd");
        }
        drawing.Disc(0, 0, 1.7, "#fbe9a9");
        drawing.CloseGroup();
    }
}

void Parterre(Drawing& drawing) {
    const auto hedge = [&drawing](std::string_view path) {
        drawing.SharpLine(path, "#2f6b3c", 2.6);
        drawing.SharpLine(path, "#5d9c56", 1.2);
    };
    drawing.BoxEdge(6.2, 6.2, 58.6, 83.6, 1, "#2f6b3c", 3);
    drawing.BoxEdge(6.2, 6.2, 58.6, 83.6, 1, "#5d9c56", 1.4);
    drawing.OpenGroup("", "quarter");
    drawing.Fill("M10.5 10.5H32V23C28 26.5 24.5 31 23.4 36.6H10.5Z", "#7db264");
    hedge("M11.6 11.6H30.9V22.4C27 26 23.6 30.4 22.4 35.5H11.6Z");
    hedge("M16 29.4C16 21 20 16.6 26.4 16.6");
    drawing.Disc(16.6, 16.6, 2.8, "#2f6b3c");
    drawing.Disc(16, 16, 1.9, "#74b765");
    for (const auto& [x, y] :
         {std::pair{20.4, 24.8}, std::pair{23.4, 21.4}, std::pair{18.9, 29.0}, std::pair{27.6, 19.6}}) {
        drawing.Disc(x, y, 1.25, "#e0527a");
        drawing.Disc(x, y, 0.5, "#fff3c4");
    }
    drawing.Fill("M10.5 40.4H22.8C23 42.8 23.4 44.2 24 46H10.5Z", "#7db264");
    for (int i = 0; i < 4; ++i) drawing.Disc(12.8 + i * 3, 43.2, 1.2, i % 2 == 0 ? "#f2f0e4" : "#8d5fb0");
    drawing.CloseGroup();
    drawing.Repeat("quarter", "translate(71 0) scale(-1 1)");
    drawing.Repeat("quarter", "translate(0 96) scale(1 -1)");
    drawing.Repeat("quarter", "translate(71 96) scale(-1 -1)");
    // The fountain in the middle.
    drawing.Disc(MiddleX, MiddleY, 12.4, "#c9b481");
    drawing.Ring(MiddleX, MiddleY, 10.6, "#f6f1e2", 1.8);
    drawing.Disc(MiddleX, MiddleY, 9.7, "#6fb3d2");
    drawing.Ring(MiddleX, MiddleY, 7, "#a9d8ea", 0.7);
    drawing.Ring(MiddleX, MiddleY, 4.8, "#d2eef7", 0.7);
    drawing.Disc(MiddleX, MiddleY, 2.6, "#f6f1e2");
    drawing.Disc(MiddleX, MiddleY, 1.3, "#4f93b8");
}

}  // namespace BackMotifs
