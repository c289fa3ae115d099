// Lines of the score and favourites files: every form that is read, every fault that is not, and texts
// in other encodings.
#include "engine/records/Records.h"
#include "engine/records/mScoreFile.h"
#include "engine/state/mText.h"

namespace {

struct LineRow {
    const char* Says;
    std::string Line;
    bool Reads = true;
};

TEST(ScoreLine, IsReadOrLeftOutAsAWhole) {
    const std::vector<LineRow> rows = {
        {"a drawn number", R"("2004-01-05 22:10:33","Klondike",123,60,45,-7,0)"},
        {"a typed number", R"("2004-01-05 22:10:33","Klondike","123",60,45,100,1)"},
        {"a comma inside a text", R"("1/5/2004, 10 PM","A, B",1,2,3,4,1)"},
        {"blanks around the commas", R"("d" , "g", 1 ,2, 3,4 ,1 )"},
        {"a typed text that is no number", R"("d","g","x",2,3,4,1)"},
        {"the ends of 32 and 16 bits", R"("d","g",1,2147483647,32767,-32768,1)"},
        {"a negative time", R"("d","g",1,-2147483648,-32768,32767,1)"},

        {"cut off in the date", R"("2004-01-0)", false},
        {"cut off in the score", R"("2004-01-05 22:10:33","Klondike",123,60,45,10)", false},
        {"cut off before the result", R"("2004-01-05 22:10:33","Klondike",123,60,45,100,)", false},
        {"a torn line and a whole one", R"("2004-01-0"2004-01-05 22:10:33","Klondike",123,60,45,100,1)",
         false},
        {"eight fields", R"("d","g",1,2,3,4,1,1)", false},
        {"a number that is none", R"("d","g",12x,2,3,4,1)", false},
        {"a time beyond 32 bits", R"("d","g",1,2147483648,3,4,1)", false},
        {"moves beyond 16 bits", R"("d","g",1,2,32768,4,1)", false},
        {"a score beyond 16 bits", R"("d","g",1,2,3,-32769,1)", false},
        {"a score beyond 64 bits", R"("d","g",1,2,3,99999999999999999999,1)", false},
        {"a result beyond 16 bits", R"("d","g",1,2,3,4,32768)", false},
        {"text behind a quote", R"("d"x,"g",1,2,3,4,1)", false},
        {"no record at all", "Score Board", false},
    };
    for (const LineRow& row : rows) {
        SCOPED_TRACE(row.Says);
        mScoreFile::ScoreFields fields;
        EXPECT_EQ(mScoreFile::ParseScore(row.Line, fields), row.Reads);
    }
    mScoreFile::ScoreFields fields;
    ASSERT_TRUE(mScoreFile::ParseScore(R"("1/5/2004, 10 PM","A, B","007",2,3,-4,1)", fields));
    EXPECT_EQ(fields.Date, "1/5/2004, 10 PM");
    EXPECT_EQ(fields.gName, "A, B");
    EXPECT_TRUE(fields.GameNo.Quoted);
    EXPECT_EQ(fields.GameNo.Text, "007");
    EXPECT_EQ((std::vector<int>{fields.Time, fields.Moves, fields.Score, fields.Won}),
              (std::vector<int>{2, 3, -4, 1}));
    const tScore typed{.Date = "d", .gName = "g", .GameNo = std::string("1\",\"2\r\n3"), .Player = {}};
    EXPECT_EQ(mScoreFile::ScoreLine(typed), "\"d\",\"g\",\"1','2  3\",0,0,0,0");
}

TEST(ScoreLine, ComesBackFromTheStoreAsItWasWritten) {
    std::vector<GameNumber> numbers = {0.0, 999999999999999.0, -5.0, 2.5};
    for (const char* typed : {"5", "0", "007", " 7 ", "-3", "9999999999999999"}) numbers.emplace_back(typed);
    const char* dates[] = {
        "2004-02-29 23:59:59", "1/5/2004 10:22:33 PM", "2004-02-30 00:00:00", "2004-01-05", "", "yesterday"};
    Records records;
    std::vector<tScore> written;
    for (const GameNumber& number : numbers) {
        for (const char* date : dates) {
            written.push_back({date, "Baker's Dozen", number, 3600, 120, -32768, 1, "Player1"});
            records.AddLine("Player1", mScoreFile::ScoreLine(written.back()));
        }
    }
    gScore->OpenAllScore();
    ASSERT_EQ(gScore->ScoreTop(), static_cast<int>(written.size()));
    for (std::size_t i = 0; i < written.size(); ++i) {
        EXPECT_EQ(gScore->GetScore(static_cast<int>(i) + 1), written[i]) << mScoreFile::ScoreLine(written[i]);
    }
}

