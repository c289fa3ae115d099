// The rules pages: that they agree with the engine, that every number which changes play changes the text,
// and that all of them read properly.
#include <algorithm>
#include <array>
#include <cstdint>
#include <functional>
#include <map>
#include <regex>

#include "engine/catalogue/definition.h"
#include "engine/help/mRules.h"
#include "engine/help/mRulesFacts.h"
#include "engine/rules/mCards.h"
#include "engine/rules/mPlay.h"
#include "support/Columns.h"
#include "support/EngineTest.h"
#include "tools/Hash.h"
#include "tools/RandomPlayer.h"

namespace {

class Rules : public testing::Test {
protected:
    Engine engine_;
};

TEST_F(Rules, TheCardsOfAWinAreThoseOfTheTable) {
    mGen::AsideGame aside;
    for (const int id : mRules::AllGames()) {
        const std::string name = mRules::Name(id);
        SCOPED_TRACE(name);
        aside.Deal(name, 7.0);
        EXPECT_EQ(mRulesFacts::CardsToWin(mRulesFacts::Facts(*mRules::Find(id))), mGen::CardsToWin());
    }
}

// Numbers that a rules page tells of: all but the name, and of the places what a player notices.
auto NumbersOf(const Definition& game) {
    const GroupLayout& home = game.Places->Home;
    return std::make_tuple(Columns(game), home.PileOrder, home.Div, home.PosWidth,
                           game.ResCards > game.ResPiles ? game.Places->Res.PosWidth : 0);
}

TEST_F(Rules, TheSameNumbersReadTheSameAndOthersDoNot) {
    std::vector<std::pair<const Definition*, std::string>> texts;
    for (const int id : mRules::AllGames()) {
        const Definition* game = mRules::Find(id);
        texts.emplace_back(game, mRules::PlainText(*game));
    }
    int alike = 0;
    for (auto a = texts.begin(); a != texts.end(); ++a) {
        for (auto b = a + 1; b != texts.end(); ++b) {
            const bool same = NumbersOf(*a->first) == NumbersOf(*b->first);
            alike += same ? 1 : 0;
            EXPECT_EQ(same, a->second == b->second) << a->first->Name << " and " << b->first->Name;
        }
    }
    EXPECT_EQ(alike, 1) << "Emperor and Rank and File are one game under two names";
}

void Begin(const Definition& game, double number) {
    gData->Set(Setting::Autoplay, 1);
    gGames->NewGameStart();
    mDefine::Apply(game, *gGames);
    mCards::HideAll();
    gArray->Init(number);
    mPlay::AssignFaces();
    *gTrans = {};
    mPlay::StartDeal();
    gRedealCount = 0;
    gDrag = {};
    gData->Figures.GameRunning = true;
    mPlay::AutoPlayAll();
}

// What a random player meets in a game: all positions, as one number. Where runs leave by themselves it
// is all the same on which foundation they lie.
std::uint64_t PlayOf(const Definition& game) {
    constexpr int Deals = 3;
    constexpr int Actions = 70;
    Hash hash;
    for (int deal = 1; deal <= Deals; ++deal) {
        Begin(game, deal);
        RandomPlayer player(static_cast<std::uint32_t>(deal));
        for (int i = 0; i < Actions && gData->Figures.GameRunning; ++i) {
            player.Act();
            for (int PicID = 0; PicID < gGames->TotalCards(); ++PicID) {
                const CardRecord& card = PicBack.PicCards(PicID);
                const bool run = card.Cell == Goal && game.Kind == GameType::CompleteRuns;
                for (const int value : {card.Cell, run ? 0 : card.Pile, run ? 0 : card.Pos, card.FaceMode})
                    hash.Fold(value);
            }
        }
        if (gData->Figures.GameRunning) mGen::CloseGame(0);
    }
    return hash.Value();
}

// Whether the engine can deal the changed game at all: the cross has five places, and the cones and some
// other patterns need their piles.
bool CanBeDealt(const Definition& game) {
    if (mDefine::FaultOf(game)) return false;
    const bool cross = game.Places->Home.PileOrder == PileOrder::Cross;
    constexpr int MostPiles = 18;
    if (game.HomePiles > (cross ? 5 : MostPiles)) return false;
    const int type = Number(game.HomePattern);
    const bool needsNine = type == 3 || type == 4 || type == 14 || type == 15;
    return (!needsNine || game.HomePiles >= 9) && (type != 2 || game.HomePiles >= 4);
}

// What a reader sees: whole sentences, no doubled blank or word, singular and plural right.
void CheckParagraph(const std::string& paragraph, const std::string& where) {
    static const std::regex unwanted(
        R"(  |\b1 card|\bone cards|\b(two|three|four|five|six|\d+) card\b|\ba (Ace|Eight|eight|eleven)|\ban (King|Two)\b| [.,;:]|[.,;:][.,;:]|\b(the|a|of|and|in|to) \2\b)");
    std::smatch found;
    EXPECT_FALSE(std::regex_search(paragraph, found, unwanted)) << where << ": " << paragraph;
    ASSERT_FALSE(paragraph.empty()) << where;
    EXPECT_TRUE(std::isupper(static_cast<unsigned char>(paragraph.front())) ||
                std::isdigit(static_cast<unsigned char>(paragraph.front())))
        << where << ": " << paragraph;
    EXPECT_EQ(paragraph.back(), '.') << where << ": " << paragraph;
    static const std::regex startsSmall(R"(\. [a-z])");
    EXPECT_FALSE(std::regex_search(paragraph, startsSmall)) << where << ": " << paragraph;
    static const std::regex smallNumber(R"((^|[ (])([0-9]|1[0-2])([ ,.;:)]|$))");
    EXPECT_FALSE(std::regex_search(paragraph, smallNumber)) << where << ": " << paragraph;
}

// The engine is the judge: where a random player meets other positions after a game has got another one's
// number in a column, the text has to be another. (Whether such a player notices a change is a matter of
// chance, so a text may change where the play did not.)
TEST_F(Rules, ANumberThatChangesPlayChangesTheText) {
    constexpr std::size_t Step = 9;    // every ninth game: all families
    constexpr std::size_t Waste = 19;  // a column that only shows a mark
    const std::vector<int>& games = mRules::AllGames();
    std::array<int, ColumnCount> noticed{};
    for (std::size_t i = 0; i < games.size(); i += Step) {
        const Definition& game = *mRules::Find(games[i]);
        const std::uint64_t play = PlayOf(game);
        const std::string text = mRules::PlainText(game);
        for (std::size_t column = 0; column < ColumnCount; ++column) {
            std::vector<Definition> tried{game};
            for (const int other : games) {
                Definition changed = game;
                CopyColumn(column, *mRules::Find(other), changed);
                const auto same = [&](const Definition& old) { return Columns(old) == Columns(changed); };
                if (std::any_of(tried.begin(), tried.end(), same) || !CanBeDealt(changed)) continue;
                tried.push_back(changed);
                if (mRules::PlainText(changed) != text) {
                    const std::string clause = mRules::Difference(changed, game);
                    // Lists of piles are read only where a game is dealt so.
                    const bool lists = clause.find("row by row") != std::string::npos ||
                                       clause.find("at the bottom of the piles") != std::string::npos;
                    if (!clause.empty() && !lists)
                        CheckParagraph("But " + clause + '.', std::string(game.Name));
                    ++noticed[column];
                    continue;
                }
                EXPECT_EQ(PlayOf(changed), play) << game.Name << ": column " << column << "\n" << text;
            }
        }
    }
    for (std::size_t column = 0; column < ColumnCount; ++column)
        EXPECT_TRUE(noticed[column] > 0 || column == Waste) << column;
}

TEST_F(Rules, AllPagesReadProperly) {
    for (const int id : mRules::AllGames()) {
        const std::string name = mRules::Name(id);
        std::size_t sections = 0;
        for (const mRules::Section& section : mRules::Sections(*mRules::Find(id))) {
            ++sections;
            EXPECT_FALSE(section.Paragraphs.empty()) << name << ": " << section.Heading;
            for (const std::string& paragraph : section.Paragraphs) CheckParagraph(paragraph, name);
        }
        EXPECT_GE(sections, 6U) << name;
        for (const auto& [other, clause] : mRules::Relatives(id)) {
            EXPECT_NE(other, id);
            CheckParagraph("But " + clause + '.', name + " and " + mRules::Name(other));
        }
    }
}

// The sentences of all pages in one number. Whoever changes some on purpose reads the pages that they stand
// on.
TEST_F(Rules, NoSentenceChangesUnseen) {
    Hash hash;
    for (const int id : mRules::AllGames()) hash.Fold(mRules::PlainText(*mRules::Find(id)));
    EXPECT_EQ(hash.Value(), 516818687836477009U);
}

TEST_F(Rules, LinksOfPagesLeadSomewhere) {
    static const std::regex link("href=\"game:(\\d+)\"");
    static const std::regex bare(R"(&(?!amp;|lt;|gt;|nbsp;|hellip;))");
    for (const int id : mRules::AllGames()) {
        const std::string html = mRules::Page(id);
        EXPECT_FALSE(std::regex_search(html, bare)) << mRules::Name(id);
        for (std::sregex_iterator at(html.begin(), html.end(), link); at != std::sregex_iterator(); ++at)
            EXPECT_NE(mRules::Find(std::stoi((*at)[1])), nullptr) << mRules::Name(id);
    }
}

TEST_F(Rules, RelativesDifferInOneRespectAndKnowEachOther) {
    using Expected = std::map<std::string, std::string>;
    const auto named = [](const char* game) {
        Expected relatives;
        for (const auto& [id, clause] : mRules::Relatives(gData->GetGameID(game))) {
            relatives[mRules::Name(id)] = clause;
        }
        return relatives;
    };
    EXPECT_EQ(named("Klondike"), (Expected{{"Excel", "the tableau builds down in the same color"},
                                           {"Impact", "the tableau builds down in any suit but the same"},
                                           {"Lawn", "the tableau builds down in suit"}}));
    EXPECT_EQ(named("Canfield").at("Superior Canfield"), "all cards of the reserve can be read");
    EXPECT_EQ(named("Beleaguered Castle").at("Streets and Alleys"), "each foundation begins with an Ace");
    for (const int id : mRules::AllGames()) {
        for (const auto& [other, clause] : mRules::Relatives(id)) {
            const auto back = mRules::Relatives(other);
            EXPECT_TRUE(
                std::any_of(back.begin(), back.end(), [&](const auto& game) { return game.first == id; }));
            EXPECT_FALSE(clause.empty());
        }
    }
}

}  // namespace
