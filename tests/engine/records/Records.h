// Score files in memory for the tests of the records.
#pragma once

#include "engine/records/cScore.h"
#include "support/EngineTest.h"

/// The engine with players and their files; the clock stands at 2004-01-01 00:00:00.
class Records : public Engine {
public:
    Records() : Records(std::vector<std::string>{"Player1"}) {}
    explicit Records(const std::vector<std::string>& players) {
        for (std::size_t i = 0; i < players.size(); ++i) {
            gData->SetPlayer(static_cast<int>(i) + 1, players[i], i == 0);
        }
    }

    /// Sets the clock to "yyyy-MM-dd hh:mm:ss".
    void SetClock(const std::string& text) {
        const long long wanted = mDates::Seconds(*mDates::ParseFixed(text));
        Layer.Calendar.Advance(static_cast<double>(wanted - mDates::Seconds(mDates::Now())));
    }
    [[nodiscard]] std::string& File(const std::string& player) {
        return Layer.Files.Contents[cScore::FileName(player)];
    }
    [[nodiscard]] bool HasFile(const std::string& player) const {
        return Layer.Files.Exists(cScore::FileName(player));
    }
    void AddLine(const std::string& player, const std::string& line) { File(player) += line + "\r\n"; }
    /// A record of which only the named values matter.
    void Add(const std::string& player, const std::string& game, int score, int won, int seconds = 60,
             int moves = 10, const std::string& date = "2004-01-01 10:00:00") {
        tScore record{.Date = date,
                      .gName = game,
                      .GameNo = static_cast<double>(++number_),
                      .Time = seconds,
                      .Moves = moves,
                      .Score = score,
                      .Won = won,
                      .Player = player};
        AddLine(player, mScoreFile::ScoreLine(record));
    }
    /// A game of the current player ends, lost or won.
    static void Close(const char* game, int won) {
        gData->Figures.CurGName = game;
        gScore->AddScore(won);
    }
    [[nodiscard]] const std::vector<std::string>& Messages() const { return Layer.Forms.Messages; }

private:
    int number_ = 0;  // records are told apart by their game number
};
