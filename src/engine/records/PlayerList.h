// The list of players as it lies in the settings, where several programs read and change it: seen at one
// moment, changed in one step, and with a memory of who was renamed or deleted, so that a program or a dialog
// that knows a player by an older name finds out what became of them.
#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "engine/outside/windowlayer.h"
#include "engine/state/cData.h"

/// A player as somebody saw them: the name, and the version of the list that had it. Without a version it is
/// the name of this moment.
struct ShownPlayer {
    ShownPlayer(std::string name) : Name(std::move(name)) {}  // NOLINT(google-explicit-constructor)
    ShownPlayer(const char* name) : Name(name) {}             // NOLINT(google-explicit-constructor)
    ShownPlayer(std::string name, std::int64_t version) : Name(std::move(name)), Version(version) {}

    std::string Name;
    std::optional<std::int64_t> Version;
};

/// Read, changed and written while the settings are this program's alone (cData::Alone).
class PlayerList {
public:
    static constexpr int Slots = PlayerSlots;

    /// The list of this moment.
    [[nodiscard]] static PlayerList Read();

    /// Those of slots 1 to the number of filled ones, each once; names that are no good are left out.
    [[nodiscard]] const std::vector<std::string>& Names() const { return names_; }
    [[nodiscard]] const std::string& Current() const { return current_; }
    [[nodiscard]] bool Has(const std::string& name) const;
    [[nodiscard]] bool IsFull() const { return static_cast<int>(names_.size()) >= Slots; }

    /// Grows with every renaming and deleting.
    [[nodiscard]] std::int64_t Version() const { return version_; }
    /// The name that a player has come to have, in the list or not; nothing for one who has been deleted.
    [[nodiscard]] std::optional<std::string> Followed(const ShownPlayer& player) const;
    /// What a player is called now; nothing for one who has been deleted or was never there.
    [[nodiscard]] std::optional<std::string> NowCalled(const ShownPlayer& player) const;

    // Changes, all in memory until Write.
    void Add(const std::string& name) { names_.push_back(name); }
    void Rename(const std::string& from, const std::string& to);
    void Delete(const std::string& name);
    /// Takes the last deletion back; `before` is the list before it.
    void TakeDeletionBack(const PlayerList& before);
    void MakeCurrent(const std::string& name) { current_ = name; }
    /// All names there are, also those behind a gap; "Player1" where there is none.
    void TidyNames();
    /// Selects the first player where the selected one is not in the list.
    void TidySelection();
    [[nodiscard]] bool IsTidy() const;
    /// Names in the settings that are no good.
    [[nodiscard]] const std::vector<std::string>& Refused() const { return refused_; }

    /// What a change of the list does to files besides, noted with it or before it: a program that is killed
    /// in the middle leaves the note, and the next one finishes the work.
    struct Note {
        std::string Renamed, To;  ///< a score file that gets another name
        std::string Deleted;      ///< a player whose score file goes
    };
    Note Pending;

    /// Players' score files without a player that the user did not want back.
    std::vector<std::string> Declined;

    /// Puts the whole list into the settings, in one step; on failure they are as before.
    [[nodiscard]] FileError Write();
    /// The same, but where that fails the program goes on with this list, which is told and written later.
    void WriteOrKeep();

private:
    struct Event {
        std::string Old, New;  ///< New is empty for one who was deleted
    };
    void Remember(const std::string& from, const std::string& to);
    void ReadHistory();
    void ReadNotes();
    [[nodiscard]] const std::string& Stored(const std::string& key) const;
    /// All that the list holds, by key.
    [[nodiscard]] std::map<std::string, std::string> Values() const;
    [[nodiscard]] std::map<std::string, std::string> Changed() const;

    std::map<std::string, std::string> stored_;  ///< as it was read
    std::vector<std::string> names_, all_, refused_;
    std::string current_;
    std::int64_t version_ = 0;
    std::vector<Event> history_;  ///< the last ones, the newest at the end
};
