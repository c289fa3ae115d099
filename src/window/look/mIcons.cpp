// Icons from the program's vector pictures, rendered for the size and pixel ratio asked for.
#include "window/look/mIcons.h"

#include <QHash>
#include <QIconEngine>
#include <QImage>
#include <QPainter>
#include <QPixmap>

#include "Art.h"

namespace mIcons {

namespace {

QString NameOf(Tool tool) {
    switch (tool) {
        case Tool::NewGame:
            return QStringLiteral("icons/new-game");
        case Tool::SelectGame:
            return QStringLiteral("icons/select-game");
        case Tool::Restart:
            return QStringLiteral("icons/restart-game");
        case Tool::Autoplay:
            return QStringLiteral("icons/autoplay");
        case Tool::Undo:
            return QStringLiteral("icons/undo");
        case Tool::Redo:
            return QStringLiteral("icons/redo");
        case Tool::Back:
            return QStringLiteral("icons/replay-back");
        case Tool::Stop:
            return QStringLiteral("icons/replay-stop");
        case Tool::Forward:
            return QStringLiteral("icons/replay-forward");
        case Tool::Statistics:
            return QStringLiteral("icons/statistics");
        case Tool::Help:
            break;
    }
    return QStringLiteral("icons/help");
}

// Grey, so that it stands back, yet as strong as the toolbar's text when that is disabled.
QImage Disabled(const QImage& picture) {
    constexpr double Strength = 0.55;
    QImage gray = picture.convertToFormat(QImage::Format_ARGB32);
    for (int y = 0; y < gray.height(); ++y) {
        for (int x = 0; x < gray.width(); ++x) {
            const QRgb pixel = gray.pixel(x, y);
            const int lightness = qGray(pixel);
            gray.setPixel(x, y,
                          qRgba(lightness, lightness, lightness, static_cast<int>(Strength * qAlpha(pixel))));
        }
    }
    return gray;
}

// Trees of many hundred rows show the same few pictures, so each is drawn once for its size.
QPixmap Drawn(const QString& name, const QSize& size, bool disabled) {
    static QHash<QString, QPixmap> drawn;
    QPixmap& picture = drawn
        [QStringLiteral("%1 %2x%3 %4").arg(name).arg(size.width()).arg(size.height()).arg(disabled ? 1 : 0)];
    if (picture.isNull()) {
        const QImage image = Art::Picture(name, size);
        picture = QPixmap::fromImage(disabled ? Disabled(image) : image);
    }
    return picture;
}

class PictureEngine : public QIconEngine {
public:
    explicit PictureEngine(QString name) : name_(std::move(name)) {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override {
        const double ratio = painter->device()->devicePixelRatioF();
        painter->drawPixmap(rect,
                            Drawn(name_, (QSizeF(rect.size()) * ratio).toSize(), mode == QIcon::Disabled));
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State) override {
        return Drawn(name_, size, mode == QIcon::Disabled);
    }

    [[nodiscard]] QIconEngine* clone() const override { return new PictureEngine(name_); }

private:
    QString name_;
};

}  // namespace

QIcon Picture(const QString& name) { return QIcon(new PictureEngine(QStringLiteral("icons/") + name)); }

QIcon Toolbar(Tool tool) { return QIcon(new PictureEngine(NameOf(tool))); }

QIcon Application() {
    static const QIcon icon = [] {
        QIcon drawn;
        // Small sizes have a drawing of their own, with fewer strokes.
        for (const int size : {16, 22, 24, 32, 48, 64, 128, 256}) {
            constexpr int Small = 24;
            const QString name =
                size <= Small ? QStringLiteral("icons/tarnival-small") : QStringLiteral("icons/tarnival");
            drawn.addPixmap(QPixmap::fromImage(Art::Picture(name, QSize(size, size))));
        }
        return drawn;
    }();
    return icon;
}

}  // namespace mIcons
