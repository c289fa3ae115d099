// Reading and playing the rules' little plays.
#include "support/Script.h"

#include <map>
#include <sstream>
#include <stdexcept>
#include <string_view>
#include <vector>

#include <fmt/format.h>

#include "engine/commands/mMain.h"
#include "engine/rules/mFunc.h"
#include "engine/rules/mPlay.h"
#include "engine/state/cArray.h"
#include "engine/state/cData.h"
#include "engine/state/cTrans.h"
#include "tools/mChecks.h"

namespace mScript {

namespace {

constexpr std::string_view Cells = "HSWGR";
constexpr int MostPiles = 20;  // the last one holds the cards that wait for their place

using Table = std::map<std::string, std::string>;  // cards by pile

std::vector<std::string> Split(const std::string& text, char at) {
    std::vector<std::string> parts;
    std::istringstream stream(text);
    for (std::string part; std::getline(stream, part, at);) {
        const auto first = part.find_first_not_of(' ');
        if (first == std::string::npos) continue;
        parts.push_back(part.substr(first, part.find_last_not_of(' ') - first + 1));
    }
    return parts;
}

std::pair<int, int> Place(const std::string& pile) {
    const auto Cell = Cells.find(pile.at(0));
    if (Cell == std::string_view::npos) throw std::invalid_argument("no pile: " + pile);
    return {static_cast<int>(Cell), pile.size() > 1 ? std::stoi(pile.substr(1)) : 0};
}

Table Written(const std::string& text) {
    Table table;
    for (const std::string& pile : Split(text, ';')) {
        const auto end = pile.find(' ');
        const auto [Cell, Pile] = Place(pile.substr(0, end));
        table[fmt::format("{}{}", Cells[static_cast<std::size_t>(Cell)], Pile)] =
            mPosition::InFull(pile.substr(end));
    }
    return table;
}

Table Found() {
    Table table;
    for (std::size_t Cell = 0; Cell < Cells.size(); ++Cell) {
        for (int Pile = 0; Pile < MostPiles; ++Pile) {
            const std::string cards = mPosition::Pile(static_cast<int>(Cell), Pile);
            if (!cards.empty()) table[fmt::format("{}{}", Cells[Cell], Pile)] = cards;
        }
    }
    return table;
}

std::string Text(const Table& table) {
    std::string text;
    for (const auto& [pile, cards] : table) text += (text.empty() ? "" : "; ") + pile + ' ' + cards;
    return text;
}

void Make(const std::string& step) {
    const auto arrow = step.find('>');
    if (arrow != std::string::npos) {
        const auto [Cell, Pile] = Place(step.substr(arrow + 1));
        mPosition::DragTo(mPosition::Card(step.substr(0, arrow)), Cell, Pile);
    } else if (step == "stock") {
        mPosition::Press(gArray->GetPicID(Stock, 0, 0));  // whichever of its cards the press names
    } else if (step == "mark") {
        mMain::StockClick();
    } else if (step == "auto") {
        mPlay::AutoPlayAll();
    } else if (step == "undo") {
        mMain::Undo(0);
    } else if (step == "redo") {
        mMain::Redo(0);
    } else if (step.substr(0, 2) == "G=") {
        gGoalBase = std::stoi(step.substr(2)) - 1;
    } else if (step.substr(0, 2) == "H=") {
        gGames->EmptyNum = std::stoi(step.substr(2)) - 1;
    } else {
        throw std::invalid_argument("no step: " + step);
    }
}

std::string Difference(const std::vector<CardPlace>& expected) {
    return mChecks::Difference(expected, mChecks::Places(), [](int) { return false; });
}

std::string TableFault(const std::string& text, const std::vector<CardPlace>& first) {
    const auto hash = text.find('#');
    const int moves = hash == std::string::npos ? -1 : std::stoi(text.substr(hash + 1));
    const int made = gTrans->GetTransID();
    if (text == "=") return made == 0 ? Difference(first) : fmt::format("{} moves", made);
    if (moves >= 0 && made != moves) return fmt::format("{} moves, not {}", made, moves);
    const Table found = Found();
    return found == Written(text.substr(0, hash)) ? std::string() : Text(found);
}

std::string UndoFault(const std::vector<CardPlace>& first) {
    const std::vector<CardPlace> last = mChecks::Places();
    const int moves = gTrans->GetTransID();
    mMain::UndoAll(0);
    std::string fault = Difference(first);
    if (!fault.empty()) return "after undo all: " + fault;
    while (gTrans->GetTransID() < moves) mMain::Redo(0);
    fault = Difference(last);
    return fault.empty() ? fault : "after redo: " + fault;
}

}  // namespace

void Lay(const std::string& table) {
    for (const auto& [pile, cards] : Written(table)) {
        const auto [Cell, Pile] = Place(pile);
        mPosition::Lay(Cell, Pile, cards);
    }
}

void Begin(const TestGame& game, const std::string& table) {
    mPosition::Begin(game);
    Lay(table);
}

std::string Fault(const TestGame& game, const std::string& script) {
    const std::vector<std::string> parts = Split(script, '|');
    if (parts.size() % 2 != 1) throw std::invalid_argument("steps without a table: " + script);
    Begin(game, parts[0]);
    const std::vector<CardPlace> first = mChecks::Places();
    for (std::size_t i = 1; i < parts.size(); i += 2) {
        for (const std::string& step : Split(parts[i], ' ')) Make(step);
        const std::string fault = TableFault(parts[i + 1], first);
        if (!fault.empty()) return fmt::format("after {}: {}", parts[i], fault);
    }
    return UndoFault(first);
}

}  // namespace mScript

RulesTest::RulesTest() { gData->Set(Setting::Autoplay, 0); }
