// Asking the engine by brute force.
#include "solver/Table.h"

#include <algorithm>
#include <tuple>

#include <fmt/format.h>

#include "engine/rules/mFunc.h"
#include "engine/rules/mPlay.h"
#include "engine/state/cArray.h"
#include "engine/state/cGames.h"
#include "engine/state/cPlate.h"

using Solver::Move;
using Solver::PileCount;

namespace EngineTable {

std::vector<Move> Moves() {
    std::vector<Move> moves;
    for (int from = 0; from < PileCount; ++from) {
        const int cell = Solver::CellOf(from);
        const int pile = Solver::NumberOf(from);
        for (int pos = 0; pos <= gArray->GetTop(cell, pile); ++pos) {
            const int card = gArray->GetPicID(cell, pile, pos);
            int above = 0;
            if (!mFunc::CanLift(card, above)) continue;
            for (int to = 0; to < Solver::StockPile; ++to) {
                const int target = Solver::CellOf(to);
                const int number = Solver::NumberOf(to);
                if (number >= gGames->Piles(target)) continue;
                const bool accepted = target == Home  ? mFunc::HomeAccepts(card, cell, pile, number)
                                      : target == Res ? mFunc::ResAccepts(number, above)
                                                      : mFunc::GoalAccepts(card, number, above);
                if (accepted) {
                    moves.push_back({Move::Kind::Play, static_cast<std::uint8_t>(from),
                                     static_cast<std::uint8_t>(to), static_cast<std::uint8_t>(above + 1)});
                }
            }
        }
    }
    if (gArray->GetTop(Stock) < 0) {
        const bool allowed = gGames->Redeals() == -1 || gRedealCount < gGames->Redeals();
        if (gGames->StockNum == StockNum::Redeal && allowed) moves.push_back({.What = Move::Kind::Redeal});
    } else if (gGames->StockType() != StockType::Open) {
        moves.push_back({.What = Move::Kind::Press});
    }
    return Sorted(std::move(moves));
}

void Make(const Move& move) {
    if (move.What == Move::Kind::Press) {
        mPlay::PressStock();
    } else if (move.What == Move::Kind::Redeal) {
        mPlay::StockClick();
    } else {
        const int cell = Solver::CellOf(move.From);
        const int pile = Solver::NumberOf(move.From);
        const int target = Solver::CellOf(move.To);
        const int number = Solver::NumberOf(move.To);
        gArray->MoveCard(gArray->GetPicID(cell, pile, gArray->GetTop(cell, pile) + 1 - move.Count), target,
                         number, gArray->GetTop(target, number) + 1, tMod::Play, 0, move.Count - 1);
    }
}

std::string Difference(const Solver::Position& position) {
    for (int pile = 0; pile < PileCount; ++pile) {
        const int cell = Solver::CellOf(pile);
        const int number = Solver::NumberOf(pile);
        const int count = gArray->GetTop(cell, number) + 1;
        bool same = count == position.Count(pile);
        for (int pos = 0; same && pos < count; ++pos) {
            const CardRecord& card = PicBack.PicCards(gArray->GetPicID(cell, number, pos));
            const Solver::Card other = position.At(pile, pos).Card;
            const bool second = card.Suitpile >= SuitCount;
            same = Solver::KindOf(other) == card.Suitpile % SuitCount * RankCount + card.Num &&
                   ((other & Solver::SecondDeck) != 0) == second &&
                   (cell != Home || ((other & Solver::Closed) != 0) == (card.FaceMode == 1));
        }
        if (!same) return fmt::format("pile group {}, pile {} differs", cell, number);
    }
    return {};
}

}  // namespace EngineTable

std::string Text(const Move& move) {
    if (move.What == Move::Kind::Press) return "press";
    if (move.What == Move::Kind::Redeal) return "redeal";
    return fmt::format("{} cards of {}.{} to {}.{}", move.Count, Solver::CellOf(move.From),
                       Solver::NumberOf(move.From), Solver::CellOf(move.To), Solver::NumberOf(move.To));
}

std::vector<Move> Sorted(std::vector<Move> moves) {
    std::sort(moves.begin(), moves.end(), [](const Move& a, const Move& b) {
        return std::tuple(a.What, a.From, a.To, a.Count) < std::tuple(b.What, b.From, b.To, b.Count);
    });
    return moves;
}
