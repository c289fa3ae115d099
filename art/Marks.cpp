// The pile marks: quiet frames of a card's size. Every shape is light with a darker shadow beside it, so
// that one of the two stands out on any background.
#include <cmath>
#include <numbers>
#include <stdexcept>
#include <string>

#include <fmt/format.h>

#include "Drawing.h"
#include "Lettering.h"
#include "Pictures.h"
#include "Shapes.h"

namespace {

using Shapes::CardHeight;
using Shapes::CardRadius;
using Shapes::CardWidth;

constexpr int LastRank = 12;
constexpr int PlainMark = 13;
constexpr int PlainFrame = 14;
constexpr int NoEntry = 15;
constexpr int Redeal = 16;
constexpr int LightRedeal = 17;

constexpr double MiddleX = CardWidth / 2;
constexpr double MiddleY = CardHeight / 2;

void DrawFrame(Drawing& drawing) {
    drawing.Box(0.5, 0.5, CardWidth - 1, CardHeight - 1, CardRadius, "#000000", 0.15);
    drawing.BoxEdge(0.5, 0.5, CardWidth - 1, CardHeight - 1, CardRadius, "#101418", 1, 0.42);
    drawing.BoxEdge(1.5, 1.5, CardWidth - 3, CardHeight - 3, CardRadius - 1, "#ffffff", 1, 0.62);
}

void DrawRankMark(Drawing& drawing, int rank) {
    constexpr double Scale = 3.1;
    constexpr double BoxWidth = 8.4;
    constexpr double BoxHeight = 9.0;
    constexpr double Narrow = 0.82;  // the letters of an index are wide, to be read when small
    const double left = MiddleX - BoxWidth * Scale * Narrow / 2;
    const double top = MiddleY - BoxHeight * Scale / 2;
    const auto draw = [&](double x, double y, std::string_view color) {
        drawing.OpenGroup(fmt::format("translate({} {}) scale({} 1)", Num(x), Num(y), Num(Narrow)));
        Shapes::DrawRank(drawing, rank, 0, 0, Scale, color);
        drawing.CloseGroup();
    };
    draw(left + 0.9, top + 0.9, "#22282c");
    draw(left, top, "#dfe5e2");
}

void DrawPlainMark(Drawing& drawing) {
    drawing.Ring(MiddleX + 1, MiddleY + 1, 12, "#101418", 2.8, 0.6);
    drawing.Ring(MiddleX, MiddleY, 12, "#ffffff", 2.6, 0.8);
    drawing.Disc(MiddleX, MiddleY, 3.2, "#ffffff", 0.8);
}

void DrawNoEntry(Drawing& drawing) {
    drawing.Disc(MiddleX, MiddleY, 18, "#ffffff", 0.92);
    drawing.Disc(MiddleX, MiddleY, 16.4, "#cf2530");
    drawing.Box(MiddleX - 11, MiddleY - 3.2, 22, 6.4, 1, "#ffffff");
}

// Three arrows that chase each other, and a word, on a light field that keeps them readable.
void DrawRedeal(Drawing& drawing, std::string_view color, double field) {
    drawing.Box(3, 3, CardWidth - 6, CardHeight - 6, CardRadius - 2, "#ffffff", field);
    constexpr double Radius = 14.5;
    const auto at = [](double angle, double radius) {
        const double radians = angle * std::numbers::pi / 180;
        return fmt::format("{} {}", Num(radius * std::cos(radians)), Num(radius * std::sin(radians)));
    };
    const std::string arc =
        fmt::format("M{}A{} {} 0 0 1 {}", at(-152, Radius), Num(Radius), Num(Radius), at(-82, Radius));
    const std::string head =
        fmt::format("M{}L{}L{}Z", at(-84, Radius - 6.2), at(-84, Radius + 6.2), at(-44, Radius + 0.4));
    for (int i = 0; i < 3; ++i) {
        drawing.OpenGroup(Placed(MiddleX, 41, 1, i * 120));
        drawing.SharpLine(arc, color, 5);
        drawing.Fill(head, color);
        drawing.CloseGroup();
    }
    Lettering::DrawWord(drawing, "REDEAL", MiddleX, 74, 0.92, 1.7, color);
}

}  // namespace

namespace Pictures {

std::string Mark(int number) {
    if (number < 0 || number > LightRedeal) throw std::out_of_range("no such mark");
    Drawing drawing(CardWidth, CardHeight);
    DrawFrame(drawing);
    if (number <= LastRank) {
        DrawRankMark(drawing, number);
    } else if (number == PlainMark) {
        DrawPlainMark(drawing);
    } else if (number == NoEntry) {
        DrawNoEntry(drawing);
    } else if (number == Redeal) {
        DrawRedeal(drawing, "#14181c", 0.62);
    } else if (number == LightRedeal) {
        DrawRedeal(drawing, "#6c757c", 0.5);
    } else {
        static_assert(PlainFrame == PlainMark + 1, "what is left is the plain frame");
    }
    return drawing.Text();
}

}  // namespace Pictures
