// Score files that belong to no player of the list: somebody has put them there, or the settings are gone.
#pragma once

namespace mStrayFiles {

/// Offers each of them once, with the number of its records, to be taken back as a player. Called when the
/// players are shown. A file that is not wanted back stays, and is not offered again while it is there.
void Offer();

}  // namespace mStrayFiles
