// What the look costs: the first use of a whole deck, and a new background or deck while a game runs. Run it
// on a screen, or a virtual one.
#include <algorithm>
#include <memory>

#include <QApplication>
#include <QElapsedTimer>
#include <QTemporaryDir>
#include <QTest>

#include "engine/commands/mCustomize.h"
#include "engine/commands/mGen.h"
#include "engine/commands/mLoad.h"
#include "engine/outside/memorylayer.h"
#include "engine/state/mAssets.h"
#include "mFigures.h"
#include "window/look/mPictures.h"
#include "window/outside/QtSettings.h"
#include "window/table/TableView.h"
#include "window/table/frmMain.h"

namespace {

template <typename Work>
double Milliseconds(Work work) {
    QElapsedTimer timer;
    timer.start();
    work();
    return static_cast<double>(timer.nsecsElapsed()) / 1e6;
}

void UseDeck(double scale) {
    constexpr int Faces = 52;
    constexpr int Back = 531;
    for (int number = 1; number <= Faces; ++number) (void)mPictures::MainPic(number, scale);
    (void)mPictures::GetPic(Back, scale);
}

void MeasureDeck() {
    mFigures::Print("52 faces and a back at scale 1, first use", Milliseconds([] { UseDeck(1); }), "ms");
    mFigures::Print("the same at scale 1 again", Milliseconds([] { UseDeck(1); }) * 1000, "us");
    mFigures::Print("52 faces and a back at scale 3, first use", Milliseconds([] { UseDeck(3); }), "ms");
    mFigures::Print("the same at scale 3 again", Milliseconds([] { UseDeck(3); }) * 1000, "us");
}

class PaintingForms : public MemoryForms {
public:
    explicit PaintingForms(TableView& table) : table_(table) {}
    void PaintBackground() override { table_.PaintBackground(); }

private:
    TableView& table_;
};

/// The longest of all members, each from the press of OK until the table is painted.
template <typename Take>
double LongestChange(TableView& table, std::span<const mAssets::PictureGroup> groups, Take take) {
    double longest = 0;
    for (const mAssets::PictureGroup& group : groups) {
        for (int number = group.First; number < group.First + group.Count; ++number) {
            mCustomize::Choice choice = mCustomize::Stored();
            take(choice, number);
            longest = std::max(longest, Milliseconds([&] {
                                   mCustomize::Confirm(choice);
                                   table.viewport()->repaint();
                               }));
            QApplication::processEvents();
        }
    }
    return longest;
}

void MeasureChanges(TableView& table) {
    mGen::StartGame("Mandate", 1.0);
    QApplication::processEvents();
    mFigures::Print("the first OK, which writes every setting",
                    Milliseconds([] { mCustomize::Confirm(mCustomize::Stored()); }), "ms");
    mFigures::Print("a new background, the longest of all",
                    LongestChange(table, mAssets::Backgrounds,
                                  [](mCustomize::Choice& choice, int number) { choice.Background = number; }),
                    "ms");
    mFigures::Print("a new deck, the longest of all",
                    LongestChange(table, mAssets::Decks,
                                  [](mCustomize::Choice& choice, int number) { choice.Deck = number; }),
                    "ms");
}

}  // namespace

int main(int argc, char** argv) {
    const QTemporaryDir home;
    qputenv("XDG_CONFIG_HOME", home.path().toUtf8());
    const QApplication application(argc, argv);
    MeasureDeck();
    MemoryLayer memory;
    QtSettings settings;
    auto window = std::make_unique<frmMain>();
    PaintingForms forms(*window->Table());
    mLoad::Main(
        {*window->Table(), settings, memory.Files, memory.Calendar, memory.Sounds, forms, memory.Help});
    window->Load();
    window->showMaximized();
    (void)QTest::qWaitForWindowExposed(window.get());
    MeasureChanges(*window->Table());
    mLoad::UnloadMain();
    return 0;
}
