// The previews, painted as the table paints.
#include "window/dialogs/LookPreview.h"

#include <array>

#include <QPainter>

#include "engine/commands/mCustomize.h"
#include "engine/state/cPlate.h"
#include "window/look/mPictures.h"

namespace {

constexpr QSizeF DesignedCard(CardWidth / mPictures::TwipsPerPixel, CardHeight / mPictures::TwipsPerPixel);

// The Ace of Hearts, the King of Spades, the Queen of Diamonds, the Ten of Clubs, in a fan to the right.
constexpr std::array Faces = {1, 26, 38, 49};
constexpr int FanStep = 24;

}  // namespace

LookPreview::LookPreview(const char* name, QWidget* parent) : QWidget(parent) {
    setObjectName(QLatin1String(name));
    setMinimumSize((DesignedCard * 2).toSize());
}

void LookPreview::SetBG(int background, int fade, int customColor) {
    background_ = background;
    fade_ = fade;
    customColor_ = customColor;
    update();
}

QSize LookPreview::sizeHint() const { return (DesignedCard * 3).toSize(); }

void LookPreview::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    // A tile shows in the size that it has on the table; a colour fades over what there is to see.
    const QRectF plate =
        mCustomize::CanFade(background_)
            ? QRectF(rect())
            : QRectF(0, 0, PlateWidth / mPictures::TwipsPerPixel, PlateHeight / mPictures::TwipsPerPixel);
    // The frame lies under the rest: a line drawn over it would leave bare pixels outside at a fractional
    // ratio.
    painter.fillRect(rect(), palette().color(QPalette::Mid));
    mPictures::SetBG(background_, painter, plate, rect().adjusted(1, 1, -1, -1), fade_, customColor_);
}

SuitsPreview::SuitsPreview(const char* name, QWidget* parent) : QWidget(parent) {
    setObjectName(QLatin1String(name));
    setFixedSize(DesignedCard.toSize() + QSize(FanStep * (static_cast<int>(Faces.size()) - 1), 0));
}

void SuitsPreview::SetFourColors(bool on) {
    fourColors_ = on;
    update();
}

void SuitsPreview::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    for (const int face : Faces) {
        mPictures::DrawAtWholePixels(painter, mPictures::MainPic(face, devicePixelRatioF(), fourColors_));
        painter.translate(FanStep, 0);
    }
}

BackPreview::BackPreview(const char* name, QWidget* parent) : QWidget(parent) {
    setObjectName(QLatin1String(name));
    setFixedSize(DesignedCard.toSize());
}

void BackPreview::SetDeckPic(int deck) {
    deck_ = deck;
    update();
}

void BackPreview::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    mPictures::DrawAtWholePixels(painter, mPictures::GetPic(deck_, devicePixelRatioF()));
}
