// Tables as comma-separated values: written as RFC 4180 has them, read as spreadsheets write them.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace mCsv {

/// Appends a row with its end, CR LF. A field that holds a comma, a quote, a line end, or a blank at its edge
/// stands in quotes.
void AppendRow(std::string& text, const std::vector<std::string>& fields);

/// What stands between the fields of a text's first line: a comma, or the semicolon or tabulator that
/// spreadsheets write in some regions.
[[nodiscard]] char Separator(std::string_view text);

/// Calls `read` with the fields of every row that holds anything, and with the row as it stands. Rows end in
/// CR LF, LF or CR. A quote that is never closed ends with its line, so that what follows is not lost.
void ForEachRow(
    std::string_view text, char separator,
    const std::function<void(const std::vector<std::string>& fields, std::string_view row)>& read);

}  // namespace mCsv
