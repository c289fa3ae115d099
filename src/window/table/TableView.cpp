// The table's scene and its repaints.
#include "window/table/TableView.h"

#include <algorithm>
#include <cmath>

#include <QAccessible>
#include <QCoreApplication>
#include <QGraphicsItem>
#include <QPainter>
#include <QResizeEvent>
#include <QScreen>
#include <QThread>
#include <QWheelEvent>

#include "engine/commands/mGen.h"
#include "engine/commands/mZoom.h"
#include "engine/state/cData.h"
#include "window/look/mPictures.h"
#include "window/table/KelCard.h"
#include "window/table/KelEmpty.h"
#include "window/table/TableAccess.h"

TableView::TableView(QWidget* parent) : QGraphicsView(parent) {
    setObjectName(QStringLiteral("PicBack"));
    setFrameShape(QFrame::NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setAlignment(Qt::AlignLeft | Qt::AlignTop);
    // The plate knows exactly what changed: the view's own bookkeeping would repaint it a second time.
    setViewportUpdateMode(NoViewportUpdate);
    viewport()->setAttribute(Qt::WA_OpaquePaintEvent);
    setOptimizationFlags(DontSavePainterState | DontAdjustForAntialiasing);
    scene_.setItemIndexMethod(QGraphicsScene::NoIndex);
    setScene(&scene_);
    PlacePlate();
    for (int PicID = 0; PicID < MaxCards; ++PicID) {
        cards_[static_cast<std::size_t>(PicID)] = new KelCard(PicID);
        scene_.addItem(cards_[static_cast<std::size_t>(PicID)]);
    }
    cPlate::ForEachMark([this](MarkKind kind, int index) {
        auto* mark = new KelEmpty(kind, index);
        marks_[static_cast<std::size_t>(kind)].push_back(mark);
        scene_.addItem(mark);
    });
    QAccessible::installFactory(TableAccess::Make);
    clock_.start();
    tellDue_.setSingleShot(true);
    connect(&tellDue_, &QTimer::timeout, this, &TableView::TellChanges);
}

void TableView::PaintBackground() {
    background_ = {};
    viewport()->update();
}

void TableView::SetZoom(double zoom) {
    if (zoom == zoom_) return;
    zoom_ = zoom;
    PlacePlate();
}

void TableView::PlacePlate() {
    // The plate keeps its size and is centred; where the window is narrower it is cut on both sides.
    const QSize size = maximumViewportSize();
    const double scale = zoom_ / mZoom::TwipsPerPixel;
    const double left = mZoom::PlateLeft(size.width(), zoom_, devicePixelRatioF());
    const QTransform place(scale, 0, 0, scale, left, 0);
    const QRectF seen(-left / scale, 0, size.width() / scale, size.height() / scale);
    if (place == transform() && seen == sceneRect()) return;
    placing_ = true;
    setSceneRect(seen);
    setTransform(place);
    placing_ = false;
    dirty_ = {};
    PaintBackground();
    FollowPointer();
}

void TableView::FollowPointer() {
    const QGraphicsItem* item = scene_.mouseGrabberItem();
    const auto* card = item ? qobject_cast<const KelCard*>(item->toGraphicsObject()) : nullptr;
    if (card) card->FollowPointer(viewportTransform().inverted().map(viewport()->mapFromGlobal(pointer_)));
}

bool TableView::event(QEvent* event) {
    // The window came to a screen with another number of pixels.
    if (event->type() == QEvent::ScreenChangeInternal) PlacePlate();
    return QGraphicsView::event(event);
}

bool TableView::viewportEvent(QEvent* event) {
    // The press is for nothing else: no card can be lifted yet.
    if (mGen::Dealing() &&
        (event->type() == QEvent::MouseButtonPress || event->type() == QEvent::MouseButtonDblClick)) {
        mGen::HurryDeal();
        return true;
    }
    if (event->isSinglePointEvent()) pointer_ = static_cast<QSinglePointEvent*>(event)->globalPosition();
    return QGraphicsView::viewportEvent(event);
}

void TableView::mouseMoveEvent(QMouseEvent* event) {
    // Not by way of the scene, which knows the pointer only to a pixel of the view.
    if (scene_.mouseGrabberItem()) {
        FollowPointer();
    } else {
        QGraphicsView::mouseMoveEvent(event);
    }
}

void TableView::resizeEvent(QResizeEvent* event) {
    Q_EMIT Resized();
    PlacePlate();
    QGraphicsView::resizeEvent(event);
}

void TableView::drawBackground(QPainter* painter, const QRectF& rect) {
    if (!gData) {
        painter->fillRect(rect, palette().window());
        return;
    }
    const QPointF corner = sceneRect().topLeft();
    if (background_.isNull()) {
        const double ratio = painter->device()->devicePixelRatioF();
        const QSizeF size = QSizeF(viewport()->size()) * ratio;
        // The view may begin between two pixels of the screen and so touch one more.
        background_ = QPixmap(qCeil(size.width()) + 1, qCeil(size.height()) + 1);
        QPainter fresh(&background_);
        const double scale = mPictures::ScaleOf(*painter) / mPictures::TwipsPerPixel;
        fresh.scale(scale, scale);
        fresh.translate(-corner);
        mPictures::SetBG(gData->Get(Setting::BGIndex), fresh, QRectF(0, 0, PlateWidth, PlateHeight),
                         QRectF(corner, QSizeF(background_.size()) / scale), gData->Get(Setting::Fade),
                         gData->Get(Setting::CustomColor));
    }
    painter->translate(corner);
    mPictures::DrawAtWholePixels(*painter, background_);
    painter->translate(-corner);
}

void TableView::wheelEvent(QWheelEvent* event) { event->ignore(); }

void TableView::MarkDirty(const QGraphicsItem& item) {
    if (!item.isVisible()) return;
    // One pixel more on each side: a card is drawn at whole pixels, its place may lie between two.
    const QRectF card(item.pos(), QSizeF(CardWidth, CardHeight));
    const QRect pixels = viewportTransform().mapRect(card).toAlignedRect().adjusted(-1, -1, 1, 1);
    dirty_ += pixels;
    viewport()->update(pixels);
}

KelEmpty* TableView::MarkItem(MarkKind kind, int index) const {
    return marks_[static_cast<std::size_t>(kind)].at(static_cast<std::size_t>(index));
}

void TableView::CardMoved(int PicID) {
    const CardRecord& card = PicBack.PicCards(PicID);
    KelCard& item = *cards_[static_cast<std::size_t>(PicID)];
    if (item.pos() == QPointF(card.Left, card.Top)) return;
    MarkDirty(item);
    item.setPos(card.Left, card.Top);
    MarkDirty(item);
}

void TableView::CardRaised(int PicID) {
    KelCard& item = *cards_[static_cast<std::size_t>(PicID)];
    item.setZValue(PicBack.PicCards(PicID).Order);
    MarkDirty(item);
    NoteChange();
}

void TableView::CardShown(int PicID) {
    KelCard& item = *cards_[static_cast<std::size_t>(PicID)];
    MarkDirty(item);
    item.setVisible(PicBack.PicCards(PicID).Visible);
    MarkDirty(item);
    NoteChange();
}

void TableView::CardChanged(int PicID) {
    MarkDirty(*cards_[static_cast<std::size_t>(PicID)]);
    NoteChange();
}

void TableView::MarkChanged(MarkKind kind, int index) {
    const MarkRecord& mark = PicBack.Mark(kind, index);
    KelEmpty& item = *MarkItem(kind, index);
    MarkDirty(item);
    item.setPos(mark.Left, mark.Top);
    item.setVisible(mark.Visible);
    MarkDirty(item);
    NoteChange();
}

void TableView::Refresh() {
    if (dirty_.isEmpty() || placing_) return;
    const QRegion region = dirty_;
    dirty_ = {};
    viewport()->repaint(region);
}

double TableView::RefreshPeriod() const {
    constexpr double UnknownRate = 60.0;
    const double rate = screen() ? screen()->refreshRate() : UnknownRate;
    return 1000.0 / (rate >= 1.0 ? rate : UnknownRate);
}

void TableView::ShowStep(double limit) {
    if (!isVisible()) return;
    constexpr double NanosecondsPerMs = 1e6;
    const auto now = [this] { return static_cast<double>(clock_.nsecsElapsed()) / NanosecondsPerMs; };
    const double refresh = RefreshPeriod();
    const bool hurried = limit < refresh;
    const double start = now();
    if (start > stepEnd_ + 2 * refresh) stepEnd_ = start;  // after a pause
    const double end = stepEnd_ + std::min(limit, refresh);
    // A command that may take only so long leaves out what the painting of other steps took the time from.
    if (hurried && start > end) {
        stepEnd_ = end;
        return;
    }
    Refresh();
    // From step to step one period, the time of drawing included, so that a long trip keeps the pace of
    // the screen; after a pause the first step is shown for a whole period.
    const double rest = end - now();
    constexpr double MicrosecondsPerMs = 1000.0;
    if (rest > 0) QThread::usleep(static_cast<unsigned long>(rest * MicrosecondsPerMs));
    stepEnd_ = hurried ? end : now();
}

void TableView::LetEventsRun() {
    // Cards that are stacked without a step would paint the same pile a hundred times.
    if (sinceEvents_.isValid() && sinceEvents_.elapsed() < static_cast<qint64>(RefreshPeriod())) return;
    QCoreApplication::processEvents();
    dirty_ = {};
    sinceEvents_.start();
}

void TableView::NoteChange() {
    // A card that moves to another pile is raised too: CardMoved, which a drag calls all the time, need
    // not come here.
    if (QAccessible::isActive() && !tellDue_.isActive()) tellDue_.start(0);
}

void TableView::TellChanges() {
    constexpr int DealTime = 50;  // milliseconds
    if (mGen::Dealing()) {
        tellDue_.start(DealTime);  // a deal is told as a whole
    } else {
        TableAccess::TellChanges(this);
    }
}
