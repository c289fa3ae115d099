// The dialog "Organize Favorites".
#include "window/records/frmOrgFav.h"

#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QPushButton>
#include <QTreeView>
#include <QVBoxLayout>

#include "engine/records/mFavourites.h"
#include "engine/state/cData.h"
#include "window/controls/ListCommands.h"
#include "window/controls/ListModel.h"
#include "window/controls/mDialog.h"
#include "window/look/ilsIcons.h"

frmOrgFav::frmOrgFav(QWidget* owner) : QDialog(owner) {
    setObjectName(QStringLiteral("frmOrgFav"));
    setWindowTitle(tr("Organize Favorites"));
    BuildControls();
    Load();
    connect(lvGames->selectionModel(), &QItemSelectionModel::selectionChanged, this, &frmOrgFav::UpdateLVFav);
    connect(cmdClear, &QPushButton::clicked, this, &frmOrgFav::Clear);
    connect(cmdClose, &QPushButton::clicked, this, &QDialog::reject);
    constexpr int Interval = 500;  // milliseconds
    Timer1.setObjectName(QStringLiteral("Timer1"));
    connect(&Timer1, &QTimer::timeout, this, &frmOrgFav::Tick);
    Timer1.start(Interval);
    lvGames->setFocus();
}

void frmOrgFav::BuildControls() {
    games_ = new ListModel(tr("Game"), ilsIcons::Game());
    lvGames = mList::MakeView("lvGames", games_);
    lvGames->setAccessibleName(tr("Games"));
    favourites_ = new ListModel(tr("Game Number"), {}, Qt::AlignRight);
    lvFav = mList::MakeView("lvFav", favourites_);
    lvFav->setAccessibleName(tr("Favorites of the game"));
    lvFav->setSelectionMode(QAbstractItemView::ExtendedSelection);
    mList::Commands(lvFav)->OfferDeals(
        [this](int row) -> std::optional<tFav> {
            return tFav{mList::Selected(lvGames).toStdString(), favourites_->CellText(row, 0).toStdString()};
        },
        ListCommands::Offer::Play);

    cmdClear = new QPushButton(tr("Clear Favorites"));
    cmdClear->setObjectName(QStringLiteral("cmdClear"));
    cmdClear->setAutoDefault(false);  // it asks nothing: Return must not come to it by itself
    cmdClose = new QPushButton(tr("Close"));
    cmdClose->setObjectName(QStringLiteral("cmdClose"));
    auto* buttons = new QDialogButtonBox;
    buttons->addButton(cmdClear, QDialogButtonBox::ResetRole);
    buttons->addButton(cmdClose, QDialogButtonBox::RejectRole);

    auto* lists = new QHBoxLayout;
    lists->addWidget(lvGames, 3);
    lists->addWidget(lvFav, 2);
    auto* all = new QVBoxLayout(this);
    all->addLayout(lists, 1);
    all->addWidget(buttons);
    cmdClose->setDefault(true);  // in the dialog by now, which only then remembers it
    mDialog::FirstSize(this, {fontMetrics().averageCharWidth() * 80, fontMetrics().height() * 26});
}

void frmOrgFav::Load() {
    mFavourites::Open();
    games_->SetTexts(gData->GameNames());
    MarkGames();
    const int current = games_->Row(QString::fromStdString(gData->Figures.CurGName));
    mList::Select(lvGames, current < 0 ? 0 : current);
    UpdateLVFav();
    Tick();
}

void frmOrgFav::UpdateLVFav() {
    favourites_->SetTexts(mFavourites::Numbers(mList::Selected(lvGames).toStdString()));
}

void frmOrgFav::MarkGames() {
    games_->SetNotes(mFavourites::Notes(gData->GameNames()), ilsIcons::Favorite());
}

void frmOrgFav::Clear() {
    mFavourites::Clear();
    MarkGames();
    UpdateLVFav();
}

void frmOrgFav::Tick() {
    const bool enabled = mFavourites::CanClear();
    if (!enabled && cmdClear->hasFocus()) cmdClose->setFocus();
    cmdClear->setEnabled(enabled);
}

void frmOrgFav::showEvent(QShowEvent* event) {
    QDialog::showEvent(event);
    lvGames->scrollTo(lvGames->currentIndex(), QAbstractItemView::PositionAtCenter);
}
