#include "TarnwickKit/model/capacity/CapacityCodec.h"

#include "TarnwickKit/model/capacity/CapacityFields.h"
#include "TarnwickKit/model/capacity/CapacityText.h"
#include "TarnwickKit/model/format/DisplayText.h"
#include "TarnwickKit/model/runs/EvidenceCodec.h"
#include "TarnwickKit/model/runs/JsonFields.h"
#include "TarnwickKit/model/runs/JsonReader.h"
#include "TarnwickKit/model/runs/JsonValues.h"
#include "TarnwickKit/model/runs/JsonWriter.h"
#include "TarnwickKit/model/runs/RunCodec.h"
#include "TarnwickKit/model/runs/RunEvidence.h"

#include <algorithm>
#include <array>
#include <concepts>
#include <string>
#include <string_view>
#include <system_error>
#include <type_traits>
#include <utility>

namespace TarnwickKit::model {

using namespace OndelCore::capacity;

namespace {

using Kinds = decltype(CapacityResult::bytesByKind);
using States = std::vector<BlockState>;

constexpr std::array verdictNames{"good", "unproven", "bad"};
/// One letter per state of a cell, in the order of the states.
constexpr std::string_view stateLetters = "-wvxu!";
constexpr std::array allReasons{CapacityRealSize::Reason::wrapsAround, CapacityRealSize::Reason::dropsBeyond};
constexpr std::array allEnds{EarlyEnd::full, EarlyEnd::quota, EarlyEnd::writeErrors};

constexpr const auto& valuesOf(DefectKind) { return allDefectKinds; }
constexpr const auto& valuesOf(CapacityRealSize::Reason) { return allReasons; }
constexpr const auto& valuesOf(EarlyEnd) { return allEnds; }

template <typename Value>
concept Named = requires(Value value) { valuesOf(value); };
/// An object with a key per field.
template <typename Value>
concept Part = requires(const Value& value) { visitFields(value, [](std::string_view, const auto&) {}); };

constexpr std::size_t mostOf(const std::vector<CapacityDefect>&) { return maxDefects; }
constexpr std::size_t mostOf(const std::vector<CapacityRate>&) { return maxCapacityRates; }

RunEvidence evidenceOf(const CapacityResult& result) {
    RunEvidence evidence;
    evidence.sequentialWrite = result.write.evidence;
    evidence.sequentialRead = result.read.evidence;
    evidence.circumstances = result.circumstances;
    return evidence;
}

// --- Writing

class CheckWriter {
public:
    explicit CheckWriter(JsonWriter& json)
        : m_json(json) {}

    void members(const Part auto& part) {
        visitFields(part, [this](std::string_view key, const auto& field) {
            if (isEmpty(field))
                return;
            m_json.key(key);
            put(field);
        });
    }
    void put(const Part auto& part) {
        m_json.beginObject();
        members(part);
        m_json.endObject();
    }

private:
    static bool isEmpty(bool flag) { return !flag; }
    static bool isEmpty(std::int64_t number) { return number == 0; }
    template <typename Value>
    static bool isEmpty(const std::optional<Value>& value) {
        return !value;
    }
    template <typename Value>
    static bool isEmpty(const std::vector<Value>& list) {
        return list.empty();
    }
    static bool isEmpty(const CapacityCells& cells) { return cells.states.empty(); }
    static bool isEmpty(const CapacityPass& pass) { return pass.bytes == 0; }
    static bool isEmpty(const Kinds& kinds) { return std::ranges::count(kinds, 0) == std::ssize(kinds); }
    static bool isEmpty(const auto& /*value*/) { return false; }

