// What the window costs: a drag step, a step of the zoom, a step of the window's size, a deal of 104 cards,
// an idle window. Run it on a screen, or a virtual one.
#include <algorithm>
#include <cmath>
#include <cstdio>
#include <ctime>
#include <limits>
#include <memory>
#include <stdexcept>
#include <string>

#include <QApplication>
#include <QElapsedTimer>
#include <QScreen>
#include <QTest>
#include <QTimer>

#include "engine/commands/mGen.h"
#include "engine/commands/mLoad.h"
#include "engine/commands/mZoom.h"
#include "engine/outside/memorylayer.h"
#include "engine/rules/mFunc.h"
#include "engine/state/cArray.h"
#include "engine/state/cData.h"
#include "engine/state/cGames.h"
#include "mFigures.h"
#include "window/look/mTablePicture.h"
#include "window/table/TableView.h"
#include "window/table/frmMain.h"

namespace {

double ProcessorMs() {
    timespec used{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &used);
    return static_cast<double>(used.tv_sec) * 1000.0 + static_cast<double>(used.tv_nsec) / 1e6;
}

// The longest group of the table that is in sight in the hand, moved to and fro.
void MeasureDrag(TableView& table, double zoom) {
    mGen::StartGame("Simple Klondike", 1.0);
    table.SetZoom(zoom);
    QWidget* viewport = table.viewport();
    QPoint grip;
    int most = -1;
    for (int pile = 0; pile < gGames->Piles(Home); ++pile) {
        if (gArray->GetTop(Home, pile) < 0) continue;
        const int card = gArray->GetPicID(Home, pile, 0);
        const QPoint index =
            table.mapFromScene(QPointF(mFunc::CardLeft(card) + 150, mFunc::CardTop(card) + 90));
        int above = 0;
        if (!viewport->rect().contains(index) || !mFunc::CanLift(card, above) || above <= most) continue;
        most = above;
        grip = index;
    }
    if (most < 0) throw std::runtime_error("no card of the table is in sight");
    QTest::mousePress(viewport, Qt::LeftButton, Qt::NoModifier, grip);
    constexpr int Steps = 1000;
    const double before = ProcessorMs();
    for (int i = 0; i < Steps; ++i) {
        const QPoint to = grip + QPoint(i % 2 == 0 ? i % 200 : 200 - i % 200, i % 150);
        QMouseEvent move(QEvent::MouseMove, to, viewport->mapToGlobal(to), Qt::NoButton, Qt::LeftButton,
                         Qt::NoModifier);
        QApplication::sendEvent(viewport, &move);
        QApplication::processEvents();
    }
    const double step = (ProcessorMs() - before) / Steps;
    QTest::mouseRelease(viewport, Qt::LeftButton, Qt::NoModifier, grip);
    const std::string what = "a drag step of " + std::to_string(most + 1) + " cards at " +
                             std::to_string(std::lround(zoom * 100)) + " %";
    mFigures::Print(what + ", processor time", step, "ms");
}

// From a small window to a large one and back, pixel by pixel, with the game fitted and painted.
void MeasureResize(frmMain& window) {
    constexpr QSize Small(400, 300);
    constexpr QSize Large(1270, 850);
    constexpr int Steps = 400;
    const QSize before = window.size();
    mGen::StartGame("Simple Klondike", 1.0);
    window.resize(Small);
    QTest::qWait(500);
    double longest = 0;
    const double start = ProcessorMs();
    for (int i = 1; i <= Steps; ++i) {
        const double part = 1 - std::abs(1 - 2.0 * i / Steps);
        const double step = ProcessorMs();
        window.resize((QSizeF(Small) + part * QSizeF(Large - Small)).toSize());
        window.Table()->viewport()->repaint();
        QApplication::processEvents();
        longest = std::max(longest, ProcessorMs() - step);
    }
    mFigures::Print("a step of the window's size, 104 cards, processor time", (ProcessorMs() - start) / Steps,
                    "ms");
    mFigures::Print("the longest of these steps", longest, "ms");
    window.resize(before);
    QTest::qWait(500);
}

// From each size to the next and back, with all cards of a deck open, and painted.
void MeasureZoom(TableView& table) {
    mGen::StartGame("Freecell", 1.0);
    double longest = 0;
    const auto show = [&](double percent) {
        QElapsedTimer timer;
        timer.start();
        table.SetZoom(percent / 100);
        table.viewport()->repaint();
        longest = std::max(longest, static_cast<double>(timer.nsecsElapsed()) / 1e6);
    };
    double percent = mZoom::Smallest;
    for (; percent < mZoom::Largest; percent = mZoom::Larger(percent)) show(percent);
    for (; percent > mZoom::Smallest; percent = mZoom::Smaller(percent)) show(percent);
    mFigures::Print("the longest step of the zoom, pictures rendered", longest, "ms");
    show(mZoom::ActualSize);
}

void MeasureDeal(const TableView& table) {
    constexpr int Cards = 104;
    constexpr int Deals = 3;  // the least of them: what others do on the machine can only add to it
    const double period = 1000.0 / table.screen()->refreshRate();
    double beyond = std::numeric_limits<double>::infinity();
    for (int i = 0; i < Deals; ++i) {
        QElapsedTimer timer;
        timer.start();
        mGen::StartGame("Mandate", 1.0);
        beyond = std::min(beyond, static_cast<double>(timer.nsecsElapsed()) / 1e6 - Cards * period);
    }
    mFigures::Print("a deal of 104 cards, time beyond 104 refreshes", beyond, "ms");
}

// As the selection dialog shows them, one after the other; the first has the pictures rendered.
void MeasurePreviews() {
    const QSize size(312, 225);
    double longest = 0;
    for (int SiD = 1; SiD <= gData->TotalGames(); ++SiD) {
        const double before = ProcessorMs();
        (void)mTablePicture::Preview(gData->GetGame(SiD), size, 1.0);
        longest = std::max(longest, ProcessorMs() - before);
    }
    mFigures::Print("the longest preview of all games, processor time", longest, "ms");
}

void MeasureIdle() {
    constexpr int Seconds = 10;
    QTest::qWait(500);
    const double before = ProcessorMs();
    // The program's own loop: a test's waiting would poll and cost more than what is measured.
    QTimer::singleShot(Seconds * 1000, qApp, &QApplication::quit);
    QApplication::exec();
    mFigures::Print("an idle window with a game, share of one core",
                    (ProcessorMs() - before) / (Seconds * 10.0), "%");
}

}  // namespace

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    MemoryLayer memory;
    auto window = std::make_unique<frmMain>();
    // The window learns by its caption that a game begins.
    struct : MemoryForms {
        frmMain* Window = nullptr;
        void SetCaption(const std::string& caption) override {
            Window->setWindowTitle(QString::fromStdString(caption));
        }
    } forms;
    forms.Window = window.get();
    mLoad::Main({*window->Table(), memory.Settings, memory.Files, memory.Calendar, memory.Sounds, forms,
                 memory.Help});
    window->Load();
    const bool maximised = argc > 1 && qstrcmp(argv[1], "--maximised") == 0;
    maximised ? window->showMaximized() : window->show();
    (void)QTest::qWaitForWindowExposed(window.get());
    std::printf("window of %d x %d\n", window->width(), window->height());
    MeasureDeal(*window->Table());
    for (const double zoom : {1.0, 1.1, 2.0, 3.0}) MeasureDrag(*window->Table(), zoom);
    MeasureResize(*window);
    MeasureZoom(*window->Table());
    MeasurePreviews();
    MeasureIdle();
    mLoad::UnloadMain();
    return 0;
}
