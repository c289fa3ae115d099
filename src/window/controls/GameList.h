// The list of a combo box of games.
#pragma once

#include <QListView>

#include "window/controls/TypeAhead.h"

class QComboBox;

/// Typing finds a game by the beginning of its name, in the open list and in the closed box; a blank inside
/// of a name belongs to it, where otherwise it opens the list.
class GameList : public QListView {
    Q_OBJECT
public:
    /// Becomes the list of that box.
    explicit GameList(QComboBox* box);

    void keyboardSearch(const QString& typed) override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    TypeAhead typeAhead_;
};
