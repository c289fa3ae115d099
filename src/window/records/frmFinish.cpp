// The end-of-game dialog.
#include "window/records/frmFinish.h"

#include <algorithm>

#include <QAction>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QListWidget>
#include <QScreen>
#include <QToolBar>
#include <QToolButton>
#include <QVBoxLayout>

#include "window/controls/mDialog.h"
#include "window/records/ChartView.h"
#include "window/records/frmGameStat.h"
#include "window/records/frmHighScore.h"

frmFinish::frmFinish(const FinishSummary& summary, QWidget* owner) : QDialog(owner) {
    setObjectName(QStringLiteral("frmFinish"));
    setWindowTitle(tr("Congrats"));
    BuildToolbar();
    BuildList(summary);
    BuildChart(summary);

    Frame1 = new QGroupBox(QString::fromStdString(summary.GameName));
    Frame1->setObjectName(QStringLiteral("Frame1"));
    auto* inside = new QHBoxLayout(Frame1);
    inside->addWidget(ListView1, 2);
    inside->addWidget(chFin, 3);
    auto* all = new QVBoxLayout(this);
    all->addWidget(Toolbar1);
    all->addWidget(Frame1, 1);
    mDialog::FirstSize(this, {std::max(sizeHint().width(), fontMetrics().averageCharWidth() * 90),
                              fontMetrics().height() * 22});
    findChild<QToolButton*>(QStringLiteral("New"))->setFocus();
}

void frmFinish::AddButton(const char* key, const QString& caption, bool enabled) {
    const QString name = QLatin1String(key);
    QAction* action = Toolbar1->addAction(caption);
    action->setObjectName(name);
    action->setEnabled(enabled);
    auto* button = qobject_cast<QToolButton*>(Toolbar1->widgetForAction(action));
    button->setObjectName(name);
    // A toolbar's buttons are bare texts, and out of the keyboard's reach, unless they are told otherwise.
    button->setAutoRaise(false);
    button->setFocusPolicy(Qt::StrongFocus);
}

void frmFinish::BuildToolbar() {
    Toolbar1 = new QToolBar;
    Toolbar1->setObjectName(QStringLiteral("Toolbar1"));
    Toolbar1->setToolButtonStyle(Qt::ToolButtonTextOnly);
    AddButton("New", tr("New Game"));
    AddButton("Select", tr("Select Game"));
    AddButton("Restart", tr("Restart Game"));
    AddButton("Statistics", tr("Statistics"));
    AddButton("Highscore", tr("High Score"));
    AddButton("Close", tr("Close"));
    // All six stay in sight, whatever the font; on a screen too small for that, a menu at the end holds the
    // rest.
    Toolbar1->setMinimumWidth(
        std::min(Toolbar1->sizeHint().width(), screen()->availableSize().width() * 3 / 4));
    connect(Toolbar1, &QToolBar::actionTriggered, this, [this](const QAction* action) {
        const QString key = action->objectName();
        if (key == QStringLiteral("New")) Leave(AfterGame::NewGame);
        if (key == QStringLiteral("Select")) Leave(AfterGame::SelectGame);
        if (key == QStringLiteral("Restart")) Leave(AfterGame::RestartGame);
        if (key == QStringLiteral("Highscore")) frmHighScore(this).exec();
        if (key == QStringLiteral("Statistics")) frmGameStat(this).exec();
        if (key == QStringLiteral("Close")) Leave(AfterGame::Nothing);
    });
}

void frmFinish::BuildList(const FinishSummary& summary) {
    ListView1 = new QListWidget;
    ListView1->setObjectName(QStringLiteral("ListView1"));
    ListView1->setAccessibleName(tr("The game"));
    for (const std::string& line : summary.Lines) ListView1->addItem(QString::fromStdString(line));
    ListView1->setMinimumWidth(ListView1->sizeHintForColumn(0) + 4 * ListView1->frameWidth());
}

void frmFinish::BuildChart(const FinishSummary& summary) {
    chFin = new ChartView("chFin", tr("Chart"), mPlot::Kind::Effort);
    chFin->SetData(
        mStatistics::EffortChart({.Score = summary.Score, .Moves = summary.Moves, .Time = summary.Seconds}));
}

void frmFinish::Leave(AfterGame choice) {
    choice_ = choice;
    accept();
}

void frmFinish::keyPressEvent(QKeyEvent* event) {
    // Return presses the button that has the focus, as everywhere in dialogs; tool buttons know only
    // the space bar.
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        if (auto* button = qobject_cast<QToolButton*>(focusWidget())) button->click();
        return;
    }
    QDialog::keyPressEvent(event);
}
