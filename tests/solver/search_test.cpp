// The search: what it leaves out loses no answer, and its wins are wins for the engine.
#include <algorithm>
#include <random>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "SolutionReplay.h"
#include "engine/catalogue/definition.h"
#include "engine/catalogue/families.h"
#include "solver/Games.h"
#include "solver/Search.h"
#include "support/FromEnvironment.h"

namespace {

using Solver::Answer;
using Solver::Result;
using Solver::Search;

cGames Named(const std::string& name) { return Solver::NumbersOf(*mFamilies::Find(name)); }

// For long runs by hand: so many rounds over all games. Without, one round over some of them.
int Rounds() { return FromEnvironment("TARNIVAL_SOLVER_ROUNDS", 0); }

std::vector<const Definition*> SomeGames(std::size_t each) {
    std::vector<const Definition*> games;
    const std::vector<const Definition*> all = mFamilies::All();
    for (std::size_t i = 0; i<all.size(); i += Rounds()> 0 ? 1 : each) games.push_back(all[i]);
    return games;
}

// Lays out the end of a game: all but `left` cards at home or nearly so, the rest anywhere.
class Endgame {
public:
    Endgame(Search& search, const mDeal::Opening& opening, std::uint32_t seed)
        : table_(search.Table()), rules_(search.Game()), random_(seed) {
        rules_.SetBase(opening.Base, opening.EmptyNum);
        search.Order().CountSteps(rules_, opening);
        table_.Clear();
        for (int value = 0; value < rules_.TotalCards; ++value) {
            left_.push_back(static_cast<Solver::Card>(value % Solver::Kinds +
                                                      (value >= Solver::Kinds ? Solver::SecondDeck : 0)));
        }
        std::shuffle(left_.begin(), left_.end(), random_);
        for (std::size_t pile = 0; pile < opening.Piles[Goal].size(); ++pile) {
            for (const mDeal::Lying& lying : opening.Piles[Goal][pile]) {
                const CardFace& face = opening.Cards[static_cast<std::size_t>(lying.PicID)];
                PutHome(Solver::FirstGoal + static_cast<int>(pile),
                        static_cast<Solver::Card>(face.Suitpile % SuitCount * RankCount + face.Num +
                                                  (face.Suitpile >= SuitCount ? Solver::SecondDeck : 0)));
            }
        }
        constexpr std::size_t CardsLeft = 8;
        const std::size_t wanted = rules_.RunsLeave ? RankCount : CardsLeft;
        while (left_.size() > wanted && (rules_.RunsLeave ? PutRun() : PutOne())) {
        }
        for (const Solver::Card card : left_) table_.Put(SomePile(), card);
        left_.clear();
        table_.Settle();
    }

private:
    void PutHome(int pile, Solver::Card card) {
        table_.Put(pile, card);
        left_.erase(std::find(left_.begin(), left_.end(), card));
    }

    bool PutOne() {
        for (const Solver::Card card : left_) {
            for (int goal = Solver::FirstGoal; goal < Solver::FirstGoal + rules_.GoalPiles; ++goal) {
                if (!table_.GoalAccepts(Solver::KindOf(card), goal)) continue;
                PutHome(goal, card);
                return true;
            }
        }
        return false;
    }

    // A run of the first cards that follow each other as runs do when they leave.
    bool PutRun() {
        const auto top = std::find_if(left_.begin(), left_.end(), [this](Solver::Card card) {
            return Solver::RankOf(Solver::KindOf(card)) == rules_.RunTop;
        });
        std::vector<Solver::Card> run{*top};
        while (run.size() < RankCount) {
            const auto next = std::find_if(left_.begin(), left_.end(), [&](Solver::Card card) {
                return Solver::Has(rules_.RunFits[static_cast<std::size_t>(Solver::KindOf(card))],
                                   Solver::KindOf(run.back()));
            });
            if (next == left_.end()) return false;
            run.push_back(*next);
        }
        const int suitpile =
            Solver::KindOf(run[0]) / RankCount + ((run[0] & Solver::SecondDeck) != 0 ? SuitCount : 0);
        const int goal = Solver::FirstGoal + (rules_.GoalDiv != 0 ? suitpile % rules_.GoalDiv : suitpile);
        for (const Solver::Card card : run) PutHome(goal, card);
        return true;
    }

