// What the eleven family tables have in common: listing their games and finding one by its name.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "catalogue/definition.h"
#include "shell/cData.h"

namespace mFamily {

/// Adds a family to the catalogue, in the order of its table.
template <typename Table>
void List(const char* group, const Table& games) {
    std::vector<GameEntry> members;
    members.reserve(games.size());
    for (const Definition& game : games) members.push_back({std::string(game.Name), game.Original});
    gData->SetGames(group, members);
}

/// Fills gGames with the game of that name; a name of another family changes nothing.
template <typename Table>
void Set(const std::string& name, const Table& games) {
    const auto game = std::find_if(games.begin(), games.end(),
                                   [&](const Definition& candidate) { return candidate.Name == name; });
    if (game != games.end()) mDefine::Apply(*game);
}

/// Turns a family's own rows into whole games, at compile time.
template <typename Row, std::size_t Count, typename Complete>
constexpr std::array<Definition, Count> CompleteAll(const std::array<Row, Count>& rows, Complete complete) {
    std::array<Definition, Count> games{};
    for (std::size_t i = 0; i < Count; ++i) games[i] = complete(rows[i]);
    return games;
}

template <typename Table>
constexpr bool AllSound(const Table& games) {
    return std::all_of(games.begin(), games.end(), mDefine::IsSound);
}

template <typename Table>
constexpr bool NamesDiffer(const Table& games) {
    for (auto game = games.begin(); game != games.end(); ++game) {
        if (std::any_of(games.begin(), game,
                        [&](const Definition& other) { return other.Name == game->Name; })) {
            return false;
        }
    }
    return true;
}

template <typename Table>
constexpr int Originals(const Table& games) {
    return static_cast<int>(
        std::count_if(games.begin(), games.end(), [](const Definition& game) { return game.Original; }));
}

}  // namespace mFamily
