// The commands of the text driver. Each comes in where the main window's commands come in.
#include "tools/Lab.h"

#include <algorithm>
#include <array>

#include <fmt/format.h>

#include "engine/catalogue/definition.h"
#include "engine/catalogue/families.h"
#include "engine/commands/mGen.h"
#include "engine/commands/mLoad.h"
#include "engine/commands/mMain.h"
#include "engine/rules/mFunc.h"
#include "engine/state/cData.h"
#include "engine/state/cPlate.h"
#include "engine/state/cTrans.h"
#include "tools/LabArguments.h"
#include "tools/LabState.h"

namespace {

using mLabState::Json;

constexpr double GripX = CardWidth / 2.0;  // a press falls into the middle of a card
constexpr double GripY = CardHeight / 2.0;

bool Running() { return gData->Figures.GameRunning; }

void ExpectGame() {
    if (!Running()) throw LabError("no game is running");
}

std::string KnownName(const LabArguments& arguments) {
    std::string name = arguments.Text(0, "the name");
    if (gData->GetGameID(name) == 0) throw LabError(fmt::format("there is no game \"{}\"", name));
    return name;
}

int CardOnTable(const LabArguments& arguments) {
    ExpectGame();
    const int PicID = arguments.Whole(0, "the card", 0, MaxCards - 1);
    if (!PicBack.PicCards(PicID).Visible) throw LabError(fmt::format("card {} is not on the table", PicID));
    return PicID;
}

std::string Text(const Json& answer) {
    // A name that is no UTF-8 comes back in the text of an error.
    return answer.dump(-1, ' ', false, Json::error_handler_t::replace);
}

std::string StateText(const Lab& lab) { return Text(mLabState::State(lab.Layer)); }

std::string StateWith(const Lab& lab, const char* key, const std::string& json) {
    std::string text = StateText(lab);
    text.pop_back();
    return text + fmt::format(",\"{}\":{}}}", key, json);
}

std::string Games(Lab&, const LabArguments& arguments) {
    arguments.ExpectCount(0, 0);
    return Text({{"games", mLabState::Games()}});
}

std::string Define(Lab&, const LabArguments& arguments) {
    arguments.ExpectCount(1, 1);
    const std::string name = KnownName(arguments);
    if (Running()) mGen::CloseGame(0);
    mGen::SetGameRules(name);
    return Text({{"define", mLabState::Definition()}});
}

std::string Start(Lab& lab, const LabArguments& arguments) {
    arguments.ExpectCount(2, 2);
    const std::string name = KnownName(arguments);
    mGen::StartGame(name, arguments.Number(1));
    return StateWith(lab, "draws", mLabState::Draws());
}

std::string StartDeck(Lab& lab, const LabArguments& arguments) {
    arguments.ExpectCount(2, 2);
    const std::string name = KnownName(arguments);
    mGen::StartDeck(name, arguments.Deck(1, mFamilies::Find(name)->Deck));
    return StateWith(lab, "draws", mLabState::Draws());
}

std::string State(Lab& lab, const LabArguments& arguments) {
    arguments.ExpectCount(0, 0);
    return StateText(lab);
}

std::string Press(Lab& lab, const LabArguments& arguments) {
    arguments.ExpectCount(1, 1);
    const int PicID = CardOnTable(arguments);
    mMain::MouseDown(PicID, GripX, GripY);
    const bool picked = gDrag.gPicked;
    mMain::MouseUp(PicID);
    return StateWith(lab, "picked", picked ? "true" : "false");
}

std::string Drag(Lab& lab, const LabArguments& arguments) {
    constexpr int Low = -32768;  // coordinates are 16-bit
    constexpr int High = 32767;
    arguments.ExpectCount(3, 3);
    const int PicID = CardOnTable(arguments);
    const int X = arguments.Whole(1, "X", Low, High);
    const int Y = arguments.Whole(2, "Y", Low, High);
    mMain::MouseDown(PicID, GripX, GripY);
    const bool picked = gDrag.gPicked;
    if (picked) {
        // Relative to the grip as it was rounded, so that the card comes to lie exactly there.
        mMain::MouseMove(PicID, gDrag.gDownX + X - mFunc::CardLeft(PicID),
                         gDrag.gDownY + Y - mFunc::CardTop(PicID));
    }
    mMain::MouseUp(PicID);
    return StateWith(lab, "picked", picked ? "true" : "false");
}

// A command that works on the running game and takes nothing.
template <void (*Run)()>
std::string InGame(Lab& lab, const LabArguments& arguments) {
    arguments.ExpectCount(0, 0);
    ExpectGame();
    Run();
    return StateText(lab);
}

// Undo and its kin: the speed is the menu's where none is given.
template <void (*Run)(int), const NumberSetting& MenuSpeed>
std::string Step(Lab& lab, const LabArguments& arguments) {
    arguments.ExpectCount(0, 1);
    ExpectGame();
    constexpr int Fastest = 32767;
    Run(arguments.Count() == 1 ? arguments.Whole(0, "the speed", 0, Fastest) : gData->Get(MenuSpeed));
    return StateText(lab);
}

std::string Autoplay(Lab& lab, const LabArguments& arguments) {
    arguments.ExpectCount(0, 0);
    mMain::FlipAutoplay();
    return StateText(lab);
}

std::string Tick(Lab& lab, const LabArguments& arguments) {
    constexpr Moment LastYear = 253370764800000;  // 9999-01-01 00:00:00: a date has four digits for the year
    arguments.ExpectCount(1, 1);
    lab.Layer.Calendar.Advance(
        arguments.Seconds(0, static_cast<double>(LastYear - lab.Layer.Calendar.Now()) / 1000.0));
    mMain::TickTime();
    return StateText(lab);
}

std::string Log(Lab&, const LabArguments& arguments) {
    arguments.ExpectCount(0, 0);
    return Text({{"log", mLabState::Log()}});
}

std::string History(Lab&, const LabArguments& arguments) {
    arguments.ExpectCount(0, 0);
    return Text({{"history", mLabState::History()}});
}

struct Command {
    const char* Name;
    std::string (*Run)(Lab& lab, const LabArguments& arguments);
};

// clang-format off
constexpr std::array<Command, 17> commands = {{
    {"games",     Games},
    {"define",    Define},
    {"start",     Start},
    {"startdeck", StartDeck},
    {"state",     State},
    {"press",     Press},
    {"drag",      Drag},
    {"redeal",    InGame<mMain::StockClick>},
    {"undo",      Step<mMain::Undo, Setting::UndoSpeed>},
    {"redo",      Step<mMain::Redo, Setting::UndoSpeed>},
    {"undoall",   Step<mMain::UndoAll, Setting::UndoallSpeed>},
    {"redoall",   Step<mMain::RedoAll, Setting::UndoallSpeed>},
    {"autoplay",  Autoplay},
    {"tick",      Tick},
    {"close",     InGame<mMain::CloseGame>},
    {"log",       Log},
    {"history",   History},
}};
// clang-format on

std::string Run(Lab& lab, std::string_view line) {
    const LabArguments arguments(line);
    const auto command = std::find_if(commands.begin(), commands.end(), [&](const Command& candidate) {
        return arguments.Command() == candidate.Name;
    });
    if (command == commands.end())
        throw LabError(fmt::format("there is no command \"{}\"", arguments.Command()));
    return command->Run(lab, arguments);
}

}  // namespace

Lab::Lab() {
    mLoad::Main(Layer.Layer());
    mMain::Load();
}

Lab::~Lab() { mLoad::UnloadMain(); }

bool Lab::IsBlank(std::string_view line) { return line.find_first_not_of(" \t\r") == std::string_view::npos; }

std::string Lab::Answer(std::string_view line) {
    try {
        return Run(*this, line);
    } catch (const LabError& error) {
        return Text({{"error", error.what()}});
    }
}
