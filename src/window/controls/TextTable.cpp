// Look and column widths of a table of texts.
#include "window/controls/TextTable.h"

#include <algorithm>
#include <numeric>
#include <utility>

#include <QAction>
#include <QEvent>
#include <QHeaderView>
#include <QPainter>
#include <QScrollBar>
#include <QStyledItemDelegate>

#include "window/controls/ListCommands.h"
#include "window/controls/TableModel.h"
#include "window/controls/mDialog.h"

namespace {

// A longer table is measured by its first rows and by the texts that its columns name as usual.
constexpr int MeasuredRows = 500;

class Headings : public QHeaderView {
public:
    explicit Headings(QWidget* parent) : QHeaderView(Qt::Horizontal, parent) {}

protected:
    void initStyleOptionForIndex(QStyleOptionHeader* option, int section) const override {
        QHeaderView::initStyleOptionForIndex(option, section);
        option->text = mDialog::Padded(option->text);
    }
};

class Cells : public QStyledItemDelegate {
public:
    explicit Cells(QTableView* table) : QStyledItemDelegate(table), table_(table) {}

    [[nodiscard]] QString displayText(const QVariant& value, const QLocale& locale) const override {
        return mDialog::Padded(QStyledItemDelegate::displayText(value, locale));
    }

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override {
        QStyleOptionViewItem cell = option;
        cell.state.setFlag(QStyle::State_HasFocus, false);
        QStyledItemDelegate::paint(painter, cell, index);
        if (!table_->hasFocus() || index.row() != table_->currentIndex().row()) return;
        // The focus frame stands around the row: each cell draws its part.
        QStyleOptionFocusRect row;
        row.initFrom(table_->viewport());
        row.rect = option.rect;
        row.rect.setLeft(-table_->horizontalHeader()->offset());
        row.rect.setWidth(table_->horizontalHeader()->length());
        row.state |= QStyle::State_KeyboardFocusChange;
        painter->save();
        painter->setClipRect(option.rect);
        table_->style()->drawPrimitive(QStyle::PE_FrameFocusRect, &row, painter, table_);
        painter->restore();
    }

private:
    QTableView* table_;
};

}  // namespace

TextTable::TextTable(const char* name, TableModel* model) : rows_(model) {
    setObjectName(QLatin1String(name));
    model->setParent(this);
    setShowGrid(false);
    setWordWrap(false);
    setCornerButtonEnabled(false);
    setTabKeyNavigation(false);  // Tab leaves the table
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setSelectionBehavior(QAbstractItemView::SelectRows);
    setSelectionMode(QAbstractItemView::ExtendedSelection);
    verticalHeader()->hide();
    verticalHeader()->setMinimumSectionSize(1);
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    setHorizontalHeader(new Headings(this));
    setItemDelegate(new Cells(this));
    horizontalHeader()->setHighlightSections(false);
    SizeRows();
    setModel(model);
    commands_ = new ListCommands(this, horizontalHeader(), model);
    ownWidths_ = new QAction(tr("Usual &Widths"), this);
    ownWidths_->setObjectName(QStringLiteral("mnuUsualWidths"));
    ownWidths_->setEnabled(false);
    connect(ownWidths_, &QAction::triggered, this, [this] { Choose({}); });
    commands_->AddToMenu(ownWidths_);
    connect(horizontalHeader(), &QHeaderView::sectionResized, this, [this] {
        if (spreading_) return;
        std::vector<int> widths;
        for (int column = 0; column < rows_->columnCount(); ++column) widths.push_back(columnWidth(column));
        Choose(std::move(widths));
    });
    connect(model, &TableModel::headerDataChanged, this, [this] {
        MeasureColumns();
        SpreadColumns();
    });
}

QSize TextTable::sizeHint() const {
    const int columns = std::reduce(needed_.begin(), needed_.end());
    return {columns + 2 * frameWidth() + verticalScrollBar()->sizeHint().width(),
            QTableView::sizeHint().height()};
}

void TextTable::Select(int row) {
    const QModelIndex index = rows_->index(row, 0);
    if (!index.isValid()) return;
    setCurrentIndex(index);
    scrollTo(index);
}

