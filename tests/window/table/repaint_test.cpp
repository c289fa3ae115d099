// A repaint of a part of the table shows what a repaint of the whole would show there.
#include "window/MainWindowTest.h"

namespace {

class Repaint : public MainWindow {
protected:
    [[nodiscard]] QImage Shown() const {
        const QPoint corner = Viewport()->mapTo(window_.get(), QPoint());
        const QSize size = Viewport()->size();
        return window_->screen()
            ->grabWindow(window_->winId(), corner.x(), corner.y(), size.width(), size.height())
            .toImage()
            .convertToFormat(QImage::Format_RGB32);
    }
    [[nodiscard]] QImage Drawn() const {
        return Viewport()->grab().toImage().convertToFormat(QImage::Format_RGB32);
    }
};

// Cards lie between the pixels at most of these sizes; a strip must not cut off the edge of a neighbour.
TEST_F(Repaint, AStripOfOnePixelFits) {
    mGen::StartGame("Double Statue", 1.0);
    Entry("fitGame")->trigger();
    for (int height = 105; height < 400; height += 7) {
        window_->resize(900, height);
        QApplication::processEvents();
        for (int x = 0; x < Viewport()->width(); ++x) Viewport()->repaint(x, 0, 1, Viewport()->height());
        for (int y = 0; y < Viewport()->height(); ++y) Viewport()->repaint(0, y, Viewport()->width(), 1);
        EXPECT_TRUE(Shown() == Drawn()) << "fitted into a window of height " << height;
    }
}

}  // namespace
