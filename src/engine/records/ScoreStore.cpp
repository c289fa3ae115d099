// Keeping records small, and adding them up.
#include "engine/records/ScoreStore.h"

#include <algorithm>
#include <stdexcept>

namespace {

using mDates::SecondsInHour;
using mDates::SecondsInMinute;

int Saturated32(std::int64_t value) {
    using Limits = std::numeric_limits<std::int32_t>;
    return static_cast<int>(std::clamp<std::int64_t>(value, Limits::min(), Limits::max()));
}

/// Whether a text is the plain digits of a number, so that the number alone keeps it.
bool PlainDigits(std::string_view text) {
    constexpr std::size_t ExactDigits = 15;
    if (text.empty() || text.size() > ExactDigits || (text[0] == '0' && text.size() > 1)) return false;
    return std::all_of(text.begin(), text.end(), [](char c) { return c >= '0' && c <= '9'; });
}

double DigitsValue(std::string_view digits) {
    std::int64_t value = 0;
    for (const char c : digits) value = value * 10 + (c - '0');
    return static_cast<double>(value);
}

}  // namespace

std::uint32_t TextPool::Add(std::string_view text) {
    if (ends_.size() >= std::numeric_limits<std::uint32_t>::max()) throw std::length_error("TextPool: full");
    bytes_ += text;
    ends_.push_back(bytes_.size());
    return static_cast<std::uint32_t>(ends_.size() - 1);
}

std::string_view TextPool::Get(std::uint32_t place) const {
    const std::size_t end = ends_.at(place);
    const std::size_t start = place == 0 ? 0 : ends_[place - 1];
    return std::string_view(bytes_).substr(start, end - start);
}

std::uint32_t NameList::Add(std::string_view name) {
    if (const auto found = numbers_.find(name); found != numbers_.end()) return found->second;
    const auto number = static_cast<std::uint32_t>(names_.size());
    names_.emplace_back(name);
    numbers_.emplace(names_.back(), number);
    return number;
}

std::uint32_t NameList::Find(std::string_view name) const {
    const auto found = numbers_.find(name);
    return found == numbers_.end() ? None : found->second;
}

void ScoreSums::Add(const ScoreSums& other) {
    Played += other.Played;
    Won += other.Won;
    Score += other.Score;
    Moves += other.Moves;
    Time += other.Time;
}

tStat ScoreSums::Stat() const {
    return {.Played = Saturated32(Played),
            .Won = Saturated32(Won),
            .Lost = Saturated32(Played - Won),
            .Score = Saturated32(Score),
            .Moves = Saturated32(Moves),
            .Time = Saturated32(Time)};
}

void ScoreStore::Reserve(std::size_t more) {
    // Never by less than half, so that many small files do not copy the store again and again.
    const std::size_t wanted = entries_.size() + more;
    if (wanted > entries_.capacity()) {
        entries_.reserve(std::max(wanted, entries_.capacity() + entries_.capacity() / 2));
    }
}

void ScoreStore::Add(const mScoreFile::ScoreFields& fields, const std::string& player,
                     const RegionalDates& dates) {
    Entry entry{};
    if (!fields.GameNo.Quoted) {
        entry.Kind = Entry::NumberKind::Number;
        entry.Number = fields.Number;
    } else if (PlainDigits(fields.GameNo.Text)) {
        entry.Kind = Entry::NumberKind::Digits;
        entry.Number = DigitsValue(fields.GameNo.Text);
    } else {
        entry.Kind = Entry::NumberKind::Text;
        entry.Text = texts_.Add(fields.GameNo.Text);
    }
    constexpr std::size_t FixedLength = 19;  // without it the text has no time and must be kept
    std::optional<CivilTime> time = mDates::ParseFixed(fields.Date);
    entry.FixedDate = time && fields.Date.size() == FixedLength;
    if (!time) time = dates.Read(fields.Date);
    entry.Day = time ? mDates::DayNumber(*time) : NoDay;
    entry.Second = time ? static_cast<std::uint32_t>(time->Hour * SecondsInHour +
                                                     time->Minute * SecondsInMinute + time->Second)
                        : 0;
    if (!entry.FixedDate) entry.DateText = texts_.Add(fields.Date);
    entry.Time = fields.Time;
    entry.Moves = static_cast<std::int16_t>(fields.Moves);
    entry.Score = static_cast<std::int16_t>(fields.Score);
    entry.Won = static_cast<std::int16_t>(fields.Won);
    entry.Game = games_.Add(fields.gName);
    const std::uint32_t owner = players_.Add(player);
    if (owner > std::numeric_limits<std::uint16_t>::max()) throw std::length_error("ScoreStore: players");
    entry.Player = static_cast<std::uint16_t>(owner);
    AddSums(entry);
    entries_.push_back(entry);
}

