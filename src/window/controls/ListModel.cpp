// The list of texts and its view.
#include "window/controls/ListModel.h"

#include <utility>

#include <QHeaderView>
#include <QTreeView>

#include "window/controls/ListCommands.h"
#include "window/controls/NotedDelegate.h"
#include "window/controls/SeenView.h"
#include "window/controls/mDialog.h"

namespace {

/// Rows with as much air as those of a table.
class Rows : public NotedDelegate {
public:
    explicit Rows(QTreeView* list) : NotedDelegate(list), list_(list) {}

    [[nodiscard]] QString displayText(const QVariant& value, const QLocale& locale) const override {
        return mDialog::Padded(QStyledItemDelegate::displayText(value, locale));
    }
    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem& option,
                                 const QModelIndex& index) const override {
        return {NotedDelegate::sizeHint(option, index).width(), mDialog::RowHeight(list_)};
    }

private:
    QTreeView* list_;
};

}  // namespace

ListModel::ListModel(QString heading, const QIcon& icon, Qt::AlignmentFlag side)
    : TableModel({{.Heading = std::move(heading),
                   .Side = side,
                   .Values = side == Qt::AlignRight ? mSorting::Values::Number : mSorting::Values::Text}}) {
    SetIcon(icon);
}

void ListModel::SetTexts(const std::vector<std::string>& texts) {
    std::vector<std::vector<std::string>> rows;
    rows.reserve(texts.size());
    for (const std::string& text : texts) rows.push_back({text});
    SetRows(std::move(rows));
}

void ListModel::SetNotes(const std::vector<std::string>& notes, const QIcon& icon) {
    notes_.clear();
    for (const std::string& note : notes) notes_.push_back(QString::fromStdString(note));
    noteIcon_ = icon;
    if (rowCount() > 0) Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, 0));
}

QVariant ListModel::data(const QModelIndex& index, int role) const {
    const auto row = static_cast<std::size_t>(index.isValid() ? GivenRow(index.row()) : 0);
    if (index.isValid() && row < notes_.size() && !notes_[row].isEmpty()) {
        if (role == NotedDelegate::NoteRole) return notes_[row];
        if (role == Qt::DecorationRole) return noteIcon_;
        if (role == Qt::AccessibleTextRole)
            return NotedDelegate::Spoken(CellText(static_cast<int>(row), 0), notes_[row]);
    }
    return TableModel::data(index, role);
}

int ListModel::Row(const QString& text) const {
    for (int row = 0; row < rowCount(); ++row) {
        if (Text(GivenRow(row), 0) == text) return row;
    }
    return -1;
}

namespace mList {

QTreeView* MakeView(const char* name, ListModel* model) {
    auto* view = new SeenView<QTreeView>;
    view->setObjectName(QLatin1String(name));
    view->setRootIsDecorated(false);
    view->setItemsExpandable(false);
    view->setUniformRowHeights(true);
    view->setEditTriggers(QAbstractItemView::NoEditTriggers);
    view->setItemDelegate(new Rows(view));
    view->setModel(model);
    model->setParent(view);
    view->setHeaderHidden(model->headerData(0, Qt::Horizontal, Qt::DisplayRole).toString().isEmpty());
    new ListCommands(view, view->header(), model);
    return view;
}

ListCommands* Commands(const QTreeView* view) { return view->findChild<ListCommands*>(); }

QString Selected(const QTreeView* view) {
    const QModelIndexList rows = view->selectionModel()->selectedRows();
    return rows.isEmpty() ? QString() : rows.constFirst().data().toString();
}

void Select(QTreeView* view, int row) {
    const QModelIndex index = view->model()->index(row, 0);
    if (!index.isValid()) {
        view->clearSelection();
        return;
    }
    view->setCurrentIndex(index);
    view->scrollTo(index);
}

}  // namespace mList
