// Putting a rules page together: the sections, the relatives, the other games of the group.
#include "engine/help/mRules.h"

#include <array>
#include <memory>
#include <span>

#include "engine/catalogue/definition.h"
#include "engine/catalogue/families.h"
#include "engine/catalogue/mWinnability.h"
#include "engine/help/mRulesText.h"
#include "engine/help/mRulesWins.h"
#include "engine/help/mRulesWords.h"
#include "engine/state/cData.h"

namespace mRules {

namespace {

using mRulesFacts::Facts;
using mRulesFacts::Respect;

constexpr int IDsOfGroup = 100;  // a game's id is its group × 100 + its place in the group

struct Entry {
    int ID;
    Facts Of;
};

// The facts of all games; worked out once, for the comparison of each with each.
const std::vector<Entry>& Entries() {
    static const std::vector<Entry> entries = [] {
        std::vector<Entry> all;
        int group = 0;
        for (const Family& family : Families) {
            int id = ++group * IDsOfGroup;
            for (const Definition& game : family.Games()) all.push_back({++id, Facts(game)});
        }
        return all;
    }();
    return entries;
}

const Entry* EntryOf(int gameID) {
    for (const Entry& entry : Entries()) {
        if (entry.ID == gameID) return &entry;
    }
    return nullptr;
}

// Where all cards lie out, the piles grow as fewer cards begin elsewhere: that is no difference of its own.
bool PilesFollow(const Facts& a, const Facts& b, Respect found) {
    return (found == Respect::Start || found == Respect::Reserve) && a.Deal.StockCards == 0 &&
           b.Deal.StockCards == 0 && a.Game->HomePiles == b.Game->HomePiles &&
           a.Game->HomePattern == HomeType::Rows && b.Game->HomePattern == HomeType::Rows;
}

// The one respect in which two games differ; Derived where they differ in more than one, or in none.
Respect OnlyDifference(const Facts& a, const Facts& b) {
    Respect found = Respect::Derived;
    bool piles = false;
    for (std::size_t i = 0; i < mRulesFacts::RespectCount; ++i) {
        if (a.Keys[i] == b.Keys[i]) continue;
        const auto respect = static_cast<Respect>(i);
        if (respect == Respect::Piles) {
            piles = true;
        } else if (found != Respect::Derived) {
            return Respect::Derived;
        } else {
            found = respect;
        }
    }
    if (!piles) return found;
    if (found == Respect::Derived) return Respect::Piles;
    return PilesFollow(a, b, found) ? found : Respect::Derived;
}

// What is so in the other game, as a clause after "but".
std::string DifferenceIn(Respect respect, const Facts& other, const Facts& than) {
    using namespace mRulesText;
    switch (respect) {
        case Respect::Deck:
            return DeckClause(other);
        case Respect::Piles:
            return PilesClause(other);
        case Respect::Faces:
            return FacesClause(other);
        case Respect::Kings:
            return other.Game->MoveKings ? "the Kings sink to the bottom of their piles after the deal"
                                         : "the Kings stay where they are dealt";
        case Respect::Sight:
            return SightClause(other, &than);
        case Respect::Build:
            return BuildClause(other, than);
        case Respect::Lift:
            return LiftClause(other);
        case Respect::Limit:
            return other.Limited ? "the free places limit how many cards move at once"
                                 : "runs of any length move at once";
        case Respect::Fill:
            return FillClause(other);
        case Respect::Refill:
            return RefillClause(other);
        case Respect::Start:
            return StartClause(other);
        case Respect::Goal:
            return GoalClause(other);
        case Respect::Stock:
            return StockClause(other);
        case Respect::Redeal:
            return RedealClause(other);
        case Respect::Reserve:
            return ReserveClause(other);
        case Respect::Auto:
            return other.Game->NoAuto ? "no card goes to the foundations by itself"
                                      : "cards go to the foundations by themselves while Autoplay is on";
        case Respect::Derived:
            break;
    }
    return {};
}

std::vector<Section> SectionsOf(const Facts& facts) {
    struct Part {
        const char* Heading;
        mRulesText::Paragraphs (*Text)(const Facts&);
    };
    constexpr std::array<Part, 8> parts{{{"The deck", mRulesText::Deck},
                                         {"The deal", mRulesText::Deal},
                                         {"The tableau", mRulesText::Tableau},
                                         {"The foundations", mRulesText::Foundations},
                                         {"The stock", mRulesText::Stock},
                                         {"The reserve", mRulesText::Reserve},
                                         {"What happens by itself", mRulesText::ByItself},
                                         {"Winning", mRulesText::Winning}}};
    std::vector<Section> sections;
    for (const Part& part : parts) {
        Section section{part.Heading, part.Text(facts)};
        if (!section.Paragraphs.empty()) sections.push_back(std::move(section));
    }
    return sections;
}

std::string Link(int gameID) {
    return "<a href=\"game:" + std::to_string(gameID) + "\">" + mRulesWords::Escape(Name(gameID)) + "</a>";
}

std::string RelativesList(int gameID) {
    const auto relatives = Relatives(gameID);
    if (relatives.empty()) return {};
    std::string html = "<h2>Like " + mRulesWords::Escape(Name(gameID)) + ", but&nbsp;&hellip;</h2>\n<ul>\n";
    for (const auto& [other, clause] : relatives) {
        html += "<li>" + Link(other) + ": &hellip;&nbsp;" + mRulesWords::Escape(clause) + ".</li>\n";
    }
    return html + "</ul>\n";
}

// Games of other names with the very same numbers.
std::string Twins(const Entry& game) {
    std::vector<std::string> links;
    for (const Entry& other : Entries()) {
        if (other.ID != game.ID && other.Of.Keys == game.Of.Keys) links.push_back(Link(other.ID));
    }
    if (links.empty()) return {};
    return "<p>" + mRulesWords::List(links) + (links.size() == 1 ? " has" : " have") +
           " the very same rules.</p>\n";
}

std::string OthersOfGroup(int gameID) {
    const int group = gameID / IDsOfGroup;
    std::vector<std::string> links;
    for (const Entry& entry : Entries()) {
        if (entry.ID / IDsOfGroup == group && entry.ID != gameID) links.push_back(Link(entry.ID));
    }
    return "<h2>Other games of the group " + mRulesWords::Escape(gData->GroupfromGiD(group)) + "</h2>\n<p>" +
           mRulesWords::List(links) + ".</p>\n";
}

}  // namespace

std::vector<Section> Sections(const Definition& game) { return SectionsOf(Facts(game)); }

std::string PlainText(const Definition& game) {
    std::string text;
    for (const Section& section : Sections(game)) {
        for (const std::string& paragraph : section.Paragraphs) text += paragraph + '\n';
    }
    return text;
}

const Definition* Find(int gameID) {
    const Entry* entry = EntryOf(gameID);
    return entry ? entry->Of.Game : nullptr;
}

const std::vector<int>& AllGames() {
    static const std::vector<int> ids = [] {
        std::vector<int> all;
        for (const Entry& entry : Entries()) all.push_back(entry.ID);
        return all;
    }();
    return ids;
}

std::string Name(int gameID) {
    const Definition* game = Find(gameID);
    return game ? std::string(game->Name) : std::string();
}

std::string Difference(const Definition& game, const Definition& than) {
    const Facts other(game);
    const Facts usual(than);
    return DifferenceIn(OnlyDifference(usual, other), other, usual);
}

std::vector<std::pair<int, std::string>> Relatives(int gameID) {
    std::vector<std::pair<int, std::string>> relatives;
    const Entry* game = EntryOf(gameID);
    if (!game) return relatives;
    for (const Entry& other : Entries()) {
        const Respect respect = OnlyDifference(game->Of, other.Of);
        if (respect != Respect::Derived)
            relatives.emplace_back(other.ID, DifferenceIn(respect, other.Of, game->Of));
    }
    return relatives;
}

std::string Page(int gameID) {
    const Entry* game = EntryOf(gameID);
    if (!game) return {};
    const int group = gameID / IDsOfGroup;
    const std::string id = std::to_string(gameID);
    std::string html = "<h1>" + mRulesWords::Escape(game->Of.Game->Name) +
                       "</h1>\n<p>A game of the group <a href=\"group:" + std::to_string(group) + "\">" +
                       mRulesWords::Escape(gData->GroupfromGiD(group)) +
                       "</a>.</p>\n<p><img src=\"deal:" + id + "\" alt=\"The opening deal\"/></p>\n";
    std::vector<Section> sections = SectionsOf(game->Of);
    if (const Winnability* found = mWinnability::Find(game->Of.Game->Name))
        sections.push_back({"How often it can be won", mRulesWins::Paragraphs(*found)});
    for (const Section& section : sections) {
        html += "<h2>" + section.Heading + "</h2>\n";
        for (const std::string& paragraph : section.Paragraphs) {
            html += "<p>" + mRulesWords::Escape(paragraph) + "</p>\n";
        }
    }
    return html + Twins(*game) + RelativesList(gameID) + OthersOfGroup(gameID);
}

}  // namespace mRules
