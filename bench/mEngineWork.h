// The pieces of the engine's work that are timed, and counted in instructions.
#pragma once

#include <cstddef>

#include "engine/commands/mGen.h"
#include "tools/RandomPlayer.h"

namespace mEngineWork {

/// A game of 104 cards, of which 44 lie on the tableau.
inline void Deal(mGen::AsideGame& aside, long number) { aside.Deal("Spider", static_cast<double>(number)); }

/// One game at random, of four kinds in turn, with 1000 actions. Answers how many cards it moved: played
/// moves, autoplay, stock, Undo and Redo, and the deal.
long Play(RandomPlayer& player, long number);

/// The rules pages of the whole catalogue, as HTML, with their comparisons. Answers their bytes.
std::size_t Pages();

}  // namespace mEngineWork
