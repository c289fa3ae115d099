// The short names that the columns of the game tables are written in.
#pragma once

#include "engine/state/codes.h"

namespace Columns {

/// In a cell of a table: the game has no such pile group, or does nothing of that kind.
struct NoEntry {
    constexpr operator int() const { return 0; }  // NOLINT(google-explicit-constructor): a table cell
    template <typename Code>
    requires requires { Code::None; }
    constexpr operator Code() const {  // NOLINT(google-explicit-constructor)
        return Code::None;
    }
};
inline constexpr NoEntry none;

inline constexpr bool yes = true;
inline constexpr bool no = false;

using enum RuleCode;
/// In the column of the lifted run: it must obey the tableau's own rule.
inline constexpr RuleCode AsOrder = RuleCode::Never;

using enum EmptyFillType;
using enum GameType;
using enum GoalType;
using enum HomeType;
using enum RedealType;
using enum SuitType;

using AutoFill::FromReserve;
using AutoFill::FromWaste;
using AutoFill::NoneEither;

using StockMove::ByHand;
using StockMove::FirstThreeToPiles;
using StockMove::OneToEachPile;
using StockMove::OneToWaste;
using StockMove::ThreeToWaste;

using StockNum::NoRedeal;
using StockNum::Redeal;

using StockType::Closed;
using StockType::Open;
/// The deal takes the first two suits only.
inline constexpr StockType TwoSuitDeal = StockType::TwoSuits;

/// What may be dropped on an empty reserve pile.
inline constexpr int OneCard = ResFreeCells;
inline constexpr int NoDrop = ResNoDrop;

}  // namespace Columns
