#include "OndelCore/platform/process/SessionBus.h"

#include "OndelCore/platform/storage/FileDescriptor.h"

#include <QByteArray>
#include <QList>

#include <sys/socket.h>
#include <sys/time.h>
#include <sys/un.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstddef>
#include <optional>

namespace OndelCore::platform {

namespace {

constexpr const char* addressVariable = "DBUS_SESSION_BUS_ADDRESS";

struct SocketAddress {
    sockaddr_un value{};
    socklen_t length = 0;
};

/// The socket of the first address in the list (D-Bus, "Server Addresses"). Absent: another transport.
std::optional<SocketAddress> socketOf(const QByteArray& addresses) {
    const QByteArray first = addresses.split(';').constFirst();
    if (!first.startsWith("unix:"))
        return std::nullopt;
    for (const QByteArray& pair : first.sliced(5).split(',')) {
        const bool isAbstract = pair.startsWith("abstract=");
        if (!isAbstract && !pair.startsWith("path="))
            continue;
        SocketAddress address;
        // The name of an abstract socket begins behind a NUL.
        const QByteArray name = QByteArray(isAbstract ? 1 : 0, '\0') +
                                QByteArray::fromPercentEncoding(pair.sliced(pair.indexOf('=') + 1));
        if (name.size() >= static_cast<qsizetype>(sizeof address.value.sun_path))
            return std::nullopt;
        address.value.sun_family = AF_UNIX;
        std::copy(name.begin(), name.end(), std::begin(address.value.sun_path));
        address.length =
            static_cast<socklen_t>(offsetof(sockaddr_un, sun_path) + static_cast<std::size_t>(name.size()));
        return address;
    }
    return std::nullopt;
}

/// The start of the authentication, which a bus answers first.
QByteArray greeting() {
    return QByteArray(1, '\0') + "AUTH EXTERNAL " + QByteArray::number(geteuid()).toHex() + "\r\n";
}

} // namespace

bool sessionBusAnswers(std::chrono::milliseconds patience) {
    return busAnswers(qgetenv(addressVariable).toStdString(), patience);
}

bool busAnswers(const std::string& addresses, std::chrono::milliseconds patience) {
    const auto address = socketOf(QByteArray::fromStdString(addresses));
    if (!address)
        return true;
    const FileDescriptor bus(socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0));
    const timeval limit{.tv_sec = patience.count() / 1000, .tv_usec = patience.count() % 1000 * 1000};
    for (const int direction : {SO_SNDTIMEO, SO_RCVTIMEO})
        setsockopt(bus.get(), SOL_SOCKET, direction, &limit, sizeof limit);
    const auto* name = reinterpret_cast<const sockaddr*>(&address->value);
    if (connect(bus.get(), name, address->length) != 0)
        return errno != EAGAIN; // other errors fail fast
    const QByteArray words = greeting();
    char answer = 0;
    return send(bus.get(), words.data(), static_cast<std::size_t>(words.size()), MSG_NOSIGNAL) >= 0 &&
           recv(bus.get(), &answer, 1, 0) > 0;
}

void doWithoutSessionBus() { qputenv(addressVariable, "disabled:"); }

} // namespace OndelCore::platform
