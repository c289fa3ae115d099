// A monkey at the machine: it clicks, drags, types and turns the wheel at random in whatever window is
// open, and looks after every hundred actions whether the table is still in order.
#pragma once

#include <deque>
#include <functional>
#include <random>
#include <set>
#include <string>

#include <QObject>
#include <QPointer>
#include <QTimer>
#include <QUrl>

#include "engine/outside/windowlayer.h"
#include "tools/monkey/Hands.h"

class QAbstractItemView;
class QAction;
class QDialog;
class QFileDialog;
class QMenu;
class frmMain;

/// A calendar of the monkey's own: its time goes on with the actions, and at times it is set back or
/// ahead, as a user may set the machine's clock. Game numbers come from it, so that a seed deals the same
/// games again.
class MonkeyCalendar : public Calendar {
public:
    explicit MonkeyCalendar(Calendar& real) : real_(real) {}
    [[nodiscard]] Moment Now() const override { return now_++; }
    [[nodiscard]] std::string Text(Moment moment) const override { return real_.Text(moment); }
    [[nodiscard]] RegionalFormat Regional() const override { return real_.Regional(); }
    void Advance(Moment milliseconds) { now_ += milliseconds; }

private:
    Calendar& real_;
    mutable Moment now_ = 1'700'000'000'000;
};

class Monkey : public QObject {
    Q_OBJECT
public:
    explicit Monkey(std::uint32_t seed);

    /// Begins with the program's start, ends when it closes the main window after about that many
    /// actions.
    void Begin(frmMain* window, MonkeyCalendar* calendar, long actions);
    void End();
    /// Closes the main window as soon as nothing stands before it.
    void Finish() { lastAction_ = 0; }
    Q_INVOKABLE void FollowLink(const QUrl& link);

    [[nodiscard]] std::size_t GamesSeen() const { return games_.size(); }

private:
    void Act();
    void Check();
    void CheckScreen();

    // What it can do, by where it is.
    void OnTable();
    void OnHeldButton();
    void OnPopup(QWidget* popup);
    void OnDialog(QWidget* dialog);
    void OnFileDialog(QFileDialog* dialog);
    void LeaveDialog(QWidget* dialog, int tries);
    void OnControl(QWidget* control);
    void OnItemView(QAbstractItemView* view);
    void PlanDrag();
    void PlanKeys();
    void AskForAction();
    void PressAnywhere();
    void OpenMenu();
    void PressShortcut();
    void PressToolButton();
    void ChangeWindow();
    void PressKey(QWidget* window);
    void TypeText(QWidget* window);
    void Calm();

    int Pick(int limit) { return static_cast<int>(random_() % static_cast<std::uint32_t>(limit)); }
    bool Chance(int percent) { return Pick(100) < percent; }
    template <typename List>
    auto& OneOf(List& list) {
        return list[static_cast<decltype(list.size())>(Pick(static_cast<int>(list.size())))];
    }
    QPoint PointIn(const QWidget* widget);

    std::uint32_t seed_;
    std::mt19937 random_;
    Hands hands_;
    QTimer timer_;
    frmMain* window_ = nullptr;
    MonkeyCalendar* calendar_ = nullptr;
    long lastAction_ = 0;  // after which the main window is closed
    long lastNumber_ = 0;
    long nextCheck_ = 0;
    int idle_ = 0;                            // turns in which nothing was done
    int pause_ = 0;                           // milliseconds until the next action
    int screenTries_ = 0;                     // how often the screen may still differ; 0: not looking
    std::deque<std::function<void()>> plan_;  // what a drag still has to do
    std::set<std::string> games_;
};
