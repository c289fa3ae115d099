// The tableau's deal: nineteen patterns, each a walk over places and a question which cards lie closed.
#include <algorithm>
#include <charconv>

#include "engine/rules/mCards.h"
#include "engine/rules/mFunc.h"
#include "engine/state/cArray.h"
#include "engine/state/cGames.h"
#include "engine/state/cPlate.h"
#include "engine/state/mRandom.h"

namespace mCards {

namespace {

constexpr int King = 12;

bool StockLeft() { return gArray->GetTop(Stock) >= 0; }

void DealTo(int Pile, int Pos, bool closed) {
    gArray->MoveCard(gArray->GetTopPicID(Stock), Home, Pile, Pos, tMod::Deal, 1, 0, closed ? 1 : 0);
}

// Rows from left to right over all piles; `closed` is asked for each card with its number in the walk,
// its pile and its row.
template <typename Closed>
void DealRows(int count, Closed closed) {
    const int piles = gGames->Piles(Home);
    for (int i = 0; i < count && StockLeft(); ++i)
        DealTo(i % piles, i / piles, closed(i, i % piles, i / piles));
}

// Row r of a staircase has one card less than the row below it; to the right each row begins one pile
// further on, to the left each begins at the first pile.
void DealStairs(bool right) {
    const int piles = gGames->Piles(Home);
    const bool closedBelow = gGames->CardsOpen() != 0;
    for (int r = 0; r < piles; ++r) {
        for (int j = 0; j < piles - r && StockLeft(); ++j)
            DealTo(right ? j + r : j, r, closedBelow && j != 0);
    }
}

// Nine piles of which `cards` tells the length; dealt pile by pile.
template <typename Cards, typename Closed>
void DealNinePiles(Cards cards, Closed closed) {
    constexpr int Piles = 9;
    constexpr int Longest = 8;
    for (int p = 0; p < Piles; ++p) {
        const int fromEnd = std::min(p, Piles - 1 - p);
        const int length = std::min(Longest, cards(fromEnd));
        for (int Pos = 0; Pos < length && StockLeft(); ++Pos) DealTo(p, Pos, closed(Pos, length));
    }
}

void DealBySuit() {
    constexpr int DeckCards = 52;
    for (int i = 0; i < DeckCards && StockLeft(); ++i) {
        const int pile = mFunc::CardSuit(gArray->GetTopPicID(Stock));
        DealTo(pile, gArray->GetTop(Home, pile) + 1, false);
    }
}

void DealAtRandom() {
    const int last = gGames->Piles(Home) - 1;
    while (StockLeft()) {
        // Rounded: the first and the last pile come up half as often as the others.
        const int pile = RoundToEven(static_cast<double>(gArray->Random.Next()) * last);
        DealTo(pile, gArray->GetTop(Home, pile) + 1, false);
    }
}

// Pile 0 takes `first` cards, pile c up to `lastPile` takes `base` + c; the closed cards make a
// triangle. Places beyond a pile's length are left out while the walk goes on to `count`.
void DealYukon(int count, int first, int base, int lastPile) {
    const int piles = gGames->Piles(Home);
    for (int i = 0; i < count && StockLeft(); ++i) {
        const int c = i % piles;
        const int r = i / piles;
        if (r >= (c == 0 ? first : base + c)) continue;
        DealTo(c, r, r < c && c <= lastPile);
    }
}

int YukonBase() {
    constexpr int Usual = 5;
    const std::string& tag = gGames->Tag();
    int base = 0;
    const auto [end, fault] = std::from_chars(tag.data(), tag.data() + tag.size(), base);
    return fault == std::errc{} && end == tag.data() + tag.size() ? base : Usual;
}

void FlipTops() {
    for (int p = 0; p < gGames->Piles(Home); ++p) {
        if (gArray->GetTop(Home, p) >= 0) PicBack.SetFaceMode(gArray->GetTopPicID(Home, p), 0);
    }
}

// Rows in which only some piles lie open; in the end every pile shows its top card.
template <typename Open>
void DealOpenPiles(Open open) {
    DealRows(gGames->Cards(Home), [&](int, int c, int) { return !open(c); });
    FlipTops();
}

}  // namespace

void DealHome() {
    constexpr auto allOpen = [](auto...) { return false; };
    constexpr auto allClosed = [](auto...) { return true; };
    const int cards = gGames->Cards(Home);
    const int piles = gGames->Piles(Home);
    const bool allOut = gGames->StockMove() == StockMove::None;  // the cones leave no stock then
    const auto cone = [base = allOut ? 3 : 1](int fromEnd) { return base + 1 + fromEnd; };

    switch (gGames->HomeType()) {
        case HomeType::Rows: {
            const int open = gGames->CardsOpen();
            DealRows(cards, [=](int i, int, int) { return open != 0 && i < cards - open; });
            break;
        }
        case HomeType::StairsRight:
            DealStairs(true);
            FlipTops();
            break;
        case HomeType::BySuit:
            DealBySuit();
            break;
        case HomeType::Cone:
            DealNinePiles(cone, allOpen);
            break;
        case HomeType::ClosedCone:
            DealNinePiles(cone, [](int Pos, int length) { return Pos < length - 1; });
            break;
        case HomeType::RandomSpread:
            DealAtRandom();
            break;
        case HomeType::ClosedBlock:
            DealRows(cards, [](int, int c, int r) { return r < 3 && c < 4; });
            break;
        case HomeType::StairsLeft:
            DealStairs(false);
            FlipTops();
            break;
        case HomeType::AlternateRows:
            DealRows(cards, [](int, int, int r) { return r % 2 == 0; });
            break;
        case HomeType::EvenPilesOpen:
            DealOpenPiles([](int c) { return c % 2 == 0; });
            break;
        case HomeType::AllButPile4Open:
            DealOpenPiles([](int c) { return c != 4; });
            break;
        case HomeType::Pile4Open:
            DealOpenPiles([](int c) { return c == 4; });
            break;
        case HomeType::EndPilesOpen:
            DealOpenPiles([=](int c) { return c == 0 || c == piles - 1; });
            break;
        case HomeType::Piles048Open:
            DealOpenPiles([](int c) { return c == 0 || c == 4 || c == 8; });
            break;
        case HomeType::InverseCone:
            DealNinePiles([base = allOut ? 2 : 0](int fromEnd) { return base + 1 + (4 - fromEnd); }, allOpen);
            break;
        case HomeType::ClosedInverseCone:
            DealNinePiles([base = allOut ? 3 : 0](int fromEnd) { return base + 1 + (4 - fromEnd); },
                          allClosed);
            FlipTops();
            break;
        case HomeType::Yukon:
            DealYukon(cards + 26, 1, YukonBase(), 6);
            break;
        case HomeType::YukonRows:
            DealRows(cards, [](int, int c, int r) { return r < c && c <= 6; });
            break;
        case HomeType::DoubleYukon:
            DealYukon(cards + 51, 4, 8, 8);
            break;
    }
    if (gGames->MoveKings()) SinkKings();
}

void SinkKings() {
    constexpr int Sweeps = 2;
    for (int sweep = 0; sweep < Sweeps; ++sweep) {
        for (int p = 0; p < gGames->Piles(Home); ++p) {
            bool swapped = false;
            for (int i = gArray->GetTop(Home, p); i >= 1; --i) {
                const int king = gArray->GetPicID(Home, p, i);
                if (mFunc::CardNum(king) != King) continue;
                const int other = gArray->GetPicID(Home, p, i - 1);
                gArray->MoveCard(king, Home, p, i - 1, tMod::Reposition, 0);
                gArray->MoveCard(other, Home, p, i, tMod::Reposition, 0);
                swapped = true;
            }
            if (!swapped) continue;
            for (int i = 0; i <= gArray->GetTop(Home, p); ++i) PicBack.ToFront(gArray->GetPicID(Home, p, i));
        }
    }
}

}  // namespace mCards
