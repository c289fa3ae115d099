// The application object: the program's identity and folders, the catalogue of games, every setting,
// and the figures of the running game.
#pragma once

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "engine/outside/windowlayer.h"
#include "engine/state/SessionFigures.h"
#include "engine/state/mAssets.h"

/// One game of a family's list.
struct GameEntry {
    std::string Name;
    bool Original = false;
};

/// One number setting: its key, its default and the range outside which a stored value counts as
/// missing.
struct NumberSetting {
    const char* Key;
    int Default;
    int Low;
    int High;
    const char* Section = "Data";
};

struct NumberValue {
    NumberSetting Setting;
    int Value;
};

// clang-format off
namespace Setting {
//                                        key               default  low       high
inline constexpr NumberSetting Autoplay      {"Autoplay",          1,   0,        1};
inline constexpr NumberSetting CustomColor   {"CustomColor",     128,   0, 16777215};
inline constexpr NumberSetting ShowToolbar   {"ShowToolbar",       1,   0,        1};
inline constexpr NumberSetting CardSpeed     {"CardSpeed",         5,   0,       50};
inline constexpr NumberSetting UndoSpeed     {"UndoSpeed",         5,   0,       50};
inline constexpr NumberSetting UndoallSpeed  {"UndoallSpeed",      2,   0,       50};
inline constexpr NumberSetting ReplaySpeed   {"ReplaySpeed",       7,   0,       50};
inline constexpr NumberSetting SoundStart    {"SoundStart",       -1,  -1,        1};
inline constexpr NumberSetting SoundCardDown {"SoundCardDown",     0,  -1,        1};
inline constexpr NumberSetting SoundCardUp   {"SoundCardUp",       0,  -1,        1};
inline constexpr NumberSetting SoundUndo     {"SoundUndo",        -1,  -1,        1};
inline constexpr NumberSetting SoundRedo     {"SoundRedo",        -1,  -1,        1};
inline constexpr NumberSetting SoundAutoPlay {"SoundAutoPlay",    -1,  -1,        1};
inline constexpr NumberSetting SoundWin      {"SoundWin",         -1,  -1,        1};
inline constexpr NumberSetting ShowTime      {"ShowTime",          1,   0,        1};
inline constexpr NumberSetting ShowScore     {"ShowScore",         1,   0,        1};
inline constexpr NumberSetting ShowMoves     {"ShowMoves",         1,   0,        1};
inline constexpr NumberSetting BGIndex       {"BGIndex", mAssets::UsualBackground, mAssets::FirstBackground, mAssets::LastBackground};
inline constexpr NumberSetting RangeIndex    {"RangeIndex",       15,   0,       15};
inline constexpr NumberSetting DeckIndex     {"DeckIndex", mAssets::UsualDeck, mAssets::FirstDeck, mAssets::LastDeck};
inline constexpr NumberSetting TvIndex       {"TvIndex",           1,   0,        2};
inline constexpr NumberSetting Fade          {"Fade",              1,   0,        1};
inline constexpr NumberSetting FourColors    {"FourColors",        0,   0,        1};

// The main window, in a section of its own: its place and size while it is not maximised, in pixels, and
// the size of the table in it, in percent.
inline constexpr int SmallestZoom = 50;
inline constexpr int LargestZoom = 300;
inline constexpr int NoPlace = -100000;  // of a window that has not been shown yet
inline constexpr NumberSetting WindowLeft      {"Left",    NoPlace, -32768, 32767, "Window"};
inline constexpr NumberSetting WindowTop       {"Top",     NoPlace, -32768, 32767, "Window"};
inline constexpr NumberSetting WindowWidth     {"Width",         0,    100, 32767, "Window"};
inline constexpr NumberSetting WindowHeight    {"Height",        0,    100, 32767, "Window"};
inline constexpr NumberSetting WindowMaximised {"Maximised",     0,      0,     1, "Window"};
inline constexpr NumberSetting WindowFullScreen{"FullScreen",    0,      0,     1, "Window"};
inline constexpr NumberSetting Zoom            {"Zoom", 100, SmallestZoom, LargestZoom, "Window"};
inline constexpr NumberSetting FitGame         {"FitGame",       1,      0,     1, "Window"};
}  // namespace Setting
// clang-format on

inline constexpr int PlayerSlots = 20;
inline constexpr int RecentSlots = 5;

class cData {
public:
    /// `layer` must outlive the object.
    explicit cData(const WindowLayer& layer);

    [[nodiscard]] const WindowLayer& Layer() const { return layer_; }

