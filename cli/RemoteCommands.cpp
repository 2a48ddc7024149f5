// SPDX-License-Identifier: MIT
#include <map>
#include <utility>

#include "cli/Commands.h"
#include "cli/RemoteClient.h"
#include "cli/RemoteText.h"
#include "remote/PrintableText.h"

namespace tonquil {

namespace {

// More than such a network has; a limit, because a stranger could announce any number.
constexpr std::size_t mostServers = 1024;
// Three renewals fit into one subscription period.
constexpr std::chrono::milliseconds renewal = std::chrono::seconds(25);

constexpr std::chrono::milliseconds forEver = std::chrono::hours(24 * 365 * 100);

using Servers = std::map<SocketAddress, Announce>;

Result<Servers> scan(const Arguments& arguments, const RemoteAccess& access) {
    const auto client = RemoteClient::open(access);
    if (!client) {
        return tl::unexpected(client.error());
    }
    const auto target = arguments.host ? (*client)->addressOf(*arguments.host)
                                       : Result<SocketAddress>((*client)->everywhere());
    if (!target) {
        return tl::unexpected(target.error());
    }
    Servers servers;
    // Asked twice, so that one lost datagram does not hide a server.
    const auto asked =
        (*client)->ask(remote::scanTag, *target, {arguments.timeout * 2 / 3, arguments.timeout},
                       [&](const RemoteServer& server) {
                           if (servers.size() < mostServers) {
                               servers.insert_or_assign(server.address, server.announce);
                           }
                           return false;
                       });
    if (!asked) {
        return tl::unexpected(asked.error());
    }
    return servers;
}

std::string serverLine(const SocketAddress& address, const Announce& announce) {
    constexpr std::size_t mostNameBytes = 256;
    std::string line = address.dottedHost();
    line.append("\t").append(remote::printable(announce.name, mostNameBytes));
    return line.append("\t").append(remote::printable(announce.guid, mostNameBytes)).append("\n");
}

}  // namespace

Result<void> runRemoteScan(const Arguments& arguments, const CommandEnvironment& environment) {
    const auto servers = scan(arguments, environment.remote);
    if (!servers) {
        return tl::unexpected(servers.error());
    }
    if (servers->empty()) {
        return problem(arguments.host ? "No server answers on " + *arguments.host + "."
                                      : "No server answers on this network.");
    }
    PropertyValue list = PropertyValue::array();
    for (const auto& [address, announce] : *servers) {
        if (arguments.json) {
            list.push_back(serverObject({address, announce}));
            continue;
        }
        environment.out += serverLine(address, announce);
        for (const AnnouncedScreen& screen : announce.screens) {
            environment.out.append("\t").append(screenLine(screen));
        }
    }
    if (arguments.json) {
        environment.out += jsonText(list, 2) + '\n';
    }
    return {};
}

Result<void> runRemoteGet(const Arguments& arguments, const CommandEnvironment& environment) {
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
    if (!arguments.referenceID) {
        for (const AnnouncedScreen& screen : announce->screens) {
            environment.out += screenLine(screen);
        }
        return {};
    }
    const AnnouncedScreen* const screen = announce->screen(*arguments.referenceID);
    if (screen == nullptr) {
        return problem("No display of " + *arguments.host + " has the reference ID " +
                       *arguments.referenceID + ".");
    }
    environment.out += curveText(screen->gamma) + '\n';
    return {};
}

Result<void> runRemoteWatch(const Arguments& arguments, const CommandEnvironment& environment) {
    const RemoteAccess& access = environment.remote;
    const auto client = RemoteClient::open(access);
    if (!client) {
        return tl::unexpected(client.error());
    }
    const auto server = (*client)->addressOf(*arguments.host);
    if (!server) {
        return tl::unexpected(server.error());
    }
    std::string last;
    bool isPrinted = true;
    const auto show = [&](const RemoteServer& heard) {
        if (auto line = jsonText(serverObject(heard), -1) + '\n'; line != last) {
            last = std::move(line);
            isPrinted = access.printNow(last);
        }
    };
    const auto answered =
        (*client)->ask(remote::subscribeTag, *server, {}, [&](const RemoteServer& heard) {
            show(heard);
            return true;
        });
    if (answered && !*answered) {
        return problem("No server answers on " + *arguments.host + ".");
    }
    const auto watched = (*client)->ask(remote::subscribeTag, *server, {renewal, forEver},
                                        [&](const RemoteServer& heard) {
                                            show(heard);
                                            return !isPrinted;
                                        });
    if (!watched) {
        return tl::unexpected(watched.error());
    }
    return isPrinted ? Result<void>() : problem("The output could not be written.");
}

}  // namespace tonquil
