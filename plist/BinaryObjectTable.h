// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

#include "foundation/Problem.h"

namespace tonquil {

/// The number in up to 8 bytes, the most significant first.
[[nodiscard]] std::uint64_t bigEndian(std::span<const std::uint8_t> bytes);

/// One object of a binary property list, its size checked and its contents not looked at.
struct BinaryObject {
    /// The first byte: the type in the upper half, a size in the lower.
    std::uint8_t marker = 0;
    /// What follows: of exactly the size that the marker, or the count after it, claims.
    std::span<const std::uint8_t> contents;

    [[nodiscard]] unsigned type() const { return marker >> 4U; }
    [[nodiscard]] unsigned low() const { return marker & 0xFU; }
};

/// Finds the objects of a binary property list. Looks into the bytes, which must outlive it.
class BinaryObjectTable {
 public:
    /// Checks the frame: magic, trailer, and where the table of offsets lies.
    [[nodiscard]] static Result<BinaryObjectTable> open(std::span<const std::uint8_t> bytes);

    /// Number of the outermost object.
    [[nodiscard]] std::uint64_t top() const { return _top; }
    /// The object of that number; a problem if there is none, or it is not wholly inside the part
    /// of the file that is for objects, or its type is unknown.
    [[nodiscard]] Result<BinaryObject> object(std::uint64_t number) const;

    /// How many references to objects an array, set or dictionary holds, keys included.
    [[nodiscard]] std::size_t references(const BinaryObject& object) const;
    /// Number of the object that reference `index` (below `references`) leads to.
    [[nodiscard]] std::uint64_t reference(const BinaryObject& object, std::size_t index) const;

 private:
    /// Bytes of contents that come with each count of this type; 0 for types without a count.
    [[nodiscard]] std::size_t unitSize(unsigned type) const;

    std::span<const std::uint8_t> _bytes;
    std::size_t _tableOffset = 0;
    std::size_t _offsetSize = 0;
    std::size_t _referenceSize = 0;
    std::uint64_t _objects = 0;
    std::uint64_t _top = 0;
};

}  // namespace tonquil
