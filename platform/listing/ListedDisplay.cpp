// SPDX-License-Identifier: MIT
#include "platform/listing/ListedDisplay.h"

namespace tonquil {

void identify(ListedDisplay& display, const std::optional<Edid>& edid) {
    display.identity.isBuiltIn = isBuiltInConnector(display.connector);
    if (edid) {
        display.identity.serialNumber = edid->serialNumber;
        display.identity.modelNumber = edid->modelNumber;
        display.identity.vendorNumber = edid->vendorNumber;
        display.productName = edid->productName;
        display.primaries = edid->primaries;
    } else {
        display.identity.modelNumber = numberOf(display.connector);
    }
}

}  // namespace tonquil
