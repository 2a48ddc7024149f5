// SPDX-License-Identifier: MIT
#include "cli/Arguments.h"

#include <getopt.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <string_view>
#include <utility>

#include "model/GammaTable.h"

namespace tonquil {

namespace {

std::string inQuotes(std::string_view text) {
    std::string result = "\"";
    result.append(text).append("\"");
    return result;
}

struct CommandForm {
    std::string_view name;
    Arguments::Command command;
    /// The letters of the accepted options; see `options`.
    std::string_view options;
    /// Positional arguments in order: h host, i reference ID, f file. Upper case means optional; an
    /// F is a file with a curve, which can be given in other ways too.
    std::string_view operands;
};

constexpr std::array commandForms{
    CommandForm{"displays", Arguments::Command::displays, "j", ""},
    CommandForm{"apply", Arguments::Command::apply, "dcop", "F"},
    CommandForm{"restore", Arguments::Command::restore, "d", ""},
    CommandForm{"read", Arguments::Command::read, "dw", ""},
    CommandForm{"table", Arguments::Command::table, "dcnb", "F"},
    CommandForm{"export", Arguments::Command::exportTable, "df", "f"},
    CommandForm{"fit", Arguments::Command::fit, "d", "f"},
    CommandForm{"remote scan", Arguments::Command::remoteScan, "jta", ""},
    CommandForm{"remote get", Arguments::Command::remoteGet, "", "hI"},
    CommandForm{"remote set", Arguments::Command::remoteSet, "ck", "hiF"},
    CommandForm{"remote watch", Arguments::Command::remoteWatch, "", "h"},
};

constexpr std::array<option, 16> options{{{"json", no_argument, nullptr, 'j'},
                                          {"display", required_argument, nullptr, 'd'},
                                          {"curve", required_argument, nullptr, 'c'},
                                          {"hardware", no_argument, nullptr, 'w'},
                                          {"hold", no_argument, nullptr, 'o'},
                                          {"samples", required_argument, nullptr, 'n'},
                                          {"base", required_argument, nullptr, 'b'},
                                          {"timeout", required_argument, nullptr, 't'},
                                          {"address", required_argument, nullptr, 'a'},
                                          {"content", required_argument, nullptr, 'k'},
                                          {"preset", required_argument, nullptr, 'p'},
                                          {"format", required_argument, nullptr, 'f'},
                                          {"help", no_argument, nullptr, 'h'},
                                          {"version", no_argument, nullptr, 'V'},
                                          {nullptr, 0, nullptr, 0}}};

Result<std::uint32_t> sampleCount(std::string_view text) {
    std::uint32_t count = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), count);
    if (error != std::errc() || end != text.data() + text.size() || count < 1 ||
        count > GammaTable::capacity) {
        return problem("--samples takes a whole number from 1 to 256, not " + inQuotes(text) + ".");
    }
    return count;
}

Result<std::chrono::milliseconds> timeoutFrom(std::string_view text) {
    constexpr double longest = 3600;
    double seconds = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), seconds);
    if (error != std::errc() || end != text.data() + text.size() ||
        !(seconds > 0 && seconds <= longest)) {
        return problem("--timeout takes a number of seconds up to 3600, not " + inQuotes(text) +
                       ".");
    }
    return std::chrono::ceil<std::chrono::milliseconds>(std::chrono::duration<double>(seconds));
}

bool isContent(std::string_view text) {
    return text == "colorTargets" || text == "grayscaleTargets" || text == "transparent";
}

Result<ExportFormat> formatFrom(std::string_view text) {
    constexpr std::array<std::pair<std::string_view, ExportFormat>, 3> formats{
        {{"icc", ExportFormat::Icc}, {"cal", ExportFormat::Cal}, {"table", ExportFormat::Table}}};
    const auto* const found =
        std::ranges::find(formats, text, [](const auto& each) { return each.first; });
    if (found == formats.end()) {
        return problem("--format is icc, cal or table, not " + inQuotes(text) + ".");
    }
    return found->second;
}

/// Parses one option of the remote commands.
std::optional<Problem> takeRemote(int letter, Arguments& arguments) {
    if (letter == 'a') {
        arguments.host = optarg;
    } else if (letter == 'k') {
        if (!isContent(optarg)) {
            return Problem{"--content is colorTargets, grayscaleTargets or transparent, not " +
                               inQuotes(optarg) + ".",
                           {}};
        }
        arguments.content = optarg;
    } else {
        const auto timeout = timeoutFrom(optarg);
        if (!timeout) {
            return timeout.error();
        }
        arguments.timeout = *timeout;
    }
    return std::nullopt;
}

