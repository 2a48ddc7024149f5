// SPDX-License-Identifier: MIT
#include "values/BoundedJson.h"

namespace tonquil {

namespace {

constexpr int deepest = 16;
constexpr int mostSeparators = 4096;

/// Counts brackets and separators even inside strings: this also refuses a string full of brackets,
/// which no real message has, and avoids a second JSON grammar.
bool isWithinBounds(std::string_view text) {
    int depth = 0;
    int separators = 0;
    for (const char c : text) {
        switch (c) {
            case '[':
            case '{':
                if (++depth > deepest) {
                    return false;
                }
                break;
            case ']':
            case '}':
                --depth;
                break;
            case ',':
            case ':':
                if (++separators > mostSeparators) {
                    return false;
                }
                break;
            case '\0':
                return false;
            default:
                break;
        }
    }
    return true;
}

}  // namespace

Result<PropertyValue> readBoundedJson(std::string_view text) {
    if (!isWithinBounds(text)) {
        return problem("The JSON is nested too deeply or is too long.");
    }
    PropertyValue value = PropertyValue::parse(text, nullptr, /*allow_exceptions=*/false);
    if (value.is_discarded()) {
        return problem("The text is not JSON.");
    }
    return value;
}

}  // namespace tonquil
