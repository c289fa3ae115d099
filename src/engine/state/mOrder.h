// The rule codes, each a demand on the ranks and one on the suits: which card may lie on which.
#pragma once

#include <optional>

#include "engine/state/Card.h"
#include "engine/state/codes.h"

namespace mOrder {

enum class Direction : int { Down = -1, Either = 0, Up = 1, SameRank = 2, AnyRank = 3, None = 4 };
enum class SuitRule : int { Same = 1, Alternate = 2, Any = 3, Different = 4, SameColor = 5 };

/// What a rule code demands.
struct Demand {
    Direction Ranks;
    SuitRule Suits;
};
/// Nothing for a number that is no rule code.
constexpr std::optional<Demand> DemandOf(RuleCode Order) {
    using enum Direction;
    switch (Order) {
        case RuleCode::Never:
            return Demand{None, SuitRule::Any};
        case RuleCode::DownSuit:
            return Demand{Down, SuitRule::Same};
        case RuleCode::UpSuit:
            return Demand{Up, SuitRule::Same};
        case RuleCode::EitherSuit:
            return Demand{Either, SuitRule::Same};
        case RuleCode::DownAlt:
            return Demand{Down, SuitRule::Alternate};
        case RuleCode::UpAlt:
            return Demand{Up, SuitRule::Alternate};
        case RuleCode::EitherAlt:
            return Demand{Either, SuitRule::Alternate};
        case RuleCode::DownAny:
            return Demand{Down, SuitRule::Any};
        case RuleCode::UpAny:
            return Demand{Up, SuitRule::Any};
        case RuleCode::Always:
            return Demand{AnyRank, SuitRule::Any};
        case RuleCode::SameRank:
            return Demand{SameRank, SuitRule::Any};
        case RuleCode::EitherAny:
            return Demand{Either, SuitRule::Any};
        case RuleCode::DownOther:
            return Demand{Down, SuitRule::Different};
        case RuleCode::DownColor:
            return Demand{Down, SuitRule::SameColor};
        case RuleCode::UpColor:
            return Demand{Up, SuitRule::SameColor};
        case RuleCode::EitherColor:
            return Demand{Either, SuitRule::SameColor};
        case RuleCode::UpOther:
            return Demand{Up, SuitRule::Different};
    }
    return std::nullopt;
}

/// Whether rank b fits on rank a. `AK`: Ace and King are neighbors.
constexpr bool RankFits(int a, int b, Direction Dir, bool AK) {
    const bool down = b == a - 1 || (AK && a == Ace && b == King);
    const bool up = b == a + 1 || (AK && a == King && b == Ace);
    switch (Dir) {
        case Direction::Down:
            return down;
        case Direction::Up:
            return up;
        case Direction::Either:
            return down || up;
        case Direction::SameRank:
            return a == b;
        case Direction::AnyRank:
            return true;
        case Direction::None:
            break;
    }
    return false;
}

/// Whether card B fits on card A.
[[nodiscard]] bool RankSuitOK(const CardFace& A, const CardFace& B, Direction Dir, SuitRule Rule, bool AK);
/// The same by a rule code; under a number that is none nothing fits.
[[nodiscard]] bool OrderOK(const CardFace& A, const CardFace& B, RuleCode Order, bool AK);

}  // namespace mOrder
