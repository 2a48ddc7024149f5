// SPDX-License-Identifier: MIT
//
// Feeds any text as a .cal file: what is read must survive writing to the bit.

#include "Require.h"
#include "colourfiles/CalReader.h"
#include "colourfiles/CalWriter.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace tonquil;
    const auto read = readCal({data, size});
    if (!read) {
        require(!read.error().sentence.empty());
        return 0;
    }
    const GammaTable table = tableOf(*read);
    const std::string text = writeCal(table, {.name = "\"fuzz", .time = 0});
    const std::vector<std::uint8_t> bytes(text.begin(), text.end());
    require(beginsLikeCal(bytes));
    require(haveSameBits(tableOf(readCal(bytes).value()), table));
    return 0;
}
