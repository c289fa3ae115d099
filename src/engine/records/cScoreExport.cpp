// The export of all statistics to a text file, laid out like the print zones of a line printer.
#include <algorithm>
#include <utility>

#include "engine/records/RegionalDates.h"
#include "engine/records/cScore.h"
#include "engine/records/mOwnFiles.h"
#include "engine/records/mPlayers.h"
#include "engine/records/mStatistics.h"
#include "engine/rules/mFunc.h"
#include "engine/state/cData.h"
#include "engine/state/mText.h"

namespace {

constexpr int ZoneWidth = 14;
constexpr int GameWidth = 25;  // the longest game name has 24 characters
constexpr int CutWidth = 12;   // of texts among the single records

/// A text with print zones: one begins at every 14th column from 0.
class Report {
public:
    explicit Report(std::size_t size) { text_.reserve(size); }

    Report& Put(std::string_view text) {
        text_ += text;
        column_ += mText::Length(text);
        return *this;
    }
    /// A number has a place for its sign before it and a blank behind it.
    Report& Put(int number) {
        if (number >= 0) Put(" ");
        return Put(std::to_string(number)).Put(" ");
    }
    Report& PutNumber(const GameNumber& number) {
        const std::string text = mGameNumber::Text(number);
        if (std::holds_alternative<std::string>(number)) return Put(text);
        if (std::get<double>(number) >= 0.0) Put(" ");
        return Put(text).Put(" ");
    }
    Report& Blanks(int count) { return Put(std::string(static_cast<std::size_t>(std::max(0, count)), ' ')); }
    /// On to the next zone; an item that ends where a zone begins leaves that zone empty.
    Report& Zone() { return Blanks(ZoneWidth - column_ % ZoneWidth); }
    /// Every item in a zone of its own, from the present column on.
    template <typename First, typename... Rest>
    Report& Zones(const First& first, const Rest&... rest) {
        Put(first);
        (Zone().Put(rest), ...);
        return *this;
    }
    void End() {
        text_ += "\r\n";
        column_ = 0;
    }
    template <typename... Items>
    void Line(const Items&... items) {
        Zones(items...).End();
    }
    /// A line that holds one blank.
    void BlankLines(int count) {
        for (int i = 0; i < count; ++i) Line(" ");
    }
    void Title(const char* title, int dashes) {
        Line(title);
        Line(std::string(static_cast<std::size_t>(dashes), '-'));
    }

    [[nodiscard]] std::string Take() { return std::move(text_); }

private:
    std::string text_;
    int column_ = 0;
};

void WriteHead(Report& report) {
    report.Line(gData->ProdName() + " Score Board");
    report.BlankLines(1);
    report.Line(std::string(25, '*'));
    report.BlankLines(1);
    report.Line("Created By", gData->CurPlayer());
    report.Line("Created Date", RegionalDates::Current().DateAndTime(mDates::Now()));
    report.BlankLines(1);
    report.Line(std::string(34, '-'));
    report.BlankLines(1);
}

void WriteTotals(Report& report, const cScore& scores) {
    report.Title("General Statistics", 18);
    report.Line("Played", "Won", "Lost", "Time", "Moves", "Score");
    const tStat total = scores.TotalStat();
    report.Line(total.Played, total.Won, total.Lost, mFunc::FormatTime(total.Time), total.Moves, total.Score);
    report.BlankLines(2);

    report.Title("Player Statistics", 17);
    report.Line("Player", "Played", "Won", "Lost", "Time", "Moves", "Score");
    for (const std::string& player : mPlayers::Names()) {
        const tStat s = scores.PlayerStat(player);
        report.Line(player, s.Played, s.Won, s.Lost, mFunc::FormatTime(s.Time), s.Moves, s.Score);
    }
    report.BlankLines(2);

    report.Title("Games Statistics", 16);
    report.Put("Game").Blanks(21).Zones("Played", "Won", "Time", "Moves", "Score").End();
    for (int SiD = 1; SiD <= gData->TotalGames(); ++SiD) {
        const std::string& name = gData->GetGame(SiD);
        const tStat s = scores.GameStat(name);
        report.Put(name).Blanks(GameWidth - mText::Length(name));
        report.Zones(s.Played, s.Won, mFunc::FormatTime(s.Time), s.Moves, s.Score).End();
    }
    report.BlankLines(2);
}

}  // namespace

bool cScore::WriteStat(const std::string& FileName, const Progress& progress) const {
    constexpr std::size_t LineLength = 130;
    constexpr std::size_t HeadLength = 50000;
    constexpr int Steps = 100;
    Report report(HeadLength + store_.Entries().size() * LineLength);
    WriteHead(report);
    WriteTotals(report, *this);

    report.Title("Full Statistics", 14);
    report.Line("Date", "Game", "Player", "Status", "Score", "Moves", "Time", "Game No");
    const RegionalDates dates = RegionalDates::Current();
    const std::size_t step = store_.Entries().size() / Steps + 1;
    std::size_t done = 0;
    for (const ScoreStore::Entry& entry : store_.Entries()) {
        if (progress && done % step == 0 && !progress(static_cast<int>(done / step))) return false;
        ++done;
        const tScore r = store_.Record(entry);
        const std::string date =
            entry.Day == ScoreStore::NoDay ? r.Date : dates.ShortDate(mDates::FromDayNumber(entry.Day));
        report
            .Zones(mText::First(date, CutWidth), mText::First(r.gName, CutWidth),
                   mText::First(r.Player, CutWidth), mStatistics::StatusStr(r.Won), r.Score, r.Moves,
                   mFunc::FormatTime(r.Time))
            .Blanks(5)
            .PutNumber(r.GameNo)
            .End();
    }
    if (const FileError fault = gData->Layer().Files.Replace(FileName, report.Take())) {
        gData->Layer().Forms.InformCritical("The statistics could not be written to " + FileName + ": " +
                                            *fault);
        return false;
    }
    return true;
}

void cScore::ExportStat() {
    Forms& forms = gData->Layer().Forms;
    const auto file = mOwnFiles::AskTarget("Scoreboard", "Text File (*.txt) |*.txt", "The statistics are");
    if (!file) return;
    bool cancelled = false;
    const auto goOn = [&](int percent) {
        cancelled = !forms.ShowProgress("Exporting the statistics", percent);
        return !cancelled;
    };
    if (!goOn(0)) return;  // from here on: a large store takes its time to be read
    const bool wasLoaded = loaded_;
    OpenAllScore();
    const bool written = WriteStat(*file, goOn);
    constexpr int Whole = 100;
    if (!cancelled) (void)goOn(Whole);
    ReportUnread();  // only now: no message stands over the progress
    if (!wasLoaded) CloseScore();
    if (written) forms.Inform("Statistics Successfully Exported to " + *file);
}
