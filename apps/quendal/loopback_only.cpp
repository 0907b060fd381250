// Shown over VNC, the program must be reachable from this computer only. The toolkit's VNC platform
// listens on every address and has no setting for it, so the call with which it takes its address
// is stood in front of here: the executable's own `bind` comes before the C library's.
#include <arpa/inet.h>
#include <dlfcn.h>
#include <netinet/in.h>
#include <sys/socket.h>

#include <cstdlib>
#include <cstring>
#include <string_view>

namespace {

using BindCall = int (*)(int, const sockaddr*, socklen_t);

bool shownOverVnc() {
    const char* platform = std::getenv("QT_QPA_PLATFORM");
    return platform != nullptr && std::string_view(platform).substr(0, 3) == "vnc";
}

// The loopback address of IPv4 in the form that a socket for both families takes.
in6_addr loopback() {
    in6_addr address{};
    address.s6_addr[10] = 0xff;
    address.s6_addr[11] = 0xff;
    address.s6_addr[12] = 127;
    address.s6_addr[15] = 1;
    return address;
}

} // namespace

extern "C" __attribute__((visibility("default"))) int bind(int socket, const sockaddr* address,
                                                           socklen_t length) noexcept {
    static const auto real = reinterpret_cast<BindCall>(dlsym(RTLD_NEXT, "bind"));
    if (!shownOverVnc() || address == nullptr) {
        return real(socket, address, length);
    }
    if (address->sa_family == AF_INET && length >= sizeof(sockaddr_in)) {
        sockaddr_in local;
        std::memcpy(&local, address, sizeof local);
        local.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        return real(socket, reinterpret_cast<const sockaddr*>(&local), sizeof local);
    }
    if (address->sa_family == AF_INET6 && length >= sizeof(sockaddr_in6)) {
        sockaddr_in6 local;
        std::memcpy(&local, address, sizeof local);
        local.sin6_addr = loopback();
        return real(socket, reinterpret_cast<const sockaddr*>(&local), sizeof local);
    }
    return real(socket, address, length);
}
