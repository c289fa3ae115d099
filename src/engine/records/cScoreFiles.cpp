// The files of the score store: appending, keeping what could not be written, renaming, deleting, and
// telling what could not be read.
#include <algorithm>
#include <utility>

#include <fmt/format.h>

#include "engine/records/cScore.h"
#include "engine/records/mScoreFile.h"
#include "engine/state/cData.h"

std::string cScore::FileName(const std::string& Player) { return gData->AppDir() + Player + ".sre"; }

std::string cScore::FavFileName() { return gData->AppDir() + "fav.dat"; }

void cScore::AddScore(int mWon) {
    const SessionFigures& figures = gData->Figures;
    const Calendar& calendar = gData->Layer().Calendar;
    const tScore record{.Date = calendar.Text(calendar.Now()),
                        .gName = figures.CurGName,
                        .GameNo = figures.CurGNo,
                        .Time = figures.CurTime,
                        .Moves = figures.CurMoves,
                        .Score = figures.CurScore,
                        .Won = mWon,
                        .Player = gData->CurPlayer()};
    const std::string path = FileName(record.Player);
    kept_.push_back({path, mScoreFile::ScoreLine(record)});
    const auto faults = TryKept();
    if (faults.empty()) return;
    std::string text;
    for (const auto& [file, cause] : faults) {
        const char* what = file == path ? "The record of this game" : "What was kept from before";
        text += fmt::format("{} could not be written to {}: {}\n", what, file, cause);
    }
    gData->Layer().Forms.Inform(text + "It is kept and will be written with the next record.");
}

bool cScore::AddFav(const std::string& mName, const GameNumber& mGno) {
    const std::string path = FavFileName();
    kept_.push_back({path, mScoreFile::FavLine({mName, mGno})});
    const auto faults = TryKept();
    const auto fault = faults.find(path);
    if (fault == faults.end()) return true;
    gData->Layer().Forms.Inform("The favorite could not be written to " + path + ": " + fault->second +
                                "\nIt is kept and will be written with the next record.");
    return false;
}

std::map<std::string, std::string> cScore::TryKept() {
    std::map<std::string, std::string> faults;
    std::vector<KeptLine> left;
    while (!kept_.empty()) {
        const std::string path = kept_.front().Path;
        const auto others = std::stable_partition(kept_.begin(), kept_.end(),
                                                  [&](const KeptLine& line) { return line.Path == path; });
        std::vector<std::string> lines;
        for (auto line = kept_.begin(); line != others; ++line) lines.push_back(line->Line);
        if (const FileError fault = gData->Layer().Files.AppendLines(path, lines)) {
            faults.emplace(path, *fault);
            left.insert(left.end(), kept_.begin(), others);
        }
        kept_.erase(kept_.begin(), others);
    }
    kept_ = std::move(left);
    return faults;
}

bool cScore::WriteKept() { return TryKept().empty(); }

void cScore::DropKept(const std::string& path) {
    std::erase_if(kept_, [&](const KeptLine& line) { return line.Path == path; });
}

FileError cScore::RenameScore(const std::string& from, const std::string& to) {
    FileSystem& files = gData->Layer().Files;
    const std::string source = FileName(from);
    const std::string target = FileName(to);
    if (files.Exists(source)) {
        if (FileError fault = files.Rename(source, target)) return fault;
    }
    // Otherwise the next try would bring the old file back.
    for (KeptLine& line : kept_) {
        if (line.Path == source) line.Path = target;
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
    if (files.Exists(path)) {
        if (const FileError fault = files.Remove(path)) {
            gData->Layer().Forms.InformCritical("The file " + path + " could not be deleted: " + *fault);
            return;
        }
    }
    DropKept(path);
    reported_.erase(path);
}

void cScore::ReadLines(const std::string& path, const std::string& whose,
                       const std::function<bool(std::string_view)>& read) {
    const FileSystem& files = gData->Layer().Files;
    unread_.erase(path);
    if (!files.Exists(path)) return;
    Unread unread{.Whose = whose, .Lines = 0, .Fault = {}};
    std::string content;
    unread.Fault = files.Read(path, content);
    if (!unread.Fault) {
        // A usual line has 50 to 80 bytes.
        constexpr std::size_t LineLength = 60;
        if (content.size() > 1000 * LineLength) store_.Reserve(content.size() / LineLength);
        unread.Lines = mScoreFile::ForEachLine(content, read);
    }
    if (unread.Fault || unread.Lines > 0) unread_.emplace(path, std::move(unread));
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
