#include "TarnwickKit/model/runs/JsonValues.h"

namespace TarnwickKit::model {

namespace {

const QString dateForm = QStringLiteral("yyyy-MM-ddTHH:mm:ssZ");
constexpr qsizetype dateLength = 20;
constexpr qsizetype uuidLength = 36;

} // namespace

void write(JsonWriter& json, const QString& value) { json.string(value); }
void write(JsonWriter& json, double value) { json.number(value); }
void write(JsonWriter& json, std::int64_t value) { json.integer(value); }
void write(JsonWriter& json, bool value) { json.boolean(value); }
void write(JsonWriter& json, const QUuid& value) {
    json.string(value.toString(QUuid::WithoutBraces).toUpper());
}
void write(JsonWriter& json, const QDateTime& value) { json.string(value.toUTC().toString(dateForm)); }

bool hasJsonForm(const QDateTime& value) {
    return value.isValid() && value.toUTC().toString(dateForm).size() == dateLength;
}

void read(JsonReader& json, QString& value) { value = json.string(); }
void read(JsonReader& json, double& value) { value = json.number() + 0.0; } // -0 becomes 0
void read(JsonReader& json, std::int64_t& value) { value = json.integer(); }
void read(JsonReader& json, bool& value) { value = json.boolean(); }

void read(JsonReader& json, QUuid& value) {
    const QString text = json.string();
    // QUuid accepts other forms, and returns the null UUID for malformed ones.
    value = text.size() == uuidLength ? QUuid::fromString(text) : QUuid();
    if (value.toString(QUuid::WithoutBraces).compare(text, Qt::CaseInsensitive) != 0)
        throw JsonError("a UUID was expected");
}

void read(JsonReader& json, QDateTime& value) {
    const QString text = json.string();
    value = QDateTime::fromString(text, Qt::ISODate);
    if (text.size() != dateLength || !value.isValid() || value.toUTC().toString(dateForm) != text)
        throw JsonError("a date as in 2024-05-01T12:34:56Z was expected");
    value = value.toUTC();
}

} // namespace TarnwickKit::model
