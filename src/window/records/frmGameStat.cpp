// The statistics dialog.
#include "window/records/frmGameStat.h"

#include <algorithm>
#include <array>

#include <QComboBox>
#include <QHBoxLayout>
#include <QPushButton>
#include <QTabWidget>
#include <QTreeView>
#include <QVBoxLayout>

#include "engine/records/cScore.h"
#include "engine/records/mPlayers.h"
#include "engine/records/mStatistics.h"
#include "engine/state/cData.h"
#include "window/controls/ListModel.h"
#include "window/controls/TextTable.h"
#include "window/controls/mDialog.h"
#include "window/look/ilsIcons.h"
#include "window/records/ChartView.h"
#include "window/records/frmMoreStat.h"
#include "window/records/mColumns.h"

namespace {

using mPlot::Kind;

QWidget* Frame(const char* name) {
    auto* frame = new QWidget;
    frame->setObjectName(QLatin1String(name));
    return frame;
}

/// A short list as wide as its texts need.
void FitWidth(QTreeView* list) {
    int width = 0;
    for (int row = 0; row < list->model()->rowCount(); ++row) {
        width = std::max(width, list->sizeHintForIndex(list->model()->index(row, 0)).width());
    }
    list->setMinimumWidth(width + 2 * list->frameWidth());
}

/// Selects the row of a game or player, and brings it into sight.
void SelectNamed(TextTable* table, const QString& name) {
    // A row that is current may be one of several that are selected.
    if (table->currentIndex().siblingAtColumn(0).data().toString() == name) return;
    const QModelIndexList found = table->model()->match(table->model()->index(0, 0), Qt::DisplayRole, name, 1,
                                                        Qt::MatchExactly | Qt::MatchCaseSensitive);
    if (!found.isEmpty()) table->Select(found.constFirst().row());
}

QLayout* Column(ChartView* chart, int below) {
    auto* column = new QVBoxLayout;
    column->setSpacing(0);
    column->addWidget(chart);
    column->addSpacing(below);
    return column;
}

/// A chart beside one that has labels of as many lines.
QLayout* Level(ChartView* chart) { return Column(chart, 0); }

/// A chart whose labels have one line, beside one whose labels have two: the bars stand on one level.
QLayout* Raised(ChartView* chart) { return Column(chart, chart->fontMetrics().height()); }

/// The table above, the two charts side by side below, and between them whose charts they are.
void Arrange(QWidget* frame, TextTable* table, QBoxLayout* choice, QLayout* left, ChartView* right,
             int rightWidth) {
    constexpr int LeftWidth = 2;
    auto* charts = new QHBoxLayout;
    charts->addLayout(left, LeftWidth);
    charts->addWidget(right, rightWidth);
    auto* all = new QVBoxLayout(frame);
    all->addWidget(table, 4);
    all->addLayout(choice);
    all->addLayout(charts, 5);
}

}  // namespace

frmGameStat::frmGameStat(QWidget* owner) : QDialog(owner) {
    setObjectName(QStringLiteral("frmGameStat"));
    setWindowTitle(tr("Game Statistics"));
    SSTab1 = new QTabWidget;
    SSTab1->setObjectName(QStringLiteral("SSTab1"));
    SSTab1->setAccessibleName(windowTitle());
    SSTab1->addTab(BuildGeneral(), tr("General Summary"));
    SSTab1->addTab(BuildGames(), tr("Game-wise"));
    SSTab1->addTab(BuildDates(), tr("Date-wise"));
    SSTab1->addTab(BuildPlayers(), tr("Player-wise"));
    for (int i = 0; i < SSTab1->count(); ++i) SSTab1->widget(i)->setAccessibleName(SSTab1->tabText(i));

    auto* all = new QVBoxLayout(this);
    all->addWidget(SSTab1, 1);
    all->addLayout(BuildButtons());
    ShowAll();
    connect(cmGames, &QComboBox::currentIndexChanged, this, &frmGameStat::ShowGame);
    // A row chosen in a list is chosen for the charts below it.
    const auto choose = [this](TextTable* table, QComboBox* choice) {
        connect(table->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
                [choice](const QModelIndex& row) {
                    choice->setCurrentText(row.siblingAtColumn(0).data().toString());
                });
    };
    choose(lvGames, cmGames);
    choose(lvPlayer, imcPlayer);
    connect(imcDate, &QComboBox::currentIndexChanged, this, &frmGameStat::ShowDates);
    connect(imcPlayer, &QComboBox::currentIndexChanged, this, &frmGameStat::ShowPlayer);
    mDialog::FirstSize(this, {std::max(sizeHint().width(), fontMetrics().averageCharWidth() * 140),
                              fontMetrics().height() * 42});
}

QWidget* frmGameStat::BuildGeneral() {
    QWidget* Frame2 = Frame("Frame2");
    general_ = new ListModel(QString());
    lvGeneral = mList::MakeView("lvGeneral", general_);
    lvGeneral->setAccessibleName(tr("General Summary"));
    lvGeneral->setSelectionMode(QAbstractItemView::ExtendedSelection);  // to be copied
    chGen = new ChartView("chGen", tr("Games won and lost"), Kind::Result);
    chGen1 = new ChartView("chGen1", tr("Score, moves and time"), Kind::Effort);
    auto* all = new QHBoxLayout(Frame2);
    all->addWidget(lvGeneral, 3);
    all->addLayout(Raised(chGen), 4);
    all->addWidget(chGen1, 4);
    return Frame2;
}

