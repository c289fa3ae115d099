// The export, against a report written out by hand.
#include <optional>

#include "engine/records/Records.h"

namespace {

// Zones begin at the columns 0, 14, 28 and so on; a number keeps one column for its sign.
const char* const Head =
    "Tarnival 2004 11.0 Score Board\r\n"
    " \r\n"
    "*************************\r\n"
    " \r\n"
    "Created By    Ann\r\n"
    "Created Date  2/1/2004 12:00:00 PM\r\n"
    " \r\n"
    "----------------------------------\r\n"
    " \r\n"
    "General Statistics\r\n"
    "------------------\r\n"
    "Played        Won           Lost          Time          Moves         Score\r\n"
    " 3             2             1            101:01:31      165          -8 \r\n"
    " \r\n"
    " \r\n"
    "Player Statistics\r\n"
    "-----------------\r\n"
    "Player        Played        Won           Lost          Time          Moves         Score\r\n"
    "Ann            2             1             1            101:00:01      105          -48 \r\n"
    "Bartholomew Zoë              1             1             0            0:01:30        60            40 "
    "\r\n"
    "Fourteen chars               0             0             0            0:00:00        0             0 "
    "\r\n"
    " \r\n"
    " \r\n"
    "Games Statistics\r\n"
    "----------------\r\n"
    "Game                     Played           Won           Time          Moves         Score\r\n";
const char* const NoGames =  //
    " 0                0            0:00:00        0             0 ";
const char* const Klondike =
    "Klondike                  3                2            101:01:31      165          -8 \r\n";
const char* const Tail =
    " \r\n"
    " \r\n"
    "Full Statistics\r\n"
    "--------------\r\n"
    "Date          Game          Player        Status        Score         Moves         Time          Game "
    "No\r\n"
    "1/5/2004      Klondike      Ann           Lost          -49            100          101:00:00      123 "
    "\r\n"
    "the day befo  Klondike      Ann           Won            1             5            0:00:01     007\r\n"
    "1/6/2004      Klondike      Bartholomew   Won            40            60           0:01:30     -5 \r\n";

std::string Expected() {
    std::string text = Head;
    for (int SiD = 1; SiD <= gData->TotalGames(); ++SiD) {
        std::string name = gData->GetGame(SiD);
        if (name == "Klondike") {
            text += Klondike;
            continue;
        }
        name.resize(25, ' ');
        text += name + NoGames + "\r\n";
    }
    return text + Tail;
}

class Export : public testing::Test {
protected:
    Export() {
        records_.SetClock("2004-02-01 12:00:00");
        records_.AddLine("Ann", R"("2004-01-05 22:10:33","Klondike",123,363600,100,-49,0)");
        records_.AddLine("Ann", R"("the day before","Klondike","007",1,5,1,1)");
        records_.AddLine("Bartholomew Zoë", R"("1/6/04 10:00:00 AM","Klondike",-5,90,60,40,1)");
        records_.Layer.Forms.SaveFile = Target;
    }
    [[nodiscard]] std::string Content() { return records_.Layer.Files.Contents[Target]; }

    static constexpr const char* Target = "/home/ann/Scoreboard";
    Records records_{{"Ann", "Bartholomew Zoë", "Fourteen chars"}};
};

TEST_F(Export, IsTheReportByteForByteAndLeavesTheStoreAsItWas) {
    gScore->ExportStat();
    EXPECT_THAT(records_.Layer.Forms.SaveQuestions, ElementsAre("Scoreboard|Text File (*.txt) |*.txt"));
    EXPECT_EQ(Content(), Expected());
    EXPECT_THAT(records_.Messages(), ElementsAre("Statistics Successfully Exported to /home/ann/Scoreboard"));
    EXPECT_EQ(records_.Layer.Forms.LastPercent, 100) << "the progress is taken away";
    EXPECT_EQ(gScore->ScoreTop(), 0) << "the store was closed before";
    gScore->OpenAllScore();
    gScore->ExportStat();
    EXPECT_EQ(gScore->ScoreTop(), 3) << "a view is open";
    EXPECT_EQ(Content(), Expected());
}

TEST_F(Export, EndsWithoutATraceWhereTheUserCancels) {
    for (const auto& none : {std::optional<std::string>{}, std::optional<std::string>{""}}) {
        records_.Layer.Forms.SaveFile = none;
        gScore->ExportStat();
    }
    records_.Layer.Forms.SaveFile = Target;
    records_.Layer.Forms.CancelAt = 1;
    gScore->ExportStat();
    EXPECT_THAT(records_.Messages(), IsEmpty());
    EXPECT_FALSE(records_.Layer.Files.Exists(Target));
    records_.Layer.Forms.CancelAt = 0;
    records_.Layer.Files.Contents[Target] = "old";
    gScore->ExportStat();
    EXPECT_EQ(Content(), "old");
}

TEST_F(Export, NeverTakesThePlaceOfWhatIsTheProgramsOrProtected) {
    MemoryFiles& files = records_.Layer.Files;
    files.Protected.insert("/home/ann/closed");
    files.Contents["/home/ann/closed"] = "old";
    files.Contents[gData->AppDir()];
    const std::vector<std::string> refused = {cScore::FileName("Ann"), cScore::FileName("Nobody"),
                                              cScore::FavFileName(), "/home/ann/closed"};
    records_.Layer.Forms.FirstSaveFiles = refused;
    const std::string before = records_.File("Ann");
    gScore->ExportStat();
    ASSERT_EQ(records_.Messages().size(), refused.size() + 1);
    EXPECT_EQ(records_.Messages()[0],
              "The statistics are not written to " + refused[0] + ": It belongs to the program itself");
    EXPECT_EQ(records_.Messages()[3],
              "The statistics are not written to /home/ann/closed: It is write-protected");
    EXPECT_EQ(records_.Layer.Forms.SaveQuestions.size(), refused.size() + 1) << "the dialog comes again";
    EXPECT_EQ(records_.File("Ann"), before);
    EXPECT_EQ(files.Contents["/home/ann/closed"], "old");
    EXPECT_FALSE(files.Exists(cScore::FileName("Nobody")) || files.Exists(cScore::FavFileName()));
    EXPECT_EQ(Content(), Expected());
}

TEST_F(Export, AFileThatCannotBeWrittenIsNamed) {
    records_.Layer.Files.Contents[Target] = "old";
    records_.Layer.Files.Fault = "No space left on device";
    gScore->ExportStat();
    records_.Layer.Files.Fault.reset();
    EXPECT_THAT(records_.Messages(),
                ElementsAre("The statistics could not be written to /home/ann/Scoreboard: "
                            "No space left on device"));
    EXPECT_EQ(Content(), "old");
}

}  // namespace
