// Events by the functions that Qt's own test library uses; QTest itself would let events run in between.
#include "tools/monkey/Hands.h"

#include <QApplication>
#include <QEvent>
#include <QKeySequence>
#include <QWheelEvent>
#include <QWidget>

#include "tools/monkey/Diary.h"

Q_GUI_EXPORT void qt_handleMouseEvent(QWindow* window, const QPointF& local, const QPointF& global,
                                      Qt::MouseButtons state, Qt::MouseButton button, QEvent::Type type,
                                      Qt::KeyboardModifiers modifiers, int timestamp);
Q_GUI_EXPORT void qt_handleKeyEvent(QWindow* window, QEvent::Type type, int key,
                                    Qt::KeyboardModifiers modifiers, const QString& text, bool repeated,
                                    ushort count);

namespace {

constexpr int Slow = 1000;  // milliseconds: too long for a double click
constexpr int Fast = 20;

QWindow* WindowOf(const QWidget* widget) { return widget->window()->windowHandle(); }

std::string Named(const QWidget* widget, QPoint at) {
    return mDiary::NameOf(widget) + " at " + std::to_string(at.x()) + ", " + std::to_string(at.y());
}

QPoint InWindow(const QWidget* widget, QPoint at) { return widget->mapTo(widget->window(), at); }

}  // namespace

void Hands::Send(QWindow* window, QPoint at, Qt::MouseButton button, int event) {
    at_ = at;
    if (!window) return;
    qt_handleMouseEvent(window, at, window->mapToGlobal(at), buttons_, button,
                        static_cast<QEvent::Type>(event), Qt::NoModifier, time_);
}

void Hands::PushButton(QWidget* on, QPoint at, Qt::MouseButton button) {
    time_ += Slow;
    if (!Holding()) window_ = WindowOf(on);
    buttons_ |= button;
    Send(window_, InWindow(on, at), button, QEvent::MouseButtonPress);
}

void Hands::Press(QWidget* on, QPoint at, Qt::MouseButton button) {
    mDiary::Note("press " + Named(on, at));
    PushButton(on, at, button);
}

void Hands::Move(QWidget* on, QPoint to) {
    mDiary::Note("move over " + Named(on, to));
    time_ += Fast;
    QWindow* window = Holding() ? window_.data() : WindowOf(on);
    Send(window, InWindow(on, to), Qt::NoButton, QEvent::MouseMove);
}

void Hands::LetGo() {
    for (const Qt::MouseButton button : {Qt::LeftButton, Qt::RightButton, Qt::MiddleButton}) {
        if (!buttons_.testFlag(button)) continue;
        time_ += Fast;
        buttons_.setFlag(button, false);
        Send(window_, at_, button, QEvent::MouseButtonRelease);
    }
}

void Hands::Release() {
    mDiary::Note("let go of the mouse");
    LetGo();
}

void Hands::Click(QWidget* on, QPoint at, Qt::MouseButton button) {
    mDiary::Note("click " + Named(on, at));
    // The widget may be gone when the press returns.
    PushButton(on, at, button);
    LetGo();
}

void Hands::DoubleClick(QWidget* on, QPoint at) {
    const QPointer<QWidget> target = on;
    Click(on, at);
    if (!target) return;
    time_ += Fast - Slow;
    Click(target, at);
}

void Hands::Wheel(QWidget* on, QPoint at, int turns, Qt::KeyboardModifiers modifiers) {
    constexpr int Turn = 120;
    mDiary::Note("turn the wheel over " + Named(on, at));
    QWheelEvent event(at, on->mapToGlobal(QPointF(at)), QPoint(), QPoint(0, turns * Turn), buttons_,
                      modifiers, Qt::NoScrollPhase, false);
    QApplication::sendEvent(on, &event);
}

void Hands::PushKey(QWidget* window, int key, Qt::KeyboardModifiers modifiers, const QString& text) {
    const QPointer<QWindow> target = WindowOf(window);
    if (!target) return;
    qt_handleKeyEvent(target, QEvent::KeyPress, key, modifiers, text, false, 1);
    if (target) qt_handleKeyEvent(target, QEvent::KeyRelease, key, modifiers, text, false, 1);
}

void Hands::Key(QWidget* window, int key, Qt::KeyboardModifiers modifiers, const QString& text) {
    const std::string name = QKeySequence(static_cast<int>(modifiers) | key).toString().toStdString();
    mDiary::Note("press " + name + " in " + mDiary::NameOf(window));
    PushKey(window, key, modifiers, text);
}

void Hands::Type(QWidget* window, const QString& text) {
    mDiary::Note("type " + text.left(30).toStdString());
    const QPointer<QWidget> target = window;
    for (const QChar letter : text) {
        if (!target) return;
        // Letters outside Latin 1 have no key of their own.
        const int key = letter.unicode() < 128 ? int{letter.toUpper().unicode()} : int{Qt::Key_unknown};
        PushKey(target, key, Qt::NoModifier, QString(letter));
    }
}
