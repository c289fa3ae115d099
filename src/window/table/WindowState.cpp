// Restoring and writing the window's state.
#include "window/table/WindowState.h"

#include <algorithm>
#include <vector>

#include <QEvent>
#include <QGuiApplication>
#include <QMainWindow>
#include <QScreen>

#include "engine/state/cData.h"
#include "window/table/TableZoom.h"

namespace {

constexpr int Pause = 500;  // milliseconds

// The room on each screen. How much the frame takes of it is not known before the window is shown.
QList<QRect> Screens() {
    constexpr int FrameWidth = 8;
    constexpr int FrameHeight = 32;
    QList<QRect> screens;
    for (const QScreen* screen : QGuiApplication::screens()) {
        screens.append(screen->availableGeometry().adjusted(0, 0, -FrameWidth, -FrameHeight));
    }
    return screens;
}

// Under Wayland no program learns where its windows are: what another session has written stays.
bool KnowsPlace() { return !QGuiApplication::platformName().startsWith(QLatin1String("wayland")); }

}  // namespace

WindowState::WindowState(QMainWindow* window, TableZoom* zoom)
    : QObject(window), window_(window), zoom_(zoom) {
    pause_.setSingleShot(true);
    pause_.setInterval(Pause);
    connect(&pause_, &QTimer::timeout, this, &WindowState::Save);
    connect(zoom_, &TableZoom::Changed, &pause_, qOverload<>(&QTimer::start));
    window_->installEventFilter(this);
}

QRect WindowState::Seen(const QRect& wanted, const QList<QRect>& screens) {
    if (screens.isEmpty()) return wanted;
    const auto shared = [&wanted](const QRect& screen) {
        const QSize both = (screen & wanted).size();
        return both.isEmpty() ? 0 : qint64{both.width()} * both.height();
    };
    const QRect screen =
        *std::max_element(screens.begin(), screens.end(),
                          [&shared](const QRect& a, const QRect& b) { return shared(a) < shared(b); });
    // Enough of the title to move the window by.
    const QSize enough = QSize(160, 80).boundedTo(wanted.size());
    const QSize seen = (screen & wanted).size();
    const bool fits = wanted.width() <= screen.width() && wanted.height() <= screen.height();
    const bool held = enough.boundedTo(seen) == enough && wanted.top() >= screen.top();
    if (fits && held) return wanted;
    QRect place(wanted.topLeft(), wanted.size().boundedTo(screen.size()));
    place.moveLeft(std::clamp(place.left(), screen.left(), screen.right() + 1 - place.width()));
    place.moveTop(std::clamp(place.top(), screen.top(), screen.bottom() + 1 - place.height()));
    return place;
}

void WindowState::Restore() {
    QRect place(window_->pos(), window_->size());
    const QSize size(gData->Get(Setting::WindowWidth), gData->Get(Setting::WindowHeight));
    if (!size.isEmpty()) place.setSize(size);
    const QPoint corner(gData->Get(Setting::WindowLeft), gData->Get(Setting::WindowTop));
    if (corner.x() != Setting::NoPlace && corner.y() != Setting::NoPlace) place.moveTopLeft(corner);
    place = Seen(place, Screens());
    window_->resize(place.size());
    window_->move(place.topLeft());
    if (gData->Get(Setting::WindowMaximised) == 1) {
        window_->setWindowState(window_->windowState() | Qt::WindowMaximized);
    }
    if (gData->Get(Setting::WindowFullScreen) == 1) zoom_->BeginFullScreen();
    zoom_->Choose(gData->Get(Setting::Zoom), gData->Get(Setting::FitGame) == 1);
    pause_.stop();
}

void WindowState::Save() {
    pause_.stop();
    if (!gData || !window_->isVisible()) return;
    const Qt::WindowStates state = window_->windowState();
    std::vector<NumberValue> values = {{Setting::Zoom, zoom_->Percent()},
                                       {Setting::FitGame, zoom_->Fits() ? 1 : 0}};
    if (!state.testFlag(Qt::WindowMinimized)) {
        values.push_back({Setting::WindowFullScreen, state.testFlag(Qt::WindowFullScreen) ? 1 : 0});
    }
    // A window over the full screen does not tell what it goes back to; that was written before.
    if (!(state & (Qt::WindowFullScreen | Qt::WindowMinimized))) {
        values.push_back({Setting::WindowMaximised, state.testFlag(Qt::WindowMaximized) ? 1 : 0});
    }
    if (!(state & (Qt::WindowMaximized | Qt::WindowFullScreen | Qt::WindowMinimized))) {
        if (KnowsPlace()) {
            values.push_back({Setting::WindowLeft, window_->x()});
            values.push_back({Setting::WindowTop, window_->y()});
        }
        values.push_back({Setting::WindowWidth, window_->width()});
        values.push_back({Setting::WindowHeight, window_->height()});
    }
    gData->Set(values);
}

bool WindowState::eventFilter(QObject* watched, QEvent* event) {
    switch (event->type()) {
        case QEvent::Move:
        case QEvent::Resize:
        case QEvent::WindowStateChange:
            if (window_->isVisible()) pause_.start();
            break;
        default:
            break;
    }
    return QObject::eventFilter(watched, event);
}
