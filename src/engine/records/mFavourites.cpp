// The favourite deals.
#include "engine/records/mFavourites.h"

#include <map>

#include "engine/records/cScore.h"
#include "engine/state/cData.h"

namespace mFavourites {

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

std::vector<std::string> Notes(const std::vector<std::string>& games) {
    std::map<std::string, int> counts;
    for (int i = 1; i <= gScore->FavTop(); ++i) ++counts[gScore->GetFav(i).mName];
    std::vector<std::string> notes;
    notes.reserve(games.size());
    for (const std::string& game : games) {
        const auto count = counts.find(game);
        notes.push_back(count == counts.end() ? ""
                                              : std::to_string(count->second) +
                                                    (count->second == 1 ? " favorite" : " favorites"));
    }
    return notes;
}

void Add(const std::string& gName, const GameNumber& number) {
    if (!gScore->AddFav(gName, number)) return;
    gData->Layer().Forms.Inform("Game <" + mGameNumber::Text(number) +
                                "> Successfully Added to Favorites Under <" + gName + "> Folder");
}

bool CanClear() { return gScore->FavTop() > 0; }

void Clear() {
    gScore->ClearFav();
    gScore->OpenFav();
}

}  // namespace mFavourites
