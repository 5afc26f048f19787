#include "TarnwickKit/model/runs/RunCodec.h"

#include "OndelCore/platform/storage/ReadFile.h"
#include "TarnwickKit/model/runs/EvidenceCodec.h"
#include "TarnwickKit/model/runs/JsonFields.h"
#include "TarnwickKit/model/runs/JsonReader.h"
#include "TarnwickKit/model/runs/JsonValues.h"
#include "TarnwickKit/model/runs/JsonWriter.h"
#include "TarnwickKit/model/runs/RunFields.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <string_view>
#include <type_traits>

namespace TarnwickKit::model {

namespace {

constexpr std::array<std::pair<RunRecord::Kind, std::string_view>, 3> kinds{
    {{RunRecord::Kind::internalDrive, "internalDrive"},
     {RunRecord::Kind::external, "external"},
     {RunRecord::Kind::network, "network"}}};

/// Fields with what was observed, which never make a run unreadable.
constexpr std::array<std::string_view, 4> observedKeys{"kernel", "version", "evidence", "remarks"};

bool isObserved(std::string_view key) { return std::ranges::find(observedKeys, key) != observedKeys.end(); }

// --- Writing

void write(JsonWriter& json, RunRecord::Kind value) { json.string(QString::fromLatin1(rawValue(value))); }
void write(JsonWriter& json, const std::vector<RunSample>& samples) {
    json.beginArray();
    for (const RunSample& sample : samples) {
        json.beginObject();
        json.key("t");
        json.number(sample.t);
        json.key("v");
        json.number(sample.v);
        json.endObject();
    }
    json.endArray();
}

// --- Reading

void read(JsonReader& json, RunRecord::Kind& value) {
    const std::string raw = json.string().toStdString();
    const auto* found = std::ranges::find(kinds, raw, [](const auto& kind) { return kind.second; });
    if (found == kinds.end())
        throw JsonError("internalDrive, external or network was expected");
    value = found->first;
}

void read(JsonReader& json, std::vector<RunSample>& samples) {
    samples.clear();
    json.array([&] {
        if (samples.size() == maxCurvePoints)
            throw JsonError("the curve has too many points");
        std::optional<double> t;
        std::optional<double> v;
        json.object([&](std::string_view key) {
            if (key == "t")
                t = json.number();
            else if (key == "v")
                v = json.number();
            else
                json.skip();
        });
        if (!t || !v)
            throw JsonError("a point has no t or no v");
        samples.push_back({*t, *v});
    });
}

template <typename Value>
void read(JsonReader& json, std::optional<Value>& value) {
    value.reset();
    if (!json.tryNull())
        read(json, value.emplace());
}

// --- What can be shown

bool isShowable(std::string_view key, double value) {
    // Rates in bytes are shown in megabytes.
    const double scale = key.ends_with("Bps") ? 1e6 : 1;
    return value >= 0 && value <= largestShownFigure * scale;
}
bool isShowable(std::string_view, std::int64_t value) { return value >= 0; }
bool isShowable(std::string_view, const QDateTime& value) { return hasJsonForm(value); }
bool isShowable(std::string_view, const std::vector<RunSample>& samples) {
    return samples.size() <= maxCurvePoints && std::ranges::all_of(samples, [](const RunSample& sample) {
               return isShowable("t", sample.t) && isShowable("vBps", sample.v);
           });
}
template <typename Value>
bool isShowable(std::string_view key, const std::optional<Value>& value) {
    if constexpr (std::is_arithmetic_v<Value> && !std::is_same_v<Value, bool>)
        return !value || isShowable(key, *value);
    else
        return true;
}
template <typename Value>
bool isShowable(std::string_view, const Value&) {
    return true;
}

/// The key of the first field that cannot be shown; empty if all can.
std::string_view unshowableKey(const RunRecord& run) {
    std::string_view first;
    visitFields(run, [&](std::string_view key, const auto& field) {
        if (first.empty() && !isShowable(key, field))
            first = key;
    });
    return first;
}

/// Whether an optional field is written and kept: observed texts are plain.
bool isKept(std::string_view key, const QString& text) { return !isObserved(key) || isPlainText(text); }
bool isKept(std::string_view, const auto&) { return true; }

template <typename Value>
void readObserved(JsonReader& json, std::string_view key, std::optional<Value>& field) {
    if (!json.tryRead([&] { read(json, field); }) || (field && !isKept(key, *field)))
        field.reset();
}

/// Skips an unknown member. Fails: throws JsonError where the file says that it is to be read in another way.
void readUnknown(JsonReader& json, std::string_view key) {
    if (key != "formatVersion")
        json.skip();
    else if (json.integer() != runFormatVersion)
        throw JsonError("formatVersion: a newer program is needed to read this");
}

RunRecord readRun(JsonReader& json) {
    RunRecord run;
    readFields(
        json, run,
        [&](std::string_view key, auto& field) {
            if constexpr (isOptional<std::remove_cvref_t<decltype(field)>>) {
                if (isObserved(key))
                    return readObserved(json, key, field);
            }
            read(json, field);
        },
        [](const auto& field) { return !isOptional<std::remove_cvref_t<decltype(field)>>; },
        [&json](std::string_view key) { readUnknown(json, key); });
    if (const std::string_view key = unshowableKey(run); !key.empty())
        throw JsonError(std::string(key) + ": this cannot be shown");
    return run;
}

template <typename Read>
auto parsed(QByteArrayView text, Read read) {
    if (static_cast<std::size_t>(text.size()) > maxRunFileBytes)
        throw JsonError("the text is too long");
    JsonReader json({text.data(), static_cast<std::size_t>(text.size())});
    auto value = read(json);
    json.end();
    return value;
}

template <typename Read>
auto decode(QByteArrayView text, Read read) -> std::optional<decltype(read(std::declval<JsonReader&>()))> {
    try {
        return parsed(text, read);
    } catch (const JsonError&) {
        return std::nullopt;
    }
}

std::vector<RunRecord> readRuns(JsonReader& json) {
    std::vector<RunRecord> runs;
    json.array([&] {
        try {
            runs.push_back(readRun(json));
        } catch (const JsonError& error) {
            throw JsonError("run " + std::to_string(runs.size() + 1) + ": " + error.what());
        }
    });
    return runs;
}

} // namespace

std::optional<QByteArray> encodeRun(const RunRecord& run) {
    if (!unshowableKey(run).empty())
        return std::nullopt;
    JsonWriter json;
    json.beginObject();
    visitFields(run, [&](std::string_view key, const auto& field) {
        if constexpr (isOptional<std::remove_cvref_t<decltype(field)>>) {
            if (field && isKept(key, *field)) {
                json.key(key);
                write(json, *field);
            }
        } else {
            json.key(key);
            write(json, field);
        }
    });
    json.endObject();
    return json.json();
}

std::optional<RunRecord> decodeRun(QByteArrayView text) { return decode(text, readRun); }

std::optional<std::vector<RunRecord>> decodeRuns(QByteArrayView text) { return decode(text, readRuns); }

std::vector<RunRecord> requireRuns(QByteArrayView text) {
    return text.trimmed().startsWith('[') ? parsed(text, readRuns) : std::vector{parsed(text, readRun)};
}

std::vector<RunRecord> recoverRuns(QByteArrayView text) {
    return recoverRecords<RunRecord>(text, maxRunFileBytes, readRun);
}

std::string_view rawValue(RunRecord::Kind kind) { return kinds.at(static_cast<std::size_t>(kind)).second; }

std::optional<std::string> readRunFile(const std::filesystem::path& path) {
    return OndelCore::platform::readRegularFile(path, maxRunFileBytes);
}

std::optional<std::string> readRunFile(const std::filesystem::path& path, std::error_code& error) {
    return OndelCore::platform::readRegularFile(path, maxRunFileBytes, error);
}

} // namespace TarnwickKit::model
