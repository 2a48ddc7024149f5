// SPDX-License-Identifier: MIT
#include "app/Requests.h"

#include <algorithm>
#include <array>

#include "app/TQController.h"

namespace tonquil {

namespace {

struct RequestName {
    Request::Kind kind;
    /// As a command-line option; between processes without the dashes.
    std::string_view option;
    std::string_view help;
};

constexpr std::array<RequestName, 7> requestNames{{
    {Request::Kind::Reopen, "--reopen", ""},
    {Request::Kind::Toggle, "--toggle", "switch the correction on or off"},
    {Request::Kind::On, "--on", "switch the correction on"},
    {Request::Kind::Off, "--off", "switch it off: the displays' own calibration returns"},
    {Request::Kind::ShowPanel, "--show-panel", "show the panel"},
    {Request::Kind::Preferences, "--preferences", "show the preferences"},
    {Request::Kind::Quit, "--quit", "end the program that runs; the correction stays"},
}};
/// Followed by a file name.
constexpr std::string_view openWord = "open ";
/// Followed by the name of a preset.
constexpr std::string_view presetWord = "preset ";
/// Between processes without the dashes, and followed by a display's reference ID or nothing.
struct TargetWord {
    std::optional<TargetKind> kind;
    std::string_view option;
};
constexpr std::array<TargetWord, 3> targetWords{{
    {std::nullopt, "--targets"},
    {TargetKind::Color, "--targets=color"},
    {TargetKind::Grayscale, "--targets=grayscale"},
}};

std::string_view withoutDashes(const RequestName& name) {
    return name.option.substr(2);
}

const RequestName* findName(std::string_view word) {
    const auto* found = std::find_if(requestNames.begin(), requestNames.end(),
                                     [=](const auto& name) { return withoutDashes(name) == word; });
    return found == requestNames.end() ? nullptr : found;
}

/// Finds the target option for a word, with its dashes or, as between processes, without.
const TargetWord* findTarget(std::string_view word, std::size_t dashes) {
    const auto* found =
        std::find_if(targetWords.begin(), targetWords.end(),
                     [=](const auto& target) { return target.option.substr(dashes) == word; });
    return found == targetWords.end() ? nullptr : found;
}

constexpr std::string_view escapedLineEnd = "%n";
constexpr std::string_view escapedPercent = "%p";

/// Escapes newlines, which would end the request.
std::string escaped(std::string_view name) {
    std::string text;
    for (const char c : name) {
        if (c == '\n') {
            text += escapedLineEnd;
        } else if (c == '%') {
            text += escapedPercent;
        } else {
            text += c;
        }
    }
    return text;
}

std::string unescaped(std::string_view text) {
    std::string name;
    while (!text.empty()) {
        if (text.starts_with(escapedLineEnd) || text.starts_with(escapedPercent)) {
            name += text.starts_with(escapedLineEnd) ? '\n' : '%';
            text.remove_prefix(escapedPercent.size());
        } else {
            name += text.front();
            text.remove_prefix(1);
        }
    }
    return name;
}

Request openRequest(std::string_view name) {
    std::error_code unknown;
    return {.kind = Request::Kind::Open, .file = std::filesystem::absolute(name, unknown)};
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
    bool areAllFiles = false;
    for (std::size_t index = 0; index < arguments.size(); ++index) {
        const std::string_view argument = arguments[index];
        if (areAllFiles || !argument.starts_with('-')) {
            line.requests.push_back(openRequest(argument));
        } else if (argument == "--") {
            areAllFiles = true;
        } else if (argument == "--help" || argument == "-h") {
            line.wantsHelp = true;
        } else if (argument == "--version") {
            line.wantsVersion = true;
        } else if (const TargetWord* target = findTarget(argument, 0)) {
            line.requests.push_back({.kind = Request::Kind::Targets, .target = target->kind});
        } else if (argument == "--display" && index + 1 < arguments.size() &&
                   !line.requests.empty() && line.requests.back().kind == Request::Kind::Targets) {
            ++index;
            line.requests.back().referenceID = arguments[index];
        } else if (argument == "--preset" && index + 1 < arguments.size()) {
            ++index;
            line.requests.push_back({.kind = Request::Kind::Preset, .preset = arguments[index]});
        } else if (argument == "-session") {
            // A session manager adds this option, with its own client ID, when it starts a program.
            ++index;
        } else if (const RequestName* name =
                       argument.starts_with("--") ? findName(argument.substr(2)) : nullptr) {
            line.requests.push_back({.kind = name->kind});
        } else {
            return unknown(argument);
        }
    }
    if (line.requests.empty()) {
        line.requests.emplace_back();
    }
    return line;
}

std::string commandLineHelp() {
    std::string text =
        "Usage: tonquil [OPTION]... [FILE]...\n"
        "Correct the tone and colour of every display.\n\n"
        "Files of settings are opened. Started while it runs, the program passes files and\n"
        "options on to the one that runs:\n\n";
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
    addOption("--targets", "show test patterns; --targets=color or =grayscale chooses them,");
    addOption("", "--display REFERENCE-ID after it covers that display with them");
    addOption("--preset NAME", "apply one of the presets");
    addOption("--", "what follows are files, whatever they begin with");
    addOption("--help", "show this text");
    addOption("--version", "show the version");
    text +=
        "\nWithout any it shows its panel if the correction is on, or toggles it where the\n"
        "preferences say so.\n";
    return text;
}

std::string textFromRequests(const std::vector<Request>& requests) {
    std::string text;
    for (const Request& request : requests) {
        if (request.kind == Request::Kind::Open) {
            text += openWord;
            text += escaped(request.file.native());
        } else if (request.kind == Request::Kind::Preset) {
            text += presetWord;
            text += escaped(request.preset);
        } else if (request.kind == Request::Kind::Targets) {
            const auto* target = std::find_if(
                targetWords.begin(), targetWords.end(),
                [&](const auto& candidate) { return candidate.kind == request.target; });
            text += target->option.substr(2);
            text += ' ';
            text += escaped(request.referenceID);
        } else if (request.kind == Request::Kind::Curves) {
            text += handedCurvesWord;
            text += textFromHandedCurves(request.curves);
        } else {
            const auto* name =
                std::find_if(requestNames.begin(), requestNames.end(),
                             [&](const auto& candidate) { return candidate.kind == request.kind; });
            text += withoutDashes(*name);
        }
        text += '\n';
    }
    return text;
}

Result<std::vector<Request>> requestsFromText(std::string_view text) {
    std::vector<Request> requests;
    while (!text.empty()) {
        const std::string_view word = text.substr(0, text.find('\n'));
        if (word.starts_with(openWord)) {
            requests.push_back(openRequest(unescaped(word.substr(openWord.size()))));
        } else if (word.starts_with(presetWord)) {
            requests.push_back({.kind = Request::Kind::Preset,
                                .preset = unescaped(word.substr(presetWord.size()))});
        } else if (word.starts_with(handedCurvesWord)) {
            auto curves = handedCurvesFromText(word.substr(handedCurvesWord.size()));
            if (!curves) {
                return tl::unexpected(std::move(curves.error()));
            }
            requests.push_back({.kind = Request::Kind::Curves, .curves = std::move(*curves)});
        } else if (const TargetWord* target = findTarget(word.substr(0, word.find(' ')), 2)) {
            requests.push_back({.kind = Request::Kind::Targets,
                                .target = target->kind,
                                .referenceID = unescaped(word.substr(
                                    std::min(word.size(), target->option.size() - 2 + 1)))});
        } else if (const RequestName* name = findName(word)) {
            requests.push_back({.kind = name->kind});
        } else {
            return unknown(word);
        }
        text.remove_prefix(std::min(word.size() + 1, text.size()));
    }
    return requests;
}

bool wantsEnd(const std::vector<Request>& requests) {
    return std::ranges::find(requests, Request{.kind = Request::Kind::Quit}) != requests.end();
}

std::string carryOut(const std::vector<Request>& requests, TQController& controller) {
    std::string undone;
    for (const Request& request : requests) {
        switch (request.kind) {
            case Request::Kind::Reopen:
                controller.applicationShouldHandleReopen();
                break;
            case Request::Kind::Toggle:
                controller.toggleApplyCorrection();
                break;
            case Request::Kind::On:
                controller.setApplyCorrection(true);
                break;
            case Request::Kind::Off:
                controller.setApplyCorrection(false);
                break;
            case Request::Kind::ShowPanel:
                controller.showPanel();
                break;
            case Request::Kind::Preferences:
                controller.openPreferences();
                break;
            case Request::Kind::Open:
                controller.openFile(request.file);
                break;
            case Request::Kind::Preset:
                controller.openPreset(request.preset);
                break;
            case Request::Kind::Targets:
                controller.showTarget(request.target, request.referenceID);
                break;
            case Request::Kind::Curves:
                if (const auto taken = controller.takeCurves(request.curves); !taken) {
                    undone = taken.error().sentence;
                }
                break;
            case Request::Kind::Quit:
                controller.quit();
                break;
        }
    }
    return undone;
}

}  // namespace tonquil
