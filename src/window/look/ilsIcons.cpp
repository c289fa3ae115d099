// The names of the small pictures.
#include "window/look/ilsIcons.h"

#include <QPainter>
#include <QPixmap>

#include "window/look/mIcons.h"

namespace ilsIcons {

QIcon Group() { return mIcons::Picture(QStringLiteral("group")); }
QIcon Game() { return mIcons::Picture(QStringLiteral("game")); }
QIcon Player() { return mIcons::Picture(QStringLiteral("player")); }
QIcon Date() { return mIcons::Picture(QStringLiteral("date")); }
QIcon Deck() { return mIcons::Picture(QStringLiteral("deck")); }
QIcon Background() { return mIcons::Picture(QStringLiteral("background")); }
QIcon Sound() { return mIcons::Picture(QStringLiteral("sound")); }
QIcon Favorite() { return mIcons::Picture(QStringLiteral("favorite")); }
QIcon Move() { return mIcons::Picture(QStringLiteral("move")); }

QIcon Swatch(const QColor& color) {
    QIcon icon;
    for (const int size : {16, 24, 32, 48, 64}) {
        QPixmap square(size, size);
        square.fill(Qt::transparent);
        QPainter painter(&square);
        painter.scale(size / 16.0, size / 16.0);
        painter.setPen(QPen(QColor(110, 110, 110), 0.8));
        painter.setBrush(color);
        painter.drawRect(QRectF(2.0, 2.0, 12.0, 12.0));
        painter.end();
        icon.addPixmap(square);
        icon.addPixmap(square, QIcon::Selected);  // a sample of a colour is not tinted, as other icons are
    }
    return icon;
}

}  // namespace ilsIcons
