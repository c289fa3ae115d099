// The favourite deals.
#include "engine/records/mFavourites.h"

#include "engine/commands/mGen.h"
#include "engine/records/cScore.h"
#include "engine/state/cData.h"

namespace mFavourites {

void AddRunning() {
    const SessionFigures& figures = gData->Figures;
    if (!figures.GameRunning) return;
    if (!gScore->AddFav(figures.CurGName, figures.CurGNo)) return;
    gData->Layer().Forms.Inform("Game <" + mGameNumber::Text(figures.CurGNo) +
                                "> Successfully Added to Favorites Under <" + figures.CurGName + "> Folder");
}

void Open() {
    gScore->OpenFav();
    gScore->ReportUnread();
}

std::vector<std::string> Numbers(const std::string& gName) {
    std::vector<std::string> numbers;
    for (int i = 1; i <= gScore->FavTop(); ++i) {
        const tFav& favourite = gScore->GetFav(i);
        if (favourite.mName == gName) numbers.push_back(mGameNumber::Text(favourite.mGno));
    }
    return numbers;
}

bool CanClear() { return gScore->FavTop() > 0; }

void Clear() {
    gScore->ClearFav();
    gScore->OpenFav();
}

void Play(const std::string& gName, const std::string& number) {
    if (!mGen::Dealing()) mGen::StartGame(gName, number);
}

}  // namespace mFavourites
