// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>
#include <sstream>

#include "cli/Arguments.h"
#include "model/TQExtendedGammaCurve.h"
#include "tests/cli/ControlProgram.h"
#include "tests/support/RampReader.h"
#include "tests/support/XServer.h"

namespace tonquil {
namespace {

using testing::HasSubstr;
using testing::StartsWith;

/// Parses space-separated arguments.
Result<Arguments> parsed(const std::string& line) {
    std::istringstream text("tonquilctl " + line);
    std::vector<std::string> words(std::istream_iterator<std::string>(text), {});
    std::vector<char*> argv;
    argv.reserve(words.size() + 1);
    for (std::string& word : words) {
        argv.push_back(word.data());
    }
    argv.push_back(nullptr);
    return parseArguments(static_cast<int>(words.size()), argv.data());
}

TEST(Arguments, ParseInAnyOrder) {
    const auto apply = parsed("apply --display 1-2-3 file --display=4-5-6");
    ASSERT_TRUE(apply);
    EXPECT_EQ(apply->displays, (std::vector<std::string>{"1-2-3", "4-5-6"}));
    EXPECT_EQ(apply->file, "file");
    const auto set = parsed("remote set --content transparent host 1-2-3 file");
    ASSERT_TRUE(set);
    EXPECT_EQ(set->command, Arguments::Command::remoteSet);
    EXPECT_EQ(set->host, "host");
    EXPECT_EQ(set->referenceID, "1-2-3");
    EXPECT_EQ(set->file, "file");
    EXPECT_EQ(parsed("remote get host")->referenceID, std::nullopt);
    EXPECT_EQ(parsed("remote scan --timeout 0.25")->timeout.count(), 250);
    EXPECT_EQ(parsed("apply -- --file")->file, "--file");
    EXPECT_EQ(parsed("read --help")->command, Arguments::Command::help);
}

TEST(Arguments, RefuseInvalidCombinations) {
    std::istringstream lines(
        ";frobnicate;displays file;displays --hardware;read --json;read --display;apply;"
        "apply one two;apply file --curve [0];apply file --samples 3;restore --nonsense;"
        "table --curve [0] --samples 0;table --curve [0] --samples 257;"
        "table --curve [0] --samples 12x;remote;remote frobnicate;remote scan --timeout 0;"
        "remote scan --timeout nan;remote scan --timeout 3601;remote get;"
        "remote get host 1-2-3 more;remote set host --curve [0];remote set host 1-2-3;"
        "remote set host 1-2-3 file --curve [0];remote set host 1-2-3 --content color;"
        "remote watch;remote watch host --json;export;export --format png file;fit;"
        "apply file --preset name;table --preset name");
    for (std::string line; std::getline(lines, line, ';');) {
        EXPECT_FALSE(parsed(line)) << line;
    }
}

/// The command's output, or its exit status.
std::string table(std::vector<std::string> arguments) {
    arguments.insert(arguments.begin(), "table");
    const ProcessResult result = tonquilctl("", arguments);
    return result.exitStatus == 0 ? result.standardOutput : std::to_string(result.exitStatus);
}

TEST(TableCommand, PrintsAllDigitsOfAFloat) {
    const std::string absolute = table({"--curve", "[0,0,1,1,0.25,1,0.75,0,2.2]"});
    EXPECT_THAT(absolute, StartsWith("0\t0.25\t0\t0\n"));
    // 0.5 to the power of the float nearest to 2.2, computed independently.
    EXPECT_THAT(absolute, HasSubstr("\n128\t0.5\t0.217637628\t0.5\n"));
    EXPECT_EQ(std::ranges::count(absolute, '\n'), 256);
}

TEST(TableCommand, AppliesCurveOverGivenBase) {
    // Slot 1 of 2 is at position 0.5 of the base: half of each slot.
    EXPECT_EQ(table({"--curve", "[1]", "--samples", "2"}), "0\t0\t0\t0\n1\t0.5\t0.5\t0.5\n");
    const std::string base = fileWith("0\t0.25\t0.5\t1e-1\n1\t0.75\t1\t0.3\n");
    EXPECT_EQ(table({"--curve", "[1]", "--samples", "2", "--base", base}),
              "0\t0.25\t0.5\t0.100000001\n1\t0.5\t0.75\t0.200000003\n");
    for (const char* bad :
         {"0\t1\t1\t1\n", "1\t0\t0\t0\n0\t0\t0\t0\n", "0\t0\t0\n1\t0\t0\t0\n",
          "0\t0\t0\t0\n1\t0\t0\t0\n2\t0\t0\t0\n", "0\t0\t0\t0\t0\n1\t0\t0\t0\n"}) {
        EXPECT_EQ(table({"--curve", "[1]", "--samples", "2", "--base", fileWith(bad)}), "1") << bad;
    }
}

TEST(TableCommand, ReadsOnlyUnambiguousCurves) {
    const PropertyValue neutral = TQExtendedGammaCurve().gammaCurveDictionary();
    PropertyValue half = neutral;
    half["v4-MasterBlack"] = 0.5;
    half["BlendingMode"] = 0;
    const std::string single = table({propertyListFile(half)});
    EXPECT_THAT(single, StartsWith("0\t0.5\t0.5\t0.5\n"));
    EXPECT_EQ(table({propertyListFile({{"Format", 1}, {"Screens", {{"1-2-3", half}}}})}), single);
    const std::string several =
        propertyListFile({{"Format", 1}, {"Screens", {{"1-2-3", neutral}, {"4-5-6", half}}}});
    EXPECT_EQ(table({several, "--display", "4-5-6"}), single);
    EXPECT_EQ(table({several}), "1") << "which one?";
}

/// One clear line, exit status 1.
void expectFailure(const ProcessResult& result) {
    EXPECT_EQ(result.exitStatus, 1);
    EXPECT_EQ(result.standardOutput, "");
    EXPECT_EQ(std::ranges::count(result.standardError, '\n'), 1) << result.standardError;
    EXPECT_TRUE(result.standardError.starts_with("tonquilctl: ")) << result.standardError;
}

TEST(Failures, OfXServerPrintOneLine) {
    expectFailure(tonquilctl("", {"apply", "--curve", "[1]"}));
    expectFailure(tonquilctl(":987", {"displays"}));
    const auto server =
        XServer::start({.arguments = {"-extension", "RANDR"}, .framebufferOnly = true}).value();
    expectFailure(tonquilctl(server->display(), {"restore"}));
    const ProcessResult nowhere =
        run({.command = {"sh", "-c", TONQUILCTL " --help >/dev/full"}}).value();
    EXPECT_EQ(nowhere.exitStatus, 1) << "output that is lost is a failure";
}

TEST(Failures, OfInputChangeNoDisplay) {
    const auto server = XServer::start().value();
    const RampReader reader = RampReader::connect(server->display()).value();
    const Ramp before = reader.read("DUMMY0").value();
    const PropertyValue noCurve = PropertyValue::object();
    const std::vector<std::vector<std::string>> rows{
        {"apply", "/nowhere/at/all"},
        {"apply", fileWith(std::string(767, 'x'))},
        // Long enough for raw tables, but they start like something else.
        {"apply", fileWith("<?xml version=\"1.0\"?>" + std::string(2'000, ' '))},
        {"apply", fileWith("bplist00" + std::string(2'000, '\1'))},
        {"apply", fileWith("<plist><array>" + std::string(700, ' ') + "</array></plist>")},
        {"apply", propertyListFile({{"Format", 1}})},
        {"apply", propertyListFile({{"Format", 1}, {"Screens", {{"9-9-9", noCurve}}}})},
        {"apply", "--curve", "[2]"},
        {"apply", "--curve", "[0,[0]]"},
        {"apply", "--curve", "0,0"},
        {"apply", "--curve", "[1]", "--display", "9-9-9"},
        {"restore", "--display", "9-9-9"},
        {"read", "--display", "9-9-9"}};
    for (const auto& arguments : rows) {
        SCOPED_TRACE(testing::PrintToString(arguments));
        expectFailure(tonquilctl(server->display(), arguments));
        EXPECT_EQ(reader.read("DUMMY0").value(), before);
    }
    EXPECT_EQ(tonquilctl(server->display(), {"apply"}).exitStatus, 2);
}

}  // namespace
}  // namespace tonquil
