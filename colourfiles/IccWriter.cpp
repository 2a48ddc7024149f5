// SPDX-License-Identifier: MIT
#include "colourfiles/IccWriter.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <memory>
#include <span>
#include <utility>

#include "colourfiles/Calibration.h"
#include "colourfiles/ProfileHandle.h"
#include "foundation/TranslatableText.h"

namespace tonquil {

namespace {

std::tm utc(std::time_t time) {
    std::tm parts{};
    gmtime_r(&time, &parts);
    return parts;
}

ProfileHandle profileWith(const Primaries& primaries) {
    // IEC 61966-2-1: ((v + 0.055) / 1.055) ^ 2.4 from 0.04045 on, v / 12.92 below.
    const std::array<double, 5> parameters{2.4, 1 / 1.055, 0.055 / 1.055, 1 / 12.92, 0.04045};
    const ToneCurveHandle tone(cmsBuildParametricToneCurve(nullptr, 4, parameters.data()));
    const std::array<cmsToneCurve*, 3> tones{tone.get(), tone.get(), tone.get()};
    const auto place = [](const Chromaticity& colour) {
        return cmsCIExyY{.x = colour.x, .y = colour.y, .Y = 1};
    };
    const cmsCIExyY white = place(primaries.white);
    const cmsCIExyYTRIPLE colours{.Red = place(primaries.red),
                                  .Green = place(primaries.green),
                                  .Blue = place(primaries.blue)};
    return ProfileHandle(cmsCreateRGBProfile(&white, &colours, tones.data()));
}

bool writeText(const ProfileHandle& profile, cmsTagSignature tag, const std::string& text) {
    const std::unique_ptr<cmsMLU, FreeColourObject> content(cmsMLUalloc(nullptr, 1));
    return content && cmsMLUsetASCII(content.get(), "en", "US", text.c_str()) != 0 &&
           cmsWriteTag(profile.get(), tag, content.get()) != 0;
}

bool writeTable(const ProfileHandle& profile, const GammaTable& table) {
    std::array<std::array<std::uint16_t, GammaTable::capacity>, GammaTable::channelCount> entries{};
    for (std::size_t c = 0; c < entries.size(); ++c) {
        std::ranges::transform(table.channel(c), entries.at(c).begin(),
                               [](float level) { return entryOf(static_cast<double>(level)); });
    }
    return writeCalibration(profile, {entries[0], entries[1], entries[2]});
}

/// Little CMS writes the present time; ours is the one that the description names.
void stamp(std::span<std::uint8_t> profile, std::time_t time) {
    constexpr std::size_t timeAt = 24;
    const std::tm parts = utc(time);
    std::size_t at = timeAt;
    for (const int part : {parts.tm_year + 1900, parts.tm_mon + 1, parts.tm_mday, parts.tm_hour,
                           parts.tm_min, parts.tm_sec}) {
        profile[at++] = static_cast<std::uint8_t>(static_cast<unsigned>(part) >> 8U);
        profile[at++] = static_cast<std::uint8_t>(static_cast<unsigned>(part) & 0xFFU);
    }
}

}  // namespace

std::string descriptionOf(const DescribedDisplay& display) {
    const std::tm parts = utc(display.time);
    std::array<char, 32> date{};
    static_cast<void>(std::snprintf(date.data(), date.size(), ", %04d-%02d-%02d",
                                    parts.tm_year + 1900, parts.tm_mon + 1, parts.tm_mday));
    std::string text = display.name + date.data();
    std::ranges::replace_if(
        text, [](unsigned char c) { return c < ' ' || c >= 0x7F || c == '"'; }, '?');
    return text;
}

Result<std::vector<std::uint8_t>> writeIcc(const GammaTable& table,
                                           const DescribedDisplay& display) {
    // Version 2 is what every reader of profiles knows.
    constexpr double version = 2.4;
    const auto failed = [] {
        return problem(TONQUIL_TEXT("Problem", "The colour profile could not be made."));
    };
    ProfileHandle profile = profileWith(display.primaries);
    if (!profile) {
        // A display may report impossible colours.
        profile = profileWith({});
    }
    if (!profile) {
        return failed();
    }
    cmsSetProfileVersion(profile.get(), version);
    if (!writeText(profile, cmsSigProfileDescriptionTag, descriptionOf(display)) ||
        !writeText(profile, cmsSigCopyrightTag, "No copyright, use freely") ||
        !writeTable(profile, table)) {
        return failed();
    }
    auto bytes = profileBytes(profile);
    if (!bytes) {
        return failed();
    }
    stamp(*bytes, display.time);
    return std::move(*bytes);
}

}  // namespace tonquil
