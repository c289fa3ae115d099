// The end-of-game dialog: what the won game came to, and what to do next.
#pragma once

#include <QDialog>

#include "engine/outside/windowlayer.h"

class ChartView;
class QGroupBox;
class QListWidget;
class QToolBar;

class frmFinish : public QDialog {
    Q_OBJECT
public:
    explicit frmFinish(const FinishSummary& summary, QWidget* owner = nullptr);

    /// Puts the dialog, before it is shown, where it covers none of that part of the screen (pixels), if
    /// there is such a place close to its owner; otherwise it stays where the platform puts it.
    void PlaceBeside(const QRect& shown);

    /// What the pressed button starts; nothing after "Close" or the window's own close button.
    [[nodiscard]] AfterGame Choice() const { return choice_; }

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void BuildToolbar();
    void AddButton(const char* key, const QString& caption, bool enabled = true);
    void BuildList(const FinishSummary& summary);
    void BuildChart(const FinishSummary& summary);
    void Leave(AfterGame choice);

    QToolBar* Toolbar1 = nullptr;
    QGroupBox* Frame1 = nullptr;
    QListWidget* ListView1 = nullptr;
    ChartView* chFin = nullptr;
    AfterGame choice_ = AfterGame::Nothing;
};
