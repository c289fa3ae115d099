// From the solver's moves to the mouse.
#include "SolutionReplay.h"

#include <fmt/format.h>
#include <fmt/ranges.h>

#include "engine/commands/mGen.h"
#include "engine/commands/mLoad.h"
#include "engine/commands/mMain.h"
#include "engine/state/RunningGame.h"
#include "engine/state/cArray.h"
#include "engine/state/cData.h"
#include "mBotMoves.h"

namespace {

BotMove OnTable(const Solver::Move& move) {
    switch (move.What) {
        case Solver::Move::Kind::Press:
            return {BotMove::Kind::StockPress, Stock, 0,
                    static_cast<std::int16_t>(gArray->GetTopPicID(Stock))};
        case Solver::Move::Kind::Redeal:
            return {BotMove::Kind::StockClick, Stock, 0, -1};
        case Solver::Move::Kind::Play:
        case Solver::Move::Kind::Talon:
            break;
    }
    const int cell = Solver::CellOf(move.From);
    const int pile = Solver::NumberOf(move.From);
    const int lowest = gArray->GetTop(cell, pile) + 1 - move.Count;
    return {BotMove::Kind::Drag, static_cast<std::int8_t>(Solver::CellOf(move.To)),
            static_cast<std::int8_t>(Solver::NumberOf(move.To)),
            static_cast<std::int16_t>(lowest < 0 ? -1 : gArray->GetPicID(cell, pile, lowest))};
}

}  // namespace

SolutionReplay::SolutionReplay(bool autoplay) : autoplay_(autoplay) {
    mLoad::Main(layer_.Layer());
    mMain::Load();
    gRunning.Quiet = true;
    gData->Set(Setting::Autoplay, autoplay ? 1 : 0);
}

SolutionReplay::~SolutionReplay() { mLoad::UnloadMain(); }

bool SolutionReplay::Wins(const std::string& game, const Deal& deal, const std::vector<Solver::Move>& moves) {
    lines_.clear();
    if (!autoplay_) lines_.emplace_back("autoplay");  // it is on at the start
    if (const double* number = std::get_if<double>(&deal)) {
        lines_.push_back(fmt::format("start \"{}\" {}", game, *number));
        mGen::StartGame(game, *number);
    } else {
        const auto& deck = std::get<std::vector<int>>(deal);
        lines_.push_back(fmt::format("startdeck \"{}\" [{}]", game, fmt::join(deck, ",")));
        mGen::StartDeck(game, deck);
    }
    for (const Solver::Move& move : moves) {
        if (!gData->Figures.GameRunning) return false;
        const BotMove onTable = OnTable(move);
        if (onTable.What == BotMove::Kind::Drag && onTable.PicID < 0) return false;
        lines_.push_back(mBotMoves::Play(onTable));
    }
    return !gData->Figures.GameRunning;
}
