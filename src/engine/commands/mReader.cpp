// The running game as a screen reader reads it.
#include "engine/commands/mReader.h"

#include <algorithm>
#include <cctype>

#include <fmt/format.h>

#include "engine/help/mRulesWords.h"
#include "engine/rules/mPlay.h"
#include "engine/state/cArray.h"
#include "engine/state/cData.h"
#include "engine/state/cPlate.h"
#include "engine/state/cTrans.h"

namespace mReader {

namespace {

bool Running() { return gData && gGames && gArray && gData->Figures.GameRunning; }

/// The mark of a pile; nullptr where it has none.
const MarkRecord* MarkOf(const PilePlace& pile) {
    constexpr MarkKind kinds[CellCount] = {MarkKind::Home, MarkKind::Stock, MarkKind::Waste, MarkKind::Right,
                                           MarkKind::Res};
    const MarkKind kind = kinds[pile.Cell];
    if (pile.Pile >= cPlate::MarkCount(kind)) return nullptr;
    const MarkRecord& mark = PicBack.Mark(kind, pile.Pile);
    return mark.Visible ? &mark : nullptr;
}

/// What the mark of an empty pile says, behind a comma; empty where it says nothing. The stock's picture
/// promises a redeal also in games that grant none: here the rule speaks.
std::string MarkText(const PilePlace& pile, const MarkRecord* mark) {
    if (!mark) return {};
    if (pile.Cell == Stock) return mPlay::MayRedeal() ? ", a redeal is possible" : ", no redeal";
    return mark->Picture <= King ? ", takes " + mRulesWords::ARank(mark->Picture) : "";
}

std::string InSmallLetters(std::string name) {
    name[0] = static_cast<char>(std::tolower(static_cast<unsigned char>(name[0])));
    return name;
}

Extent CardSized(int Left, int Top) { return {Left, Top, CardWidth, CardHeight}; }

Extent United(const Extent& a, const Extent& b) {
    const int left = std::min(a.Left, b.Left);
    const int top = std::min(a.Top, b.Top);
    return {left, top, std::max(a.Left + a.Width, b.Left + b.Width) - left,
            std::max(a.Top + a.Height, b.Top + b.Height) - top};
}

}  // namespace

bool Extent::Contains(const Point& point) const {
    return point.X >= Left && point.X < Left + Width && point.Y >= Top && point.Y < Top + Height;
}

std::vector<PilePlace> Piles() {
    std::vector<PilePlace> piles;
    if (!Running()) return piles;
    for (int Cell = 0; Cell < CellCount; ++Cell) {
        for (int Pile = 0; Pile < gGames->Piles(Cell); ++Pile) {
            const PilePlace pile{Cell, Pile};
            if (MarkOf(pile) || Count(pile) > 0) piles.push_back(pile);
        }
    }
    return piles;
}

int Count(const PilePlace& pile) { return Running() ? gArray->GetTop(pile.Cell, pile.Pile) + 1 : 0; }

int Card(const PilePlace& pile, int Pos) {
    return Pos >= 0 && Pos < Count(pile) ? gArray->GetPicID(pile.Cell, pile.Pile, Pos) : -1;
}

bool IsCovered(const PilePlace& pile, int Pos) {
    const int card = Card(pile, Pos);
    const int above = Card(pile, Pos + 1);
    return card >= 0 && above >= 0 && CardArea(card) == CardArea(above);
}

std::string CardText(int PicID) {
    const CardRecord& card = PicBack.PicCards(PicID);
    if (card.FaceMode == 1) return "Face-down card";
    return fmt::format("{} of {}", mRulesWords::Rank(card.Num), mRulesWords::Suit(card.Suit));
}

std::string PileName(const PilePlace& pile) {
    const std::string group = cTrans::ConvertCell(pile.Cell);
    return gGames->Piles(pile.Cell) > 1 ? fmt::format("{} pile {}", group, pile.Pile + 1) : group;
}

std::string PileInSentence(const PilePlace& pile) {
    const std::string name = InSmallLetters(PileName(pile));
    return gGames->Piles(pile.Cell) > 1 ? name : "the " + name;
}

std::string PlaceText(const PilePlace& pile, int Pos) {
    if (!Running()) return {};
    return fmt::format("{}, card {} of {}", InSmallLetters(PileName(pile)), Pos + 1, Count(pile));
}

std::string PileText(const PilePlace& pile) {
    if (!Running()) return {};
    const int count = Count(pile);
    if (count == 0) return PileName(pile) + ", empty" + MarkText(pile, MarkOf(pile));
    return PileName(pile) + fmt::format(", {} card{}", count, count == 1 ? "" : "s");
}

Extent CardArea(int PicID) {
    const CardRecord& card = PicBack.PicCards(PicID);
    return CardSized(card.Left, card.Top);
}

Extent BaseArea(const PilePlace& pile) {
    if (const MarkRecord* mark = MarkOf(pile)) return CardSized(mark->Left, mark->Top);
    const Point place = gGames->Position(pile.Cell, pile.Pile, 0);
    return CardSized(place.X, place.Y);
}

Extent PileArea(const PilePlace& pile) {
    if (!Running()) return {};
    Extent area = BaseArea(pile);
    for (int Pos = 0; Pos < Count(pile); ++Pos) {
        if (const int PicID = Card(pile, Pos); PicID >= 0) area = United(area, CardArea(PicID));
    }
    return area;
}

std::optional<PilePlace> PileAt(const Point& point) {
    std::optional<PilePlace> found;
    int front = -1;  // a mark lies behind all cards
    for (const PilePlace& pile : Piles()) {
        const int PicID = Card(pile, PosAt(pile, point));
        if (PicID >= 0 && PicBack.PicCards(PicID).Order > front) {
            front = PicBack.PicCards(PicID).Order;
            found = pile;
        } else if (!found && MarkOf(pile) && BaseArea(pile).Contains(point)) {
            found = pile;
        }
    }
    return found;
}

int PosAt(const PilePlace& pile, const Point& point) {
    int found = -1;
    int front = -1;
    for (int Pos = 0; Pos < Count(pile); ++Pos) {
        const int PicID = Card(pile, Pos);
        if (PicID < 0 || !CardArea(PicID).Contains(point)) continue;
        const int order = PicBack.PicCards(PicID).Order;
        if (order <= front) continue;
        front = order;
        found = Pos;
    }
    return found;
}

}  // namespace mReader
