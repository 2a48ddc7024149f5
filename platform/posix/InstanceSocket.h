// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <cstddef>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <variant>

#include "foundation/Log.h"
#include "foundation/Problem.h"
#include "foundation/RunLoop.h"

namespace tonquil {

/// Receives the requests of later instances. Destroying it frees the first instance's place.
class InstanceListener {
 public:
    virtual ~InstanceListener() = default;
};

/// Lets a user run a single instance of the program; later instances hand their requests over to
/// it.
///
/// The place is a UNIX socket in a folder that only this user may enter. A lock on the file beside
/// it ("<path>.lock") decides who is first; the system releases it however a program ends. Of
/// simultaneous starts one wins, and the socket of a killed program is taken over.
class InstanceSocket {
 public:
    /// Called on the main thread with one request; returns the answer, one line without its
    /// newline. It may destroy the listener.
    using Handler = std::function<std::string(std::string request)>;

    /// The maximum size of a request and of an answer, in bytes.
    static constexpr std::size_t mostBytes = std::size_t{64} * 1024;
    /// How long a later instance waits for the first one's answer.
    static constexpr std::chrono::milliseconds answerTime = std::chrono::seconds(5);
    /// How long a client may take to send its request before it is dropped.
    static constexpr std::chrono::milliseconds requestTime = std::chrono::seconds(2);
    /// How many requests are read at once; further ones wait their turn.
    static constexpr std::size_t mostClients = 8;

    /// Takes the place at `path`; null if another instance holds it.
    ///
    /// Creates the folder of `path` if it is missing (not its parents). Fails if the folder is not
    /// exclusively this user's, if `path` is too long for a socket (about 100 bytes), or on a
    /// system error. Refused peers are logged.
    [[nodiscard]] static Result<std::unique_ptr<InstanceListener>> claim(
        const std::filesystem::path& path, RunLoop& runLoop, Handler handler, Log log = {});

    /// Sends one request to the running instance and waits for its answer, without a run loop.
    ///
    /// Nothing, without waiting, if no instance is listening or the one that was ends before it
    /// answers. Blocks for at most `limit`; fails with a message for the user if no answer arrives
    /// by then, or if `request` is larger than `mostBytes` or contains a zero byte.
    [[nodiscard]] static std::optional<Result<std::string>> handOver(
        const std::filesystem::path& path, std::string_view request,
        std::chrono::milliseconds limit = answerTime);

    /// What a start becomes: the first instance, or a later one with the first one's answer.
    using Start = std::variant<std::unique_ptr<InstanceListener>, std::string>;

    /// `claim`, or, if another instance holds the place, `handOver`; an instance that ends
    /// meanwhile leaves its place to this one. Blocks for at most `limit`.
    [[nodiscard]] static Result<Start> claimOrHandOver(
        const std::filesystem::path& path, std::string_view request, RunLoop& runLoop,
        const Handler& handler, const Log& log = {}, std::chrono::milliseconds limit = answerTime);
};

}  // namespace tonquil
