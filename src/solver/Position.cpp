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
    Clear();
}

void Position::Clear() {
    for (std::size_t pile = 0; pile < PileCount; ++pile) {
        piles_[pile][0] = Entry{};
        counts_[pile] = 0;
    }
    sum_ = 0;
    worth_ = 0;
    homeCopies_.fill(0);
    allHome_ = 0;
    homeTops_.fill(0);
    resTops_.fill(0);
    settledTake_ = 0;
    goalTakes_ = 0;
    for (int goal = FirstGoal; goal < StockPile; ++goal) NoteGoal(goal);
    cardsHome_ = 0;
    usedHome_ = 0;
    usedRes_ = 0;
    cardsRes_ = 0;
    redeals_ = 0;
    pileDeals_ = 0;
    undo_.clear();
}

void Position::Begin(const mDeal::Opening& opening) {
    Clear();
    const auto put = [&](int cell, int first) {
        for (std::size_t pile = 0; pile < opening.Piles[Index(cell)].size(); ++pile) {
            for (const mDeal::Lying& lying : opening.Piles[Index(cell)][pile]) {
                const CardFace& face = opening.Cards[Index(lying.PicID)];
                const int kind = face.Suitpile % SuitCount * RankCount + face.Num;
                Push(first + static_cast<int>(pile),
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
    undo_.clear();
}

bool Position::DealsOntoPiles() const {
    constexpr int FirstPresses = 3;
    if (rules_->Gathers && RedealAllowed()) return true;
    if (rules_->OpenStock || IsEmpty(StockPile)) return false;
    return rules_->Press == StockMove::OneToEachPile ||
           (rules_->Press == StockMove::FirstThreeToPiles && pileDeals_ < FirstPresses);
}

int Position::MaxMoveCards() const { return (EmptyRes() + 1) * EmptyHome() + EmptyRes(); }

int Position::LiftableCards(int pile) const {
    if (IsEmpty(pile) || !IsHome(pile) || !rules_->MultiMove) return IsEmpty(pile) ? 0 : 1;
    const int most = Top(pile).Lifted;
    return rules_->LimitedRuns && most > 1 ? std::min(most, MaxMoveCards() + 1) : most;
}

bool Position::ResAccepts(int to, int count) const { return rules_->FreeCells && count == 1 && IsEmpty(to); }

bool Position::GoalAccepts(int kind, int to) const { return Has(taken_[Index(to - FirstGoal)], kind); }

// After a change of a foundation pile: what it takes now.
void Position::NoteGoal(int pile) {
    const int goal = pile - FirstGoal;
    KindSet takes = 0;
    if (!rules_->RunsLeave && goal < rules_->GoalPiles) {
        if (IsEmpty(pile)) {
            takes = rules_->BaseKinds;
        } else if (Count(pile) != RankCount) {
            takes = rules_->GoalFits[Index(rules_->GoalHalf(goal))][Index(TopKind(pile))];
        }
    }
    taken_[Index(goal)] = takes;
    goalTakes_ = 0;
    for (const KindSet set : taken_) goalTakes_ |= set;
}

// A card has become the top of its pile, or has ceased to be it.
void Position::NoteTop(int pile, const Entry& entry) {
    const KindSet kind = Only(KindOf(entry.Card));
    const std::size_t pack = (entry.Card & SecondDeck) != 0 ? 1 : 0;
    if (IsHome(pile)) {
        homeTops_[pack] ^= kind;
        if (entry.Settled) settledTake_ ^= rules_->HomeFits[Index(KindOf(entry.Card))];
    } else if (IsRes(pile)) {
        resTops_[pack] ^= kind;
    }
}

// Whether a card there stays until it goes to a foundation, or goes with all that lies on it.
bool Position::IsSettled(int kind, const Entry& below, bool bottom) const {
    if (rules_->MultiMove) return true;
    if (bottom) return rules_->HomeUnder[Index(kind)] == 0;
    const bool fillsEmpty =
        !rules_->FillFromStock && (rules_->EmptyNum == -1 || rules_->EmptyNum == RankOf(kind));
    return !fillsEmpty && Has(rules_->HomeFits[Index(KindOf(below.Card))], kind);
}

// What is known of a pile is known up to each card, so that a card that leaves takes its part along.
void Position::Push(int pile, Card card) {
    auto& entries = piles_[Index(pile)];
    const Entry& below = entries[counts_[Index(pile)]];
    const bool bottom = counts_[Index(pile)] == 0;
    Entry& entry = entries[++counts_[Index(pile)]];
    const int kind = KindOf(card);
    if (!bottom) NoteTop(pile, below);
    entry.Card = card;
    entry.Hash = Mixed(below.Hash + rules_->Key[card]);
    if (bottom && IsHome(pile)) ++usedHome_;
    if (IsHome(pile)) {
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
            const int under = KindOf(below.Card);
            if (Has(rules_->HomeFits[Index(under)], kind) && (below.Card & Closed) == 0)
                worth += weights_->Pair;
            if (Has(rules_->LiftFits[Index(under)], kind)) {
                entry.Lifted = static_cast<std::uint8_t>(below.Lifted + 1);
                if ((below.Card & Closed) == 0) worth += weights_->Lifted;
            }
            if (rules_->RunsLeave && Has(rules_->RunFits[Index(under)], kind)) {
                entry.Leaving = static_cast<std::uint8_t>(below.Leaving + 1);
                if ((below.Card & Closed) == 0) worth += weights_->Leaving + weights_->Longer * below.Leaving;
            }
        }
        entry.Settled = IsSettled(kind, below, bottom);
        entry.Worth = static_cast<std::int16_t>(worth);
        worth_ += worth - below.Worth;
    } else if (IsRes(pile)) {
        ++cardsRes_;
        if (bottom) ++usedRes_;
    } else if (IsGoal(pile)) {
        ++cardsHome_;
        if (++homeCopies_[Index(kind)] == rules_->Copies[Index(kind)]) allHome_ |= Only(kind);
        NoteGoal(pile);
    }
    NoteTop(pile, entry);
    sum_ += factors_[Index(pile)] * (entry.Hash - below.Hash);
}

void Position::CutTo(int pile, int count) {
    const Entry& top = Top(pile);
    NoteTop(pile, top);
    if (count > 0) NoteTop(pile, At(pile, count - 1));
    counts_[Index(pile)] = static_cast<std::uint8_t>(count);
    sum_ -= factors_[Index(pile)] * (top.Hash - Top(pile).Hash);
    if (IsHome(pile)) {
        worth_ -= top.Worth - Top(pile).Worth;
        if (count == 0) --usedHome_;
    } else if (IsRes(pile)) {
        --cardsRes_;
        if (count == 0) --usedRes_;
    }
}

Card Position::Pop(int pile) {
    const Card card = Top(pile).Card;
    CutTo(pile, Count(pile) - 1);
    if (IsGoal(pile)) {
        NoteGoal(pile);
        --cardsHome_;
        --homeCopies_[Index(KindOf(card))];
        allHome_ &= ~Only(KindOf(card));
    }
    return card;
}

void Position::Note(Change::Kind what, int from, int to, int count) {
    undo_.push_back({what, static_cast<std::uint8_t>(from), static_cast<std::uint8_t>(to),
                     static_cast<std::uint8_t>(count)});
}

// The cards keep their order and lie open afterwards.
void Position::Carry(int from, int to, int count) {
    const int first = Count(from) - count;
    for (int place = first; place < first + count; ++place) {
        if ((At(from, place).Card & Closed) != 0) Note(Change::Kind::FaceUp, from, 0, place);
    }
    Note(Change::Kind::Carry, from, to, count);
    if (count == 1) {
        Push(to, static_cast<Card>(Pop(from) & ~Closed));
    } else {
        for (int place = first; place < first + count; ++place) {
            Push(to, static_cast<Card>(At(from, place).Card & ~Closed));
        }
        CutTo(from, first);
    }
    if (IsHome(from)) OpenTop(from);
}

void Position::OpenTop(int pile) {
    if (IsEmpty(pile) || (Top(pile).Card & Closed) == 0) return;
    Note(Change::Kind::OpenTop, pile, 0, 0);
    Push(pile, static_cast<Card>(Pop(pile) & ~Closed));
}

void Position::CarryAndSettle(int from, int to, int count) {
    if (IsGoal(to) && !rules_->RunsLeave && Count(to) == RankCount) return;  // a full pile refuses in silence
    Carry(from, to, count);
    Settle();
}

// The card, and what lies on it, is pushed anew.
void Position::SetClosed(int pile, int place) {
    std::array<Card, Capacity> above;
    int count = 0;
    while (Count(pile) > place) above[Index(count++)] = Pop(pile);
    above[Index(count - 1)] |= Closed;
    while (count > 0) Push(pile, above[Index(--count)]);
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

void Position::TakeBack(std::size_t mark) {
    while (undo_.size() > mark) {
        const Change change = undo_.back();
        undo_.pop_back();
        switch (change.What) {
            case Change::Kind::Carry: {
                const int first = Count(change.To) - change.Count;
                if (change.Count == 1) {
                    Push(change.From, Pop(change.To));
                } else {
                    for (int place = first; place < first + change.Count; ++place) {
                        Push(change.From, At(change.To, place).Card);
                    }
                    CutTo(change.To, first);
                }
                break;
            }
            case Change::Kind::TurnOver:
                for (int i = 0; i < change.Count; ++i) Push(change.From, Pop(change.To));
                break;
            case Change::Kind::OpenTop:
                Push(change.From, static_cast<Card>(Pop(change.From) | Closed));
                break;
            case Change::Kind::FaceUp:
                SetClosed(change.From, change.Count);
                break;
            case Change::Kind::CountRedeal:
                --redeals_;
                break;
            case Change::Kind::CountPileDeal:
                --pileDeals_;
                break;
        }
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
            if (pileDeals_ < FirstPresses) {
                DealStockToHome();
                Note(Change::Kind::CountPileDeal, 0, 0, 0);
                ++pileDeals_;
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
    Note(Change::Kind::CountRedeal, 0, 0, 0);
    ++redeals_;
    if (rules_->Gathers) {
        Gather();
        return;
    }
    const int count = Count(WastePile);
    Note(Change::Kind::TurnOver, WastePile, StockPile, count);
    for (int i = 0; i < count; ++i) Push(StockPile, Pop(WastePile));
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
void Position::Settle() {
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
    std::uint64_t hash = sum_;
    for (int pile = 0; pile < ordered; ++pile) {
        const std::uint64_t top = Top(pile).Hash;
        hash += factors_[Index(pile)] * (Mixed(top + Index(pile)) - top);
    }
    return Mixed(hash + TalonHash());
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
    if (rules_->CanRedeal && rules_->Redeals > 0) hash += Mixed(static_cast<std::uint64_t>(redeals_) + 1);
    return hash + static_cast<std::uint64_t>(pileDeals_) * 0x8EBC6AF09C88C6E3U;
}

}  // namespace Solver
