// The targets, each with what must hold whatever the bytes are.
#include "tools/fuzz/Targets.h"

#include <algorithm>
#include <string>

#include <nlohmann/json.hpp>

#include "engine/commands/mGen.h"
#include "engine/commands/mMain.h"
#include "engine/commands/mSelect.h"
#include "engine/records/ImportedRecords.h"
#include "engine/records/cScore.h"
#include "engine/records/mCareerTables.h"
#include "engine/records/mLog.h"
#include "engine/records/mPlayers.h"
#include "engine/records/mPlot.h"
#include "engine/records/mRanking.h"
#include "engine/records/mScoreFile.h"
#include "engine/records/mStatistics.h"
#include "engine/state/cData.h"
#include "support/Fixture.h"
#include "tools/Lab.h"
#include "tools/mChecks.h"

using mFuzz::Expect;

namespace {

int LinesWithText(std::string_view bytes) {
    return mScoreFile::ForEachLine(bytes, [](std::string_view) { return false; });
}

void ExpectTableInOrder() {
    if (!gData->Figures.GameRunning) return;
    const std::string fault = mChecks::TableFault();
    if (!fault.empty()) throw std::logic_error(fault);
}

/// A record written and read again is the same record.
void ExpectKept(const tScore& record) {
    const std::string line = mScoreFile::ScoreLine(record);
    mScoreFile::ScoreFields fields;
    Expect(mScoreFile::ParseScore(line, fields), "a record that was read cannot be written");
    Expect(fields.Time == record.Time && fields.Moves == record.Moves && fields.Score == record.Score &&
               fields.Won == record.Won,
           "a record's figures change on the way");
}

void LookAtAllViews() {
    const int all = gScore->ScoreTop();
    Expect(gScore->TotalStat().Played == all, "the total counts another number of games");
    Expect(static_cast<int>(gScore->Find({}).size()) == all, "a filter that keeps all loses some");
    for (int i = 1; i <= std::min(all, 20); ++i) {
        const tScore record = gScore->GetScore(i);
        ExpectKept(record);
        for (const char* interval : {"d", "m", "yyyy"}) (void)gScore->DateStat(record.Date, interval);
        Expect(gScore->GameStat(record.gName).Played > 0, "a game that was played has no record");
        (void)mRanking::GameRows(record.gName);
        (void)mPlot::Make(mPlot::Kind::Strips, mStatistics::RecordsChart(record.gName));
    }
    for (const mLog::DateChoice& choice : mLog::DateChoices) {
        const auto found = mLog::Select(mLog::AllPlayers, mLog::AllGames, choice.Text);
        Expect(static_cast<int>(found.size()) <= all, "a date filter finds more than there is");
    }
    for (const mStatistics::DateRange& range : mStatistics::DateRanges) (void)mStatistics::Dates(range);
    const Career career(gScore->Store());
    const Career::Result result = career.Work({});
    Expect(result.All.Played == all, "a career leaves games out");
    for (const auto unit : {mCareerTables::Unit::Week, mCareerTables::Unit::Month}) {
        (void)mCareerTables::Times(result, unit);
        (void)mPlot::Make(mPlot::Kind::Periods, mCareerTables::TimeCharts(result, unit).Played);
    }
    (void)mCareerTables::Summary(career, result);
    (void)mRanking::TopRows();
    for (const char* key : mRanking::FinishedKeys) (void)mRanking::FinishedRows(key);
    Expect(mStatistics::GameRows().size() == static_cast<std::size_t>(gData->TotalGames()),
           "a game has no row");
    (void)mStatistics::GeneralLines(gScore->TotalStat());
}

}  // namespace

