// Comma-separated values, written and read; and records that come from a file of elsewhere.
#include "engine/records/ImportedRecords.h"
#include "engine/records/Records.h"
#include "engine/records/mCareerTables.h"
#include "engine/records/mCsv.h"
#include "engine/records/mPlayers.h"

namespace {

TEST(Csv, RowsAsTheyAreReadAndWritten) {
    using Rows = std::vector<std::vector<std::string>>;
    const std::pair<const char*, Rows> rows[] = {
        {"a,b\r\nc,\r\n", {{"a", "b"}, {"c", ""}}},
        {"\"a,\"\"b\"\"\",\" c \"\n\n\"x\ny\",z", {{"a,\"b\"", " c "}, {"x\ny", "z"}}},
        {"a;b,c;d", {{"a", "b,c", "d"}}},
        {"a\tb\r\rc", {{"a", "b"}, {"c"}}},
        {"\"never closed,b\nc,d\n", {{"\"never closed,b"}, {"c", "d"}}},
        {"", {}},
    };
    for (const auto& [text, expected] : rows) {
        Rows read;
        mCsv::ForEachRow(text, mCsv::Separator(text),
                         [&](const auto& fields, auto) { read.push_back(fields); });
        EXPECT_EQ(read, expected) << text;
    }
    std::string text;
    mCsv::AppendRow(text, {"plain", "a,b", "\"q\"", " edge", "two\nlines", "", "-5"});
    EXPECT_EQ(text, "plain,\"a,b\",\"\"\"q\"\"\",\" edge\",\"two\nlines\",,-5\r\n");
}

class Import : public testing::Test {
protected:
    Import() : records_({"Ann", "Bob"}) {}

