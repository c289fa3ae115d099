// The shuffle, the deal up to the tableau, and the opening position.
#include "engine/state/mDeal.h"

#include <algorithm>
#include <numeric>
#include <utility>

namespace mDeal {

namespace {

Step OnGoal(int PicID, int Pile) { return {PicID, Goal, Pile, 0, false}; }

const CardFace& FaceAt(const Faces& cards, int PicID) { return cards.at(static_cast<std::size_t>(PicID)); }

// Aces, Twos or Kings, each on the pile of its deck and suit; for half and half, Aces on the first
// piles and Kings on the others.
Steps BaseRanks(const cGames& game, const Faces& cards) {
    const int count = game.Cards(Goal);
    const GoalType type = game.GoalType();
    Steps steps;
    for (int c = 0; c < game.TotalCards(); ++c) {
        const int rank = FaceAt(cards, c).Num;
        const int S = FaceAt(cards, c).Suitpile;
        bool placed = rank == Number(type) && S < count;
        if (type == GoalType::AcesAndKings) {
            placed = (rank == Ace && 2 * S < count) || (rank == King && 2 * S >= count);
        }
        if (placed) steps.push_back(OnGoal(c, S));
    }
    return steps;
}

// The deck's first card and the next ones of its rank, until as many lie as the game says.
Steps FirstRank(const cGames& game, const Faces& cards) {
    Steps steps;
    for (int c = 0; c < game.TotalCards(); ++c) {
        const auto placed = static_cast<int>(steps.size());
        if (placed < game.Cards(Goal) && FaceAt(cards, c).Num == FaceAt(cards, 0).Num) {
            steps.push_back(OnGoal(c, placed));
        }
    }
    return steps;
}

// For each pile the first card of its suit.
Steps OneOfEachSuit(const cGames& game, const Faces& cards) {
    std::vector<bool> taken(static_cast<std::size_t>(game.Piles(Goal)));
    Steps steps;
    for (int c = 0; c < game.TotalCards(); ++c) {
        for (int j = 0; j < game.Piles(Goal); ++j) {
            const auto pile = static_cast<std::size_t>(j);
            if (taken[pile] || FaceAt(cards, c).Suit != j % SuitCount) continue;
            taken[pile] = true;
            steps.push_back(OnGoal(c, j));
            break;
        }
    }
    return steps;
}

int TakeTop(Pack& stock) {
    const int PicID = stock.back();
    stock.pop_back();
    return PicID;
}

void Lay(Opening& opening, const Steps& steps) {
    for (const Step& step : steps) {
        auto& piles = opening.Piles.at(static_cast<std::size_t>(step.Cell));
        const auto pile = static_cast<std::size_t>(step.Pile);
        if (pile >= piles.size()) piles.resize(pile + 1);
        piles[pile].push_back({step.PicID, step.Closed});
    }
}

void SinkAllKings(Opening& opening) {
    for (int sweep = 0; sweep < KingSweeps; ++sweep) {
        for (std::vector<Lying>& pile : opening.Piles[Home]) {
            std::vector<int> ranks;
            ranks.reserve(pile.size());
            for (const Lying& card : pile) ranks.push_back(FaceAt(opening.Cards, card.PicID).Num);
            for (const int place : SinkKings(ranks)) {
                const auto at = static_cast<std::size_t>(place);
                // Both come to lie open.
                pile[at].Closed = pile[at - 1].Closed = false;
                std::swap(pile[at], pile[at - 1]);
            }
        }
    }
}

}  // namespace

std::vector<short> Shuffle(int cards, double number, RandomSource& source) {
    std::vector<short> work(static_cast<std::size_t>(cards));
    std::iota(work.begin(), work.end(), short{0});
    std::vector<short> values;
    values.reserve(work.size());
    source.SeedNegative(-10);
    int rest = cards;
    for (int i = 0; i < cards; ++i) {
        source.Mix(number);
        --rest;
        // Rounded, not cut: the ends 0 and `rest` come up half as often as the places between.
        const auto j = static_cast<std::size_t>(RoundToEven(static_cast<double>(source.Next()) * rest));
        values.push_back(work[j]);
        work[j] = work[static_cast<std::size_t>(rest)];
    }
    return values;
}

CardFace FaceOf(int value, SuitType suits) {
    int suit = 0;
    if (suits == SuitType::TwoSuits) suit = value % DeckCards / (2 * RankCount);
    if (suits == SuitType::FourSuits) suit = value % DeckCards / RankCount;
    return {.Suit = suit, .Num = value % RankCount, .Suitpile = value / RankCount};
}

Foundations DealGoal(const cGames& game, const Faces& cards, RandomSource& source) {
    Foundations goal;
    if (game.GoalType() == GoalType::Twos || game.GoalType() == GoalType::Kings) {
        goal.Base = Number(game.GoalType());
    }
    if (game.Cards(Goal) > 0) {
        switch (game.GoalType()) {
            case GoalType::FirstCard:
                goal.Base = FaceAt(cards, 0).Num;
                goal.Placed = FirstRank(game, cards);
                break;
            case GoalType::OneOfEachSuit:
                goal.Placed = OneOfEachSuit(game, cards);
                break;
            default:
                goal.Placed = BaseRanks(game, cards);
                break;
        }
    } else if (game.GoalType() == GoalType::FirstCard) {
        constexpr auto Choices = static_cast<float>(King);  // Ace to Queen
        goal.Base = static_cast<int>(source.Next() * Choices);
    }
    return goal;
}

Steps DealStock(const cGames& game, const Faces& cards, const std::vector<bool>& placed) {
    Steps steps;
    if (game.Piles(Stock) == 0) return steps;
    const bool closed = game.StockType() != StockType::Open;
    steps.reserve(placed.size());
    for (int c = 0; c < game.TotalCards(); ++c) {
        if (placed.at(static_cast<std::size_t>(c))) continue;
        if (game.StockType() == StockType::TwoSuits && FaceAt(cards, c).Suit >= 2) continue;
        steps.push_back({c, Stock, 0, static_cast<int>(steps.size()), closed});
    }
    return steps;
}

Steps DealWaste(const cGames& game, Pack& stock) {
    Steps steps;
    for (int i = 0; i < game.Cards(Waste) && !stock.empty(); ++i) {
        steps.push_back({TakeTop(stock), Waste, i, 0, false});
    }
    return steps;
}

Steps DealRes(const cGames& game, Pack& stock) {
    Steps steps;
    const int piles = game.Piles(Res);
    for (int i = 0; i < game.Cards(Res) && !stock.empty(); ++i) {
        steps.push_back({TakeTop(stock), Res, i % piles, i / piles, false});
    }
    return steps;
}

int EmptyNum(const cGames& game, int base) {
    if (game.GameType() != GameType::BaseFills) return game.EmptyNum;
    return base == Ace ? King : base - 1;
}

std::vector<int> SinkKings(std::vector<int>& ranks) {
    std::vector<int> places;
    for (std::size_t i = ranks.size(); i-- > 1;) {
        if (ranks[i] != King) continue;
        std::swap(ranks[i], ranks[i - 1]);
        places.push_back(static_cast<int>(i));
    }
    return places;
}

Opening Deal(const cGames& game, double number) {
    RandomSource source;
    const std::vector<short> values = Shuffle(game.TotalCards(), number, source);
    return Deal(game, values, source);
}

Opening Deal(const cGames& game, const std::vector<short>& values, RandomSource source) {
    Opening opening;
    for (const int Cell : {Home, Stock, Waste, Goal, Res}) {
        opening.Piles[static_cast<std::size_t>(Cell)].resize(static_cast<std::size_t>(game.Piles(Cell)));
    }
    for (const int value : values) opening.Cards.push_back(FaceOf(value, game.SuitType()));
    const Foundations goal = DealGoal(game, opening.Cards, source);
    opening.Base = goal.Base;
    opening.EmptyNum = EmptyNum(game, goal.Base);
    Lay(opening, goal.Placed);

    std::vector<bool> placed(opening.Cards.size());
    for (const Step& step : goal.Placed) placed[static_cast<std::size_t>(step.PicID)] = true;
    Pack stock;
    const Steps stacked = DealStock(game, opening.Cards, placed);
    for (const Step& step : stacked) stock.push_back(step.PicID);
    Lay(opening, DealWaste(game, stock));
    Lay(opening, DealRes(game, stock));
    Lay(opening, DealHome(game, opening.Cards, stock, source));
    // What is left.
    Lay(opening, {stacked.begin(), stacked.begin() + static_cast<std::ptrdiff_t>(stock.size())});

    if (OpensTops(game.HomeType())) {
        for (std::vector<Lying>& pile : opening.Piles[Home]) {
            if (!pile.empty()) pile.back().Closed = false;
        }
    }
    if (game.MoveKings()) SinkAllKings(opening);
    return opening;
}

}  // namespace mDeal
