// The favourites, game by game, and the button that clears them all.
#pragma once

#include <QDialog>
#include <QTimer>

class ListModel;
class QPushButton;
class QTreeView;

class frmOrgFav : public QDialog {
    Q_OBJECT
public:
    explicit frmOrgFav(QWidget* owner = nullptr);

protected:
    void showEvent(QShowEvent* event) override;

private:
    void BuildControls();
    void Load();
    /// Shows which games have favorites, and how many.
    void MarkGames();
    void UpdateLVFav();
    void Clear();
    void Tick();

    ListModel* games_ = nullptr;
    ListModel* favourites_ = nullptr;
    QTreeView* lvGames = nullptr;
    QTreeView* lvFav = nullptr;
    QPushButton* cmdClear = nullptr;
    QPushButton* cmdClose = nullptr;
    QTimer Timer1{this};
};
