// The log: every stored game, filtered by player, game and date.
#pragma once

#include <QDialog>

#include "window/records/LoadedScores.h"

class LogModel;
class QComboBox;
class QPushButton;
class TextTable;

class frmLogStat : public QDialog {
    Q_OBJECT
public:
    explicit frmLogStat(QWidget* owner = nullptr);

private:
    void BuildControls();
    void FillLog();

    LoadedScores scores_;
    QComboBox* imcPlayer = nullptr;
    QComboBox* cmGames = nullptr;
    QComboBox* imcDate = nullptr;
    LogModel* log_ = nullptr;
    TextTable* lvLog = nullptr;
    QPushButton* cmdClose = nullptr;
};
