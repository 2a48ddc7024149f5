// SPDX-License-Identifier: MIT
#include "plist/BudgetMeter.h"

#include <string>

#include "foundation/TranslatableText.h"

namespace tonquil {

namespace {

auto breach(const std::string& detail) {
    return problem(TONQUIL_TEXT("Problem", "The property list is too large or too deeply nested."),
                   detail);
}

}  // namespace

Result<void> BudgetMeter::countValue(std::size_t depth) {
    if (depth > _budget.deepest) {
        return breach("more than " + std::to_string(_budget.deepest) + " levels");
    }
    if (_values >= _budget.mostValues) {
        return breach("more than " + std::to_string(_budget.mostValues) + " values");
    }
    ++_values;
    return {};
}

Result<void> BudgetMeter::countText(std::size_t bytes) {
    if (bytes > _budget.mostText - _text) {
        return breach("more than " + std::to_string(_budget.mostText) + " bytes of text and data");
    }
    _text += bytes;
    return {};
}

Result<void> BudgetMeter::checkFileSize(std::size_t bytes) const {
    if (bytes > _budget.mostBytes) {
        return breach("more than " + std::to_string(_budget.mostBytes) + " bytes");
    }
    return {};
}

}  // namespace tonquil
