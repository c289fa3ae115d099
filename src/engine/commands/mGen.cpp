// The spine of a game's life: setting up, starting, winning, closing, and setting a game aside.
#include "engine/commands/mGen.h"

#include <algorithm>
#include <exception>
#include <limits>
#include <optional>
#include <utility>

#include "engine/catalogue/families.h"
#include "engine/commands/mSpoken.h"
#include "engine/records/cScore.h"
#include "engine/records/mPlayers.h"
#include "engine/rules/mCards.h"
#include "engine/rules/mFunc.h"
#include "engine/rules/mPlay.h"
#include "engine/state/RunningGame.h"
#include "engine/state/cArray.h"
#include "engine/state/cData.h"
#include "engine/state/cGames.h"
#include "engine/state/cPlate.h"
#include "engine/state/cTrans.h"
#include "engine/state/mRandom.h"

namespace mGen {

namespace {

int openActions = 0;
AfterGame wanted = AfterGame::Nothing;  // what the end-of-game dialog asked for
struct WantedDeal {
    std::string Name;
    GameNumber Number;
};
std::optional<WantedDeal> wantedDeal;  // asked for out of a list, perhaps over that dialog
std::string caption;                   // of the last game that was started; empty before the first

// Autoplay and win check, after every move.
void AfterMove(bool autoplay) {
    if (autoplay) mPlay::AutoPlayAll();
    if (gData->Figures.GameRunning) CheckWin();
}

void NoteStartTime() {
    const Calendar& calendar = gData->Layer().Calendar;
    gData->Figures.GameStart = calendar.Now();
    gData->Figures.GameStartTime = calendar.Text(gData->Figures.GameStart);
}

int Saturated16(int value) {
    using Limits = std::numeric_limits<short>;
    return std::clamp<int>(value, Limits::min(), Limits::max());
}

// What the end-of-game dialog shows, taken before the game is closed.
FinishSummary Summary() {
    const SessionFigures& figures = gData->Figures;
    FinishSummary summary;
    summary.GameName = figures.CurGName;
    summary.Lines = {" Game : " + mGameNumber::Text(figures.CurGNo), " Player : " + gData->CurPlayer(),
                     " Time : " + mFunc::FormatTime(figures.CurTime),
                     " Moves : " + std::to_string(figures.CurMoves),
                     " Score : " + std::to_string(figures.CurScore)};
    summary.Score = std::max(0, figures.CurScore);
    summary.Moves = figures.CurMoves;
    summary.Seconds = figures.CurTime;
    return summary;
}

void RunWanted() {
    if (const auto deal = std::exchange(wantedDeal, std::nullopt)) {
        wanted = AfterGame::Nothing;
        StartGame(deal->Name, deal->Number);
        return;
    }
    switch (std::exchange(wanted, AfterGame::Nothing)) {
        case AfterGame::Nothing:
            break;
        case AfterGame::NewGame:
            StartGame(gData->LastGName(), mFunc::NewGameNo());
            break;
        case AfterGame::RestartGame:
            StartGame(gData->Figures.CurGName, gData->Figures.CurGNo);
            break;
        case AfterGame::SelectGame:
            gData->Layer().Forms.ShowSelect();
            break;
    }
}

// The flag must fall also when a deal ends in an exception.
class DealingFlag {
public:
    DealingFlag() { gRunning.Dealing = true; }
    ~DealingFlag() {
        gRunning.Dealing = false;
        PicBack.SetHurried(false);
    }
    DealingFlag(const DealingFlag&) = delete;
    DealingFlag& operator=(const DealingFlag&) = delete;
};

void Deal(const GameNumber& number, const std::vector<int>* deck = nullptr) {
    gArray->Init(number);
    if (deck) gArray->SetDeck(*deck);
    mPlay::AssignFaces();
    *gTrans = {};
    NoteStartTime();
    mPlay::StartDeal();
}

}  // namespace

void InitApp() {
    const WindowLayer& layer = gData->Layer();
    gRunning = {};
    gGames = &gRunning.Games;
    gArray = &gRunning.Array;
    gTrans = &gRunning.Trans;
    gArray->OnMoved = AfterMove;
    gScore = std::make_unique<cScore>();
    gData->SesStartTime = layer.Calendar.Text(layer.Calendar.Now());
    PicBack.SetStage(&layer.Stage);
    mPlay::LoadControls();
    RefreshRecent();
    layer.Forms.LayoutTable();
    layer.Forms.PaintBackground();
    for (const std::string& folder : {gData->AppCompDir(), gData->AppDir()}) {
        if (layer.Files.Exists(folder)) continue;
        if (const FileError error = layer.Files.MakeFolder(folder)) {
            layer.Forms.Inform("The folder " + folder + " could not be made: " + *error +
                               "\nRecords of games cannot be written until it exists.");
            break;
        }
    }
    mPlayers::Mend();  // also makes the first player
    for (const Family& family : Families) family.ListGames();
}

void ReleaseAll() {
    gScore.reset();
    gGames = nullptr;
    gArray = nullptr;
    gTrans = nullptr;
    gRunning = {};
    wanted = AfterGame::Nothing;
    wantedDeal.reset();
    caption.clear();
}

void RefreshRecent() {
    std::vector<std::string> names;
    for (int i = 1; i <= RecentSlots; ++i) names.push_back(gData->GetRecent(i));
    gData->Layer().Forms.ShowRecent(names);
}

void SetGameRules(const std::string& name) {
    gGames->NewGameStart();
    for (const Family& family : Families) family.SetGame(name);
}

std::string GameCaption() {
    const SessionFigures& figures = gData->Figures;
    return gData->ProdName() + " [" + figures.CurGName + "] [" + gData->CurPlayer() + "] [" +
           mGameNumber::Text(figures.CurGNo) + "]";
}

void RefreshCaption() {
    if (caption.empty() || Dealing()) return;
    std::string now = GameCaption();
    if (now == caption) return;
    caption = std::move(now);
    gData->Layer().Forms.SetCaption(caption);
}

namespace {

void Start(const std::string& name, const GameNumber& number, const std::vector<int>* deck) {
    if (Dealing() || gData->GetGameID(name) == 0) return;
    const Action action;
    // Both may belong to what the steps below change, such as the current game of a restart.
    const std::string game = name;         // NOLINT(performance-unnecessary-copy-initialization)
    const GameNumber gameNumber = number;  // NOLINT(performance-unnecessary-copy-initialization)
    if (gData->Figures.GameRunning) CloseGame(0);
    gData->SetRecent(game);
    RefreshRecent();
    SetGameRules(game);
    gData->Figures.CurGNo = gameNumber;
    gData->SetCurGName(game);
    caption = GameCaption();
    gData->Layer().Forms.SetCaption(caption);
    {
        const DealingFlag flag;
        gDrag = {};
        Deal(gameNumber, deck);
    }
    gData->Figures.GameRunning = true;
    const std::optional<mSpoken::Change> change = mSpoken::Watch();
    mPlay::AutoPlayAll();
    gRedealCount = 0;
    if (!change) return;
    const std::string went = change->Text();
    mSpoken::Say(game + " dealt" + (went.empty() ? "" : ", " + went));
}

}  // namespace

void StartGame(const std::string& name, const GameNumber& number) { Start(name, number, nullptr); }

void StartAfter(const std::string& name, const GameNumber& number) {
    const Action action;
    wantedDeal = {name, number};
}

void StartDeck(const std::string& name, const std::vector<int>& deck) { Start(name, 0.0, &deck); }

void CloseGame(int mWon) {
    gScore->AddScore(mWon);
    gScore->AddSesGame(mWon);
    gData->Figures.GameRunning = false;
    gDrag = {};
    mCards::HideAll();
}

int CardsToWin() {
    const int total = gGames->TotalCards();
    if (gGames->GameType() == GameType::CompleteRuns) return total;
    return std::min(total, RankCount * gGames->Piles(Goal));
}

void CheckWin() {
    if (gArray->TotalGoalCards() != CardsToWin()) return;
    const FinishSummary summary = Summary();
    gData->PlaySound("Win");
    mSpoken::Say("The game is won");
    gData->Layer().Forms.KeepTable();
    // Recorded before the dialog shows, so that the statistics that it opens contain the game.
    CloseGame(1);
    wanted = gData->Layer().Forms.ShowFinish(summary);
}

int CalcScore() {
    if (!gData->Figures.GameRunning) return 0;
    const double spent = gData->Figures.CurTime / 3.0 + gData->Figures.CurMoves / 2.0;
    return Saturated16(RoundToEven(10 * gArray->TotalGoalCards() - spent));
}

bool Dealing() { return gRunning.Dealing; }

void HurryDeal() {
    if (Dealing()) PicBack.SetHurried(true);
}

Action::Action() : exceptions_(std::uncaught_exceptions()) { ++openActions; }

Action::~Action() noexcept(false) {
    --openActions;
    if (std::uncaught_exceptions() > exceptions_) return;
    if (openActions == 0 && (wantedDeal || wanted != AfterGame::Nothing)) RunWanted();
}

AsideGame::AsideGame() : saved_(gRunning) {
    PicBack.SetStage(nullptr);
    gRunning.Quiet = true;
    gRunning.Figures.GameRunning = false;
}

AsideGame::~AsideGame() { gRunning = std::move(saved_); }

void AsideGame::Deal(const std::string& name, const GameNumber& number) {
    mCards::HideAll();
    SetGameRules(name);
    const DealingFlag flag;
    mGen::Deal(number);
}

}  // namespace mGen
