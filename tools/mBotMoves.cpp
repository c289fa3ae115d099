// The bot's moves, by the rules that the mouse goes by.
#include "mBotMoves.h"

#include <fmt/format.h>

#include "engine/commands/mMain.h"
#include "engine/rules/mFunc.h"
#include "engine/rules/mPlay.h"
#include "engine/state/cArray.h"
#include "engine/state/cGames.h"
#include "engine/state/cPlate.h"

namespace mBotMoves {

namespace {

void AddDrag(std::vector<BotMove>& moves, int PicID, int Cell, int Pile) {
    moves.push_back({BotMove::Kind::Drag, static_cast<std::int8_t>(Cell), static_cast<std::int8_t>(Pile),
                     static_cast<std::int16_t>(PicID)});
}

void AddTargets(std::vector<BotMove>& moves, int PicID, int above) {
    const CardRecord& card = PicBack.PicCards(PicID);
    bool baseSeen = false;
    for (int p = 0; p < gGames->Piles(Goal) && card.Cell != Goal; ++p) {
        const bool empty = gArray->GetTop(Goal, p) < 0;
        if ((empty && baseSeen) || !mFunc::GoalAccepts(PicID, p, above)) continue;
        baseSeen = baseSeen || empty;
        AddDrag(moves, PicID, Goal, p);
    }
    bool emptySeen = false;
    for (int p = 0; p < gGames->Piles(Home); ++p) {
        const bool empty = gArray->GetTop(Home, p) < 0;
        if (empty && (emptySeen || (card.Cell == Home && card.Pos == 0))) continue;
        if (!mFunc::HomeAccepts(PicID, card.Cell, card.Pile, p)) continue;
        emptySeen = emptySeen || empty;
        AddDrag(moves, PicID, Home, p);
    }
    for (int p = 0; p < gGames->Piles(Res) && card.Cell != Res; ++p) {
        if (!mFunc::ResAccepts(p, above)) continue;
        AddDrag(moves, PicID, Res, p);
        break;
    }
}

}  // namespace

std::vector<BotMove> All() {
    std::vector<BotMove> moves;
    for (int Cell = 0; Cell < CellCount; ++Cell) {
        // A card of a foundation can help on the tableau; where runs leave by themselves it never does.
        if (Cell == Goal && gGames->GameType() == GameType::CompleteRuns) continue;
        for (int pile = 0; pile < gGames->Piles(Cell); ++pile) {
            for (int Pos = gArray->GetTop(Cell, pile); Pos >= 0; --Pos) {
                const int PicID = gArray->GetPicID(Cell, pile, Pos);
                int above = 0;
                if (mFunc::CanLift(PicID, above)) AddTargets(moves, PicID, above);
                if (Cell != Home || !gGames->MultiMove() || mFunc::CardFaceMode(PicID) == 1) break;
            }
        }
    }
    if (gArray->GetTop(Stock) >= 0 && gGames->StockType() != StockType::Open) {
        moves.push_back(
            {BotMove::Kind::StockPress, Stock, 0, static_cast<std::int16_t>(gArray->GetTopPicID(Stock))});
    }
    if (mPlay::MayRedeal() && gArray->GetTop(Stock) < 0) {
        moves.push_back({BotMove::Kind::StockClick, Stock, 0, -1});
    }
    return moves;
}

void Make(const BotMove& move) {
    switch (move.What) {
        case BotMove::Kind::Drag: {
            int above = 0;
            if (!mFunc::CanLift(move.PicID, above)) return;
            gArray->MoveCard(move.PicID, move.Cell, move.Pile, gArray->GetTop(move.Cell, move.Pile) + 1,
                             tMod::Play, 0, above);
            break;
        }
        case BotMove::Kind::StockPress:
            mPlay::PressStock();
            break;
        case BotMove::Kind::StockClick:
            mPlay::StockClick();
            break;
    }
}

std::string Play(const BotMove& move) {
    constexpr double GripX = CardWidth / 2.0;
    constexpr double GripY = CardHeight / 2.0;
    if (move.What == BotMove::Kind::StockClick) {
        mMain::StockClick();
        return "redeal";
    }
    mMain::MouseDown(move.PicID, GripX, GripY);
    if (!gDrag.gPicked) {
        mMain::MouseUp(move.PicID);
        return fmt::format("press {}", move.PicID);
    }
    const int top = move.Cell == Home ? gArray->GetTop(Home, move.Pile) : 0;
    const Point place = gGames->Position(move.Cell, move.Pile, top);
    mMain::MouseMove(move.PicID, GripX + place.X - mFunc::CardLeft(move.PicID),
                     GripY + place.Y - mFunc::CardTop(move.PicID));
    mMain::MouseUp(move.PicID);
    return fmt::format("drag {} {} {}", move.PicID, place.X, place.Y);
}

}  // namespace mBotMoves
