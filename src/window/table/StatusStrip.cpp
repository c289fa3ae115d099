// The status texts' labels and the room that they take.
#include "window/table/StatusStrip.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QMenuBar>

StatusStrip::StatusStrip(QMenuBar* bar) : QWidget(bar), bar_(bar) {
    setObjectName(QStringLiteral("status"));
    setAccessibleName(tr("Status"));
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(8, 0, 8, 0);
    layout->setSpacing(14);
    // Room for usual figures from the start, so that the strip does not jump while they grow.
    const std::array<const char*, 3> names{"mScore", "mTime", "mMoves"};
    const std::array<QString, 3> usual{QStringLiteral("Score :-888"), QStringLiteral("Time :8:88:88"),
                                       QStringLiteral("Moves :888")};
    for (std::size_t i = 0; i < names.size(); ++i) {
        auto* label = new QLabel(this);
        label->setObjectName(QLatin1String(names[i]));
        label->setMinimumWidth(label->fontMetrics().horizontalAdvance(usual[i]));
        layout->addWidget(label);
        labels_[i] = label;
    }
    setMinimumHeight(bar->sizeHint().height());  // on one line with the menus
    bar->setCornerWidget(this, Qt::TopRightCorner);
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
            bar_->setCornerWidget(this);
        }
    }
}
