// Rules as little plays: what lies on the table, what is done, and what lies there then.
#pragma once

#include <initializer_list>

#include "support/EngineTest.h"

namespace mScript {

/// Lays piles on the table: "H0 KS (4C) QH; G1 AH-KH" with H for the tableau, S for the stock, W for the
/// waste, G for the foundations and R for the reserve.
void Lay(const std::string& table);
/// An empty table of that game as mPosition::Begin makes it, and these piles on it.
void Begin(const TestGame& game, const std::string& table);

/// Plays a text such as "H0 KH QS; H1 KD | QS>H1 | H0 KH; H1 KD QS" in a made-up game: first the table,
/// then steps and the table after them in turn. Steps:
///   QS>H1  drags a card exactly onto a pile      stock, mark  presses the stock, clicks its mark
///   auto   makes an autoplay pass                undo, redo   one step
///   G=2    lets the foundations start from Twos, as a deal can; H=5 lets empty piles take Fives only
/// A table of "=" is the first one, to the twip, with all moves taken back; "#3" asks for three moves in the
/// log. In the end all moves are undone and redone, which must give the first and the last table, to the
/// twip. Answers the first fault; empty where there is none.
[[nodiscard]] std::string Fault(const TestGame& game, const std::string& script);

}  // namespace mScript

/// A test over a running engine, with a made-up game that it may change; autoplay is off.
class RulesTest : public testing::Test {
protected:
    struct Rule {
        const char* Says;
        std::string Script;
    };

    RulesTest();
    void Expect(std::initializer_list<Rule> rules) const {
        for (const Rule& rule : rules) {
            EXPECT_EQ(mScript::Fault(game_, rule.Script), "") << rule.Says << ": " << rule.Script;
        }
    }

    Engine engine_;
    TestGame game_;
};
