// The random player's actions. All come in where the window's events come in.
#include "support/RandomPlayer.h"

#include <array>

#include "rules/mFunc.h"
#include "shell/cData.h"
#include "state/cArray.h"
#include "state/cGames.h"
#include "state/cTrans.h"
#include "table/mMain.h"

namespace {

constexpr double GripX = 400;
constexpr double GripY = 300;

// Where a drop on the pile looks for the card.
Point DropPlace(int Cell, int Pile) {
    return gGames->Position(Cell, Pile, Cell == Home ? gArray->GetTop(Home, Pile) : 0);
}

bool Accepts(int PicID, int above, int Cell, int Pile) {
    const CardRecord& card = PicBack.PicCards(PicID);
    switch (Cell) {
        case Home:
            return mFunc::HomeAccepts(PicID, card.Cell, card.Pile, Pile);
        case Res:
            return mFunc::ResAccepts(Pile, above);
        default:
            return mFunc::GoalAccepts(PicID, Pile, above);
    }
}

// The cards that go with the lifted one.
std::bitset<MaxCards> LiftedGroup(int PicID) {
    std::bitset<MaxCards> group;
    const CardRecord& card = PicBack.PicCards(PicID);
    for (int i = 1; gDrag.gPicked && i <= gDrag.gPickCount; ++i) {
        group.set(static_cast<std::size_t>(gArray->GetPicID(Home, card.Pile, card.Pos + i)));
    }
    return group;
}

}  // namespace

int RandomPlayer::AnyCard() { return Pick(gGames->TotalCards()); }

void RandomPlayer::Drag(int PicID, int X, int Y) {
    const int moves = gTrans->GetTransID();
    mMain::MouseDown(PicID, GripX, GripY);
    if (!gDrag.gPicked) return;
    const std::bitset<MaxCards> group = LiftedGroup(PicID);
    mMain::MouseMove(PicID, GripX + X - mFunc::CardLeft(PicID), GripY + Y - mFunc::CardTop(PicID));
    mMain::MouseUp(PicID);
    if (gData->Figures.GameRunning && gTrans->GetTransID() == moves) displaced_ |= group;
}

// Looks for a card that may be lifted and a pile that takes it.
void RandomPlayer::DragSensibly() {
    constexpr int Tries = 12;
    constexpr std::array<int, 3> targets{Home, Goal, Res};
    for (int i = 0; i < Tries; ++i) {
        const int PicID = AnyCard();
        int above = 0;
        if (!mFunc::CanLift(PicID, above)) continue;
        const int Cell = targets[static_cast<std::size_t>(Pick(3))];
        const int piles = gGames->Piles(Cell);
        if (piles == 0) continue;
        const int first = Pick(piles);
        for (int p = 0; p < piles; ++p) {
            const int pile = (first + p) % piles;
            if (!Accepts(PicID, above, Cell, pile)) continue;
            const Point place = DropPlace(Cell, pile);
            Drag(PicID, place.X, place.Y);
            return;
        }
    }
}

// Any card to anywhere, often between two piles.
void RandomPlayer::DragAnywhere() {
    const int PicID = AnyCard();
    if (Pick(4) == 0) {
        Drag(PicID, Pick(PlateWidth + 4000) - 2000, Pick(PlateHeight + 4000) - 2000);
        return;
    }
    const int pile = Pick(gGames->Piles(Home));
    const Point place = DropPlace(Home, pile);
    Drag(PicID, place.X + Pick(CardWidth * 2) - CardWidth, place.Y + Pick(CardHeight * 2) - CardHeight);
}

// A command while a card hangs on the mouse, and a second press, which changes nothing.
void RandomPlayer::Interrupt() {
    const int PicID = AnyCard();
    mMain::MouseDown(PicID, GripX, GripY);
    displaced_ |= LiftedGroup(PicID);
    mMain::MouseMove(PicID, GripX + Pick(3000), GripY + Pick(3000));
    if (gDrag.gPicked) mMain::MouseDown(AnyCard(), GripX, GripY);
    switch (Pick(4)) {
        case 0:
            mMain::Undo(0);
            break;
        case 1:
            mMain::Redo(0);
            break;
        case 2:
            if (gArray->GetTop(Stock) < 0) mMain::StockClick();
            break;
        default:
            break;
    }
    mMain::CancelDrag();
    mMain::MouseUp(PicID);
}

void RandomPlayer::Act() {
    const int choice = Pick(100);
    if (choice < 45) {
        lastAction_ = "a drag that looked for a pile";
        DragSensibly();
    } else if (choice < 60) {
        lastAction_ = "a drag anywhere";
        DragAnywhere();
    } else if (choice < 75) {
        lastAction_ = "a press on the stock";
        if (gArray->GetTop(Stock) < 0) return;
        const int PicID = gArray->GetPicID(Stock, 0, Pick(gArray->GetTop(Stock) + 1));
        mMain::MouseDown(PicID, GripX, GripY);
        mMain::MouseUp(PicID);
    } else if (choice < 79) {
        lastAction_ = "a press";
        const int PicID = AnyCard();
        Drag(PicID, mFunc::CardLeft(PicID), mFunc::CardTop(PicID));
    } else if (choice < 83) {
        lastAction_ = "a click on the stock's mark";
        if (gArray->GetTop(Stock) < 0) mMain::StockClick();
    } else if (choice < 89) {
        lastAction_ = "undo";
        mMain::Undo(Pick(2));
    } else if (choice < 94) {
        lastAction_ = "redo";
        mMain::Redo(Pick(2));
    } else if (choice < 95 && Pick(10) == 0) {  // seldom: it leads back to the deal
        lastAction_ = "undo all";
        mMain::UndoAll(0);
    } else if (choice < 96) {
        lastAction_ = "redo all";
        mMain::RedoAll(0);
    } else if (choice < 98) {
        lastAction_ = "autoplay flipped";
        mMain::FlipAutoplay();
    } else {
        lastAction_ = "a command during a drag";
        Interrupt();
    }
}
