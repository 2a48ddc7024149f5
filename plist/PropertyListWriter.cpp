// SPDX-License-Identifier: MIT
#include "plist/PropertyListWriter.h"

#include <string_view>
#include <utility>

#include "plist/Base64.h"
#include "plist/BudgetMeter.h"
#include "plist/NumberText.h"
#include "plist/Unicode.h"
#include "values/Utf8.h"

namespace tonquil {

namespace {

constexpr std::string_view head =
    "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
    "<!DOCTYPE plist PUBLIC \"-//Apple//DTD PLIST 1.0//EN\" "
    "\"http://www.apple.com/DTDs/PropertyList-1.0.dtd\">\n"
    "<plist version=\"1.0\">\n";
constexpr std::string_view tail = "</plist>\n";
constexpr std::size_t dataLine = 76;  // characters

class Writer {
 public:
    explicit Writer(const PropertyListBudget& budget) : _meter(budget) {}

    Result<std::string> write(const PropertyValue& value) {
        _out = head;
        if (auto written = writeValue(value, 1); !written) {
            return tl::unexpected(written.error());
        }
        _out += tail;
        if (auto fits = _meter.checkFileSize(_out.size()); !fits) {
            return tl::unexpected(fits.error());
        }
        return std::move(_out);
    }

 private:
    /// Recursive, but no deeper than the budget.
    Result<void> writeValue(const PropertyValue& value, std::size_t depth) {
        if (auto counted = _meter.countValue(depth); !counted) {
            return counted;
        }
        switch (value.type()) {
            case PropertyValue::value_t::object:
                return writeDictionary(value, depth);
            case PropertyValue::value_t::array:
                return writeArray(value, depth);
            case PropertyValue::value_t::string:
                return writeText("string", value.get_ref<const std::string&>(), depth);
            case PropertyValue::value_t::binary:
                return writeData(value.get_binary(), depth);
            case PropertyValue::value_t::boolean:
                line(value.get<bool>() ? "<true/>" : "<false/>", depth);
                return {};
            case PropertyValue::value_t::number_integer:
                writeNumber("integer", std::to_string(value.get<std::int64_t>()), depth);
                return {};
            case PropertyValue::value_t::number_unsigned:
                writeNumber("integer", std::to_string(value.get<std::uint64_t>()), depth);
                return {};
            case PropertyValue::value_t::number_float:
                writeNumber("real", textFromReal(value.get<double>()), depth);
                return {};
            default:
                return problem("A property list cannot hold an empty (null) value.");
        }
    }

    Result<void> writeDictionary(const PropertyValue& value, std::size_t depth) {
        if (value.empty()) {
            line("<dict/>", depth);
            return {};
        }
        line("<dict>", depth);
        for (const auto& [key, item] : value.get_ref<const PropertyValue::object_t&>()) {
            if (auto written = writeText("key", key, depth + 1); !written) {
                return written;
            }
            if (auto written = writeValue(item, depth + 1); !written) {
                return written;
            }
        }
        line("</dict>", depth);
        return {};
    }

    Result<void> writeArray(const PropertyValue& value, std::size_t depth) {
        if (value.empty()) {
            line("<array/>", depth);
            return {};
        }
        line("<array>", depth);
        for (const PropertyValue& item : value) {
            if (auto written = writeValue(item, depth + 1); !written) {
                return written;
            }
        }
        line("</array>", depth);
        return {};
    }

    Result<void> writeText(std::string_view element, std::string_view text, std::size_t depth) {
        if (auto counted = _meter.countText(text.size()); !counted) {
            return counted;
        }
        indent(depth);
        _out.append("<").append(element).append(">");
        while (!text.empty()) {
            const std::string_view before = text;
            const auto character = takeCharacter(text);
            if (!character) {
                return problem("A property list cannot hold text that is not valid UTF-8.");
            }
            if (!isXmlCharacter(*character)) {
                return problem(
                    "A property list cannot hold control characters in text.",
                    "U+" + std::to_string(static_cast<unsigned>(*character)) + " (decimal)");
            }
            appendEscaped(before.substr(0, before.size() - text.size()));
        }
        _out.append("</").append(element).append(">\n");
        return {};
    }

    void appendEscaped(std::string_view character) {
        switch (character.front()) {
            case '&':
                _out += "&amp;";
                break;
            case '<':
                _out += "&lt;";
                break;
            case '>':
                _out += "&gt;";
                break;
            case '\r':
                // A parser would read an unescaped one as a newline.
                _out += "&#13;";
                break;
            default:
                _out += character;
                break;
        }
    }

    Result<void> writeData(const PropertyValue::binary_t& bytes, std::size_t depth) {
        if (auto counted = _meter.countText(bytes.size()); !counted) {
            return counted;
        }
        line("<data>", depth);
        const std::string text = base64FromBytes(bytes);
        for (std::size_t at = 0; at < text.size(); at += dataLine) {
            line(std::string_view(text).substr(at, dataLine), depth);
        }
        line("</data>", depth);
        return {};
    }

    void writeNumber(std::string_view element, std::string_view text, std::size_t depth) {
        indent(depth);
        _out.append("<").append(element).append(">").append(text);
        _out.append("</").append(element).append(">\n");
    }

    void line(std::string_view text, std::size_t depth) {
        indent(depth);
        _out.append(text).append("\n");
    }

    /// The root value, depth 1, is not indented.
    void indent(std::size_t depth) { _out.append(depth - 1, '\t'); }

    BudgetMeter _meter;
    std::string _out;
};

}  // namespace

Result<std::string> writePropertyList(const PropertyValue& value,
                                      const PropertyListBudget& budget) {
    return Writer(budget).write(value);
}

}  // namespace tonquil
