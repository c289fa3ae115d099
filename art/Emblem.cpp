// The application's icon and the splash picture: cards before a mountain lake.
#include <initializer_list>
#include <string>
#include <tuple>
#include <utility>

#include <fmt/format.h>

#include "Drawing.h"
#include "Lettering.h"
#include "Pictures.h"
#include "Shapes.h"

namespace {

void DrawShadow(Drawing& drawing) {
    drawing.Box(1.4, 2, Shapes::CardWidth, Shapes::CardHeight, Shapes::CardRadius, "#000000", 0.25);
}

// An Ace whose index can be read on an icon; the origin is the card's middle.
void DrawSimpleAce(Drawing& drawing, int suit, const std::string& transform) {
    const std::string_view color = Shapes::SuitColor(suit);
    drawing.OpenGroup(transform);
    drawing.OpenGroup("translate(-35.5 -48)");
    DrawShadow(drawing);
    Shapes::DrawCard(drawing);
    Shapes::DrawCardEdge(drawing);
    for (const std::string_view turn : {"", "rotate(180 35.5 48)"}) {
        drawing.OpenGroup(turn);
        Shapes::DrawRank(drawing, 0, 4, 4.5, 1.25, color);
        drawing.Use(Pictures::SuitName(suit), Placed(9.2, 24, 0.11), color);
        drawing.CloseGroup();
    }
    drawing.Use(Pictures::SuitName(suit), Placed(35.5, 48, 0.36), color);
    drawing.CloseGroup();
    drawing.CloseGroup();
}

void DefineSuits(Drawing& drawing) {
    for (int suit = 0; suit < 4; ++suit) Pictures::DefineSuit(drawing, suit);
}

void DrawIconGround(Drawing& drawing) {
    drawing.FadeDown("sky", 2, 42, "#2b4a8f", "#f0a76f");
    drawing.FadeDown("lake", 40, 62, "#5f86a8", "#1d3763");
    drawing.Box(2, 2, 60, 60, 13, "url(#sky)");
    drawing.Fill("M2 42L2 29L10 17L20 31L34 22L45 30L55 15L62 25L62 42Z", "#41527f");
    drawing.Fill("M10 17L14.4 23.2L10.4 22.4L6.2 22.7ZM55 15L59.6 21.6L54.6 21L49.8 22.8Z", "#fdf3e6");
    drawing.Fill("M2 41H62V49A13 13 0 0 1 49 62H15A13 13 0 0 1 2 49Z", "url(#lake)");
}

constexpr double SplashWidth = 480;
constexpr double SplashHeight = 300;

void DrawLandscape(Drawing& drawing) {
    drawing.FadeDown("sky", 0, 190, "#1d2f63", "#f0a36b");
    drawing.Box(0, 0, SplashWidth, SplashHeight, 0, "url(#sky)");
    drawing.Disc(438, 104, 20, "#fdf0cf");
    for (const auto& [x, y, radius] :
         std::initializer_list<std::tuple<double, double, double>>{{40, 96, 1.2},
                                                                   {74, 70, 1},
                                                                   {22, 62, 1.1},
                                                                   {66, 112, 0.9},
                                                                   {404, 66, 1.2},
                                                                   {460, 70, 1},
                                                                   {408, 122, 0.9}}) {
        drawing.Disc(x, y, radius, "#fff6da");
    }
    // The peaks and stars keep clear of the title above them.
    drawing.Fill("M0 196L0 160L50 134L92 156L150 133L214 166L262 142L330 174L392 138L480 176L480 196Z",
                 "#5b5f8c");
    drawing.Fill(
        "M150 133L169 144L158 143L150 149L141 143L130 141ZM50 134L63 141L52 142L38 140ZM392 138L410 146L394 "
        "148L379 146Z",
        "#f6e3d8");
    drawing.Fill("M0 196L0 176C60 158 120 172 180 180C260 190 340 160 480 180L480 196Z", "#2f4a5c");
    drawing.FadeDown("lake", 192, 300, "#c98a72", "#1b2f57");
    drawing.Box(0, 192, SplashWidth, 108, 0, "url(#lake)");
    drawing.Fill("M0 196L0 230L50 252L92 236L150 270L214 226L262 246L330 218L392 250L480 214L480 196Z",
                 "#3a3d68", 0.5);
    drawing.Line("M20 214H90M400 222H462M60 240H120M370 250H420M14 266H60M360 206H392M416 244H452", "#f3c7a0",
                 1.4, 0.6);
}

// Strings of flags between the upper corners.
void DrawBunting(Drawing& drawing) {
    constexpr int Flags = 18;
    constexpr std::string_view Colors[] = {"#d8433c", "#f0b93a", "#3f8fc0", "#4fa36a", "#fdf6e4"};
    const auto sag = [](double x) { return 8 + 30 * (1 - (x - 240) * (x - 240) / (240.0 * 240.0)); };
    std::string cord = "M0 8";
    for (int i = 1; i <= 24; ++i) cord += fmt::format("L{} {}", Num(i * 20), Num(sag(i * 20)));
    drawing.Line(cord, "#fdf6e4", 1.2);
    for (int i = 0; i < Flags; ++i) {
        const double left = 4 + i * 26.4;
        const double right = left + 20;
        drawing.Fill(fmt::format("M{} {}L{} {}L{} {}Z", Num(left), Num(sag(left)), Num(right),
                                 Num(sag(right)), Num((left + right) / 2), Num(sag((left + right) / 2) + 20)),
                     Colors[i % 5]);
    }
}

}  // namespace

