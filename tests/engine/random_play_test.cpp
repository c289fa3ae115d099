// A random player in every game. After each action the card table must hold together; taking all moves
// back must give the deal, making them again the position before, with faces and places.

#include "support/EngineTest.h"
#include "support/FromEnvironment.h"
#include "tools/RandomPlayer.h"
#include "tools/mChecks.h"

namespace {

class Session {
public:
    Session(std::string game, std::uint32_t seed) : game_(std::move(game)), player_(seed), number_(seed) {}

    /// Empty where no fault was found.
    std::string Play(int actions) {
        for (int action = 1; action <= actions; ++action) {
            if (!gData->Figures.GameRunning || action % NewDealEvery == 0) Start();
            if (!gData->Figures.GameRunning) continue;  // won by the first autoplay pass
            player_.Act();
            if (!gData->Figures.GameRunning) continue;
            std::string fault = mChecks::TableFault();
            if (fault.empty() && (action % CheckEvery == 0 || action == actions)) fault = UndoFault();
            if (!fault.empty()) {
                return game_ + " " + std::to_string(number_) + ", action " + std::to_string(action) + ", " +
                       player_.LastAction() + ": " + fault;
            }
        }
        return {};
    }

private:
    static constexpr int CheckEvery = 100;
    static constexpr int NewDealEvery = 1000;

    void Start() {
        ++number_;
        {
            mGen::AsideGame aside;
            aside.Deal(game_, static_cast<double>(number_));
            deal_ = mChecks::Places();
        }
        mGen::StartGame(game_, static_cast<double>(number_));
        player_.Forget();
    }

    std::string UndoFault() {
        const auto loose = [this](int PicID) { return player_.Displaced(PicID); };
        // Undone moves that are still in the log would be made again with the others.
        const int undone = gTrans->MaxTrans() - gTrans->GetTransID();
        const std::vector<CardPlace> before = mChecks::Places();
        const int moves = gTrans->GetTransID();
        mMain::UndoAll(0);
        std::string fault = mChecks::TableFault();
        if (fault.empty()) fault = mChecks::Difference(deal_, mChecks::Places(), loose);
        if (!fault.empty()) return "after undo all: " + fault;
        if (undone == 0) {
            mMain::RedoAll(0);
        } else {
            while (gTrans->GetTransID() < moves) mMain::Redo(0);
        }
        fault = mChecks::TableFault();
        if (fault.empty()) fault = mChecks::Difference(before, mChecks::Places(), loose);
        return fault.empty() ? fault : "after redo all: " + fault;
    }

    std::string game_;
    RandomPlayer player_;
    std::uint32_t number_;
    std::vector<CardPlace> deal_;
};

// In parts, so that they can run side by side.
class RandomPlayAll : public testing::TestWithParam<int> {};

constexpr int Parts = 7;

TEST_P(RandomPlayAll, EveryGame) {
    std::vector<std::string> games;
    {
        const Engine engine;
        for (int SiD = 1 + GetParam(); SiD <= gData->TotalGames(); SiD += Parts)
            games.push_back(gData->GetGame(SiD));
    }
    ASSERT_FALSE(games.empty());
    std::uint32_t seed = 1;
    for (const std::string& game : games) {
        Engine engine;
        ASSERT_EQ(Session(game, seed++).Play(FromEnvironment("TARNIVAL_RANDOM_ACTIONS", 2500)), "");
    }
}

INSTANTIATE_TEST_SUITE_P(Parts, RandomPlayAll, testing::Range(0, Parts));

}  // namespace
