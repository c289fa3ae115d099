// The texts of the general pages; finding pages by words.
#include "engine/help/mHelpPages.h"

#include <algorithm>
#include <cctype>
#include <utility>

#include "engine/catalogue/mWinnability.h"
#include "engine/help/mRules.h"
#include "engine/help/mRulesWords.h"
#include "engine/state/cData.h"

namespace mHelpPages {

namespace {

std::string LowerCase(std::string_view text) {
    std::string lower(text);
    std::transform(lower.begin(), lower.end(), lower.begin(),
                   [](unsigned char letter) { return static_cast<char>(std::tolower(letter)); });
    return lower;
}

std::vector<std::string> Words(std::string_view text) {
    std::vector<std::string> words;
    std::string word;
    for (const char letter : LowerCase(text) + ' ') {
        if (letter != ' ') {
            word += letter;
        } else if (!word.empty()) {
            words.push_back(std::exchange(word, {}));
        }
    }
    return words;
}

bool HoldsAll(const std::string& text, const std::vector<std::string>& words) {
    return std::all_of(words.begin(), words.end(),
                       [&](const std::string& word) { return text.find(word) != std::string::npos; });
}

// Name and rules of every game in small letters, made at the first search.
struct Searchable {
    int ID;
    std::string Name;
    std::string Rules;
};

const std::vector<Searchable>& Texts() {
    static const std::vector<Searchable> texts = [] {
        std::vector<Searchable> all;
        for (const int id : mRules::AllGames()) {
            const std::string name = LowerCase(mRules::Name(id));
            all.push_back({id, name, name + '\n' + LowerCase(mRules::PlainText(*mRules::Find(id)))});
        }
        return all;
    }();
    return texts;
}

}  // namespace

const std::vector<Page>& All() {
    static_assert(mWinnability::MostlyPercent == 80 && mWinnability::HardPercent == 20,
                  "as a page below says");
    static const std::vector<Page> pages{
        {"mouse",
         "Playing with the mouse",
         {"Press a card, drag it to another pile and let go. If it fits there, it stays; if not, it goes "
          "back and "
          "nothing has been counted. Cards that lie on the one you press come along where the game lets them "
          "move "
          "together.",
          "A card whose middle lies over a pile goes to that pile if it fits; otherwise it is tried on the "
          "piles "
          "that it touches: first on the tableau, then on the reserve, then on the foundations.",
          "A press on a face-down stock deals from it: to the waste or to the tableau, as the rules of the "
          "game "
          "say. Where the game allows a redeal, click on the mark under the empty stock.",
          "While cards are dealt, a press on the table or a key shows the rest of the deal at once.",
          "The game is shown as large as the window allows, with room for its piles to grow; a pile that "
          "grows beyond that makes the table a little smaller. The right button on the empty table opens a "
          "menu for its size: Zoom In, Zoom Out, Actual Size, Fit Game to Window and Full Screen. The wheel "
          "zooms while Ctrl is held down, even with a card in the hand.",
          "A table that has become larger than the window is moved by the wheel, with Shift sideways, by a "
          "drag of its empty part, and by a card that is held at the window's edge.",
          "While Autoplay is on, cards that fit on a foundation go there by themselves after every move. "
          "Switch it "
          "off with F7 to keep a card on the tableau.",
          "Every move can be undone and redone, without limit. Redeals and other uses of the stock that a "
          "game "
          "counts stay counted when they are undone."}},
        {"choosing",
         "Choosing a game",
         {"The field above the lists of games searches them by words of their names and rules while you "
          "type. "
          "Escape clears it, Down leads to the list, and Return plays the game that is selected there.",
          "Some words are kinds of games, such as two decks, free cells, redeals twice, in suit, all cards "
          "open, never played or in favorites. Kinds, beside the field, offers them, and they can be put "
          "together with each other and with other words.",
          "Mostly winnable and hard are known of games whose deals were tried by a solver, which sees all "
          "cards. A game is mostly winnable if at least 80 of 100 deals were won. It is hard if at most 20 "
          "of "
          "100 deals can be won, those counted in for which no answer was found. Kinds offers them only "
          "where "
          "such games are known."}},
        {"keys",
         "Keys",
         {"The arrow keys move a frame over the piles and the cards in them. Home and End lead to the first "
          "and "
          "the last pile of a row, Page Up and Page Down to those of a group, and Tab and Shift+Tab to the "
          "next "
          "and the previous group: Tableau, Reserve, Waste, Stock, Foundation. The first key only shows the "
          "frame; the first movement of the mouse takes it away.",
          "Space or Return lifts the card in the frame with what lies on it. The arrows then carry it from "
          "pile to pile; the piles that take it are marked. Space or Return drops it, Escape puts it back. "
          "On "
          "the stock Space deals, and on the mark of the empty stock it redeals.",
          "F sends the card in the frame to the first foundation that takes it.",
          "F1 opens the rules of the running game, or the contents while none is running.",
          "F2 starts a new deal of the last game, F3 selects a game, Ctrl+F2 starts the same deal again, "
          "Ctrl+F12 "
          "asks for a game number, and F12 closes the game.",
          "Ctrl+Z undoes a move and Ctrl+X redoes it; Ctrl+C undoes all moves and Ctrl+V redoes all of them. "
          "F7 "
          "switches Autoplay on and off. Ctrl+H shows the history of moves.",
          "Shift+F1 replays the game forward by itself, Shift+F2 backward.",
          "Ctrl++ and Ctrl+- zoom in and out, and Ctrl+0 shows the table in its actual size. Ctrl+9 fits the "
          "game to the window again, whatever size the window takes. F11 fills the screen; F11 or Escape "
          "leaves "
          "it. "
          "The menu key opens the menu of the table's size.",
          "Ctrl+A adds the deal to the favorites, Ctrl+F organizes them, and Ctrl+P plays one of them.",
          "F4 opens the game statistics and F9 the high scores; Ctrl+L opens the players and Ctrl+U the "
          "Customize "
          "dialog.",
          "In a list, the menu key opens what can be done with it, such as sorting; Ctrl+C copies the "
          "selected "
          "rows and Ctrl+A selects them all."}},
        {"scoring",
         "Score, time and moves",
         {"The score is the same in all games: ten points for each card on the foundations, less one point "
          "for "
          "every three seconds and one for every two moves. It can fall below zero. The base cards that some "
          "games lay on their foundations count from the start.",
          "Each card or run that you move is one move, and so is each card that goes to a foundation by "
          "itself, "
          "each card that the stock deals and each card of a redeal. A card that goes back where it came "
          "from is "
          "none. Undo gives the move back, but not the time.",
          "A game is won when its foundations hold all the cards that they can. Starting another game, "
          "closing "
          "the game or closing the window before that counts as lost. Exit leaves the program without a "
          "record "
          "of the running game."}},
        {"statistics",
         "Statistics and high scores",
         {"Every finished game is kept with its player, score, time and moves. Game Statistics sums all of "
          "them "
          "up: in general, by game, by date and by player. Session Statistics shows the games since the "
          "program "
          "was started, and the running one.",
          "High Scores ranks at most 20 games: the best of all, the best of a game, the best of a player, "
          "and the "
          "won games. Log Statistics lists the games one by one and can be narrowed to a player, a game and "
          "a "
          "span of time.",
          "A click on a heading sorts a list by it, a second click the other way round, and a third one "
          "brings back its usual order. The right mouse button or the menu key opens a menu with the same "
          "choices. Ctrl+C copies the selected rows, to be pasted into a spreadsheet. Where a row is a deal, "
          "the menu plays it again, which ends the running game if you agree, or adds it to the favorites. "
          "Dialogs keep the size, the widths and the order that you give them.",
          "Score, moves and time each have a scale of their own in the charts. The pointer on a bar shows "
          "its "
          "figures.",
          "More, in Game Statistics, tells of streaks and bests, of how often you win from week to week and "
          "at "
          "which time of day, and of how many of the games you have played and won. A best time and the "
          "fewest "
          "moves are those of games that were won. Player, group and dates above the lists choose the "
          "records "
          "that count.",
          "All statistics can be exported to a text file, and they can be cleared. Clearing cannot be "
          "undone.",
          "Export List, under More, writes the list in sight as comma-separated values, which spreadsheets "
          "read. Import Records takes such a list of records, or a score file of another machine, tells what "
          "in it is new to a player, and adds that. A record that the player has already is not added "
          "again."}},
        {"players",
         "Players",
         {"Up to 20 players keep records of their own. Players, in the Tools menu, adds, renames, deletes "
          "and "
          "selects them; the player can also be chosen when a game is selected.",
          "A player's records go with a new name, and are lost when the player is deleted. The selected "
          "player "
          "cannot be deleted. A score file that belongs to no player is offered when Players opens."}},
        {"favourites",
         "Favorites and game numbers",
         {"A deal is named by its game and its number: the same number always gives the same deal. Select a "
          "Number "
          "plays the deal of a number that you type.",
          "A deal worth playing again can be added to the favorites while it is on the table. Play from "
          "Favorites "
          "starts it again, and Organize Favorites puts the list in order; both say beside a game how many "
          "it "
          "has. All players share one list."}},
        {"settings",
         "Settings",
         {"Customize, in the Tools menu, has the background of the table, the look of the cards, the speeds "
          "of "
          "moving cards, the sounds, the range of random game numbers, and what is shown beside the menus.",
          "Four Colors, beside the decks, shows Diamonds in blue and Clubs in green, so that no two suits "
          "look "
          "alike. The rules stay as they are: where they say red they mean Hearts and Diamonds, and where "
          "they "
          "say black they mean Spades and Clubs.",
          "The background, the deck, the colors of the suits, the speeds and the sounds are taken over with "
          "OK. The other choices act at once."}},
        {"files",
         "Files",
         {"The program keeps its files in your own folder for application data, and its settings where your "
          "desktop "
          "keeps those of all programs. Nothing leaves the machine.",
          "Each player has a file of records, named after the player and ending in .sre, with a line for "
          "each "
          "game. The favorites are in fav.dat. Statistics are exported to a text file wherever you like."}},
    };
    return pages;
}

std::string Html(std::string_view key) {
    for (const Page& page : All()) {
        if (page.Key != key) continue;
        std::string html = "<h1>" + mRulesWords::Escape(page.Title) + "</h1>\n";
        for (const std::string_view paragraph : page.Paragraphs) {
            html += "<p>" + mRulesWords::Escape(paragraph) + "</p>\n";
        }
        return html;
    }
    return {};
}

std::string Group(int Gid) {
    if (Gid < 1 || Gid > gData->TotalGroups()) return {};
    std::string html = "<h1>" + mRulesWords::Escape(gData->GroupfromGiD(Gid)) + "</h1>\n<ul>\n";
    constexpr int IDsOfGroup = 100;
    for (const int id : mRules::AllGames()) {
        if (id / IDsOfGroup != Gid) continue;
        html += "<li><a href=\"game:" + std::to_string(id) + "\">" + mRulesWords::Escape(mRules::Name(id)) +
                "</a></li>\n";
    }
    return html + "</ul>\n";
}

std::vector<int> FindGames(std::string_view words) {
    const std::vector<std::string> wanted = Words(words);
    std::vector<int> found;
    std::vector<int> byRules;
    for (const Searchable& game : Texts()) {
        if (HoldsAll(game.Name, wanted)) {
            found.push_back(game.ID);
        } else if (HoldsAll(game.Rules, wanted)) {
            byRules.push_back(game.ID);
        }
    }
    found.insert(found.end(), byRules.begin(), byRules.end());
    return found;
}

std::vector<std::string_view> FindPages(std::string_view words) {
    const std::vector<std::string> wanted = Words(words);
    std::vector<std::string_view> found;
    for (const Page& page : All()) {
        std::string text(page.Title);
        for (const std::string_view paragraph : page.Paragraphs) {
            text += '\n';
            text += paragraph;
        }
        if (HoldsAll(LowerCase(text), wanted)) found.push_back(page.Key);
    }
    return found;
}

}  // namespace mHelpPages
