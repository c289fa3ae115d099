// How long the dialogs of the records take to come up, to answer a choice and to scroll, over stores of
// usual and of extreme size. Run it on a screen, or a virtual one.
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

/// The dialogs over one store, in processor time, which other programs do not spoil.
class Dialogs {
public:
    explicit Dialogs(const std::string& records)
        : up_("the longest dialog to come up, " + records),
          answer_("the longest answer of a dialog, " + records),
          step_("a step of the log's scroll bar, " + records),
          page_("a page of the log by key, " + records) {}

    void Answer(const std::string& what, const std::function<void()>& task) {
        const double before = ProcessorMs();
        task();
        Settle();
        answer_.Add(what, ProcessorMs() - before);
    }
    template <typename Dialog, typename... Arguments>
    std::unique_ptr<Dialog> Open(const char* name, Arguments... arguments) {
        const double before = ProcessorMs();
        auto dialog = std::make_unique<Dialog>(arguments...);
        dialog->show();
        (void)QTest::qWaitForWindowExposed(dialog.get());
        Settle();
        up_.Add(name, ProcessorMs() - before);
        return dialog;
    }
    void Choose(const QWidget& dialog, const char* name);
    void ShowTabs(const QWidget& dialog);
    void Sort(const QWidget& dialog);
    void Scroll(const QWidget& dialog);

private:
    mFigures::Longest up_, answer_;
    std::string step_, page_;
};

/// Every item of a drop-down list, or some of them where there are many, and then what it showed before.
void Dialogs::Choose(const QWidget& dialog, const char* name) {
    constexpr int Most = 8;
    auto* combo = dialog.findChild<QComboBox*>(QLatin1String(name));
    const int step = std::max(1, combo->count() / Most);
    const int before = combo->currentIndex();
    for (int i = 0; i < combo->count(); i += step) {
        Answer(std::string(name) + ": " + combo->itemText(i).toStdString(),
               [&] { combo->setCurrentIndex(i); });
    }
    Answer(std::string(name) + ": back to " + combo->itemText(before).toStdString(),
           [&] { combo->setCurrentIndex(before); });
}

void Dialogs::ShowTabs(const QWidget& dialog) {
    auto* tabs = dialog.findChild<QTabWidget*>();
    for (int tab = 1; tab < tabs->count(); ++tab) {
        Answer("tab " + tabs->tabText(tab).toStdString(), [&] { tabs->setCurrentIndex(tab); });
    }
}

/// By each heading, the other way round, and back.
void Dialogs::Sort(const QWidget& dialog) {
    QHeaderView* headings = dialog.findChild<QTableView*>()->horizontalHeader();
    for (int column = 0; column < headings->count(); ++column) {
        const std::string name =
            headings->model()->headerData(column, Qt::Horizontal).toString().toStdString();
        for (const Qt::SortOrder order : {Qt::AscendingOrder, Qt::DescendingOrder})
            Answer("sorted by " + name, [&] { headings->setSortIndicator(column, order); });
    }
    Answer("as it was", [&] { headings->setSortIndicator(-1, Qt::AscendingOrder); });
}

void Dialogs::Scroll(const QWidget& dialog) {
    constexpr int Steps = 100;
    auto* view = dialog.findChild<QTableView*>();
    QScrollBar* bar = view->verticalScrollBar();
    const auto perStep = [](const std::string& what, const std::function<void(int)>& step) {
        const double before = ProcessorMs();
        for (int i = 1; i <= Steps; ++i) {
            step(i);
            Settle();
        }
        mFigures::Print(what, (ProcessorMs() - before) / Steps, "ms");
    };
    perStep(step_, [&](int i) {
        bar->setValue(static_cast<int>(static_cast<long long>(bar->maximum()) * i / Steps));
    });
    Answer("to the end by key", [&] { QTest::keyClick(view, Qt::Key_End); });
    perStep(page_, [&](int) { QTest::keyClick(view, Qt::Key_PageUp); });
}

void Run(const RecordPlan& plan) {
    const StoreBench store(plan);
    const int records = plan.RecordsEach * plan.Players;
    Dialogs dialogs(std::to_string(records) + " records");
    {
        const auto dialog = dialogs.Open<frmGameStat>("frmGameStat");
        dialogs.ShowTabs(*dialog);
        for (const char* combo : {"cmGames", "imcDate", "imcPlayer"}) dialogs.Choose(*dialog, combo);
        const auto more = dialogs.Open<frmMoreStat>("frmMoreStat");
        dialogs.ShowTabs(*more);
        for (const char* combo : {"imcPlayer", "imcGroup", "imcPeriod"}) dialogs.Choose(*more, combo);
        more->findChild<QTabWidget*>()->setCurrentIndex(2);  // the longest of its tables
        for (const char* combo : {"imcPlayer", "imcGroup", "imcPeriod", "imcGames"})
            dialogs.Choose(*more, combo);
    }
    {
        const auto dialog = dialogs.Open<frmHighScore>("frmHighScore");
        dialogs.ShowTabs(*dialog);
        for (const char* combo : {"imcGames", "imcPlayer", "imcFin"}) dialogs.Choose(*dialog, combo);
    }
    {
        const auto dialog = dialogs.Open<frmLogStat>("frmLogStat");
        for (const char* combo : {"imcDate", "imcPlayer", "cmGames"}) dialogs.Choose(*dialog, combo);
        dialogs.Sort(*dialog);
        dialogs.Scroll(*dialog);
    }
    dialogs.ShowTabs(*dialogs.Open<frmSesStat>("frmSesStat"));
    dialogs.Open<frmFinish>("frmFinish", FinishSummary{"Klondike", {" Game : 1"}, 500, 100, 300});
    dialogs.Open<frmPlayers>("frmPlayers");
    dialogs.Open<frmOrgFav>("frmOrgFav");
    dialogs.Open<frmPlayFav>("frmPlayFav");
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
    return 0;
}
