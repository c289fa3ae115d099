// A view of one chart. A program without its module for charts says in words what it would show.
#pragma once

#include <QWidget>

#include "engine/records/mPlot.h"

class ChartDrawing;
class QLabel;

class ChartView : public QWidget {
    Q_OBJECT
public:
    /// The names are the object's and the one that assistive programs read.
    ChartView(const char* name, const QString& accessibleName, mPlot::Kind kind, QWidget* parent = nullptr);

    void SetData(const mStatistics::ChartData& wanted);

private:
    mPlot::Kind kind_;
    ChartDrawing* drawing_ = nullptr;
    QLabel* words_ = nullptr;  // in its place
};
