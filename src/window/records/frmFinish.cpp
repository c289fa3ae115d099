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
    inside->addWidget(ListView1, 2, Qt::AlignVCenter);
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
    // All of one width, from the one edge of the dialog to the other.
    button->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
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
    int widest = 0;
    const auto buttons = Toolbar1->findChildren<QToolButton*>(QString(), Qt::FindDirectChildrenOnly);
    for (const QToolButton* button : buttons) widest = std::max(widest, button->sizeHint().width());
    for (const QAction* action : Toolbar1->actions())
        qobject_cast<QToolButton*>(Toolbar1->widgetForAction(const_cast<QAction*>(action)))
            ->setMinimumWidth(widest);
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
    // As tall as its lines, whatever the font: nothing to scroll, and no empty page below them.
    ListView1->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    ListView1->setFixedHeight(ListView1->sizeHintForRow(0) * ListView1->count() +
                              2 * ListView1->frameWidth());
}

void frmFinish::BuildChart(const FinishSummary& summary) {
    chFin = new ChartView("chFin", tr("Chart"), mPlot::Kind::Effort);
    chFin->SetData(mStatistics::EffortChart(
        {.Played = 1, .Score = summary.Score, .Moves = summary.Moves, .Time = summary.Seconds}));
}

void frmFinish::PlaceBeside(const QRect& shown) {
    const QWidget* owner = parentWidget();
    if (!owner || shown.isEmpty()) return;
    constexpr int Gap = 16;          // pixels between the two
    constexpr int TitleHeight = 40;  // of the dialog's own frame, which is not known before it is shown
    const QRect screenRoom = owner->screen()->availableGeometry();
    const QRect window = owner->frameGeometry();
    QRect place(QPoint(), size());
    place.moveCenter(window.center());
    const int below = shown.bottom() + Gap + TitleHeight;
    const int above = shown.top() - Gap - place.height();
    if (below + place.height() <= screenRoom.bottom()) {
        place.moveTop(below);
    } else if (above - TitleHeight >= screenRoom.top()) {
        place.moveTop(above);
    } else if (shown.right() + Gap + place.width() <= screenRoom.right()) {
        place.moveLeft(shown.right() + Gap);
    } else if (shown.left() - Gap - place.width() >= screenRoom.left()) {
        place.moveLeft(shown.left() - Gap - place.width());
    } else {
        return;
    }
    move(std::clamp(place.left(), screenRoom.left(),
                    std::max(screenRoom.left(), screenRoom.right() - place.width())),
         place.top());
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
