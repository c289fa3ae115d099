// The statistics dialog: all games of all players, in total and by game, by date and by player.
#pragma once

#include <QDialog>

#include "window/records/LoadedScores.h"

class ChartView;
class ListModel;
class QBoxLayout;
class QComboBox;
class QPushButton;
class QTabWidget;
class QTreeView;
class TableModel;
class TextTable;

class frmGameStat : public QDialog {
    Q_OBJECT
public:
    explicit frmGameStat(QWidget* owner = nullptr);

private:
    [[nodiscard]] QWidget* BuildGeneral();
    [[nodiscard]] QWidget* BuildGames();
    [[nodiscard]] QWidget* BuildDates();
    [[nodiscard]] QWidget* BuildPlayers();
    [[nodiscard]] QBoxLayout* BuildButtons();
    /// Shows what the store holds, on every tab; what is selected stays.
    void ShowAll();
    void ShowGame();
    void ShowDates();
    void ShowPlayer();
    void Export();
    void More();

    LoadedScores scores_;
    QTabWidget* SSTab1 = nullptr;

    ListModel* general_ = nullptr;
    QTreeView* lvGeneral = nullptr;
    ChartView* chGen = nullptr;
    ChartView* chGen1 = nullptr;

    TableModel* games_ = nullptr;
    TextTable* lvGames = nullptr;
    QComboBox* cmGames = nullptr;
    ChartView* chGames = nullptr;
    ChartView* chGames1 = nullptr;

    TableModel* dates_ = nullptr;
    TextTable* lvDate = nullptr;
    QComboBox* imcDate = nullptr;
    ChartView* chDate = nullptr;
    ChartView* chDate1 = nullptr;

    TableModel* players_ = nullptr;
    TextTable* lvPlayer = nullptr;
    QComboBox* imcPlayer = nullptr;
    ChartView* chPlayer = nullptr;
    ChartView* chPlayer1 = nullptr;

    QPushButton* cmdClear = nullptr;
    QPushButton* cmdExport = nullptr;
    QPushButton* cmdMore = nullptr;
    QPushButton* cmdClose = nullptr;
};
