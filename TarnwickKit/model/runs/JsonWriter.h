#pragma once

#include <QByteArray>
#include <QStringView>

#include <cstdint>
#include <string_view>

namespace TarnwickKit::model {

/// Writes JSON (RFC 8259) without blanks. Members keep the order of the calls. Doubles get the fewest digits
/// that read back as the same number.
class JsonWriter {
public:
    void beginObject() { open('{'); }
    void endObject() { close('}'); }
    void beginArray() { open('['); }
    void endArray() { close(']'); }

    /// The next value's key. Units: plain ASCII without quotes.
    void key(std::string_view name);

    void string(QStringView text);
    /// `value` is finite: JSON has no spelling for the others.
    void number(double value);
    void integer(std::int64_t value);
    void boolean(bool value);
    /// A value that is JSON already.
    void raw(QByteArrayView json);

    const QByteArray& json() const { return m_json; }

private:
    void open(char mark);
    void close(char mark);
    void separate();

    QByteArray m_json;
    bool m_needsComma = false;
};

} // namespace TarnwickKit::model
