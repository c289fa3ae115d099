// What arbitrary bytes are given to: everything that this program reads and has not written itself. Each
// function throws or stops the process where the bytes make something untrue; they are run by the fuzzer,
// and over the small kept corpora by the tests.
#pragma once

#include <array>
#include <stdexcept>
#include <string_view>

namespace mFuzz {

/// What must hold whatever the bytes are.
inline void Expect(bool holds, const char* what) {
    if (!holds) throw std::logic_error(what);
}

/// As a player's score file: reading, every view, the export, and appending behind it.
void ScoreFile(std::string_view bytes);
/// As a file of records from elsewhere: read, added to a player, exported and read again.
void ImportedFile(std::string_view bytes);
/// As the favourites file: reading, appending, reading again.
void FavouritesFile(std::string_view bytes);
/// As the values of the settings store, a line "section/key=value" each: the program starts and plays.
void SettingValues(std::string_view bytes);
/// As a typed game number under every random range: accepted or refused, and dealt.
void GameNumbers(std::string_view bytes);
/// As lines of the text driver.
void LabProtocol(std::string_view bytes);

struct Target {
    const char* Name;  ///< also the folder of its corpus
    void (*Run)(std::string_view bytes);
};
inline constexpr std::array<Target, 6> Targets{{
    {"score", ScoreFile},
    {"import", ImportedFile},
    {"favourites", FavouritesFile},
    {"settings", SettingValues},
    {"number", GameNumbers},
    {"lab", LabProtocol},
}};

}  // namespace mFuzz
