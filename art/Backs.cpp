// The card backs: the frame that all share, and which motif belongs to which number.
#include <algorithm>
#include <array>
#include <stdexcept>

#include "BackMotifs.h"
#include "Drawing.h"
#include "Pictures.h"
#include "Shapes.h"

namespace {

struct BackEntry {
    int Number;
    std::string_view Ground;  ///< the panel's colour
    std::string_view Border;
    void (*Draw)(Drawing& drawing);
};

// clang-format off
constexpr auto Backs = std::to_array<BackEntry>({
    // Flowers
    {501, "#8e1f35", "#fdf6ec", BackMotifs::Roses},
    {502, "#3f78b5", "#fbfcff", BackMotifs::Daisies},
    {503, "#f7e6c4", "#fffdf6", BackMotifs::Tulips},
    // Garden
    {511, "#2e6b45", "#fbfaf0", BackMotifs::Trellis},
    {512, "#dccb9e", "#f7f9ee", BackMotifs::Parterre},
    // Geometry
    {521, "#243f7d", "#fbfbff", BackMotifs::Lozenges},
    {522, "#0f5f63", "#fbfaf2", BackMotifs::Rosettes},
    {523, "#6d3b8f", "#fdfaff", BackMotifs::Cubes},
    // Misc
    {531, "#a3202c", "#fffaf2", BackMotifs::Scrolls},
    {532, "#1b2552", "#f9f6ea", BackMotifs::SunAndMoon},
    {533, "#f3e9d2", "#fffaf0", BackMotifs::Carnival},
    // Nature
    {541, "#a9d3e8", "#fbfdff", BackMotifs::Tarn},
    {542, "#f0d9a8", "#fffaf0", BackMotifs::AutumnLeaves},
    {543, "#16233f", "#eef0f6", BackMotifs::NightForest},
    {544, "#e8f3f2", "#fbfdfd", BackMotifs::Waves},
});
// clang-format on

}  // namespace

namespace Pictures {

std::span<const int> BackNumbers() {
    static const auto Numbers = [] {
        std::array<int, Backs.size()> numbers{};
        std::transform(Backs.begin(), Backs.end(), numbers.begin(),
                       [](const BackEntry& back) { return back.Number; });
        return numbers;
    }();
    return Numbers;
}

std::string Back(int number) {
    const auto back = std::find_if(Backs.begin(), Backs.end(),
                                   [number](const BackEntry& entry) { return entry.Number == number; });
    if (back == Backs.end()) throw std::out_of_range("no such card back");
    Drawing drawing(Shapes::CardWidth, Shapes::CardHeight);
    Shapes::DrawCard(drawing, back->Ground);
    back->Draw(drawing);
    // The border covers what a motif draws beyond its panel. It is narrow, so that in a closed fan each
    // card's four pixels show the edge, a line of the border, and the panel's colour.
    drawing.Fill(
        "M4.5 0L66.5 0A4.5 4.5 0 0 1 71 4.5L71 91.5A4.5 4.5 0 0 1 66.5 96L4.5 96A4.5 4.5 0 0 1 0 91.5L0 4.5"
        "A4.5 4.5 0 0 1 4.5 0ZM5 2A3 3 0 0 0 2 5L2 91A3 3 0 0 0 5 94L66 94A3 3 0 0 0 69 91L69 5A3 3 0 0 0 66 "
        "2Z",
        back->Border);
    Shapes::DrawCardEdge(drawing);
    return drawing.Text();
}

}  // namespace Pictures
