// Card backs "Nature": a mountain lake, autumn leaves, a forest at night, waves.
#include <cmath>
#include <initializer_list>
#include <tuple>

#include <fmt/format.h>

#include "BackMotifs.h"
#include "Drawing.h"
#include "Shapes.h"

namespace BackMotifs {

namespace {

constexpr double MiddleX = Shapes::CardWidth / 2;

// A fir that stands on x, y.
std::string Fir(double x, double y, double height) {
    const double w = height * 0.22;
    std::string path = fmt::format("M{} {}", Num(x), Num(y - height));
    const auto corner = [&](double across, double up) {
        path += fmt::format("L{} {}", Num(x + across * w), Num(y - up * height));
    };
    for (const auto& [across, up] : std::initializer_list<std::pair<double, double>>{{0.55, 0.68},
                                                                                     {0.3, 0.68},
                                                                                     {0.8, 0.4},
                                                                                     {0.45, 0.4},
                                                                                     {1, 0.1},
                                                                                     {0.15, 0.1},
                                                                                     {0.15, 0},
                                                                                     {-0.15, 0},
                                                                                     {-0.15, 0.1},
                                                                                     {-1, 0.1},
                                                                                     {-0.45, 0.4},
                                                                                     {-0.8, 0.4},
                                                                                     {-0.3, 0.68},
                                                                                     {-0.55, 0.68}}) {
        corner(across, up);
    }
    return path + "Z";
}

}  // namespace

void Tarn(Drawing& drawing) {
    // The upper half lies mirrored in the lake: the back is the same either way up but for the water's tint.
    drawing.FadeDown("sky", 3, 48, "#6fb1dc", "#fdeccb");
    drawing.Box(2, 2, 67, 46.5, 3, "url(#sky)");
    drawing.Disc(50, 18, 5.4, "#fff6d6");
    drawing.Fill("M3 48L3 34L13 24L20 31L33 12L47 30L55 23L68 36L68 48Z", "#6f86a8");
    drawing.Fill(
        "M33 12L39.4 20.2L36 19.6L33.6 23L30.6 19.4L27.4 20.2ZM13 24L16.6 27.6L13.6 27.4L9.8 27.2ZM55 "
        "23L59.4 27.4"
        "L55.6 26.8L51.6 26Z",
        "#fbfdff");
    drawing.Fill("M33 12L47 30L55 23L68 36L68 48L40 48C38 38 40 30 36 24L33.6 23L36 19.6Z", "#4f6890", 0.6);
    drawing.Fill("M3 48L3 41C14 36 24 39 34 43C46 47 56 38 68 41L68 48Z", "#3f7a5a");
    std::string firs;
    for (const auto& [x, height] : std::initializer_list<std::pair<double, double>>{
             {7, 17}, {12, 13}, {17, 15.5}, {23, 10}, {50, 10.5}, {55, 15}, {60, 18}, {65, 14}}) {
        firs += Fir(x, 48, height);
    }
    drawing.Fill(firs, "#1f4d3c");
    drawing.OpenGroup("translate(0 96) scale(1 -1)", "");
    drawing.FadeDown("deep", 3, 48, "#2f6d9c", "#8fbcc9");
    drawing.Box(2, 2, 67, 46, 3, "url(#deep)");
    drawing.Disc(50, 18, 5.4, "#d9e8d8", 0.7);
    drawing.Fill("M3 48L3 34L13 24L20 31L33 12L47 30L55 23L68 36L68 48Z", "#4d7396");
    drawing.Fill("M33 12L39.4 20.2L36 19.6L33.6 23L30.6 19.4L27.4 20.2Z", "#bcd6e3");
    drawing.Fill("M3 48L3 41C14 36 24 39 34 43C46 47 56 38 68 41L68 48Z", "#2f6a66");
    drawing.Fill(firs, "#1c4a50");
    drawing.CloseGroup();
    drawing.SharpLine("M3 48H68", "#e6f3f2", 0.8);
    drawing.Line("M12 56H22M46 54H60M28 62H40M9 70H16M50 72H63M22 78H33M40 84H52", "#d5ebf0", 0.7, 0.7);
}

void AutumnLeaves(Drawing& drawing) {
    drawing.Define("maple",
                   "M0 9L0.5 4L5.4 5L4.6 2.8L9 -1L7.4 -1.8L8.2 -5L5 -4.4L4.4 -5.8L2 -3.2L2.8 -8L1.2 -7.2L0 "
                   "-10L-1.2 -7.2L-2.8 -8"
                   "L-2 -3.2L-4.4 -5.8L-5 -4.4L-8.2 -5L-7.4 -1.8L-9 -1L-4.6 2.8L-5.4 5L-0.5 4Z");
    drawing.Define("beech", "M0 9.4L0 6.4C-5.4 3.4 -5.4 -4.4 0 -9.4C5.4 -4.4 5.4 3.4 0 6.4Z");
    struct FallenLeaf {
        std::string_view Kind;
        double X, Y, Size, Turn;
        std::string_view Color;
    };
    for (const FallenLeaf& leaf : std::initializer_list<FallenLeaf>{{"maple", 16, 17, 1.2, -20, "#c8452c"},
                                                                    {"beech", 36, 13, 0.9, 60, "#d98a2b"},
                                                                    {"maple", 56, 18, 1.05, 35, "#e0a030"},
                                                                    {"beech", 12, 37, 0.95, 20, "#8a5a2a"},
                                                                    {"maple", 34, 35, 1.3, 160, "#d9722a"},
                                                                    {"beech", 57, 38, 0.95, -40, "#b8482c"},
                                                                    {"maple", 14, 59, 1.1, 80, "#e0a030"},
                                                                    {"beech", 32, 56, 0.9, -70, "#7d7a32"},
                                                                    {"maple", 54, 60, 1.3, -150, "#a8322c"},
                                                                    {"beech", 14, 80, 0.95, 140, "#c8622c"},
                                                                    {"maple", 34, 77, 1.15, 15, "#c8452c"},
                                                                    {"beech", 50, 81, 0.85, 40, "#d98a2b"},
                                                                    {"maple", 61, 83, 0.7, -60, "#8a5a2a"},
                                                                    {"beech", 46, 47, 0.7, 10, "#e0b04a"},
                                                                    {"beech", 24, 25, 0.7, -50, "#7d7a32"},
                                                                    {"beech", 46, 26, 0.65, 110, "#a8322c"},
                                                                    {"beech", 23, 69, 0.6, -20, "#e0b04a"},
                                                                    {"beech", 43, 69, 0.6, 75, "#8a5a2a"}}) {
        drawing.OpenGroup(Placed(leaf.X, leaf.Y, leaf.Size, leaf.Turn));
        drawing.Use(leaf.Kind, "translate(0.7 0.9)", "#b8935a", 0.5);
        drawing.Use(leaf.Kind, "translate(0 0)", leaf.Color);
        drawing.Line(leaf.Kind == "maple"
                         ? "M0 6V-6M0 3L5 -1.6M0 3L-5 -1.6"
                         : "M0 6.4V-6M0 2L2.6 -0.6M0 2L-2.6 -0.6M0 -1.4L2.2 -3.6M0 -1.4L-2.2 -3.6",
                     "#fbe6b8", 0.5, 0.75);
        drawing.CloseGroup();
    }
}

void NightForest(Drawing& drawing) {
    drawing.FadeDown("night", 3, 90, "#101a38", "#4a6a94");
    drawing.Box(1, 1, 69, 94, 4, "url(#night)");
    drawing.FadeOut("halo", 46, 25, 20, "#8fa6cf", "#22325c");
    drawing.Disc(46, 25, 17, "url(#halo)", 0.55);
    drawing.Disc(46, 25, 9, "#f6efd0");
    drawing.Disc(43, 22.6, 1.7, "#e2d8b0");
    drawing.Disc(48.6, 27.8, 2.2, "#e2d8b0");
    drawing.Disc(48, 20.6, 1, "#e2d8b0");
    for (const auto& [x, y] : std::initializer_list<std::pair<double, double>>{{9, 12},
                                                                               {20, 9},
                                                                               {30, 15},
                                                                               {14, 24},
                                                                               {25, 30},
                                                                               {62, 10},
                                                                               {63, 34},
                                                                               {34, 7},
                                                                               {8, 36},
                                                                               {57, 42},
                                                                               {33, 40}}) {
        drawing.Disc(x, y, 0.7, "#fdf6dc");
    }
    std::string far, middle, near;
    for (int i = 0; i < 9; ++i) far += Fir(5 + i * 7.6, 76, 28 + (i * 7) % 11);
    for (int i = 0; i < 7; ++i) middle += Fir(7.5 + i * 9.4, 86, 28 + (i * 5) % 9);
    for (int i = 0; i < 5; ++i)
        near += Fir(i % 2 == 0 ? 10 + i * 12.5 : 11 + i * 12.5, 94, 24 + (i * 7) % 10);
    drawing.Fill(far + "M3 74H68V94H3Z", "#3a5680");
    drawing.Fill(middle + "M3 84H68V94H3Z", "#24395c");
    drawing.Fill(near + "M3 91H68V94H3Z", "#111d36");
    // An owl on a branch.
    drawing.Line("M3 57C9 55.4 15 55.6 25 53.4M14 55.4L18 51.6", "#0c1428", 1.7);
    drawing.Fill(
        "M10.4 55.4C7.4 50 8 44 9.4 40.4L11.6 42.2C12.8 41.6 14.2 41.6 15.4 42.2L17.6 40.4C19 44 19.6 50 "
        "16.6 55.4Z",
        "#0c1428");
    drawing.Disc(11.6, 45, 1.6, "#f4d35e");
    drawing.Disc(15.4, 45, 1.6, "#f4d35e");
    drawing.Disc(11.7, 45, 0.75, "#0c1428");
    drawing.Disc(15.3, 45, 0.75, "#0c1428");
}

void Waves(Drawing& drawing) {
    // Rows of scales, each row before the one above it, under a setting sun.
    drawing.FadeDown("dusk", 3, 50, "#f7c98b", "#f9ece0");
    drawing.Box(1, 1, 69, 94, 4, "url(#dusk)");
    drawing.Disc(MiddleX, 33, 15, "#e2583e");
    drawing.Line("M8 18H24M11 21.6H19M47 13H63M52 16.6H60", "#fffaf0", 1.2, 0.9);
    constexpr double Step = (PanelRight - PanelLeft) / 5;
    constexpr double Radius = Step / 2;
    for (int row = 0; row < 9; ++row) {
        const double y = 40 + row * 6.6;
        for (int column = 0; column <= 5; ++column) {
            const double x = PanelLeft + column * Step + (row % 2 == 0 ? Radius : 0.0);
            if (x > PanelRight + 0.1) continue;
            drawing.Disc(x, y, Radius, "#f4faf9");
            drawing.Disc(x, y, Radius - 0.7, row % 3 == 0 ? "#2a6f97" : row % 3 == 1 ? "#2c7da0" : "#468faf");
            drawing.Ring(x, y, Radius - 2.1, "#f4faf9", 0.7);
            drawing.Disc(x, y, Radius - 3.8, "#f4faf9");
        }
    }
    // Above the first row nothing of the discs' lower halves may show below the last.
    drawing.Box(PanelLeft, 95, PanelRight - PanelLeft, 1, 0, "#2c7da0");
}

}  // namespace BackMotifs
