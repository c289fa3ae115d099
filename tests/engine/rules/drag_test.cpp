// The mouse flow: the grip, the group's steps, overlaps of two piles, the order of the scan, refused
// drops, sounds.
#include "support/Script.h"

namespace {

using mPosition::Card;

Point PlaceOf(const std::string& card) {
    const CardRecord& record = PicBack.PicCards(Card(card));
    return {record.Left, record.Top};
}

using Drag = RulesTest;

// The piles of the made-up game stand at 1790 + 1200 × pile; an empty one is looked for one fan step
// above its first place.
constexpr int FirstLeft = 1790;
constexpr int FirstTop = 2200;

TEST_F(Drag, TheCardKeepsTheGripOfThePress) {
    mScript::Begin({}, "H0 9C");
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
    const std::pair<PileOrder, Point> rows[] = {{PileOrder::AcrossFanDown, {0, 250}},
                                                {PileOrder::AcrossFanDownWide, {0, 250}},
                                                {PileOrder::AcrossFanRight, {180, 0}},
                                                {PileOrder::DownFanRight, {180, 0}}};
    for (const auto& [order, step] : rows) {
        SCOPED_TRACE(Number(order));
        game_.Home.PileOrder = order;
        game_.Home.PosWidth = 77;
        mScript::Begin(game_, "H0 KH QS JD; H2 9C");
        const int king = Card("KH");
        const Point start = PlaceOf("KH");
        mMain::MouseDown(king, 10, 10);
        int front = PicBack.PicCards(Card("9C")).Order;
        EXPECT_LT(front, PicBack.PicCards(Card("QS")).Order) << "the press raises the group";
        mMain::MouseMove(king, 510, 2010);
        Point place{start.X + 500, start.Y + 2000};
        for (const char* card : {"KH", "QS", "JD"}) {
            EXPECT_EQ(PlaceOf(card), place);
            place = {place.X + step.X, place.Y + step.Y};
            EXPECT_LT(front, PicBack.PicCards(Card(card)).Order);
            front = PicBack.PicCards(Card(card)).Order;
        }
        // Refused: back to the press, in the drag's steps and not in the pile's.
        mMain::MouseMove(king, -4000, 9000);
        mMain::MouseUp(king);
        EXPECT_EQ(PlaceOf("KH"), start);
        EXPECT_EQ(PlaceOf("JD"), (Point{start.X + 2 * step.X, start.Y + 2 * step.Y}));
        EXPECT_EQ(mPosition::Pile(Home, 0), "KH QS JD");
        EXPECT_EQ(gTrans->GetTransID(), 0);
    }
}

TEST_F(Drag, OverlapLooksAtTheCentreOrAtAnyPart) {
    mScript::Begin({}, "H0 9C");
    const int card = Card("9C");
    const int left = FirstLeft + 2400;  // of pile 2
    const int top = FirstTop - 250;
    // The centre of a card is 532 right and 720 down of its corner where the left is even, as half twips go
    // to the even neighbour.
    enum Overlap { None, Part, Centre };
    const std::tuple<int, int, Overlap> rows[] = {
        {0, 0, Centre},   {533, 0, Part},   {532, 0, Centre},  {-531, 0, Centre}, {-532, 0, Part},
        {0, 719, Centre}, {0, 720, Part},   {0, -719, Centre}, {0, -720, Part},   {1064, 0, Part},
        {1065, 0, None},  {-1064, 0, Part}, {-1065, 0, None},  {0, 1439, Part},   {0, 1440, None},
        {0, -1439, Part}, {0, -1440, None},
    };
    for (const auto& [x, y, overlap] : rows) {
        PicBack.Move(card, left + x, top + y);
        EXPECT_EQ(mFunc::IsOverlap(card, Home, 2, -1, false), overlap == Centre) << x << ", " << y;
        EXPECT_EQ(mFunc::IsOverlap(card, Home, 2, -1, true), overlap != None) << x << ", " << y;
    }
}

TEST_F(Drag, OverlapOfTwoPiles) {
    struct Row {
        const char* Rule;
        const char* Table;
        int X, Y;  // of the Queen of Spades where she is released, from the first pile's place
        int Pile;  // where she lands
    };
    const Row rows[] = {
        {"the centre decides before the lower pile", "H0 2C QS; H1 KH; H2 KD", 2000, 0, 2},
        {"the centre's pile refuses: the touched one", "H0 2C QS; H1 KH; H2 5D", 2000, 0, 1},
        {"both only touched: the lower one", "H0 2C QS; H1 KH; H2 KD", 1735, 1300, 1},
        {"its own pile under the centre", "H0 2C QS; H1 KH", 400, 0, 1},
        {"nothing fits", "H0 2C QS; H1 5H; H2 5D", 2000, 0, 0},
    };
    for (const Row& row : rows) {
        mPosition::Begin({});
        mScript::Lay(row.Table);
        ASSERT_TRUE(mPosition::Drag(Card("QS"), FirstLeft + row.X, FirstTop + row.Y));
        EXPECT_EQ(mFunc::CardPile(Card("QS")), row.Pile) << row.Rule;
    }
}

// Foundation, reserve and tableau at one place: the tableau first, then the reserve.
TEST_F(Drag, TableauBeforeReserveBeforeFoundation) {
    game_.Res.Piles = 1;
    game_.Res.cResNum = ResFreeCells;
    game_.Res.StartX = game_.Goal.StartX = 1200;
    game_.Res.StartY = game_.Goal.StartY = 2000;
    Expect({{"a drag onto the foundation each",
             "H0 9D 9S AC AS; H1 2H | AS>G0 AC>G0 | H0 9D 9S; H1 2H AS; R0 AC "
             "| AS>G0 | H0 9D 9S; H1 2H; R0 AC; G0 AS"}});
}

// A drop looks for a foundation where its first card lies, wherever its top card is.
TEST_F(Drag, AFoundationIsHitAtItsFirstPlace) {
    game_.Goal.PosWidth = 2000;
    mScript::Begin(game_, "H0 2C 3S; G0 AS 2S");
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

    mScript::Begin({}, "H0 (KH) 2C; H1 9C");
    mPosition::Press(Card("KH"));
    EXPECT_THAT(played, ElementsAre("CARDDOWN")) << "a refused lift";
    mPosition::DragTo(Card("2C"), Home, 1);
    EXPECT_THAT(played, ElementsAre("CARDDOWN", "CARDDOWN", "CARDUP")) << "a refused drop";
}

TEST_F(Drag, ASecondPressDuringADragChangesNothing) {
    mScript::Begin({}, "H0 KH QS; H1 KD");
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
    mScript::Begin({}, "H0 KH QS JD; H1 QC; H2 KD");
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
