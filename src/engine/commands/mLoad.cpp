// Start and end of the program: who creates and who releases the one application object.
#include "engine/commands/mLoad.h"

#include "engine/commands/mGen.h"
#include "engine/records/cScore.h"
#include "engine/state/cData.h"

namespace mLoad {

void Main(const WindowLayer& layer) {
    gData = std::make_unique<cData>(layer);
    gData->InitCD("Tarnival 2004", "11.0", "tarnival.chm");
}

void UnloadMain() {
    if (!gData) return;
    if (gData->Figures.GameRunning) mGen::CloseGame(0);
    Shutdown();
}

void WriteWaiting() {
    // A record that could not be written lives in memory only: the player gets a last chance to make room.
    while (gScore && !gScore->WriteKept()) {
        if (!gData->Layer().Forms.AskToKeep(
                "Records of finished games could still not be written and will be lost.\nTry again?")) {
            break;
        }
    }
}

void Shutdown() {
    WriteWaiting();
    gData->Layer().Help.CloseAll();
    mGen::ReleaseAll();
    gData.reset();
}

}  // namespace mLoad
