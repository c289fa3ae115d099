// The history dialog: all moves of the running game, with those that were undone.
#pragma once

#include <QDialog>

class HistoryModel;
class QPushButton;
class TextTable;

class frmHistory : public QDialog {
    Q_OBJECT
public:
    explicit frmHistory(QWidget* owner = nullptr);

protected:
    void showEvent(QShowEvent* event) override;

private:
    HistoryModel* rows_ = nullptr;
    TextTable* lvHistory = nullptr;
    QPushButton* cmdClose = nullptr;
};
