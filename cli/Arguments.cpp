// SPDX-License-Identifier: MIT
#include "cli/Arguments.h"

#include <getopt.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <string_view>

#include "model/GammaTable.h"

namespace tonquil {

namespace {

std::string quoted(std::string_view text) {
    std::string result = "\"";
    result.append(text).append("\"");
    return result;
}

struct CommandForm {
    std::string_view name;
    Arguments::Command command;
    /// The letters of the options that it takes; see `options`.
    std::string_view options;
    bool takesFile;
};

constexpr std::array commandForms{
    CommandForm{"displays", Arguments::Command::displays, "j", false},
    CommandForm{"apply", Arguments::Command::apply, "dc", true},
    CommandForm{"restore", Arguments::Command::restore, "d", false},
    CommandForm{"read", Arguments::Command::read, "dw", false},
    CommandForm{"table", Arguments::Command::table, "dcnb", true},
};

constexpr std::array<option, 10> options{{{"json", no_argument, nullptr, 'j'},
                                          {"display", required_argument, nullptr, 'd'},
                                          {"curve", required_argument, nullptr, 'c'},
                                          {"hardware", no_argument, nullptr, 'w'},
                                          {"samples", required_argument, nullptr, 'n'},
                                          {"base", required_argument, nullptr, 'b'},
                                          {"help", no_argument, nullptr, 'h'},
                                          {"version", no_argument, nullptr, 'V'},
                                          {nullptr, 0, nullptr, 0}}};

Result<std::uint32_t> sampleCount(std::string_view text) {
    std::uint32_t count = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), count);
    if (error != std::errc() || end != text.data() + text.size() || count < 1 ||
        count > GammaTable::capacity) {
        return problem("--samples takes a whole number from 1 to 256, not " + quoted(text) + ".");
    }
    return count;
}

/// Notes one option; the text of the problem if it has no sense here.
std::optional<Problem> take(int letter, const CommandForm& form, Arguments& arguments) {
    if (letter != 'h' && letter != 'V' &&
        form.options.find(static_cast<char>(letter)) == std::string_view::npos) {
        const auto* const known = std::find_if(
            options.begin(), options.end(), [=](const option& each) { return each.val == letter; });
        return Problem{
            "--" + std::string(known->name) + " is not an option of " + quoted(form.name) + ".",
            {}};
    }
    switch (letter) {
        case 'j':
            arguments.json = true;
            break;
        case 'w':
            arguments.hardware = true;
            break;
        case 'd':
            arguments.displays.emplace_back(optarg);
            break;
        case 'c':
            arguments.curve = optarg;
            break;
        case 'b':
            arguments.base = optarg;
            break;
        case 'n': {
            const auto count = sampleCount(optarg);
            if (!count) {
                return count.error();
            }
            arguments.samples = *count;
            break;
        }
        case 'V':
            arguments.command = Arguments::Command::version;
            break;
        default:
            arguments.command = Arguments::Command::help;
            break;
    }
    return std::nullopt;
}

std::optional<Problem> takeFile(const CommandForm& form, int argc, char* const* argv,
                                Arguments& arguments) {
    const int files = argc - optind;
    if (files > (form.takesFile ? 1 : 0)) {
        return Problem{
            quoted(argv[optind + (form.takesFile ? 1 : 0)]) + " is one argument too many.", {}};
    }
    if (files == 1) {
        arguments.file = argv[optind];
    }
    if (form.takesFile && arguments.file.has_value() == arguments.curve.has_value()) {
        return Problem{quoted(form.name) + " takes either a file or --curve.", {}};
    }
    return std::nullopt;
}

}  // namespace

Result<Arguments> parseArguments(int argc, char* const* argv) {
    if (argc < 2) {
        return problem("What should it do? Say a command.");
    }
    const std::string_view name = argv[1];
    Arguments arguments;
    if (name == "--help" || name == "-h" || name == "help") {
        return arguments;
    }
    if (name == "--version" || name == "-V") {
        arguments.command = Arguments::Command::version;
        return arguments;
    }
    const auto* const form =
        std::find_if(commandForms.begin(), commandForms.end(),
                     [=](const CommandForm& each) { return each.name == name; });
    if (form == commandForms.end()) {
        return problem(quoted(name) + " is not a command.");
    }
    arguments.command = form->command;
    opterr = 0;
    optind = 2;
    for (int letter = 0; (letter = getopt_long(argc, argv, ":h", options.data(), nullptr)) != -1;) {
        if (letter == '?' || letter == ':') {
            // In a cluster of short options only the letter tells which one it was.
            const std::string_view word = argv[optind - 1];
            const std::string culprit = optopt != 0 && !word.starts_with("--")
                                            ? std::string("-") + static_cast<char>(optopt)
                                            : std::string(word);
            return problem(letter == '?' ? quoted(culprit) + " is not an option."
                                         : culprit + " needs a value.");
        }
        if (auto wrong = take(letter, *form, arguments)) {
            return tl::unexpected(std::move(*wrong));
        }
        if (letter == 'h' || letter == 'V') {
            return arguments;
        }
    }
    if (auto wrong = takeFile(*form, argc, argv, arguments)) {
        return tl::unexpected(std::move(*wrong));
    }
    return arguments;
}

}  // namespace tonquil