    template <typename Value>
    void put(const std::optional<Value>& value) {
        put(*value);
    }
    template <typename Value>
    void put(const std::vector<Value>& list) {
        m_json.beginArray();
        for (const Value& value : list)
            put(value);
        m_json.endArray();
    }
    void put(Named auto value) { put(QString::fromLatin1(rawValue(value))); }
    void put(const std::error_code& error) { m_json.integer(error.value()); }
    void put(const Kinds& kinds) {
        m_json.beginObject();
        for (const DefectKind kind : allDefectKinds) {
            const std::int64_t bytes = kinds.at(static_cast<std::size_t>(kind));
            if (bytes == 0)
                continue;
            m_json.key(rawValue(kind));
            m_json.integer(bytes);
        }
        m_json.endObject();
    }
    void put(const States& states) {
        QString letters;
        for (const BlockState state : states)
            letters += QLatin1Char(stateLetters.at(static_cast<std::size_t>(state)));
        m_json.string(letters);
    }
    template <typename Value>
        requires requires(JsonWriter& json, const Value& value) { write(json, value); }
    void put(const Value& value) {
        write(m_json, value);
    }

    JsonWriter& m_json;
};

/// The members of a check, with what was observed at the end.
void writeMembers(JsonWriter& json, const CapacityRecord& check) {
    CheckWriter(json).members(check);
    json.key("evidence");
    write(json, evidenceOf(check.result));
}

// --- Reading

class CheckReader {
public:
    explicit CheckReader(JsonReader& json)
        : m_json(json) {}

    void take(Part auto& part) {
        readFields(
            m_json, part, [this](std::string_view, auto& field) { take(field); },
            [](const auto& field) { return isRequired(field); });
    }
    void take(CapacityRecord& check) {
        std::optional<RunEvidence> evidence;
        readFields(
            m_json, check, [this](std::string_view, auto& field) { take(field); },
            [](const auto& field) { return isRequired(field); },
            [&](std::string_view key) { takeOther(key, evidence); });
        if (!evidence)
            return;
        check.result.write.evidence = evidence->sequentialWrite.value_or(check.result.write.evidence);
        check.result.read.evidence = evidence->sequentialRead.value_or(check.result.read.evidence);
        check.result.circumstances = evidence->circumstances.value_or(check.result.circumstances);
    }

private:
    /// What is written whatever its value.
    template <typename Field>
    static bool isRequired(const Field& /*field*/) {
        return std::same_as<Field, QUuid> || std::same_as<Field, QString> || std::same_as<Field, QDateTime> ||
               std::same_as<Field, double> || Named<Field>;
    }

    void takeOther(std::string_view key, std::optional<RunEvidence>& evidence) {
        if (key == "formatVersion") {
            if (m_json.integer() != runFormatVersion)
                throw JsonError("a newer program is needed to read this");
        } else if (key != "evidence") {
            m_json.skip();
        } else if (!m_json.tryRead([&] { read(m_json, evidence.emplace()); })) {
            evidence.reset();
        }
    }

    template <typename Value>
    void take(std::optional<Value>& value) {
        value.reset();
        if (!m_json.tryNull())
            take(value.emplace());
    }
    template <Part Value>
    void take(std::vector<Value>& list) {
        list.clear();
        m_json.array([&] {
            if (list.size() == mostOf(list))
                throw JsonError("the list is too long");
            take(list.emplace_back());
        });
    }
    template <Named Value>
    void take(Value& value) {
        const std::string name = m_json.string().toStdString();
        const auto found =
            std::ranges::find(valuesOf(value), name, [](Value each) { return rawValue(each); });
        if (found == valuesOf(value).end())
            throw JsonError("the word is unknown");
        value = *found;
    }
    void take(std::error_code& error) {
        constexpr std::int64_t last = 4095; // the kernel has no errno above
        const std::int64_t number = m_json.integer();
        if (number <= 0 || number > last)
            throw JsonError("a number of a system's error was expected");
        error = {static_cast<int>(number), std::system_category()};
    }
    void take(Kinds& kinds) {
        m_json.object([&](std::string_view key) {
            if (const auto kind = defectKind(key))
                take(kinds.at(static_cast<std::size_t>(*kind)));
            else
                m_json.skip();
        });
    }
    void take(States& states) {
        states.clear();
        const std::string letters = m_json.string().toStdString();
        for (const char letter : letters) {
            const std::size_t state = stateLetters.find(letter);
            if (state == std::string_view::npos || states.size() == maxCells)
                throw JsonError("these are no cells");
            states.push_back(static_cast<BlockState>(state));
        }
    }
    template <typename Value>
        requires requires(JsonReader& json, Value& value) { read(json, value); } && (!Part<Value>)
    void take(Value& value) {
        read(m_json, value);
    }

