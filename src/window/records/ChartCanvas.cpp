// The chart module: a canvas on which Qt Charts draws, made when it is first seen, and again when the
// desktop's colors or font change.
#include "window/records/ChartModule.h"

#include <algorithm>
#include <memory>

#include <QHelpEvent>
#include <QToolTip>
#include <QtCharts/QChart>
#include <QtCharts/QChartView>

#include "window/records/mCharts.h"

namespace {

class ChartCanvas : public QChartView, public ChartDrawing {
public:
    ChartCanvas(mPlot::Kind kind, QWidget* parent);

    void SetData(const mStatistics::ChartData& wanted) override;

protected:
    void showEvent(QShowEvent* event) override;
    void changeEvent(QEvent* event) override;
    bool viewportEvent(QEvent* event) override;
    void drawBackground(QPainter* painter, const QRectF& part) override;

private:
    void Draw();
    void SetLeastSize();
    [[nodiscard]] QString TipAt(const QPoint& position) const;

    mPlot::Kind kind_;
    mStatistics::ChartData data_;
    mPlot::Plot plot_;
    bool drawn_ = false;
};

ChartCanvas::ChartCanvas(mPlot::Kind kind, QWidget* parent) : QChartView(parent), kind_(kind) {
    setRenderHint(QPainter::Antialiasing);
    setFocusPolicy(Qt::NoFocus);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    // Clear of the page under it, as a part of the dialog.
    setBackgroundRole(QPalette::NoRole);
    viewport()->setAutoFillBackground(false);
    SetLeastSize();
}

void ChartCanvas::SetLeastSize() {
    constexpr int Letters = 32;
    constexpr int Lines = 12;
    int width = fontMetrics().averageCharWidth() * Letters;
    // Bars of one point tell nothing without their labels; of many points some labels are enough.
    if (data_.Rows.size() == 1 && data_.Points.empty())
        width = std::max(width, mCharts::FullWidth(plot_, this));
    setMinimumSize(width, fontMetrics().height() * Lines);
}

void ChartCanvas::SetData(const mStatistics::ChartData& wanted) {
    if (wanted == data_) return;
    data_ = wanted;
    plot_ = mPlot::Make(kind_, data_);
    SetLeastSize();
    drawn_ = false;
    if (isVisible()) Draw();
}

void ChartCanvas::Draw() {
    drawn_ = true;
    // The view gives the old chart back to its caller.
    const std::unique_ptr<QChart> old(chart());
    QChart* made = mCharts::Build(kind_, data_, plot_, this);
    setChart(made);
    mCharts::WriteLabels(made, kind_, plot_, this);
    connect(made, &QChart::plotAreaChanged, this,
            [this, made] { mCharts::WriteLabels(made, kind_, plot_, this); });
}

void ChartCanvas::drawBackground(QPainter* painter, const QRectF& part) {
    QChartView::drawBackground(painter, part);
    if (!drawn_) return;
    if (mPlot::IsEmpty(data_)) {
        painter->setFont(font());
        painter->setPen(palette().color(QPalette::WindowText));
        painter->drawText(sceneRect(), Qt::AlignCenter, QLatin1String(mPlot::NoGamesYet));
    } else {
        mCharts::PaintPanels(painter, chart(), plot_, this);
    }
}

void ChartCanvas::showEvent(QShowEvent* event) {
    if (!drawn_ && !data_.Rows.empty()) Draw();
    QChartView::showEvent(event);
}

void ChartCanvas::changeEvent(QEvent* event) {
    QChartView::changeEvent(event);
    if (event->type() != QEvent::PaletteChange && event->type() != QEvent::FontChange) return;
    if (event->type() == QEvent::FontChange) SetLeastSize();
    drawn_ = false;
    if (isVisible() && !data_.Rows.empty()) Draw();
}

bool ChartCanvas::viewportEvent(QEvent* event) {
    if (event->type() != QEvent::ToolTip) return QChartView::viewportEvent(event);
    const auto* help = static_cast<QHelpEvent*>(event);
    QToolTip::showText(help->globalPos(), TipAt(help->pos()), this);
    return true;
}

QString ChartCanvas::TipAt(const QPoint& position) const {
    if (!drawn_) return {};
    const int place = mCharts::PlaceAt(chart(), plot_, mapToScene(position));
    return QString::fromStdString(mPlot::Tip(kind_, data_, plot_, place));
}

}  // namespace

class ChartMaker : public QObject, public ChartModule {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "tarnival.ChartModule")
    Q_INTERFACES(ChartModule)
public:
    [[nodiscard]] Made NewCanvas(mPlot::Kind kind, QWidget* parent) override {
        auto* canvas = new ChartCanvas(kind, parent);
        return {canvas, canvas};
    }
};

#include "ChartCanvas.moc"
