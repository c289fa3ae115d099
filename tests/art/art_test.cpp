// Pictures and tiles: each number has one, of its size, unlike the others, and readable where it matters.
#include <array>
#include <cmath>
#include <functional>
#include <numeric>
#include <set>
#include <vector>

#include <gtest/gtest.h>
#include <QColor>
#include <QFile>
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
const std::vector<const char*> ToolbarIcons = {"new-game",       "select-game", "restart-game", "autoplay",
                                               "undo",           "redo",        "replay-back",  "replay-stop",
                                               "replay-forward", "statistics",  "help"};
const std::vector<const char*> ListIcons = {"group",      "game",  "player",   "date", "deck",
                                            "background", "sound", "favorite", "move"};

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

// The mean difference of lightness from pixel to pixel.
double Difference(const QImage& one, const QImage& other) {
    double sum = 0;
    for (int y = 0; y < one.height(); ++y) {
        for (int x = 0; x < one.width(); ++x) {
            sum += std::abs(Lightness(one.pixel(x, y)) - Lightness(other.pixel(x, y)));
        }
    }
    return sum / (one.width() * one.height());
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

// All parts of a fan that show must tell the cards apart: a strip of 12 pixels of the top or the left.
TEST(Pictures, StripsOfAFanTellAllFacesApart) {
    const struct {
        const char* Name;
        QRect Place;
    } strips[] = {
        {"rank and suit in the top line", QRect(1, 1, 20, 11)},
        {"rank and suit in the left column", QRect(1, 1, 11, 21)},
        {"rank alone", QRect(1, 1, 11, 11)},
        {"suit in the top line", QRect(12, 1, 9, 11)},
        {"suit in the left column", QRect(1, 12, 11, 11)},
    };
    for (const auto& strip : strips) {
        std::vector<QImage> cut;
        for (int number = 1; number <= Faces; ++number) cut.push_back(Face(number).copy(strip.Place));
        for (int one = 0; one < Faces; ++one) {
            for (int other = one + 1; other < Faces; ++other) {
                const bool sameRank = one % 13 == other % 13;
                const bool sameSuit = one / 13 == other / 13;
                const QString name = QString::fromLatin1(strip.Name);
                // Hearts and Diamonds must differ in shape, not only where red differs from black.
                const bool mustDiffer = name.startsWith(QStringLiteral("rank alone")) ? !sameRank
                                        : name.startsWith(QStringLiteral("suit"))     ? !sameSuit
                                                                                      : true;
                if (!mustDiffer) continue;
                EXPECT_GT(
                    Difference(cut[static_cast<std::size_t>(one)], cut[static_cast<std::size_t>(other)]), 5)
                    << strip.Name << ": faces " << one + 1 << " and " << other + 1;
            }
        }
    }
}

TEST(Pictures, IndexKeepsToItsStrips) {
    for (int number = 1; number <= Faces; ++number) {
        const QImage face = Face(number, 2);
        // Paper between rank and edge, and between the rank and the suits beside and below it.
        for (const QRect gap : {QRect(4, 24, 18, 1), QRect(23, 8, 1, 12)}) {
            for (int y = gap.top(); y <= gap.bottom(); ++y) {
                for (int x = gap.left(); x <= gap.right(); ++x) {
                    EXPECT_GT(Lightness(face.pixel(x, y)), 215)
                        << "face " << number << " at " << x << ", " << y;
                }
            }
        }
    }
}

TEST(Pictures, IndexIsTurnedInTheLowerRightCorner) {
    for (int number = 1; number <= Faces; ++number) {
        const QImage face = Face(number, 2);
        const QRect corner(0, 0, 42, 46);
        const QImage turned = face.transformed(QTransform().rotate(180));
        EXPECT_LT(Difference(face.copy(corner), turned.copy(corner)), 2) << "face " << number;
    }
}

TEST(Pictures, RedAndBlackDifferInLightness) {
    const auto darkest = [](int number) {
        const QImage corner = Face(number, 3).copy(QRect(6, 6, 27, 60));
        double lightness = 255;
        for (int y = 0; y < corner.height(); ++y) {
            for (int x = 0; x < corner.width(); ++x)
                lightness = std::min(lightness, Lightness(corner.pixel(x, y)));
        }
        return lightness;
    };
    for (int rank = 1; rank <= 13; ++rank) {
        for (const int red : {rank, rank + 26}) {
            for (const int black : {rank + 13, rank + 39})
                EXPECT_GT(darkest(red), darkest(black) + 35) << red << ' ' << black;
        }
    }
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

TEST(Pictures, MarksShowOnLightAndOnDarkGrounds) {
    for (const QColor& ground : {QColor(12, 14, 20), QColor(0, 128, 0), QColor(238, 236, 230)}) {
        QImage plain(CardWidth, CardHeight, QImage::Format_RGB32);
        plain.fill(ground);
        for (int number = 0; number < Marks; ++number) {
            const QImage mark = On(Art::Picture(QStringLiteral("marks/%1").arg(number), 1), ground);
            // The frame's line: somewhere near the edge, lighter or darker than the table.
            double frame = 0;
            for (int x = 0; x < 3; ++x) {
                frame = std::max(
                    frame, std::abs(Lightness(mark.pixel(x, CardHeight / 2)) - Lightness(ground.rgb())));
            }
            EXPECT_GT(frame, 25) << "mark " << number;
            if (number == 14) continue;
            EXPECT_GT(
                Difference(mark.copy(15, 20, 41, 60),
                           On(Art::Picture(QStringLiteral("marks/14"), 1), ground).copy(15, 20, 41, 60)),
                2.5)
                << "mark " << number;
        }
    }
}

TEST(Pictures, IconsShowOnLightAndOnDarkToolbars) {
    std::vector<const char*> names = ToolbarIcons;
    names.insert(names.end(), ListIcons.begin(), ListIcons.end());
    std::set<QByteArray> different;
    for (const char* name : names) {
        for (const int size : {16, 40}) {
            const QImage icon = Art::Picture(QStringLiteral("icons/") + QLatin1String(name), size / 16.0);
            ASSERT_EQ(icon.size(), QSize(size, size)) << name;
            for (const QColor& ground : {QColor(245, 245, 245), QColor(40, 42, 46)}) {
                const QImage shown = On(icon, ground);
                int strong = 0;
                for (int y = 0; y < size; ++y) {
                    for (int x = 0; x < size; ++x) {
                        if (std::abs(Lightness(shown.pixel(x, y)) - Lightness(ground.rgb())) > 45) ++strong;
                    }
                }
                EXPECT_GT(strong, size * size / 8) << name << " on " << ground.name().toStdString();
            }
            if (size == 16) {
                different.insert(
                    QByteArray(reinterpret_cast<const char*>(icon.constBits()), icon.sizeInBytes()));
            }
        }
    }
    EXPECT_EQ(different.size(), names.size());
    EXPECT_FALSE(Art::Picture(QStringLiteral("icons/tarnival"), 1).isNull());
    const QImage splash = Art::Picture(QStringLiteral("splash"), Art::SplashSize);
    EXPECT_FALSE(splash.isNull());
    EXPECT_EQ(Art::Splash(Art::SplashSize), splash.convertToFormat(QImage::Format_RGB32));
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

TEST(Tiles, AreCalm) {
    for (const int number : Tiles) {
        const QImage tile = Art::Tile(number);
        double sum = 0;
        double squares = 0;
        for (int y = 0; y < tile.height(); ++y) {
            for (int x = 0; x < tile.width(); ++x) {
                const double lightness = Lightness(tile.pixel(x, y));
                sum += lightness;
                squares += lightness * lightness;
            }
        }
        const double count = tile.width() * tile.height();
        const double mean = sum / count;
        EXPECT_LT(mean, 190) << "tile " << number << " is nearly as light as a card";
        EXPECT_LT(std::sqrt(squares / count - mean * mean), 22) << "tile " << number << " is restless";
    }
}

TEST(Tiles, NoTwoAreEqual) { ExpectAllDifferent(Tiles, Art::Tile, 4); }

}  // namespace
