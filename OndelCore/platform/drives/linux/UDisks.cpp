#include "OndelCore/platform/drives/linux/DriveReaders.h"
#include "OndelCore/platform/drives/linux/UDisksBus.h"
#include "OndelCore/platform/drives/linux/UDisksFigures.h"
#include "OndelCore/platform/process/SessionBus.h"

#include <QDateTime>
#include <QVersionNumber>

namespace OndelCore::platform {

namespace {

const QString ataInterface = QStringLiteral("org.freedesktop.UDisks2.Drive.Ata");
const QString nvmeInterface = QStringLiteral("org.freedesktop.UDisks2.NVMe.Controller");

/// The address of the system bus (D-Bus, "Well-known Message Bus Instances").
std::string systemBusAddress() {
    const QByteArray given = qgetenv("DBUS_SYSTEM_BUS_ADDRESS");
    return given.isEmpty() ? "unix:path=/var/run/dbus/system_bus_socket" : given.toStdString();
}

/// The service's drive object of the disk.
std::optional<QDBusObjectPath> driveOf(const BlockDevice& disk, const UDisksObjects& objects) {
    for (const UDisksInterfaces& interfaces : objects) {
        const QVariantMap block = interfaces.value(QStringLiteral("org.freedesktop.UDisks2.Block"));
        if (wholeNumber(block.value(QStringLiteral("DeviceNumber"))) != disk.number)
            continue;
        const QVariant drive = block.value(QStringLiteral("Drive"));
        if (drive.userType() == qMetaTypeId<QDBusObjectPath>())
            return drive.value<QDBusObjectPath>();
    }
    return std::nullopt;
}

/// How long ago the service read the drive, as text; empty within the last minute.
std::string ageOf(std::uint64_t readAtSeconds) {
    const auto now = static_cast<std::uint64_t>(QDateTime::currentSecsSinceEpoch());
    const std::uint64_t minutes = now > readAtSeconds ? (now - readAtSeconds) / 60 : 0;
    return minutes == 0 ? "" : ", read " + std::to_string(minutes) + " min ago";
}

SmartAnswer nothing(std::string reason) { return {.blocks = {}, .source = std::move(reason)}; }

/// Why the service gives a drive no interface with health figures.
std::string reasonForNoFigures(const BlockDevice& disk, const UDisksObjects& objects) {
    const QDBusObjectPath manager(QStringLiteral("/org/freedesktop/UDisks2/Manager"));
    const QString version = objects.value(manager)
                                .value(QStringLiteral("org.freedesktop.UDisks2.Manager"))
                                .value(QStringLiteral("Version"))
                                .toString();
    const QVersionNumber installed = QVersionNumber::fromString(version);
    if (disk.name.starts_with("nvme") && !installed.isNull() && installed < QVersionNumber(2, 10))
        return "UDisks2 " + installed.toString().toStdString() +
               " does not read the health of NVMe drives (version 2.10 does)";
    return "UDisks2 has no health figures of " + disk.name;
}

/// The properties of a drive's S.M.A.R.T. interface. On a refusal (a sleeping drive, no permission) the
/// service keeps its last figures.
std::optional<QVariantMap> updated(const UDisksBus& bus, const QDBusObjectPath& drive,
                                   const QString& interface) {
    bus.ask(drive, interface, QStringLiteral("SmartUpdate"), {});
    return bus.properties(drive, interface);
}

SmartAnswer readInterface(const BlockDevice& disk, const UDisksBus& bus, const QDBusObjectPath& drive,
                          const QString& interface) {
    const bool isNvme = interface == nvmeInterface;
    const std::optional<QVariantMap> properties = updated(bus, drive, interface);
    if (!properties)
        return nothing("UDisks2 does not answer for " + disk.name);
    const auto readAt = wholeNumber(properties->value(QStringLiteral("SmartUpdated")));
    if (!readAt || *readAt == 0)
        return nothing("UDisks2 has no health figures of " + disk.name);

    const auto attributes = bus.ask(drive, interface, QStringLiteral("SmartGetAttributes"),
                                    isNvme ? nvmeAttributesSignature : ataAttributesSignature);
    const std::string source = "UDisks2 for " + disk.name + ageOf(*readAt);
    if (isNvme) {
        if (const auto report = nvmeReport(*properties, attributes.value_or(QVariant())))
            return {.blocks = *report, .source = source};
    } else if (const auto report = ataReport(*properties, attributes.value_or(QVariant()))) {
        return {.blocks = *report, .source = source};
    }
    return nothing("UDisks2 has no health verdict on " + disk.name);
}

} // namespace

SmartAnswer readFromUDisks(const BlockDevice& disk, const SmartSources& sources) {
    if (!busAnswers(sources.serviceBus.empty() ? systemBusAddress() : sources.serviceBus,
                    sources.serviceLimit))
        return nothing("UDisks2 does not answer");
    const UDisksBus bus(sources.serviceBus, sources.serviceLimit);
    const std::optional<UDisksObjects> objects = bus.objects();
    if (!objects)
        return nothing("UDisks2 does not answer");
    const std::optional<QDBusObjectPath> drive = driveOf(disk, *objects);
    if (!drive || !objects->contains(*drive))
        return nothing("UDisks2 knows no drive behind " + disk.name);
    const UDisksInterfaces& interfaces = (*objects)[*drive];
    for (const QString& interface : {nvmeInterface, ataInterface})
        if (interfaces.contains(interface))
            return readInterface(disk, bus, *drive, interface);
    return nothing(reasonForNoFigures(disk, *objects));
}

std::optional<double> celsiusFromUDisks(const BlockDevice& disk, const SmartSources& sources) {
    if (!busAnswers(sources.serviceBus.empty() ? systemBusAddress() : sources.serviceBus,
                    sources.serviceLimit))
        return std::nullopt;
    const UDisksBus bus(sources.serviceBus, sources.serviceLimit);
    const UDisksObjects objects = bus.objects().value_or(UDisksObjects());
    const std::optional<QDBusObjectPath> drive = driveOf(disk, objects);
    const UDisksInterfaces interfaces = drive ? objects.value(*drive) : UDisksInterfaces();
    for (const QString& interface : {nvmeInterface, ataInterface}) {
        if (!interfaces.contains(interface))
            continue;
        const QVariantMap properties = updated(bus, *drive, interface).value_or(QVariantMap());
        const auto readAt = wholeNumber(properties.value(QStringLiteral("SmartUpdated")));
        const QVariant kelvin = properties.value(QStringLiteral("SmartTemperature"));
        const bool isNumber = kelvin.userType() == QMetaType::Double || wholeNumber(kelvin);
        constexpr double freezing = 273.15;
        if (readAt && *readAt > 0 && ageOf(*readAt).empty() && isNumber && kelvin.toDouble() > 0)
            return kelvin.toDouble() - freezing;
    }
    return std::nullopt;
}

} // namespace OndelCore::platform
