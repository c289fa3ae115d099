// All that belongs to the game on the table, named once.
#pragma once

#include "engine/state/DragState.h"
#include "engine/state/SessionFigures.h"
#include "engine/state/cArray.h"
#include "engine/state/cGames.h"
#include "engine/state/cPlate.h"
#include "engine/state/cTrans.h"

/// Whatever a game changes stands here, so that to set it aside and to put it back is one copy. The modules
/// reach the parts under their own names: gGames, gArray, gTrans, PicBack, gDrag, gGoalBase, gRedealCount and
/// the Figures of gData all lie in gRunning.
struct RunningGame {
    cGames Games;
    cArray Array;
    cTrans Trans;
    cPlate Plate;
    SessionFigures Figures;
    DragState Drag;
    int GoalBase = 0;
    int RedealCount = 0;
    bool Dealing = false;  ///< cards are being dealt
    bool Quiet = false;    ///< no sounds: the game is computed, not played
};
extern RunningGame gRunning;
