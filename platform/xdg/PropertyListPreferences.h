// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <cstdint>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "app/preferences/PreferencesStore.h"
#include "files/FileHandle.h"
#include "foundation/Log.h"
#include "foundation/RunLoop.h"
#include "platform/xdg/FileWatch.h"
#include "platform/xdg/PropertyListFile.h"

namespace tonquil {

/// Settings in a property list, mode 0600, that several processes may use at once.
///
/// Saving lays the keys that were set here over what the file holds by then; a side file
/// <name>.lock keeps others from saving meanwhile. What cannot be saved stays readable, has one
/// line in the log, and is tried again with the next value and by `synchronize`. A damaged file is
/// moved aside at the start, and later when something has to be saved; until then the values that
/// were read from it before count. One that may not be read is left as it is. Of a file that is
/// removed, no values remain.
///
/// A null takes the key away, so that its default shows. A value that a property list cannot hold
/// is not set: the log has a line, and `synchronize` answers false until the key gets another one.
class PropertyListPreferences final : public PreferencesStore {
 public:
    /// Reads the file, and makes its folder, so that others' changes in it can be seen. `runLoop`
    /// must outlive the store. Only `synchronize` waits for a lock, `longestWait` of real time at
    /// most, and then saves without it.
    PropertyListPreferences(std::filesystem::path file, RunLoop& runLoop, Log log,
                            std::chrono::milliseconds longestWait = std::chrono::seconds(2));
    /// Saves what still waits to be saved.
    ~PropertyListPreferences() override;
    PropertyListPreferences(const PropertyListPreferences&) = delete;
    PropertyListPreferences& operator=(const PropertyListPreferences&) = delete;

    /// Adds to those registered before.
    void registerDefaults(PropertyValue defaults) override;
    void setValue(std::string_view key, PropertyValue value) override;
    bool synchronize() override;
    /// The subscription may outlive the store.
    [[nodiscard]] std::unique_ptr<Subscription> subscribe(std::function<void()> changed) override;

 private:
    struct Subscriber {
        std::function<void()> changed;
        /// The number of the last change that it was told, or that was made before it.
        std::uint64_t told = 0;
    };
    class OwnSubscription;

    /// Something that fails again and again, and has one line in the log until it works.
    class Trouble {
     public:
        void begin(const PropertyListPreferences& store, std::string_view line);
        void end() { _isKnown = false; }

     private:
        bool _isKnown = false;
    };

    [[nodiscard]] const PropertyValue* valueForKey(std::string_view key) const override;
    void log(std::string_view line) const;

    void noteChange();
    void endEvent();
    void watchFolder();
    void take(PropertyListFile::Contents contents);
    /// Lays what is not saved yet over what the file holds.
    void adopt(PropertyValue dictionary);
    /// Nothing while another program holds the lock.
    [[nodiscard]] std::optional<FileHandle> lock() const;
    [[nodiscard]] std::optional<FileHandle> lockWithinLimit() const;
    void saveOrRetry();
    void save();
    [[nodiscard]] bool moveAside(const std::string& reason);

    PropertyListFile _file;
    RunLoop& _runLoop;
    Log _log;
    std::chrono::milliseconds _longestWait;
    FileWatch _watch;

    PropertyValue _defaults = PropertyValue::object();
    /// What counts as stored: the file, and over it what was set here.
    PropertyValue _values = PropertyValue::object();
    /// The keys that were set, or taken away, since the last save.
    std::set<std::string> _unsaved;
    /// The keys that were last given a value that cannot be saved.
    std::set<std::string> _refused;

    std::uint64_t _changes = 0;
    bool _isEndPosted = false;
    std::vector<std::weak_ptr<Subscriber>> _subscribers;

    std::chrono::milliseconds _retryDelay{};
    std::unique_ptr<RunLoop::Handle> _retry;
    Trouble _watching;
    Trouble _reading;
    Trouble _saving;
    /// Posted work holds it weakly, and does nothing once the store is gone.
    std::shared_ptr<const bool> _alive = std::make_shared<const bool>(true);
};

}  // namespace tonquil
