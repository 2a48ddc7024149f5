// SPDX-License-Identifier: MIT
#include "platform/xdg/DesktopEntry.h"

#include <algorithm>
#include <cstddef>

#include "files/BoundedFile.h"

namespace tonquil {

namespace {

constexpr std::size_t mostBytes = 65536;
constexpr std::string_view blanks = " \t\r";

std::string_view trimmed(std::string_view text) {
    const std::size_t start = text.find_first_not_of(blanks);
    return start == std::string_view::npos
               ? std::string_view()
               : text.substr(start, text.find_last_not_of(blanks) - start + 1);
}

std::string unescaped(std::string_view text) {
    std::string plain;
    for (std::size_t index = 0; index < text.size(); ++index) {
        if (text[index] != '\\' || index + 1 == text.size()) {
            plain += text[index];
            continue;
        }
        ++index;
        constexpr std::string_view letters = "sntr\\";
        constexpr std::string_view meanings = " \n\t\r\\";
        const std::size_t letter = letters.find(text[index]);
        if (letter == std::string_view::npos) {
            plain += '\\';
            plain += text[index];
        } else {
            plain += meanings[letter];
        }
    }
    return plain;
}

}  // namespace

Result<DesktopEntry> DesktopEntry::read(const std::filesystem::path& file) {
    return readBoundedFile(file, mostBytes).map([](const auto& bytes) {
        return parse(std::string(bytes.begin(), bytes.end()));
    });
}

DesktopEntry DesktopEntry::parse(std::string_view text) {
    DesktopEntry entry;
    bool isInGroup = false;
    while (!text.empty()) {
        const std::size_t end = text.find('\n');
        const std::string_view line = trimmed(text.substr(0, end));
        text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
        const std::size_t equals = line.find('=');
        if (line.starts_with('[')) {
            isInGroup = line == "[Desktop Entry]";
        } else if (isInGroup && !line.starts_with('#') && equals != std::string_view::npos) {
            entry._values.try_emplace(std::string(trimmed(line.substr(0, equals))),
                                      trimmed(line.substr(equals + 1)));
        }
    }
    return entry;
}

std::string DesktopEntry::value(const std::string& key) const {
    const auto found = _values.find(key);
    return found == _values.end() ? std::string() : unescaped(found->second);
}

std::string DesktopEntry::localizedValue(const std::string& key, std::string_view locale) const {
    // language[_COUNTRY][.ENCODING][@MODIFIER]
    const std::size_t at = locale.find('@');
    const std::string modifier(at == std::string_view::npos ? "" : locale.substr(at));
    const std::string_view place = locale.substr(0, std::min(locale.find('.'), at));
    const std::string country(place);
    const std::string language(place.substr(0, place.find('_')));
    for (const std::string& each : {country + modifier, country, language + modifier, language}) {
        if (std::string text = value(key + "[" + each + "]"); !text.empty()) {
            return text;
        }
    }
    return value(key);
}

bool DesktopEntry::boolValue(const std::string& key, bool otherwise) const {
    const std::string text = value(key);
    return text == "true" || (text != "false" && otherwise);
}

// A backslash is doubled twice over: for the argument's quotes, and for the value as a whole.
std::string DesktopEntry::quotedArgument(std::string_view argument) {
    std::string text = "\"";
    for (const char c : argument) {
        switch (c) {
            case '"':
            case '`':
            case '$':
                text += "\\\\";
                text += c;
                break;
            case '\\':
                text += "\\\\\\\\";
                break;
            case '%':
                text += "%%";
                break;
            case '\n':
                text += "\\n";
                break;
            case '\r':
                text += "\\r";
                break;
            case '\t':
                text += "\\t";
                break;
            default:
                text += c;
        }
    }
    text += '"';
    return text;
}

}  // namespace tonquil
