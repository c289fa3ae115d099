// The table on the screen: a scene in twips whose items follow the records of the plate. Pixels exist
// only in this view's transform.
#pragma once

#include <array>
#include <vector>

#include <QElapsedTimer>
#include <QGraphicsView>
#include <QPixmap>
#include <QTimer>

#include "engine/outside/windowlayer.h"
#include "engine/state/cPlate.h"

class KelCard;
class KelEmpty;

class TableView : public QGraphicsView, public CardStage {
    Q_OBJECT
public:
    explicit TableView(QWidget* parent = nullptr);

    /// Paints the background anew from the settings.
    void PaintBackground();

    /// How large the table is shown: 1 as designed, 15 twips to a pixel. The plate stays centred at the
    /// view's upper edge. A card in the hand stays under the pointer.
    void SetZoom(double zoom);
    [[nodiscard]] double Zoom() const { return zoom_; }

    // CardStage
    void CardMoved(int PicID) override;
    void CardRaised(int PicID) override;
    void CardShown(int PicID) override;
    void CardChanged(int PicID) override;
    void MarkChanged(MarkKind kind, int index) override;
    void Refresh() override;
    void ShowStep(double limit) override;
    void LetEventsRun() override;

Q_SIGNALS:
    /// The view has another size, and the plate does not yet lie by it.
    void Resized();

protected:
    bool event(QEvent* event) override;
    bool viewportEvent(QEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void drawBackground(QPainter* painter, const QRectF& rect) override;
    /// The plate never scrolls: a turn of the wheel must not move it.
    void wheelEvent(QWheelEvent* event) override;

private:
    [[nodiscard]] double RefreshPeriod() const;  ///< milliseconds
    /// What an item covers must be drawn anew, at once or with the next repaint.
    void MarkDirty(const QGraphicsItem& item);
    [[nodiscard]] KelEmpty* MarkItem(MarkKind kind, int index) const;
    /// Screen readers are to hear of the change once events run again, when the move is complete.
    void NoteChange();
    void TellChanges();
    /// Puts the plate where the view's size and the zoom want it.
    void PlacePlate();
    /// The card in the hand goes to the pointer's last place, which may lie between two pixels of the view.
    void FollowPointer();

    QGraphicsScene scene_;
    std::array<KelCard*, MaxCards> cards_{};       // owned by the scene
    std::array<std::vector<KelEmpty*>, 5> marks_;  // by MarkKind, owned by the scene
    QRegion dirty_;                                // viewport pixels that await a repaint
    double zoom_ = 1.0;
    bool placing_ = false;  // the plate is on its way to another place: nothing is painted until it is there
    QPointF pointer_;       // on the screen
    QPixmap background_;    // of the whole view in the screen's pixels; null while it must be painted anew
    QElapsedTimer clock_;
    double stepEnd_ = 0;  // of the last step shown, milliseconds of clock_
    QElapsedTimer sinceEvents_;
    QTimer tellDue_;
};
