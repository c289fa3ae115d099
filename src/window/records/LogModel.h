// The rows of the log: a million games are no more than their places in the store, and a row gets its
// texts when it comes into sight.
#pragma once

#include <string>
#include <vector>

#include "engine/records/RegionalDates.h"
#include "window/controls/TableModel.h"

class LogModel : public TableModel {
    Q_OBJECT
public:
    LogModel();

    /// The records to show, as cScore::Find answers them. The store must stay loaded.
    void SetRecords(std::vector<int> indexes);

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;

protected:
    [[nodiscard]] QString Text(int row, int column) const override;
    [[nodiscard]] std::vector<double> Keys(int column) const override;

private:
    std::vector<int> indexes_;
    RegionalDates dates_;
    // A view asks for one row's cells after another.
    mutable int madeRow_ = -1;
    mutable std::vector<std::string> made_;
};
