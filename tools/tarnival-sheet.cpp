// Draws contact sheets of opening deals with the real card pictures, to look at many layouts at once.
//
//   tarnival-sheet FOLDER [GAME …]
//
// Writes sheet-01.png, sheet-02.png … into the folder: of the games named, or of all games.
#include <algorithm>
#include <cstdio>

#include <QDir>
#include <QGuiApplication>
#include <QPainter>

#include "engine/commands/mLoad.h"
#include "engine/commands/mMain.h"
#include "engine/outside/memorylayer.h"
#include "engine/state/cData.h"
#include "window/look/mTablePicture.h"

namespace {

constexpr int Columns = 4;
constexpr int Rows = 5;
constexpr double Scale = 0.5;  // pixels per designed pixel
constexpr int LabelHeight = 20;
constexpr int Gap = 8;

// The whole width of the plate and what the window shows of its height when maximised, so that games
// compare at a glance: what looks lopsided on the sheet is so on the screen.
const QRectF Shown(1200, 0, 13080, 10200);

void DrawCell(QPainter& sheet, const QRect& cell, int SiD) {
    const std::string name = gData->GetGame(SiD);
    const cPlate plate = mTablePicture::OpeningDeal(name, mTablePicture::FirstDeal);
    sheet.drawImage(cell.topLeft(), mTablePicture::Draw(plate, Shown, Scale));
    sheet.setPen(Qt::black);
    sheet.drawText(QRect(cell.left(), cell.bottom() - LabelHeight, cell.width(), LabelHeight),
                   Qt::AlignLeft | Qt::AlignVCenter,
                   QStringLiteral("%1  %2").arg(gData->GetGameID(name)).arg(QString::fromStdString(name)));
}

bool DrawSheet(const QString& path, const std::vector<int>& games) {
    const QSize picture = (Shown.size() * (Scale / 15.0)).toSize();
    const QSize cell(picture.width(), picture.height() + LabelHeight);
    const int rows = (static_cast<int>(games.size()) + Columns - 1) / Columns;
    QImage image(Columns * (cell.width() + Gap) + Gap, rows * (cell.height() + Gap) + Gap,
                 QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter sheet(&image);
    for (std::size_t i = 0; i < games.size(); ++i) {
        const int column = static_cast<int>(i) % Columns;
        const int row = static_cast<int>(i) / Columns;
        DrawCell(sheet,
                 QRect(QPoint(Gap + column * (cell.width() + Gap), Gap + row * (cell.height() + Gap)), cell),
                 games[i]);
    }
    return image.save(path);
}

std::vector<int> GamesNamed(const QStringList& names) {
    std::vector<int> games;
    for (int SiD = 1; SiD <= gData->TotalGames(); ++SiD) {
        if (names.isEmpty() || names.contains(QString::fromStdString(gData->GetGame(SiD))))
            games.push_back(SiD);
    }
    return games;
}

}  // namespace

int main(int argc, char** argv) {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    QStringList words = QGuiApplication::arguments().mid(1);
    if (words.isEmpty()) {
        std::fputs("usage: tarnival-sheet FOLDER [GAME ...]\n", stderr);
        return 2;
    }
    const QDir folder(words.takeFirst());
    MemoryLayer layer;
    mLoad::Main(layer.Layer());
    mMain::Load();
    const std::vector<int> games = GamesNamed(words);
    constexpr std::size_t PerSheet = std::size_t{Columns} * Rows;
    bool written = !games.empty();
    for (std::size_t first = 0; first < games.size() && written; first += PerSheet) {
        const auto begin = games.begin() + static_cast<std::ptrdiff_t>(first);
        const auto end = begin + static_cast<std::ptrdiff_t>(std::min(PerSheet, games.size() - first));
        const QString name =
            QStringLiteral("sheet-%1.png").arg(first / PerSheet + 1, 2, 10, QLatin1Char('0'));
        written = DrawSheet(folder.filePath(name), {begin, end});
    }
    mLoad::UnloadMain();
    return written ? 0 : 1;
}
