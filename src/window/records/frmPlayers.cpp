// The dialog "Players".
#include "window/records/frmPlayers.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QTreeView>
#include <QVBoxLayout>

#include "engine/records/mPlayers.h"
#include "engine/state/cData.h"
#include "window/controls/ListModel.h"
#include "window/controls/mDialog.h"
#include "window/look/ilsIcons.h"
#include "window/records/dlGInput.h"

frmPlayers::frmPlayers(QWidget* owner) : QDialog(owner) {
    setObjectName(QStringLiteral("frmPlayers"));
    setWindowTitle(tr("Players"));
    BuildControls();
    UpdateLVPlayer();
    connect(lvPlayer->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &frmPlayers::EnableButtons);
    connect(lvPlayer, &QTreeView::doubleClicked, this, &frmPlayers::Select);
    connect(cmdAdd, &QPushButton::clicked, this, &frmPlayers::Add);
    connect(cmdEdit, &QPushButton::clicked, this, &frmPlayers::Edit);
    connect(cmdDelete, &QPushButton::clicked, this, &frmPlayers::Delete);
    connect(cmdSelect, &QPushButton::clicked, this, &frmPlayers::Select);
    connect(cmdCancel, &QPushButton::clicked, this, &QDialog::reject);
    lvPlayer->setFocus();
}

void frmPlayers::BuildControls() {
    players_ = new ListModel(QString(), ilsIcons::Player());
    lvPlayer = mList::MakeView("lvPlayer", players_);
    lvPlayer->setAccessibleName(tr("Players"));

    auto* side = new QVBoxLayout;
    const auto button = [side](const char* name, const QString& text) {
        auto* made = new QPushButton(text);
        made->setObjectName(QLatin1String(name));
        side->addWidget(made);
        return made;
    };
    cmdAdd = button("cmdAdd", tr("New"));
    cmdEdit = button("cmdEdit", tr("Edit"));
    cmdDelete = button("cmdDelete", tr("Delete"));
    side->addStretch();
    cmdSelect = button("cmdSelect", tr("Select"));
    cmdCancel = button("cmdCancel", tr("Cancel"));

    auto* all = new QHBoxLayout(this);
    all->addWidget(lvPlayer, 1);
    all->addLayout(side);
    cmdSelect->setDefault(true);  // in the dialog by now, which only then remembers it
    mDialog::FirstSize(this, {fontMetrics().averageCharWidth() * 64, fontMetrics().height() * 20});
}

void frmPlayers::UpdateLVPlayer() {
    players_->SetTexts(mPlayers::Names());
    mList::Select(lvPlayer, players_->Row(QString::fromStdString(gData->CurPlayer())));
    EnableButtons();
}

void frmPlayers::EnableButtons() {
    const QString player = mList::Selected(lvPlayer);
    const bool selected = !player.isEmpty();
    const bool deletable = selected && mPlayers::CanDelete(player.toStdString());
    if (!deletable && cmdDelete->hasFocus()) lvPlayer->setFocus();
    cmdEdit->setEnabled(selected);
    cmdDelete->setEnabled(deletable);
    cmdSelect->setEnabled(selected);
}

void frmPlayers::Add() {
    if (!mPlayers::RoomForOne()) return;
    dlGInput::InputDlg(tr("Add Player"), QString(), this);
    UpdateLVPlayer();
}

void frmPlayers::Edit() {
    dlGInput::InputDlg(tr("Edit Player"), mList::Selected(lvPlayer), this);
    UpdateLVPlayer();
}

void frmPlayers::Delete() {
    mPlayers::Delete(mList::Selected(lvPlayer).toStdString());
    if (players_->rowCount() != gData->TotalPlayers()) UpdateLVPlayer();  // else the player has been kept
}

void frmPlayers::Select() {
    mPlayers::Select(mList::Selected(lvPlayer).toStdString());
    accept();
}
