// The tableau's deal: nineteen patterns, each a walk over places and a question which cards lie closed.
#include <algorithm>
#include <array>
#include <charconv>
#include <string>

#include "engine/state/mDeal.h"

namespace mDeal {

namespace {

// Deals from the top of the stock to the tableau, as long as there are cards.
class Dealer {
public:
    Dealer(const cGames& game, Pack& stock) : piles_(game.Piles(Home)), stock_(stock) {}

    [[nodiscard]] bool StockLeft() const { return !stock_.empty(); }
    [[nodiscard]] int TopCard() const { return stock_.back(); }
    void To(int Pile, int Pos, bool closed) {
        steps_.push_back({stock_.back(), Home, Pile, Pos, closed});
        stock_.pop_back();
    }
    void OnTop(int Pile) { To(Pile, heights_.at(static_cast<std::size_t>(Pile))++, false); }

    // Rows from left to right over all piles; `closed` is asked for each card with its number in the walk,
    // its pile and its row.
    template <typename Closed>
    void Rows(int count, Closed closed) {
        for (int i = 0; i < count && StockLeft(); ++i)
            To(i % piles_, i / piles_, closed(i, i % piles_, i / piles_));
    }

    // Row r of a staircase has one card less than the row below it; to the right each row begins one pile
    // further on, to the left each begins at the first pile.
    void Stairs(bool right, bool closedBelow) {
        for (int r = 0; r < piles_; ++r) {
            for (int j = 0; j < piles_ - r && StockLeft(); ++j)
                To(right ? j + r : j, r, closedBelow && j != 0);
        }
    }

    // Nine piles of which `cards` tells the length by the distance from the nearer end; dealt pile by pile.
    template <typename Cards, typename Closed>
    void NinePiles(Cards cards, Closed closed) {
        constexpr int Piles = 9;
        constexpr int Longest = 8;
        for (int p = 0; p < Piles; ++p) {
            const int length = std::min(Longest, cards(std::min(p, Piles - 1 - p)));
            for (int Pos = 0; Pos < length && StockLeft(); ++Pos) To(p, Pos, closed(Pos, length));
        }
    }

    // Pile 0 takes `first` cards, pile c takes `base` + c; the closed cards make a triangle up to
    // `lastPile`. Places beyond a pile's length are left out while the walk goes on to `count`.
    void Yukon(int count, int first, int base, int lastPile) {
        for (int i = 0; i < count && StockLeft(); ++i) {
            const int c = i % piles_;
            const int r = i / piles_;
            if (r < (c == 0 ? first : base + c)) To(c, r, r < c && c <= lastPile);
        }
    }

    Steps Take() { return std::move(steps_); }

private:
    int piles_;
    Pack& stock_;
    Steps steps_;
    std::array<int, PilesOfCell> heights_{};
};

int YukonBase(const std::string& tag) {
    constexpr int Usual = 5;
    int base = 0;
    const auto [end, fault] = std::from_chars(tag.data(), tag.data() + tag.size(), base);
    return fault == std::errc{} && end == tag.data() + tag.size() ? base : Usual;
}

}  // namespace

Steps DealHome(const cGames& game, const Faces& cards, Pack& stock, RandomSource& source) {
    constexpr auto allOpen = [](auto...) { return false; };
    constexpr auto allClosed = [](auto...) { return true; };
    const int count = game.Cards(Home);
    const int last = game.Piles(Home) - 1;
    const int open = game.CardsOpen();
    const bool allOut = game.StockMove() == StockMove::None;  // the cones leave no stock then
    const auto cone = [base = allOut ? 3 : 1](int fromEnd) { return base + 1 + fromEnd; };
    Dealer deal(game, stock);

    switch (game.HomeType()) {
        case HomeType::Rows:
            deal.Rows(count, [=](int i, int, int) { return open != 0 && i < count - open; });
            break;
        case HomeType::StairsRight:
            deal.Stairs(true, open != 0);
            break;
        case HomeType::BySuit:
            for (int i = 0; i < DeckCards && deal.StockLeft(); ++i)
                deal.OnTop(cards.at(static_cast<std::size_t>(deal.TopCard())).Suit);
            break;
        case HomeType::Cone:
            deal.NinePiles(cone, allOpen);
            break;
        case HomeType::ClosedCone:
            deal.NinePiles(cone, [](int Pos, int length) { return Pos < length - 1; });
            break;
        case HomeType::RandomSpread:
            // Rounded: the first and the last pile come up half as often as the others.
            while (deal.StockLeft()) deal.OnTop(RoundToEven(static_cast<double>(source.Next()) * last));
            break;
        case HomeType::ClosedBlock:
            deal.Rows(count, [](int, int c, int r) { return r < 3 && c < 4; });
            break;
        case HomeType::StairsLeft:
            deal.Stairs(false, open != 0);
            break;
        case HomeType::AlternateRows:
            deal.Rows(count, [](int, int, int r) { return r % 2 == 0; });
            break;
        case HomeType::EvenPilesOpen:
            deal.Rows(count, [](int, int c, int) { return c % 2 != 0; });
            break;
        case HomeType::AllButPile4Open:
            deal.Rows(count, [](int, int c, int) { return c == 4; });
            break;
        case HomeType::Pile4Open:
            deal.Rows(count, [](int, int c, int) { return c != 4; });
            break;
        case HomeType::EndPilesOpen:
            deal.Rows(count, [=](int, int c, int) { return c != 0 && c != last; });
            break;
        case HomeType::Piles048Open:
            deal.Rows(count, [](int, int c, int) { return c != 0 && c != 4 && c != 8; });
            break;
        case HomeType::InverseCone:
            deal.NinePiles([base = allOut ? 2 : 0](int fromEnd) { return base + 1 + (4 - fromEnd); },
                           allOpen);
            break;
        case HomeType::ClosedInverseCone:
            deal.NinePiles([base = allOut ? 3 : 0](int fromEnd) { return base + 1 + (4 - fromEnd); },
                           allClosed);
            break;
        case HomeType::Yukon:
            deal.Yukon(count + 26, 1, YukonBase(game.Tag()), 6);
            break;
        case HomeType::YukonRows:
            deal.Rows(count, [](int, int c, int r) { return r < c && c <= 6; });
            break;
        case HomeType::DoubleYukon:
            deal.Yukon(count + 51, 4, 8, 8);
            break;
    }
    return deal.Take();
}

bool OpensTops(HomeType pattern) {
    switch (pattern) {
        case HomeType::StairsRight:
        case HomeType::StairsLeft:
        case HomeType::EvenPilesOpen:
        case HomeType::AllButPile4Open:
        case HomeType::Pile4Open:
        case HomeType::EndPilesOpen:
        case HomeType::Piles048Open:
        case HomeType::ClosedInverseCone:
            return true;
        case HomeType::Rows:
        case HomeType::BySuit:
        case HomeType::Cone:
        case HomeType::ClosedCone:
        case HomeType::RandomSpread:
        case HomeType::ClosedBlock:
        case HomeType::AlternateRows:
        case HomeType::InverseCone:
        case HomeType::Yukon:
        case HomeType::YukonRows:
        case HomeType::DoubleYukon:
            break;
    }
    return false;
}

}  // namespace mDeal
