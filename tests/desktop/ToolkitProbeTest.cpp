// SPDX-License-Identifier: MIT
#include "platform/dbus/ToolkitProbe.h"

#include <gtest/gtest.h>
#include <sys/socket.h>
#include <sys/un.h>

#include <algorithm>
#include <optional>
#include <vector>

#include "platform/dbus/BusAddresses.h"
#include "tests/desktop/PrivateBus.h"
#include "tests/support/FileDescriptor.h"
#include "tests/support/ManualRunLoop.h"

namespace tonquil {
namespace {

using namespace std::chrono_literals;

/// A bus that sends the same to every client, whatever the request, and then nothing more.
class HangingBus {
 public:
    explicit HangingBus(std::string words) : _words(std::move(words)) {
        sockaddr_un name{.sun_family = AF_UNIX, .sun_path = {}};
        const std::string path = _folder.path() / "bus";
        std::copy(path.begin(), path.end(), std::begin(name.sun_path));
        // NOLINTNEXTLINE(cppcoreguidelines-pro-type-reinterpret-cast): what the system asks for.
        const auto* const generic = reinterpret_cast<const sockaddr*>(&name);
        EXPECT_EQ(bind(_socket.get(), generic, sizeof name), 0);
        EXPECT_EQ(listen(_socket.get(), 8), 0);
    }
    [[nodiscard]] std::string address() const {
        return "unix:path=" + (_folder.path() / "bus").native();
    }
    /// Sends to all clients that have connected meanwhile.
    void speak() {
        const int client = accept(_socket.get(), nullptr, nullptr);
        if (client >= 0) {
            _clients.emplace_back(client);
            EXPECT_EQ(send(client, _words.data(), _words.size(), 0),
                      static_cast<ssize_t>(_words.size()));
        }
    }

 private:
    std::string _words;
    ScratchFolder _folder;
    FileDescriptor _socket{socket(AF_UNIX, SOCK_STREAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0)};
    std::vector<FileDescriptor> _clients;
};

/// Probes until a speaking bus has sent everything and every working bus has answered.
ToolkitProbe::Obstacles probe(const ToolkitProbe::Addresses& addresses,
                              const std::function<void()>& speak) {
    ManualRunLoop loop;
    ToolkitProbe probe(loop);
    std::optional<ToolkitProbe::Obstacles> found;
    probe.start(addresses, [&](const auto& obstacles) { found = obstacles; });
    do {
        loop.advance(0ms);
        speak();
    } while (loop.pollReadable(100ms) > 0);
    loop.advance(ToolkitProbe::longestTime);
    EXPECT_TRUE(found);
    return found.value_or(ToolkitProbe::Obstacles{});
}

TEST(ToolkitProbe, KeepsHangingBusFromQt) {
    const std::string ok = "OK 0123456789abcdef0123456789abcdef\r\n";
    for (const std::string& words :
         {std::string(), std::string("NONSENSE\r\n"), std::string("REJECTED\r\n"), ok,
          ok + "AGREE_UNIX_FD\r\n", ok + "AGREE_UNIX_FD\r\n" + std::string(64, '\xFF')}) {
        SCOPED_TRACE(words);
        HangingBus bus(words);
        const auto speak = [&] { bus.speak(); };
        const auto session = probe({.session = bus.address()}, speak);
        EXPECT_NE(session.session, "");
        EXPECT_EQ(session.tray + session.accessibility, "") << "One line says it all.";
        for (const bool isAnnounced : {false, true}) {
            const PrivateBus works("DBUS_SESSION_BUS_ADDRESS");
            ToolkitProbe::Addresses addresses{.session = sessionBusAddress()};
            (isAnnounced ? addresses.announced : addresses.accessibility) = bus.address();
            const auto assistance = probe(addresses, speak);
            EXPECT_EQ(assistance.session + assistance.tray, "");
            EXPECT_NE(assistance.accessibility, "");
        }
    }
}

TEST(ToolkitProbe, KeepsSilentServiceFromQt) {
    for (const bool isTray : {false, true}) {
        PrivateBus session("DBUS_SESSION_BUS_ADDRESS");
        // A service that stays silent: it would answer from Qt's events, which do not run here.
        session.serve(isTray ? "org.kde.StatusNotifierWatcher" : "org.a11y.Bus", "/", {});
        const auto found = probe({.session = sessionBusAddress()}, [] {});
        EXPECT_EQ(found.session, "");
        EXPECT_EQ(found.tray.empty(), !isTray);
        EXPECT_EQ(found.accessibility.empty(), isTray);
    }
}

}  // namespace
}  // namespace tonquil
