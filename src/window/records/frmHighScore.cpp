// The dialog "High Score".
#include "window/records/frmHighScore.h"

#include <algorithm>

#include <QComboBox>
#include <QDialogButtonBox>
#include <QPushButton>
#include <QTabWidget>
#include <QVBoxLayout>

#include "engine/records/mPlayers.h"
#include "engine/records/mRanking.h"
#include "engine/state/cData.h"
#include "window/controls/TextTable.h"
#include "window/controls/mDialog.h"
#include "window/look/ilsIcons.h"
#include "window/records/mColumns.h"

namespace {

/// Marks the column that the rows are ranked by.
void Mark(TableModel* table, std::span<const char* const> headings, const std::string& key) {
    const auto column = std::find(headings.begin(), headings.end(), key) - headings.begin();
    table->ClearEmphasis();
    table->Emphasise(TableModel::Every, static_cast<int>(column), {.Bold = true, .Color = QColor(128, 0, 0)});
}

}  // namespace

frmHighScore::frmHighScore(QWidget* owner) : QDialog(owner) {
    setObjectName(QStringLiteral("frmHighScore"));
    setWindowTitle(tr("High Score"));
    BuildControls();
    Load();
    connect(imcGames, &QComboBox::currentIndexChanged, this, &frmHighScore::RankGame);
    connect(imcPlayer, &QComboBox::currentIndexChanged, this, &frmHighScore::RankPlayer);
    connect(imcFin, &QComboBox::currentIndexChanged, this, &frmHighScore::RankFinished);
    connect(cmdClose, &QPushButton::clicked, this, &QDialog::reject);
    mDialog::FirstSize(this, {sizeHint().width(), fontMetrics().height() * 38});  // 20 places in sight
}

void frmHighScore::BuildControls() {
    SSTab1 = new QTabWidget;
    SSTab1->setObjectName(QStringLiteral("SSTab1"));
    SSTab1->setAccessibleName(windowTitle());
    imcGames = mDialog::MakeCombo("imcGames");
    imcPlayer = mDialog::MakeCombo("imcPlayer");
    imcFin = mDialog::MakeCombo("imcFin");
    top_ = AddTab(tr("Top Score"), "lvTop", mRanking::TopColumns);
    games_ =
        AddTab(tr("Game-wise"), "lvGames", mRanking::GameColumns, mDialog::Labelled(tr("&Game:"), imcGames));
    players_ = AddTab(tr("Player-wise"), "lvPlayer", mRanking::PlayerColumns,
                      mDialog::Labelled(tr("&Player:"), imcPlayer));
    finished_ = AddTab(tr("Finished Games"), "lvFin", mRanking::FinishedColumns,
                       mDialog::Labelled(tr("&Ranked by:"), imcFin));

    cmdClose = new QPushButton(tr("Close"));
    cmdClose->setObjectName(QStringLiteral("cmdClose"));
    auto* buttons = new QDialogButtonBox;
    buttons->addButton(cmdClose, QDialogButtonBox::RejectRole);
    auto* all = new QVBoxLayout(this);
    all->addWidget(SSTab1, 1);
    all->addWidget(buttons);
    cmdClose->setDefault(true);  // in the dialog by now, which only then remembers it
}

TableModel* frmHighScore::AddTab(const QString& title, const char* name,
                                 std::span<const char* const> headings, QBoxLayout* choice) {
    auto* rows = new TableModel(mColumns::Of(headings));
    auto* table = new TextTable(name, rows);
    table->setAccessibleName(title);
    mColumns::OfferDeals(table, rows, [this] { return imcGames->currentText(); });
    auto* page = new QWidget;
    auto* layout = new QVBoxLayout(page);
    if (choice) layout->addLayout(choice);
    layout->addWidget(table, 1);
    SSTab1->addTab(page, title);
    return rows;
}

void frmHighScore::Load() {
    Mark(top_, mRanking::TopColumns, "Score");
    Mark(games_, mRanking::GameColumns, "Score");
    Mark(players_, mRanking::PlayerColumns, "Score");
    mDialog::FillCombo(imcGames, ilsIcons::Game(), gData->GameNames(), gData->Figures.CurGName);
    mDialog::FillCombo(imcPlayer, ilsIcons::Player(), mPlayers::Names(), gData->CurPlayer());
    mDialog::FillCombo(imcFin, QIcon(), {mRanking::FinishedKeys.begin(), mRanking::FinishedKeys.end()});
    top_->SetRows(mRanking::TopRows());
    RankGame();
    RankPlayer();
    RankFinished();
}

void frmHighScore::RankGame() { games_->SetRows(mRanking::GameRows(imcGames->currentText().toStdString())); }

void frmHighScore::RankPlayer() {
    players_->SetRows(mRanking::PlayerRows(imcPlayer->currentText().toStdString()));
}

void frmHighScore::RankFinished() {
    const std::string key = imcFin->currentText().toStdString();
    Mark(finished_, mRanking::FinishedColumns, key);
    finished_->SetRows(mRanking::FinishedRows(key));
}
