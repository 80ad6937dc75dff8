// The connections that the client library opens while it attaches: until it has an attachment to cancel on,
// closing them is the only way to break it off.
//
//     const NewConnections connections(u"127.0.0.1/3050"_s);
//     …                                                // another thread: attachDatabase
//     connections.Shut();                              // which now fails as on a lost connection
#pragma once
#include <sys/types.h>
#include <vector>
#include "platform/rtl/Types.h"

namespace fichario {

class NewConnections {
  public:
    // `address` as AddressText (TcpProbe.h) gives it.
    explicit NewConnections(const UnicodeString& address);

    // Ends all TCP connections of this process to the address that were not open at first. The handles stay
    // their owner's.
    void Shut() const;

  private:
    struct Connection {
        int Handle;
        ino_t Id;  // of its own among all connections; handles are given out again
    };
    std::vector<Connection> Open() const;

    const UnicodeString FAddress;
    const std::vector<Connection> FBefore;
};

}  // namespace fichario
