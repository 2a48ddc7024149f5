// SPDX-License-Identifier: MIT
//
// Python's plistlib knows nothing of our reader and writer, so what both agree on is right.
#include <gtest/gtest.h>

#include <limits>

#include "../files/FolderContents.h"
#include "Bytes.h"
#include "RandomValue.h"
#include "SameValue.h"
#include "plist/PropertyListReader.h"
#include "plist/PropertyListWriter.h"
#include "tests/support/ProcessRunner.h"

namespace tonquil {
namespace {

/// Runs the script with the folder as its argument.
testing::AssertionResult runPython(const std::string& script, const ScratchFolder& folder) {
    ProcessRequest request;
    request.command = {"python3", "-c", script, folder.path().native()};
    const auto result = run(request);
    if (!result) {
        return testing::AssertionFailure() << result.error().sentence;
    }
    return result->succeeded() ? testing::AssertionSuccess()
                               : testing::AssertionFailure() << result->standardError;
}

PropertyListBudget largeBudget() {
    PropertyListBudget budget;
    budget.mostBytes = std::size_t{1} << 28U;
    return budget;
}

TEST(PropertyListPeer, ReadsWhatWeWriteAndWritesWhatWeRead) {
    RandomValue random;
    PropertyValue values = PropertyValue::array();
    while (values.size() < 200) {
        values.push_back(random.value(3));
    }
    const ScratchFolder folder;
    const auto ours = writePropertyList(values, largeBudget());
    ASSERT_TRUE(ours) << ours.error().sentence;
    putContents(folder / "ours", *ours);
    ASSERT_TRUE(runPython(R"(
import plistlib, sys
folder = sys.argv[1]
value = plistlib.load(open(folder + "/ours", "rb"))
plistlib.dump(value, open(folder + "/xml", "wb"), fmt=plistlib.FMT_XML)
plistlib.dump(value, open(folder + "/binary", "wb"), fmt=plistlib.FMT_BINARY)
)",
                          folder));
    for (const char* const name : {"xml", "binary"}) {
        SCOPED_TRACE(name);
        const auto value = readPropertyList(bytesOf(contentsOf(folder / name)), largeBudget());
        ASSERT_TRUE(value) << value.error().detail;
        EXPECT_TRUE(isSameValue(*value, values));
    }
}

TEST(PropertyListPeer, WritesTypesOfItsOwnThatWeRead) {
    const ScratchFolder folder;
    ASSERT_TRUE(runPython(R"(
import datetime, plistlib, sys
folder = sys.argv[1]
value = {
    "when": datetime.datetime(2020, 2, 29, 1, 2, 3),
    "long ago": datetime.datetime(1, 1, 1),
    "last": datetime.datetime(9999, 12, 31, 23, 59, 59),
    "moon": "\u263e\U0001f319",
    "most": 2**64 - 1,
    "least": -2**63,
    "many": list(range(300)),
    "data": plistlib.loads(b"<plist><data>AAEC</data></plist>"),
}
plistlib.dump(value, open(folder + "/xml", "wb"), fmt=plistlib.FMT_XML)
plistlib.dump(value, open(folder + "/binary", "wb"), fmt=plistlib.FMT_BINARY)
open(folder + "/utf16", "wb").write(
    plistlib.dumps(value).decode().replace("UTF-8", "UTF-16").encode("utf-16"))
)",
                          folder));
    PropertyValue expected = {{"when", "2020-02-29T01:02:03Z"},
                              {"long ago", "0001-01-01T00:00:00Z"},
                              {"last", "9999-12-31T23:59:59Z"},
                              {"moon", "☾\U0001F319"},
                              {"most", std::numeric_limits<std::uint64_t>::max()},
                              {"least", std::numeric_limits<std::int64_t>::min()},
                              {"data", PropertyValue::binary({0, 1, 2})}};
    for (int i = 0; i < 300; ++i) {
        expected["many"].push_back(i);
    }
    for (const char* const name : {"xml", "binary", "utf16"}) {
        SCOPED_TRACE(name);
        const auto value = readPropertyList(bytesOf(contentsOf(folder / name)));
        ASSERT_TRUE(value) << value.error().detail;
        EXPECT_TRUE(isSameValue(*value, expected)) << value->dump();
    }
}

}  // namespace
}  // namespace tonquil
