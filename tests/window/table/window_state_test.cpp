// What the main window remembers from one run to the next, and what it makes of nonsense.
#include <map>

#include "window/MainWindowTest.h"
#include "window/table/WindowState.h"

namespace {

using WindowStates = MainWindow;

TEST_F(WindowStates, TheNextRunFindsTheWindowAsItWasLeft) {
    window_->resize(555, 444);
    window_->move(37, 41);
    Entry("zoomIn")->trigger();
    Entry("fitGame")->trigger();
    Restart();
    EXPECT_EQ(window_->size(), QSize(555, 444));
    EXPECT_EQ(window_->pos(), QPoint(37, 41));
    EXPECT_TRUE(Entry("fitGame")->isChecked());
    Entry("fitGame")->trigger();
    EXPECT_DOUBLE_EQ(window_->Table()->Zoom(), 1.1);

    window_->showMaximized();
    QTest::qWait(700);  // what is at rest is written
    Entry("fullScreen")->trigger();
    Restart();
    EXPECT_TRUE(window_->isFullScreen());
    Entry("fullScreen")->trigger();
    EXPECT_TRUE(window_->isMaximized());
    window_->close();
    EXPECT_EQ(memory_.Settings.Values["Window/Width"], "555");  // what it goes back to
}

TEST_F(WindowStates, NonsenseInTheSettingsFallsBack) {
    const QSize first = window_->size();
    const QRect screen = window_->screen()->availableGeometry();
    using Values = std::map<std::string, std::string>;
    const Values wish{{"Left", "90"},    {"Top", "60"},   {"Width", "500"},
                      {"Height", "400"}, {"Zoom", "175"}, {"FitGame", "0"}};
    const Values farAway{{"Left", "9000"}, {"Top", "-3000"}, {"Width", "500"}, {"Height", "400"}};
    const Values tooLarge{{"Left", "0"}, {"Top", "0"}, {"Width", "9000"}, {"Height", "7000"}};
    const Values noNumbers{
        {"Left", "x"}, {"Top", ""}, {"Width", "1e3"}, {"Height", "-400"}, {"Zoom", "99999"}};
    const Values noStates{{"Maximised", "yes"}, {"FullScreen", "2"}, {"FitGame", "7"}, {"Zoom", "0"}};
    const std::tuple<const char*, Values, QSize, double> rows[] = {
        {"a wish", wish, {500, 400}, 175},        {"far away", farAway, {500, 400}, 100},
        {"too large", tooLarge, {792, 768}, 100}, {"no numbers", noNumbers, first, 100},
        {"no states", noStates, first, 100},
    };
    for (const auto& [what, values, size, percent] : rows) {
        SCOPED_TRACE(what);
        window_->close();
        window_.reset();
        std::erase_if(memory_.Settings.Values,
                      [](const auto& entry) { return entry.first.starts_with("Window/"); });
        for (const auto& [key, value] : values) memory_.Settings.Values["Window/" + key] = value;
        SetUp();
        EXPECT_EQ(window_->size(), size);
        EXPECT_TRUE(screen.contains(window_->frameGeometry()));
        EXPECT_FALSE(window_->isMaximized() || window_->isFullScreen());
        EXPECT_EQ(Entry("fitGame")->isChecked(), !values.contains("FitGame") || values.at("FitGame") != "0");
        EXPECT_DOUBLE_EQ(window_->Table()->Zoom() * 100, percent);
    }
}

TEST(WindowPlaces, AWindowThatCannotBeTakenHoldOfIsBroughtBack) {
    const QList<QRect> screens{QRect(0, 0, 1280, 900), QRect(1280, 0, 800, 600)};
    const struct {
        const char* What;
        QRect Wanted, Seen;
    } rows[] = {
        {"well inside", {100, 100, 600, 400}, {100, 100, 600, 400}},
        {"pushed half over the edge on purpose", {-300, 500, 600, 400}, {-300, 500, 600, 400}},
        {"on the second screen", {1500, 50, 500, 400}, {1500, 50, 500, 400}},
        {"with its title above the screen", {100, -50, 600, 400}, {100, 0, 600, 400}},
        {"only a sliver left", {1270, 700, 600, 400}, {680, 500, 600, 400}},
        {"on a screen that is gone", {4000, 2000, 600, 400}, {680, 500, 600, 400}},
        {"larger than its screen", {1300, 20, 1200, 900}, {1280, 0, 800, 600}},
    };
    for (const auto& row : rows) EXPECT_EQ(WindowState::Seen(row.Wanted, screens), row.Seen) << row.What;
}

}  // namespace
