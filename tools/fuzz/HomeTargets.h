// What arbitrary bytes are given to on a real disk: the settings file as a whole, and a home folder full of
// anything. As in Targets.h; apart from it, since the settings file needs Qt.
#pragma once

#include <array>
#include <string_view>

#include "tools/fuzz/Targets.h"

namespace mFuzz {

/// As the settings file: the program starts, plays and changes a setting, and what was there is still there.
void SettingsFile(std::string_view bytes);
/// As a list of what lies in the folders of records and settings, a letter and a name each: pipes, folders,
/// sockets, devices, links, files without rights, too large or of these very bytes. The program uses all of
/// it and comes to an end.
void Home(std::string_view bytes);

inline constexpr std::array<Target, 2> HomeTargets{{
    {"settingsfile", SettingsFile},
    {"home", Home},
}};

}  // namespace mFuzz
