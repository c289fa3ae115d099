// Reading and writing dates by the patterns of a region.
#include "engine/records/RegionalDates.h"

#include <algorithm>
#include <array>
#include <utility>

#include <fmt/format.h>

#include "engine/state/cData.h"
#include "engine/state/mText.h"

namespace {

constexpr std::string_view DateFields = "dMy";
constexpr std::string_view TimeFields = "hHmszAPapt";
constexpr int HalfDay = 12;

bool IsDigit(char c) { return c >= '0' && c <= '9'; }

char Lower(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

/// The year that two digits mean.
int FullYear(int year) {
    constexpr int FirstOfLastCentury = 30;
    return year + (year < FirstOfLastCentury ? 2000 : 1900);
}

std::string_view WithoutBlanks(std::string_view text) {
    const auto first = text.find_first_not_of(' ');
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(' ') + 1 - first);
}

}  // namespace

/// What is left to read of a date text.
class RegionalDates::Cursor {
public:
    explicit Cursor(std::string_view text) : rest_(text) {}

    [[nodiscard]] bool AtEnd() const { return rest_.empty(); }
    [[nodiscard]] char Next() const { return rest_.empty() ? '\0' : rest_.front(); }
    void Skip() { rest_.remove_prefix(1); }
    void SkipAll() { rest_ = {}; }

    /// True where there was a blank; the marks of writing direction and unbreakable blanks count.
    bool SkipBlanks() {
        // A quick way out: this is asked many times for every date of a large file.
        const char next = Next();
        if (next != ' ' && next != '\t' && next != '\xC2' && next != '\xE2') return false;
        bool any = false;
        for (bool again = true; again;) {
            again = false;
            for (const std::string_view blank :
                 {" ", "\t", "\xC2\xA0", "\xE2\x80\xAF", "\xE2\x80\x8E", "\xE2\x80\x8F"}) {
                while (rest_.substr(0, blank.size()) == blank) {
                    rest_.remove_prefix(blank.size());
                    any = again = true;
                }
            }
        }
        return any;
    }

    /// Letters A to Z count as a to z.
    bool Accept(std::string_view text) {
        if (text.empty() || rest_.size() < text.size()) return false;
        for (std::size_t i = 0; i < text.size(); ++i) {
            if (Lower(rest_[i]) != Lower(text[i])) return false;
        }
        rest_.remove_prefix(text.size());
        return true;
    }

    bool AcceptAnyOf(std::string_view characters) {
        if (AtEnd() || characters.find(Next()) == std::string_view::npos) return false;
        Skip();
        return true;
    }

    /// A whole number of at most `most` digits; `digits` tells how many there were.
    bool Number(int most, int& value, int& digits) {
        value = digits = 0;
        while (IsDigit(Next())) {
            if (++digits > most) return false;
            value = value * 10 + (Next() - '0');
            Skip();
        }
        return digits > 0;
    }

    bool Number(int most, int& value) {
        int digits = 0;
        return Number(most, value, digits);
    }

private:
    std::string_view rest_;
};

RegionalDates::RegionalDates(RegionalFormat format) : format_(std::move(format)) {
    date_ = Tokens(format_.ShortDate, DateFields);
    for (const Token& token : Tokens(format_.LongTime, TimeFields)) {
        if (token.Field == 't') {
            zone_ = true;
            continue;
        }
        time_.push_back(token);
        if (token.Field == 0 && !token.Mark.empty()) timeTexts_.push_back(token.Mark);
    }
}

RegionalDates RegionalDates::Current() { return RegionalDates(gData->Layer().Calendar.Regional()); }

std::vector<RegionalDates::Token> RegionalDates::Tokens(const std::string& pattern, std::string_view fields) {
    std::vector<Token> tokens;
    bool quoted = false;
    for (const char c : pattern) {
        if (c == '\'') {
            quoted = !quoted;
        } else if (!quoted && fields.find(c) != std::string_view::npos) {
            if (tokens.empty() || tokens.back().Field != c) tokens.push_back({c, 0, {}, {}});
            ++tokens.back().Length;
        } else {
            if (tokens.empty() || tokens.back().Field != 0) tokens.push_back({0, 0, {}, {}});
            tokens.back().Text += c;
        }
    }
    for (Token& token : tokens) token.Mark = WithoutBlanks(token.Text);
    return tokens;
}

