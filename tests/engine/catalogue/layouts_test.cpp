// The opening deals of all games on the plate: nothing outside, nothing on top of another pile, room
// for the piles to grow.
#include <algorithm>
#include <set>

#include "support/EngineTest.h"

namespace {

// The playing area that a game is centred in.
constexpr int AreaLeft = 1790;
constexpr int AreaRight = 13690;
constexpr int CardsOfRoom = 4;

// Where a pile has less room than that before it meets another.
const std::set<std::string> lessRoom = {
    "King Albert",     // the reserve lies close below the longest of the nine piles
    "Mobile Gallery",  // the random spread can make a pile of the upper row twice as long as usual
};

struct Box {
    int Left, Top, Right, Bottom;

    static Box OfCard(const Point& place) {
        return {place.X, place.Y, place.X + CardWidth, place.Y + CardHeight};
    }
    void Add(const Point& place) {
        Left = std::min(Left, place.X);
        Top = std::min(Top, place.Y);
        Right = std::max(Right, place.X + CardWidth);
        Bottom = std::max(Bottom, place.Y + CardHeight);
    }
    [[nodiscard]] bool Overlaps(const Box& other) const {
        return Left < other.Right && other.Left < Right && Top < other.Bottom && other.Top < Bottom;
    }
    [[nodiscard]] bool OnPlate() const {
        return Left >= 0 && Top >= 0 && Right <= PlateWidth && Bottom <= PlateHeight;
    }
    [[nodiscard]] bool InArea() const { return Left >= AreaLeft && Right <= AreaRight; }
};

struct Pile {
    int Cell;
    int Number;
    Box Place;

    [[nodiscard]] std::string Name() const {
        const char* names[] = {"tableau", "stock", "waste", "foundation", "reserve"};
        return std::string(names[Cell]) + ' ' + std::to_string(Number);
    }
};

// The piles that can hold cards, each with the place that it takes at the deal; the waste as thick as
// the stock can make it.
std::vector<Pile> DealtPiles() {
    std::vector<Pile> piles;
    for (int Cell = 0; Cell < CellCount; ++Cell) {
        for (int number = 0; number < gGames->Piles(Cell); ++number) {
            const bool unused =
                Cell == Stock && gArray->GetTop(Stock) < 0 && gGames->StockNum == StockNum::None;
            if (unused) continue;
            Pile pile{Cell, number, Box::OfCard(gGames->Position(Cell, number, 0, 0))};
            for (int Pos = 0; Pos <= gArray->GetTop(Cell, number); ++Pos) {
                const CardRecord& card = PicBack.PicCards(gArray->GetPicID(Cell, number, Pos));
                pile.Place.Add({card.Left, card.Top});
            }
            if (Cell == Waste)
                pile.Place.Add(gGames->Position(Cell, number, std::max(0, gArray->GetTop(Stock))));
            if (Cell == Goal) pile.Place.Add(gGames->Position(Cell, number, 1));
            piles.push_back(pile);
        }
    }
    return piles;
}

void ExpectAllOnPlate() {
    for (int PicID = 0; PicID < gGames->TotalCards(); ++PicID) {
        const CardRecord& card = PicBack.PicCards(PicID);
        EXPECT_TRUE(card.Visible && Box::OfCard({card.Left, card.Top}).OnPlate()) << "card " << PicID;
    }
    cPlate::ForEachMark([](MarkKind kind, int index) {
        const MarkRecord& mark = PicBack.Mark(kind, index);
        EXPECT_TRUE(!mark.Visible || Box::OfCard({mark.Left, mark.Top}).OnPlate()) << "mark " << index;
    });
}

void ExpectApart(const std::vector<Pile>& piles) {
    for (std::size_t i = 0; i < piles.size(); ++i) {
        EXPECT_TRUE(piles[i].Place.InArea()) << piles[i].Name();
        for (std::size_t j = i + 1; j < piles.size(); ++j) {
            EXPECT_FALSE(piles[i].Place.Overlaps(piles[j].Place))
                << piles[i].Name() << " meets " << piles[j].Name();
        }
    }
}

// Complete runs choose their foundation by suit and deck, and may choose one that the game does not show:
// then all foundations have to share one place.
void ExpectRunsOnShownFoundations() {
    if (gGames->GameType() != GameType::CompleteRuns) return;
    const int runs = gGames->TotalCards() / 13;
    const int used = gGames->GoalDiv() == 0 ? runs : std::min(runs, gGames->GoalDiv());
    for (int pile = gGames->Piles(Goal); pile < used; ++pile) {
        EXPECT_EQ(gGames->Position(Goal, pile, 0), gGames->Position(Goal, 0, 0)) << "foundation " << pile;
    }
}

// The first tableau pile that cannot grow by some cards, with what it meets; empty where all can.
std::string Cramped(const std::vector<Pile>& piles) {
    for (const Pile& pile : piles) {
        if (pile.Cell != Home) continue;
        Box grown = pile.Place;
        const int top = gArray->GetTop(Home, pile.Number);
        grown.Add(gGames->Position(Home, pile.Number, top + CardsOfRoom));
        if (!grown.OnPlate() || !grown.InArea()) return pile.Name() + " meets the edge";
        for (const Pile& other : piles) {
            if (&other != &pile && grown.Overlaps(other.Place)) return pile.Name() + " meets " + other.Name();
        }
    }
    return {};
}

TEST(Layouts, EveryDealIsWellLaidOut) {
    const Engine engine;
    std::set<std::string> cramped;
    for (int SiD = 1; SiD <= gData->TotalGames(); ++SiD) {
        const std::string name = gData->GetGame(SiD);
        mGen::SetGameRules(name);
        // Where the lengths of the piles are a matter of chance, more deals are looked at.
        const int deals = gGames->HomeType() == HomeType::RandomSpread ? 60 : 3;
        for (int number = 1; number <= deals; ++number) {
            SCOPED_TRACE(name + " " + std::to_string(number));
            mGen::AsideGame aside;
            aside.Deal(name, static_cast<double>(number));
            ExpectAllOnPlate();
            ExpectRunsOnShownFoundations();
            const std::vector<Pile> piles = DealtPiles();
            ExpectApart(piles);
            const std::string fault = Cramped(piles);
            if (!fault.empty()) cramped.insert(name);
            EXPECT_TRUE(fault.empty() || lessRoom.contains(name)) << fault;
        }
    }
    EXPECT_EQ(cramped, lessRoom) << "games that need no exception";
}

}  // namespace
