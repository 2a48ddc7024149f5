// SPDX-License-Identifier: MIT
//
// Feeds any bytes: reading may only fail with a problem, and what was read must survive a round
// trip.

#include <algorithm>
#include <cstdint>
#include <limits>

#include "Require.h"
#include "plist/PropertyListReader.h"
#include "plist/PropertyListWriter.h"
#include "tests/plist/SameValue.h"

namespace {

using tonquil::PropertyValue;
using tonquil::require;

/// Whether XML cannot represent the text, judged from its UTF-8 bytes alone.
bool isRefusedByXml(const std::string& text) {
    return text.find("\xEF\xBF\xBE") != std::string::npos ||
           text.find("\xEF\xBF\xBF") != std::string::npos ||
           std::any_of(text.begin(), text.end(), [](char c) {
               return static_cast<unsigned char>(c) < 0x20 && c != '\t' && c != '\n' && c != '\r';
           });
}

bool hasTextRefusedByXml(const PropertyValue& value) {
    if (value.is_string()) {
        return isRefusedByXml(value.get_ref<const std::string&>());
    }
    if (value.is_object()) {
        const auto& entries = value.get_ref<const PropertyValue::object_t&>();
        return std::any_of(entries.begin(), entries.end(), [](const auto& entry) {
            return isRefusedByXml(entry.first) || hasTextRefusedByXml(entry.second);
        });
    }
    return value.is_array() && std::any_of(value.begin(), value.end(), &hasTextRefusedByXml);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const auto value = tonquil::readPropertyList({data, size});
    if (!value) {
        require(!value.error().sentence.empty());
        return 0;
    }
    require(tonquil::beginsLikePropertyList({data, size}));
    // XML may need more bytes than the binary encoding did; all other limits must hold.
    tonquil::PropertyListBudget budget;
    budget.mostBytes = std::numeric_limits<int>::max();
    const auto text = tonquil::writePropertyList(*value, budget);
    require(text.has_value() != hasTextRefusedByXml(*value));
    if (text) {
        const auto* const bytes = reinterpret_cast<const std::uint8_t*>(text->data());  // NOLINT
        const auto again = tonquil::readPropertyList({bytes, text->size()}, budget);
        require(again.has_value() && tonquil::isSameValue(*value, *again));
        require(tonquil::writePropertyList(*again, budget) == *text);
    }
    return 0;
}
