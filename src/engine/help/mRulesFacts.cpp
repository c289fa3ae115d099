// From a game's numbers to what they come to in play, apart from the words.
#include "engine/help/mRulesFacts.h"

#include <algorithm>
#include <array>

#include "engine/help/mRulesWords.h"

namespace mRulesFacts {

namespace {

constexpr int ReadableStep = 150;  // twips between two cards that leave the lower one's corner in sight

// Numbers side by side, as a key.
template <typename... Numbers>
std::string Join(Numbers... numbers) {
    std::string key;
    ((key += std::to_string(static_cast<int>(numbers)), key += ' '), ...);
    return key;
}

int SuitsUsedOf(const Definition& game) {
    const int mostSuits = game.Deck < DeckCards ? SuitCount / 2 : SuitCount;
    if (game.Suits == SuitType::OneSuit) return 1;
    return game.Suits == SuitType::TwoSuits ? mostSuits / 2 : mostSuits;
}

StockUse StockOf(const Definition& game, const Shape& deal) {
    if (deal.StockCards == 0) return StockUse::None;
    if (game.StockKind == StockType::Open) return StockUse::Open;
    switch (game.StockPress) {
        case StockMove::OneToEachPile:
            return StockUse::ToPiles;
        case StockMove::ThreeToWaste:
            return StockUse::ThreeToWaste;
        case StockMove::FirstThreeToPiles:
            return StockUse::ThreeToPilesThenWaste;
        case StockMove::None:
        case StockMove::OneToWaste:
        case StockMove::ByHand:
            break;
    }
    return StockUse::OneToWaste;
}

AutoFill RefillOf(const Definition& game, const Shape& deal) {
    switch (game.Refill) {
        case AutoFill::FromWaste:
            return deal.StockCards > 0 ? AutoFill::FromWaste : AutoFill::None;
        case AutoFill::FromReserve:
            return deal.ResCards > 0 || (game.ResPiles > 0 && game.ResNum == ResFreeCells)
                       ? AutoFill::FromReserve
                       : AutoFill::None;
        case AutoFill::None:
        case AutoFill::NoneEither:
            break;
    }
    return AutoFill::None;
}

bool Directed(RuleCode code) { return mRulesWords::WayOf(code) != mRulesWords::Way::None; }

// Whether both codes allow the same where all cards are of one suit, and so of one colour.
bool SameInOneSuit(RuleCode a, RuleCode b) {
    using enum RuleCode;
    constexpr std::array<std::array<RuleCode, 3>, 3> alike{
        {{DownSuit, DownAny, DownColor}, {UpSuit, UpAny, UpColor}, {EitherSuit, EitherAny, EitherColor}}};
    return std::any_of(alike.begin(), alike.end(), [=](const auto& codes) {
        const auto within = [&](RuleCode code) {
            return std::find(codes.begin(), codes.end(), code) != codes.end();
        };
        return within(a) && within(b);
    });
}

// How the piles lie and whether covered cards can be read, as far as a player cares.
std::string SightKey(const Facts& facts) {
    const GroupLayout& home = facts.Game->Places->Home;
    return Join(home.PileOrder, std::min(home.Div, facts.Game->HomePiles), home.PosWidth > 0,
                facts.ReserveHidden);
}

std::string PilesKey(const Facts& facts) {
    const Definition& game = *facts.Game;
    if (!facts.Deal.Known) return Join(game.HomePattern, game.HomePiles);
    std::string key;
    for (const std::vector<bool>& pile : facts.Deal.Piles) key += Join(pile.size());
    return key;
}

std::string FacesKey(const Facts& facts) {
    std::string key;
    if (!facts.Deal.AnyClosed()) return key;
    for (const std::vector<bool>& pile : facts.Deal.Piles) {
        for (const bool closed : pile) key += closed ? 'x' : 'o';
        key += ' ';
    }
    return key;
}

std::string StartKey(const Facts& facts) {
    const Definition& game = *facts.Game;
    // Where runs leave by themselves only the rank on top of a run counts, and where it goes.
    if (facts.CompleteRuns) {
        return Join(-1, game.GoalPiles, game.GoalDiv, game.GoalBase == GoalType::Kings, facts.Deal.GoalCards);
    }
    const GoalType base = game.GoalBase == GoalType::PlainAces ? GoalType::Aces : game.GoalBase;
    return Join(game.GoalPiles, base, facts.Deal.GoalCards, game.Kind == GameType::LowFoundation);
}

std::string GoalKey(const Facts& facts) {
    const Definition& game = *facts.Game;
    if (facts.CompleteRuns) return Join(-1, game.GoalOrder);
    const bool directed = Directed(game.GoalOrder) || game.GoalUpDown;
    return Join(game.GoalOrder, directed && game.GoalAK != 0, game.GoalUpDown);
}

std::string FillKey(const Facts& facts) {
    const Definition& game = *facts.Game;
    if (facts.BaseFills) return Join(-1, game.HomeFill == EmptyFillType::FromStock);
    return Join(game.HomeFill);
}

std::string ReserveKey(const Facts& facts) {
    const Definition& game = *facts.Game;
    if (game.ResPiles == 0) return {};
    return Join(game.ResPiles, facts.Deal.ResCards, facts.FreeCells);
}

}  // namespace

Facts::Facts(const Definition& definition)
    : Game(&definition),
      Deal(ShapeOf(definition)),
      CompleteRuns(definition.Kind == GameType::CompleteRuns),
      Limited(definition.Kind == GameType::LimitedRuns || definition.Kind == GameType::BaseFills),
      BaseFills(definition.Kind == GameType::BaseFills),
      LiftOrder(RuleCode::Never),
      Stock(StockOf(definition, Deal)),
      ToWaste(Stock == StockUse::OneToWaste || Stock == StockUse::ThreeToWaste ||
              Stock == StockUse::ThreeToPilesThenWaste),
      Redeals(0),
      Gathers(false),
      Refill(RefillOf(definition, Deal)),
      ReserveHidden(Deal.ResCards > definition.ResPiles && definition.Places->Res.PosWidth < ReadableStep),
      FreeCells(definition.ResPiles > 0 && definition.ResNum == ResFreeCells),
      SuitsUsed(SuitsUsedOf(definition)) {
    if (definition.HomeMove) {
        LiftOrder = definition.HomeMulti != RuleCode::Never ? definition.HomeMulti : definition.HomeOrder;
        if (SuitsUsed == 1 && SameInOneSuit(LiftOrder, definition.HomeOrder))
            LiftOrder = definition.HomeOrder;
    }
    if (definition.StockMark == StockNum::Redeal) {
        const bool gathers = definition.Redeal == RedealType::GatherTableau;
        if (gathers || ToWaste) Redeals = definition.Redeals;
        Gathers = gathers && Redeals != 0;
    }
    const auto set = [this](Respect respect, std::string key) {
        Keys[static_cast<std::size_t>(respect)] = std::move(key);
    };
    const bool groups = LiftOrder != RuleCode::Never;
    const bool limited = Limited && groups;
    set(Respect::Deck,
        Join(definition.Deck, SuitsUsed, definition.StockKind == StockType::TwoSuits && SuitsUsed == 4));
    set(Respect::Piles, PilesKey(*this));
    set(Respect::Faces, FacesKey(*this));
    set(Respect::Kings, Join(definition.MoveKings));
    set(Respect::Sight, SightKey(*this));
    set(Respect::Build, Join(definition.HomeOrder, Directed(definition.HomeOrder) && definition.HomeAK != 0,
                             definition.NoH2H, definition.MaxCards));
    set(Respect::Lift,
        Join(LiftOrder == definition.HomeOrder && groups ? -1 : Number(LiftOrder),
             groups && !Directed(definition.HomeOrder) && Directed(LiftOrder) && definition.HomeAK != 0));
    set(Respect::Limit, Join(limited));
    set(Respect::Fill, FillKey(*this));
    set(Respect::Refill, Join(Refill));
    set(Respect::Start, StartKey(*this));
    set(Respect::Goal, GoalKey(*this));
    set(Respect::Stock, Join(Stock));
    set(Respect::Redeal, Join(Redeals, Gathers));
    set(Respect::Reserve, ReserveKey(*this));
    set(Respect::Auto, Join(definition.NoAuto));
}

int CardsToWin(const Facts& facts) {
    const int cards = facts.Game->Deck;
    return facts.CompleteRuns ? cards : std::min(cards, RankCount * facts.Game->GoalPiles);
}

}  // namespace mRulesFacts
