// Which card may lie on which: every rule code, with all cards that fit on three cards.
#include <algorithm>
#include <iterator>
#include <sstream>
#include <string_view>

#include "engine/rules/mPlay.h"
#include "support/EngineTest.h"

namespace {

using enum RuleCode;
using mPosition::Card;

constexpr std::string_view Suits = "HSDC";

struct Row {
    RuleCode Code;
    const char* OnSeven;    // of Hearts, as of all cards between Two and Queen; the wrap plays no part
    const char* OnAce;      // of Hearts
    const char* OnAceWrap;  // the same where Ace and King are neighbors
    const char* OnKing;
    const char* OnKingWrap;
};

constexpr const char* none = "";
constexpr const char* every = "every card";

// clang-format off
constexpr Row rows[] = {
//   code          on the Seven of Hearts     on its Ace      ... wrapped                on its King     ... wrapped
    {Never,        none,                      none,           none,                      none,           none},
    {DownSuit,     "6H",                      none,           "KH",                      "QH",           "QH"},
    {UpSuit,       "8H",                      "2H",           "2H",                      none,           "AH"},
    {EitherSuit,   "6H 8H",                   "2H",           "2H KH",                   "QH",           "QH AH"},
    {DownAlt,      "6S 6C",                   none,           "KS KC",                   "QS QC",        "QS QC"},
    {UpAlt,        "8S 8C",                   "2S 2C",        "2S 2C",                   none,           "AS AC"},
    {EitherAlt,    "6S 6C 8S 8C",             "2S 2C",        "2S 2C KS KC",             "QS QC",        "QS QC AS AC"},
    {DownAny,      "6H 6S 6D 6C",             none,           "KH KS KD KC",             "QH QS QD QC",  "QH QS QD QC"},
    {UpAny,        "8H 8S 8D 8C",             "2H 2S 2D 2C",  "2H 2S 2D 2C",             none,           "AH AS AD AC"},
    {Always,       every,                     every,          every,                     every,          every},
    {SameRank,     "7S 7D 7C",                "AS AD AC",     "AS AD AC",                "KS KD KC",     "KS KD KC"},
    {EitherAny,    "6H 6S 6D 6C 8H 8S 8D 8C", "2H 2S 2D 2C",  "2H 2S 2D 2C KH KS KD KC", "QH QS QD QC",  "QH QS QD QC AH AS AD AC"},
    {DownOther,    "6S 6D 6C",                none,           "KS KD KC",                "QS QD QC",     "QS QD QC"},
    {DownColor,    "6H 6D",                   none,           "KH KD",                   "QH QD",        "QH QD"},
    {UpColor,      "8H 8D",                   "2H 2D",        "2H 2D",                   none,           "AH AD"},
    {EitherColor,  "6H 6D 8H 8D",             "2H 2D",        "2H 2D KH KD",             "QH QD",        "QH QD AH AD"},
    {UpOther,      "8S 8D 8C",                "2S 2D 2C",     "2S 2D 2C",                none,           "AS AD AC"},
    {RuleCode{11}, none,                      none,           none,                      none,           none},
    {RuleCode{13}, none,                      none,           none,                      none,           none},
    {RuleCode{14}, none,                      none,           none,                      none,           none},
    {RuleCode{20}, none,                      none,           none,                      none,           none},
};
// clang-format on

// The card of the same rank some suits further on, in the order red, black, red, black.
std::string InSuit(const std::string& card, std::size_t turn) {
    return {card[0], Suits[(Suits.find(card[1]) + turn) % Suits.size()]};
}

bool Listed(const std::string& card, const std::string& cards) {
    std::istringstream words(cards);
    for (std::string word; words >> word;) {
        if (word == card) return true;
    }
    return false;
}

TEST(RuleCodes, WhichCardsFit) {
    const Engine engine;
    mPosition::Begin({});
    for (const Row& row : rows) {
        const std::tuple<const char*, bool, const char*> cases[] = {
            {"7H", false, row.OnSeven},  {"7H", true, row.OnSeven}, {"AH", false, row.OnAce},
            {"AH", true, row.OnAceWrap}, {"KH", false, row.OnKing}, {"KH", true, row.OnKingWrap},
        };
        for (const auto& [below, wrap, fit] : cases) {
            for (std::size_t turn = 0; turn < Suits.size(); ++turn) {
                const int A = Card(InSuit(below, turn));
                for (int B = 0; B < gGames->TotalCards(); ++B) {
                    if (A == B) continue;
                    const std::string asOnHearts = InSuit(mPosition::Name(B), Suits.size() - turn);
                    EXPECT_EQ(mFunc::OrderOK(A, B, row.Code, wrap), fit == every || Listed(asOnHearts, fit))
                        << "code " << Number(row.Code) << (wrap ? " with wrap: " : ": ") << mPosition::Name(B)
                        << " on " << mPosition::Name(A);
                }
            }
        }
    }
}

TEST(RuleCodes, EachHasARow) {
    constexpr int Beyond = 100;
    for (int code = 0; code < Beyond; ++code) {
        if (!mOrder::DemandOf(RuleCode{code})) continue;
        EXPECT_TRUE(std::any_of(std::begin(rows), std::end(rows),
                                [=](const Row& row) { return Number(row.Code) == code; }))
            << "rule code " << code << " has no row: say which cards fit on a Seven, an Ace and a King";
    }
}

// Where cards of one value have other suits, and the second deck.
TEST(CardValues, SuitsFollowFromTheGame) {
    struct Case {
        SuitType Suits;
        int Value;
        int Suit, Num, Suitpile, Color, Picture;
    };
    // clang-format off
    constexpr Case cases[] = {
    //   suits                value suit num suitpile color picture
        {SuitType::FourSuits,     0,   0,  0,       0,    1,      1},
        {SuitType::FourSuits,    13,   1,  0,       1,    2,     14},
        {SuitType::FourSuits,    38,   2, 12,       2,    1,     39},
        {SuitType::FourSuits,    51,   3, 12,       3,    2,     52},
        {SuitType::FourSuits,    65,   1,  0,       5,    2,     14},
        {SuitType::FourSuits,   103,   3, 12,       7,    2,     52},
        {SuitType::TwoSuits,     25,   0, 12,       1,    1,     13},
        {SuitType::TwoSuits,     26,   1,  0,       2,    2,     14},
        {SuitType::TwoSuits,     77,   0, 12,       5,    1,     13},
        {SuitType::TwoSuits,    103,   1, 12,       7,    2,     26},
        {SuitType::OneSuit,      51,   0, 12,       3,    1,     13},
        {SuitType::OneSuit,      66,   0,  1,       5,    1,      2},
    };
    // clang-format on
    const Engine engine;
    for (const Case& row : cases) {
        TestGame game;
        game.Ext.Cards = 104;
        game.Home.SuitType = row.Suits;
        mPosition::Begin(game);
        int PicID = 0;
        while (gArray->GetRandom(PicID) != row.Value) ++PicID;
        const CardRecord& card = PicBack.PicCards(PicID);
        EXPECT_EQ(std::tuple(card.Suit, card.Num, card.Suitpile, card.Color(), card.MainPic),
                  std::tuple(row.Suit, row.Num, row.Suitpile, row.Color, row.Picture))
            << row.Value;
    }
}

}  // namespace
