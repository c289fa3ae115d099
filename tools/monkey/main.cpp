// The real program with a monkey at its mouse and keyboard.
//
//   tarnival-monkey [--seconds N] [--seed N]
//
// Runs for that long (300 seconds unless told), and opens the main window anew every few thousand actions.
// Every half minute it prints how many actions were made, what they met, the bytes in use on the heap and
// the resident memory. Exit code 0: no fault was found, and the heap has not grown after the first part.
// With the same seed the monkey makes the same choices, as far as it meets the same windows: timers that
// fall otherwise can lead it elsewhere.
#include <malloc.h>
#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <exception>
#include <fstream>
#include <memory>
#include <string>
#include <vector>

#include <QAction>
#include <QApplication>
#include <QDesktopServices>
#include <QDir>
#include <QElapsedTimer>
#include <QPixmapCache>
#include <QTemporaryDir>
#include <QThread>
#include <QTimer>

#include "engine/commands/mLoad.h"
#include "tools/monkey/Diary.h"
#include "tools/monkey/Monkey.h"
#include "window/dialogs/frmSelect.h"
#include "window/dialogs/frmSplash.h"
#include "window/look/mIcons.h"
#include "window/look/mPictures.h"
#include "window/outside/QtCalendar.h"
#include "window/outside/mModules.h"
#include "window/table/ProgramLayer.h"
#include "window/table/TableView.h"
#include "window/table/frmMain.h"

#if defined(__SANITIZE_ADDRESS__)
extern "C" std::size_t __sanitizer_get_current_allocated_bytes();
#endif

// The table waits for the next refresh of the screen after each step of a card. Nobody watches here, and an
// hour of waiting is an hour without actions: in this program the wait is the shortest there is.
void QThread::usleep(unsigned long) { ::usleep(100); }

namespace {

constexpr long ActionsASession = 2500;
constexpr int ReportEvery = 30;               // seconds
constexpr long MostGrowth = 2 * 1024 * 1024;  // bytes

/// Bytes in use, without what the allocator keeps for later and what the sanitizer keeps in quarantine.
long HeapBytes() {
#if defined(__SANITIZE_ADDRESS__)
    return static_cast<long>(__sanitizer_get_current_allocated_bytes());
#else
    const struct mallinfo2 info = ::mallinfo2();
    return static_cast<long>(info.uordblks + info.hblkhd);
#endif
}

long ResidentBytes() {
    std::ifstream file("/proc/self/statm");
    long whole = 0;
    long resident = 0;
    file >> whole >> resident;
    return resident * ::sysconf(_SC_PAGESIZE);
}

class Application : public QApplication {
public:
    using QApplication::QApplication;
    bool notify(QObject* receiver, QEvent* event) override {
        try {
            return QApplication::notify(receiver, event);
        } catch (const std::exception& error) {
            mDiary::Fail(std::string("an exception: ") + error.what());
        }
    }
};

/// The heap after each end of the program, when all that it had drawn is dropped, too. What libraries keep
/// for later comes in the first third of the sessions, and does not count; nor does the largest step of a
/// later one, in which a cache is filled that few sessions need.
class Memory {
public:
    void SessionEnded() {
        mPictures::Forget();
        QPixmapCache::clear();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        ends_.push_back(HeapBytes());
    }
    /// What the last third of the sessions has at the least, more than the first third at the most.
    [[nodiscard]] long Growth() const {
        const auto third = static_cast<std::ptrdiff_t>(ends_.size() / 3);
        if (third == 0) return 0;
        long largest = 0;
        for (auto end = ends_.begin() + third; end != ends_.end(); ++end)
            largest = std::max(largest, *end - *(end - 1));
        return *std::min_element(ends_.end() - third, ends_.end()) -
               *std::max_element(ends_.begin(), ends_.begin() + third) - largest;
    }

private:
    std::vector<long> ends_;
};

struct Options {
    int Seconds = 300;
    std::uint32_t Seed = 1;
};

Options Read(int argc, char** argv) {
    Options options;
    for (int i = 1; i + 1 < argc; i += 2) {
        if (std::strcmp(argv[i], "--seconds") == 0) options.Seconds = std::atoi(argv[i + 1]);
        if (std::strcmp(argv[i], "--seed") == 0) {
            options.Seed = static_cast<std::uint32_t>(std::strtoul(argv[i + 1], nullptr, 10));
        }
    }
    return options;
}

/// A home of its own for settings and records, in memory where the machine has such a folder: the program
/// waits for the disk at each setting that it writes.
std::unique_ptr<QTemporaryDir> MakeHome() {
    const QString memory = QStringLiteral("/dev/shm");
    auto home = std::make_unique<QTemporaryDir>(
        QFileInfo(memory).isWritable() ? memory + QStringLiteral("/monkey-XXXXXX") : QString());
    qputenv("HOME", home->path().toUtf8());
    for (const char* folder : {"XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME", "XDG_RUNTIME_DIR"}) {
        const QString path = home->filePath(QLatin1String(folder));
        QDir().mkpath(path);
        QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        qputenv(folder, path.toUtf8());
    }
    QDir::setCurrent(home->path());
    return home;
}

/// The program from its splash to the end of its main window.
void RunOnce(Monkey& monkey, MonkeyCalendar& calendar, long most) {
    QApplication::setQuitOnLastWindowClosed(false);
    ProgramLayer program;
    const WindowLayer layer = program.Layer();
    mLoad::Main({layer.Stage, layer.Settings, layer.Files, calendar, layer.Sounds, layer.Forms, layer.Help});
    auto window = std::make_unique<frmMain>();
    program.SetMain(window.get());
    // It ends the process at once, which is all that there is to see.
    window->findChild<QAction*>(QStringLiteral("mFile11"))->setVisible(false);

    const auto showMainWindow = [&] {
        window->Load();
        window->show();
        QApplication::setQuitOnLastWindowClosed(true);
        monkey.Begin(window.get(), &calendar, most);
        frmSelect dialog;
        dialog.exec();
    };
    auto* splash = new frmSplash;
    QObject::connect(splash, &frmSplash::Ended, window.get(), showMainWindow, Qt::QueuedConnection);
    splash->show();
    splash->close();
    QApplication::exec();
    monkey.End();
    mLoad::UnloadMain();
}

std::string MemoryText() {
    return std::to_string(HeapBytes() / 1024) + " KiB in use, " + std::to_string(ResidentBytes() / 1024) +
           " KiB resident";
}

}  // namespace

