// Writes the background tiles as PNG files into a folder: tiles/1.png …, and from the pictures that lie there
// already the application's icon in the sizes that desktops ask for, app/tarnival-16.png …, and the splash as
// plain pixels, splash.rgb32: lines of 32 bits a pixel, from the top down.
#include <cstdlib>
#include <iostream>
#include <stdexcept>
#include <string>

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>

#include "Art.h"
#include "Tiles.h"

namespace {

void Save(const QImage& image, const QString& path) {
    QDir().mkpath(QFileInfo(path).path());
    if (!image.save(path, "PNG")) throw std::runtime_error("cannot write " + path.toStdString());
}

void WriteTiles(const QString& folder) {
    for (const int number : Tiles::Numbers()) {
        Save(Tiles::Tile(number), QStringLiteral("%1/tiles/%2.png").arg(folder).arg(number));
    }
}

QImage Rendered(const QString& source, const QSize& size, QImage::Format format) {
    QSvgRenderer renderer(source);
    if (!renderer.isValid()) throw std::runtime_error("no picture in " + source.toStdString());
    QImage image(size, format);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    renderer.render(&painter);
    return image;
}

void WriteIcons(const QString& folder) {
    constexpr int LargestSmall = 24;
    for (const int size : {16, 22, 24, 32, 48, 64, 128, 256, 512}) {
        const QString source = QStringLiteral("%1/icons/tarnival%2.svg")
                                   .arg(folder, size <= LargestSmall ? QStringLiteral("-small") : QString());
        Save(Rendered(source, QSize(size, size), QImage::Format_ARGB32_Premultiplied),
             QStringLiteral("%1/app/tarnival-%2.png").arg(folder).arg(size));
    }
}

void WriteSplash(const QString& folder) {
    const QImage image =
        Rendered(folder + QStringLiteral("/splash.svg"), Art::SplashSize, QImage::Format_RGB32);
    QFile file(folder + QStringLiteral("/splash.rgb32"));
    if (!file.open(QIODevice::WriteOnly) || file.write(reinterpret_cast<const char*>(image.constBits()),
                                                       image.sizeInBytes()) != image.sizeInBytes())
        throw std::runtime_error("cannot write " + file.fileName().toStdString());
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
        WriteTiles(QString::fromLocal8Bit(arguments[1]));
        WriteIcons(QString::fromLocal8Bit(arguments[1]));
        WriteSplash(QString::fromLocal8Bit(arguments[1]));
        return EXIT_SUCCESS;
    } catch (const std::exception& error) {
        std::cerr << error.what() << '\n';
        return EXIT_FAILURE;
    }
}
