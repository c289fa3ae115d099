// Loading and closing the store for a view.
#include "window/records/LoadedScores.h"

#include "engine/records/cScore.h"
#include "engine/records/mPlayers.h"
#include "window/controls/mDialog.h"

LoadedScores::LoadedScores(Reading reading) : wasLoaded_(gScore->IsLoaded()) {
    if (reading == Reading::Always || !wasLoaded_) Load();
}

void LoadedScores::Load() {
    {
        mPlayers::Mend();  // what the views show are all players
        const mDialog::BusyPointer busy;
        gScore->OpenAllScore();
    }
    gScore->ReportUnread();
}

LoadedScores::~LoadedScores() {
    // The records are gone already where an error of the program's own ends it under an open view.
    if (gScore && !wasLoaded_) gScore->CloseScore();
}