void ScoreStore::AddSums(const Entry& entry) {
    const ScoreSums one{
        .Played = 1, .Won = entry.Won == 1, .Score = entry.Score, .Moves = entry.Moves, .Time = entry.Time};
    if (entry.Game >= gameSums_.size()) {
        gameSums_.resize(entry.Game + 1);
        byGame_.resize(entry.Game + 1);
    }
    if (entry.Player >= playerSums_.size()) playerSums_.resize(entry.Player + 1U);
    total_.Add(one);
    gameSums_[entry.Game].Add(one);
    playerSums_[entry.Player].Add(one);
    byGame_[entry.Game].push_back(static_cast<std::uint32_t>(entries_.size()));
    if (entry.Day != NoDay) daySums_[entry.Day].Add(one);
}

std::string ScoreStore::DateText(const Entry& entry) const {
    return entry.FixedDate ? mDates::Text(TimeOf(entry)) : std::string(texts_.Get(entry.DateText));
}

std::string ScoreStore::NumberText(const Entry& entry) const {
    return entry.Kind == Entry::NumberKind::Text
               ? std::string(texts_.Get(static_cast<std::uint32_t>(entry.Text)))
               : mGameNumber::Text(entry.Number);
}

CivilTime ScoreStore::TimeOf(const Entry& entry) {
    CivilTime time = mDates::FromDayNumber(entry.Day);
    const int seconds = static_cast<int>(entry.Second);
    time.Hour = seconds / SecondsInHour;
    time.Minute = seconds / SecondsInMinute % SecondsInMinute;
    time.Second = seconds % SecondsInMinute;
    return time;
}

tScore ScoreStore::Record(const Entry& entry) const {
    tScore record;
    record.Date = DateText(entry);
    record.gName = games_.Name(entry.Game);
    switch (entry.Kind) {
        case Entry::NumberKind::Number:
            record.GameNo = entry.Number;
            break;
        case Entry::NumberKind::Digits:
        case Entry::NumberKind::Text:
            record.GameNo = NumberText(entry);
            break;
    }
    record.Time = entry.Time;
    record.Moves = entry.Moves;
    record.Score = entry.Score;
    record.Won = entry.Won;
    record.Player = players_.Name(entry.Player);
    return record;
}

ScoreSums ScoreStore::GameSums(std::string_view gName) const {
    const std::uint32_t game = games_.Find(gName);
    return game == NameList::None ? ScoreSums{} : gameSums_[game];
}

ScoreSums ScoreStore::PlayerSums(std::string_view Player) const {
    const std::uint32_t player = players_.Find(Player);
    return player == NameList::None ? ScoreSums{} : playerSums_[player];
}

ScoreSums ScoreStore::DaySums(const mDates::DayRange& days) const {
    ScoreSums sums;
    for (int day = days.First; day <= days.Last; ++day) {
        if (const auto found = daySums_.find(day); found != daySums_.end()) sums.Add(found->second);
    }
    return sums;
}
