// The list of a combo box of games.
#pragma once

#include <QListView>

#include "window/controls/TypeAhead.h"

/// Typing finds a game by the beginning of its name, in the open list and in the closed box.
class GameList : public QListView {
public:
    using QListView::QListView;

    void keyboardSearch(const QString& typed) override;

private:
    TypeAhead typeAhead_;
};
