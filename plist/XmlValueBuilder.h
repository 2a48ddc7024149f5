// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "foundation/Problem.h"
#include "plist/BudgetMeter.h"
#include "values/PropertyValue.h"

namespace tonquil {

/// Builds the value of an XML property list from the events of an XML parser.
///
/// The parser vouches for well-formedness: each element that ends is the last one that began.
/// After the first problem, no more may be fed. What is open is kept in a list, never on the stack.
class XmlValueBuilder {
 public:
    explicit XmlValueBuilder(const PropertyListBudget& budget) : _meter(budget) {}

    [[nodiscard]] Result<void> begin(std::string_view name);
    [[nodiscard]] Result<void> end();
    /// UTF-8; one run of text may come in any number of pieces.
    [[nodiscard]] Result<void> text(std::string_view piece);

    /// The value, once the root element has ended; nothing left afterwards.
    [[nodiscard]] std::optional<PropertyValue> takeValue();

 private:
    enum class Element : std::uint8_t {
        List,
        Dictionary,
        Array,
        Key,
        String,
        Integer,
        Real,
        True,
        False,
        Data,
        Date
    };
    struct Open {
        Element element;
        PropertyValue container;
        std::optional<std::string> key;
    };

    [[nodiscard]] static std::optional<Element> elementNamed(std::string_view name);
    [[nodiscard]] Result<void> checkPlace(Element element) const;
    [[nodiscard]] Result<PropertyValue> valueOf(Open& open);
    [[nodiscard]] Result<PropertyValue> textValue();
    [[nodiscard]] Result<PropertyValue> dataValue();
    void deliver(PropertyValue value);

    BudgetMeter _meter;
    std::vector<Open> _open;
    std::string _text;
    std::optional<PropertyValue> _value;
};

}  // namespace tonquil
