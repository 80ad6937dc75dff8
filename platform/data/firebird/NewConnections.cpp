#include "platform/data/firebird/NewConnections.h"

#include <sys/socket.h>
#include <sys/stat.h>
#include <algorithm>
#include <filesystem>
#include <system_error>
#include "platform/data/firebird/TcpProbe.h"

namespace fichario {

namespace {

UnicodeString PeerOf(int handle) {
    sockaddr_storage peer = {};
    socklen_t size = sizeof peer;
    auto* address = reinterpret_cast<sockaddr*>(&peer);
    return getpeername(handle, address, &size) == 0 ? AddressText(address, size) : UnicodeString();
}

}  // namespace

NewConnections::NewConnections(const UnicodeString& address) : FAddress(address), FBefore(Open()) {}

void NewConnections::Shut() const {
    for (const Connection& connection : Open()) {
        const auto same = [&](const Connection& before) { return before.Id == connection.Id; };
        if (std::none_of(FBefore.begin(), FBefore.end(), same)) shutdown(connection.Handle, SHUT_RDWR);
    }
}

std::vector<NewConnections::Connection> NewConnections::Open() const {
    std::vector<Connection> open;
    if (FAddress.isEmpty()) return open;
    std::error_code none;
    for (const auto& file : std::filesystem::directory_iterator("/proc/self/fd", none)) {
        const int handle = std::stoi(file.path().filename());
        struct stat about = {};
        if (PeerOf(handle) == FAddress && fstat(handle, &about) == 0) open.push_back({handle, about.st_ino});
    }
    return open;
}

}  // namespace fichario
