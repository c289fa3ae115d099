// The memory of games played: one text file a player, one line a game; the store of all records while a
// view is open; the list of this session; and the favourites.
#pragma once

#include <array>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "engine/outside/windowlayer.h"
#include "engine/records/PlayerList.h"
#include "engine/records/ScoreStore.h"
#include "engine/records/tScore.h"

/// What a view of single records keeps.
struct tFilter {
    std::string Player;                     ///< empty: all
    std::string gName;                      ///< empty: all
    std::optional<mDates::DayRange> Dates;  ///< a date that nothing can read lies in no range
};

class cScore {
public:
    static constexpr int TopPlaces = 20;

    /// The session begins.
    cScore();

    // Writing. A line that cannot be written is reported with file and cause, kept, and written with
    // the next one or when a view opens.

    /// Appends the running game's record to the current player's file.
    void AddScore(int mWon);
    /// Appends a favourite; the list in memory stays. False when it could not be written yet.
    [[nodiscard]] bool AddFav(const std::string& mName, const GameNumber& mGno);
    /// Tries once more to write what could not be written; true when nothing is left.
    bool WriteKept();

    // The store: closed and empty, or loaded with the records of all players.

    /// Appends that player's records to the store; a missing file is a player without records.
    void OpenScore(const std::string& Player);
    /// Reloads the store: the players in slot order, each file in its own order.
    void OpenAllScore();
    void CloseScore();
    [[nodiscard]] bool IsLoaded() const { return loaded_; }
    /// Tells the user which files could not be read, wholly or in single lines: each once, until
    /// something else is wrong with it. Called when a view opens, after its files are read.
    void ReportUnread();

    [[nodiscard]] int ScoreTop() const { return store_.Size(); }
    /// What is loaded, for who walks over all of it.
    [[nodiscard]] const ScoreStore& Store() const { return store_; }
    /// 1 to ScoreTop; outside throws std::out_of_range.
    [[nodiscard]] tScore GetScore(int i) const;
    /// The n-th record of a game in store order; an empty record where there are fewer.
    [[nodiscard]] tScore GetGameScore(const std::string& gName, int n) const;
    [[nodiscard]] tStat TotalStat() const { return store_.Total().Stat(); }
    [[nodiscard]] tStat GameStat(const std::string& gName) const { return store_.GameSums(gName).Stat(); }
    [[nodiscard]] tStat PlayerStat(const std::string& Player) const {
        return store_.PlayerSums(Player).Stat();
    }
    /// The records of the day ("d"), month ("m") or year ("yyyy") in which a date lies; another interval
    /// throws std::out_of_range. A date that nothing can read has no records and labels itself.
    [[nodiscard]] tDateStat DateStat(const std::string& mDate, const std::string& mInterval) const;
    /// The indexes, for GetScore, of the records that a filter keeps, in store order.
    [[nodiscard]] std::vector<int> Find(const tFilter& filter) const;

    // Rankings. Of equal keys the record that was read later stands above.

    /// Ranks by score, highest first, what has a score above 0; empty names rank all games or players,
    /// Won 1 leaves lost games out.
    void Sort(const std::string& gName = {}, const std::string& Player = {}, int Won = 0);
    /// Ranks won games by shortest time or by fewest moves; moves count where both are asked for.
    void FinSort(bool Time, bool Moves);
    /// Places 1 to TopPlaces of the last ranking, an empty record where there is none; place 0 is
    /// always empty. Outside throws std::out_of_range.
    [[nodiscard]] const tScore& GetTop(int j) const;

    /// Asks, and then deletes the score files of all players. The store stays as it is.
    void ClearStat();
    /// Renames a player's score file, if there is one. Never replaces a file.
    [[nodiscard]] FileError RenameScore(const std::string& from, const std::string& to);
    /// Deletes a player's score file, if there is one.
    [[nodiscard]] FileError DeleteScore(const std::string& Player);

    // Export.

    /// Asks for a file, writes all statistics to it and tells so. The store is loaded afterwards exactly
    /// when it was before.
    void ExportStat();
    /// Answers a percentage with whether to go on.
    using Progress = std::function<bool(int percent)>;
    /// Writes all statistics of the store, in UTF-8, the whole file in one step. False when it was
    /// cancelled, or could not be written, which is reported; the file is then as it was.
    [[nodiscard]] bool WriteStat(const std::string& FileName, const Progress& progress = {}) const;

    // Favourites, in the order in which they were added.

    void OpenFav();
    [[nodiscard]] int FavTop() const { return static_cast<int>(favourites_.size()); }
    /// 1 to FavTop; outside throws std::out_of_range.
    [[nodiscard]] const tFav& GetFav(int i) const;
    /// The list in memory only. Dialogs read it afresh when they open, so none needs to close it.
    void CloseFav() { favourites_.clear(); }
    /// Deletes all favourites without a question; a failure is reported.
    void ClearFav();

    // The session: every game that ended in this run.

    void AddSesGame(int mWon);
    [[nodiscard]] int SesTop() const { return static_cast<int>(session_.size()); }
    /// 1 to SesTop; outside throws std::out_of_range.
    [[nodiscard]] const tScore& GetSes(int i) const;
    [[nodiscard]] tStat SesStat() const;
    /// Seconds since the session began; 0 when the clock was set back.
    [[nodiscard]] int SesTime() const;

    static constexpr const char* Ending = ".sre";
    /// The path of a player's score file; a name that no player can have throws std::invalid_argument.
    [[nodiscard]] static std::string FileName(const std::string& Player);
    struct FileCount {
        int Records = 0;
        FileError Fault;
    };
    /// How many records a file holds.
    [[nodiscard]] static FileCount CountRecords(const std::string& path);
    [[nodiscard]] static std::string FavFileName();

private:
    /// A line of a player's score file, or of the favourites.
    struct KeptLine {
        std::optional<ShownPlayer> Player;
        std::string Line;
    };
    /// What reading a file left out.
    struct Unread {
        std::string Whose;  ///< "Player1's records"
        int Lines = 0;
        std::size_t Which = 0;  ///< tells other lines from these, also where there are as many
        FileError Fault;
        bool operator==(const Unread&) const = default;
    };

    using Faults = std::map<std::string, std::string>;  ///< causes by path
    /// Appends what is kept, the lines of a file with one write. The lines of a player who was deleted go.
    Faults TryKept();
    Faults WriteLines(const PlayerList& list);
    /// The file for a line as the list is; nothing where its player was deleted.
    [[nodiscard]] static std::optional<std::string> PathOf(const KeptLine& line, const PlayerList& list);
    void DropKept(const std::string& path);
    /// Reads a file line by line; what `read` refuses is counted. A missing file has no lines.
    void ReadLines(const std::string& path, const std::string& whose,
                   const std::function<bool(std::string_view)>& read);
    void EraseTop() { top_ = {}; }
    template <typename Fill>
    void Rank(Fill fill);

    ScoreStore store_;
    std::size_t bytes_ = 0;  ///< of the files that it was read from
    bool loaded_ = false;
    std::array<tScore, TopPlaces + 1> top_;
    std::vector<tScore> session_;
    Moment sessionStart_;
    std::vector<tFav> favourites_;
    std::vector<KeptLine> kept_;
    std::map<std::string, Unread> unread_;    // by path
    std::map<std::string, Unread> reported_;  // by path
};

/// The records. Created by InitApp, released by Shutdown.
extern std::unique_ptr<cScore> gScore;
