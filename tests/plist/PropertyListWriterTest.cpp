// SPDX-License-Identifier: MIT
#include "plist/PropertyListWriter.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <numeric>
#include <random>

#include "../files/FolderContents.h"
#include "Bytes.h"
#include "SameValue.h"
#include "tests/support/ProcessRunner.h"

namespace tonquil {
namespace {

constexpr const char* script = R"(
import datetime, plistlib, sys
folder = sys.argv[1] + "/"
own = {"when": [datetime.datetime(1, 1, 1), datetime.datetime(9999, 12, 31, 23, 59, 59)],
       "moon": "\u263e\U0001f319", "range": [2**64 - 1, -2**63]}
for name, value in {"own": own, "ours": plistlib.load(open(folder + "ours", "rb"))}.items():
    plistlib.dump(value, open(folder + name + " xml", "wb"), fmt=plistlib.FMT_XML)
    plistlib.dump(value, open(folder + name + " binary", "wb"), fmt=plistlib.FMT_BINARY)
open(folder + "own utf16", "wb").write(
    plistlib.dumps(own).decode().replace("UTF-8", "UTF-16").encode("utf-16"))
)";

// Python's plistlib is independent of our reader and writer, so what both agree on is right.
TEST(PropertyListWriter, ReadsBackInOurReaderAndPlistlib) {
    std::vector<std::uint8_t> data(300);
    std::iota(data.begin(), data.end(), std::uint8_t{0});
    PropertyValue ours = PropertyValue::parse(R"([true, false, 0, 255, -129, 65536,
        18446744073709551615, -9223372036854775808, 0.1, -0.0, 1e300, -5e-324, 1.5, "", " \t\n ",
        "a&<>]]>\"'é☾🌙\u007F", {"": {}, "&<é": [[], [0.25]]}])");
    for (std::ptrdiff_t size = 0; size < 300; size += 23) {
        ours.push_back(PropertyValue::binary({data.begin(), data.begin() + size}));
    }
    const auto own = PropertyValue::parse(R"({"moon":"☾🌙",
        "when":["0001-01-01T00:00:00Z","9999-12-31T23:59:59Z"],
        "range":[18446744073709551615,-9223372036854775808]})");
    const ScratchFolder folder;
    putContents(folder / "ours", writePropertyList(ours).value_or("none"));
    const auto python = run({.command = {"python3", "-c", script, folder.path().native()}});
    ASSERT_TRUE(python && python->succeeded()) << (python ? python->standardError : "no Python");
    for (const std::string name :
         {"ours", "ours xml", "ours binary", "own xml", "own binary", "own utf16"}) {
        const auto value = readPropertyList(bytesOf(contentsOf(folder / name)));
        ASSERT_TRUE(value) << name << value.error().detail;
        EXPECT_TRUE(isSameValue(*value, name.starts_with("ours") ? ours : own)) << name;
    }
}

TEST(PropertyListWriter, RoundTripsFloatsExactly) {
    using Real = std::numeric_limits<double>;
    // The last one is the midpoint of two floats; its shortest digits lie above that midpoint.
    PropertyValue values = {
        " a\r\n\rb\t",     "\uFFFD\U0010FFFF\u0085", Real::infinity(),
        -Real::infinity(), Real::quiet_NaN(),        -0.0,
        Real::max(),       Real::denorm_min(),       1.000000059604644775390625};
    std::mt19937_64 random(20260101);
    while (values.size() < 1000) {
        // The midpoint of two floats, or a double next to it: where double rounding goes wrong.
        const auto odd = static_cast<double>((random() % (1U << 24U)) * 2 + 1);
        const double middle = std::ldexp(odd, static_cast<int>(random() % 250) - 148);
        values.push_back(std::nextafter(middle, middle * static_cast<double>(random() % 3)));
    }
    const auto text = writePropertyList(values);
    ASSERT_TRUE(text) << text.error().sentence;
    const auto again = readPropertyList(bytesOf(*text)).value_or(nullptr);
    ASSERT_EQ(again.size(), values.size());
    for (std::size_t i = 0; i < values.size(); ++i) {
        EXPECT_TRUE(isSameValue(again[i], values[i])) << values[i].dump();
    }
}

TEST(PropertyListWriter, RefusesValuesTheReaderCannotReadBack) {
    for (const char* const hex :
         {"610062", "1F", "EFBFBE", "80", "C3", "C0AF", "E080AF", "EDA080", "F4908080"}) {
        EXPECT_FALSE(writePropertyList(bytesFromHex(hex))) << hex;
    }
    EXPECT_FALSE(writePropertyList({{"\x01", true}}));
    EXPECT_FALSE(writePropertyList(PropertyValue::array({1, nullptr})));
}

}  // namespace
}  // namespace tonquil
