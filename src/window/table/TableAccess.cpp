// The interfaces of the table, its piles and its cards, and what they tell when the game changes.
#include "window/table/TableAccess.h"

#include <algorithm>
#include <cmath>

#include <QAccessible>

#include "engine/commands/mKeys.h"
#include "window/table/TableKeys.h"
#include "window/table/TableView.h"

namespace {

using mReader::PilePlace;

QString Text(const std::string& text) { return QString::fromStdString(text); }

// The actions of cards and piles. Each is offered where it can be done.
QString LiftAction() { return TableView::tr("Lift"); }
QString DropAction() { return TableView::tr("Drop Here"); }
QString DealAction() { return TableView::tr("Deal"); }
QString RedealAction() { return TableView::tr("Redeal"); }

/// What piles and cards have in common: they are no objects of their own.
class PlaceAccess : public QAccessibleInterface, public QAccessibleActionInterface {
public:
    PlaceAccess(const TableAccess& table, const PilePlace& pile, int Pos = -1)
        : table_(table), stop_{pile, Pos} {}

    [[nodiscard]] const PilePlace& Pile() const { return stop_.Pile; }
    [[nodiscard]] const mFrame::Stop& Stop() const { return stop_; }

    [[nodiscard]] void* interface_cast(QAccessible::InterfaceType type) override {
        return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this)
                                                    : nullptr;
    }
    [[nodiscard]] QStringList actionNames() const override {
        QStringList names{setFocusAction()};
        for (const mKeys::Offer offer : mKeys::Offers(stop_)) {
            switch (offer) {
                case mKeys::Offer::Lift:
                    names << LiftAction();
                    break;
                case mKeys::Offer::Drop:
                    names << DropAction();
                    break;
                case mKeys::Offer::Deal:
                    names << DealAction();
                    break;
                case mKeys::Offer::Redeal:
                    names << RedealAction();
                    break;
            }
        }
        return names;
    }
    void doAction(const QString& name) override {
        const mFrame::Stop stop = stop_;
        const auto ask = [this](const std::function<mKeys::Answer()>& action) {
            TableKeys::Ask(table_.View(), action);
        };
        if (name == setFocusAction()) ask([stop] { return mKeys::GoTo(stop); });
        if (name == LiftAction()) ask([stop] { return mKeys::LiftAt(stop); });
        if (name == DropAction()) ask([stop] { return mKeys::DropAt(stop.Pile); });
        if (name == DealAction()) ask(mKeys::Deal);
        if (name == RedealAction()) ask(mKeys::Redeal);
    }
    [[nodiscard]] QStringList keyBindingsForAction(const QString&) const override { return {}; }

    [[nodiscard]] bool isValid() const override { return table_.isValid(); }
    [[nodiscard]] QObject* object() const override { return nullptr; }
    [[nodiscard]] QWindow* window() const override { return table_.window(); }
    void setText(QAccessible::Text, const QString&) override {}
    [[nodiscard]] QString text(QAccessible::Text kind) const override {
        if (kind == QAccessible::Description) return Text(mKeys::PlaceText(stop_));
        return kind == QAccessible::Name ? Name() : QString();
    }
    [[nodiscard]] QAccessible::State state() const override {
        QAccessible::State state = table_.StateAt(rect());
        state.focusable = true;
        state.focused = table_.View()->hasFocus() && mKeys::Place() == stop_;
        return state;
    }

protected:
    [[nodiscard]] virtual QString Name() const = 0;
    [[nodiscard]] const TableAccess& Table() const { return table_; }

private:
    const TableAccess& table_;
    mFrame::Stop stop_;  // of a pile: its mark
};

class CardAccess : public PlaceAccess {
public:
    CardAccess(const TableAccess& table, const PilePlace& pile, int Pos) : PlaceAccess(table, pile, Pos) {}

    [[nodiscard]] int Pos() const { return Stop().Pos; }

