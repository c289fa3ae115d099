// Finding games by words of their names and rules, and by facets.
#include "engine/catalogue/mWinnability.h"
#include "engine/commands/mFind.h"
#include "support/EngineTest.h"

namespace {

using Names = std::vector<std::string>;

class Find : public testing::Test {
protected:
    static Names Games(const std::string& query) {
        mFind::Search search;
        Names names;
        for (const int SiD : search.Games(query)) names.push_back(gData->GetGame(SiD));
        return names;
    }
    Engine engine_;
};

TEST_F(Find, WordsAndFacetsTogetherFindExactlyTheseGames) {
    const std::pair<const char*, Names> rows[] = {
        {"Baker's Dozen",
         {"Baker's Dozen", "Baker's Dozen Plus", "Baker's Dozen Two Suit", "Reversed Baker's Dozen"}},
        {"  KLONDIKE   cone ", {"Cone Klondike"}},
        {"zither", {}},
        {"one suit 2 decks no redeal",
         {"Senate", "Taj Mahal", "Wonderland", "Double Eclipse", "Double Galaxy", "Single Enigma",
          "Spider One Suit", "Double Yukon One Suit"}},
        {"half a deck", {"Stripped Freecell", "Stripped Klondike", "Stripped Spider"}},
        {"half deck, no free cells, no stock", {"Stripped Spider"}},
        {"complete runs two suits", {"Spider Two Suit", "Stripped Spider"}},
        {"spider one suit", {"Spider One Suit", "Spider Yukon One Suit"}},
        {"all cards open stock",
         {"Oasis", "Double Sir Tommy", "Durbar Hall", "Highway", "Lady Betty", "Reversed Sir Tommy",
          "Sir Tommy", "Viper"}},
        {"redeal twice",
         {"Demon", "Rainbow", "Storehouse", "Variegated Canfield", "History", "La Belle Lucie",
          "Super Flower Garden", "Trefoil", "Zero Hour", "Corners", "Single Corners"}},
        {"3 redeals", {"Little Forty"}},
        {"redeals six times", {"Fascination Fan"}},
        {"unlimited redeals in suit",
         {"Canfield One Suit", "Ali Baba", "Big Forty", "Double Statue", "Lawn", "Statue"}},
        {"base rank two decks stock no redeal",
         {"Assembly", "Royal Diplomat", "Double Escort", "Quadrangle"}},
        {"four free cells two decks", {"Meadow"}},
        {"3 free cells", {"Milligan Cell"}},
        {"1 suit free cells", {"Double Galaxy", "Galaxy"}},
        // A game of that name stands before those that the words describe.
        {"two cells",
         {"Two Cells", "Bastion", "Cascade", "Double Klondike Freecell", "Klondike Freecell", "Oasis",
          "Stalactites", "Stripped Freecell", "Indigo"}},
        {"16 piles", {"Trefoil", "Mandate", "Double Fortune"}},
        {"same color 2 decks",
         {"Minerva", "Occasion", "Double Color Cell", "Double Color Fantasy", "Double Excel",
          "Double Climax"}},
        {"1 deck random", {"Mobile Gallery", "Citadel", "See-Saw", "See-Saw Spider", "Ticket"}},
    };
    for (const auto& [query, games] : rows) EXPECT_THAT(Games(query), ElementsAreArray(games)) << query;
    EXPECT_THAT(Games(" "), SizeIs(gData->TotalGames()));
    const std::pair<const char*, bool (*)(const Winnability&)> wins[] = {
        {"mostly winnable", mWinnability::IsMostlyWinnable}, {"hard", mWinnability::IsHard}};
    for (const auto& [query, holds] : wins) {
        Names games;
        for (const Winnability& row : mWinnability::All()) {
            if (holds(row)) games.emplace_back(row.Game);
        }
        EXPECT_EQ(Games(query), games);
    }
    // The two of a kind share all games between them.
    for (const auto& [one, other] : {std::pair{"stock", "no stock"}, {"free cells", "no free cells"}}) {
        EXPECT_EQ(Games(one).size() + Games(other).size(), static_cast<std::size_t>(gData->TotalGames()))
            << one;
    }
}

TEST_F(Find, WhatThePlayerPlayedAndKept) {
    EXPECT_THAT(Games("played by me"), IsEmpty());
    EXPECT_THAT(Games("in favorites"), IsEmpty());
    mGen::StartGame("Meadow", 5.0);
    mMain::AddFavourite();
    mGen::CloseGame(0);
    EXPECT_THAT(Games("played by me"), ElementsAre("Meadow"));
    EXPECT_THAT(Games("favorites four free cells"), ElementsAre("Meadow"));
    EXPECT_THAT(Games("never played four free cells two decks"), IsEmpty());
    gData->SetPlayer(2, "Ann", true);
    EXPECT_THAT(Games("never played four free cells two decks"), ElementsAre("Meadow"))
        << "Ann did not play it";
    EXPECT_THAT(Games("in favorites"), ElementsAre("Meadow")) << "all players share the favorites";
}

TEST_F(Find, EveryEntryOfTheMenuMeansAFacet) {
    mGen::StartGame("Meadow", 5.0);
    mMain::AddFavourite();
    mGen::CloseGame(0);
    for (const auto& group : mFind::Menu()) {
        for (const mFind::Facet& facet : group) {
            const Names games = Games(facet.Words);
            EXPECT_FALSE(games.empty()) << facet.Words;
            // Twice the same facet asks for nothing new, while words of the rules would have to stand there.
            EXPECT_EQ(Games(std::string(facet.Words) + ' ' + facet.Words), games) << facet.Words;
        }
    }
}

}  // namespace
