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

/// A person's settings under string keys, with a layer of defaults below them.
///
/// Reading never fails. A number counts as a boolean and a boolean as a number, a string counts as
/// the number that it begins with; what is missing or has no number in it reads as false or 0.
class PreferencesStore {
 public:
    /// Destroying it ends the subscription.
    class Subscription {
     public:
        virtual ~Subscription() = default;
    };

    virtual ~PreferencesStore() = default;

    [[nodiscard]] bool boolForKey(std::string_view key) const;
    [[nodiscard]] std::int64_t integerForKey(std::string_view key) const;
    [[nodiscard]] float floatForKey(std::string_view key) const;
    /// Empty where the value is missing or is no text.
    [[nodiscard]] std::string stringForKey(std::string_view key) const;
    /// The strings of an array; empty where the value is missing or is none.
    [[nodiscard]] std::vector<std::string> stringsForKey(std::string_view key) const;
    /// An empty dictionary where the value is missing or is none.
    [[nodiscard]] PropertyValue dictionaryForKey(std::string_view key) const;

    /// Lays `defaults`, a dictionary, below what is stored: they are read where nothing is stored
    /// and are never saved.
    virtual void registerDefaults(PropertyValue defaults) = 0;
    /// Readable at once. What is set within one event is saved together after it.
    virtual void setValue(std::string_view key, PropertyValue value) = 0;
    /// Saves now what still waits to be saved, reads what others have saved, and returns whether
    /// all that was set is saved.
    virtual bool synchronize() = 0;

    /// Calls once after each event that set a value, or in which another program was seen to have
    /// changed one. Changes made before the subscription are not told.
    [[nodiscard]] virtual std::unique_ptr<Subscription> subscribe(
        std::function<void()> changed) = 0;

 private:
    /// What is stored under `key`, else its default, else null. Valid until the next change.
    [[nodiscard]] virtual const PropertyValue* valueForKey(std::string_view key) const = 0;
};

}  // namespace tonquil
