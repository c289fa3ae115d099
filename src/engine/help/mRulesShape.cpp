// The shape of the opening deal, from a game's numbers alone.
#include <algorithm>
#include <charconv>
#include <functional>
#include <utility>

#include "engine/help/mRulesFacts.h"

namespace mRulesFacts {

namespace {

constexpr int RankCards = 13;
constexpr int OneDeck = 52;

int SuitsInDeck(const Definition& game) {
    switch (game.Suits) {
        case SuitType::OneSuit:
            return 1;
        case SuitType::TwoSuits:
            return game.Deck < OneDeck ? 1 : 2;
        case SuitType::FourSuits:
            break;
    }
    return game.Deck < OneDeck ? 2 : 4;
}

// How many cards the deal lays on the foundations.
int GoalCardsOf(const Definition& game) {
    const int suitpiles = game.Deck / RankCards;
    if (game.GoalCards == 0) return 0;
    switch (game.GoalBase) {
        case GoalType::Aces:
        case GoalType::Twos:
        case GoalType::Kings:
        case GoalType::FirstCard:
            return std::min(game.GoalCards, suitpiles);
        case GoalType::AcesAndKings:
            return suitpiles;
        case GoalType::OneOfEachSuit: {
            int piles = 0;
            for (int j = 0; j < game.GoalPiles; ++j) piles += j % 4 < SuitsInDeck(game) ? 1 : 0;
            return piles;
        }
        case GoalType::PlainAces:
            break;
    }
    return 0;
}

// Deals cards to piles as long as there are any.
class Dealer {
public:
    Dealer(int piles, int cards) : piles_(static_cast<std::size_t>(piles)), left_(cards) {}

    [[nodiscard]] bool Left() const { return left_ > 0; }
    void To(int pile, bool closed) {
        piles_[static_cast<std::size_t>(pile)].push_back(closed);
        --left_;
    }
    template <typename Closed>
    void Rows(int count, Closed closed) {
        const int piles = Count();
        for (int i = 0; i < count && Left(); ++i) To(i % piles, closed(i, i % piles, i / piles));
    }
    void Stairs(bool right, bool closedBelow) {
        for (int r = 0; r < Count(); ++r) {
            for (int j = 0; j < Count() - r && Left(); ++j) To(right ? j + r : j, closedBelow && j != 0);
        }
    }
    // Nine piles, the length of each by its distance from the nearer end.
    template <typename Length>
    void NinePiles(Length length, bool closedBelow, bool closedTop) {
        constexpr int Piles = 9;
        constexpr int Longest = 8;
        for (int p = 0; p < std::min(Piles, Count()); ++p) {
            const int cards = std::min(Longest, length(std::min(p, Piles - 1 - p)));
            for (int i = 0; i < cards && Left(); ++i) To(p, i < cards - 1 ? closedBelow : closedTop);
        }
    }
    void Yukon(int count, int first, int base, int lastPile) {
        for (int i = 0; i < count && Left(); ++i) {
            const int c = i % Count();
            const int r = i / Count();
            if (r < (c == 0 ? first : base + c)) To(c, r < c && c <= lastPile);
        }
    }
    void OpenTops() {
        for (std::vector<bool>& pile : piles_) {
            if (!pile.empty()) pile.back() = false;
        }
    }
    void Take(Shape& shape) {
        shape.Piles = std::move(piles_);
        shape.StockCards = left_;
    }
    void Drop(int cards) { left_ -= std::min(cards, left_); }

private:
    [[nodiscard]] int Count() const { return static_cast<int>(piles_.size()); }

    std::vector<std::vector<bool>> piles_;
    int left_;
};

int YukonBase(std::string_view tag) {
    constexpr int Usual = 5;
    int base = 0;
    const auto [end, fault] = std::from_chars(tag.data(), tag.data() + tag.size(), base);
    return fault == std::errc{} && end == tag.data() + tag.size() ? base : Usual;
}

void DealTableau(const Definition& game, Dealer& deal) {
    const int cards = game.HomeCards;
    const int last = game.HomePiles - 1;
    const bool allOut = game.StockPress == StockMove::None;
    const auto openPiles = [&](auto open) {
        deal.Rows(cards, [&](int, int c, int) { return !open(c); });
        deal.OpenTops();
    };
    switch (game.HomePattern) {
        case HomeType::Rows:
            deal.Rows(cards,
                      [&](int i, int, int) { return game.HomeOpen != 0 && i < cards - game.HomeOpen; });
            break;
        case HomeType::StairsRight:
        case HomeType::StairsLeft:
            deal.Stairs(game.HomePattern == HomeType::StairsRight, game.HomeOpen != 0);
            deal.OpenTops();
            break;
        case HomeType::Cone:
        case HomeType::ClosedCone:
            deal.NinePiles([&](int fromEnd) { return (allOut ? 4 : 2) + fromEnd; },
                           game.HomePattern == HomeType::ClosedCone, false);
            break;
        case HomeType::InverseCone:
            deal.NinePiles([&](int fromEnd) { return (allOut ? 7 : 5) - fromEnd; }, false, false);
            break;
        case HomeType::ClosedInverseCone:
            deal.NinePiles([&](int fromEnd) { return (allOut ? 8 : 5) - fromEnd; }, true, true);
            deal.OpenTops();
            break;
        case HomeType::ClosedBlock:
            deal.Rows(cards, [](int, int c, int r) { return r < 3 && c < 4; });
            break;
        case HomeType::AlternateRows:
            deal.Rows(cards, [](int, int, int r) { return r % 2 == 0; });
            break;
        case HomeType::EvenPilesOpen:
            openPiles([](int c) { return c % 2 == 0; });
            break;
        case HomeType::AllButPile4Open:
            openPiles([](int c) { return c != 4; });
            break;
        case HomeType::Pile4Open:
            openPiles([](int c) { return c == 4; });
            break;
        case HomeType::EndPilesOpen:
            openPiles([=](int c) { return c == 0 || c == last; });
            break;
        case HomeType::Piles048Open:
            openPiles([](int c) { return c == 0 || c == 4 || c == 8; });
            break;
        case HomeType::Yukon:
            deal.Yukon(cards + 26, 1, YukonBase(game.Tag), 6);
            break;
        case HomeType::YukonRows:
            deal.Rows(cards, [](int, int c, int r) { return r < c && c <= 6; });
            break;
        case HomeType::DoubleYukon:
            deal.Yukon(cards + 51, 4, 8, 8);
            break;
        case HomeType::BySuit:
            deal.Drop(OneDeck);
            break;
        case HomeType::RandomSpread:
            deal.Drop(game.Deck);
            break;
    }
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
    Shape shape;
    shape.GoalCards = GoalCardsOf(game);
    int cards = game.Deck - shape.GoalCards;
    // The other two suits stay out of the game.
    if (game.StockKind == StockType::TwoSuits && SuitsInDeck(game) == 4) cards -= game.Deck / 2;
    shape.ResCards = game.ResPiles > 0 ? std::min(game.ResCards, cards) : 0;
    Dealer deal(game.HomePiles, cards - shape.ResCards);
    DealTableau(game, deal);
    deal.Take(shape);
    shape.Known = game.HomePattern != HomeType::BySuit && game.HomePattern != HomeType::RandomSpread;
    return shape;
}

}  // namespace mRulesFacts
