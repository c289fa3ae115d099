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
        cards_[static_cast<std::size_t>(PicID)] = new KelCard(PicID, this);
        scene_.addItem(cards_[static_cast<std::size_t>(PicID)]);
    }
    cPlate::ForEachMark([this](MarkKind kind, int index) {
        auto* mark = new KelEmpty(kind, index, this);
        marks_[static_cast<std::size_t>(kind)].push_back(mark);
        scene_.addItem(mark);
    });
    QAccessible::installFactory(TableAccess::Make);
    clock_.start();
    settle_.setSingleShot(true);
    connect(&settle_, &QTimer::timeout, this, &TableView::Settle);
    tellDue_.setSingleShot(true);
    connect(&tellDue_, &QTimer::timeout, this, &TableView::TellChanges);
}

void TableView::PaintBackground() {
    background_ = {};
    viewport()->update();
}

void TableView::SetZoom(double zoom, bool passing) {
    if (zoom == zoom_) return;
    constexpr int Rest = 100;  // milliseconds
    if (passing) {
        if (passingFrom_ == 0) passingFrom_ = zoom_ * devicePixelRatioF();
        settle_.start(Rest);
    } else {
        passingFrom_ = 0;
        settle_.stop();
    }
    zoom_ = zoom;
    PlacePlate();
}

void TableView::Settle() {
    // Few pictures at a time: a window that is drawn on meanwhile never waits for them.
    constexpr int Slice = 5;  // milliseconds
    QElapsedTimer spent;
    spent.start();
    const double scale = zoom_ * devicePixelRatioF();
    for (int PicID = 0; PicID < MaxCards; ++PicID) {
        const CardRecord& card = PicBack.PicCards(PicID);
        if (!card.Visible) continue;
        (void)(card.FaceMode == 1 ? mPictures::GetPic(card.DeckPic, scale)
                                  : mPictures::MainPic(card.MainPic, scale));
        if (spent.elapsed() < Slice) continue;
        settle_.start(0);
        return;
    }
    passingFrom_ = 0;
    dirty_ = {};
    viewport()->update();
}

void TableView::SetRoom(const mRoom::Area& room) {
    room_ = room;
    PlacePlate();
}

mZoom::Pan TableView::Limits() const {
    const QSize size = maximumViewportSize();
    return mZoom::PanOf(room_, size.width(), size.height(), zoom_);
}

bool TableView::CanBeMoved() const {
    constexpr double Noticeable = 1.0;  // twips
    const mZoom::Pan limits = Limits();
    return limits.Right - limits.Left > Noticeable || limits.Bottom - limits.Top > Noticeable;
}

bool TableView::MoveBy(const QPointF& pixels) {
    const QPointF before = pan_;
    pan_ -= pixels * mZoom::TwipsPerPixel / zoom_;
    PlacePlate();
    return pan_ != before;
}

void TableView::Reveal(const QRectF& part) {
    const QRectF seen = sceneRect();
    const auto beyond = [](double low, double high, double from, double to) {
        return low < from ? low - from : std::max(0.0, high - to);
    };
    pan_ += QPointF(beyond(part.left(), part.right(), seen.left(), seen.right()),
                    beyond(part.top(), part.bottom(), seen.top(), seen.bottom()));
    PlacePlate();
}

void TableView::MoveBack() {
    pan_ = {};
    PlacePlate();
}

void TableView::PlacePlate() {
    // The plate keeps its size and is centred; where the window is narrower it is cut on both sides.
    const QSize size = maximumViewportSize();
    const double scale = zoom_ / mZoom::TwipsPerPixel;
    const mZoom::Pan limits = Limits();
    pan_ = {std::clamp(pan_.x(), limits.Left, limits.Right), std::clamp(pan_.y(), limits.Top, limits.Bottom)};
    const double ratio = devicePixelRatioF();
    const auto pixels = [&](double twips) { return std::round(twips * scale * ratio) / ratio; };
    const double left = mZoom::PlateLeft(size.width(), zoom_, ratio) - pixels(pan_.x());
    const double top = -pixels(pan_.y());
    const QTransform place(scale, 0, 0, scale, left, top);
    const QRectF seen(-left / scale, -top / scale, size.width() / scale, size.height() / scale);
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
    if (event->type() == QEvent::ScreenChangeInternal) {
        Q_EMIT Resized();
        PlacePlate();
    }
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
    Q_EMIT Moved(PicID);
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

double TableView::Now() const {
    constexpr double NanosecondsPerMs = 1e6;
    return static_cast<double>(clock_.nsecsElapsed()) / NanosecondsPerMs;
}

void TableView::BeginSteps() { stepEnd_ = Now(); }

void TableView::ShowStep(double limit) {
    if (!isVisible()) return;
    const double refresh = RefreshPeriod();
    const bool hurried = limit < refresh;
    const double start = Now();
    // After a pause. A command with little time has none: where its steps waited for a busy machine, the next
    // ones make up for it.
    if (!hurried && start > stepEnd_ + 2 * refresh) stepEnd_ = start;
    const double end = stepEnd_ + std::min(limit, refresh);
    // A command that may take only so long leaves out what the painting of other steps took the time from.
    if (hurried && start > end) {
        stepEnd_ = end;
        return;
    }
    Refresh();
    // From step to step one period, the time of drawing included, so that a long trip keeps the pace of
    // the screen; after a pause the first step is shown for a whole period.
    const double rest = end - Now();
    constexpr double MicrosecondsPerMs = 1000.0;
    if (rest > 0) QThread::usleep(static_cast<unsigned long>(rest * MicrosecondsPerMs));
    stepEnd_ = hurried ? end : Now();
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
