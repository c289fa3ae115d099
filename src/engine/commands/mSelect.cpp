// The decisions of the two selection dialogs: who plays, which number is good, and the start.
#include "engine/commands/mSelect.h"

#include "engine/commands/mGen.h"
#include "engine/records/mPlayers.h"
#include "engine/rules/mFunc.h"
#include "engine/state/cData.h"

namespace {

bool Start(const ShownPlayer& player, const std::string& game, const GameNumber& number) {
    if (mGen::Dealing()) return true;
    if (gData->GidfromName(game) == 0) {
        gData->Layer().Forms.Inform("There is no game \"" + game + "\".");
        return true;
    }
    // Before the start: a running game that is abandoned here goes to the player just chosen.
    if (!player.Name.empty() && !mPlayers::Select(player)) return false;
    mGen::StartGame(game, number);
    return true;
}

}  // namespace

namespace mSelect {

bool Play(const ShownPlayer& player, const std::string& game) {
    return Start(player, game, mFunc::NewGameNo());
}

double LargestNumber() {
    double power = 1.0;  // exact: the range has 15 digits at most
    for (int i = gData->Get(Setting::RangeIndex); i > 0; --i) power *= 10.0;
    return power - 1.0;
}

std::string RangeText() { return "0 and " + mFunc::Grouped(LargestNumber()); }

std::optional<std::string> NumberFault(const std::string& typed) {
    const std::optional<double> number = mGameNumber::Parse(typed);
    const double largest = LargestNumber();
    if (number && *number > 0.0 && *number < largest) return std::nullopt;
    return "Please enter a number between 0 and " + mFunc::Grouped(largest);
}

bool PlayNumber(const ShownPlayer& player, const std::string& game, const std::string& typed) {
    return Start(player, game, typed);
}

void PlayFavourite(const std::string& game, const std::string& number) {
    if (!mGen::Dealing()) mGen::StartGame(game, number);
}

bool MayPlay(const tFav& deal) {
    if (mGen::Dealing() || gData->GetGameID(deal.mName) == 0) return false;
    if (!gData->Figures.GameRunning) return true;
    return gData->Layer().Forms.Ask(
        "The running game will be recorded as lost. Do you want to play the deal " +
        mGameNumber::Text(deal.mGno) + " of " + deal.mName + " now ?");
}

}  // namespace mSelect
