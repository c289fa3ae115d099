// The history dialog.
#include "window/dialogs/frmHistory.h"

#include <QDialogButtonBox>
#include <QPushButton>
#include <QVBoxLayout>

#include "engine/state/cTrans.h"
#include "window/controls/TextTable.h"
#include "window/controls/mDialog.h"
#include "window/dialogs/HistoryModel.h"

frmHistory::frmHistory(QWidget* owner) : QDialog(owner) {
    setObjectName(QStringLiteral("frmHistory"));
    setWindowTitle(tr("Game History"));

    rows_ = new HistoryModel(gTrans->CreateLV());
    lvHistory = new TextTable("lvHistory", rows_);
    lvHistory->setAccessibleName(tr("Moves"));

    cmdClose = new QPushButton(tr("Close"));
    cmdClose->setObjectName(QStringLiteral("cmdClose"));
    cmdClose->setDefault(true);
    connect(cmdClose, &QPushButton::clicked, this, &QDialog::accept);
    auto* buttons = new QDialogButtonBox;
    buttons->addButton(cmdClose, QDialogButtonBox::AcceptRole);

    auto* all = new QVBoxLayout(this);
    all->addWidget(lvHistory, 1);
    all->addWidget(buttons);
    mDialog::FirstSize(this, {sizeHint().width(), fontMetrics().height() * 30});
    lvHistory->setFocus();
}

void frmHistory::showEvent(QShowEvent* event) {
    QDialog::showEvent(event);
    if (rows_->CurrentRow() < 0) return;
    const QModelIndex current = rows_->index(rows_->ShownRow(rows_->CurrentRow()), 0);
    // Not selected: the selection would hide the colour of the row.
    lvHistory->selectionModel()->setCurrentIndex(current, QItemSelectionModel::NoUpdate);
    lvHistory->scrollTo(current, QAbstractItemView::PositionAtCenter);
}
