// The targets on a real disk.
#include "tools/fuzz/HomeTargets.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <string>

#include <fcntl.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

#include "engine/commands/mGen.h"
#include "engine/records/PlayerList.h"
#include "engine/records/mFavourites.h"
#include "engine/records/mStrayFiles.h"
#include "engine/state/mPlayerName.h"
#include "window/outside/Program.h"

using mFuzz::Expect;

namespace {

namespace fs = std::filesystem;

constexpr const char* Application = "Tarnival 2004 11.0";

/// A home of its own for every input, away from the user's.
class ScratchHome {
public:
    ScratchHome() {
        if (!::mkdtemp(folder_.data())) throw std::runtime_error("no folder");
        for (Variable& variable : variables_) {
            if (const char* value = std::getenv(variable.Name)) variable.Before = value;
            ::setenv(variable.Name, folder_.c_str(), 1);
        }
        fs::create_directories(fs::path(SettingsFile()).parent_path());
        fs::create_directories(Records());
    }
    ~ScratchHome() {
        for (const Variable& variable : variables_) ::setenv(variable.Name, variable.Before.c_str(), 1);
        std::error_code ignored;
        fs::remove_all(folder_, ignored);
    }
    ScratchHome(const ScratchHome&) = delete;
    ScratchHome& operator=(const ScratchHome&) = delete;

    [[nodiscard]] const std::string& Folder() const { return folder_; }
    [[nodiscard]] std::string Records() const { return folder_ + "/Kelmor/" + Application + '/'; }
    [[nodiscard]] static std::string SettingsFile() { return QtSettings::FileName(Application); }

private:
    std::string folder_ = (fs::temp_directory_path() / "tarnival-fuzz-XXXXXX").string();
    struct Variable {
        const char* Name;
        std::string Before;
    };
    std::array<Variable, 2> variables_{{{"XDG_DATA_HOME", {}}, {"XDG_CONFIG_HOME", {}}}};
};

void ExpectListInOrder() {
    const PlayerList list = PlayerList::Read();
    Expect(!list.Names().empty() && list.Names().size() <= PlayerList::Slots,
           "a number of players that cannot be");
    for (const std::string& name : list.Names()) {
        Expect(mPlayerName::IsGood(name), "a name that is no name");
        Expect(std::count(list.Names().begin(), list.Names().end(), name) == 1, "a player twice");
    }
    Expect(list.Has(list.Current()), "the selected player is in no slot");
}

std::string Content(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

void Put(const std::string& path, std::string_view bytes) { std::ofstream(path, std::ios::binary) << bytes; }

void PutSocket(const std::string& path) {
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    if (path.size() >= sizeof address.sun_path) return;
    std::strcpy(address.sun_path, path.c_str());
    const int socket = ::socket(AF_UNIX, SOCK_STREAM, 0);
    (void)::bind(socket, reinterpret_cast<sockaddr*>(&address), sizeof address);
    ::close(socket);
}

void PutAnything(const std::string& path, char kind, std::string_view bytes) {
    std::error_code ignored;
    switch (static_cast<unsigned char>(kind) % 9) {
        case 0:
            (void)::mkfifo(path.c_str(), 0600);
            break;
        case 1:
            fs::create_directory(path, ignored);
            break;
        case 2:
            PutSocket(path);
            break;
        case 3:
            fs::create_symlink("/dev/zero", path, ignored);
            break;
        case 4:
            fs::create_symlink("nowhere/at/all", path, ignored);
            break;
        case 5:
            fs::create_symlink(fs::path(path).filename(), path, ignored);
            break;
        case 6:
            Put(path, "");
            (void)::truncate(path.c_str(), off_t{1} << 40);
            break;
        case 7:
            Put(path, bytes);
            (void)::chmod(path.c_str(), 0);
            break;
        default:
            Put(path, bytes);
    }
}

}  // namespace

namespace mFuzz {

void SettingsFile(std::string_view bytes) {
    const ScratchHome home;
    Put(ScratchHome::SettingsFile(), bytes);
    std::map<std::string, std::string> before;
    {
        const QtSettings store;
        before = store.GetSection(Application, "Other");
    }
    const Program program;
    ExpectListInOrder();
    mGen::StartGame(gData->LastGName(), 1.0);
    if (gData->Figures.GameRunning) mGen::CloseGame(0);
    gScore->OpenAllScore();
    Expect(gScore->ScoreTop() == 1, "the record is in no view");
    for (const auto& entry : fs::recursive_directory_iterator(home.Folder())) {
        if (entry.path().extension() != cScore::Ending) continue;
        Expect(entry.path().parent_path() == fs::path(home.Records()).parent_path(),
               "a record outside the folder");
    }
    gData->Set(Setting::DeckIndex, 502);
    const QtSettings store;
    Expect(store.GetSetting(Application, "Data", "DeckIndex", "") == "502", "a setting is not on the disk");
    const bool aside = fs::exists(ScratchHome::SettingsFile() + ".damaged-1");
    Expect(!aside || Content(ScratchHome::SettingsFile() + ".damaged-1") == bytes,
           "a file set aside has changed");
    Expect(aside || store.GetSection(Application, "Other") == before, "what others have written is gone");
}

void Home(std::string_view bytes) {
    const ScratchHome home;
    const std::string records = home.Records();
    const std::string settings = ScratchHome::SettingsFile();
    const std::string paths[] = {records + "Player1.sre", records + "Bea.sre",
                                 records + "fav.dat",     records + " .sre",
                                 records + "\xFF.sre",    settings,
                                 settings + ".lock",      settings + ".unfinished",
                                 settings + ".damaged-1", home.Folder() + "/export.txt"};
    for (std::size_t i = 0; i + 1 < bytes.size() && i < 2 * std::size(paths); i += 2) {
        const std::string& path = paths[static_cast<unsigned char>(bytes[i]) % std::size(paths)];
        std::error_code ignored;
        if (fs::symlink_status(path, ignored).type() != fs::file_type::not_found) continue;
        PutAnything(path, bytes[i + 1], bytes.substr(i));
    }
    Program program;
    ExpectListInOrder();
    mStrayFiles::Offer();
    ExpectListInOrder();
    mGen::StartGame("Klondike", 1.0);
    if (gData->Figures.GameRunning) mGen::CloseGame(0);
    gScore->OpenAllScore();
    gScore->ReportUnread();
    (void)gScore->AddFav("Klondike", 2.0);
    mFavourites::Open();
    for (const std::string& path : paths) {
        program.Forms().FirstSaveFiles = {path};
        gScore->ExportStat();
    }
    gScore->ClearStat();
    gScore->ClearFav();
}

}  // namespace mFuzz
