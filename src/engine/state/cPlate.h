// The table plate: the records of all cards and pile marks. Logic and screen read one record; the
// stage is told of each change and its views follow.
#pragma once

#include <array>
#include <limits>
#include <span>

#include "engine/outside/windowlayer.h"
#include "engine/state/Card.h"
#include "engine/state/codes.h"

inline constexpr int CardWidth = 1065;   ///< twips
inline constexpr int CardHeight = 1440;  ///< twips
inline constexpr int PlateWidth = 15480;
inline constexpr int PlateHeight = 11205;

/// One card. Closed: FaceMode 1; any other value shows the face.
struct CardRecord : CardFace {
    int Cell = 0;
    int Pile = 0;
    int Pos = 0;
    int FaceMode = 1;
    int Left = 0;  ///< twips on the plate
    int Top = 0;
    bool Visible = false;
    bool Selected = false;  ///< shown inverted; the view can, no rule of today asks for it
    int MainPic = 0;        ///< number of the face picture, 1 to 52; 0 none yet
    int DeckPic = 0;        ///< number of the back picture; 0 none yet
    int Order = 0;          ///< place in the front order: a higher one lies in front

    bool operator==(const CardRecord&) const = default;
};

/// Marker pictures by their numbers. 0 Ace to 12 King show the rank that the pile takes.
enum MarkPicture : int {
    PlainMark = RankCount,
    EmptyMark = 14,
    NoRedealMark = 15,
    RedealMark = 16,
};

/// One mark of an empty pile.
struct MarkRecord {
    int Picture = 0;  ///< number of the marker picture, 0 to 17
    int Left = 0;
    int Top = 0;
    bool Visible = false;
    bool operator==(const MarkRecord&) const = default;
};

class cPlate {
public:
    /// The stage must live until it is replaced; nullptr: nobody watches.
    void SetStage(CardStage* stage) { stage_ = stage; }
    [[nodiscard]] CardStage* Stage() const { return stage_; }

    /// A number outside 0 to 103 throws std::out_of_range.
    [[nodiscard]] const CardRecord& PicCards(int PicID) const;
    /// All cards by PicID, those that the game does not have among them.
    [[nodiscard]] std::span<const CardRecord> Cards() const { return cards_; }
    [[nodiscard]] const MarkRecord& Mark(MarkKind kind, int index) const;
    /// How many marks of that kind exist: 18, 8, 10, 1, 1.
    [[nodiscard]] static int MarkCount(MarkKind kind);
    /// Calls use(kind, index) for every mark, shown or not.
    template <typename Use>
    static void ForEachMark(Use use) {
        for (const MarkKind kind :
             {MarkKind::Home, MarkKind::Right, MarkKind::Res, MarkKind::Waste, MarkKind::Stock}) {
            for (int i = 0; i < MarkCount(kind); ++i) use(kind, i);
        }
    }

    void SetValue(int PicID, int mSuit, int mNum, int mSuitPile);
    void SetLoc(int PicID, int Cell, int Pile, int Pos);
    void SetFaceMode(int PicID, int mode);
    void SetSelected(int PicID, bool selected);
    /// An empty picture (0) keeps the old one.
    void SetMainPic(int PicID, int picture);
    void SetDeckPic(int PicID, int picture);
    void Move(int PicID, int Left, int Top);
    void ToFront(int PicID);
    void SetVisible(int PicID, bool visible);

    void ShowMark(MarkKind kind, int index, int picture, int Left, int Top);
    void SetMarkPicture(MarkKind kind, int index, int picture);
    void HideMark(MarkKind kind, int index);

    void Refresh();
    void ShowStep();
    void LetEventsRun();

    /// The longest that a step may be shown, in milliseconds.
    static constexpr double NoStepLimit = std::numeric_limits<double>::infinity();
    void SetStepLimit(double milliseconds);
    [[nodiscard]] double StepLimit() const { return stepLimit_; }
    /// While it is set, steps are not shown at all; cards still come to lie where they belong.
    void SetHurried(bool hurried) { hurried_ = hurried; }
    [[nodiscard]] bool Hurried() const { return hurried_; }

    /// Equal records; who watches plays no part.
    bool operator==(const cPlate& other) const { return cards_ == other.cards_ && marks_ == other.marks_; }

private:
    [[nodiscard]] CardRecord& At(int PicID);
    [[nodiscard]] MarkRecord& MarkAt(MarkKind kind, int index);

    std::array<CardRecord, MaxCards> cards_{};
    std::array<MarkRecord, MostHomePiles + FoundationPiles + MostResPiles + 2> marks_{};
    int nextOrder_ = 1;
    double stepLimit_ = NoStepLimit;
    bool hurried_ = false;
    CardStage* stage_ = nullptr;
};

/// The plate of the one table.
extern cPlate& PicBack;
