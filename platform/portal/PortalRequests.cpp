// SPDX-License-Identifier: MIT
#include "platform/portal/PortalRequests.h"

#include <algorithm>
#include <utility>

namespace tonquil {

void PortalRequests::watchAnswers() {
    const std::string ours = pathOf({});
    _bus.watch({.interface = "org.freedesktop.portal.Request",
                .name = "Response",
                .rest = "sender='" + std::string(service) + "',path_namespace='" +
                        ours.substr(0, ours.size() - 1) + "'"},
               [this](BusArguments& arguments) {
                   const bool isGranted = arguments.number() == 0U;
                   if (const auto outcome = take(arguments.path())) {
                       outcome->answered(isGranted ? &arguments : nullptr);
                   }
               });
}

std::optional<PortalRequests::Outcome> PortalRequests::take(const std::string& path) {
    auto node = _waiting.extract(path);
    return node.empty() ? std::nullopt : std::optional(std::move(node.mapped()));
}

// The path is known before the call, so that an answer which overtakes its return is recognised.
std::string PortalRequests::pathOf(const std::string& token) const {
    std::string sender = _bus.uniqueName();
    sender.erase(0, 1);
    std::ranges::replace(sender, '.', '_');
    return std::string(object).append("/request/").append(sender).append("/") + token;
}

void PortalRequests::ask(const std::string& interface, const std::string& method,
                         std::vector<BusArgument> arguments, BusDictionary options,
                         Outcome outcome) {
    const std::string token = newToken();
    const std::string path = pathOf(token);
    options["handle_token"] = token;
    arguments.emplace_back(std::move(options));
    _waiting[path] = std::move(outcome);
    _bus.ask(
        {service, object, interface, method}, arguments, [](BusArguments&) {},
        [this, path] {
            if (const auto waiting = take(path)) {
                waiting->failed();
            }
        });
}

}  // namespace tonquil
