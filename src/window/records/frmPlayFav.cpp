// The dialog "Play from Favorites".
#include "window/records/frmPlayFav.h"

#include <algorithm>

#include <QAbstractItemView>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QPushButton>
#include <QStyle>
#include <QTreeView>
#include <QVBoxLayout>

#include "engine/commands/mGen.h"
#include "engine/commands/mSelect.h"
#include "engine/records/mFavourites.h"
#include "engine/state/cData.h"
#include "window/controls/ListCommands.h"
#include "window/controls/ListModel.h"
#include "window/controls/NotedDelegate.h"
#include "window/controls/mDialog.h"
#include "window/look/ilsIcons.h"

frmPlayFav::frmPlayFav(QWidget* owner) : QDialog(owner) {
    setObjectName(QStringLiteral("frmPlayFav"));
    setWindowTitle(tr("Play from Favorites"));
    BuildControls();
    Load();
    connect(cmGames, &QComboBox::currentIndexChanged, this, &frmPlayFav::UpdateLVFav);
    connect(lvFav->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            [this] { cmdPlay->setEnabled(!mList::Selected(lvFav).isEmpty()); });
    connect(lvFav, &QTreeView::doubleClicked, this, &frmPlayFav::Play);
    connect(cmdPlay, &QPushButton::clicked, this, &frmPlayFav::Play);
    connect(cmdCancel, &QPushButton::clicked, this, &QDialog::reject);
}

void frmPlayFav::BuildControls() {
    cmGames = mDialog::MakeCombo("cmGames");
    cmGames->setItemDelegate(new NotedDelegate(cmGames));
    favourites_ = new ListModel(QString(), {}, Qt::AlignRight);
    lvFav = mList::MakeView("lvFav", favourites_);
    lvFav->setAccessibleName(tr("Favorites of the game"));
    mList::Commands(lvFav)->OfferDeals(
        [this](int row) -> std::optional<tFav> {
            return tFav{cmGames->currentText().toStdString(), favourites_->CellText(row, 0).toStdString()};
        },
        ListCommands::Offer::Play);

    cmdPlay = new QPushButton(tr("Play"));
    cmdPlay->setObjectName(QStringLiteral("cmdPlay"));
    cmdCancel = new QPushButton(tr("Cancel"));
    cmdCancel->setObjectName(QStringLiteral("cmdCancel"));
    auto* buttons = new QDialogButtonBox;
    buttons->addButton(cmdPlay, QDialogButtonBox::AcceptRole);
    buttons->addButton(cmdCancel, QDialogButtonBox::RejectRole);

    auto* all = new QVBoxLayout(this);
    all->addLayout(mDialog::Labelled(tr("&Game:"), cmGames));
    all->addWidget(lvFav, 1);
    all->addWidget(buttons);
    cmdPlay->setDefault(true);  // in the dialog by now, which only then remembers it
    mDialog::FirstSize(this, {fontMetrics().averageCharWidth() * 48, fontMetrics().height() * 20});
}

void frmPlayFav::Load() {
    mFavourites::Open();
    mDialog::FillCombo(cmGames, ilsIcons::Game(), gData->GameNames(), gData->LastGName());
    MarkGames();
    UpdateLVFav();
}

void frmPlayFav::MarkGames() {
    const std::vector<std::string> notes = mFavourites::Notes(gData->GameNames());
    int widest = 0;
    for (int i = 0; i < cmGames->count(); ++i) {
        const QString note = QString::fromStdString(notes.at(static_cast<std::size_t>(i)));
        if (note.isEmpty()) continue;
        widest = std::max(widest, fontMetrics().horizontalAdvance(mDialog::Padded(note)));
        cmGames->setItemData(i, note, NotedDelegate::NoteRole);
        cmGames->setItemData(i, NotedDelegate::Spoken(cmGames->itemText(i), note), Qt::AccessibleTextRole);
        cmGames->setItemIcon(i, ilsIcons::Favorite());
    }
    // The open list has room for the notes, which the box itself does not show. The box has measured the
    // names already: to ask the list would measure all of them again.
    cmGames->view()->setMinimumWidth(cmGames->sizeHint().width() + widest +
                                     style()->pixelMetric(QStyle::PM_ScrollBarExtent));
}

void frmPlayFav::UpdateLVFav() {
    favourites_->SetTexts(mFavourites::Numbers(cmGames->currentText().toStdString()));
    mList::Select(lvFav, favourites_->rowCount() - 1);
    cmdPlay->setEnabled(favourites_->rowCount() > 0);
}

void frmPlayFav::Play() {
    const QString number = mList::Selected(lvFav);
    if (number.isEmpty()) return;
    // What a game won by its very first moves leads to waits until the dialog is done with.
    const mGen::Action action;
    hide();
    mSelect::PlayFavourite(cmGames->currentText().toStdString(), number.toStdString());
    accept();
}
