// A fixed amount of the engine's work, for counting instructions, which do not depend on the machine's mood.
//
//   tarnival-engine-work deals|moves|pages N
//
// Makes N deals, plays N games at random, or writes N times the rules pages of all games. Prints how many
// deals, card moves or pages that were.
#include <cstdio>
#include <cstdlib>
#include <string>

#include "engine/state/cData.h"
#include "mEngineWork.h"
#include "support/Fixture.h"

int main(int argc, char** argv) {
    const std::string work = argc == 3 ? argv[1] : "";
    const long amount = argc == 3 ? std::atol(argv[2]) : 0;
    if (amount < 1 || (work != "deals" && work != "moves" && work != "pages")) {
        std::fprintf(stderr, "usage: tarnival-engine-work deals|moves|pages N\n");
        return 2;
    }
    Engine engine;
    engine.Layer.Forms.Listening = false;  // as with most players
    long done = 0;
    if (work == "deals") {
        mGen::AsideGame aside;
        for (; done < amount; ++done) mEngineWork::Deal(aside, done + 1);
    } else if (work == "moves") {
        RandomPlayer player(1);
        for (long game = 0; game < amount; ++game) done += mEngineWork::Play(player, game);
    } else {
        for (long i = 0; i < amount && mEngineWork::Pages() > 0; ++i) done += gData->TotalGames();
    }
    std::printf("%ld\n", done);
    return 0;
}
