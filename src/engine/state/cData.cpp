// The application object: catalogue, settings, players and the recent list.
#include "engine/state/cData.h"

#include <charconv>
#include <stdexcept>

#include "engine/state/RunningGame.h"
#include "engine/state/mPlayerName.h"

std::unique_ptr<cData> gData;

namespace {

constexpr const char* DataSection = "Data";
constexpr const char* UsersSection = "Users";
constexpr const char* RecentSection = "Recent";
constexpr const char* CurPlayerKey = "100";

struct SoundKey {
    const char* Key;
    const char* Wave;
    NumberSetting Setting;
};

// There is no wave of its own for redo.
constexpr SoundKey Sounds[] = {
    {"Start", "START", Setting::SoundStart},
    {"CardUp", "CARDUP", Setting::SoundCardUp},
    {"CardDown", "CARDDOWN", Setting::SoundCardDown},
    {"AutoPlay", "AUTOPLAY", Setting::SoundAutoPlay},
    {"Undo", "UNDO", Setting::SoundUndo},
    {"Redo", "UNDO", Setting::SoundRedo},
    {"Win", "WIN", Setting::SoundWin},
};

std::vector<SettingValue> InSection(const char* section, const std::map<std::string, std::string>& values) {
    std::vector<SettingValue> settings;
    settings.reserve(values.size());
    for (const auto& [key, value] : values) settings.push_back({section, key, value});
    return settings;
}

}  // namespace

cData::cData(const WindowLayer& layer) : Figures(gRunning.Figures), layer_(layer) {}

void cData::InitCD(const std::string& cProdName, const std::string& cVersion, const std::string& cHelpFile) {
    prodName_ = cProdName + " " + cVersion;
    version_ = cVersion;
    helpFile_ = cHelpFile;
}

std::string cData::AppCompDir() const {
    return layer_.Files.DataFolder() + "Kelmor" + layer_.Files.Separator();
}

std::string cData::AppDir() const { return AppCompDir() + prodName_ + layer_.Files.Separator(); }

void cData::SetGames(const std::string& Group, const std::vector<GameEntry>& Members) {
    groups_.push_back(Group);
    int Mid = 0;
    for (const GameEntry& member : Members)
        games_.push_back({member.Name, TotalGroups(), ++Mid, member.Original});
}

const cData::Game& cData::GameAt(int SiD) const {
    if (SiD < 1 || SiD > TotalGames()) throw std::out_of_range("cData: no such game");
    return games_[static_cast<std::size_t>(SiD - 1)];
}

const cData::Game* cData::Find(const std::string& gName) const {
    for (const Game& game : games_) {
        if (game.Name == gName) return &game;
    }
    return nullptr;
}

const std::string& cData::GroupfromGiD(int Gid) const {
    if (Gid < 1 || Gid > TotalGroups()) throw std::out_of_range("cData: no such group");
    return groups_[static_cast<std::size_t>(Gid - 1)];
}

const std::string& cData::GroupfromSiD(int SiD) const { return GroupfromGiD(GameAt(SiD).Gid); }
const std::string& cData::GetGame(int SiD) const { return GameAt(SiD).Name; }

std::vector<std::string> cData::GameNames() const {
    std::vector<std::string> names;
    names.reserve(games_.size());
    for (const Game& game : games_) names.push_back(game.Name);
    return names;
}

int cData::MidfromSiD(int SiD) const { return GameAt(SiD).Mid; }
int cData::GidfromSiD(int SiD) const { return GameAt(SiD).Gid; }
bool cData::IsOriginal(int SiD) const { return GameAt(SiD).Original; }

int cData::GidfromName(const std::string& gName) const {
    const Game* game = Find(gName);
    return game ? game->Gid : 0;
}

int cData::MidfromName(const std::string& gName) const {
    const Game* game = Find(gName);
    return game ? game->Mid : 0;
}

int cData::GetGameID(const std::string& gName) const { return GidfromName(gName) * 100 + MidfromName(gName); }

