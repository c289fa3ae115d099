// The cells of a table of texts.
#include "window/controls/TableModel.h"

#include <algorithm>
#include <numeric>
#include <utility>

#include <QBrush>
#include <QCollator>
#include <QFont>
#include <QGuiApplication>

#include "window/controls/mDialog.h"

TableModel::TableModel(std::vector<TableColumn> columns, QObject* parent)
    : QAbstractTableModel(parent), columns_(std::move(columns)) {}

void TableModel::SetRows(std::vector<std::vector<std::string>> rows) {
    BeginRows();
    rows_ = std::move(rows);
    EndRows();
}

void TableModel::SetCell(int row, int column, const std::string& text) {
    std::string& cell = rows_.at(static_cast<std::size_t>(row)).at(static_cast<std::size_t>(column));
    if (cell == text) return;
    cell = text;
    const QModelIndex changed = index(ShownRow(row), column);
    Q_EMIT dataChanged(changed, changed, {Qt::DisplayRole, Qt::ToolTipRole});
    if (column == sortColumn_) Reorder();
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

void TableModel::EndRows() {
    order_ = Sorted();
    endResetModel();
}

int TableModel::GivenRow(int shown) const {
    return order_.empty() ? shown : order_.at(static_cast<std::size_t>(shown));
}

int TableModel::ShownRow(int given) const {
    if (order_.empty()) return given;
    const auto place = std::find(order_.begin(), order_.end(), given);
    return place == order_.end() ? -1 : static_cast<int>(place - order_.begin());
}

void TableModel::sort(int column, Qt::SortOrder order) {
    sortColumn_ = column < columnCount() ? column : -1;
    sortOrder_ = order;
    Reorder();
}

QString TableModel::SortText() const {
    if (sortColumn_ < 0) return {};
    const QString way = sortOrder_ == Qt::DescendingOrder ? tr("descending") : tr("ascending");
    const QString& heading = At(sortColumn_).Heading;
    return tr("%1, %2").arg(heading.isEmpty() ? tr("Number") : heading, way);
}

std::vector<int> TableModel::Sorted() const {
    if (sortColumn_ < 0) return {};
    return mSorting::Order(Keys(sortColumn_), sortOrder_ == Qt::DescendingOrder);
}

void TableModel::Reorder() {
    std::vector<int> order = Sorted();
    if (order == order_) return;
    Q_EMIT layoutAboutToBeChanged({}, VerticalSortHint);
    // What is selected stays so, wherever it goes.
    const QModelIndexList before = persistentIndexList();
    std::vector<int> places(order.size());
    for (std::size_t place = 0; place < order.size(); ++place) {
        places[static_cast<std::size_t>(order[place])] = static_cast<int>(place);
    }
    QModelIndexList after;
    after.reserve(before.size());
    for (const QModelIndex& cell : before) {
        const int row = GivenRow(cell.row());
        after.append(index(places.empty() ? row : places.at(static_cast<std::size_t>(row)), cell.column()));
    }
    order_ = std::move(order);
    changePersistentIndexList(before, after);
    Q_EMIT layoutChanged({}, VerticalSortHint);
}

std::vector<double> TableModel::Keys(int column) const {
    const mSorting::Values values = At(column).Values;
    std::vector<double> keys(static_cast<std::size_t>(rowCount()));
    if (values == mSorting::Values::Given) {
        std::iota(keys.begin(), keys.end(), 0.0);
    } else if (values == mSorting::Values::Text) {
        std::vector<QString> texts;
        texts.reserve(keys.size());
        for (int row = 0; row < rowCount(); ++row) texts.push_back(Text(row, column));
        keys = Ranks(texts);
    } else {
        const RegionalDates dates = RegionalDates::Current();
        for (std::size_t row = 0; row < keys.size(); ++row) {
            keys[row] = mSorting::Key(values, Text(static_cast<int>(row), column).toStdString(), dates);
        }
    }
    return keys;
}

std::vector<double> TableModel::Ranks(const std::vector<QString>& texts) {
    // The language "C" knows no letters beyond the English ones, nor numbers.
    const QLocale user;
    QCollator collator(user.language() == QLocale::C ? QLocale(QLocale::English) : user);
    collator.setNumericMode(true);
    collator.setCaseSensitivity(Qt::CaseInsensitive);
    // Of many rows most have the same few texts.
    std::vector<QString> names = texts;
    std::sort(names.begin(), names.end());
    names.erase(std::unique(names.begin(), names.end()), names.end());
    std::vector<QCollatorSortKey> keys;
    keys.reserve(names.size());
    for (const QString& name : names) keys.push_back(collator.sortKey(name));
    std::vector<std::size_t> sorted(names.size());
    std::iota(sorted.begin(), sorted.end(), std::size_t{0});
    std::stable_sort(sorted.begin(), sorted.end(),
                     [&keys](std::size_t a, std::size_t b) { return keys[a].compare(keys[b]) < 0; });
    std::vector<double> rankOf(names.size());
    for (std::size_t i = 0; i < sorted.size(); ++i) {
        const bool same = i > 0 && keys[sorted[i]].compare(keys[sorted[i - 1]]) == 0;
        rankOf[sorted[i]] = same ? rankOf[sorted[i - 1]] : static_cast<double>(i);
    }
    std::vector<double> ranks;
    ranks.reserve(texts.size());
    for (const QString& text : texts) {
        const auto name = std::lower_bound(names.begin(), names.end(), text);
        ranks.push_back(rankOf[static_cast<std::size_t>(name - names.begin())]);
    }
    return ranks;
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
    const int row = GivenRow(index.row());
    switch (role) {
        case Qt::DisplayRole:
        case Qt::ToolTipRole:  // for what is longer than the column is wide
            return Text(row, index.column());
        case Qt::DecorationRole:
            return index.column() == 0 && !icon_.isNull() ? QVariant(icon_) : QVariant();
        case Qt::TextAlignmentRole:
            return QVariant::fromValue(Qt::AlignVCenter | At(index.column()).Side);
        case Qt::FontRole: {
            if (!EmphasisOf(row, index.column()).Bold) return {};
            QFont bold;  // all but the weight comes from the view
            bold.setBold(true);
            return bold;
        }
        case Qt::ForegroundRole: {
            const QColor color = EmphasisOf(row, index.column()).Color;
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
    if (role == Qt::AccessibleTextRole && section == sortColumn_) return tr("%1, sorted").arg(SortText());
    if (role == Qt::TextAlignmentRole) return QVariant::fromValue(Qt::AlignVCenter | At(section).Side);
    return {};
}
