// The choice of actions, and the checks.
#include "tools/monkey/Monkey.h"

#include <QApplication>
#include <QWidget>

#include "engine/commands/mGen.h"
#include "engine/state/cArray.h"
#include "engine/state/cData.h"
#include "tools/mChecks.h"
#include "tools/monkey/Diary.h"
#include "tools/monkey/ScreenCheck.h"
#include "window/table/frmMain.h"

namespace {

constexpr int ActionsBetweenChecks = 100;
constexpr int SettleTime = 15;  // milliseconds: longer than Qt puts off a repaint
constexpr int SettleTries = 40;
constexpr int MostIdle = 500;

}  // namespace

Monkey::Monkey(std::uint32_t seed) : seed_(seed) {
    timer_.setSingleShot(true);
    connect(&timer_, &QTimer::timeout, this, &Monkey::Act);
}

void Monkey::Begin(frmMain* window, MonkeyCalendar* calendar, long actions) {
    window_ = window;
    calendar_ = calendar;
    lastAction_ = mDiary::Actions() + actions;
    screenTries_ = 0;
    plan_.clear();
    timer_.start(0);
}

void Monkey::End() {
    timer_.stop();
    window_ = nullptr;
}

QPoint Monkey::PointIn(const QWidget* widget) {
    return {Pick(std::max(1, widget->width())), Pick(std::max(1, widget->height()))};
}

void Monkey::FollowLink(const QUrl&) { mDiary::Count("links"); }

void Monkey::Act() {
    if (!window_) return;
    // Before anything else: a dialog that opens below runs an event loop of its own, in which the monkey
    // goes on.
    timer_.start(pause_);
    pause_ = 0;
    if (!gData) return;
    if (screenTries_ > 0) {
        CheckScreen();
        return;
    }
    const long number = mDiary::Actions() + 1;
    idle_ = number == lastNumber_ ? idle_ + 1 : 0;
    lastNumber_ = number;
    if (idle_ == MostIdle) mDiary::Fail("there is no window to act in");
    // Each action draws from a source of its own, so that a timer that falls otherwise in another run
    // changes as little as possible.
    random_.seed(seed_ + static_cast<std::uint32_t>(number) * 2654435761u +
                 static_cast<std::uint32_t>(idle_));
    calendar_->Advance(Pick(200));
    if (gData->Figures.GameRunning) games_.insert(gData->Figures.CurGName);
    if (number >= nextCheck_) Check();
    Calm();

    if (hands_.Holding() && plan_.empty()) {
        OnHeldButton();
    } else if (!plan_.empty()) {
        const auto step = std::move(plan_.front());
        plan_.pop_front();
        step();
    } else if (QWidget* popup = QApplication::activePopupWidget()) {
        OnPopup(popup);
    } else if (QWidget* dialog = QApplication::activeModalWidget()) {
        OnDialog(dialog);
    } else if (number > lastAction_ && !mGen::Dealing()) {
        mDiary::Note("close the main window");
        mDiary::Count("starts");
        window_->close();
    } else {
        QWidgetList others;
        for (QWidget* widget : QApplication::topLevelWidgets()) {
            if (widget->isVisible() && widget != window_ && widget->windowHandle()) others << widget;
        }
        if (!others.isEmpty() && Chance(20)) {
            OnDialog(OneOf(others));
        } else if (window_->isVisible()) {
            OnTable();
        }
    }
}

void Monkey::Check() {
    nextCheck_ = mDiary::Actions() + ActionsBetweenChecks;
    if (gData->Figures.GameRunning && !mGen::Dealing()) {
        const std::string fault = mChecks::TableFault();
        if (!fault.empty()) mDiary::Fail("the table of " + gData->Figures.CurGName + ": " + fault);
    }
    if (!window_->isVisible() || mGen::Dealing()) return;
    const std::string fault = mScreenCheck::ItemsFault(*window_);
    if (!fault.empty()) mDiary::Fail("the views of " + gData->Figures.CurGName + ": " + fault);
    mDiary::Count("checks");
    screenTries_ = SettleTries;
    pause_ = SettleTime;
}

void Monkey::CheckScreen() {
    if (mGen::Dealing() || !window_->isVisible()) {
        screenTries_ = 0;
        return;
    }
    const std::string fault = mScreenCheck::PixelsFault(*window_);
    if (fault.empty()) {
        screenTries_ = 0;
    } else if (--screenTries_ == 0) {
        mDiary::Fail(fault);
    } else {
        pause_ = SettleTime;
    }
}

// Cards that creep over the table for seconds would leave no time for anything else.
void Monkey::Calm() {
    constexpr int Fast = 2;  // steps a move
    if (!Chance(2)) return;
    for (const NumberSetting& speed :
         {Setting::CardSpeed, Setting::UndoSpeed, Setting::UndoallSpeed, Setting::ReplaySpeed}) {
        if (gData->Get(speed) > Fast) gData->Set(speed, Pick(Fast + 1));
    }
}
