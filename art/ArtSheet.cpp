// Draws contact sheets of all art to PNG files: faces, backs, marks and icons at one, two and three times
// their size, each tile alone and repeated 3 × 3, and fans of which only strips of 16, 13 and 12 pixels show.
#include <algorithm>
#include <cstdlib>
#include <functional>
#include <iostream>
#include <stdexcept>

#include <QCoreApplication>
#include <QDir>
#include <QImage>
#include <QPainter>

#include "Art.h"

namespace {

constexpr int CardWidth = 71;
constexpr int CardHeight = 96;
constexpr int Gap = 8;
const QColor Cloth(30, 92, 58);

QList<int> Numbers(const QString& kind) {
    QList<int> numbers;
    const QStringList files = QDir(QStringLiteral(":/") + kind).entryList(QDir::Files);
    for (const QString& file : files) numbers.append(file.section(QLatin1Char('.'), 0, 0).toInt());
    std::sort(numbers.begin(), numbers.end());
    return numbers;
}

QImage Grid(const QList<QImage>& pictures, int columns, const QColor& ground) {
    int width = 0;
    int height = 0;
    for (const QImage& picture : pictures) {
        width = std::max(width, picture.width());
        height = std::max(height, picture.height());
    }
    const int rows = static_cast<int>((pictures.size() + columns - 1) / columns);
    QImage sheet(columns * (width + Gap) + Gap, rows * (height + Gap) + Gap, QImage::Format_RGB32);
    sheet.fill(ground);
    QPainter painter(&sheet);
    for (int i = 0; i < pictures.size(); ++i) {
        painter.drawImage(Gap + i % columns * (width + Gap), Gap + i / columns * (height + Gap), pictures[i]);
    }
    return sheet;
}

QImage CardSheet(const QString& kind, double scale, int columns, const QColor& ground) {
    QList<QImage> pictures;
    for (const int number : Numbers(kind)) {
        pictures.append(Art::Picture(QStringLiteral("%1/%2").arg(kind).arg(number), scale));
    }
    return Grid(pictures, columns, ground);
}

QImage IconSheet(double scale, const QColor& ground) {
    QList<QImage> pictures;
    const QStringList files = QDir(QStringLiteral(":/icons")).entryList(QDir::Files);
    for (const QString& file : files) {
        if (!file.startsWith(QLatin1String("tarnival")))
            pictures.append(Art::Picture(QStringLiteral("icons/") + file.chopped(4), scale));
    }
    return Grid(pictures, 10, ground);
}

QImage Repeated(const QImage& tile, int times) {
    QImage sheet(tile.width() * times, tile.height() * times, QImage::Format_RGB32);
    QPainter painter(&sheet);
    painter.fillRect(sheet.rect(), QBrush(tile));
    return sheet;
}

QImage TileSheet() {
    QList<QImage> pictures;
    for (const int number : Numbers(QStringLiteral("tiles"))) {
        QImage tile = Art::Tile(number);
        QPainter painter(&tile);
        painter.drawImage(20, 30, Art::Picture(QStringLiteral("cards/%1").arg(number % 52 + 1), 1));
        pictures.append(tile);
    }
    return Grid(pictures, 7, Qt::black);
}

// Columns of overlapping cards, each a suit from King to Ace; downwards or sideways.
QImage Fans(const QString& kind, const std::function<int(int column, int card)>& number, int columns,
            int cards, int step, bool sideways, double scale = 1) {
    const int length = (cards - 1) * step;
    const QSize fan =
        sideways ? QSize(length + CardWidth, CardHeight) : QSize(CardWidth, length + CardHeight);
    QImage sheet(qRound((columns * (fan.width() + Gap) + Gap) * scale),
                 qRound((fan.height() + 2 * Gap) * scale), QImage::Format_RGB32);
    sheet.fill(Cloth);
    QPainter painter(&sheet);
    for (int column = 0; column < columns; ++column) {
        for (int card = 0; card < cards; ++card) {
            const QImage picture =
                Art::Picture(QStringLiteral("%1/%2").arg(kind).arg(number(column, card)), scale);
            const int x = Gap + column * (fan.width() + Gap) + (sideways ? card * step : 0);
            const int y = Gap + (sideways ? 0 : card * step);
            painter.drawImage(qRound(x * scale), qRound(y * scale), picture);
        }
    }
    return sheet;
}

void Save(const QImage& image, const QDir& folder, const QString& name) {
    if (!image.save(folder.filePath(name))) throw std::runtime_error("cannot write " + name.toStdString());
}

void DrawSheets(const QDir& folder) {
    for (const int scale : {1, 2, 3}) {
        const QString suffix = QStringLiteral("-%1x.png").arg(scale);
        Save(CardSheet(QStringLiteral("cards"), scale, 13, Cloth), folder, QStringLiteral("faces") + suffix);
        Save(CardSheet(QStringLiteral("cards-four"), scale, 13, Cloth), folder,
             QStringLiteral("faces-four") + suffix);
        Save(CardSheet(QStringLiteral("backs"), scale, 8, Cloth), folder, QStringLiteral("backs") + suffix);
        Save(CardSheet(QStringLiteral("marks"), scale, 9, Cloth), folder, QStringLiteral("marks") + suffix);
        Save(CardSheet(QStringLiteral("marks"), scale, 9, QColor(232, 224, 208)), folder,
             QStringLiteral("marks-light") + suffix);
        Save(IconSheet(scale, QColor(240, 240, 240)), folder, QStringLiteral("icons") + suffix);
        Save(IconSheet(scale, QColor(43, 43, 43)), folder, QStringLiteral("icons-dark") + suffix);
    }
    Save(TileSheet(), folder, QStringLiteral("tiles.png"));
    for (const int number : Numbers(QStringLiteral("tiles"))) {
        Save(Repeated(Art::Tile(number), 3), folder, QStringLiteral("tile-%1-3x3.png").arg(number));
    }
    constexpr int Ranks = 13;
    const auto suits = [](int column, int card) { return column * Ranks + Ranks - card; };
    for (const int scale : {1, 3}) {
        const QString suffix = QStringLiteral("-%1x.png").arg(scale);
        for (const int step : {16, 13, 12}) {
            Save(Fans(QStringLiteral("cards"), suits, 4, Ranks, step, false, scale), folder,
                 QStringLiteral("fan-down-%1").arg(step) + suffix);
            Save(Fans(QStringLiteral("cards-four"), suits, 4, Ranks, step, false, scale), folder,
                 QStringLiteral("fan-four-down-%1").arg(step) + suffix);
        }
        Save(Fans(QStringLiteral("cards"), suits, 4, Ranks, 12, true, scale), folder,
             QStringLiteral("fan-right-12") + suffix);
    }
    const QList<int> backs = Numbers(QStringLiteral("backs"));
    const auto sameBack = [&backs](int column, int) { return backs[column]; };
    Save(Fans(QStringLiteral("backs"), sameBack, static_cast<int>(backs.size()), 10, 4, false), folder,
         QStringLiteral("fan-backs-4.png"));
    Save(Art::Picture(QStringLiteral("splash"), 1), folder, QStringLiteral("splash.png"));
    QList<QImage> emblems;
    for (const double scale : {0.25, 0.375})
        emblems.append(Art::Picture(QStringLiteral("icons/tarnival-small"), scale));
    for (const double scale : {0.5, 0.75, 1.0, 4.0})
        emblems.append(Art::Picture(QStringLiteral("icons/tarnival"), scale));
    Save(Grid(emblems, 6, QColor(240, 240, 240)), folder, QStringLiteral("application-icon.png"));
}

}  // namespace

int main(int count, char** arguments) {
    if (count != 2) {
        std::cerr << "usage: " << arguments[0] << " <folder>\n";
        return EXIT_FAILURE;
    }
    // Images need no screen, so this is no QGuiApplication.
    const QCoreApplication application(count, arguments);
    try {
        const QDir folder(QString::fromLocal8Bit(arguments[1]));
        folder.mkpath(QStringLiteral("."));
        DrawSheets(folder);
        return EXIT_SUCCESS;
    } catch (const std::exception& error) {
        std::cerr << error.what() << '\n';
        return EXIT_FAILURE;
    }
}
