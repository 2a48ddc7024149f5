// SPDX-License-Identifier: MIT
#include "platform/xdg/PropertyListPreferences.h"

#include <algorithm>
#include <exception>
#include <utility>

#include "platform/folders/Folder.h"
#include "plist/PropertyListWriter.h"

namespace tonquil {

namespace {

using std::chrono::milliseconds;

// While another process is saving.
constexpr milliseconds firstRetry(20);
constexpr milliseconds longestRetry(1000);
// While the disk is full or cannot be written to.
constexpr milliseconds retryAfterFailure(2000);

}  // namespace

class PropertyListPreferences::OwnSubscription final : public Subscription {
 public:
    explicit OwnSubscription(std::shared_ptr<Subscriber> subscriber)
        : _subscriber(std::move(subscriber)) {}

 private:
    std::shared_ptr<Subscriber> _subscriber;
};

PropertyListPreferences::PropertyListPreferences(std::filesystem::path file, RunLoop& runLoop,
                                                 DiskQueue& disk, SaveReports reports,
                                                 milliseconds longestWait)
    : _file(std::move(file)),
      _runLoop(runLoop),
      _disk(disk),
      _log(reports.log),
      _longestWait(longestWait),
      _watch(runLoop, _file.path(), [this] { readAgain(); }),
      _watching({.log = reports.log}),
      _reading({.log = reports.log}),
      _saving(std::move(reports)) {
    // Before the file is read, so that no change is missed in between.
    watchFolder();
    PropertyListFile::Contents contents = _file.read();
    if (contents.state == PropertyListFile::State::Damaged) {
        save();
    } else {
        take(std::move(contents));
    }
}

PropertyListPreferences::~PropertyListPreferences() {
    try {
        PropertyListPreferences::synchronize();
    } catch (const std::exception&) {
        // Out of memory: the file stays intact.
        return;
    }
}

const PropertyValue* PropertyListPreferences::valueForKey(std::string_view key) const {
    const PropertyValue* stored = entry(_values, key);
    return stored != nullptr ? stored : entry(_defaults, key);
}

void PropertyListPreferences::registerDefaults(PropertyValue defaults) {
    if (defaults.is_object()) {
        _defaults.update(defaults);
    }
}

void PropertyListPreferences::setValue(std::string_view key, PropertyValue value) {
    const std::string name(key);
    if (value.is_null()) {
        _values.erase(name);
    } else {
        PropertyValue alone = PropertyValue::object();
        alone[name] = std::move(value);
        if (const auto text = writePropertyList(alone, PropertyListFile::budget()); !text) {
            if (_refused.insert(name).second) {
                log(name + " cannot be set so. " + text.error().sentence);
            }
            return;
        }
        _values.update(alone);
    }
    _refused.erase(name);
    _unsaved.insert(name);
    noteChange();
}

std::unique_ptr<PreferencesStore::Subscription> PropertyListPreferences::subscribe(
    std::function<void()> changed) {
    auto subscriber =
        std::make_shared<Subscriber>(Subscriber{.changed = std::move(changed), .told = _changes});
    _subscribers.push_back(subscriber);
    return std::make_unique<OwnSubscription>(std::move(subscriber));
}

void PropertyListPreferences::noteChange() {
    ++_changes;
    if (!std::exchange(_isEndPosted, true)) {
        _runLoop.post([this, alive = std::weak_ptr(_alive)] {
            if (!alive.expired()) {
                endEvent();
            }
        });
    }
}

void PropertyListPreferences::endEvent() {
    _isEndPosted = false;
    if (!_unsaved.empty()) {
        save();
    }
    std::erase_if(_subscribers, [](const auto& subscriber) { return subscriber.expired(); });
    // A handler may set values, which counts as another event, subscribe, unsubscribe, or destroy
    // the store.
    const std::uint64_t latest = _changes;
    const std::weak_ptr alive(_alive);
    const auto subscribers = _subscribers;
    for (const auto& weak : subscribers) {
        const auto subscriber = weak.lock();
        if (subscriber && subscriber->told < latest) {
            subscriber->told = latest;
            subscriber->changed();
            if (alive.expired()) {
                return;
            }
        }
    }
}

void PropertyListPreferences::watchFolder() {
    const auto watched =
        makeFolder(_file.path().parent_path()).and_then([this] { return _watch.renew(); });
    if (watched) {
        _watching.end();
    } else {
        _watching.begin(watched.error());
    }
}

void PropertyListPreferences::take(PropertyListFile::Contents contents) {
    if (contents.state == PropertyListFile::State::Missing ||
        contents.state == PropertyListFile::State::Read) {
        _reading.end();
        adopt(std::move(contents.dictionary));
    } else {
        _reading.begin(
            {.sentence = contents.reason() + " The program goes on without it.", .detail = {}});
    }
}

void PropertyListPreferences::adopt(PropertyValue dictionary) {
    for (const std::string& key : _unsaved) {
        if (const PropertyValue* ours = entry(_values, key)) {
            dictionary[key] = *ours;
        } else {
            dictionary.erase(key);
        }
    }
    if (!isSame(dictionary, _values)) {
        _values = std::move(dictionary);
        noteChange();
    }
}

// During a save, the file may be between two renames, so it is read afterwards.
void PropertyListPreferences::readAgain() {
    if (!_isSaving) {
        take(_file.read());
    }
}

// Values set during a save go into the next one.
void PropertyListPreferences::save() {
    _retry.reset();
    if (std::exchange(_isSaving, true)) {
        return;
    }
    const auto job = std::make_shared<PreferencesSave>(newSave());
    _disk.add([job] { job->run(); },
              [this, job, alive = std::weak_ptr(_alive)] {
                  if (!alive.expired()) {
                      endSave(*job);
                  }
              });
}

PreferencesSave PropertyListPreferences::newSave() {
    _underway = std::exchange(_unsaved, {});
    return {.file = _file, .values = _values, .changed = _underway};
}

void PropertyListPreferences::endSave(const PreferencesSave& save) {
    for (const std::string& note : save.notes) {
        log(note);
    }
    const bool isSaved = save.outcome == PreferencesSave::Outcome::Saved;
    if (!isSaved) {
        _unsaved.merge(_underway);
    }
    if (!isSaved && save.hasMovedAside) {
        for (const auto& item : _values.items()) {
            _unsaved.insert(item.key());
        }
    }
    _underway.clear();
    _isSaving = false;
    watchFolder();
    // Others may have saved since, and the notification may have come while nobody listened.
    take(_file.read());
    if (save.outcome == PreferencesSave::Outcome::Locked) {
        retryIn(std::clamp(2 * _retryDelay, firstRetry, longestRetry));
        return;
    }
    if (!isSaved) {
        _saving.begin(save.problem);
        retryIn(retryAfterFailure);
        return;
    }
    _retryDelay = {};
    _saving.end();
    if (!_unsaved.empty()) {
        this->save();
    }
}

void PropertyListPreferences::retryIn(milliseconds delay) {
    _retryDelay = delay;
    _retry = _runLoop.callOnce(delay, [this] { save(); });
}

bool PropertyListPreferences::synchronize() {
    _disk.finish();
    if (_unsaved.empty()) {
        // Network file systems do not report what other hosts write.
        take(_file.read());
    } else {
        PreferencesSave save = newSave();
        save.longestWait = _longestWait;
        save.run();
        endSave(save);
    }
    return _unsaved.empty() && _refused.empty();
}

void PropertyListPreferences::log(std::string_view line) const {
    if (_log) {
        _log(line);
    }
}

}  // namespace tonquil
