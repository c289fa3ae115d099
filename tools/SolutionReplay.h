// The solver's wins played by the engine itself, with the mouse.
#pragma once

#include <string>
#include <variant>
#include <vector>

#include "engine/outside/memorylayer.h"
#include "solver/Position.h"

/// A running engine of its own. Only one can live at a time.
class SolutionReplay {
public:
    explicit SolutionReplay(bool autoplay);
    ~SolutionReplay();
    SolutionReplay(const SolutionReplay&) = delete;
    SolutionReplay& operator=(const SolutionReplay&) = delete;

    /// A game number, or a deck.
    using Deal = std::variant<double, std::vector<int>>;

    /// Plays the moves on a fresh deal. Whether they win, to the last move.
    bool Wins(const std::string& game, const Deal& deal, const std::vector<Solver::Move>& moves);
    /// What was played last, as lines for a fresh tarnival-lab.
    [[nodiscard]] const std::vector<std::string>& Lines() const { return lines_; }

private:
    MemoryLayer layer_;
    bool autoplay_;
    std::vector<std::string> lines_;
};
