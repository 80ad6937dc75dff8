#include "platform/data/firebird/TcpProbe.h"

#include <fcntl.h>
#include <netdb.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>
#include <cerrno>
#include <memory>

namespace fichario {

namespace {

constexpr const char* kPort = "3050";

class Socket {
  public:
    explicit Socket(const addrinfo& address)
        : FHandle(socket(address.ai_family, SOCK_STREAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0)) {}
    ~Socket() {
        if (FHandle >= 0) close(FHandle);
    }
    Socket(const Socket&) = delete;
    Socket& operator=(const Socket&) = delete;

    // Connected or refused in time.
    bool Answers(const addrinfo& address, int milliseconds) {
        if (FHandle < 0) return true;
        if (connect(FHandle, address.ai_addr, address.ai_addrlen) == 0 || errno != EINPROGRESS) return true;
        pollfd waiting = {FHandle, POLLOUT, 0};
        return poll(&waiting, 1, milliseconds) > 0;
    }

  private:
    int FHandle;
};

}  // namespace

bool AnswersWithin(const UnicodeString& server, int seconds) {
    const QByteArray host = server.section(u'/', 0, 0).toLocal8Bit();
    const QByteArray port = server.contains(u'/') ? server.section(u'/', 1).toLocal8Bit() : QByteArray(kPort);
    addrinfo wanted = {};
    wanted.ai_socktype = SOCK_STREAM;
    wanted.ai_flags = AI_NUMERICSERV;
    addrinfo* found = nullptr;
    if (getaddrinfo(host.constData(), port.constData(), &wanted, &found) != 0) return true;
    const std::unique_ptr<addrinfo, void (*)(addrinfo*)> addresses(found, freeaddrinfo);
    for (const addrinfo* address = addresses.get(); address; address = address->ai_next) {
        if (Socket(*address).Answers(*address, seconds * 1000)) return true;
    }
    return false;
}

}  // namespace fichario
