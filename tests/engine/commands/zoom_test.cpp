// A fitted game in windows of all sizes: nothing out of sight, at the deal and after many moves. A table that
// is larger than its window: all of it within reach.
#include <cmath>

#include "engine/commands/mRoom.h"
#include "engine/commands/mZoom.h"
#include "support/EngineTest.h"
#include "tools/RandomPlayer.h"

namespace {

struct View {
    double Width, Height, Ratio;  // pixels, and pixels of the screen to one of them
};

// Windows from 400 × 300 to 3840 × 2160, less their menu bar and toolbar.
constexpr View views[] = {
    {400, 250, 1},    {400, 250, 1.25}, {400, 2110, 1},  {673, 437, 1},   {673, 437, 2},
    {1280, 250, 1.5}, {1280, 850, 1},   {1920, 1030, 1}, {3840, 250, 1},  {3840, 2110, 1},
    {1920, 1055, 2},  {401, 777, 1},    {959, 503, 1.1}, {2560, 1390, 1}, {673, 300, 1},
};

std::string Text(const View& view) {
    return std::to_string(view.Width) + " x " + std::to_string(view.Height) + " at " +
           std::to_string(view.Ratio);
}

// What a view shows of the plate, twips.
struct Seen {
    double Left, Top, Right, Bottom;

    Seen(const View& view, double zoom) {
        const double twips = mZoom::TwipsPerPixel / zoom;
        Left = -mZoom::PlateLeft(view.Width, zoom, view.Ratio) * twips;
        Top = 0;
        Right = Left + view.Width * twips;
        Bottom = view.Height * twips;
    }
    [[nodiscard]] bool Holds(const mRoom::Area& area) const {
        return Left <= area.Left && Top <= area.Top && Right >= area.Right && Bottom >= area.Bottom;
    }
};

// Watches the cards as the table on the screen does.
class Follower : public MemoryStage {
public:
    void CardMoved(int PicID) override { Grown += mRoom::Follow(Room, PicID) ? 1 : 0; }

    mRoom::Area Room;
    int Grown = 0;
};

void ExpectInSight(const mRoom::Area& room) {
    for (const View& view : views) {
        const double zoom = mZoom::Fit(room, view.Width, view.Height, view.Ratio);
        EXPECT_TRUE(Seen(view, zoom).Holds(mRoom::Taken(PicBack))) << Text(view);
        EXPECT_LE(zoom, mZoom::Largest / 100.0);
        EXPECT_TRUE(zoom > 2.9 || !Seen(view, zoom * 1.1).Holds(room)) << "small for " << Text(view);
    }
}

void ExpectWithinReach(const mRoom::Area& room) {
    for (const View& view : views) {
        for (const double zoom : {0.5, 1.0, 1.75, 3.0}) {
            const Seen seen(view, zoom);
            const mZoom::Pan pan = mZoom::PanOf(room, view.Width, view.Height, zoom);
            EXPECT_TRUE(pan.Left <= 0 && pan.Top == 0 && pan.Right >= 0 && pan.Bottom >= 0);
            EXPECT_LE(seen.Left + pan.Left, room.Left);
            EXPECT_GE(seen.Right + pan.Right, room.Right);
            EXPECT_GE(seen.Bottom + pan.Bottom, room.Bottom);
            EXPECT_TRUE(pan.Left == 0 || seen.Left > room.Left - 200);
            EXPECT_TRUE(pan.Right == 0 || seen.Right < room.Right + 200);
            EXPECT_TRUE(pan.Bottom == 0 || seen.Bottom < room.Bottom + 200);
        }
    }
}

TEST(Zoom, NoCardOfAnyGameIsOutOfSight) {
    constexpr int Moves = 200;
    const Engine engine;
    Follower stage;
    PicBack.SetStage(&stage);
    for (int SiD = 1; SiD <= gData->TotalGames(); ++SiD) {
        SCOPED_TRACE(gData->GetGame(SiD));
        const GameNumber number = static_cast<double>(SiD);
        {
            mGen::AsideGame aside;
            aside.Deal(gData->GetGame(SiD), number);
            stage.Room = mRoom::OfGame(PicBack);
        }
        const mRoom::Area dealt = stage.Room;
        mGen::StartGame(gData->GetGame(SiD), number);
        ExpectInSight(stage.Room);
        ExpectWithinReach(stage.Room);
        RandomPlayer player(static_cast<std::uint32_t>(SiD));
        for (int i = 0; i < Moves && gData->Figures.GameRunning; ++i) {
            player.Act();
            if (gDrag.gPicked || !gData->Figures.GameRunning) continue;
            ASSERT_EQ(stage.Room.With(mRoom::Taken(PicBack)), stage.Room) << player.LastAction();
        }
        mMain::CancelDrag();
        // A game that was won or closed has nothing in sight.
        if (stage.Room != dealt && gData->Figures.GameRunning) ExpectInSight(stage.Room);
    }
    EXPECT_GT(stage.Grown, 0) << "no pile has outgrown its room: the test reaches nothing";
    PicBack.SetStage(nullptr);
}

}  // namespace