QWidget* frmGameStat::BuildGames() {
    QWidget* Frame1 = Frame("Frame1");
    games_ = new TableModel(mColumns::Of(mStatistics::GameColumns));
    lvGames = new TextTable("lvGames", games_);
    lvGames->setAccessibleName(tr("Games"));
    cmGames = mDialog::MakeCombo("cmGames");
    mDialog::FillCombo(cmGames, QIcon(), mStatistics::SortedGames(), gData->LastGName());
    chGames = new ChartView("chGames", tr("Games won and lost"), Kind::Result);
    chGames1 = new ChartView("chGames1", tr("Score, moves and time of each game"), Kind::Strips);
    Arrange(Frame1, lvGames, mDialog::Labelled(tr("&Game:"), cmGames), Level(chGames), chGames1, 5);
    return Frame1;
}

QWidget* frmGameStat::BuildDates() {
    QWidget* Frame3 = Frame("Frame3");
    constexpr std::array columns{mStatistics::DateRanges.front().Header, "Played", "Won"};
    dates_ = new TableModel(mColumns::Of(columns));
    lvDate = new TextTable("lvDate", dates_);
    lvDate->setAccessibleName(tr("Dates"));
    imcDate = mDialog::MakeCombo("imcDate");
    for (const auto& range : mStatistics::DateRanges) {
        mDialog::FillCombo(imcDate, ilsIcons::Date(), {range.Text});
    }
    chDate = new ChartView("chDate", tr("Games played and won"), Kind::Periods);
    chDate1 = new ChartView("chDate1", tr("Score, moves and time"), Kind::Strips);

    auto* list = new QVBoxLayout;
    list->addLayout(mDialog::Labelled(tr("&Period:"), imcDate));
    list->addWidget(lvDate, 1);
    auto* charts = new QVBoxLayout;
    charts->addWidget(chDate);
    charts->addWidget(chDate1);
    auto* all = new QHBoxLayout(Frame3);
    all->addLayout(list, 2);
    all->addLayout(charts, 5);
    return Frame3;
}

QWidget* frmGameStat::BuildPlayers() {
    QWidget* Frame4 = Frame("Frame4");
    players_ = new TableModel(mColumns::Of(mStatistics::PlayerColumns));
    lvPlayer = new TextTable("lvPlayer", players_);
    lvPlayer->setAccessibleName(tr("Players"));
    imcPlayer = mDialog::MakeCombo("imcPlayer");
    mDialog::FillCombo(imcPlayer, ilsIcons::Player(), mPlayers::Names(), gData->CurPlayer());
    chPlayer = new ChartView("chPlayer", tr("Games won and lost"), Kind::Result);
    chPlayer1 = new ChartView("chPlayer1", tr("Score, moves and time"), Kind::Effort);
    Arrange(Frame4, lvPlayer, mDialog::Labelled(tr("P&layer:"), imcPlayer), Raised(chPlayer), chPlayer1, 3);
    return Frame4;
}

QBoxLayout* frmGameStat::BuildButtons() {
    auto* line = new QHBoxLayout;
    const auto button = [line](const char* name, const QString& text) {
        auto* made = new QPushButton(text);
        made->setObjectName(QLatin1String(name));
        made->setAutoDefault(false);  // Return must never clear
        line->addWidget(made);
        return made;
    };
    cmdClear = button("cmdClear", tr("Clear Statistics"));
    cmdExport = button("cmdExport", tr("Export Statistics"));
    cmdMore = button("cmdMore", tr("&More"));
    line->addStretch();
    cmdClose = button("cmdClose", tr("Close"));
    cmdClose->setDefault(true);
    connect(cmdClear, &QPushButton::clicked, this, [] { gScore->ClearStat(); });
    connect(cmdExport, &QPushButton::clicked, this, &frmGameStat::Export);
    connect(cmdMore, &QPushButton::clicked, this, &frmGameStat::More);
    connect(cmdClose, &QPushButton::clicked, this, &QDialog::accept);
    return line;
}

void frmGameStat::ShowAll() {
    const tStat total = gScore->TotalStat();
    general_->SetTexts(mStatistics::GeneralLines(total));
    FitWidth(lvGeneral);
    chGen->SetData(mStatistics::ResultChart(total));
    chGen1->SetData(mStatistics::EffortChart(total));
    games_->SetRows(mStatistics::GameRows());
    ShowGame();
    ShowDates();
    players_->SetRows(mStatistics::PlayerRows());
    ShowPlayer();
}

void frmGameStat::ShowGame() {
    const std::string game = cmGames->currentText().toStdString();
    SelectNamed(lvGames, cmGames->currentText());
    chGames->SetData(mStatistics::ResultChart(gScore->GameStat(game)));
    chGames1->SetData(mStatistics::RecordsChart(game));
}

void frmGameStat::ShowDates() {
    const auto& range = mStatistics::DateRanges.at(static_cast<std::size_t>(imcDate->currentIndex()));
    mStatistics::DateView view = mStatistics::Dates(range);
    dates_->SetHeading(0, QLatin1String(range.Header));
    dates_->SetRows(std::move(view.Rows));
    chDate->SetData(view.Played);
    chDate1->SetData(view.Effort);
}

void frmGameStat::ShowPlayer() {
    SelectNamed(lvPlayer, imcPlayer->currentText());
    const tStat stat = gScore->PlayerStat(imcPlayer->currentText().toStdString());
    chPlayer->SetData(mStatistics::ResultChart(stat));
    chPlayer1->SetData(mStatistics::EffortChart(stat));
}

void frmGameStat::Export() {
    gScore->ExportStat();
    // The files were read again for it: lists and charts are not to tell of different records.
    ShowAll();
}

void frmGameStat::More() {
    frmMoreStat more(this);
    more.exec();
    if (more.HasRead()) ShowAll();  // records were added, and the store was read again
}
