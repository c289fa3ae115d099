// What the tests of the engine share: the running engine with its globals and commands, and the words in
// which something is expected.
#pragma once

#include <string>
#include <tuple>
#include <utility>
#include <vector>

#include "engine/commands/mGen.h"
#include "engine/commands/mMain.h"
#include "engine/rules/mFunc.h"
#include "engine/state/cArray.h"
#include "engine/state/cData.h"
#include "engine/state/cGames.h"
#include "engine/state/cPlate.h"
#include "engine/state/cTrans.h"
#include "support/Expect.h"
#include "support/Fixture.h"
