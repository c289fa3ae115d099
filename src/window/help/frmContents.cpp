// The contents window.
#include "window/help/frmContents.h"

#include <set>
#include <string>

#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QShortcut>
#include <QSignalBlocker>
#include <QSplitter>
#include <QTreeWidget>
#include <QTreeWidgetItemIterator>
#include <QVBoxLayout>

#include "engine/help/mHelpPages.h"
#include "engine/help/mRules.h"
#include "engine/state/cData.h"
#include "window/controls/mDialog.h"
#include "window/help/HelpBrowser.h"
#include "window/look/mIcons.h"

namespace {

constexpr int Address = Qt::UserRole;

QTreeWidgetItem* Entry(QTreeWidgetItem* under, const QString& text, const QString& address) {
    auto* item = new QTreeWidgetItem(under, {text});
    item->setData(0, Address, address);
    return item;
}

QString Text(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

}  // namespace

frmContents::frmContents() {
    setObjectName(QStringLiteral("frmContents"));
    setWindowIcon(mIcons::Application());
    setWindowTitle(tr("%1 Help").arg(QString::fromStdString(gData->ProdName())));
    BuildControls();
    FillTree();
    connect(txtSearch_, &QLineEdit::textChanged, this, &frmContents::Search);
    connect(tvwContents_, &QTreeWidget::currentItemChanged, this, [this](QTreeWidgetItem* item) {
        const QString address = item ? item->data(0, Address).toString() : QString();
        if (!address.isEmpty()) browser_->Show(QUrl(address));
    });
    connect(browser_, &HelpBrowser::Shown, this, &frmContents::Follow);
    connect(new QShortcut(Qt::Key_Escape, this), &QShortcut::activated, this, &QWidget::close);
    browser_->Show(QUrl(QStringLiteral("page:mouse")));
    txtSearch_->setFocus();
}

void frmContents::BuildControls() {
    txtSearch_ = new QLineEdit;
    txtSearch_->setObjectName(QStringLiteral("txtSearch"));
    txtSearch_->setClearButtonEnabled(true);
    txtSearch_->setPlaceholderText(tr("A name, or words of the rules"));
    auto* label = new QLabel(tr("&Search:"));
    label->setBuddy(txtSearch_);
    tvwContents_ = new QTreeWidget;
    tvwContents_->setObjectName(QStringLiteral("tvwContents"));
    tvwContents_->setAccessibleName(tr("Contents"));
    tvwContents_->setHeaderLabel(tvwContents_->accessibleName());  // read, though it is hidden
    tvwContents_->setHeaderHidden(true);
    // A title that is wider than the tree, once it was made narrower, is scrolled to and not cut.
    tvwContents_->header()->setStretchLastSection(false);
    tvwContents_->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    lblNothing_ = new QLabel(tr("Nothing holds all of these words."));
    lblNothing_->setObjectName(QStringLiteral("lblNothing"));
    lblNothing_->setWordWrap(true);
    lblNothing_->hide();
    browser_ = new HelpBrowser;

    auto* left = new QWidget;
    auto* column = new QVBoxLayout(left);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(label);
    column->addWidget(txtSearch_);
    column->addWidget(lblNothing_);
    column->addWidget(tvwContents_, 1);
    auto* back = new QPushButton(tr("&Back"));
    back->setObjectName(QStringLiteral("cmdBack"));
    back->setEnabled(false);
    connect(back, &QPushButton::clicked, browser_, &QTextBrowser::backward);
    connect(browser_, &QTextBrowser::backwardAvailable, back, &QWidget::setEnabled);
    auto* close = new QPushButton(tr("Close"));
    close->setObjectName(QStringLiteral("cmdClose"));
    connect(close, &QPushButton::clicked, this, &QWidget::close);
    auto* row = new QHBoxLayout;
    row->addWidget(back);
    row->addStretch();
    row->addWidget(close);

    parts_ = new QSplitter;
    parts_->addWidget(left);
    parts_->addWidget(browser_);
    parts_->setStretchFactor(1, 1);
    parts_->setChildrenCollapsible(false);
    auto* all = new QVBoxLayout(this);
    all->addWidget(parts_, 1);
    all->addLayout(row);
    mDialog::FirstSize(this, {fontMetrics().averageCharWidth() * 130, fontMetrics().height() * 38});
}

void frmContents::FillTree() {
    QTreeWidgetItem* root = tvwContents_->invisibleRootItem();
    QTreeWidgetItem* general = Entry(root, tr("The program"), QString());
    for (const mHelpPages::Page& page : mHelpPages::All()) {
        Entry(general, Text(page.Title), QStringLiteral("page:") + Text(page.Key));
    }
    constexpr int IDsOfGroup = 100;
    for (int Gid = 1; Gid <= gData->TotalGroups(); ++Gid) {
        QTreeWidgetItem* group = Entry(root, QString::fromStdString(gData->GroupfromGiD(Gid)),
                                       QStringLiteral("group:%1").arg(Gid));
        for (const int id : mRules::AllGames()) {
            if (id / IDsOfGroup != Gid) continue;
            Entry(group, QString::fromStdString(mRules::Name(id)), QStringLiteral("game:%1").arg(id));
        }
    }
    // Room for every title, also for those that are still folded away.
    tvwContents_->expandAll();
    tvwContents_->resizeColumnToContents(0);
    const int widest = tvwContents_->columnWidth(0) + 2 * tvwContents_->frameWidth() +
                       style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, tvwContents_);
    tvwContents_->collapseAll();
    general->setExpanded(true);
    parts_->setSizes({widest, width() - widest});
}

void frmContents::Search() {
    const std::string words = txtSearch_->text().trimmed().toStdString();
    std::set<QString> found;
    const std::vector<int> games = mHelpPages::FindGames(words);
    for (const int id : games) found.insert(QStringLiteral("game:%1").arg(id));
    for (const std::string_view key : mHelpPages::FindPages(words)) {
        found.insert(QStringLiteral("page:") + Text(key));
    }
    lblNothing_->setVisible(found.empty());
    for (int i = 0; i < tvwContents_->topLevelItemCount(); ++i) {
        QTreeWidgetItem* group = tvwContents_->topLevelItem(i);
        bool any = false;
        for (int j = 0; j < group->childCount(); ++j) {
            QTreeWidgetItem* item = group->child(j);
            item->setHidden(!found.contains(item->data(0, Address).toString()));
            any = any || !item->isHidden();
        }
        group->setHidden(!any);
        group->setExpanded(words.empty() ? i == 0 : any);
    }
    // What a name found stands at once beside it.
    if (!words.empty() && !games.empty()) browser_->Show(QUrl(QStringLiteral("game:%1").arg(games.front())));
}

void frmContents::Follow(const QUrl& address) {
    const QSignalBlocker blocker(tvwContents_);
    for (QTreeWidgetItemIterator at(tvwContents_); *at; ++at) {
        if ((*at)->data(0, Address).toString() != address.toString()) continue;
        tvwContents_->setCurrentItem(*at);
        tvwContents_->scrollToItem(*at);
        return;
    }
}
