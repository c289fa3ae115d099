// The random player's actions. All come in where the window's events come in.
#include "tools/RandomPlayer.h"

#include <array>

#include "engine/commands/mMain.h"
#include "engine/rules/mFunc.h"
#include "engine/state/cArray.h"
#include "engine/state/cData.h"
#include "engine/state/cGames.h"
#include "engine/state/cTrans.h"

namespace {

constexpr double GripX = 400;
constexpr double GripY = 300;

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

Point DropPlace(int Cell, int Pile) {
    return gGames->Position(Cell, Pile, Cell == Home ? gArray->GetTop(Home, Pile) : 0);
}

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
            if (!mFunc::Accepts(PicID, above, Cell, pile)) continue;
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
    const int command = Pick(4);
    if (command == 0) mMain::Undo(0);
    if (command == 1) mMain::Redo(0);
    if (command == 2 && gArray->GetTop(Stock) < 0) mMain::StockClick();
    mMain::CancelDrag();
    mMain::MouseUp(PicID);
}

void RandomPlayer::Act() {
    const int choice = Pick(100);
    const auto act = [&](int below, const char* what) {
        if (choice >= below) return false;
        lastAction_ = what;
        return true;
    };
    if (act(45, "a drag that looked for a pile")) {
        DragSensibly();
    } else if (act(60, "a drag anywhere")) {
        DragAnywhere();
    } else if (act(75, "a press on the stock")) {
        if (gArray->GetTop(Stock) < 0) return;
        const int PicID = gArray->GetPicID(Stock, 0, Pick(gArray->GetTop(Stock) + 1));
        mMain::MouseDown(PicID, GripX, GripY);
        mMain::MouseUp(PicID);
    } else if (act(79, "a press")) {
        const int PicID = AnyCard();
        Drag(PicID, mFunc::CardLeft(PicID), mFunc::CardTop(PicID));
    } else if (act(83, "a click on the stock's mark")) {
        if (gArray->GetTop(Stock) < 0) mMain::StockClick();
    } else if (act(89, "undo")) {
        mMain::Undo(Pick(2));
    } else if (act(94, "redo")) {
        mMain::Redo(Pick(2));
    } else if (choice < 95 && Pick(10) == 0 && act(95, "undo all")) {  // seldom: it leads back to the deal
        mMain::UndoAll(0);
    } else if (act(96, "redo all")) {
        mMain::RedoAll(0);
    } else if (act(98, "autoplay flipped")) {
        mMain::FlipAutoplay();
    } else {
        lastAction_ = "a command during a drag";
        Interrupt();
    }
}
