// The name dialog.
#include "window/records/dlGInput.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "engine/records/mPlayers.h"
#include "engine/state/cData.h"
#include "window/controls/mDialog.h"

dlGInput::dlGInput(const QString& mCaption, const QString& mText, QWidget* owner)
    : QDialog(owner), oldName_(mText) {
    setObjectName(QStringLiteral("dlGInput"));
    setWindowTitle(QString::fromStdString(gData->ProdName()));
    Label1 = new QLabel(mCaption);
    Label1->setObjectName(QStringLiteral("Label1"));
    Text1 = new QLineEdit(mText);
    Text1->setObjectName(QStringLiteral("Text1"));
    Label1->setBuddy(Text1);
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
    all->addStretch();
    all->addWidget(buttons);
    OKButton->setDefault(true);  // in the dialog by now, which only then remembers it
    mDialog::FirstSize(this, {fontMetrics().averageCharWidth() * 48, sizeHint().height()});

    connect(OKButton, &QPushButton::clicked, this, &dlGInput::Enter);
    connect(CancelButton, &QPushButton::clicked, this, &QDialog::reject);
    Text1->setFocus();
    Text1->selectAll();
}

void dlGInput::InputDlg(const QString& mCaption, const QString& mText, QWidget* owner) {
    dlGInput(mCaption, mText, owner).exec();
}

void dlGInput::Enter() {
    if (mPlayers::Enter(oldName_.toStdString(), Text1->text().toStdString())) {
        accept();
        return;
    }
    Text1->setFocus();
}
