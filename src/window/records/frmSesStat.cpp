// The session dialog.
#include "window/records/frmSesStat.h"

#include <algorithm>

#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QTabWidget>
#include <QVBoxLayout>

#include "engine/records/mSession.h"
#include "engine/state/cData.h"
#include "window/controls/TextTable.h"
#include "window/controls/mDialog.h"
#include "window/records/ChartView.h"
#include "window/records/mColumns.h"

namespace {

constexpr int TickInterval = 500;  // milliseconds

// In the order of the lines that the session gives.
constexpr std::array SessionLabels{"lblSesStarted", "lblSesPlayed", "lblSesWon",        "lblSesLost",
                                   "lblsesScore",   "lblSesMoves",  "lblSesElapsedTime"};
constexpr std::array GameLabels{"lblGameStarted", "lblGameName", "lblGameNo", "lblGameScore",
                                "lblGameMoves",   "lblGameTime", "lblPlayer"};

/// The place of a name in one of the lists of names; it must be there.
template <std::size_t Count>
constexpr int Place(const std::array<const char*, Count>& names, std::string_view name) {
    return static_cast<int>(std::find(names.begin(), names.end(), name) - names.begin());
}

template <std::size_t Count>
QGroupBox* Lines(const char* name, const QString& title, const std::array<const char*, Count>& names,
                 const std::vector<std::string>& texts, std::array<QLabel*, Count>& labels) {
    constexpr int UsualLength = 60;  // letters; a longer name shows in full where there is room
    auto* frame = new QGroupBox(title);
    frame->setObjectName(QLatin1String(name));
    auto* lines = new QVBoxLayout(frame);
    for (std::size_t i = 0; i < Count; ++i) {
        auto* label = new QLabel;
        label->setObjectName(QLatin1String(names[i]));
        label->setTextFormat(Qt::PlainText);  // a player's name may look like a tag
        label->setText(QString::fromStdString(texts.at(i)));
        label->setToolTip(label->text());
        const int usual = label->fontMetrics().averageCharWidth() * UsualLength;
        label->setMinimumWidth(std::min(label->sizeHint().width(), usual));
        lines->addWidget(label);
        labels[i] = label;
    }
    lines->addStretch();
    return frame;
}

}  // namespace

frmSesStat::frmSesStat(QWidget* owner) : QDialog(owner) {
    setObjectName(QStringLiteral("frmSesStat"));
    setWindowTitle(tr("Session Statistics"));
    SSTab1 = new QTabWidget;
    SSTab1->setObjectName(QStringLiteral("SSTab1"));
    SSTab1->setAccessibleName(windowTitle());
    SSTab1->addTab(BuildSummary(), tr("Summary"));
    SSTab1->addTab(BuildDetails(), tr("Session Details"));
    for (int i = 0; i < SSTab1->count(); ++i) SSTab1->widget(i)->setAccessibleName(SSTab1->tabText(i));
    MarkRunning();

    cmdClose = new QPushButton(tr("Close"));
    cmdClose->setObjectName(QStringLiteral("cmdClose"));
    connect(cmdClose, &QPushButton::clicked, this, &QDialog::accept);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(cmdClose);
    auto* all = new QVBoxLayout(this);
    all->addWidget(SSTab1, 1);
    all->addLayout(buttons);
    cmdClose->setDefault(true);
    mDialog::FirstSize(this, {sizeHint().width(), fontMetrics().height() * 36});

    connect(SSTab1, &QTabWidget::currentChanged, this, &frmSesStat::ShowRunning);
    Timer1.setObjectName(QStringLiteral("Timer1"));
    connect(&Timer1, &QTimer::timeout, this, &frmSesStat::Tick);
    Timer1.start(TickInterval);
}

