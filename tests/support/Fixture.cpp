// Setting up the engine and made-up positions.
#include "support/Fixture.h"

#include <sstream>
#include <stdexcept>
#include <string_view>
#include <utility>
#include <vector>

#include "engine/commands/mLoad.h"
#include "engine/commands/mMain.h"
#include "engine/rules/mCards.h"
#include "engine/rules/mFunc.h"
#include "engine/rules/mPlay.h"
#include "engine/state/cArray.h"
#include "engine/state/cData.h"
#include "engine/state/cPlate.h"
#include "engine/state/cTrans.h"
#include "tools/RandomPlayer.h"

Engine::Engine(decltype(MemorySettings::Values) settings) {
    Layer.Settings.Values = std::move(settings);
    mLoad::Main(Layer.Layer());
    mMain::Load();
}

Engine::~Engine() { mLoad::UnloadMain(); }

namespace mPosition {

namespace {

constexpr std::string_view ranks = "A23456789TJQK";
constexpr std::string_view suits = "HSDC";
constexpr int Ranks = 13;
constexpr int DeckCards = 52;
// No game has that many reserve piles, so that a card can wait there for its place.
constexpr int WaitingPile = 20;

int Value(std::string_view name) {
    const bool second = name.size() == 3 && name[2] == '\'';
    const auto rank = name.empty() ? std::string_view::npos : ranks.find(name[0]);
    const auto suit = name.size() < 2 ? std::string_view::npos : suits.find(name[1]);
    if (rank == std::string_view::npos || suit == std::string_view::npos ||
        name.size() > (second ? 3U : 2U)) {
        throw std::invalid_argument("no card: " + std::string(name));
    }
    return static_cast<int>(suit) * Ranks + static_cast<int>(rank) + (second ? DeckCards : 0);
}

std::string NameOf(int value) {
    std::string name{ranks[static_cast<std::size_t>(value % Ranks)],
                     suits[static_cast<std::size_t>(value % DeckCards / Ranks)]};
    if (value >= DeckCards) name += '\'';
    return name;
}

struct Written {
    int Value;
    bool Closed;
};

// What a text like "KS (4C) AH-KH" says.
std::vector<Written> Read(const std::string& cards) {
    std::vector<Written> all;
    std::istringstream words(cards);
    for (std::string word; words >> word;) {
        const bool closed = word.front() == '(';
        if (closed) word = word.substr(1, word.size() - 2);
        const auto dash = word.find('-');
        const int first = Value(word.substr(0, dash));
        const int last = dash == std::string::npos ? first : Value(word.substr(dash + 1));
        const int step = first <= last ? 1 : -1;
        for (int value = first; value != last + step; value += step) all.push_back({value, closed});
    }
    return all;
}

int WithValue(int value) {
    for (int PicID = 0; PicID < gGames->TotalCards(); ++PicID) {
        if (gArray->GetRandom(PicID) == value) return PicID;
    }
    throw std::invalid_argument("the game has no card of value " + std::to_string(value));
}

void Define(const TestGame& game, double number) {
    gGames->NewGameStart();
    gGames->Home(game.Home);
    gGames->Stock(game.Stock);
    gGames->Waste(game.Waste);
    gGames->Goal(game.Goal);
    gGames->Res(game.Res);
    gGames->Ext(game.Ext);
    gGames->HomeMaxCards = game.HomeMaxCards;
    gGames->NoH2HMove = game.NoH2HMove;
    mCards::HideAll();
    gArray->Init(number);
    mPlay::AssignFaces();
    *gTrans = {};
    gRedealCount = 0;
    gDrag = {};
    SessionFigures figures;
    figures.CurGName = gData->Figures.CurGName;
    figures.CurGNo = gData->Figures.CurGNo;
    figures.GameStart = gData->Layer().Calendar.Now();
    gData->Figures = figures;
}

void LayCard(int Cell, int Pile, int PicID, bool closed) {
    gArray->MoveCard(PicID, Cell, Pile, gArray->GetTop(Cell, Pile) + 1, tMod::Deal, 0, 0, closed ? 1 : 0);
}

}  // namespace

void Begin(const TestGame& game) {
    Define(game, 1.0);
    for (int PicID = 0; PicID < gGames->TotalCards(); ++PicID) PicBack.SetLoc(PicID, ::Res, WaitingPile, 0);
    gData->Figures.GameRunning = true;
}

void Deal(const TestGame& game, double number) {
    Define(game, number);
    mPlay::StartDeal();
    gData->Figures.GameRunning = true;
}

int Card(const std::string& name) { return WithValue(Value(name)); }

std::string Name(int PicID) { return NameOf(gArray->GetRandom(PicID)); }

void Lay(int Cell, int Pile, const std::string& cards) {
    for (const Written& card : Read(cards)) LayCard(Cell, Pile, WithValue(card.Value), card.Closed);
}

void LayRestOnStock() {
    for (int PicID = 0; PicID < gGames->TotalCards(); ++PicID) {
        if (mFunc::CardPile(PicID) == WaitingPile) LayCard(Stock, 0, PicID, true);
    }
}

std::string InFull(const std::string& cards) {
    std::string text;
    for (const Written& card : Read(cards)) {
        if (!text.empty()) text += ' ';
        text += card.Closed ? '(' + NameOf(card.Value) + ')' : NameOf(card.Value);
    }
    return text;
}

std::string Pile(int Cell, int Pile) {
    std::string cards;
    for (int Pos = 0; Pos <= gArray->GetTop(Cell, Pile); ++Pos) {
        const int PicID = gArray->GetPicID(Cell, Pile, Pos);
        if (!cards.empty()) cards += ' ';
        cards += mFunc::CardFaceMode(PicID) == 1 ? '(' + Name(PicID) + ')' : Name(PicID);
    }
    return cards;
}

bool Drag(int PicID, int X, int Y) {
    constexpr int Grip = 500;
    mMain::MouseDown(PicID, Grip, Grip);
    const bool picked = gDrag.gPicked;
    mMain::MouseMove(PicID, Grip + X - mFunc::CardLeft(PicID), Grip + Y - mFunc::CardTop(PicID));
    mMain::MouseUp(PicID);
    return picked;
}

bool DragTo(int PicID, int Cell, int Pile) {
    const Point place = DropPlace(Cell, Pile);
    return Drag(PicID, place.X, place.Y);
}

void Press(int PicID) {
    mMain::MouseDown(PicID, CardWidth / 2.0, CardHeight / 2.0);
    mMain::MouseUp(PicID);
}

}  // namespace mPosition
