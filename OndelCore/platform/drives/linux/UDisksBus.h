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

/// A connection of its own to the bus of UDisks2, for one conversation of blocking calls.
/// Threads: the one that made it; needs no event loop. Owner: closes the connection when it goes.
/// Fails: every call is answered with absent or false, on a missing bus too.
class UDisksBus {
public:
    /// `address`: a bus address; empty: the system bus. `limit`: for each call.
    UDisksBus(const std::string& address, std::chrono::milliseconds limit);
    ~UDisksBus();
    UDisksBus(const UDisksBus&) = delete;
    UDisksBus& operator=(const UDisksBus&) = delete;

    std::optional<UDisksObjects> objects() const;
    std::optional<QVariantMap> properties(const QDBusObjectPath& object, const QString& interface) const;

    /// Calls a method of an interface with the one argument that S.M.A.R.T. methods take, the options: no
    /// drive is to be woken and nobody to be asked for a password. Fails: absent, also when the answer's
    /// first part is not of the D-Bus type `signature` ("": no answer is looked for).
    std::optional<QVariant> ask(const QDBusObjectPath& object, const QString& interface,
                                const QString& method, const QString& signature) const;

private:
    std::optional<QVariant> call(const QDBusObjectPath& object, const QString& interface,
                                 const QString& method, const QVariantList& arguments,
                                 const QString& signature) const;

    QString m_name;
    QDBusConnection m_connection;
    int m_limitMilliseconds;
};

} // namespace OndelCore::platform
