// The diary: a ring of the last actions, and all ways in which the program can end badly.
#include "tools/monkey/Diary.h"

#include <array>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <map>
#include <string_view>

#include <unistd.h>

#include <QObject>
#include <QString>
#include <QtGlobal>

#if defined(__SANITIZE_ADDRESS__)
#include <sanitizer/common_interface_defs.h>
#endif

namespace {

constexpr std::size_t Kept = 60;

std::uint32_t seed = 0;
long actions = 0;
std::array<std::string, Kept> last;
std::map<std::string, long> counts;

void PrintLast() {
    std::fprintf(stderr, "seed %u, action %ld; the last actions:\n", seed, actions);
    for (std::size_t i = 0; i < Kept; ++i) {
        const std::string& action = last[(static_cast<std::size_t>(actions) + 1 + i) % Kept];
        if (!action.empty()) std::fprintf(stderr, "  %s\n", action.c_str());
    }
    std::fflush(stderr);
}

void OnAbort(int) {
    PrintLast();
    ::_exit(1);
}

// The offscreen screen has no window manager and no input method, and Qt says so.
bool IsOfTheScreen(std::string_view text) {
    for (const std::string_view part :
         {"This plugin does not support", "propagateSizeHints", "XDG_RUNTIME_DIR"}) {
        if (text.find(part) != std::string_view::npos) return true;
    }
    return false;
}

void OnQtMessage(QtMsgType type, const QMessageLogContext&, const QString& message) {
    const std::string text = message.toStdString();
    if (type == QtDebugMsg || type == QtInfoMsg || IsOfTheScreen(text)) return;
    mDiary::Fail("Qt warns: " + text);
}

}  // namespace

namespace mDiary {

void Open(std::uint32_t newSeed) {
    seed = newSeed;
    std::signal(SIGABRT, OnAbort);
#if defined(__SANITIZE_ADDRESS__)
    __sanitizer_set_death_callback(PrintLast);
#else
    std::signal(SIGSEGV, OnAbort);
#endif
    qInstallMessageHandler(OnQtMessage);
}

void Note(const std::string& action) {
    ++actions;
    last[static_cast<std::size_t>(actions) % Kept] = std::to_string(actions) + ": " + action;
}

void Count(const std::string& what) { ++counts[what]; }

std::string NameOf(const QObject* object) {
    std::string name = object->metaObject()->className();
    if (!object->objectName().isEmpty()) name += ' ' + object->objectName().toStdString();
    return name;
}

long Actions() { return actions; }

void Report(int seconds, const std::string& more) {
    std::printf("%5d s  %7ld actions  %s\n", seconds, actions, more.c_str());
    std::fflush(stdout);
}

void ReportCounts() {
    for (const auto& [what, count] : counts) std::printf("%7ld %s\n", count, what.c_str());
}

void Fail(const std::string& fault) {
    std::fprintf(stderr, "FAILED: %s\n", fault.c_str());
    PrintLast();
    ::_exit(1);
}

}  // namespace mDiary
