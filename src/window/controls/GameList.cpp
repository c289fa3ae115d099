// Typing in a combo box of games.
#include "window/controls/GameList.h"

#include <QAbstractItemModel>
#include <QComboBox>
#include <QKeyEvent>

GameList::GameList(QComboBox* box) {
    box->setView(this);  // now the box's own
    // Before the box's own filter would take the blank for a choice in the open list.
    box->installEventFilter(this);
    installEventFilter(this);
}

void GameList::keyboardSearch(const QString& typed) {
    QStringList names;
    for (int row = 0; row < model()->rowCount(); ++row) names << model()->index(row, 0).data().toString();
    const int found = typeAhead_.Find(typed, names, currentIndex().row());
    if (found >= 0) setCurrentIndex(model()->index(found, 0));
}

bool GameList::eventFilter(QObject* watched, QEvent* event) {
    const bool isBlank =
        event->type() == QEvent::KeyPress && static_cast<QKeyEvent*>(event)->key() == Qt::Key_Space;
    if (!isBlank || !typeAhead_.IsTyping()) return QListView::eventFilter(watched, event);
    auto* box = qobject_cast<QComboBox*>(watched);
    keyboardSearch(QStringLiteral(" "));
    if (box) box->setCurrentIndex(currentIndex().row());
    return true;
}
