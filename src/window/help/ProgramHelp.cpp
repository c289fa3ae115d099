// Opening and closing the help windows, and keeping them usable beside a modal dialog.
#include "window/help/ProgramHelp.h"

#include <QApplication>
#include <QWindow>

#include "window/help/frmContents.h"
#include "window/help/frmRules.h"

ProgramHelp::ProgramHelp() {
    if (!qApp) return;
    // A dialog that opens or closes takes or gives away the focus.
    connect(qApp, &QGuiApplication::focusWindowChanged, this, &ProgramHelp::StandOver);
}

ProgramHelp::~ProgramHelp() = default;

void ProgramHelp::ShowContext(int context) {
    if (context == 0) {
        ShowContents();
        return;
    }
    if (!rules_) {
        rules_ = std::make_unique<frmRules>();
        rules_->setAttribute(Qt::WA_QuitOnClose, false);
        connect(rules_.get(), &frmRules::ContentsWanted, this, &ProgramHelp::ShowContents);
    }
    rules_->ShowGame(context);
    StandOver();
    Present(*rules_);
}

void ProgramHelp::ShowContents() {
    if (!contents_) {
        contents_ = std::make_unique<frmContents>();
        contents_->setAttribute(Qt::WA_QuitOnClose, false);
    }
    StandOver();
    Present(*contents_);
}

void ProgramHelp::CloseAll() {
    rules_.reset();
    contents_.reset();
}

void ProgramHelp::Present(QWidget& window) {
    if (window.isMinimized()) window.showNormal();
    window.show();
    window.raise();
    window.activateWindow();
}

void ProgramHelp::StandOver() {
    QWidget* modal = QApplication::activeModalWidget();
    QWindow* over = modal ? modal->windowHandle() : nullptr;
    for (QWidget* window : {static_cast<QWidget*>(rules_.get()), static_cast<QWidget*>(contents_.get())}) {
        if (!window) continue;
        window->winId();  // a window that was never shown has no handle yet
        if (window->windowHandle()->transientParent() != over)
            window->windowHandle()->setTransientParent(over);
    }
}
