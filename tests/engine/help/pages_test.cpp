// The general help pages, and the search that finds games and pages.
#include <regex>
#include <string_view>

#include "engine/help/mHelpPages.h"
#include "engine/help/mRules.h"
#include "engine/help/mRulesWords.h"
#include "support/EngineTest.h"

namespace {

class HelpPages : public testing::Test {
    const Engine engine_;
};

TEST_F(HelpPages, GamesAreFoundByNameFirstAndThenByTheirRules) {
    const auto names = [](std::string_view words) {
        std::vector<std::string> found;
        for (const int id : mHelpPages::FindGames(words)) found.push_back(mRules::Name(id));
        return found;
    };
    EXPECT_THAT(names("klondike"), Contains("Klondike Reversed"));
    EXPECT_EQ(names("  SPIDER  one suit ")[0], "Spider One Suit") << "words in any case, with any blanks";
    const auto kings = names("kings");
    EXPECT_THAT(kings, Contains("Baker's Dozen")) << "whose rules speak of them";
    EXPECT_GT(kings.size(), 10u);
    EXPECT_THAT(names("qwertz"), IsEmpty());
    EXPECT_THAT(names(" "), SizeIs(static_cast<std::size_t>(gData->TotalGames())));
}

TEST_F(HelpPages, EachPageIsFoundAndLeadsSomewhere) {
    EXPECT_THAT(mHelpPages::FindPages("wheel"), Contains("mouse"));
    EXPECT_THAT(mHelpPages::FindPages("qwertz"), IsEmpty());
    for (const mHelpPages::Page& page : mHelpPages::All()) {
        EXPECT_THAT(mHelpPages::Html(page.Key), HasSubstr(mRulesWords::Escape(page.Title)));
        EXPECT_THAT(mHelpPages::FindPages(page.Title), Contains(page.Key));
    }
    EXPECT_EQ(mHelpPages::Html("unknown"), "");
    static const std::regex link("href=\"game:(\\d+)\"");
    std::vector<int> ids;
    for (int Gid = 0; Gid <= gData->TotalGroups() + 1; ++Gid) {
        const std::string html = mHelpPages::Group(Gid);
        for (std::sregex_iterator at(html.begin(), html.end(), link); at != std::sregex_iterator(); ++at)
            ids.push_back(std::stoi((*at)[1]));
    }
    EXPECT_EQ(ids, mRules::AllGames()) << "each in the page of its group";
    EXPECT_EQ(mRulesWords::Escape("<A> & B"), "&lt;A&gt; &amp; B");
    EXPECT_THAT(mRules::Relatives(1), IsEmpty()) << "no game has that number";
}

}  // namespace
