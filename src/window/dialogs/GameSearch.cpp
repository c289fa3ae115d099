// The field, its keys and its menu.
#include "window/dialogs/GameSearch.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QStyle>
#include <QToolButton>
#include <QVBoxLayout>

#include "engine/commands/mFind.h"

namespace {

QString Padded(const QString& words) { return QLatin1Char(' ') + words.simplified() + QLatin1Char(' '); }

}  // namespace

GameSearch::GameSearch(QWidget* parent)
    : QWidget(parent), txtSearch_(new QLineEdit), cmdFacets_(new QToolButton), lblFound_(new QLabel) {
    txtSearch_->setObjectName(QStringLiteral("txtSearch"));
    txtSearch_->setClearButtonEnabled(true);
    txtSearch_->setPlaceholderText(tr("A name, or words of the rules"));
    txtSearch_->installEventFilter(this);
    cmdFacets_->setObjectName(QStringLiteral("cmdFacets"));
    cmdFacets_->setText(tr("&Kinds"));
    cmdFacets_->setToolTip(tr("Kinds of games to search for"));
    cmdFacets_->setPopupMode(QToolButton::InstantPopup);
    cmdFacets_->setFocusPolicy(Qt::StrongFocus);
    // Many styles draw the sign of a menu into the corner of such a button, and leave no room for it.
    cmdFacets_->setMinimumWidth(cmdFacets_->sizeHint().width() +
                                style()->pixelMetric(QStyle::PM_MenuButtonIndicator));
    lblFound_->setObjectName(QStringLiteral("lblFound"));
    auto* label = new QLabel(tr("&Search:"));
    label->setBuddy(txtSearch_);
    FillMenu();

    auto* row = new QHBoxLayout;
    row->addWidget(label);
    row->addWidget(txtSearch_, 1);
    row->addWidget(cmdFacets_);
    auto* all = new QVBoxLayout(this);
    all->setContentsMargins(0, 0, 0, 0);
    all->addLayout(row);
    all->addWidget(lblFound_);
    lblFound_->hide();
    setFocusProxy(txtSearch_);
    connect(txtSearch_, &QLineEdit::textChanged, this, &GameSearch::Changed);
}

QString GameSearch::Words() const { return txtSearch_->text().simplified(); }

void GameSearch::ShowFound(int games) {
    lblFound_->setVisible(!Words().isEmpty());
    lblFound_->setText(games == 0   ? tr("No game holds all of these words.")
                       : games == 1 ? tr("1 game")
                                    : tr("%1 games").arg(games));
}

void GameSearch::FillMenu() {
    auto* menu = new QMenu(cmdFacets_);
    for (const auto& group : mFind::Menu()) {
        if (!menu->isEmpty()) menu->addSeparator();
        for (const mFind::Facet& facet : group) {
            QAction* entry = menu->addAction(QLatin1String(facet.Label));
            entry->setCheckable(true);
            entry->setData(QLatin1String(facet.Words));
            connect(entry, &QAction::triggered, this, [this, entry] { Flip(entry->data().toString()); });
        }
    }
    // Checked is what the field holds, however it came there.
    connect(menu, &QMenu::aboutToShow, this, [this, menu] {
        for (QAction* entry : menu->actions()) {
            entry->setChecked(
                Padded(txtSearch_->text()).contains(Padded(entry->data().toString()), Qt::CaseInsensitive) &&
                !entry->isSeparator());
        }
    });
    cmdFacets_->setMenu(menu);
}

void GameSearch::Flip(const QString& facet) {
    QString words = Padded(txtSearch_->text());
    const int at = static_cast<int>(words.indexOf(Padded(facet), 0, Qt::CaseInsensitive));
    if (at >= 0) {
        words.replace(at, Padded(facet).size(), QStringLiteral(" "));
    } else {
        words += facet;
    }
    txtSearch_->setText(words.simplified());
}

bool GameSearch::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::KeyPress) return QWidget::eventFilter(watched, event);
    switch (static_cast<QKeyEvent*>(event)->key()) {
        case Qt::Key_Escape:
            if (txtSearch_->text().isEmpty()) break;
            txtSearch_->clear();
            return true;
        case Qt::Key_Down:
            Q_EMIT ToList();
            return true;
        default:
            break;
    }
    return QWidget::eventFilter(watched, event);
}
