// What the eleven family tables have in common: listing their games and finding one by its name.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <iterator>
#include <string>
#include <string_view>
#include <tuple>
#include <type_traits>
#include <utility>
#include <vector>

#include "engine/catalogue/definition.h"
#include "engine/state/cData.h"
#include "engine/state/cGames.h"

namespace mFamily {

/// Adds a family to the catalogue, in the order of its table.
template <typename Games>
void List(const char* group, const Games& games) {
    std::vector<GameEntry> members;
    members.reserve(games.size());
    for (const Definition& game : games) members.push_back({std::string(game.Name), game.Original});
    gData->SetGames(group, members);
}

/// Fills gGames with the game of that name; a name of another family changes nothing.
template <typename Games>
void Set(const std::string& name, const Games& games) {
    const auto game = std::find_if(games.begin(), games.end(),
                                   [&](const Definition& candidate) { return candidate.Name == name; });
    if (game != games.end()) mDefine::Apply(*game, *gGames);
}

/// A family's table: each row holds the values of these fields of a game, in this order. A field that is
/// neither a column nor among what the family shares is as Definition has it.
template <auto... Fields>
struct Table {
    using Row = std::tuple<std::remove_cvref_t<decltype(std::declval<Definition>().*Fields)>...>;
    template <std::size_t Count>
    using Rows = std::array<Row, Count>;

    /// Whole games: what the family shares, and each row's own values.
    template <std::size_t Count>
    static constexpr std::array<Definition, Count> Complete(const Definition& shared,
                                                            const Rows<Count>& rows) {
        std::array<Definition, Count> games{};
        for (std::size_t i = 0; i < Count; ++i) {
            games[i] = shared;
            std::apply([&](const auto&... values) { ((games[i].*Fields = values), ...); }, rows[i]);
        }
        return games;
    }
};

/// The first fault of a table, as texts that a message of the compiler can show.
struct Fault {
    char Game[40] = {};
    char Field[40] = {};

    constexpr Fault() = default;
    constexpr Fault(std::string_view game, std::string_view field) {
        std::copy_n(game.begin(), std::min(game.size(), std::size(Game) - 1), Game);
        std::copy_n(field.begin(), std::min(field.size(), std::size(Field) - 1), Field);
    }
};

template <typename Games>
consteval Fault FirstFault(const Games& games) {
    for (auto game = games.begin(); game != games.end(); ++game) {
        if (const char* field = mDefine::FaultOf(*game)) return {game->Name, field};
        if (std::any_of(games.begin(), game,
                        [&](const Definition& other) { return other.Name == game->Name; })) {
            return {game->Name, "Name, which another row has"};
        }
    }
    return {};
}

/// Every family's table asks for `Sound<FirstFault(games)>::All`.
template <Fault First>
struct Sound {
    static_assert(First.Field[0] == 0, "a game, named above with the field, has a value that cannot be");
    static constexpr bool All = true;
};

template <typename Games>
constexpr int Originals(const Games& games) {
    return static_cast<int>(
        std::count_if(games.begin(), games.end(), [](const Definition& game) { return game.Original; }));
}

}  // namespace mFamily
