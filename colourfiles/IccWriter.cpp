// SPDX-License-Identifier: MIT
#include "colourfiles/IccWriter.h"

#include <lcms2.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <memory>
#include <span>

#include "colourfiles/Calibration.h"
#include "foundation/TranslatableText.h"

namespace tonquil {

namespace {

struct CloseWrittenProfile {
    void operator()(void* profile) const { cmsCloseProfile(profile); }
};
struct FreeToneCurve {
    void operator()(cmsToneCurve* curve) const { cmsFreeToneCurve(curve); }
};
struct FreeText {
    void operator()(cmsMLU* text) const { cmsMLUfree(text); }
};
using Profile = std::unique_ptr<void, CloseWrittenProfile>;
using ToneCurve = std::unique_ptr<cmsToneCurve, FreeToneCurve>;

std::tm utc(std::time_t time) {
    std::tm parts{};
    gmtime_r(&time, &parts);
    return parts;
}

Profile profileWith(const Primaries& primaries) {
    // IEC 61966-2-1: ((v + 0.055) / 1.055) ^ 2.4 from 0.04045 on, v / 12.92 below.
    const std::array<double, 5> parameters{2.4, 1 / 1.055, 0.055 / 1.055, 1 / 12.92, 0.04045};
    const ToneCurve tone(cmsBuildParametricToneCurve(nullptr, 4, parameters.data()));
    const std::array<cmsToneCurve*, 3> tones{tone.get(), tone.get(), tone.get()};
    const auto place = [](const Chromaticity& colour) {
        return cmsCIExyY{.x = colour.x, .y = colour.y, .Y = 1};
    };
    const cmsCIExyY white = place(primaries.white);
    const cmsCIExyYTRIPLE colours{.Red = place(primaries.red),
                                  .Green = place(primaries.green),
                                  .Blue = place(primaries.blue)};
    return Profile(cmsCreateRGBProfile(&white, &colours, tones.data()));
}

bool writeText(const Profile& profile, cmsTagSignature tag, const std::string& text) {
    const std::unique_ptr<cmsMLU, FreeText> content(cmsMLUalloc(nullptr, 1));
    return content && cmsMLUsetASCII(content.get(), "en", "US", text.c_str()) != 0 &&
           cmsWriteTag(profile.get(), tag, content.get()) != 0;
}

bool writeTable(const Profile& profile, const GammaTable& table) {
    std::array<ToneCurve, GammaTable::channelCount> owned;
    std::array<cmsToneCurve*, GammaTable::channelCount> curves{};
    for (std::size_t c = 0; c < curves.size(); ++c) {
        std::array<cmsUInt16Number, GammaTable::capacity> entries{};
        std::ranges::transform(table.channel(c), entries.begin(),
                               [](float level) { return entryOf(static_cast<double>(level)); });
        owned.at(c).reset(
            cmsBuildTabulatedToneCurve16(nullptr, GammaTable::capacity, entries.data()));
        curves.at(c) = owned.at(c).get();
        if (curves.at(c) == nullptr) {
            return false;
        }
    }
    return cmsWriteTag(profile.get(), cmsSigVcgtTag, static_cast<void*>(curves.data())) != 0;
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
    Profile profile = profileWith(display.primaries);
    if (!profile) {
        // A display may report colours that cannot be.
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
    cmsUInt32Number size = 0;
    cmsSaveProfileToMem(profile.get(), nullptr, &size);
    std::vector<std::uint8_t> bytes(size);
    if (size < sizeof(cmsICCHeader) ||
        cmsSaveProfileToMem(profile.get(), bytes.data(), &size) == 0) {
        return failed();
    }
    stamp(bytes, display.time);
    return bytes;
}

}  // namespace tonquil
