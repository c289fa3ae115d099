// The table on the screen: a scene in twips whose items follow the records of the plate. Pixels exist
// only in this view's transform.
#pragma once

#include <array>
#include <vector>

#include <QElapsedTimer>
#include <QGraphicsView>
#include <QPixmap>
#include <QTimer>

#include "engine/commands/mZoom.h"
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
    /// `passing`: other sizes will follow soon, as while a window is drawn larger. Until the size has rested
    /// for a moment the pictures of the one before are stretched, which takes no time.
    void SetZoom(double zoom, bool passing = false);
    [[nodiscard]] double Zoom() const { return zoom_; }
    /// The scale of the pictures to be drawn with at `scale`.
    [[nodiscard]] double PictureScale(double scale) const { return passingFrom_ > 0 ? passingFrom_ : scale; }

    /// What of the plate must be within reach: where it goes beyond the view, the plate can be moved.
    void SetRoom(const mRoom::Area& room);
    [[nodiscard]] bool CanBeMoved() const;
    /// Moves the plate by that many pixels, or as far as the room goes; false where it stays. A card in the
    /// hand stays under the pointer.
    bool MoveBy(const QPointF& pixels);
    /// Moves the plate as little as shows that part of it, twips.
    void Reveal(const QRectF& part);
    /// Puts the plate back to its place.
    void MoveBack();
    /// Where the pointer was last seen, on the screen.
    [[nodiscard]] QPointF Pointer() const { return pointer_; }

    // CardStage
    void CardMoved(int PicID) override;
    void CardRaised(int PicID) override;
    void CardShown(int PicID) override;
    void CardChanged(int PicID) override;
    void MarkChanged(MarkKind kind, int index) override;
    void Refresh() override;
    void ShowStep(double limit) override;
    void BeginSteps() override;
    void LetEventsRun() override;

Q_SIGNALS:
    /// The view has another size, and the plate does not yet lie by it.
    void Resized();
    /// A card has come to another place.
    void Moved(int PicID);

protected:
    bool event(QEvent* event) override;
    bool viewportEvent(QEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void drawBackground(QPainter* painter, const QRectF& rect) override;
    /// Whether the plate moves is not for the view's own scrolling to say.
    void wheelEvent(QWheelEvent* event) override;

private:
    [[nodiscard]] double RefreshPeriod() const;  ///< milliseconds
    [[nodiscard]] double Now() const;            ///< milliseconds of clock_
    /// What an item covers must be drawn anew, at once or with the next repaint.
    void MarkDirty(const QGraphicsItem& item);
    [[nodiscard]] KelEmpty* MarkItem(MarkKind kind, int index) const;
    /// Screen readers are to hear of the change once events run again, when the move is complete.
    void NoteChange();
    void TellChanges();
    /// Puts the plate where the view's size, the zoom and the player want it.
    void PlacePlate();
    /// How far the player may move it at this size.
    [[nodiscard]] mZoom::Pan Limits() const;
    /// Renders what the table needs at its size, bit by bit, and then shows it.
    void Settle();
    /// The card in the hand goes to the pointer's last place, which may lie between two pixels of the view.
    void FollowPointer();

    QGraphicsScene scene_;
    std::array<KelCard*, MaxCards> cards_{};       // owned by the scene
    std::array<std::vector<KelEmpty*>, 5> marks_;  // by MarkKind, owned by the scene
    QRegion dirty_;                                // viewport pixels that await a repaint
    double zoom_ = 1.0;
    mRoom::Area room_;
    QPointF pan_;             // twips that the player has moved the view over the plate
    double passingFrom_ = 0;  // scale of the pictures that are stretched meanwhile; 0: none are
    QTimer settle_;
    bool placing_ = false;  // the plate is on its way to another place: nothing is painted until it is there
    QPointF pointer_;       // on the screen
    QPixmap background_;    // of the whole view in the screen's pixels; null while it must be painted anew
    QElapsedTimer clock_;
    double stepEnd_ = 0;  // of the last step shown, milliseconds of clock_
    QElapsedTimer sinceEvents_;
    QTimer tellDue_;
};
