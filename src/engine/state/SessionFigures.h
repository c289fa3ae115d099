// The figures of the running game.
#pragma once

#include <string>

#include "engine/outside/windowlayer.h"
#include "engine/state/GameNumber.h"

/// What the status line, the records and the clock know of the game; lost at exit.
struct SessionFigures {
    std::string GameStartTime;  ///< as text, for display
    Moment GameStart = 0;       ///< the same moment, for the clock
    bool GameRunning = false;
    std::string CurGName;
    GameNumber CurGNo = 0.0;
    int CurTime = 0;   ///< seconds
    int CurMoves = 0;  ///< stays inside 16 bits
    int CurScore = 0;  ///< stays inside 16 bits
};
