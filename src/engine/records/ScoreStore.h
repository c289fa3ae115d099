// The records of all players while a view is open, kept small, with what the views ask for worked out
// as the records come in.
#pragma once

#include <cstdint>
#include <functional>
#include <limits>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "engine/records/RegionalDates.h"
#include "engine/records/mScoreFile.h"
#include "engine/records/tScore.h"

/// Texts of any number behind one block of memory.
class TextPool {
public:
    [[nodiscard]] std::uint32_t Add(std::string_view text);
    [[nodiscard]] std::string_view Get(std::uint32_t place) const;

private:
    std::string bytes_;
    std::vector<std::size_t> ends_;
};

/// Names by number, in the order in which they came.
class NameList {
public:
    static constexpr std::uint32_t None = std::numeric_limits<std::uint32_t>::max();

    /// The number of a name, which is added where it is new.
    [[nodiscard]] std::uint32_t Add(std::string_view name);
    /// None for a name that is not there.
    [[nodiscard]] std::uint32_t Find(std::string_view name) const;
    [[nodiscard]] const std::string& Name(std::uint32_t number) const { return names_[number]; }
    [[nodiscard]] const std::vector<std::string>& Names() const { return names_; }

private:
    struct Hash {
        using is_transparent = void;
        std::size_t operator()(std::string_view text) const { return std::hash<std::string_view>{}(text); }
    };
    std::vector<std::string> names_;
    std::unordered_map<std::string, std::uint32_t, Hash, std::equal_to<>> numbers_;
};

/// Sums that no number of records can overflow.
struct ScoreSums {
    std::int64_t Played = 0;
    std::int64_t Won = 0;
    std::int64_t Score = 0;
    std::int64_t Moves = 0;
    std::int64_t Time = 0;

    void Add(const ScoreSums& other);
    [[nodiscard]] tStat Stat() const;
};

class ScoreStore {
public:
    static constexpr std::int32_t NoDay = std::numeric_limits<std::int32_t>::min();

    /// A record in 40 bytes.
    struct Entry {
        union {
            double Number;       ///< the game number where it is one, or the typed text is its digits
            std::uint64_t Text;  ///< else its place in the pool
        };
        std::int32_t Day;        ///< as mDates::DayNumber; NoDay for a date that nothing can read
        std::uint32_t Second;    ///< of the day; 0 for a date that nothing can read
        std::uint32_t DateText;  ///< its place in the pool, unless FixedDate
        std::int32_t Time;
        std::int16_t Moves;
        std::int16_t Score;
        std::uint32_t Game;
        std::uint16_t Player;
        std::int16_t Won;
        enum class NumberKind : std::uint8_t { Number, Digits, Text } Kind;
        bool FixedDate;  ///< the date text is the fixed form of Day and Second
    };

    void Add(const mScoreFile::ScoreFields& fields, const std::string& player, const RegionalDates& dates);
    /// Makes room for so many records more.
    void Reserve(std::size_t more);

    [[nodiscard]] int Size() const { return static_cast<int>(entries_.size()); }
    /// In reading order; record i of the store is entry i - 1.
    [[nodiscard]] const std::vector<Entry>& Entries() const { return entries_; }
    [[nodiscard]] tScore Record(const Entry& entry) const;
    [[nodiscard]] std::string DateText(const Entry& entry) const;
    [[nodiscard]] std::string NumberText(const Entry& entry) const;
    /// Date and time of an entry whose date can be read.
    [[nodiscard]] static CivilTime TimeOf(const Entry& entry);
    [[nodiscard]] const NameList& Games() const { return games_; }
    [[nodiscard]] const NameList& Players() const { return players_; }
    /// The entries of a game by their index, in reading order.
    [[nodiscard]] const std::vector<std::uint32_t>& OfGame(std::uint32_t game) const { return byGame_[game]; }

    [[nodiscard]] const ScoreSums& Total() const { return total_; }
    /// All zeros for a name without records.
    [[nodiscard]] ScoreSums GameSums(std::string_view gName) const;
    [[nodiscard]] ScoreSums PlayerSums(std::string_view Player) const;
    [[nodiscard]] ScoreSums DaySums(const mDates::DayRange& days) const;

private:
    void AddSums(const Entry& entry);

    std::vector<Entry> entries_;
    TextPool texts_;
    NameList games_, players_;
    ScoreSums total_;
    std::vector<ScoreSums> gameSums_, playerSums_;
    std::vector<std::vector<std::uint32_t>> byGame_;
    std::unordered_map<std::int32_t, ScoreSums> daySums_;
};
static_assert(sizeof(ScoreStore::Entry) == 40);
