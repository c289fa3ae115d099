// Arithmetic and the fixed text of dates.
#include "engine/records/mDates.h"

#include <chrono>
#include <stdexcept>

#include <fmt/format.h>

#include "engine/state/cData.h"

namespace {

namespace chrono = std::chrono;

constexpr int FirstYear = 1;
constexpr int LastYear = 9999;

chrono::year_month_day Civil(const CivilTime& date) {
    return chrono::year{date.Year} / chrono::month{static_cast<unsigned>(date.Month)} /
           chrono::day{static_cast<unsigned>(date.Day)};
}

int DaysIn(int year, int month) {
    const auto last = chrono::year{year} / chrono::month{static_cast<unsigned>(month)} / chrono::last;
    return static_cast<int>(static_cast<unsigned>(last.day()));
}

/// Exactly `count` digits at `at`; -1 where something else stands.
int Digits(std::string_view text, std::size_t at, std::size_t count) {
    int value = 0;
    for (const char c : text.substr(at, count)) {
        if (c < '0' || c > '9') return -1;
        value = value * 10 + (c - '0');
    }
    return value;
}

}  // namespace

namespace mDates {

Interval IntervalOf(std::string_view code) {
    if (code == "d") return Interval::Day;
    if (code == "m") return Interval::Month;
    if (code == "yyyy") return Interval::Year;
    throw std::out_of_range("mDates: no such interval");
}

bool Valid(const CivilTime& time) {
    const auto within = [](int value, int low, int high) { return value >= low && value <= high; };
    return within(time.Year, FirstYear, LastYear) && within(time.Month, 1, MonthsInYear) &&
           within(time.Day, 1, DaysIn(time.Year, time.Month)) && within(time.Hour, 0, 23) &&
           within(time.Minute, 0, 59) && within(time.Second, 0, 59);
}

int DayNumber(const CivilTime& date) {
    return static_cast<int>(chrono::sys_days{Civil(date)}.time_since_epoch().count());
}

CivilTime FromDayNumber(int day) {
    const chrono::year_month_day date{chrono::sys_days{chrono::days{day}}};
    return {.Year = static_cast<int>(date.year()),
            .Month = static_cast<int>(static_cast<unsigned>(date.month())),
            .Day = static_cast<int>(static_cast<unsigned>(date.day()))};
}

long long Seconds(const CivilTime& time) {
    return ((DayNumber(time) * 24LL + time.Hour) * 60 + time.Minute) * 60 + time.Second;
}

std::string Text(const CivilTime& time) {
    return fmt::format("{:04}-{:02}-{:02} {:02}:{:02}:{:02}", time.Year, time.Month, time.Day, time.Hour,
                       time.Minute, time.Second);
}

std::optional<CivilTime> ParseFixed(std::string_view text) {
    constexpr std::size_t DateLength = 10;
    constexpr std::size_t WholeLength = 19;
    if (text.size() != DateLength && text.size() != WholeLength) return std::nullopt;
    if (text[4] != '-' || text[7] != '-') return std::nullopt;
    CivilTime time{.Year = Digits(text, 0, 4), .Month = Digits(text, 5, 2), .Day = Digits(text, 8, 2)};
    if (text.size() == WholeLength) {
        if (text[10] != ' ' || text[13] != ':' || text[16] != ':') return std::nullopt;
        time.Hour = Digits(text, 11, 2);
        time.Minute = Digits(text, 14, 2);
        time.Second = Digits(text, 17, 2);
    }
    if (!Valid(time)) return std::nullopt;
    return time;
}

CivilTime Now() {
    const Calendar& calendar = gData->Layer().Calendar;
    return ParseFixed(calendar.Text(calendar.Now())).value_or(CivilTime{});
}

CivilTime Moved(const CivilTime& time, int count, Interval interval) {
    CivilTime moved = time;
    if (interval == Interval::Day) {
        const CivilTime date = FromDayNumber(DayNumber(time) + count);
        moved.Year = date.Year;
        moved.Month = date.Month;
        moved.Day = date.Day;
        return moved;
    }
    const int months = interval == Interval::Month ? count : count * MonthsInYear;
    const int month = time.Year * MonthsInYear + time.Month - 1 + months;
    moved.Year = month / MonthsInYear;
    moved.Month = month % MonthsInYear + 1;
    moved.Day = std::min(time.Day, DaysIn(moved.Year, moved.Month));
    return moved;
}

DayRange Period(const CivilTime& date, Interval interval) {
    CivilTime first = date;
    CivilTime last = date;
    if (interval == Interval::Year) {
        first.Month = 1;
        last.Month = MonthsInYear;
    }
    if (interval != Interval::Day) {
        first.Day = 1;
        last.Day = DaysIn(last.Year, last.Month);
    }
    return {DayNumber(first), DayNumber(last)};
}

}  // namespace mDates
