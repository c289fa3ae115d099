// The rule codes, each as a direction and a demand on the suits.
#include "engine/state/mOrder.h"

namespace mOrder {

namespace {

bool RankFits(int a, int b, Direction Dir, bool AK) {
    const bool down = b == a - 1 || (AK && a == Ace && b == King);
    const bool up = b == a + 1 || (AK && a == King && b == Ace);
    switch (Dir) {
        case Direction::Down:
            return down;
        case Direction::Up:
            return up;
        case Direction::Either:
            break;
    }
    return down || up;
}

}  // namespace

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
    using enum Direction;
    const auto fits = [&](Direction Dir, SuitRule Rule) { return RankSuitOK(A, B, Dir, Rule, AK); };
    switch (Order) {
        case RuleCode::Never:
            return false;
        case RuleCode::DownSuit:
            return fits(Down, SuitRule::Same);
        case RuleCode::UpSuit:
            return fits(Up, SuitRule::Same);
        case RuleCode::EitherSuit:
            return fits(Either, SuitRule::Same);
        case RuleCode::DownAlt:
            return fits(Down, SuitRule::Alternate);
        case RuleCode::UpAlt:
            return fits(Up, SuitRule::Alternate);
        case RuleCode::EitherAlt:
            return fits(Either, SuitRule::Alternate);
        case RuleCode::DownAny:
            return fits(Down, SuitRule::Any);
        case RuleCode::UpAny:
            return fits(Up, SuitRule::Any);
        case RuleCode::Always:
            return true;
        case RuleCode::SameRank:
            return A.Num == B.Num;
        case RuleCode::EitherAny:
            return fits(Either, SuitRule::Any);
        case RuleCode::DownOther:
            return fits(Down, SuitRule::Different);
        case RuleCode::DownColor:
            return fits(Down, SuitRule::SameColor);
        case RuleCode::UpColor:
            return fits(Up, SuitRule::SameColor);
        case RuleCode::EitherColor:
            return fits(Either, SuitRule::SameColor);
        case RuleCode::UpOther:
            return fits(Up, SuitRule::Different);
    }
    return false;
}

}  // namespace mOrder