namespace Pictures {

std::string ApplicationIcon() {
    Drawing drawing(64, 64);
    DefineSuits(drawing);
    DrawIconGround(drawing);
    DrawSimpleAce(drawing, 0, Placed(24.5, 36, 0.42, -15));
    DrawSimpleAce(drawing, 1, Placed(39, 37.5, 0.42, 11));
    return drawing.Text();
}

std::string SmallApplicationIcon() {
    // What stays of the picture at sixteen pixels: one card on which only the suit is drawn, its edges and
    // those of the ground on whole pixels, four units each.
    Drawing drawing(64, 64);
    drawing.OpenGroup("scale(1.06667) translate(-2 -2)");
    DrawIconGround(drawing);
    drawing.CloseGroup();
    drawing.Box(16, 4, 32, 56, 4, Shapes::Paper);
    drawing.OpenGroup(Placed(32, 32, 0.28));
    drawing.Fill(Shapes::Suit(1), Shapes::Ink);
    drawing.CloseGroup();
    return drawing.Text();
}

std::string Splash() {
    Drawing drawing(SplashWidth, SplashHeight);
    DefineSuits(drawing);
    DrawLandscape(drawing);
    DrawBunting(drawing);
    struct Place {
        int Suit, Rank;
        double X, Y, Turn;
    };
    // A hand of five, the outer cards below: the Queen in the middle lies on top.
    for (const auto& [suit, rank, x, y, turn] :
         {Place{3, 10, 152, 226, -28}, Place{1, 0, 328, 226, 28}, Place{2, 12, 195, 211, -14},
          Place{2, 9, 285, 211, 14}, Place{0, 11, 240, 204, 0}}) {
        drawing.OpenGroup(Placed(x, y, 1, turn));
        drawing.OpenGroup(Placed(-Shapes::CardWidth / 2, -Shapes::CardHeight / 2, 1));
        DrawShadow(drawing);
        DrawFace(drawing, suit, rank);
        drawing.CloseGroup();
        drawing.CloseGroup();
    }
    Lettering::DrawWord(drawing, "TARNIVAL", SplashWidth / 2 + 1.5, 74.5 + 2, 4.4, 8, "#18244c");
    Lettering::DrawWord(drawing, "TARNIVAL", SplashWidth / 2, 74.5, 4.4, 6.4, "#fff3d6");
    return drawing.Text();
}

}  // namespace Pictures
