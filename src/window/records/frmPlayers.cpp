// The dialog "Players".
#include "window/records/frmPlayers.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QTreeView>
#include <QVBoxLayout>

#include "engine/records/mPlayers.h"
#include "engine/records/mStrayFiles.h"
#include "engine/state/cData.h"
#include "window/controls/ListModel.h"
#include "window/controls/mDialog.h"
#include "window/look/ilsIcons.h"
#include "window/records/dlGInput.h"

frmPlayers::frmPlayers(QWidget* owner) : QDialog(owner) {
    setObjectName(QStringLiteral("frmPlayers"));
    setWindowTitle(tr("Players"));
    BuildControls();
    mPlayers::Mend();
    mStrayFiles::Offer();
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
    const PlayerList list = PlayerList::Read();
    players_->SetTexts(list.Names());
    version_ = list.Version();
    mList::Select(lvPlayer, players_->Row(QString::fromStdString(list.Current())));
    EnableButtons();
}

void frmPlayers::Renew() {
    const std::optional<std::string> name = PlayerList::Read().NowCalled(Selected());
    UpdateLVPlayer();
    if (name) mList::Select(lvPlayer, players_->Row(QString::fromStdString(*name)));
}

ShownPlayer frmPlayers::Selected() const { return {mList::Selected(lvPlayer).toStdString(), version_}; }

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
    dlGInput::InputDlg(tr("Add Player"), {""}, this);
    UpdateLVPlayer();
}

void frmPlayers::Edit() {
    const ShownPlayer player = Selected();
    if (mPlayers::StillThere(player)) dlGInput::InputDlg(tr("Edit Player"), player, this);
    Renew();
}

void frmPlayers::Delete() {
    mPlayers::Delete(Selected());
    // Where the player has been kept, the selection stays.
    Renew();
}

void frmPlayers::Select() {
    if (mPlayers::Select(Selected())) {
        accept();
    } else {
        Renew();
    }
}
