// The view of one mark of an empty pile. Only the stock's mark reacts to a click.
#pragma once

#include <QGraphicsObject>

#include "engine/outside/windowlayer.h"

class TableView;

class KelEmpty : public QGraphicsObject {
    Q_OBJECT
public:
    /// Named by its kind and number: "PicHome3", "PicStock".
    KelEmpty(MarkKind kind, int index, const TableView* table = nullptr);

    /// As a card's: the mark, and what its picture may take when it is moved to whole pixels.
    [[nodiscard]] QRectF boundingRect() const override;
    [[nodiscard]] QPainterPath shape() const override;
    void paint(QPainter* painter, const QStyleOptionGraphicsItem* option, QWidget* widget) override;

protected:
    void mousePressEvent(QGraphicsSceneMouseEvent* event) override;
    void mouseDoubleClickEvent(QGraphicsSceneMouseEvent* event) override;
    void mouseReleaseEvent(QGraphicsSceneMouseEvent* event) override;

private:
    const TableView* table_;  // nullptr where it is drawn for itself
    MarkKind kind_;
    int index_;
};
