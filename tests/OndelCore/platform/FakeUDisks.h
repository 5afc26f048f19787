#pragma once

#include "OndelCore/platform/drives/linux/UDisksBus.h"
#include "support/Program.h"
#include "support/TemporaryFolder.h"

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusVirtualObject>
#include <QThread>

#include <atomic>
#include <fstream>
#include <memory>
#include <stdexcept>

namespace test {

using namespace OndelCore::platform;
using namespace Qt::StringLiterals;

/// A private message bus without services.
class PrivateBus {
public:
    PrivateBus() {
        const auto configuration = m_folder.path() / "bus.conf";
        std::ofstream(configuration) << "<busconfig><listen>unix:path=" << (m_folder.path() / "bus").string()
                                     << "</listen><auth>EXTERNAL</auth><policy context=\"default\">"
                                        "<allow send_destination=\"*\" eavesdrop=\"true\"/><allow "
                                        "eavesdrop=\"true\"/><allow own=\"*\"/>"
                                        "</policy></busconfig>\n";
        m_daemon = std::make_unique<Program>(std::vector<std::string>{
            "dbus-daemon", "--nofork", "--print-address", "--config-file=" + configuration.string()});
        do
            m_address = m_daemon->line();
        while (!m_address.empty() && !m_address.starts_with("unix:")); // what else it says are complaints
    }

    /// Empty if no bus could be started.
    const std::string& address() const { return m_address; }

private:
    TemporaryFolder m_folder;
    std::unique_ptr<Program> m_daemon;
    std::string m_address;
};

/// A row of the ATA attribute table as UDisks2 sends it.
struct UDisksAtaRow {
    uchar number = 0;
    int unit = 0;
    qlonglong pretty = 0;
    QString name = u"attribute"_s;
};

inline QDBusArgument& operator<<(QDBusArgument& argument, const UDisksAtaRow& row) {
    argument.beginStructure();
    argument << row.number << row.name << ushort{50} << 100 << 100 << 0 << row.pretty << row.unit
             << QVariantMap();
    argument.endStructure();
    return argument;
}

inline const QDBusArgument& operator>>(const QDBusArgument& argument, UDisksAtaRow&) { return argument; }

/// The answers of the service.
struct UDisksScript {
    UDisksObjects objects{};
    QVariant attributes{};       ///< of SmartGetAttributes; invalid: an error
    QVariantMap afterUpdate{};   ///< properties of the S.M.A.R.T. interface after SmartUpdate
    bool refusesUpdate = false;  ///< "it would wake the drive"
    bool isMute = false;         ///< never answers anything
    QVariant insteadOfObjects{}; ///< valid: a wrong reply of GetManagedObjects
};

inline QVariant ataTable(const QList<UDisksAtaRow>& rows) {
    qDBusRegisterMetaType<UDisksAtaRow>();
    qDBusRegisterMetaType<QList<UDisksAtaRow>>();
    return QVariant::fromValue(rows);
}

/// The objects of one disk with a drive that has one S.M.A.R.T. interface.
inline UDisksObjects oneDrive(qulonglong deviceNumber, const QString& interface,
                              const QVariantMap& properties) {
    const QDBusObjectPath drive(u"/org/freedesktop/UDisks2/drives/ACME"_s);
    const QString block = u"org.freedesktop.UDisks2.Block"_s;
    UDisksObjects objects;
    objects[QDBusObjectPath(u"/org/freedesktop/UDisks2/block_devices/other"_s)] = {
        {block, {{u"DeviceNumber"_s, deviceNumber + 1}}}};
    objects[QDBusObjectPath(u"/org/freedesktop/UDisks2/block_devices/disk"_s)] = {
        {block, {{u"DeviceNumber"_s, deviceNumber}, {u"Drive"_s, QVariant::fromValue(drive)}}}};
    objects[drive] = {{u"org.freedesktop.UDisks2.Drive"_s, {}}, {interface, properties}};
    return objects;
}

/// Serves an object and what lies under its path on a bus, in a thread of its own. Fails: throws
/// std::runtime_error if the bus refuses the name.
class ServedObject {
public:
    ServedObject(const std::string& address, const QString& service, QString path, QDBusVirtualObject& object)
        : m_name(u"serving-"_s + service)
        , m_path(std::move(path))
        , m_object(object) {
        QDBusConnection bus = QDBusConnection::connectToBus(QString::fromStdString(address), m_name);
        const bool isRegistered = bus.registerVirtualObject(m_path, &m_object, QDBusConnection::SubPath);
        m_object.moveToThread(&m_thread);
        m_thread.start();
        if (!isRegistered || !bus.registerService(service)) {
            end();
            throw std::runtime_error("the bus does not take the service");
        }
    }

