// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <tl/expected.hpp>

namespace tonquil {

/// Why something could not be done.
struct Problem {
    /// One sentence that a person can act on: what happened, to what, and what was kept.
    std::string sentence;
    /// For the log only: the system's own words, a byte offset. May be empty.
    std::string detail;
};

template <typename Value>
using Result = tl::expected<Value, Problem>;

[[nodiscard]] inline tl::unexpected<Problem> problem(std::string sentence,
                                                     std::string detail = {}) {
    return tl::unexpected<Problem>(Problem{std::move(sentence), std::move(detail)});
}

}  // namespace tonquil