QWidget* frmSesStat::BuildSummary() {
    QGroupBox* Frame1 =
        Lines("Frame1", tr("This Session"), SessionLabels, mSession::SessionLines(), sessionLabels_);
    QGroupBox* Frame2 = Lines("Frame2", tr("This Game"), GameLabels, mSession::GameLines(), gameLabels_);
    session_ = new TableModel(mColumns::Of(mSession::Columns));
    session_->SetRows(mSession::SessionRows());
    lvSession = new TextTable("lvSession", session_);
    lvSession->setAccessibleName(tr("Games of this session"));
    mColumns::OfferDeals(lvSession, session_);
    chSummary = new ChartView("chSummary", tr("Games won and lost"), mPlot::Kind::Result);
    chSummary->SetData(mSession::SummaryChart());

    auto* summary = new QWidget;
    auto* upper = new QHBoxLayout;
    upper->addWidget(Frame1, 1);
    upper->addWidget(Frame2, 1);
    upper->addWidget(chSummary, 1);
    auto* all = new QVBoxLayout(summary);
    all->addLayout(upper, 2);
    all->addWidget(lvSession, 3);
    return summary;
}

QWidget* frmSesStat::BuildDetails() {
    details_ = new TableModel(mColumns::Of(mSession::ChartColumns));
    details_->SetRows(mSession::ChartRows());
    lvSesChart = new TextTable("lvSesChart", details_);
    lvSesChart->setAccessibleName(tr("Games of this session"));
    chChart = new ChartView("chChart", tr("Score, moves and time of each game"), mPlot::Kind::Strips);
    chChart->SetData(mSession::GamesChart());
    cmdRefresh = new QPushButton(tr("Refresh Chart"));
    cmdRefresh->setObjectName(QStringLiteral("cmdRefresh"));
    cmdRefresh->setAutoDefault(false);
    connect(cmdRefresh, &QPushButton::clicked, this, [this] { chChart->SetData(mSession::GamesChart()); });

    auto* Frame3 = new QWidget;
    Frame3->setObjectName(QStringLiteral("Frame3"));
    auto* chart = new QVBoxLayout;
    chart->addWidget(chChart, 1);
    chart->addWidget(cmdRefresh, 0, Qt::AlignRight);
    auto* all = new QHBoxLayout(Frame3);
    all->addWidget(lvSesChart, 2);
    all->addLayout(chart, 3);
    return Frame3;
}

void frmSesStat::MarkRunning() {
    if (!gData->Figures.GameRunning) return;
    runningRow_ = session_->rowCount() - 1;
    const Emphasis running{.Color = QColor(120, 0, 0)};
    session_->Emphasise(runningRow_, TableModel::Every, running);
    details_->Emphasise(runningRow_, TableModel::Every, running);
}

void frmSesStat::ShowRunning() {
    if (runningRow_ < 0) return;
    TextTable* table = SSTab1->currentIndex() == 0 ? lvSession : lvSesChart;
    const TableModel* rows = table == lvSession ? session_ : details_;
    table->scrollTo(rows->index(rows->ShownRow(runningRow_), 0));
}

void frmSesStat::showEvent(QShowEvent* event) {
    QDialog::showEvent(event);
    ShowRunning();
}

void frmSesStat::Tick() {
    if (!gData) return;
    const mSession::Tick tick = mSession::TickTexts();
    const auto show = [](QLabel* label, const std::string& text) {
        label->setText(QString::fromStdString(text));  // draws nothing where it is the same
        label->setToolTip(label->text());
    };
    show(sessionLabels_[Place(SessionLabels, "lblSesElapsedTime")], tick.Elapsed);
    if (tick.GameTime.empty() || runningRow_ < 0) return;
    show(gameLabels_[Place(GameLabels, "lblGameScore")], tick.GameScore);
    show(gameLabels_[Place(GameLabels, "lblGameTime")], tick.GameTime);
    session_->SetCell(runningRow_, Place(mSession::Columns, "Time"), tick.Time);
    session_->SetCell(runningRow_, Place(mSession::Columns, "Score"), tick.Score);
    details_->SetCell(runningRow_, Place(mSession::ChartColumns, "Time"), tick.Time);
    details_->SetCell(runningRow_, Place(mSession::ChartColumns, "Score"), tick.Score);
}
