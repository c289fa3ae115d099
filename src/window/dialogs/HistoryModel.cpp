// The rows of the history list for Qt's views.
#include "window/dialogs/HistoryModel.h"

#include <utility>

#include "window/look/ilsIcons.h"

namespace {

std::vector<TableColumn> HistoryColumns() {
    const QStringList place{HistoryModel::tr("Foundation (Pile 18, Card 104)")};
    return {
        {.Heading = {},
         .Side = Qt::AlignRight,
         .Usual = {QStringLiteral("00000")},
         .Values = mSorting::Values::Number},
        {.Heading = HistoryModel::tr("Source"), .Usual = place},
        {.Heading = HistoryModel::tr("Destination"), .Usual = place},
        {.Heading = HistoryModel::tr("Cards"), .Side = Qt::AlignRight, .Values = mSorting::Values::Number}};
}

}  // namespace

HistoryModel::HistoryModel(std::vector<HistoryRow> rows)
    : TableModel(HistoryColumns()), rows_(std::move(rows)) {
    SetIcon(ilsIcons::Game());
    for (std::size_t i = 0; i < rows_.size(); ++i) {
        if (rows_[i].Style == HistoryStyle::Current) currentRow_ = static_cast<int>(i);
    }
}

int HistoryModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(rows_.size());
}

QVariant HistoryModel::data(const QModelIndex& index, int role) const {
    if (role != Qt::AccessibleTextRole || !index.isValid() || index.column() != 0)
        return TableModel::data(index, role);
    // What the colours show.
    const int row = GivenRow(index.row());
    const QString number = Text(row, 0);
    switch (rows_.at(static_cast<std::size_t>(row)).Style) {
        case HistoryStyle::Current:
            return tr("%1, the last move").arg(number);
        case HistoryStyle::Undone:
            return tr("%1, undone").arg(number);
        case HistoryStyle::Plain:
            break;
    }
    return number;
}

QString HistoryModel::Text(int row, int column) const {
    return QString::fromStdString(
        rows_.at(static_cast<std::size_t>(row)).Columns.at(static_cast<std::size_t>(column)));
}

Emphasis HistoryModel::EmphasisOf(int row, int) const {
    switch (rows_.at(static_cast<std::size_t>(row)).Style) {
        case HistoryStyle::Current:
            return {.Bold = true, .Color = QColor(128, 0, 0)};
        case HistoryStyle::Undone:
            return {.Color = QColor(128, 128, 0)};
        case HistoryStyle::Plain:
            break;
    }
    return {};
}