/// Parses one option; returns a problem if the command does not accept it.
std::optional<Problem> take(int letter, const CommandForm& form, Arguments& arguments) {
    if (letter != 'h' && letter != 'V' &&
        form.options.find(static_cast<char>(letter)) == std::string_view::npos) {
        const auto* const known = std::find_if(
            options.begin(), options.end(), [=](const option& each) { return each.val == letter; });
        return Problem{
            "--" + std::string(known->name) + " is not an option of " + inQuotes(form.name) + ".",
            {}};
    }
    switch (letter) {
        case 'j':
            arguments.json = true;
            break;
        case 'w':
            arguments.hardware = true;
            break;
        case 'o':
            arguments.hold = true;
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
        case 'p':
            arguments.preset = optarg;
            break;
        case 'f': {
            const auto format = formatFrom(optarg);
            if (!format) {
                return format.error();
            }
            arguments.format = *format;
            break;
        }
        case 'a':
        case 'k':
        case 't':
            return takeRemote(letter, arguments);
        case 'V':
            arguments.command = Arguments::Command::version;
            break;
        default:
            arguments.command = Arguments::Command::help;
            break;
    }
    return std::nullopt;
}

std::optional<Problem> takeOperands(const CommandForm& form, int argc, char* const* argv,
                                    Arguments& arguments) {
    for (const char operand : form.operands) {
        if (optind >= argc) {
            if (operand == 'F' || operand == 'I') {
                break;
            }
            return Problem{inQuotes(form.name) + (operand == 'h'   ? " needs a host."
                                                  : operand == 'f' ? " needs a file."
                                                                   : " needs a reference ID."),
                           {}};
        }
        auto& taken = operand == 'h'                     ? arguments.host
                      : operand == 'f' || operand == 'F' ? arguments.file
                                                         : arguments.referenceID;
        taken = argv[optind++];
    }
    if (optind < argc) {
        return Problem{inQuotes(argv[optind]) + " is one argument too many.", {}};
    }
    return std::nullopt;
}

/// Checks that a curve is given if required, and only one.
std::optional<Problem> checkCurve(const CommandForm& form, const Arguments& arguments) {
    if (form.operands.find('F') == std::string_view::npos) {
        return std::nullopt;
    }
    const bool mayHaveNone =
        form.command == Arguments::Command::remoteSet && arguments.content.has_value();
    const int given =
        (arguments.file ? 1 : 0) + (arguments.curve ? 1 : 0) + (arguments.preset ? 1 : 0);
    if (given == 0 && form.command == Arguments::Command::remoteSet && !mayHaveNone) {
        return Problem{inQuotes(form.name) + " needs a file, --curve or --content.", {}};
    }
    if (given > 1 || (given == 0 && !mayHaveNone)) {
        return Problem{inQuotes(form.name) + (form.command == Arguments::Command::apply
                                                  ? " takes either a file, --curve or --preset."
                                                  : " takes either a file or --curve."),
                       {}};
    }
    return std::nullopt;
}

/// The form named by the first words, and how many words that took; null if there is none.
std::pair<const CommandForm*, int> formFor(int argc, char* const* argv) {
    std::string name = argv[1];
    int words = 1;
    if (name == "remote" && argc > 2) {
        name.append(" ").append(argv[2]);
        words = 2;
    }
    const auto* const form = std::ranges::find(commandForms, name, &CommandForm::name);
    const bool isQuoted = std::string_view(argv[1]).find(' ') != std::string_view::npos;
    return {form == commandForms.end() || isQuoted ? nullptr : form, words};
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
    const auto [form, words] = formFor(argc, argv);
    if (form == nullptr) {
        if (name == "remote") {
            return problem("\"remote\" is followed by scan, get, set or watch.");
        }
        return problem(inQuotes(name) + " is not a command.");
    }
    arguments.command = form->command;
    opterr = 0;
    optind = words + 1;
    for (int letter = 0; (letter = getopt_long(argc, argv, ":h", options.data(), nullptr)) != -1;) {
        if (letter == '?' || letter == ':') {
            // In a cluster of short options only the letter identifies the option.
            const std::string_view word = argv[optind - 1];
            const std::string culprit = optopt != 0 && !word.starts_with("--")
                                            ? std::string("-") + static_cast<char>(optopt)
                                            : std::string(word);
            return problem(letter == '?' ? inQuotes(culprit) + " is not an option."
                                         : culprit + " needs a value.");
        }
        if (auto wrong = take(letter, *form, arguments)) {
            return tl::unexpected(std::move(*wrong));
        }
        if (letter == 'h' || letter == 'V') {
            return arguments;
        }
    }
    if (auto wrong = takeOperands(*form, argc, argv, arguments)) {
        return tl::unexpected(std::move(*wrong));
    }
    if (auto wrong = checkCurve(*form, arguments)) {
        return tl::unexpected(std::move(*wrong));
    }
    return arguments;
}

}  // namespace tonquil
