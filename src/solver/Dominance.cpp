// Three dominances: cards that go home at once, cards that are laid at once on the one card that takes them,
// and cards that come back only to be used.
//
// Premises of all (`chains_`, asked once a game, and TableauAlone, asked of the position):
//  - The foundations are chains. After each card comes a card of exactly one class of cards that the rules
//    cannot tell apart, no class comes after two others, all piles build by one rule, and there is a pile for
//    every base card. Then the foundations can hold a set of cards exactly when of no class fewer cards are
//    home than of the class after it, and how they lie is determined by that set, up to like cards and like
//    piles.
//  - Nothing is dealt onto the tableau or gathered from it any more, nothing refills it, and no card goes
//    home by itself: the tableau changes by the player's moves alone.
//
// 1. Safe cards. Let c be a top card that fits on a foundation. Let S hold c, all cards that may be laid on a
// card of S in the tableau (or continue a lifted run on it), and, where cards come back, all that come before
// a card of S on the foundations. Cards of S that are at home now need not be followed further where nothing
// comes back. Let each other card of S be at home, or have all cards that come before it at home: it could
// follow as soon as it is on top; and so be all cards that come before c, unless c is the last of its class
// that is away: else c might take the place of a card like it. Then playing c at once loses nothing. Proof:
// take any line L that wins from the position P, and let P' be P with c home. Follow L from P' so that the
// position is always that of L with a subset H of S home besides.
//    - Cards of H lie in L on their piles only under cards of H: c lies on top in P, and what L lays on a
//      card of H, or brings back, joins H (below). So taking H out leaves every pile of L a lower part of
//      itself, and with it the face, the place and the neighbours of every other card.
//    - L lays cards on a card of H: they are in S. In P' they go home from where they lie, the topmost first,
//      and join H. They can: what comes before them was home in P, and no card of S comes back in P'
//      afterwards.
//    - L brings a card of S back from a foundation: it stays home in P' and joins H. Another card can come
//      back as well in P': what comes after it is not in S, as S holds what comes before.
//    - L moves a group whose lowest card is in H: the whole group is, and the move is left out. Another group
//      loses its upper part at most: it can be lifted, as the rest of a run is a run and empty places are no
//      fewer, and it lands, as the card or the empty place that it lands on is the same, or is in H (above).
//    - L plays a card of H home: left out. Any other goes as in L.
//    - A press of the stock that brings a card of H to the waste is left out. One card at a time that shifts
//      nothing; where three come at once, the other cards of the waste would change places, and c may not be
//      a card of the waste.
// The line so made wins and has no more moves than L: each card that goes home early does so in place of a
// move of L that is left out, c in place of its own way home.
//
// 2. The one place (`onePlace_`). Let each card fit on one card of the tableau only, let that one take no
// other and come right after it at home, and let ranks not wrap around; let cards be moved alone, or with all
// that may lie on them and without a limit; and let nothing but the tableau and the foundations take cards.
// Let y, on top or the lowest of a run, fit on a top card x that is settled: x lies on the card that it fits
// on and no empty pile takes it, or it lies at the bottom and fits on nothing, or runs are moved as a whole.
// Then laying y on x at once loses nothing. Proof: take any line L that wins from P, and follow it from P',
// which is P with y, and what lies on it, on x. Until y goes home in L it stays on x in P'.
//    - L moves y: left out, as y lies on x. Nothing else can be laid on x.
//    - What L lays on y is laid on y in P', and y goes home from there when it does in L.
//    - x stays in L until it goes home, and y goes before it. Or it moves from the bottom to an empty pile,
//      which changes nothing: left out. Or it is moved as the lowest of a run or inside of one: in P' with y
//      on it, which is a run as well. That never lands on what lies on y, all of whose ranks are beyond its
//      own.
//    - What lay under y is on top, and open, in P' no later than in L; empty piles are no fewer.
// The line so made wins and has no more moves than L, the laying of y not counted, which no one chooses.
//
// 3. Returns. In a line that wins, let a card c come back from a foundation at some point, and ask for the
// next move for which it matters: a card is laid on c, or the card that was under c on its foundation comes
// back too. Moves before that are as legal with c still at home: piles are only shorter and places emptier.
// So c may come back just before. If c goes home again first, both moves are left out; if c moves on, alone
// or on top of a run, it comes back straight to where it lies last. If a like card c' goes home in its place,
// c' can go at once where c went. So only trees of returns matter: a card comes back just before the return
// that lays a card on it, or that of the card below it, and the last of a tree just before a card is laid on
// it; a card that comes back to a free cell can only free the one below it. Where a return needs two others,
// one to lay its card on and one to free it, the first comes first, with all that it needs: what it changes
// are places that the second does not need, or it would be one of its own. So each tree is a row of chains: a
// card comes back, the next is laid on it or was below it, and so on, until a card is laid on the last, or
// until the next has still to be freed from under the cards on another foundation. Then the chain ends with
// the place for it. None of this makes a line longer. A card that comes back and is safe there would go home
// at once, and loses nothing by that: it need not come.
//
// None of them makes a line longer, so that a search that follows all meets a shorter way to win at each move
// that it chooses.
#include "solver/Dominance.h"

