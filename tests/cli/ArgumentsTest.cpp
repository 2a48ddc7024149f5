// SPDX-License-Identifier: MIT
#include "cli/Arguments.h"

#include <gtest/gtest.h>

#include <iterator>
#include <sstream>

namespace tonquil {
namespace {

Result<Arguments> parsed(std::vector<std::string> words) {
    words.insert(words.begin(), "tonquilctl");
    std::vector<char*> argv;
    argv.reserve(words.size() + 1);
    for (std::string& word : words) {
        argv.push_back(word.data());
    }
    argv.push_back(nullptr);
    return parseArguments(static_cast<int>(words.size()), argv.data());
}

TEST(Arguments, AreUnderstoodInAnyOrder) {
    const auto apply = parsed({"apply", "--display", "1-2-3", "file", "--display=4-5-6"});
    ASSERT_TRUE(apply);
    EXPECT_EQ(apply->command, Arguments::Command::apply);
    EXPECT_EQ(apply->displays, (std::vector<std::string>{"1-2-3", "4-5-6"}));
    EXPECT_EQ(apply->file, "file");

    const auto table = parsed({"table", "--samples", "17", "--curve", "[0]", "--base", "b"});
    ASSERT_TRUE(table);
    EXPECT_EQ(table->samples, 17U);
    EXPECT_EQ(table->curve, "[0]");
    EXPECT_EQ(table->base, "b");

    const auto set = parsed({"remote", "set", "--content", "transparent", "host", "1-2-3", "file"});
    ASSERT_TRUE(set);
    EXPECT_EQ(set->command, Arguments::Command::remoteSet);
    EXPECT_EQ(set->host, "host");
    EXPECT_EQ(set->referenceID, "1-2-3");
    EXPECT_EQ(set->file, "file");
    EXPECT_EQ(parsed({"remote", "get", "host"})->referenceID, std::nullopt);
    EXPECT_EQ(parsed({"remote", "scan", "--timeout", "0.25"})->timeout.count(), 250);

    EXPECT_EQ(parsed({"apply", "--", "--file"})->file, "--file");
    EXPECT_EQ(parsed({"read", "--help"})->command, Arguments::Command::help);
    EXPECT_EQ(parsed({"--version"})->command, Arguments::Command::version);
}

TEST(Arguments, ThatMakeNoSenseAreRefused) {
    const std::string refused =
        ";frobnicate;displays file;displays --hardware;read --json;read --display;apply;"
        "apply one two;apply file --curve [0];apply file --samples 3;restore --nonsense;"
        "table --curve [0] --samples 0;table --curve [0] --samples 257;"
        "table --curve [0] --samples 12x;table --curve [0] --samples -1;remote;"
        "remote frobnicate;remote scan host;remote scan --timeout 0;remote scan --timeout nan;"
        "remote scan --timeout 3601;remote get;remote get host 1-2-3 more;"
        "remote set host --curve [0];remote set host 1-2-3;"
        "remote set host 1-2-3 file --curve [0];remote set host 1-2-3 --content color;"
        "remote watch;remote watch host --json";
    std::istringstream lines(refused);
    for (std::string line; std::getline(lines, line, ';');) {
        std::istringstream text(line);
        const std::vector<std::string> words(std::istream_iterator<std::string>(text), {});
        EXPECT_FALSE(parsed(words)) << line;
    }
}

}  // namespace
}  // namespace tonquil
