// SPDX-License-Identifier: MIT
#include "screens/KVScreen.h"

#include <algorithm>
#include <utility>

#include "model/StoredCurve.h"
#include "model/TQExtendedGammaCurve.h"
#include "values/PropertyValue.h"

namespace tonquil {

KVScreen::KVScreen(DisplayService& service) : KVScreen(service, service.mainDisplay()) {}

KVScreen::KVScreen(DisplayService& service, DisplayID directDisplayID)
    : _service(service),
      _directDisplayID(directDisplayID),
      _connector(service.description(directDisplayID).connector),
      _referenceID(referenceIDFor(service.identity(directDisplayID))) {
    readBaseGamma();
}

void KVScreen::_setDirectDisplayID(DisplayID display) {
    _directDisplayID = display;
    _connector = _service.description(display).connector;
}

std::vector<DisplayID> KVScreen::displayIDs() const {
    std::vector<DisplayID> displays = _otherDisplayIDs;
    displays.insert(displays.begin(), _directDisplayID);
    return displays;
}

bool KVScreen::isNamed(std::string_view name) const {
    return name == referenceID() || name == _connector ||
           std::ranges::any_of(_otherDisplayIDs, [&](DisplayID display) {
               return _service.description(display).connector == name;
           });
}

std::string KVScreen::twinReferenceID() const {
    return twinReferenceIDFor(referenceID(), _connector);
}

std::shared_ptr<const PlatformScreen> KVScreen::nsscreen() {
    if (!_nsscreen) {
        const auto screens = platformScreens(_service);
        const auto found = std::find_if(screens.begin(), screens.end(), [this](const auto& screen) {
            return screen->screenNumber() == _directDisplayID;
        });
        if (found != screens.end()) {
            _nsscreen = *found;
        }
    }
    return _nsscreen;
}

void KVScreen::readBaseGamma() {
    BaseGamma base;
    base.sampleCount = _service.getTransferTable(_directDisplayID, base.table);
    // A display that disappears right now must not lose the base it had.
    if (base.sampleCount > 0) {
        _baseGamma = base;
    }
}

std::uint32_t KVScreen::getBaseGamma(GammaTable& table) const {
    table = _baseGamma.table;
    return _baseGamma.sampleCount;
}

void KVScreen::setGammaCurve(CurvePointer curve) {
    _gammaCurve = std::move(curve);
    if (_autoApplyGamma) {
        applyGammaCurve();
    }
}

void KVScreen::applyGammaCurve() {
    if (_gammaCurve) {
        _gammaCurve->applyToScreen(*this);
    }
}

void KVScreen::setAutoApplyGamma(bool autoApplyGamma) {
    _autoApplyGamma = autoApplyGamma;
    if (autoApplyGamma) {
        applyGammaCurve();
    }
}

void KVScreen::retriveGammaCurve() {
    setGammaCurve(KVGammaCurve::gammaCurveWithScreen(*this));
}

void KVScreen::retriveExtendedGammaCurve() {
    setGammaCurve(TQExtendedGammaCurve::gammaCurveWithScreen(*this));
}

void KVScreen::adoptGammaCurveDictionary(const PropertyValue& dictionary,
                                         CurvePointer initialCurve) {
    if (const PropertyValue* own = entry(dictionary, twinReferenceID())) {
        setGammaCurve(curveWithDictionary(*own));
        return;
    }
    if (dictionary.is_object()) {
        for (const auto& [key, value] : dictionary.items()) {
            if (key == referenceID() || key == oldReferenceID()) {
                setGammaCurve(curveWithDictionary(value));
                return;
            }
        }
    }
    if (initialCurve) {
        setGammaCurve(std::move(initialCurve));
    }
}

void KVScreen::setTransferTable(const GammaTable& table) {
    const DisplayBatch batch(_service);
    _service.setTransferTable(_directDisplayID, table);
    for (const DisplayID display : _otherDisplayIDs) {
        _service.setTransferTable(display, table);
    }
}

std::uint32_t KVScreen::getTransferTable(GammaTable& table) const {
    return _service.getTransferTable(_directDisplayID, table);
}

void KVScreen::setTransferFormula(const TransferFormula& formula) {
    const DisplayBatch batch(_service);
    _service.setTransferFormula(_directDisplayID, formula);
    for (const DisplayID display : _otherDisplayIDs) {
        _service.setTransferFormula(display, formula);
    }
}

TransferFormula KVScreen::getTransferFormula() const {
    return _service.getTransferFormula(_directDisplayID);
}

}  // namespace tonquil
