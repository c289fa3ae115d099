// The dialog "Customize": what its controls do. How they are built: frmCustomizeTabs.cpp.
#include "window/dialogs/frmCustomize.h"

#include <QCheckBox>
#include <QColorDialog>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QPushButton>
#include <QSlider>
#include <QTabWidget>
#include <QTreeWidget>
#include <QVBoxLayout>

#include "engine/records/cScore.h"
#include "engine/state/mAssets.h"
#include "window/controls/mDialog.h"
#include "window/dialogs/LookPreview.h"
#include "window/look/ilsIcons.h"
#include "window/look/mPictures.h"

namespace {

/// The number that the selected node stands for; 0 where none does.
int Tag(const QTreeWidget* tree) {
    const QList<QTreeWidgetItem*> selected = tree->selectedItems();
    return selected.isEmpty() ? 0 : selected.constFirst()->data(0, Qt::UserRole).toInt();
}

}  // namespace

frmCustomize::frmCustomize(QWidget* owner) : QDialog(owner) {
    setObjectName(QStringLiteral("frmCustomize"));
    setWindowTitle(tr("Customize"));
    SSTab1 = new QTabWidget;
    SSTab1->setObjectName(QStringLiteral("SSTab1"));
    SSTab1->setAccessibleName(windowTitle());
    SSTab1->addTab(BuildGeneral(), tr("General"));
    SSTab1->addTab(BuildBackground(), tr("Background"));
    SSTab1->addTab(BuildDecks(), tr("Decks"));
    SSTab1->addTab(BuildAnimation(), tr("Animation && Sounds"));

    cmdOK = new QPushButton(tr("OK"));
    cmdOK->setObjectName(QStringLiteral("cmdOK"));
    cmdCancel = new QPushButton(tr("Cancel"));
    cmdCancel->setObjectName(QStringLiteral("cmdCancel"));
    auto* buttons = new QDialogButtonBox;
    buttons->addButton(cmdOK, QDialogButtonBox::AcceptRole);
    buttons->addButton(cmdCancel, QDialogButtonBox::RejectRole);
    auto* all = new QVBoxLayout(this);
    all->addWidget(SSTab1, 1);
    all->addWidget(buttons);

    EnableColors(true);
    Redraw();
    ConnectGeneral();
    connect(tvBGround, &QTreeWidget::itemSelectionChanged, this, &frmCustomize::SelectBackground);
    connect(chkFade, &QCheckBox::clicked, this, [this](bool on) {
        choice_.Fade = on ? 1 : 0;
        Redraw();
    });
    connect(cmdCustom, &QPushButton::clicked, this, &frmCustomize::PickColor);
    connect(tvDeck, &QTreeWidget::itemSelectionChanged, this, &frmCustomize::SelectDeck);
    connect(chkFour, &QCheckBox::clicked, this, [this](bool on) {
        choice_.FourColors = on;
        Redraw();
    });
    connect(cmdOK, &QPushButton::clicked, this, &frmCustomize::Confirm);
    connect(cmdCancel, &QPushButton::clicked, this, &QDialog::reject);
    cmdOK->setDefault(true);  // in the dialog by now, which only then remembers it
    mDialog::FirstSize(this, {fontMetrics().averageCharWidth() * 80, fontMetrics().height() * 30});
    SSTab1->setFocus();
}

void frmCustomize::ConnectGeneral() {
    connect(chkTime, &QCheckBox::clicked, this, mCustomize::ShowTime);
    connect(chkScore, &QCheckBox::clicked, this, mCustomize::ShowScore);
    connect(chkMoves, &QCheckBox::clicked, this, mCustomize::ShowMoves);
    connect(imcRange, &QComboBox::activated, this, [](int index) { mCustomize::SetRange(index + 1); });
    connect(cmdClearRecent, &QPushButton::clicked, this, [this] {
        if (!mCustomize::ClearRecent()) return;
        imcRange->setFocus();  // not left on a button that is disabled
        cmdClearRecent->setEnabled(false);
        mCustomize::TellRecentCleared();
    });
    connect(cmdExportStat, &QPushButton::clicked, this, [] { gScore->ExportStat(); });
    connect(cmdClearStat, &QPushButton::clicked, this, [] { gScore->ClearStat(); });
}

void frmCustomize::EnableColors(bool backgroundSelected) {
    cmdCustom->setEnabled(backgroundSelected && mCustomize::HasCustomColor(choice_.Background));
    chkFade->setEnabled(backgroundSelected && mCustomize::CanFade(choice_.Background));
}

void frmCustomize::SelectBackground() {
    const int background = Tag(tvBGround);
    if (background != 0) choice_.Background = background;
    EnableColors(background != 0);
    Redraw();
}

void frmCustomize::SelectDeck() {
    const int deck = Tag(tvDeck);
    if (deck != 0) choice_.Deck = deck;
    Redraw();
}

void frmCustomize::PickColor() {
    // The dialog's own colour counts however the dialog is left: one that was never confirmed is black.
    QColorDialog dialog(dialogColor_, this);
    if (dialog.exec() == QDialog::Accepted) dialogColor_ = dialog.selectedColor();
    choice_.CustomColor = mAssets::ColorNumber(dialogColor_.red(), dialogColor_.green(), dialogColor_.blue());
    Redraw();
}

void frmCustomize::Redraw() {
    for (LookPreview* preview : {Picture1, picDeckBack}) {
        preview->SetBG(choice_.Background, choice_.Fade, choice_.CustomColor);
    }
    PicDeck->SetDeckPic(choice_.Deck);
    picSuits->SetFourColors(choice_.FourColors);
    customColorNode_->setIcon(0, ilsIcons::Swatch(mPictures::ColorOf(choice_.CustomColor)));
}

void frmCustomize::Confirm() {
    for (std::size_t i = 0; i < sliders_.size(); ++i) choice_.Speed[i] = sliders_[i]->value();
    for (std::size_t i = 0; i < choice_.Sound.size(); ++i) {
        const QTreeWidgetItem* row = lvSound->topLevelItem(static_cast<int>(i));
        choice_.Sound[i] = row->checkState(0) == Qt::Checked;
    }
    mCustomize::Confirm(choice_);
    accept();
}
