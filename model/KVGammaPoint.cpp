// SPDX-License-Identifier: MIT
#include "model/KVGammaPoint.h"

#include "values/PropertyValue.h"

namespace tonquil {

namespace {

std::optional<float> floatEntry(const PropertyValue& dictionary, std::string_view key) {
    const PropertyValue* value = entry(dictionary, key);
    return value == nullptr ? std::nullopt : floatValue(*value);
}

}  // namespace

std::shared_ptr<KVGammaPoint> KVGammaPoint::gammaPointWithRed(float red, float green, float blue) {
    return std::make_shared<KVGammaPoint>(red, green, blue);
}

std::shared_ptr<KVGammaPoint> KVGammaPoint::gammaPointWithDictionary(
    const PropertyValue& dictionary) {
    const auto red = floatEntry(dictionary, "Red");
    const auto green = floatEntry(dictionary, "Green");
    const auto blue = floatEntry(dictionary, "Blue");
    if (!red || !green || !blue) {
        return nullptr;
    }
    return gammaPointWithRed(*red, *green, *blue);
}

std::shared_ptr<KVGammaPoint> KVGammaPoint::gammaPointEntry(const PropertyValue& curveDictionary,
                                                            std::string_view key) {
    const PropertyValue* point = entry(curveDictionary, key);
    return point == nullptr ? nullptr : gammaPointWithDictionary(*point);
}

PropertyValue KVGammaPoint::gammaPointDictionary() const {
    return {{"Red", singlePrecision(_red)},
            {"Green", singlePrecision(_green)},
            {"Blue", singlePrecision(_blue)}};
}

}  // namespace tonquil
