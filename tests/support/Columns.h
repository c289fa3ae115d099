// The numbers of a game, column by column: to compare games and to mix them.
#pragma once

#include <tuple>
#include <utility>

#include "engine/catalogue/definition.h"

/// All of a row but its name, its flag and its places.
template <typename Game>
auto Columns(Game& game) {
    return std::tie(game.HomePiles, game.HomeCards, game.HomeOpen, game.HomeOrder, game.HomeMulti,
                    game.HomeAK, game.HomeFill, game.HomeMove, game.HomePattern, game.Suits, game.GoalPiles,
                    game.GoalCards, game.GoalOrder, game.GoalBase, game.GoalAK, game.GoalUpDown,
                    game.StockPress, game.StockMark, game.StockKind, game.Waste, game.ResPiles, game.ResCards,
                    game.ResNum, game.Deck, game.Redeals, game.NoAuto, game.GoalDiv, game.Kind, game.Refill,
                    game.Redeal, game.MoveKings, game.Tag, game.MaxCards, game.NoH2H);
}

inline constexpr std::size_t ColumnCount = std::tuple_size_v<decltype(Columns(std::declval<Definition&>()))>;

/// Gives a game the value that another has in one column.
inline void CopyColumn(std::size_t column, const Definition& from, Definition& to) {
    const auto copy = [&]<std::size_t... I>(std::index_sequence<I...>) {
        ((I == column ? void(std::get<I>(Columns(to)) = std::get<I>(Columns(from))) : void()), ...);
    };
    copy(std::make_index_sequence<ColumnCount>());
}
