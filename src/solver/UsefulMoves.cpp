// Finding the moves worth a look.
#include "solver/UsefulMoves.h"

#include <algorithm>
#include <array>
#include <bit>

namespace Solver {

namespace {

const std::vector<Move> NoChain;

Move Play(int from, int to, int count = 1) {
    return {Move::Kind::Play, static_cast<std::uint8_t>(from), static_cast<std::uint8_t>(to),
            static_cast<std::uint8_t>(count)};
}

/// Calls `visit` for the piles that a card may go to, one of each set of piles that are alike.
template <typename Visit>
void ForTargets(const Position& position, int kind, int from, int count, bool ordered, Visit visit) {
    const Rules& rules = position.Game();
    if (count == 1 && Has(position.GoalTakes(), kind)) {
        for (int to = FirstGoal; to < FirstGoal + rules.GoalPiles; ++to) {
            if (!position.GoalAccepts(kind, to)) continue;
            bool seen = false;
            for (int other = FirstGoal; other < to && !seen && !rules.Autoplay; ++other) {
                seen = position.Top(other).Hash == position.Top(to).Hash &&
                       rules.GoalHalf(other - FirstGoal) == rules.GoalHalf(to - FirstGoal);
            }
            if (!seen) visit(to);
        }
    }
    const auto toCells = [&] {
        if (count != 1 || !rules.FreeCells || IsRes(from)) return;
        for (int to = FirstRes; to < FirstRes + rules.ResPiles; ++to) {
            if (!position.ResAccepts(to, count)) continue;
            visit(to);
            if (!rules.Autoplay) return;
        }
    };
    PileSet piles = position.HomeWith(rules.HomeUnder[static_cast<std::size_t>(kind)]);
    // A pile that is moved whole to an empty place gains nothing.
    const bool whole = IsHome(from) && count == position.Count(from) && !ordered;
    if (!whole && position.EmptyHomeAccepts(kind, from)) {
        const PileSet empty = position.EmptyHomePiles();
        piles |= ordered ? empty : empty & (~empty + 1);  // all, or the first
    }
    for (; piles != 0; piles &= piles - 1) {
        const int to = std::countr_zero(piles);
        if (to != from && position.HomeAccepts(kind, from, to)) visit(to);
    }
    toCells();
}

/// The kinds that some place may take: one look at the table tells that most cards can go nowhere.
KindSet Welcome(const Position& position) {
    const Rules& rules = position.Game();
    if (rules.FreeCells && position.EmptyRes() > 0) return ~KindSet{0};
    KindSet kinds = position.GoalTakes();
    for (KindSet tops = position.HomeTops(); tops != 0; tops &= tops - 1)
        kinds |= rules.HomeFits[static_cast<std::size_t>(std::countr_zero(tops))];
    return position.EmptyHome() > 0 ? kinds | rules.EmptyTakes : kinds;
}

void AddFrom(const Position& position, int from, int count, bool ordered, MoveList& list) {
    const int kind = KindOf(position.At(from, position.Count(from) - count).Card);
    ForTargets(position, kind, from, count, ordered, [&](int to) { list.Add(Play(from, to, count)); });
}

}  // namespace

void UsefulMoves(Position& position, const Dominance& dominance, MoveList& list) {
    const Rules& rules = position.Game();
    const KindSet welcome = Welcome(position);
    // Where piles are served in their order, which pile is which counts.
    const bool ordered = rules.Autoplay || position.DealsOntoPiles();
    if (rules.MultiMove) {
        for (int from = FirstHome; from < FirstHome + rules.HomePiles; ++from) {
            const int most = position.LiftableCards(from);
            for (int count = 1; count <= most; ++count) {
                const int kind = KindOf(position.At(from, position.Count(from) - count).Card);
                if (Has(welcome, kind) && position.IsLiftable(from, count))
                    AddFrom(position, from, count, ordered, list);
            }
        }
    } else {
        for (PileSet piles = position.HomeWith(welcome); piles != 0; piles &= piles - 1)
            AddFrom(position, std::countr_zero(piles), 1, ordered, list);
    }
    for (PileSet piles = position.ResWith(welcome); piles != 0; piles &= piles - 1)
        AddFrom(position, std::countr_zero(piles), 1, ordered, list);
    const bool chained = dominance.ReturnsAreChained(position) && dominance.AddReturns(position, list);
    if (rules.Returns && !chained) {
        for (int from = FirstGoal; from < StockPile; ++from) {
            if (position.IsEmpty(from)) continue;
            const int kind = position.TopKind(from);
            ForTargets(position, kind, from, 1, ordered, [&](int to) {
                if (!IsGoal(to) || dominance.GoalsExchange()) list.Add(Play(from, to));
            });
        }
    }
    if (rules.TalonFree) {
        AddTalonPlays(position, NoChain, list);
        return;
    }
    if (!position.IsEmpty(WastePile)) AddFrom(position, WastePile, 1, ordered, list);
    if (!position.IsEmpty(StockPile)) {
        if (rules.OpenStock) {
            AddFrom(position, StockPile, 1, ordered, list);
        } else {
            list.Add({.What = Move::Kind::Press});
        }
    } else if (position.RedealAllowed()) {
        list.Add({.What = Move::Kind::Redeal});
    }
}

// The talon is a row of cards: the waste from its bottom, then the stock from its top. A press moves the cut
// between them.
void AddTalonPlays(const Position& position, const std::vector<Move>& chain, MoveList& list, int only) {
    const Rules& rules = position.Game();
    const int waste = position.Count(WastePile);
    const int cards = waste + position.Count(StockPile);
    if (cards == 0) return;
    const int step = rules.Press == StockMove::ThreeToWaste ? 3 : 1;
    const auto kindAt = [&](int cut) {
        return KindOf(cut <= waste ? position.At(WastePile, cut - 1).Card
                                   : position.At(StockPile, cards - cut).Card);
    };
    int redealsLeft = 0;
    if (position.RedealAllowed()) {
        redealsLeft = rules.Redeals < 0 || step == 1 ? 1 : rules.Redeals - position.RedealsMade();
    }
    // One card at a time a card that has come once need not be waited for again: the plays that a later round
    // gives can still be reached after the earlier play. By threes the cuts of the second round are those of
    // all later ones, and each costs one redeal more.
    const bool everyRound = step == 3 && rules.Redeals > 0;
    std::array<bool, 106> seen{};
    int presses = 0;
    for (int cut = waste;;) {
        if (cut > 0 && (everyRound || !seen[static_cast<std::size_t>(cut)])) {
            seen[static_cast<std::size_t>(cut)] = true;
            const Move play{Move::Kind::Talon, WastePile, 0, static_cast<std::uint8_t>(presses)};
            const auto add = [&](int to) {
                Move move = play;
                move.To = static_cast<std::uint8_t>(to);
                list.Add(chain, move);
            };
            const int kind = kindAt(cut);
            if (only < 0) {
                ForTargets(position, kind, WastePile, 1, false, add);
            } else if (position.HomeAccepts(kind, WastePile, only)) {
                add(only);
            }
        }
        if (cut < cards) {
            cut = std::min(cut + step, cards);
        } else if (redealsLeft > 0 && cards > 0) {
            --redealsLeft;
            cut = 0;
        } else {
            break;
        }
        ++presses;
    }
}

}  // namespace Solver
