// Judging two cards.
#include "engine/state/mOrder.h"

namespace mOrder {

bool RankSuitOK(const CardFace& A, const CardFace& B, Direction Dir, SuitRule Rule, bool AK) {
    if (!RankFits(A.Num, B.Num, Dir, AK)) return false;
    switch (Rule) {
        case SuitRule::Same:
            return A.Suit == B.Suit;
        case SuitRule::Alternate:
            return A.Color() != B.Color();
        case SuitRule::Different:
            return A.Suit != B.Suit;
        case SuitRule::SameColor:
            return A.Color() == B.Color();
        case SuitRule::Any:
            break;
    }
    return true;
}

bool OrderOK(const CardFace& A, const CardFace& B, RuleCode Order, bool AK) {
    const std::optional<Demand> demand = DemandOf(Order);
    return demand && RankSuitOK(A, B, demand->Ranks, demand->Suits, AK);
}

}  // namespace mOrder
