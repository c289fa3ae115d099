// The text driver: every command, and faults that must change nothing. The program itself is used by the
// tests of whole games, through its pipe.
#include <algorithm>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include <nlohmann/json.hpp>

#include "engine/state/cData.h"
#include "support/Expect.h"
#include "tools/Lab.h"

namespace {

using Json = nlohmann::ordered_json;

class LabTest : public testing::Test {
protected:
    Json Ask(const std::string& line) {
        const std::string answer = lab_.Answer(line);
        EXPECT_EQ(answer.find('\n'), std::string::npos);
        return Json::parse(answer);
    }
    static Json Without(Json state, const char* key) {
        state.erase(key);
        return state;
    }
    static std::string Start(std::string_view game, const std::string& number) {
        return "start \"" + std::string(game) + "\" " + number;
    }
    Lab lab_;
};

TEST_F(LabTest, EveryCommandAnswers) {
    for (const char* name : {"Klondike", "Giant", "Stripped Klondike"}) {
        SCOPED_TRACE(name);
        const Json defined = Ask("define \"" + std::string(name) + "\"")["define"];
        const Json started = Ask(Start(name, "17"));
        EXPECT_EQ(started["name"], name);
        EXPECT_EQ(started["number"], 17);
        EXPECT_EQ(Ask("state"), Without(started, "draws"));
        std::set<int> values;
        for (const Json& piles : started["cells"]) {
            for (const Json& pile : piles) {
                for (const Json& card : pile) values.insert(card.at(1).get<int>());
            }
        }
        EXPECT_EQ(values.size(), defined["TotalCards"].get<std::size_t>());

        for (const char* command : {"press 3", "drag 4 4000 3000", "redeal"}) {
            EXPECT_FALSE(Ask(command).contains("error")) << command;
        }
        EXPECT_EQ(Ask("undoall")["trans"], 0);
        for (const char* command : {"redoall 0", "undo", "redo 7"}) Ask(command);
        const Json again = Ask("state");
        EXPECT_EQ(again["trans"], again["maxtrans"]);
        EXPECT_EQ(Ask("log")["log"].size(), again["maxtrans"].get<std::size_t>());
        EXPECT_EQ(Ask("autoplay")["autoplay"], 1 - again["autoplay"].get<int>());
        Ask("autoplay");
        const Json ticked = Ask("tick 61");
        EXPECT_EQ(ticked["time"], 61);
        EXPECT_EQ(ticked["status"][1], "Time :0:01:01");
        const Json closed = Ask("close");
        EXPECT_FALSE(closed["running"]);
        EXPECT_EQ(closed["session"].size(), ticked["session"].size() + 1);
    }
    EXPECT_EQ(Ask("games")["games"].size(), static_cast<std::size_t>(gData->TotalGames()));
}

TEST_F(LabTest, FaultsChangeNothing) {
    const char* withoutGame[] = {"press 0", "drag 0 1 1", "redeal",  "undo",
                                 "redo",    "undoall",    "redoall", "close"};
    for (const char* line : withoutGame) EXPECT_TRUE(Ask(line).contains("error")) << line;
    Ask(Start("Klondike", "3"));
    Ask("tick 5");
    const Json before = Ask("state");
    std::istringstream faulty(
        "nonsense\nState\ngames 1\nstate 1\ndefine\ndefine Klondike\ndefine \"klondike\"\n"
        "define 3\nstart \"Klondike\"\nstart \"Klondike\" 1 2\nstart \"No game\" 1\n"
        "start \"Klondike\" \"x\"\nstart \"Klondike\" null\nstart \"Klondike\" 1e999\n"
        "start \"Klondike\" \"\"\nstart 1 1\npress\npress 52\npress -1\npress 104\npress 1.0\n"
        "press \"1\"\npress 18446744073709551615\npress 4294967296\ndrag 1\ndrag 1 2\n"
        "drag 1 2 x\ndrag 1 40000 0\ndrag 1 0 -40000\ndrag 60 0 0\nundo -1\nundo 1 2\nundo 1e3\n"
        "startdeck \"Klondike\"\nstartdeck \"Klondike\" 5\nstartdeck \"Klondike\" [0,1,2]\n"
        "redo \"1\"\nundoall 40000\ntick\ntick -1\ntick \"1\"\ntick 1e300\nlog 1\nhistory 1\n"
        "autoplay 1\nclose 1\nredeal 1\npress {\npress [1\n\"state\"\nstart \"Klondike 1\n"
        "\xff\xfe\npress \xff");
    for (std::string line; std::getline(faulty, line);) {
        const Json answer = Ask(line);
        EXPECT_TRUE(answer.size() == 1 && answer.contains("error")) << line;
        EXPECT_EQ(Ask("state"), before) << line;
    }
    EXPECT_FALSE(Ask("  state \r").contains("error"));
    EXPECT_TRUE(Lab::IsBlank(" \t\r"));
    EXPECT_FALSE(Lab::IsBlank("x"));
}

// The values of all cards by their numbers, as a state shows them.
std::vector<int> DeckOf(const Json& state) {
    constexpr std::size_t MostCards = 104;
    std::vector<int> deck(MostCards, -1);
    for (const Json& piles : state["cells"]) {
        for (const Json& pile : piles) {
            for (const Json& card : pile) deck.at(card.at(0).get<std::size_t>()) = card.at(1).get<int>();
        }
    }
    deck.erase(std::find(deck.begin(), deck.end(), -1), deck.end());
    return deck;
}

TEST_F(LabTest, AWholeDeckIsDealtAsItIsGiven) {
    const auto startDeck = [this](std::string_view game, const std::vector<int>& deck) {
        return Ask("startdeck \"" + std::string(game) + "\" " + Json(deck).dump());
    };
    for (const char* name : {"Klondike", "Giant", "Stripped Klondike"}) {
        SCOPED_TRACE(name);
        const Json dealt = Ask(Start(name, "5"));
        std::vector<int> deck = DeckOf(dealt);
        const Json given = startDeck(name, deck);
        EXPECT_EQ(given["cells"], dealt["cells"]);
        EXPECT_EQ(given["number"], 0);
        EXPECT_EQ(given["draws"], Json::array());
        EXPECT_TRUE(Ask("startdeck \"" + std::string(name) + "\" [ 0, 1 ]").contains("error"));
        deck.front() = deck.back();
        EXPECT_THAT(startDeck(name, deck)["error"].get<std::string>(), HasSubstr("once"));
        EXPECT_EQ(Ask("state"), Without(given, "draws"));
    }
    // This deal draws a pile for each card: the same piles whatever the deck, those of the number 0.
    const std::vector<int> deck = DeckOf(Ask(Start("See-Saw Spider", "5")));
    const Json given = startDeck("See-Saw Spider", deck);
    EXPECT_EQ(DeckOf(given), deck);
    EXPECT_EQ(given["draws"], Ask(Start("See-Saw Spider", "0"))["draws"]);
}

TEST_F(LabTest, DragMovesExactlyAndPressPicks) {
    Ask("autoplay");
    const Json start = Ask(Start("Klondike", "5"));
    // The last pile's top card, and one under it, which is closed.
    const Json pile = start["cells"][0][6];
    const std::string top = pile.back()[0].dump();
    const std::string under = pile[2][0].dump();
    EXPECT_EQ(Ask("press " + top)["picked"], true);
    EXPECT_EQ(Ask("press " + under)["picked"], false);
    const Json refused = Ask("drag " + under + " 0 0");
    EXPECT_EQ(Without(refused, "picked"), Without(start, "draws"));
    // Dropped nowhere, the card goes back.
    const Json back = Ask("drag " + top + " -3000 9000");
    EXPECT_EQ(back["picked"], true);
    EXPECT_EQ(back["cells"], start["cells"]);
    // A press on the stock is its command and lifts nothing.
    const Json pressed = Ask("press " + start["cells"][1][0][0][0].dump());
    EXPECT_EQ(pressed["picked"], false);
    EXPECT_EQ(pressed["cells"][2][0].size(), 1U);
    EXPECT_EQ(pressed["trans"], 1);
    EXPECT_EQ(Ask("log")["log"][0],
              Json::parse("[" + start["cells"][1][0].back()[0].dump() + ",1,0,23,2,0,0,0,1,0]"));
    EXPECT_EQ(Ask("history")["history"][0],
              Json::parse(R"row(["1","Stock (Pile 1, Card 24)","Waste (Pile 1, Card 1)","1","current"])row"));
    EXPECT_EQ(Ask("undo")["trans"], 0);
    EXPECT_EQ(Ask("history")["history"][0][4], "undone");
}

}  // namespace
