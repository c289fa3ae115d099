// A fixed player, and the hash of all that happens to the table.
#include "tools/mSignature.h"

#include <stdexcept>
#include <vector>

#include <fmt/format.h>

#include "engine/commands/mGen.h"
#include "engine/commands/mMain.h"
#include "engine/rules/mFunc.h"
#include "engine/rules/mPlay.h"
#include "engine/state/cArray.h"
#include "engine/state/cData.h"
#include "engine/state/cGames.h"
#include "engine/state/cPlate.h"
#include "engine/state/cTrans.h"
#include "tools/Hash.h"
#include "tools/RandomPlayer.h"

namespace mSignature {

namespace {

constexpr int Actions = 80;
constexpr int UndoEvery = 7;
constexpr int RedoEvery = 3 * UndoEvery;

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
    // A hidden mark still has the place and the picture of an earlier game.
    cPlate::ForEachMark([&](MarkKind kind, int index) {
        const MarkRecord& mark = PicBack.Mark(kind, index);
        hash.Fold(mark.Visible ? 1 : 0);
        if (!mark.Visible) return;
        for (const int value : {mark.Left, mark.Top, mark.Picture}) hash.Fold(value);
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
                if (mFunc::Accepts(PicID, above, Cell, p)) actions.push_back({PicID, Cell, p});
            }
        }
    }
    if (gArray->GetTop(Stock) >= 0 ? gGames->StockType() != StockType::Open
                                   : gGames->StockNum == StockNum::Redeal) {
        actions.push_back({});
    }
    return actions;
}

void Drag(int PicID, Point place) {
    const CardRecord& card = PicBack.PicCards(PicID);
    const int X = place.X - card.Left;
    const int Y = place.Y - card.Top;
    mMain::MouseDown(PicID, 0, 0);
    mMain::MouseMove(PicID, X, Y);
    mMain::MouseUp(PicID);
}

void Make(const Action& action) {
    if (action.PicID >= 0) {
        Drag(action.PicID, DropPlace(action.Cell, action.Pile));
    } else if (gArray->GetTop(Stock) >= 0) {
        const int top = gArray->GetTopPicID(Stock);
        mMain::MouseDown(top, 0, 0);
        mMain::MouseUp(top);
    } else {
        mMain::StockClick();
    }
}

}  // namespace

std::uint64_t Of(const std::string& name) {
    if (gData->GetGameID(name) == 0) throw std::invalid_argument("mSignature: no game " + name);
    Hash ofName;
    ofName.Fold(name);
    std::uint64_t choice = ofName.Value();
    constexpr std::uint64_t Numbers = 999'999'999'999'999U;  // the longest that a player can type
    mGen::StartGame(name, static_cast<double>(1 + choice % Numbers));
    Hash hash;
    FoldPosition(hash);
    for (int step = 1; step <= Actions && gData->Figures.GameRunning; ++step) {
        const std::vector<Action> actions = LegalActions();
        if (actions.empty()) break;
        choice = choice * 6364136223846793005U + 1442695040888963407U;
        Make(actions[static_cast<std::size_t>((choice >> 33) % actions.size())]);
        FoldPosition(hash);
        if (step % UndoEvery == 0) mMain::Undo(0);
        if (step % RedoEvery == 0) mMain::Redo(0);
        FoldPosition(hash);
    }
    return hash.Value();
}

std::string Line(const std::string& name, std::uint64_t signature) {
    return fmt::format("{} {:016x}", name, signature);
}

}  // namespace mSignature
