// Pictures and tiles: each number has one, of its size and unlike the others.
#include <algorithm>
#include <array>
#include <cmath>
#include <functional>
#include <numeric>
#include <utility>
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
    for (int number = 1; number <= Faces; ++number) {
        ExpectCard(QStringLiteral("cards/%1").arg(number));
        ExpectCard(QStringLiteral("cards-four/%1").arg(number));
    }
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

// Light by its parts red, green and blue, in proportion to its power.
using Light = std::array<double, 3>;

Light LightOf(const QColor& color) {
    const auto part = [](double value) {
        return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
    };
    return {part(color.redF()), part(color.greenF()), part(color.blueF())};
}

Light Through(const std::array<Light, 3>& eye, const Light& light) {
    Light seen{};
    for (std::size_t row = 0; row < 3; ++row) {
        seen[row] =
            std::clamp(std::inner_product(eye[row].begin(), eye[row].end(), light.begin(), 0.0), 0.0, 1.0);
    }
    return seen;
}

double Luminance(const Light& light) { return 0.2126 * light[0] + 0.7152 * light[1] + 0.0722 * light[2]; }

/// From 1 to 21, as the guidelines for accessible web pages (WCAG 2) measure it.
double Contrast(const Light& one, const Light& other) {
    const auto [dark, light] = std::minmax({Luminance(one), Luminance(other)});
    return (light + 0.05) / (dark + 0.05);
}

/// The distance of two colours in CIELAB (ΔE of 1976) under daylight; from about 2 on an eye sees it.
double Difference(const Light& one, const Light& other) {
    const auto lab = [](const Light& light) {
        const auto [red, green, blue] = light;
        const auto root = [](double part) {
            return part > 216.0 / 24389 ? std::cbrt(part) : (24389.0 / 27 * part + 16) / 116;
        };
        const double x = root((0.4124564 * red + 0.3575761 * green + 0.1804375 * blue) / 0.95047);
        const double y = root(Luminance(light));
        const double z = root((0.0193339 * red + 0.1191920 * green + 0.9503041 * blue) / 1.08883);
        return Light{116 * y - 16, 500 * (x - y), 200 * (y - z)};
    };
    const Light a = lab(one);
    const Light b = lab(other);
    return std::hypot(a[0] - b[0], a[1] - b[1], a[2] - b[2]);
}

TEST(Pictures, FourColorsStayApartForEveryEye) {
    // What is seen without one kind of cones: the matrices for full severity of Machado, Oliveira and
    // Fernandes, "A Physiologically-based Model for Simulation of Color Vision Deficiency" (2009).
    const std::pair<const char*, std::array<Light, 3>> eyes[] = {
        {"all cones", {{{1, 0, 0}, {0, 1, 0}, {0, 0, 1}}}},
        {"no red (protanopia)",
         {{{0.152286, 1.052583, -0.204868},
           {0.114503, 0.786281, 0.099216},
           {-0.003882, -0.048116, 1.051998}}}},
        {"no green (deuteranopia)",
         {{{0.367322, 0.860646, -0.227968},
           {0.280085, 0.672501, 0.047413},
           {-0.011820, 0.042940, 0.968881}}}},
        {"no blue (tritanopia)",
         {{{1.255528, -0.076749, -0.178779},
           {-0.078411, 0.930809, 0.147602},
           {0.004733, 0.691367, 0.303900}}}},
    };
    constexpr double Apart = 20;
    constexpr double Readable = 3;  // the guidelines' least for signs of this size
    std::vector<Light> suits;
    std::vector<Light> grounds;
    for (int suit = 0; suit < 4; ++suit) {
        // The upper pip of the Two and the paper beside it; the ground of the King's frame.
        const QImage two = Art::Picture(QStringLiteral("cards-four/%1").arg(suit * 13 + 2), 2);
        const QImage king = Art::Picture(QStringLiteral("cards-four/%1").arg(suit * 13 + 13), 2);
        suits.push_back(LightOf(two.pixelColor(71, 41)));
        grounds.push_back(LightOf(two.pixelColor(100, 60)));
        grounds.push_back(LightOf(king.pixelColor(30, 66)));
    }
    for (const auto& [name, eye] : eyes) {
        SCOPED_TRACE(name);
        for (std::size_t one = 0; one < suits.size(); ++one) {
            const Light seen = Through(eye, suits[one]);
            for (std::size_t other = one + 1; other < suits.size(); ++other) {
                EXPECT_GE(Difference(seen, Through(eye, suits[other])), Apart) << one << " and " << other;
            }
            for (const Light& ground : grounds)
                EXPECT_GE(Contrast(seen, Through(eye, ground)), Readable) << one;
        }
    }
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
