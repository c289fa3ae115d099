// Dates in the way of the user's region: reading what such a program wrote, and the texts to show.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "engine/outside/windowlayer.h"
#include "engine/records/mDates.h"

/// One regional format, prepared so that a million dates are read in passing.
class RegionalDates {
public:
    explicit RegionalDates(RegionalFormat format);
    /// The format of this moment.
    [[nodiscard]] static RegionalDates Current();

    /// Reads the fixed form, and the short date with the long time behind it or without one (which is
    /// how midnight was written). Years of two digits are 1930 to 2029. Separators may be any of / . -
    /// and : since people change them without changing the order.
    [[nodiscard]] std::optional<CivilTime> Read(std::string_view text) const;

    [[nodiscard]] std::string ShortDate(const CivilTime& date) const;
    /// The short date of a date text; a text that is no date as it stands.
    [[nodiscard]] std::string ShortDate(const std::string& text) const;

    /// The short date, a blank and the long time, without a time zone.
    [[nodiscard]] std::string DateAndTime(const CivilTime& moment) const;

    /// "Jan 05" for a day, "Jan 04" for a month, "2004" for a year.
    [[nodiscard]] std::string Label(const CivilTime& date, mDates::Interval interval) const;

private:
    struct Token {
        char Field;  ///< a letter of the pattern; 0 for a text
        int Length;
        std::string Text;
        std::string Mark;  ///< Text without the blanks around it
    };
    class Cursor;

    [[nodiscard]] static std::vector<Token> Tokens(const std::string& pattern, std::string_view fields);
    [[nodiscard]] bool ReadField(Cursor& cursor, const Token& token, CivilTime& time) const;
    [[nodiscard]] bool ReadDate(Cursor& cursor, CivilTime& time) const;
    [[nodiscard]] bool ReadTime(Cursor& cursor, CivilTime& time) const;
    [[nodiscard]] bool ReadTimeSeparator(Cursor& cursor) const;
    /// 'A', 'P', or 0 where neither stands.
    [[nodiscard]] char ReadHalf(Cursor& cursor) const;
    [[nodiscard]] std::string LongTime(const CivilTime& moment) const;
    [[nodiscard]] std::string Localized(const std::string& ascii) const;

    RegionalFormat format_;
    std::vector<Token> date_;
    std::vector<Token> time_;             // without the time zone
    std::vector<std::string> timeTexts_;  // between and behind the numbers of a time
    bool zone_ = false;                   // the long time ends with a time zone
};
