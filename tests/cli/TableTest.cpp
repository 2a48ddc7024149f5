// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <sstream>

#include "model/TQExtendedGammaCurve.h"
#include "tests/cli/ControlProgram.h"

namespace tonquil {
namespace {

std::string table(const std::vector<std::string>& arguments) {
    std::vector<std::string> all{"table"};
    all.insert(all.end(), arguments.begin(), arguments.end());
    const ProcessResult result = tonquilctl("", all);
    return result.exitStatus == 0 ? result.standardOutput
                                  : std::to_string(result.exitStatus) + result.standardError;
}

std::string line(const std::string& text, int number) {
    std::istringstream lines(text);
    std::string found;
    for (int i = 0; i <= number; ++i) {
        found.clear();
        std::getline(lines, found);
    }
    return found;
}

TEST(TableCommand, PrintsEveryDigitThatASingleNeeds) {
    const std::string absolute = table({"--curve", "[0,0,1,1,0.25,1,0.75,0,2.2]"});
    EXPECT_EQ(line(absolute, 0), "0\t0.25\t0\t0");
    // 0.5 to the single nearest to 2.2, computed apart.
    EXPECT_EQ(line(absolute, 128), "128\t0.5\t0.217637628\t0.5");
    EXPECT_EQ(line(absolute, 256), "");
    EXPECT_EQ(table({"--curve", "[0]", "--samples", "3"}),
              "0\t0\t0\t0\n1\t0.333333343\t0.333333343\t0.333333343\n"
              "2\t0.666666687\t0.666666687\t0.666666687\n");
}

TEST(TableCommand, LaysACurveOverTheBaseThatItIsGiven) {
    // Slot 1 of 2 lies at position 0.5 of the base: half of each slot.
    EXPECT_EQ(table({"--curve", "[1]", "--samples", "2"}), "0\t0\t0\t0\n1\t0.5\t0.5\t0.5\n");
    const std::string base = fileWith("0\t0.25\t0.5\t1e-1\n1\t0.75\t1\t0.3\n");
    EXPECT_EQ(table({"--curve", "[1]", "--samples", "2", "--base", base}),
              "0\t0.25\t0.5\t0.100000001\n1\t0.5\t0.75\t0.200000003\n");
    // What it prints is what it reads.
    const std::string round = fileWith(table({"--curve", "[0,0.1,1.7,0.9]"}));
    EXPECT_EQ(line(table({"--curve", "[1]", "--base", round}), 0),
              line(table({"--curve", "[0,0.1,1.7,0.9]"}), 0));
    for (const char* bad :
         {"", "0\t1\t1\t1\n", "1\t0\t0\t0\n0\t0\t0\t0\n", "0\t0\t0\n1\t0\t0\t0\n",
          "0\t0\t0\t0\n1\t0\t0\t0\n2\t0\t0\t0\n", "0\t0\t0\t0\t0\n1\t0\t0\t0\n"}) {
        EXPECT_EQ(table({"--curve", "[1]", "--samples", "2", "--base", fileWith(bad)})[0], '1')
            << bad;
    }
}

TEST(TableCommand, TakesEveryKindOfFile) {
    const auto curve =
        TQExtendedGammaCurve::gammaCurveWithMasterBlack(0.5F, 1, 1, nullptr, nullptr, nullptr, 0);
    const PropertyValue dictionary = curve->gammaCurveDictionary();
    const std::string single = table({propertyListFile(dictionary)});
    EXPECT_EQ(line(single, 0), "0\t0.5\t0.5\t0.5");
    EXPECT_EQ(table({propertyListFile({{"Format", 1}, {"Screens", {{"1-2-3", dictionary}}}})}),
              single);
    const PropertyValue neutral = TQExtendedGammaCurve().gammaCurveDictionary();
    const std::string several =
        propertyListFile({{"Format", 1}, {"Screens", {{"1-2-3", neutral}, {"4-5-6", dictionary}}}});
    EXPECT_EQ(table({several, "--display", "4-5-6"}), single);
    EXPECT_EQ(table({several})[0], '1') << "which one?";
    EXPECT_EQ(table({several, "--display", "7-8-9"})[0], '1');
    // A "Format" that is no number makes it a curve, without any values of its own.
    EXPECT_EQ(line(table({propertyListFile({{"Format", "1"}})}), 255),
              "255\t0.99609375\t0.99609375\t0.99609375");
    EXPECT_EQ(line(table({fileWith(std::string(768, '\x40'))}), 200), "200\t0.25\t0.25\t0.25");
}

}  // namespace
}  // namespace tonquil
