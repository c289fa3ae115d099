// Dates of the calendar on the wall: arithmetic by days, months and years, and their texts.
#pragma once

#include <optional>
#include <string>
#include <string_view>

/// A date and time of day, without a time zone.
struct CivilTime {
    int Year = 1970;
    int Month = 1;
    int Day = 1;
    int Hour = 0;
    int Minute = 0;
    int Second = 0;
    bool operator==(const CivilTime&) const = default;
};

namespace mDates {

inline constexpr int MonthsInYear = 12;
inline constexpr int SecondsInMinute = 60;
inline constexpr int SecondsInHour = 3600;
inline constexpr int SecondsInDay = 86400;

/// The unit in which two dates are compared or a date is moved.
enum class Interval { Day, Month, Year };
/// "d", "m" or "yyyy"; anything else throws std::out_of_range.
[[nodiscard]] Interval IntervalOf(std::string_view code);

/// Whether day and time exist; years run from 1 to 9999.
[[nodiscard]] bool Valid(const CivilTime& time);

/// Days since 1970-01-01. The date must be valid.
[[nodiscard]] int DayNumber(const CivilTime& date);
[[nodiscard]] CivilTime FromDayNumber(int day);
/// Seconds since 1970-01-01 00:00:00 of that same calendar.
[[nodiscard]] long long Seconds(const CivilTime& time);

/// "yyyy-MM-dd hh:mm:ss", the form in which dates are written.
[[nodiscard]] std::string Text(const CivilTime& time);
/// Reads that form; the time may be missing and then is midnight.
[[nodiscard]] std::optional<CivilTime> ParseFixed(std::string_view text);

/// The present local time, by the clock of the window layer.
[[nodiscard]] CivilTime Now();

/// The date `count` units later. A day that the month does not have becomes the month's last day.
[[nodiscard]] CivilTime Moved(const CivilTime& time, int count, Interval interval);

/// Days, as DayNumber, from the first to the last of a period.
struct DayRange {
    int First = 0;
    int Last = 0;
};
/// The day, month or year in which a date lies.
[[nodiscard]] DayRange Period(const CivilTime& date, Interval interval);

}  // namespace mDates
