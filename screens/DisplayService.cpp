// SPDX-License-Identifier: MIT
#include "screens/DisplayService.h"

#include <limits>
#include <utility>

#include "screens/TransferFormulaFit.h"

namespace tonquil {

namespace {

constexpr std::size_t all = std::numeric_limits<std::size_t>::max();

}  // namespace

std::vector<DisplayID> DisplayService::displaysWithPoint(const Point& point, std::size_t most) {
    std::vector<DisplayID> found;
    for (const DisplayID display : onlineDisplays(all)) {
        if (found.size() < most && bounds(display).contains(point)) {
            found.push_back(display);
        }
    }
    return found;
}

void DisplayService::setTransferFormula(DisplayID display, const TransferFormula& formula) {
    setTransferTable(display, tableFromFormula(formula));
}

TransferFormula DisplayService::getTransferFormula(DisplayID display) {
    GammaTable table;
    const std::uint32_t sampleCount = getTransferTable(display, table);
    return fitTransferFormula(table, sampleCount);
}

void DisplayService::restoreSystemCalibration() {
    restoreSystemCalibration(onlineDisplays(all));
}

DisplayBatch::DisplayBatch(DisplayService& service) : _service(&service) {
    if (_service->_batchDepth++ == 0) {
        _service->beginBatch();
    }
}

bool DisplayBatch::finish() {
    DisplayService* service = std::exchange(_service, nullptr);
    if (service == nullptr || --service->_batchDepth > 0) {
        return true;
    }
    return service->endBatch();
}

}  // namespace tonquil
