// Plays one of the favourite deals.
#pragma once

#include <QDialog>

class ListModel;
class QComboBox;
class QPushButton;
class QTreeView;

class frmPlayFav : public QDialog {
    Q_OBJECT
public:
    explicit frmPlayFav(QWidget* owner = nullptr);

private:
    void BuildControls();
    void Load();
    /// Shows which games have favorites, and how many.
    void MarkGames();
    void UpdateLVFav();
    void Play();

    ListModel* favourites_ = nullptr;
    QComboBox* cmGames = nullptr;
    QTreeView* lvFav = nullptr;
    QPushButton* cmdPlay = nullptr;
    QPushButton* cmdCancel = nullptr;
};
