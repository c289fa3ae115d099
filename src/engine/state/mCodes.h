// Which numbers the codes of a game have. Each list is a switch, so that the compiler asks for a code that is
// missing in it. The rule codes have theirs in mOrder.
#pragma once

#include "engine/state/codes.h"

namespace mCodes {

// clang-format off
constexpr bool Known(GameType code) {
    using enum GameType;
    switch (code) {
        case Plain: case LimitedRuns: case CompleteRuns: case BaseFills: case LowFoundation: case OpenRedeal:
            return true;
    }
    return false;
}

constexpr bool Known(GoalType code) {
    using enum GoalType;
    switch (code) {
        case Aces: case Twos: case Kings: case PlainAces: case AcesAndKings: case FirstCard: case OneOfEachSuit:
            return true;
    }
    return false;
}

constexpr bool Known(StockType code) {
    using enum StockType;
    switch (code) {
        case Closed: case Open: case TwoSuits:
            return true;
    }
    return false;
}

constexpr bool Known(StockMove code) {
    using enum StockMove;
    switch (code) {
        case None: case OneToWaste: case OneToEachPile: case ByHand: case ThreeToWaste: case FirstThreeToPiles:
            return true;
    }
    return false;
}

constexpr bool Known(StockNum code) {
    using enum StockNum;
    switch (code) {
        case None: case NoRedeal: case Redeal:
            return true;
    }
    return false;
}

constexpr bool Known(HomeType code) {
    using enum HomeType;
    switch (code) {
        case Rows: case StairsRight: case BySuit: case Cone: case ClosedCone: case RandomSpread: case ClosedBlock:
        case StairsLeft: case AlternateRows: case EvenPilesOpen: case AllButPile4Open: case Pile4Open:
        case EndPilesOpen: case Piles048Open: case InverseCone: case ClosedInverseCone: case Yukon: case YukonRows:
        case DoubleYukon:
            return true;
    }
    return false;
}

constexpr bool Known(EmptyFillType code) {
    using enum EmptyFillType;
    switch (code) {
        case AnyCard: case KingOnly: case FromStock: case Nothing: case AceOnly:
            return true;
    }
    return false;
}

constexpr bool Known(AutoFill code) {
    using enum AutoFill;
    switch (code) {
        case None: case FromWaste: case NoneEither: case FromReserve:
            return true;
    }
    return false;
}

constexpr bool Known(RedealType code) {
    using enum RedealType;
    switch (code) {
        case WasteToStock: case GatherTableau:
            return true;
    }
    return false;
}

constexpr bool Known(SuitType code) {
    using enum SuitType;
    switch (code) {
        case OneSuit: case TwoSuits: case FourSuits:
            return true;
    }
    return false;
}
// clang-format on

}  // namespace mCodes
