// The dialog "Log Statistics".
#include "window/records/frmLogStat.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>

#include "engine/records/mLog.h"
#include "engine/records/mPlayers.h"
#include "engine/records/mStatistics.h"
#include "window/controls/TextTable.h"
#include "window/controls/mDialog.h"
#include "window/look/ilsIcons.h"
#include "window/records/LogModel.h"
#include "window/records/mColumns.h"

frmLogStat::frmLogStat(QWidget* owner) : QDialog(owner) {
    setObjectName(QStringLiteral("frmLogStat"));
    setWindowTitle(tr("Log Statistics"));
    BuildControls();
    FillLog();
    for (QComboBox* choice : {imcPlayer, cmGames, imcDate}) {
        connect(choice, &QComboBox::currentIndexChanged, this, &frmLogStat::FillLog);
    }
    connect(cmdClose, &QPushButton::clicked, this, &QDialog::reject);
    mDialog::FirstSize(this, {sizeHint().width(), fontMetrics().height() * 36});
    lvLog->setFocus();
}

void frmLogStat::BuildControls() {
    imcPlayer = mDialog::MakeCombo("imcPlayer");
    mDialog::FillCombo(imcPlayer, ilsIcons::Player(), {mLog::AllPlayers});
    mDialog::FillCombo(imcPlayer, ilsIcons::Player(), mPlayers::Names());
    cmGames = mDialog::MakeCombo("cmGames");
    mDialog::FillCombo(cmGames, ilsIcons::Game(), {mLog::AllGames});
    mDialog::FillCombo(cmGames, ilsIcons::Game(), mStatistics::SortedGames());
    imcDate = mDialog::MakeCombo("imcDate");
    std::vector<std::string> dates;
    for (const mLog::DateChoice& choice : mLog::DateChoices) dates.emplace_back(choice.Text);
    mDialog::FillCombo(imcDate, ilsIcons::Date(), dates, mLog::ShowAll);

    log_ = new LogModel;
    lvLog = new TextTable("lvLog", log_);
    lvLog->setAccessibleName(tr("Games"));
    mColumns::OfferDeals(lvLog, log_);
    cmdClose = new QPushButton(tr("Close"));
    cmdClose->setObjectName(QStringLiteral("cmdClose"));
    auto* buttons = new QDialogButtonBox;
    buttons->addButton(cmdClose, QDialogButtonBox::RejectRole);

    auto* choices = new QHBoxLayout;
    choices->addLayout(mDialog::Labelled(tr("&Player:"), imcPlayer));
    choices->addLayout(mDialog::Labelled(tr("&Game:"), cmGames));
    choices->addLayout(mDialog::Labelled(tr("&Date:"), imcDate));
    choices->addStretch();
    auto* all = new QVBoxLayout(this);
    all->addLayout(choices);
    all->addWidget(lvLog, 1);
    all->addWidget(buttons);
    cmdClose->setDefault(true);  // in the dialog by now, which only then remembers it
}

void frmLogStat::FillLog() {
    log_->SetRecords(mLog::Select(imcPlayer->currentText().toStdString(),
                                  cmGames->currentText().toStdString(),
                                  imcDate->currentText().toStdString()));
}
