// Adding, renaming, deleting and selecting players, with what that does to their score files.
#pragma once

#include <string>
#include <vector>

namespace mPlayers {

/// The players of slots 1 to TotalPlayers.
[[nodiscard]] std::vector<std::string> Names();

/// Whether one more player fits; where not, the user is told.
[[nodiscard]] bool RoomForOne();

/// A text that cannot be part of a file name: a path separator or a control character in it, "." or
/// "..", more than 200 bytes. An empty one counts too.
[[nodiscard]] bool IsValidName(const std::string& name);

/// The OK of the name dialog. An empty old name adds a player, any other is renamed, its score file with
/// it. False where the name was refused or the file could not be renamed: the user was told, nothing has
/// changed, and the dialog stays open.
[[nodiscard]] bool Enter(const std::string& oldName, const std::string& name);

/// The selected player can never be deleted.
[[nodiscard]] bool CanDelete(const std::string& name);
/// Asks, and then deletes a player with the score file. A file that cannot be deleted is reported and
/// keeps its player.
void Delete(const std::string& name);

/// Puts right what a program that was killed in the middle of a rename or a delete left: the rename is
/// finished where the score file has its new name, and the slots hold each name once, without a gap.
/// Writes nothing where all is well. Called when the program starts.
void Mend();

/// A running game goes on and will be recorded under the new player. An unknown name does nothing.
void Select(const std::string& name);

}  // namespace mPlayers