    JsonReader& m_json;
};

// --- What can be shown

class ShowableCheck {
public:
    static bool is(const Part auto& part) {
        bool all = true;
        visitFields(part, [&](std::string_view key, const auto& field) {
            all = all && (key == "shareAtDisk" ? isShare(field) : is(field));
        });
        return all;
    }

private:
    static bool is(double value) { return value >= 0 && value <= largestShownFigure; }
    static bool is(std::int64_t value) { return value >= 0; }
    static bool is(const QDateTime& date) { return hasJsonForm(date); }
    static bool is(const States& states) { return states.size() <= maxCells; }
    static bool is(const Kinds& kinds) {
        return std::ranges::all_of(kinds, [](std::int64_t bytes) { return is(bytes); });
    }
    template <Part Value>
    static bool is(const std::vector<Value>& list) {
        return list.size() <= mostOf(list) &&
               std::ranges::all_of(list, [](const Value& value) { return is(value); });
    }
    template <typename Value>
    static bool is(const std::optional<Value>& value) {
        return !value || is(*value);
    }
    template <typename Value>
        requires(!Part<Value>)
    static bool is(const Value& /*value*/) {
        return true;
    }
    static bool isShare(const std::optional<double>& share) { return !share || (*share >= 0 && *share <= 1); }
    static bool isShare(const auto& /*other*/) { return true; }
};

/// Fails: throws JsonError.
CapacityRecord readCheck(JsonReader& json) {
    CapacityRecord check;
    CheckReader(json).take(check);
    if (!ShowableCheck::is(check))
        throw JsonError("a figure cannot be shown");
    return check;
}

template <typename Read>
auto parsedCheck(QByteArrayView text, Read readAll)
    -> std::optional<decltype(readAll(std::declval<JsonReader&>()))> {
    if (static_cast<std::size_t>(text.size()) > maxRunFileBytes)
        return std::nullopt;
    try {
        JsonReader json({text.data(), static_cast<std::size_t>(text.size())});
        auto value = readAll(json);
        json.end();
        return value;
    } catch (const JsonError&) {
        return std::nullopt;
    }
}

} // namespace

std::optional<QByteArray> encodeCheck(const CapacityRecord& check) {
    if (!ShowableCheck::is(check))
        return std::nullopt;
    JsonWriter json;
    json.beginObject();
    writeMembers(json, check);
    json.endObject();
    return json.json();
}

std::optional<CapacityRecord> decodeCheck(QByteArrayView text) { return parsedCheck(text, readCheck); }

std::optional<std::vector<CapacityRecord>> decodeChecks(QByteArrayView text) {
    return parsedCheck(text, [](JsonReader& json) {
        std::vector<CapacityRecord> checks;
        json.array([&] { checks.push_back(readCheck(json)); });
        return checks;
    });
}

std::vector<CapacityRecord> recoverChecks(QByteArrayView text) {
    return recoverRecords<CapacityRecord>(text, maxRunFileBytes, readCheck);
}

std::optional<QByteArray> checkJson(const CapacityRecord& check) {
    if (!ShowableCheck::is(check))
        return std::nullopt;
    JsonWriter json;
    json.beginObject();
    json.key("formatVersion");
    json.integer(runFormatVersion);
    json.key("verdict");
    json.string(QString::fromLatin1(verdictNames.at(static_cast<std::size_t>(check.verdict()))));
    json.key("sentence");
    json.string(capacitySentence(check));
    writeMembers(json, check);
    json.endObject();
    return harmlessJson(json.json());
}

} // namespace TarnwickKit::model
