// The rows of the history list for Qt's views. A game may have tens of thousands of moves: a view
// asks only for the rows that it shows.
#pragma once

#include <vector>

#include "engine/state/cTrans.h"
#include "window/controls/TableModel.h"

class HistoryModel : public TableModel {
    Q_OBJECT
public:
    explicit HistoryModel(std::vector<HistoryRow> rows);

    /// The row of the last move that stands, -1 where all are undone or there is none.
    [[nodiscard]] int CurrentRow() const { return currentRow_; }

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;

protected:
    [[nodiscard]] QString Text(int row, int column) const override;
    [[nodiscard]] Emphasis EmphasisOf(int row, int column) const override;

private:
    std::vector<HistoryRow> rows_;
    int currentRow_ = -1;
};
