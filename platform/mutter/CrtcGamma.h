// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <vector>

#include "platform/mutter/MutterGamma.h"

namespace tonquil {

/// The ramps of the hardware behind the monitors, which any program can set at any time, as older
/// compositors have it.
///
/// Each request names the state of the hardware that it is about; where the compositor knows a
/// newer one by then, that is read and the ramp is sent once more.
class CrtcGamma final : public MutterGamma {
 public:
    explicit CrtcGamma(Host host) : _host(std::move(host)) {}

    void setMonitors(const std::vector<std::string>& connectors) override;
    void hold(const std::string& connector) override;
    void release(const std::string& connector) override;
    [[nodiscard]] State state(const std::string& connector) const override;
    [[nodiscard]] bool isIdle() const override { return _answersDue == 0; }

 private:
    struct Monitor {
        State state;
        /// -1 while nothing drives it.
        std::int32_t crtc = -1;
        bool isHeld = false;
        bool isSetting = false;
        bool isRampUnsent = false;
        bool isSecondTry = false;
    };

    void ask(const char* method, const std::vector<BusConnection::Argument>& arguments,
             BusConnection::Call answered, const std::function<void()>& failed);
    void readResources();
    void takeResources(BusArguments& resources);
    void readSize(const std::string& connector, const Monitor& monitor);
    void takeSize(const std::string& connector, std::uint32_t size);
    void send(const std::string& connector);
    void sendRamp(const std::string& connector, Monitor& monitor);
    void answered(const std::string& connector, bool isTaken);

    Host _host;
    std::map<std::string, Monitor> _monitors;
    std::uint32_t _serial = 0;
    std::size_t _answersDue = 0;
    bool _isReading = false;
};

}  // namespace tonquil
