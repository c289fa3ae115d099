// A list of texts in one column, for views that show many rows.
#pragma once

#include <string>
#include <vector>

#include "window/controls/TableModel.h"

class ListModel : public TableModel {
    Q_OBJECT
public:
    /// Every row has the same icon, which may be null, and stands at the same side.
    explicit ListModel(QString heading, const QIcon& icon = {}, Qt::AlignmentFlag side = Qt::AlignLeft);

    void SetTexts(const std::vector<std::string>& texts);
    /// A note for every row, empty for none: it stands at the right of the row, whose icon is then `icon`.
    void SetNotes(const std::vector<std::string>& notes, const QIcon& icon);
    /// Where the row of a text is shown; -1 where no row has it.
    [[nodiscard]] int Row(const QString& text) const;

    [[nodiscard]] QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;

private:
    std::vector<QString> notes_;
    QIcon noteIcon_;
};

class ListCommands;
class QTreeView;

namespace mList {

/// A view of one column with that object name, as a list: no branches, no editing, rows of one height. An
/// empty heading shows none.
[[nodiscard]] QTreeView* MakeView(const char* name, ListModel* model);
/// What a view that is made here offers beside its rows.
[[nodiscard]] ListCommands* Commands(const QTreeView* view);
/// The text of the selected row; empty where none is selected.
[[nodiscard]] QString Selected(const QTreeView* view);
/// Selects a row and brings it into sight; -1 selects none.
void Select(QTreeView* view, int row);

}  // namespace mList
