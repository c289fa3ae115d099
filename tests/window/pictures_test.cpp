// Pictures by their numbers as the program gets them, and the backgrounds as they are painted.
#include <cstdlib>

#include <gtest/gtest.h>

#include <QImage>
#include <QPainter>
#include <QPixmap>

#include "Art.h"
#include "shell/mPictures.h"
#include "table/cPlate.h"

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
    const auto look = [](const QPixmap& picture) { return picture.toImage(); };
    for (const double scale : {1.0, 2.5}) {
        for (const int unknown : {-1, 0, 53, 1000}) {
            EXPECT_EQ(look(mPictures::MainPic(unknown, scale)), look(mPictures::MainPic(1, scale)))
                << unknown;
        }
        for (const int unknown : {-1, 0, 504, 545}) {
            EXPECT_EQ(look(mPictures::GetPic(unknown, scale)), look(mPictures::GetPic(531, scale)))
                << unknown;
        }
        for (const int unknown : {-1, 18}) {
            EXPECT_EQ(look(mPictures::RightPic(unknown, scale)), look(mPictures::RightPic(14, scale)))
                << unknown;
        }
    }
    for (const int unknown : {-5, 0, 6, 999}) EXPECT_EQ(Background(unknown, 1), Background(1, 1)) << unknown;
    EXPECT_NE(Background(2, 1), Background(1, 1));
    EXPECT_EQ(Background(1026, 0, 255).pixelColor(9, 9), QColor(255, 0, 0)) << "the custom colour";
}

TEST(PicturesByNumber, ColorsFadeToBlackOrStayFlat) {
    struct Row {
        int Number;
        int CustomColor;
        QColor Color;
    };
    const Row rows[] = {{1007, 0, QColor(0, 100, 0)},
                        {1025, 0, QColor(255, 99, 71)},
                        {1000, 10 + 256 * 120 + 65536 * 130, QColor(10, 120, 130)}};
    for (const Row& row : rows) {
        SCOPED_TRACE(row.Number);
        const QImage flat = Background(row.Number, 0, row.CustomColor);
        QImage expected = flat;
        expected.fill(row.Color);
        EXPECT_EQ(flat, expected);
        const QImage faded = Background(row.Number, 1, row.CustomColor);
        EXPECT_LE(std::abs(faded.pixelColor(0, 0).green() - row.Color.green()), 1);
        EXPECT_EQ(faded.pixelColor(0, faded.height() - 1), QColor(Qt::black));
        for (int y = 1; y < faded.height(); ++y) {
            EXPECT_LE(faded.pixelColor(0, y).green(), faded.pixelColor(0, y - 1).green()) << y;
        }
        EXPECT_EQ(Background(row.Number, 2, row.CustomColor), flat) << "only 1 fades";
    }
}

}  // namespace
