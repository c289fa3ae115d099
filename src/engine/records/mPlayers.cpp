// The list of players.
#include "engine/records/mPlayers.h"

#include <algorithm>

#include "engine/records/cScore.h"
#include "engine/records/mText.h"
#include "engine/state/cData.h"

namespace {

constexpr int Slots = 20;

/// The slot that holds a name; 0 where none does. An empty name finds the first free slot.
int Slot(const std::string& name) {
    for (int i = 1; i <= Slots; ++i) {
        if (gData->GetPlayer(i) == name) return i;
    }
    return 0;
}

bool Refuse(const std::string& text) {
    gData->Layer().Forms.InformCritical(text);
    return false;
}

bool Rename(const std::string& oldName, const std::string& name) {
    const int slot = Slot(oldName);
    if (slot == 0) return true;  // gone meanwhile
    gData->SetRenaming(oldName + '/' + name);
    // The file first: while it keeps its name, the player does too.
    if (const FileError fault = gScore->RenameScore(oldName, name)) {
        gData->SetRenaming("");
        return Refuse("The file " + cScore::FileName(oldName) + " could not be renamed to " +
                      cScore::FileName(name) + ": " + *fault);
    }
    gData->SetPlayer(slot, name, gData->CurPlayer() == oldName);
    gData->SetRenaming("");
    return true;
}

void FinishRename() {
    const std::string names = gData->Renaming();
    const auto slash = names.find('/');
    if (slash == std::string::npos) return;
    const std::string oldName = names.substr(0, slash);
    const std::string name = names.substr(slash + 1);
    const FileSystem& files = gData->Layer().Files;
    const int slot = Slot(oldName);
    const bool moved = files.Exists(cScore::FileName(name)) && !files.Exists(cScore::FileName(oldName));
    if (slot != 0 && Slot(name) == 0 && moved) gData->SetPlayer(slot, name, false);
    if (Slot(oldName) == 0 && Slot(name) != 0 && gData->CurPlayer() == oldName) gData->SetCurPlayer(name);
    gData->SetRenaming("");
}

/// A shift of names that was cut short has left a name twice, or a gap that hides the last players from
/// whoever walks the list.
void CompactPlayers() {
    std::vector<std::string> names;
    for (int i = 1; i <= Slots; ++i) {
        const std::string name = gData->GetPlayer(i);
        if (!name.empty() && std::find(names.begin(), names.end(), name) == names.end())
            names.push_back(name);
    }
    names.resize(Slots);
    // From the first slot on: at no moment is a name missing.
    for (int i = 1; i <= Slots; ++i) {
        const std::string& name = names[static_cast<std::size_t>(i - 1)];
        if (gData->GetPlayer(i) != name) gData->SetPlayer(i, name, false);
    }
}

}  // namespace

namespace mPlayers {

std::vector<std::string> Names() {
    std::vector<std::string> names;
    const int players = gData->TotalPlayers();
    for (int i = 1; i <= players; ++i) {
        // A gap between the slots is no player.
        if (std::string name = gData->GetPlayer(i); !name.empty()) names.push_back(std::move(name));
    }
    return names;
}

bool RoomForOne() {
    if (gData->TotalPlayers() < Slots) return true;
    gData->Layer().Forms.Inform("Maximum 20 Players Only!");
    return false;
}

bool IsValidName(const std::string& name) {
    constexpr std::size_t MostBytes = 200;  // a file name may have 255, and some systems add to it
    if (name.empty() || name == "." || name == ".." || name.size() > MostBytes) return false;
    // Both separators: the files may be carried to a system that uses the other one.
    return name.find_first_of("/\\") == std::string::npos && !mText::HasControl(name);
}

bool Enter(const std::string& oldName, const std::string& name) {
    if (!IsValidName(name)) return Refuse("Please Enter a Valid Name");
    // A file without a player may hold someone's records: a rename never lays another file over it.
    const bool fileInTheWay = !oldName.empty() && gData->Layer().Files.Exists(cScore::FileName(name));
    if (Slot(name) != 0 || fileInTheWay) return Refuse("Player Exists !");
    if (!oldName.empty()) return Rename(oldName, name);
    const int free = Slot("");
    if (free == 0) return RoomForOne();
    gData->SetPlayer(free, name, false);
    return true;
}

bool CanDelete(const std::string& name) { return name != gData->CurPlayer(); }

void Delete(const std::string& name) {
    const int slot = name.empty() ? 0 : Slot(name);
    if (slot == 0 || !CanDelete(name)) return;
    Forms& forms = gData->Layer().Forms;
    if (!forms.AskCritical("Are you sure you want to delete this player")) return;
    if (const FileError fault = gScore->DeleteScore(name)) {
        forms.InformCritical("The file " + cScore::FileName(name) + " could not be deleted: " + *fault +
                             "\nThe player stays.");
        return;
    }
    gData->SetPlayer(slot, "", false);
    CompactPlayers();
}

void Mend() {
    FinishRename();
    CompactPlayers();
}

void Select(const std::string& name) {
    if (!name.empty() && Slot(name) != 0) gData->SetCurPlayer(name);
}

}  // namespace mPlayers
