// The text driver: every command on every game of a family, faults that must change nothing, and the
// program itself on its pipe.
#include <algorithm>
#include <cmath>
#include <cstdio>
#include <fstream>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <unistd.h>
#include <nlohmann/json.hpp>

#include "catalogue/definition.h"
#include "catalogue/families.h"
#include "shell/cData.h"
#include "tools/Lab.h"

namespace {

using Json = nlohmann::ordered_json;
using testing::HasSubstr;

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

TEST_F(LabTest, EveryCommandOnEveryGameOfTheKlondikeFamily) {
    for (const Definition& game : gKlondike::Games()) {
        SCOPED_TRACE(std::string(game.Name));
        const Json started = Ask(Start(game.Name, "17"));
        ASSERT_TRUE(started["running"]);
        EXPECT_EQ(started["name"], std::string(game.Name));
        EXPECT_EQ(started["number"], 17);
        EXPECT_TRUE(started["draws"].is_array());
        const Json state = Ask("state");
        EXPECT_EQ(state, Without(started, "draws"));
        // All cards of the deck, once.
        std::vector<bool> seen(static_cast<std::size_t>(game.Deck));
        int someCard = -1;
        for (const Json& piles : state["cells"]) {
            for (const Json& pile : piles) {
                for (const Json& card : pile) {
                    ASSERT_EQ(card.size(), 5U);
                    seen.at(card[1].get<std::size_t>()) = true;
                    if (someCard < 0) someCard = card[0];
                }
            }
        }
        EXPECT_EQ(std::count(seen.begin(), seen.end(), false), 0);
        EXPECT_EQ(state["cells"][0].size(), static_cast<std::size_t>(game.HomePiles));
        EXPECT_EQ(state["cells"][3].size(), 8U);

        EXPECT_TRUE(Ask("press " + std::to_string(someCard)).contains("picked"));
        const Json dragged = Ask("drag " + std::to_string(someCard) + " 4000 3000");
        EXPECT_TRUE(dragged["picked"].is_boolean());
        const Json before = Ask("state");
        EXPECT_FALSE(Ask("redeal").contains("error"));
        Ask("undoall");
        EXPECT_EQ(Ask("state")["trans"], 0);
        Ask("redoall 0");
        Ask("undo");
        Ask("redo 7");
        const Json again = Ask("state");
        EXPECT_EQ(again["trans"], again["maxtrans"]);
        const Json log = Ask("log")["log"];
        const Json history = Ask("history")["history"];
        EXPECT_EQ(log.size(), again["maxtrans"].get<std::size_t>());
        EXPECT_EQ(history.size(), log.size());
        for (std::size_t i = 0; i < log.size(); ++i) {
            EXPECT_EQ(log[i].size(), 10U);
            EXPECT_EQ(history[i].size(), 5U);
            EXPECT_EQ(history[i][0], std::to_string(i + 1));
            EXPECT_EQ(history[i][4], i + 1 == log.size() ? "current" : "plain");
        }
        const int autoplay = again["autoplay"];
        EXPECT_EQ(Ask("autoplay")["autoplay"], 1 - autoplay);
        EXPECT_EQ(Ask("autoplay")["autoplay"], autoplay);
        const Json ticked = Ask("tick 61");
        if (ticked["running"]) {
            EXPECT_EQ(ticked["time"], 61);
            EXPECT_EQ(ticked["status"][1], "Time :0:01:01");
        }
        const std::size_t ended = ticked["session"].size();
        const Json closed = ticked["running"] ? Ask("close") : ticked;
        EXPECT_FALSE(closed["running"]);
        EXPECT_EQ(closed["session"].size(), ended + (ticked["running"] ? 1 : 0));
        for (const Json& piles : closed["cells"]) {
            for (const Json& pile : piles) EXPECT_TRUE(pile.empty());
        }
        EXPECT_TRUE(closed["markers"]["stock"].is_null());
        const Json defined = Ask("define \"" + std::string(game.Name) + "\"")["define"];
        EXPECT_EQ(defined["cells"].size(), 5U);
        EXPECT_EQ(defined["TotalCards"], game.Deck);
        EXPECT_EQ(defined["CardsOpen"], game.HomeOpen);
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
    const char* faulty[] = {
        "nonsense",
        "State",
        "games 1",
        "state 1",
        "define",
        "define Klondike",
        "define \"klondike\"",
        "define 3",
        "start \"Klondike\"",
        "start \"Klondike\" 1 2",
        "start \"No game\" 1",
        "start \"Klondike\" \"x\"",
        "start \"Klondike\" null",
        "start \"Klondike\" 1e999",
        "start \"Klondike\" \"\"",
        "start 1 1",
        "press",
        "press 52",
        "press -1",
        "press 104",
        "press 1.0",
        "press \"1\"",
        "press 18446744073709551615",
        "press 4294967296",
        "drag 1",
        "drag 1 2",
        "drag 1 2 x",
        "drag 1 40000 0",
        "drag 1 0 -40000",
        "drag 60 0 0",
        "undo -1",
        "undo 1 2",
        "undo 1e3",
        "redo \"1\"",
        "undoall 40000",
        "tick",
        "tick -1",
        "tick \"1\"",
        "tick 1e300",
        "log 1",
        "history 1",
        "autoplay 1",
        "close 1",
        "redeal 1",
        "press {",
        "press [1",
        "\"state\"",
        "start \"Klondike 1",
        "\xff\xfe",
        "press \xff",
    };
    for (const char* line : faulty) {
        const Json answer = Ask(line);
        EXPECT_TRUE(answer.size() == 1 && answer.contains("error")) << line;
        EXPECT_EQ(Ask("state"), before) << line;
    }
    EXPECT_FALSE(Ask("  state \r").contains("error"));
    EXPECT_TRUE(Lab::IsBlank(" \t\r"));
    EXPECT_FALSE(Lab::IsBlank("x"));
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
    EXPECT_EQ(refused["picked"], false);
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

// The length of the longest row of digits that begins with another one than zero.
std::size_t MostDigits(const std::string& text) {
    constexpr const char* digits = "0123456789";
    std::size_t most = 0;
    for (std::size_t at = text.find_first_of("123456789"); at != std::string::npos;) {
        const std::size_t end = std::min(text.find_first_not_of(digits, at), text.size());
        most = std::max(most, end - at);
        at = text.find_first_of("123456789", end);
    }
    return most;
}

TEST_F(LabTest, DrawsAreWhatTheDealDrew) {
    struct Row {
        const char* Game;
        std::size_t Fewest, Most;
    };
    // A random spread draws once a card, a random base rank once a game.
    for (const Row& row : {Row{"Klondike", 0, 0}, Row{"Mobile Gallery", 52, 52}, Row{"Penguin", 0, 0}}) {
        const std::string answer = lab_.Answer(Start(row.Game, "7"));
        EXPECT_LE(MostDigits(answer.substr(answer.find("\"draws\""))), 9U);
        const Json draws = Json::parse(answer)["draws"];
        EXPECT_GE(draws.size(), row.Fewest) << row.Game;
        EXPECT_LE(draws.size(), row.Most) << row.Game;
        for (const Json& draw : draws) {
            EXPECT_GE(draw.get<double>(), 0.0);
            EXPECT_LT(draw.get<double>(), 1.0);
        }
    }
    // The places of a spread follow from its draws.
    const Json state = Ask(Start("Mobile Gallery", "7"));
    const Json& draws = state["draws"];
    const auto piles = static_cast<double>(state["cells"][0].size() - 1);
    std::vector<std::size_t> expected(state["cells"][0].size());
    for (const Json& draw : draws)
        ++expected[static_cast<std::size_t>(std::nearbyint(draw.get<double>() * piles))];
    std::vector<std::size_t> found;
    Ask("autoplay");
    Ask("undoall 0");
    const Json dealt = Ask("state");
    for (const Json& pile : dealt["cells"][0]) found.push_back(pile.size());
    EXPECT_EQ(found, expected);
}

TEST_F(LabTest, NumbersKeepTheirKind) {
    EXPECT_EQ(Ask(Start("Klondike", "999999999999999"))["number"].dump(), "999999999999999");
    EXPECT_EQ(Ask(Start("Klondike", "\"012\""))["number"].dump(), "\"012\"");
    EXPECT_EQ(Ask(Start("Klondike", "12.5"))["number"].dump(), "12.5");
    const Json session = Ask("close")["session"];
    EXPECT_EQ(session[0]["number"].dump(), "999999999999999");
    EXPECT_EQ(session[1]["number"].dump(), "\"012\"");
    EXPECT_EQ(session[1]["player"], "Player1");
    EXPECT_EQ(Ask(Start("Klondike", "\"12\""))["cells"], Ask(Start("Klondike", "12"))["cells"]);
}

// The program answers line by line on a pipe, skips blank lines and ends well with its input.
TEST(LabProgram, SpeaksOnItsPipe) {
    const std::string answers = testing::TempDir() + "tarnival-lab-" + std::to_string(getpid()) + ".txt";
    FILE* lab = popen((std::string(TARNIVAL_LAB) + " > '" + answers + "'").c_str(), "w");
    ASSERT_NE(lab, nullptr);
    std::fputs("start \"Klondike\" 1\n\n  \nnonsense\nstate", lab);
    EXPECT_EQ(pclose(lab), 0);
    std::ifstream file(answers);
    std::vector<Json> lines;
    for (std::string line; std::getline(file, line);) lines.push_back(Json::parse(line));
    std::remove(answers.c_str());
    ASSERT_EQ(lines.size(), 3U);
    EXPECT_EQ(lines[0]["number"], 1);
    EXPECT_THAT(lines[1]["error"].get<std::string>(), HasSubstr("nonsense"));
    EXPECT_EQ(lines[2]["cells"], lines[0]["cells"]);
}

}  // namespace
