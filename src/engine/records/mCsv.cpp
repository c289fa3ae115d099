// Writing and reading comma-separated values.
#include "engine/records/mCsv.h"

#include <algorithm>

namespace {

constexpr std::string_view LineEnds = "\r\n";

bool NeedsQuotes(std::string_view field) {
    if (field.empty()) return false;
    return field.find_first_of(",\"\r\n") != std::string_view::npos || field.front() == ' ' ||
           field.back() == ' ';
}

/// The text of a quoted field from behind its first quote on, and how much of `rest` it takes with its last
/// quote; 0 where the quote is not closed.
std::size_t Unquote(std::string_view rest, std::string& field) {
    // What is longer has lost its quote; nothing is looked for to the end of a large file again and again.
    constexpr std::size_t Longest = 65536;
    const std::size_t end = std::min(rest.size(), Longest);
    for (std::size_t at = 0; at < end; ++at) {
        if (rest[at] != '"') {
            field += rest[at];
        } else if (at + 1 < end && rest[at + 1] == '"') {
            field += '"';
            ++at;
        } else {
            return at + 1;
        }
    }
    return 0;
}

}  // namespace

namespace mCsv {

void AppendRow(std::string& text, const std::vector<std::string>& fields) {
    bool first = true;
    for (const std::string& field : fields) {
        if (!first) text += ',';
        first = false;
        if (!NeedsQuotes(field)) {
            text += field;
            continue;
        }
        text += '"';
        for (const char c : field) text.append(c == '"' ? 2 : 1, c);
        text += '"';
    }
    text += "\r\n";
}

char Separator(std::string_view text) {
    const std::string_view line = text.substr(0, text.find_first_of(LineEnds));
    char most = ',';
    for (const char candidate : {';', '\t'}) {
        if (std::count(line.begin(), line.end(), candidate) > std::count(line.begin(), line.end(), most))
            most = candidate;
    }
    return most;
}

void ForEachRow(
    std::string_view text, char separator,
    const std::function<void(const std::vector<std::string>& fields, std::string_view row)>& read) {
    std::vector<std::string> fields;
    while (!text.empty()) {
        const std::size_t lineEnd = std::min(text.find_first_of(LineEnds), text.size());
        const char ends[] = {separator, '\r', '\n'};
        fields.clear();
        std::size_t at = 0;
        for (bool more = true; more;) {
            std::string& field = fields.emplace_back();
            if (at < text.size() && text[at] == '"') {
                const std::size_t taken = Unquote(text.substr(at + 1), field);
                if (taken == 0) {
                    field = text.substr(at, std::max(at, lineEnd) - at);
                    at = std::max(at, lineEnd);
                } else {
                    at += 1 + taken;
                }
            }
            // Behind a closing quote nothing should stand; what does belongs to the field.
            const std::size_t end = std::min(text.find_first_of(std::string_view(ends, 3), at), text.size());
            field += text.substr(at, end - at);
            more = end < text.size() && text[end] == separator;
            at = more ? end + 1 : end;
        }
        const std::string_view row = text.substr(0, at);
        if (row.find_first_not_of(" \t") != std::string_view::npos) read(fields, row);
        text.remove_prefix(std::min(text.size(), at + 1));  // the LF behind a CR is an empty row
    }
}

}  // namespace mCsv
