// The dialog "Customize": what acts at once, what waits for OK, what its previews show.
#include <map>

#include "Art.h"
#include "engine/state/mAssets.h"
#include "window/DialogTest.h"
#include "window/dialogs/frmCustomize.h"

namespace {

class PaintedForms : public MemoryForms {
public:
    int Painted = 0;
    void PaintBackground() override { ++Painted; }
};

class Customize : public DialogTest {
protected:
    void SetUp() override {
        mLoad::Main({layer_.Stage, layer_.Settings, layer_.Files, layer_.Calendar, layer_.Sounds, forms_,
                     layer_.Help});
        mGen::InitApp();
        forms_.Painted = 0;
        gData->SetCurGName("Klondike");  // what the engine itself writes at a start is there before
    }
    static void ShowTab(const QDialog& dialog, int tab) {
        Find<QTabWidget>(dialog, "SSTab1")->setCurrentIndex(tab);
    }
    /// Clicks the node of that text under a tree, opening what it lies in.
    static void ClickNode(const QDialog& dialog, const char* tree, const char* text) {
        auto* nodes = Find<QTreeWidget>(dialog, tree);
        for (QTreeWidgetItemIterator it(nodes); *it; ++it) {
            if ((*it)->text(0) != QLatin1String(text)) continue;
            ClickRow(nodes, nodes->indexFromItem(*it));
            return;
        }
        FAIL() << "no node " << text;
    }
    [[nodiscard]] static QImage Look(const QDialog& dialog, const char* preview) {
        return Find<QWidget>(dialog, preview)->grab().toImage();
    }
    [[nodiscard]] static QColor Middle(const QImage& image, double height) {
        return image.pixelColor(image.width() / 4, static_cast<int>(image.height() * height));
    }

