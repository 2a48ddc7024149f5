// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "values/PropertyValue.h"

namespace tonquil {

/// User settings under string keys, with registered defaults.
///
/// Reading never fails. A number reads as a boolean and a boolean as a number, a string as its
/// leading number; a missing value or one without a number reads as false or 0.
class PreferencesStore {
 public:
    /// The destructor ends the subscription.
    class Subscription {
     public:
        virtual ~Subscription() = default;
    };

    virtual ~PreferencesStore() = default;

    [[nodiscard]] bool boolForKey(std::string_view key) const;
    [[nodiscard]] std::int64_t integerForKey(std::string_view key) const;
    [[nodiscard]] float floatForKey(std::string_view key) const;
    /// Empty if the value is missing or not text.
    [[nodiscard]] std::string stringForKey(std::string_view key) const;
    /// The strings of an array; empty if the value is missing or not an array.
    [[nodiscard]] std::vector<std::string> stringsForKey(std::string_view key) const;
    /// An empty dictionary if the value is missing or not a dictionary.
    [[nodiscard]] PropertyValue dictionaryForKey(std::string_view key) const;

    /// Registers the dictionary `defaults`: they are read where nothing is stored, and never saved.
    virtual void registerDefaults(PropertyValue defaults) = 0;
    /// Readable immediately. Values set during one event are saved together after it.
    virtual void setValue(std::string_view key, PropertyValue value) = 0;
    /// Saves pending values now, reads what others have saved, and returns whether everything that
    /// was set is saved.
    virtual bool synchronize() = 0;

    /// Calls back once after each event that set a value, or in which a change by another program
    /// was detected. Changes made before the subscription are not reported.
    [[nodiscard]] virtual std::unique_ptr<Subscription> subscribe(
        std::function<void()> changed) = 0;

 private:
    /// The stored value under `key`, else its default, else null. Valid until the next change.
    [[nodiscard]] virtual const PropertyValue* valueForKey(std::string_view key) const = 0;
};

}  // namespace tonquil
