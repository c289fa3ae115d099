// The invariants of the card table.
#include "tools/mChecks.h"

#include <array>
#include <limits>

#include <fmt/format.h>

#include "engine/rules/mFunc.h"
#include "engine/state/cArray.h"
#include "engine/state/cGames.h"
#include "engine/state/cPlate.h"

namespace mChecks {

namespace {

bool Fits16(int value) {
    using Limits = std::numeric_limits<short>;
    return value >= Limits::min() && value <= Limits::max();
}

int PilesOf(int Cell) { return Cell == Goal ? FoundationPiles : gGames->Piles(Cell); }

std::string CardFault(int PicID, int Cell, int Pile, int Pos) {
    const CardRecord& card = PicBack.PicCards(PicID);
    if (card.Cell != Cell || card.Pile != Pile || card.Pos != Pos) {
        return fmt::format("its record says {}/{}/{}", card.Cell, card.Pile, card.Pos);
    }
    if (!card.Visible) return "it is hidden";
    // A card in the hand follows the pointer, however far that is.
    if (!gDrag.gPicked && !(Fits16(card.Left) && Fits16(card.Top)))
        return fmt::format("it lies at {}, {}", card.Left, card.Top);
    if (card.FaceMode != 0 && card.FaceMode != 1) return fmt::format("its face is {}", card.FaceMode);
    const bool closed = Cell == Stock && gGames->StockType() != StockType::Open;
    if (Cell != Home && (card.FaceMode == 1) != closed) return closed ? "it is open" : "it is closed";
    if (Pos > 0 && PicBack.PicCards(gArray->GetPicID(Cell, Pile, Pos - 1)).Order >= card.Order) {
        return "it lies behind the card below it";
    }
    return {};
}

}  // namespace

std::string TableFault() {
    std::array<bool, MaxCards> seen{};
    int found = 0;
    for (int Cell = 0; Cell < CellCount; ++Cell) {
        for (int Pile = 0; Pile < PilesOfCell; ++Pile) {
            const int top = gArray->GetTop(Cell, Pile);
            if (top >= 0 && Pile >= PilesOf(Cell)) return fmt::format("cards on pile {}/{}", Cell, Pile);
            if (Cell == Goal && top > FullGoalTop && gGames->GameType() != GameType::CompleteRuns) {
                return fmt::format("{} cards on foundation {}", top + 1, Pile);
            }
            for (int Pos = 0; Pos <= top; ++Pos) {
                const int PicID = gArray->GetPicID(Cell, Pile, Pos);
                const auto place = [&] {
                    return fmt::format("card {} at {}/{}/{}: ", PicID, Cell, Pile, Pos);
                };
                if (PicID < 0 || PicID >= gGames->TotalCards()) return place() + "no such card";
                if (seen.at(static_cast<std::size_t>(PicID))) return place() + "it lies elsewhere too";
                seen[static_cast<std::size_t>(PicID)] = true;
                ++found;
                const std::string fault = CardFault(PicID, Cell, Pile, Pos);
                if (!fault.empty()) return place() + fault;
            }
        }
    }
    if (found != gGames->TotalCards()) return fmt::format("{} of {} cards", found, gGames->TotalCards());
    return {};
}

std::vector<CardPlace> Places() {
    std::vector<CardPlace> places;
    places.reserve(static_cast<std::size_t>(gGames->TotalCards()));
    for (int PicID = 0; PicID < gGames->TotalCards(); ++PicID) {
        const CardRecord& card = PicBack.PicCards(PicID);
        places.push_back({card.Cell, card.Pile, card.Pos, card.FaceMode, card.Left, card.Top, card.Visible});
    }
    return places;
}

std::string Difference(const std::vector<CardPlace>& expected, const std::vector<CardPlace>& found,
                       const std::function<bool(int)>& loose) {
    const auto text = [](const CardPlace& p) {
        return fmt::format("{}/{}/{} face {} at {}, {}{}", p.Cell, p.Pile, p.Pos, p.FaceMode, p.Left, p.Top,
                           p.Visible ? "" : ", hidden");
    };
    for (std::size_t i = 0; i < expected.size(); ++i) {
        CardPlace there = found.at(i);
        if (there == expected[i]) continue;
        if (loose(static_cast<int>(i))) {
            there.Left = expected[i].Left;
            there.Top = expected[i].Top;
            if (there == expected[i]) continue;
        }
        return fmt::format("card {} is {}, not {}", i, text(found[i]), text(expected[i]));
    }
    return {};
}

}  // namespace mChecks
