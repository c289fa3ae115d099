// Sorting, copying and playing out of lists.
#include "window/controls/ListCommands.h"

#include <algorithm>
#include <utility>
#include <vector>

#include <QAbstractItemView>
#include <QAction>
#include <QActionGroup>
#include <QClipboard>
#include <QDialog>
#include <QGuiApplication>
#include <QHeaderView>
#include <QMenu>
#include <QShortcut>

#include "engine/commands/mGen.h"
#include "engine/commands/mSelect.h"
#include "engine/commands/mSpoken.h"
#include "engine/records/mFavourites.h"
#include "engine/state/cData.h"
#include "window/controls/TableModel.h"
#include "window/controls/mDialog.h"

namespace {

constexpr char Up = '+';
constexpr char Down = '-';

/// The rows of a selection from the top down. Of many rows a selection holds few ranges.
std::vector<int> RowsOf(const QItemSelection& selection) {
    std::vector<std::pair<int, int>> ranges;
    for (const QItemSelectionRange& range : selection) ranges.emplace_back(range.top(), range.bottom());
    std::sort(ranges.begin(), ranges.end());
    std::vector<int> rows;
    for (const auto& [top, bottom] : ranges) {
        for (int row = rows.empty() ? top : std::max(top, rows.back() + 1); row <= bottom; ++row)
            rows.push_back(row);
    }
    return rows;
}

/// A text of one cell: what parts cells and rows has no place in it.
QString OneLine(QString text) {
    for (const char mark : {'\t', '\n', '\r'}) text.replace(QLatin1Char(mark), QLatin1Char(' '));
    return text;
}

/// Closes the dialog of a view, and those that it was opened from.
void CloseDialogs(const QWidget* view) {
    QWidget* last = nullptr;
    for (QWidget* window = view->window(); window; window = window->parentWidget()) {
        window = last = window->window();
        if (auto* dialog = qobject_cast<QDialog*>(window)) dialog->reject();
    }
    // Of windows that close at once not every window manager hands the keyboard on.
    last->activateWindow();
}

}  // namespace

ListCommands::ListCommands(QAbstractItemView* view, QHeaderView* headings, TableModel* model)
    : QObject(view), view_(view), headings_(headings), model_(model) {
    copy_ = new QAction(tr("&Copy"), view);
    copy_->setObjectName(QStringLiteral("mnuCopy"));
    copy_->setShortcut(QKeySequence::Copy);
    copy_->setShortcutContext(Qt::WidgetShortcut);
    view->addAction(copy_);
    connect(copy_, &QAction::triggered, this, &ListCommands::Copy);
    view->setContextMenuPolicy(Qt::CustomContextMenu);
    const auto showMenu = [this](const QPoint& place) {
        // The current row may be out of sight.
        const QRect seen = view_->viewport()->rect();
        ShowMenu(view_->viewport()->mapToGlobal(QPoint(std::clamp(place.x(), seen.left(), seen.right()),
                                                       std::clamp(place.y(), seen.top(), seen.bottom()))));
    };
    connect(view, &QWidget::customContextMenuRequested, this, showMenu);
    // The other key for menus, which not every platform knows as such.
    auto* menuKey = new QShortcut(QKeySequence(Qt::SHIFT | Qt::Key_F10), view);
    menuKey->setContext(Qt::WidgetShortcut);
    connect(menuKey, &QShortcut::activated, this, [this, showMenu] {
        const QRect row = view_->visualRect(view_->currentIndex());
        showMenu(row.isValid() ? row.bottomLeft() : QPoint());
    });
    if (!HasHeadings()) return;
    headings->setSectionsClickable(true);
    headings->setSortIndicatorClearable(true);
    headings->setSortIndicator(-1, Qt::AscendingOrder);
    headings->setSortIndicatorShown(true);
    connect(headings, &QHeaderView::sortIndicatorChanged, this, &ListCommands::Sort);
    headings->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(headings, &QWidget::customContextMenuRequested, this,
            [this](const QPoint& place) { ShowMenu(headings_->mapToGlobal(place)); });
}

bool ListCommands::HasHeadings() const {
    const std::vector<TableColumn>& columns = model_->Columns();
    return std::any_of(columns.begin(), columns.end(),
                       [](const TableColumn& column) { return !column.Heading.isEmpty(); });
}

void ListCommands::OfferDeals(DealOf dealOf, Offer offer) {
    dealOf_ = std::move(dealOf);
    play_ = new QAction(tr("&Play This Deal"), this);
    play_->setObjectName(QStringLiteral("mnuPlayDeal"));
    connect(play_, &QAction::triggered, this, &ListCommands::Play);
    if (offer == Offer::Play) return;
    add_ = new QAction(tr("&Add to Favorites"), this);
    add_->setObjectName(QStringLiteral("mnuAddFavorite"));
    connect(add_, &QAction::triggered, this, &ListCommands::AddFavourite);
}

QString ListCommands::SelectedText() const {
    const std::vector<int> rows = RowsOf(view_->selectionModel()->selection());
    QString text;
    const auto add = [&text](int column, const QString& cell) {
        if (column > 0) text += QLatin1Char('\t');
        text += OneLine(cell);
    };
    const int columns = model_->columnCount();
    if (HasHeadings() && !rows.empty()) {
        for (int column = 0; column < columns; ++column)
            add(column, model_->Columns().at(static_cast<std::size_t>(column)).Heading);
        text += QLatin1Char('\n');
    }
    for (const int row : rows) {
        const int given = model_->GivenRow(row);
        for (int column = 0; column < columns; ++column) add(column, model_->CellText(given, column));
        text += QLatin1Char('\n');
    }
    return text;
}

