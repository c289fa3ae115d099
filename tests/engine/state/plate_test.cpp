// The records of cards and marks: each its own, and only changes are told.
#include <stdexcept>

#include <gtest/gtest.h>

#include "engine/outside/memorylayer.h"
#include "engine/state/cPlate.h"

namespace {

TEST(Plate, EveryMarkIsItsOwn) {
    cPlate plate;
    int marks = 0;
    cPlate::ForEachMark([&](MarkKind kind, int index) {
        ++marks;
        plate.ShowMark(kind, index, marks, marks, -marks);
    });
    EXPECT_EQ(marks, 18 + 8 + 10 + 1 + 1);
    int mark = 0;
    cPlate::ForEachMark([&](MarkKind kind, int index) {
        ++mark;
        EXPECT_EQ(plate.Mark(kind, index), (MarkRecord{mark, mark, -mark, true}));
        plate.HideMark(kind, index);
        EXPECT_FALSE(plate.Mark(kind, index).Visible);
    });
    EXPECT_THROW((void)plate.Mark(MarkKind::Home, 18), std::out_of_range);
    EXPECT_THROW((void)plate.Mark(MarkKind::Right, -1), std::out_of_range);
    EXPECT_THROW((void)plate.PicCards(MaxCards), std::out_of_range);
    EXPECT_THROW((void)plate.PicCards(-1), std::out_of_range);
}

TEST(Plate, OnlyChangesAreTold) {
    MemoryStage stage;
    cPlate plate;
    plate.SetStage(&stage);
    plate.SetFaceMode(3, 1);
    plate.SetSelected(3, false);
    plate.SetMainPic(3, 0);
    plate.SetDeckPic(3, 0);
    EXPECT_EQ(stage.Changes, 0);
    plate.SetFaceMode(3, 0);
    plate.SetSelected(3, true);
    plate.SetMainPic(3, 52);
    plate.SetDeckPic(3, 531);
    plate.SetMainPic(3, 0);
    plate.SetDeckPic(3, 0);
    EXPECT_EQ(stage.Changes, 4);
    EXPECT_EQ(plate.PicCards(3).MainPic, 52) << "an empty picture keeps the old one";
    EXPECT_EQ(plate.PicCards(3).DeckPic, 531);
    plate.ToFront(3);
    plate.ToFront(4);
    EXPECT_GT(plate.PicCards(4).Order, plate.PicCards(3).Order);
}

}  // namespace
