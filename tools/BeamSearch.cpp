// The search over positions of the engine itself: moves are made on the table and taken back.
#include "BeamSearch.h"

#include <algorithm>
#include <array>
#include <map>

#include "engine/rules/mPlay.h"
#include "engine/state/cArray.h"
#include "engine/state/cData.h"
#include "engine/state/cGames.h"
#include "engine/state/cPlate.h"
#include "engine/state/cTrans.h"

namespace {

// What Undo does not bring back.
struct Counters {
    int Redeals = gRedealCount;
    ::StockNum StockNum = gGames->StockNum;
    int CarreNap = gGames->CarreNapCount;

    void PutBack() const {
        gRedealCount = Redeals;
        gGames->StockNum = StockNum;
        gGames->CarreNapCount = CarreNap;
    }
};

std::uint64_t Mixed(std::uint64_t hash, int value) {
    hash = (hash ^ static_cast<std::uint64_t>(value + 7)) * 1099511628211U;
    return hash ^ (hash >> 29);
}

// Equal for positions that differ only in which pile is which, or in which of two equal cards.
std::uint64_t PositionHash() {
    std::uint64_t hash = 1469598103934665603U;
    for (int Cell = 0; Cell < CellCount; ++Cell) {
        std::uint64_t sum = 0;
        for (int pile = 0; pile < std::max(gGames->Piles(Cell), Cell == Goal ? FoundationPiles : 0); ++pile) {
            std::uint64_t pileHash = 14695981039346656037U;
            for (int Pos = 0; Pos <= gArray->GetTop(Cell, pile); ++Pos) {
                const CardRecord& card = PicBack.PicCards(gArray->GetPicID(Cell, pile, Pos));
                pileHash = Mixed(pileHash, card.Suit * 32 + card.Num * 2 + (card.FaceMode == 1 ? 1 : 0));
            }
            sum += pileHash;
        }
        hash = (hash ^ sum) * 1099511628211U;
    }
    if (gGames->Redeals() > 0) hash = Mixed(hash, gRedealCount);
    return Mixed(hash, gGames->CarreNapCount);
}

}  // namespace

// A position that is followed: the table, and how it was reached.
struct BeamSearch::Position {
    cArray Table = *gArray;
    cPlate Plate = PicBack;
    Counters Counted;
    std::size_t LastStep = 0;

    void PutBack() const {
        *gArray = Table;
        PicBack = Plate;
        *gTrans = cTrans();
        Counted.PutBack();
    }
};

// Finds the children of a position; true when one of them is won.
bool BeamSearch::Expand(const Position& from, std::size_t number, std::vector<Child>& children) {
    from.PutBack();
    const bool dealsToPiles = gGames->StockMove() == StockMove::OneToEachPile;
    std::uniform_real_distribution<double> noise(0, 0.5);
    for (const BotMove& move : mBotMoves::All()) {
        mBotMoves::Make(move);
        if (!gData->Figures.GameRunning) {
            winning_ = move;
            return true;
        }
        if (seen_.insert(PositionHash()).second) {
            most_ = std::max(most_, gArray->TotalGoalCards());
            const int stage = dealsToPiles ? gArray->GetTop(Stock) + 1 : 0;
            children.push_back({worth_() + noise(random_), number, stage, move});
        }
        gTrans->UndoAll(0);
        from.Counted.PutBack();
    }
    return false;
}

// The best children. Where the stock is dealt onto the piles, positions before and after a deal look too
// different to be compared: each stage keeps a share of the places, as long as it gets on.
std::vector<BeamSearch::Child> BeamSearch::Select(std::vector<Child> children) {
    std::sort(children.begin(), children.end(),
              [](const Child& a, const Child& b) { return a.Worth > b.Worth; });
    std::map<int, std::size_t> taken;
    for (const Child& child : children) {
        if (taken.try_emplace(child.Stage, 0).second) stages_[child.Stage].Note(child.Worth);
    }
    std::erase_if(taken, [this](const auto& stage) { return stages_[stage.first].IsStuck(); });
    std::vector<Child> chosen;
    for (const Child& child : children) {
        const auto stage = taken.find(child.Stage);
        if (stage == taken.end() || stage->second * taken.size() >= width_) continue;
        ++stage->second;
        chosen.push_back(child);
    }
    return chosen;
}

void BeamSearch::Stage::Note(double worth) {
    constexpr double Noticeable = 1;
    ++Idle;
    if (worth < Best + Noticeable) return;
    Best = worth;
    Idle = 0;
}

std::vector<BotMove> BeamSearch::PathTo(std::size_t step, const BotMove& last) const {
    std::vector<BotMove> path{last};
    for (; step != 0; step = steps_[step].Before) path.push_back(steps_[step].Move);
    std::reverse(path.begin(), path.end());
    return path;
}

std::optional<std::vector<BotMove>> BeamSearch::Win(Clock::time_point deadline) {
    seen_ = {PositionHash()};
    steps_.assign(1, Step{0, {}});
    stages_.clear();
    std::vector<Position> beam(1);
    while (!beam.empty()) {
        std::vector<Child> children;
        for (std::size_t i = 0; i < beam.size(); ++i) {
            if (Clock::now() > deadline) return std::nullopt;
            if (Expand(beam[i], i, children)) return PathTo(beam[i].LastStep, winning_);
        }
        children = Select(std::move(children));
        std::vector<Position> next;
        next.reserve(children.size());
        for (const Child& child : children) {
            beam[child.Parent].PutBack();
            mBotMoves::Make(child.Move);
            steps_.push_back({beam[child.Parent].LastStep, child.Move});
            next.emplace_back().LastStep = steps_.size() - 1;
        }
        beam = std::move(next);
    }
    return std::nullopt;
}