void ListCommands::Copy() const {
    if (!view_->selectionModel()->hasSelection()) return;
    const mDialog::BusyPointer busy;
    QGuiApplication::clipboard()->setText(SelectedText());
}

std::optional<tFav> ListCommands::SelectedDeal() const {
    if (!dealOf_) return std::nullopt;
    const QItemSelection selection = view_->selectionModel()->selection();
    // One row, which may be selected cell by cell.
    const int row = selection.isEmpty() ? -1 : selection.constFirst().top();
    const bool alone =
        row >= 0 && std::all_of(selection.begin(), selection.end(), [row](const QItemSelectionRange& range) {
            return range.top() == row && range.bottom() == row;
        });
    if (!alone) return std::nullopt;
    std::optional<tFav> deal = dealOf_(model_->GivenRow(row));
    if (!deal || gData->GetGameID(deal->mName) == 0 || !mGameNumber::Parse(mGameNumber::Text(deal->mGno)))
        return std::nullopt;  // a record may tell of a game that this program does not have
    return deal;
}

void ListCommands::Play() {
    const std::optional<tFav> deal = SelectedDeal();
    if (!deal || !mSelect::MayPlay(*deal)) return;
    // The deal waits until the dialogs are done with.
    const mGen::Action action;
    CloseDialogs(view_);
    mGen::StartAfter(deal->mName, deal->mGno);
}

void ListCommands::AddFavourite() {
    if (const std::optional<tFav> deal = SelectedDeal()) mFavourites::Add(deal->mName, deal->mGno);
}

void ListCommands::Sort(int column, Qt::SortOrder order) {
    {
        const mDialog::BusyPointer busy;
        model_->sort(column, order);
    }
    view_->scrollToTop();  // one sorts to see what comes first
    const QString text = model_->SortText();
    view_->setAccessibleDescription(text.isEmpty() ? QString() : tr("Sorted by %1").arg(text));
    if (!view_->isVisible()) return;
    mSpoken::Say((text.isEmpty() ? tr("Not sorted") : view_->accessibleDescription()).toStdString());
}

void ListCommands::ShowMenu(const QPoint& place) {
    copy_->setEnabled(view_->selectionModel()->hasSelection());
    const bool isDeal = SelectedDeal().has_value();
    // The last one goes only now: a deal that is played out of a menu asks and deals while the menu's own
    // event is still at work.
    const QString name = QStringLiteral("mnuList");
    delete view_->findChild<QMenu*>(name, Qt::FindDirectChildrenOnly);
    auto* menu = new QMenu(view_);
    menu->setObjectName(name);
    // Only while the menu is up: the key copies whenever something is selected.
    connect(menu, &QMenu::aboutToHide, this, [this] { copy_->setEnabled(true); });
    menu->addAction(copy_);
    for (QAction* action : {play_, add_}) {
        if (!action) continue;
        if (action == play_) menu->addSeparator();
        action->setEnabled(isDeal);
        menu->addAction(action);
    }
    if (HasHeadings()) AddSorting(menu);
    menu->addActions(more_);
    menu->popup(place);
}

void ListCommands::AddSorting(QMenu* menu) {
    menu->addSeparator();
    QMenu* sorting = menu->addMenu(tr("&Sort By"));
    sorting->setObjectName(QStringLiteral("mnuSortBy"));
    const auto choice = [this, sorting](QActionGroup* group, const QString& text, bool now, int column,
                                        Qt::SortOrder order) {
        QAction* action = sorting->addAction(text);
        action->setCheckable(true);
        action->setChecked(now);
        group->addAction(action);
        connect(action, &QAction::triggered, this,
                [this, column, order] { headings_->setSortIndicator(column, order); });
        return action;
    };
    const int column = model_->SortColumn();
    const Qt::SortOrder order = model_->SortOrder();
    auto* columns = new QActionGroup(sorting);
    choice(columns, tr("&Usual Order"), column < 0, -1, Qt::AscendingOrder);
    sorting->addSeparator();
    for (int i = 0; i < model_->columnCount(); ++i) {
        QString heading = model_->Columns().at(static_cast<std::size_t>(i)).Heading;
        if (heading.isEmpty()) heading = tr("Number");
        choice(columns, heading, i == column, i, i == column ? order : Qt::AscendingOrder);
    }
    sorting->addSeparator();
    auto* ways = new QActionGroup(sorting);
    for (const Qt::SortOrder way : {Qt::AscendingOrder, Qt::DescendingOrder}) {
        const QString text = way == Qt::AscendingOrder ? tr("&Ascending") : tr("&Descending");
        choice(ways, text, column >= 0 && way == order, column, way)->setEnabled(column >= 0);
    }
}

std::string ListCommands::Sorting() const {
    if (model_->SortColumn() < 0) return {};
    return (model_->SortOrder() == Qt::DescendingOrder ? Down : Up) + std::to_string(model_->SortColumn());
}

void ListCommands::RestoreSorting(const std::string& sorting) {
    for (int column = 0; column < model_->columnCount(); ++column) {
        const std::string number = std::to_string(column);
        if (sorting == Up + number) headings_->setSortIndicator(column, Qt::AscendingOrder);
        if (sorting == Down + number) headings_->setSortIndicator(column, Qt::DescendingOrder);
    }
}
