// The names of single pictures, and the colours by their numbers.
#include "engine/state/mAssets.h"

#include <algorithm>

namespace mAssets {

std::string MemberName(const PictureGroup& group, int member) {
    return std::string(group.Name) + " 0" + std::to_string(member);
}

std::span<const NamedColor> ListedColors() { return std::span(Colors).first(ListedCount); }

const NamedColor* GetCol(int id) {
    const auto found =
        std::find_if(Colors.begin(), Colors.end(), [id](const NamedColor& color) { return color.Id == id; });
    return found == Colors.end() ? nullptr : &*found;
}

}  // namespace mAssets