    [[nodiscard]] QAccessible::Role role() const override { return QAccessible::ListItem; }
    [[nodiscard]] QAccessibleInterface* parent() const override { return Table().Pile(Pile()); }
    [[nodiscard]] int childCount() const override { return 0; }
    [[nodiscard]] QAccessibleInterface* child(int) const override { return nullptr; }
    [[nodiscard]] QAccessibleInterface* childAt(int, int) const override { return nullptr; }
    [[nodiscard]] int indexOfChild(const QAccessibleInterface*) const override { return -1; }
    [[nodiscard]] QRect rect() const override {
        return PicID() < 0 ? QRect() : Table().OnScreen(mReader::CardArea(PicID()));
    }
    [[nodiscard]] QAccessible::State state() const override {
        QAccessible::State state = PlaceAccess::state();
        if (mReader::IsCovered(Pile(), Pos())) state.offscreen = true;
        return state;
    }

protected:
    [[nodiscard]] QString Name() const override {
        return PicID() < 0 ? QString() : Text(mReader::CardText(PicID()));
    }

private:
    [[nodiscard]] int PicID() const { return mReader::Card(Pile(), Pos()); }
};

class PileAccess : public PlaceAccess {
public:
    using PlaceAccess::PlaceAccess;

    [[nodiscard]] QAccessible::Role role() const override { return QAccessible::List; }
    [[nodiscard]] QAccessibleInterface* parent() const override {
        return QAccessible::queryAccessibleInterface(Table().object());
    }
    [[nodiscard]] int childCount() const override { return mReader::Count(Pile()); }
    [[nodiscard]] QAccessibleInterface* child(int index) const override {
        return index >= 0 && index < childCount() ? Table().Card(Pile(), index) : nullptr;
    }
    [[nodiscard]] QAccessibleInterface* childAt(int x, int y) const override {
        return child(mReader::PosAt(Pile(), Table().OnPlate(x, y)));
    }
    [[nodiscard]] int indexOfChild(const QAccessibleInterface* child) const override {
        const auto* card = dynamic_cast<const CardAccess*>(child);
        return card && card->Pile() == Pile() ? card->Pos() : -1;
    }
    [[nodiscard]] QRect rect() const override { return Table().OnScreen(mReader::PileArea(Pile())); }

protected:
    [[nodiscard]] QString Name() const override { return Text(mReader::PileText(Pile())); }
};

void Send(QAccessibleInterface* about, QAccessible::Event what) {
    QAccessibleEvent event(about, what);
    QAccessible::updateAccessibility(&event);
}

}  // namespace

TableAccess::TableAccess(TableView* view)
    : QAccessibleWidget(view, QAccessible::Canvas, TableView::tr("Table")), told_(Read()) {}

TableAccess::~TableAccess() {
    for (const auto& [place, id] : ids_) QAccessible::deleteAccessibleInterface(id);
}

QAccessibleInterface* TableAccess::Make(const QString&, QObject* object) {
    auto* view = qobject_cast<TableView*>(object);
    return view ? new TableAccess(view) : nullptr;
}

TableView* TableAccess::View() const { return static_cast<TableView*>(object()); }

QAccessibleInterface* TableAccess::Framed() const {
    const std::optional<mFrame::Stop> place = mKeys::Place();
    if (!place) return nullptr;
    return place->Pos >= 0 ? Card(place->Pile, place->Pos) : Pile(place->Pile);
}

QAccessibleInterface* TableAccess::focusChild() const {
    return View()->hasFocus() ? Framed() : QAccessibleWidget::focusChild();
}

int TableAccess::childCount() const { return static_cast<int>(mReader::Piles().size()); }

QAccessibleInterface* TableAccess::child(int index) const {
    const std::vector<PilePlace> piles = mReader::Piles();
    const auto i = static_cast<std::size_t>(index);
    return index >= 0 && i < piles.size() ? Pile(piles[i]) : nullptr;
}

QAccessibleInterface* TableAccess::childAt(int x, int y) const {
    if (!rect().contains(x, y)) return nullptr;
    const std::optional<PilePlace> pile = mReader::PileAt(OnPlate(x, y));
    return pile ? Pile(*pile) : nullptr;
}

int TableAccess::indexOfChild(const QAccessibleInterface* child) const {
    const auto* pile = dynamic_cast<const PileAccess*>(child);
    if (!pile) return -1;
    const std::vector<PilePlace> piles = mReader::Piles();
    const auto at = std::find(piles.begin(), piles.end(), pile->Pile());
    return at == piles.end() ? -1 : static_cast<int>(at - piles.begin());
}

QAccessibleInterface* TableAccess::Pile(const PilePlace& pile) const { return At({pile, -1}); }

QAccessibleInterface* TableAccess::Card(const PilePlace& pile, int Pos) const { return At({pile, Pos}); }

