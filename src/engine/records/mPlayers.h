// Adding, renaming, deleting and selecting players, with what that does to their score files. Other programs
// may use the same home: each change is one step in which none of them changes the list, and begins with what
// the list is then. Where that is no longer what the user saw, nothing is done but to say so.
#pragma once

#include <string>
#include <vector>

#include "engine/records/PlayerList.h"

namespace mPlayers {

/// The players of slots 1 to TotalPlayers.
[[nodiscard]] std::vector<std::string> Names();

/// "1 record", "12 records".
[[nodiscard]] std::string RecordsText(int records);

/// Whether one more player fits; where not, the user is told.
[[nodiscard]] bool RoomForOne();

/// Whether a player is still called so; where not, the user is told what has become of them.
[[nodiscard]] bool StillThere(const ShownPlayer& player);

/// The OK of the name dialog. An empty old name adds a player, any other is renamed, its score file with
/// it. False where the name was refused or the file could not be renamed: the user was told, nothing has
/// changed, and the dialog stays open.
[[nodiscard]] bool Enter(const ShownPlayer& old, const std::string& name);

/// The selected player can never be deleted.
[[nodiscard]] bool CanDelete(const std::string& name);
/// Asks, and then deletes a player with the score file. A file that cannot be deleted is reported and
/// keeps its player.
void Delete(const ShownPlayer& player);

/// A running game goes on and will be recorded under the new player. False where the player is no longer
/// called so, which the user is told.
bool Select(const ShownPlayer& player);

/// Puts right what a program that was killed in the middle of a change left, and what somebody has made of
/// the settings by hand: the slots hold each name once, without a gap and without names that no file can
/// have, and the selected player is one of them. Tells what is not shown any more. Writes nothing where all
/// is well. Called when the program starts and before the players are shown.
void Mend();
/// The same while the settings are this program's alone. Nothing is told: the messages are appended.
[[nodiscard]] PlayerList MendedList(std::vector<std::string>& messages);

}  // namespace mPlayers
