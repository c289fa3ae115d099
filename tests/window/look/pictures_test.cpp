// Pictures by their numbers as the program gets them, and the backgrounds as they are painted.
#include <cstdlib>
#include <tuple>
#include <vector>

#include <gtest/gtest.h>

#include <QImage>
#include <QPainter>
#include <QPixmap>

#include "Art.h"
#include "engine/state/cPlate.h"
#include "window/look/mPictures.h"
#include "window/table/KelCard.h"

namespace {

QImage Background(int number, int fade, int customColor = 0) {
    QImage image(QSize(PlateWidth, PlateHeight) / static_cast<int>(mPictures::TwipsPerPixel),
                 QImage::Format_RGB32);
    QPainter painter(&image);
    painter.scale(1 / mPictures::TwipsPerPixel, 1 / mPictures::TwipsPerPixel);
    const QRectF plate(0, 0, PlateWidth, PlateHeight);
    mPictures::SetBG(number, painter, plate, plate, fade, customColor);
    painter.end();
    return image;
}

TEST(PicturesByNumber, UnknownNumbersGiveTheDefaultPicture) {
    constexpr double Scale = 2.5;
    using Picture = QPixmap (*)(int, double);
    const std::tuple<Picture, int, std::vector<int>> rows[] = {
        {mPictures::MainPic, 1, {-1, 0, 53, 1000}},
        {mPictures::GetPic, 531, {-1, 0, 504, 545}},
        {mPictures::RightPic, 14, {-1, 18}},
    };
    for (const auto& [picture, usual, unknown] : rows) {
        for (const int number : unknown)
            EXPECT_EQ(picture(number, Scale).toImage(), picture(usual, Scale).toImage()) << number;
    }
    for (const int unknown : {-5, 0, 6, 999}) EXPECT_EQ(Background(unknown, 1), Background(1, 1)) << unknown;
    EXPECT_EQ(Background(1026, 0, 255).pixelColor(9, 9), QColor(255, 0, 0)) << "the custom colour";
}

TEST(PicturesByNumber, FourColorsAreOfDiamondsAndClubsAndOfEveryCourt) {
    const auto pip = [](int suit) {
        return mPictures::MainPic(suit * 13 + 2, 2).toImage().pixelColor(71, 41);
    };
    const auto king = [](int suit) { return mPictures::MainPic(suit * 13 + 13, 2).toImage(); };
    for (int suit = 0; suit < 4; ++suit) {
        const QColor usual = pip(suit);
        const QImage usualKing = king(suit);
        mPictures::UseFourColors(true);
        EXPECT_EQ(pip(suit) != usual, suit >= 2) << suit;
        EXPECT_NE(king(suit), usualKing) << suit;
        mPictures::UseFourColors(false);
        EXPECT_EQ(pip(suit), usual) << suit;
    }
}

TEST(PicturesByNumber, ASelectedCardIsShownInverted) {
    PicBack.SetFaceMode(0, 0);
    const auto look = [](bool selected) {
        PicBack.SetSelected(0, selected);
        QImage image(CardWidth / 15, CardHeight / 15, QImage::Format_RGB32);
        image.fill(Qt::green);
        QPainter painter(&image);
        painter.scale(1 / mPictures::TwipsPerPixel, 1 / mPictures::TwipsPerPixel);
        KelCard(0).paint(&painter, nullptr, nullptr);
        return image.pixelColor(image.width() / 2, 8);
    };
    const QColor usual = look(false);
    const QColor inverted = look(true);
    PicBack.SetSelected(0, false);
    EXPECT_EQ(inverted.rgb() & 0xFFFFFF, ~usual.rgb() & 0xFFFFFF);
}

TEST(PicturesByNumber, ColorsFadeToBlackOrStayFlat) {
    const std::tuple<int, int, QColor> rows[] = {{1007, 0, QColor(0, 100, 0)},
                                                 {1025, 0, QColor(255, 99, 71)},
                                                 {1000, 10 + 256 * 120 + 65536 * 130, QColor(10, 120, 130)}};
    for (const auto& [number, custom, color] : rows) {
        SCOPED_TRACE(number);
        const QImage flat = Background(number, 0, custom);
        QImage expected = flat;
        expected.fill(color);
        EXPECT_EQ(flat, expected);
        const QImage faded = Background(number, 1, custom);
        EXPECT_LE(std::abs(faded.pixelColor(0, 0).green() - color.green()), 1);
        EXPECT_EQ(faded.pixelColor(0, faded.height() - 1), QColor(Qt::black));
        for (int y = 1; y < faded.height(); ++y) {
            EXPECT_LE(faded.pixelColor(0, y).green(), faded.pixelColor(0, y - 1).green()) << y;
        }
        EXPECT_EQ(Background(number, 2, custom), flat) << "only 1 fades";
    }
}

}  // namespace
