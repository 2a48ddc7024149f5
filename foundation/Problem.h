// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <tl/expected.hpp>
#include <vector>

namespace tonquil {

/// Why an operation failed.
struct Problem {
    /// One English sentence for the user: what happened, to what, and what was kept.
    std::string sentence;
    /// For the log only: the system error text, a byte offset. May be empty.
    std::string detail;
    /// For translation: the format the sentence was made from (see `formattedText`) and its
    /// arguments. Without a format, the sentence itself is the key.
    std::string format = {};
    std::vector<std::string> arguments = {};

    /// The key for the translation in the context "Problem".
    [[nodiscard]] const std::string& key() const { return format.empty() ? sentence : format; }
};

template <typename Value>
using Result = tl::expected<Value, Problem>;

[[nodiscard]] inline tl::unexpected<Problem> problem(std::string sentence,
                                                     std::string detail = {}) {
    return tl::unexpected<Problem>(Problem{std::move(sentence), std::move(detail)});
}

/// A problem whose sentence is `format` with the arguments filled in. An argument may itself be a
/// translatable text.
[[nodiscard]] tl::unexpected<Problem> problemWith(std::string_view format,
                                                  std::vector<std::string> arguments,
                                                  std::string detail = {});

}  // namespace tonquil
