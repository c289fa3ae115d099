// Charts with Qt Charts.
#include "window/records/mCharts.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <map>

#include <QFontMetricsF>
#include <QGraphicsLayout>
#include <QPainter>
#include <QWidget>
#include <QtCharts/QBarSet>
#include <QtCharts/QCategoryAxis>
#include <QtCharts/QChart>
#include <QtCharts/QLegendMarker>
#include <QtCharts/QStackedBarSeries>

#include "window/controls/mDialog.h"

namespace {

constexpr int Margin = 4;          // pixels around a chart
constexpr double Headroom = 0.03;  // above the bars, as a part of their height

using mPlot::Kind;
using mPlot::Plot;

QColor SeriesColor(Kind kind, std::size_t series, const QPalette& palette) {
    struct Shades {
        QColor Light, Dark;  // on a light and on a dark desktop
    };
    static const Shades Won{QColor(46, 125, 50), QColor(102, 187, 106)};
    static const Shades Lost{QColor(183, 57, 46), QColor(239, 108, 96)};
    static const Shades Played{QColor(84, 110, 122), QColor(144, 164, 174)};
    static const Shades Score{QColor(123, 31, 162), QColor(206, 147, 216)};
    static const Shades Moves{QColor(21, 101, 192), QColor(100, 181, 246)};
    static const Shades Time{QColor(198, 110, 0), QColor(255, 183, 77)};
    static const std::array efforts{Score, Moves, Time};
    static const std::array results{Won, Lost};
    static const std::array periods{Played, Won};
    const Shades& shades = kind == Kind::Result    ? results.at(series)
                           : kind == Kind::Periods ? periods.at(series)
                                                   : efforts.at(series);
    return mDialog::IsDark(palette) ? shades.Dark : shades.Light;
}

/// The part of a place that its bar fills: few bars are not to become walls.
double BarWidth(Kind kind, const Plot& plot) {
    if (kind == Kind::Periods) return 0.95;  // the gap between the points is a place of its own
    if (kind == Kind::Effort) return 0.7;    // of the half that is not for labels
    if (kind == Kind::Result) return 0.5;
    constexpr double Usual = 0.75;
    constexpr double Fewest = 8.0;
    return Usual * std::min(1.0, (plot.Places + 1.0) / Fewest);
}

/// One series of stacked bars draws them all: under each bar lies an unseen one that lifts it to its place.
/// So bars stand where the plot says, one over the other or side by side, and each has its own colour.
QStackedBarSeries* Stack(Kind kind, const mStatistics::ChartData& data, const Plot& plot,
                         const QPalette& palette) {
    const std::size_t count = data.Labels.size();
    std::vector<QVector<double>> lifts(count, QVector<double>(plot.Places, 0.0));
    std::vector<QVector<double>> heights = lifts;
    QVector<double> reached(plot.Places, 0.0);
    for (auto bar = plot.Bars.rbegin(); bar != plot.Bars.rend(); ++bar) {
        const auto series = static_cast<std::size_t>(bar->Series);
        lifts[series][bar->Place] = bar->Bottom - reached[bar->Place];
        heights[series][bar->Place] = bar->Top - bar->Bottom;
        reached[bar->Place] = bar->Top;
    }
    auto* stack = new QStackedBarSeries;
    stack->setBarWidth(BarWidth(kind, plot));
    for (std::size_t series = count; series-- > 0;) {
        auto* lift = new QBarSet(QString());
        lift->append(lifts[series]);
        lift->setBrush(Qt::NoBrush);
        lift->setPen(Qt::NoPen);
        auto* bars = new QBarSet(QString::fromStdString(data.Labels[series]));
        bars->append(heights[series]);
        bars->setBrush(SeriesColor(kind, series, palette));
        bars->setPen(Qt::NoPen);
        stack->append(lift);
        stack->append(bars);
    }
    return stack;
}

/// Labels are read as HTML: a second line stands out, and the name before a height has the color of its bars.
QString AsHtml(const mPlot::Label& label, Kind kind, const QPalette& palette) {
    const QStringList lines = QString::fromStdString(label.Text).toHtmlEscaped().split(QLatin1Char('\n'));
    if (label.Names >= 0) {
        const QColor color = SeriesColor(kind, static_cast<std::size_t>(label.Names), palette);
        const qsizetype blank = lines.constFirst().lastIndexOf(QLatin1Char(' '));
        return QStringLiteral("<b><font color='%1'>%2</font></b>%3")
            .arg(color.name(), lines.constFirst().left(blank), lines.constFirst().mid(blank));
    }
    if (lines.size() == 1) return lines.constFirst();
    return QStringLiteral("<center>%1<br/><b>%2</b></center>").arg(lines.constFirst(), lines.at(1));
}

/// What keeps a label from the next one.
double Space(const QWidget* view) { return 1.5 * QFontMetricsF(view->font()).averageCharWidth(); }

/// The width of the widest label along the axis, in pixels.
double LabelWidth(const Plot& plot, const QWidget* view) {
    QFont font = view->font();
    // The second line of a label, which holds a value, stands out.
    font.setBold(!plot.Points.empty() && plot.Points.front().Text.find('\n') != std::string::npos);
    const QFontMetricsF metrics(font);
    double width = 1;
    for (const mPlot::Label& label : plot.Points) {
        for (const QString& line : QString::fromStdString(label.Text).split(QLatin1Char('\n'))) {
            width = std::max(width, metrics.horizontalAdvance(line));
        }
    }
    return width;
}

QColor Faint(QColor color) {
    constexpr int Alpha = 40;
    color.setAlpha(Alpha);
    return color;
}

void Style(QAbstractAxis* axis, const QWidget* view) {
    const QColor grid = Faint(view->palette().color(QPalette::WindowText));
    axis->setLabelsBrush(view->palette().windowText());
    axis->setLabelsFont(view->font());
    axis->setTruncateLabels(false);
    axis->setGridLinePen(QPen(grid, 1));
    axis->setLinePen(QPen(grid, 1));
}

QCategoryAxis* Axis(double low, double high, const QWidget* view) {
    auto* axis = new QCategoryAxis;
    axis->setLabelsPosition(QCategoryAxis::AxisLabelsPositionOnValue);
    axis->setRange(low, high);
    Style(axis, view);
    return axis;
}

/// Writes other labels on an axis, where they are others.
void Replace(QAbstractAxis* onAxis, const std::vector<mPlot::Label>& labels, Kind kind,
             const QPalette& palette) {
    auto* axis = qobject_cast<QCategoryAxis*>(onAxis);
    QStringList texts;
    std::map<QString, int> seen;
    for (const mPlot::Label& label : labels) {
        const QString text = AsHtml(label, kind, palette);
        // The axis refuses a label that it has, and every strip has a 0. What tells them apart has no width.
        texts << text + QString(seen[text]++, QChar(0x200B));
    }
    if (texts == axis->categoriesLabels()) return;
    for (const QString& text : axis->categoriesLabels()) axis->remove(text);
    for (std::size_t i = 0; i < labels.size(); ++i) {
        axis->append(texts.at(static_cast<qsizetype>(i)), labels[i].At);
    }
}

void ShowLegend(QChart* chart, const QWidget* view) {
    QLegend* legend = chart->legend();
    legend->setLabelBrush(view->palette().windowText());
    legend->setFont(view->font());
    legend->setReverseMarkers(true);  // the stack is built from its foot
    for (QLegendMarker* marker : legend->markers()) {
        marker->setVisible(!marker->label().isEmpty());
        marker->setPen(QPen(marker->brush().color()));
    }
}

}  // namespace

