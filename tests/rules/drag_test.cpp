// The mouse flow: the grip, the group's steps, overlaps of two piles, the order of the scan, refused
// drops, sounds.
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "rules/mFunc.h"
#include "shell/cData.h"
#include "state/cArray.h"
#include "state/cTrans.h"
#include "state/mGen.h"
#include "support/Fixture.h"
#include "table/cPlate.h"
#include "table/mMain.h"

namespace {

using mPosition::Card;
using testing::ElementsAre;
using testing::IsEmpty;

Point PlaceOf(const std::string& card) {
    const CardRecord& record = PicBack.PicCards(Card(card));
    return {record.Left, record.Top};
}

class Drag : public testing::Test {
protected:
    void SetUp() override { gData->Set(Setting::Autoplay, 0); }
    Engine engine_;
};

// The piles of the made-up game stand at 1790 + 1200 × pile; an empty one is looked for one fan step
// above its first place.
constexpr int FirstLeft = 1790;
constexpr int FirstTop = 2200;

TEST_F(Drag, TheCardKeepsTheGripOfThePress) {
    mPosition::Begin({});
    mPosition::Lay(Home, 0, "9C");
    const int nine = Card("9C");
    // 12.5 and 13.5 both round to the even neighbour.
    mMain::MouseDown(nine, 12.5, 13.5);
    mMain::MouseMove(nine, 112, 214);
    EXPECT_EQ(PlaceOf("9C"), (Point{FirstLeft + 100, FirstTop + 200}));
    // The next position is relative to the card where it is now.
    mMain::MouseMove(nine, 13, 13);
    EXPECT_EQ(PlaceOf("9C"), (Point{FirstLeft + 101, FirstTop + 199}));
    mMain::MouseUp(nine);
}

TEST_F(Drag, AGroupTrailsByConstantSteps) {
    struct Row {
        PileOrder Order;
        Point Step;
    };
    for (const Row& row :
         {Row{PileOrder::AcrossFanDown, {0, 250}}, Row{PileOrder::AcrossFanDownWide, {0, 250}},
          Row{PileOrder::AcrossFanRight, {180, 0}}, Row{PileOrder::DownFanRight, {180, 0}}}) {
        SCOPED_TRACE(Number(row.Order));
        TestGame game;
        game.Home.PileOrder = row.Order;
        game.Home.PosWidth = 77;
        mPosition::Begin(game);
        mPosition::Lay(Home, 0, "KH QS JD");
        mPosition::Lay(Home, 2, "9C");
        const int king = Card("KH");
        const Point start = PlaceOf("KH");
        mMain::MouseDown(king, 10, 10);
        mMain::MouseMove(king, 510, 2010);
        for (int i = 0; i < 3; ++i) {
            const char* cards[] = {"KH", "QS", "JD"};
            EXPECT_EQ(PlaceOf(cards[i]),
                      (Point{start.X + 500 + i * row.Step.X, start.Y + 2000 + i * row.Step.Y}));
        }
        EXPECT_LT(PicBack.PicCards(Card("9C")).Order, PicBack.PicCards(king).Order);
        EXPECT_LT(PicBack.PicCards(king).Order, PicBack.PicCards(Card("QS")).Order);
        EXPECT_LT(PicBack.PicCards(Card("QS")).Order, PicBack.PicCards(Card("JD")).Order);
        // Refused: back to the press, in the drag's steps and not in the pile's.
        mMain::MouseMove(king, -4000, 9000);
        mMain::MouseUp(king);
        EXPECT_EQ(PlaceOf("KH"), start);
        EXPECT_EQ(PlaceOf("JD"), (Point{start.X + 2 * row.Step.X, start.Y + 2 * row.Step.Y}));
        EXPECT_EQ(mPosition::Pile(Home, 0), "KH QS JD");
        EXPECT_EQ(gTrans->GetTransID(), 0);
    }
}

TEST_F(Drag, OverlapLooksAtTheCentreOrAtAnyPart) {
    mPosition::Begin({});
    mPosition::Lay(Home, 0, "9C");
    const int card = Card("9C");
    // The place of pile 2, empty: one fan step above its first card.
    const int left = FirstLeft + 2400;
    const int top = FirstTop - 250;
    struct Row {
        int X, Y;
        bool Centre, Part;
    };
    // The centre of a card is 532 right and 720 down of its corner where the left is even, as
    // half twips go to the even neighbour.
    const Row rows[] = {
        {left, top, true, true},          {left + 533, top, false, true},   {left + 532, top, true, true},
        {left - 531, top, true, true},    {left - 532, top, false, true},   {left, top + 719, true, true},
        {left, top + 720, false, true},   {left, top - 719, true, true},    {left, top - 720, false, true},
        {left + 1064, top, false, true},  {left + 1065, top, false, false}, {left - 1064, top, false, true},
        {left - 1065, top, false, false}, {left, top + 1439, false, true},  {left, top + 1440, false, false},
        {left, top - 1439, false, true},  {left, top - 1440, false, false},
    };
    for (const Row& row : rows) {
        PicBack.Move(card, row.X, row.Y);
        EXPECT_EQ(mFunc::IsOverlap(card, Home, 2, -1, false), row.Centre)
            << row.X - left << ", " << row.Y - top;
        EXPECT_EQ(mFunc::IsOverlap(card, Home, 2, -1, true), row.Part) << row.X - left << ", " << row.Y - top;
    }
}

struct ScanRow {
    const char* Rule;
    const char* Layout[4];  // tableau piles 0 to 3
    const char* Card;
    int X, Y;  // left and top of the card at the release
    int Pile;  // of the tableau, where it lands
};

TEST_F(Drag, OverlapOfTwoPiles) {
    const ScanRow rows[] = {
        {"the centre decides before the lower pile",
         {"2C QS", "KH", "KD", ""},
         "QS",
         FirstLeft + 2000,
         FirstTop,
         2},
        {"the pile under the centre refuses: the one that is touched",
         {"2C QS", "KH", "5D", ""},
         "QS",
         FirstLeft + 2000,
         FirstTop,
         1},
        {"both only touched: the lower number",
         {"2C QS", "KH", "KD", ""},
         "QS",
         FirstLeft + 1735,
         FirstTop + 1300,
         1},
        {"its own pile under the centre: the neighbour",
         {"2C QS", "KH", "", ""},
         "QS",
         FirstLeft + 400,
         FirstTop,
         1},
        {"nothing fits", {"2C QS", "5H", "5D", ""}, "QS", FirstLeft + 2000, FirstTop, 0},
    };
    for (const ScanRow& row : rows) {
        SCOPED_TRACE(row.Rule);
        mPosition::Begin({});
        for (int pile = 0; pile < 4; ++pile) mPosition::Lay(Home, pile, row.Layout[pile]);
        ASSERT_TRUE(mPosition::Drag(Card(row.Card), row.X, row.Y));
        EXPECT_EQ(mFunc::CardPile(Card(row.Card)), row.Pile);
        EXPECT_EQ(mFunc::CardCell(Card(row.Card)), Home);
    }
}

// Foundation, reserve and tableau at one place: the tableau first, then the reserve.
TEST_F(Drag, TableauBeforeReserveBeforeFoundation) {
    TestGame game;
    game.Res.Piles = 1;
    game.Res.cResNum = ResFreeCells;
    game.Res.StartX = game.Goal.StartX = 1200;
    game.Res.StartY = game.Goal.StartY = 2000;
    mPosition::Begin(game);
    mPosition::Lay(Home, 1, "2H");
    mPosition::Lay(Home, 0, "9D 9S AC AS");
    ASSERT_TRUE(mPosition::DragTo(Card("AS"), Goal, 0));
    EXPECT_EQ(mFunc::CardCell(Card("AS")), Home);
    EXPECT_EQ(mFunc::CardPile(Card("AS")), 1);
    ASSERT_TRUE(mPosition::DragTo(Card("AC"), Goal, 0));
    EXPECT_EQ(mFunc::CardCell(Card("AC")), Res);
    ASSERT_TRUE(mPosition::DragTo(Card("AS"), Goal, 0));
    EXPECT_EQ(mFunc::CardCell(Card("AS")), Goal);
}

// A drop looks for a foundation where its first card lies, wherever its top card is.
TEST_F(Drag, AFoundationIsHitAtItsFirstPlace) {
    TestGame game;
    game.Goal.PosWidth = 2000;
    mPosition::Begin(game);
    mPosition::Lay(Goal, 0, "AS 2S");
    mPosition::Lay(Home, 0, "2C 3S");
    const Point top = PlaceOf("2S");
    ASSERT_TRUE(mPosition::Drag(Card("3S"), top.X, top.Y));
    EXPECT_EQ(mFunc::CardCell(Card("3S")), Home);
    ASSERT_TRUE(mPosition::DragTo(Card("3S"), Goal, 0));
    EXPECT_EQ(mPosition::Pile(Goal, 0), "AS 2S 3S");
}

TEST_F(Drag, Sounds) {
    gData->Set(Setting::SoundCardDown, -1);
    gData->Set(Setting::SoundCardUp, -1);
    std::vector<std::string>& played = engine_.Layer.Sounds.Played;
    mMain::MouseDown(0, 1, 1);
    mMain::MouseUp(0);
    EXPECT_THAT(played, IsEmpty()) << "no game runs";

    mPosition::Begin({});
    mPosition::Lay(Home, 0, "(KH) 2C");
    mPosition::Lay(Home, 1, "9C");
    mPosition::Press(Card("KH"));
    EXPECT_THAT(played, ElementsAre("CARDDOWN")) << "a refused lift";
    mPosition::DragTo(Card("2C"), Home, 1);
    EXPECT_THAT(played, ElementsAre("CARDDOWN", "CARDDOWN", "CARDUP")) << "a refused drop";
}

TEST_F(Drag, ASecondPressDuringADragChangesNothing) {
    mPosition::Begin({});
    mPosition::Lay(Home, 0, "KH QS");
    mPosition::Lay(Home, 1, "KD");
    const int queen = Card("QS");
    mMain::MouseDown(queen, 10, 10);
    mMain::MouseMove(queen, 1210, -240);
    const Point held = PlaceOf("QS");
    mMain::MouseDown(queen, 700, 700);
    mMain::MouseDown(Card("KD"), 5, 5);
    EXPECT_EQ(PlaceOf("QS"), held);
    mMain::MouseMove(Card("KD"), 500, 500);
    EXPECT_EQ(PlaceOf("KD"), (Point{FirstLeft + 1200, FirstTop}));
    mMain::MouseUp(Card("KD"));
    EXPECT_TRUE(gDrag.gPicked);
    mMain::MouseUp(queen);
    EXPECT_EQ(mPosition::Pile(Home, 1), "KD QS");
}

// A command that comes while a card is held finds the table as it was before the press.
TEST_F(Drag, CommandsDuringADragSendTheCardBack) {
    mPosition::Begin({});
    mPosition::Lay(Home, 0, "KH QS JD");
    mPosition::Lay(Home, 1, "QC");
    mPosition::Lay(Home, 2, "KD");
    ASSERT_TRUE(mPosition::DragTo(Card("QC"), Home, 2));
    const int queen = Card("QS");
    const Point place = PlaceOf("QS");
    mMain::MouseDown(queen, 10, 10);
    mMain::MouseMove(queen, 3000, 3000);
    mMain::Undo(0);
    EXPECT_FALSE(gDrag.gPicked);
    EXPECT_EQ(PlaceOf("QS"), place);
    EXPECT_EQ(PlaceOf("JD"), (Point{place.X, place.Y + 250}));
    EXPECT_EQ(mPosition::Pile(Home, 1), "QC");
    mMain::MouseMove(queen, 3000, 3000);
    mMain::MouseUp(queen);
    EXPECT_EQ(PlaceOf("QS"), place);
    EXPECT_EQ(gTrans->GetTransID(), 0);
}

}  // namespace
