// The dialog "More Statistics".
#include "window/records/frmMoreStat.h"

#include <algorithm>

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QTabWidget>
#include <QVBoxLayout>

#include "engine/records/ImportedRecords.h"
#include "engine/records/cScore.h"
#include "engine/records/mPlayers.h"
#include "engine/state/cData.h"
#include "window/controls/TextTable.h"
#include "window/controls/mDialog.h"
#include "window/look/ilsIcons.h"
#include "window/records/CareerModel.h"
#include "window/records/ChartView.h"
#include "window/records/LogModel.h"
#include "window/records/frmImport.h"
#include "window/records/mColumns.h"

namespace {

template <typename Texts>
std::vector<std::string> AsTexts(const Texts& texts) {
    return {texts.begin(), texts.end()};
}

}  // namespace

frmMoreStat::frmMoreStat(QWidget* owner) : QDialog(owner) {
    setObjectName(QStringLiteral("frmMoreStat"));
    setWindowTitle(tr("More Statistics"));
    career_ = std::make_unique<Career>(gScore->Store());
    BuildChoices();
    filter_.Player = gData->CurPlayer();
    result_ = career_->Work(filter_);
    BuildPages();
    auto* choices = new QHBoxLayout;
    choices->addLayout(mDialog::Labelled(tr("&Player:"), imcPlayer));
    choices->addLayout(mDialog::Labelled(tr("&Group:"), imcGroup));
    choices->addLayout(mDialog::Labelled(tr("&Dates:"), imcPeriod));
    choices->addStretch();
    auto* all = new QVBoxLayout(this);
    all->addLayout(choices);
    all->addWidget(lblProgress);
    all->addWidget(SSTab1, 1);
    all->addLayout(BuildButtons());
    Work();
    for (QComboBox* choice : {imcPlayer, imcGroup, imcPeriod}) {
        connect(choice, &QComboBox::currentIndexChanged, this, &frmMoreStat::Work);
    }
    for (QComboBox* choice : {imcGames, imcUnit}) {
        connect(choice, &QComboBox::currentIndexChanged, this, [this] {
            pages_.at(static_cast<std::size_t>(SSTab1->currentIndex())).Filled = false;
            ShowPage();
        });
    }
    connect(SSTab1, &QTabWidget::currentChanged, this, &frmMoreStat::ShowPage);
    mDialog::FirstSize(this, {std::max(sizeHint().width(), fontMetrics().averageCharWidth() * 175),
                              fontMetrics().height() * 40});
    SSTab1->setFocus();
}

void frmMoreStat::BuildChoices() {
    imcPlayer = mDialog::MakeCombo("imcPlayer");
    mDialog::FillCombo(imcPlayer, ilsIcons::Player(), {mCareerTables::AllPlayers});
    mDialog::FillCombo(imcPlayer, ilsIcons::Player(), mPlayers::Names(), gData->CurPlayer());
    imcGroup = mDialog::MakeCombo("imcGroup");
    mDialog::FillCombo(imcGroup, ilsIcons::Group(), {mCareerTables::AllGroups});
    for (int Gid = 1; Gid <= gData->TotalGroups(); ++Gid) {
        mDialog::FillCombo(imcGroup, ilsIcons::Group(), {gData->GroupfromGiD(Gid)});
    }
    imcPeriod = mDialog::MakeCombo("imcPeriod");
    mDialog::FillCombo(imcPeriod, ilsIcons::Date(), AsTexts(mCareerTables::Periods));
    imcGames = mDialog::MakeCombo("imcGames");
    mDialog::FillCombo(imcGames, ilsIcons::Game(), AsTexts(mCareerTables::GameChoices));
    imcUnit = mDialog::MakeCombo("imcUnit");
    mDialog::FillCombo(imcUnit, ilsIcons::Date(), AsTexts(mCareerTables::Units));
    lblProgress = new QLabel;
    lblProgress->setObjectName(QStringLiteral("lblProgress"));
}

void frmMoreStat::BuildPages() {
    SSTab1 = new QTabWidget;
    SSTab1->setObjectName(QStringLiteral("SSTab1"));
    SSTab1->setAccessibleName(windowTitle());
    records_ = new LogModel;
    AddPage(Summary, "lvSummary", tr("Streaks and Bests"), nullptr, {}, false);
    AddPage(Progress, "lvProgress", tr("Progress"), nullptr, {}, false);
    AddPage(Games, "lvGames", tr("Games"), imcGames, tr("&Show:"), false);
    AddPage(Players, "lvPlayers", tr("Players"), nullptr, {}, false);
    AddPage(Times, "lvTimes", tr("Over Time"), imcUnit, tr("&Show:"), true);
    AddPage(Hours, "lvHours", tr("Time of Day"), nullptr, {}, true);
    AddPage(Records, "lvRecords", tr("Records"), nullptr, {}, false);
}

