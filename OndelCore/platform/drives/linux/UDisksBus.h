#pragma once

#include <QDBusConnection>
#include <QDBusObjectPath>
#include <QVariantMap>

#include <chrono>
#include <optional>
#include <string>

namespace OndelCore::platform {

/// An object's interfaces with their properties.
using UDisksInterfaces = QMap<QString, QVariantMap>;
using UDisksObjects = QMap<QDBusObjectPath, UDisksInterfaces>;

/// A private connection to the bus of UDisks2, for blocking calls. Threads: the one that made it; needs no
/// event loop. Owner: the destructor closes the connection. Fails: calls return absent or false, also without
/// a bus, and once the application ends: its end waits for the call that is under way, since the bus's
/// library does not outlive the process's static objects, and threads that are left behind do.
class UDisksBus {
public:
    /// `address`: a bus address; empty: the system bus. `limit`: for each call.
    UDisksBus(const std::string& address, std::chrono::milliseconds limit);
    ~UDisksBus();
    UDisksBus(const UDisksBus&) = delete;
    UDisksBus& operator=(const UDisksBus&) = delete;

    std::optional<UDisksObjects> objects() const;
    std::optional<QVariantMap> properties(const QDBusObjectPath& object, const QString& interface) const;

    /// Calls a S.M.A.R.T. method, whose one argument is the options: no drive is woken and no password asked
    /// for. Fails: absent, also if the reply is not of the D-Bus type `signature` ("": an empty reply).
    std::optional<QVariant> ask(const QDBusObjectPath& object, const QString& interface,
                                const QString& method, const QString& signature) const;

private:
    std::optional<QVariant> call(const QDBusObjectPath& object, const QString& interface,
                                 const QString& method, const QVariantList& arguments,
                                 const QString& signature) const;

    QString m_name;
    bool m_isOpen;
    QDBusConnection m_connection;
    int m_limitMilliseconds;
};

} // namespace OndelCore::platform
