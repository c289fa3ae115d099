// A tree of games: nodes, order, and finding a game by typing.
#include "window/controls/GameTree.h"

#include <algorithm>
#include <functional>

#include <QCollator>
#include <QHash>
#include <QList>
#include <QTreeWidgetItemIterator>

#include "window/look/ilsIcons.h"

namespace {

constexpr int TagRole = Qt::UserRole;

}  // namespace

GameTree::GameTree(const QString& name, QWidget* parent) : SeenView(parent) {
    setObjectName(name);
    setHeaderLabel(tr("Game"));  // a screen reader reads it though it is hidden
    setHeaderHidden(true);
    setUniformRowHeights(true);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
}

QTreeWidgetItem* GameTree::AddRoot(const QString& text) {
    auto* root = new QTreeWidgetItem(this, {text});
    root->setIcon(0, ilsIcons::Group());
    root->setExpanded(true);
    return root;
}

QTreeWidgetItem* GameTree::AddGame(QTreeWidgetItem* parent, const QString& text, int SiD) {
    static const QIcon icon = ilsIcons::Game();
    auto* node = new QTreeWidgetItem(parent, {text});
    node->setData(0, TagRole, SiD);
    node->setIcon(0, icon);
    return node;
}

QTreeWidgetItem* GameTree::AddGroup(QTreeWidgetItem* parent, const QString& text) {
    auto* node = new QTreeWidgetItem(parent, {text});
    node->setIcon(0, ilsIcons::Group());
    return node;
}

void GameTree::SortChildren(QTreeWidgetItem* root) {
    // The names are English, whatever the language of the desktop.
    QCollator collator(QLocale(QLocale::English, QLocale::UnitedStates));
    collator.setCaseSensitivity(Qt::CaseInsensitive);
    collator.setNumericMode(true);
    QList<QTreeWidgetItem*> children = root->takeChildren();
    std::stable_sort(children.begin(), children.end(), [&](QTreeWidgetItem* a, QTreeWidgetItem* b) {
        return collator.compare(a->text(0), b->text(0)) < 0;
    });
    root->addChildren(children);
}

int GameTree::ShowOnly(const std::optional<std::vector<int>>& SiDs) {
    QHash<int, QTreeWidgetItem*> seen;
    // Games stand below the root or below a group; whatever has games below it shows where one of them does.
    const std::function<bool(QTreeWidgetItem*)> show = [&](QTreeWidgetItem* item) {
        bool any = false;
        for (int i = 0; i < item->childCount(); ++i) any = show(item->child(i)) || any;
        if (const int SiD = Tag(item); SiD != 0) {
            any = !SiDs || std::find(SiDs->begin(), SiDs->end(), SiD) != SiDs->end();
            if (any) seen.insert(SiD, item);
        } else if (SiDs) {
            item->setExpanded(true);
        }
        item->setHidden(!any && item->parent());
        return any;
    };
    for (int i = 0; i < topLevelItemCount(); ++i) show(topLevelItem(i));
    if (SiDs && (!currentItem() || currentItem()->isHidden() || Tag(currentItem()) == 0)) {
        const auto first =
            std::find_if(SiDs->begin(), SiDs->end(), [&](int SiD) { return seen.contains(SiD); });
        setCurrentItem(first == SiDs->end() ? nullptr : seen.value(*first));
    }
    if (SiDs && currentItem()) scrollToItem(currentItem());
    return static_cast<int>(seen.size());
}

int GameTree::Tag(const QTreeWidgetItem* item) { return item ? item->data(0, TagRole).toInt() : 0; }

void GameTree::keyboardSearch(const QString& typed) {
    QList<QTreeWidgetItem*> nodes;
    QStringList names;
    int current = -1;
    for (QTreeWidgetItemIterator it(this); *it; ++it) {
        if (*it == currentItem()) current = static_cast<int>(nodes.size());
        nodes << *it;
        names << (Tag(*it) != 0 ? (*it)->text(0) : QString());
    }
    const int found = typeAhead_.Find(typed, names, current);
    if (found < 0) return;
    setCurrentItem(nodes[found]);
    scrollToItem(nodes[found]);
}

void GameTree::showEvent(QShowEvent* event) {
    QTreeWidget::showEvent(event);
    // Before it is shown the tree does not know how many rows it has room for.
    if (shown_ || !currentItem()) return;
    shown_ = true;
    scrollToItem(currentItem(), QAbstractItemView::PositionAtCenter);
}