    ~ServedObject() { end(); }

    ServedObject(const ServedObject&) = delete;
    ServedObject& operator=(const ServedObject&) = delete;

private:
    /// Qt closes the connection later, on its own thread, and still calls the objects that it knows then.
    /// So it has to forget this one first.
    void end() {
        QDBusConnection(m_name).unregisterObject(m_path);
        m_object.disconnect();
        QDBusConnection::disconnectFromBus(m_name);
        m_thread.quit();
        m_thread.wait();
    }

    QThread m_thread;
    QString m_name;
    QString m_path;
    QDBusVirtualObject& m_object;
};

/// Serves org.freedesktop.UDisks2 on a bus. Fails: throws std::runtime_error if the bus refuses the name.
class FakeUDisks {
public:
    FakeUDisks(const std::string& address, UDisksScript script)
        : m_service(std::move(script))
        , m_served(address, u"org.freedesktop.UDisks2"_s, u"/org/freedesktop/UDisks2"_s, m_service) {}

    /// The number of S.M.A.R.T. calls without the options `nowakeup` and `auth.no_user_interaction`.
    int carelessCalls() const { return m_service.carelessCalls; }

private:
    class Service : public QDBusVirtualObject {
    public:
        explicit Service(UDisksScript script)
            : m_script(std::move(script)) {
            qDBusRegisterMetaType<UDisksInterfaces>();
            qDBusRegisterMetaType<UDisksObjects>();
        }

        QString introspect(const QString&) const override { return {}; }

        bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override {
            if (m_script.isMute)
                return true;
            connection.send(answer(message));
            return true;
        }

        std::atomic<int> carelessCalls = 0;

    private:
        QDBusMessage answer(const QDBusMessage& message) {
            const QString method = message.member();
            if (method == "GetManagedObjects"_L1)
                return message.createReply(m_script.insteadOfObjects.isValid()
                                               ? m_script.insteadOfObjects
                                               : QVariant::fromValue(m_script.objects));
            if (method == "GetAll"_L1)
                return message.createReply(QVariant(
                    m_script.objects[QDBusObjectPath(message.path())][message.arguments().at(0).toString()]));

            const auto options = qdbus_cast<QVariantMap>(message.arguments().value(0));
            if (options != QVariantMap{{u"nowakeup"_s, true}, {u"auth.no_user_interaction"_s, true}})
                ++carelessCalls;
            if (method == "SmartUpdate"_L1)
                return update(message);
            return m_script.attributes.isValid() ? message.createReply(m_script.attributes)
                                                 : refusal(message);
        }

        QDBusMessage update(const QDBusMessage& message) {
            if (m_script.refusesUpdate)
                return refusal(message);
            QVariantMap& properties = m_script.objects[QDBusObjectPath(message.path())][message.interface()];
            properties.insert(m_script.afterUpdate);
            return message.createReply();
        }

        static QDBusMessage refusal(const QDBusMessage& message) {
            return message.createErrorReply(u"org.freedesktop.UDisks2.Error.WouldWakeup"_s, u"asleep"_s);
        }

        UDisksScript m_script;
    };

    Service m_service;
    ServedObject m_served;
};

} // namespace test
