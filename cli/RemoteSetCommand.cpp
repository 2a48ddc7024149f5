// SPDX-License-Identifier: MIT
#include <cmath>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "cli/Commands.h"
#include "cli/CurveSource.h"
#include "cli/RemoteClient.h"
#include "cli/TableText.h"
#include "model/CurveFit.h"
#include "model/KVTableGammaCurve.h"
#include "model/StoredCurve.h"
#include "model/TQExtendedGammaCurve.h"

namespace tonquil {

namespace {

/// The state that the display should end up with.
struct Wanted {
    std::vector<float> gamma;
    std::optional<std::string> content;
};

/// Only curves of 13 numbers travel: of a table, the one that comes closest to it.
Result<std::vector<float>> numbersOf(const OneCurve& curve, std::string& notes) {
    auto extended = std::dynamic_pointer_cast<TQExtendedGammaCurve>(curve);
    if (const auto table = std::dynamic_pointer_cast<KVTableGammaCurve>(curve)) {
        CurveFit fit = fitCurve(table->table());
        notes +=
            "tonquilctl: A table cannot be sent; what was sent is the closest curve, which is " +
            levelText(fit.largestDifference) + " off at most.\n";
        extended = std::move(fit.curve);
    }
    std::vector<float> numbers;
    for (const PropertyValue& element : extended->gammaCurveCompactArray()) {
        numbers.push_back(floatValue(element).value_or(0.0F));
        if (!std::isfinite(numbers.back())) {
            return problem("A curve with numbers that are not finite cannot be sent.");
        }
    }
    return numbers;
}

Result<std::vector<float>> givenCurve(const Arguments& arguments, std::string& notes) {
    const auto curves = readCurves(arguments);
    if (!curves) {
        return tl::unexpected(curves.error());
    }
    if (const auto* const one = std::get_if<OneCurve>(&*curves)) {
        return numbersOf(*one, notes);
    }
    const PropertyValue* const dictionary =
        entry(std::get<CurvesByDisplay>(*curves).screens, *arguments.referenceID);
    if (dictionary == nullptr || !dictionary->is_object()) {
        return problem("The file has no curve for the display " + *arguments.referenceID + ".");
    }
    return numbersOf(curveWithDictionary(*dictionary), notes);
}

std::string stateUpdate(const std::string& referenceID, const Wanted& wanted) {
    PropertyValue gamma = PropertyValue::array();
    for (const float number : wanted.gamma) {
        gamma.push_back(singlePrecision(number));
    }
    PropertyValue state = {{"gamma", std::move(gamma)}};
    if (wanted.content) {
        state["content"] = *wanted.content;
    }
    return remote::stateUpdateMessage({{referenceID, std::move(state)}});
}

bool hasTaken(const AnnouncedScreen* screen, const Wanted& wanted) {
    return screen != nullptr && screen->gamma == wanted.gamma &&
           (!wanted.content || screen->content == *wanted.content);
}

/// Sends, then queries until the display has the wanted state: there is no other acknowledgement.
Result<bool> sendAndConfirm(RemoteClient& client, const SocketAddress& server,
                            const std::string& referenceID, const Wanted& wanted) {
    if (auto sent = client.send(stateUpdate(referenceID, wanted), server); !sent) {
        return tl::unexpected(std::move(sent.error()));
    }
    return client.ask(remote::scanTag, server, {}, [&](const RemoteServer& heard) {
        return hasTaken(heard.announce.screen(referenceID), wanted);
    });
}

}  // namespace

Result<void> runRemoteSet(const Arguments& arguments, const CommandEnvironment& environment) {
    Wanted wanted{.gamma = {}, .content = arguments.content};
    const bool hasCurve = arguments.curve || arguments.file;
    if (hasCurve) {
        auto curve = givenCurve(arguments, environment.notes);
        if (!curve) {
            return tl::unexpected(std::move(curve.error()));
        }
        wanted.gamma = std::move(*curve);
    }
    const auto client = RemoteClient::open(environment.remote);
    if (!client) {
        return tl::unexpected(client.error());
    }
    const auto server = (*client)->addressOf(*arguments.host);
    if (!server) {
        return tl::unexpected(server.error());
    }
    const auto announce = (*client)->announceOf(*arguments.host, *server);
    if (!announce) {
        return tl::unexpected(announce.error());
    }
    const AnnouncedScreen* const screen = announce->screen(*arguments.referenceID);
    if (screen == nullptr) {
        return problem("No display of " + *arguments.host + " has the reference ID " +
                       *arguments.referenceID + ".");
    }
    if (!hasCurve) {
        // A state without a curve would reset the display to the neutral curve, so send its current
        // one along.
        wanted.gamma = screen->gamma;
    }
    const auto taken = sendAndConfirm(**client, *server, *arguments.referenceID, wanted);
    if (!taken) {
        return tl::unexpected(taken.error());
    }
    if (!*taken) {
        return problem("The display " + *arguments.referenceID + " of " + *arguments.host +
                       " did not take it.");
    }
    return {};
}

}  // namespace tonquil
