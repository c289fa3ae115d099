// The help windows: rules, contents, search, links; and what "About" tells.
#include "engine/help/mHelpPages.h"
#include "window/DialogTest.h"
#include "window/dialogs/frmAbout.h"
#include "window/help/ProgramHelp.h"

namespace {

class HelpWindows : public DialogTest {
protected:
    [[nodiscard]] static QWidget* Window(const char* name) {
        for (QWidget* window : QApplication::topLevelWidgets()) {
            if (window->objectName() == QLatin1String(name) && window->isVisible()) return window;
        }
        return nullptr;
    }
    [[nodiscard]] static QString Page(const QWidget* window) {
        return Find<QTextBrowser>(*window, "helpPage")->toPlainText();
    }
    ProgramHelp help_;
};

TEST_F(HelpWindows, RulesAndContentsOpenFollowLinksAndClose) {
    help_.ShowContext(gData->GetGameID("Yukon"));
    const QWidget* rules = Window("frmRules");
    ASSERT_NE(rules, nullptr);
    EXPECT_TRUE(Page(rules).startsWith(QStringLiteral("Yukon\n")));
    help_.ShowContext(gData->GetGameID("Klondike"));
    EXPECT_EQ(Window("frmRules"), rules) << "one window for all games";
    EXPECT_TRUE(Page(rules).startsWith(QStringLiteral("Klondike\n")));
    EXPECT_EQ(Window("frmContents"), nullptr);

    help_.ShowContext(0);
    const QWidget* contents = Window("frmContents");
    ASSERT_NE(contents, nullptr);
    Find<QTextBrowser>(*contents, "helpPage")->setSource(QUrl(QStringLiteral("game:801")));
    auto* tree = Find<QTreeWidget>(*contents, "tvwContents");
    ASSERT_NE(tree->currentItem(), nullptr);
    tree->expandAll();
    EXPECT_FALSE(tree->horizontalScrollBar()->isVisible()) << "all titles have room";
    EXPECT_TRUE(Page(contents).startsWith(tree->currentItem()->text(0) + QLatin1Char('\n')));
    help_.CloseAll();
    EXPECT_FALSE(Window("frmRules") || Window("frmContents"));
}

TEST_F(HelpWindows, TheSearchLeavesWhatHoldsTheWords) {
    help_.ShowContents();
    const QWidget* contents = Window("frmContents");
    ASSERT_NE(contents, nullptr);
    QTest::keyClicks(Find<QLineEdit>(*contents, "txtSearch"), QStringLiteral("spider one suit"));
    std::size_t shown = 0;
    for (QTreeWidgetItemIterator it(Find<QTreeWidget>(*contents, "tvwContents")); *it; ++it) {
        if (!(*it)->isHidden() && (*it)->parent() && !(*it)->parent()->isHidden()) ++shown;
    }
    constexpr const char* Words = "spider one suit";
    EXPECT_EQ(shown, mHelpPages::FindGames(Words).size() + mHelpPages::FindPages(Words).size());
    EXPECT_LT(shown, 50u);
    EXPECT_TRUE(Page(contents).startsWith(QStringLiteral("Spider One Suit\n")));

    const auto* nothing = Find<QLabel>(*contents, "lblNothing");
    EXPECT_TRUE(nothing->isHidden());
    QTest::keyClicks(Find<QLineEdit>(*contents, "txtSearch"), QStringLiteral(" zither"));
    EXPECT_FALSE(nothing->isHidden());
}

TEST_F(HelpWindows, AboutNamesVersionAndLibraries) {
    const frmAbout about(nullptr);
    QString all;
    for (const auto* label : about.findChildren<QLabel*>()) all += label->text() + QLatin1Char('\n');
    const QString games = QStringLiteral("%1 patience games").arg(gData->TotalGames());
    for (const QString& part :
         {QStringLiteral("Tarnival 2004 11.0"), games, QStringLiteral("Qt "), QStringLiteral("fmt")}) {
        EXPECT_TRUE(all.contains(part)) << part.toStdString() << " in " << all.toStdString();
    }
}

}  // namespace
