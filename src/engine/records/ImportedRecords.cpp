// Reading a file of records, and adding what a player does not have.
#include "engine/records/ImportedRecords.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <limits>
#include <optional>
#include <unordered_set>

#include <fmt/format.h>

#include "engine/records/cScore.h"
#include "engine/records/mCareerTables.h"
#include "engine/records/mCsv.h"
#include "engine/records/mPlayers.h"
#include "engine/state/cData.h"
#include "engine/state/mText.h"

namespace {

constexpr std::size_t Columns = mCareerTables::RecordColumns.size();
enum Column : std::size_t { Date, Player, Game, GameNo, Score, Seconds, Moves, Status };

constexpr std::string_view Mark = "\xEF\xBB\xBF";  // some programs put it before UTF-8

/// Where each of the columns stands in a file.
using Places = std::array<std::size_t, Columns>;
constexpr std::size_t Nowhere = std::numeric_limits<std::size_t>::max();

std::optional<Places> PlacesIn(const std::vector<std::string>& headings) {
    Places places{};
    for (std::size_t column = 0; column < Columns; ++column) {
        const auto found =
            std::find(headings.begin(), headings.end(), mCareerTables::RecordColumns.at(column));
        places.at(column) =
            found == headings.end() ? Nowhere : static_cast<std::size_t>(found - headings.begin());
        if (places.at(column) == Nowhere && column != Player) return std::nullopt;
    }
    return places;
}

template <typename Integer>
bool ReadWhole(std::string_view text, int& value) {
    Integer whole = 0;
    const auto [end, fault] = std::from_chars(text.data(), text.data() + text.size(), whole);
    value = whole;
    return fault == std::errc{} && end == text.data() + text.size();
}

/// The fields of a row, which must live as long; the cause where it is no record.
FileError FieldsOf(const std::array<std::string, Columns>& row, mScoreFile::ScoreFields& fields) {
    fields.Date = row[Date];
    fields.gName = row[Game];
    // A number that its digits do not give back, such as 007, is what a player typed.
    const std::optional<double> number = mGameNumber::Parse(row[GameNo]);
    fields.GameNo = {row[GameNo], !number || mGameNumber::Text(*number) != row[GameNo]};
    fields.Number = number.value_or(0.0);
    if (!ReadWhole<std::int16_t>(row[Score], fields.Score)) return "no score";
    if (!ReadWhole<std::int32_t>(row[Seconds], fields.Time)) return "no seconds";
    if (!ReadWhole<std::int16_t>(row[Moves], fields.Moves)) return "no moves";
    if (row[Status] != "Won" && row[Status] != "Lost") return "neither won nor lost";
    fields.Won = row[Status] == "Won" ? 1 : 0;
    return std::nullopt;
}

/// Whether a score file can hold a text, and gives it back.
bool CanStand(std::string_view text) {
    return !text.empty() && text.find_first_of("\"\r\n") == std::string_view::npos;
}

/// What makes two records the same one: all that they hold, the date by what it means here, the number by its
/// digits.
std::string Identity(const ScoreStore& store, const ScoreStore::Entry& entry) {
    const std::string date = entry.Day == ScoreStore::NoDay ? store.DateText(entry)
                                                            : fmt::format("{} {}", entry.Day, entry.Second);
    return fmt::format("{}\n{}\n{}\n{} {} {} {}", date, store.Games().Name(entry.Game),
                       store.NumberText(entry), entry.Time, entry.Moves, entry.Score, entry.Won == 1);
}

}  // namespace

void ImportedRecords::Refuse(const std::string& cause, std::string_view line) {
    ++unreadable_;
    if (examples_.size() < MostExamples) examples_.push_back(cause + ": " + mText::Shown(line));
}

void ImportedRecords::Take(mScoreFile::ScoreFields fields, const std::string& player, std::string_view line) {
    if (gData->GetGameID(std::string(fields.gName)) == 0) return Refuse("no such game", line);
    if (!CanStand(fields.Date)) return Refuse("no date", line);
    if (!CanStand(fields.GameNo.Text)) return Refuse("no game number", line);
    // The other way to write a date and time in one.
    constexpr std::size_t TimeMark = 10;
    std::string date(fields.Date);
    if (date.size() > TimeMark && date[TimeMark] == 'T') {
        date[TimeMark] = ' ';
        if (mDates::ParseFixed(date)) fields.Date = date;
    }
    if (records_.Players().Find(player) == NameList::None) {
        constexpr std::size_t MostPlayers = 1000;  // a column of names has few different ones
        if (players_.size() == MostPlayers) return Refuse("too many players", line);
        if (!player.empty()) players_.push_back(player);
    }
    records_.Add(fields, player, dates_);
}

void ImportedRecords::ReadScoreFile(std::string_view content) {
    mScoreFile::ForEachLine(content, [this](std::string_view line) {
        mScoreFile::ScoreFields fields;
        if (mScoreFile::ParseScore(line, fields)) {
            Take(fields, {}, line);
        } else {
            Refuse("no record", line);
        }
        return true;
    });
}