bool RegionalDates::ReadField(Cursor& cursor, const Token& token, CivilTime& time) const {
    constexpr int DayNameLength = 3;
    if (token.Field == 'y') {
        int digits = 0;
        if (!cursor.Number(4, time.Year, digits) || digits == 3) return false;
        if (digits <= 2) time.Year = FullYear(time.Year);
        return true;
    }
    if (token.Field == 'M') {
        if (cursor.Number(2, time.Month)) return true;
        // A longer name may begin with a shorter one.
        std::size_t length = 0;
        for (std::size_t i = 0; i < format_.Months.size(); ++i) {
            Cursor attempt = cursor;
            if (format_.Months[i].size() <= length || !attempt.Accept(format_.Months[i])) continue;
            length = format_.Months[i].size();
            time.Month = static_cast<int>(i) + 1;
        }
        for (std::size_t i = 0; i < length; ++i) cursor.Skip();
        return length > 0;
    }
    if (token.Length < DayNameLength) return cursor.Number(2, time.Day);
    // The name of the weekday says nothing that the date does not.
    while (!cursor.AtEnd() && !IsDigit(cursor.Next()) &&
           std::string_view(" ,./-").find(cursor.Next()) == std::string_view::npos) {
        cursor.Skip();
    }
    return true;
}

bool RegionalDates::ReadDate(Cursor& cursor, CivilTime& time) const {
    bool day = false;
    bool month = false;
    bool year = false;
    for (const Token& token : date_) {
        if (token.Field != 0) {
            if (!ReadField(cursor, token, time)) return false;
            day |= token.Field == 'd';
            month |= token.Field == 'M';
            year |= token.Field == 'y';
            continue;
        }
        Cursor behind = cursor;
        const bool blank = behind.SkipBlanks();
        const bool separated = behind.Accept(token.Mark) || behind.AcceptAnyOf("/.-");
        if (day && month && year) {
            // What ends the date may be missing; the blank before the time is not part of it.
            if (separated) cursor = behind;
            continue;
        }
        if (!separated && !blank && !token.Mark.empty()) return false;
        behind.SkipBlanks();
        cursor = behind;
    }
    return day && month && year;
}

char RegionalDates::ReadHalf(Cursor& cursor) const {
    for (const std::string_view text : {std::string_view(format_.Morning), std::string_view("AM")}) {
        if (cursor.Accept(text)) return 'A';
    }
    for (const std::string_view text : {std::string_view(format_.Afternoon), std::string_view("PM")}) {
        if (cursor.Accept(text)) return 'P';
    }
    return 0;
}

bool RegionalDates::ReadTimeSeparator(Cursor& cursor) const {
    cursor.SkipBlanks();
    bool found = cursor.AcceptAnyOf(":.");
    for (const std::string& text : timeTexts_) found = found || cursor.Accept(text);
    cursor.SkipBlanks();
    return found;
}

bool RegionalDates::ReadTime(Cursor& cursor, CivilTime& time) const {
    char half = ReadHalf(cursor);
    cursor.SkipBlanks();
    if (!cursor.Number(2, time.Hour) || !ReadTimeSeparator(cursor) || !cursor.Number(2, time.Minute)) {
        return false;
    }
    if (ReadTimeSeparator(cursor) && IsDigit(cursor.Next())) {
        if (!cursor.Number(2, time.Second)) return false;
        // Some regions write "s" or the like behind the seconds.
        Cursor behind = cursor;
        behind.SkipBlanks();
        for (const std::string& text : timeTexts_) {
            if (text == ":" || text == "." || !behind.Accept(text)) continue;
            cursor = behind;
            break;
        }
    }
    cursor.SkipBlanks();
    if (half == 0) half = ReadHalf(cursor);
    if (half == 'P' && time.Hour < HalfDay) time.Hour += HalfDay;
    if (half == 'A' && time.Hour == HalfDay) time.Hour = 0;
    if (zone_) cursor.SkipAll();
    return true;
}

