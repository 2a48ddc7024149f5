// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <cstddef>
#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include "foundation/Log.h"
#include "foundation/Problem.h"
#include "foundation/RunLoop.h"

namespace tonquil {

/// Hears what later starts of the program ask of this first one. With it the place of the first
/// becomes free.
class InstanceListener {
 public:
    virtual ~InstanceListener() = default;
};

/// Lets one instance of the program run for a person, and later starts hand over to it.
///
/// The place is a UNIX socket in a folder that only this user may enter. What decides who is first
/// is a lock on the file beside it ("<path>.lock"), which the system frees however a program ends:
/// of starts at the same moment one wins, and the socket of a killed program is taken over.
class InstanceSocket {
 public:
    /// Called on the main thread with one request; gives the answer, one line without its newline.
    /// It may destroy the listener.
    using Handler = std::function<std::string(std::string request)>;

    /// The largest request and the largest answer, in bytes.
    static constexpr std::size_t mostBytes = std::size_t{64} * 1024;
    /// How long a start waits for the answer of the instance that runs.
    static constexpr std::chrono::milliseconds answerTime = std::chrono::seconds(5);
    /// How long a start may take to send its request before it is dropped.
    static constexpr std::chrono::milliseconds requestTime = std::chrono::seconds(2);
    /// How many requests are read at once; further ones wait their turn.
    static constexpr std::size_t mostClients = 8;

    /// Takes the place at `path`; null where another instance holds it.
    ///
    /// The folder of `path` is made if it is missing (not its parents). Fails when the folder is
    /// not this user's alone, when `path` is too long for a socket (about 100 bytes), or when the
    /// system refuses. Peers that are refused are told to the log.
    [[nodiscard]] static Result<std::unique_ptr<InstanceListener>> claim(
        const std::filesystem::path& path, RunLoop& runLoop, Handler handler, Log log = {});

    /// Sends one request to the instance that runs and waits for its answer, without a run loop.
    ///
    /// Blocks for at most `limit`. Fails with a sentence for the person when no instance answers
    /// by then, or when `request` is larger than `mostBytes` or holds a zero byte.
    [[nodiscard]] static Result<std::string> handOver(const std::filesystem::path& path,
                                                      std::string_view request,
                                                      std::chrono::milliseconds limit = answerTime);
};

}  // namespace tonquil