#include <algorithm>
#include <bit>

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
        if (!Has(pack, kind)) continue;
        KindSet& like = likes[rules.Alike[Index(kind)]];
        like |= Only(kind);
        // Which cards the foundations can hold would depend on which pile holds which.
        if (rules.OwnBases && (rules.Copies[Index(kind)] > 1 || !std::has_single_bit(like))) return false;
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

bool LiesBelowTop(const Position& position, int pile, KindSet kinds) {
    for (int place = position.Count(pile) - 2; place >= 0; --place) {
        if (Has(kinds, KindOf(position.At(pile, place).Card))) return true;
    }
    return false;
}

// Whether each card fits on one card only, that one takes no other and comes right after it at home, and
// ranks do not wrap around; and cards move alone, or with all that may lie on them. Nothing but the tableau
// and the foundations takes cards.
bool HaveOnePlace(const Rules& rules, const std::array<KindSet, Kinds>& before) {
    if (rules.TotalCards > Kinds || rules.NoH2H || rules.HomeMax != 0) return false;
    if (rules.FreeCells && rules.ResPiles > 0) return false;
    if (rules.MultiMove && (rules.LimitedRuns || rules.LiftFits != rules.HomeFits)) return false;
    const KindSet pack = InPack(rules);
    KindSet seen = 0;
    bool up = false;
    bool down = false;
    for (int kind = 0; kind < Kinds; ++kind) {
        const KindSet fits = rules.HomeFits[Index(kind)] & pack;
        if (fits == 0 || !Has(pack, kind)) continue;
        if (!std::has_single_bit(fits) || before[Index(kind)] != fits || (seen & fits) != 0) return false;
        seen |= fits;
        (RankOf(std::countr_zero(fits)) > RankOf(kind) ? up : down) = true;
    }
    return !(up && down);
}

}  // namespace

Dominance::Dominance(const Rules& rules) : rules_(rules), chains_(AreChains(rules)) {
    const KindSet pack = InPack(rules);
    for (int a = 0; a < Kinds; ++a) {
        if (!Has(pack, a)) continue;
        for (int b = 0; b < Kinds; ++b) {
            if (Has(pack, b) && rules.Alike[Index(b)] == rules.Alike[Index(a)]) likes_[Index(a)] |= Only(b);
        }
        above_[Index(a)] = (rules.HomeFits[Index(a)] | rules.LiftFits[Index(a)]) & pack;
        for (int b = 0; b < Kinds; ++b) {
            if (Has(rules.GoalFits[0][Index(a)] & pack, b)) before_[Index(b)] |= Only(a);
        }
    }
    for (int kind = 0; kind < Kinds; ++kind) {
        KindSet closure = above_[Index(kind)] | before_[Index(kind)];
        for (KindSet last = 0; last != closure;) {
            last = closure;
            for (int other = 0; other < Kinds; ++other) {
                if (Has(last, other)) closure |= above_[Index(other)] | before_[Index(other)];
            }
        }
        closure_[Index(kind)] = closure;
    }
    alone_ = chains_ && !rules.Autoplay && !rules.DealsOnto &&
             (rules.Refill == AutoFill::None || rules.Refill == AutoFill::NoneEither);
    // A card at home whose closure holds nothing but what came there before it is safe there always; that is
    // to be told by the kinds where each comes after one card only.
    returnsOfUse_ = rules.TotalCards > Kinds;
    for (int kind = 0; kind < Kinds; ++kind) {
        KindSet home = Only(kind);
        for (KindSet next = before_[Index(kind)]; std::has_single_bit(next);) {
            if ((home & next) != 0) break;
            home |= next;
            next = before_[Index(std::countr_zero(next))];
        }
        if ((closure_[Index(kind)] & ~home) != 0) returnsOfUse_ = true;
    }
    onePlace_ = chains_ && HaveOnePlace(rules, before_);
}

