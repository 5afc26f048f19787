#include "OndelCore/platform/FakeUDisks.h"

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusVariant>

#include <atomic>
#include <fstream>
#include <stdexcept>

using OndelCore::platform::UDisksInterfaces;
using OndelCore::platform::UDisksObjects;

namespace test {

static QDBusArgument& operator<<(QDBusArgument& argument, const UDisksAtaRow& row) {
    argument.beginStructure();
    argument << row.number << QStringLiteral("attribute") << ushort{50} << 100 << 100 << 0 << row.pretty
             << row.unit << QVariantMap();
    argument.endStructure();
    return argument;
}

static const QDBusArgument& operator>>(const QDBusArgument& argument, UDisksAtaRow&) { return argument; }

} // namespace test

Q_DECLARE_METATYPE(test::UDisksAtaRow)

namespace test {

PrivateBus::PrivateBus() {
    const auto configuration = m_folder.path() / "bus.conf";
    std::ofstream(configuration)
        << "<busconfig><listen>unix:path=" << (m_folder.path() / "bus").string()
        << "</listen><auth>EXTERNAL</auth><policy context=\"default\">"
           "<allow send_destination=\"*\" eavesdrop=\"true\"/><allow eavesdrop=\"true\"/><allow own=\"*\"/>"
           "</policy></busconfig>\n";
    m_daemon.start(QStringLiteral("dbus-daemon"),
                   {QStringLiteral("--nofork"), QStringLiteral("--print-address"),
                    QStringLiteral("--config-file=") + QString::fromStdString(configuration.string())});
    if (m_daemon.waitForReadyRead())
        m_address = m_daemon.readLine().trimmed().toStdString();
}

PrivateBus::~PrivateBus() {
    m_daemon.kill();
    m_daemon.waitForFinished();
}

QVariant ataTable(const QList<UDisksAtaRow>& rows) {
    qDBusRegisterMetaType<UDisksAtaRow>();
    qDBusRegisterMetaType<QList<UDisksAtaRow>>();
    return QVariant::fromValue(rows);
}

UDisksObjects oneDrive(qulonglong deviceNumber, const QString& interface, const QVariantMap& properties) {
    const QDBusObjectPath drive(QStringLiteral("/org/freedesktop/UDisks2/drives/ACME"));
    const QString block = QStringLiteral("org.freedesktop.UDisks2.Block");
    UDisksObjects objects;
    objects[QDBusObjectPath(QStringLiteral("/org/freedesktop/UDisks2/block_devices/other"))] = {
        {block, {{QStringLiteral("DeviceNumber"), deviceNumber + 1}}}};
    objects[QDBusObjectPath(QStringLiteral("/org/freedesktop/UDisks2/block_devices/disk"))] = {
        {block,
         {{QStringLiteral("DeviceNumber"), deviceNumber},
          {QStringLiteral("Drive"), QVariant::fromValue(drive)}}}};
    objects[drive] = {{QStringLiteral("org.freedesktop.UDisks2.Drive"), {}}, {interface, properties}};
    return objects;
}

class FakeUDisks::Service : public QDBusVirtualObject {
public:
    explicit Service(UDisksScript script)
        : m_script(std::move(script)) {}

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
        if (method == QLatin1String("GetManagedObjects"))
            return message.createReply(m_script.insteadOfObjects.isValid()
                                           ? m_script.insteadOfObjects
                                           : QVariant::fromValue(m_script.objects));
        if (method == QLatin1String("GetAll"))
            return message.createReply(QVariant(
                m_script.objects[QDBusObjectPath(message.path())][message.arguments().at(0).toString()]));

        const auto options = qdbus_cast<QVariantMap>(message.arguments().value(0));
        if (options != QVariantMap{{QStringLiteral("nowakeup"), true},
                                   {QStringLiteral("auth.no_user_interaction"), true}})
            ++carelessCalls;
        if (method == QLatin1String("SmartUpdate"))
            return update(message);
        return m_script.attributes.isValid() ? message.createReply(m_script.attributes) : refusal(message);
    }

    QDBusMessage update(const QDBusMessage& message) {
        if (m_script.refusesUpdate)
            return refusal(message);
        QVariantMap& properties = m_script.objects[QDBusObjectPath(message.path())][message.interface()];
        properties.insert(m_script.afterUpdate);
        return message.createReply();
    }

    static QDBusMessage refusal(const QDBusMessage& message) {
        return message.createErrorReply(QStringLiteral("org.freedesktop.UDisks2.Error.WouldWakeup"),
                                        QStringLiteral("asleep"));
    }

    UDisksScript m_script;
};

FakeUDisks::FakeUDisks(const std::string& address, UDisksScript script)
    : m_name(QStringLiteral("fake-udisks"))
    , m_service(std::make_unique<Service>(std::move(script))) {
    qDBusRegisterMetaType<UDisksInterfaces>();
    qDBusRegisterMetaType<UDisksObjects>();
    QDBusConnection connection = QDBusConnection::connectToBus(QString::fromStdString(address), m_name);
    const bool isRegistered = connection.registerVirtualObject(QStringLiteral("/org/freedesktop/UDisks2"),
                                                               m_service.get(), QDBusConnection::SubPath);
    m_service->moveToThread(&m_thread);
    m_thread.start();
    if (!isRegistered || !connection.registerService(QStringLiteral("org.freedesktop.UDisks2")))
        throw std::runtime_error("the bus does not take the service");
}

FakeUDisks::~FakeUDisks() {
    QDBusConnection::disconnectFromBus(m_name);
    m_thread.quit();
    m_thread.wait();
}

int FakeUDisks::carelessCalls() const { return m_service->carelessCalls; }

} // namespace test
