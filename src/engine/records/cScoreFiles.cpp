// The files of the score store: appending, keeping what could not be written, renaming, deleting, and
// telling what could not be read.
#include <algorithm>
#include <stdexcept>
#include <utility>

#include <fmt/format.h>

#include "engine/records/cScore.h"
#include "engine/records/mPlayers.h"
#include "engine/records/mScoreFile.h"
#include "engine/state/cData.h"
#include "engine/state/mPlayerName.h"

namespace {

constexpr const char* LockedOut = "Another program is busy with the settings";

}  // namespace

std::string cScore::FileName(const std::string& Player) {
    if (!mPlayerName::IsGood(Player)) throw std::invalid_argument("cScore: no name of a player");
    return gData->AppDir() + Player + Ending;
}

cScore::FileCount cScore::CountRecords(const std::string& path) {
    FileCount count;
    std::string content;
    count.Fault = gData->Layer().Files.Read(path, content);
    if (count.Fault) return count;
    mScoreFile::ForEachLine(content, [&](std::string_view line) {
        mScoreFile::ScoreFields fields;
        if (!mScoreFile::ParseScore(line, fields)) return false;
        ++count.Records;
        return true;
    });
    return count;
}

std::string cScore::FavFileName() { return gData->AppDir() + "fav.dat"; }

void cScore::AddScore(int mWon) {
    const SessionFigures& figures = gData->Figures;
    const Calendar& calendar = gData->Layer().Calendar;
    const std::string line = mScoreFile::ScoreLine({.Date = calendar.Text(calendar.Now()),
                                                    .gName = figures.CurGName,
                                                    .GameNo = figures.CurGNo,
                                                    .Time = figures.CurTime,
                                                    .Moves = figures.CurMoves,
                                                    .Score = figures.CurScore,
                                                    .Won = mWon,
                                                    .Player = {}});
    std::vector<std::string> messages;
    std::string path;
    Faults faults;
    const auto keep = [&](const PlayerList& list) {
        kept_.push_back({ShownPlayer(list.Current(), list.Version()), line});
        path = FileName(list.Current());
    };
    // One step: the player cannot be renamed, deleted or replaced by another between the look and the
    // writing.
    const bool alone = gData->Alone([&] {
        const PlayerList list = mPlayers::MendedList(messages);
        keep(list);
        faults = WriteLines(list);
    });
    if (!alone) {
        PlayerList list = PlayerList::Read();
        list.TidyNames();
        list.TidySelection();
        keep(list);
        faults.emplace(path, LockedOut);
    }
    Forms& forms = gData->Layer().Forms;
    for (const std::string& message : messages) forms.Inform(message);
    if (faults.empty()) return;
    std::string text;
    for (const auto& [file, cause] : faults) {
        const char* what = file == path ? "The record of this game" : "What was kept from before";
        text += fmt::format("{} could not be written to {}: {}\n", what, file, cause);
    }
    forms.Inform(text + "It is kept and will be written with the next record.");
}

bool cScore::AddFav(const std::string& mName, const GameNumber& mGno) {
    const std::string path = FavFileName();
    kept_.push_back({std::nullopt, mScoreFile::FavLine({mName, mGno})});
    const auto faults = TryKept();
    const auto fault = faults.find(path);
    if (fault == faults.end()) return true;
    gData->Layer().Forms.Inform("The favorite could not be written to " + path + ": " + fault->second +
                                "\nIt is kept and will be written with the next record.");
    return false;
}

std::optional<std::string> cScore::PathOf(const KeptLine& line, const PlayerList& list) {
    if (!line.Player) return FavFileName();
    const std::optional<std::string> name = list.Followed(*line.Player);
    if (!name) return std::nullopt;
    return FileName(*name);
}

cScore::Faults cScore::WriteLines(const PlayerList& list) {
    std::map<std::string, std::vector<KeptLine>> byPath;
    for (KeptLine& line : std::exchange(kept_, {})) {
        if (const auto path = PathOf(line, list)) byPath[*path].push_back(std::move(line));
    }
    Faults faults;
    for (const auto& [path, kept] : byPath) {
        std::vector<std::string> lines;
        for (const KeptLine& line : kept) lines.push_back(line.Line);
        if (const FileError fault = gData->Layer().Files.AppendLines(path, lines)) {
            faults.emplace(path, *fault);
            kept_.insert(kept_.end(), kept.begin(), kept.end());
        }
    }
    return faults;
}

