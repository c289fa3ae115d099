// The about box: name, version, rights, and the libraries in use.
#include "window/dialogs/frmAbout.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include <fmt/core.h>

#include "engine/state/cData.h"
#include "window/controls/mDialog.h"
#include "window/look/mIcons.h"

frmAbout::frmAbout(QWidget* owner) : QDialog(owner) {
    setObjectName(QStringLiteral("frmAbout"));
    setWindowTitle(tr("About..."));
    setWindowIcon(mIcons::Application());

    auto* picture = new QLabel;
    picture->setObjectName(QStringLiteral("picIcon"));
    picture->setAccessibleName(tr("The program's icon"));
    constexpr int IconSize = 96;
    picture->setPixmap(mIcons::Application().pixmap(QSize(IconSize, IconSize), devicePixelRatioF()));
    picture->setAlignment(Qt::AlignTop);

    auto* lblName = new QLabel(QString::fromStdString(gData->ProdName()));
    lblName->setObjectName(QStringLiteral("lblName"));
    QFont large = lblName->font();
    large.setBold(true);
    large.setPointSizeF(large.pointSizeF() * 1.6);
    lblName->setFont(large);

    const int fmtMajor = FMT_VERSION / 10000;
    const int fmtMinor = FMT_VERSION / 100 % 100;
    const QStringList lines{
        tr("Version %1").arg(QString::fromStdString(gData->Version())),
        tr("%1 patience games.").arg(gData->TotalGames()),
        tr("This program is free software under the GNU General Public License, version "
           "3 or any later version. It comes with no warranty."),
        tr("It uses these libraries:\nQt %1, under the GNU Lesser General Public "
           "License, version 3, or the GNU General Public License\nQt Charts %1, under the "
           "GNU General Public License, version 3\nfmt %2.%3, under the MIT licence")
            .arg(QLatin1String(qVersion()))
            .arg(fmtMajor)
            .arg(fmtMinor)};
    auto* texts = new QVBoxLayout;
    texts->addWidget(lblName);
    for (qsizetype i = 0; i < lines.size(); ++i) {
        auto* line = new QLabel(lines[i]);
        line->setObjectName(QStringLiteral("lblLine%1").arg(i + 1));
        line->setWordWrap(true);
        line->setTextInteractionFlags(Qt::TextSelectableByMouse);
        texts->addWidget(line);
    }

    auto* cmdOK = new QPushButton(tr("OK"));
    cmdOK->setObjectName(QStringLiteral("cmdOK"));
    cmdOK->setDefault(true);
    connect(cmdOK, &QPushButton::clicked, this, &QDialog::accept);
    auto* top = new QHBoxLayout;
    top->setSpacing(fontMetrics().height());
    top->addWidget(picture);
    top->addLayout(texts, 1);
    auto* all = new QVBoxLayout(this);
    all->addLayout(top);
    all->addWidget(cmdOK, 0, Qt::AlignRight);
    const int beside = all->sizeHint().width() - texts->sizeHint().width();
    mDialog::FirstSize(this, {fontMetrics().averageCharWidth() * 66 + beside, 0});
    cmdOK->setFocus();
}
