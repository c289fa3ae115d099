// Ten thousand games in one process: the program's own settings file, score file and calendar, with nobody
// at the screen.
//
//   tarnival-endurance [GAMES]
//
// Plays the games of the catalogue in turn, each with some moves of the random player, and ends each as lost
// where it was not won. After every thousand it prints the seconds that they took and the bytes in use.
// Exit code 0: every game is in the session list and in the score file, and memory grew by no more than the
// session list itself.
#include <malloc.h>

#include <chrono>
#include <cstdio>
#include <cstdlib>

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>

#include "engine/commands/mGen.h"
#include "engine/commands/mLoad.h"
#include "engine/commands/mMain.h"
#include "engine/outside/DiskFiles.h"
#include "engine/outside/memorylayer.h"
#include "engine/records/cScore.h"
#include "engine/state/cData.h"
#include "tools/RandomPlayer.h"
#include "tools/mChecks.h"
#include "window/outside/QtCalendar.h"
#include "window/outside/QtSettings.h"

namespace {

using Clock = std::chrono::steady_clock;

constexpr int ActionsAGame = 60;
constexpr int Step = 1000;        // games between two lines of figures
constexpr long BytesAGame = 400;  // of the session list, its growth in steps included

class NoSounds : public SoundPlayer {
public:
    void Play(const std::string&) override {}
};

long HeapBytes() {
    const struct mallinfo2 info = ::mallinfo2();
    return static_cast<long>(info.uordblks + info.hblkhd);
}

int Fail(const std::string& fault) {
    std::fprintf(stderr, "FAILED: %s\n", fault.c_str());
    return 1;
}

int Play(int games, const MemoryForms& forms) {
    RandomPlayer player(1);
    long firstHeap = 0;
    int won = 0;
    auto from = Clock::now();
    for (int i = 0; i < games; ++i) {
        mGen::StartGame(gData->GetGame(i % gData->TotalGames() + 1), 1.0 + i);
        player.Forget();
        for (int action = 0; action < ActionsAGame && gData->Figures.GameRunning; ++action) player.Act();
        if (gData->Figures.GameRunning) {
            const std::string fault = mChecks::TableFault();
            if (!fault.empty()) return Fail(gData->Figures.CurGName + ": " + fault);
            mMain::TickTime();
            mMain::CloseGame();
        } else {
            ++won;
        }
        if ((i + 1) % Step != 0) continue;
        const std::chrono::duration<double> passed = Clock::now() - from;
        std::printf("%6d games: the last %d in %.2f s, %ld KiB in use\n", i + 1, Step, passed.count(),
                    HeapBytes() / 1024);
        std::fflush(stdout);
        if (firstHeap == 0) firstHeap = HeapBytes();
        from = Clock::now();
    }
    const long grown = HeapBytes() - firstHeap;
    gScore->OpenAllScore();
    std::printf("%d won; %d in the session list, %d in the score file; %ld bytes more a game\n", won,
                gScore->SesTop(), gScore->ScoreTop(), games > Step ? grown / (games - Step) : 0);
    if (!forms.Messages.empty()) return Fail("a message: " + forms.Messages.front());
    if (gScore->SesTop() != games || gScore->ScoreTop() != games) return Fail("games are missing");
    if (gScore->TotalStat().Won < won) return Fail("a win was not recorded");
    if (grown > BytesAGame * games) return Fail("memory grows");
    return 0;
}

}  // namespace

int main(int argc, char** argv) {
    const int games = argc > 1 ? std::atoi(argv[1]) : 10000;
    const QTemporaryDir home(
        QDir(QStringLiteral("/dev/shm")).exists() ? QStringLiteral("/dev/shm/endurance-XXXXXX") : QString());
    for (const char* folder : {"HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME"}) {
        qputenv(folder, home.path().toUtf8());
    }
    const QCoreApplication application(argc, argv);
    MemoryStage stage;
    MemoryForms forms;
    MemoryHelp help;
    QtSettings settings;
    DiskFiles files;
    QtCalendar calendar;
    NoSounds sounds;
    mLoad::Main({stage, settings, files, calendar, sounds, forms, help});
    mMain::Load();
    const int result = Play(games, forms);
    mLoad::UnloadMain();
    return result;
}
