// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

#include "foundation/Problem.h"

namespace tonquil {

/// The big-endian number in up to 8 bytes.
[[nodiscard]] std::uint64_t bigEndian(std::span<const std::uint8_t> bytes);

/// One object of a binary property list. Its size is checked, its contents are not.
struct BinaryObject {
    /// The first byte: type in the upper half, size in the lower.
    std::uint8_t marker = 0;
    /// The bytes that follow, exactly as many as the marker, or the count after it, says.
    std::span<const std::uint8_t> contents;

    [[nodiscard]] unsigned type() const { return marker >> 4U; }
    [[nodiscard]] unsigned low() const { return marker & 0xFU; }
};

/// Finds the objects of a binary property list. Keeps a view of the bytes, which must outlive it.
class BinaryObjectTable {
 public:
    /// Checks magic, trailer and the location of the offset table.
    [[nodiscard]] static Result<BinaryObjectTable> open(std::span<const std::uint8_t> bytes);

    /// Number of the root object.
    [[nodiscard]] std::uint64_t top() const { return _top; }
    /// The object with that number; a problem if there is none, if it is not entirely inside the
    /// object area of the file, or if its type is unknown.
    [[nodiscard]] Result<BinaryObject> object(std::uint64_t number) const;

    /// Number of object references in an array, set or dictionary, including keys.
    [[nodiscard]] std::size_t references(const BinaryObject& object) const;
    /// The object number in reference `index` (below `references`).
    [[nodiscard]] std::uint64_t reference(const BinaryObject& object, std::size_t index) const;

 private:
    /// Bytes per counted element of this type; 0 for types without a count.
    [[nodiscard]] std::size_t unitSize(unsigned type) const;

    std::span<const std::uint8_t> _bytes;
    std::size_t _tableOffset = 0;
    std::size_t _offsetSize = 0;
    std::size_t _referenceSize = 0;
    std::uint64_t _objects = 0;
    std::uint64_t _top = 0;
};

}  // namespace tonquil
