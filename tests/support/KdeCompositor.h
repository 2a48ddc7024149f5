// SPDX-License-Identifier: MIT
#pragma once

#include <atomic>
#include <cstdint>
#include <future>
#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "platform/ramp/HardwareRamp.h"
#include "tests/support/TestCompositor.h"

namespace tonquil {

/// A compositor with KDE's interfaces for outputs. As the real one does, it reads a profile
/// whenever its path is set, keeps the path when the client is gone, and refuses a change that was
/// begun before an output came or went.
class KdeCompositor : public TestCompositor {
 public:
    /// A profile's path, and the source: 0 none, 1 the profile.
    using Choice = std::pair<std::string, std::uint32_t>;

    KdeCompositor();
    ~KdeCompositor();

    /// An output of 1920 by 1080 pixels at (x, 0); it has the settings that it had before.
    void plug(const std::string& name, int x, std::uint32_t serial, double scale = 1);
    void unplug(const std::string& name);
    /// What a person does in the desktop's settings.
    void choose(const std::string& name, const Choice& choice);
    void setHdr(const std::string& name, bool isOn);
    /// Refuses as many changes.
    void refuse(int count);
    /// Stops when the next change of a client has come, until `goOn`.
    void stopAtChange();
    [[nodiscard]] bool isStopped() const { return _isStopped; }
    /// `isHeard`: whether it looks at the change, or forgets it.
    void goOn(bool isHeard) { _goOn.set_value(isHeard); }

    [[nodiscard]] Choice choice(const std::string& name);
    /// The calibration of the profile in force, a straight line without one.
    [[nodiscard]] HardwareRamp ramp(const std::string& name);
    /// How many changes clients have made.
    [[nodiscard]] int changes();

    struct Output;

 private:
    struct Requests;
    struct Change;
    [[nodiscard]] bool pass();

    std::map<std::string, Choice> _choices;
    std::map<std::string, Output*> _plugged;
    /// Those that were unplugged stay: clients may still hold them.
    std::vector<std::unique_ptr<Output>> _outputs;
    int _refusals = 0;
    int _changes = 0;
    bool _isToStop = false;
    std::atomic<bool> _isStopped = false;
    std::promise<bool> _goOn;
};

}  // namespace tonquil