    PaintedForms forms_;
};

TEST_F(Customize, SomeControlsActAtOnceWhateverCancelDoes) {
    const std::pair<const char*, const NumberSetting&> rows[] = {
        {"chkTime", Setting::ShowTime}, {"chkScore", Setting::ShowScore}, {"chkMoves", Setting::ShowMoves}};
    frmCustomize dialog;
    Open(dialog);
    for (const auto& [control, setting] : rows) {
        for (const int after : {0, 1, 0}) {
            EXPECT_EQ(Find<QAbstractButton>(dialog, control)->isChecked(), after == 0);
            QTest::keyClick(Find<QWidget>(dialog, control), Qt::Key_Space);
            EXPECT_EQ(gData->Get(setting), after) << control;
        }
    }
    auto* range = Find<QComboBox>(dialog, "imcRange");
    ASSERT_EQ(range->count(), 15);
    EXPECT_EQ(range->itemText(3), QStringLiteral("9,999"));
    EXPECT_EQ(range->currentText(), QStringLiteral("999,999,999,999,999"));
    QTest::keyClick(range, Qt::Key_Home);
    EXPECT_EQ(gData->Get(Setting::RangeIndex), 1);
    QTest::keyClick(&dialog, Qt::Key_Escape);
    EXPECT_EQ(gData->Get(Setting::RangeIndex), 1);
    EXPECT_EQ(gData->Get(Setting::ShowMoves), 0);
}

TEST_F(Customize, ListsAndRecordsAreClearedAfterTheirQuestionAndExported) {
    EXPECT_FALSE(Enabled(frmCustomize(), "cmdClearRecent")) << "there is nothing to clear";
    mGen::StartGame("Klondike", 1.0);
    mGen::CloseGame(0);
    frmCustomize dialog;
    Open(dialog);
    forms_.SaveFile = "/data/out.txt";
    Click(dialog, "cmdExportStat");
    EXPECT_TRUE(layer_.Files.Exists("/data/out.txt"));
    forms_.Messages.clear();
    for (const bool yes : {false, true}) {
        forms_.Answer = yes;
        Click(dialog, "cmdClearRecent");
        EXPECT_EQ(gData->RecentCount(), yes ? 0 : 1);
        EXPECT_EQ(Enabled(dialog, "cmdClearRecent"), !yes);
        Click(dialog, "cmdClearStat");
        EXPECT_EQ(layer_.Files.Exists(cScore::FileName("Player1")), !yes);
    }
    EXPECT_EQ(forms_.Questions[0], "Are you sure you want to clear the Recent Games List ?");
    EXPECT_EQ(forms_.Messages[0], "Recent Games List has been Cleared.");
}

/// Changes every working value of an open dialog.
class CustomizeChanged : public Customize {
protected:
    static void ChangeAll(const QDialog& dialog) {
        ShowTab(dialog, 1);
        ClickNode(dialog, "tvBGround", "Crimson");
        Click(dialog, "chkFade");
        ShowTab(dialog, 2);
        ClickNode(dialog, "tvDeck", "Nature 04");
        Click(dialog, "chkFour");
        ShowTab(dialog, 3);
        for (int i = 1; i <= 4; ++i) {
            const std::string name = "Slider" + std::to_string(i);
            QTest::keyClick(Find<QSlider>(dialog, name.c_str()), Qt::Key_End);
            QTest::keyClick(Find<QSlider>(dialog, name.c_str()), Qt::Key_PageDown);
            QTest::keyClick(Find<QSlider>(dialog, name.c_str()), Qt::Key_Left, Qt::NoModifier, i);
        }
        auto* sounds = Find<QTreeWidget>(dialog, "lvSound");
        ASSERT_EQ(sounds->topLevelItemCount(), 7);
        for (int row = 0; row < 7; ++row) {
            sounds->setCurrentItem(sounds->topLevelItem(row));
            QTest::keyClick(sounds, Qt::Key_Space);
        }
    }
};

TEST_F(CustomizeChanged, NothingElseIsWrittenBeforeOK) {
    mGen::StartGame("Klondike", 1.0);
    const auto settings = layer_.Settings.Values;
    const cPlate plate = PicBack;
    frmCustomize dialog;
    Open(dialog);
    ChangeAll(dialog);
    Click(dialog, "cmdCancel");
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_TRUE(layer_.Settings.Values == settings);
    EXPECT_TRUE(PicBack == plate);
    EXPECT_EQ(forms_.Painted, 0);
}

TEST_F(CustomizeChanged, OKWritesAllAndChangesTheTableOnly) {
    mGen::StartGame("Klondike", 1.0);
    cPlate expected = PicBack;
    expected.SetStage(nullptr);
    for (int PicID = 0; PicID < MaxCards; ++PicID) expected.SetDeckPic(PicID, 544);
    frmCustomize dialog;
    Open(dialog);
    ChangeAll(dialog);
    Click(dialog, "cmdOK");
    EXPECT_FALSE(dialog.isVisible());
    const std::map<std::string, std::string> values = {
        // One large and one small step from the end of each slider.
        {"CardSpeed", "44"},   {"UndoSpeed", "44"},     {"UndoallSpeed", "44"}, {"ReplaySpeed", "44"},
        {"SoundCardUp", "-1"}, {"SoundCardDown", "-1"}, {"SoundStart", "0"},    {"SoundAutoPlay", "0"},
        {"SoundUndo", "0"},    {"SoundRedo", "0"},      {"SoundWin", "0"},      {"BGIndex", "1005"},
        {"Fade", "0"},         {"CustomColor", "128"},  {"DeckIndex", "544"},   {"FourColors", "1"}};
    for (const auto& [key, value] : values) EXPECT_EQ(layer_.Settings.Values["Data/" + key], value) << key;
    EXPECT_EQ(forms_.Painted, 1);
    EXPECT_TRUE(PicBack == expected) << "the cards have the new back, and nothing else has changed";
}

TEST_F(Customize, ThePreviewsFollowBothTabs) {
    frmCustomize dialog;
    Open(dialog);
    ShowTab(dialog, 1);
    const QImage before = Look(dialog, "Picture1");
    EXPECT_EQ(Middle(before, 0.02), QColor(0, 98, 0)) << "dark green above";
    EXPECT_LT(Middle(before, 0.97).green(), 6) << "black below";
    Click(dialog, "chkFade");
    EXPECT_EQ(Middle(Look(dialog, "Picture1"), 0.97), QColor(0, 100, 0));
    EXPECT_EQ(Middle(Look(dialog, "picDeckBack"), 0.97), QColor(0, 100, 0)) << "under the deck, too";
    ShowTab(dialog, 2);
    const QImage deck = Look(dialog, "PicDeck");
    ClickNode(dialog, "tvDeck", "Flowers 02");
    EXPECT_NE(Look(dialog, "PicDeck"), deck);
    const QImage suits = Look(dialog, "picSuits");
    Click(dialog, "chkFour");
    EXPECT_NE(Look(dialog, "picSuits"), suits);
    Click(dialog, "chkFour");
    EXPECT_EQ(Look(dialog, "picSuits"), suits);
}

TEST_F(Customize, TheColorDialogsOwnColorCountsHoweverItIsLeft) {
    gData->Set(Setting::BGIndex, 1000);
    gData->Set(Setting::Fade, 0);
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    frmCustomize dialog;
    Open(dialog);
    ShowTab(dialog, 1);
    EXPECT_EQ(Middle(Look(dialog, "Picture1"), 0.5), QColor(128, 0, 0));
    const auto leave = [&](const QColor& color, bool accept) {
        OnModal([=](QWidget& opened) {
            auto& colors = dynamic_cast<QColorDialog&>(opened);
            colors.setCurrentColor(color);
            accept ? colors.accept() : colors.reject();
        });
        Click(dialog, "cmdCustom");
    };
    const QColor teal(10, 120, 130);
    leave(Qt::white, false);
    EXPECT_EQ(Middle(Look(dialog, "Picture1"), 0.5), QColor(Qt::black)) << "black the first time";
    leave(teal, true);
    EXPECT_EQ(Middle(Look(dialog, "Picture1"), 0.5), teal);
    leave(Qt::white, false);
    EXPECT_EQ(Middle(Look(dialog, "Picture1"), 0.5), teal);
    Click(dialog, "cmdOK");
    EXPECT_EQ(gData->Get(Setting::CustomColor), 10 + 256 * 120 + 65536 * 130);
}

}  // namespace