int cData::Get(const NumberSetting& setting) const {
    const std::string text =
        layer_.Settings.GetSetting(prodName_, setting.Section, setting.Key, std::to_string(setting.Default));
    int value = 0;
    const auto [end, fault] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (fault != std::errc{} || end != text.data() + text.size()) return setting.Default;
    return value < setting.Low || value > setting.High ? setting.Default : value;
}

void cData::Set(const std::vector<NumberValue>& values) {
    std::vector<SettingValue> texts;
    texts.reserve(values.size());
    for (const auto& [setting, value] : values) {
        texts.push_back({setting.Section, setting.Key, std::to_string(value)});
    }
    Save(texts);
}

std::string cData::LastGName() const {
    const std::string first = games_.empty() ? std::string{} : games_.front().Name;
    const std::string name = layer_.Settings.GetSetting(prodName_, DataSection, "LastGName", first);
    // A name that is in no family could start no game.
    return Find(name) ? name : first;
}

void cData::SetCurGName(const std::string& gName) {
    Figures.CurGName = gName;
    Save({{DataSection, "LastGName", gName}});
}

std::string cData::PlayerAt(const std::string& key) const {
    std::string name = layer_.Settings.GetSetting(prodName_, UsersSection, key, "");
    // Names become paths of files; somebody may have written anything into the settings.
    return mPlayerName::IsGood(name) ? name : std::string{};
}

std::string cData::GetPlayer(int i) const { return PlayerAt(std::to_string(i)); }

int cData::TotalPlayers() const {
    int total = 0;
    for (int i = 1; i <= PlayerSlots; ++i) total += GetPlayer(i).empty() ? 0 : 1;
    return total;
}

void cData::SetPlayer(int i, const std::string& PlayerName, bool CurPl) {
    std::vector<SettingValue> values = {{UsersSection, std::to_string(i), PlayerName}};
    if (CurPl) values.push_back({UsersSection, CurPlayerKey, PlayerName});
    Save(values);
}

std::string cData::CurPlayer() const { return PlayerAt(CurPlayerKey); }

void cData::SetCurPlayer(const std::string& PlayerName) { Save({{UsersSection, CurPlayerKey, PlayerName}}); }

std::map<std::string, std::string> cData::Users() const {
    return layer_.Settings.GetSection(prodName_, UsersSection);
}

FileError cData::ChangeUsers(const std::map<std::string, std::string>& values) {
    return layer_.Settings.ChangeSettings(prodName_, InSection(UsersSection, values));
}

void cData::KeepUsers(const std::map<std::string, std::string>& values) {
    Save(InSection(UsersSection, values));
}

bool cData::Alone(const std::function<void()>& step) { return layer_.Settings.Alone(prodName_, step); }

std::string cData::GetRecent(int i) const {
    return layer_.Settings.GetSetting(prodName_, RecentSection, std::to_string(i), "");
}

void cData::SetRecent(const std::string& gName) {
    if (GetRecent(1) == gName) return;
    std::vector<SettingValue> slots = {{RecentSection, "1", gName}};
    for (int i = 2; i <= RecentSlots; ++i) {
        slots.push_back({RecentSection, std::to_string(i), GetRecent(i - 1)});
    }
    Save(slots);
}

int cData::RecentCount() const {
    int count = 0;
    for (int i = 1; i <= RecentSlots; ++i) count += GetRecent(i).empty() ? 0 : 1;
    return count;
}

void cData::ClearRecent() {
    std::vector<SettingValue> slots;
    for (int i = 1; i <= RecentSlots; ++i) slots.push_back({RecentSection, std::to_string(i), ""});
    Save(slots);
}

void cData::PlaySound(std::string_view key) {
    constexpr int On = -1;  // the store holds a sound as -1 or 0; anything else counts as off
    if (gRunning.Quiet || (!Figures.GameRunning && key != "Start")) return;
    for (const SoundKey& sound : Sounds) {
        if (key == sound.Key && Get(sound.Setting) == On) layer_.Sounds.Play(sound.Wave);
    }
}

void cData::ShowRules(const std::string& gName) { layer_.Help.ShowContext(GetGameID(gName)); }

void cData::ShowContents() { layer_.Help.ShowContents(); }
