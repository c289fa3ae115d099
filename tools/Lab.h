// The engine driven by lines of text: one command in, one JSON object out. The settings and the
// records live in memory, and the clock moves only when it is told to.
#pragma once

#include <string>
#include <string_view>

#include "engine/outside/memorylayer.h"

/// One session. The engine's objects are global, so only one can live at a time.
class Lab {
public:
    Lab();
    ~Lab();
    Lab(const Lab&) = delete;
    Lab& operator=(const Lab&) = delete;

    /// Whether the line holds nothing; such a line has no answer.
    [[nodiscard]] static bool IsBlank(std::string_view line);
    /// Carries out one line; the answer is one line without its end.
    [[nodiscard]] std::string Answer(std::string_view line);

    /// The outside of the session.
    MemoryLayer Layer;
};