void TextTable::reset() {
    QTableView::reset();
    scrollToTop();
    MeasureColumns();
    SpreadColumns();
}

void TextTable::keyboardSearch(const QString& search) {
    constexpr int SearchedRows = 20000;
    if (rows_->rowCount() <= SearchedRows) QTableView::keyboardSearch(search);
}

void TextTable::resizeEvent(QResizeEvent* event) {
    QTableView::resizeEvent(event);
    SpreadColumns();
}

void TextTable::changeEvent(QEvent* event) {
    QTableView::changeEvent(event);
    if (event->type() != QEvent::FontChange && event->type() != QEvent::StyleChange) return;
    needed_.clear();
    SizeRows();
    MeasureColumns();
    SpreadColumns();
}

QModelIndex TextTable::moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) {
    // As in a list: to the first and the last row, not to the ends of the present one.
    const int column = std::max(0, currentIndex().column());
    if (action == MoveHome) return rows_->index(0, column);
    if (action == MoveEnd) return rows_->index(rows_->rowCount() - 1, column);
    return QTableView::moveCursor(action, modifiers);
}

void TextTable::SizeRows() { verticalHeader()->setDefaultSectionSize(mDialog::RowHeight(this)); }

void TextTable::MeasureColumns() {
    if (model() != rows_) return;
    QFont bold = font();
    bold.setBold(true);  // any cell may stand out
    const QFontMetrics metrics(bold);
    const int margin = 2 * (style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, this) + 1);
    const int icon = style()->pixelMetric(QStyle::PM_SmallIconSize, nullptr, this);
    const int rows = std::min(rows_->rowCount(), MeasuredRows);
    needed_.resize(rows_->Columns().size());
    for (int column = 0; column < rows_->columnCount(); ++column) {
        const auto at = static_cast<std::size_t>(column);
        int text = 0;
        for (const QString& usual : rows_->Columns()[at].Usual) {
            text = std::max(text, metrics.horizontalAdvance(mDialog::Padded(usual)));
        }
        for (int row = 0; row < rows; ++row) {
            text = std::max(text, metrics.horizontalAdvance(
                                      mDialog::Padded(rows_->index(row, column).data().toString())));
        }
        const bool hasIcon = rows > 0 && rows_->index(0, column).data(Qt::DecorationRole).isValid();
        const int heading = horizontalHeader()->sectionSizeHint(column) +
                            metrics.horizontalAdvance(mDialog::Padded(QString()));
        // Only wider, so that columns do not jump from one selection to the next.
        needed_[at] = std::max({needed_[at], text + margin + (hasIcon ? icon + margin : 0), heading});
    }
}

std::string TextTable::Widths() const {
    std::string widths;
    for (const int width : chosen_) widths += (widths.empty() ? "" : ",") + std::to_string(width);
    return widths;
}

void TextTable::RestoreWidths(const std::string& widths) {
    constexpr int Widest = 10000;
    const QStringList texts = QString::fromStdString(widths).split(QLatin1Char(','));
    if (texts.size() != rows_->columnCount()) return;
    std::vector<int> pixels;
    for (const QString& text : texts) {
        pixels.push_back(text.toInt());  // 0 for what is no number
        if (pixels.back() < 1 || pixels.back() > Widest) return;
    }
    Choose(std::move(pixels));
}

void TextTable::Choose(std::vector<int> widths) {
    chosen_ = std::move(widths);
    ownWidths_->setEnabled(!chosen_.empty());
    SpreadColumns();
}

void TextTable::SpreadColumns() {
    spreading_ = true;
    for (std::size_t column = 0; column < chosen_.size(); ++column)
        setColumnWidth(static_cast<int>(column), chosen_[column]);
    if (chosen_.empty()) ShareWidth();
    spreading_ = false;
}

void TextTable::ShareWidth() {
    const int needed = std::reduce(needed_.begin(), needed_.end());
    if (needed == 0) return;
    const int room = std::max(needed, viewport()->width());
    int before = 0;
    int left = 0;
    for (std::size_t column = 0; column < needed_.size(); ++column) {
        before += needed_[column];
        const int right = static_cast<int>(static_cast<long long>(room) * before / needed);
        setColumnWidth(static_cast<int>(column), right - left);
        left = right;
    }
}
