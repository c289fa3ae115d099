// A table of texts, for views of many rows and columns.
#pragma once

#include <string>
#include <vector>

#include <QAbstractTableModel>
#include <QColor>
#include <QIcon>
#include <QStringList>

/// A column of a table.
struct TableColumn {
    QString Heading;
    Qt::AlignmentFlag Side = Qt::AlignLeft;  ///< of the texts and of the heading; numbers stand right
    QStringList Usual = {};  ///< texts that the column has room for also where no row shows them
};

/// How a cell stands out.
struct Emphasis {
    bool Bold = false;
    QColor Color = {};  ///< as on a light list; an invalid one is that of all texts
    bool operator==(const Emphasis&) const = default;
};

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

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                      int role = Qt::DisplayRole) const override;

protected:
    // A table that makes its rows only as they are shown answers these and rowCount itself.
    [[nodiscard]] virtual QString Text(int row, int column) const;
    [[nodiscard]] virtual Emphasis EmphasisOf(int row, int column) const;

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

    std::vector<TableColumn> columns_;
    std::vector<std::vector<std::string>> rows_;
    std::vector<Rule> rules_;
    QIcon icon_;
};
