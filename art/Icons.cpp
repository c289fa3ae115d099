// The icons on a grid of 16 units: shapes end on whole units so that they are crisp at 16 pixels. The colours
// are of middle lightness: they stand out on a light toolbar as well as on a dark one.
#include <algorithm>
#include <array>
#include <stdexcept>

#include "Drawing.h"
#include "Pictures.h"
#include "Shapes.h"

namespace {

constexpr std::string_view Blue = "#3d85d0";
constexpr std::string_view Green = "#35a35c";
constexpr std::string_view Orange = "#ea9a2a";
constexpr std::string_view Red = "#dc4a4a";
constexpr std::string_view Violet = "#9266c8";
constexpr std::string_view Gray = "#848e9a";
constexpr std::string_view White = "#ffffff";

void DrawCard(Drawing& drawing, double left, double top, double width, double height) {
    drawing.Box(left, top, width, height, 1.5, Gray);
    drawing.Box(left + 1, top + 1, width - 2, height - 2, 0.6, White);
}

void DrawSuit(Drawing& drawing, int suit, double x, double y, double size) {
    drawing.OpenGroup(Placed(x, y, size / 100));
    drawing.Fill(Shapes::Suit(suit), suit % 2 == 0 ? "#d62f3b" : "#2c3440");
    drawing.CloseGroup();
}

/// A blue shape for lists, whose selected row is blue on most desktops too: there a light edge shows it.
void OnSelection(Drawing& drawing, std::string_view path) { drawing.Shape(path, Blue, White, 1); }

void NewGame(Drawing& drawing) {
    DrawCard(drawing, 1, 1, 10, 14);
    DrawSuit(drawing, 1, 6, 6, 6);
    drawing.Disc(11.5, 11.5, 4.5, White);
    drawing.Disc(11.5, 11.5, 3.9, Green);
    drawing.SharpLine("M11.5 9V14M9 11.5H14", White, 1.4);
}

void SelectGame(Drawing& drawing) {
    drawing.Box(1, 1, 4, 4, 0.6, Red);
    drawing.Box(1, 6, 4, 4, 0.6, Green);
    drawing.Box(1, 11, 4, 4, 0.6, Orange);
    drawing.SharpLine("M7 3H15M7 8H15M7 13H15", Blue, 2);
}

void RestartGame(Drawing& drawing) {
    drawing.SharpLine("M12.6 4.6A5.7 5.7 0 1 0 13.7 8.5", Blue, 2.2);
    drawing.Fill("M15 0.8V7H8.8Z", Blue);
}

void Autoplay(Drawing& drawing) {
    DrawCard(drawing, 1, 1, 10, 14);
    drawing.Fill("M11.4 1.6L4.6 9.2H8.6L6.4 15L14.6 6.6H10.2Z", White);
    drawing.Fill("M10.6 2.6L5.8 8.4H9.8L7.8 13.4L13.4 7.3H9.2Z", Orange);
    drawing.Line("M10.6 2.6L5.8 8.4H9.8L7.8 13.4L13.4 7.3H9.2Z", Orange, 0.8);
}

void Undo(Drawing& drawing) {
    drawing.SharpLine("M5 6H10A3.5 3.5 0 0 1 10 13H5", Blue, 2.2);
    drawing.Fill("M7 1V11L1 6Z", Blue);
}

void Redo(Drawing& drawing) {
    drawing.OpenGroup("translate(16 0) scale(-1 1)");
    Undo(drawing);
    drawing.CloseGroup();
}

void ReplayBack(Drawing& drawing) { drawing.Fill("M13 1.5V14.5L2.5 8Z", Blue); }

void ReplayForward(Drawing& drawing) { drawing.Fill("M3 1.5V14.5L13.5 8Z", Blue); }

void ReplayStop(Drawing& drawing) { drawing.Box(3, 3, 10, 10, 1, Red); }

void Statistics(Drawing& drawing) {
    drawing.Box(2, 8, 3, 6, 0.4, Green);
    drawing.Box(6, 5, 3, 9, 0.4, Orange);
    drawing.Box(10, 2, 3, 12, 0.4, Blue);
    drawing.SharpLine("M1 14.5H15", Gray, 1);
}

void Help(Drawing& drawing) {
    drawing.Disc(8, 8, 7, Blue);
    drawing.SharpLine("M5.6 6.4C5.6 4.6 6.6 3.8 8 3.8C9.5 3.8 10.5 4.7 10.5 6C10.5 7.8 8 7.8 8 9.8", White,
                      1.7);
    drawing.Disc(8, 12, 1.1, White);
}

void Group(Drawing& drawing) {
    drawing.Fill("M1 4A1 1 0 0 1 2 3H6L7.5 5H14A1 1 0 0 1 15 6V13A1 1 0 0 1 14 14H2A1 1 0 0 1 1 13Z",
                 "#d9902a");
    drawing.Box(3, 4, 10, 6, 0.6, White);
    drawing.Fill("M1 6H15V13A1 1 0 0 1 14 14H2A1 1 0 0 1 1 13Z", "#f2b54a");
    drawing.OpenGroup(Placed(8, 10, 0.062));
    drawing.Fill(Shapes::Suit(1), "#7a4c12");
    drawing.CloseGroup();
}

void Game(Drawing& drawing) {
    DrawCard(drawing, 3, 1, 10, 14);
    DrawSuit(drawing, 2, 8, 8, 8);
}

void Player(Drawing& drawing) {
    drawing.Disc(8, 4.6, 3.6, "#e3a36f");
    OnSelection(drawing, "M1.5 15C1.5 11 4.4 9 8 9C11.6 9 14.5 11 14.5 15Z");
}

void Date(Drawing& drawing) {
    drawing.Box(1, 2, 14, 13, 1, Gray);
    drawing.Box(2, 6, 12, 8, 0.3, White);
    drawing.SharpLine("M2 4.5H14", Red, 3);
    drawing.SharpLine("M5 1V4M11 1V4", Gray, 1.4);
    drawing.SharpLine("M4 8.5H6M7 8.5H9M10 8.5H12M4 11.5H6M7 11.5H9", Blue, 2);
}

void Deck(Drawing& drawing) {
    DrawCard(drawing, 3, 1, 10, 14);
    drawing.Box(5, 3, 6, 10, 0.3, Red);
    drawing.SharpLine("M5 3L11 8L5 13M11 3L5 8L11 13", White, 0.9);
}

void Background(Drawing& drawing) {
    drawing.Box(1, 2, 14, 12, 1, Gray);
    drawing.Box(2, 3, 12, 10, 0.3, "#bfe0f5");
    drawing.Disc(5, 6, 1.4, Orange);
    drawing.Fill("M2 13V11L6 8L8.4 10L11 6.4L14 10V13Z", Green);
}

void Sound(Drawing& drawing) {
    OnSelection(drawing, "M1 6H4L8 2V14L4 10H1Z");
    drawing.Line("M10.4 5.6C11.6 7 11.6 9 10.4 10.4M12.4 3.6C14.8 6 14.8 10 12.4 12.4", Orange, 1.5);
}

void Favorite(Drawing& drawing) { drawing.Fill(Shapes::Star(8, 8.6, 5, 7.6, 3.3), Orange); }

void Move(Drawing& drawing) {
    DrawCard(drawing, 1, 3, 7, 10);
    drawing.SharpLine("M6 8H11", Violet, 2.2);
    drawing.Fill("M10 4L15 8L10 12Z", Violet);
}

struct IconEntry {
    std::string_view Name;
    void (*Draw)(Drawing& drawing);
};

constexpr std::array<IconEntry, 20> Icons = {{
    // The toolbar, in its order.
    {"new-game", NewGame},
    {"select-game", SelectGame},
    {"restart-game", RestartGame},
    {"autoplay", Autoplay},
    {"undo", Undo},
    {"redo", Redo},
    {"replay-back", ReplayBack},
    {"replay-stop", ReplayStop},
    {"replay-forward", ReplayForward},
    {"statistics", Statistics},
    {"help", Help},
    // Trees, lists and combo boxes.
    {"group", Group},
    {"game", Game},
    {"player", Player},
    {"date", Date},
    {"deck", Deck},
    {"background", Background},
    {"sound", Sound},
    {"favorite", Favorite},
    {"move", Move},
}};

}  // namespace

namespace Pictures {

std::span<const std::string_view> IconNames() {
    static const auto Names = [] {
        std::array<std::string_view, Icons.size()> names;
        std::transform(Icons.begin(), Icons.end(), names.begin(),
                       [](const IconEntry& icon) { return icon.Name; });
        return names;
    }();
    return Names;
}

std::string Icon(std::string_view name) {
    const auto icon = std::find_if(Icons.begin(), Icons.end(),
                                   [name](const IconEntry& entry) { return entry.Name == name; });
    if (icon == Icons.end()) throw std::out_of_range("no such icon");
    constexpr double Grid = 16;
    Drawing drawing(Grid, Grid);
    icon->Draw(drawing);
    return drawing.Text();
}

}  // namespace Pictures
