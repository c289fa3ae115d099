// Drawing the kept table, and the wave that goes through its foundations.
#include "window/table/WonTable.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include <QGraphicsScene>
#include <QGraphicsView>
#include <QPainter>
#include <QStyle>

#include "engine/state/codes.h"
#include "window/look/mPictures.h"

namespace {

constexpr int LiftTime = 650;     // milliseconds that one foundation takes
constexpr int NextAfter = 110;    // milliseconds from one foundation to the next
constexpr double Height = 210;    // twips that a card is lifted
constexpr double HaloWidth = 90;  // twips

}  // namespace

WonTable::WonTable(QGraphicsView& view) : view_(&view) {
    plate_.SetStage(nullptr);
    for (int PicID = 0; PicID < MaxCards; ++PicID) {
        if (plate_.PicCards(PicID).Visible) cards_.push_back(&plate_.PicCards(PicID));
    }
    std::sort(cards_.begin(), cards_.end(), [](const auto* a, const auto* b) { return a->Order < b->Order; });
    for (const CardRecord* card : cards_) {
        if (card->Cell != Goal) continue;
        const auto same = std::find_if(foundations_.begin(), foundations_.end(),
                                       [card](const CardRecord* top) { return top->Pile == card->Pile; });
        if (same == foundations_.end()) {
            foundations_.push_back(card);
        } else if (card->Pos > (*same)->Pos) {
            *same = card;
        }
    }
    std::sort(foundations_.begin(), foundations_.end(),
              [](const auto* a, const auto* b) { return a->Pile < b->Pile; });
    setAcceptedMouseButtons(Qt::NoButton);
    setZValue(-0.5);  // over the marks, under the cards of a next deal
    view.scene()->addItem(this);
    Repaint(boundingRect());
    connect(&animation_, &QVariantAnimation::valueChanged, this, [this] { Repaint(FoundationsArea()); });
}

WonTable::~WonTable() { Repaint(boundingRect()); }

void WonTable::Celebrate() {
    // The style's word for how long its own animations take: none where the desktop wants things to keep
    // still.
    if (!view_ || foundations_.empty() ||
        view_->style()->styleHint(QStyle::SH_Widget_Animation_Duration, nullptr, view_) <= 0)
        return;
    const int whole = LiftTime + NextAfter * (static_cast<int>(foundations_.size()) - 1);
    animation_.setStartValue(0);
    animation_.setEndValue(whole);
    animation_.setDuration(whole);
    animation_.start();
}

double WonTable::Lift(std::size_t foundation) const {
    if (animation_.state() != QAbstractAnimation::Running) return 0;
    const double part =
        (animation_.currentValue().toDouble() - NextAfter * static_cast<double>(foundation)) / LiftTime;
    return part <= 0 || part >= 1 ? 0 : std::sin(part * std::numbers::pi);
}

QRectF WonTable::FoundationsArea() const {
    QRectF area;
    for (const CardRecord* top : foundations_) area |= QRectF(top->Left, top->Top, CardWidth, CardHeight);
    return area.adjusted(-HaloWidth, -HaloWidth - Height, HaloWidth, HaloWidth);
}

QRect WonTable::OnScreen() const {
    if (!view_ || foundations_.empty()) return {};
    const QRect pixels = view_->mapFromScene(FoundationsArea()).boundingRect() & view_->viewport()->rect();
    return {view_->viewport()->mapToGlobal(pixels.topLeft()), pixels.size()};
}

void WonTable::Repaint(const QRectF& area) const {
    if (view_) view_->viewport()->update(view_->mapFromScene(area).boundingRect().adjusted(-2, -2, 2, 2));
}

QRectF WonTable::boundingRect() const {
    QRectF area = FoundationsArea();
    for (const CardRecord* card : cards_) area |= mPictures::CardBounds.translated(card->Left, card->Top);
    cPlate::ForEachMark([&](MarkKind kind, int index) {
        const MarkRecord& mark = plate_.Mark(kind, index);
        if (mark.Visible) area |= mPictures::CardBounds.translated(mark.Left, mark.Top);
    });
    return area;
}

void WonTable::paint(QPainter* painter, const QStyleOptionGraphicsItem*, QWidget*) {
    const double scale = mPictures::ScaleOf(*painter);
    const auto draw = [&](const CardRecord& card, double top) {
        painter->save();
        painter->translate(card.Left, top);
        mPictures::DrawAtWholePixels(*painter, card.FaceMode == 1 ? mPictures::GetPic(card.DeckPic, scale)
                                                                  : mPictures::MainPic(card.MainPic, scale));
        painter->restore();
    };
    cPlate::ForEachMark([&](MarkKind kind, int index) {
        const MarkRecord& mark = plate_.Mark(kind, index);
        if (!mark.Visible) return;
        painter->save();
        painter->translate(mark.Left, mark.Top);
        mPictures::DrawAtWholePixels(*painter, mPictures::RightPic(mark.Picture, scale));
        painter->restore();
    });
    for (const CardRecord* card : cards_) draw(*card, card->Top);
    for (std::size_t i = 0; i < foundations_.size(); ++i) {
        const double lift = Lift(i);
        if (lift <= 0) continue;
        const CardRecord& top = *foundations_[i];
        const QRectF card(top.Left, top.Top - lift * Height, CardWidth, CardHeight);
        const double halo = HaloWidth * lift;
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        painter->setPen(Qt::NoPen);
        painter->setBrush(QColor(255, 214, 102, static_cast<int>(150 * lift)));
        painter->drawRoundedRect(card.adjusted(-halo, -halo, halo, halo), halo + 70, halo + 70);
        painter->restore();
        draw(top, card.top());
    }
}
