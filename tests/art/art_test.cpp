// Pictures and tiles: each number has one, of its size and unlike the others.
#include <array>
#include <cmath>
#include <functional>
#include <numeric>
#include <vector>

#include <gtest/gtest.h>
#include <QColor>
#include <QImage>
#include <QPainter>

#include "Art.h"

namespace {

constexpr int CardWidth = 71;
constexpr int CardHeight = 96;
constexpr int Faces = 52;
constexpr int Marks = 18;
const std::vector<int> Backs = {501, 502, 503, 511, 512, 521, 522, 523, 531, 532, 533, 541, 542, 543, 544};
const std::vector<int> Tiles = {1,  2,  3,  4,  5,  11, 12, 13, 21, 22, 23, 24, 25, 31, 32, 33, 34,
                                41, 42, 43, 51, 52, 53, 54, 55, 61, 62, 63, 64, 65, 71, 72, 73};
QImage Face(int number, double scale = 1) {
    return Art::Picture(QStringLiteral("cards/%1").arg(number), scale);
}

// From 0 to 255, as the eye weighs the colours.
double Lightness(QRgb pixel) { return 0.2126 * qRed(pixel) + 0.7152 * qGreen(pixel) + 0.0722 * qBlue(pixel); }

// The picture as it looks on a ground.
QImage On(const QImage& picture, const QColor& ground) {
    QImage image(picture.size(), QImage::Format_RGB32);
    image.fill(ground);
    QPainter(&image).drawImage(0, 0, picture);
    return image;
}

void ExpectCardSize(const QString& name) {
    for (const double scale : {1.0, 2.5}) {
        const QImage picture = Art::Picture(name, scale);
        EXPECT_EQ(picture.size(), QSize(qRound(CardWidth * scale), qRound(CardHeight * scale)))
            << name.toStdString() << " at scale " << scale;
    }
}

// Clear at the very corners, solid in the middle of each side: the card's outline and nothing beyond it.
void ExpectCardOutline(const QString& name) {
    const QImage picture = Art::Picture(name, 3);
    const int right = picture.width() - 1;
    const int bottom = picture.height() - 1;
    for (const QPoint corner : {QPoint(0, 0), QPoint(right, 0), QPoint(0, bottom), QPoint(right, bottom)}) {
        for (int x = 0; x < 3; ++x) {
            const QPoint place(corner.x() == 0 ? x : right - x, corner.y());
            EXPECT_EQ(qAlpha(picture.pixel(place)), 0)
                << name.toStdString() << " at " << place.x() << ", " << place.y();
        }
    }
    for (const QPoint side : {QPoint(right / 2, 0), QPoint(right / 2, bottom), QPoint(0, bottom / 2),
                              QPoint(right, bottom / 2)}) {
        EXPECT_EQ(qAlpha(picture.pixel(side)), 255) << name.toStdString();
        EXPECT_LT(Lightness(picture.pixel(side)), 150)
            << name.toStdString() << ": no edge to tell it from a pile";
    }
}

TEST(Pictures, EveryFaceAndBackIsACard) {
    for (int number = 1; number <= Faces; ++number) {
        ExpectCardSize(QStringLiteral("cards/%1").arg(number));
        ExpectCardOutline(QStringLiteral("cards/%1").arg(number));
    }
    for (const int number : Backs) {
        ExpectCardSize(QStringLiteral("backs/%1").arg(number));
        ExpectCardOutline(QStringLiteral("backs/%1").arg(number));
    }
}

TEST(Pictures, EveryMarkHasTheSizeOfACard) {
    for (int number = 0; number < Marks; ++number) ExpectCardSize(QStringLiteral("marks/%1").arg(number));
}

TEST(Pictures, WhatThereIsNotIsNoPicture) {
    for (const char* name : {"cards/0", "cards/53", "backs/545", "marks/18", "icons/"}) {
        EXPECT_TRUE(Art::Picture(QString::fromLatin1(name), 1).isNull()) << name;
    }
    EXPECT_TRUE(Art::Tile(6).isNull());
}

// No two pictures of a kind may look alike: how light they are differs, in the mean of a grid of points.
void ExpectAllDifferent(const std::vector<int>& numbers, const std::function<QImage(int)>& picture,
                        double least) {
    constexpr int Points = 64;  // a side; tiles are not all of one size
    std::vector<std::array<double, Points * Points>> pictures;
    for (const int number : numbers) {
        const QImage image = picture(number);
        auto& lightness = pictures.emplace_back();
        for (int point = 0; point < Points * Points; ++point) {
            lightness.at(point) = Lightness(image.pixel(point % Points * image.width() / Points,
                                                        point / Points * image.height() / Points));
        }
    }
    for (std::size_t one = 0; one < numbers.size(); ++one) {
        for (std::size_t other = one + 1; other < numbers.size(); ++other) {
            const double sum = std::transform_reduce(
                pictures[one].begin(), pictures[one].end(), pictures[other].begin(), 0.0, std::plus(),
                [](double left, double right) { return std::abs(left - right); });
            EXPECT_GT(sum / (Points * Points), least) << numbers[one] << " and " << numbers[other];
        }
    }
}

std::vector<int> Range(int first, int last) {
    std::vector<int> numbers;
    for (int number = first; number <= last; ++number) numbers.push_back(number);
    return numbers;
}

TEST(Pictures, NoTwoAreEqual) {
    const QColor ground(30, 92, 58);
    ExpectAllDifferent(
        Range(1, Faces), [&](int number) { return On(Face(number), ground); }, 1);
    ExpectAllDifferent(
        Backs,
        [&](int number) { return On(Art::Picture(QStringLiteral("backs/%1").arg(number), 1), ground); }, 15);
    ExpectAllDifferent(
        Range(0, Marks - 1),
        [&](int number) { return On(Art::Picture(QStringLiteral("marks/%1").arg(number), 1), ground); }, 1);
}

double MeanStep(const QImage& tile, bool rows, int from, int to) {
    const int length = rows ? tile.width() : tile.height();
    double sum = 0;
    for (int i = 0; i < length; ++i) {
        const QRgb one = rows ? tile.pixel(i, from) : tile.pixel(from, i);
        const QRgb other = rows ? tile.pixel(i, to) : tile.pixel(to, i);
        sum += std::abs(qRed(one) - qRed(other)) + std::abs(qGreen(one) - qGreen(other)) +
               std::abs(qBlue(one) - qBlue(other));
    }
    return sum / length;
}

TEST(Tiles, FitOnAllSides) {
    for (const int number : Tiles) {
        const QImage tile = Art::Tile(number);
        ASSERT_GE(tile.width(), 256) << "tile " << number;
        ASSERT_GE(tile.height(), 256) << "tile " << number;
        for (const bool rows : {true, false}) {
            const int count = rows ? tile.height() : tile.width();
            double inside = 0;
            for (int i = 0; i + 1 < count; ++i) inside += MeanStep(tile, rows, i, i + 1);
            inside /= count - 1;
            EXPECT_LE(MeanStep(tile, rows, count - 1, 0), 1.5 * inside)
                << "tile " << number << (rows ? ", top and bottom" : ", left and right");
        }
    }
}

TEST(Tiles, NoTwoAreEqual) { ExpectAllDifferent(Tiles, Art::Tile, 4); }

}  // namespace
