#include "OndelCore/platform/drives/linux/UDisksBus.h"

#include <QDBusArgument>
#include <QDBusMessage>

#include <atomic>

namespace OndelCore::platform {

namespace {

const QString service = QStringLiteral("org.freedesktop.UDisks2");

/// Qt identifies connections by name. Concurrent conversations must not share one.
QString uniqueName() {
    static std::atomic<std::uint64_t> count = 0;
    return QStringLiteral("ondel-udisks-%1").arg(++count);
}

QDBusConnection connectTo(const std::string& address, const QString& name) {
    return address.empty() ? QDBusConnection::connectToBus(QDBusConnection::SystemBus, name)
                           : QDBusConnection::connectToBus(QString::fromStdString(address), name);
}

} // namespace

UDisksBus::UDisksBus(const std::string& address, std::chrono::milliseconds limit)
    : m_name(uniqueName())
    , m_connection(connectTo(address, m_name))
    , m_limitMilliseconds(static_cast<int>(limit.count())) {}

UDisksBus::~UDisksBus() { QDBusConnection::disconnectFromBus(m_name); }

std::optional<QVariant> UDisksBus::call(const QDBusObjectPath& object, const QString& interface,
                                        const QString& method, const QVariantList& arguments,
                                        const QString& signature) const {
    QDBusMessage message = QDBusMessage::createMethodCall(service, object.path(), interface, method);
    message.setArguments(arguments);
    const QDBusMessage reply = m_connection.call(message, QDBus::Block, m_limitMilliseconds);
    if (reply.type() != QDBusMessage::ReplyMessage || reply.signature() != signature)
        return std::nullopt;
    return reply.arguments().value(0);
}

std::optional<UDisksObjects> UDisksBus::objects() const {
    const auto answer = call(QDBusObjectPath(QStringLiteral("/org/freedesktop/UDisks2")),
                             QStringLiteral("org.freedesktop.DBus.ObjectManager"),
                             QStringLiteral("GetManagedObjects"), {}, QStringLiteral("a{oa{sa{sv}}}"));
    if (!answer)
        return std::nullopt;
    return qdbus_cast<UDisksObjects>(*answer);
}

std::optional<QVariantMap> UDisksBus::properties(const QDBusObjectPath& object,
                                                 const QString& interface) const {
    const auto answer = call(object, QStringLiteral("org.freedesktop.DBus.Properties"),
                             QStringLiteral("GetAll"), {interface}, QStringLiteral("a{sv}"));
    if (!answer)
        return std::nullopt;
    return qdbus_cast<QVariantMap>(*answer);
}

std::optional<QVariant> UDisksBus::ask(const QDBusObjectPath& object, const QString& interface,
                                       const QString& method, const QString& signature) const {
    const QVariantMap options{{QStringLiteral("nowakeup"), true},
                              {QStringLiteral("auth.no_user_interaction"), true}};
    return call(object, interface, method, {options}, signature);
}

} // namespace OndelCore::platform
