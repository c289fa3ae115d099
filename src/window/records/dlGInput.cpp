// The name dialog.
#include "window/records/dlGInput.h"

#include <utility>

#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "engine/records/mPlayers.h"
#include "engine/state/cData.h"
#include "engine/state/mPlayerName.h"
#include "window/controls/mDialog.h"

dlGInput::dlGInput(const QString& mCaption, ShownPlayer mText, QWidget* owner)
    : QDialog(owner), old_(std::move(mText)) {
    setObjectName(QStringLiteral("dlGInput"));
    setWindowTitle(QString::fromStdString(gData->ProdName()));
    Label1 = new QLabel(mCaption);
    Label1->setObjectName(QStringLiteral("Label1"));
    Text1 = new QLineEdit(QString::fromStdString(old_.Name));
    Text1->setObjectName(QStringLiteral("Text1"));
    Label1->setBuddy(Text1);
    lblFault = new QLabel;
    lblFault->setObjectName(QStringLiteral("lblFault"));
    lblFault->setWordWrap(true);
    // Room for the longest, so that nothing moves while one types.
    lblFault->setMinimumHeight(2 * fontMetrics().lineSpacing());
    OKButton = new QPushButton(tr("OK"));
    OKButton->setObjectName(QStringLiteral("OKButton"));
    CancelButton = new QPushButton(tr("Cancel"));
    CancelButton->setObjectName(QStringLiteral("CancelButton"));
    auto* buttons = new QDialogButtonBox;
    buttons->addButton(OKButton, QDialogButtonBox::AcceptRole);
    buttons->addButton(CancelButton, QDialogButtonBox::RejectRole);

    auto* all = new QVBoxLayout(this);
    all->addWidget(Label1);
    all->addWidget(Text1);
    all->addWidget(lblFault);
    all->addStretch();
    all->addWidget(buttons);
    OKButton->setDefault(true);  // in the dialog by now, which only then remembers it
    mDialog::FirstSize(this, {fontMetrics().averageCharWidth() * 48, sizeHint().height()});

    connect(Text1, &QLineEdit::textEdited, this, &dlGInput::ShowFault);
    connect(OKButton, &QPushButton::clicked, this, &dlGInput::Enter);
    connect(CancelButton, &QPushButton::clicked, this, &QDialog::reject);
    Text1->setFocus();
    Text1->selectAll();
}

void dlGInput::InputDlg(const QString& mCaption, const ShownPlayer& mText, QWidget* owner) {
    dlGInput(mCaption, mText, owner).exec();
}

void dlGInput::ShowFault() {
    const QString fault = QString::fromStdString(mPlayerName::Fault(Text1->text().toStdString()));
    lblFault->setText(fault);
    Text1->setAccessibleDescription(fault);  // read out with the box
}

void dlGInput::Enter() {
    if (mPlayers::Enter(old_, Text1->text().toStdString())) {
        accept();
        return;
    }
    // Whom the dialog was opened for may be gone: then there is nothing left to enter.
    if (!old_.Name.empty() && PlayerList::Read().NowCalled(old_) != old_.Name) {
        reject();
        return;
    }
    Text1->setFocus();
}
