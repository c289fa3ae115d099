// Dates: which texts are dates in which region, how they are shown, and arithmetic at the edges of
// months and years.
#include <optional>
#include <string>
#include <tuple>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "engine/records/RegionalDates.h"
#include "engine/records/mDates.h"

namespace {

using mDates::Interval;

const RegionalFormat american;
const RegionalFormat american2{.ShortDate = "M/d/yy", .LongTime = "h:mm:ss AP t"};
const RegionalFormat british{.ShortDate = "dd/MM/yyyy", .LongTime = "HH:mm:ss t"};
const RegionalFormat german{.ShortDate = "dd.MM.yy", .LongTime = "HH:mm:ss t"};
const RegionalFormat swedish{.ShortDate = "yyyy-MM-dd", .LongTime = "HH:mm:ss"};
const RegionalFormat named{.ShortDate = "d MMM yyyy", .LongTime = "HH.mm.ss"};
const RegionalFormat hungarian{.ShortDate = "yyyy. MM. dd.", .LongTime = "H:mm:ss"};
const RegionalFormat weekday{.ShortDate = "ddd d/M/yyyy", .LongTime = "HH:mm:ss"};
const RegionalFormat chakma{.ShortDate = "d/M/yyyy", .LongTime = "HH:mm:ss", .ZeroDigit = U'\U00011136'};
const RegionalFormat finnish{.ShortDate = "d.M.yyyy", .LongTime = "H.mm.ss"};
const RegionalFormat canadian{.ShortDate = "yyyy-MM-dd", .LongTime = "HH 'h' mm 'min' ss 's'"};
const RegionalFormat bracketed{.ShortDate = "dd/MM/yyyy", .LongTime = "h:mm:ss (t)"};
const RegionalFormat korean{
    .ShortDate = "yy. M. d.", .LongTime = "AP h:mm:ss", .Morning = "오전", .Afternoon = "오후"};
const RegionalFormat bulgarian{.ShortDate = "d.MM.yy 'г'.", .LongTime = "H:mm:ss 'ч'."};
const RegionalFormat arabic{.ShortDate = "d/M/yyyy",
                            .LongTime = "h:mm:ss AP",
                            .Morning = "ص",
                            .Afternoon = "م",
                            .ZeroDigit = U'\u0660'};

TEST(RegionalDates, ReadWhatSuchAProgramWrote) {
    struct Row {
        const RegionalFormat& Format;
        const char* Text;
        const char* Meaning = nullptr;  // none: no date
    };
    const Row rows[] = {
        {german, "2004-02-29 23:59:58", "2004-02-29 23:59:58"},
        {german, "2003-02-29 23:59:58"},
        {german, "2004-13-01 00:00:00"},
        {german, "2004-12-01 10:00"},

        {american, "1/5/2004 10:22:33 PM", "2004-01-05 22:22:33"},
        {american, "12/31/2004 12:00:01 AM", "2004-12-31 00:00:01"},
        {american, "01/05/2004 1:02:03 am", "2004-01-05 01:02:03"},
        {american, "1/5/2004", "2004-01-05 00:00:00"},
        {american, "1/5/04 22:22:33", "2004-01-05 22:22:33"},
        {american, "1/5/29 1:00:00 AM", "2029-01-05 01:00:00"},
        {american, "1/5/30 1:00:00 AM", "1930-01-05 01:00:00"},
        {american2, "1/5/2004 10:22:33 PM", "2004-01-05 22:22:33"},
        {american2, "1/5/04 10:22:33\u202FPM", "2004-01-05 22:22:33"},
        {american2, "1/5/04 10:22:33 PM CET", "2004-01-05 22:22:33"},
        {british, "05/01/2004 22:22:33", "2004-01-05 22:22:33"},
        {german, "05.01.04 22:22:33", "2004-01-05 22:22:33"},
        {german, "05/01/2004 22:22:33", "2004-01-05 22:22:33"},
        {swedish, "04-01-05 22:22:33", "2004-01-05 22:22:33"},
        {named, "5 Jan 2004 22.22.33", "2004-01-05 22:22:33"},
        {named, "5 DEC 04 22.22.33", "2004-12-05 22:22:33"},
        {hungarian, "2004. 01. 05. 22:22:33", "2004-01-05 22:22:33"},
        {weekday, "Mon 5/1/2004 22:22:33", "2004-01-05 22:22:33"},
        {finnish, "5.1.2004 22.22.33", "2004-01-05 22:22:33"},
        {canadian, "2004-01-05 22 h 22 min 33 s", "2004-01-05 22:22:33"},
        {korean, "2004. 1. 5. 오전 12:22:33", "2004-01-05 00:22:33"},
        {bulgarian, "5.01.04 г. 22:22:33", "2004-01-05 22:22:33"},
        {arabic, "٥/١/٢٠٠٤ ١٠:٢٢:٣٣ م", "2004-01-05 22:22:33"},
        {arabic, "5/1/2004 10:22:33 PM", "2004-01-05 22:22:33"},

        {american, "13/5/2004 10:22:33 PM"},
        {american, "2/30/2004 10:22:33 PM"},
        {american, "1/5"},
        {american, "1/5/200 10:22:33 PM"},
        {american, "1/5/2004 10:22:33 PM x"},
        {american, "1/5/200410:22:33"},
        {german, "05.01.04 22:61:33"},
        {named, "5 Foo 2004 22.22.33"},
    };
    for (const Row& row : rows) {
        const auto time = RegionalDates(row.Format).Read(row.Text);
        ASSERT_EQ(time.has_value(), row.Meaning != nullptr) << row.Format.ShortDate << ": " << row.Text;
        if (time) {
            EXPECT_EQ(mDates::Text(*time), row.Meaning) << row.Format.ShortDate << ": " << row.Text;
        }
    }
}

TEST(RegionalDates, ShowDatesInTheWayOfTheRegion) {
    const CivilTime date{.Year = 2004, .Month = 3, .Day = 5};
    const std::pair<const RegionalFormat&, const char*> rows[] = {
        {american, "3/5/2004"},
        {american2, "3/5/04"},
        {british, "05/03/2004"},
        {german, "05.03.04"},
        {named, "5 Mar 2004"},
        {hungarian, "2004. 03. 05."},
        {bulgarian, "5.03.04 г."},
        {arabic, "٥/٣/٢٠٠٤"},
        {chakma, "\U0001113B/\U00011139/\U00011138\U00011136\U00011136\U0001113A"},
    };
    for (const auto& [format, text] : rows) EXPECT_EQ(RegionalDates(format).ShortDate(date), text);
    const std::tuple<const RegionalFormat&, int, const char*> times[] = {
        {american, 0, "3/5/2004 12:07:09 AM"},        {american, 12, "3/5/2004 12:07:09 PM"},
        {american2, 23, "3/5/04 11:07:09 PM"},        {british, 7, "05/03/2004 07:07:09"},
        {canadian, 7, "2004-03-05 07 h 07 min 09 s"}, {korean, 13, "04. 3. 5. 오후 1:07:09"},
        {arabic, 13, "٥/٣/٢٠٠٤ ١:٠٧:٠٩ م"},           {bracketed, 7, "05/03/2004 7:07:09"},
    };
    for (const auto& [format, hour, text] : times) {
        const CivilTime moment{.Year = 2004, .Month = 3, .Day = 5, .Hour = hour, .Minute = 7, .Second = 9};
        EXPECT_EQ(RegionalDates(format).DateAndTime(moment), text);
        EXPECT_EQ(RegionalDates(format).Read(text), moment) << "what is written can be read";
    }
    const RegionalDates dates(american);
    EXPECT_EQ(dates.Label(date, Interval::Day), "Mar 05");
    EXPECT_EQ(dates.Label(date, Interval::Month), "Mar 04");
    EXPECT_EQ(dates.Label(date, Interval::Year), "2004");
    EXPECT_EQ(RegionalDates(arabic).Label(date, Interval::Day), "Mar ٠٥");
    EXPECT_EQ(dates.ShortDate(std::string("2004-12-31 23:59:59")), "12/31/2004");
    EXPECT_EQ(dates.ShortDate(std::string("some day")), "some day");
}

TEST(Dates, MoveByCalendarUnits) {
    const std::tuple<const char*, int, Interval, const char*> rows[] = {
        {"2004-03-01 12:00:00", -1, Interval::Day, "2004-02-29 12:00:00"},
        {"2003-03-01 12:00:00", -1, Interval::Day, "2003-02-28 12:00:00"},
        {"2004-12-31 23:59:59", 1, Interval::Day, "2005-01-01 23:59:59"},
        {"2004-03-31 12:00:00", -1, Interval::Month, "2004-02-29 12:00:00"},
        {"2004-05-31 12:00:00", -1, Interval::Month, "2004-04-30 12:00:00"},
        {"2004-01-31 12:00:00", -14, Interval::Month, "2002-11-30 12:00:00"},
        {"2004-12-15 12:00:00", 1, Interval::Month, "2005-01-15 12:00:00"},
        {"2004-02-29 12:00:00", -1, Interval::Year, "2003-02-28 12:00:00"},
        {"2004-02-29 12:00:00", -4, Interval::Year, "2000-02-29 12:00:00"},
    };
    for (const auto& [from, count, unit, to] : rows) {
        EXPECT_EQ(mDates::Text(mDates::Moved(*mDates::ParseFixed(from), count, unit)), to) << from << count;
    }
}

}  // namespace
