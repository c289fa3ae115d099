// From a game's numbers to tables.
#include "solver/Rules.h"

#include <algorithm>

#include "engine/state/mDeal.h"
#include "engine/state/mOrder.h"
#include "solver/Mix.h"

namespace Solver {

int CellOf(int pile) {
    if (IsHome(pile)) return Home;
    if (IsRes(pile)) return Res;
    if (IsGoal(pile)) return Goal;
    return pile == StockPile ? Stock : Waste;
}

int NumberOf(int pile) {
    if (IsHome(pile)) return pile - FirstHome;
    if (IsRes(pile)) return pile - FirstRes;
    return IsGoal(pile) ? pile - FirstGoal : 0;
}

namespace {

using Fits = std::array<KindSet, Kinds>;

// For each kind, the kinds that fit on it by a rule code.
Fits FitsOf(const std::array<CardFace, Kinds>& faces, RuleCode order, bool wraps) {
    Fits fits{};
    for (std::size_t a = 0; a < Kinds; ++a) {
        for (std::size_t b = 0; b < Kinds; ++b) {
            if (mOrder::OrderOK(faces[a], faces[b], order, wraps)) fits[a] |= KindSet{1} << b;
        }
    }
    return fits;
}

// Whether a rule treats two kinds alike, above and below every other kind.
bool TreatsAlike(const Fits& fits, std::size_t a, std::size_t b) {
    if (fits[a] != fits[b]) return false;
    return std::all_of(fits.begin(), fits.end(),
                       [&](KindSet set) { return (set >> a & 1) == (set >> b & 1); });
}

}  // namespace

Rules::Rules(const cGames& game, Switches switches)
    : HomePiles(game.Piles(Home)),
      ResPiles(game.Piles(Res)),
      GoalPiles(game.Piles(Goal)),
      TotalCards(game.TotalCards()),
      MultiMove(game.MultiMove() && !switches.SingleCards),
      LimitedRuns(game.GameType() == GameType::LimitedRuns || game.GameType() == GameType::BaseFills),
      RunsLeave(game.GameType() == GameType::CompleteRuns),
      RunTop(game.GoalType() == GoalType::Kings ? King : Ace),
      GoalDiv(game.GoalDiv()),
      OwnBases(game.GoalType() == GoalType::OneOfEachSuit),
      UpDown(game.GoalUpDown()),
      FreeCells(game.ResNum() == ResFreeCells),
      FillFromStock(game.EmptyFillType() == EmptyFillType::FromStock),
      NoH2H(game.NoH2HMove),
      HomeMax(game.HomeMaxCards),
      Refill(game.AutoFill()),
      Returns(!switches.NoReturn),
      Autoplay(switches.Autoplay && !game.DisAutoPlay()),
      Press(game.StockMove()),
      OpenStock(game.StockType() == StockType::Open),
      CanRedeal(game.StockNum == StockNum::Redeal && game.Redeals() != 0),
      Redeals(game.Redeals()),
      Gathers(game.RedealType() == RedealType::GatherTableau) {
    CardsToWin = RunsLeave ? TotalCards : std::min(TotalCards, RankCount * GoalPiles);
    FollowUps = Autoplay || RunsLeave || Refill == AutoFill::FromWaste || Refill == AutoFill::FromReserve;
    DealsOnto =
        (!OpenStock && (Press == StockMove::OneToEachPile || Press == StockMove::FirstThreeToPiles)) ||
        (Gathers && CanRedeal);
    TalonFree = !OpenStock && Press != StockMove::OneToEachPile && Press != StockMove::FirstThreeToPiles &&
                Refill != AutoFill::FromWaste && !(CanRedeal && Gathers) && !Autoplay;
    std::array<CardFace, Kinds> faces;
    for (int kind = 0; kind < Kinds; ++kind) {
        faces[static_cast<std::size_t>(kind)] = mDeal::FaceOf(kind, game.SuitType());
        Copies[static_cast<std::size_t>(kind)] =
            static_cast<std::uint8_t>((TotalCards > kind ? 1 : 0) + (TotalCards > kind + Kinds ? 1 : 0));
    }
    PackCount = TotalCards > Kinds ? 2 : 1;
    for (int value = 0; value < TotalCards; ++value) Packs[value < Kinds ? 0 : 1] |= Only(value % Kinds);
    HomeFits = FitsOf(faces, game.Order(Home, 0), game.AK(Home) != 0);
    LiftFits = FitsOf(faces, game.MultiOrder(), game.AK(Home) != 0);
    GoalFits[0] = FitsOf(faces, game.Order(Goal, 0), game.AK(Goal) != 0);
    GoalFits[1] = FitsOf(faces, game.Order(Goal, GoalPiles - 1), game.AK(Goal) != 0);
    // Read with the roles reversed: by kind of the card below, the cards that continue a leaving run upward.
    const Fits leaving = FitsOf(faces, game.Order(Goal, 0), false);
    for (std::size_t a = 0; a < Kinds; ++a) {
        for (std::size_t b = 0; b < Kinds; ++b) {
            if ((leaving[a] >> b & 1) != 0) RunFits[b] |= KindSet{1} << a;
            if ((HomeFits[a] >> b & 1) != 0) HomeUnder[b] |= KindSet{1} << a;
        }
    }

    SetBase(Base, EmptyNum);

    // Two kinds of one rank that every rule treats alike can change places in any position without a change
    // of what can be done there: ranks decide what an empty pile takes, and the tables all the rest. Only
    // where complete runs of different Aces may land on one foundation pile, the suit of the Ace counts.
    const bool sharedGoals = RunsLeave && GoalDiv != 0 && TotalCards / RankCount > GoalDiv;
    for (std::size_t a = 0; a < Kinds; ++a) {
        Alike[a] = static_cast<std::uint8_t>(a);
        for (std::size_t b = a % RankCount; b < a; b += RankCount) {
            const bool countsForRuns = sharedGoals && static_cast<int>(a % RankCount) == RunTop;
            if (countsForRuns || Copies[a] != Copies[b]) continue;
            if (!TreatsAlike(HomeFits, a, b) || !TreatsAlike(LiftFits, a, b) || !TreatsAlike(RunFits, a, b) ||
                !TreatsAlike(GoalFits[0], a, b) || !TreatsAlike(GoalFits[1], a, b)) {
                continue;
            }
            Alike[a] = static_cast<std::uint8_t>(b);
            break;
        }
        for (const unsigned face : {0U, unsigned{Closed}}) {
            const std::uint64_t key = Mixed(Alike[a] + face + 1);
            Key[a + face] = key;
            Key[a + SecondDeck + face] = key;
        }
    }
}

void Rules::SetBase(int base, int emptyNum) {
    Base = base;
    EmptyNum = emptyNum;
    BaseKinds = EmptyTakes = 0;
    for (int kind = 0; kind < Kinds; ++kind) {
        if (RankOf(kind) == base) BaseKinds |= Only(kind);
        if (emptyNum == -1 || RankOf(kind) == emptyNum) EmptyTakes |= Only(kind);
    }
}

}  // namespace Solver