    // Mostly the tableau.
    int SomePile() {
        const auto below = [this](int count) {
            return static_cast<int>(random_() % static_cast<unsigned>(count));
        };
        const int where = below(10);
        if (where == 0 && rules_.ResPiles > 0) {
            const int pile = Solver::FirstRes + below(rules_.ResPiles);
            if (!rules_.FreeCells || table_.IsEmpty(pile)) return pile;
        }
        const bool stock = rules_.Press != StockMove::None || rules_.OpenStock;
        if (where <= 2 && stock) return Solver::StockPile;
        return Solver::FirstHome + below(std::min(rules_.HomePiles, 4));
    }

    Solver::Position& table_;
    Solver::Rules& rules_;
    std::mt19937 random_;
    std::vector<Solver::Card> left_;
};

TEST(SolverSearch, LosesNoAnswerByWhatItLeavesOut) {
    constexpr Solver::Limits limits{.States = 700};
    constexpr Solver::Limits enough{.States = 100 * limits.States};  // in another order a win may come later
    int won = 0;
    int lost = 0;
    const auto rounds = static_cast<std::uint32_t>(std::max(8, Rounds()));
    std::uint32_t turn = 0;  // all kinds of rules come in one round, too
    for (const Definition* game : SomeGames(1)) {
        const cGames numbers = Solver::NumbersOf(*game);
        for (std::uint32_t round = 0; round < rounds; ++round, ++turn) {
            Search search(numbers, {.NoReturn = turn % 3 == 1, .SingleCards = turn % 5 == 4});
            const mDeal::Opening opening = mDeal::Deal(numbers, round + 1);
            search.Plain = true;
            const Endgame plainTable(search, opening, round);
            const Result plain = search.SolvePosition(limits);
            if (plain.Answer == Answer::Unknown) continue;
            ++(plain.Answer == Answer::Won ? won : lost);
            search.Plain = false;
            const Endgame table(search, opening, round);
            EXPECT_EQ(search.SolvePosition(enough).Answer, plain.Answer) << game->Name << ", round " << round;
        }
    }
    // Both answers must have been asked for.
    EXPECT_GT(won, 20);
    EXPECT_GT(lost, 20);
}

// A deal that is won by stricter rules, those of a switch or of a near relation with the same deal, cannot be
// lost by looser ones.
TEST(SolverSearch, LooserRulesKeepEveryWin) {
    constexpr Solver::Limits limits{.States = 3000};
    constexpr Solver::Limits enough{.States = 20 * limits.States};
    int wins = 0;
    const auto compare = [&](const Definition& game, Solver::Switches switches, const Definition& other) {
        const cGames numbers = Solver::NumbersOf(game);
        const cGames others = Solver::NumbersOf(other);
        Search strict(numbers, switches);
        Search loose(others, {});
        for (int number = 1; number <= std::max(2, Rounds()); ++number) {
            if (strict.Solve(mDeal::Deal(numbers, number), limits).Answer != Answer::Won) continue;
            ++wins;
            EXPECT_NE(loose.Solve(mDeal::Deal(others, number), enough).Answer, Answer::Lost)
                << game.Name << " and " << other.Name << ", deal " << number;
        }
    };
    const Solver::Switches switches[] = {
        {.NoReturn = true},
        {.SingleCards = true},
        {.NoReturn = true, .SingleCards = true, .Autoplay = true},
    };
    for (const Definition* game : SomeGames(6)) {
        for (const Solver::Switches& stricter : switches) compare(*game, stricter, *game);
    }
    EXPECT_GT(wins, 50);
    wins = 0;
    const std::pair<const char*, const char*> relations[] = {
        {"Baker's Game", "Color Cell"},
        {"British Canister", "Canister"},
        {"Color Patience", "Spanish Patience"},
        {"Fan", "Talent"},
        {"Fortress", "Cabinet"},
        {"Freecell", "Bouquet"},
        {"Klondike", "Impact"},
        {"Lawn", "Excel"},
        {"Nebula", "Baker's Dozen"},
        {"Somerset", "Morehead"},
        {"Spider", "Scarab"},
        {"Yukon", "Time Zone"},
    };
    for (const auto& [strict, loose] : relations)
        compare(*mFamilies::Find(strict), {}, *mFamilies::Find(loose));
    EXPECT_GT(wins, 5);
}

// Endgames that are won, though what looks harmless would lose them. All other cards are home.
TEST(SolverSearch, SpoilsNothingByWhatItDoesAtOnce) {
    constexpr int NoCard = -10;
    constexpr int Hearts = RankCount;
    constexpr int Diamonds = 2 * RankCount;
    constexpr int Clubs = 3 * RankCount;
    const struct {
        const char* Game;
        int EmptyTakes;
        std::vector<std::vector<int>> Piles;
    } endgames[] = {
        // The Five fits on the Six, and would shut in the Four under it: first the Six has to leave for the
        // Seven, and that for the Eight.
        {"Fan", King, {{4}, {3, 5}, {6}, {12, 11, 10, 9, 8, 7}}},
        // The Queen of Diamonds has to wait for the King of Clubs, which lies on a Queen. In any suit the
        // King of Hearts would take its place.
        {"Spanish Patience",
         NoCard,
         {{Hearts + 9}, {Hearts + 10}, {Hearts + 12, Diamonds + 11, Diamonds + 8}, {11, Clubs + 12, 7}}},
    };
    for (const auto& [game, emptyTakes, piles] : endgames) {
        Search search(Named(game), {.SingleCards = true});
        search.Game().SetBase(Ace, emptyTakes);
        Solver::Position& table = search.Table();
        table.Clear();
        std::set<int> left;
        for (std::size_t pile = 0; pile < piles.size(); ++pile) {
            for (const int card : piles[pile]) {
                table.Put(static_cast<int>(pile), static_cast<Solver::Card>(card));
                left.insert(card);
            }
        }
        for (int rank = Ace; rank <= King; ++rank) {
            for (int card = rank; card < Solver::Kinds; card += RankCount) {
                if (left.contains(card)) continue;
                int goal = Solver::FirstGoal;
                while (!table.GoalAccepts(card, goal)) ++goal;
                table.Put(goal, static_cast<Solver::Card>(card));
            }
        }
        EXPECT_EQ(search.SolvePosition({.States = 100}).Answer, Answer::Won) << game;
    }
}

TEST(SolverSearch, WinsAreWinsForTheEngine) {
    const int rounds = std::max(1, Rounds());
    for (const bool autoplay : {false, true}) {
        SolutionReplay engine(autoplay);
        int wins = 0;
        for (const Definition* game : SomeGames(autoplay ? 5 : 2)) {
            const cGames numbers = Solver::NumbersOf(*game);
            Search search(numbers, {.Autoplay = autoplay});
            for (int number = 1; number <= rounds; ++number) {
                const Result result = search.Solve(mDeal::Deal(numbers, number), {.States = 1500});
                if (result.Answer != Answer::Won) continue;
                ++wins;
                EXPECT_TRUE(engine.Wins(std::string(game->Name), static_cast<double>(number), result.Moves))
                    << game->Name << " " << number;
            }
        }
        EXPECT_GT(wins, 5);
    }
}

TEST(SolverSearch, StopsAtItsLimits) {
    // The moves of one position more than the limit at most.
    constexpr std::size_t OnePosition = 200;
    const cGames numbers = Named("Simple Simon");
    Search search(numbers, {});
    const Result result = search.Solve(mDeal::Deal(numbers, 1), {.States = 10});
    EXPECT_EQ(result.Answer, Answer::Unknown);
    EXPECT_GE(result.States, 10U);
    EXPECT_LT(result.States, 10 + OnePosition);

    constexpr std::size_t Most = 1024 * 1024 / Search::BytesPerState;
    int unknown = 0;
    for (int number = 1; number <= 10; ++number) {
        const Result bounded = search.Solve(mDeal::Deal(numbers, number), {.States = 0, .MemoryMB = 1});
        EXPECT_LT(bounded.States, Most + OnePosition);
        if (bounded.Answer != Answer::Unknown) continue;
        ++unknown;
        EXPECT_GE(bounded.States, Most);
    }
    EXPECT_GT(unknown, 0);
}

}  // namespace
