// A view of one chart: made when it is first seen, and again when the desktop's colours or font change.
#pragma once

#include <QtCharts/QChartView>

#include "engine/records/mPlot.h"

class ChartView : public QChartView {
    Q_OBJECT
public:
    /// The names are the object's and the one that assistive programs read.
    ChartView(const char* name, const QString& accessibleName, mPlot::Kind kind, QWidget* parent = nullptr);

    void SetData(const mStatistics::ChartData& wanted);

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
