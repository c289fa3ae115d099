// The view of a chart.
#include "window/records/ChartView.h"

#include <QAccessibleWidget>
#include <QLabel>
#include <QVBoxLayout>

#include "window/outside/mModules.h"
#include "window/records/ChartModule.h"

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
    : QWidget(parent), kind_(kind) {
    QAccessible::installFactory(ChartAccess::Make);
    setObjectName(QLatin1String(name));
    setAccessibleName(accessibleName);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    static auto* const module = qobject_cast<ChartModule*>(mModules::Load("tarnival-charts.so"));
    if (module) {
        const ChartModule::Made made = module->NewCanvas(kind, this);
        drawing_ = made.Drawing;
        layout->addWidget(made.Widget);
    } else {
        words_ = new QLabel(this);
        words_->setWordWrap(true);
        layout->addWidget(words_);
    }
    SetData({});
}

void ChartView::SetData(const mStatistics::ChartData& wanted) {
    const QString words = QString::fromStdString(mPlot::Description(kind_, wanted));
    setAccessibleDescription(words);
    if (drawing_) drawing_->SetData(wanted);
    if (words_) words_->setText(words);
}
