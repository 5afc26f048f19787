#pragma once

#include "TarnwickKit/model/runs/JsonReader.h"
#include "TarnwickKit/model/runs/JsonWriter.h"

#include <QDateTime>
#include <QString>
#include <QUuid>

#include <cstdint>
#include <optional>

namespace TarnwickKit::model {

/// The JSON forms of single values, the same in all files of this program. A UUID has upper-case digits and
/// no braces. A date is of UTC and whole seconds: "2024-05-01T12:34:56Z".

void write(JsonWriter& json, const QString& value);
void write(JsonWriter& json, double value);
void write(JsonWriter& json, std::int64_t value);
void write(JsonWriter& json, bool value);
void write(JsonWriter& json, const QUuid& value);
void write(JsonWriter& json, const QDateTime& value);
/// Whether a date has such a form: it is valid, and its year has four digits.
bool hasJsonForm(const QDateTime& value);

/// Each fails: throws JsonError on a value of another type or form.
void read(JsonReader& json, QString& value);
void read(JsonReader& json, double& value);
void read(JsonReader& json, std::int64_t& value);
void read(JsonReader& json, bool& value);
void read(JsonReader& json, QUuid& value);
void read(JsonReader& json, QDateTime& value);

} // namespace TarnwickKit::model
