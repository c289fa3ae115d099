// Drawing a table from its records.
#include "window/look/mTablePicture.h"

#include <algorithm>
#include <map>
#include <utility>
#include <vector>

#include <QPainter>

#include "engine/commands/mGen.h"
#include "engine/commands/mRoom.h"
#include "engine/state/cData.h"
#include "window/look/mPictures.h"

namespace mTablePicture {

namespace {

enum class Pictures { Face, Back, Mark };

QPixmap PictureOf(Pictures kind, int number, double scale) {
    if (kind == Pictures::Mark) return mPictures::RightPic(number, scale);
    return kind == Pictures::Back ? mPictures::GetPic(number, scale) : mPictures::MainPic(number, scale);
}

// The visible cards from the back to the front.
std::vector<const CardRecord*> CardsInOrder(const cPlate& plate) {
    std::vector<const CardRecord*> cards;
    for (int PicID = 0; PicID < MaxCards; ++PicID) {
        if (plate.PicCards(PicID).Visible) cards.push_back(&plate.PicCards(PicID));
    }
    std::sort(cards.begin(), cards.end(), [](const auto* a, const auto* b) { return a->Order < b->Order; });
    return cards;
}

}  // namespace

QRectF Extent(const cPlate& plate) {
    const mRoom::Area taken = mRoom::Taken(plate);
    return {QPointF(taken.Left, taken.Top), QPointF(taken.Right, taken.Bottom)};
}

QImage Draw(const cPlate& plate, const QRectF& area, double scale, double ready) {
    const double unit = scale / mPictures::TwipsPerPixel;
    QImage image((area.size() * unit).toSize(), QImage::Format_RGB32);
    QPainter painter(&image);
    painter.scale(unit, unit);
    painter.translate(-area.topLeft());
    mPictures::SetBG(gData->Get(Setting::BGIndex), painter, QRectF(0, 0, PlateWidth, PlateHeight), area,
                     gData->Get(Setting::Fade), gData->Get(Setting::CustomColor));
    const auto place = [&](int left, int top, const QPixmap& picture) {
        painter.save();
        painter.translate(left, top);
        mPictures::DrawAtWholePixels(painter, picture);
        painter.restore();
    };
    std::map<std::pair<Pictures, int>, QPixmap> small;
    const auto picture = [&](Pictures kind, int number) {
        if (2 * scale > ready) return PictureOf(kind, number, scale);
        QPixmap& found = small[{kind, number}];
        if (found.isNull()) {
            const QPixmap large = PictureOf(kind, number, ready);
            found = large.scaled((QSizeF(large.size()) * scale / ready).toSize(), Qt::IgnoreAspectRatio,
                                 Qt::SmoothTransformation);
        }
        return found;
    };
    cPlate::ForEachMark([&](MarkKind kind, int index) {
        const MarkRecord& mark = plate.Mark(kind, index);
        if (mark.Visible) place(mark.Left, mark.Top, picture(Pictures::Mark, mark.Picture));
    });
    for (const CardRecord* card : CardsInOrder(plate)) {
        place(card->Left, card->Top,
              card->FaceMode == 1 ? picture(Pictures::Back, card->DeckPic)
                                  : picture(Pictures::Face, card->MainPic));
    }
    return image;
}

cPlate OpeningDeal(const std::string& game, const GameNumber& number) {
    mGen::AsideGame aside;
    aside.Deal(game, number);
    cPlate dealt = PicBack;
    dealt.SetStage(nullptr);
    return dealt;
}

QImage Preview(const std::string& game, const QSize& size, double pixelRatio) {
    constexpr double Border = 200;  // twips of table around the cards
    const cPlate plate = OpeningDeal(game, FirstDeal);
    const QRectF cards = Extent(plate).adjusted(-Border, -Border, Border, Border);
    const QSizeF room = QSizeF(size) * mPictures::TwipsPerPixel;
    const double scale = std::min({room.width() / cards.width(), room.height() / cards.height(), 1.0});
    // What is left lies on both sides, and below, where the fans will grow.
    QRectF area(cards.topLeft(), room / scale);
    area.moveLeft(cards.center().x() - area.width() / 2);
    QImage image = Draw(plate, area, scale * pixelRatio, pixelRatio);
    image.setDevicePixelRatio(pixelRatio);
    return image;
}

}  // namespace mTablePicture