int main(int argc, char** argv) {
    const Options options = Read(argc, argv);
    const auto home = MakeHome();
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    Application application(argc, argv);
    QApplication::setOrganizationName(QStringLiteral("Kelmor"));
    QApplication::setApplicationName(QStringLiteral("Tarnival"));
    QApplication::setWindowIcon(mIcons::Application());

    // What its libraries keep is there before the first session, and not with the first chart.
    (void)mModules::Load("tarnival-charts.so");
    std::printf("seed %u, %d seconds\n", options.Seed, options.Seconds);
    mDiary::Open(options.Seed);
    Monkey monkey(options.Seed);
    // A link leads to the machine's browser; it is enough that it was pressed.
    constexpr const char* schemes[] = {"http", "https", "mailto"};
    for (const char* scheme : schemes) {
        QDesktopServices::setUrlHandler(QLatin1String(scheme), &monkey, "FollowLink");
    }
    QtCalendar machine;
    MonkeyCalendar calendar(machine);
    Memory memory;
    QElapsedTimer clock;
    clock.start();
    int reported = 0;
    const auto second = [&] { return static_cast<int>(clock.elapsed() / 1000); };
    QTimer watch;
    QObject::connect(&watch, &QTimer::timeout, &application, [&] {
        if (second() >= options.Seconds) monkey.Finish();
        if (second() / ReportEvery == reported) return;
        reported = second() / ReportEvery;
        mDiary::Report(second(), std::to_string(monkey.GamesSeen()) + " different games  " + MemoryText());
    });
    watch.start(50);
    while (second() < options.Seconds) {
        RunOnce(monkey, calendar, ActionsASession);
        memory.SessionEnded();
    }

    for (const char* scheme : schemes) QDesktopServices::unsetUrlHandler(QLatin1String(scheme));
    mDiary::Report(second(), std::to_string(monkey.GamesSeen()) + " different games  " + MemoryText());
    mDiary::ReportCounts();
    std::printf("the heap grew by %ld KiB after the first sessions\n", memory.Growth() / 1024);
    if (memory.Growth() > MostGrowth) mDiary::Fail("the memory in use grows");
    return 0;
}
