// SPDX-License-Identifier: MIT
#include "remote/AnswerLimits.h"

namespace tonquil {

bool AnswerLimits::take(std::uint32_t host, TokenBucket::Time now) {
    // Checked first, so that forged hosts do not even get into the table.
    if (!_all.has(now)) {
        return false;
    }
    auto entry = _hosts.find(host);
    if (entry == _hosts.end()) {
        if (_hosts.size() >= mostHosts) {
            forgetIdleHosts(now);
        }
        if (_hosts.size() >= mostHosts) {
            return false;
        }
        entry = _hosts.try_emplace(host, forOneHost).first;
    }
    return entry->second.take(now) && _all.take(now);
}

void AnswerLimits::forgetIdleHosts(TokenBucket::Time now) {
    std::erase_if(_hosts, [now](const auto& entry) { return entry.second.isFull(now); });
}

}  // namespace tonquil
