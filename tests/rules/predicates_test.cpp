// The rule codes: which card fits on which, with and without the wrap from King to Ace.
#include <sstream>
#include <string>

#include <gtest/gtest.h>

#include "rules/mFunc.h"
#include "support/Fixture.h"

namespace {

using mPosition::Card;

// Those of the cards that fit on `below`.
std::string Fitting(const char* below, const char* cards, RuleCode code, bool AK) {
    std::string fitting;
    std::istringstream words(cards);
    for (std::string card; words >> card;) {
        if (!mFunc::OrderOK(Card(below), Card(card), code, AK)) continue;
        if (!fitting.empty()) fitting += ' ';
        fitting += card;
    }
    return fitting;
}

TEST(Predicates, RuleCodes) {
    const Engine engine;
    mPosition::Begin({});
    struct Row {
        RuleCode Code;
        const char* OnSeven;  // of hearts
        const char* OnAce;    // of hearts, wrapped
        const char* OnKing;   // of hearts, wrapped
    };
    constexpr const char* all = "6H 6S 6D 6C 8H 8S 8D 8C 7S 9H 5H";
    constexpr const char* kings = "KH KS KD";
    constexpr const char* aces = "AH AS AD";
    // clang-format off
    const Row rows[] = {
        {RuleCode::Never,       "",                        "",         ""},
        {RuleCode::DownSuit,    "6H",                      "KH",       ""},
        {RuleCode::UpSuit,      "8H",                      "",         "AH"},
        {RuleCode::EitherSuit,  "6H 8H",                   "KH",       "AH"},
        {RuleCode::DownAlt,     "6S 6C",                   "KS",       ""},
        {RuleCode::UpAlt,       "8S 8C",                   "",         "AS"},
        {RuleCode::EitherAlt,   "6S 6C 8S 8C",             "KS",       "AS"},
        {RuleCode::DownAny,     "6H 6S 6D 6C",             "KH KS KD", ""},
        {RuleCode::UpAny,       "8H 8S 8D 8C",             "",         "AH AS AD"},
        {RuleCode::Always,      all,                       kings,      aces},
        {RuleCode::SameRank,    "7S",                      "",         ""},
        {RuleCode::EitherAny,   "6H 6S 6D 6C 8H 8S 8D 8C", "KH KS KD", "AH AS AD"},
        {RuleCode::DownOther,   "6S 6D 6C",                "KS KD",    ""},
        {RuleCode::DownColor,   "6H 6D",                   "KH KD",    ""},
        {RuleCode::UpColor,     "8H 8D",                   "",         "AH AD"},
        {RuleCode::EitherColor, "6H 6D 8H 8D",             "KH KD",    "AH AD"},
        {RuleCode::UpOther,     "8S 8D 8C",                "",         "AS AD"},
        {RuleCode{11},          "",                        "",         ""},
        {RuleCode{13},          "",                        "",         ""},
        {RuleCode{14},          "",                        "",         ""},
        {RuleCode{20},          "",                        "",         ""},
        {RuleCode{-1},          "",                        "",         ""},
    };
    // clang-format on
    for (const Row& row : rows) {
        SCOPED_TRACE(Number(row.Code));
        EXPECT_EQ(Fitting("7H", all, row.Code, false), row.OnSeven);
        EXPECT_EQ(Fitting("7H", all, row.Code, true), row.OnSeven);
        EXPECT_EQ(Fitting("AH", kings, row.Code, true), row.OnAce);
        EXPECT_EQ(Fitting("KH", aces, row.Code, true), row.OnKing);
        const bool always = row.Code == RuleCode::Always;
        EXPECT_EQ(Fitting("AH", kings, row.Code, false), always ? kings : "");
        EXPECT_EQ(Fitting("KH", aces, row.Code, false), always ? aces : "");
    }
}

TEST(Predicates, SuitsOfAGameDecide) {
    const Engine engine;
    struct Row {
        const char* Rule;
        SuitType Suits;
        const char* Below;
        const char* Card;
        RuleCode Code;
        bool Fits;
    };
    const Row rows[] = {
        {"one suit", SuitType::OneSuit, "7S", "6H", RuleCode::DownSuit, true},
        {"one suit: one colour", SuitType::OneSuit, "7S", "6H", RuleCode::DownAlt, false},
        {"one suit: no other", SuitType::OneSuit, "7S", "6H", RuleCode::DownOther, false},
        {"the first two are one", SuitType::TwoSuits, "7H", "6S", RuleCode::DownSuit, true},
        {"the last two are another", SuitType::TwoSuits, "7H", "6C", RuleCode::DownSuit, false},
        {"and of the other colour", SuitType::TwoSuits, "7H", "6D", RuleCode::DownAlt, true},
        {"over both decks", SuitType::TwoSuits, "7D'", "6C", RuleCode::DownSuit, true},
        {"four suits over both decks", SuitType::FourSuits, "7H'", "6H", RuleCode::DownSuit, true},
    };
    for (const Row& row : rows) {
        TestGame game;
        game.Home.SuitType = row.Suits;
        game.Ext.Cards = 104;
        mPosition::Begin(game);
        EXPECT_EQ(mFunc::OrderOK(Card(row.Below), Card(row.Card), row.Code, false), row.Fits) << row.Rule;
    }
}

}  // namespace