void frmMoreStat::AddPage(Page page, const char* name, const QString& title, QComboBox* choice,
                          const QString& label, bool charts) {
    PageParts& parts = pages_.at(page);
    TableModel* rows = records_;
    if (page != Records) rows = parts.Rows = new CareerModel(TableOf(page));
    auto* table = new TextTable(name, rows);
    table->setAccessibleName(title);
    if (page == Records || page == Summary) mColumns::OfferDeals(table, rows);
    auto* list = new QVBoxLayout;
    if (choice) list->addLayout(mDialog::Labelled(label, choice));
    list->addWidget(table, 1);
    auto* frame = new QWidget;
    frame->setAccessibleName(title);
    auto* all = new QHBoxLayout(frame);
    all->addLayout(list, 2);
    if (charts) {
        const QByteArray chart = QByteArray(name).replace("lv", "ch");
        parts.Played = new ChartView(chart, tr("Games played and won"), mPlot::Kind::Periods);
        parts.Share = new ChartView(chart + '1', tr("Games won in percent"), mPlot::Kind::Strips);
        auto* column = new QVBoxLayout;
        column->addWidget(parts.Played);
        column->addWidget(parts.Share);
        all->addLayout(column, 3);
    }
    SSTab1->addTab(frame, title);
}

QBoxLayout* frmMoreStat::BuildButtons() {
    auto* line = new QHBoxLayout;
    const auto button = [line](const char* name, const QString& text) {
        auto* made = new QPushButton(text);
        made->setObjectName(QLatin1String(name));
        line->addWidget(made);
        return made;
    };
    cmdExport = button("cmdExport", tr("&Export List"));
    cmdImport = button("cmdImport", tr("&Import Records"));
    line->addStretch();
    cmdClose = button("cmdClose", tr("Close"));
    cmdClose->setDefault(true);
    connect(cmdExport, &QPushButton::clicked, this, &frmMoreStat::Export);
    connect(cmdImport, &QPushButton::clicked, this, &frmMoreStat::Import);
    connect(cmdClose, &QPushButton::clicked, this, &QDialog::accept);
    return line;
}

mCareerTables::Table frmMoreStat::TableOf(Page page) const {
    switch (page) {
        case Summary:
            return mCareerTables::Summary(*career_, result_);
        case Progress:
            return mCareerTables::Groups(result_, filter_);
        case Games:
            return mCareerTables::Games(*career_, result_, filter_,
                                        static_cast<mCareerTables::GameChoice>(imcGames->currentIndex()));
        case Players:
            return mCareerTables::Players(*career_, result_, filter_);
        case Times:
            return mCareerTables::Times(result_, static_cast<mCareerTables::Unit>(imcUnit->currentIndex()));
        case Hours:
            return mCareerTables::Hours(result_);
        default:
            return {};
    }
}

void frmMoreStat::Work() {
    // The first item stands for all, whatever a player is called.
    filter_.Player = imcPlayer->currentIndex() == 0 ? "" : imcPlayer->currentText().toStdString();
    filter_.Gid = imcGroup->currentIndex();
    filter_.Days = mCareerTables::Days(imcPeriod->currentText().toStdString());
    result_ = career_->Work(filter_);
    lblProgress->setText(QString::fromStdString(mCareerTables::Progress(result_, filter_)));
    for (PageParts& parts : pages_) parts.Filled = false;
    ShowPage();
}

void frmMoreStat::ShowPage() {
    const auto page = static_cast<Page>(SSTab1->currentIndex());
    PageParts& parts = pages_.at(page);
    if (parts.Filled) return;
    parts.Filled = true;
    if (page == Records) {
        records_->SetRecords(career_->Records(filter_));
        return;
    }
    parts.Rows->SetTable(TableOf(page));
    if (parts.Played) ShowCharts(page);
}

void frmMoreStat::ShowCharts(Page page) {
    const auto unit = static_cast<mCareerTables::Unit>(imcUnit->currentIndex());
    const mCareerTables::Charts charts =
        page == Times ? mCareerTables::TimeCharts(result_, unit) : mCareerTables::HourCharts(result_);
    pages_.at(page).Played->SetData(charts.Played);
    pages_.at(page).Share->SetData(charts.Share);
}

void frmMoreStat::Export() {
    const auto page = static_cast<Page>(SSTab1->currentIndex());
    mCareerTables::Export(SSTab1->tabText(page).toStdString(), [&](const mCareerTables::GoOn& goOn) {
        return page == Records ? mCareerTables::RecordsCsv(gScore->Store(), career_->Records(filter_), goOn)
                               : mCareerTables::Csv(TableOf(page));
    });
}

void frmMoreStat::Import() {
    const auto path = gData->Layer().Forms.AskOpenFile("Records (*.csv *.sre)");
    if (!path) return;
    ImportedRecords records;
    {
        const mDialog::BusyPointer busy;
        if (!records.Read(*path)) return;
    }
    if (frmImport(records, filter_.Player, this).exec() != QDialog::Accepted) return;
    // Both stand on the store, and what could not be read is told while the dialog is in sight.
    records_->SetRecords({});
    career_.reset();
    LoadedScores::Load();
    career_ = std::make_unique<Career>(gScore->Store());
    hasRead_ = true;
    Work();
}
