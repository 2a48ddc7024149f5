// SPDX-License-Identifier: MIT
#include "platform/posix/UdpSocket.h"

#include <arpa/inet.h>
#include <sys/socket.h>

#include <array>
#include <cerrno>
#include <cstring>
#include <system_error>
#include <utility>
#include <vector>

#include "platform/posix/NetworkInterfaces.h"

namespace tonquil {

namespace {

// The maximum size of a UDP datagram over IPv4.
constexpr std::size_t mostBytes = 65535;

sockaddr_in systemAddress(const SocketAddress& address) {
    sockaddr_in result{};
    result.sin_family = AF_INET;
    result.sin_port = htons(address.port());
    result.sin_addr.s_addr = htonl(address.host());
    return result;
}

SocketAddress ourAddress(const sockaddr_in& address) {
    return {ntohl(address.sin_addr.s_addr), ntohs(address.sin_port)};
}

/// Sends through the given interface (0: as routed), from the given local address (0: the
/// interface's own).
int sendThrough(int interface, std::uint32_t ownHost, int socket, std::string_view bytes,
                const SocketAddress& recipient) {
    sockaddr_in address = systemAddress(recipient);
    // The system API takes bytes that it does not change through a non-const pointer.
    iovec part{const_cast<char*>(bytes.data()), bytes.size()};  // NOLINT(*-const-cast)
    alignas(cmsghdr) std::array<char, CMSG_SPACE(sizeof(in_pktinfo))> control{};
    msghdr message{};
    message.msg_name = &address;
    message.msg_namelen = sizeof address;
    message.msg_iov = &part;
    message.msg_iovlen = 1;
    if (interface != 0 || ownHost != 0) {
        message.msg_control = control.data();
        message.msg_controllen = control.size();
        cmsghdr* const header = CMSG_FIRSTHDR(&message);
        header->cmsg_level = IPPROTO_IP;
        header->cmsg_type = IP_PKTINFO;
        header->cmsg_len = CMSG_LEN(sizeof(in_pktinfo));
        in_pktinfo information{};
        information.ipi_ifindex = interface;
        information.ipi_spec_dst.s_addr = htonl(ownHost);
        std::memcpy(CMSG_DATA(header), &information, sizeof information);
    }
    // The error may stem from an earlier datagram; in that case this one has not been sent.
    for (int attempt = 0;; ++attempt) {
        if (sendmsg(socket, &message, MSG_DONTWAIT | MSG_NOSIGNAL) >= 0) {
            return 0;
        }
        if (errno != EINTR && (errno != ECONNREFUSED || attempt > 0)) {
            return errno;
        }
    }
}

/// The local address that a datagram was sent to; for a broadcast, the address of the interface
/// that received it. 0 if the system does not report it.
std::uint32_t arrivalHost(msghdr& message) {
    for (cmsghdr* header = CMSG_FIRSTHDR(&message); header != nullptr;
         header = CMSG_NXTHDR(&message, header)) {
        if (header->cmsg_level == IPPROTO_IP && header->cmsg_type == IP_PKTINFO) {
            in_pktinfo information{};
            std::memcpy(&information, CMSG_DATA(header), sizeof information);
            return ntohl(information.ipi_spec_dst.s_addr);
        }
    }
    return 0;
}

}  // namespace

/// One watch of a socket; kept alive past its end while it is being called.
class UdpSocket::Reception {
 public:
    Reception(std::shared_ptr<FileHandle> socket, Receiver receiver)
        : _socket(std::move(socket)), _receiver(std::move(receiver)), _buffer(mostBytes) {}

    void end() { _isEnded = true; }

    /// One turn. The run loop may drop its own copy of the pointer meanwhile, if the receiver ends
    /// the watch.
    static void receive(const std::shared_ptr<Reception> reception) {  // NOLINT(*-value-param)
        const auto end = std::chrono::steady_clock::now() + longestTurn;
        for (int count = 0; count < mostDatagrams; ++count) {
            if (reception->_isEnded || !reception->_socket->isOpen() || !reception->receiveOne() ||
                std::chrono::steady_clock::now() >= end) {
                return;
            }
        }
    }

 private:
    /// False when nothing is left to receive.
    bool receiveOne() {
        sockaddr_in source{};
        iovec part{_buffer.data(), _buffer.size()};
        alignas(cmsghdr) std::array<char, CMSG_SPACE(sizeof(in_pktinfo))> control{};
        msghdr message{};
        message.msg_name = &source;
        message.msg_namelen = sizeof source;
        message.msg_iov = &part;
        message.msg_iovlen = 1;
        message.msg_control = control.data();
        message.msg_controllen = control.size();
        const auto size = recvmsg(_socket->get(), &message, MSG_DONTWAIT);
        if (size < 0) {
            // Any other error concerns an earlier datagram or a lost interface; the next datagram
            // may be fine.
            return errno != EAGAIN;
        }
        const bool isWhole = (message.msg_flags & MSG_TRUNC) == 0;
        if (isWhole && message.msg_namelen == sizeof source && source.sin_family == AF_INET) {
            _receiver({_buffer.data(), static_cast<std::size_t>(size)},
                      ourAddress(source).reachedFrom(arrivalHost(message)));
        }
        return true;
    }

