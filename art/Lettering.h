// Capital letters as lines, for the few words that pictures show.
#pragma once

#include <string_view>

class Drawing;

namespace Lettering {

/// Draws a word of the letters A D E I L N R T V, centred on x with its top at y. A letter is 10 units
/// high, times `scale`; `pen` is the line's width in units of the drawing.
void DrawWord(Drawing& drawing, std::string_view word, double x, double y, double scale, double pen,
              std::string_view color);

}  // namespace Lettering
