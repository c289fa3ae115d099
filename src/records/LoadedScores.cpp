// Loading and closing the store for a view.
#include "records/LoadedScores.h"

#include "records/cScore.h"
#include "shell/mDialog.h"

LoadedScores::LoadedScores() : wasLoaded_(gScore->IsLoaded()) {
    {
        const mDialog::BusyPointer busy;
        gScore->OpenAllScore();
    }
    gScore->ReportUnread();
}

LoadedScores::~LoadedScores() {
    // The records are gone already where an error of the program's own ends it under an open view.
    if (gScore && !wasLoaded_) gScore->CloseScore();
}
