// The decisions of the dialog "Customize".
#include "engine/commands/mCustomize.h"

#include "engine/rules/mFunc.h"
#include "engine/state/cPlate.h"
#include "engine/state/mAssets.h"

namespace mCustomize {

namespace {

void AddGroups(Node& root, std::span<const mAssets::PictureGroup> groups) {
    for (const mAssets::PictureGroup& group : groups) {
        Node node{group.Name, 0, {}};
        for (int member = 1; member <= group.Count; ++member) {
            node.Children.push_back({mAssets::MemberName(group, member), group.First + member - 1, {}});
        }
        root.Children.push_back(std::move(node));
    }
}

constexpr int SoundOn = -1;
constexpr int SoundOff = 0;

}  // namespace

Node Backgrounds() {
    Node root{"Backgrounds", 0, {}};
    Node colors{"Colors", 0, {{"Custom Color", mAssets::CustomColorId, {}}}};
    for (const mAssets::NamedColor& color : mAssets::ListedColors()) {
        colors.Children.push_back({color.Name, color.Id, {}});
    }
    root.Children.push_back(std::move(colors));
    AddGroups(root, mAssets::Backgrounds);
    return root;
}

Node Decks() {
    Node root{"Decks", 0, {}};
    AddGroups(root, mAssets::Decks);
    return root;
}

bool HasCustomColor(int background) { return background == mAssets::CustomColorId; }

bool CanFade(int background) { return background >= mAssets::CustomColorId; }

std::vector<std::string> Ranges() {
    std::vector<std::string> ranges;
    double power = 1.0;
    for (int digits = 1; digits <= Setting::RangeIndex.High; ++digits) {
        power *= 10.0;
        ranges.push_back(mFunc::Grouped(power - 1.0));
    }
    return ranges;
}

void ShowTime(bool on) { gData->Set(Setting::ShowTime, on ? 1 : 0); }

void ShowScore(bool on) { gData->Set(Setting::ShowScore, on ? 1 : 0); }

void ShowMoves(bool on) { gData->Set(Setting::ShowMoves, on ? 1 : 0); }

void SetRange(int index) { gData->Set(Setting::RangeIndex, index); }

bool ClearRecent() {
    if (!gData->Layer().Forms.Ask("Are you sure you want to clear the Recent Games List ?")) return false;
    gData->ClearRecent();
    return true;
}

void TellRecentCleared() { gData->Layer().Forms.Inform("Recent Games List has been Cleared."); }

Choice Stored() {
    Choice choice;
    for (std::size_t i = 0; i < Speeds.size(); ++i) choice.Speed[i] = gData->Get(Speeds[i].Setting);
    for (std::size_t i = 0; i < Sounds.size(); ++i) {
        choice.Sound[i] = gData->Get(Sounds[i].Setting) != SoundOff;
    }
    choice.Background = gData->Get(Setting::BGIndex);
    choice.Fade = gData->Get(Setting::Fade);
    choice.CustomColor = gData->Get(Setting::CustomColor);
    choice.Deck = gData->Get(Setting::DeckIndex);
    choice.FourColors = gData->Get(Setting::FourColors) == 1;
    return choice;
}

void Confirm(const Choice& choice) {
    std::vector<NumberValue> values = {{Setting::BGIndex, choice.Background},
                                       {Setting::Fade, choice.Fade},
                                       {Setting::CustomColor, choice.CustomColor},
                                       {Setting::DeckIndex, choice.Deck},
                                       {Setting::FourColors, choice.FourColors ? 1 : 0}};
    for (std::size_t i = 0; i < Speeds.size(); ++i) values.push_back({Speeds[i].Setting, choice.Speed[i]});
    for (std::size_t i = 0; i < Sounds.size(); ++i) {
        values.push_back({Sounds[i].Setting, choice.Sound[i] ? SoundOn : SoundOff});
    }
    gData->Set(values);
    gData->Layer().Forms.PaintBackground();
    for (int PicID = 0; PicID < MaxCards; ++PicID) PicBack.SetDeckPic(PicID, choice.Deck);
}

}  // namespace mCustomize