    void Put(const std::string& content) { records_.Layer.Files.Contents["/away/file"] = content; }
    /// "new there undated unreadable"
    static std::string Counts(const ImportedRecords& file, const char* player, const char* of = "") {
        const auto count = file.Preview(player, of);
        return std::to_string(count.New) + ' ' + std::to_string(count.There) + ' ' +
               std::to_string(count.Undated) + ' ' + std::to_string(file.Unreadable());
    }
    /// All records of the store as they are exported.
    static std::string Exported(const CareerFilter& filter = {}) {
        gScore->OpenAllScore();
        const Career career(gScore->Store());
        return mCareerTables::RecordsCsv(gScore->Store(), career.Records(filter), [](int) { return true; });
    }
    Records records_;
};

TEST_F(Import, WhatIsExportedIsReadBackOnce) {
    records_.AddLine("Ann", R"("2004-01-05 22:10:33","Baker's Dozen",7,5,6,-7,1)");
    records_.AddLine("Ann", R"("1/6/2004 10:00:00 AM","Klondike","007",5,6,7,0)");
    records_.AddLine("Ann", R"("1/7/2004","Klondike","12",5,6,7,0)");
    records_.AddLine("Ann", R"("some, day","Klondike",12345678901234567890,5,6,7,0)");
    records_.AddLine("Bob", R"("2004-01-05 22:10:33","Yukon",8,5,6,7,1)");
    const std::string before = records_.File("Ann");
    Put(Exported());
    EXPECT_THAT(Exported(), HasSubstr("\r\n2004-01-06 10:00:00,Ann,Klondike,007,7,5,6,Lost\r\n"));
    ImportedRecords file;
    ASSERT_TRUE(file.Read("/away/file"));
    EXPECT_THAT(file.Players(), ElementsAre("Ann", "Bob"));
    EXPECT_EQ(Counts(file, "Ann", "Ann"), "0 4 0 0");
    EXPECT_EQ(Counts(file, "Ann"), "1 4 0 0");
    EXPECT_EQ(Counts(file, "Bob", "Ann"), "4 0 1 0");
    records_.File("Bob").clear();
    EXPECT_TRUE(file.AddTo("Bob", "Ann"));
    EXPECT_EQ(Counts(file, "Bob", "Ann"), "0 4 0 0") << "not twice";
    std::string bobs = Exported({.Player = "Bob", .Gid = 0, .Days = {}});
    for (std::size_t at; (at = bobs.find(",Bob,")) != std::string::npos;) bobs.replace(at, 5, ",Ann,");
    EXPECT_EQ(bobs, Exported({.Player = "Ann", .Gid = 0, .Days = {}}));
    EXPECT_EQ(records_.File("Ann"), before);
    EXPECT_EQ(records_.Messages().back(), "4 records were added to Bob.");
}

TEST_F(Import, FilesOfOthersAreJudgedLineByLine) {
    const char* usual = R"("2004-01-05 22:10:33","Klondike",7,5,6,7,1)";
    records_.AddLine("Ann", usual);
    const std::string one = usual;
    const std::string heading = "Moves;Status;Date;Game;Game Number;Score;Seconds;More\r\n";
    const std::tuple<std::string, const char*> rows[] = {
        {one + "\r\n" + one + "\n", "0 2 0 0"},
        {R"("1/5/2004 10:10:33 PM","Klondike","7",5,6,7,1)", "0 1 0 0"},  // the same, written elsewhere
        {R"("2004-01-05 22:10:34","Klondike",7,5,6,7,1)", "1 0 0 0"},
        {one + "\n" + R"("2004-01-05 22:10:33","No such game",7,5,6,7,1)" + "\n\"torn", "0 1 0 2"},
        {"\xEF\xBB\xBF" + heading + "6;Won;2004-01-05T22:10:33;Klondike;7;7;5;x\r\n", "0 1 0 0"},
        {heading + "6;Won;2004-01-05 22:10:34;Klondike;7;7;5\n6;Won;;Klondike;7;7;5\n", "1 0 0 1"},
        {heading +
             "6;Won;2004-01-05 22:10:34;Klondike;7;7;5\n6;Draw;2004-01-05 22:10:33;Klondike;7;7;5\n"
             "40000;Won;2004-01-05 22:10:33;Klondike;7;7;5\n6;Won;2004-01-05 22:10:33;Klondike;7;7;1.5\n"
             "6;Won;2004-01-05 22:10:33;Klondike\n",
         "1 0 0 4"},
    };
    for (const auto& [content, counts] : rows) {
        Put(content);
        ImportedRecords file;
        ASSERT_TRUE(file.Read("/away/file")) << content;
        EXPECT_EQ(Counts(file, "Ann"), counts) << content;
    }
    for (const char* none : {"", "Hello\r\n", "Date,Game\r\n2004-01-05,Klondike\r\n"}) {
        Put(none);
        EXPECT_FALSE(ImportedRecords().Read("/away/file")) << none;
    }
    EXPECT_FALSE(ImportedRecords().Read("/away/missing"));
}

TEST_F(Import, AFaultChangesNothing) {
    Put(R"("2004-01-05 22:10:33","Klondike",7,5,6,7,1)");
    ImportedRecords file;
    ASSERT_TRUE(file.Read("/away/file"));
    const ShownPlayer ann("Ann", PlayerList::Read().Version());
    ASSERT_TRUE(mPlayers::Enter("Ann", "Anna"));  // by a second program, while the dialog is open
    const std::pair<const char*, std::function<void(bool)>> faults[] = {
        {"No record was added to Ann: Another program is busy with the players",
         [&](bool on) { records_.Layer.Settings.Busy = on; }},
        {"No record was added to Anna: disk full",
         [&](bool on) { records_.Layer.Files.Fault = on ? FileError("disk full") : std::nullopt; }},
    };
    for (const auto& [message, fail] : faults) {
        fail(true);
        EXPECT_FALSE(file.AddTo(ann, ""));
        fail(false);
        EXPECT_EQ(records_.Messages().back(), message);
        EXPECT_FALSE(records_.HasFile("Anna"));
    }
    EXPECT_TRUE(file.AddTo(ann, ""));
    EXPECT_TRUE(records_.HasFile("Anna")) << "the same player, by another name";
    EXPECT_FALSE(records_.HasFile("Ann"));
    mPlayers::Delete("Bob");
    EXPECT_FALSE(file.AddTo("Carl", "")) << "who was never there";
}

TEST_F(Import, AListIsNeverExportedOverTheProgramsFiles) {
    records_.AddLine("Ann", "");
    records_.Layer.Forms.FirstSaveFiles = {cScore::FileName("Ann"), cScore::FavFileName()};
    records_.Layer.Forms.SaveFile = "/away/list.csv";
    mCareerTables::Export("Games", [](const auto&) { return std::string("a,b\r\n"); });
    EXPECT_EQ(records_.Layer.Files.Contents["/away/list.csv"], "a,b\r\n");
    EXPECT_EQ(records_.File("Ann"), "\r\n");
    EXPECT_THAT(records_.Messages(),
                ElementsAre(HasSubstr("belongs to the program"), HasSubstr("belongs to the program"),
                            "Statistics Successfully Exported to /away/list.csv"));
    records_.Layer.Forms.CancelAt = 50;
    records_.Layer.Forms.SaveFile = "/away/other.csv";
    mCareerTables::Export("Records", [](const auto& goOn) { return goOn(50) ? "all" : "some"; });
    EXPECT_FALSE(records_.Layer.Files.Exists("/away/other.csv"));
}

}  // namespace
