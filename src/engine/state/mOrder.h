// The rule codes: which card may lie on which.
#pragma once

#include "engine/state/Card.h"
#include "engine/state/codes.h"

namespace mOrder {

enum class Direction : int { Down = -1, Either = 0, Up = 1 };
enum class SuitRule : int { Same = 1, Alternate = 2, Any = 3, Different = 4, SameColor = 5 };

/// Whether card B fits on card A. `AK`: Ace and King are neighbours.
[[nodiscard]] bool RankSuitOK(const CardFace& A, const CardFace& B, Direction Dir, SuitRule Rule, bool AK);
[[nodiscard]] bool OrderOK(const CardFace& A, const CardFace& B, RuleCode Order, bool AK);

}  // namespace mOrder
