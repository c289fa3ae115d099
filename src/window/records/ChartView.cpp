// The view of a chart.
#include "window/records/ChartView.h"

#include <algorithm>
#include <memory>

#include <QAccessibleWidget>
#include <QHelpEvent>
#include <QToolTip>
#include <QtCharts/QChart>

#include "window/records/mCharts.h"

namespace {

/// A chart as one thing: its description says what it shows, the widgets that it is made of say nothing.
class ChartAccess : public QAccessibleWidget {
public:
    explicit ChartAccess(ChartView* chart) : QAccessibleWidget(chart, QAccessible::Chart) {}

    static QAccessibleInterface* Make(const QString&, QObject* object) {
        auto* chart = qobject_cast<ChartView*>(object);
        return chart ? new ChartAccess(chart) : nullptr;
    }

    [[nodiscard]] int childCount() const override { return 0; }
    [[nodiscard]] QAccessibleInterface* child(int) const override { return nullptr; }
    [[nodiscard]] int indexOfChild(const QAccessibleInterface*) const override { return -1; }
};

}  // namespace

ChartView::ChartView(const char* name, const QString& accessibleName, mPlot::Kind kind, QWidget* parent)
    : QChartView(parent), kind_(kind) {
    QAccessible::installFactory(ChartAccess::Make);
    setObjectName(QLatin1String(name));
    setAccessibleName(accessibleName);
    setAccessibleDescription(QString::fromStdString(mPlot::Description(kind_, data_)));
    setRenderHint(QPainter::Antialiasing);
    setFocusPolicy(Qt::NoFocus);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    // Clear of the page under it, as a part of the dialog.
    setBackgroundRole(QPalette::NoRole);
    viewport()->setAutoFillBackground(false);
    SetLeastSize();
}

void ChartView::SetLeastSize() {
    constexpr int Letters = 32;
    constexpr int Lines = 12;
    int width = fontMetrics().averageCharWidth() * Letters;
    // Bars of one point tell nothing without their labels; of many points some labels are enough.
    if (data_.Rows.size() == 1 && data_.Points.empty())
        width = std::max(width, mCharts::FullWidth(plot_, this));
    setMinimumSize(width, fontMetrics().height() * Lines);
}

void ChartView::SetData(const mStatistics::ChartData& wanted) {
    if (wanted == data_) return;
    data_ = wanted;
    setAccessibleDescription(QString::fromStdString(mPlot::Description(kind_, data_)));
    plot_ = mPlot::Make(kind_, data_);
    SetLeastSize();
    drawn_ = false;
    if (isVisible()) Draw();
}

void ChartView::Draw() {
    drawn_ = true;
    // The view gives the old chart back to its caller.
    const std::unique_ptr<QChart> old(chart());
    QChart* made = mCharts::Build(kind_, data_, plot_, this);
    setChart(made);
    mCharts::WriteLabels(made, kind_, plot_, this);
    connect(made, &QChart::plotAreaChanged, this,
            [this, made] { mCharts::WriteLabels(made, kind_, plot_, this); });
}

void ChartView::drawBackground(QPainter* painter, const QRectF& part) {
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

void ChartView::showEvent(QShowEvent* event) {
    if (!drawn_ && !data_.Rows.empty()) Draw();
    QChartView::showEvent(event);
}

void ChartView::changeEvent(QEvent* event) {
    QChartView::changeEvent(event);
    if (event->type() != QEvent::PaletteChange && event->type() != QEvent::FontChange) return;
    if (event->type() == QEvent::FontChange) SetLeastSize();
    drawn_ = false;
    if (isVisible() && !data_.Rows.empty()) Draw();
}

bool ChartView::viewportEvent(QEvent* event) {
    if (event->type() != QEvent::ToolTip) return QChartView::viewportEvent(event);
    const auto* help = static_cast<QHelpEvent*>(event);
    QToolTip::showText(help->globalPos(), TipAt(help->pos()), this);
    return true;
}

QString ChartView::TipAt(const QPoint& position) const {
    if (!drawn_) return {};
    const int place = mCharts::PlaceAt(chart(), plot_, mapToScene(position));
    return QString::fromStdString(mPlot::Tip(kind_, data_, plot_, place));
}
