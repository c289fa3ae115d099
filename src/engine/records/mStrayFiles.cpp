// Finding score files without a player, and giving them one.
#include "engine/records/mStrayFiles.h"

#include <algorithm>
#include <string>
#include <vector>

#include "engine/records/cScore.h"
#include "engine/records/mPlayers.h"
#include "engine/state/cData.h"
#include "engine/state/mPlayerName.h"
#include "engine/state/mText.h"

namespace {

bool Contains(const std::vector<std::string>& names, const std::string& name) {
    return std::find(names.begin(), names.end(), name) != names.end();
}

/// Names of files without the ending of score files, sorted.
std::vector<std::string> StrayNames(const PlayerList& list) {
    std::vector<std::string> names;
    std::vector<std::string> files;
    if (gData->Layer().Files.List(gData->AppDir(), files)) return names;
    const std::string ending = cScore::Ending;
    for (const std::string& file : files) {
        if (file.size() <= ending.size() || !file.ends_with(ending)) continue;
        std::string name = file.substr(0, file.size() - ending.size());
        if (!list.Has(name)) names.push_back(std::move(name));
    }
    std::sort(names.begin(), names.end());
    return names;
}

/// A name for a player whose file has one that no player can have.
std::string FreeName(const PlayerList& list) {
    for (int i = 1;; ++i) {
        std::string name = "Player" + std::to_string(i);
        if (!list.Has(name) && !gData->Layer().Files.Exists(cScore::FileName(name))) return name;
    }
}

std::string Question(const std::string& stray, const std::string& player) {
    const cScore::FileCount count = cScore::CountRecords(gData->AppDir() + stray + cScore::Ending);
    const std::string holds = count.Fault ? "which cannot be read (" + *count.Fault + ")"
                                          : "with " + mPlayers::RecordsText(count.Records);
    return "The score file \"" + mText::Shown(mText::FromFile(stray)) + cScore::Ending + "\" " + holds +
           " belongs to no player.\nTake it back as the player " + player + "?";
}

FileError TakeBack(PlayerList& list, const std::string& stray, const std::string& player) {
    FileSystem& files = gData->Layer().Files;
    // A program that is killed here leaves a stray file with a better name.
    if (player != stray) {
        if (FileError fault =
                files.Rename(gData->AppDir() + stray + cScore::Ending, cScore::FileName(player))) {
            return fault;
        }
    }
    list.Add(player);
    return list.Write();
}

/// A file that was not wanted and is gone may come again as another.
void ForgetGone(const std::vector<std::string>& strays) {
    const auto isGone = [&](const std::string& declined) {
        return std::none_of(strays.begin(), strays.end(),
                            [&](const std::string& stray) { return mText::FromFile(stray) == declined; });
    };
    const PlayerList seen = PlayerList::Read();
    if (std::none_of(seen.Declined.begin(), seen.Declined.end(), isGone)) return;
    (void)gData->Alone([&] {
        PlayerList list = PlayerList::Read();
        std::erase_if(list.Declined, isGone);
        (void)list.Write();  // else the next time
    });
}

}  // namespace

namespace mStrayFiles {

void Offer() {
    Forms& forms = gData->Layer().Forms;
    const std::vector<std::string> strays = StrayNames(PlayerList::Read());
    ForgetGone(strays);
    for (const std::string& stray : strays) {
        const PlayerList seen = PlayerList::Read();
        if (seen.Has(stray) || Contains(seen.Declined, mText::FromFile(stray))) continue;
        if (seen.IsFull()) {
            forms.Inform(
                "The score file \"" + mText::Shown(mText::FromFile(stray)) + cScore::Ending +
                "\" belongs to no player. It can be taken back when there is room for another player.");
            return;
        }
        const bool good = mPlayerName::IsGood(stray);
        const bool wanted = forms.AskToKeep(Question(stray, good ? stray : FreeName(seen)));
        FileError fault;
        const bool alone = gData->Alone([&] {
            std::vector<std::string> messages;  // the list was in order a moment ago
            PlayerList list = mPlayers::MendedList(messages);
            if (list.Has(stray) || list.IsFull()) return;
            if (wanted) {
                fault = TakeBack(list, stray, good ? stray : FreeName(list));
            } else {
                list.Declined.push_back(mText::FromFile(stray));
                fault = list.Write();
            }
        });
        if (!alone) fault = "Another program is busy with the list of players";
        if (fault) forms.InformCritical("The list of players could not be changed: " + *fault);
    }
}

}  // namespace mStrayFiles
