// SPDX-License-Identifier: MIT
#pragma once

namespace tonquil {

/// One channel's transfer function as a power law: minimum + (maximum - minimum) * input ^
/// exponent, with input and result 0…1.
struct ChannelFormula {
    float minimum = 0;
    float maximum = 1;
    float exponent = 1;

    bool operator==(const ChannelFormula&) const = default;
};

struct TransferFormula {
    ChannelFormula red;
    ChannelFormula green;
    ChannelFormula blue;

    bool operator==(const TransferFormula&) const = default;
};

}  // namespace tonquil
