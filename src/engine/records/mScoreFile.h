// The lines of the score files and of the favourites file: how they are written and read.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "engine/records/tScore.h"

namespace mScoreFile {

/// The line of a record, without its end. Fields: date, game, number, time, moves, score, won.
[[nodiscard]] std::string ScoreLine(const tScore& record);
/// The line of a favourite, without its end. Fields: game, number.
[[nodiscard]] std::string FavLine(const tFav& favourite);

/// A field of a line.
struct Field {
    std::string_view Text;
    bool Quoted = false;
};

/// The fields of a record's line as they stand in it; the texts live as long as the line.
struct ScoreFields {
    std::string_view Date;
    std::string_view gName;
    Field GameNo;
    double Number = 0.0;  ///< of an unquoted GameNo
    int Time = 0;
    int Moves = 0;  ///< as Score and Won in 16 bits
    int Score = 0;
    int Won = 0;
};

/// False for a line that is no record, such as one that was cut off.
[[nodiscard]] bool ParseScore(std::string_view line, ScoreFields& fields);
[[nodiscard]] std::optional<tFav> ParseFav(std::string_view line);

/// Calls `read` with every line of a file that is not empty, in UTF-8. Lines end in CR LF, LF, CR or with
/// the file, each in its own way. Answers how many `read` refused.
int ForEachLine(std::string_view content, const std::function<bool(std::string_view)>& read);

}  // namespace mScoreFile
