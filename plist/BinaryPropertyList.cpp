// SPDX-License-Identifier: MIT
#include "plist/BinaryPropertyList.h"

#include <algorithm>
#include <array>
#include <bit>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <limits>
#include <optional>
#include <string>
#include <utility>

#include "foundation/TranslatableText.h"
#include "plist/BinaryObjectTable.h"
#include "plist/BudgetMeter.h"
#include "plist/Unicode.h"

namespace tonquil {

namespace {

auto damagedObject(const char* detail) {
    return problem(TONQUIL_TEXT("Problem", "The property list is damaged."), detail);
}

PropertyValue integer(std::int64_t number) {
    // As when read from text: unsigned from 0 up.
    return number < 0 ? PropertyValue(number) : PropertyValue(static_cast<std::uint64_t>(number));
}

Result<PropertyValue> integerOf(std::span<const std::uint8_t> contents) {
    if (contents.size() < 8) {
        return PropertyValue(bigEndian(contents));
    }
    const std::uint64_t low = bigEndian(contents.last(8));
    if (contents.size() == 8) {
        return integer(static_cast<std::int64_t>(low));
    }
    const std::uint64_t high = bigEndian(contents.first(8));
    if (high == 0) {
        return PropertyValue(low);
    }
    const auto number = static_cast<std::int64_t>(low);
    if (high == std::numeric_limits<std::uint64_t>::max() && number < 0) {
        return integer(number);
    }
    return damagedObject("an integer out of range");
}

Result<PropertyValue> identifierOf(std::span<const std::uint8_t> contents) {
    const std::size_t leading = contents.size() - std::min<std::size_t>(contents.size(), 8);
    if (std::any_of(contents.begin(), contents.begin() + static_cast<std::ptrdiff_t>(leading),
                    [](std::uint8_t byte) { return byte != 0; })) {
        return damagedObject("an identifier out of range");
    }
    return PropertyValue(bigEndian(contents.subspan(leading)));
}

double realOf(std::span<const std::uint8_t> contents) {
    const std::uint64_t bits = bigEndian(contents);
    return contents.size() == 4
               ? static_cast<double>(std::bit_cast<float>(static_cast<std::uint32_t>(bits)))
               : std::bit_cast<double>(bits);
}

std::optional<std::string> dateText(double secondsSince2001) {
    using namespace std::chrono;
    constexpr sys_days epoch = 2001y / January / 1;
    constexpr auto earliest = duration_cast<seconds>(sys_days(1y / January / 1) - epoch);
    constexpr auto latest = duration_cast<seconds>(sys_days(9999y / December / 31) - epoch);
    const double whole = std::floor(secondsSince2001);
    // Written so that NaN is refused too.
    if (!(whole >= static_cast<double>(earliest.count()) &&
          whole < static_cast<double>(latest.count()) + 86400.0)) {
        return std::nullopt;
    }
    const auto time = sys_seconds(epoch) + seconds(static_cast<std::int64_t>(whole));
    const auto day = floor<days>(time);
    const year_month_day date(day);
    const hh_mm_ss clock(time - day);
    std::array<char, 64> text{};
    const int length = std::snprintf(
        text.data(), text.size(), "%04d-%02u-%02uT%02d:%02d:%02dZ", static_cast<int>(date.year()),
        static_cast<unsigned>(date.month()), static_cast<unsigned>(date.day()),
        static_cast<int>(clock.hours().count()), static_cast<int>(clock.minutes().count()),
        static_cast<int>(clock.seconds().count()));
    return std::string(text.data(), static_cast<std::size_t>(length));
}

/// Reads the values of one list; a value referenced twice is read twice.
class Reader {
 public:
    Reader(const BinaryObjectTable& table, const PropertyListBudget& budget)
        : _table(table), _meter(budget) {}

    /// Recursive, but no deeper than the budget.
    Result<PropertyValue> value(std::uint64_t number, std::size_t depth) {
        if (auto counted = _meter.countValue(depth); !counted) {
            return tl::unexpected(counted.error());
        }
        const auto object = _table.object(number);
        if (!object) {
            return tl::unexpected(object.error());
        }
        switch (object->type()) {
            case 0x0:
                return PropertyValue(object->low() == 9);
            case 0x1:
                return integerOf(object->contents);
            case 0x2:
                return PropertyValue(realOf(object->contents));
            case 0x3:
                return date(*object);
            case 0x4:
                return data(*object);
            case 0x5:
            case 0x6:
                return text(*object).map(
                    [](std::string&& t) { return PropertyValue(std::move(t)); });
            case 0x8:
                return identifierOf(object->contents);
            case 0xD:
                return dictionary(*object, depth);
            default:
                return array(*object, depth);
        }
    }

 private:
    Result<PropertyValue> date(const BinaryObject& object) {
        auto text = dateText(realOf(object.contents));
        if (!text) {
            return damagedObject("a date out of range");
        }
        if (auto counted = _meter.countText(text->size()); !counted) {
            return tl::unexpected(counted.error());
        }
        return PropertyValue(std::move(*text));
    }

    Result<PropertyValue> data(const BinaryObject& object) {
        if (auto counted = _meter.countText(object.contents.size()); !counted) {
            return tl::unexpected(counted.error());
        }
        return PropertyValue::binary({object.contents.begin(), object.contents.end()});
    }

    Result<std::string> text(const BinaryObject& object) {
        std::optional<std::string> text;
        if (object.type() == 0x6) {
            text = utf8FromUtf16(object.contents);
        } else if (std::all_of(object.contents.begin(), object.contents.end(),
                               [](std::uint8_t byte) { return byte > 0 && byte < 0x80; })) {
            text.emplace(object.contents.begin(), object.contents.end());
        }
        if (!text) {
            return damagedObject("text in the wrong encoding, or with NUL");
        }
        if (auto counted = _meter.countText(text->size()); !counted) {
            return tl::unexpected(counted.error());
        }
        return std::move(*text);
    }

    Result<std::string> key(std::uint64_t number) {
        const auto object = _table.object(number);
        if (!object) {
            return tl::unexpected(object.error());
        }
        if (object->type() != 0x5 && object->type() != 0x6) {
            return damagedObject("a key that is not text");
        }
        return text(*object);
    }

    Result<PropertyValue> array(const BinaryObject& object, std::size_t depth) {
        PropertyValue array = PropertyValue::array();
        const std::size_t count = _table.references(object);
        for (std::size_t i = 0; i < count; ++i) {
            auto item = value(_table.reference(object, i), depth + 1);
            if (!item) {
                return item;
            }
            array.push_back(std::move(*item));
        }
        return array;
    }

    Result<PropertyValue> dictionary(const BinaryObject& object, std::size_t depth) {
        PropertyValue dictionary = PropertyValue::object();
        // All keys come first, then all values.
        const std::size_t count = _table.references(object) / 2;
        for (std::size_t i = 0; i < count; ++i) {
            auto name = key(_table.reference(object, i));
            if (!name) {
                return tl::unexpected(name.error());
            }
            auto item = value(_table.reference(object, count + i), depth + 1);
            if (!item) {
                return item;
            }
            dictionary[std::move(*name)] = std::move(*item);
        }
        return dictionary;
    }

    const BinaryObjectTable& _table;
    BudgetMeter _meter;
};

}  // namespace

Result<PropertyValue> readBinaryPropertyList(std::span<const std::uint8_t> bytes,
                                             const PropertyListBudget& budget) {
    const auto table = BinaryObjectTable::open(bytes);
    if (!table) {
        return tl::unexpected(table.error());
    }
    return Reader(*table, budget).value(table->top(), 1);
}

}  // namespace tonquil