bool Dominance::TableauAlone(const Position& position) const {
    if (alone_) return true;
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
    const bool alone =
        rules_.Copies[Index(kind)] == 1 && (likes_[Index(kind)] & ~position.AllHome() & ~Only(kind)) == 0;
    const KindSet away =
        ~position.AllHome() | Only(kind);  // asked of cards at home as well: they would be away
    const auto follows = [&](int other) {
        return RankOf(other) == rules_.Base || (before_[Index(other)] & away) == 0;
    };
    if (!alone && !follows(kind)) return false;
    if (rules_.Returns) {
        for (KindSet left = closure_[Index(kind)] & away; left != 0; left &= left - 1) {
            if (!follows(std::countr_zero(left))) return false;
        }
        return true;
    }
    KindSet seen = 0;
    for (KindSet left = above_[Index(kind)] & away; left != 0;) {
        const int other = std::countr_zero(left);
        if (!follows(other)) return false;
        seen |= Only(other);
        left = (left | (above_[Index(other)] & away)) & ~seen;
    }
    return true;
}

bool Dominance::SafeHome(const Position& position, int from, Move& move) const {
    const int kind = position.TopKind(from);
    if (!Has(position.GoalTakes(), kind)) return false;
    for (int goal = FirstGoal; goal < FirstGoal + rules_.GoalPiles; ++goal) {
        if (!position.GoalAccepts(kind, goal)) continue;
        move = {Move::Kind::Play, static_cast<std::uint8_t>(from), static_cast<std::uint8_t>(goal), 1};
        return IsSafe(position, kind);
    }
    return false;
}

bool Dominance::SafeLaying(const Position& position, int from, Move& move) const {
    const int most = std::max(1, position.LiftableCards(from));
    for (int count = 1; count <= most; ++count) {
        if (!position.IsLiftable(from, count)) break;
        const int kind = KindOf(position.At(from, position.Count(from) - count).Card);
        const auto lay = [&](int pile) {
            if (pile == from || !position.HomeAccepts(kind, from, pile)) return false;
            move = {Move::Kind::Play, static_cast<std::uint8_t>(from), static_cast<std::uint8_t>(pile),
                    static_cast<std::uint8_t>(count)};
            return true;
        };
        // No other pile takes it.
        if (position.AnyHomeTop(rules_.HomeUnder[Index(kind)], lay)) return position.Top(move.To).Settled;
    }
    return false;
}

bool Dominance::SafeMove(const Position& position, Move& move) const {
    if (!TableauAlone(position)) return false;
    const KindSet taken = position.GoalTakes() | (onePlace_ ? position.SettledTake() : 0);
    const auto from = [&](int pile) {
        return SafeHome(position, pile, move) || (onePlace_ && SafeLaying(position, pile, move));
    };
    if (onePlace_ && rules_.MultiMove) {  // a run may be laid whose top card is not taken
        for (int pile = FirstHome; pile < FirstHome + rules_.HomePiles; ++pile) {
            if (!position.IsEmpty(pile) && from(pile)) return true;
        }
    } else if (position.AnyHomeTop(taken, from)) {
        return true;
    }
    if (position.AnyResTop(taken, from)) return true;
    const auto fromTop = [&](int pile) {
        return !position.IsEmpty(pile) && Has(taken, position.TopKind(pile)) && from(pile);
    };
    if (rules_.OpenStock && fromTop(StockPile)) return true;
    const bool inThrees =
        rules_.Press == StockMove::ThreeToWaste && (!position.IsEmpty(StockPile) || position.RedealAllowed());
    return !inThrees && fromTop(WastePile);
}

bool Dominance::ReturnsAreChained(const Position& position) const {
    return rules_.Returns && !rules_.NoH2H && TableauAlone(position);
}

bool Dominance::AddReturns(Position& position, MoveList& list) const {
    if (!returnsOfUse_) return true;
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
        const Position::Mark mark = position.Here();
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
    // A card of another foundation pile laid on it goes on the chain. One that lies deeper has to be freed
    // first, for which other chains begin anew.
    bool waits = false;
    for (int other = FirstGoal; other < FirstGoal + rules_.GoalPiles; ++other) {
        if (other == goal || position.IsEmpty(other)) continue;
        const int kind = position.TopKind(other);
        if (IsSafe(position, kind)) continue;
        waits = waits || LiesBelowTop(position, other, fits);
        if (!Has(fits, kind) || !position.HomeAccepts(kind, other, pile)) continue;
        const Move move{Move::Kind::Play, static_cast<std::uint8_t>(other), static_cast<std::uint8_t>(pile),
                        1};
        if (--chain.Left < 0) return;
        const Position::Mark mark = position.Here();
        position.Make(move);
        chain.Moves.push_back(move);
        Use(position, other, pile, list, chain);
        chain.Moves.pop_back();
        position.TakeBack(mark);
    }
    if (waits) list.Add(chain.Moves);
}

}  // namespace Solver
