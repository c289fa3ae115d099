// Rendering of the picture resources.
#include "Art.h"

#include <map>
#include <memory>

#include <QFile>
#include <QPainter>
#include <QResource>
#include <QSvgRenderer>

namespace Art {

namespace {

// Read once: that takes about as long as rendering it, which a preview or the zoom does in ever new sizes.
// Null where there is no picture of that name.
QSvgRenderer* Read(const QString& name) {
    static std::map<QString, std::unique_ptr<QSvgRenderer>> pictures;
    std::unique_ptr<QSvgRenderer>& picture = pictures[name];
    if (!picture) {
        const QString file = QStringLiteral(":/%1.svg").arg(name);
        if (!QFile::exists(file)) return nullptr;
        picture = std::make_unique<QSvgRenderer>(file);
    }
    return picture.get();
}

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
    QSvgRenderer* picture = Read(name);
    if (!picture) return {};
    const QSizeF size = picture->viewBoxF().size() * scale;
    return Rendered(*picture, QSize(qRound(size.width()), qRound(size.height())));
}

QImage Picture(const QString& name, const QSize& size) {
    QSvgRenderer* picture = Read(name);
    return picture ? Rendered(*picture, size) : QImage();
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
