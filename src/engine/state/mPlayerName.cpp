// The rules for the names of players.
#include "engine/state/mPlayerName.h"

#include "engine/state/mText.h"

namespace mPlayerName {

std::string Fault(std::string_view name) {
    constexpr std::size_t MostBytes = 200;
    if (name.empty()) return "A player needs a name.";
    if (mText::IsBlank(name)) return "A name of blanks alone cannot be seen.";
    if (name == "." || name == "..") return "This is the name of a folder.";
    // Both separators: the files may be carried to a system that uses the other one.
    for (const char separator : {'/', '\\'}) {
        if (name.find(separator) == std::string_view::npos) continue;
        return std::string("A file name cannot hold the character ") + separator + " .";
    }
    if (mText::HasControl(name) || !mText::IsUtf8(name))
        return "A file name cannot hold a control character.";
    if (name.size() > MostBytes) return "This name is too long for a file.";
    return {};
}

}  // namespace mPlayerName
