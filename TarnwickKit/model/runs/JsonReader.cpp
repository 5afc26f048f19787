#include "TarnwickKit/model/runs/JsonReader.h"

#include <QLatin1StringView>
#include <QLocale>
#include <QStringDecoder>
#include <QStringView>
#include <QUtf8StringView>

#include <charconv>
#include <cmath>

namespace TarnwickKit::model {

namespace {

bool isDigit(char character) { return character >= '0' && character <= '9'; }

/// What a character of JSON's grammar stands for, in words.
std::string nameOf(char character) {
    switch (character) {
    case '{':
        return "an object";
    case '[':
        return "a list";
    case '"':
        return "a text";
    case ',':
        return "a comma";
    default:
        return "a colon";
    }
}

} // namespace

JsonReader::JsonReader(std::string_view text)
    : m_text(text) {
    if (!QUtf8StringView(text.data(), static_cast<qsizetype>(text.size())).isValidUtf8())
        throw JsonError("the text is not UTF-8");
}

JsonReader::Nesting::Nesting(JsonReader& reader, char opening)
    : m_reader(reader) {
    if (reader.m_depth == maxDepth)
        throw JsonError("values are nested too deeply");
    reader.expect(opening);
    ++reader.m_depth;
}

/// The next non-blank character; NUL at the end.
char JsonReader::peek() {
    while (m_at < m_text.size()) {
        const char character = m_text[m_at];
        if (character != ' ' && character != '\n' && character != '\r' && character != '\t')
            return character;
        ++m_at;
    }
    return '\0';
}

void JsonReader::expect(char character) {
    if (peek() != character || m_at == m_text.size())
        throw JsonError(nameOf(character) + " was expected");
    ++m_at;
}

bool JsonReader::tryWord(std::string_view word) {
    peek();
    if (!m_text.substr(m_at).starts_with(word))
        return false;
    m_at += word.size();
    return true;
}

/// Whether another item of an object or array follows. Reads its comma or the closing mark.
bool JsonReader::nextItem(bool first, char closing) {
    if (peek() == closing) {
        ++m_at;
        return false;
    }
    if (!first)
        expect(',');
    return true;
}

/// A string's content: a view of the text, or of a copy if it has escapes.
std::string_view JsonReader::rawString() {
    expect('"');
    const std::size_t begin = m_at;
    const auto plainEnd = [this] {
        while (m_at < m_text.size() && m_text[m_at] != '"' && m_text[m_at] != '\\') {
            if (static_cast<unsigned char>(m_text[m_at]) < 0x20)
                throw JsonError("a control character stands in a text");
            ++m_at;
        }
        if (m_at == m_text.size())
            throw JsonError("a text has no end");
        return m_at;
    };
    if (m_text[plainEnd()] == '"')
        return m_text.substr(begin, m_at++ - begin);

    m_unescaped.assign(m_text, begin, m_at - begin);
    while (m_text[m_at] == '\\') {
        ++m_at;
        appendEscape();
        const std::size_t plain = m_at;
        m_unescaped.append(m_text, plain, plainEnd() - plain);
    }
    ++m_at;
    return m_unescaped;
}

void JsonReader::appendEscape() {
    constexpr std::string_view marks = "\"\\/bfnrt";
    constexpr std::string_view meanings = "\"\\/\b\f\n\r\t";
    const char mark = m_at < m_text.size() ? m_text[m_at++] : '\0';
    if (const std::size_t found = marks.find(mark); found != std::string_view::npos) {
        m_unescaped += meanings[found];
        return;
    }
    if (mark != 'u')
        throw JsonError("an escape is unknown");
    char32_t character = hexCodeUnit();
    if (character >= 0xD800 && character < 0xDC00 && m_text.substr(m_at).starts_with("\\u")) {
        m_at += 2;
        const char32_t low = hexCodeUnit();
        if (low < 0xDC00 || low > 0xDFFF)
            throw JsonError("half of a surrogate pair stands alone");
        character = 0x10000 + ((character - 0xD800) << 10) + (low - 0xDC00);
    } else if (character >= 0xD800 && character < 0xE000) {
        throw JsonError("half of a surrogate pair stands alone");
    }
    m_unescaped += QStringView(QChar::fromUcs4(character)).toUtf8().toStdString();
}

char32_t JsonReader::hexCodeUnit() {
    const std::string_view digits = m_text.substr(m_at, 4);
    std::uint32_t value = 0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), value, 16);
    if (digits.size() != 4 || error != std::errc() || end != digits.data() + 4)
        throw JsonError("four hexadecimal digits were expected");
    m_at += 4;
    return value;
}

/// A number's text by JSON's grammar, which is narrower than that of the C++ library.
std::string_view JsonReader::numberToken() {
    peek();
    const std::size_t begin = m_at;
    const auto is = [this](std::string_view any) {
        return m_at < m_text.size() && any.find(m_text[m_at]) != std::string_view::npos;
    };
    const auto digits = [this] {
        const std::size_t from = m_at;
        while (m_at < m_text.size() && isDigit(m_text[m_at]))
            ++m_at;
        if (m_at == from)
            throw JsonError("a number was expected");
    };
    if (is("-"))
        ++m_at;
    if (is("0"))
        ++m_at;
    else
        digits();
    if (is(".")) {
        ++m_at;
        digits();
    }
    if (is("eE")) {
        ++m_at;
        if (is("+-"))
            ++m_at;
        digits();
    }
    return m_text.substr(begin, m_at - begin);
}

QString JsonReader::string() {
    const std::string_view raw = rawString();
    // QString::fromUtf8 would drop a U+FEFF at the beginning as a mark of the byte order.
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::ConvertInitialBom);
    return decoder.decode(QByteArrayView(raw));
}

double JsonReader::number() {
    const std::string_view token = numberToken();
    double value = 0;
    const char* end = token.data() + token.size();
    if (std::from_chars(token.data(), end, value).ec == std::errc())
        return value;
    // The C++ library reports overflow and underflow alike; Qt returns infinity or zero.
    if (!std::isfinite(QLocale::c().toDouble(QLatin1StringView(token.data(), end))))
        throw JsonError("a number is out of range");
    return 0;
}

std::int64_t JsonReader::integer() {
    const std::size_t begin = m_at;
    const std::string_view token = numberToken();
    std::int64_t value = 0;
    const auto [end, error] = std::from_chars(token.data(), token.data() + token.size(), value);
    if (error != std::errc())
        throw JsonError("a whole number is out of range");
    if (end == token.data() + token.size())
        return value;

    m_at = begin;
    const double spelledOut = number();
    constexpr double limit = 9223372036854775808.0;
    if (spelledOut != std::trunc(spelledOut) || spelledOut < -limit || spelledOut >= limit)
        throw JsonError("a whole number was expected");
    return static_cast<std::int64_t>(spelledOut);
}

bool JsonReader::boolean() {
    if (tryWord("true"))
        return true;
    if (tryWord("false"))
        return false;
    throw JsonError("true or false was expected");
}

bool JsonReader::tryNull() { return tryWord("null"); }

void JsonReader::skip() {
    switch (peek()) {
    case '{':
        return object([this](std::string_view) { skip(); });
    case '[':
        return array([this] { skip(); });
    case '"':
        rawString();
        return;
    case 't':
    case 'f':
        boolean();
        return;
    case 'n':
        if (!tryNull())
            throw JsonError("null was expected");
        return;
    default:
        numberToken();
    }
}

void JsonReader::end() {
    peek();
    if (m_at != m_text.size())
        throw JsonError("more text stands behind the end");
}

} // namespace TarnwickKit::model