    // Identity and folders.
    void InitCD(const std::string& cProdName, const std::string& cVersion, const std::string& cHelpFile);
    [[nodiscard]] const std::string& ProdName() const { return prodName_; }
    [[nodiscard]] const std::string& Version() const { return version_; }
    /// The name of the help file. The pages are made from the games' numbers, so no file of it is opened.
    [[nodiscard]] const std::string& HelpFile() const { return helpFile_; }
    /// Folders end with the platform's separator.
    [[nodiscard]] std::string AppCompDir() const;
    [[nodiscard]] std::string AppDir() const;

    // The catalogue. SiD runs from 1 to TotalGames, Gid from 1 to TotalGroups, Mid from 1 inside its
    // group; an index outside throws std::out_of_range, an unknown name gives 0.
    void SetGames(const std::string& Group, const std::vector<GameEntry>& Members);
    [[nodiscard]] int TotalGames() const { return static_cast<int>(games_.size()); }
    [[nodiscard]] int TotalGroups() const { return static_cast<int>(groups_.size()); }
    [[nodiscard]] const std::string& GroupfromSiD(int SiD) const;
    [[nodiscard]] const std::string& GroupfromGiD(int Gid) const;
    [[nodiscard]] const std::string& GetGame(int SiD) const;
    /// The names of all games, by SiD.
    [[nodiscard]] std::vector<std::string> GameNames() const;
    [[nodiscard]] int MidfromSiD(int SiD) const;
    [[nodiscard]] int GidfromSiD(int SiD) const;
    [[nodiscard]] bool IsOriginal(int SiD) const;
    [[nodiscard]] int GidfromName(const std::string& gName) const;
    [[nodiscard]] int MidfromName(const std::string& gName) const;
    /// Gid × 100 + Mid: the context number of the game's rules page; 0 for an unknown name.
    [[nodiscard]] int GetGameID(const std::string& gName) const;

    // Settings. Each read asks the store, each write is durable when it returns.
    [[nodiscard]] int Get(const NumberSetting& setting) const;
    void Set(const NumberSetting& setting, int value) { Set({{setting, value}}); }
    /// All at once: a program that is killed leaves all of them or none.
    void Set(const std::vector<NumberValue>& values);
    [[nodiscard]] std::string LastGName() const;
    [[nodiscard]] int TotalPlayers() const;
    /// Slots 1 to PlayerSlots; empty for a free slot, and for one whose text cannot be the name of a player.
    [[nodiscard]] std::string GetPlayer(int i) const;
    void SetPlayer(int i, const std::string& PlayerName, bool CurPl);
    [[nodiscard]] std::string CurPlayer() const;
    void SetCurPlayer(const std::string& PlayerName);
    /// All that the section of the players holds at this moment, by key.
    [[nodiscard]] std::map<std::string, std::string> Users() const;
    /// Changes it at once; on failure it stays as it was.
    [[nodiscard]] FileError ChangeUsers(const std::map<std::string, std::string>& values);
    /// The same as any other setting: what cannot be written is told, kept and written later.
    void KeepUsers(const std::map<std::string, std::string>& values);
    /// As SettingsStore::Alone.
    [[nodiscard]] bool Alone(const std::function<void()>& step);
    /// Slots 1 to RecentSlots, 1 the most recent; empty for a free slot.
    [[nodiscard]] std::string GetRecent(int i) const;
    void SetRecent(const std::string& gName);
    [[nodiscard]] int RecentCount() const;
    void ClearRecent();

    /// Also stores the name as LastGName.
    void SetCurGName(const std::string& gName);

    /// Plays the sound of a key ("Start", "CardUp", "CardDown", "AutoPlay", "Undo", "Redo", "Win")
    /// where its setting is on; without a running game only "Start".
    void PlaySound(std::string_view key);

    /// Opens the rules page of that game; a text that names no game opens the contents.
    void ShowRules(const std::string& gName);
    void ShowContents();

    SessionFigures& Figures;  ///< they lie with the running game
    std::string SesStartTime;

private:
    struct Game {
        std::string Name;
        int Gid;
        int Mid;
        bool Original;
    };
    [[nodiscard]] const Game& GameAt(int SiD) const;
    [[nodiscard]] std::string PlayerAt(const std::string& key) const;
    void Save(const std::vector<SettingValue>& values) { layer_.Settings.SaveSettings(prodName_, values); }
    [[nodiscard]] const Game* Find(const std::string& gName) const;

    WindowLayer layer_;
    std::string prodName_, version_, helpFile_;
    std::vector<std::string> groups_;
    std::vector<Game> games_;
};

/// Created first, released last.
extern std::unique_ptr<cData> gData;
