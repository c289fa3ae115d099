// Moving a table that is larger than its window: by the wheel, by a drag of the empty table, and by a card
// that is held at the window's edge.
#pragma once

#include <QObject>
#include <QPoint>
#include <QPointF>
#include <QTimer>

class QMouseEvent;
class QWheelEvent;
class TableView;

class TableScroll : public QObject {
    Q_OBJECT
public:
    /// The table must outlive the object.
    explicit TableScroll(TableView* table);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void TurnWheel(const QWheelEvent& event);
    [[nodiscard]] bool Press(const QMouseEvent& event);
    void Release();
    /// How far the pointer, with a card in the hand, asks the table to move in one step, pixels.
    [[nodiscard]] QPointF Pull() const;
    void FollowHand();

    TableView* table_;
    bool dragged_ = false;  // the table itself
    QPoint last_;           // of the pointer, while the table is dragged
    QTimer pull_;           // runs while a card is held at the edge
};
