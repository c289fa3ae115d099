// The texts, rows and chart data of the session dialog.
#include "engine/records/mSession.h"

#include <fmt/format.h>

#include "engine/records/cScore.h"
#include "engine/rules/mFunc.h"
#include "engine/state/cData.h"

namespace {

std::string ElapsedText() { return "Time Elapsed : " + mFunc::FormatTime(gScore->SesTime()); }

std::string GameTimeText() { return "Time Elapsed : " + mFunc::FormatTime(gData->Figures.CurTime); }

std::string GameScoreText() { return fmt::format("Score : {}", gData->Figures.CurScore); }

}  // namespace

namespace mSession {

std::vector<std::string> SessionLines() {
    const tStat s = gScore->SesStat();
    return {"Started : " + gData->SesStartTime,
            fmt::format("Games Played : {}", gScore->SesTop()),
            fmt::format("Games Won : {}", s.Won),
            fmt::format("Games Lost : {}", s.Lost),
            fmt::format("Total Score : {}", s.Score),
            fmt::format("Total Moves : {}", s.Moves),
            ElapsedText()};
}

std::vector<std::string> GameLines() {
    const SessionFigures& figures = gData->Figures;
    return {"Game Started : " + figures.GameStartTime,
            "Game : " + figures.CurGName,
            "Game Number : " + mGameNumber::Text(figures.CurGNo),
            GameScoreText(),
            fmt::format("Moves : {}", figures.CurMoves),
            GameTimeText(),
            "Player Name : " + gData->CurPlayer()};
}

std::vector<Row> SessionRows() {
    std::vector<Row> rows;
    for (int i = 1; i <= gScore->SesTop(); ++i) {
        const tScore& r = gScore->GetSes(i);
        rows.push_back({r.gName, mGameNumber::Text(r.GameNo), r.Player, mFunc::FormatTime(r.Time),
                        std::to_string(r.Moves), mStatistics::StatusStr(r.Won), std::to_string(r.Score)});
    }
    const SessionFigures& figures = gData->Figures;
    if (figures.GameRunning) {
        rows.push_back({figures.CurGName, mGameNumber::Text(figures.CurGNo), gData->CurPlayer(),
                        mFunc::FormatTime(figures.CurTime), std::to_string(figures.CurMoves), "Running",
                        std::to_string(figures.CurScore)});
    }
    return rows;
}

std::vector<Row> ChartRows() {
    std::vector<Row> rows;
    const auto add = [&rows](int seconds, int moves, int score) {
        rows.push_back({std::to_string(rows.size() + 1), mFunc::FormatTime(seconds), std::to_string(moves),
                        std::to_string(score)});
    };
    for (int i = 1; i <= gScore->SesTop(); ++i) {
        const tScore& record = gScore->GetSes(i);
        add(record.Time, record.Moves, record.Score);
    }
    const SessionFigures& figures = gData->Figures;
    if (figures.GameRunning) add(figures.CurTime, figures.CurMoves, figures.CurScore);
    return rows;
}

mStatistics::ChartData SummaryChart() { return mStatistics::ResultChart(gScore->SesStat()); }

mStatistics::ChartData GamesChart() {
    mStatistics::ChartData chart{{"Score", "Moves", "Time"}, {}};
    for (int i = 1; i <= gScore->SesTop(); ++i) {
        const tScore& record = gScore->GetSes(i);
        chart.Rows.push_back({record.Score, record.Moves, record.Time});
    }
    const SessionFigures& figures = gData->Figures;
    if (figures.GameRunning) {
        chart.Rows.push_back({figures.CurScore, figures.CurMoves, figures.CurTime});
    } else {
        chart.Rows.push_back({std::nullopt, std::nullopt, std::nullopt});
    }
    // As the games are numbered in the list beside it.
    for (std::size_t i = 1; i <= chart.Rows.size(); ++i) chart.Points.push_back(std::to_string(i));
    return chart;
}

Tick TickTexts() {
    Tick tick{.Elapsed = ElapsedText(), .Time = {}, .Score = {}, .GameScore = {}, .GameTime = {}};
    const SessionFigures& figures = gData->Figures;
    if (figures.GameRunning) {
        tick.Time = mFunc::FormatTime(figures.CurTime);
        tick.Score = std::to_string(figures.CurScore);
        tick.GameScore = GameScoreText();
        tick.GameTime = GameTimeText();
    }
    return tick;
}

}  // namespace mSession
