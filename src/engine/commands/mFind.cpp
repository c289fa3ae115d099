// The facets and the search.
#include "engine/commands/mFind.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <charconv>
#include <iterator>
#include <utility>

#include "engine/catalogue/mWinnability.h"
#include "engine/help/mHelpPages.h"
#include "engine/help/mRules.h"
#include "engine/help/mRulesFacts.h"
#include "engine/records/cScore.h"
#include "engine/state/cData.h"

namespace mFind {

namespace {

using mRulesFacts::Facts;
using mRulesFacts::StockUse;
using Words = std::vector<std::string>;

/// What decides a facet: the game's own numbers, or what the player did.
enum class Asks { Numbers, Played, NeverPlayed, Favorite };

struct Meaning {
    const char* Phrase;  ///< in small letters, words without a plural s; # stands for a number
    Asks Of;
    bool (*Holds)(const Facts&, int number);
};

constexpr int HalfDeck = 26;
constexpr int OneDeck = 52;

bool Builds(const Facts& facts, std::initializer_list<RuleCode> codes) {
    return std::find(codes.begin(), codes.end(), facts.Game->HomeOrder) != codes.end();
}
bool InSuit(const Facts& facts, int) {
    return Builds(facts, {RuleCode::DownSuit, RuleCode::UpSuit, RuleCode::EitherSuit});
}
bool ByColors(const Facts& facts, int) {
    return Builds(facts, {RuleCode::DownAlt, RuleCode::UpAlt, RuleCode::EitherAlt});
}
bool SameColor(const Facts& facts, int) {
    return Builds(facts, {RuleCode::DownColor, RuleCode::UpColor, RuleCode::EitherColor});
}
bool AnySuit(const Facts& facts, int) {
    return Builds(facts, {RuleCode::DownAny, RuleCode::UpAny, RuleCode::EitherAny, RuleCode::Always});
}
bool HasStock(const Facts& facts, int) { return facts.Stock != StockUse::None; }
bool NoStock(const Facts& facts, int) { return facts.Stock == StockUse::None; }
bool AllOpen(const Facts& facts, int) {
    return !facts.Deal.AnyClosed() && (facts.Stock == StockUse::None || facts.Stock == StockUse::Open);
}
bool IsHalfDeck(const Facts& facts, int) { return facts.Game->Deck == HalfDeck; }
bool HasDecks(const Facts& facts, int decks) { return facts.Game->Deck == decks * OneDeck; }
bool HasSuits(const Facts& facts, int suits) { return facts.SuitsUsed == suits; }
bool HasPiles(const Facts& facts, int piles) { return facts.Game->HomePiles == piles; }
bool HasCells(const Facts& facts, int cells) { return facts.FreeCells && facts.Game->ResPiles == cells; }
bool FreeCells(const Facts& facts, int) { return facts.FreeCells; }
bool NoFreeCells(const Facts& facts, int) { return !facts.FreeCells; }
bool CompleteRuns(const Facts& facts, int) { return facts.CompleteRuns; }
bool AnyRedeal(const Facts& facts, int) { return facts.Redeals != 0; }
bool NoRedeal(const Facts& facts, int) { return facts.Redeals == 0; }
bool EndlessRedeals(const Facts& facts, int) { return facts.Redeals < 0; }
bool HasRedeals(const Facts& facts, int redeals) { return facts.Redeals == redeals; }
bool MostlyWinnable(const Facts& facts, int) {
    const Winnability* found = mWinnability::Find(facts.Game->Name);
    return found && mWinnability::IsMostlyWinnable(*found);
}
bool Hard(const Facts& facts, int) {
    const Winnability* found = mWinnability::Find(facts.Game->Name);
    return found && mWinnability::IsHard(*found);
}

// Several phrases may mean the same. Of two that begin at the same word the longer one is meant.
constexpr auto Meanings = std::to_array<Meaning>({
    {"half a deck", Asks::Numbers, IsHalfDeck},
    {"half deck", Asks::Numbers, IsHalfDeck},
    {"# deck", Asks::Numbers, HasDecks},
    {"# suit", Asks::Numbers, HasSuits},
    {"# pile", Asks::Numbers, HasPiles},
    {"# tableau pile", Asks::Numbers, HasPiles},
    {"free cell", Asks::Numbers, FreeCells},
    {"# free cell", Asks::Numbers, HasCells},
    {"# cell", Asks::Numbers, HasCells},
    {"no free cell", Asks::Numbers, NoFreeCells},
    {"stock", Asks::Numbers, HasStock},
    {"with stock", Asks::Numbers, HasStock},
    {"no stock", Asks::Numbers, NoStock},
    {"without stock", Asks::Numbers, NoStock},
    {"all card open", Asks::Numbers, AllOpen},
    {"all open", Asks::Numbers, AllOpen},
    {"in suit", Asks::Numbers, InSuit},
    {"by color", Asks::Numbers, ByColors},
    {"by colour", Asks::Numbers, ByColors},
    {"alternating color", Asks::Numbers, ByColors},
    {"same color", Asks::Numbers, SameColor},
    {"any suit", Asks::Numbers, AnySuit},
    {"complete run", Asks::Numbers, CompleteRuns},
    {"redeal", Asks::Numbers, AnyRedeal},
    {"no redeal", Asks::Numbers, NoRedeal},
    {"never redeal", Asks::Numbers, NoRedeal},
    {"# redeal", Asks::Numbers, HasRedeals},
    {"redeal #", Asks::Numbers, HasRedeals},
    {"redeal # time", Asks::Numbers, HasRedeals},
    {"redeal without limit", Asks::Numbers, EndlessRedeals},
    {"unlimited redeal", Asks::Numbers, EndlessRedeals},
    {"mostly winnable", Asks::Numbers, MostlyWinnable},
    {"hard", Asks::Numbers, Hard},
    {"played", Asks::Played, nullptr},
    {"played by me", Asks::Played, nullptr},
    {"never played", Asks::NeverPlayed, nullptr},
    {"not played", Asks::NeverPlayed, nullptr},
    {"favorite", Asks::Favorite, nullptr},
    {"in favorite", Asks::Favorite, nullptr},
});

/// A facet that a query asks for.
struct Wanted {
    const Meaning* Meant = nullptr;
    int Number = 0;
    std::size_t Length = 0;  ///< in words
};

std::string Lower(std::string_view text) {
    std::string lower(text);
    std::transform(lower.begin(), lower.end(), lower.begin(),
                   [](unsigned char letter) { return static_cast<char>(std::tolower(letter)); });
    return lower;
}

Words Split(std::string_view text) {
    Words words;
    std::string word;
    for (const char letter : Lower(text) + ' ') {
        if (std::isspace(static_cast<unsigned char>(letter)) == 0 && letter != ',') {
            word += letter;
        } else if (!word.empty()) {
            words.push_back(std::exchange(word, {}));
        }
    }
    return words;
}

std::string Joined(const Words& words) {
    std::string text;
    for (const std::string& word : words) text += (text.empty() ? "" : " ") + word;
    return text;
}

// The rules say small numbers as words.
constexpr std::array<std::string_view, 13> NumberWords{
    "no", "one", "two", "three", "four", "five", "six", "seven", "eight", "nine", "ten", "eleven", "twelve"};

std::optional<int> NumberOf(const std::string& word) {
    if (word == "once") return 1;
    if (word == "twice") return 2;
    const auto name = std::find(NumberWords.begin() + 1, NumberWords.end(), word);
    if (name != NumberWords.end()) return static_cast<int>(name - NumberWords.begin());
    int value = 0;
    const auto [end, fault] = std::from_chars(word.data(), word.data() + word.size(), value);
    if (fault != std::errc{} || end != word.data() + word.size() || value < 1) return std::nullopt;
    return value;
}

std::string AsWord(const std::string& typed) {
    const std::optional<int> number = NumberOf(typed);
    const bool isDigits = number && std::isdigit(static_cast<unsigned char>(typed.front())) != 0;
    return isDigits && *number < static_cast<int>(NumberWords.size())
               ? std::string(NumberWords[static_cast<std::size_t>(*number)])
               : typed;
}

std::string Singular(const std::string& word) {
    const bool plural = word.size() > 3 && word.ends_with('s') && !word.ends_with("ss");
    return plural ? word.substr(0, word.size() - 1) : word;
}

struct Subject {
    std::string Name;
    std::string LowerName;
    int SiD;
    int ID;
    Facts Is;
};

// The catalogue does not change while the program runs.
const std::vector<Subject>& Subjects() {
    static const std::vector<Subject> subjects = [] {
        std::vector<Subject> all;
        for (int SiD = 1; SiD <= gData->TotalGames(); ++SiD) {
            const std::string& name = gData->GetGame(SiD);
            const int id = gData->GetGameID(name);
            all.push_back({name, Lower(name), SiD, id, Facts(*mRules::Find(id))});
        }
        return all;
    }();
    return subjects;
}

/// Whether a phrase stands at a word; the number that stands for its #.
std::optional<int> NumberIn(const Words& phrase, const Words& words, std::size_t at) {
    int number = 0;
    if (at + phrase.size() > words.size()) return std::nullopt;
    for (std::size_t i = 0; i < phrase.size(); ++i) {
        const std::string& word = words[at + i];
        const std::optional<int> value = NumberOf(word);
        if (phrase[i] == "#" ? !value : phrase[i] != Singular(word)) return std::nullopt;
        if (phrase[i] == "#") number = *value;
    }
    return number;
}

/// The longest facet that begins at a word; of no words where none does.
Wanted FacetAt(const Words& words, std::size_t at) {
    Wanted best;
    for (const Meaning& meaning : Meanings) {
        const Words phrase = Split(meaning.Phrase);
        if (phrase.size() <= best.Length) continue;
        if (const auto number = NumberIn(phrase, words, at)) best = {&meaning, *number, phrase.size()};
    }
    return best;
}

std::vector<std::vector<Facet>> Usual() {
    return {
        {{"One deck", "one deck"}, {"Two decks", "two decks"}},
        {{"Free cells", "free cells"}, {"No free cells", "no free cells"}},
        {{"Stock", "stock"}, {"No stock", "no stock"}, {"All cards open", "all cards open"}},
        {{"Builds in suit", "in suit"},
         {"Builds by colors", "by colors"},
         {"Builds in any suit", "any suit"}},
        {{"Wins by complete runs", "complete runs"}, {"Never redeals", "never redeals"}},
        {{"Played by me", "played by me"},
         {"Never played", "never played"},
         {"In favorites", "in favorites"}},
    };
}

}  // namespace

const std::vector<std::vector<Facet>>& Menu() {
    static const std::vector<std::vector<Facet>> menu = [] {
        std::vector<std::vector<Facet>> all = Usual();
        // Only where a game is known to be of that kind: figures have been measured for some of them, or
        // none.
        std::vector<Facet> wins;
        const auto offer = [&wins](const Facet& facet, bool (*holds)(const Winnability&)) {
            if (std::any_of(mWinnability::All().begin(), mWinnability::All().end(), holds))
                wins.push_back(facet);
        };
        offer({"Mostly winnable", "mostly winnable"}, mWinnability::IsMostlyWinnable);
        offer({"Hard", "hard"}, mWinnability::IsHard);
        if (!wins.empty()) all.push_back(std::move(wins));
        return all;
    }();
    return menu;
}

bool Search::Played(const std::string& game) {
    if (!played_) {
        const bool wasLoaded = gScore->IsLoaded();
        if (!wasLoaded) gScore->OpenAllScore();
        played_.emplace();
        const std::string player = gData->CurPlayer();
        for (const Subject& subject : Subjects()) {
            const tFilter records{.Player = player, .gName = subject.Name, .Dates = {}};
            if (!gScore->Find(records).empty()) played_->insert(subject.Name);
        }
        if (!wasLoaded) gScore->CloseScore();
    }
    return played_->contains(game);
}

bool Search::Favorite(const std::string& game) {
    if (!favorites_) {
        gScore->OpenFav();
        favorites_.emplace();
        for (int i = 1; i <= gScore->FavTop(); ++i) favorites_->insert(gScore->GetFav(i).mName);
        gScore->CloseFav();
    }
    return favorites_->contains(game);
}

std::vector<int> Search::Games(std::string_view query) {
    const Words typed = Split(query);
    Words words;
    std::transform(typed.begin(), typed.end(), std::back_inserter(words), AsWord);
    std::vector<Wanted> facets;
    Words plain;
    for (std::size_t at = 0; at < words.size();) {
        const Wanted facet = FacetAt(words, at);
        if (facet.Length == 0) {
            plain.push_back(words[at++]);
        } else {
            facets.push_back(facet);
            at += facet.Length;
        }
    }
    const std::vector<int> byText = mHelpPages::FindGames(Joined(plain));
    const std::set<int> textFound(byText.begin(), byText.end());

    const auto holds = [this](const Wanted& facet, const Subject& game) {
        switch (facet.Meant->Of) {
            case Asks::Numbers:
                return facet.Meant->Holds(game.Is, facet.Number);
            case Asks::Played:
                return Played(game.Name);
            case Asks::NeverPlayed:
                return !Played(game.Name);
            case Asks::Favorite:
                return Favorite(game.Name);
        }
        return false;
    };
    std::vector<int> named;
    std::vector<int> others;
    for (const Subject& game : Subjects()) {
        const auto inName = [&](const std::string& word) {
            return game.LowerName.find(word) != std::string::npos;
        };
        if (!typed.empty() && std::all_of(typed.begin(), typed.end(), inName)) {
            named.push_back(game.SiD);
        } else if (textFound.contains(game.ID) &&
                   std::all_of(facets.begin(), facets.end(),
                               [&](const Wanted& facet) { return holds(facet, game); })) {
            others.push_back(game.SiD);
        }
    }
    named.insert(named.end(), others.begin(), others.end());
    return named;
}

}  // namespace mFind
