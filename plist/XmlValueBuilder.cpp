// SPDX-License-Identifier: MIT
#include "plist/XmlValueBuilder.h"

#include <algorithm>
#include <array>
#include <utility>

#include "foundation/TranslatableText.h"
#include "plist/Base64.h"
#include "plist/NumberText.h"

namespace tonquil {

namespace {

auto damagedElement(std::string detail) {
    return problem(TONQUIL_TEXT("Problem", "The property list is damaged."), std::move(detail));
}

}  // namespace

std::optional<XmlValueBuilder::Element> XmlValueBuilder::elementNamed(std::string_view name) {
    static constexpr std::array<std::pair<std::string_view, Element>, 11> names = {{
        {"plist", Element::List},
        {"dict", Element::Dictionary},
        {"array", Element::Array},
        {"key", Element::Key},
        {"string", Element::String},
        {"integer", Element::Integer},
        {"real", Element::Real},
        {"true", Element::True},
        {"false", Element::False},
        {"data", Element::Data},
        {"date", Element::Date},
    }};
    const auto* const found = std::find_if(
        names.begin(), names.end(), [name](const auto& entry) { return entry.first == name; });
    return found == names.end() ? std::nullopt : std::optional(found->second);
}

Result<void> XmlValueBuilder::checkPlace(Element element) const {
    if (_open.empty() != (element == Element::List)) {
        return damagedElement("the root element, and no other, has to be plist");
    }
    if (_open.empty()) {
        return {};
    }
    const Open& parent = _open.back();
    switch (parent.element) {
        case Element::List:
            if (_value) {
                return damagedElement("more than one value in plist");
            }
            break;
        case Element::Dictionary:
            if (parent.key.has_value() == (element == Element::Key)) {
                return damagedElement("keys and values do not alternate in dict");
            }
            return {};
        case Element::Array:
            break;
        default:
            return damagedElement("an element within text");
    }
    if (element == Element::Key) {
        return damagedElement("a key outside dict");
    }
    return {};
}

Result<void> XmlValueBuilder::begin(std::string_view name) {
    const auto element = elementNamed(name);
    if (!element) {
        return damagedElement("unknown element");
    }
    if (auto fits = checkPlace(*element); !fits) {
        return fits;
    }
    if (*element != Element::List && *element != Element::Key) {
        // The root value is inside <plist> only, so the number of open elements is its depth.
        if (auto counted = _meter.countValue(_open.size()); !counted) {
            return counted;
        }
    }
    Open open{*element, nullptr, std::nullopt};
    if (*element == Element::Dictionary) {
        open.container = PropertyValue::object();
    } else if (*element == Element::Array) {
        open.container = PropertyValue::array();
    }
    _open.push_back(std::move(open));
    _text.clear();
    return {};
}

Result<void> XmlValueBuilder::text(std::string_view piece) {
    const Element element = _open.empty() ? Element::List : _open.back().element;
    switch (element) {
        case Element::List:
        case Element::Dictionary:
        case Element::Array:
        case Element::True:
        case Element::False:
            if (!std::all_of(piece.begin(), piece.end(), isXmlSpace)) {
                return damagedElement("text where there can be none");
            }
            return {};
        default:
            _text += piece;
            return {};
    }
}

Result<void> XmlValueBuilder::end() {
    Open open = std::move(_open.back());
    _open.pop_back();
    if (open.element == Element::List) {
        return _value ? Result<void>() : damagedElement("no value in plist");
    }
    if (open.element == Element::Key) {
        if (auto counted = _meter.countText(_text.size()); !counted) {
            return counted;
        }
        _open.back().key = std::exchange(_text, {});
        return {};
    }
    auto value = valueOf(open);
    if (!value) {
        return tl::unexpected(value.error());
    }
    deliver(std::move(*value));
    return {};
}

Result<PropertyValue> XmlValueBuilder::valueOf(Open& open) {
    switch (open.element) {
        case Element::Integer:
            if (auto integer = integerFromText(_text)) {
                return std::move(*integer);
            }
            return damagedElement("an integer that is none or is out of range");
        case Element::Real:
            if (const auto real = realFromText(_text)) {
                return PropertyValue(*real);
            }
            return damagedElement("a real that is none or is out of range");
        case Element::True:
            return PropertyValue(true);
        case Element::False:
            return PropertyValue(false);
        case Element::Data:
            return dataValue();
        case Element::String:
        case Element::Date:
            return textValue();
        default:
            if (open.key) {
                return damagedElement("a key without a value");
            }
            return std::move(open.container);
    }
}

Result<PropertyValue> XmlValueBuilder::textValue() {
    if (auto counted = _meter.countText(_text.size()); !counted) {
        return tl::unexpected(counted.error());
    }
    return PropertyValue(std::exchange(_text, {}));
}

Result<PropertyValue> XmlValueBuilder::dataValue() {
    auto bytes = bytesFromBase64(_text);
    if (!bytes) {
        return damagedElement("data that is not Base64");
    }
    if (auto counted = _meter.countText(bytes->size()); !counted) {
        return tl::unexpected(counted.error());
    }
    return PropertyValue::binary(std::move(*bytes));
}

void XmlValueBuilder::deliver(PropertyValue value) {
    Open& parent = _open.back();
    if (parent.element == Element::Dictionary) {
        parent.container[std::move(*parent.key)] = std::move(value);
        parent.key.reset();
    } else if (parent.element == Element::Array) {
        parent.container.push_back(std::move(value));
    } else {
        _value = std::move(value);
    }
}

std::optional<PropertyValue> XmlValueBuilder::takeValue() {
    return std::exchange(_value, std::nullopt);
}

}  // namespace tonquil
