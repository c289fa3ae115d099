// Changes of the list of players.
#include "engine/records/mPlayers.h"

#include <functional>

#include "engine/records/cScore.h"
#include "engine/state/cData.h"
#include "engine/state/mPlayerName.h"
#include "engine/state/mText.h"

namespace {

constexpr const char* Exists = "Player Exists !";
constexpr const char* Full = "Maximum 20 Players Only!";

/// What came of a change; the messages wait until other programs may go on.
struct Outcome {
    bool Done = false;
    std::string Fault;               ///< why nothing was changed
    std::vector<std::string> Other;  ///< what else there is to tell
};

std::string NotWritten(const std::string& cause) {
    return "The list of players could not be changed, because the settings could not be written: " + cause;
}

/// What has become of a player; empty where nothing has.
std::string Fate(const PlayerList& list, const ShownPlayer& player) {
    const std::optional<std::string> name = list.NowCalled(player);
    if (!name) return player.Name + " is not in the list of players any more.";
    return *name == player.Name ? "" : player.Name + " is now called " + *name + '.';
}

/// Carries a change out in one step, and tells what came of it.
bool Change(const std::function<void(PlayerList& list, Outcome& outcome)>& step) {
    Outcome outcome;
    const bool alone = gData->Alone([&] {
        PlayerList list = mPlayers::MendedList(outcome.Other);
        step(list, outcome);
    });
    Forms& forms = gData->Layer().Forms;
    if (!alone) outcome.Fault = "Another program is busy with the list of players. Please try again.";
    for (const std::string& message : outcome.Other) forms.Inform(message);
    if (!outcome.Fault.empty()) forms.InformCritical(outcome.Fault);
    return outcome.Done;
}

void AddPlayer(const std::string& name, PlayerList& list, Outcome& outcome) {
    if (list.Has(name)) {
        outcome.Fault = Exists;
        return;
    }
    list.Add(name);
    std::erase(list.Declined, name);
    if (const FileError fault = list.Write()) {
        outcome.Fault = NotWritten(*fault);
        return;
    }
    outcome.Done = true;
    const std::string path = cScore::FileName(name);
    if (!gData->Layer().Files.Exists(path)) return;
    const cScore::FileCount count = cScore::CountRecords(path);
    if (count.Fault) {
        outcome.Other.push_back("The score file " + path +
                                " was there already, but could not be read: " + *count.Fault);
    } else if (count.Records > 0) {
        outcome.Other.push_back("The score file of " + name + " was there already: its " +
                                mPlayers::RecordsText(count.Records) +
                                (count.Records == 1 ? " comes" : " come") + " along.");
    }
}

void RenamePlayer(const std::string& from, const std::string& to, PlayerList& list, Outcome& outcome) {
    // A file without a player may hold someone's records: a rename never lays another file over it.
    if (list.Has(to) || gData->Layer().Files.Exists(cScore::FileName(to))) {
        outcome.Fault = Exists;
        return;
    }
    list.Pending.Renamed = from;
    list.Pending.To = to;
    if (const FileError fault = list.Write()) {
        outcome.Fault = NotWritten(*fault);
        return;
    }
    // The file first: while it keeps its name, the player does too.
    PlayerList before = list;
    before.Pending = {};
    if (const FileError fault = gScore->RenameScore(from, to)) {
        outcome.Fault = "The file " + cScore::FileName(from) + " could not be renamed to " +
                        cScore::FileName(to) + ": " + *fault;
        (void)before.Write();
        return;
    }
    list.Rename(from, to);
    list.Pending = {};
    if (const FileError fault = list.Write()) {
        outcome.Fault = NotWritten(*fault);
        if (!gScore->RenameScore(to, from)) (void)before.Write();
        return;
    }
    outcome.Done = true;
}

void DeletePlayer(const std::string& name, PlayerList& list, Outcome& outcome) {
    const PlayerList before = list;
    list.Delete(name);
    list.Pending.Deleted = name;
    if (const FileError fault = list.Write()) {
        outcome.Fault = NotWritten(*fault);
        return;
    }
    if (const FileError fault = gScore->DeleteScore(name)) {
        outcome.Fault =
            "The file " + cScore::FileName(name) + " could not be deleted: " + *fault + "\nThe player stays.";
        list.TakeDeletionBack(before);
        (void)list.Write();
        return;
    }
    list.Pending = {};
    (void)list.Write();  // a note that stays is seen to be done with
    outcome.Done = true;
}

/// Goes on with what a killed program had begun. A rename is done where the score file has its new name.
void Finish(PlayerList& list) {
    const FileSystem& files = gData->Layer().Files;
    if (const std::string from = list.Pending.Renamed; !from.empty()) {
        const std::string to = list.Pending.To;
        const bool moved = files.Exists(cScore::FileName(to)) && !files.Exists(cScore::FileName(from));
        if (list.Has(from) && !list.Has(to) && moved) list.Rename(from, to);
        // An earlier version of this program wrote the list before it wrote who is selected.
        if (!list.Has(from) && list.Has(to) && list.Current() == from) list.MakeCurrent(to);
    }
    const std::string deleted = list.Pending.Deleted;
    if (!deleted.empty() && !list.Has(deleted)) (void)gScore->DeleteScore(deleted);
    list.Pending = {};
}

}  // namespace

