// A position that moves are made on and taken back from: all piles as stacks in one block of memory, each
// card with what a search wants to know of the pile up to there, so that a move recomputes nothing but the
// cards moved.
#pragma once

#include <algorithm>
#include <array>
#include <bit>
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
        std::uint8_t Place = 0;  ///< from the bottom, which is 1; without it no copy would be of whole words
    };

    /// The rules and the weights must outlive the position.
    Position(const Rules& rules, const Weights& weights);

    /// Empties the table and lays out an opening, up to what happens by itself then.
    void Begin(const mDeal::Opening& opening);
    /// Empties the table.
    void Clear();
    /// Puts a card on a pile, outside of play.
    void Put(int pile, Card card);
    /// Lets happen what happens by itself.
    void Settle() {
        if (rules_->FollowUps) FollowUp();
    }

    [[nodiscard]] const Rules& Game() const { return *rules_; }
    [[nodiscard]] int Count(int pile) const { return now_.Counts[Index(pile)]; }
    [[nodiscard]] bool IsEmpty(int pile) const { return now_.Counts[Index(pile)] == 0; }
    /// The entry of a card, 0 at the bottom; of -1 that of the empty pile.
    [[nodiscard]] const Entry& At(int pile, int place) const { return piles_[Index(pile)][Index(place + 1)]; }
    [[nodiscard]] const Entry& Top(int pile) const { return piles_[Index(pile)][now_.Counts[Index(pile)]]; }
    /// The kind of the top card of a pile that is not empty.
    [[nodiscard]] int TopKind(int pile) const { return KindOf(Top(pile).Card); }
    [[nodiscard]] int EmptyHome() const { return rules_->HomePiles - now_.Used[InHome]; }
    [[nodiscard]] int EmptyRes() const { return rules_->ResPiles - now_.Used[InRes]; }
    [[nodiscard]] int CardsInRes() const { return now_.Cards[InRes]; }
    /// The kinds that lie on top in the tableau.
    [[nodiscard]] KindSet HomeTops() const { return now_.Tops[InHome][0] | now_.Tops[InHome][1]; }
    /// The piles of the tableau on which a card of one of these kinds lies on top.
    [[nodiscard]] PileSet HomeWith(KindSet kinds) const { return PilesWith(InHome, kinds); }
    /// The same of the reserve.
    [[nodiscard]] PileSet ResWith(KindSet kinds) const { return PilesWith(InRes, kinds); }
    /// Whether `test` is true of one of those piles of the tableau; asks until it is.
    template <typename Test>
    [[nodiscard]] bool AnyHomeTop(KindSet kinds, Test test) const {
        return AnyTop(InHome, kinds, test);
    }
    /// The same of the reserve.
    template <typename Test>
    [[nodiscard]] bool AnyResTop(KindSet kinds, Test test) const {
        return AnyTop(InRes, kinds, test);
    }
    /// The piles of the tableau without a card.
    [[nodiscard]] PileSet EmptyHomePiles() const { return now_.EmptyHomes; }
    /// The kinds that may be laid on settled cards; of use only where no two cards take the same.
    [[nodiscard]] KindSet SettledTake() const { return now_.SettledTake; }
    [[nodiscard]] int CardsHome() const { return now_.Cards[InGoal]; }
    [[nodiscard]] bool Won() const { return CardsHome() == rules_->CardsToWin; }
    [[nodiscard]] int RedealsMade() const { return now_.Redeals; }
    [[nodiscard]] bool RedealAllowed() const {
        return rules_->CanRedeal && (rules_->Redeals < 0 || now_.Redeals < rules_->Redeals);
    }
    /// How often the stock was dealt onto the piles, where only the first three presses do that.
    [[nodiscard]] int PileDeals() const { return now_.PileDeals; }
    /// Whether a press of the stock deals onto the piles, or a redeal gathers them: then the piles' order
    /// counts.
    [[nodiscard]] bool DealsOntoPiles() const {
        constexpr int FirstPresses = 3;
        if (!rules_->DealsOnto) return false;
        if (rules_->Gathers && RedealAllowed()) return true;
        if (rules_->OpenStock || IsEmpty(StockPile)) return false;
        return rules_->Press == StockMove::OneToEachPile ||
               (rules_->Press == StockMove::FirstThreeToPiles && now_.PileDeals < FirstPresses);
    }
    /// The kinds that a foundation pile takes.
    [[nodiscard]] KindSet GoalTakes() const { return now_.GoalTakes; }
    /// The kinds of which all cards lie on foundations.
    [[nodiscard]] KindSet AllHome() const {
        return rules_->Packs[0] & (now_.Home[1] | ~rules_->Packs[1]) & now_.Home[0];
    }

    // What the rules say of the position.
    [[nodiscard]] int MaxMoveCards()
        const;  ///< how many cards may go with a lifted one where runs are limited
    /// How many cards may be lifted from a pile at once, whatever their faces.
    [[nodiscard]] int LiftableCards(int pile) const {
        if (IsEmpty(pile)) return 0;
        if (!rules_->MultiMove || !IsHome(pile)) return 1;
        const int most = Top(pile).Lifted;
        return rules_->LimitedRuns && most > 1 ? std::min(most, MaxMoveCards() + 1) : most;
    }
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
    [[nodiscard]] bool GoalAccepts(int kind, int to) const { return Has(Takes(to), kind); }

    /// Makes a move that the rules allow, with all that follows by itself.
    void Make(const Move& move);
    struct Mark;
    /// The position as it is now, for TakeBack to return to.
    [[nodiscard]] Mark Here() const;
    /// Takes back all that was done after a mark.
    void TakeBack(const Mark& mark);
    struct Effect;
    /// Keeps what was done since a mark. False where that is too much.
    bool Remember(const Mark& mark, Effect& effect) const;
    /// Does again what was kept, in the very position in which it was done before: much faster than the
    /// moves.
    void Repeat(const Effect& effect);

    /// The same for positions that differ only in what makes no difference: which of several like piles is
    /// which, and which of several like cards. That two other positions of one search get the same number
    /// must be expected once in 2^64 pairs.
    [[nodiscard]] std::uint64_t Hash() const;
    /// The part of Hash that stock and waste have in it.
    [[nodiscard]] std::uint64_t TalonHash() const;
    /// What Hash will be after a play, without making it; `talon` is TalonHash. 0 where that is not to be
    /// told so simply: a closed card opens, something follows by itself, or the talon is concerned.
    [[nodiscard]] std::uint64_t HashAfter(const Move& play, std::uint64_t talon) const;
    /// The sum of the piles' worths.
    [[nodiscard]] int PilesWorth() const { return now_.Worth; }

    /// Receives the moves made, as the player would make them, where it is set.
    std::vector<Move>* Trace = nullptr;

