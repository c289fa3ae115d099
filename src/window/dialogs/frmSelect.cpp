// The selection dialog.
#include "window/dialogs/frmSelect.h"

#include <algorithm>

#include <QComboBox>
#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QTabWidget>
#include <QVBoxLayout>
#include <QVector>

#include "engine/catalogue/families.h"
#include "engine/catalogue/mWinnability.h"
#include "engine/commands/mGen.h"
#include "engine/commands/mSelect.h"
#include "engine/help/mRulesWins.h"
#include "engine/records/mPlayers.h"
#include "engine/state/cData.h"
#include "engine/state/cPlate.h"
#include "window/controls/GameTree.h"
#include "window/controls/mDialog.h"
#include "window/dialogs/GameSearch.h"
#include "window/look/ilsIcons.h"
#include "window/look/mTablePicture.h"
#include "window/records/frmGameStat.h"

frmSelect::frmSelect(QWidget* owner) : QDialog(owner) {
    setObjectName(QStringLiteral("frmSelect"));
    setWindowTitle(QString::fromStdString(gData->ProdName()));
    BuildControls();
    LoadTrees();
    SSTab1->setCurrentIndex(gData->Get(Setting::TvIndex));
    ShowSelection();

    connect(SSTab1, &QTabWidget::currentChanged, this, &frmSelect::ShowFound);
    for (GameTree* tree : {tvwAll, tvwGroups, tvwOrg}) {
        connect(tree, &QTreeWidget::currentItemChanged, this, &frmSelect::ShowSelection);
        connect(tree, &QTreeWidget::itemDoubleClicked, this, [this](QTreeWidgetItem* item) {
            if (GameTree::Tag(item) != 0) Play();  // a group opens and closes instead
        });
    }
    connect(search, &GameSearch::Changed, this, &frmSelect::ShowFound);
    connect(search, &GameSearch::ToList, this, [this] { CurrentTree()->setFocus(); });
    connect(cmdPlay, &QPushButton::clicked, this, &frmSelect::Play);
    connect(cmdCancel, &QPushButton::clicked, this, &QDialog::reject);
    connect(cmdRules, &QPushButton::clicked, this,
            [this] { gData->ShowRules(SelectedText().toStdString()); });
    connect(cmdStat, &QPushButton::clicked, this, [this] { frmGameStat(this).exec(); });
    CurrentTree()->setFocus();
}

void frmSelect::BuildControls() {
    search = new GameSearch;
    SSTab1 = new QTabWidget;
    SSTab1->setObjectName(QStringLiteral("SSTab1"));
    SSTab1->setAccessibleName(tr("Games"));
    tvwAll = new GameTree(QStringLiteral("tvwAll"));
    tvwGroups = new GameTree(QStringLiteral("tvwGroups"));
    tvwOrg = new GameTree(QStringLiteral("tvwOrg"));
    SSTab1->addTab(tvwAll, tr("All Games"));
    SSTab1->addTab(tvwGroups, tr("Groups"));
    SSTab1->addTab(tvwOrg, tr("Original Games"));
    for (int i = 0; i < SSTab1->count(); ++i) SSTab1->widget(i)->setAccessibleName(SSTab1->tabText(i));

    lblName = new QLabel;
    lblName->setObjectName(QStringLiteral("lblName"));
    lblName->setAlignment(Qt::AlignHCenter);
    lblName->setWordWrap(true);
    QFont large = lblName->font();
    large.setBold(true);
    large.setPointSizeF(large.pointSizeF() * 1.25);
    lblName->setFont(large);
    // The longest name may take two lines; the controls below must not jump then.
    lblName->setMinimumHeight(2 * QFontMetrics(large).lineSpacing());

    lblFacts = new QLabel;
    lblFacts->setObjectName(QStringLiteral("lblFacts"));
    lblFacts->setAlignment(Qt::AlignHCenter | Qt::AlignTop);
    lblFacts->setWordWrap(true);
    lblFacts->setMinimumHeight(2 * fontMetrics().lineSpacing());

    imcPlayer = mDialog::MakeCombo("imcPlayer");
    ShowPlayers();
    auto* playerLabel = new QLabel(tr("P&layer:"));
    playerLabel->setBuddy(imcPlayer);

    const auto button = [](const char* name, const QString& text) {
        auto* made = new QPushButton(text);
        made->setObjectName(QLatin1String(name));
        return made;
    };
    cmdPlay = button("cmdPlay", tr("Play"));
    cmdCancel = button("cmdCancel", tr("Cancel"));
    cmdRules = button("cmdRules", tr("Rules"));
    cmdStat = button("cmdStat", tr("Statistics"));
    cmdPlay->setDefault(true);

    auto* side = new QVBoxLayout;
    side->addWidget(BuildPreview());
    side->addWidget(lblName);
    side->addWidget(lblFacts);
    side->addSpacing(fontMetrics().height() / 2);
    side->addWidget(playerLabel);
    side->addWidget(imcPlayer);
    side->addStretch();
    for (QPushButton* each : {cmdRules, cmdStat, cmdPlay, cmdCancel}) side->addWidget(each);

    auto* all = new QHBoxLayout(this);
    auto* lists = new QVBoxLayout;
    lists->addWidget(search);
    lists->addWidget(SSTab1, 1);
    all->addLayout(lists, 1);
    all->addLayout(side);
    mDialog::FirstSize(this, {fontMetrics().averageCharWidth() * 115, fontMetrics().height() * 33});

    // As the eye goes: the lists, and from top to bottom what stands beside them.
    setTabOrder(imcPlayer, cmdRules);
    setTabOrder(cmdRules, cmdStat);
    setTabOrder(cmdStat, cmdPlay);
    setTabOrder(cmdPlay, cmdCancel);
}

