// A mouse and a keyboard whose events come in where those of the window system do, so that grabs, modal
// dialogs, popups, shortcuts and double clicks are what Qt makes of them. All that they do stands in the
// diary.
#pragma once

#include <QPoint>
#include <QPointer>
#include <QString>
#include <QWindow>

class QWidget;

class Hands {
public:
    /// Points are the widget's own, and may lie outside of it. A press while a button is held down adds
    /// another one.
    void Press(QWidget* on, QPoint at, Qt::MouseButton button = Qt::LeftButton);
    void Move(QWidget* on, QPoint to);
    /// Lets go of every button, one after the other.
    void Release();
    void Click(QWidget* on, QPoint at, Qt::MouseButton button = Qt::LeftButton);
    /// Fast enough after the last click to be its second half.
    void DoubleClick(QWidget* on, QPoint at);
    /// Turns of the wheel: 1 away from the player.
    void Wheel(QWidget* on, QPoint at, int turns, Qt::KeyboardModifiers modifiers);
    /// Presses and lets go of a key, in the window that the widget belongs to.
    void Key(QWidget* window, int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier,
             const QString& text = {});
    void Type(QWidget* window, const QString& text);

    [[nodiscard]] bool Holding() const { return buttons_ != Qt::NoButton; }

private:
    void PushButton(QWidget* on, QPoint at, Qt::MouseButton button);
    void LetGo();
    void PushKey(QWidget* window, int key, Qt::KeyboardModifiers modifiers, const QString& text);
    void Send(QWindow* window, QPoint at, Qt::MouseButton button, int event);

    Qt::MouseButtons buttons_;
    QPointer<QWindow> window_;  // where the first button was pressed
    QPoint at_;
    int time_ = 0;  // milliseconds, as the window system stamps its events
};
