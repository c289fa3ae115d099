// The behaviour of all games in one number: a fixed player plays a fixed deal of each, and every position
// is folded into a hash. It tells that something changed; the other tests tell what. Whoever changes it
// on purpose says in the commit which rule it was.
#include <cstdint>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "engine/commands/mGen.h"
#include "engine/commands/mMain.h"
#include "engine/rules/mFunc.h"
#include "engine/rules/mPlay.h"
#include "engine/state/cArray.h"
#include "engine/state/cData.h"
#include "engine/state/cGames.h"
#include "engine/state/cPlate.h"
#include "engine/state/cTrans.h"
#include "support/Fixture.h"
#include "support/Hash.h"
#include "tools/RandomPlayer.h"

namespace {

void FoldPosition(Hash& hash) {
    for (const int value : {gData->Figures.GameRunning ? 1 : 0, gTrans->GetTransID(), gGoalBase,
                            gGames->EmptyNum, Number(gGames->StockNum), gRedealCount}) {
        hash.Fold(value);
    }
    for (int PicID = 0; PicID < gGames->TotalCards(); ++PicID) {
        const CardRecord& card = PicBack.PicCards(PicID);
        for (const int value :
             {card.Cell, card.Pile, card.Pos, card.FaceMode, card.Left, card.Top, card.MainPic}) {
            hash.Fold(value);
        }
    }
    cPlate::ForEachMark([&](MarkKind kind, int index) {
        const MarkRecord& mark = PicBack.Mark(kind, index);
        for (const int value : {mark.Visible ? 1 : 0, mark.Left, mark.Top, mark.Picture}) hash.Fold(value);
    });
}

// A card and where to; a press on the stock or a click on its mark have no card.
struct Action {
    int PicID = -1;
    int Cell = Stock;
    int Pile = 0;
};

std::vector<Action> LegalActions() {
    std::vector<Action> actions;
    for (int PicID = 0; PicID < gGames->TotalCards(); ++PicID) {
        int above = 0;
        if (!PicBack.PicCards(PicID).Visible || !mFunc::CanLift(PicID, above)) continue;
        for (const int Cell : {Home, Res, Goal}) {
            for (int p = 0; p < gGames->Piles(Cell); ++p) {
                if (Accepts(PicID, above, Cell, p)) actions.push_back({PicID, Cell, p});
            }
        }
    }
    if (gArray->GetTop(Stock) >= 0 ? gGames->StockType() != StockType::Open
                                   : gGames->StockNum == StockNum::Redeal) {
        actions.push_back({});
    }
    return actions;
}

void Make(const Action& action) {
    if (action.PicID >= 0) {
        mPosition::DragTo(action.PicID, action.Cell, action.Pile);
    } else if (gArray->GetTop(Stock) >= 0) {
        mPosition::Press(gArray->GetTopPicID(Stock));
    } else {
        mMain::StockClick();
    }
}

TEST(Signature, OfAllGames) {
    constexpr int Actions = 80;
    constexpr int UndoEvery = 7;
    Engine engine;
    Hash hash;
    std::uint64_t choice = 2004;
    long moves = 0;
    for (int SiD = 1; SiD <= gData->TotalGames(); ++SiD) {
        mGen::StartGame(gData->GetGame(SiD), SiD * 7.0);
        FoldPosition(hash);
        for (int step = 1; step <= Actions && gData->Figures.GameRunning; ++step) {
            const std::vector<Action> actions = LegalActions();
            if (actions.empty()) break;
            choice = choice * 6364136223846793005U + 1442695040888963407U;
            Make(actions[static_cast<std::size_t>((choice >> 33) % actions.size())]);
            if (step % UndoEvery == 0) mMain::Undo(0);
            FoldPosition(hash);
        }
        moves += gTrans->GetTransID();
    }
    EXPECT_GT(moves, gData->TotalGames() * 20) << "the player hardly moves";
    EXPECT_EQ(hash.Value(), 16497392766802526064U);
}

}  // namespace
