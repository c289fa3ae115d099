// The frame's state, and the actions of keys and screen readers.
#include "engine/commands/mKeys.h"

#include <algorithm>
#include <tuple>
#include <utility>

#include "engine/commands/mGen.h"
#include "engine/commands/mMain.h"
#include "engine/commands/mSpoken.h"
#include "engine/rules/mFunc.h"
#include "engine/rules/mPlay.h"
#include "engine/state/cArray.h"
#include "engine/state/cData.h"

namespace mKeys {

namespace {

using mFrame::Stop;
using mReader::PilePlace;

// Over a pile the hand holds the card a little off the place where it would lie, so that both are seen. On
// piles that are not fanned it would hide the card below but for its index.
constexpr int HandRight = 150;  // twips
constexpr int HandDown = 100;
constexpr int HandBelowIndex = 360;

constexpr PilePlace TheStock{Stock, 0};

bool shown = false;
std::optional<Stop> stand;
bool onTop = false;  // the frame stood on top of its pile

// The deal that the frame stands in.
using DealName = std::tuple<std::string, GameNumber, Moment>;
DealName deal;

bool Running() { return gData && gData->Figures.GameRunning && !mGen::Dealing(); }

bool Holding() { return mMain::InHand() == mMain::Hand::Keys; }

void StandAt(const Stop& stop) {
    stand = stop;
    onTop = mFrame::TopOf(stop.Pile) == stop;
}

std::optional<Stop> FirstStop() {
    const std::vector<Stop> stops = mFrame::Stops();
    return stops.empty() ? std::nullopt : mFrame::TopOf(stops.front().Pile);
}

PilePlace Source() {
    const int held = mMain::CardInHand();
    return {mFunc::CardCell(held), mFunc::CardPile(held)};
}

// The hand goes over the pile where the frame stands.
void Carry() {
    const PilePlace& pile = stand->Pile;
    if (pile == Source()) {
        mMain::Carry(gDrag.gDownLeft + HandRight, gDrag.gDownTop + HandDown);
    } else if (pile.Cell == Home && stand->Pos >= 0) {
        const Point place = gGames->Position(Home, pile.Pile, stand->Pos + 1);
        mMain::Carry(place.X + HandRight, place.Y + HandDown);
    } else {
        const mReader::Extent place = mFrame::AreaOf(*stand);
        mMain::Carry(place.Left + HandRight, place.Top + HandBelowIndex);
    }
}

Answer Refuse(const std::string& why) {
    mSpoken::Say(why);
    return Answer::Refused;
}

// What the keys held lies on that pile now, or has gone on from there.
void StandWhereItLies(int PicID, const PilePlace& pile) {
    if (!Running()) return;
    const bool there = mFunc::CardCell(PicID) == pile.Cell && mFunc::CardPile(PicID) == pile.Pile;
    StandAt(there ? Stop{pile, mFunc::CardPos(PicID)} : mFrame::TopOf(pile).value_or(*stand));
}

// The first key only brings the frame up, where it stood last or at the first pile: nobody lifts what they
// have not seen. Nothing more is to be done then, nor where keys have no say.
std::optional<Answer> ComeUp() {
    if (!Running() || mMain::InHand() == mMain::Hand::Mouse) return Answer::Nothing;
    Follow();
    if (!stand) return Answer::Nothing;
    if (std::exchange(shown, true)) return std::nullopt;
    return Answer::Done;
}

Answer Drop() {
    const int held = mMain::CardInHand();
    const PilePlace pile = stand->Pile;
    if (pile == Source()) return PutBack();
    if (!mMain::DropOn(pile.Cell, pile.Pile)) return Refuse(mSpoken::Refusal(held, pile));
    StandWhereItLies(held, pile);
    return Answer::Done;
}

Answer LiftHere() {
    const int PicID = mReader::Card(stand->Pile, stand->Pos);
    if (PicID < 0) return Refuse(mReader::PileText(stand->Pile));
    mMain::Lift(PicID);
    if (!Holding()) {
        int above = 0;
        return Refuse(mSpoken::Refusal(mFunc::WhyNotLift(PicID, above)));
    }
    mSpoken::Say(mSpoken::Lifted(PicID, gDrag.gPickCount));
    StandAt(*mFrame::TopOf(stand->Pile));
    Carry();
    return Answer::Done;
}

bool IsClosedStock(const PilePlace& pile) {
    return pile.Cell == Stock && gGames->StockType() != StockType::Open;
}

}  // namespace

Answer Go(mFrame::Step step) {
    if (const auto answer = ComeUp()) return *answer;
    const Stop to = mFrame::Next(*stand, step);
    if (to == *stand) return Answer::Nothing;
    StandAt(to);
    if (Holding()) Carry();
    return Answer::Done;
}

Answer GoTo(const Stop& stop) {
    if (ComeUp() == Answer::Nothing) return Answer::Nothing;
    const std::vector<Stop> stops = mFrame::Stops();
    const bool there = std::find(stops.begin(), stops.end(), stop) != stops.end();
    const std::optional<Stop> place = there ? stop : mFrame::TopOf(stop.Pile);
    if (!place) return Answer::Nothing;
    StandAt(*place);
    if (Holding()) Carry();
    return Answer::Done;
}

Answer Act() {
    if (const auto answer = ComeUp()) return *answer;
    if (Holding()) return Drop();
    if (stand->Pile.Cell == Stock && stand->Pos < 0) return Redeal();
    return IsClosedStock(stand->Pile) ? Deal() : LiftHere();
}

Answer LiftAt(const Stop& stop) {
    if (Holding() || GoTo(stop) != Answer::Done) return Answer::Nothing;
    return Act();
}

Answer DropAt(const PilePlace& pile) {
    if (!Holding() || GoTo({pile, -1}) != Answer::Done) return Answer::Nothing;
    return Drop();
}

Answer Deal() {
    if (Holding() || GoTo({TheStock, -1}) != Answer::Done) return Answer::Nothing;
    const int PicID = mReader::Card(TheStock, mReader::Count(TheStock) - 1);
    if (PicID < 0 || !IsClosedStock(TheStock)) return Refuse(mReader::PileText(TheStock));
    mMain::Lift(PicID);
    Follow();
    return Answer::Done;
}

Answer Redeal() {
    if (Holding() || GoTo({TheStock, -1}) != Answer::Done) return Answer::Nothing;
    if (mReader::Count(TheStock) > 0) return Refuse(mReader::PileText(TheStock));  // they cover the mark
    if (!mPlay::MayRedeal()) return Refuse(mSpoken::NoRedeal());
    mMain::StockClick();
    Follow();
    return Answer::Done;
}

Answer ToFoundation() {
    if (const auto answer = ComeUp()) return *answer;
    const bool held = Holding();
    const int PicID = held ? mMain::CardInHand() : mReader::Card(stand->Pile, stand->Pos);
    if (PicID < 0) return Refuse(mReader::PileText(stand->Pile));
    int above = gDrag.gPickCount;
    const mFunc::LiftRefusal why = held ? mFunc::LiftRefusal::None : mFunc::WhyNotLift(PicID, above);
    if (why != mFunc::LiftRefusal::None) return Refuse(mSpoken::Refusal(why));
    for (int pile = 0; pile < gGames->Piles(Goal); ++pile) {
        if (!mFunc::Accepts(PicID, above, Goal, pile)) continue;
        if (!held) mMain::Lift(PicID);
        mMain::DropOn(Goal, pile);
        Follow();
        return Answer::Done;
    }
    return Refuse("No foundation takes the " + mReader::CardText(PicID));
}

Answer PutBack() {
    if (!Holding()) return Answer::Nothing;
    const int held = mMain::CardInHand();
    const PilePlace pile = Source();
    mMain::PutBack();
    mSpoken::Say(mReader::CardText(held) + " put back");
    StandWhereItLies(held, pile);
    return Answer::Done;
}

void Hide() {
    if (Holding()) mMain::PutBack();
    shown = false;
}

std::vector<Offer> Offers(const Stop& stop) {
    if (!Running() || mMain::InHand() == mMain::Hand::Mouse) return {};
    const bool atTop = stop.Pos < 0 || stop == mFrame::TopOf(stop.Pile);
    if (Holding()) {
        const bool takes = stop.Pile == Source() || mFunc::Accepts(mMain::CardInHand(), gDrag.gPickCount,
                                                                   stop.Pile.Cell, stop.Pile.Pile);
        return atTop && takes ? std::vector{Offer::Drop} : std::vector<Offer>{};
    }
    if (IsClosedStock(stop.Pile) && atTop && mReader::Count(stop.Pile) > 0) return {Offer::Deal};
    if (stop.Pile.Cell == Stock && mReader::Count(stop.Pile) == 0 && mPlay::MayRedeal()) {
        return {Offer::Redeal};
    }
    int above = 0;
    const int PicID = mReader::Card(stop.Pile, stop.Pos);
    return PicID >= 0 && mFunc::CanLift(PicID, above) ? std::vector{Offer::Lift} : std::vector<Offer>{};
}

void Follow() {
    if (mGen::Dealing()) return;
    if (!Running()) {
        stand.reset();
        return;
    }
    const SessionFigures& figures = gData->Figures;
    DealName now{figures.CurGName, figures.CurGNo, figures.GameStart};
    if (now != deal) stand.reset();
    deal = std::move(now);
    if (stand) {
        const std::vector<Stop> stops = mFrame::Stops();
        const bool there = std::find(stops.begin(), stops.end(), *stand) != stops.end();
        if (there && !onTop) return;
        stand = mFrame::TopOf(stand->Pile);
    }
    // A pile without a mark is gone with its last card.
    if (!stand) stand = FirstStop();
    onTop = true;
}

std::optional<Stop> Place() { return shown && Running() ? stand : std::nullopt; }

std::string PlaceText(const Stop& stop) {
    std::string text = stop.Pos >= 0 ? mReader::PlaceText(stop.Pile, stop.Pos) : std::string();
    if (!Holding() || stop != mFrame::TopOf(stop.Pile)) return text;
    if (!text.empty()) text += ", ";
    if (stop.Pile == Source()) return text + "where the lifted card comes from";
    const bool takes = mFunc::Accepts(mMain::CardInHand(), gDrag.gPickCount, stop.Pile.Cell, stop.Pile.Pile);
    return text + (takes ? "takes" : "does not take") + " the lifted card";
}

View Seen() {
    View view;
    if (!Place()) return view;
    if (!Holding()) {
        view.Frame = mFrame::SeenOf(*stand);
        return view;
    }
    const int held = mMain::CardInHand();
    view.Frame = mReader::CardArea(held);
    for (const Stop& stop : mFrame::Stops()) {
        if (mFunc::Accepts(held, gDrag.gPickCount, stop.Pile.Cell, stop.Pile.Pile)) {
            view.Targets.push_back(mFrame::AreaOf(stop));
        }
    }
    return view;
}

}  // namespace mKeys