void ImportedRecords::ReadCsv(std::string_view content) {
    std::optional<Places> places;
    mCsv::ForEachRow(content, mCsv::Separator(content), [&](const auto& fields, std::string_view line) {
        if (!places) {
            places = PlacesIn(fields);
            return;
        }
        std::array<std::string, Columns> row;
        for (std::size_t column = 0; column < Columns; ++column) {
            const std::size_t place = places->at(column);
            if (place < fields.size()) row.at(column) = fields[place];
        }
        mScoreFile::ScoreFields record;
        if (const FileError cause = FieldsOf(row, record)) {
            Refuse(*cause, line);
        } else {
            Take(record, row[Player], line);
        }
    });
}

bool ImportedRecords::Read(const std::string& path) {
    const FileError fault = ReadFile(path);
    if (fault) gData->Layer().Forms.InformCritical("The file " + path + " could not be read: " + *fault);
    return !fault;
}

FileError ImportedRecords::ReadFile(const std::string& path) {
    std::string content;
    if (FileError fault = gData->Layer().Files.Read(path, content)) return fault;
    std::string_view text = content;
    if (text.substr(0, Mark.size()) == Mark) text.remove_prefix(Mark.size());
    bool isCsv = false;
    const std::string_view first = text.substr(0, text.find_first_of("\r\n"));
    mCsv::ForEachRow(first, mCsv::Separator(first), [&](const auto& fields, std::string_view) {
        isCsv = isCsv || PlacesIn(fields).has_value();
    });
    if (!isCsv) {
        ReadScoreFile(text);
    } else if (mText::IsUtf8(text)) {
        ReadCsv(text);
    } else {
        ReadCsv(mText::FromFile(text));
    }
    if (records_.Size() == 0) return "It holds no records of this program";
    return std::nullopt;
}

ImportedRecords::Count ImportedRecords::Compare(const std::string& player, const std::string& of,
                                                std::vector<std::string>* lines) const {
    Count count;
    ScoreStore present;
    const std::string path = cScore::FileName(player);
    const FileSystem& files = gData->Layer().Files;
    if (files.Exists(path)) {
        std::string content;
        count.Fault = files.Read(path, content);
        if (count.Fault) return count;
        mScoreFile::ForEachLine(content, [&](std::string_view line) {
            mScoreFile::ScoreFields fields;
            if (!mScoreFile::ParseScore(line, fields)) return false;
            present.Add(fields, player, dates_);
            return true;
        });
    }
    std::unordered_set<std::string> known;
    for (const ScoreStore::Entry& entry : present.Entries()) known.insert(Identity(present, entry));
    for (const ScoreStore::Entry& entry : records_.Entries()) {
        if (!of.empty() && records_.Players().Name(entry.Player) != of) continue;
        if (!known.insert(Identity(records_, entry)).second) {
            ++count.There;
            continue;
        }
        ++count.New;
        if (entry.Day == ScoreStore::NoDay) ++count.Undated;
        if (lines) lines->push_back(mScoreFile::ScoreLine(records_.Record(entry)));
    }
    return count;
}

ImportedRecords::Count ImportedRecords::Preview(const std::string& player, const std::string& of) const {
    return Compare(player, of, nullptr);
}

std::vector<std::string> ImportedRecords::Lines(const Count& count) const {
    if (count.Fault) return {"The records of the player could not be read: " + *count.Fault};
    std::vector<std::string> lines{
        mPlayers::RecordsText(count.New) + (count.New == 1 ? " is new" : " are new"),
        mPlayers::RecordsText(count.There) + (count.There == 1 ? " is there already" : " are there already")};
    if (count.Undated > 0) {
        lines.push_back(mPlayers::RecordsText(count.Undated) + (count.Undated == 1 ? " has" : " have") +
                        " a date that cannot be read here");
    }
    lines.push_back(std::to_string(unreadable_) + (unreadable_ == 1 ? " line" : " lines") +
                    " cannot be read" + (examples_.empty() ? "" : ":"));
    lines.insert(lines.end(), examples_.begin(), examples_.end());
    if (static_cast<std::size_t>(unreadable_) > examples_.size()) lines.emplace_back("and so on");
    return lines;
}

bool ImportedRecords::AddTo(const ShownPlayer& player, const std::string& of) const {
    (void)gScore->WriteKept();  // what waits to be written is there already, too
    std::string name = player.Name;
    Count count;
    FileError fault;
    std::vector<std::string> messages;
    const bool alone = gData->Alone([&] {
        const std::optional<std::string> now = mPlayers::MendedList(messages).NowCalled(player);
        if (!now) {
            fault = player.Name + " is not in the list of players any more.";
            return;
        }
        name = *now;
        std::vector<std::string> lines;
        count = Compare(name, of, &lines);
        fault = count.Fault;
        if (!fault) fault = gData->Layer().Files.AppendLines(cScore::FileName(name), lines);
    });
    Forms& forms = gData->Layer().Forms;
    for (const std::string& message : messages) forms.Inform(message);
    if (!alone) fault = "Another program is busy with the players";
    if (fault) {
        forms.InformCritical("No record was added to " + name + ": " + *fault);
        return false;
    }
    forms.Inform(fmt::format("{} added to {}.",
                             mPlayers::RecordsText(count.New) + (count.New == 1 ? " was" : " were"), name));
    return true;
}
