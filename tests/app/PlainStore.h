// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "app/desktop/Alerts.h"
#include "app/preferences/PreferencesStore.h"

namespace tonquil {

/// Preferences in memory, with the defaults among them. Subscribers are only called by `tell`.
class PlainStore final : public PreferencesStore {
 public:
    void registerDefaults(PropertyValue defaults) override {
        defaults.update(stored);
        stored = std::move(defaults);
    }
    void setValue(std::string_view key, PropertyValue value) override {
        stored[std::string(key)] = std::move(value);
        written.emplace_back(key);
        wasSet(key);
    }
    bool synchronize() override {
        saved = stored;
        return isWritable;
    }
    [[nodiscard]] std::unique_ptr<Subscription> subscribe(std::function<void()> changed) override {
        subscribers.push_back(std::move(changed));
        return std::make_unique<Subscription>();
    }
    /// Ends an event that changed something: calls the subscribers.
    void tell() const {
        for (const auto& changed : subscribers) {
            changed();
        }
    }

    PropertyValue stored = PropertyValue::object();
    /// The contents on disk.
    PropertyValue saved = PropertyValue::object();
    /// The keys that were set, in order.
    std::vector<std::string> written;
    std::vector<std::function<void()>> subscribers;
    std::function<void(std::string_view key)> wasSet = [](std::string_view) {};
    bool isWritable = true;

 private:
    [[nodiscard]] const PropertyValue* valueForKey(std::string_view key) const override {
        return entry(stored, key);
    }
};

/// A user who answers every alert with `answer`.
class ScriptedAlerts final : public Alerts {
 public:
    [[nodiscard]] std::size_t runModal(const Alert& alert) override {
        shown.push_back(alert);
        return answer;
    }

    std::size_t answer = 0;
    std::vector<Alert> shown;
};

}  // namespace tonquil
