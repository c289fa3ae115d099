// What the bot can do in a position: cards to other piles, the stock, a redeal.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

struct BotMove {
    enum class Kind : std::uint8_t { Drag, StockPress, StockClick } What = Kind::Drag;
    std::int8_t Cell = 0;  ///< of a drag: where to
    std::int8_t Pile = 0;
    std::int16_t PicID = -1;  ///< of a drag or a press
};

namespace mBotMoves {

/// All moves that the rules allow in the running game, but for those that lead nowhere: a whole pile to
/// an empty one, and to a second empty place what can go to the first.
[[nodiscard]] std::vector<BotMove> All();

/// Makes the move where a drop and a press end up, without a mouse.
void Make(const BotMove& move);

/// Makes the move with the mouse, as a player does, and returns the command of tarnival-lab for it.
std::string Play(const BotMove& move);

}  // namespace mBotMoves
