// Card backs "Geometry": patterns of straight lines and stars.
#include <array>
#include <numbers>
#include <string>
#include <vector>

#include <fmt/format.h>

#include "BackMotifs.h"
#include "Drawing.h"
#include "Shapes.h"

namespace BackMotifs {

void Lozenges(Drawing& drawing) {
    constexpr int Columns = 5;
    constexpr int Rows = 7;
    constexpr double StepX = (PanelRight - PanelLeft) / Columns;
    constexpr double StepY = (PanelBottom - PanelTop) / Rows;
    std::string outer, inner, cores;
    const auto add = [](std::string& path, double x, double y, double scale) {
        path += fmt::format("M{} {}l{} {}l{} {}l{} {}Z", Num(x), Num(y - StepY / 2 * scale),
                            Num(StepX / 2 * scale), Num(StepY / 2 * scale), Num(-StepX / 2 * scale),
                            Num(StepY / 2 * scale), Num(-StepX / 2 * scale), Num(-StepY / 2 * scale));
    };
    for (int row = 0; row < Rows; ++row) {
        for (int column = 0; column < Columns; ++column) {
            const double x = PanelLeft + (column + 0.5) * StepX;
            const double y = PanelTop + (row + 0.5) * StepY;
            add(outer, x, y, 0.92);
            add(inner, x, y, 0.58);
            add(cores, x, y, 0.26);
        }
    }
    std::string between;
    for (int row = 1; row < Rows; ++row) {
        for (int column = 1; column < Columns; ++column) {
            add(between, PanelLeft + column * StepX, PanelTop + row * StepY, 0.42);
        }
    }
    drawing.Fill(outer, "#e9eefb");
    drawing.Fill(inner, "#3f66b5");
    drawing.Fill(cores, "#e9eefb");
    drawing.Fill(between, "#e0b64a");
}

void Rosettes(Drawing& drawing) {
    constexpr int Columns = 3;
    constexpr int Rows = 4;
    constexpr double StepX = (PanelRight - PanelLeft) / Columns;
    constexpr double StepY = (PanelBottom - PanelTop) / Rows;
    for (int row = 0; row < Rows; ++row) {
        for (int column = 0; column < Columns; ++column) {
            const double x = PanelLeft + (column + 0.5) * StepX;
            const double y = PanelTop + (row + 0.5) * StepY;
            drawing.Fill(Shapes::Star(x, y, 8, 10.3, 7.4), "#e9dcb4");
            drawing.Fill(Shapes::Star(x, y, 8, 8.9, 6.4), "#14757a");
            drawing.Fill(Shapes::Star(x, y, 8, 6.6, 3.4, 22.5), "#e9dcb4");
            drawing.Fill(Shapes::Star(x, y, 8, 4.2, 2.6), "#c8553d");
            drawing.Disc(x, y, 1.2, "#e9dcb4");
        }
    }
    for (int row = 1; row < Rows; ++row) {
        for (int column = 1; column < Columns; ++column) {
            const double x = PanelLeft + column * StepX;
            const double y = PanelTop + row * StepY;
            drawing.Fill(Shapes::Star(x, y, 4, 4.6, 2.2), "#e9dcb4");
            drawing.Fill(Shapes::Star(x, y, 4, 2.8, 1.3), "#c8553d");
        }
    }
}

void Cubes(Drawing& drawing) {
    // Seen from a corner, a cube is a hexagon of three lozenges; the rows interlock.
    constexpr double Half = (PanelRight - PanelLeft) / 10;
    constexpr double Side = Half * 2 / std::numbers::sqrt3;
    std::array<std::string, 3> faces;
    for (int row = -1; row < 9; ++row) {
        for (int column = 0; column <= 5; ++column) {
            const double x = PanelLeft + column * 2 * Half + (row % 2 == 0 ? Half : 0.0);
            const double y = PanelTop + row * 1.5 * Side + Side;
            const auto add = [x, y](std::string& path, const std::vector<Shapes::Corner>& corners) {
                std::vector<Shapes::Corner> placed;
                for (const auto& corner : corners)
                    placed.push_back({x + corner.X * Half, y + corner.Y * Side});
                path += Shapes::Cut(placed, PanelLeft - 1, PanelTop - 1, PanelRight + 1, PanelBottom + 1);
            };
            add(faces[0], {{0, -1}, {1, -0.5}, {0, 0}, {-1, -0.5}});
            add(faces[1], {{0, 0}, {-1, -0.5}, {-1, 0.5}, {0, 1}});
            add(faces[2], {{0, 0}, {1, -0.5}, {1, 0.5}, {0, 1}});
        }
    }
    drawing.Fill(faces[0], "#d9c2ee");
    drawing.Fill(faces[1], "#8e5cb5");
    drawing.Fill(faces[2], "#55297a");
}

}  // namespace BackMotifs
