#include "TarnwickHost/HealthFacts.h"

#include "OndelCore/health/OndelSMARTFields.h"

#include <QJsonArray>

#include <limits>

using namespace OndelCore::health;

namespace TarnwickHost {

namespace {

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

QJsonObject healthJson(const DiskHealth::Reading& reading) {
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

std::vector<TextRow> healthRows(const DiskHealth::Reading& reading) {
    std::vector<TextRow> rows{{"Source", QString::fromStdString(reading.source)}};
    if (!reading.smart || !reading.smart->isSupported())
        return rows;
    const bool isFailing = reading.smart->status == DiskSMART::Status::failing;
    rows.push_back({"Status", isFailing ? QString("Failing") : QString("Verified")});
    rows.push_back({"Interface", QString::fromStdString(reading.smart->kind)});
    for (const DiskSMART::Attribute& attribute : reading.smart->attributes)
        rows.push_back({QString::fromStdString(attribute.label),
                        QString::fromStdString(attribute.value) +
                            (attribute.warning ? QString("  (attention)") : QString())});
    return rows;
}

} // namespace TarnwickHost
