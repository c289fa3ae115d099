// Made-up records: every game of the catalogue, one in three won, all from one small random generator.
#include "RecordMaker.h"

#include <algorithm>
#include <cstdint>

#include <fmt/format.h>

#include "engine/records/mScoreFile.h"
#include "engine/state/cData.h"

namespace {

/// Repeatable on every machine, unlike the distributions of the standard library.
class Source {
public:
    explicit Source(std::uint64_t seed) : state_(seed * 2654435761U + 1) {}
    /// 0 to below - 1.
    int Below(int below) {
        state_ = state_ * 6364136223846793005U + 1442695040888963407U;
        return static_cast<int>((state_ >> 33) % static_cast<std::uint64_t>(below));
    }

private:
    std::uint64_t state_;
};

std::string DateText(const CivilTime& time, bool regional) {
    if (!regional) return mDates::Text(time);
    const int hour = time.Hour % 12 == 0 ? 12 : time.Hour % 12;
    return fmt::format("{}/{}/{} {}:{:02}:{:02} {}", time.Month, time.Day, time.Year, hour, time.Minute,
                       time.Second, time.Hour < 12 ? "AM" : "PM");
}

}  // namespace

namespace mRecordMaker {

std::string PlayerName(int i) { return "Player" + std::to_string(i); }

std::string ScoreFile(const RecordPlan& plan, int player) {
    constexpr int Days = 20 * 365;
    Source random(static_cast<std::uint64_t>(player));
    const int lastDay = mDates::DayNumber(plan.Until);
    std::string content;
    for (int i = 0; i < plan.RecordsEach; ++i) {
        const auto back = static_cast<long long>(Days) * (plan.RecordsEach - 1 - i) / plan.RecordsEach;
        CivilTime time = mDates::FromDayNumber(lastDay - static_cast<int>(back));
        time.Hour = random.Below(24);
        time.Minute = random.Below(60);
        time.Second = random.Below(60);
        tScore record;
        record.Date = DateText(time, plan.Regional);
        record.gName = gData->GetGame(1 + random.Below(gData->TotalGames()));
        const double number = 1.0 + random.Below(1000000) * 1000000.0 + random.Below(1000000);
        // Some numbers were typed.
        if (random.Below(8) == 0) {
            record.GameNo = mGameNumber::Text(number);
        } else {
            record.GameNo = number;
        }
        record.Won = random.Below(3) == 0 ? 1 : 0;
        record.Time = 20 + random.Below(1500);
        record.Moves = 5 + random.Below(300);
        record.Score = (record.Won == 1 ? 520 : random.Below(300)) - record.Time / 3 - record.Moves / 2;
        content += mScoreFile::ScoreLine(record) + "\r\n";
    }
    return content;
}

}  // namespace mRecordMaker
