// What every list of records offers beside its rows: sorting, copying and, where rows are deals, playing
// one again.
#pragma once

#include <functional>
#include <optional>
#include <string>

#include <QList>
#include <QObject>

#include "engine/records/tScore.h"

class QAbstractItemView;
class QAction;
class QHeaderView;
class QMenu;
class TableModel;

/// A click on a heading sorts by it, a second one the other way round, a third one shows the rows as they
/// came. The same and more stands in a menu, for the right mouse button and the keys that open menus.
class ListCommands : public QObject {
    Q_OBJECT
public:
    /// Belongs to the view. Lists without headings only copy.
    ListCommands(QAbstractItemView* view, QHeaderView* headings, TableModel* model);

    /// The deal that a row is, by the row's number as it was given; none where it is no deal.
    using DealOf = std::function<std::optional<tFav>(int row)>;
    enum class Offer { Play, PlayAndAdd };  ///< a list of favorites adds none
    void OfferDeals(DealOf dealOf, Offer offer = Offer::PlayAndAdd);

    /// Another entry at the end of the menu.
    void AddToMenu(QAction* action) { more_.append(action); }

    /// The selected rows as they are shown, under their headings: columns apart by tabs, rows by line ends.
    [[nodiscard]] QString SelectedText() const;

    /// How the rows are sorted, for RestoreSorting: empty where they are shown as they came.
    [[nodiscard]] std::string Sorting() const;
    /// Anything else than an answer of Sorting changes nothing.
    void RestoreSorting(const std::string& sorting);

private:
    void Copy() const;
    void Play();
    void AddFavourite();
    void Sort(int column, Qt::SortOrder order);
    void ShowMenu(const QPoint& place);
    void AddSorting(QMenu* menu);
    [[nodiscard]] bool HasHeadings() const;
    /// The deal of the row that is selected alone.
    [[nodiscard]] std::optional<tFav> SelectedDeal() const;

    QAbstractItemView* view_;
    QHeaderView* headings_;
    TableModel* model_;
    DealOf dealOf_;
    QAction* copy_;
    QAction* play_ = nullptr;
    QAction* add_ = nullptr;
    QList<QAction*> more_;
};
