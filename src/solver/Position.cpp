// Moves, what follows them by itself, and what makes two positions the same.
#include "solver/Position.h"

#include <algorithm>

#include "solver/Mix.h"

namespace Solver {

namespace {

constexpr std::uint64_t OfRes = 0x9E3779B97F4A7C15U;
constexpr std::uint64_t OfGoal = 0xC2B2AE3D27D4EB4FU;
constexpr std::uint64_t OfUpperGoal = 0x165667B19E3779F9U;

}  // namespace

Position::Position(const Rules& rules, const Weights& weights) : rules_(&rules), weights_(&weights) {
    for (int pile = 0; pile < StockPile; ++pile) {
        factors_[Index(pile)] = IsHome(pile)                            ? 1
                                : IsRes(pile)                           ? OfRes
                                : rules.GoalHalf(pile - FirstGoal) == 0 ? OfGoal
                                                                        : OfUpperGoal;
    }
    for (int pile = 0; pile < PileCount; ++pile) {
        groups_[Index(pile)] = IsHome(pile) ? InHome : IsRes(pile) ? InRes : IsGoal(pile) ? InGoal : InTalon;
    }
    Clear();
}

void Position::Clear() {
    for (auto& pile : piles_) pile[0] = Entry{};
    now_ = {};
    now_.EmptyHomes = (PileSet{1} << rules_->HomePiles) - 1;
    NoteGoals();
    removals_.clear();
}

void Position::Put(int pile, Card card) { Lay(pile, card); }

void Position::Begin(const mDeal::Opening& opening) {
    Clear();
    const auto put = [&](int cell, int first) {
        for (std::size_t pile = 0; pile < opening.Piles[Index(cell)].size(); ++pile) {
            for (const mDeal::Lying& lying : opening.Piles[Index(cell)][pile]) {
                const CardFace& face = opening.Cards[Index(lying.PicID)];
                const int kind = face.Suitpile % SuitCount * RankCount + face.Num;
                Lay(first + static_cast<int>(pile),
                    static_cast<Card>(kind + (face.Suitpile >= SuitCount ? SecondDeck : 0) +
                                      (lying.Closed && cell == Home ? Closed : 0)));
            }
        }
    };
    put(Home, FirstHome);
    put(Res, FirstRes);
    put(Goal, FirstGoal);
    put(Stock, StockPile);
    put(Waste, WastePile);
    Settle();
    removals_.clear();
}

int Position::MaxMoveCards() const { return (EmptyRes() + 1) * EmptyHome() + EmptyRes(); }

bool Position::ResAccepts(int to, int count) const { return rules_->FreeCells && count == 1 && IsEmpty(to); }

// The kinds that a foundation pile takes.
KindSet Position::Takes(int goal) const {
    if (rules_->RunsLeave || Count(goal) == RankCount) return 0;
    return IsEmpty(goal) ? rules_->BaseKinds
                         : rules_->GoalFits[Index(rules_->GoalHalf(goal - FirstGoal))][Index(TopKind(goal))];
}

// After a change of a foundation pile.
void Position::NoteGoals() {
    now_.GoalTakes = 0;
    for (int goal = FirstGoal; goal < FirstGoal + rules_->GoalPiles; ++goal) now_.GoalTakes |= Takes(goal);
}

// A card has become the top of a pile, or has ceased to be it. `there` has all bits, or none where there is
// no card. Without a branch: which piles change is hard to foresee.
inline void Position::ToggleTop(Group group, const Entry& entry, KindSet there) {
    const int kind = KindOf(entry.Card);
    now_.Tops[group][(entry.Card & SecondDeck) != 0 ? 1 : 0] ^= Only(kind) & there;
    now_.SettledTake ^= rules_->HomeFits[Index(kind)] & -KindSet{entry.Settled};
}

// A pile has got its first card, or has lost its last.
inline void Position::NoteUse(Group group, int pile, int change) {
    now_.Used[group] = static_cast<std::uint8_t>(now_.Used[group] + change);
    if (group == InHome) now_.EmptyHomes ^= static_cast<PileSet>(change & 1) << pile;
}

// Whether a card there stays until it goes to a foundation, or goes with all that lies on it.
bool Position::IsSettled(int kind, const Entry& below, bool bottom) const {
    if (rules_->MultiMove) return true;
    if (bottom) return rules_->HomeUnder[Index(kind)] == 0;
    const bool fillsEmpty =
        !rules_->FillFromStock && (rules_->EmptyNum == -1 || rules_->EmptyNum == RankOf(kind));
    return !fillsEmpty && Has(rules_->HomeFits[Index(KindOf(below.Card))], kind);
}

// What is known of a pile is known up to each card, so that a card that leaves takes its part along. The
// entry lies right above that of the card below.
inline void Position::Fill(Entry& entry, Group group, bool bottom, int card) const {
    const Entry& below = *(&entry - 1);
    entry.Card = static_cast<Card>(card);
    entry.Place = static_cast<std::uint8_t>(below.Place + 1);
    entry.Hash = Mixed(below.Hash + rules_->Key[Index(card)]);
    if (group != InHome) {
        entry.Worth = 0;
        entry.Settled = false;
        return;
    }
    const int kind = card & KindBits;
    const std::uint8_t steps = weights_->Steps[Index(kind)];
    int worth = below.Worth;
    if (below.Low < steps) worth += weights_->Covering;
    if ((card & Closed) != 0) worth += weights_->Closed;
    entry.Low = std::min(below.Low, steps);
    entry.Lifted = 1;
    entry.Leaving = 1;
    if (bottom) {
        if (steps == RankCount - 1) worth += weights_->Bottom;
    } else {
        const int lower = below.Card;
        const int under = lower & KindBits;
        const bool open = (lower & Closed) == 0;
        if (Has(rules_->HomeFits[Index(under)], kind) && open) worth += weights_->Pair;
        if (Has(rules_->LiftFits[Index(under)], kind)) {
            entry.Lifted = static_cast<std::uint8_t>(below.Lifted + 1);
            if (open) worth += weights_->Lifted;
        }
        if (rules_->RunsLeave && Has(rules_->RunFits[Index(under)], kind)) {
            entry.Leaving = static_cast<std::uint8_t>(below.Leaving + 1);
            if (open) worth += weights_->Leaving + weights_->Longer * below.Leaving;
        }
    }
    entry.Settled = IsSettled(kind, below, bottom);
    entry.Worth = static_cast<std::int16_t>(worth);
}

[[gnu::always_inline]] inline void Position::Lay(int pile, int card) {
    const Group group = groups_[Index(pile)];
    const int before = now_.Counts[Index(pile)]++;
    const Entry& below = piles_[Index(pile)][Index(before)];
    Entry& top = piles_[Index(pile)][Index(before + 1)];
    Fill(top, group, before == 0, card);
    where_[Index(card & (KindBits | SecondDeck))] = {static_cast<std::uint8_t>(pile), top.Place};
    ++now_.Cards[group];
    NoteUse(group, pile, before == 0 ? 1 : 0);
    ToggleTop(group, below, before != 0 ? AllKinds : 0);
    ToggleTop(group, top, AllKinds);
    now_.Worth += top.Worth - below.Worth;
    now_.Hash += factors_[Index(pile)] * (top.Hash - below.Hash);
    if (group == InGoal) NoteHome(&top, 1);
}

// Takes cards off a pile; their entries stay where they are until others are laid there.
[[gnu::always_inline]] inline void Position::Remove(int pile, int count) {
    const Group group = groups_[Index(pile)];
    const int left = Count(pile) - count;
    const Entry* const below = &piles_[Index(pile)][Index(left)];
    for (int i = 1; i <= count; ++i) removals_.push_back({below[i], static_cast<std::uint8_t>(pile)});
    now_.Counts[Index(pile)] = static_cast<std::uint8_t>(left);
    now_.Cards[group] = static_cast<std::uint8_t>(now_.Cards[group] - count);
    NoteUse(group, pile, left == 0 ? -1 : 0);
    const Entry& top = below[count];
    ToggleTop(group, top, AllKinds);
    ToggleTop(group, *below, left != 0 ? AllKinds : 0);
    now_.Worth -= top.Worth - below->Worth;
    now_.Hash -= factors_[Index(pile)] * (top.Hash - below->Hash);
    if (group != InGoal) return;
    NoteHome(below + 1, count);
}

// Cards have come to a foundation pile or left it.
void Position::NoteHome(const Entry* cards, int count) {
    for (int i = 0; i < count; ++i)
        now_.Home[(cards[i].Card & SecondDeck) != 0 ? 1 : 0] ^= Only(KindOf(cards[i].Card));
    NoteGoals();
}

void Position::TakeBack(const Mark& mark) {
    while (removals_.size() > mark.Removals) {
        const Removal& last = removals_.back();
        piles_[last.Pile][last.Lay.Place] = last.Lay;
        where_[last.Lay.Card & (KindBits | SecondDeck)] = {last.Pile, last.Lay.Place};
        removals_.pop_back();
    }
    now_ = mark.Then;
}

bool Position::Remember(const Mark& mark, Effect& effect) const {
    effect.Count = removals_.size() - mark.Removals;
    if (effect.Count > Effect::Most) return false;
    for (std::size_t i = 0; i < effect.Count; ++i) {
        const Removal& removal = removals_[mark.Removals + i];
        const Place& place = where_[removal.Lay.Card & (KindBits | SecondDeck)];
        effect.Removals[i] = removal;
        effect.Laid[i] = piles_[place.Pile][place.Number];
        effect.Piles[i] = place.Pile;
    }
    effect.After = now_;
    return true;
}

void Position::Repeat(const Effect& effect) {
    for (std::size_t i = 0; i < effect.Count; ++i) {
        removals_.push_back(effect.Removals[i]);
        const Entry& laid = effect.Laid[i];
        piles_[effect.Piles[i]][laid.Place] = laid;
        where_[laid.Card & (KindBits | SecondDeck)] = {effect.Piles[i], laid.Place};
    }
    now_ = effect.After;
}

// The cards keep their order and lie open afterwards.
void Position::Carry(int from, int to, int count) {
    if (count == 1) {  // mostly, and much faster
        const int card = Top(from).Card & ~Closed;
        Remove(from, 1);
        Lay(to, card);
    } else {
        Remove(from, count);
        const Entry* const cards = &Top(from) + 1;
        for (int i = 0; i < count; ++i) Lay(to, cards[i].Card & ~Closed);
    }
    if (IsHome(from) && (Top(from).Card & Closed) != 0) OpenTop(from);
}

void Position::OpenTop(int pile) {
    const int top = Top(pile).Card & ~Closed;
    Remove(pile, 1);
    Lay(pile, top);
}

void Position::CarryAndSettle(int from, int to, int count) {
    if (IsGoal(to) && !rules_->RunsLeave && Count(to) == RankCount) return;  // a full pile refuses in silence
    Carry(from, to, count);
    Settle();
}

void Position::Make(const Move& move) {
    switch (move.What) {
        case Move::Kind::Play:
            if (Trace != nullptr) Trace->push_back(move);
            CarryAndSettle(move.From, move.To, move.Count);
            break;
        case Move::Kind::Press:
            if (Trace != nullptr) Trace->push_back(move);
            PressStock();
            break;
        case Move::Kind::Redeal:
            if (Trace != nullptr) Trace->push_back(move);
            ClickMarker();
            break;
        case Move::Kind::Talon:
            for (int i = 0; i < move.Count; ++i) {
                Make({.What = IsEmpty(StockPile) ? Move::Kind::Redeal : Move::Kind::Press});
            }
            Make({.From = WastePile, .To = move.To, .Count = 1});
            break;
    }
}

void Position::PressStock() {
    constexpr int FirstPresses = 3;
    constexpr int ThreeCards = 3;
    switch (rules_->Press) {
        case StockMove::OneToEachPile:
            DealStockToHome();
            return;
        case StockMove::FirstThreeToPiles:
            if (now_.PileDeals < FirstPresses) {
                DealStockToHome();
                ++now_.PileDeals;
                return;
            }
            break;
        case StockMove::ThreeToWaste:
            for (int i = 0; i < ThreeCards && !IsEmpty(StockPile); ++i)
                CarryAndSettle(StockPile, WastePile, 1);
            return;
        case StockMove::None:
        case StockMove::OneToWaste:
        case StockMove::ByHand:
            break;
    }
    CarryAndSettle(StockPile, WastePile, 1);
}

void Position::DealStockToHome() {
    for (int pile = 0; pile < rules_->HomePiles && !IsEmpty(StockPile); ++pile) Carry(StockPile, pile, 1);
    Settle();  // once after the whole row
}

void Position::ClickMarker() {
    ++now_.Redeals;
    if (rules_->Gathers) {
        Gather();
        return;
    }
    // From the top of the waste on: the stock is taken from its top.
    const int count = Count(WastePile);
    if (count > 0) Remove(WastePile, count);
    for (int place = count; place-- > 0;) Lay(StockPile, At(WastePile, place).Card);
}

// Pile by pile from the top onto the stock, and in rows over the piles again. Gathered cards lie closed and
// dealt ones open: the faces are open in the end.
void Position::Gather() {
    for (int pile = 0; pile < rules_->HomePiles; ++pile) {
        while (!IsEmpty(pile)) Carry(pile, StockPile, 1);
    }
    while (!IsEmpty(StockPile)) {
        for (int pile = 0; pile < rules_->HomePiles && !IsEmpty(StockPile); ++pile) Carry(StockPile, pile, 1);
    }
    Settle();
}

// Complete runs, foundations, refills, in this order. A card that moves in a pass starts a pass of its own.
void Position::FollowUp() {
    if (rules_->RunsLeave) {
        for (int pile = 0; pile < rules_->HomePiles && !Won(); ++pile) {
            if (HasCompleteRun(pile)) MoveCompleteRun(pile);
        }
    }
    if (rules_->Autoplay) FoundationPass();
    if (rules_->Refill != AutoFill::None) RefillPass();
}

bool Position::HasCompleteRun(int pile) const {
    const Entry& top = Top(pile);
    return top.Leaving >= RankCount && RankOf(KindOf(top.Card)) == rules_->RunTop && Count(pile) >= RankCount;
}

void Position::MoveCompleteRun(int pile) {
    const Card top = Top(pile).Card;
    const int suitpile = KindOf(top) / RankCount + ((top & SecondDeck) != 0 ? SuitCount : 0);
    const int goal = FirstGoal + (rules_->GoalDiv != 0 ? suitpile % rules_->GoalDiv : suitpile);
    for (int i = 0; i < RankCount; ++i) CarryAndSettle(pile, goal, 1);
}

// The first pile that the card fits on by rank and suit gets it; a full one among them keeps it from others.
void Position::OfferTop(int pile) {
    if (Won() || IsEmpty(pile)) return;
    const int kind = TopKind(pile);
    for (int goal = FirstGoal; goal < FirstGoal + rules_->GoalPiles; ++goal) {
        const bool fits =
            IsEmpty(goal)
                ? RankOf(kind) == rules_->Base
                : Has(rules_->GoalFits[Index(rules_->GoalHalf(goal - FirstGoal))][Index(TopKind(goal))],
                      kind);
        if (!fits) continue;
        CarryAndSettle(pile, goal, 1);
        return;
    }
}

void Position::FoundationPass() {
    for (int pile = 0; pile < rules_->HomePiles; ++pile) OfferTop(pile);
    for (int pile = FirstRes; pile < FirstRes + rules_->ResPiles; ++pile) OfferTop(pile);
    OfferTop(WastePile);
    if (rules_->OpenStock) OfferTop(StockPile);
}

void Position::RefillPass() {
    for (int pile = 0; pile < rules_->HomePiles && !Won(); ++pile) {
        if (!IsEmpty(pile)) continue;
        if (rules_->Refill == AutoFill::FromWaste) {
            if (!IsEmpty(WastePile)) {
                CarryAndSettle(WastePile, pile, 1);
            } else if (!IsEmpty(StockPile)) {
                CarryAndSettle(StockPile, pile, 1);
            }
        } else if (rules_->Refill == AutoFill::FromReserve && !IsEmpty(FirstRes)) {
            CarryAndSettle(FirstRes, pile, 1);
        }
    }
}

// Sums over piles that are alike, so that their order plays no part. Tableau piles are alike until cards are
// dealt onto them in their order, or gathered from them; foundation piles where they build by one rule.
std::uint64_t Position::Hash() const {
    // With Autoplay the first pile that fits is served first, in every group.
    const int ordered = rules_->Autoplay ? StockPile : DealsOntoPiles() ? FirstRes : 0;
    std::uint64_t hash = now_.Hash;
    for (int pile = 0; pile < ordered; ++pile) {
        const std::uint64_t top = Top(pile).Hash;
        hash += factors_[Index(pile)] * (Mixed(top + Index(pile)) - top);
    }
    return Mixed(hash + TalonHash());
}

std::uint64_t Position::HashAfter(const Move& play, std::uint64_t talon) const {
    if (rules_->FollowUps || play.What != Move::Kind::Play || play.From >= StockPile || DealsOntoPiles())
        return 0;
    const Entry& below = At(play.From, Count(play.From) - play.Count - 1);
    if (IsHome(play.From) && (below.Card & Closed) != 0) return 0;
    const std::uint64_t before = Top(play.To).Hash;
    std::uint64_t after = before;
    for (int place = Count(play.From) - play.Count; place < Count(play.From); ++place)
        after = Mixed(after + rules_->Key[At(play.From, place).Card]);
    return Mixed(now_.Hash + factors_[play.From] * (below.Hash - Top(play.From).Hash) +
                 factors_[play.To] * (after - before) + talon);
}

// Where the talon waits until a card of it is played, it is the row of its cards in the order in which they
// come, cut somewhere into waste and stock. With no limit of redeals all cuts that can be reached from each
// other are one.
std::uint64_t Position::TalonHash() const {
    constexpr std::uint64_t OfStock = 0xA0761D6478BD642FU;
    constexpr std::uint64_t OfWaste = 0xE7037ED1A0B428DBU;
    constexpr int ThreeCards = 3;
    const int cut = Count(WastePile);
    if (rules_->TalonFree && rules_->CanRedeal && rules_->Redeals < 0) {
        std::uint64_t row = Top(WastePile).Hash;
        for (int place = Count(StockPile) - 1; place >= 0; --place) {
            row = Mixed(row + rules_->Key[At(StockPile, place).Card]);
        }
        const bool turns =
            rules_->Press != StockMove::ThreeToWaste || cut % ThreeCards == 0 || IsEmpty(StockPile);
        return OfWaste * row + (turns ? 0 : Mixed(Index(cut)));
    }
    std::uint64_t hash = OfStock * Top(StockPile).Hash + OfWaste * Top(WastePile).Hash;
    if (rules_->CanRedeal && rules_->Redeals > 0) hash += Mixed(static_cast<std::uint64_t>(now_.Redeals) + 1);
    return hash + static_cast<std::uint64_t>(now_.PileDeals) * 0x8EBC6AF09C88C6E3U;
}

}  // namespace Solver
