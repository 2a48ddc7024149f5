// SPDX-License-Identifier: MIT
#include "platform/kde/KdeCorrection.h"

#include <utility>

#include "foundation/TranslatableText.h"

namespace tonquil {

KdeCorrection::KdeCorrection(Surroundings with, const std::string& key)
    : _with(std::move(with)), _path(_with.files.pathFor(key)) {}

void KdeCorrection::see(const KdeOutput* output, kde_output_management_v2* management) {
    if (output != std::exchange(_output, output) && _underway) {
        // With the output it was meant for, the change may be lost.
        _underway.reset();
        _isSent = false;
    }
    _management = management;
    if (_output == nullptr) {
        return;
    }
    const KdeOutput::Properties& properties = _output->properties();
    if (properties.edid) {
        _reported = properties.edid->primaries.value_or(Primaries{});
    }
    if (_present != properties.choice) {
        // If their choice cannot be read now, it is read again before anything is sent.
        static_cast<void>(adopt(properties.choice));
    }
    if (std::exchange(_isHdr, properties.isHdr) != properties.isHdr && !_obstacle.empty()) {
        // The compositor may think otherwise now.
        _isSent = _wanted == Wanted::AsFound;
        setObstacle({}, {});
        send();
    }
    if (_with.runLoop == nullptr) {
        // Nobody will call `keep`.
        send();
    }
}

// Ours is never taken for theirs, not even if nothing is left that says what theirs was.
Result<void> KdeCorrection::adopt(const KdeProfileChoice& present) {
    _present = present;
    const bool isOurFile = _with.files.isOurs(present.path);
    _isOursPresent = isOurFile && present.source == KdeProfileChoice::file;
    KdeProfileChoice theirs = present;
    if (isOurFile) {
        KdeProfileChoice before = _theirs;
        if (!_isTheirsKnown) {
            const auto noted = _with.files.choiceUnder(present.path);
            if (!noted) {
                readCalibration();
                return tl::unexpected(noted.error());
            }
            before = noted->value_or(KdeProfileChoice{});
        }
        theirs.path = before.path;
        // Somebody may have changed the source alone.
        theirs.source = _isOursPresent ? before.source : present.source;
    }
    if (!std::exchange(_isTheirsKnown, true) || theirs != _theirs) {
        _theirs = std::move(theirs);
        readCalibration();
        // It will be sent once there is a ramp for the new base.
        _isSent = _isSent && _wanted != Wanted::Corrected;
    }
    return {};
}

const HardwareRamp& KdeCorrection::readCalibration() {
    _base = KdeProfileFiles::base(_theirs, _reported);
    return _base.calibration;
}

void KdeCorrection::correct(const HardwareRamp& ramp) {
    // Without a run loop it is not heard that somebody else has set one.
    if (_wanted == Wanted::Corrected && _isSent && ramp == _ramp && _with.runLoop != nullptr) {
        return;
    }
    _wanted = Wanted::Corrected;
    _putBack = 0;
    _ramp = ramp;
    _isSent = false;
    send();
}

void KdeCorrection::restore() {
    _wanted = Wanted::Theirs;
    _putBack = 0;
    _isSent = !_isOursPresent && !_isOursSent;
    send();
}

void KdeCorrection::keep() {
    constexpr int mostInVain = 5;
    // What others correct while this program does not is theirs to end.
    const bool isReplaced = _wanted == Wanted::Corrected && !_isOursPresent;
    if (_output != nullptr && isReplaced && _isSent && !_underway && _obstacle.empty() &&
        _putBack < mostInVain) {
        ++_putBack;
        _isSent = false;
    }
    send();
}

void KdeCorrection::hurry() {
    _isHurried = true;
    send();
}

bool KdeCorrection::isSettled() const {
    return _isSent && !_underway;
}

// One change at a time is on its way. What is wanted meanwhile replaces what was wanted before.
void KdeCorrection::send() {
    if (_isSent || _underway || _output == nullptr || _management == nullptr) {
        return;
    }
    if (_with.runLoop != nullptr && !_isHurried) {
        const auto now = _with.runLoop->now();
        if (now < _earliest) {
            _pause = _with.runLoop->callOnce(
                std::chrono::ceil<std::chrono::milliseconds>(_earliest - now), [this] { send(); });
            return;
        }
        _earliest = now + shortestInterval;
    }
    const auto prepared = prepare();
    _isSent = true;
    if (!prepared) {
        tryAgainOr(
            TONQUIL_TEXT("Problem", "The colour profile with the correction cannot be saved."),
            prepared.error().sentence);
        return;
    }
    const bool isOurs = _wanted == Wanted::Corrected;
    _isOursSent = _isOursSent || isOurs;
    _underway = std::make_unique<KdeConfiguration>(
        _management, _output->get(),
        isOurs ? KdeProfileChoice{.path = _path, .source = KdeProfileChoice::file} : _theirs,
        [this, isOurs](bool isApplied) { answered(isOurs, isApplied); });
    _with.flush();
}

// The note is on the disk before the compositor hears of our profile. A program that is killed at
// any moment leaves either their profile in force, or ours and the note.
Result<void> KdeCorrection::prepare() {
    if (!_isTheirsKnown) {
        if (auto adopted = adopt(*_present); !adopted) {
            return adopted;
        }
    }
    if (_wanted != Wanted::Corrected) {
        return {};
    }
    if (!_noted) {
        // Theirs is known here, so a note that cannot be read may be replaced.
        _noted = _with.files.choiceUnder(_path).value_or(std::nullopt);
    }
    if (_noted != _theirs) {
        if (auto noted = _with.files.note(_path, _theirs); !noted) {
            return noted;
        }
        _noted = _theirs;
    }
    return KdeProfileFiles::write(_path, _base, _ramp);
}

void KdeCorrection::answered(bool isOurs, bool isApplied) {
    _underway.reset();
    if (isApplied) {
        _isOursSent = isOurs;
        _isSecondTry = false;
        setObstacle({}, {});
        send();
    } else if (isOurs && _isHdr) {
        tryAgainOr(TONQUIL_TEXT("Problem",
                                "The compositor takes no colour profile for this display while "
                                "HDR is on."),
                   {});
    } else {
        tryAgainOr(
            TONQUIL_TEXT("Problem", "The compositor refuses the colour profile for this display."),
            {});
    }
}

// A change that meets another one, such as a display that comes or goes, is refused for that alone.
void KdeCorrection::tryAgainOr(const std::string& obstacle, const std::string& detail) {
    // Its folder may have been removed.
    _noted.reset();
    if (!std::exchange(_isSecondTry, !_isSecondTry)) {
        _isSent = false;
        send();
        return;
    }
    _isSent = true;
    setObstacle(obstacle, detail);
    if (_with.runLoop != nullptr) {
        _retry = _with.runLoop->callOnce(retryInterval, [this] {
            _isSent = false;
            send();
        });
    }
}

void KdeCorrection::setObstacle(std::string obstacle, const std::string& detail) {
    if (obstacle.empty()) {
        _retry.reset();
    }
    if (obstacle != _obstacle) {
        _obstacle = std::move(obstacle);
        _with.obstacleChanged(detail);
    }
}

}  // namespace tonquil
