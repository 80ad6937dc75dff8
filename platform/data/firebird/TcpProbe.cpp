#include "platform/data/firebird/TcpProbe.h"

#include <netdb.h>
#include <poll.h>
#include <unistd.h>
#include <algorithm>
#include <cerrno>
#include <future>
#include <limits>
#include <memory>
#include <thread>
#include <vector>

using namespace Qt::Literals::StringLiterals;

namespace fichario {

namespace {

using Addresses = std::shared_ptr<addrinfo>;  // a list; null: the host is unknown

Addresses LookUp(const QByteArray& host, const QByteArray& port) {
    addrinfo wanted = {};
    wanted.ai_socktype = SOCK_STREAM;
    addrinfo* found = nullptr;
    if (getaddrinfo(host.constData(), port.constData(), &wanted, &found) != 0) return nullptr;
    return Addresses(found, freeaddrinfo);
}

// A look-up cannot be broken off: one that takes too long ends by itself, unheard.
Addresses LookUpUntil(const UnicodeString& server, Deadline end) {
    UnicodeString host = server.section(u'/', 0, 0);
    if (host.startsWith(u'[') && host.endsWith(u']')) host = host.sliced(1, host.size() - 2);
    std::packaged_task<Addresses()> task(
        [host = host.toLocal8Bit(), port = server.section(u'/', 1).toLocal8Bit()] {
            return LookUp(host, port);
        });
    std::future<Addresses> found = task.get_future();
    std::thread(std::move(task)).detach();
    return found.wait_until(end) == std::future_status::ready ? found.get() : nullptr;
}

// Calls to several addresses at once.
class Calls {
  public:
    Calls() = default;
    ~Calls() {
        for (size_t i = 0; i < FWaiting.size(); ++i) End(i);
    }
    Calls(const Calls&) = delete;
    Calls& operator=(const Calls&) = delete;

    void Begin(const addrinfo& address) {
        const int handle = socket(address.ai_family, SOCK_STREAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0);
        FAddresses.push_back(&address);
        FWaiting.push_back({handle, POLLOUT, 0});
        if (connect(handle, address.ai_addr, address.ai_addrlen) != 0 && errno != EINPROGRESS) {
            End(FWaiting.size() - 1);
        }
    }
    // Null: all were refused, or the time has passed.
    const addrinfo* FirstTaken(Deadline end) {
        while (AnyOpen() && Deadline::clock::now() < end) {
            const auto slice = std::min<int64_t>(LeftUntil(end).count(), std::numeric_limits<int>::max());
            if (poll(FWaiting.data(), FWaiting.size(), static_cast<int>(slice)) <= 0) continue;
            for (size_t i = 0; i < FWaiting.size(); ++i) {
                if (FWaiting[i].fd < 0 || !FWaiting[i].revents) continue;
                if (IsTaken(FWaiting[i].fd)) return FAddresses[i];
                End(i);
            }
        }
        return nullptr;
    }

  private:
    bool AnyOpen() const {
        return std::any_of(FWaiting.begin(), FWaiting.end(), [](const pollfd& call) { return call.fd >= 0; });
    }
    static bool IsTaken(int handle) {
        int error = 0;
        socklen_t size = sizeof error;
        return getsockopt(handle, SOL_SOCKET, SO_ERROR, &error, &size) == 0 && error == 0;
    }
    void End(size_t i) {
        if (FWaiting[i].fd >= 0) close(FWaiting[i].fd);
        FWaiting[i].fd = -1;  // poll passes over it
    }

    std::vector<const addrinfo*> FAddresses;
    std::vector<pollfd> FWaiting;
};

}  // namespace

std::chrono::milliseconds LeftUntil(Deadline end) {
    const auto left = std::chrono::ceil<std::chrono::milliseconds>(end - Deadline::clock::now());
    return std::max(left, std::chrono::milliseconds(1));
}

UnicodeString AddressThatAnswers(const UnicodeString& server, Deadline end) {
    const Addresses addresses = LookUpUntil(server, end);
    Calls calls;
    for (const addrinfo* address = addresses.get(); address; address = address->ai_next)
        calls.Begin(*address);
    const addrinfo* taken = calls.FirstTaken(end);
    return taken ? AddressText(taken->ai_addr, taken->ai_addrlen) : UnicodeString();
}

UnicodeString AddressText(const sockaddr* address, socklen_t size) {
    if (address->sa_family != AF_INET && address->sa_family != AF_INET6) return {};
    char host[NI_MAXHOST], port[NI_MAXSERV];
    if (getnameinfo(address, size, host, sizeof host, port, sizeof port, NI_NUMERICHOST | NI_NUMERICSERV) !=
        0)
        return {};
    const UnicodeString form = address->sa_family == AF_INET6 ? u"[%1]/%2"_s : u"%1/%2"_s;
    return form.arg(QString::fromLatin1(host), QString::fromLatin1(port));
}

}  // namespace fichario
