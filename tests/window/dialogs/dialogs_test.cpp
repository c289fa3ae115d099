// The dialogs as the player meets them: what they show, what keys and clicks do, what they start.
#include <set>

#include "engine/commands/mSelect.h"
#include "engine/rules/mPlay.h"
#include "window/DialogTest.h"
#include "window/controls/GameTree.h"
#include "window/dialogs/frmChoose.h"
#include "window/dialogs/frmHistory.h"
#include "window/dialogs/frmSelect.h"
#include "window/records/frmFinish.h"
#include "window/table/ProgramLayer.h"

namespace {

enum Tab { All, Groups, Original };

class Dialogs : public DialogTest {
protected:
    [[nodiscard]] static QTreeWidget* Tree(const QDialog& dialog) {
        return qobject_cast<QTreeWidget*>(Find<QTabWidget>(dialog, "SSTab1")->currentWidget());
    }
    [[nodiscard]] static std::string Selected(const QDialog& dialog) {
        const QTreeWidgetItem* item = Tree(dialog)->currentItem();
        return item ? item->text(0).toStdString() : "";
    }
    static void ShowTab(const QDialog& dialog, Tab tab) {
        Find<QTabWidget>(dialog, "SSTab1")->setCurrentIndex(tab);
    }
    static void SelectNode(const QDialog& dialog, const char* text, bool group = false) {
        for (QTreeWidgetItemIterator it(Tree(dialog)); *it; ++it) {
            const bool isGame = (*it)->data(0, Qt::UserRole).isValid();
            if ((*it)->text(0) != QLatin1String(text) || isGame == group) continue;
            Tree(dialog)->setCurrentItem(*it);
            return;
        }
        FAIL() << "no node " << text;
    }
    static void DoubleClick(QTreeWidget* tree, const QTreeWidgetItem* item) {
        tree->scrollToItem(item);
        const QPoint place = tree->visualItemRect(item).center();
        QTest::mouseClick(tree->viewport(), Qt::LeftButton, Qt::NoModifier, place);
        QTest::mouseDClick(tree->viewport(), Qt::LeftButton, Qt::NoModifier, place);
    }
    [[nodiscard]] static std::string Text(const QDialog& dialog, const char* label) {
        return Find<QLabel>(dialog, label)->text().toStdString();
    }
    [[nodiscard]] static bool Playing(const std::string& game) {
        return gData->Figures.GameRunning && gData->Figures.CurGName == game;
    }
};

// A preview is a deal of its own, computed while another game runs.
TEST_F(Dialogs, PreviewsOfAllGamesLeaveTheRunningGameAlone) {
    gData->Set(Setting::TvIndex, All);
    mGen::StartGame("Klondike", 21.0);
    mMain::MouseDown(gArray->GetTopPicID(Stock), 5, 5);
    layer_.Calendar.Advance(7);
    mMain::TickTime();
    const RunningGame before = gRunning;
    const auto settings = layer_.Settings.Values;

    frmSelect dialog;
    const auto* preview = Find<QLabel>(dialog, "imgPick");
    auto* tree = Find<QTreeWidget>(dialog, "tvwAll");
    std::set<qint64> pictures;
    qint64 last = 0;
    for (int i = 0; i < tree->topLevelItem(0)->childCount(); ++i) {
        tree->setCurrentItem(tree->topLevelItem(0)->child(i));
        const QPixmap picture = preview->pixmap(Qt::ReturnByValue);
        ASSERT_EQ(picture.deviceIndependentSize().toSize(), preview->size()) << i;
        pictures.insert(last = picture.cacheKey());
    }
    EXPECT_EQ(pictures.size(), static_cast<std::size_t>(gData->TotalGames()));
    EXPECT_TRUE(gRunning.Games == before.Games && gRunning.Array == before.Array &&
                gRunning.Trans == before.Trans && gRunning.Plate == before.Plate);
    EXPECT_EQ(std::tuple(gRedealCount, gGoalBase), std::tuple(before.RedealCount, before.GoalBase));
    EXPECT_TRUE(gData->Figures.GameRunning && gData->Figures.GameStart == before.Figures.GameStart &&
                gData->Figures.CurMoves == before.Figures.CurMoves &&
                gData->Figures.CurTime == before.Figures.CurTime);
    EXPECT_EQ(layer_.Settings.Values, settings);
    // A root keeps the last game in sight.
    tree->setCurrentItem(tree->topLevelItem(0));
    EXPECT_EQ(preview->pixmap(Qt::ReturnByValue).cacheKey(), last);
}

TEST_F(Dialogs, SelectOpensOnTheLastGameTabAndPlayer) {
    gData->SetPlayer(2, "Zoë", true);
    gData->SetPlayer(3, "Ann", false);
    gData->SetCurGName("Klondike");
    gData->Set(Setting::TvIndex, All);
    frmSelect dialog;
    Open(dialog);
    EXPECT_EQ(Selected(dialog), "Klondike");
    EXPECT_EQ(Text(dialog, "lblName"), "Klondike");
    EXPECT_EQ(Text(dialog, "lblFacts").find("One deck"), 0U);
    EXPECT_EQ(Find<QComboBox>(dialog, "imcPlayer")->currentText(), QStringLiteral("Zoë"));
    EXPECT_EQ(Find<QComboBox>(dialog, "imcPlayer")->count(), 3);
    const QRect row = Tree(dialog)->visualItemRect(Tree(dialog)->currentItem());
    EXPECT_TRUE(Tree(dialog)->viewport()->rect().contains(row)) << "the selection is out of sight";
    ShowTab(dialog, Groups);
    EXPECT_EQ(Selected(dialog), "Klondike");
    EXPECT_EQ(Tree(dialog)->currentItem()->parent()->text(0), QStringLiteral("Klondike"));
}

TEST_F(Dialogs, AGameStartsByItsButtonADoubleClickOrReturn) {
    gData->SetPlayer(2, "Ann", false);
    for (const char* game : {"Fan", "Yukon", "Klondike"}) {
        frmSelect dialog;
        Open(dialog);
        ShowTab(dialog, All);
        SelectNode(dialog, game);
        Find<QComboBox>(dialog, "imcPlayer")->setCurrentIndex(1);
        if (game[0] == 'F') {
            Click(dialog, "cmdPlay");
        } else if (game[0] == 'Y') {
            DoubleClick(Tree(dialog), Tree(dialog)->currentItem());
        } else {
            Tree(dialog)->setFocus();
            QTest::keyClick(Tree(dialog), Qt::Key_Return);
        }
        EXPECT_TRUE(Playing(game));
        EXPECT_FALSE(dialog.isVisible());
        EXPECT_EQ(dialog.result(), QDialog::Accepted);
        EXPECT_EQ(gData->Get(Setting::TvIndex), All);
    }
    EXPECT_EQ(gData->CurPlayer(), "Ann");
    EXPECT_EQ(gScore->SesTop(), 2) << "the first two were abandoned, each once";
}

TEST_F(Dialogs, TypingFindsAGameAlsoInAClosedGroup) {
    const std::tuple<Tab, const char*, const char*> rows[] = {
        {All, "baker's dozen t", "Baker's Dozen Two Suit"},
        {Groups, "YUKON", "Yukon"},
        {Groups, "spidercells", "Spidercells"},
        {All, "qqqq", "Queen of Arabia"},
        {All, "kkk", "Klondike Reversed"},
    };
    for (const auto& [tab, typed, found] : rows) {
        SCOPED_TRACE(typed);
        gData->SetCurGName("Klondike");
        frmSelect dialog;
        Open(dialog);
        ShowTab(dialog, tab);
        Tree(dialog)->collapseAll();
        Tree(dialog)->setFocus();
        QTest::keyClicks(Tree(dialog), QLatin1String(typed));
        EXPECT_EQ(Selected(dialog), found);
        EXPECT_EQ(Text(dialog, "lblName"), found);
        EXPECT_FALSE(Tree(dialog)->visualItemRect(Tree(dialog)->currentItem()).isEmpty());
        QTest::keyClicks(Tree(dialog), QStringLiteral("#"));
        EXPECT_EQ(Selected(dialog), found) << "what no game begins with changes nothing";
    }
}

TEST_F(Dialogs, TheSearchLeavesWhatIsMeantAndPlaysIt) {
    gData->SetCurGName("Klondike");
    frmSelect dialog;
    Open(dialog);
    auto* field = Find<QLineEdit>(dialog, "txtSearch");
    const auto shown = [&] {
        QStringList names;
        for (QTreeWidgetItemIterator it(Tree(dialog)); *it; ++it) {
            if (GameTree::Tag(*it) != 0 && !(*it)->isHidden()) names << (*it)->text(0);
        }
        return names;
    };
    field->setFocus();
    for (const Tab tab : {All, Groups}) {
        ShowTab(dialog, tab);
        field->clear();
        QTest::keyClicks(field, QStringLiteral("complete runs two suits"));
        EXPECT_EQ(shown(),
                  (QStringList{QStringLiteral("Spider Two Suit"), QStringLiteral("Stripped Spider")}));
        EXPECT_EQ(Selected(dialog), "Spider Two Suit");
        EXPECT_EQ(Text(dialog, "lblName"), "Spider Two Suit");
    }
    QTest::keyClick(field, Qt::Key_Escape);
    EXPECT_EQ(shown().size(), gData->TotalGames()) << "Escape shows all again";
    QTest::keyClicks(field, QStringLiteral("zither"));
    EXPECT_TRUE(shown().isEmpty());
    EXPECT_FALSE(Find<QPushButton>(dialog, "cmdPlay")->isEnabled());

    // The menu adds its words, and takes them out again.
    field->setText(QStringLiteral("spider"));
    const auto entries = Find<QToolButton>(dialog, "cmdFacets")->menu()->actions();
    const auto flip = [&](const char* label) {
        for (QAction* entry : entries) {
            if (entry->text() == QLatin1String(label)) entry->trigger();
        }
    };
    flip("Two decks");
    flip("Never played");
    EXPECT_EQ(field->text(), QStringLiteral("spider two decks never played"));
    flip("Two decks");
    EXPECT_EQ(field->text(), QStringLiteral("spider never played"));

    field->setText(QStringLiteral("3 free cells"));
    QTest::keyClick(field, Qt::Key_Down);
    EXPECT_TRUE(Tree(dialog)->hasFocus());
    QTest::keyClick(Tree(dialog), Qt::Key_Return);
    EXPECT_TRUE(Playing("Milligan Cell"));
}

TEST_F(Dialogs, ANameWithABlankIsTypedInTheBoxOfGames) {
    gData->SetCurGName("Klondike");
    frmChoose dialog;
    Open(dialog);
    auto* games = Find<QComboBox>(dialog, "cmGames");
    games->setFocus();
    QTest::keyClicks(games, QStringLiteral("baker's dozen p"));
    EXPECT_EQ(games->currentText(), QStringLiteral("Baker's Dozen Plus"));
    EXPECT_FALSE(games->view()->isVisible());
}

TEST_F(Dialogs, NumbersAreTakenInsideTheRangeOnly) {
    const std::tuple<int, const char*, const char*> rows[] = {
        // digits, typed, the largest number that a message names; none for a good number
        {1, "1", nullptr},
        {1, "8.75", nullptr},
        {1, "9", "9"},
        {1, "0", "9"},
        {3, "-1", "999"},
        {3, "998", nullptr},
        {3, "999", "999"},
        {4, "", "9,999"},
        {4, "12a", "9,999"},
        {4, " 0012", nullptr},
        {4, "0.5", nullptr},
        {15, "999999999999998", nullptr},
        {15, "inf", "999,999,999,999,999"},
    };
    for (const auto& [digits, typed, largest] : rows) {
        SCOPED_TRACE(typed);
        gData->Set(Setting::RangeIndex, digits);
        layer_.Forms.Messages.clear();
        if (gData->Figures.GameRunning) mGen::CloseGame(0);
        frmChoose dialog;
        Open(dialog);
        auto* number = Find<QLineEdit>(dialog, "Text1");
        EXPECT_EQ(Text(dialog, "lblFault"), "") << "nothing has been typed yet";
        number->setText(QLatin1String(typed));
        EXPECT_EQ(Text(dialog, "lblFault").empty(), largest == nullptr);
        QTest::keyClick(number, Qt::Key_Return);
        EXPECT_EQ(gData->Figures.GameRunning, largest == nullptr);
        EXPECT_EQ(dialog.isVisible(), largest != nullptr);
        if (largest) {
            EXPECT_THAT(layer_.Forms.Messages,
                        ElementsAre(std::string("Please enter a number between 0 and ") + largest));
            EXPECT_EQ(number->text(), QStringLiteral("0"));
            EXPECT_TRUE(number->hasFocus());
        } else {
            EXPECT_THAT(layer_.Forms.Messages, IsEmpty());
            EXPECT_EQ(gData->Figures.CurGNo, GameNumber(typed)) << "the text itself goes on as the number";
        }
    }
}

TEST_F(Dialogs, TheEndOfAGameOffersWhatToDoNext) {
    const FinishSummary summary{"Klondike", {" Game : 12", " Player : Ann", " Time : 1:00:05"}, 0, 104, 3605};
    const std::tuple<const char*, AfterGame, const char*> rows[] = {
        // button, choice, a view of the records that opens while the dialog stays behind it
        {"New", AfterGame::NewGame, nullptr},
        {"Select", AfterGame::SelectGame, nullptr},
        {"Restart", AfterGame::RestartGame, nullptr},
        {"Statistics", AfterGame::Nothing, "frmGameStat"},
        {"Highscore", AfterGame::Nothing, "frmHighScore"},
        {"Close", AfterGame::Nothing, nullptr},
    };
    for (const auto& [key, choice, view] : rows) {
        SCOPED_TRACE(key);
        frmFinish dialog(summary);
        Open(dialog);
        auto* button = Find<QToolButton>(dialog, key);
        if (view) {
            OnModal(
                [name = view](const QWidget& open) { EXPECT_EQ(open.objectName(), QLatin1String(name)); });
        }
        button->setFocus();
        QTest::keyClick(button, Qt::Key_Return);
        EXPECT_EQ(dialog.isVisible(), view != nullptr);
        EXPECT_EQ(dialog.Choice(), choice);
    }
    frmFinish dialog(summary);
    Open(dialog);
    EXPECT_EQ(Find<QGroupBox>(dialog, "Frame1")->title(), QStringLiteral("Klondike"));
    EXPECT_THAT(Rows(Find<QListWidget>(dialog, "ListView1")), ElementsAreArray(summary.Lines));
    const auto* list = Find<QListWidget>(dialog, "ListView1");
    EXPECT_EQ(list->visualItemRect(list->item(list->count() - 1)).bottom(), list->viewport()->height() - 1)
        << "as tall as its lines";
    for (const auto& row : rows) {
        const auto* button = Find<QToolButton>(dialog, std::get<0>(row));
        EXPECT_EQ(button->y(), Find<QToolButton>(dialog, "New")->y());
        EXPECT_NEAR(button->width(), Find<QToolButton>(dialog, "New")->width(), 1);
    }
    EXPECT_EQ(Find<QWidget>(dialog, "chFin")->accessibleDescription(),
              QStringLiteral("Score 0, Moves 104, Time 1:00:05"));
    // The window's own button and Escape choose nothing.
    QTest::keyClick(&dialog, Qt::Key_Escape);
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_EQ(dialog.Choice(), AfterGame::Nothing);
}

TEST_F(Dialogs, AHastyReturnLosesNothing) {
    ProgramForms forms;
    const auto onReturn = [&forms](bool (ProgramForms::*ask)(const std::string&)) {
        OnModal([](QWidget& box) { QTest::keyClick(&box, Qt::Key_Return); });
        return (forms.*ask)("?");
    };
    EXPECT_FALSE(onReturn(&ProgramForms::Ask));
    EXPECT_FALSE(onReturn(&ProgramForms::AskCritical));
    EXPECT_TRUE(onReturn(&ProgramForms::AskToKeep)) << "here it is No that loses something";
}

TEST_F(Dialogs, TheHistoryMarksTheCurrentMoveAndTheUndoneOnes) {
    mGen::StartGame("Klondike", 1.0);
    gData->Set(Setting::Autoplay, 0);
    const int before = gTrans->MaxTrans();
    for (int i = 0; i < 20; ++i) mPlay::PressStock();
    for (int i = 0; i < 5; ++i) gTrans->Undo(0);
    ASSERT_EQ(gTrans->MaxTrans(), before + 20);
    frmHistory dialog;
    Open(dialog);
    const auto* view = Find<QTableView>(dialog, "lvHistory");
    const QAbstractItemModel* model = view->model();
    ASSERT_EQ(model->rowCount(), gTrans->MaxTrans());
    const int current = gTrans->GetTransID() - 1;
    for (int row = 0; row < model->rowCount(); ++row) {
        const QModelIndex index = model->index(row, 1);
        const QVariant color = index.data(Qt::ForegroundRole);
        EXPECT_EQ(color.isValid(), row >= current) << row;
        if (color.isValid()) {
            EXPECT_EQ(color.value<QBrush>().color(),
                      row == current ? QColor(128, 0, 0) : QColor(128, 128, 0));
        }
        EXPECT_EQ(index.data(Qt::FontRole).value<QFont>().bold(), row == current) << row;
    }
    EXPECT_EQ(model->index(current, 1).data().toString(), QStringLiteral("Stock (Pile 1, Card 10)"));
    EXPECT_TRUE(view->viewport()->rect().intersects(view->visualRect(model->index(current, 0))));
    EXPECT_FALSE(view->selectionModel()->hasSelection()) << "a selection would hide the colours";
}

}  // namespace
