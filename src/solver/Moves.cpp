// The player's moves, by the rules alone.
#include "solver/Moves.h"

namespace Solver {

namespace {

void AddTargets(const Position& position, int from, int count, std::vector<Move>& moves) {
    const Rules& rules = position.Game();
    const int kind = KindOf(position.At(from, position.Count(from) - count).Card);
    const auto add = [&](int to) {
        moves.push_back({Move::Kind::Play, static_cast<std::uint8_t>(from), static_cast<std::uint8_t>(to),
                         static_cast<std::uint8_t>(count)});
    };
    for (int to = FirstHome; to < FirstHome + rules.HomePiles; ++to) {
        // A pile that is lifted whole still counts as the source, and takes nothing from itself.
        if (to != from && position.HomeAccepts(kind, from, to)) add(to);
    }
    for (int to = FirstRes; to < FirstRes + rules.ResPiles; ++to) {
        if (position.ResAccepts(to, count)) add(to);
    }
    for (int to = FirstGoal; count == 1 && to < FirstGoal + rules.GoalPiles; ++to) {
        if (position.GoalAccepts(kind, to)) add(to);
    }
}

}  // namespace

std::vector<Move> LegalMoves(const Position& position) {
    const Rules& rules = position.Game();
    std::vector<Move> moves;
    for (int from = FirstHome; from < FirstHome + rules.HomePiles; ++from) {
        for (int count = 1; count <= position.LiftableCards(from); ++count) {
            if (position.IsLiftable(from, count)) AddTargets(position, from, count, moves);
        }
    }
    const auto addTop = [&](int from) {
        if (!position.IsEmpty(from)) AddTargets(position, from, 1, moves);
    };
    for (int from = FirstRes; from < FirstRes + rules.ResPiles; ++from) addTop(from);
    // Complete runs may go to foundation piles that the game does not show.
    for (int from = FirstGoal; rules.Returns && from < StockPile; ++from) addTop(from);
    addTop(WastePile);
    if (rules.OpenStock) {
        addTop(StockPile);
    } else if (!position.IsEmpty(StockPile)) {
        moves.push_back({.What = Move::Kind::Press});
    }
    // A card on the stock covers its marker.
    if (position.IsEmpty(StockPile) && position.RedealAllowed())
        moves.push_back({.What = Move::Kind::Redeal});
    return moves;
}

}  // namespace Solver
