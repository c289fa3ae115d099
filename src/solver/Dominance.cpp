// Two dominances: cards that go home at once, and cards that come back only to be used.
//
// Premises of both (`chains_`, asked once a game, and TableauAlone, asked of the position):
//  - The foundations are chains. After each card comes a card of exactly one class of cards that the rules
//  cannot
//    tell apart, no class comes after two others, all piles build by one rule, and there is a pile for every
//    base card. Then the foundations can hold a set of cards exactly when of no class fewer cards are home
//    than of the class after it, and how they lie is determined by that set, up to like cards and like piles.
//  - Nothing is dealt onto the tableau or gathered from it any more, nothing refills it, and no card goes
//  home by
//    itself: the tableau changes by the player's moves alone.
//
// 1. Safe cards. Let c be a top card that fits on a foundation. Let R hold c, all cards that fit on a card of
// R in the tableau, and all cards that come before a card of R on the foundations, and let all of R but c be
// home. Then playing c at once loses nothing. Proof: take any line L that wins from the position P, and let
// P' be P with c home. Follow L from P' so that the position is always that of L with all of R home.
//    - Cards of R lie in L on their piles only under cards of R: what fits on a card of R is in R, c lies on
//      top in P, and all others came from the foundations. So taking R out leaves every pile of L a lower
//      part of itself, and with it the face, the place and the neighbours of every other card.
//    - A move of L of a group whose lowest card is in R is left out, as the whole group is in R. Another
//    group loses
//      its upper part at most: it can be lifted, as the rest of a run is a run and empty places are no fewer,
//      and it lands, as the card or the empty place that it lands on is the same (it is not in R: what fits
//      on R is in R).
//    - A card outside R goes to a foundation or comes back as in L: R is closed under what comes before, so
//      the set of cards home stays one that the foundations can hold.
//    - A press of the stock that brings a card of R to the waste is left out. One card at a time that shifts
//    nothing;
//      where three come at once, the other cards of the waste would change places, and a card of the waste is
//      not safe.
// The line so made wins and has no more moves of cards than L. Without cards that come back the set is
// smaller: it is enough that all cards that fit on c are home, as then nothing will ever lie on c; R is c
// alone.
//
// 2. Returns. In a line that wins, let a card c come back from a foundation at some point, and ask for the
// next move for which it matters: a card is laid on c, or the card that was under c on its foundation comes
// back too. Moves before that are as legal with c still at home: piles are only shorter and places emptier.
// So c may come back just before. If c goes home again first, both moves are left out; if c moves on, alone
// or on top of a run, it comes back straight to where it lies last. If a like card c' goes home in its place,
// c' can go at once where c went. So only chains matter: cards come back, each to be laid upon or to free the
// one below it, until a card is laid on the last; a card that comes back to a free cell can only free the one
// below it. None of this makes a line longer. A card that comes back while all that it could hold is home (it
// would be safe at once) can never be used.
//
// Both shorten or keep any line, so that a search that follows both meets a shorter way to win at each step.
#include "solver/Dominance.h"

#include <algorithm>

#include "solver/UsefulMoves.h"

