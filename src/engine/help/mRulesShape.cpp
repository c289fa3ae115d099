// The shape of the opening deal, from a game's numbers alone.
#include <algorithm>
#include <functional>

#include "engine/help/mRulesFacts.h"
#include "engine/state/cGames.h"
#include "engine/state/mDeal.h"

namespace mRulesFacts {

namespace {

int Count(const std::vector<std::vector<mDeal::Lying>>& piles) {
    int cards = 0;
    for (const auto& pile : piles) cards += static_cast<int>(pile.size());
    return cards;
}

}  // namespace

bool Shape::AnyClosed() const {
    return std::any_of(Piles.begin(), Piles.end(), [](const std::vector<bool>& pile) {
        return std::find(pile.begin(), pile.end(), true) != pile.end();
    });
}

bool Shape::ClosedOnOpen() const {
    return std::any_of(Piles.begin(), Piles.end(), [](const std::vector<bool>& pile) {
        return !std::is_sorted(pile.begin(), pile.end(), std::greater<>{});
    });
}

Shape ShapeOf(const Definition& game) {
    cGames numbers;
    // Sinking Kings is told apart; it changes no length.
    Definition unsunk = game;
    unsunk.MoveKings = false;
    mDefine::Apply(unsunk, numbers);
    // Any deal will do: the number of a deal decides where each card lies, not how many lie where.
    const mDeal::Opening opening = mDeal::Deal(numbers, 1.0);
    Shape shape;
    shape.Known = game.HomePattern != HomeType::BySuit && game.HomePattern != HomeType::RandomSpread;
    shape.GoalCards = Count(opening.Piles[Goal]);
    shape.ResCards = Count(opening.Piles[Res]);
    shape.StockCards = Count(opening.Piles[Stock]);
    for (const auto& pile : opening.Piles[Home]) {
        std::vector<bool>& closed = shape.Piles.emplace_back();
        if (!shape.Known) continue;
        for (const mDeal::Lying& card : pile) closed.push_back(card.Closed);
    }
    return shape;
}

}  // namespace mRulesFacts
