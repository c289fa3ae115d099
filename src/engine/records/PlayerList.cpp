// The list of players in the settings. Beside the slots of the players, the section "Users" holds
//   History   the version and the last changes of names: "7/Bea/Bo/Ann/" (Ann was deleted)
//   Renaming  a renaming that is under way: "Bea/Bo"
//   Deleting  a deletion that is under way, with the version that it made: "7/Ann"
//   Declined  files that are not wanted back: "Cid/Dan"
// No name holds a slash.
#include "engine/records/PlayerList.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <string_view>

#include "engine/state/cData.h"
#include "engine/state/mPlayerName.h"

namespace {

constexpr std::size_t LongestHistory = 50;  // changes; a dialog does not stay open for longer than that

constexpr const char* CurrentKey = "100";
constexpr const char* HistoryKey = "History";
constexpr const char* RenamingKey = "Renaming";
constexpr const char* DeletingKey = "Deleting";
constexpr const char* DeclinedKey = "Declined";

std::vector<std::string> Split(std::string_view text) {
    std::vector<std::string> parts;
    for (;;) {
        const auto slash = text.find('/');
        parts.emplace_back(text.substr(0, slash));
        if (slash == std::string_view::npos) return parts;
        text.remove_prefix(slash + 1);
    }
}

/// 0 for a text that is no version.
std::int64_t ReadVersion(const std::string& text) {
    constexpr std::int64_t Highest = 1'000'000'000'000;  // it can still grow
    std::int64_t version = 0;
    const auto [end, fault] = std::from_chars(text.data(), text.data() + text.size(), version);
    return fault == std::errc{} && end == text.data() + text.size() && version > 0 && version < Highest
               ? version
               : 0;
}

bool Contains(const std::vector<std::string>& names, const std::string& name) {
    return std::find(names.begin(), names.end(), name) != names.end();
}

}  // namespace

PlayerList PlayerList::Read() {
    PlayerList list;
    list.stored_ = gData->Users();
    int filled = 0;
    std::array<std::string, Slots> slots;
    for (std::size_t i = 0; i < slots.size(); ++i) {
        std::string name = list.Stored(std::to_string(i + 1));
        if (name.empty()) continue;
        if (!mPlayerName::IsGood(name)) {
            list.refused_.push_back(std::move(name));
            continue;
        }
        ++filled;
        if (!Contains(list.all_, name)) list.all_.push_back(name);
        slots[i] = std::move(name);
    }
    for (int i = 0; i < filled; ++i) {
        const std::string& name = slots.at(static_cast<std::size_t>(i));
        if (!name.empty() && !Contains(list.names_, name)) list.names_.push_back(name);
    }
    list.current_ = list.Stored(CurrentKey);
    if (!list.current_.empty() && !mPlayerName::IsGood(list.current_)) {
        if (!Contains(list.refused_, list.current_)) list.refused_.push_back(list.current_);
        list.current_.clear();
    }
    list.ReadHistory();
    list.ReadNotes();
    return list;
}

const std::string& PlayerList::Stored(const std::string& key) const {
    static const std::string none;
    const auto found = stored_.find(key);
    return found == stored_.end() ? none : found->second;
}

void PlayerList::ReadHistory() {
    const std::vector<std::string> parts = Split(Stored(HistoryKey));
    version_ = ReadVersion(parts[0]);
    if (version_ == 0 || parts.size() % 2 == 0) return;
    const std::size_t first = parts.size() - std::min(parts.size() - 1, 2 * LongestHistory);
    for (std::size_t i = first; i + 1 < parts.size(); i += 2) history_.push_back({parts[i], parts[i + 1]});
}

void PlayerList::ReadNotes() {
    const std::vector<std::string> renaming = Split(Stored(RenamingKey));
    if (renaming.size() == 2 && mPlayerName::IsGood(renaming[0]) && mPlayerName::IsGood(renaming[1])) {
        Pending.Renamed = renaming[0];
        Pending.To = renaming[1];
    }
    // Only what the history tells of: a file is not deleted because of a text alone.
    const std::vector<std::string> deleting = Split(Stored(DeletingKey));
    if (deleting.size() == 2 && ReadVersion(deleting[0]) == version_ && !history_.empty() &&
        history_.back().Old == deleting[1] && history_.back().New.empty() &&
        mPlayerName::IsGood(deleting[1])) {
        Pending.Deleted = deleting[1];
    }
    for (std::string& name : Split(Stored(DeclinedKey))) {
        if (!name.empty()) Declined.push_back(std::move(name));
    }
}