QAccessibleInterface* TableAccess::At(const Place& place) const {
    if (const auto known = ids_.find(place); known != ids_.end()) {
        return QAccessible::accessibleInterface(known->second);
    }
    const auto& [pile, Pos] = place;
    QAccessibleInterface* made = nullptr;
    if (Pos < 0) {
        made = new PileAccess(*this, pile);
    } else {
        made = new CardAccess(*this, pile, Pos);
    }
    ids_[place] = QAccessible::registerAccessibleInterface(made);
    return made;
}

QRect TableAccess::OnScreen(const mReader::Extent& area) const {
    const TableView* view = View();
    const QPoint start = view->mapFromScene(area.Left, area.Top);
    const QPoint end = view->mapFromScene(area.Left + area.Width, area.Top + area.Height);
    return {view->viewport()->mapToGlobal(start), QSize(end.x() - start.x(), end.y() - start.y())};
}

Point TableAccess::OnPlate(int x, int y) const {
    const TableView* view = View();
    const QPointF pixel = view->viewport()->mapFromGlobal(QPoint(x, y)) + QPointF(0.5, 0.5);  // its middle
    const QPointF point = view->viewportTransform().inverted().map(pixel);
    return {static_cast<int>(std::floor(point.x())), static_cast<int>(std::floor(point.y()))};
}

QAccessible::State TableAccess::StateAt(const QRect& place) const {
    QAccessible::State state;
    state.readOnly = true;
    state.invisible = this->state().invisible;
    state.offscreen = !place.intersects(rect());
    return state;
}

std::vector<TableAccess::Told> TableAccess::Read() {
    std::vector<Told> piles;
    for (const PilePlace& place : mReader::Piles()) {
        Told pile{place, Text(mReader::PileText(place)), {}};
        for (int Pos = 0; Pos < mReader::Count(place); ++Pos) {
            const int PicID = mReader::Card(place, Pos);
            pile.Cards << (PicID < 0 ? QString() : Text(mReader::CardText(PicID)));
        }
        piles.push_back(std::move(pile));
    }
    return piles;
}

void TableAccess::TellChanges(TableView* view) {
    if (!QAccessible::isActive()) return;
    if (auto* table = dynamic_cast<TableAccess*>(QAccessible::queryAccessibleInterface(view))) table->Tell();
}

void TableAccess::TellFocus(TableView* view) {
    if (!QAccessible::isActive()) return;
    auto* table = dynamic_cast<TableAccess*>(QAccessible::queryAccessibleInterface(view));
    if (!table) return;
    table->Tell();  // the place may be new
    if (QAccessibleInterface* framed = table->Framed()) Send(framed, QAccessible::Focus);
}

void TableAccess::Tell() {
    const std::vector<Told> before = std::exchange(told_, Read());
    const auto find = [](const std::vector<Told>& piles, const PilePlace& place) {
        return std::find_if(piles.begin(), piles.end(),
                            [&](const Told& pile) { return pile.Place == place; });
    };
    for (const Told& pile : before) {
        if (find(told_, pile.Place) != told_.end()) continue;
        for (int Pos = 0; Pos < pile.Cards.size(); ++Pos) Forget({pile.Place, Pos});
        TellGone({pile.Place, -1});
    }
    for (const Told& pile : told_) {
        const auto known = find(before, pile.Place);
        if (known == before.end()) {
            Send(Pile(pile.Place), QAccessible::ObjectCreated);
        } else {
            TellPile(*known, pile);
        }
    }
}

void TableAccess::TellPile(const Told& before, const Told& now) {
    const auto old = static_cast<int>(before.Cards.size());
    const auto current = static_cast<int>(now.Cards.size());
    for (int Pos = old - 1; Pos >= current; --Pos) TellGone({now.Place, Pos});
    for (int Pos = 0; Pos < std::min(old, current); ++Pos) {
        if (before.Cards[Pos] != now.Cards[Pos]) Send(Card(now.Place, Pos), QAccessible::NameChanged);
    }
    for (int Pos = old; Pos < current; ++Pos) Send(Card(now.Place, Pos), QAccessible::ObjectCreated);
    if (before.Name != now.Name) Send(Pile(now.Place), QAccessible::NameChanged);
}

void TableAccess::TellGone(const Place& place) {
    Send(At(place), QAccessible::ObjectDestroyed);
    Forget(place);
}

void TableAccess::Forget(const Place& place) {
    const auto known = ids_.find(place);
    if (known == ids_.end()) return;
    QAccessible::deleteAccessibleInterface(known->second);
    ids_.erase(known);
}