namespace mPlayers {

std::vector<std::string> Names() { return PlayerList::Read().Names(); }

std::string RecordsText(int records) {
    return std::to_string(records) + (records == 1 ? " record" : " records");
}

bool RoomForOne() {
    if (gData->TotalPlayers() < PlayerList::Slots) return true;
    gData->Layer().Forms.Inform(Full);
    return false;
}

bool StillThere(const ShownPlayer& player) {
    const std::string fate = Fate(PlayerList::Read(), player);
    if (!fate.empty()) gData->Layer().Forms.Inform(fate);
    return fate.empty();
}

bool Enter(const ShownPlayer& old, const std::string& name) {
    Forms& forms = gData->Layer().Forms;
    if (!mPlayerName::IsGood(name)) {
        forms.InformCritical("Please Enter a Valid Name");
        return false;
    }
    if (old.Name.empty()) {
        bool full = false;
        const bool added = Change([&](PlayerList& list, Outcome& outcome) {
            full = list.IsFull() && !list.Has(name);
            if (!full) AddPlayer(name, list, outcome);
        });
        if (full) forms.Inform(Full);
        return added;
    }
    return Change([&](PlayerList& list, Outcome& outcome) {
        outcome.Fault = Fate(list, old);
        if (outcome.Fault.empty()) RenamePlayer(old.Name, name, list, outcome);
    });
}

bool CanDelete(const std::string& name) { return name != gData->CurPlayer(); }

void Delete(const ShownPlayer& player) {
    if (player.Name.empty() || !StillThere(player) || !CanDelete(player.Name)) return;
    if (!gData->Layer().Forms.AskCritical("Are you sure you want to delete this player")) return;
    // The question may have stood for long.
    (void)Change([&](PlayerList& list, Outcome& outcome) {
        outcome.Fault = Fate(list, player);
        if (outcome.Fault.empty() && list.Current() == player.Name) {
            outcome.Fault = player.Name + " is the selected player now, who cannot be deleted.";
        }
        if (outcome.Fault.empty()) DeletePlayer(player.Name, list, outcome);
    });
}

bool Select(const ShownPlayer& player) {
    return Change([&](PlayerList& list, Outcome& outcome) {
        outcome.Fault = Fate(list, player);
        if (!outcome.Fault.empty()) return;
        list.MakeCurrent(player.Name);
        outcome.Done = true;
        // It counts for as long as the program runs, too, where it cannot be written.
        if (list.Write()) gData->SetCurPlayer(player.Name);
    });
}

PlayerList MendedList(std::vector<std::string>& messages) {
    PlayerList list = PlayerList::Read();
    if (list.IsTidy()) return list;
    for (const std::string& name : list.Refused()) {
        messages.push_back("The settings name a player \"" + mText::Shown(name) +
                           "\", which cannot be the name of a player. It is taken out of the list.");
    }
    list.TidyNames();
    Finish(list);
    const std::string selected = list.Current();
    list.TidySelection();
    if (!selected.empty() && selected != list.Current()) {
        messages.push_back("The selected player " + selected + " is not in the list of players. " +
                           list.Current() + " is selected now.");
    }
    list.WriteOrKeep();
    return list;
}

void Mend() {
    if (PlayerList::Read().IsTidy()) return;
    std::vector<std::string> messages;
    (void)gData->Alone([&] { (void)MendedList(messages); });
    for (const std::string& message : messages) gData->Layer().Forms.Inform(message);
}

}  // namespace mPlayers
