// Counting what makes a position good or bad.
#include "PositionWorth.h"

#include <algorithm>
#include <cmath>

#include "engine/rules/mFunc.h"
#include "engine/state/cArray.h"
#include "engine/state/cGames.h"
#include "engine/state/cPlate.h"

namespace {

// How many cards come before this one on its foundation. Where foundations begin with different ranks,
// that of the card's suit counts; where they build both ways, the nearer end.
int StepsFromBase(const CardRecord& card) {
    int base = gGoalBase;
    if (gGames->GoalType() == GoalType::OneOfEachSuit) {
        for (int p = 0; p < gGames->Piles(Goal); ++p) {
            if (gArray->GetTop(Goal, p) < 0) continue;
            const CardRecord& first = PicBack.PicCards(gArray->GetPicID(Goal, p, 0));
            if (first.Suit == card.Suit) base = first.Num;
        }
    }
    if (gGames->GoalUpDown()) return std::min(card.Num, RankCount - 1 - card.Num);
    const auto demand = mOrder::DemandOf(gGames->Order(Goal, 0));
    const bool down = demand && demand->Ranks == mOrder::Direction::Down;
    return ((down ? base - card.Num : card.Num - base) + RankCount) % RankCount;
}

}  // namespace

PositionWorth::PositionWorth(std::mt19937& random) {
    weights_[OnFoundations] = 4;
    weights_[Closed] = -4;
    weights_[Covering] = -2;
    weights_[OverNext] = -0.6;
    weights_[Pairs] = 0.8;
    weights_[MovingPairs] = 0.8;
    weights_[RunPairs] = 2.5;
    weights_[EmptyPiles] = 4;
    weights_[EmptyCells] = 1.5;
    weights_[InStock] = -0.3;
    weights_[InWaste] = -0.3;
    std::uniform_real_distribution<double> power(-1.2, 1.2);
    for (double& weight : weights_) weight *= std::exp(power(random));
}

// Cards that lie on others of which the foundations need them later than those.
void PositionWorth::CountBuried(Counts& counts, int Cell, int pile) {
    const int top = gArray->GetTop(Cell, pile);
    int lowest = RankCount;
    for (int Pos = 0; Pos <= top; ++Pos) {
        const int PicID = gArray->GetPicID(Cell, pile, Pos);
        const int steps = StepsFromBase(PicBack.PicCards(PicID));
        if (steps > lowest) ++counts[Covering];
        lowest = std::min(lowest, steps);
        for (int goal = 0; goal < gGames->Piles(Goal); ++goal) {
            if (!mFunc::GoalAccepts(PicID, goal, 0)) continue;
            counts[OverNext] += top - Pos;
            break;
        }
    }
}

// Neighbours that follow each other.
void PositionWorth::CountPairs(Counts& counts, int pile) {
    const bool runs = gGames->GameType() == GameType::CompleteRuns;
    const bool wraps = gGames->AK(Home) != 0;
    const RuleCode order = gGames->Order(Home, 0);
    const RuleCode lifted = gGames->MultiOrder();
    const RuleCode leaving = gGames->Order(Goal, 0);
    int run = 0;
    for (int Pos = 0; Pos <= gArray->GetTop(Home, pile); ++Pos) {
        const int PicID = gArray->GetPicID(Home, pile, Pos);
        if (PicBack.PicCards(PicID).FaceMode == 1) ++counts[Closed];
        if (Pos == 0) continue;
        const int below = gArray->GetPicID(Home, pile, Pos - 1);
        if (PicBack.PicCards(below).FaceMode == 1) continue;
        if (mFunc::OrderOK(below, PicID, order, wraps)) ++counts[Pairs];
        if (lifted != order && mFunc::OrderOK(below, PicID, lifted, wraps)) ++counts[MovingPairs];
        if (!runs) continue;
        constexpr double LongerRun = 0.15;
        run = mFunc::OrderOK(PicID, below, leaving, false) ? run + 1 : 0;
        counts[RunPairs] += run == 0 ? 0 : 1 + LongerRun * run;
    }
}

double PositionWorth::operator()() const {
    Counts counts{};
    counts[OnFoundations] = gArray->TotalGoalCards();
    for (int pile = 0; pile < gGames->Piles(Home); ++pile) CountPairs(counts, pile);
    if (gGames->GameType() != GameType::CompleteRuns) {
        for (const int Cell : {Home, Waste, Res}) {
            for (int pile = 0; pile < gGames->Piles(Cell); ++pile) CountBuried(counts, Cell, pile);
        }
    }
    counts[EmptyPiles] = mFunc::CountEmpty(Home);
    if (gGames->ResNum() == ResFreeCells) counts[EmptyCells] = mFunc::CountEmpty(Res);
    counts[InStock] = gArray->GetTop(Stock) + 1;
    counts[InWaste] = gArray->GetTop(Waste) + 1;
    double worth = 0;
    for (std::size_t i = 0; i < FeatureCount; ++i) worth += weights_[i] * counts[i];
    return worth;
}
