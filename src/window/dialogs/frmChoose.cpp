// The number dialog.
#include "window/dialogs/frmChoose.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "engine/commands/mGen.h"
#include "engine/commands/mSelect.h"
#include "engine/records/mPlayers.h"
#include "engine/rules/mFunc.h"
#include "engine/state/cData.h"
#include "window/controls/GameList.h"
#include "window/controls/mDialog.h"
#include "window/look/ilsIcons.h"

frmChoose::frmChoose(QWidget* owner) : QDialog(owner) {
    setObjectName(QStringLiteral("frmChoose"));
    setWindowTitle(tr("Select a Game Number"));
    BuildControls();
    Load();
    connect(Text1, &QLineEdit::textChanged, this, &frmChoose::ShowFault);
    connect(cmdSelect, &QPushButton::clicked, this, &frmChoose::Select);
    connect(cmdCancel, &QPushButton::clicked, this, &QDialog::reject);
    Text1->setFocus();
    Text1->selectAll();
}

void frmChoose::BuildControls() {
    cmPlayer = mDialog::MakeCombo("cmPlayer");
    cmGames = mDialog::MakeCombo("cmGames");
    new GameList(cmGames);
    lblName = new QLabel(tr("Enter a Game Number between"));
    lblName->setObjectName(QStringLiteral("lblName"));
    lblRange = new QLabel;
    lblRange->setObjectName(QStringLiteral("lblRange"));
    Text1 = new QLineEdit;
    Text1->setObjectName(QStringLiteral("Text1"));
    Text1->setAccessibleName(tr("Game number"));
    lblName->setBuddy(Text1);
    lblFault_ = new QLabel;
    lblFault_->setObjectName(QStringLiteral("lblFault"));

    cmdSelect = new QPushButton(tr("Select"));
    cmdSelect->setObjectName(QStringLiteral("cmdSelect"));
    cmdCancel = new QPushButton(tr("Cancel"));
    cmdCancel->setObjectName(QStringLiteral("cmdCancel"));
    auto* buttons = new QDialogButtonBox;
    buttons->addButton(cmdSelect, QDialogButtonBox::AcceptRole);
    buttons->addButton(cmdCancel, QDialogButtonBox::RejectRole);

    auto* choices = new QFormLayout;
    choices->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    choices->addRow(tr("&Player:"), cmPlayer);
    choices->addRow(tr("&Game:"), cmGames);

    auto* all = new QVBoxLayout(this);
    all->addLayout(choices);
    all->addSpacing(fontMetrics().height());
    all->addWidget(lblName);
    all->addWidget(lblRange);
    all->addWidget(Text1);
    all->addWidget(lblFault_);
    all->addStretch();
    all->addWidget(buttons);
    setTabOrder(cmPlayer, cmGames);
    setTabOrder(cmGames, Text1);
    setTabOrder(Text1, cmdSelect);
    setTabOrder(cmdSelect, cmdCancel);
    cmdSelect->setDefault(true);  // in the dialog by now, which only then remembers it
    mDialog::FirstSize(this, {fontMetrics().averageCharWidth() * 52, sizeHint().height()});
}

void frmChoose::Load() {
    Text1->setText(QString::fromStdString(mGameNumber::Text(mFunc::NewGameNo())));
    lblRange->setText(QString::fromStdString(mSelect::RangeText()));
    ShowFault();
    mDialog::FillCombo(cmGames, ilsIcons::Game(), gData->GameNames(), gData->LastGName());
    ShowPlayers();
}

void frmChoose::ShowFault() {
    const bool fits = !mSelect::NumberFault(Text1->text().toStdString());
    lblFault_->setText(fits ? QString() : tr("This is no number of that range."));
    Text1->setAccessibleDescription(lblName->text() + QLatin1Char(' ') + lblRange->text() +
                                    (fits ? QString() : QStringLiteral(". ") + lblFault_->text()));
}

void frmChoose::Select() {
    const std::string typed = Text1->text().toStdString();
    if (const std::optional<std::string> fault = mSelect::NumberFault(typed)) {
        gData->Layer().Forms.Inform(*fault);
        Text1->setText(QStringLiteral("0"));
        Text1->setFocus();
        Text1->selectAll();
        return;
    }
    const ShownPlayer player{cmPlayer->currentText().toStdString(), version_};
    if (!player.Name.empty() && !mPlayers::StillThere(player)) {
        ShowPlayers();
        return;
    }
    // What a game won by its very first moves leads to waits until the dialog is done with.
    const mGen::Action action;
    hide();
    (void)mSelect::PlayNumber(player, cmGames->currentText().toStdString(), typed);
    accept();
}

void frmChoose::ShowPlayers() {
    const PlayerList list = PlayerList::Read();
    version_ = list.Version();
    cmPlayer->clear();
    mDialog::FillCombo(cmPlayer, ilsIcons::Player(), list.Names(), list.Current());
}
