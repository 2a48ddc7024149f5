// SPDX-License-Identifier: MIT
#include "plist/BinaryObjectTable.h"

#include <algorithm>
#include <optional>
#include <string>
#include <string_view>

#include "foundation/TranslatableText.h"

namespace tonquil {

namespace {

constexpr std::string_view magic = "bplist0";
constexpr std::size_t headerSize = 8;    // bytes: the magic and one more digit
constexpr std::size_t trailerSize = 32;  // bytes

auto damaged(const char* detail) {
    return problem(TONQUIL_TEXT("Problem", "The property list is damaged."), detail);
}

/// Content size in bytes of the types that have it in the marker; nothing for unknown types.
std::optional<std::size_t> fixedSize(const BinaryObject& object) {
    const unsigned low = object.low();
    switch (object.type()) {
        case 0x0:  // false, true; null and fill have no value
            return low == 8 || low == 9 ? std::optional<std::size_t>(0) : std::nullopt;
        case 0x1:  // integer
            return low <= 4 ? std::optional(std::size_t{1} << low) : std::nullopt;
        case 0x2:  // real
            return low == 2 || low == 3 ? std::optional(std::size_t{1} << low) : std::nullopt;
        case 0x3:  // date
            return low == 3 ? std::optional<std::size_t>(8) : std::nullopt;
        case 0x8:  // identifier
            return low + std::size_t{1};
        default:
            return std::nullopt;
    }
}

/// Takes the count off the bytes after a marker: it is in the lower half or, if all its bits are
/// set, in an integer that follows.
std::optional<std::uint64_t> takeCount(unsigned low, std::span<const std::uint8_t>& bytes) {
    if (low != 0xF) {
        return low;
    }
    if (bytes.empty() || bytes[0] < 0x10 || bytes[0] > 0x13) {
        return std::nullopt;
    }
    const std::size_t size = std::size_t{1} << (bytes[0] & 0xFU);
    if (bytes.size() - 1 < size) {
        return std::nullopt;
    }
    const std::uint64_t count = bigEndian(bytes.subspan(1, size));
    bytes = bytes.subspan(1 + size);
    return count;
}

}  // namespace

std::uint64_t bigEndian(std::span<const std::uint8_t> bytes) {
    std::uint64_t number = 0;
    for (const std::uint8_t byte : bytes) {
        number = (number << 8U) | byte;
    }
    return number;
}

Result<BinaryObjectTable> BinaryObjectTable::open(std::span<const std::uint8_t> bytes) {
    if (bytes.size() < headerSize + trailerSize ||
        !std::equal(magic.begin(), magic.end(), bytes.begin())) {
        return damaged("no binary property list");
    }
    const auto trailer = bytes.last(trailerSize);
    const std::size_t beforeTrailer = bytes.size() - trailerSize;
    BinaryObjectTable table;
    table._bytes = bytes;
    table._offsetSize = trailer[6];
    table._referenceSize = trailer[7];
    table._objects = bigEndian(trailer.subspan(8, 8));
    table._top = bigEndian(trailer.subspan(16, 8));
    const std::uint64_t tableOffset = bigEndian(trailer.subspan(24, 8));
    if (table._offsetSize < 1 || table._offsetSize > 8 || table._referenceSize < 1 ||
        table._referenceSize > 8) {
        return damaged("a size in the trailer");
    }
    if (tableOffset < headerSize || tableOffset > beforeTrailer) {
        return damaged("the offset of the table");
    }
    table._tableOffset = static_cast<std::size_t>(tableOffset);
    // The offset table must fill all bytes up to the trailer; the comparison cannot overflow.
    const std::size_t room = beforeTrailer - table._tableOffset;
    if (room % table._offsetSize != 0 || room / table._offsetSize != table._objects) {
        return damaged("the number of objects");
    }
    if (table._top >= table._objects) {
        return damaged("the number of the outermost object");
    }
    return table;
}

std::size_t BinaryObjectTable::unitSize(unsigned type) const {
    switch (type) {
        case 0x4:  // data
        case 0x5:  // ASCII
            return 1;
        case 0x6:  // UTF-16
            return 2;
        case 0xA:  // array
        case 0xC:  // set
            return _referenceSize;
        case 0xD:  // dictionary
            return 2 * _referenceSize;
        default:
            return 0;
    }
}

Result<BinaryObject> BinaryObjectTable::object(std::uint64_t number) const {
    if (number >= _objects) {
        return damaged("a reference to no object");
    }
    const std::size_t entry = _tableOffset + static_cast<std::size_t>(number) * _offsetSize;
    const std::uint64_t offset = bigEndian(_bytes.subspan(entry, _offsetSize));
    if (offset < headerSize || offset >= _tableOffset) {
        return damaged("the offset of an object");
    }
    auto rest = _bytes.first(_tableOffset).subspan(static_cast<std::size_t>(offset));
    BinaryObject object;
    object.marker = rest[0];
    rest = rest.subspan(1);

    std::optional<std::uint64_t> count;
    std::size_t unit = unitSize(object.type());
    if (unit != 0) {
        count = takeCount(object.low(), rest);
    } else {
        count = fixedSize(object);
        unit = 1;
    }
    if (!count) {
        return damaged("an object of unknown type or size");
    }
    if (*count > rest.size() / unit) {
        return damaged("an object beyond the end of the objects");
    }
    object.contents = rest.first(static_cast<std::size_t>(*count) * unit);
    return object;
}

std::size_t BinaryObjectTable::references(const BinaryObject& object) const {
    return object.contents.size() / _referenceSize;
}

std::uint64_t BinaryObjectTable::reference(const BinaryObject& object, std::size_t index) const {
    return bigEndian(object.contents.subspan(index * _referenceSize, _referenceSize));
}

}  // namespace tonquil
