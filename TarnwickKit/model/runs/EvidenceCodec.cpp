#include "TarnwickKit/model/runs/EvidenceCodec.h"

#include "TarnwickKit/model/runs/JsonFields.h"
#include "TarnwickKit/model/runs/RunCodec.h"
#include "TarnwickKit/model/runs/RunFields.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <concepts>
#include <optional>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>

namespace TarnwickKit::model {

using OndelCore::benchmark::Remark;
using OndelCore::benchmark::RemarkCode;
using OndelCore::platform::CircumstanceSample;
using OndelCore::platform::DriveLink;
using OndelCore::platform::FileSystemReach;

namespace {

// --- Names of values

constexpr std::array<std::pair<FileSystemReach, std::string_view>, 4> reaches{
    {{FileSystemReach::device, "device"},
     {FileSystemReach::memory, "memory"},
     {FileSystemReach::layered, "layered"},
     {FileSystemReach::network, "network"}}};
constexpr std::array<std::pair<DriveLink::Kind, std::string_view>, 3> linkKinds{
    {{DriveLink::Kind::pcie, "pcie"}, {DriveLink::Kind::sata, "sata"}, {DriveLink::Kind::usb, "usb"}}};

constexpr const auto& namesOf(FileSystemReach) { return reaches; }
constexpr const auto& namesOf(DriveLink::Kind) { return linkKinds; }

template <typename Value>
inline constexpr bool isEnum = std::is_enum_v<Value>;

// --- What can be true

bool isPlausible(std::string_view key, double value) {
    if (key.ends_with("elsius"))
        return value > -40 && value < 200; // what sensors that are absent or broken tell lies outside
    return value >= 0 && value <= (key == "ioPressure" ? 1 : largestShownFigure);
}
bool isPlausible(std::string_view, std::int64_t value) { return value >= 0; }
bool isPlausible(std::string_view, bool) { return true; }
template <typename Value>
    requires isEnum<Value>
bool isPlausible(std::string_view, Value) {
    return true;
}

/// A number must be there and be possible. Other fields have a form that says nothing.
template <typename Field>
inline constexpr bool isNeeded =
    std::same_as<Field, double> || std::same_as<Field, std::int64_t> || isEnum<Field>;

template <typename Part>
    requires std::is_class_v<Part>
bool isPlausible(std::string_view, const Part& part) {
    bool all = true;
    visitFields(part, [&](std::string_view key, const auto& field) {
        if constexpr (isNeeded<std::remove_cvref_t<decltype(field)>>)
            all = all && isPlausible(key, field);
    });
    return all;
}

// --- Parts

class EvidenceWriter {
public:
    explicit EvidenceWriter(JsonWriter& json)
        : m_json(json) {}

    template <typename Part>
        requires std::is_class_v<Part>
    void put(const Part& part) {
        m_json.beginObject();
        visitFields(part, [this](std::string_view key, const auto& field) { member(key, field); });
        m_json.endObject();
    }

private:
    template <typename Value>
    void member(std::string_view key, const std::optional<Value>& value) {
        if (value && isPlausible(key, *value))
            keyed(key, *value);
    }
    void member(std::string_view key, bool flag) {
        if (flag)
            keyed(key, flag);
    }
    void member(std::string_view key, const std::string& text) {
        if (const QString plain = QString::fromStdString(text); isPlainText(plain))
            keyed(key, plain);
    }
    void member(std::string_view key, const std::vector<CircumstanceSample>& samples) {
        if (!samples.empty())
            keyed(key, samples);
    }
    template <typename Value>
        requires isNeeded<Value>
    void member(std::string_view key, Value value) {
        keyed(key, value);
    }

    void keyed(std::string_view key, const auto& value) {
        m_json.key(key);
        put(value);
    }

    void put(double value) { m_json.number(value); }
    void put(std::int64_t value) { m_json.integer(value); }
    void put(bool value) { m_json.boolean(value); }
    void put(const QString& text) { m_json.string(text); }
    template <typename Value>
        requires isEnum<Value>
    void put(Value value) {
        const auto* found =
            std::ranges::find(namesOf(value), value, [](const auto& pair) { return pair.first; });
        m_json.string(QString::fromLatin1(found->second));
    }
    void put(const std::vector<CircumstanceSample>& samples) {
        m_json.beginArray();
        for (std::size_t index = 0; index < std::min(samples.size(), maxCircumstanceSamples); ++index)
            if (isPlausible({}, samples[index]))
                put(samples[index]);
        m_json.endArray();
    }

    JsonWriter& m_json;
};

class EvidenceReader {
public:
    explicit EvidenceReader(JsonReader& json)
        : m_json(json) {}

    template <typename Part>
        requires std::is_class_v<Part>
    void take(std::string_view, Part& part) {
        readFields(
            m_json, part, [this](std::string_view key, auto& field) { take(key, field); },
            [](const auto& field) { return isNeeded<std::remove_cvref_t<decltype(field)>>; });
    }

private:
    template <typename Value>
    void take(std::string_view key, std::optional<Value>& value) {
        value.reset();
        Value found{};
        if (!m_json.tryNull() && m_json.tryRead([&] { take(key, found); }))
            value = std::move(found);
    }
    void take(std::string_view key, double& value) { value = possible(key, m_json.number() + 0.0); }
    void take(std::string_view key, std::int64_t& value) { value = possible(key, m_json.integer()); }
    void take(std::string_view, bool& value) { value = m_json.boolean(); }
    void take(std::string_view, std::string& value) {
        const QString text = m_json.string();
        value = isPlainText(text) ? text.toStdString() : std::string();
    }
    template <typename Value>
        requires isEnum<Value>
    void take(std::string_view, Value& value) {
        const std::string name = m_json.string().toStdString();
        const auto& names = namesOf(value);
        const auto* found = std::ranges::find(names, name, [](const auto& pair) { return pair.second; });
        if (found == names.end())
            throw JsonError("unknown name");
        value = found->first;
    }
    void take(std::string_view, std::vector<CircumstanceSample>& samples) {
        samples.clear();
        std::size_t count = 0;
        m_json.array([&] {
            if (++count > maxCircumstanceSamples)
                throw JsonError("too many samples");
            CircumstanceSample sample;
            take({}, sample);
            samples.push_back(sample);
        });
    }

