// SPDX-License-Identifier: MIT
#include <algorithm>
#include <cctype>
#include <iostream>
#include <sstream>
#include <string>
#include <string_view>

#include "cli/Arguments.h"
#include "cli/Commands.h"
#include "platform/choice/DisplayServiceChoice.h"

namespace {

constexpr int failed = 1;
constexpr int wrongUsage = 2;

/// One line, whatever the names of files and displays have in them.
void say(std::string line) {
    std::ranges::replace_if(
        line, [](unsigned char c) { return std::iscntrl(c) != 0; }, '?');
    std::cerr << "tonquilctl: " << line << '\n';
}

}  // namespace

int main(int argc, char** argv) {
    std::ios::sync_with_stdio(false);
    const auto arguments = tonquil::parseArguments(argc, argv);
    if (!arguments) {
        say(arguments.error().sentence + " Try \"tonquilctl --help\".");
        return wrongUsage;
    }
    std::string logged;
    std::ostringstream notes;
    const auto log = [&](std::string_view line) { logged = line; };
    const auto result = tonquil::runCommand(
        *arguments, {.openDisplays = [&] { return tonquil::chooseDisplayService(nullptr, log); },
                     .logged = logged,
                     .out = std::cout,
                     .notes = notes});
    if (!result) {
        const auto& [sentence, detail] = result.error();
        say(detail.empty() ? sentence : sentence + " (" + detail + ")");
        return failed;
    }
    std::cerr << notes.str();
    if (!std::cout.flush()) {
        say("The output could not be written.");
        return failed;
    }
    return 0;
}
