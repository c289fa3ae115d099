// The table for screen readers and other assistive programs. The table has the running game's piles as
// children, a pile its cards from bottom to top. A child stands for a place: when a card moves, the last
// child of one pile goes and another pile gets one more.
#pragma once

#include <map>
#include <tuple>
#include <vector>

#include <QAccessibleWidget>
#include <QRect>
#include <QStringList>

#include "engine/commands/mReader.h"

class TableView;

class TableAccess : public QAccessibleWidget {
public:
    explicit TableAccess(TableView* view);
    ~TableAccess() override;

    /// For QAccessible::installFactory.
    static QAccessibleInterface* Make(const QString& className, QObject* object);
    /// Tells the assistive programs what has changed since the last call. Only while one is active.
    static void TellChanges(TableView* view);

    /// Tells them that the keyboard's frame has come to another place.
    static void TellFocus(TableView* view);

    [[nodiscard]] QAccessibleInterface* focusChild() const override;
    [[nodiscard]] int childCount() const override;
    [[nodiscard]] QAccessibleInterface* child(int index) const override;
    [[nodiscard]] QAccessibleInterface* childAt(int x, int y) const override;
    [[nodiscard]] int indexOfChild(const QAccessibleInterface* child) const override;

    // For the piles and cards.
    [[nodiscard]] TableView* View() const;
    [[nodiscard]] QAccessibleInterface* Pile(const mReader::PilePlace& pile) const;
    [[nodiscard]] QAccessibleInterface* Card(const mReader::PilePlace& pile, int Pos) const;
    /// Pixels of the screen.
    [[nodiscard]] QRect OnScreen(const mReader::Extent& area) const;
    /// Twips of the plate.
    [[nodiscard]] Point OnPlate(int x, int y) const;
    /// Of what covers that part of the screen.
    [[nodiscard]] QAccessible::State StateAt(const QRect& rect) const;

private:
    using Place = std::tuple<mReader::PilePlace, int>;  // a pile's Pos is -1

    /// What was told of a pile last.
    struct Told {
        mReader::PilePlace Place;
        QString Name;
        QStringList Cards;
    };
    [[nodiscard]] static std::vector<Told> Read();

    [[nodiscard]] QAccessibleInterface* Framed() const;
    [[nodiscard]] QAccessibleInterface* At(const Place& place) const;
    void Tell();
    void TellPile(const Told& before, const Told& now);
    void TellGone(const Place& place);
    void Forget(const Place& place);

    // The interfaces live in Qt's cache, under these ids.
    mutable std::map<Place, QAccessible::Id> ids_;
    std::vector<Told> told_;
};
