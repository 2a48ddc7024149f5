// SPDX-License-Identifier: MIT
#include "colourfiles/IccReader.h"

#include <algorithm>
#include <cmath>
#include <string_view>
#include <vector>

#include "colourfiles/ProfileHandle.h"
#include "foundation/TranslatableText.h"

namespace tonquil {

namespace {

std::uint32_t number16(std::span<const std::uint8_t> bytes, std::size_t at) {
    return (std::uint32_t{bytes[at]} << 8U) | bytes[at + 1];
}

std::uint32_t number32(std::span<const std::uint8_t> bytes, std::size_t at) {
    return (number16(bytes, at) << 16U) | number16(bytes, at + 2);
}

/// A signed number with 16 bits behind its point.
double fixedPoint(std::span<const std::uint8_t> bytes, std::size_t at) {
    return static_cast<double>(static_cast<std::int32_t>(number32(bytes, at))) / 65536;
}

tl::unexpected<Problem> damagedTag(const char* detail) {
    return problem(TONQUIL_TEXT("Problem", "The profile's calibration is damaged."), detail);
}

// The tag is: "vcgt", four zeros, the kind (0 table, 1 formula) and its contents.
constexpr std::size_t kindAt = 8;
constexpr std::size_t contentsAt = 12;

/// Number of channels, of samples and of bytes per sample, 16 bits each, then the samples.
Result<Calibration> readTable(std::span<const std::uint8_t> tag) {
    constexpr std::size_t samplesAt = contentsAt + 6;
    if (tag.size() < samplesAt) {
        return damagedTag("its table is cut off");
    }
    const std::size_t channels = number16(tag, contentsAt);
    const std::size_t count = number16(tag, contentsAt + 2);
    std::size_t bytes = number16(tag, contentsAt + 4);
    // Some profiles say one byte and have two.
    if (channels == 3 && count == 256 && bytes == 1 && tag.size() == 1576) {
        bytes = 2;
    }
    if ((channels != 1 && channels != 3) || count < 2 || bytes < 1 || bytes > 2) {
        return damagedTag("its table has a size that does not exist");
    }
    if (tag.size() - samplesAt < channels * count * bytes) {
        return damagedTag("its table is cut off");
    }
    Calibration calibration;
    for (std::size_t c = 0; c < calibration.size(); ++c) {
        const std::size_t first = samplesAt + (channels == 3 ? c : 0) * count * bytes;
        std::vector<double>& samples = calibration.at(c).samples;
        samples.reserve(count);
        for (std::size_t i = 0; i < count; ++i) {
            samples.push_back(bytes == 1 ? tag[first + i] / 255.0
                                         : number16(tag, first + 2 * i) / 65535.0);
        }
    }
    return calibration;
}

/// Exponent, minimum and maximum of each channel.
Result<Calibration> readFormula(std::span<const std::uint8_t> tag) {
    constexpr std::size_t channelBytes = 12;
    Calibration calibration;
    if (tag.size() < contentsAt + calibration.size() * channelBytes) {
        return damagedTag("its formula is cut off");
    }
    for (std::size_t c = 0; c < calibration.size(); ++c) {
        const std::size_t at = contentsAt + c * channelBytes;
        CalibrationChannel& channel = calibration.at(c);
        channel.exponent = fixedPoint(tag, at);
        channel.minimum = fixedPoint(tag, at + 4);
        channel.maximum = fixedPoint(tag, at + 8);
        if (channel.exponent <= 0) {
            return damagedTag("its formula's exponent is not above 0");
        }
    }
    return calibration;
}

}  // namespace

bool beginsLikeIcc(std::span<const std::uint8_t> bytes) {
    constexpr std::string_view signature = "acsp";
    constexpr std::size_t signatureAt = 36;
    return bytes.size() >= signatureAt + signature.size() &&
           std::ranges::equal(bytes.subspan(signatureAt, signature.size()), signature);
}

// Little CMS reads the header and finds the tag within its limits; what the tag holds is read here,
// since Little CMS takes each table for three channels and reads past the end of a single one.
Result<Calibration> readIcc(std::span<const std::uint8_t> profile) {
    if (profile.size() > mostIccBytes) {
        return problem(TONQUIL_TEXT("Problem", "The profile is too large."));
    }
    const ProfileHandle opened = openProfile(profile);
    // The profile begins with its size, and Little CMS reads what is left of one that is cut off.
    if (!opened || number32(profile, 0) > profile.size()) {
        return problem(TONQUIL_TEXT("Problem", "The colour profile is damaged."));
    }
    const cmsUInt32Number size = cmsReadRawTag(opened.get(), cmsSigVcgtTag, nullptr, 0);
    if (size == 0) {
        return problem(TONQUIL_TEXT(
            "Problem", "The colour profile holds no calibration that could be put on a display."));
    }
    std::vector<std::uint8_t> tag(size);
    tag.resize(cmsReadRawTag(opened.get(), cmsSigVcgtTag, tag.data(), size));
    if (tag.size() < contentsAt || number32(tag, 0) != cmsSigVcgtType) {
        return damagedTag("its tag is of another type");
    }
    switch (number32(tag, kindAt)) {
        case 0:
            return readTable(tag);
        case 1:
            return readFormula(tag);
        default:
            return damagedTag("it is neither a table nor a formula");
    }
}

}  // namespace tonquil
