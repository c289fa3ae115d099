// Weights by kind of game, found by trying.
#include "solver/Weights.h"

#include <algorithm>

namespace Solver {

Weights::Weights(const Rules& rules) {
    const bool twoPacks = rules.TotalCards > DeckCards;
    if (rules.RunsLeave) {
        // A run that leaves takes the worth of its pairs along: its cards must be worth more at home.
        Home = twoPacks ? 30 : 60;
        Covering = -14;
        Pair = 0;
        Lifted = 0;
        Leaving = 30;
        Longer = 1;
        EmptyPile = twoPacks ? 30 : 4;
        EmptyCell = twoPacks ? 17 : 24;
        Depth = -3;
        if (twoPacks) {
            Bottom = 32;
            Talon = -16;
        }
    } else if (twoPacks) {
        Covering = -8;
        Pair = 24;
        Lifted = 8;
        Closed = -56;
        EmptyPile = 3;
        EmptyCell = 11;
        Bottom = 32;
        Depth = 4;
    } else {
        Home = 56;
        Covering = -28;
        Pair = 19;
        Lifted = 12;
        EmptyPile = 8;
        EmptyCell = 19;
        Bottom = 36;
        Depth = -16;
    }
}

// Where foundations begin with different ranks, that of the card's suit counts; where they build both ways,
// the nearer end.
void Weights::CountSteps(const Rules& rules, const mDeal::Opening& opening) {
    std::array<int, Kinds> bases{};
    bases.fill(rules.Base);
    for (const auto& pile : opening.Piles[Goal]) {
        if (pile.empty()) continue;
        const CardFace& first = opening.Cards[static_cast<std::size_t>(pile.front().PicID)];
        const int suit = first.Suitpile % SuitCount;
        for (int rank = 0; rank < RankCount; ++rank)
            bases[static_cast<std::size_t>(suit * RankCount + rank)] = first.Num;
    }
    // Whether anything but an Ace lies on an Ace: then the foundations build up.
    KindSet onTwo = 0;
    for (int kind = 1; kind < Kinds; kind += RankCount)
        onTwo |= rules.GoalFits[0][static_cast<std::size_t>(kind)];
    bool up = false;
    for (int kind = 2; kind < Kinds; kind += RankCount) up = up || Has(onTwo, kind);
    for (int kind = 0; kind < Kinds; ++kind) {
        const int rank = RankOf(kind);
        const int base = bases[static_cast<std::size_t>(kind)];
        const int steps = rules.UpDown ? std::min(rank, King - rank)
                                       : ((up ? rank - base : base - rank) + RankCount) % RankCount;
        Steps[static_cast<std::size_t>(kind)] = static_cast<std::uint8_t>(steps);
    }
}

}  // namespace Solver