std::optional<CivilTime> RegionalDates::Read(std::string_view text) const {
    if (const std::optional<CivilTime> fixed = mDates::ParseFixed(text)) return fixed;
    std::string ascii;
    if (format_.ZeroDigit != U'0') {
        ascii = text;
        for (char32_t digit = 0; digit < 10; ++digit) {
            std::string written;
            mText::AppendUtf8(written, format_.ZeroDigit + digit);
            for (auto at = ascii.find(written); at != std::string::npos; at = ascii.find(written, at + 1)) {
                ascii.replace(at, written.size(), 1, static_cast<char>('0' + digit));
            }
        }
        text = ascii;
    }
    Cursor cursor(text);
    CivilTime time;
    cursor.SkipBlanks();
    if (!ReadDate(cursor, time)) return std::nullopt;
    bool apart = cursor.SkipBlanks();
    apart = cursor.Accept(",") || apart;
    cursor.SkipBlanks();
    if (!cursor.AtEnd() && (!apart || !ReadTime(cursor, time))) return std::nullopt;
    cursor.SkipBlanks();
    if (!cursor.AtEnd() || !mDates::Valid(time)) return std::nullopt;
    return time;
}

std::string RegionalDates::Localized(const std::string& ascii) const {
    if (format_.ZeroDigit == U'0') return ascii;
    std::string text;
    for (const char c : ascii) {
        if (IsDigit(c)) {
            mText::AppendUtf8(text, format_.ZeroDigit + static_cast<char32_t>(c - '0'));
        } else {
            text += c;
        }
    }
    return text;
}

std::string RegionalDates::ShortDate(const CivilTime& date) const {
    constexpr int NameLength = 3;
    constexpr int FullYearLength = 4;
    std::string text;
    for (const Token& token : date_) {
        const int width = std::min(token.Length, 2);
        switch (token.Field) {
            case 'd':
                if (token.Length < NameLength) text += fmt::format("{:0{}}", date.Day, width);
                break;
            case 'M':
                text += token.Length < NameLength
                            ? fmt::format("{:0{}}", date.Month, width)
                            : format_.Months.at(static_cast<std::size_t>(date.Month - 1));
                break;
            case 'y':
                text += token.Length < FullYearLength ? fmt::format("{:02}", date.Year % 100)
                                                      : fmt::format("{:04}", date.Year);
                break;
            default:
                text += token.Text;
        }
    }
    return Localized(text);
}

std::string RegionalDates::ShortDate(const std::string& text) const {
    const std::optional<CivilTime> date = Read(text);
    return date ? ShortDate(*date) : text;
}

std::string RegionalDates::LongTime(const CivilTime& moment) const {
    const bool halves = std::any_of(time_.begin(), time_.end(), [](const Token& token) {
        return token.Field == 'A' || token.Field == 'a';
    });
    const std::string& half = moment.Hour < HalfDay ? format_.Morning : format_.Afternoon;
    std::string text;
    for (const Token& token : time_) {
        const int width = std::min(token.Length, 2);
        switch (token.Field) {
            case 'h':
                text += fmt::format("{:0{}}",
                                    halves ? (moment.Hour + HalfDay - 1) % HalfDay + 1 : moment.Hour, width);
                break;
            case 'H':
                text += fmt::format("{:0{}}", moment.Hour, width);
                break;
            case 'm':
                text += fmt::format("{:0{}}", moment.Minute, width);
                break;
            case 's':
                text += fmt::format("{:0{}}", moment.Second, width);
                break;
            case 'A':
            case 'a':
                text += half;
                break;
            case 0:
                text += token.Text;
                break;
            default:  // P and p belong to the letter before them; nothing is finer than a second
                break;
        }
    }
    // What stood around the time zone.
    for (const char* around : {"()", "[]"}) {
        if (zone_ && text.ends_with(around)) text.resize(text.size() - 2);
    }
    return Localized(std::string(WithoutBlanks(text)));
}

std::string RegionalDates::DateAndTime(const CivilTime& moment) const {
    return ShortDate(moment) + ' ' + LongTime(moment);
}

std::string RegionalDates::Label(const CivilTime& date, mDates::Interval interval) const {
    const std::string& month = format_.Months.at(static_cast<std::size_t>(date.Month - 1));
    switch (interval) {
        case mDates::Interval::Day:
            return month + Localized(fmt::format(" {:02}", date.Day));
        case mDates::Interval::Month:
            return month + Localized(fmt::format(" {:02}", date.Year % 100));
        case mDates::Interval::Year:
            break;
    }
    return Localized(fmt::format("{:04}", date.Year));
}
