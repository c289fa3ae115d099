// The figures of winning: whether they are of the rules as they are now, and how they read.
#include <fstream>

#include "engine/catalogue/definition.h"
#include "engine/catalogue/families.h"
#include "engine/catalogue/mWinnability.h"
#include "engine/help/mRules.h"
#include "engine/help/mRulesWins.h"
#include "support/EngineTest.h"

namespace {

// The list of signatures is held against the games themselves by a test of its own.
TEST(Winning, FiguresAreOfThePresentRules) {
    std::ifstream file(TARNIVAL_SIGNATURES);
    auto row = mWinnability::All().begin();
    for (std::string line; std::getline(file, line) && row != mWinnability::All().end();) {
        const std::string game = line.substr(0, line.rfind(' '));
        if (row->Game != game) continue;
        EXPECT_EQ(row->Signature, std::stoull(line.substr(line.rfind(' ') + 1), nullptr, 16))
            << game << " plays otherwise than when it was tried: tools/winnability.py measures it anew";
        EXPECT_EQ(mWinnability::Find(game), &*row);
        ++row;
    }
    EXPECT_EQ(row, mWinnability::All().end())
        << "not a game, or not in the order of the catalogue: " << row->Game;
    EXPECT_EQ(mWinnability::Find("No game"), nullptr);
}

struct Sentence {
    int States, Deals, Won, Lost, Unknown, Moves;
    const char* Result;
    const char* Length;
    const char* Facts;
};

TEST(Winning, TheWordsClaimNoMoreThanWasFound) {
    const Definition deck{.Deck = 52};
    const Definition twoDecks{.Deck = 104};
    const Sentence rows[] = {
        {9, 1000, 821, 176, 3, 112,
         "Of 1,000 deals 821 can be won by a player who sees all cards and 176 cannot; for 3 no answer was "
         "found.",
         "Half of the wins that were found take 112 moves or fewer; there may be shorter ones.",
         "One deck · 821 of 1,000 deals can be won, 3 unknown · about 112 moves"},
        {9, 100, 98, 1, 1, 90,
         "Of 100 deals 98 can be won by a player who sees all cards and one cannot; for one no answer was "
         "found.",
         "Half of the wins that were found take 90 moves or fewer; there may be shorter ones.",
         "One deck · 98 of 100 deals can be won, 1 unknown · about 90 moves"},
        {0, 100, 1, 99, 0, 80, "Of 100 deals one can be won by a player who sees all cards and 99 cannot.",
         "The win that was found takes 80 moves; there may be a shorter one.",
         "One deck · 1 of 100 deals can be won · about 80 moves"},
        {9, 100, 90, 0, 10, 99,
         "Of 100 deals 90 can be won by a player who sees all cards; for 10 no answer was found.",
         "Half of the wins that were found take 99 moves or fewer; there may be shorter ones.",
         "One deck · 90 of 100 deals can be won, 10 unknown · about 99 moves"},
        {0, 100, 100, 0, 0, 99,
         "All of the 100 deals that were tried can be won by a player who sees all cards.",
         "Half of the wins that were found take 99 moves or fewer; there may be shorter ones.",
         "One deck · all of 100 deals can be won · about 99 moves"},
        {0, 100, 0, 100, 0, 0,
         "None of the 100 deals that were tried can be won, even by a player who sees all cards.", nullptr,
         "One deck · none of 100 deals can be won"},
        {9, 100, 0, 60, 40, 0,
         "Of 100 deals 60 cannot be won, even by a player who sees all cards; for 40 no answer was found.",
         nullptr, "One deck · no win found in 100 deals"},
        {9, 100, 0, 0, 100, 0, "For the 100 deals that were tried no answer was found.", nullptr,
         "One deck · no win found in 100 deals"},
        {0, 1, 1, 0, 0, 99, "The one deal that was tried can be won by a player who sees all cards.",
         "The win that was found takes 99 moves; there may be a shorter one.",
         "One deck · all of 1 deal can be won · about 99 moves"},
    };
    for (const Sentence& row : rows) {
        const Winnability found{"", 0, row.States, row.Deals, row.Won, row.Lost, row.Unknown, row.Moves};
        const std::vector<std::string> said = mRulesWins::Paragraphs(found);
        ASSERT_EQ(said.size(), row.Length ? 3U : 2U) << row.Result;
        EXPECT_EQ(said[0], row.Result);
        if (row.Length) {
            EXPECT_EQ(said[1], row.Length);
        }
        EXPECT_EQ(said.back().find("gave a deal up after") != std::string::npos, row.Unknown > 0)
            << row.Result;
        EXPECT_EQ(mRulesWins::Facts(deck, &found), row.Facts);
    }
    EXPECT_EQ(mRulesWins::Facts(twoDecks, nullptr), "Two decks");
}

TEST(Winning, KindsOfGamesAreProvedByTheDeals) {
    struct {
        int Won, Lost, Unknown;
        bool Mostly, Hard;
    } const rows[] = {{80, 20, 0, true, false},   {79, 21, 0, false, false}, {80, 0, 20, true, false},
                      {20, 80, 0, false, true},   {21, 79, 0, false, false}, {10, 80, 10, false, true},
                      {10, 79, 11, false, false}, {0, 0, 100, false, false}};
    for (const auto& [won, lost, unknown, mostly, hard] : rows) {
        const Winnability found{"", 0, 0, 100, won, lost, unknown, 0};
        EXPECT_EQ(mWinnability::IsMostlyWinnable(found), mostly) << won << '/' << lost;
        EXPECT_EQ(mWinnability::IsHard(found), hard) << won << '/' << lost;
    }
}

TEST(Winning, ThePageOfAGameTellsItsFigures) {
    const Engine engine;
    for (const int id : mRules::AllGames()) {
        const Winnability* found = mWinnability::Find(mRules::Name(id));
        const std::string heading = "<h2>How often it can be won</h2>\n<p>";
        const std::string expected = heading + (found ? mRulesWins::Paragraphs(*found).front() : "");
        EXPECT_EQ(mRules::Page(id).find(expected) != std::string::npos, found != nullptr) << mRules::Name(id);
    }
}

}  // namespace
