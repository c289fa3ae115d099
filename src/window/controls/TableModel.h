// A table of texts, for views of many rows and columns.
#pragma once

#include <string>
#include <vector>

#include <QAbstractTableModel>
#include <QColor>
#include <QIcon>
#include <QStringList>

#include "engine/records/mSorting.h"

/// A column of a table.
struct TableColumn {
    QString Heading;
    Qt::AlignmentFlag Side = Qt::AlignLeft;  ///< of the texts and of the heading; numbers stand right
    QStringList Usual = {};  ///< texts that the column has room for also where no row shows them
    mSorting::Values Values = mSorting::Values::Text;
};

/// How a cell stands out.
struct Emphasis {
    bool Bold = false;
    QColor Color = {};  ///< as on a light list; an invalid one is that of all texts
    bool operator==(const Emphasis&) const = default;
};

/// The rows stay what they were given as, whatever order they are shown in: a row's number is that of the row
/// as it was given, except in what Qt's views ask for.
class TableModel : public QAbstractTableModel {
    Q_OBJECT
public:
    static constexpr int Every = -1;  ///< instead of a row or a column

    explicit TableModel(std::vector<TableColumn> columns, QObject* parent = nullptr);

    /// A row has a text for every column.
    void SetRows(std::vector<std::vector<std::string>> rows);
    /// Redraws the cell only where its text becomes another.
    void SetCell(int row, int column, const std::string& text);
    void SetHeading(int column, const QString& heading);
    /// Before the first text of every row.
    void SetIcon(const QIcon& icon) { icon_ = icon; }
    /// Holds until ClearEmphasis, whatever the rows are; of several the last one that fits a cell counts.
    void Emphasise(int row, int column, const Emphasis& emphasis);
    void ClearEmphasis();

    [[nodiscard]] const std::vector<TableColumn>& Columns() const { return columns_; }
    [[nodiscard]] QString CellText(int row, int column) const { return Text(row, column); }

    /// Shows the rows sorted by a column, and those that come later too; by column -1 as they were given.
    void sort(int column, Qt::SortOrder order = Qt::AscendingOrder) override;
    [[nodiscard]] int SortColumn() const { return sortColumn_; }
    [[nodiscard]] Qt::SortOrder SortOrder() const { return sortOrder_; }
    /// "Score, descending"; empty where the rows are shown as they were given.
    [[nodiscard]] QString SortText() const;
    /// The row that a view shows at a place, and the place of a row.
    [[nodiscard]] int GivenRow(int shown) const;
    [[nodiscard]] int ShownRow(int given) const;

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                      int role = Qt::DisplayRole) const override;

protected:
    // A table that makes its rows only as they are shown answers these and rowCount itself.
    [[nodiscard]] virtual QString Text(int row, int column) const;
    [[nodiscard]] virtual Emphasis EmphasisOf(int row, int column) const;
    /// What each row sorts by in a column, mSorting::None for rows without a value.
    [[nodiscard]] virtual std::vector<double> Keys(int column) const;
    /// Such a number for each text: by the user's language, whatever its letters' case, and numbers inside by
    /// their value.
    [[nodiscard]] static std::vector<double> Ranks(const std::vector<QString>& texts);
    // Around a change of all rows.
    void BeginRows() { beginResetModel(); }
    void EndRows();

private:
    struct Rule {
        int Row;
        int Column;
        Emphasis Look;
    };

    [[nodiscard]] const TableColumn& At(int column) const {
        return columns_.at(static_cast<std::size_t>(column));
    }
    void Redraw();
    [[nodiscard]] std::vector<int> Sorted() const;
    void Reorder();

    std::vector<TableColumn> columns_;
    int sortColumn_ = -1;
    Qt::SortOrder sortOrder_ = Qt::AscendingOrder;
    std::vector<int> order_;  // rows as given by the place that they are shown at; empty where it is the same
    std::vector<std::vector<std::string>> rows_;
    std::vector<Rule> rules_;
    QIcon icon_;
};
