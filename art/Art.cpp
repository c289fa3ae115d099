// Rendering of the picture resources.
#include "Art.h"

#include <QFile>
#include <QPainter>
#include <QResource>
#include <QSvgRenderer>

namespace Art {

namespace {

QString Resource(const QString& name) { return QStringLiteral(":/%1.svg").arg(name); }

QImage Rendered(QSvgRenderer& renderer, const QSize& size) {
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    renderer.render(&painter);
    return image;
}

}  // namespace

QImage Picture(const QString& name, double scale) {
    if (!QFile::exists(Resource(name))) return {};
    QSvgRenderer renderer(Resource(name));
    const QSizeF size = renderer.viewBoxF().size() * scale;
    return Rendered(renderer, QSize(qRound(size.width()), qRound(size.height())));
}

QImage Picture(const QString& name, const QSize& size) {
    if (!QFile::exists(Resource(name))) return {};
    QSvgRenderer renderer(Resource(name));
    return Rendered(renderer, size);
}

QImage Splash(const QSize& size) {
    // The build has rendered it, as plain pixels: to read and render a picture, whatever its format, is a
    // seventh of the time from the program's start to its splash.
    const QResource pixels(QStringLiteral(":/splash.rgb32"));
    constexpr int LineBytes = SplashSize.width() * 4;
    if (size != SplashSize || pixels.size() != qint64{LineBytes} * SplashSize.height() ||
        pixels.compressionAlgorithm() != QResource::NoCompression)
        return Picture(QStringLiteral("splash"), size);
    return QImage(pixels.data(), SplashSize.width(), SplashSize.height(), LineBytes, QImage::Format_RGB32);
}

QImage Tile(int number) { return QImage(QStringLiteral(":/tiles/%1.png").arg(number)); }

}  // namespace Art
