// SPDX-License-Identifier: MIT
#include "screens/ReferenceID.h"

#include <gtest/gtest.h>

#include <vector>

namespace tonquil {
namespace {

TEST(ReferenceID, UsesTheSerialNumberWhereThereIsOne) {
    struct Row {
        DisplayIdentity identity;
        const char* text;
        bool isLocal;
    };
    const std::vector<Row> rows{
        {{1, 7, 9, true, 300, 200}, "1-7-9", false},
        {{4294967294U, 7, 9, false, 300, 200}, "4294967294-7-9", false},
        {{0, 7, 9, true, 300, 200}, "builtin-7-9", true},
        {{4294967295U, 7, 9, true, 300, 200}, "builtin-7-9", true},
        {{0, 4, 9, false, 600, 340}, "600.000000x340.000000-4-9", true},
        {{4294967295U, 4294967295U, 9, false, 0, 1.25}, "0.000000x1.250000-4294967295-9", true}};
    for (const Row& row : rows) {
        SCOPED_TRACE(row.text);
        const ReferenceID reference = referenceIDFor(row.identity);
        EXPECT_EQ(reference.text, row.text);
        EXPECT_EQ(reference.isLocallyUnique, row.isLocal);
    }
}

}  // namespace
}  // namespace tonquil
