// Typing in a combo box of games.
#include "window/controls/GameList.h"

#include <QAbstractItemModel>

void GameList::keyboardSearch(const QString& typed) {
    QStringList names;
    for (int row = 0; row < model()->rowCount(); ++row) names << model()->index(row, 0).data().toString();
    const int found = typeAhead_.Find(typed, names, currentIndex().row());
    if (found >= 0) setCurrentIndex(model()->index(found, 0));
}
