// The rows of a table of careers, which sort by what their cells hold, not by how it is shown.
#pragma once

#include "engine/records/mCareerTables.h"
#include "window/controls/TableModel.h"

class CareerModel : public TableModel {
    Q_OBJECT
public:
    explicit CareerModel(mCareerTables::Table table);

    /// A table with as many columns, of which only the first may have another heading.
    void SetTable(mCareerTables::Table table);

protected:
    [[nodiscard]] std::vector<double> Keys(int column) const override;

private:
    mCareerTables::Table table_;
};
