// What the tests of the main window share: the window over an outside in memory, and the mouse on it.
#pragma once

#include <functional>
#include <memory>

#include <QTest>
#include <QtWidgets>

#include "engine/commands/mLoad.h"
#include "support/EngineTest.h"
#include "window/table/TableView.h"
#include "window/table/frmMain.h"

// Hands what the engine says to the window, and keeps the rest in memory.
class WindowForms : public MemoryForms {
public:
    frmMain* Window = nullptr;
    std::function<void(const std::string&)> OnAsk;
    bool Ask(const std::string& question) override {
        if (OnAsk) OnAsk(question);
        return MemoryForms::Ask(question);
    }
    void SetCaption(const std::string& caption) override {
        if (Window) Window->setWindowTitle(QString::fromStdString(caption));
    }
    void ShowRecent(const std::vector<std::string>& names) override {
        if (Window) Window->ShowRecent(names);
    }
    void LayoutTable() override {
        if (Window) Window->LayoutTable();
    }
};

class MainWindow : public testing::Test {
protected:
    void SetUp() override {
        window_ = std::make_unique<frmMain>();
        forms_.Window = window_.get();
        mLoad::Main({*window_->Table(), memory_.Settings, memory_.Files, memory_.Calendar, memory_.Sounds,
                     forms_, memory_.Help});
        window_->Load();
        window_->show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(window_.get()));
    }
    void TearDown() override {
        mLoad::UnloadMain();
        window_.reset();
    }
    // The program's next run, with the settings of this one.
    void Restart() {
        window_->close();
        window_.reset();
        SetUp();
    }

    [[nodiscard]] QWidget* Viewport() const { return window_->Table()->viewport(); }
    // A point of the plate, in pixels of the view.
    [[nodiscard]] QPoint At(int left, int top) const {
        return window_->Table()->mapFromScene(QPointF(left, top));
    }
    [[nodiscard]] QPoint IndexOf(int PicID) const {
        return At(mFunc::CardLeft(PicID) + 150, mFunc::CardTop(PicID) + 90);
    }
    [[nodiscard]] static std::pair<int, int> PlaceOf(int PicID) {
        return {mFunc::CardLeft(PicID), mFunc::CardTop(PicID)};
    }
    void MoveMouse(QPoint to, Qt::MouseButtons buttons) {
        QMouseEvent move(QEvent::MouseMove, to, Viewport()->mapToGlobal(to), Qt::NoButton, buttons,
                         Qt::NoModifier);
        QApplication::sendEvent(Viewport(), &move);
    }
    [[nodiscard]] QAction* Entry(const char* name) const {
        return window_->findChild<QAction*>(QLatin1String(name));
    }

    MemoryLayer memory_;
    WindowForms forms_;
    std::unique_ptr<frmMain> window_;
};
