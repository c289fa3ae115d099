// What must hold of the card table after every action, and pictures of it to compare.
#pragma once

#include <functional>
#include <string>
#include <vector>

/// Where one card lies and how it shows.
struct CardPlace {
    int Cell = 0, Pile = 0, Pos = 0;
    int FaceMode = 0;
    int Left = 0, Top = 0;
    bool Visible = false;
    bool operator==(const CardPlace&) const = default;
};

namespace mChecks {

/// The first fault of the card table of the running game; empty where all is well: each card exactly
/// once, tables and records agree, tops, faces, coordinates inside 16 bits, cards in front of those
/// below them, no foundation above its limit, no card on a pile that the game has not.
[[nodiscard]] std::string TableFault();

/// All cards of the game.
[[nodiscard]] std::vector<CardPlace> Places();

/// The first difference of two tables, empty where they are equal. The coordinates of a card for which
/// `loose` is true are not compared.
[[nodiscard]] std::string Difference(const std::vector<CardPlace>& expected,
                                     const std::vector<CardPlace>& found,
                                     const std::function<bool(int)>& loose);

}  // namespace mChecks
