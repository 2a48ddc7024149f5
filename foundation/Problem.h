// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <tl/expected.hpp>
#include <vector>

namespace tonquil {

/// Why something could not be done.
struct Problem {
    /// One sentence that a person can act on, in English: what happened, to what, and what was
    /// kept.
    std::string sentence;
    /// For the log only: the system's own words, a byte offset. May be empty.
    std::string detail;
    /// For those who translate: the text that the sentence was made from, see `formattedText`, and
    /// what was put into it. Without a format the sentence itself is the key.
    std::string format = {};
    std::vector<std::string> arguments = {};

    /// The key of the context "Problem" under which a translation is found.
    [[nodiscard]] const std::string& key() const { return format.empty() ? sentence : format; }
};

template <typename Value>
using Result = tl::expected<Value, Problem>;

[[nodiscard]] inline tl::unexpected<Problem> problem(std::string sentence,
                                                     std::string detail = {}) {
    return tl::unexpected<Problem>(Problem{std::move(sentence), std::move(detail)});
}

/// A problem whose sentence is `format` with the arguments in their places. An argument may be a
/// translatable text itself.
[[nodiscard]] tl::unexpected<Problem> problemWith(std::string_view format,
                                                  std::vector<std::string> arguments,
                                                  std::string detail = {});

}  // namespace tonquil
