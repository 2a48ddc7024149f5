// SPDX-License-Identifier: MIT
#include "remote/MachineGuid.h"

namespace tonquil {

namespace {

std::string hexadecimal(const LocalHost::HardwareAddress& address) {
    static constexpr std::string_view digits = "0123456789abcdef";
    std::string text;
    for (const unsigned byte : address) {
        text += digits[byte >> 4U];
        text += digits[byte & 15U];
    }
    return text;
}

}  // namespace

const std::string& MachineGuid::text(const LocalHost& host) {
    if (!_text) {
        const auto address = host.hardwareAddress();
        _text = address ? hexadecimal(*address) : "";
    }
    return *_text;
}

}  // namespace tonquil
