// SPDX-License-Identifier: MIT
#include "plist/PropertyListReader.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "foundation/TranslatableText.h"
#include "plist/BinaryPropertyList.h"
#include "plist/BudgetMeter.h"
#include "plist/NumberText.h"
#include "plist/XmlPropertyList.h"

namespace tonquil {

namespace {

constexpr std::string_view binaryMagic = "bplist";
constexpr std::array<std::string_view, 4> xmlBeginnings = {"<?xml", "<!DOCTYPE", "<plist", "<!--"};

bool beginsWith(std::span<const std::uint8_t> bytes, std::string_view beginning) {
    // A plain char may be signed; the byte is not.
    return bytes.size() >= beginning.size() &&
           std::equal(
               beginning.begin(), beginning.end(), bytes.begin(),
               [](char c, std::uint8_t byte) { return static_cast<std::uint8_t>(c) == byte; });
}

/// Text in an ASCII-compatible encoding, one character per `unit` bytes.
struct Text {
    std::span<const std::uint8_t> bytes;
    std::size_t unit = 1;
    /// Index of the byte in a unit that holds an ASCII character.
    std::size_t lowByte = 0;

    [[nodiscard]] std::size_t size() const { return bytes.size() / unit; }
    /// The character, or NUL if it is not ASCII.
    [[nodiscard]] char at(std::size_t index) const {
        const auto character = bytes.subspan(index * unit, unit);
        if (unit == 2 && character[1 - lowByte] != 0) {
            return '\0';
        }
        return character[lowByte] < 0x80 ? static_cast<char>(character[lowByte]) : '\0';
    }
};

/// The text after the byte order mark; without a mark, a NUL in the first two bytes means UTF-16.
Text textOf(std::span<const std::uint8_t> bytes) {
    using namespace std::string_view_literals;
    if (beginsWith(bytes, "\xEF\xBB\xBF")) {
        return {bytes.subspan(3)};
    }
    if (beginsWith(bytes, "\xFF\xFE") || beginsWith(bytes, "\xFE\xFF")) {
        return {bytes.subspan(2), 2, bytes[0] == 0xFF ? 0U : 1U};
    }
    if (bytes.size() >= 2 && (bytes[0] == 0) != (bytes[1] == 0)) {
        return {bytes, 2, bytes[1] == 0 ? 0U : 1U};
    }
    return {bytes};
}

std::size_t leadingSpaces(const Text& text) {
    std::size_t count = 0;
    while (count < text.size() && isXmlSpace(text.at(count))) {
        ++count;
    }
    return count;
}

bool beginsLikeXml(const Text& text) {
    const std::size_t start = leadingSpaces(text);
    return std::any_of(xmlBeginnings.begin(), xmlBeginnings.end(), [&](std::string_view beginning) {
        if (text.size() - start < beginning.size()) {
            return false;
        }
        for (std::size_t i = 0; i < beginning.size(); ++i) {
            if (text.at(start + i) != beginning[i]) {
                return false;
            }
        }
        return true;
    });
}

}  // namespace

bool beginsLikePropertyList(std::span<const std::uint8_t> bytes) {
    return beginsWith(bytes, binaryMagic) || beginsLikeXml(textOf(bytes));
}

Result<PropertyValue> readPropertyList(std::span<const std::uint8_t> bytes,
                                       const PropertyListBudget& budget) {
    if (auto fits = BudgetMeter(budget).checkFileSize(bytes.size()); !fits) {
        return tl::unexpected(fits.error());
    }
    if (beginsWith(bytes, binaryMagic)) {
        return readBinaryPropertyList(bytes, budget);
    }
    if (!beginsLikePropertyList(bytes)) {
        return problem(TONQUIL_TEXT("Problem", "This is not a property list."));
    }
    // Pasted lists often have white space before the declaration, which XML forbids.
    const Text text = textOf(bytes);
    const std::size_t mark = bytes.size() - text.bytes.size();
    return readXmlPropertyList(bytes.first(mark),
                               text.bytes.subspan(leadingSpaces(text) * text.unit), budget);
}

}  // namespace tonquil
