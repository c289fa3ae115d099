// The session dialog: the games that ended in this run and, live, the running one.
#pragma once

#include <array>

#include <QDialog>
#include <QTimer>

class ChartView;
class QLabel;
class QPushButton;
class QTabWidget;
class TableModel;
class TextTable;

class frmSesStat : public QDialog {
    Q_OBJECT
public:
    explicit frmSesStat(QWidget* owner = nullptr);

protected:
    void showEvent(QShowEvent* event) override;

private:
    [[nodiscard]] QWidget* BuildSummary();
    [[nodiscard]] QWidget* BuildDetails();
    void MarkRunning();
    /// Brings the running game into sight on the tab that is shown.
    void ShowRunning();
    void Tick();

    int runningRow_ = -1;  // of the running game in both tables; -1 where none runs
    QTabWidget* SSTab1 = nullptr;
    TableModel* session_ = nullptr;
    TextTable* lvSession = nullptr;
    ChartView* chSummary = nullptr;
    std::array<QLabel*, 7> sessionLabels_{};  // of the frame "This Session"
    std::array<QLabel*, 7> gameLabels_{};     // of the frame "This Game"
    TableModel* details_ = nullptr;
    TextTable* lvSesChart = nullptr;
    ChartView* chChart = nullptr;
    QPushButton* cmdRefresh = nullptr;
    QPushButton* cmdClose = nullptr;
    QTimer Timer1{this};
};