namespace Solver {

namespace {

constexpr std::size_t Index(int number) { return static_cast<std::size_t>(number); }

KindSet InPack(const Rules& rules) {
    KindSet set = 0;
    for (int kind = 0; kind < Kinds; ++kind) {
        if (rules.Copies[Index(kind)] > 0) set |= Only(kind);
    }
    return set;
}

// Whether after each class of like cards comes one class or none, and after no two the same.
bool AreChains(const Rules& rules) {
    if (rules.RunsLeave || rules.UpDown || rules.TotalCards > RankCount * rules.GoalPiles) return false;
    const KindSet pack = InPack(rules);
    std::array<KindSet, Kinds> likes{};
    for (int kind = 0; kind < Kinds; ++kind) {
        if (Has(pack, kind)) likes[rules.Alike[Index(kind)]] |= Only(kind);
    }
    KindSet seen = 0;
    for (int kind = 0; kind < Kinds; ++kind) {
        if (rules.Alike[Index(kind)] != kind || !Has(pack, kind)) continue;
        const KindSet next = rules.GoalFits[0][Index(kind)] & pack;
        if (next == 0) continue;
        if (std::find(likes.begin(), likes.end(), next) == likes.end() || (seen & next) != 0) return false;
        seen |= next;
    }
    return true;
}

}  // namespace

Dominance::Dominance(const Rules& rules) : rules_(rules), chains_(AreChains(rules)) {
    const KindSet pack = InPack(rules);
    std::array<KindSet, Kinds> before{};
    for (int a = 0; a < Kinds; ++a) {
        for (int b = 0; b < Kinds; ++b) {
            if (Has(rules.GoalFits[0][Index(a)] & pack, b) && Has(pack, a)) before[Index(b)] |= Only(a);
        }
    }
    for (int kind = 0; kind < Kinds; ++kind) {
        KindSet needed = rules.HomeFits[Index(kind)] & pack;
        if (rules.Returns) {
            needed |= before[Index(kind)];
            for (KindSet last = 0; last != needed;) {
                last = needed;
                for (int other = 0; other < Kinds; ++other) {
                    if (Has(last, other))
                        needed |= (rules.HomeFits[Index(other)] & pack) | before[Index(other)];
                }
            }
        }
        needed_[Index(kind)] = needed;
    }
}

bool Dominance::TableauAlone(const Position& position) const {
    if (!chains_ || rules_.Autoplay || position.DealsOntoPiles()) return false;
    switch (rules_.Refill) {
        case AutoFill::FromWaste:
            return position.IsEmpty(StockPile) && position.IsEmpty(WastePile);
        case AutoFill::FromReserve:
            return position.IsEmpty(FirstRes);
        case AutoFill::None:
        case AutoFill::NoneEither:
            break;
    }
    return true;
}

bool Dominance::IsSafe(const Position& position, int kind) const {
    return (needed_[Index(kind)] & ~position.AllHome()) == 0;
}

std::optional<Move> Dominance::SafeMove(const Position& position) const {
    if (!TableauAlone(position)) return std::nullopt;
    const auto from = [&](int pile) -> std::optional<Move> {
        if (position.IsEmpty(pile)) return std::nullopt;
        const int kind = position.TopKind(pile);
        if (!IsSafe(position, kind)) return std::nullopt;
        for (int goal = FirstGoal; goal < FirstGoal + rules_.GoalPiles; ++goal) {
            if (!position.GoalAccepts(kind, goal)) continue;
            return Move{Move::Kind::Play, static_cast<std::uint8_t>(pile), static_cast<std::uint8_t>(goal),
                        1};
        }
        return std::nullopt;
    };
    for (int pile = FirstHome; pile < FirstHome + rules_.HomePiles; ++pile) {
        if (const auto move = from(pile)) return move;
    }
    for (int pile = FirstRes; pile < FirstRes + rules_.ResPiles; ++pile) {
        if (const auto move = from(pile)) return move;
    }
    if (rules_.OpenStock) {
        if (const auto move = from(StockPile)) return move;
    }
    const bool inThrees =
        rules_.Press == StockMove::ThreeToWaste && (!position.IsEmpty(StockPile) || position.RedealAllowed());
    return inThrees ? std::nullopt : from(WastePile);
}

bool Dominance::ReturnsAreChained(const Position& position) const {
    return rules_.Returns && !rules_.NoH2H && TableauAlone(position);
}

bool Dominance::AddReturns(Position& position, MoveList& list) const {
    constexpr int Most = 100;
    const std::size_t before = list.Count();
    Chain chain{{}, Most};
    for (int goal = FirstGoal; goal < FirstGoal + rules_.GoalPiles; ++goal) {
        const std::uint64_t hash = position.Top(goal).Hash;
        bool seen = position.IsEmpty(goal);
        for (int other = FirstGoal; other < goal && !seen; ++other) seen = position.Top(other).Hash == hash;
        if (!seen) Return(position, goal, list, chain);
    }
    if (chain.Left >= 0) return true;
    list.CutTo(before);
    return false;
}

// The top card of a foundation pile comes back, to wherever it may.
void Dominance::Return(Position& position, int goal, MoveList& list, Chain& chain) const {
    if (position.IsEmpty(goal) || chain.Left < 0) return;
    const int kind = position.TopKind(goal);
    if (IsSafe(position, kind)) return;
    const auto to = [&](int pile) {
        const Move move{Move::Kind::Play, static_cast<std::uint8_t>(goal), static_cast<std::uint8_t>(pile),
                        1};
        if (--chain.Left < 0) return;
        const std::size_t mark = position.Mark();
        position.Make(move);
        chain.Moves.push_back(move);
        Use(position, goal, pile, list, chain);
        chain.Moves.pop_back();
        position.TakeBack(mark);
    };
    bool emptySeen = false;
    for (int pile = FirstHome; pile < FirstHome + rules_.HomePiles; ++pile) {
        if (position.IsEmpty(pile)) {
            if (emptySeen) continue;
            emptySeen = true;
        }
        if (position.HomeAccepts(kind, goal, pile)) to(pile);
    }
    for (int pile = FirstRes; pile < FirstRes + rules_.ResPiles; ++pile) {
        if (!position.ResAccepts(pile, 1)) continue;
        to(pile);
        break;
    }
}

// What can follow on the return of a card from `goal` to `pile`.
void Dominance::Use(Position& position, int goal, int pile, MoveList& list, Chain& chain) const {
    Return(position, goal, list, chain);
    if (!IsHome(pile)) return;
    const KindSet fits = rules_.HomeFits[Index(position.TopKind(pile))];
    const auto lay = [&](int from, int count) {
        const int kind = KindOf(position.At(from, position.Count(from) - count).Card);
        if (!Has(fits, kind) || !position.HomeAccepts(kind, from, pile)) return;
        list.Add(chain.Moves, {Move::Kind::Play, static_cast<std::uint8_t>(from),
                               static_cast<std::uint8_t>(pile), static_cast<std::uint8_t>(count)});
    };
    for (int from = FirstHome; from < FirstHome + rules_.HomePiles; ++from) {
        if (from == pile) continue;
        for (int count = 1; count <= position.LiftableCards(from); ++count) {
            if (position.IsLiftable(from, count)) lay(from, count);
        }
    }
    for (int from = FirstRes; from < FirstRes + rules_.ResPiles; ++from) {
        if (!position.IsEmpty(from)) lay(from, 1);
    }
    if (!position.IsEmpty(WastePile)) lay(WastePile, 1);
    if (rules_.OpenStock && !position.IsEmpty(StockPile)) lay(StockPile, 1);
    if (rules_.TalonFree) AddTalonPlays(position, chain.Moves, list, pile);
    // A card of another foundation pile laid on it goes on the chain.
    for (int other = FirstGoal; other < FirstGoal + rules_.GoalPiles; ++other) {
        if (other == goal || position.IsEmpty(other)) continue;
        const int kind = position.TopKind(other);
        if (!Has(fits, kind) || IsSafe(position, kind) || !position.HomeAccepts(kind, other, pile)) continue;
        const Move move{Move::Kind::Play, static_cast<std::uint8_t>(other), static_cast<std::uint8_t>(pile),
                        1};
        if (--chain.Left < 0) return;
        const std::size_t mark = position.Mark();
        position.Make(move);
        chain.Moves.push_back(move);
        Use(position, other, pile, list, chain);
        chain.Moves.pop_back();
        position.TakeBack(mark);
    }
}

}  // namespace Solver
