// The view of a table of texts.
#pragma once

#include <string>
#include <vector>

#include <QTableView>

#include "window/controls/SeenView.h"

class ListCommands;
class QAction;
class TableModel;

/// Rows of one height that are selected as a whole, any number of them, under headings that sort. Columns
/// have room for their heading and texts in any font, and share what the view is wider than that. A million
/// rows cost no more than those in sight.
class TextTable : public SeenView<QTableView> {
    Q_OBJECT
public:
    /// Takes the model over.
    TextTable(const char* name, TableModel* model);

    /// Selects the row shown at that place and brings it into sight.
    void Select(int row);
    [[nodiscard]] ListCommands* Commands() const { return commands_; }

    /// The widths that the player gave the columns, for RestoreWidths; empty while they are the table's own.
    [[nodiscard]] std::string Widths() const;
    /// Anything else than an answer of Widths, for as many columns, changes nothing.
    void RestoreWidths(const std::string& widths);

    /// As wide as all columns need.
    [[nodiscard]] QSize sizeHint() const override;
    void reset() override;
    /// Typing finds a row in tables that are read, not in those that are too long to be searched at once.
    void keyboardSearch(const QString& search) override;

protected:
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;
    QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;

private:
    void SizeRows();
    void MeasureColumns();
    void SpreadColumns();
    void ShareWidth();
    /// Gives the columns widths, with none their own.
    void Choose(std::vector<int> widths);

    TableModel* rows_;
    ListCommands* commands_ = nullptr;
    std::vector<int> needed_;  // pixels, a column each
    std::vector<int> chosen_;  // by the player, in place of those; empty where nothing was
    bool spreading_ = false;   // it is the table that changes widths
    QAction* ownWidths_ = nullptr;
};
