// Files that the user chooses to write to: never one that the program itself keeps.
#pragma once

#include <optional>
#include <string>

#include "engine/outside/windowlayer.h"

namespace mOwnFiles {

/// Why a file must not be replaced: it is the program's own, by whatever way it is reached, or protected.
[[nodiscard]] FileError WhyNotReplaced(const std::string& path);

/// Asks for a file to write until one is named that may be; nothing where the user cancels. `what` begins the
/// sentence that refuses a file: "The statistics are".
[[nodiscard]] std::optional<std::string> AskTarget(const std::string& name, const std::string& filter,
                                                   const std::string& what);

}  // namespace mOwnFiles
