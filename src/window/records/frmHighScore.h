// The high scores: the best records of all, of a game, of a player, and of the finished games.
#pragma once

#include <span>

#include <QDialog>

#include "window/records/LoadedScores.h"

class QBoxLayout;
class QComboBox;
class QPushButton;
class QTabWidget;
class TableModel;
class TextTable;

class frmHighScore : public QDialog {
    Q_OBJECT
public:
    explicit frmHighScore(QWidget* owner = nullptr);

private:
    void BuildControls();
    /// A table under its choice, where it has one, as a tab.
    TableModel* AddTab(const QString& title, const char* name, std::span<const char* const> headings,
                       QBoxLayout* choice = nullptr);
    void Load();
    void RankGame();
    void RankPlayer();
    void RankFinished();

    LoadedScores scores_;
    QTabWidget* SSTab1 = nullptr;
    TableModel* top_ = nullptr;
    TableModel* games_ = nullptr;
    TableModel* players_ = nullptr;
    TableModel* finished_ = nullptr;
    QComboBox* imcGames = nullptr;
    QComboBox* imcPlayer = nullptr;
    QComboBox* imcFin = nullptr;
    QPushButton* cmdClose = nullptr;
};
