// SPDX-License-Identifier: MIT
#include "app/Requests.h"

#include <algorithm>
#include <array>

#include "app/TQController.h"

namespace tonquil {

namespace {

struct RequestName {
    Request request;
    /// As an option; between processes without the dashes.
    std::string_view option;
    std::string_view help;
};

constexpr std::array<RequestName, 6> requestNames{{
    {Request::Reopen, "--reopen", ""},
    {Request::Toggle, "--toggle", "switch the correction on or off"},
    {Request::On, "--on", "switch the correction on"},
    {Request::Off, "--off", "switch it off: the displays' own calibration returns"},
    {Request::ShowPanel, "--show-panel", "show the panel"},
    {Request::Quit, "--quit", "end the program that runs; the correction stays"},
}};

std::string_view withoutDashes(const RequestName& name) {
    return name.option.substr(2);
}

const RequestName* findName(std::string_view word) {
    const auto* found = std::find_if(requestNames.begin(), requestNames.end(),
                                     [=](const auto& name) { return withoutDashes(name) == word; });
    return found == requestNames.end() ? nullptr : found;
}

tl::unexpected<Problem> unknown(std::string_view what) {
    std::string sentence = "Tonquil does not know \"";
    sentence += what;
    sentence += "\"; --help tells what it knows.";
    return problem(std::move(sentence));
}

}  // namespace

Result<CommandLine> readCommandLine(std::span<const char* const> arguments) {
    CommandLine line;
    for (std::size_t index = 0; index < arguments.size(); ++index) {
        const std::string_view argument = arguments[index];
        if (argument == "--help" || argument == "-h") {
            line.wantsHelp = true;
        } else if (argument == "--version") {
            line.wantsVersion = true;
        } else if (argument == "-session") {
            // A session manager starts programs so, with its own name for them.
            ++index;
        } else if (const RequestName* name =
                       argument.starts_with("--") ? findName(argument.substr(2)) : nullptr) {
            line.requests.push_back(name->request);
        } else {
            return unknown(argument);
        }
    }
    if (line.requests.empty()) {
        line.requests.push_back(Request::Reopen);
    }
    return line;
}

std::string commandLineHelp() {
    std::string text =
        "Usage: tonquil [OPTION]...\n"
        "Correct the tone and colour of every display.\n\n"
        "Started while it runs, the program passes the options on to the one that runs:\n\n";
    constexpr std::size_t column = 16;
    const auto addOption = [&text](std::string_view option, std::string_view help) {
        text += "  ";
        text += option;
        text.append(column - option.size(), ' ');
        text += help;
        text += '\n';
    };
    for (const RequestName& name : requestNames) {
        if (!name.help.empty()) {
            addOption(name.option, name.help);
        }
    }
    addOption("--help", "show this text");
    addOption("--version", "show the version");
    text +=
        "\nWithout an option it shows its panel, or toggles the correction where the\n"
        "preferences say so.\n";
    return text;
}

std::string textFromRequests(const std::vector<Request>& requests) {
    std::string text;
    for (const Request request : requests) {
        const auto* name =
            std::find_if(requestNames.begin(), requestNames.end(),
                         [=](const auto& candidate) { return candidate.request == request; });
        text += withoutDashes(*name);
        text += '\n';
    }
    return text;
}

Result<std::vector<Request>> requestsFromText(std::string_view text) {
    std::vector<Request> requests;
    while (!text.empty()) {
        const std::string_view word = text.substr(0, text.find('\n'));
        const RequestName* name = findName(word);
        if (name == nullptr) {
            return unknown(word);
        }
        requests.push_back(name->request);
        text.remove_prefix(std::min(word.size() + 1, text.size()));
    }
    return requests;
}

void carryOut(const std::vector<Request>& requests, TQController& controller) {
    for (const Request request : requests) {
        switch (request) {
            case Request::Reopen:
                controller.applicationShouldHandleReopen();
                break;
            case Request::Toggle:
                controller.toggleApplyCorrection();
                break;
            case Request::On:
                controller.setApplyCorrection(true);
                break;
            case Request::Off:
                controller.setApplyCorrection(false);
                break;
            case Request::ShowPanel:
                controller.showPanel();
                break;
            case Request::Quit:
                controller.quit();
                break;
        }
    }
}

}  // namespace tonquil
