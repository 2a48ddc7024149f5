// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <cstdint>
#include <set>
#include <string>
#include <vector>

#include "app/preferences/PreferencesStore.h"
#include "files/DiskQueue.h"
#include "foundation/RunLoop.h"
#include "platform/xdg/FileWatch.h"
#include "platform/xdg/PreferencesSave.h"
#include "platform/xdg/PropertyListFile.h"
#include "platform/xdg/SaveReports.h"

namespace tonquil {

/// Settings in a property list, mode 0600, that several processes may use at once.
///
/// Saving applies the keys that were set here on top of the file's current content; a side file
/// <name>.lock keeps others from saving meanwhile. It happens off the event loop, so that a slow
/// disk does not block it. Values that cannot be saved stay readable; the failure is reported once,
/// and saving is retried every two seconds, with the next value and by `synchronize`. A damaged
/// file is moved aside at startup, and later when something has to be saved; until then the values
/// read from it before still count. An unreadable file is left as it is. If the file is removed,
/// its values are gone.
///
/// Null removes a key, so that its default shows. A value that a property list cannot hold is not
/// set: it is logged, and `synchronize` returns false until the key gets another one.
class PropertyListPreferences final : public PreferencesStore {
 public:
    /// Reads the file, and creates its folder, so that changes by others can be seen. `runLoop` and
    /// `disk` must outlive the store. Only `synchronize` waits for a lock, `longestWait` of real
    /// time at most, and then saves without it.
    PropertyListPreferences(std::filesystem::path file, RunLoop& runLoop, DiskQueue& disk,
                            SaveReports reports,
                            std::chrono::milliseconds longestWait = std::chrono::seconds(2));
    /// Saves everything still unsaved.
    ~PropertyListPreferences() override;
    PropertyListPreferences(const PropertyListPreferences&) = delete;
    PropertyListPreferences& operator=(const PropertyListPreferences&) = delete;

    /// Adds to the defaults registered before.
    void registerDefaults(PropertyValue defaults) override;
    void setValue(std::string_view key, PropertyValue value) override;
    bool synchronize() override;
    /// The subscription may outlive the store.
    [[nodiscard]] std::unique_ptr<Subscription> subscribe(std::function<void()> changed) override;

 private:
    struct Subscriber {
        std::function<void()> changed;
        /// The number of the last change that it was notified of, or that was made before it
        /// subscribed.
        std::uint64_t told = 0;
    };
    class OwnSubscription;

    [[nodiscard]] const PropertyValue* valueForKey(std::string_view key) const override;
    void log(std::string_view line) const;

    void noteChange();
    void endEvent();
    void watchFolder();
    void take(PropertyListFile::Contents contents);
    /// Applies unsaved changes on top of the file's content.
    void adopt(PropertyValue dictionary);
    void readAgain();
    void save();
    /// Includes all changes that are not saved yet.
    [[nodiscard]] PreferencesSave newSave();
    void endSave(const PreferencesSave& save);
    void retryIn(std::chrono::milliseconds delay);

    PropertyListFile _file;
    RunLoop& _runLoop;
    DiskQueue& _disk;
    Log _log;
    std::chrono::milliseconds _longestWait;
    FileWatch _watch;

    PropertyValue _defaults = PropertyValue::object();
    /// The effective stored values: the file, with what was set here on top.
    PropertyValue _values = PropertyValue::object();
    /// The keys that were set or removed since the last save.
    std::set<std::string> _unsaved;
    /// Those of them that are being saved now.
    std::set<std::string> _underway;
    bool _isSaving = false;
    /// The keys whose last value cannot be saved.
    std::set<std::string> _refused;

    std::uint64_t _changes = 0;
    bool _isEndPosted = false;
    std::vector<std::weak_ptr<Subscriber>> _subscribers;

    std::chrono::milliseconds _retryDelay{};
    std::unique_ptr<RunLoop::Handle> _retry;
    RepeatedProblem _watching;
    RepeatedProblem _reading;
    RepeatedProblem _saving;
    /// Posted work holds a weak reference, and does nothing once the store is gone.
    std::shared_ptr<const bool> _alive = std::make_shared<const bool>(true);
};

}  // namespace tonquil
