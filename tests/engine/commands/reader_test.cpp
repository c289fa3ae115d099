// What a screen reader reads of the table: names of cards and piles, and what lies at a point.
#include <set>

#include "engine/commands/mReader.h"
#include "support/Script.h"

namespace {

using mReader::PilePlace;
using testing::MatchesRegex;

class Reader : public testing::Test {
protected:
    Engine engine_;
};

TEST_F(Reader, PilesSayNameNumberAndCountOrWhatAnEmptyOneTakes) {
    TestGame game;
    game.Res.Piles = 1;
    mScript::Begin(game, "H1 KS; H2 QS (4C) 2H; W 9D 8D");
    cPlate::ForEachMark([](MarkKind kind, int index) {
        if (index == 0) PicBack.ShowMark(kind, index, EmptyMark, 0, 0);
    });
    PicBack.SetMarkPicture(MarkKind::Right, 0, PlainMark);
    PicBack.ShowMark(MarkKind::Home, 3, 12, 0, 0);
    PicBack.ShowMark(MarkKind::Right, 1, 0, 0, 0);
    PicBack.ShowMark(MarkKind::Right, 2, 5, 0, 0);
    std::vector<std::string> texts;
    for (const PilePlace& pile : mReader::Piles()) texts.push_back(mReader::PileText(pile));
    EXPECT_THAT(
        texts, ElementsAre("Tableau pile 1, empty", "Tableau pile 2, 1 card", "Tableau pile 3, 3 cards",
                           "Tableau pile 4, empty, takes a King", "Stock, empty, no redeal", "Waste, 2 cards",
                           "Foundation pile 1, empty", "Foundation pile 2, empty, takes an Ace",
                           "Foundation pile 3, empty, takes a Six", "Reserve, empty"));
    EXPECT_EQ(mReader::CardText(mPosition::Card("4C")), "Face-down card");
    EXPECT_EQ(mReader::CardText(mPosition::Card("2H")), "Two of Hearts");
}

TEST_F(Reader, APointShowsWhatLiesInFront) {
    mScript::Begin({}, "H0 KS QH; W 9D 8D");
    PicBack.ShowMark(MarkKind::Home, 1, EmptyMark, gGames->GetCordX(Home, 1, 0),
                     gGames->GetCordY(Home, 1, 0));
    const PilePlace first{Home, 0};
    const PilePlace second{Home, 1};
    const PilePlace waste{Waste, 0};
    const mReader::Extent king = mReader::CardArea(mPosition::Card("KS"));
    const Point index{king.Left + 10, king.Top + 10};  // above the Queen
    const Point middle{king.Left + CardWidth / 2, king.Top + CardHeight / 2};

    EXPECT_EQ(mReader::PileAt(index), first);
    EXPECT_EQ(mReader::PosAt(first, index), 0);
    EXPECT_EQ(mReader::PosAt(first, middle), 1);
    EXPECT_EQ(mReader::PileArea(first), (mReader::Extent{king.Left, king.Top, CardWidth, CardHeight + 250}));
    EXPECT_EQ(mReader::PileAt({king.Left + 1200, king.Top}), second);
    EXPECT_EQ(mReader::PosAt(second, {king.Left + 1200, king.Top}), -1);
    EXPECT_EQ(mReader::PileAt({king.Left + CardWidth, king.Top}), std::nullopt);
    EXPECT_FALSE(mReader::IsCovered(first, 0));
    EXPECT_TRUE(mReader::IsCovered(waste, 0));
    EXPECT_FALSE(mReader::IsCovered(waste, 1));

    // In the hand over the tableau: seen there, and still a card of its pile.
    const int held = mPosition::Card("8D");
    PicBack.ToFront(held);
    PicBack.Move(held, king.Left, king.Top);
    EXPECT_EQ(mReader::PileAt(index), waste);
    EXPECT_EQ(mReader::PosAt(waste, index), 1);
    EXPECT_FALSE(mReader::IsCovered(waste, 0));
}

}  // namespace