bool PlayerList::Has(const std::string& name) const { return Contains(names_, name); }

std::optional<std::string> PlayerList::Followed(const ShownPlayer& player) const {
    std::string name = player.Name;
    const auto known = static_cast<std::int64_t>(history_.size());
    // A version of another list, whose settings are gone, tells nothing.
    const std::int64_t later = player.Version ? std::max<std::int64_t>(0, version_ - *player.Version) : 0;
    for (auto event = history_.end() - std::min(later, known); event != history_.end(); ++event) {
        if (event->Old != name) continue;
        if (event->New.empty()) return std::nullopt;
        name = event->New;
    }
    return name;
}

std::optional<std::string> PlayerList::NowCalled(const ShownPlayer& player) const {
    std::optional<std::string> name = Followed(player);
    if (name && !Has(*name)) name.reset();
    return name;
}

void PlayerList::Remember(const std::string& from, const std::string& to) {
    ++version_;
    history_.push_back({from, to});
    if (history_.size() > LongestHistory) history_.erase(history_.begin());
}

void PlayerList::Rename(const std::string& from, const std::string& to) {
    std::replace(names_.begin(), names_.end(), from, to);
    if (current_ == from) current_ = to;
    Remember(from, to);
}

void PlayerList::Delete(const std::string& name) {
    std::erase(names_, name);
    Remember(name, {});
}

void PlayerList::TakeDeletionBack(const PlayerList& before) {
    names_ = before.names_;
    // The version stays: others may have seen it.
    history_.back().New = history_.back().Old;
    Pending.Deleted.clear();
}

void PlayerList::TidyNames() {
    names_ = all_;
    if (names_.empty()) names_.emplace_back("Player1");
}

void PlayerList::TidySelection() {
    if (!Has(current_)) current_ = names_.front();
}

bool PlayerList::IsTidy() const {
    if (!refused_.empty() || !Pending.Renamed.empty() || !Pending.Deleted.empty() || !Has(current_))
        return false;
    for (int i = 1; i <= Slots; ++i) {
        const auto place = static_cast<std::size_t>(i - 1);
        if (Stored(std::to_string(i)) != (place < names_.size() ? names_[place] : std::string()))
            return false;
    }
    return true;
}

std::map<std::string, std::string> PlayerList::Values() const {
    std::map<std::string, std::string> values;
    for (int i = 1; i <= Slots; ++i) {
        const auto place = static_cast<std::size_t>(i - 1);
        values[std::to_string(i)] = place < names_.size() ? names_[place] : std::string();
    }
    values[CurrentKey] = current_;
    std::string& history = values[HistoryKey];
    if (version_ > 0) history = std::to_string(version_);
    for (const Event& event : history_) history += '/' + event.Old + '/' + event.New;
    values[RenamingKey] = Pending.Renamed.empty() ? "" : Pending.Renamed + '/' + Pending.To;
    values[DeletingKey] = Pending.Deleted.empty() ? "" : std::to_string(version_) + '/' + Pending.Deleted;
    std::string& declined = values[DeclinedKey];
    for (const std::string& name : Declined) declined += (declined.empty() ? "" : "/") + name;
    return values;
}

std::map<std::string, std::string> PlayerList::Changed() const {
    std::map<std::string, std::string> changed;
    for (const auto& [key, value] : Values()) {
        if (Stored(key) != value) changed.emplace(key, value);
    }
    return changed;
}

FileError PlayerList::Write() {
    const std::map<std::string, std::string> changed = Changed();
    if (changed.empty()) return std::nullopt;
    if (FileError fault = gData->ChangeUsers(changed)) return fault;
    for (const auto& [key, value] : changed) stored_[key] = value;
    return std::nullopt;
}

void PlayerList::WriteOrKeep() {
    const std::map<std::string, std::string> changed = Changed();
    if (Write()) gData->KeepUsers(changed);
}
