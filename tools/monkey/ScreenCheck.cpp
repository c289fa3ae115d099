// Items and pixels of the table against the plate.
#include "tools/monkey/ScreenCheck.h"

#include <set>

#include <QGraphicsScene>
#include <QGuiApplication>
#include <QHash>
#include <QImage>
#include <QPixmap>
#include <QRegion>
#include <QScreen>
#include <QToolBar>

#include "engine/state/cPlate.h"
#include "window/table/KelCard.h"
#include "window/table/KelEmpty.h"
#include "window/table/TableView.h"
#include "window/table/frmMain.h"

namespace {

std::string Text(double x, double y) { return std::to_string(x) + ", " + std::to_string(y); }

template <typename Record>
std::string PlaceFault(const QGraphicsItem& item, const Record& record) {
    if (item.isVisible() != record.Visible) return record.Visible ? "is not shown" : "is shown";
    if (record.Visible && item.pos() != QPointF(record.Left, record.Top)) {
        return "lies at " + Text(item.x(), item.y()) + " and not at " + Text(record.Left, record.Top);
    }
    return {};
}

std::string MarksFault(const QHash<QString, const QGraphicsItem*>& items) {
    std::string fault;
    cPlate::ForEachMark([&](MarkKind kind, int index) {
        const QString name = KelEmpty(kind, index).objectName();
        const QGraphicsItem* item = items.value(name);
        const std::string found =
            item ? PlaceFault(*item, PicBack.Mark(kind, index)) : std::string("is missing");
        if (!found.empty()) fault = "mark " + name.toStdString() + ' ' + found;
    });
    return fault;
}

/// What stands over the table, in the window's pixels: a toolbar of a narrow window folds out over it.
QRegion CoveredBy(const frmMain& window) {
    QRegion region;
    for (const QToolBar* bar : window.findChildren<QToolBar*>()) {
        if (bar->isVisible()) region += bar->geometry();
    }
    return region;
}

}  // namespace

namespace mScreenCheck {

std::string ItemsFault(const frmMain& window) {
    QHash<QString, const QGraphicsItem*> items;
    int cards = 0;
    std::set<int> heights;
    for (const QGraphicsItem* item : window.Table()->scene()->items()) {
        const QGraphicsObject* object = item->toGraphicsObject();
        if (!object) continue;
        items.insert(object->objectName(), item);
        const auto* view = qobject_cast<const KelCard*>(object);
        if (!view) continue;
        ++cards;
        const CardRecord& card = PicBack.PicCards(view->PicID());
        const std::string name = "the view of card " + std::to_string(view->PicID());
        const std::string fault = PlaceFault(*view, card);
        if (!fault.empty()) return name + ' ' + fault;
        if (!card.Visible) continue;
        // The order of two views that are equally high would be left to the scene.
        if (view->zValue() != card.Order) return name + " is not as high as its card";
        if (!heights.insert(card.Order).second) return name + " is as high as another one";
    }
    if (cards != MaxCards) return std::to_string(cards) + " views of cards";
    return MarksFault(items);
}

std::string PixelsFault(const frmMain& window) {
    if (QGuiApplication::platformName() != QStringLiteral("offscreen")) return {};
    QWidget* plate = window.Table()->viewport();
    if (!plate->isVisible() || window.isMinimized() || plate->visibleRegion().isEmpty()) return {};
    // Stretched pictures come out a shade different where only a part of them is drawn.
    if (window.Table()->PictureScale(1.0) != 1.0) return {};
    const QRect place(plate->mapTo(&window, QPoint()), plate->size());
    const QRect seen = place & window.rect();
    const QImage shown = window.screen()
                             ->grabWindow(window.winId(), seen.x(), seen.y(), seen.width(), seen.height())
                             .toImage()
                             .convertToFormat(QImage::Format_RGB32);
    const QImage drawn =
        plate->grab(seen.translated(-place.topLeft())).toImage().convertToFormat(QImage::Format_RGB32);
    if (shown == drawn) return {};
    if (shown.size() != drawn.size()) return "the screen shows another size of the table";
    const QRegion covered = CoveredBy(window).translated(-seen.topLeft());
    for (int y = 0; y < drawn.height(); ++y) {
        for (int x = 0; x < drawn.width(); ++x) {
            if (shown.pixel(x, y) == drawn.pixel(x, y) || covered.contains(QPoint(x, y))) continue;
            for (const auto& [image, file] : {std::pair{&shown, "shown.png"}, {&drawn, "drawn.png"}}) {
                image->save(QLatin1String(file));
            }
            return "the screen is out of date at pixel " + Text(x, y) + " of the table";
        }
    }
    return {};
}

}  // namespace mScreenCheck