    std::shared_ptr<FileHandle> _socket;
    Receiver _receiver;
    std::vector<char> _buffer;
    bool _isEnded = false;
};

Result<std::unique_ptr<UdpSocket>> UdpSocket::open() {
    FileHandle socket(::socket(AF_INET, SOCK_DGRAM | SOCK_NONBLOCK | SOCK_CLOEXEC, IPPROTO_UDP));
    if (!socket.isOpen()) {
        return problem("No network socket can be opened.", std::generic_category().message(errno));
    }
    // The largest buffer that the system allows, so that fewer datagrams of a burst get lost. If it
    // allows no more than the default, that will do.
    constexpr int wantedBuffer = 1 << 20;
    static_cast<void>(
        setsockopt(socket.get(), SOL_SOCKET, SO_RCVBUF, &wantedBuffer, sizeof wantedBuffer));
    // Without it, answers are sent from the address that the routes select.
    constexpr int wanted = 1;
    static_cast<void>(setsockopt(socket.get(), IPPROTO_IP, IP_PKTINFO, &wanted, sizeof wanted));
    return std::unique_ptr<UdpSocket>(new UdpSocket(std::move(socket)));
}

UdpSocket::UdpSocket(FileHandle socket)
    : _socket(std::make_shared<FileHandle>(std::move(socket))) {}

UdpSocket::~UdpSocket() {
    // Now, not when a running reception has returned: the port becomes free.
    static_cast<void>(_socket->close());
}

int UdpSocket::enableBroadcast() {
    const int enabled = 1;
    return setsockopt(_socket->get(), SOL_SOCKET, SO_BROADCAST, &enabled, sizeof enabled);
}

int UdpSocket::bind(const SocketAddress& address) {
    const sockaddr_in name = systemAddress(address);
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-reinterpret-cast): what the system asks for.
    const auto* const generic = reinterpret_cast<const sockaddr*>(&name);
    return ::bind(_socket->get(), generic, sizeof name) == 0 ? 0 : errno;
}

std::unique_ptr<RunLoop::Handle> UdpSocket::receiveOn(RunLoop& runLoop, Receiver receiver) {
    class Watch final : public RunLoop::Handle {
     public:
        Watch(std::shared_ptr<Reception> reception, std::unique_ptr<RunLoop::Handle> watch)
            : _reception(std::move(reception)), _watch(std::move(watch)) {}
        ~Watch() override { _reception->end(); }
        Watch(const Watch&) = delete;
        Watch& operator=(const Watch&) = delete;

     private:
        std::shared_ptr<Reception> _reception;
        std::unique_ptr<RunLoop::Handle> _watch;
    };
    auto reception = std::make_shared<Reception>(_socket, std::move(receiver));
    auto watch =
        runLoop.watchReadable(_socket->get(), [reception] { Reception::receive(reception); });
    return watch ? std::make_unique<Watch>(std::move(reception), std::move(watch)) : nullptr;
}

int UdpSocket::send(std::string_view bytes, const SocketAddress& recipient) {
    if (recipient.host() == SocketAddress::broadcastHost) {
        return sendThroughEachInterface(bytes, recipient);
    }
    const int error = sendThrough(0, recipient.ownHost(), _socket->get(), bytes, recipient);
    // The computer may have lost that address since.
    if (error != 0 && recipient.ownHost() != 0) {
        return sendThrough(0, 0, _socket->get(), bytes, recipient);
    }
    return error;
}

int UdpSocket::sendThroughEachInterface(std::string_view bytes,
                                        const SocketAddress& recipient) const {
    const std::vector<int> interfaces = broadcastInterfaces();
    if (interfaces.empty()) {
        return sendThrough(0, 0, _socket->get(), bytes, recipient);
    }
    int result = ENETUNREACH;
    for (const int interface : interfaces) {
        const int error = sendThrough(interface, 0, _socket->get(), bytes, recipient);
        result = result == 0 ? 0 : error;
    }
    return result;
}

SocketAddress UdpSocket::localAddress() const {
    sockaddr_in name{};
    socklen_t size = sizeof name;
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-reinterpret-cast): what the system asks for.
    static_cast<void>(getsockname(_socket->get(), reinterpret_cast<sockaddr*>(&name), &size));
    return ourAddress(name);
}

}  // namespace tonquil
