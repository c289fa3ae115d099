// The records of a file from elsewhere, to be looked at and then added to a player: a score file of another
// machine, or the comma-separated values that this program exports.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "engine/outside/windowlayer.h"
#include "engine/records/PlayerList.h"
#include "engine/records/ScoreStore.h"

class ImportedRecords {
public:
    static constexpr std::size_t MostExamples = 100;

    /// Reads the file; once. False where it cannot be read, or holds no record, which is told.
    [[nodiscard]] bool Read(const std::string& path);

    /// Whose records the file says they are, in the order in which they come; a score file says nothing.
    [[nodiscard]] const std::vector<std::string>& Players() const { return players_; }
    /// Lines that are no record, or of a game that there is not.
    [[nodiscard]] int Unreadable() const { return unreadable_; }
    /// The first of them, each with its cause.
    [[nodiscard]] const std::vector<std::string>& Examples() const { return examples_; }

    struct Count {
        int New = 0;
        int There = 0;    ///< the player has them already, or the file has them twice
        int Undated = 0;  ///< of the new ones: nothing can read their date here
        FileError Fault;  ///< the player's own file cannot be read
    };
    /// What adding to a player would do. `of`: only the records of that one of Players; empty: all.
    [[nodiscard]] Count Preview(const std::string& player, const std::string& of) const;

    /// A count in words, and the examples of what cannot be read.
    [[nodiscard]] std::vector<std::string> Lines(const Count& count) const;

    /// Adds to a player's file what is not in it, in one write, while no other program adds a record. Tells
    /// what came of it; false where nothing has changed because of a fault.
    [[nodiscard]] bool AddTo(const ShownPlayer& player, const std::string& of) const;

private:
    [[nodiscard]] FileError ReadFile(const std::string& path);
    void ReadScoreFile(std::string_view content);
    void ReadCsv(std::string_view content);
    void Take(mScoreFile::ScoreFields fields, const std::string& player, std::string_view line);
    void Refuse(const std::string& cause, std::string_view line);
    /// `lines`, unless nullptr, get what is to be appended to the score file.
    [[nodiscard]] Count Compare(const std::string& player, const std::string& of,
                                std::vector<std::string>* lines) const;

    RegionalDates dates_ = RegionalDates::Current();
    ScoreStore records_;
    std::vector<std::string> players_;
    std::vector<std::string> examples_;
    int unreadable_ = 0;
};
