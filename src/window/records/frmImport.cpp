// The dialog "Import Records".
#include "window/records/frmImport.h"

#include <algorithm>

#include <QComboBox>
#include <QHBoxLayout>
#include <QPushButton>
#include <QTreeView>
#include <QVBoxLayout>

#include "engine/state/cData.h"
#include "window/controls/ListModel.h"
#include "window/controls/mDialog.h"
#include "window/look/ilsIcons.h"

frmImport::frmImport(const ImportedRecords& records, const std::string& player, QWidget* owner)
    : QDialog(owner), records_(records), players_(PlayerList::Read()) {
    setObjectName(QStringLiteral("frmImport"));
    setWindowTitle(tr("Import Records"));
    BuildControls(player);
    Preview();
    for (QComboBox* choice : {imcPlayer, imcOf}) {
        connect(choice, &QComboBox::currentIndexChanged, this, &frmImport::Preview);
    }
    connect(cmdImport, &QPushButton::clicked, this, &frmImport::Import);
    connect(cmdCancel, &QPushButton::clicked, this, &QDialog::reject);
}

void frmImport::BuildControls(const std::string& player) {
    const std::string into = players_.Has(player) ? player : gData->CurPlayer();
    imcPlayer = mDialog::MakeCombo("imcPlayer");
    mDialog::FillCombo(imcPlayer, ilsIcons::Player(), players_.Names(), into);
    imcOf = mDialog::MakeCombo("imcOf");
    mDialog::FillCombo(imcOf, ilsIcons::Player(), {"all in the file"});
    mDialog::FillCombo(imcOf, ilsIcons::Player(), records_.Players());
    // Whoever exported the records of all takes back their own.
    const auto own = std::find(records_.Players().begin(), records_.Players().end(), into);
    if (own != records_.Players().end())
        imcOf->setCurrentIndex(static_cast<int>(own - records_.Players().begin()) + 1);

    preview_ = new ListModel(QString());
    QTreeView* lvPreview = mList::MakeView("lvPreview", preview_);
    lvPreview->setAccessibleName(tr("What the file holds"));
    cmdImport = new QPushButton(tr("&Import"));
    cmdImport->setObjectName(QStringLiteral("cmdImport"));
    cmdCancel = new QPushButton(tr("Cancel"));
    cmdCancel->setObjectName(QStringLiteral("cmdCancel"));

    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(cmdImport);
    buttons->addWidget(cmdCancel);
    auto* all = new QVBoxLayout(this);
    auto* choices = new QHBoxLayout;
    choices->addLayout(mDialog::Labelled(tr("Records &of:"), imcOf));
    choices->addLayout(mDialog::Labelled(tr("Into the records of the &player:"), imcPlayer));
    all->addLayout(choices);
    all->addWidget(lvPreview, 1);
    all->addLayout(buttons);
    cmdImport->setDefault(true);
    mDialog::FirstSize(this, {fontMetrics().averageCharWidth() * 90, fontMetrics().height() * 20});
}

std::string frmImport::Into() const { return imcPlayer->currentText().toStdString(); }

std::string frmImport::Of() const {
    return imcOf->currentIndex() == 0 ? std::string() : imcOf->currentText().toStdString();
}

void frmImport::Preview() {
    const mDialog::BusyPointer busy;
    const ImportedRecords::Count count = records_.Preview(Into(), Of());
    preview_->SetTexts(records_.Lines(count));
    cmdImport->setEnabled(count.New > 0);
}

void frmImport::Import() {
    const bool added = records_.AddTo({Into(), players_.Version()}, Of());
    if (added) {
        accept();
    } else {
        Preview();  // what the fault has left
    }
}
