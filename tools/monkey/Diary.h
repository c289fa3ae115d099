// What the monkey did last and what it has counted: printed at intervals, and when something is wrong.
#pragma once

#include <cstdint>
#include <string>

namespace mDiary {

/// Begins the diary. From here on a finding of a sanitizer, an abort, or a warning of Qt also tells the
/// seed and the last actions, and ends the program.
void Open(std::uint32_t seed);
/// An action is about to be made.
void Note(const std::string& action);
/// A number to be printed with the report, under its name.
void Count(const char* what);
/// A window of that name came up.
void CountWindow(const std::string& name);
/// How many actions were noted.
[[nodiscard]] long Actions();
/// One line: seconds, actions, counted numbers.
void Report(int seconds, const std::string& more);
/// How often each window came up.
void ReportWindows();
/// Prints what is wrong, the seed and the last actions, and ends the program with exit code 1.
[[noreturn]] void Fail(const std::string& fault);

}  // namespace mDiary
