// What the monkey did last and what it has counted: printed at intervals, and when something is wrong.
#pragma once

#include <cstdint>
#include <string>

class QObject;

namespace mDiary {

/// Begins the diary. From here on a finding of a sanitizer, an abort, or a warning of Qt also tells the
/// seed and the last actions, and ends the program.
void Open(std::uint32_t seed);
/// An action is about to be made.
void Note(const std::string& action);
/// A thing of that name was met; how often is printed in the end.
void Count(const std::string& what);
/// The class and, where it has one, the name of a widget.
[[nodiscard]] std::string NameOf(const QObject* object);
/// How many actions were noted.
[[nodiscard]] long Actions();
/// One line: seconds, actions and more.
void Report(int seconds, const std::string& more);
/// How often each thing was met.
void ReportCounts();
/// Prints what is wrong, the seed and the last actions, and ends the program with exit code 1.
[[noreturn]] void Fail(const std::string& fault);

}  // namespace mDiary
