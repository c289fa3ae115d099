// The table of a won game as it was at the win, for as long as the end-of-game dialog is open: its cards have
// left the plate by then. A short, quiet animation lifts the foundations one after the other.
#pragma once

#include <vector>

#include <QGraphicsObject>
#include <QPointer>
#include <QVariantAnimation>

#include "engine/state/cPlate.h"

class QGraphicsView;

class WonTable : public QGraphicsObject {
    Q_OBJECT
public:
    /// Takes the plate as it is and shows it in that view until the object goes.
    explicit WonTable(QGraphicsView& view);
    ~WonTable() override;

    /// Begins the animation, if the platform's style animates at all. It runs by itself and ends by itself.
    void Celebrate();
    /// Where the foundations are to be seen, in pixels of the screen.
    [[nodiscard]] QRect OnScreen() const;

    [[nodiscard]] QRectF boundingRect() const override;
    void paint(QPainter* painter, const QStyleOptionGraphicsItem* option, QWidget* widget) override;

private:
    /// How high a foundation's top card is lifted, from 0 to 1.
    [[nodiscard]] double Lift(std::size_t foundation) const;
    [[nodiscard]] QRectF FoundationsArea() const;
    /// The view repaints only what it is told to.
    void Repaint(const QRectF& area) const;

    QPointer<QGraphicsView> view_;
    cPlate plate_ = PicBack;
    std::vector<const CardRecord*> cards_;        // those that were to be seen, from the back to the front
    std::vector<const CardRecord*> foundations_;  // their top cards, by pile
    QVariantAnimation animation_;                 // milliseconds since its start
};
