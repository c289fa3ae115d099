// The letterforms and their widths.
#include "Lettering.h"

#include <algorithm>
#include <array>
#include <stdexcept>
#include <string>

#include "Drawing.h"

namespace {

struct Letter {
    char Name;
    double Width;
    std::string_view Path;
};

// clang-format off
constexpr std::array<Letter, 9> Letters = {{
    {'A', 7.6, "M0 10L3.8 0L7.6 10M1.5 6.6H6.1"},
    {'D', 7.0, "M0.4 0V10M0.4 0H2.4C9.2 0 9.2 10 2.4 10H0.4"},
    {'E', 5.4, "M5.4 0H0.4V10H5.4M0.4 4.8H4.4"},
    {'I', 0.8, "M0.4 0V10"},
    {'L', 5.0, "M0.4 0V10H5"},
    {'N', 7.0, "M0.4 10V0L6.6 10V0"},
    {'R', 6.4, "M0.4 10V0H3C7.4 0 7.4 5.4 3 5.4H0.4M3 5.4L6.4 10"},
    {'T', 7.0, "M0 0H7M3.5 0V10"},
    {'V', 7.6, "M0 0L3.8 10L7.6 0"},
}};
// clang-format on

constexpr double Gap = 2.4;

const Letter& Find(char name) {
    const auto letter = std::find_if(Letters.begin(), Letters.end(),
                                     [name](const Letter& entry) { return entry.Name == name; });
    if (letter == Letters.end()) throw std::out_of_range("no such letter");
    return *letter;
}

}  // namespace

namespace Lettering {

void DrawWord(Drawing& drawing, std::string_view word, double x, double y, double scale, double pen,
              std::string_view color) {
    double width = -Gap;
    for (const char name : word) width += Find(name).Width + Gap;
    double left = x - width * scale / 2;
    for (const char name : word) {
        const Letter& letter = Find(name);
        drawing.OpenGroup(Placed(left, y, scale));
        drawing.Line(letter.Path, color, pen / scale);
        drawing.CloseGroup();
        left += (letter.Width + Gap) * scale;
    }
}

}  // namespace Lettering
