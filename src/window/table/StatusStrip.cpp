// The status texts' labels and the room that they take.
#include "window/table/StatusStrip.h"

#include <algorithm>

#include <QBoxLayout>
#include <QEvent>
#include <QLabel>
#include <QMenuBar>

namespace {

constexpr int Side = 8;  // pixels left and right of the texts
constexpr int Between = 14;

}  // namespace

StatusStrip::StatusStrip(QMenuBar* bar)
    : QWidget(bar), bar_(bar), layout_(new QBoxLayout(QBoxLayout::LeftToRight, this)) {
    setObjectName(QStringLiteral("status"));
    setAccessibleName(tr("Status"));
    layout_->setContentsMargins(Side, 0, Side, 0);
    layout_->setSpacing(Between);
    // Room for usual figures from the start, so that the strip does not jump while they grow.
    const std::array<const char*, 3> names{"mScore", "mTime", "mMoves"};
    const std::array<QString, 3> usual{QStringLiteral("Score :-888"), QStringLiteral("Time :8:88:88"),
                                       QStringLiteral("Moves :888")};
    for (std::size_t i = 0; i < names.size(); ++i) {
        auto* label = new QLabel(this);
        label->setObjectName(QLatin1String(names[i]));
        label->setMinimumWidth(label->fontMetrics().horizontalAdvance(usual[i]));
        layout_->addWidget(label);
        labels_[i] = label;
    }
    setMinimumHeight(bar->sizeHint().height());  // on one line with the menus
    bar->setCornerWidget(this, Qt::TopRightCorner);
    bar->installEventFilter(this);
}

void StatusStrip::Show(const mMain::StatusTexts& texts) {
    for (std::size_t i = 0; i < texts.size(); ++i) {
        const QString text = QString::fromStdString(texts[i]);
        if (labels_[i]->text() == text) continue;
        labels_[i]->setText(text);
        // The menu bar gives its corner a place once; a figure that has outgrown it needs a new one.
        if (labels_[i]->sizeHint().width() > labels_[i]->width()) {
            labels_[i]->setMinimumWidth(labels_[i]->sizeHint().width());
            adjustSize();
            if (!below_) bar_->setCornerWidget(this);
            Arrange();
        }
    }
}

bool StatusStrip::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Resize) Arrange();
    return QWidget::eventFilter(watched, event);
}

int StatusStrip::WidthInLine() const {
    int width = 2 * Side + 2 * Between;
    for (const QLabel* label : labels_) width += std::max(label->minimumWidth(), label->sizeHint().width());
    return width;
}

void StatusStrip::Arrange() {
    // The bar's own hint counts what stands in its corner.
    const int beside = bar_->sizeHint().width() + (below_ ? WidthInLine() : 0);
    const bool below = beside > bar_->width();
    const int line = minimumHeight();
    if (below != below_) {
        below_ = below;
        bar_->setCornerWidget(below ? nullptr : this);
        setParent(bar_);
        show();
        if (!below) {
            layout_->setDirection(QBoxLayout::LeftToRight);
            layout_->setSpacing(Between);
            bar_->setMinimumHeight(0);
            bar_->setMaximumHeight(QWIDGETSIZE_MAX);
        }
    }
    if (!below) return;
    // Where even the texts alone are too wide, one stands below the other.
    const bool stacked = WidthInLine() > bar_->width();
    layout_->setDirection(stacked ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight);
    layout_->setSpacing(stacked ? 0 : Between);
    const int lines = stacked ? static_cast<int>(labels_.size()) : 1;
    setGeometry(0, line, bar_->width(), lines * line);
    bar_->setFixedHeight((1 + lines) * line);
}
