// Players and favourites as the player of the game meets them.
#include "engine/records/mFavourites.h"
#include "engine/records/mPlayers.h"
#include "window/DialogTest.h"
#include "window/records/dlGInput.h"
#include "window/records/frmOrgFav.h"
#include "window/records/frmPlayFav.h"
#include "window/records/frmPlayers.h"

namespace {

class PlayerDialogs : public DialogTest {
protected:
    void SetUp() override {
        DialogTest::SetUp();
        gData->SetPlayer(2, "Ann", false);
        gData->SetPlayer(3, "Bob", false);
    }
};

TEST_F(PlayerDialogs, TheSelectedPlayerCannotBeDeleted) {
    gData->SetCurPlayer("Ann");
    frmPlayers dialog;
    Open(dialog);
    auto* list = Find<QTreeView>(dialog, "lvPlayer");
    EXPECT_THAT(Rows(list), ElementsAre("Player1", "Ann", "Bob"));
    EXPECT_EQ(Selected(list), "Ann");
    EXPECT_FALSE(Enabled(dialog, "cmdDelete"));
    ClickRow(list, list->model()->index(2, 0));
    EXPECT_TRUE(Enabled(dialog, "cmdDelete"));
    // The keyboard moves the selection as a click does.
    QTest::keyClick(list, Qt::Key_Up);
    EXPECT_EQ(Selected(list), "Ann");
    EXPECT_FALSE(Enabled(dialog, "cmdDelete"));
}

TEST_F(PlayerDialogs, TheNameDialogRefusesAndStaysOpen) {
    dlGInput dialog(QStringLiteral("Edit Player"), "Ann");
    Open(dialog);
    EXPECT_EQ(Find<QLabel>(dialog, "Label1")->text(), QStringLiteral("Edit Player"));
    auto* name = Find<QLineEdit>(dialog, "Text1");
    EXPECT_EQ(name->selectedText(), QStringLiteral("Ann"));
    name->setText(QStringLiteral("Bob"));
    Click(dialog, "OKButton");
    EXPECT_TRUE(dialog.isVisible() && name->hasFocus());
    EXPECT_THAT(layer_.Forms.Messages, ElementsAre("Player Exists !"));
    name->setText(QStringLiteral("Cid"));
    QTest::keyClick(name, Qt::Key_Return);
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_THAT(mPlayers::Names(), ElementsAre("Player1", "Cid", "Bob"));
}

TEST_F(PlayerDialogs, SelectMakesCurrentAndLeavesTheGameRunning) {
    mGen::StartGame("Klondike", 1.0);
    for (const bool byDoubleClick : {false, true}) {
        frmPlayers dialog;
        Open(dialog);
        auto* list = Find<QTreeView>(dialog, "lvPlayer");
        const QModelIndex row = list->model()->index(byDoubleClick ? 1 : 2, 0);
        ClickRow(list, row);
        if (byDoubleClick) {
            QTest::mouseDClick(list->viewport(), Qt::LeftButton, Qt::NoModifier,
                               list->visualRect(row).center());
        } else {
            Click(dialog, "cmdSelect");
        }
        EXPECT_FALSE(dialog.isVisible());
        EXPECT_EQ(gData->CurPlayer(), byDoubleClick ? "Ann" : "Bob");
    }
    EXPECT_TRUE(gData->Figures.GameRunning);
    mGen::CloseGame(0);
    EXPECT_TRUE(layer_.Files.Exists(cScore::FileName("Ann")));
}

TEST_F(PlayerDialogs, AStaleListIsToldAndRenewed) {
    const auto everyButton = {"cmdEdit", "cmdDelete", "cmdSelect"};
    for (const char* button : everyButton) {
        layer_.Forms.Messages.clear();
        frmPlayers dialog;
        Open(dialog);
        auto* list = Find<QTreeView>(dialog, "lvPlayer");
        ClickRow(list, list->model()->index(1, 0));
        // Another program renames Ann and gives her name to Bob.
        ASSERT_TRUE(mPlayers::Enter("Ann", "Zoe") && mPlayers::Enter("Bob", "Ann"));
        Click(dialog, button);
        EXPECT_THAT(layer_.Forms.Messages, ElementsAre("Ann is now called Zoe."));
        EXPECT_TRUE(dialog.isVisible());
        EXPECT_THAT(Rows(list), ElementsAre("Player1", "Zoe", "Ann"));
        EXPECT_EQ(Selected(list), "Zoe");
        EXPECT_EQ(gData->CurPlayer(), "Player1");
        ASSERT_TRUE(mPlayers::Enter("Ann", "Bob") && mPlayers::Enter("Zoe", "Ann"));
    }
    // While the name is being typed.
    dlGInput dialog(QStringLiteral("Edit Player"), ShownPlayer("Ann", PlayerList::Read().Version()));
    Open(dialog);
    ASSERT_TRUE(mPlayers::Enter("Ann", "Zoe"));
    Find<QLineEdit>(dialog, "Text1")->setText(QStringLiteral("Eve"));
    Click(dialog, "OKButton");
    EXPECT_FALSE(dialog.isVisible()) << "there is no Ann to rename";
    EXPECT_THAT(mPlayers::Names(), ElementsAre("Player1", "Zoe", "Bob"));
}

TEST_F(PlayerDialogs, TheNameDialogSaysWhatIsWrongWhileOneTypes) {
    dlGInput dialog(QStringLiteral("Add Player"), "");
    Open(dialog);
    auto* name = Find<QLineEdit>(dialog, "Text1");
    auto* fault = Find<QLabel>(dialog, "lblFault");
    EXPECT_EQ(fault->text(), QString()) << "nothing has been typed yet";
    const std::pair<const char*, const char*> rows[] = {
        {" ", "blanks"},  {" a", ""},  {" a/", "character /"},
        {"..", "folder"}, {"...", ""}, {"a\\", "character \\"},
    };
    for (const auto& [typed, says] : rows) {
        name->clear();
        QTest::keyClicks(name, QLatin1String(typed));
        EXPECT_THAT(fault->text().toStdString(), testing::HasSubstr(says));
        EXPECT_EQ(fault->text().isEmpty(), *says == '\0') << typed;
        EXPECT_EQ(name->accessibleDescription(), fault->text());
    }
}

TEST_F(PlayerDialogs, ScoreFilesWithoutAPlayerAreOffered) {
    layer_.Files.Contents[cScore::FileName("Zoe")] = R"("2004-01-05 22:10:33","Klondike",1,2,3,4,1)";
    layer_.Forms.Answer = true;
    frmPlayers dialog;
    EXPECT_THAT(layer_.Forms.Questions,
                ElementsAre("The score file \"Zoe.sre\" with 1 record belongs to no player.\n"
                            "Take it back as the player Zoe?"));
    EXPECT_THAT(Rows(Find<QTreeView>(dialog, "lvPlayer")), ElementsAre("Player1", "Ann", "Bob", "Zoe"));
}

class FavouriteDialogs : public DialogTest {
protected:
    static void Add(const char* game, const GameNumber& number) { ASSERT_TRUE(gScore->AddFav(game, number)); }
    [[nodiscard]] static QTreeView* Numbers(const QWidget& dialog) {
        return Find<QTreeView>(dialog, "lvFav");
    }
};

TEST_F(FavouriteDialogs, TheRunningDealIsAddedAndToldOf) {
    mMain::AddFavourite();
    EXPECT_THAT(layer_.Forms.Messages, IsEmpty()) << "no game runs";
    mGen::StartGame("Klondike", 77.0);
    mMain::AddFavourite();
    mGen::StartGame("Klondike", std::string("0078"));
    mMain::AddFavourite();
    EXPECT_THAT(layer_.Forms.Messages,
                ElementsAre("Game <77> Successfully Added to Favorites Under <Klondike> Folder",
                            "Game <0078> Successfully Added to Favorites Under <Klondike> Folder"));
    layer_.Forms.Messages.clear();
    layer_.Files.Fault = "No space left on device";
    mMain::AddFavourite();
    layer_.Files.Fault.reset();
    ASSERT_EQ(layer_.Forms.Messages.size(), 1u);
    EXPECT_THAT(layer_.Forms.Messages[0], testing::HasSubstr("could not be written"));
    mFavourites::Open();
    EXPECT_THAT(mFavourites::Numbers("Klondike"), ElementsAre("77", "0078", "0078"))
        << "what waited is written when a list opens";
}

TEST_F(FavouriteDialogs, AreOrganizedByGame) {
    Add("Yukon", 5.0);
    Add("Klondike", 1.0);
    Add("Yukon", std::string("3"));
    Add("Yukon", 5.0);
    gData->Figures.CurGName = "Yukon";
    frmOrgFav dialog;
    Open(dialog);
    auto* games = Find<QTreeView>(dialog, "lvGames");
    EXPECT_EQ(games->model()->rowCount(), gData->TotalGames());
    EXPECT_EQ(Selected(games), "Yukon");
    EXPECT_TRUE(games->viewport()->rect().contains(games->visualRect(games->currentIndex())))
        << "the selection is out of sight";
    EXPECT_THAT(Rows(Numbers(dialog)), ElementsAre("5", "3", "5"));
    const auto spoken = [games](const char* game) {
        const QAbstractItemModel* model = games->model();
        const auto found =
            model->match(model->index(0, 0), Qt::DisplayRole, QLatin1String(game), 1, Qt::MatchExactly);
        return found.at(0).data(Qt::AccessibleTextRole).toString().toStdString();
    };
    EXPECT_EQ(spoken("Yukon"), "Yukon, 3 favorites");
    EXPECT_EQ(spoken("Klondike"), "Klondike, 1 favorite");
    EXPECT_EQ(spoken("Canfield"), "");
    ClickRow(games, games->model()->index(0, 0));
    EXPECT_THAT(Rows(Numbers(dialog)), IsEmpty());

    // All of all games go at once, without a question.
    ASSERT_TRUE(Enabled(dialog, "cmdClear"));
    Click(dialog, "cmdClear");
    EXPECT_THAT(layer_.Forms.Questions, IsEmpty());
    EXPECT_FALSE(layer_.Files.Exists(cScore::FavFileName()));
    EXPECT_EQ(spoken("Yukon"), "");
    EXPECT_TRUE(QTest::qWaitFor([&] { return !Enabled(dialog, "cmdClear"); }, 2000));
}

TEST_F(FavouriteDialogs, ArePlayedWithTheirNumberAsText) {
    Add("Yukon", 5.0);
    Add("Klondike", 1.0);
    Add("Yukon", 9.0);
    gData->SetCurGName("Klondike");
    mGen::StartGame("Klondike", 1.0);
    frmPlayFav dialog;
    Open(dialog);
    auto* games = Find<QComboBox>(dialog, "cmGames");
    EXPECT_EQ(games->currentText(), QStringLiteral("Klondike"));
    EXPECT_TRUE(Enabled(dialog, "cmdPlay"));
    games->setCurrentIndex(0);
    EXPECT_THAT(Rows(Numbers(dialog)), IsEmpty());
    EXPECT_FALSE(Enabled(dialog, "cmdPlay"));
    games->setCurrentIndex(games->findText(QStringLiteral("Yukon")));
    EXPECT_EQ(games->currentData(Qt::AccessibleTextRole).toString(), QStringLiteral("Yukon, 2 favorites"));
    EXPECT_THAT(Rows(Numbers(dialog)), ElementsAre("5", "9"));
    EXPECT_EQ(Selected(Numbers(dialog)), "9") << "the last one is selected";
    ClickRow(Numbers(dialog), Numbers(dialog)->model()->index(0, 0));
    Click(dialog, "cmdPlay");
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_EQ(gData->Figures.CurGName, "Yukon");
    EXPECT_EQ(gData->Figures.CurGNo, GameNumber(std::string("5")));
    ASSERT_EQ(gScore->SesTop(), 1);
    EXPECT_EQ(gScore->GetSes(1).gName, "Klondike") << "the running game was lost";
}

}  // namespace
