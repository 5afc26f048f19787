#pragma once

#include "TarnwickKit/model/runs/JsonReader.h"
#include "TarnwickKit/model/runs/RunFields.h"

#include <QByteArrayView>
#include <QString>

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace TarnwickKit::model {

template <typename Field>
inline constexpr bool isOptional = false;
template <typename Value>
inline constexpr bool isOptional<std::optional<Value>> = true;

/// Reads an object into the fields that `visitFields` has for `record`. Calls `read(key, field)` for each
/// member that is one of them, which must read or skip the value; `other(key)` for the others.
/// `isRequired(field)`: whether the object must have it. Fails: throws JsonError with the key, as `read`
/// does.
template <typename Record, typename Read, typename IsRequired, typename Other>
void readFields(JsonReader& json, Record& record, Read read, IsRequired isRequired, Other other) {
    std::uint64_t seen = 0; // no record has more fields than this has bits
    json.object([&](std::string_view key) {
        bool known = false;
        int index = 0;
        visitFields(record, [&](std::string_view name, auto& field) {
            // The key is invalid after a value has been read.
            if (!known && name == key) {
                known = true;
                seen |= std::uint64_t{1} << index;
                try {
                    read(name, field);
                } catch (const JsonError& error) {
                    throw JsonError(std::string(name) + ": " + error.what());
                }
            }
            ++index;
        });
        if (!known)
            other(key);
    });
    int index = 0;
    visitFields(record, [&](std::string_view name, const auto& field) {
        if (isRequired(field) && !(seen >> index & 1))
            throw JsonError(std::string(name) + " is missing");
        ++index;
    });
}

/// The same, and skips all other members.
template <typename Record, typename Read, typename IsRequired>
void readFields(JsonReader& json, Record& record, Read read, IsRequired isRequired) {
    readFields(json, record, read, isRequired, [&json](std::string_view) { json.skip(); });
}

/// The records that `readRecord` can read in damaged text of at most `mostBytes`, in their order. Tries every
/// '{' as the beginning of one, because damage can hide where the record before it ends. Objects nest at most
/// 64 deep, so no text is read more often than that.
template <typename Record, typename ReadRecord>
std::vector<Record> recoverRecords(QByteArrayView text, std::size_t mostBytes, ReadRecord readRecord) {
    std::vector<Record> records;
    if (static_cast<std::size_t>(text.size()) > mostBytes)
        return records;
    const std::string mended = QString::fromUtf8(text).toStdString();
    JsonReader json(mended);
    for (auto at = mended.find('{'); at != std::string::npos; at = mended.find('{', at)) {
        json.goTo(at);
        try {
            records.push_back(readRecord(json));
            at = json.position();
        } catch (const JsonError&) {
            ++at;
        }
    }
    return records;
}

} // namespace TarnwickKit::model
