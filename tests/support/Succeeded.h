// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>

#include "foundation/Problem.h"

namespace tonquil {

/// True if `result` holds a value; a failing assertion shows the problem's sentence and detail.
template <typename Value>
[[nodiscard]] testing::AssertionResult succeeded(const Result<Value>& result) {
    if (result) {
        return testing::AssertionSuccess();
    }
    return testing::AssertionFailure()
           << result.error().sentence << " (" << result.error().detail << ")";
}

/// For set-up steps: a failure fails the test with its sentence.
template <typename Value>
void mustSucceed(const Result<Value>& result) {
    EXPECT_TRUE(succeeded(result));
}

}  // namespace tonquil