TEST(FavLine, IsReadOrLeftOut) {
    for (const char* line : {R"("Klondike",123)", R"("Klondike","123")"}) {
        const auto favourite = mScoreFile::ParseFav(line);
        ASSERT_TRUE(favourite.has_value()) << line;
        EXPECT_EQ(mScoreFile::FavLine(*favourite), line);
    }
    for (const char* line :
         {R"("Klond)", R"("Klondike")", R"("Klondike",)", R"("Klondike","12)", R"("Klondike",1,2)"})
        EXPECT_FALSE(mScoreFile::ParseFav(line).has_value()) << line;
}

TEST(Lines, EndInAnyWay) {
    const auto lines = [](const std::string& content) {
        std::vector<std::string> read;
        mScoreFile::ForEachLine(content, [&](std::string_view line) {
            read.emplace_back(line);
            return true;
        });
        return read;
    };
    EXPECT_THAT(lines("a\r\nb\nc"), ElementsAre("a", "b", "c"));
    EXPECT_THAT(lines("a\rb\r\rc\r"), ElementsAre("a", "b", "c"));
    EXPECT_THAT(lines("a\rb\r\nc\nd\r"), ElementsAre("a", "b", "c", "d")) << "each in its own way";
    EXPECT_THAT(lines("\r\n\n  \r\na\r\r\n"), ElementsAre("a")) << "an empty line is no fault";
    EXPECT_THAT(lines(""), IsEmpty());
    EXPECT_THAT(lines("\xEF\xBB\xBF"
                      "a\r\n"),
                ElementsAre("a"))
        << "the mark of UTF-8";
    // Line by line: an old program's lines stand beside those of a new one.
    EXPECT_THAT(lines("Zo\xEB \x80\r\nZo\xC3\xAB\r\n\x81\r\n"), ElementsAre("Zoë €", "Zoë", "\xC2\x81"));
}

TEST(Text, OnlyValidUtf8IsTakenAsSuch) {
    for (const char* text : {"", "abc", "é", "€", "\xF0\x9F\x83\x8F", "\xED\x9F\xBF", "\xF4\x8F\xBF\xBF"}) {
        EXPECT_TRUE(mText::IsUtf8(text)) << text;
    }
    for (const char* text : {"\x80", "\xC0\x80", "\xC3", "\xE2\x82", "\xE0\x80\x80", "\xED\xA0\x80",
                             "\xF0\x80\x80\x80", "\xF4\x90\x80\x80", "\xF5\x80\x80\x80", "\xC3\xC3"}) {
        EXPECT_FALSE(mText::IsUtf8(text));
        EXPECT_TRUE(mText::IsUtf8(mText::FromFile(text)));
    }
}

TEST(Text, HasTheCharactersThatTheEyeCounts) {
    const std::tuple<const char*, int, const char*> rows[] = {
        // text, characters, the first three
        {"", 0, ""},
        {"Zo", 2, "Zo"},
        {"Zoë €", 5, "Zoë"},
        {"Zoe\u0308 €", 5, "Zoe\u0308"},                                      // the accent stands alone
        {"\u200F٥\u200F/\u200F٣\u200F/٢", 5, "\u200F٥\u200F/\u200F٣\u200F"},  // marks of direction
        {"ab\u200F", 2, "ab\u200F"},
        {"\U0001F1E9\U0001F1EA\U0001F1EB\U0001F1F7xy", 4, "\U0001F1E9\U0001F1EA\U0001F1EB\U0001F1F7x"},
        {"\U0001F469\u200D\U0001F467\U0001F44D\U0001F3FDab", 4,
         "\U0001F469\u200D\U0001F467\U0001F44D\U0001F3FDa"},
        {"\xFF\xFEz", 3, "\xFF\xFEz"},
    };
    for (const auto& [text, length, first] : rows) {
        EXPECT_EQ(mText::Length(text), length) << text;
        EXPECT_EQ(mText::First(text, 3), first) << text;
    }
}

}  // namespace
