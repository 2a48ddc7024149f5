// SPDX-License-Identifier: MIT
// Little CMS, loaded with the first colour profile: loading it takes a tenth of the time in which a
// whole command runs, and few commands and displays have a profile.
#include <lcms2.h>

#include "cli/LateLibrary.h"

namespace {

struct LittleCms {
    static constexpr const char* file = "liblcms2.so.2";
    static constexpr int failure = 0;
};

template <auto own, typename... Arguments>
auto late(const char* name, Arguments... arguments) {
    return tonquil::late<LittleCms, own>(name, arguments...);
}

}  // namespace

// The functions have Little CMS's names; its parameters' names differ between versions.
// NOLINTBEGIN(readability-identifier-naming)
// NOLINTBEGIN(readability-inconsistent-declaration-parameter-name)
extern "C" {

cmsToneCurve* cmsBuildParametricToneCurve(cmsContext context, cmsInt32Number type,
                                          const cmsFloat64Number parameters[]) {
    return late<&cmsBuildParametricToneCurve>("cmsBuildParametricToneCurve", context, type,
                                              parameters);
}
cmsToneCurve* cmsBuildTabulatedToneCurve16(cmsContext context, cmsUInt32Number count,
                                           const cmsUInt16Number values[]) {
    return late<&cmsBuildTabulatedToneCurve16>("cmsBuildTabulatedToneCurve16", context, count,
                                               values);
}
cmsBool cmsCloseProfile(cmsHPROFILE profile) {
    return late<&cmsCloseProfile>("cmsCloseProfile", profile);
}
cmsHPROFILE cmsCreateRGBProfile(const cmsCIExyY* whitePoint, const cmsCIExyYTRIPLE* primaries,
                                cmsToneCurve* const transferFunction[3]) {
    return late<&cmsCreateRGBProfile>("cmsCreateRGBProfile", whitePoint, primaries,
                                      transferFunction);
}
void cmsFreeToneCurve(cmsToneCurve* curve) {
    return late<&cmsFreeToneCurve>("cmsFreeToneCurve", curve);
}
cmsColorSpaceSignature cmsGetColorSpace(cmsHPROFILE profile) {
    return late<&cmsGetColorSpace>("cmsGetColorSpace", profile);
}
cmsProfileClassSignature cmsGetDeviceClass(cmsHPROFILE profile) {
    return late<&cmsGetDeviceClass>("cmsGetDeviceClass", profile);
}
cmsBool cmsIsTag(cmsHPROFILE profile, cmsTagSignature tag) {
    return late<&cmsIsTag>("cmsIsTag", profile, tag);
}
cmsMLU* cmsMLUalloc(cmsContext context, cmsUInt32Number count) {
    return late<&cmsMLUalloc>("cmsMLUalloc", context, count);
}
void cmsMLUfree(cmsMLU* text) {
    return late<&cmsMLUfree>("cmsMLUfree", text);
}
cmsBool cmsMLUsetASCII(cmsMLU* text, const char language[3], const char country[3],
                       const char* ascii) {
    return late<&cmsMLUsetASCII>("cmsMLUsetASCII", text, language, country, ascii);
}
cmsHPROFILE cmsOpenProfileFromMem(const void* bytes, cmsUInt32Number size) {
    return late<&cmsOpenProfileFromMem>("cmsOpenProfileFromMem", bytes, size);
}
cmsUInt32Number cmsReadRawTag(cmsHPROFILE profile, cmsTagSignature tag, void* buffer,
                              cmsUInt32Number size) {
    return late<&cmsReadRawTag>("cmsReadRawTag", profile, tag, buffer, size);
}
cmsBool cmsSaveProfileToMem(cmsHPROFILE profile, void* bytes, cmsUInt32Number* size) {
    return late<&cmsSaveProfileToMem>("cmsSaveProfileToMem", profile, bytes, size);
}
void cmsSetHeaderProfileID(cmsHPROFILE profile, cmsUInt8Number* id) {
    return late<&cmsSetHeaderProfileID>("cmsSetHeaderProfileID", profile, id);
}
void cmsSetProfileVersion(cmsHPROFILE profile, cmsFloat64Number version) {
    return late<&cmsSetProfileVersion>("cmsSetProfileVersion", profile, version);
}
cmsBool cmsWriteRawTag(cmsHPROFILE profile, cmsTagSignature tag, const void* data,
                       cmsUInt32Number size) {
    return late<&cmsWriteRawTag>("cmsWriteRawTag", profile, tag, data, size);
}
cmsBool cmsWriteTag(cmsHPROFILE profile, cmsTagSignature tag, const void* data) {
    return late<&cmsWriteTag>("cmsWriteTag", profile, tag, data);
}

}  // extern "C"
// NOLINTEND(readability-inconsistent-declaration-parameter-name)
// NOLINTEND(readability-identifier-naming)
