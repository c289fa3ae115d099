// The life of a game: from a name and a number to a dealt table, to a record and an empty table.
#pragma once

#include <string>
#include <vector>

#include "engine/outside/windowlayer.h"
#include "engine/state/GameNumber.h"
#include "engine/state/RunningGame.h"

namespace mGen {

/// Builds everything a game needs. gData exists already.
void InitApp();
/// Releases what InitApp built.
void ReleaseAll();

/// Closes a running game as lost and starts another. Ignored while cards are being dealt, and for a
/// name that is in no family: the table stays as it is.
void StartGame(const std::string& name, const GameNumber& number);
/// The same as soon as the action of the player that is under way is done with; at once where none is.
void StartAfter(const std::string& name, const GameNumber& number);
/// The same with the number 0 and a deck that was made elsewhere in place of its shuffle: the card values by
/// PicID, a permutation of 0 to TotalCards - 1. What the deal draws is that of the number 0.
void StartDeck(const std::string& name, const std::vector<int>& deck);
/// Fills gGames for that game.
void SetGameRules(const std::string& name);
/// Records the running game (1 won, 0 lost) and clears the table. A game must run.
void CloseGame(int mWon);
/// Opens the end-of-game dialog when the foundations hold all that they can.
void CheckWin();
/// How many cards the foundations must hold for a win.
[[nodiscard]] int CardsToWin();
void RefreshRecent();
/// Ten points a foundation card, less one every 3 seconds and every 2 moves; 0 when no game runs.
/// Stays inside 16 bits.
[[nodiscard]] int CalcScore();
/// Cards are being dealt; commands that start or close a game are ignored.
[[nodiscard]] bool Dealing();
/// Shows the rest of the deal at once; the cards and their places are the same. Without a deal it does
/// nothing.
void HurryDeal();
/// The caption of the main window for the running game.
[[nodiscard]] std::string GameCaption();
/// Lets the caption follow the player who is current now, once a game has been started.
void RefreshCaption();

/// Brackets one action of the player. What the end-of-game dialog asked for begins when the outermost
/// bracket closes: the log that is being redone, and outer autoplay steps, must not meet a new deal.
class Action {
public:
    Action();
    ~Action() noexcept(false);
    Action(const Action&) = delete;
    Action& operator=(const Action&) = delete;

private:
    int exceptions_;  // in flight when the bracket opened
};

/// The running game set aside. While the object lives,
/// other deals can be computed without a trace on the screen, in the settings or in the records; its
/// end puts the game back.
class AsideGame {
public:
    AsideGame();
    ~AsideGame();
    AsideGame(const AsideGame&) = delete;
    AsideGame& operator=(const AsideGame&) = delete;
    /// Lays out the opening deal of a game on the plate, for as long as the object lives.
    void Deal(const std::string& name, const GameNumber& number);

private:
    RunningGame saved_;
};

}  // namespace mGen
