// SPDX-License-Identifier: MIT
#include "tests/model/RandomCurve.h"

#include <array>
#include <limits>

namespace tonquil {

namespace {

float uniform(std::mt19937& random, float low, float high) {
    return std::uniform_real_distribution<float>(low, high)(random);
}

float strange(std::mt19937& random) {
    constexpr float infinity = std::numeric_limits<float>::infinity();
    constexpr std::array values{infinity,
                                -infinity,
                                std::numeric_limits<float>::quiet_NaN(),
                                std::numeric_limits<float>::max(),
                                std::numeric_limits<float>::denorm_min(),
                                -1.0F,
                                -0.0F,
                                0.0F,
                                1e9F,
                                2.0F};
    return values[random() % values.size()];
}

}  // namespace

CurveValues randomCurveValues(std::mt19937& random) {
    CurveValues curve;
    curve.blendingMode = random() % 16 == 0 ? 7 : static_cast<std::int32_t>(random() % 2);
    const bool shareExponent = random() % 3 == 0;
    const bool isWild = random() % 4 == 0;
    for (ChannelCurve& channel : curve.channels) {
        channel = {uniform(random, 0, 0.5F), uniform(random, 0.2F, 4), uniform(random, 0.5F, 1)};
        if (shareExponent) {
            channel.middle = curve.channels[0].middle;
        }
        if (random() % 8 == 0) {
            channel.middle = 1;
        }
        if (isWild) {
            channel.black += uniform(random, -1, 1);
            channel.white += uniform(random, -1, 1);
            float& one =
                std::array{&channel.black, &channel.middle, &channel.white}[random() % 3][0];
            one = strange(random);
        }
    }
    return curve;
}

std::shared_ptr<TQExtendedGammaCurve> randomCurve(std::mt19937& random) {
    const auto point = [&](float low, float high) {
        return KVGammaPoint::gammaPointWithRed(
            uniform(random, low, high), uniform(random, low, high), uniform(random, low, high));
    };
    return TQExtendedGammaCurve::gammaCurveWithMasterBlack(
        uniform(random, 0, 0.5F), uniform(random, 0.5F, 2), uniform(random, 0.5F, 1),
        point(0, 0.5F), point(0.5F, 2), point(0.5F, 1), static_cast<std::int32_t>(random() % 2));
}

}  // namespace tonquil
