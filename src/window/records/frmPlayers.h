// The players: adds, renames, deletes and selects them.
#pragma once

#include <QDialog>

class ListModel;
class QPushButton;
class QTreeView;

class frmPlayers : public QDialog {
    Q_OBJECT
public:
    explicit frmPlayers(QWidget* owner = nullptr);

private:
    void BuildControls();
    void UpdateLVPlayer();
    /// What can be done with the selected row.
    void EnableButtons();
    void Add();
    void Edit();
    void Delete();
    void Select();

    ListModel* players_ = nullptr;
    QTreeView* lvPlayer = nullptr;
    QPushButton* cmdAdd = nullptr;
    QPushButton* cmdEdit = nullptr;
    QPushButton* cmdDelete = nullptr;
    QPushButton* cmdSelect = nullptr;
    QPushButton* cmdCancel = nullptr;
};
