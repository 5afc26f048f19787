#include "TarnwickHost/Facts.h"

#include "OndelCore/health/OndelSMARTFields.h"
#include "TarnwickHost/HostText.h"
#include "TarnwickKit/model/format/Format.h"
#include "TarnwickKit/model/format/HealthText.h"
#include "TarnwickKit/model/format/VolumeText.h"

#include <QJsonArray>

#include <array>
#include <limits>

using namespace OndelCore::health;
using namespace OndelCore::volumes;
using namespace TarnwickKit::model;

namespace TarnwickHost {

namespace {

struct Feature {
    const char* name;
    const char* label; ///< of the context "HostFacts"
    Capability VolumeCapabilities::* field;
};
constexpr std::array features = {
    Feature{"isCaseSensitive", QT_TRANSLATE_NOOP("HostFacts", "Case-sensitive"),
            &VolumeCapabilities::isCaseSensitive},
    Feature{"isCasePreserving", QT_TRANSLATE_NOOP("HostFacts", "Case-preserving"),
            &VolumeCapabilities::isCasePreserving},
    Feature{"supportsSparseFiles", QT_TRANSLATE_NOOP("HostFacts", "Sparse files"),
            &VolumeCapabilities::supportsSparseFiles},
    Feature{"supportsHardLinks", QT_TRANSLATE_NOOP("HostFacts", "Hard links"),
            &VolumeCapabilities::supportsHardLinks},
    Feature{"supportsSymbolicLinks", QT_TRANSLATE_NOOP("HostFacts", "Symbolic links"),
            &VolumeCapabilities::supportsSymbolicLinks},
    Feature{"supportsExtendedAttributes", QT_TRANSLATE_NOOP("HostFacts", "Extended attributes"),
            &VolumeCapabilities::supportsExtendedAttributes},
    Feature{"supportsNamedStreams", QT_TRANSLATE_NOOP("HostFacts", "Named streams"),
            &VolumeCapabilities::supportsNamedStreams},
    Feature{"supportsExtendedSecurity", QT_TRANSLATE_NOOP("HostFacts", "Access control lists"),
            &VolumeCapabilities::supportsExtendedSecurity},
    Feature{"supportsCloning", QT_TRANSLATE_NOOP("HostFacts", "Cloning"),
            &VolumeCapabilities::supportsCloning},
    Feature{"supportsSnapshots", QT_TRANSLATE_NOOP("HostFacts", "Snapshots"),
            &VolumeCapabilities::supportsSnapshots},
    Feature{"supportsJournal", QT_TRANSLATE_NOOP("HostFacts", "Journal"),
            &VolumeCapabilities::supportsJournal},
    Feature{"isJournalActive", QT_TRANSLATE_NOOP("HostFacts", "Journal active"),
            &VolumeCapabilities::isJournalActive},
    Feature{"isSealed", QT_TRANSLATE_NOOP("HostFacts", "Sealed"), &VolumeCapabilities::isSealed},
};

QString pathText(const std::filesystem::path& path) { return QString::fromStdString(path.string()); }
QString yesOrNo(bool value) { return value ? HostFacts::tr("yes") : HostFacts::tr("no"); }
QString answerText(Capability capability) {
    return capability.isKnown() ? yesOrNo(bool{capability})
                                : HostFacts::tr("not known", "whether a file system can do something");
}

void add(QJsonObject& object, const char* name, const std::optional<QString>& text) {
    if (text)
        object.insert(QLatin1String(name), *text);
}

void add(QJsonObject& object, const char* name, const std::optional<std::int64_t>& number) {
    if (number)
        object.insert(QLatin1String(name), qint64{*number});
}

QString numberText(const std::optional<std::int64_t>& number) {
    return number ? QString::number(*number) : QString("--");
}

QString statusName(DiskSMART::Status status) {
    switch (status) {
    case DiskSMART::Status::verified:
        return "verified";
    case DiskSMART::Status::failing:
        return "failing";
    case DiskSMART::Status::notSupported:
        return "notSupported";
    }
    std::abort();
}

QJsonValue json(std::int32_t value) { return value; }
QJsonValue json(double value) { return value; }
QJsonValue json(std::string_view text) { return QString::fromUtf8(text); }
QJsonValue json(std::uint64_t value) {
    constexpr auto largest = static_cast<std::uint64_t>(std::numeric_limits<qint64>::max());
    if (value <= largest)
        return static_cast<qint64>(value);
    return static_cast<double>(value);
}

QJsonObject recordJson(const OndelSMART& record) {
    QJsonObject object;
    forEachField(record, [&object](const char* name, const auto& value) {
        object.insert(QLatin1String(name), json(value));
    });
    return object;
}

QJsonArray disksJson(const std::vector<SmartReading>& disks) {
    QJsonArray array;
    for (const SmartReading& disk : disks)
        array.append(QJsonObject{{"disk", QString::fromStdString(disk.disk)},
                                 {"source", QString::fromStdString(disk.source)},
                                 {"record", recordJson(disk.record)}});
    return array;
}

} // namespace

QString urlText(const std::filesystem::path& path) {
    return "file://" + QString::fromLatin1(QByteArray::fromStdString(path.native()).toPercentEncoding("/"));
}

QJsonObject volumeJson(const VolumeInfo& volume) {
    QJsonObject object{{"name", volume.name},
                       {"format", volume.format},
                       {"total", qint64{volume.total}},
                       {"available", qint64{volume.available}},
                       {"rawAvailable", qint64{volume.rawAvailable}},
                       {"isInternal", volume.isInternal},
                       {"isRemovable", volume.isRemovable},
                       {"isReadOnly", volume.isReadOnly},
                       {"isEncrypted", volume.isEncrypted},
                       {"used", qint64{volume.used()}},
                       {"purgeable", qint64{volume.purgeable()}},
                       {"usedFraction", volume.usedFraction()},
                       {"connection", volume.connection()}};
    if (volume.volumeURL)
        object.insert("volumeURL", urlText(*volume.volumeURL));
    if (volume.device)
        object.insert("device", QString::fromStdString(*volume.device));
    return object;
}

QJsonObject capabilitiesJson(const VolumeCapabilities& capabilities) {
    QJsonObject object{{"filesystemType", capabilities.filesystemType},
                       {"blockSize", qint64{capabilities.blockSize}}};
    if (capabilities.optimalIOSize > 0)
        object.insert("optimalIOSize", qint64{capabilities.optimalIOSize});
    add(object, "maxNameLength", capabilities.maxNameLength);
    add(object, "maxPathLength", capabilities.maxPathLength);
    add(object, "maxLinkCount", capabilities.maxLinkCount);
    for (const Feature& feature : features)
        if (const Capability capability = capabilities.*feature.field; capability.isKnown())
            object.insert(QLatin1String(feature.name), bool{capability});
    return object;
}

QJsonObject driveJson(const DriveIdentity& drive) {
    QJsonObject object;
    add(object, "model", drive.model);
    add(object, "protocolName", drive.protocolName);
    return object;
}

QJsonObject mountedVolumeJson(const MountedVolume& volume) {
    QJsonObject object{{"url", urlText(volume.url)},      {"name", volume.name},
                       {"format", volume.format},         {"filesystemType", volume.filesystemType},
                       {"isInternal", volume.isInternal}, {"isRemovable", volume.isRemovable}};
    add(object, "total", volume.total);
    return object;
}

std::vector<TextRow> volumeRows(const VolumeInfo& volume) {
    return {
        {HostFacts::tr("Name"), volumeNameText(volume.name)},
        {HostFacts::tr("Format"), volumeFormatText(volume.format)},
        {HostFacts::tr("Capacity"), Format::bytes(volume.total)},
        {HostFacts::tr("Available"), Format::bytes(volume.available)},
        {HostFacts::tr("Used"), Format::bytes(volume.used()) + " (" +
                                    Format::percent(QString::number(volume.usedFraction() * 100.0, 'f', 0)) +
                                    ")"},
        {HostFacts::tr("Connection"), connectionText(volume.connection())},
        {HostFacts::tr("Read-only"), yesOrNo(volume.isReadOnly)},
        {HostFacts::tr("Encrypted"), yesOrNo(volume.isEncrypted)},
        {HostFacts::tr("Mounted at"), volume.volumeURL ? pathText(*volume.volumeURL) : QString("--")},
        {HostFacts::tr("Device"), volume.device ? QString::fromStdString(*volume.device) : QString("--")}};
}

std::vector<TextRow> capabilityRows(const VolumeCapabilities& capabilities) {
    std::vector<TextRow> rows{
        {HostFacts::tr("Type"), capabilities.filesystemType},
        {HostFacts::tr("Block size"), Format::bytes(capabilities.blockSize)},
        {HostFacts::tr("Optimal transfer"),
         capabilities.optimalIOSize > 0 ? Format::bytes(capabilities.optimalIOSize) : QString("--")},
        {HostFacts::tr("Longest name"), numberText(capabilities.maxNameLength)},
        {HostFacts::tr("Longest path"), numberText(capabilities.maxPathLength)},
        {HostFacts::tr("Most links"), numberText(capabilities.maxLinkCount)}};
    for (const Feature& feature : features)
        rows.push_back({HostFacts::tr(feature.label), answerText(capabilities.*feature.field)});
    return rows;
}

std::vector<TextRow> driveRows(const DriveIdentity& drive) {
    return {{HostFacts::tr("Model"), drive.model.value_or("--")},
            {HostFacts::tr("Attached by"), drive.protocolName.value_or("--")}};
}

QJsonObject healthJson(const HealthReading& reading) {
    QJsonObject object{{"source", QString::fromStdString(reading.source)}};
    if (!reading.smart)
        return object;
    QJsonArray attributes;
    for (const DiskSMART::Attribute& attribute : reading.smart->attributes)
        attributes.append(QJsonObject{{"label", QString::fromStdString(attribute.label)},
                                      {"value", QString::fromStdString(attribute.value)},
                                      {"warning", attribute.warning}});
    object.insert("status", statusName(reading.smart->status));
    object.insert("kind", QString::fromStdString(reading.smart->kind));
    object.insert("attributes", attributes);
    if (reading.disks.size() == 1)
        object.insert("record", recordJson(reading.disks.front().record));
    else
        object.insert("disks", disksJson(reading.disks));
    return object;
}

std::vector<TextRow> healthRows(const HealthReading& reading) {
    std::vector<TextRow> rows{{HostFacts::tr("Source"), healthSource(reading.source)}};
    if (!reading.smart || !reading.smart->isSupported())
        return rows;
    rows.push_back({HostFacts::tr("Status"), healthVerdict(reading.smart->status)});
    rows.push_back({HostFacts::tr("Interface"), QString::fromStdString(reading.smart->kind)});
    for (const DiskSMART::Attribute& attribute : reading.smart->attributes)
        rows.push_back(
            {healthLabel(attribute),
             healthValue(attribute) + (attribute.warning ? "  " + HostFacts::tr("(attention)") : QString())});
    return rows;
}

} // namespace TarnwickHost
