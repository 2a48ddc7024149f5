// SPDX-License-Identifier: MIT
#include "platform/xdg/PropertyListPreferences.h"

#include <fcntl.h>
#include <sys/file.h>

#include <algorithm>
#include <cerrno>
#include <exception>
#include <thread>
#include <utility>

#include "platform/xdg/Folder.h"
#include "plist/PropertyListWriter.h"

namespace tonquil {

namespace {

using std::chrono::milliseconds;

constexpr milliseconds firstRetry(20);
constexpr milliseconds longestRetry(1000);

/// Equality to the byte: the library's own has no not-a-number equal to another, and an integer
/// equal to a real.
bool isSame(const PropertyValue& a, const PropertyValue& b) {
    return PropertyValue::to_cbor(a) == PropertyValue::to_cbor(b);
}

}  // namespace

class PropertyListPreferences::OwnSubscription final : public Subscription {
 public:
    explicit OwnSubscription(std::shared_ptr<Subscriber> subscriber)
        : _subscriber(std::move(subscriber)) {}

 private:
    std::shared_ptr<Subscriber> _subscriber;
};

void PropertyListPreferences::Trouble::begin(const PropertyListPreferences& store,
                                             std::string_view line) {
    if (!std::exchange(_isKnown, true)) {
        store.log(line);
    }
}

PropertyListPreferences::PropertyListPreferences(std::filesystem::path file, RunLoop& runLoop,
                                                 Log log, milliseconds longestWait)
    : _file(std::move(file)),
      _runLoop(runLoop),
      _log(std::move(log)),
      _longestWait(longestWait),
      _watch(runLoop, _file.path(), [this] { take(_file.read()); }) {
    // Before the file is read, so that nothing happens unseen in between.
    watchFolder();
    PropertyListFile::Contents contents = _file.read();
    if (contents.state == PropertyListFile::State::Damaged) {
        saveOrRetry();
    } else {
        take(std::move(contents));
    }
}

PropertyListPreferences::~PropertyListPreferences() {
    try {
        PropertyListPreferences::synchronize();
    } catch (const std::exception&) {
        // Out of memory: what the file holds stays whole.
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
        saveOrRetry();
    }
    std::erase_if(_subscribers, [](const auto& subscriber) { return subscriber.expired(); });
    // A handler may set values, which is another event, subscribe, unsubscribe, or end the store.
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
        _watching.begin(*this, watched.error().sentence);
    }
}

void PropertyListPreferences::take(PropertyListFile::Contents contents) {
    if (contents.state == PropertyListFile::State::Missing ||
        contents.state == PropertyListFile::State::Read) {
        _reading.end();
        adopt(std::move(contents.dictionary));
    } else {
        _reading.begin(*this, contents.reason + " The program goes on without it.");
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

std::optional<FileHandle> PropertyListPreferences::lock() const {
    const std::string path = _file.path().native() + ".lock";
    FileHandle file(::open(path.c_str(), O_RDWR | O_CREAT | O_NOFOLLOW | O_CLOEXEC, 0600));
    if (::flock(file.get(), LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK) {
        return std::nullopt;
    }
    // Where there can be no lock, the file is still replaced as a whole.
    return file;
}

void PropertyListPreferences::saveOrRetry() {
    watchFolder();
    if (const auto held = lock()) {
        save();
        return;
    }
    _retryDelay = std::clamp(2 * _retryDelay, firstRetry, longestRetry);
    _retry = _runLoop.callOnce(_retryDelay, [this] { saveOrRetry(); });
}

bool PropertyListPreferences::synchronize() {
    if (!_unsaved.empty()) {
        watchFolder();
        const auto held = lockWithinLimit();
        save();
    } else {
        // A network's file systems tell nothing of what others write.
        take(_file.read());
    }
    return _unsaved.empty() && _refused.empty();
}

std::optional<FileHandle> PropertyListPreferences::lockWithinLimit() const {
    constexpr milliseconds step(10);
    auto held = lock();
    for (milliseconds waited{}; !held && waited < _longestWait; waited += step) {
        std::this_thread::sleep_for(step);
        held = lock();
    }
    if (!held) {
        log(_file.path().native() + " stays locked by another program and is saved all the same.");
    }
    return held;
}

void PropertyListPreferences::save() {
    _retry.reset();
    _retryDelay = {};
    PropertyListFile::Contents contents = _file.read();
    if (contents.state == PropertyListFile::State::Unreadable) {
        _saving.begin(*this, contents.reason + " Settings are not saved.");
        return;
    }
    if (contents.state == PropertyListFile::State::Damaged && !moveAside(contents.reason)) {
        return;
    }
    _reading.end();
    adopt(contents.dictionary);
    if (!isSame(_values, contents.dictionary)) {
        if (const auto written = _file.write(_values); !written) {
            _saving.begin(*this, written.error().sentence);
            return;
        }
    }
    _unsaved.clear();
    _saving.end();
}

bool PropertyListPreferences::moveAside(const std::string& reason) {
    const auto aside = _file.moveAside();
    if (!aside) {
        _saving.begin(*this, reason + " " + aside.error().sentence);
        return false;
    }
    log(reason + " It was kept as " + aside->native() + ".");
    // What was read before the damage is in no file any more.
    for (const auto& item : _values.items()) {
        _unsaved.insert(item.key());
    }
    return true;
}

void PropertyListPreferences::log(std::string_view line) const {
    if (_log) {
        _log(line);
    }
}

}  // namespace tonquil
