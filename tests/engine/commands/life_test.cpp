// The life of a game: start, restart, abandoning, commands during a deal, and setting a game aside.
#include <algorithm>

#include "engine/commands/mSelect.h"
#include "engine/records/cScore.h"
#include "engine/records/mPlayers.h"
#include "engine/rules/mPlay.h"
#include "support/EngineTest.h"
#include "tools/RandomPlayer.h"
#include "tools/mChecks.h"

namespace {

std::string Difference(const std::vector<CardPlace>& expected) {
    return mChecks::Difference(expected, mChecks::Places(), [](int) { return false; });
}

class Life : public testing::Test {
protected:
    Engine engine_;
};

TEST_F(Life, NewGamesHaveANumberInsideTheRange) {
    double most = 1.0;
    for (int digits = 0; digits <= 15; ++digits, most *= 10.0) {
        gData->Set(Setting::RangeIndex, digits);
        engine_.Layer.Calendar.Advance(0.5);
        mMain::NewGame();
        EXPECT_EQ(gData->Figures.CurGName, "Baker's Dozen") << "the first of the catalogue";
        EXPECT_GE(mGameNumber::Value(gData->Figures.CurGNo), 1.0);
        EXPECT_LE(mGameNumber::Value(gData->Figures.CurGNo), std::max(1.0, most - 1.0));
    }
}

TEST_F(Life, SameNameAndNumberSameTable) {
    gData->Set(Setting::Autoplay, 0);
    mGen::StartGame("Klondike", 5.0);
    mMain::UndoAll(0);
    const std::vector<CardPlace> deal = mChecks::Places();
    EXPECT_EQ(engine_.Layer.Forms.Caption, "Tarnival 2004 11.0 [Klondike] [Player1] [5]");
    EXPECT_EQ(gData->Figures.GameStartTime, "2004-01-01 00:00:00");
    mPosition::Press(gArray->GetTopPicID(Stock));
    engine_.Layer.Calendar.Advance(100);
    mMain::TickTime();
    mMain::RestartGame();
    EXPECT_EQ(gData->Figures.GameStartTime, "2004-01-01 00:01:40");
    mMain::UndoAll(0);
    EXPECT_EQ(Difference(deal), "");
    // The abandoned game counts as lost, with what it had reached.
    ASSERT_EQ(gScore->SesTop(), 1);
    EXPECT_EQ(gScore->GetSes(1).Won, 0);
    EXPECT_EQ(gScore->GetSes(1).Time, 100);
    EXPECT_EQ(gScore->GetSes(1).Moves, 1);
    mMain::CloseGame();
    EXPECT_EQ(gScore->SesTop(), 2);
    EXPECT_FALSE(gData->Figures.GameRunning);
    for (int PicID = 0; PicID < MaxCards; ++PicID) EXPECT_FALSE(PicBack.PicCards(PicID).Visible);
    EXPECT_FALSE(PicBack.Mark(MarkKind::Stock, 0).Visible);
    EXPECT_EQ(engine_.Layer.Forms.Caption, "Tarnival 2004 11.0 [Klondike] [Player1] [5]") << "still shown";
}

TEST_F(Life, TheCaptionFollowsThePlayer) {
    const auto caption = [this] {
        (void)mMain::UpdateMenus();
        return engine_.Layer.Forms.Caption;
    };
    EXPECT_EQ(caption(), "Tarnival 2004 11.0");
    mGen::StartGame("Klondike", 5.0);
    ASSERT_TRUE(mPlayers::Enter("Player1", "Ann"));
    EXPECT_EQ(caption(), "Tarnival 2004 11.0 [Klondike] [Ann] [5]");
    mMain::CloseGame();
    gData->SetPlayer(2, "Bob", true);
    EXPECT_EQ(caption(), "Tarnival 2004 11.0 [Klondike] [Bob] [5]");
}

TEST_F(Life, AGameLeavesNothingToTheNext) {
    mGen::StartGame("Carre Napoleon", 3.0);
    mMain::UndoAll(0);
    const std::vector<CardPlace> alone = mChecks::Places();
    const cGames definition = *gGames;
    for (const char* other : {"Spider", "Canfield", "Klondike", "Stripped Klondike"}) {
        mGen::StartGame(other, 1.0);
        RandomPlayer player(7);
        for (int i = 0; i < 100 && gData->Figures.GameRunning; ++i) player.Act();
        // As other games have them.
        gGames->HomeMaxCards = 3;
        gGames->NoH2HMove = true;
        gGames->CarreNapCount = 2;
        mGen::StartGame("Carre Napoleon", 3.0);
        EXPECT_EQ(gRedealCount, 0);
        mMain::UndoAll(0);
        EXPECT_EQ(Difference(alone), "") << "after " << other;
        EXPECT_TRUE(*gGames == definition);
    }
}

TEST_F(Life, AHurriedDealIsTheSameDeal) {
    gData->Set(Setting::Autoplay, 0);
    MemoryStage& stage = engine_.Layer.Stage;
    for (const char* game : {"Klondike", "Canfield", "Mobile Gallery"}) {
        SCOPED_TRACE(game);
        const auto stepsOfDeal = [&] {
            const long before = stage.Steps;
            mGen::StartGame(game, 8.0);
            return stage.Steps - before;
        };
        const long all = stepsOfDeal();
        const std::vector<CardPlace> deal = mChecks::Places();
        const cArray table = *gArray;
        int events = 0;
        long shown = 0;
        stage.OnEvents = [&] {
            if (++events != 60) return;
            shown = stage.Steps;
            mGen::HurryDeal();
        };
        (void)stepsOfDeal();
        stage.OnEvents = nullptr;
        EXPECT_EQ(stage.Steps, shown);
        EXPECT_EQ(Difference(deal), "");
        EXPECT_TRUE(*gArray == table) << "with the draws to come";
        mGen::HurryDeal();  // of no deal
        EXPECT_EQ(stepsOfDeal(), all);
    }
}

// The deal lets window events run: whatever comes then must not touch it.
TEST_F(Life, CommandsDuringADealAreIgnored) {
    for (const char* game : {"Klondike", "Spider", "Freecell", "Mobile Gallery"}) {
        SCOPED_TRACE(game);
        mGen::StartGame(game, 8.0);
        mMain::UndoAll(0);
        const std::vector<CardPlace> deal = mChecks::Places();
        const int ended = gScore->SesTop();
        int events = 0;
        engine_.Layer.Stage.OnEvents = [&] {
            ++events;
            EXPECT_TRUE(mGen::Dealing());
            EXPECT_FALSE(gData->Figures.GameRunning);
            mMain::NewGame();
            mMain::RestartGame();
            mMain::CloseGame();
            mMain::RecentGame(1);
            mGen::StartGame("Fan", 1.0);
            mSelect::Play("Ann", "Fan");
            mSelect::PlayNumber("Ann", "Fan", "3");
            mMain::MouseDown(events % 52, 10, 10);
            mMain::MouseMove(events % 52, 500, 500);
            mMain::MouseUp(events % 52);
            mMain::StockClick();
            mMain::UndoAll(0);
            mMain::FlipAutoplay();
            mMain::FlipAutoplay();
            mMain::TickReplay();
            EXPECT_THAT(mMain::TickTime(), ElementsAre("", "", ""));
            EXPECT_FALSE(mMain::UpdateMenus().GameRunning);
        };
        mMain::RestartGame();
        engine_.Layer.Stage.OnEvents = nullptr;
        EXPECT_GE(events, 52);
        EXPECT_EQ(gData->Figures.CurGName, game);
        EXPECT_EQ(gScore->SesTop(), ended + 1);
        EXPECT_EQ(gData->CurPlayer(), "Player1");
        mMain::UndoAll(0);
        EXPECT_EQ(Difference(deal), "");
        EXPECT_EQ(mChecks::TableFault(), "");
    }
}

}  // namespace
