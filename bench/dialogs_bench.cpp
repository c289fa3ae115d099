// How long the dialogs of the records take to come up, to answer a choice and to scroll, over stores of
// usual and of extreme size. Prints figures and their limits and fails when one is missed by more than a
// quarter. Run it on a screen, or a virtual one.
#include <ctime>
#include <functional>
#include <memory>
#include <utility>
#include <vector>

#include <QApplication>
#include <QComboBox>
#include <QHeaderView>
#include <QScrollBar>
#include <QTabWidget>
#include <QTableView>
#include <QTest>

#include "StoreBench.h"
#include "mFigures.h"
#include "window/records/frmFinish.h"
#include "window/records/frmGameStat.h"
#include "window/records/frmHighScore.h"
#include "window/records/frmLogStat.h"
#include "window/records/frmMoreStat.h"
#include "window/records/frmOrgFav.h"
#include "window/records/frmPlayFav.h"
#include "window/records/frmPlayers.h"
#include "window/records/frmSesStat.h"

namespace {

/// Until all that the last change asks for is on the screen.
void Settle() {
    QApplication::sendPostedEvents();
    QApplication::processEvents();
}

double ProcessorMs() {
    timespec used{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &used);
    return static_cast<double>(used.tv_sec) * 1000.0 + static_cast<double>(used.tv_nsec) / 1e6;
}

/// In processor time, which other programs do not spoil.
void Measure(const std::string& what, const std::function<void()>& task) {
    const double before = ProcessorMs();
    task();
    Settle();
    mFigures::Print((what + ", processor time").c_str(), ProcessorMs() - before, "ms", ViewLimit);
}

/// A view of the records loads them first, for which the limit counts them.
template <typename Dialog, typename... Arguments>
std::unique_ptr<Dialog> Open(const char* name, double limit, Arguments... arguments) {
    std::unique_ptr<Dialog> dialog;
    const double before = ProcessorMs();
    const double wall = Milliseconds([&] {
        dialog = std::make_unique<Dialog>(arguments...);
        dialog->show();
        (void)QTest::qWaitForWindowExposed(dialog.get());
        Settle();
    });
    const double processor = ProcessorMs() - before;
    mFigures::Print((std::string(name) + ": up").c_str(), wall, "ms", limit);
    mFigures::Print((std::string(name) + ": up, processor time").c_str(), processor, "ms", limit);
    return dialog;
}

/// Every item of a drop-down list, or some of them where there are many, and then what it showed before.
void Choose(const QWidget& dialog, const char* name) {
    constexpr int Most = 8;
    auto* combo = dialog.findChild<QComboBox*>(QLatin1String(name));
    const int step = std::max(1, combo->count() / Most);
    const int before = combo->currentIndex();
    for (int i = 0; i < combo->count(); i += step) {
        Measure(std::string(name) + ": " + combo->itemText(i).toStdString(),
                [&] { combo->setCurrentIndex(i); });
    }
    Measure(std::string(name) + ": back to " + combo->itemText(before).toStdString(),
            [&] { combo->setCurrentIndex(before); });
}

void ShowTabs(const QWidget& dialog) {
    auto* tabs = dialog.findChild<QTabWidget*>();
    for (int tab = 1; tab < tabs->count(); ++tab) {
        Measure("tab " + tabs->tabText(tab).toStdString(), [&] { tabs->setCurrentIndex(tab); });
    }
}

/// By each heading, the other way round, and back.
void Sort(const QWidget& dialog) {
    QHeaderView* headings = dialog.findChild<QTableView*>()->horizontalHeader();
    for (int column = 0; column < headings->count(); ++column) {
        const std::string name =
            headings->model()->headerData(column, Qt::Horizontal).toString().toStdString();
        for (const Qt::SortOrder order : {Qt::AscendingOrder, Qt::DescendingOrder})
            Measure("sorted by " + name, [&] { headings->setSortIndicator(column, order); });
    }
    Measure("as it was", [&] { headings->setSortIndicator(-1, Qt::AscendingOrder); });
}

void Scroll(const QWidget& dialog) {
    constexpr int Steps = 100;
    constexpr double StepLimit = 16.0;  // a refresh of the screen
    auto* view = dialog.findChild<QTableView*>();
    QScrollBar* bar = view->verticalScrollBar();
    const auto perStep = [](const char* what, const std::function<void(int)>& step) {
        const double before = ProcessorMs();
        for (int i = 1; i <= Steps; ++i) {
            step(i);
            Settle();
        }
        mFigures::Print(what, (ProcessorMs() - before) / Steps, "ms", StepLimit);
    };
    perStep("a step of the scroll bar, processor time", [&](int i) {
        bar->setValue(static_cast<int>(static_cast<long long>(bar->maximum()) * i / Steps));
    });
    Measure("to the end by key", [&] { QTest::keyClick(view, Qt::Key_End); });
    perStep("a page by key, processor time", [&](int) { QTest::keyClick(view, Qt::Key_PageUp); });
}

void Run(const RecordPlan& plan) {
    const StoreBench store(plan);
    const int records = plan.RecordsEach * plan.Players;
    std::printf("%d records of %d players\n", records, plan.Players);
    const double limit = records > 10000 ? LoadLimit + ViewLimit : ViewLimit;
    {
        const auto dialog = Open<frmGameStat>("frmGameStat", limit);
        ShowTabs(*dialog);
        for (const char* combo : {"cmGames", "imcDate", "imcPlayer"}) Choose(*dialog, combo);
        constexpr double OverLimit = 200.0;  // over a store that is loaded
        const auto more = Open<frmMoreStat>("frmMoreStat", OverLimit);
        ShowTabs(*more);
        for (const char* combo : {"imcPlayer", "imcGroup", "imcPeriod"}) Choose(*more, combo);
        more->findChild<QTabWidget*>()->setCurrentIndex(2);  // the longest of its tables
        for (const char* combo : {"imcPlayer", "imcGroup", "imcPeriod", "imcGames"}) Choose(*more, combo);
    }
    {
        const auto dialog = Open<frmHighScore>("frmHighScore", limit);
        ShowTabs(*dialog);
        for (const char* combo : {"imcGames", "imcPlayer", "imcFin"}) Choose(*dialog, combo);
    }
    {
        const auto dialog = Open<frmLogStat>("frmLogStat", limit);
        for (const char* combo : {"imcDate", "imcPlayer", "cmGames"}) Choose(*dialog, combo);
        Sort(*dialog);
        Scroll(*dialog);
    }
    ShowTabs(*Open<frmSesStat>("frmSesStat", ViewLimit));
    Open<frmFinish>("frmFinish", ViewLimit, FinishSummary{"Klondike", {" Game : 1"}, 500, 100, 300});
    Open<frmPlayers>("frmPlayers", ViewLimit);
    Open<frmOrgFav>("frmOrgFav", ViewLimit);
    Open<frmPlayFav>("frmPlayFav", ViewLimit);
}

}  // namespace

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    // The first window of a process pays for fonts and style, which is not what is measured.
    QTableView first;
    first.show();
    (void)QTest::qWaitForWindowExposed(&first);
    for (const int each : {500, 50000}) {
        RecordPlan plan;
        plan.RecordsEach = each;
        Run(plan);
    }
    return mFigures::ExitCode();
}
