// The four tabs of the dialog "Customize": their controls, filled from the settings.
#include <algorithm>

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QSlider>
#include <QStyle>
#include <QTreeWidget>
#include <QVBoxLayout>

#include "engine/state/mAssets.h"
#include "window/controls/SeenView.h"
#include "window/dialogs/LookPreview.h"
#include "window/dialogs/frmCustomize.h"
#include "window/look/ilsIcons.h"
#include "window/look/mPictures.h"

namespace {

QCheckBox* MakeCheck(const char* name, const QString& text, bool checked) {
    auto* check = new QCheckBox(text);
    check->setObjectName(QLatin1String(name));
    check->setChecked(checked);
    return check;
}

QPushButton* MakeButton(const char* name, const QString& text) {
    auto* button = new QPushButton(text);
    button->setObjectName(QLatin1String(name));
    button->setAutoDefault(false);  // Return is for OK
    return button;
}

QLabel* MakeLabel(const char* name, const QString& text) {
    auto* label = new QLabel(text);
    label->setObjectName(QLatin1String(name));
    return label;
}

/// Answers the item of the number wanted, or nothing. `icon` is for the pictures, of which each has a number.
QTreeWidgetItem* AddNode(QTreeWidgetItem* item, const mCustomize::Node& node, const QIcon& icon, int wanted) {
    item->setText(0, QString::fromStdString(node.Text));
    QTreeWidgetItem* found = nullptr;
    if (node.Tag != 0) item->setData(0, Qt::UserRole, node.Tag);
    if (node.Tag != 0 && node.Tag == wanted) found = item;
    if (const mAssets::NamedColor* color = mAssets::GetCol(node.Tag)) {
        item->setIcon(0, ilsIcons::Swatch(mPictures::ColorOf(color->Color)));
    } else {
        item->setIcon(0, node.Tag == 0 ? ilsIcons::Group() : icon);
    }
    for (const mCustomize::Node& child : node.Children) {
        if (auto* below = AddNode(new QTreeWidgetItem(item), child, icon, wanted)) found = below;
    }
    return found;
}

int WidestText(const QFontMetrics& metrics, const mCustomize::Node& node) {
    int widest = metrics.horizontalAdvance(QString::fromStdString(node.Text));
    for (const mCustomize::Node& child : node.Children) widest = std::max(widest, WidestText(metrics, child));
    return widest;
}

/// The whole tree, its root open, the node of a number selected and in sight.
QTreeWidget* MakeTree(const char* name, const mCustomize::Node& root, const QIcon& icon, int wanted) {
    auto* tree = new SeenView<QTreeWidget>;
    tree->setObjectName(QLatin1String(name));
    tree->setAccessibleName(QString::fromStdString(root.Text));
    tree->setHeaderLabel(tree->accessibleName());  // a screen reader reads it though it is hidden
    tree->setHeaderHidden(true);
    auto* rootItem = new QTreeWidgetItem(tree);
    QTreeWidgetItem* selected = AddNode(rootItem, root, icon, wanted);
    rootItem->setExpanded(true);
    // No name is cut, however far a group is open.
    constexpr int Levels = 3;
    const QStyle* style = tree->style();
    tree->setMinimumWidth(WidestText(tree->fontMetrics(), root) + Levels * tree->indentation() +
                          style->pixelMetric(QStyle::PM_SmallIconSize) +
                          style->pixelMetric(QStyle::PM_ScrollBarExtent) + 2 * tree->indentation());
    if (selected) {
        tree->setCurrentItem(selected);
        tree->scrollToItem(selected);
    }
    return tree;
}

}  // namespace

QWidget* frmCustomize::BuildGeneral() {
    chkTime = MakeCheck("chkTime", tr("Show Time"), gData->Get(Setting::ShowTime) != 0);
    chkScore = MakeCheck("chkScore", tr("Show Score"), gData->Get(Setting::ShowScore) != 0);
    chkMoves = MakeCheck("chkMoves", tr("Show Moves"), gData->Get(Setting::ShowMoves) != 0);

    imcRange = new QComboBox;
    imcRange->setObjectName(QStringLiteral("imcRange"));
    for (const std::string& largest : mCustomize::Ranges())
        imcRange->addItem(QString::fromStdString(largest));
    imcRange->setMaxVisibleItems(imcRange->count());
    imcRange->setCurrentIndex(gData->Get(Setting::RangeIndex) - 1);
    auto* Label1 = MakeLabel("Label1", tr("Random Range Selection between 0 and "));
    Label1->setBuddy(imcRange);
    imcRange->setAccessibleName(Label1->text());
    auto* range = new QGroupBox(tr("Random Range"));
    auto* inRange = new QHBoxLayout(range);
    inRange->addWidget(Label1);
    inRange->addWidget(imcRange);
    inRange->addStretch();

    cmdClearRecent = MakeButton("cmdClearRecent", tr("Clear"));
    cmdClearRecent->setEnabled(gData->RecentCount() > 0);
    auto* recent = new QGroupBox(tr("Recent List"));
    auto* inRecent = new QHBoxLayout(recent);
    inRecent->addWidget(MakeLabel("Label2", tr("Clear  Recent Games List")));
    inRecent->addStretch();
    inRecent->addWidget(cmdClearRecent);

    cmdExportStat = MakeButton("cmdExportStat", tr("Export Statistics"));
    cmdClearStat = MakeButton("cmdClearStat", tr("Clear Statistics"));
    auto* statistics = new QGroupBox(tr("Game Statistics"));
    auto* inStatistics = new QHBoxLayout(statistics);
    inStatistics->addWidget(cmdExportStat);
    inStatistics->addWidget(cmdClearStat);
    inStatistics->addStretch();

    auto* tab = new QWidget;
    auto* all = new QVBoxLayout(tab);
    for (QCheckBox* check : {chkTime, chkScore, chkMoves}) all->addWidget(check);
    for (QGroupBox* frame : {range, recent, statistics}) all->addWidget(frame);
    all->addStretch();
    return tab;
}

