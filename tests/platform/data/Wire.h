// A wire to the private server that a test can cut.
#pragma once
#include <arpa/inet.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>
#include <atomic>
#include <thread>

inline sockaddr_in Loopback(int port) {
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_port = htons(static_cast<uint16_t>(port));
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    return address;
}

// Passes bytes on between one client at a time and the server, until it swallows an answer and hangs up, or
// falls silent.
class Wire {
  public:
    explicit Wire(int server) : FServer(server), FListener(socket(AF_INET, SOCK_STREAM, 0)) {
        sockaddr_in address = Loopback(0);
        socklen_t size = sizeof address;
        bind(FListener, reinterpret_cast<sockaddr*>(&address), size);
        listen(FListener, 8);
        getsockname(FListener, reinterpret_cast<sockaddr*>(&address), &size);
        Port = ntohs(address.sin_port);
        FThread = std::thread([this] { Run(); });
    }
    ~Wire() {
        FEnd = true;
        FThread.join();
        close(FListener);
    }

    int Port = 0;
    std::atomic<bool> SwallowNext = false;
    std::atomic<bool> Closed = false;    // who comes is sent away
    std::atomic<int> Answers = 1 << 30;  // so many more are passed on

  private:
    void Run() {
        while (!FEnd) {
            pollfd waiting{FListener, POLLIN, 0};
            if (poll(&waiting, 1, 20) <= 0) continue;
            const int client = accept(FListener, nullptr, nullptr);
            if (!Closed) Serve(client);
            close(client);
        }
    }
    void Serve(int client) {
        const int server = socket(AF_INET, SOCK_STREAM, 0);
        const sockaddr_in address = Loopback(FServer);
        connect(server, reinterpret_cast<const sockaddr*>(&address), sizeof address);
        pollfd ends[] = {{client, POLLIN, 0}, {server, POLLIN, 0}};
        while (!FEnd && Pass(ends)) poll(ends, 2, 20);
        close(server);
    }
    bool Pass(const pollfd* ends) {
        char bytes[16384];
        for (int i = 0; i < 2; ++i) {
            if (!(ends[i].revents & (POLLIN | POLLHUP))) continue;
            const ssize_t length = recv(ends[i].fd, bytes, sizeof bytes, 0);
            if (length <= 0 || (i == 1 && SwallowNext.exchange(false))) return false;
            if (i == 1 && Answers-- <= 0) continue;
            send(ends[1 - i].fd, bytes, static_cast<size_t>(length), MSG_NOSIGNAL);
        }
        return true;
    }

    const int FServer, FListener;
    std::atomic<bool> FEnd = false;
    std::thread FThread;
};
