// What draws the charts: a module of its own, so that the chart library, and the graphics libraries that it
// brings along, are loaded with the first dialog that shows a chart and not before the splash.
#pragma once

#include <QtPlugin>

#include "engine/records/mPlot.h"

class QWidget;

/// One chart on its canvas.
class ChartDrawing {
public:
    virtual ~ChartDrawing() = default;
    virtual void SetData(const mStatistics::ChartData& wanted) = 0;
};

class ChartModule {
public:
    virtual ~ChartModule() = default;
    /// The same object twice.
    struct Made {
        QWidget* Widget;
        ChartDrawing* Drawing;
    };
    /// A canvas in the palette and the font of the widget that it lies in, which owns it.
    [[nodiscard]] virtual Made NewCanvas(mPlot::Kind kind, QWidget* parent) = 0;
};

Q_DECLARE_INTERFACE(ChartModule, "tarnival.ChartModule")
