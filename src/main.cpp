// The program: splash, main window, message loop.
#include <cstdio>
#include <exception>
#include <memory>

#include <QApplication>
#include <QLoggingCategory>
#include <QWindow>

#include "engine/commands/mLoad.h"
#include "engine/state/cData.h"
#include "window/dialogs/frmSelect.h"
#include "window/dialogs/frmSplash.h"
#include "window/look/mIcons.h"
#include "window/table/ProgramLayer.h"
#include "window/table/TableView.h"
#include "window/table/frmMain.h"

namespace {

// An exception is an error of this program's own. The running game is still recorded before it ends.
class Application : public QApplication {
public:
    using QApplication::QApplication;

    bool notify(QObject* receiver, QEvent* event) override {
        try {
            return QApplication::notify(receiver, event);
        } catch (const std::exception& error) {
            std::fprintf(stderr, "tarnival: %s\n", error.what());
            mLoad::UnloadMain();
            QCoreApplication::exit(1);
            return false;
        }
    }
};

}  // namespace

int main(int argc, char** argv) {
    Application application(argc, argv);
    // Assistive programs may ask for what has just closed; that is no fault of this one to report.
    QLoggingCategory::setFilterRules(QStringLiteral("qt.accessibility.atspi.warning=false"));
    QApplication::setOrganizationName(QStringLiteral("Kelmor"));
    QApplication::setApplicationName(QStringLiteral("Tarnival"));
    QApplication::setDesktopFileName(QStringLiteral("tarnival"));
    QApplication::setQuitOnLastWindowClosed(false);

    ProgramLayer layer;
    mLoad::Main(layer.Layer());

    // The splash is there at once; what takes time to build is built behind it, unless it ends before.
    std::unique_ptr<frmMain> window;
    const auto build = [&] {
        if (window) return;
        QApplication::setWindowIcon(mIcons::Application());
        window = std::make_unique<frmMain>();
        layer.SetMain(window.get());
    };
    const auto showMainWindow = [&] {
        build();
        window->Load();
        window->show();
        QApplication::setQuitOnLastWindowClosed(true);
        frmSelect dialog;
        // It has no owner, and a Wayland desktop may lay a full screen over a window that belongs to nobody.
        if (window->isFullScreen()) {
            dialog.winId();
            dialog.windowHandle()->setTransientParent(window->windowHandle());
        }
        dialog.exec();
    };
    auto* splash = new frmSplash;
    QObject::connect(splash, &frmSplash::Painted, &application, build, Qt::QueuedConnection);
    QObject::connect(splash, &frmSplash::Ended, &application, showMainWindow, Qt::QueuedConnection);
    splash->show();

    const int result = QApplication::exec();
    mLoad::UnloadMain();  // a session's end can stop the loop with the window still open
    return result;
}
