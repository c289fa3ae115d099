// The arguments of one line of the text driver: JSON values between blanks.
#pragma once

#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include <nlohmann/json.hpp>

#include "engine/state/GameNumber.h"

/// A command that cannot be carried out. The text says what is wrong, for the person or the bot that
/// wrote the line; whoever throws it has changed nothing yet.
class LabError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

class LabArguments {
public:
    /// Reads the whole line; throws LabError where an argument is no JSON value.
    explicit LabArguments(std::string_view line);

    [[nodiscard]] const std::string& Command() const { return command_; }
    [[nodiscard]] std::size_t Count() const { return values_.size(); }
    /// Throws LabError unless the count lies between the two.
    void ExpectCount(std::size_t fewest, std::size_t most) const;

    // One argument, counted from 0; a LabError names `what` where it is of another kind.
    [[nodiscard]] std::string Text(std::size_t index, const char* what) const;
    /// A whole number from `low` to `high`.
    [[nodiscard]] int Whole(std::size_t index, const char* what, int low, int high) const;
    /// From 0 to `high`.
    [[nodiscard]] double Seconds(std::size_t index, double high) const;
    /// The cards of a whole deck: an array that holds each number from 0 to `cards` - 1 once.
    [[nodiscard]] std::vector<int> Deck(std::size_t index, int cards) const;
    /// A number, or the text of one.
    [[nodiscard]] GameNumber Number(std::size_t index) const;

private:
    std::string command_;
    std::vector<nlohmann::json> values_;
};
