// Writing and parsing lines of comma-separated fields.
#include "engine/records/mScoreFile.h"

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <span>

#include <fmt/format.h>

#include "engine/state/mText.h"

namespace {

using mScoreFile::Field;

/// In quotes, as the format knows no escape: what would end the text or the line is replaced.
std::string Quoted(std::string text) {
    std::replace(text.begin(), text.end(), '"', '\'');
    std::replace_if(
        text.begin(), text.end(), [](char c) { return c == '\n' || c == '\r'; }, ' ');
    return '"' + text + '"';
}

std::string NumberField(const GameNumber& number) {
    const std::string text = mGameNumber::Text(number);
    return std::holds_alternative<std::string>(number) ? Quoted(text) : text;
}

std::string_view Trimmed(std::string_view text) {
    const auto first = text.find_first_not_of(" \t");
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(" \t") + 1 - first);
}

/// Takes the next field and the comma behind it off the line.
bool TakeField(std::string_view& line, Field& field, bool last) {
    const auto start = std::min(line.find_first_not_of(" \t"), line.size());
    std::size_t comma = 0;
    field.Quoted = start < line.size() && line[start] == '"';
    if (field.Quoted) {
        const auto quote = line.find('"', start + 1);
        if (quote == std::string_view::npos) return false;  // cut off inside the text
        field.Text = line.substr(start + 1, quote - start - 1);
        comma = std::min(line.find_first_not_of(" \t", quote + 1), line.size());
    } else {
        comma = std::min(line.find(','), line.size());
        field.Text = Trimmed(line.substr(0, comma));
        if (field.Text.find('"') != std::string_view::npos) return false;
    }
    const bool atEnd = comma == line.size();
    if (!atEnd && line[comma] != ',') return false;
    line.remove_prefix(atEnd ? comma : comma + 1);
    return atEnd == last;
}

bool Split(std::string_view line, std::span<Field> fields) {
    for (std::size_t i = 0; i < fields.size(); ++i) {
        if (!TakeField(line, fields[i], i + 1 == fields.size())) return false;
    }
    return true;
}

/// False for a number that its type cannot hold, which no game has written.
template <typename Integer>
bool ReadNumber(std::string_view text, Integer& value) {
    const auto [end, fault] = std::from_chars(text.data(), text.data() + text.size(), value);
    return fault == std::errc{} && end == text.data() + text.size();
}

/// Moves, scores and results have 16 bits in a game.
bool ReadShort(std::string_view text, int& value) {
    std::int16_t number = 0;
    if (!ReadNumber(text, number)) return false;
    value = number;
    return true;
}

bool ReadGameNumber(std::string_view text, double& value) {
    // Plain digits are the usual case, and up to 18 of them are exact in 64 bits.
    constexpr std::size_t SafeDigits = 18;
    if (!text.empty() && text.size() <= SafeDigits) {
        long long whole = 0;
        if (ReadNumber(text, whole)) {
            value = static_cast<double>(whole);
            return true;
        }
    }
    const std::optional<double> parsed = mGameNumber::Parse(std::string(text));
    value = parsed.value_or(0.0);
    return parsed.has_value();
}

/// Takes what stands before the first `end` off the text, and the end itself; all where there is none.
std::string_view TakeUntil(std::string_view& text, char end) {
    const std::size_t at = text.find(end);
    const std::string_view taken = text.substr(0, at);
    text.remove_prefix(at == std::string_view::npos ? text.size() : at + 1);
    return taken;
}

}  // namespace

namespace mScoreFile {

std::string ScoreLine(const tScore& record) {
    return fmt::format("{},{},{},{},{},{},{}", Quoted(record.Date), Quoted(record.gName),
                       NumberField(record.GameNo), record.Time, record.Moves, record.Score, record.Won);
}

std::string FavLine(const tFav& favourite) {
    return Quoted(favourite.mName) + ',' + NumberField(favourite.mGno);
}

bool ParseScore(std::string_view line, ScoreFields& record) {
    Field fields[7];
    if (!Split(line, fields)) return false;
    record.Date = fields[0].Text;
    record.gName = fields[1].Text;
    record.GameNo = fields[2];
    if (!record.GameNo.Quoted && !ReadGameNumber(record.GameNo.Text, record.Number)) return false;
    return ReadNumber(fields[3].Text, record.Time) && ReadShort(fields[4].Text, record.Moves) &&
           ReadShort(fields[5].Text, record.Score) && ReadShort(fields[6].Text, record.Won);
}

std::optional<tFav> ParseFav(std::string_view line) {
    Field fields[2];
    if (!Split(line, fields)) return std::nullopt;
    tFav favourite;
    favourite.mName = fields[0].Text;
    if (fields[1].Quoted) {
        favourite.mGno = std::string(fields[1].Text);
        return favourite;
    }
    double number = 0.0;
    if (!ReadGameNumber(fields[1].Text, number)) return std::nullopt;
    favourite.mGno = number;
    return favourite;
}

int ForEachLine(std::string_view content, const std::function<bool(std::string_view)>& read) {
    constexpr std::string_view Mark = "\xEF\xBB\xBF";  // some editors put it before UTF-8
    if (content.substr(0, Mark.size()) == Mark) content.remove_prefix(Mark.size());
    const bool ascii = mText::IsAscii(content);
    int refused = 0;
    const auto take = [&](std::string_view line) {
        if (line.find_first_not_of(" \t") == std::string_view::npos) return;
        const bool taken = ascii || mText::IsAscii(line) ? read(line) : read(mText::FromFile(line));
        if (!taken) ++refused;
    };
    while (!content.empty()) {
        // By LF first: it ends nearly every line, and CR stands before it.
        const std::string_view block = TakeUntil(content, '\n');
        for (std::string_view lines = block; !lines.empty();) take(TakeUntil(lines, '\r'));
    }
    return refused;
}

}  // namespace mScoreFile
