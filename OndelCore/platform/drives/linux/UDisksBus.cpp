#include "OndelCore/platform/drives/linux/UDisksBus.h"

#include <QCoreApplication>
#include <QDBusArgument>
#include <QDBusMessage>

#include <atomic>
#include <condition_variable>
#include <mutex>

namespace OndelCore::platform {

namespace {

const QString service = QStringLiteral("org.freedesktop.UDisks2");

/// Qt identifies connections by name. Concurrent conversations must not share one.
QString uniqueName() {
    static std::atomic<std::uint64_t> count = 0;
    return QStringLiteral("ondel-udisks-%1").arg(++count);
}

/// Who uses the bus, on whatever thread.
class BusUsers {
public:
    /// Never destroyed: the last thread may still leave it.
    static BusUsers& ofProcess() {
        static auto* const users = new BusUsers;
        return *users;
    }

    /// Fails: false once the application ends.
    bool begin() {
        const std::scoped_lock guard(m_lock);
        m_count += m_isClosed ? 0 : 1;
        return !m_isClosed;
    }
    void end() {
        const std::scoped_lock guard(m_lock);
        --m_count;
        m_ended.notify_all();
    }
    bool isClosed() {
        const std::scoped_lock guard(m_lock);
        return m_isClosed;
    }

    void open() {
        const std::scoped_lock guard(m_lock);
        m_isClosed = false;
    }
    /// Waits for the calls that are under way; each has a limit.
    void close() {
        std::unique_lock guard(m_lock);
        m_isClosed = true;
        m_ended.wait(guard, [this] { return m_count == 0; });
    }

private:
    std::mutex m_lock;
    std::condition_variable m_ended;
    int m_count = 0;
    bool m_isClosed = false;
};

void followApplication() {
    BusUsers::ofProcess().open();
    qAddPostRoutine([] { BusUsers::ofProcess().close(); });
}
Q_COREAPP_STARTUP_FUNCTION(followApplication)

QDBusConnection connectTo(const std::string& address, const QString& name) {
    return address.empty() ? QDBusConnection::connectToBus(QDBusConnection::SystemBus, name)
                           : QDBusConnection::connectToBus(QString::fromStdString(address), name);
}

} // namespace

UDisksBus::UDisksBus(const std::string& address, std::chrono::milliseconds limit)
    : m_name(uniqueName())
    , m_isOpen(BusUsers::ofProcess().begin())
    , m_connection(m_isOpen ? connectTo(address, m_name) : QDBusConnection(m_name))
    , m_limitMilliseconds(static_cast<int>(limit.count())) {}

UDisksBus::~UDisksBus() {
    if (!m_isOpen)
        return;
    m_connection = QDBusConnection(QString()); // the last that refers to it
    QDBusConnection::disconnectFromBus(m_name);
    BusUsers::ofProcess().end();
}

std::optional<QVariant> UDisksBus::call(const QDBusObjectPath& object, const QString& interface,
                                        const QString& method, const QVariantList& arguments,
                                        const QString& signature) const {
    if (BusUsers::ofProcess().isClosed())
        return std::nullopt;
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
