// The running game, and the names under which its parts are known.
#include "engine/state/RunningGame.h"

RunningGame gRunning;

cPlate& PicBack = gRunning.Plate;
DragState& gDrag = gRunning.Drag;
int& gGoalBase = gRunning.GoalBase;
int& gRedealCount = gRunning.RedealCount;
cGames* gGames = nullptr;
cArray* gArray = nullptr;
cTrans* gTrans = nullptr;
