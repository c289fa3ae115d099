// Charts of the records: the bars of mPlot drawn with Qt Charts, in the colours and the font of the desktop.
#pragma once

#include <QPointF>

#include "engine/records/mPlot.h"

class QChart;
class QPainter;
class QWidget;

namespace mCharts {

/// A chart in the palette and the font of the view that is to show it. Its labels are missing until
/// WriteLabels.
[[nodiscard]] QChart* Build(mPlot::Kind kind, const mStatistics::ChartData& data, const mPlot::Plot& plot,
                            const QWidget* view);

/// Writes as many labels as have room now; the last point always has its own.
void WriteLabels(QChart* chart, mPlot::Kind kind, const mPlot::Plot& plot, const QWidget* view);

/// Draws the scales of the panels behind the bars, in the scene's coordinates.
void PaintPanels(QPainter* painter, const QChart* chart, const mPlot::Plot& plot, const QWidget* view);

/// The width at which all labels along the axis have room, in pixels.
[[nodiscard]] int FullWidth(const mPlot::Plot& plot, const QWidget* view);

/// The place nearest to that position of the view, in pixels; -1 beside the plot.
[[nodiscard]] int PlaceAt(const QChart* chart, const mPlot::Plot& plot, const QPointF& position);

}  // namespace mCharts
