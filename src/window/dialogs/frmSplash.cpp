// The splash window.
#include "window/dialogs/frmSplash.h"

#include <utility>

#include <QGuiApplication>
#include <QLabel>
#include <QPainter>
#include <QScreen>

#include "Art.h"
#include "engine/state/cData.h"

frmSplash::frmSplash() {
    setObjectName(QStringLiteral("frmSplash"));
    // Not as a splash screen to the window system, which would give it no key to end with; a dialog to a
    // screen reader.
    setWindowFlags(Qt::Dialog | Qt::FramelessWindowHint);
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowTitle(QString::fromStdString(gData->ProdName()));
    setFixedSize(Art::SplashSize);
    setFocusPolicy(Qt::StrongFocus);
    if (const QScreen* screen = QGuiApplication::primaryScreen()) {
        move(screen->availableGeometry().center() - rect().center());
    }
    constexpr int ShownFor = 3000;  // milliseconds
    Timer1.setObjectName(QStringLiteral("Timer1"));
    Timer1.setSingleShot(true);
    connect(&Timer1, &QTimer::timeout, this, &frmSplash::EndSplash);
    Timer1.start(ShownFor);
}

void frmSplash::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.drawImage(rect(), Art::Splash(size() * devicePixelRatioF()));
    if (std::exchange(painted_, true)) return;
    // The picture is handed over when this event ends, and seen when the window system has its turn: where
    // there is one core for both, that is when this process waits.
    constexpr int Turn = 1;  // milliseconds
    QTimer::singleShot(Turn, this, &frmSplash::ShowVersion);
}

// The first text of a process loads its fonts, which would hold the picture up.
void frmSplash::ShowVersion() {
    auto* lblversion =
        new QLabel(QStringLiteral("Version : ") + QString::fromStdString(gData->Version()), this);
    lblversion->setObjectName(QStringLiteral("lblversion"));
    QPalette colors = lblversion->palette();
    colors.setColor(QPalette::WindowText, QColor(0xe8, 0xe2, 0xc8));
    lblversion->setPalette(colors);
    lblversion->adjustSize();
    lblversion->move(width() - lblversion->width() - 24, height() - lblversion->height() - 18);
    lblversion->show();
    repaint();
    Q_EMIT Painted();
}

void frmSplash::keyPressEvent(QKeyEvent*) { EndSplash(); }

void frmSplash::mousePressEvent(QMouseEvent*) { EndSplash(); }

void frmSplash::closeEvent(QCloseEvent*) { EndSplash(); }

void frmSplash::EndSplash() {
    if (ended_) return;
    ended_ = true;
    Timer1.stop();
    hide();
    Q_EMIT Ended();
    deleteLater();
}
