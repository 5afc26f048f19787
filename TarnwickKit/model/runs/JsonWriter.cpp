#include "TarnwickKit/model/runs/JsonWriter.h"

#include <QStringView>

#include <array>
#include <charconv>

namespace TarnwickKit::model {

namespace {

/// Longer than the longest spelling of a double or an integer.
constexpr std::size_t longestNumber = 32;

/// Appends a number in the spelling of the C++ library, which is independent of the locale.
void appendNumber(QByteArray& json, auto value) {
    std::array<char, longestNumber> buffer;
    const char* end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value).ptr;
    json.append(buffer.data(), end - buffer.data());
}

} // namespace

void JsonWriter::separate() {
    if (m_needsComma)
        m_json += ',';
    m_needsComma = true;
}

void JsonWriter::open(char mark) {
    separate();
    m_json += mark;
    m_needsComma = false;
}

void JsonWriter::close(char mark) {
    m_json += mark;
    m_needsComma = true;
}

void JsonWriter::key(std::string_view name) {
    separate();
    m_json += '"';
    m_json.append(name.data(), static_cast<qsizetype>(name.size()));
    m_json += "\":";
    m_needsComma = false;
}

void JsonWriter::string(QStringView text) {
    separate();
    m_json += '"';
    for (const char character : text.toUtf8()) {
        if (character == '"' || character == '\\')
            m_json += '\\';
        if (static_cast<unsigned char>(character) >= 0x20)
            m_json += character;
        else
            m_json += "\\u00" + QByteArray(1, character).toHex();
    }
    m_json += '"';
}

void JsonWriter::number(double value) {
    separate();
    appendNumber(m_json, value);
}

void JsonWriter::integer(std::int64_t value) {
    separate();
    appendNumber(m_json, value);
}

void JsonWriter::boolean(bool value) { raw(value ? "true" : "false"); }

void JsonWriter::raw(QByteArrayView json) {
    separate();
    m_json += json;
}

} // namespace TarnwickKit::model