QWidget* frmCustomize::BuildBackground() {
    const mCustomize::Node root = mCustomize::Backgrounds();
    tvBGround = MakeTree("tvBGround", root, ilsIcons::Background(), choice_.Background);
    customColorNode_ = tvBGround->topLevelItem(0)->child(0)->child(0);
    Picture1 = new LookPreview("Picture1");
    Picture1->setAccessibleName(tr("Preview of the background"));
    chkFade = MakeCheck("chkFade", tr("Fade Background"), choice_.Fade == 1);
    cmdCustom = MakeButton("cmdCustom", tr("Colors.."));

    auto* tab = new QWidget;
    auto* all = new QGridLayout(tab);
    all->addWidget(tvBGround, 0, 0, 2, 1);
    all->addWidget(Picture1, 0, 1, 1, 2);
    all->addWidget(chkFade, 1, 1);
    all->addWidget(cmdCustom, 1, 2, Qt::AlignRight);
    all->setRowStretch(0, 1);
    all->setColumnStretch(0, 1);
    all->setColumnStretch(1, 1);
    return tab;
}

QWidget* frmCustomize::BuildDecks() {
    tvDeck = MakeTree("tvDeck", mCustomize::Decks(), ilsIcons::Deck(), choice_.Deck);
    picDeckBack = new LookPreview("picDeckBack");
    picDeckBack->setAccessibleName(tr("Preview of the deck"));
    PicDeck = new BackPreview("PicDeck");
    picSuits = new SuitsPreview("picSuits");
    picSuits->setAccessibleName(tr("Preview of the faces"));
    auto* onBack = new QVBoxLayout(picDeckBack);
    onBack->addStretch();
    onBack->addWidget(PicDeck, 0, Qt::AlignCenter);
    onBack->addStretch();
    onBack->addWidget(picSuits, 0, Qt::AlignCenter);
    onBack->addStretch();
    chkFour = MakeCheck("chkFour", tr("Four Colors"), choice_.FourColors);
    chkFour->setToolTip(tr("Diamonds blue and Clubs green; the rules count them as red and black as ever"));

    auto* tab = new QWidget;
    auto* all = new QGridLayout(tab);
    all->addWidget(tvDeck, 0, 0, 2, 1);
    all->addWidget(picDeckBack, 0, 1);
    all->addWidget(chkFour, 1, 1, Qt::AlignLeft);
    all->setRowStretch(0, 1);
    all->setColumnStretch(0, 1);
    all->setColumnStretch(1, 1);
    return tab;
}

QWidget* frmCustomize::BuildAnimation() {
    auto* tab = new QWidget;
    auto* speeds = new QVBoxLayout;
    for (std::size_t i = 0; i < sliders_.size(); ++i) {
        const mCustomize::SpeedRow& row = mCustomize::Speeds[i];
        auto* frame = new QGroupBox(tr(row.Caption));
        auto* slider = new QSlider(Qt::Horizontal);
        slider->setObjectName(QStringLiteral("Slider%1").arg(i + 1));
        slider->setAccessibleName(frame->title());
        slider->setRange(row.Setting.Low, row.Setting.High);
        slider->setSingleStep(1);
        slider->setPageStep(5);
        slider->setTickPosition(QSlider::TicksBelow);
        slider->setTickInterval(5);
        auto* value = new QLabel;
        value->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        value->setMinimumWidth(value->fontMetrics().horizontalAdvance(QStringLiteral("50")));
        connect(slider, &QSlider::valueChanged, value, qOverload<int>(&QLabel::setNum));
        slider->setValue(choice_.Speed[i]);
        value->setNum(slider->value());
        // The value counts steps, so that the speed falls as it rises.
        auto* fast = new QLabel(tr("fast"));
        auto* slow = new QLabel(tr("slow"));
        slider->setAccessibleDescription(tr("from 0, fast, to 50, slow"));
        auto* inside = new QGridLayout(frame);
        inside->addWidget(slider, 0, 0, 1, 2);
        inside->addWidget(value, 0, 2);
        inside->addWidget(fast, 1, 0, Qt::AlignLeft);
        inside->addWidget(slow, 1, 1, Qt::AlignRight);
        inside->setColumnStretch(1, 1);
        speeds->addWidget(frame);
        sliders_[i] = slider;
    }
    speeds->addStretch();

    lvSound = new SeenView<QTreeWidget>;
    lvSound->setObjectName(QStringLiteral("lvSound"));
    lvSound->setHeaderLabel(tr("Select Sound"));
    lvSound->setAccessibleName(tr("Sounds"));
    lvSound->setRootIsDecorated(false);
    for (std::size_t i = 0; i < choice_.Sound.size(); ++i) {
        auto* row = new QTreeWidgetItem(lvSound, {tr(mCustomize::Sounds[i].Caption)});
        row->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable);
        row->setIcon(0, ilsIcons::Sound());
        row->setCheckState(0, choice_.Sound[i] ? Qt::Checked : Qt::Unchecked);
    }

    auto* all = new QHBoxLayout(tab);
    all->addLayout(speeds, 3);
    all->addWidget(lvSound, 2);
    return tab;
}
