// The work of the engine that is measured.
#include "mEngineWork.h"

#include <array>

#include "engine/help/mRules.h"
#include "engine/state/cArray.h"
#include "engine/state/cData.h"

namespace {

cArray::AfterMove afterMove = nullptr;
long moves = 0;

void CountMove(bool autoplay) {
    ++moves;
    afterMove(autoplay);
}

}  // namespace

namespace mEngineWork {

long Play(RandomPlayer& player, long number) {
    constexpr std::array<const char*, 4> games{"Klondike", "Freecell", "Spider", "Canfield"};
    constexpr int Actions = 1000;
    if (gArray->OnMoved != CountMove) {
        afterMove = gArray->OnMoved;
        gArray->OnMoved = CountMove;
    }
    moves = 0;
    mGen::StartGame(games[static_cast<std::size_t>(number) % games.size()], static_cast<double>(number));
    player.Forget();
    for (int i = 0; i < Actions && gData->Figures.GameRunning; ++i) player.Act();
    return moves;
}

std::size_t Pages() {
    std::size_t bytes = 0;
    for (const int id : mRules::AllGames()) bytes += mRules::Page(id).size();
    return bytes;
}

}  // namespace mEngineWork
