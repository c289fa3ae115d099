// The players: adds, renames, deletes and selects them.
#pragma once

#include <QDialog>

#include "engine/records/PlayerList.h"

class ListModel;
class QPushButton;
class QTreeView;

class frmPlayers : public QDialog {
    Q_OBJECT
public:
    explicit frmPlayers(QWidget* owner = nullptr);

private:
    void BuildControls();
    /// Shows the players of this moment and selects the current one.
    void UpdateLVPlayer();
    /// The same, but the selected player stays so, whatever the name is by now.
    void Renew();
    [[nodiscard]] ShownPlayer Selected() const;
    /// What can be done with the selected row.
    void EnableButtons();
    void Add();
    void Edit();
    void Delete();
    void Select();

    ListModel* players_ = nullptr;
    std::int64_t version_ = 0;  ///< of the list that is shown
    QTreeView* lvPlayer = nullptr;
    QPushButton* cmdAdd = nullptr;
    QPushButton* cmdEdit = nullptr;
    QPushButton* cmdDelete = nullptr;
    QPushButton* cmdSelect = nullptr;
    QPushButton* cmdCancel = nullptr;
};
