// SPDX-License-Identifier: MIT
#include <iostream>
#include <string>
#include <string_view>

#include "cli/Arguments.h"
#include "cli/Commands.h"
#include "platform/choice/DisplayServiceChoice.h"

namespace {

constexpr int failed = 1;
constexpr int wrongUsage = 2;

void say(std::string_view line) {
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
    // A failure is explained in one line, so what the service logs becomes part of it. Without a
    // failure it is about displays that nothing was asked of.
    std::string logged;
    const auto log = [&](std::string_view line) { logged = line; };
    const auto openDisplays = [&] { return tonquil::chooseDisplayService(nullptr, log); };
    const auto result = tonquil::runCommand(*arguments, openDisplays, std::cout, std::cerr);
    if (!result) {
        const auto& [sentence, ownDetail] = result.error();
        const std::string& detail = ownDetail.empty() ? logged : ownDetail;
        const bool isSaid = sentence.find(detail) != std::string::npos;
        say(isSaid ? sentence : sentence + " (" + detail + ")");
        return failed;
    }
    if (!std::cout.flush()) {
        say("The output could not be written.");
        return failed;
    }
    return 0;
}