namespace mFuzz {

void ScoreFile(std::string_view bytes) {
    Engine engine;
    const std::string path = cScore::FileName("Player1");
    engine.Layer.Files.Contents[path] = bytes;
    gScore->OpenAllScore();
    gScore->ReportUnread();
    const int read = gScore->ScoreTop();
    Expect(read <= LinesWithText(bytes), "more records than lines");
    Expect(engine.Layer.Forms.Messages.empty() == (read == LinesWithText(bytes)),
           "lines that were left out are not told, or others are");
    LookAtAllViews();
    Expect(gScore->WriteStat("/data/export.txt"), "the export fails");

    mGen::StartGame("Klondike", 1.0);
    mGen::CloseGame(0);
    const std::string& after = engine.Layer.Files.Contents[path];
    Expect(after.compare(0, bytes.size(), bytes) == 0, "a record changed what stood before it");
    gScore->OpenAllScore();
    Expect(gScore->ScoreTop() == read + 1, "the new record is not one more");
    Expect(gScore->GetScore(read + 1).gName == "Klondike", "the new record is not the last");
    gScore->CloseScore();
}

void ImportedFile(std::string_view bytes) {
    Engine engine;
    const auto put = [&](std::string_view content) { engine.Layer.Files.Contents["/away/file"] = content; };
    put(bytes);
    ImportedRecords file;
    if (!file.Read("/away/file")) return;
    const std::string player = gData->CurPlayer();
    const int found = file.Preview(player, {}).New;
    Expect(file.AddTo(player, {}), "records cannot be added");
    Expect(file.Preview(player, {}).New == 0, "what was added is still new");
    gScore->OpenAllScore();
    Expect(gScore->ScoreTop() == found, "a record that was added cannot be read");
    const Career career(gScore->Store());
    const auto all = [](int) { return true; };
    put(mCareerTables::RecordsCsv(gScore->Store(), career.Records({}), all));
    ImportedRecords again;
    Expect(again.Read("/away/file"), "an export cannot be read");
    const ImportedRecords::Count count = again.Preview(player, {});
    Expect(count.New == 0 && count.There == found && again.Unreadable() == 0,
           "an export is not what was read");
}

void FavouritesFile(std::string_view bytes) {
    Engine engine;
    const std::string path = cScore::FavFileName();
    engine.Layer.Files.Contents[path] = bytes;
    gScore->OpenFav();
    const int read = gScore->FavTop();
    Expect(read <= LinesWithText(bytes), "more favourites than lines");
    for (int i = 1; i <= read; ++i) {
        const tFav favourite = gScore->GetFav(i);
        const auto again = mScoreFile::ParseFav(mScoreFile::FavLine(favourite));
        Expect(again.has_value(), "a favourite that was read cannot be written");
        if (i <= 3) mGen::StartGame(favourite.mName, favourite.mGno);
        ExpectTableInOrder();
    }
    Expect(gScore->AddFav("Klondike", 12.0), "a favourite cannot be added");
    gScore->OpenFav();
    Expect(gScore->FavTop() == read + 1, "the new favourite is not one more");
    Expect(gScore->GetFav(read + 1).mName == "Klondike", "the new favourite is not the last");
}

void SettingValues(std::string_view bytes) {
    decltype(MemorySettings::Values) values;
    while (!bytes.empty()) {
        const std::string_view line = bytes.substr(0, bytes.find('\n'));
        bytes.remove_prefix(std::min(bytes.size(), line.size() + 1));
        const auto equals = line.find('=');
        if (equals == std::string_view::npos) continue;
        values[std::string(line.substr(0, equals))] = line.substr(equals + 1);
    }
    const Engine engine(std::move(values));
    constexpr const NumberSetting* settings[] = {
        &Setting::Autoplay,      &Setting::CustomColor, &Setting::ShowToolbar, &Setting::CardSpeed,
        &Setting::UndoSpeed,     &Setting::BGIndex,     &Setting::RangeIndex,  &Setting::DeckIndex,
        &Setting::SoundCardDown, &Setting::TvIndex,     &Setting::Zoom,        &Setting::Fade,
        &Setting::ReplaySpeed};
    for (const NumberSetting* setting : settings) {
        const int value = gData->Get(*setting);
        Expect(value >= setting->Low && value <= setting->High, "a setting lies outside its range");
    }
    Expect(gData->GetGameID(gData->LastGName()) != 0, "the last game is in no family");
    const int players = gData->TotalPlayers();
    Expect(players >= 1 && players <= 20, "a number of players that cannot be");
    Expect(mPlayers::Names().size() <= 20, "too many players");
    mMain::NewGame();
    Expect(gData->Figures.GameRunning, "a new game does not start");
    ExpectTableInOrder();
    (void)mMain::UpdateMenus();
    (void)mMain::TickTime();
    for (int i = 1; i <= 5; ++i) mMain::RecentGame(i);
    ExpectTableInOrder();
    mMain::CloseGame();
    gScore->OpenAllScore();
}

void GameNumbers(std::string_view bytes) {
    Engine engine;
    const std::string typed(bytes.substr(0, 400));
    for (const int digits : {0, 1, 6, 15}) {
        gData->Set(Setting::RangeIndex, digits);
        if (mSelect::NumberFault(typed)) continue;
        const double value = mGameNumber::Value(typed);
        Expect(value > 0.0 && value < mSelect::LargestNumber(), "a number outside the range is taken");
    }
    const GameNumber number = typed;
    Expect(mGameNumber::Text(number) == typed, "the number is not shown as it was typed");
    if (const auto value = mGameNumber::Parse(typed)) {
        Expect(mGameNumber::Parse(mGameNumber::Text(*value)) == *value, "a number changes when it is shown");
    }
    // Whatever stands there names a deal, and always the same one.
    mGen::StartGame("Klondike", number);
    ExpectTableInOrder();
    const auto places = mChecks::Places();
    mMain::RestartGame();
    const std::string fault = mChecks::Difference(places, mChecks::Places(), [](int) { return false; });
    if (!fault.empty()) throw std::logic_error(fault);
}

void LabProtocol(std::string_view bytes) {
    constexpr int MostLines = 100;
    Lab lab;
    for (int i = 0; i < MostLines && !bytes.empty(); ++i) {
        const std::string_view line = bytes.substr(0, bytes.find('\n'));
        bytes.remove_prefix(std::min(bytes.size(), line.size() + 1));
        if (Lab::IsBlank(line)) continue;
        const std::string answer = lab.Answer(line);
        Expect(nlohmann::json::accept(answer), "an answer is no JSON");
        Expect(answer.find('\n') == std::string::npos, "an answer has more than one line");
        ExpectTableInOrder();
    }
}

}  // namespace mFuzz
