// The keyboard's frame on the table: around the card that keys lead to, around what they hold, and around the
// piles that take it; and the short "no" to what is refused.
#pragma once

#include <QGraphicsItem>

#include "engine/commands/mKeys.h"

class TableFrame : public QGraphicsItem {
public:
    TableFrame();

    /// Shows that from now on; `refused` puts the "no" on the framed card. Answers the part of the plate,
    /// twips, that must be drawn anew.
    [[nodiscard]] QRectF Show(const mKeys::View& view, bool refused);

    [[nodiscard]] QRectF boundingRect() const override { return covered_; }
    /// The mouse does not see it.
    [[nodiscard]] QPainterPath shape() const override { return {}; }
    void paint(QPainter* painter, const QStyleOptionGraphicsItem* option, QWidget* widget) override;

private:
    mKeys::View view_;
    bool refused_ = false;
    QRectF covered_;  // twips
};
