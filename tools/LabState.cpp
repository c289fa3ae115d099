// The answers of the text driver, read from the engine's objects.
#include "tools/LabState.h"

#include <cmath>
#include <cstdint>

#include <fmt/format.h>

#include "engine/commands/mMain.h"
#include "engine/records/cScore.h"
#include "engine/rules/mPlay.h"
#include "engine/state/cArray.h"
#include "engine/state/cData.h"
#include "engine/state/cGames.h"
#include "engine/state/cPlate.h"
#include "engine/state/cTrans.h"

namespace mLabState {

namespace {

// A whole number is written without a fraction as long as a reader gets every digit of it.
Json NumberJson(const GameNumber& number) {
    if (const auto* text = std::get_if<std::string>(&number)) return *text;
    const double value = std::get<double>(number);
    constexpr double Exact = 9007199254740992.0;  // 2^53
    if (value == std::floor(value) && std::fabs(value) <= Exact) return static_cast<std::int64_t>(value);
    return value;
}

Json PileJson(int Cell, int Pile) {
    Json cards = Json::array();
    if (!gData->Figures.GameRunning) return cards;
    for (int Pos = 0; Pos <= gArray->GetTop(Cell, Pile); ++Pos) {
        const int PicID = gArray->GetPicID(Cell, Pile, Pos);
        const CardRecord& card = PicBack.PicCards(PicID);
        cards.push_back({PicID, gArray->GetRandom(PicID), card.FaceMode, card.Left, card.Top});
    }
    return cards;
}

Json CellsJson() {
    Json cells = Json::array();
    for (int Cell = 0; Cell < CellCount; ++Cell) {
        const int count = Cell == Goal ? FoundationPiles : gGames->Piles(Cell);
        Json piles = Json::array();
        for (int Pile = 0; Pile < count; ++Pile) piles.push_back(PileJson(Cell, Pile));
        cells.push_back(std::move(piles));
    }
    return cells;
}

Json MarkJson(MarkKind kind, int index) {
    const MarkRecord& mark = PicBack.Mark(kind, index);
    if (!mark.Visible) return nullptr;
    return {mark.Picture, mark.Left, mark.Top};
}

Json MarksJson(MarkKind kind) {
    Json marks = Json::array();
    for (int i = 0; i < cPlate::MarkCount(kind); ++i) marks.push_back(MarkJson(kind, i));
    return marks;
}

Json SessionJson() {
    Json games = Json::array();
    for (int i = 1; i <= gScore->SesTop(); ++i) {
        const tScore& game = gScore->GetSes(i);
        games.push_back({{"name", game.gName},
                         {"number", NumberJson(game.GameNo)},
                         {"player", game.Player},
                         {"won", game.Won},
                         {"time", game.Time},
                         {"moves", game.Moves},
                         {"score", game.Score}});
    }
    return games;
}

Json CellJson(int Cell) {
    const CellRec& cell = gGames->Record(Cell);
    return {{"Piles", cell.Piles},
            {"Cards", cell.Cards},
            {"Order", Number(cell.Order)},
            {"AK", cell.AK},
            {"StartX", cell.StartX},
            {"StartY", cell.StartY},
            {"PileWidth", cell.PileWidth},
            {"PosWidth", cell.PosWidth},
            {"Div", cell.Div},
            {"DivWidth", cell.DivWidth},
            {"PileOrder", Number(cell.PileOrder)}};
}

const char* StyleName(HistoryStyle style) {
    switch (style) {
        case HistoryStyle::Current:
            return "current";
        case HistoryStyle::Undone:
            return "undone";
        case HistoryStyle::Plain:
            break;
    }
    return "plain";
}

}  // namespace

Json State(const MemoryLayer& layer) {
    const SessionFigures& figures = gData->Figures;
    const mMain::StatusTexts& status = mMain::Status();
    return {{"running", figures.GameRunning},
            {"name", figures.CurGName},
            {"number", NumberJson(figures.CurGNo)},
            {"player", gData->CurPlayer()},
            {"cells", CellsJson()},
            {"markers",
             {{"home", MarksJson(MarkKind::Home)},
              {"goal", MarksJson(MarkKind::Right)},
              {"res", MarksJson(MarkKind::Res)},
              {"waste", MarkJson(MarkKind::Waste, 0)},
              {"stock", MarkJson(MarkKind::Stock, 0)}}},
            {"goalbase", gGoalBase},
            {"emptynum", gGames->EmptyNum},
            {"stocknum", Number(gGames->StockNum)},
            {"redeals_made", gRedealCount},
            {"carrenap", gGames->CarreNapCount},
            {"trans", gTrans->GetTransID()},
            {"maxtrans", gTrans->MaxTrans()},
            {"score", figures.CurScore},
            {"time", figures.CurTime},
            {"moves", figures.CurMoves},
            {"autoplay", gData->Get(Setting::Autoplay)},
            {"status", Json::array({status[0], status[1], status[2]})},
            {"finished", layer.Forms.Finished},
            {"session", SessionJson()}};
}

Json Games() {
    Json games = Json::array();
    for (int SiD = 1; SiD <= gData->TotalGames(); ++SiD) {
        const std::string& name = gData->GetGame(SiD);
        games.push_back({{"sid", SiD},
                         {"gid", gData->GidfromSiD(SiD)},
                         {"mid", gData->MidfromSiD(SiD)},
                         {"id", gData->GetGameID(name)},
                         {"name", name},
                         {"group", gData->GroupfromSiD(SiD)},
                         {"original", gData->IsOriginal(SiD)}});
    }
    return games;
}

Json Definition() {
    Json cells = Json::array();
    for (int Cell = 0; Cell < CellCount; ++Cell) cells.push_back(CellJson(Cell));
    const cGames& game = *gGames;
    return {{"cells", std::move(cells)},
            {"GameType", Number(game.GameType())},
            {"AutoFill", Number(game.AutoFill())},
            {"GoalType", Number(game.GoalType())},
            {"EmptyFillType", Number(game.EmptyFillType())},
            {"EmptyNum", game.EmptyNum},
            {"ResNum", game.ResNum()},
            {"MultiMove", game.MultiMove()},
            {"Redeals", game.Redeals()},
            {"StockType", Number(game.StockType())},
            {"StockMove", Number(game.StockMove())},
            {"HomeType", Number(game.HomeType())},
            {"MultiOrder", Number(game.StoredMultiOrder())},
            {"SuitType", Number(game.SuitType())},
            {"Tag", game.Tag()},
            {"CardsOpen", game.CardsOpen()},
            {"TotalCards", game.TotalCards()},
            {"BaseX", game.BaseX()},
            {"BaseY", game.BaseY()},
            {"DisAutoPlay", game.DisAutoPlay()},
            {"StockNum", Number(game.StockNum)},
            {"GoalDiv", game.GoalDiv()},
            {"GoalUpDown", game.GoalUpDown()},
            {"RedealType", Number(game.RedealType())},
            {"MoveKings", game.MoveKings()},
            {"HomeMaxCards", game.HomeMaxCards},
            {"NoH2HMove", game.NoH2HMove}};
}

Json Log() {
    Json rows = Json::array();
    for (int i = 1; i <= gTrans->MaxTrans(); ++i) {
        const TransRec& record = gTrans->Record(i);
        rows.push_back({record.PicID, record.SCell, record.SPile, record.SPos, record.DCell, record.DPile,
                        record.DPos, record.mCards, Number(record.tMod), record.Multi});
    }
    return rows;
}

Json History() {
    Json rows = Json::array();
    for (const HistoryRow& row : gTrans->CreateLV()) {
        rows.push_back(
            {row.Columns[0], row.Columns[1], row.Columns[2], row.Columns[3], StyleName(row.Style)});
    }
    return rows;
}

std::string Draws() {
    // A second table, shuffled by the same number, stands where the deal began to draw.
    cArray shuffled;
    shuffled.Init(gData->Figures.CurGNo);
    std::string draws = "[";
    int most = gGames->TotalCards();  // a deal draws at most once a card
    for (; !(shuffled.Random == gArray->Random) && most > 0; --most) {
        draws += fmt::format("{}{:.9g}", draws.size() > 1 ? "," : "", shuffled.Random.Next());
    }
    return draws + ']';
}

}  // namespace mLabState
