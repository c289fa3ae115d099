// A player without sense: legal and illegal drags, presses, redeals, undo, redo, autoplay on and off,
// in any order. Each seed plays the same on every machine.
#pragma once

#include <bitset>
#include <cstdint>
#include <random>

#include "engine/state/cGames.h"
#include "engine/state/cPlate.h"

/// Where a drop on the pile looks for the card.
[[nodiscard]] Point DropPlace(int Cell, int Pile);

class RandomPlayer {
public:
    explicit RandomPlayer(std::uint32_t seed) : random_(seed) {}

    /// One action on the running game; it may win the game.
    void Act();
    /// What the last action was.
    [[nodiscard]] const char* LastAction() const { return lastAction_; }
    /// To be told when a game has started.
    void Forget() { displaced_.reset(); }

    /// A refused drop of a group leaves its cards a drag's steps apart, whatever the pile's own, until
    /// a later move: the place of such a card is not that of the rules.
    [[nodiscard]] bool Displaced(int PicID) const { return displaced_[static_cast<std::size_t>(PicID)]; }

private:
    int Pick(int limit) { return static_cast<int>(random_() % static_cast<std::uint32_t>(limit)); }
    int AnyCard();
    void DragSensibly();
    void DragAnywhere();
    void Drag(int PicID, int X, int Y);
    void Interrupt();

    std::mt19937 random_;
    std::bitset<MaxCards> displaced_;
    const char* lastAction_ = "none";
};
