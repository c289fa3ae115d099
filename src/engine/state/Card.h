// What a card is: suit, rank and deck, apart from where it lies.
#pragma once

inline constexpr int RankCount = 13;
inline constexpr int SuitCount = 4;
inline constexpr int DeckCards = RankCount * SuitCount;  ///< cards of one whole deck
inline constexpr int HalfDeck = DeckCards / 2;
inline constexpr int TwoDecks = 2 * DeckCards;
inline constexpr int MaxCards = TwoDecks;  ///< no game has more
inline constexpr int Ace = 0;
inline constexpr int King = RankCount - 1;
inline constexpr int FullGoalTop = RankCount - 1;  ///< the Pos of a full foundation pile's top card

struct CardFace {
    int Suit = 0;      ///< 0 Hearts, 1 Spades, 2 Diamonds, 3 Clubs
    int Num = 0;       ///< 0 Ace to 12 King
    int Suitpile = 0;  ///< deck and suit, 0 to 7

    /// 1 red, 2 black.
    [[nodiscard]] int Color() const { return Suit == 0 || Suit == 2 ? 1 : 2; }
    bool operator==(const CardFace&) const = default;
};