cScore::Faults cScore::TryKept() {
    Faults faults;
    if (kept_.empty()) return faults;
    if (gData->Alone([&] { faults = WriteLines(PlayerList::Read()); })) return faults;
    const PlayerList list = PlayerList::Read();
    for (const KeptLine& line : kept_) {
        if (const auto path = PathOf(line, list)) faults.emplace(*path, LockedOut);
    }
    return faults;
}

bool cScore::WriteKept() { return TryKept().empty(); }

void cScore::DropKept(const std::string& path) {
    const PlayerList list = PlayerList::Read();
    std::erase_if(kept_, [&](const KeptLine& line) { return PathOf(line, list) == path; });
}

FileError cScore::RenameScore(const std::string& from, const std::string& to) {
    FileSystem& files = gData->Layer().Files;
    const std::string source = FileName(from);
    const std::string target = FileName(to);
    if (files.Exists(source)) {
        if (FileError fault = files.Rename(source, target)) return fault;
    }
    unread_.erase(source);
    reported_.erase(source);
    return std::nullopt;
}

FileError cScore::DeleteScore(const std::string& Player) {
    FileSystem& files = gData->Layer().Files;
    const std::string path = FileName(Player);
    if (files.Exists(path)) {
        if (FileError fault = files.Remove(path)) return fault;
    }
    DropKept(path);
    unread_.erase(path);
    reported_.erase(path);
    return std::nullopt;
}

void cScore::OpenFav() {
    WriteKept();  // what waits belongs into the view; that it waits was told when it happened
    favourites_.clear();
    ReadLines(FavFileName(), "the favorites", [this](std::string_view line) {
        std::optional<tFav> favourite = mScoreFile::ParseFav(line);
        if (favourite) favourites_.push_back(std::move(*favourite));
        return favourite.has_value();
    });
}

const tFav& cScore::GetFav(int i) const {
    if (i < 1 || i > FavTop()) throw std::out_of_range("cScore: no such favourite");
    return favourites_[static_cast<std::size_t>(i - 1)];
}

void cScore::ClearFav() {
    FileSystem& files = gData->Layer().Files;
    const std::string path = FavFileName();
    FileError fault;
    const bool alone = gData->Alone([&] {
        if (files.Exists(path)) fault = files.Remove(path);
    });
    if (!alone) fault = LockedOut;
    if (fault) {
        gData->Layer().Forms.InformCritical("The file " + path + " could not be deleted: " + *fault);
        return;
    }
    DropKept(path);
    reported_.erase(path);
}

void cScore::ReadLines(const std::string& path, const std::string& whose,
                       const std::function<bool(std::string_view)>& read) {
    const FileSystem& files = gData->Layer().Files;
    unread_.erase(path);
    if (!files.Exists(path)) {
        reported_.erase(path);
        return;
    }
    Unread unread{.Whose = whose, .Fault = {}};
    std::string content;
    unread.Fault = files.Read(path, content);
    // One file is never larger than that; twenty of them could be.
    constexpr std::size_t MostBytes = std::size_t{512} << 20;
    if (!unread.Fault && content.size() > MostBytes - bytes_)
        unread.Fault = "All records together are too many";
    if (!unread.Fault) {
        bytes_ += content.size();
        // A usual line has 50 to 80 bytes.
        constexpr std::size_t LineLength = 60;
        if (content.size() > 1000 * LineLength) store_.Reserve(content.size() / LineLength);
        std::size_t line = 0;
        unread.Lines = mScoreFile::ForEachLine(content, [&](std::string_view text) {
            ++line;
            if (read(text)) return true;
            constexpr std::size_t Spread = 31;
            unread.Which = unread.Which * Spread + (std::hash<std::string_view>{}(text) ^ line);
            return false;
        });
    }
    if (unread.Fault || unread.Lines > 0) {
        unread_.emplace(path, std::move(unread));
    } else {
        reported_.erase(path);  // mended: the same fault is a new one if it comes again
    }
}

void cScore::ReportUnread() {
    std::string text;
    for (const auto& [path, unread] : unread_) {
        const auto told = reported_.find(path);
        if (told != reported_.end() && told->second == unread) continue;
        if (!text.empty()) text += "\n\n";
        if (unread.Fault) {
            text += fmt::format("The file {} could not be read: {}", path, *unread.Fault);
        } else {
            text += fmt::format("{} {} of {} could not be read and {} left out.\n{}", unread.Lines,
                                unread.Lines == 1 ? "line" : "lines", unread.Whose,
                                unread.Lines == 1 ? "was" : "were", path);
        }
        reported_[path] = unread;
    }
    if (!text.empty()) gData->Layer().Forms.Inform(text);
}
