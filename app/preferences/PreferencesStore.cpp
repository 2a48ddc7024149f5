// SPDX-License-Identifier: MIT
#include "app/preferences/PreferencesStore.h"

namespace tonquil {

bool PreferencesStore::boolForKey(std::string_view key) const {
    return floatForKey(key) != 0;
}

std::int64_t PreferencesStore::integerForKey(std::string_view key) const {
    const PropertyValue* value = valueForKey(key);
    return value == nullptr ? 0 : integerValue(*value);
}

float PreferencesStore::floatForKey(std::string_view key) const {
    const PropertyValue* value = valueForKey(key);
    return value == nullptr ? 0 : floatValue(*value).value_or(0);
}

std::string PreferencesStore::stringForKey(std::string_view key) const {
    const PropertyValue* value = valueForKey(key);
    return value != nullptr && value->is_string() ? value->get<std::string>() : std::string();
}

std::vector<std::string> PreferencesStore::stringsForKey(std::string_view key) const {
    std::vector<std::string> strings;
    const PropertyValue* value = valueForKey(key);
    if (value != nullptr && value->is_array()) {
        for (const PropertyValue& each : *value) {
            if (each.is_string()) {
                strings.push_back(each.get<std::string>());
            }
        }
    }
    return strings;
}

PropertyValue PreferencesStore::dictionaryForKey(std::string_view key) const {
    const PropertyValue* value = valueForKey(key);
    return value != nullptr && value->is_object() ? *value : PropertyValue::object();
}

}  // namespace tonquil
