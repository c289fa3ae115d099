// What the dialog "Customize" shows and what its buttons do, apart from its controls.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "engine/state/cData.h"

namespace mCustomize {

/// A node of a tree; Tag is the number it stands for, 0 where it only holds others.
struct Node {
    std::string Text;
    int Tag = 0;
    std::vector<Node> Children;
};
[[nodiscard]] Node Backgrounds();
[[nodiscard]] Node Decks();

/// Whether a background has a colour of the player's own.
[[nodiscard]] bool HasCustomColor(int background);
/// Whether a background is a colour, which can fade.
[[nodiscard]] bool CanFade(int background);

/// The largest numbers of the random ranges, grouped: "9", "99" and so on; the index counts from 1.
[[nodiscard]] std::vector<std::string> Ranges();

// What acts at once.

void ShowTime(bool on);
void ShowScore(bool on);
void ShowMoves(bool on);
/// 1 to 15 digits.
void SetRange(int index);
/// Asks, and then clears the recent games. False where the player would rather not.
[[nodiscard]] bool ClearRecent();
void TellRecentCleared();

// What waits for OK.

/// The sounds in the order of their rows.
struct SoundRow {
    const char* Caption;
    const NumberSetting& Setting;
};
inline constexpr std::array<SoundRow, 7> Sounds = {{
    {"Initial Shuffle", Setting::SoundStart},
    {"Card Up", Setting::SoundCardUp},
    {"Card Down", Setting::SoundCardDown},
    {"Autoplay Move", Setting::SoundAutoPlay},
    {"Undo", Setting::SoundUndo},
    {"Redo", Setting::SoundRedo},
    {"Game Won", Setting::SoundWin},
}};
/// The sliders in their order.
struct SpeedRow {
    const char* Caption;
    const NumberSetting& Setting;
};
inline constexpr std::array<SpeedRow, 4> Speeds = {{
    {"Card Moving Speed", Setting::CardSpeed},
    {"Undo/Redo Speed", Setting::UndoSpeed},
    {"Undoall/Redoall Speed", Setting::UndoallSpeed},
    {"Replay Speed", Setting::ReplaySpeed},
}};

/// The working values of the dialog.
struct Choice {
    std::array<int, Speeds.size()> Speed{};
    std::array<bool, Sounds.size()> Sound{};
    int Background = 0;
    int Fade = 0;  ///< 1: a colour fades to black
    int CustomColor = 0;
    int Deck = 0;
    bool FourColors = false;  ///< each suit in a color of its own
    bool operator==(const Choice&) const = default;
};
/// As the settings have them.
[[nodiscard]] Choice Stored();
/// "OK": writes all working values and gives the table its background and its cards their look. A
/// running game goes on.
void Confirm(const Choice& choice);

}  // namespace mCustomize
