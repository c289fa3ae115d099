// A tree of games under one root, as the selection dialog shows three of them.
#pragma once

#include <optional>
#include <vector>

#include <QString>
#include <QTreeWidget>

#include "window/controls/SeenView.h"
#include "window/controls/TypeAhead.h"

/// Typing finds a game by the beginning of its name, also inside a group that is closed.
class GameTree : public SeenView<QTreeWidget> {
    Q_OBJECT
public:
    explicit GameTree(const QString& name, QWidget* parent = nullptr);

    QTreeWidgetItem* AddRoot(const QString& text);
    /// A game node: its Tag is the game's SiD.
    static QTreeWidgetItem* AddGame(QTreeWidgetItem* parent, const QString& text, int SiD);
    static QTreeWidgetItem* AddGroup(QTreeWidgetItem* parent, const QString& text);
    /// Sorts the games under a root by name, ignoring case.
    static void SortChildren(QTreeWidgetItem* root);

    /// Hides all games but these, and groups without any; shows all where none are named. The first game of
    /// `SiDs` becomes current where the current one went out of sight. Answers how many are shown.
    int ShowOnly(const std::optional<std::vector<int>>& SiDs);

    /// The SiD of a game node, 0 for a root, a group or no node.
    [[nodiscard]] static int Tag(const QTreeWidgetItem* item);

    void keyboardSearch(const QString& typed) override;

protected:
    void showEvent(QShowEvent* event) override;

private:
    TypeAhead typeAhead_;
    bool shown_ = false;
};
