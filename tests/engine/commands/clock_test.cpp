// Score, time and moves of the running game, and the texts that show them.
#include <limits>

#include "engine/state/GameNumber.h"
#include "support/Script.h"

namespace {

TEST(Clock, FormatTime) {
    constexpr int Least = std::numeric_limits<int>::min();
    const std::pair<int, const char*> rows[] = {
        {0, "0:00:00"},    {59, "0:00:59"},     {60, "0:01:00"},         {3599, "0:59:59"},
        {3723, "1:02:03"}, {86399, "23:59:59"}, {86400, "24:00:00"},     {450007, "125:00:07"},
        {-1, "-0:00:01"},  {-3723, "-1:02:03"}, {Least, "-596523:14:08"}};
    for (const auto& [seconds, text] : rows) EXPECT_EQ(mFunc::FormatTime(seconds), text);
}

TEST(Clock, Score) {
    // Ten a card, less one for 3 seconds, less one for 2 moves; halves to the even neighbour.
    const std::tuple<const char*, int, int, int> rows[] = {
        // foundation, time, moves, score
        {"", 0, 0, 0},       {"", 30, 10, -15},
        {"AH-4H", 0, 0, 40}, {"AH-KH", 9, 4, 125},
        {"", 0, 1, 0},       {"", 0, 3, -2},
        {"AH", 0, 3, 8},     {"", 1, 0, 0},
        {"", 2, 0, -1},      {"", 2147483647, 32767, -32768},
    };
    const Engine engine;
    for (const auto& [foundation, time, moves, score] : rows) {
        mPosition::Begin({});
        mPosition::Lay(Goal, 0, foundation);
        gData->Figures.CurTime = time;
        gData->Figures.CurMoves = moves;
        EXPECT_EQ(mGen::CalcScore(), score) << foundation << ' ' << time << ' ' << moves;
    }
    gData->Figures.GameRunning = false;
    EXPECT_EQ(mGen::CalcScore(), 0);
}

TEST(Clock, TheStoredScoreLagsOneTick) {
    Engine engine;
    gData->Set(Setting::Autoplay, 0);
    mScript::Begin({}, "H0 9C 2C AS");
    engine.Layer.Calendar.Advance(30);
    mPosition::DragTo(mPosition::Card("AS"), Goal, 0);
    EXPECT_THAT(mMain::TickTime(), ElementsAre("Score :10", "Time :0:00:30", "Moves :1"));
    EXPECT_EQ(gData->Figures.CurScore, 10);
    EXPECT_EQ(gData->Figures.CurTime, 30);
    EXPECT_EQ(gData->Figures.CurMoves, 1);
    EXPECT_THAT(mMain::TickTime(), ElementsAre("Score :0", "Time :0:00:30", "Moves :1"));
    mMain::Undo(0);
    engine.Layer.Calendar.Advance(0.9);
    EXPECT_THAT(mMain::TickTime(), ElementsAre("Score :-10", "Time :0:00:30", "Moves :0"));
    engine.Layer.Calendar.Advance(3600);
    EXPECT_EQ(mMain::TickTime()[1], "Time :1:00:30");
    // Set back behind the start, the clock shows none.
    engine.Layer.Calendar.Advance(-7200);
    EXPECT_EQ(mMain::TickTime()[1], "Time :0:00:00");
}

// The clock counts from the second that the start shows to the second that is shown now.
TEST(Clock, SecondsBetweenTheTwoTexts) {
    Engine engine;
    engine.Layer.Calendar.Advance(0.6);
    mGen::StartGame("Klondike", 1.0);
    engine.Layer.Calendar.Advance(0.3);
    EXPECT_EQ(mFunc::ElapsedSecs(), 0);
    engine.Layer.Calendar.Advance(0.2);
    EXPECT_EQ(mFunc::ElapsedSecs(), 1);
}

TEST(Clock, OnlyWhatThePlayerWantsIsShown) {
    Engine engine;
    mGen::StartGame("Klondike", 1.0);
    engine.Layer.Calendar.Advance(7);
    gData->Set(Setting::ShowTime, 0);
    EXPECT_EQ(mMain::TickTime()[1], "");
    EXPECT_EQ(gData->Figures.CurTime, 7);
    gData->Set(Setting::ShowScore, 0);
    gData->Set(Setting::ShowMoves, 0);
    EXPECT_THAT(mMain::TickTime(), ElementsAre("", "", ""));
    mMain::CloseGame();
    EXPECT_THAT(mMain::TickTime(), ElementsAre("", "", ""));
    EXPECT_EQ(gData->Figures.CurTime, 7) << "the figures of the ended game stay";
}

TEST(GameNumbers, ParseAndText) {
    const std::pair<const char*, double> good[] = {{"12", 12},
                                                   {" 12 ", 12},
                                                   {"012", 12},
                                                   {"12.5", 12.5},
                                                   {"-3", -3},
                                                   {"+3", 3},
                                                   {"999999999999999", 999999999999999.0}};
    for (const auto& [typed, value] : good) EXPECT_EQ(mGameNumber::Parse(typed), value) << typed;
    for (const char* bad :
         {"", "  ", "twelve", "1,234", "12x", "1e5", "inf", "nan", "+-5", "-+5", "++5", "+"}) {
        EXPECT_EQ(mGameNumber::Parse(bad), std::nullopt) << '"' << bad << '"';
    }
    EXPECT_EQ(mGameNumber::Value(std::string("x")), 0.0);
    // Never with an exponent, which could not be read again.
    const std::pair<GameNumber, const char*> texts[] = {
        {999999999999999.0, "999999999999999"}, {std::string("007"), "007"}, {12.5, "12.5"},
        {1e21, "1000000000000000000000"},       {1e-7, "0.0000001"},
    };
    for (const auto& [number, text] : texts) EXPECT_EQ(mGameNumber::Text(number), text);
    const std::pair<double, const char*> grouped[] = {
        {999, "999"}, {1000, "1,000"}, {-123456, "-123,456"}, {999999999999999.0, "999,999,999,999,999"}};
    for (const auto& [number, text] : grouped) EXPECT_EQ(mFunc::Grouped(number), text);
}

}  // namespace