private:
    /// A card that was taken from a pile, as it lay there.
    struct Removal {
        Entry Lay;
        std::uint8_t Pile;
    };

    static constexpr int Capacity = 105;
    static constexpr KindSet AllKinds = ~KindSet{0};
    /// What counts are kept by.
    enum Group : std::uint8_t { InHome, InRes, InGoal, InTalon, GroupCount };
    [[nodiscard]] static constexpr std::size_t Index(int number) { return static_cast<std::size_t>(number); }

    template <typename Test>
    [[nodiscard]] bool AnyTop(Group group, KindSet kinds, Test test) const {
        for (std::size_t pack = 0; pack < rules_->PackCount; ++pack) {
            for (KindSet left = kinds & now_.Tops[group][pack]; left != 0; left &= left - 1) {
                if (test(where_[pack * SecondDeck + Index(std::countr_zero(left))].Pile)) return true;
            }
        }
        return false;
    }
    [[nodiscard]] PileSet PilesWith(Group group, KindSet kinds) const {
        PileSet piles = 0;
        static_cast<void>(AnyTop(group, kinds, [&](int pile) {
            piles |= PileSet{1} << pile;
            return false;
        }));
        return piles;
    }
    // A card comes as an int: as a byte it would be spilled as one and read back as a word, which waits.
    void Lay(int pile, int card);
    void Remove(int pile, int count);
    void Fill(Entry& entry, Group group, bool bottom, int card) const;
    void NoteUse(Group group, int pile, int change);
    [[nodiscard]] KindSet Takes(int goal) const;
    void NoteGoals();
    void NoteHome(const Entry* cards, int count);
    void ToggleTop(Group group, const Entry& entry, KindSet there);
    [[nodiscard]] bool IsSettled(int kind, const Entry& below, bool bottom) const;
    void Carry(int from, int to, int count);
    void OpenTop(int pile);
    void CarryAndSettle(int from, int to, int count);
    void FollowUp();

    void PressStock();
    void DealStockToHome();
    void ClickMarker();
    void Gather();

    [[nodiscard]] bool HasCompleteRun(int pile) const;
    void MoveCompleteRun(int pile);
    void OfferTop(int pile);
    void FoundationPass();
    void RefillPass();

    /// All but the cards in the piles: few enough bytes to be copied for a mark, so that to take moves back
    /// is to put back the cards and nothing else.
    struct Summary {
        std::uint64_t Hash = 0;  ///< of all piles but stock and waste: the sum, each times its factor
        KindSet GoalTakes = 0;
        KindSet SettledTake = 0;
        std::array<KindSet, 2> Home{};  ///< by pack, the cards on foundations
        std::array<std::array<KindSet, 2>, GroupCount>
            Tops{};  ///< by pack: so no two cards of a set are alike
        PileSet EmptyHomes = 0;
        int Worth = 0;
        int Redeals = 0;
        int PileDeals = 0;
        std::array<std::uint8_t, GroupCount> Used{};  ///< piles with cards
        std::array<std::uint8_t, GroupCount> Cards{};
        std::array<std::uint8_t, PileCount> Counts{};
    };

    const Rules* rules_;
    const Weights* weights_;
    std::array<std::array<Entry, Capacity>, PileCount> piles_{};
    std::array<Group, PileCount> groups_{};
    std::array<std::uint64_t, PileCount> factors_{};
    struct Place {
        std::uint8_t Pile;
        std::uint8_t Number;  ///< from the bottom, which is 1
    };
    std::array<Place, 2 * SecondDeck> where_{};  ///< by card without its face
    Summary now_;
    std::vector<Removal> removals_;
};

struct Position::Mark {
    std::size_t Removals;
    Summary Then;
};

struct Position::Effect {
    static constexpr std::size_t Most = 8;
    std::size_t Count = 0;  ///< cards moved
    std::array<Removal, Most> Removals;
    std::array<Entry, Most> Laid;  ///< the same cards, as they lie in the end
    std::array<std::uint8_t, Most> Piles;
    Summary After;
};

inline Position::Mark Position::Here() const { return {removals_.size(), now_}; }

}  // namespace Solver
