// The view of one card on the table: it draws its card's record and reports the mouse. No rule lives here.
#pragma once

#include <QGraphicsObject>

class TableView;

class KelCard : public QGraphicsObject {
    Q_OBJECT
public:
    /// The view of PicCards(PicID), named "PicCards" and its number, on a table that may lend it pictures of
    /// another size than its own.
    explicit KelCard(int PicID, const TableView* table = nullptr);

    [[nodiscard]] int PicID() const { return picID_; }
    /// The pointer has come to that point of the plate, twips: a card in the hand goes with it.
    void FollowPointer(const QPointF& plate) const;
    /// The card's frame, and around it what its picture may take when it is moved to whole pixels.
    [[nodiscard]] QRectF boundingRect() const override;
    [[nodiscard]] QPainterPath shape() const override;
    void paint(QPainter* painter, const QStyleOptionGraphicsItem* option, QWidget* widget) override;

protected:
    void mousePressEvent(QGraphicsSceneMouseEvent* event) override;
    void mouseDoubleClickEvent(QGraphicsSceneMouseEvent* event) override;
    void mouseReleaseEvent(QGraphicsSceneMouseEvent* event) override;
    bool sceneEvent(QEvent* event) override;

private:
    const TableView* table_;  // nullptr where it is drawn for itself
    int picID_;
    Qt::MouseButton button_ = Qt::NoButton;  ///< the one that lifted the card
};