    template <typename Value>
    static Value possible(std::string_view key, Value value) {
        if (!isPlausible(key, value))
            throw JsonError("a figure that cannot be");
        return value;
    }

    JsonReader& m_json;
};

// --- Remarks

/// The largest number at a place of a remark; shares, kinds and error numbers have limits of their own.
double largestNumber(RemarkCode code, std::size_t place) {
    constexpr double largestErrno = 4095;
    switch (code) {
    case RemarkCode::fromMemory:
    case RemarkCode::nearlyFull:
    case RemarkCode::copiesOnWrite:
        return 1;
    case RemarkCode::flushFailed:
        return largestErrno;
    case RemarkCode::gotHot:
        return place == 3 ? 1 : largestShownFigure;
    case RemarkCode::slowLink:
        return place == 2 ? static_cast<double>(linkKinds.size() - 1) : largestShownFigure;
    case RemarkCode::powerSaving:
        return 3;
    default:
        return largestShownFigure;
    }
}

/// Whether only a test can give reason for it.
bool needsTest(RemarkCode code) {
    switch (code) {
    case RemarkCode::fromMemory:
    case RemarkCode::speedFell:
    case RemarkCode::gotHot:
    case RemarkCode::stalls:
    case RemarkCode::otherTraffic:
        return true;
    default:
        return false;
    }
}

bool isPossible(const Remark& remark) {
    if (remark.numbers.size() != numbersOf(remark.code) || (needsTest(remark.code) && !remark.test))
        return false;
    for (std::size_t place = 0; place < remark.numbers.size(); ++place) {
        const double number = remark.numbers[place];
        if (!(number >= 0 && number <= largestNumber(remark.code, place)))
            return false;
    }
    return true;
}

void writeRemark(JsonWriter& json, const Remark& remark) {
    json.beginObject();
    json.key("code");
    json.string(QString::fromLatin1(rawValue(remark.code)));
    json.key("weight");
    json.string(QString::fromLatin1(rawValue(remark.weight)));
    if (remark.test) {
        json.key("test");
        json.string(QString::fromLatin1(rawValue(*remark.test)));
    }
    json.key("numbers");
    json.beginArray();
    for (const double number : remark.numbers)
        json.number(number);
    json.endArray();
    json.endObject();
}

template <typename Value>
Value named(JsonReader& json, std::optional<Value> (*valueOf)(std::string_view)) {
    const auto value = valueOf(json.string().toStdString());
    if (!value)
        throw JsonError("unknown name");
    return *value;
}

/// Fails: throws JsonError, also on a remark that this version does not know. A later version may have added
/// numbers at the end of the list.
Remark readRemark(JsonReader& json) {
    std::optional<RemarkCode> code;
    Remark remark;
    bool isWeighted = false;
    json.object([&](std::string_view key) {
        if (key == "code") {
            code = named(json, OndelCore::benchmark::remarkCode);
        } else if (key == "weight") {
            remark.weight = named(json, OndelCore::benchmark::remarkWeight);
            isWeighted = true;
        } else if (key == "test") {
            remark.test = named(json, OndelCore::benchmark::benchmarkTest);
        } else if (key == "numbers") {
            remark.numbers.clear();
            constexpr std::size_t mostNumbers = 16;
            json.array([&] {
                if (remark.numbers.size() == mostNumbers)
                    throw JsonError("too many numbers");
                remark.numbers.push_back(json.number() + 0.0);
            });
        } else {
            json.skip();
        }
    });
    if (!code || !isWeighted)
        throw JsonError("remark without a code or weight");
    remark.code = *code;
    remark.numbers.resize(std::min(remark.numbers.size(), numbersOf(*code)));
    if (!isPossible(remark))
        throw JsonError("a remark that cannot be");
    return remark;
}

} // namespace

bool isPlainText(QStringView text) {
    constexpr qsizetype longest = 128;
    return !text.isEmpty() && text.size() <= longest &&
           std::ranges::all_of(text, [](QChar character) { return character >= u' ' && character <= u'~'; });
}

void write(JsonWriter& json, const RunEvidence& evidence) { EvidenceWriter(json).put(evidence); }

void write(JsonWriter& json, const std::vector<Remark>& remarks) {
    json.beginArray();
    for (std::size_t index = 0; index < std::min(remarks.size(), maxRemarks); ++index)
        if (isPossible(remarks[index]))
            writeRemark(json, remarks[index]);
    json.endArray();
}

void read(JsonReader& json, RunEvidence& evidence) { EvidenceReader(json).take({}, evidence); }

void read(JsonReader& json, std::vector<Remark>& remarks) {
    remarks.clear();
    std::size_t count = 0;
    json.array([&] {
        if (++count > maxRemarks)
            throw JsonError("too many remarks");
        json.tryRead([&] { remarks.push_back(readRemark(json)); });
    });
}

} // namespace TarnwickKit::model
