// What the main window remembers from one run to the next: its place, its size, whether it is maximised
// or fills the screen, and how large the table is shown.
#pragma once

#include <QList>
#include <QObject>
#include <QRect>
#include <QTimer>

class QMainWindow;
class TableZoom;

class WindowState : public QObject {
    Q_OBJECT
public:
    /// Both must outlive the object.
    WindowState(QMainWindow* window, TableZoom* zoom);

    /// Brings back what the settings hold; the window is not yet shown. What they lack stays as it is.
    void Restore();
    /// Writes what has changed. It also happens by itself, a moment after each change.
    void Save();

    /// Where a window can be seen and taken hold of: `wanted` itself where it lies well on one of these
    /// screens, else the nearest place inside one, no larger than it.
    [[nodiscard]] static QRect Seen(const QRect& wanted, const QList<QRect>& screens);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QMainWindow* window_;
    TableZoom* zoom_;
    QTimer pause_{this};  // a window that is being moved is written when it has come to rest
};