QWidget* frmSelect::BuildPreview() {
    // A table in small, in the shape of the real one.
    auto* picture = new QFrame;
    picture->setObjectName(QStringLiteral("Picture1"));
    picture->setFrameShape(QFrame::StyledPanel);
    picture->setFrameShadow(QFrame::Sunken);
    imgPick = new QLabel;
    imgPick->setObjectName(QStringLiteral("imgPick"));
    imgPick->setAccessibleName(tr("Preview of the selected game"));
    // The list beside it and the controls below it keep their room on a small screen with large letters.
    constexpr int LinesBelow = 16;
    const QSize screenRoom = screen()->availableSize() * 9 / 10;
    const QSize room(std::min(fontMetrics().averageCharWidth() * 52, screenRoom.width() * 2 / 5),
                     screenRoom.height() - LinesBelow * fontMetrics().height());
    imgPick->setFixedSize(QSize(PlateWidth, PlateHeight).scaled(room, Qt::KeepAspectRatio));
    auto* inside = new QVBoxLayout(picture);
    inside->setContentsMargins(0, 0, 0, 0);
    inside->addWidget(imgPick);
    picture->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    return picture;
}

void frmSelect::LoadTrees() {
    const std::string lastGame = gData->LastGName();
    QTreeWidgetItem* rootAll = tvwAll->AddRoot(tr("All Games"));
    QTreeWidgetItem* rootGroups = tvwGroups->AddRoot(tr("Game Groups"));
    QTreeWidgetItem* rootOriginal = tvwOrg->AddRoot(tr("Original Games"));

    QVector<QTreeWidgetItem*> groups(gData->TotalGroups() + 1, nullptr);
    for (int Gid = 1; Gid <= gData->TotalGroups(); ++Gid) {
        groups[Gid] = GameTree::AddGroup(rootGroups, QString::fromStdString(gData->GroupfromGiD(Gid)));
    }
    QTreeWidgetItem* lastInAll = nullptr;
    QTreeWidgetItem* lastInGroups = nullptr;
    QTreeWidgetItem* lastOriginal = nullptr;
    for (int SiD = 1; SiD <= gData->TotalGames(); ++SiD) {
        const std::string& game = gData->GetGame(SiD);
        const QString name = QString::fromStdString(game);
        QTreeWidgetItem* inAll = GameTree::AddGame(rootAll, name, SiD);
        QTreeWidgetItem* inGroup = GameTree::AddGame(groups[gData->GidfromSiD(SiD)], name, SiD);
        QTreeWidgetItem* inOriginal = nullptr;
        if (gData->IsOriginal(SiD)) inOriginal = GameTree::AddGame(rootOriginal, name, SiD);
        if (game != lastGame) continue;
        lastInAll = inAll;
        lastInGroups = inGroup;
        lastOriginal = inOriginal;
    }
    // Sorting drops the selection, so it comes first.
    GameTree::SortChildren(rootAll);
    GameTree::SortChildren(rootOriginal);
    tvwAll->setCurrentItem(lastInAll);
    tvwGroups->setCurrentItem(lastInGroups);
    tvwOrg->setCurrentItem(lastOriginal ? lastOriginal : rootOriginal->child(0));
}

GameTree* frmSelect::CurrentTree() const { return static_cast<GameTree*>(SSTab1->currentWidget()); }

QString frmSelect::SelectedText() const {
    const QTreeWidgetItem* item = CurrentTree()->currentItem();
    return item ? item->text(0) : QString{};
}

void frmSelect::ShowSelection() {
    const QString text = SelectedText();
    // A root names no game; a group has a game of its own name.
    cmdPlay->setEnabled(gData->GidfromName(text.toStdString()) != 0);
    if (GameTree::Tag(CurrentTree()->currentItem()) == 0) return;
    lblName->setText(text);
    const std::string game = text.toStdString();
    const Definition* definition = mFamilies::Find(game);
    QString facts;
    if (definition) facts = QString::fromStdString(mRulesWins::Facts(*definition, mWinnability::Find(game)));
    // A dot between two facts may end a line, but begins none.
    lblFacts->setText(facts.replace(QStringLiteral(" \u00b7"), QStringLiteral("\u00a0\u00b7")));
    imgPick->setPixmap(QPixmap::fromImage(
        mTablePicture::Preview(text.toStdString(), imgPick->size(), imgPick->devicePixelRatioF())));
}

void frmSelect::ShowFound() {
    const QString words = search->Words();
    std::optional<std::vector<int>> found;
    if (!words.isEmpty()) found = search_.Games(words.toStdString());
    int shown = 0;  // in the list in sight
    for (GameTree* tree : {tvwAll, tvwGroups, tvwOrg}) {
        const int games = tree->ShowOnly(found);
        if (tree == CurrentTree()) shown = games;
    }
    search->ShowFound(shown);
    ShowSelection();
}

void frmSelect::Play() {
    if (!cmdPlay->isEnabled()) return;
    const ShownPlayer player{imcPlayer->currentText().toStdString(), version_};
    if (!player.Name.empty() && !mPlayers::StillThere(player)) {
        ShowPlayers();
        return;
    }
    // What a game won by its very first moves leads to waits until the dialog is done with.
    const mGen::Action action;
    hide();
    (void)mSelect::Play(player, SelectedText().toStdString());
    gData->Set(Setting::TvIndex, SSTab1->currentIndex());
    accept();
}

void frmSelect::ShowPlayers() {
    const PlayerList list = PlayerList::Read();
    version_ = list.Version();
    imcPlayer->clear();
    mDialog::FillCombo(imcPlayer, ilsIcons::Player(), list.Names(), list.Current());
}
