// SPDX-License-Identifier: MIT
#pragma once

#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <filesystem>
#include <functional>
#include <string>

namespace tonquil {

/// Lets every user work in the folder, also the one that `asOrdinaryUser` becomes.
inline void openToOrdinaryUser(const std::filesystem::path& folder) {
    ::chmod(folder.c_str(), 0777);
}

/// What the call returns when it is made without the privileges that root has over permissions:
/// in a child process of another user if need be.
[[nodiscard]] inline std::string asOrdinaryUser(const std::function<std::string()>& call) {
    if (::geteuid() != 0) {
        return call();
    }
    std::array<int, 2> ends{};
    if (::pipe(ends.data()) != 0) {
        return "no pipe";
    }
    const pid_t child = ::fork();
    if (child == 0) {
        constexpr unsigned nobody = 65534;
        std::string answer = "the user could not be changed";
        if (::setresgid(nobody, nobody, nobody) == 0 && ::setresuid(nobody, nobody, nobody) == 0) {
            answer = call();
        }
        const bool told = ::write(ends[1], answer.data(), answer.size()) >= 0;
        ::_exit(told ? 0 : 1);
    }
    ::close(ends[1]);
    std::string answer;
    std::array<char, 4096> part{};
    for (ssize_t count = 0; (count = ::read(ends[0], part.data(), part.size())) > 0;) {
        answer.append(part.data(), static_cast<std::size_t>(count));
    }
    ::close(ends[0]);
    ::waitpid(child, nullptr, 0);
    return answer;
}

}  // namespace tonquil
