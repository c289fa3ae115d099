// The selection dialog: picks a game by name from three lists and starts it under a random number.
#pragma once

#include <cstdint>

#include <QDialog>
#include <QString>

#include "engine/commands/mFind.h"

class GameSearch;
class GameTree;
class QComboBox;
class QLabel;
class QPushButton;
class QTabWidget;

class frmSelect : public QDialog {
    Q_OBJECT
public:
    explicit frmSelect(QWidget* owner = nullptr);

private:
    void BuildControls();
    [[nodiscard]] QWidget* BuildPreview();
    void LoadTrees();
    [[nodiscard]] GameTree* CurrentTree() const;
    /// The text of the selected node of the current tab.
    [[nodiscard]] QString SelectedText() const;
    /// Shows the selected game; a group or a root leaves the last game shown.
    void ShowSelection();
    /// Leaves in the lists what the search field asks for.
    void ShowFound();
    void Play();

    /// Fills the list of players and selects the current one.
    void ShowPlayers();

    mFind::Search search_;
    GameSearch* search = nullptr;
    std::int64_t version_ = 0;  ///< of the list of players that is shown
    QTabWidget* SSTab1 = nullptr;
    GameTree* tvwAll = nullptr;
    GameTree* tvwGroups = nullptr;
    GameTree* tvwOrg = nullptr;
    QLabel* lblName = nullptr;
    QLabel* lblFacts = nullptr;
    QLabel* imgPick = nullptr;
    QComboBox* imcPlayer = nullptr;
    QPushButton* cmdPlay = nullptr;
    QPushButton* cmdCancel = nullptr;
    QPushButton* cmdRules = nullptr;
    QPushButton* cmdStat = nullptr;
};
