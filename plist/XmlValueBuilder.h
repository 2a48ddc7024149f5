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

/// Builds the value of an XML property list from XML parser events.
///
/// The parser guarantees well-formedness: each end tag matches the last open element. Feed nothing
/// more after the first problem. Open elements are kept in a list, never on the stack.
class XmlValueBuilder {
 public:
    explicit XmlValueBuilder(const PropertyListBudget& budget) : _meter(budget) {}

    [[nodiscard]] Result<void> begin(std::string_view name);
    [[nodiscard]] Result<void> end();
    /// UTF-8; one run of text may arrive in any number of pieces.
    [[nodiscard]] Result<void> text(std::string_view piece);

    /// The value, once the root element has ended; empties the builder.
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
