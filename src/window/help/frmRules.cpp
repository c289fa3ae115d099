// The rules window.
#include "window/help/frmRules.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QShortcut>
#include <QVBoxLayout>

#include "engine/help/mRules.h"
#include "window/controls/mDialog.h"
#include "window/help/HelpBrowser.h"
#include "window/look/mIcons.h"

frmRules::frmRules() {
    setObjectName(QStringLiteral("frmRules"));
    setWindowIcon(mIcons::Application());
    browser_ = new HelpBrowser;
    const auto button = [](const char* name, const QString& text) {
        auto* made = new QPushButton(text);
        made->setObjectName(QLatin1String(name));
        return made;
    };
    QPushButton* back = button("cmdBack", tr("&Back"));
    QPushButton* contents = button("cmdContents", tr("&Contents"));
    QPushButton* close = button("cmdClose", tr("Close"));
    back->setEnabled(false);
    connect(back, &QPushButton::clicked, browser_, &QTextBrowser::backward);
    connect(browser_, &QTextBrowser::backwardAvailable, back, &QWidget::setEnabled);
    connect(contents, &QPushButton::clicked, this, &frmRules::ContentsWanted);
    connect(close, &QPushButton::clicked, this, &QWidget::close);
    connect(new QShortcut(Qt::Key_Escape, this), &QShortcut::activated, this, &QWidget::close);
    connect(browser_, &HelpBrowser::Shown, this, [this](const QUrl& address) {
        if (address.scheme() != QLatin1String("game")) return;
        setWindowTitle(tr("Rules of %1").arg(QString::fromStdString(mRules::Name(address.path().toInt()))));
    });

    auto* row = new QHBoxLayout;
    row->addWidget(back);
    row->addWidget(contents);
    row->addStretch();
    row->addWidget(close);
    auto* all = new QVBoxLayout(this);
    all->addWidget(browser_, 1);
    all->addLayout(row);
    mDialog::FirstSize(this, {fontMetrics().averageCharWidth() * 90, fontMetrics().height() * 38});
    browser_->setFocus();
}

void frmRules::ShowGame(int gameID) { browser_->Show(QUrl(QStringLiteral("game:%1").arg(gameID))); }
