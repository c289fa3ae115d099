// A position that moves are made on and taken back from: all piles as stacks in one block of memory, each
// card with what a search wants to know of the pile up to there, so that a move recomputes nothing but the
// cards moved.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <vector>

#include "engine/state/mDeal.h"
#include "solver/Rules.h"
#include "solver/Weights.h"

namespace Solver {

/// What a player does. `Count` cards go from pile to pile; or the stock is pressed, or its marker clicked.
struct Move {
    enum class Kind : std::uint8_t {
        Play,
        Press,
        Redeal,
        /// `Count` presses of the stock and clicks on its marker, then the top of the waste goes to `To`.
        Talon,
    } What = Kind::Play;
    std::uint8_t From = 0;
    std::uint8_t To = 0;
    std::uint8_t Count = 0;
    bool operator==(const Move&) const = default;
};

class Position {
public:
    /// A card in a pile, and of the pile up to it:
    struct Entry {
        std::uint64_t Hash = 0;
        std::int16_t Worth = 0;  ///< how good the order of the cards is
        Solver::Card Card = 0;
        std::uint8_t Low = 0xff;   ///< the fewest steps from the foundations' base
        std::uint8_t Lifted = 0;   ///< cards down from here that obey the rule of a lifted run
        std::uint8_t Leaving = 0;  ///< cards down from here that obey the rule of a leaving run
        bool Settled = false;      ///< can leave for a foundation only, or with all that lies on it
    };

    /// The rules and the weights must outlive the position.
    Position(const Rules& rules, const Weights& weights);

    /// Empties the table and lays out an opening, up to what happens by itself then.
    void Begin(const mDeal::Opening& opening);
    /// Empties the table.
    void Clear();
    /// Puts a card on a pile, outside of play.
    void Put(int pile, Card card) { Push(pile, card); }
    /// Lets happen what happens by itself.
    void Settle();

    [[nodiscard]] const Rules& Game() const { return *rules_; }
    [[nodiscard]] int Count(int pile) const { return counts_[Index(pile)]; }
    [[nodiscard]] bool IsEmpty(int pile) const { return counts_[Index(pile)] == 0; }
    /// The entry of a card, 0 at the bottom; of -1 that of the empty pile.
    [[nodiscard]] const Entry& At(int pile, int place) const { return piles_[Index(pile)][Index(place + 1)]; }
    [[nodiscard]] const Entry& Top(int pile) const { return piles_[Index(pile)][counts_[Index(pile)]]; }
    /// The kind of the top card of a pile that is not empty.
    [[nodiscard]] int TopKind(int pile) const { return KindOf(Top(pile).Card); }
    [[nodiscard]] int EmptyHome() const { return rules_->HomePiles - usedHome_; }
    [[nodiscard]] int EmptyRes() const { return rules_->ResPiles - usedRes_; }
    [[nodiscard]] int CardsInRes() const { return cardsRes_; }
    /// The kinds that lie on top in the tableau.
    [[nodiscard]] KindSet HomeTops() const { return homeTops_[0] | homeTops_[1]; }
    /// The same of the reserve.
    [[nodiscard]] KindSet ResTops() const { return resTops_[0] | resTops_[1]; }
    /// The kinds that may be laid on settled cards; of use only where no two cards take the same.
    [[nodiscard]] KindSet SettledTake() const { return settledTake_; }
    [[nodiscard]] int CardsHome() const { return cardsHome_; }
    [[nodiscard]] bool Won() const { return cardsHome_ == rules_->CardsToWin; }
    [[nodiscard]] int RedealsMade() const { return redeals_; }
    [[nodiscard]] bool RedealAllowed() const {
        return rules_->CanRedeal && (rules_->Redeals < 0 || redeals_ < rules_->Redeals);
    }
    /// How often the stock was dealt onto the piles, where only the first three presses do that.
    [[nodiscard]] int PileDeals() const { return pileDeals_; }
    /// Whether a press of the stock deals onto the piles, or a redeal gathers them: then the piles' order
    /// counts.
    [[nodiscard]] bool DealsOntoPiles() const;
    /// The kinds that a foundation pile takes.
    [[nodiscard]] KindSet GoalTakes() const { return goalTakes_; }
    /// The kinds of which all cards lie on foundations.
    [[nodiscard]] KindSet AllHome() const { return allHome_; }

