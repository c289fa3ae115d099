// The running game as a screen reader reads it.
#include "engine/commands/mReader.h"

#include <algorithm>

#include <fmt/format.h>

#include "engine/help/mRulesWords.h"
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

/// What the mark of an empty pile says, behind a comma; empty where it says nothing.
std::string MarkText(const MarkRecord* mark) {
    constexpr int King = 12;
    if (!mark) return {};
    if (mark->Picture <= King) return ", takes " + mRulesWords::ARank(mark->Picture);
    if (mark->Picture == NoRedealMark) return ", no redeal";
    return mark->Picture == RedealMark ? ", a redeal is possible" : "";
}

Area CardSized(int Left, int Top) { return {Left, Top, CardWidth, CardHeight}; }

Area United(const Area& a, const Area& b) {
    const int left = std::min(a.Left, b.Left);
    const int top = std::min(a.Top, b.Top);
    return {left, top, std::max(a.Left + a.Width, b.Left + b.Width) - left,
            std::max(a.Top + a.Height, b.Top + b.Height) - top};
}

/// The pile's own place: that of its mark or its first card.
Area BaseArea(const PilePlace& pile) {
    if (const MarkRecord* mark = MarkOf(pile)) return CardSized(mark->Left, mark->Top);
    const Point place = gGames->Position(pile.Cell, pile.Pile, 0);
    return CardSized(place.X, place.Y);
}

}  // namespace

bool Area::Contains(const Point& point) const {
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

std::string PileText(const PilePlace& pile) {
    if (!Running()) return {};
    std::string text = cTrans::ConvertCell(pile.Cell);
    if (gGames->Piles(pile.Cell) > 1) text += fmt::format(" pile {}", pile.Pile + 1);
    const int count = Count(pile);
    if (count == 0) return text + ", empty" + MarkText(MarkOf(pile));
    return text + fmt::format(", {} card{}", count, count == 1 ? "" : "s");
}

Area CardArea(int PicID) {
    const CardRecord& card = PicBack.PicCards(PicID);
    return CardSized(card.Left, card.Top);
}

Area PileArea(const PilePlace& pile) {
    if (!Running()) return {};
    Area area = BaseArea(pile);
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
