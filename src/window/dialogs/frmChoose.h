// The number dialog: starts a game with a number that the player types, so that a deal can be played
// again.
#pragma once

#include <cstdint>

#include <QDialog>

class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;

class frmChoose : public QDialog {
    Q_OBJECT
public:
    explicit frmChoose(QWidget* owner = nullptr);

private:
    void BuildControls();
    void Load();
    void Select();
    /// Tells, while one types, where the number will not be accepted.
    void ShowFault();

    /// Fills the list of players and selects the current one.
    void ShowPlayers();

    std::int64_t version_ = 0;  ///< of the list of players that is shown
    QComboBox* cmPlayer = nullptr;
    QComboBox* cmGames = nullptr;
    QLabel* lblName = nullptr;
    QLabel* lblRange = nullptr;
    QLineEdit* Text1 = nullptr;
    QLabel* lblFault_ = nullptr;
    QPushButton* cmdSelect = nullptr;
    QPushButton* cmdCancel = nullptr;
};