    // What the rules say of the position.
    [[nodiscard]] int MaxMoveCards()
        const;  ///< how many cards may go with a lifted one where runs are limited
    /// How many cards may be lifted from a pile at once, whatever their faces.
    [[nodiscard]] int LiftableCards(int pile) const;
    [[nodiscard]] bool IsLiftable(int pile, int count) const {
        return count == 1 || (At(pile, Count(pile) - count).Card & Closed) == 0;
    }
    [[nodiscard]] bool EmptyHomeAccepts(int kind, int from) const {
        if (rules_->EmptyNum != -1 && rules_->EmptyNum != RankOf(kind)) return false;
        return !rules_->FillFromStock || from == StockPile || from == WastePile;
    }
    [[nodiscard]] bool HomeAccepts(int kind, int from, int to) const {
        const int count = Count(to);
        if (count == 0) return EmptyHomeAccepts(kind, from);
        if (!Has(rules_->HomeFits[Index(TopKind(to))], kind)) return false;
        if (IsHome(from) && (from == to || rules_->NoH2H)) return false;
        return rules_->HomeMax == 0 || count < rules_->HomeMax;
    }
    [[nodiscard]] bool ResAccepts(int to, int count) const;
    [[nodiscard]] bool GoalAccepts(int kind, int to) const;

    /// Makes a move that the rules allow, with all that follows by itself.
    void Make(const Move& move);
    /// How far the moves have come; TakeBack returns to there.
    [[nodiscard]] std::size_t Mark() const { return undo_.size(); }
    void TakeBack(std::size_t mark);

    /// The same for positions that differ only in what makes no difference: which of several like piles is
    /// which, and which of several like cards. That two other positions of one search get the same number
    /// must be expected once in 2^64 pairs.
    [[nodiscard]] std::uint64_t Hash() const;
    /// The sum of the piles' worths.
    [[nodiscard]] int PilesWorth() const { return worth_; }

    /// Receives the moves made, as the player would make them, where it is set.
    std::vector<Move>* Trace = nullptr;

private:
    /// One elementary change, for taking it back.
    struct Change {
        enum class Kind : std::uint8_t { Carry, TurnOver, OpenTop, FaceUp, CountRedeal, CountPileDeal } What;
        std::uint8_t From;
        std::uint8_t To;
        std::uint8_t Count;
    };

    static constexpr int Capacity = 105;
    [[nodiscard]] static constexpr std::size_t Index(int number) { return static_cast<std::size_t>(number); }

    void Push(int pile, Card card);
    void CutTo(int pile, int count);
    void NoteGoal(int pile);
    void NoteTop(int pile, const Entry& entry);
    [[nodiscard]] bool IsSettled(int kind, const Entry& below, bool bottom) const;
    Card Pop(int pile);
    void Note(Change::Kind what, int from, int to, int count);
    void Carry(int from, int to, int count);
    void OpenTop(int pile);
    void CarryAndSettle(int from, int to, int count);
    void SetClosed(int pile, int place);

    void PressStock();
    void DealStockToHome();
    void ClickMarker();
    void Gather();

    [[nodiscard]] bool HasCompleteRun(int pile) const;
    void MoveCompleteRun(int pile);
    void OfferTop(int pile);
    void FoundationPass();
    void RefillPass();
    [[nodiscard]] std::uint64_t TalonHash() const;

    const Rules* rules_;
    const Weights* weights_;
    std::array<std::array<Entry, Capacity>, PileCount> piles_{};
    std::array<std::uint8_t, PileCount> counts_{};
    std::uint64_t sum_ = 0;  ///< of the hashes of all piles but stock and waste, each times its factor
    int worth_ = 0;
    std::array<std::uint64_t, PileCount> factors_{};
    std::array<std::uint8_t, Kinds> homeCopies_{};
    KindSet allHome_ = 0;
    std::array<KindSet, StockPile - FirstGoal> taken_{};  ///< by foundation pile
    KindSet goalTakes_ = 0;
    std::array<KindSet, 2> homeTops_{}, resTops_{};  ///< by pack: so no two cards of a set are alike
    KindSet settledTake_ = 0;
    int cardsHome_ = 0;
    int usedHome_ = 0, usedRes_ = 0;  ///< piles with cards
    int cardsRes_ = 0;
    int redeals_ = 0;
    int pileDeals_ = 0;
    std::vector<Change> undo_;
};

}  // namespace Solver
