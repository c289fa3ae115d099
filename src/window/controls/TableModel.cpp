// The cells of a table of texts.
#include "window/controls/TableModel.h"

#include <utility>

#include <QBrush>
#include <QFont>
#include <QGuiApplication>

#include "window/controls/mDialog.h"

TableModel::TableModel(std::vector<TableColumn> columns, QObject* parent)
    : QAbstractTableModel(parent), columns_(std::move(columns)) {}

void TableModel::SetRows(std::vector<std::vector<std::string>> rows) {
    beginResetModel();
    rows_ = std::move(rows);
    endResetModel();
}

void TableModel::SetCell(int row, int column, const std::string& text) {
    std::string& cell = rows_.at(static_cast<std::size_t>(row)).at(static_cast<std::size_t>(column));
    if (cell == text) return;
    cell = text;
    const QModelIndex changed = index(row, column);
    Q_EMIT dataChanged(changed, changed, {Qt::DisplayRole, Qt::ToolTipRole});
}

void TableModel::SetHeading(int column, const QString& heading) {
    columns_.at(static_cast<std::size_t>(column)).Heading = heading;
    Q_EMIT headerDataChanged(Qt::Horizontal, column, column);
}

void TableModel::Emphasise(int row, int column, const Emphasis& emphasis) {
    rules_.push_back({row, column, emphasis});
    Redraw();
}

void TableModel::ClearEmphasis() {
    rules_.clear();
    Redraw();
}

void TableModel::Redraw() {
    if (rowCount() == 0) return;
    Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1),
                       {Qt::FontRole, Qt::ForegroundRole});
}

int TableModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(rows_.size());
}

int TableModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(columns_.size());
}

QString TableModel::Text(int row, int column) const {
    return QString::fromStdString(
        rows_.at(static_cast<std::size_t>(row)).at(static_cast<std::size_t>(column)));
}

Emphasis TableModel::EmphasisOf(int row, int column) const {
    Emphasis look;
    for (const Rule& rule : rules_) {
        const bool fits =
            (rule.Row == Every || rule.Row == row) && (rule.Column == Every || rule.Column == column);
        if (fits) look = rule.Look;
    }
    return look;
}

QVariant TableModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid()) return {};
    switch (role) {
        case Qt::DisplayRole:
        case Qt::ToolTipRole:  // for what is longer than the column is wide
            return Text(index.row(), index.column());
        case Qt::DecorationRole:
            return index.column() == 0 && !icon_.isNull() ? QVariant(icon_) : QVariant();
        case Qt::TextAlignmentRole:
            return QVariant::fromValue(Qt::AlignVCenter | At(index.column()).Side);
        case Qt::FontRole: {
            if (!EmphasisOf(index.row(), index.column()).Bold) return {};
            QFont bold;  // all but the weight comes from the view
            bold.setBold(true);
            return bold;
        }
        case Qt::ForegroundRole: {
            const QColor color = EmphasisOf(index.row(), index.column()).Color;
            return color.isValid() ? QBrush(mDialog::Readable(color, QGuiApplication::palette()))
                                   : QVariant();
        }
        default:
            return {};
    }
}

QVariant TableModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || section < 0 || section >= columnCount()) return {};
    if (role == Qt::DisplayRole) return At(section).Heading;
    if (role == Qt::TextAlignmentRole) return QVariant::fromValue(Qt::AlignVCenter | At(section).Side);
    return {};
}
