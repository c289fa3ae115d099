// From a game's row into cGames.
#include "engine/catalogue/definition.h"

#include <string>

#include "engine/state/cGames.h"

void mDefine::Apply(const Definition& game, cGames& games) {
    const Layout& places = *game.Places;
    games.Home({.Piles = game.HomePiles,
                .Order = game.HomeOrder,
                .Cards = game.HomeCards,
                .AK = game.HomeAK,
                .EmptyFillType = game.HomeFill,
                .MultiMove = game.HomeMove,
                .StartX = places.Home.StartX,
                .StartY = places.Home.StartY,
                .PileWidth = places.Home.PileWidth,
                .PosWidth = places.Home.PosWidth,
                .Div = places.Home.Div,
                .DivWidth = places.Home.DivWidth,
                .PileOrder = places.Home.PileOrder,
                .cHomeType = game.HomePattern,
                .cMultiOrder = game.HomeMulti,
                .SuitType = game.Suits,
                .cCardsOpen = game.HomeOpen});
    games.Goal({.Piles = game.GoalPiles,
                .Order = game.GoalOrder,
                .Cards = game.GoalCards,
                .GoalType = game.GoalBase,
                .AK = game.GoalAK,
                .StartX = places.Goal.StartX,
                .StartY = places.Goal.StartY,
                .PileWidth = places.Goal.PileWidth,
                .PosWidth = places.Goal.PosWidth,
                .Div = places.Goal.Div,
                .DivWidth = places.Goal.DivWidth,
                .PileOrder = places.Goal.PileOrder,
                .GoalUpDown = game.GoalUpDown});
    // Every game has its stock pile, also where no card stays in it: the cards are dealt from there.
    games.Stock({.Piles = 1,
                 .StockMove = game.StockPress,
                 .StartX = places.Stock.StartX,
                 .StartY = places.Stock.StartY,
                 .StockNum = game.StockMark,
                 .StockType = game.StockKind});
    if (game.Waste) {
        games.Waste({.Piles = 1, .StartX = places.Waste.StartX, .StartY = places.Waste.StartY});
    }
    if (game.ResPiles > 0) {
        games.Res({.Piles = game.ResPiles,
                   .Cards = game.ResCards,
                   .StartX = places.Res.StartX,
                   .StartY = places.Res.StartY,
                   .PileWidth = places.Res.PileWidth,
                   .PosWidth = places.Res.PosWidth,
                   .Div = places.Res.Div,
                   .DivWidth = places.Res.DivWidth,
                   .PileOrder = places.Res.PileOrder,
                   .cResNum = game.ResNum});
    }
    games.Ext({.BaseX = places.BaseX,
               .BaseY = places.BaseY,
               .Cards = game.Deck,
               .cRedeals = game.Redeals,
               .Tag = std::string(game.Tag),
               .cDisAutoPlay = game.NoAuto,
               .GoalDiv = game.GoalDiv,
               .GameType = game.Kind,
               .cAutoFill = game.Refill,
               .cRedealType = game.Redeal,
               .cMoveKings = game.MoveKings});
    if (game.MaxCards > 0) games.HomeMaxCards = game.MaxCards;
    if (game.NoH2H) games.NoH2HMove = true;
}
