// The catalogue: groups, numbers and names.
#include <array>
#include <fstream>
#include <iterator>
#include <regex>

#include "support/EngineTest.h"

namespace {

struct Row {
    const char* Group;
    int Games;
    int Originals;
};

// In the order of the groups' numbers.
// clang-format off
constexpr std::array<Row, 11> families = {{
    {"Baker's Dozen",      20, 15},
    {"Beleaguered Castle", 25, 16},
    {"Canfield",           20, 10},
    {"Fan",                15,  8},
    {"Forty Thieves",      45,  9},
    {"Four Seasons",       10,  5},
    {"Freecell",           65, 51},
    {"Klondike",           60, 39},
    {"Sir Tommy",          10,  5},
    {"Spider",             60, 50},
    {"Yukon",              20, 17},
}};
// clang-format on

class Catalogue : public testing::Test {
    const Engine engine_;
};

TEST_F(Catalogue, GroupsAndNumbersFollowTheListOfFamilies) {
    int SiD = 0;
    for (int group = 0; group < gData->TotalGroups(); ++group) {
        const Row& family = families.at(static_cast<std::size_t>(group));
        int originals = 0;
        EXPECT_EQ(gData->GroupfromGiD(group + 1), family.Group);
        // A family of another size would shift all that follow.
        ASSERT_TRUE(gData->GroupfromSiD(SiD + family.Games) == family.Group &&
                    (SiD + family.Games == gData->TotalGames() ||
                     gData->GroupfromSiD(SiD + family.Games + 1) != family.Group))
            << family.Group << " has no longer " << family.Games << " games, as `families` says";
        for (int Mid = 1; Mid <= family.Games; ++Mid) {
            ++SiD;
            EXPECT_EQ(gData->GroupfromSiD(SiD), family.Group);
            EXPECT_EQ(gData->GetGameID(gData->GetGame(SiD)), (group + 1) * 100 + Mid)
                << "a name stands twice";
            originals += gData->IsOriginal(SiD) ? 1 : 0;
        }
        EXPECT_EQ(originals, family.Originals) << family.Group;
    }
    EXPECT_EQ(SiD, gData->TotalGames()) << "the sum of the numbers in `families`";
    EXPECT_EQ(gData->GetGameID("Will o' the Wisp"), 1059);
    EXPECT_EQ(gData->GetGameID("Tam o 'Shanter"), 909);
    for (const char* unknown : {"klondike", "KLONDIKE", "Klondike ", "", "Will o the Wisp"}) {
        EXPECT_EQ(gData->GetGameID(unknown), 0) << '"' << unknown << '"';
    }
}

// Texts for readers that name the number of games.
constexpr const char* proseFiles[] = {"README.md",
                                      "docs/architecture.md",
                                      "docs/performance.md",
                                      "docs/reliability.md",
                                      "packaging/CMakeLists.txt",
                                      "packaging/org.kelmor.Tarnival.metainfo.xml",
                                      "packaging/tarnival.6",
                                      "packaging/tarnival.desktop.in"};

TEST_F(Catalogue, ProseNamesTheNumberOfGames) {
    static const std::regex count(R"((^|[^,\d])(\d+) (patience|games|rows of numbers)\b)");
    for (const char* name : proseFiles) {
        std::ifstream file(std::string(TARNIVAL_SOURCES) + name);
        const std::string text{std::istreambuf_iterator<char>(file), {}};
        int found = 0;
        for (std::sregex_iterator at(text.begin(), text.end(), count), end; at != end; ++at, ++found) {
            EXPECT_EQ(at->str(2), std::to_string(gData->TotalGames())) << name << ": \"" << at->str(0) << '"';
        }
        EXPECT_GT(found, 0) << name << " names no number of games";
    }
}

}  // namespace
