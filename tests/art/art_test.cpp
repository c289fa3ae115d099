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
// From 0 to 255, as the eye weighs the colours.
double Lightness(QRgb pixel) { return 0.2126 * qRed(pixel) + 0.7152 * qGreen(pixel) + 0.0722 * qBlue(pixel); }

// The picture as it looks on a ground.
QImage On(const QImage& picture, const QColor& ground) {
    QImage image(picture.size(), QImage::Format_RGB32);
    image.fill(ground);
    QPainter(&image).drawImage(0, 0, picture);
    return image;
}

// Clear at the very corners, solid in the middle of each side: the card's outline and nothing beyond it.
void ExpectCard(const QString& name) {
    SCOPED_TRACE(name.toStdString());
    constexpr int Scale = 3;
    const QImage picture = Art::Picture(name, Scale);
    ASSERT_EQ(picture.size(), QSize(CardWidth, CardHeight) * Scale);
    const int right = picture.width() - 1;
    const int bottom = picture.height() - 1;
    for (const int y : {0, bottom}) {
        for (const int x : {0, 1, 2, right - 2, right - 1, right}) EXPECT_EQ(qAlpha(picture.pixel(x, y)), 0);
    }
    for (const QPoint side : {QPoint(right / 2, 0), QPoint(right / 2, bottom), QPoint(0, bottom / 2),
                              QPoint(right, bottom / 2)}) {
        EXPECT_EQ(qAlpha(picture.pixel(side)), 255);
        EXPECT_LT(Lightness(picture.pixel(side)), 150) << "no edge to tell it from a pile";
    }
}

TEST(Pictures, EveryCardHasItsSizeAndOutline) {
    for (int number = 1; number <= Faces; ++number) ExpectCard(QStringLiteral("cards/%1").arg(number));
    for (const int number : Backs) ExpectCard(QStringLiteral("backs/%1").arg(number));
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

TEST(Pictures, NoTwoAreEqual) {
    const auto onTable = [](const char* kind) {
        return [kind](int number) {
            const QString name = QStringLiteral("%1/%2").arg(QLatin1String(kind)).arg(number);
            return On(Art::Picture(name, 1), QColor(30, 92, 58));
        };
    };
    std::vector<int> numbers(Faces);
    std::iota(numbers.begin(), numbers.end(), 1);
    ExpectAllDifferent(numbers, onTable("cards"), 1);
    ExpectAllDifferent(Backs, onTable("backs"), 15);
    numbers.resize(Marks);
    std::iota(numbers.begin(), numbers.end(), 0);
    ExpectAllDifferent(numbers, onTable("marks"), 1);
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
