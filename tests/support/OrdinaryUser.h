// SPDX-License-Identifier: MIT
#pragma once

#include <sys/prctl.h>
#include <unistd.h>

namespace tonquil {

/// While it lives, this process lacks root's privilege to bypass file permissions.
class OrdinaryUser {
 public:
    OrdinaryUser() {
        constexpr unsigned nobody = 65534;
        _isChanged = ::geteuid() == 0 && ::setegid(nobody) == 0 && ::seteuid(nobody) == 0;
    }
    ~OrdinaryUser() {
        if (_isChanged && ::seteuid(0) == 0 && ::setegid(0) == 0) {
            // Changing the user disables ptrace, which the leak sanitizer needs.
            ::prctl(PR_SET_DUMPABLE, 1);
        }
    }
    OrdinaryUser(const OrdinaryUser&) = delete;
    OrdinaryUser& operator=(const OrdinaryUser&) = delete;

 private:
    bool _isChanged;
};

}  // namespace tonquil