namespace mCharts {

QChart* Build(Kind kind, const mStatistics::ChartData& data, const Plot& plot, const QWidget* view) {
    auto* chart = new QChart;
    chart->setBackgroundVisible(false);
    chart->layout()->setContentsMargins(0, 0, 0, 0);
    auto* stack = Stack(kind, data, plot, view->palette());
    chart->addSeries(stack);

    auto* points = Axis(-0.5, std::max(1, plot.Places) - 0.5, view);
    auto* heights = Axis(0.0, 1.0 + Headroom, view);
    points->setGridLineVisible(false);
    points->setVisible(!mPlot::IsEmpty(data));
    heights->setVisible(!mPlot::IsEmpty(data) && !plot.Heights.empty());
    chart->addAxis(points, Qt::AlignBottom);
    chart->addAxis(heights, Qt::AlignLeft);
    stack->attachAxis(points);
    stack->attachAxis(heights);
    if (kind == Kind::Periods && !mPlot::IsEmpty(data)) {
        ShowLegend(chart, view);
    } else {
        chart->legend()->hide();  // each bar or strip has its name beside it
    }
    return chart;
}

void WriteLabels(QChart* chart, Kind kind, const Plot& plot, const QWidget* view) {
    const QRectF area = chart->plotArea();
    if (plot.Points.empty() || area.isEmpty()) return;
    const auto count = static_cast<double>(plot.Points.size());
    const double width = LabelWidth(plot, view);
    // Half of the last label may stand beyond its point.
    const int beyond = std::max(0, static_cast<int>((width - view->width() / count) / 2));
    chart->setMargins(QMargins(Margin, Margin, Margin + beyond, Margin));
    const auto step = static_cast<std::size_t>(mPlot::LabelStep(width + Space(view), area.width() / count));
    std::vector<mPlot::Label> points;
    for (std::size_t i = (plot.Points.size() - 1) % step; i < plot.Points.size(); i += step) {
        if (!plot.Points[i].Text.empty()) points.push_back(plot.Points[i]);
    }
    Replace(chart->axes(Qt::Horizontal).constFirst(), points, kind, view->palette());
    const double line = QFontMetricsF(view->font()).height() + 2;
    Replace(chart->axes(Qt::Vertical).constFirst(), mPlot::Spaced(plot.Heights, line / area.height()), kind,
            view->palette());
}

void PaintPanels(QPainter* painter, const QChart* chart, const Plot& plot, const QWidget* view) {
    const QRectF area = chart->mapRectToScene(chart->plotArea());
    const double place = area.width() / std::max(1, plot.Places);
    const double gap = Space(view) / 2;
    const QColor text = view->palette().color(QPalette::WindowText);
    const QPen line(Faint(text), 1);
    painter->setFont(view->font());
    const double lineHeight = QFontMetricsF(view->font()).height();
    for (const mPlot::Panel& panel : plot.Panels) {
        const double x = area.left() + (panel.At + 0.5) * place;
        painter->setPen(line);
        painter->drawLine(QPointF(x, area.top()), QPointF(x, area.bottom()));
        for (const mPlot::Label& label : mPlot::Spaced(panel.Heights, (lineHeight + 2) / area.height())) {
            const double y = area.bottom() - label.At / (1.0 + Headroom) * area.height();
            painter->setPen(line);
            painter->drawLine(QPointF(x - gap / 2, y), QPointF(x + place, y));
            painter->setPen(text);
            const QRectF beside(x - place - gap, y - lineHeight / 2, place, lineHeight);
            painter->drawText(beside, Qt::AlignRight | Qt::AlignVCenter | Qt::TextDontClip,
                              QString::fromStdString(label.Text));
        }
    }
}

int FullWidth(const Plot& plot, const QWidget* view) {
    const auto points = static_cast<double>(plot.Points.size());
    const QFontMetricsF metrics(view->font());
    double panels = 0;
    for (const mPlot::Panel& panel : plot.Panels) {
        for (const mPlot::Label& label : panel.Heights)
            panels = std::max(panels, metrics.horizontalAdvance(QString::fromStdString(label.Text)));
    }
    // The labels of a panel have half of it.
    if (panels > 0) panels = 2 * (panels + 1.5 * Space(view));
    // The margins of the layout are inside.
    constexpr int Margins = 6;
    return static_cast<int>(std::ceil(points * std::max(LabelWidth(plot, view) + Space(view), panels))) +
           Margins * Margin;
}

int PlaceAt(const QChart* chart, const Plot& plot, const QPointF& position) {
    if (!chart->plotArea().contains(chart->mapFromScene(position))) return -1;
    const double part =
        (chart->mapFromScene(position).x() - chart->plotArea().left()) / chart->plotArea().width();
    return std::clamp(static_cast<int>(part * plot.Places), 0, plot.Places - 1);
}

}  // namespace mCharts
