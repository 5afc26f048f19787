#pragma once

#include <QString>

#include <cstddef>
#include <cstdint>
#include <stdexcept>
#include <string>
#include <string_view>

namespace TarnwickKit::model {

/// The text is not JSON (RFC 8259, in UTF-8), or a value is not of the requested type. `what` tells people
/// which value and why: "sizeLabel: a text was expected". It holds nothing of the text itself.
class JsonError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// Reads JSON from start to end, value by value, into the caller's own types. Without a document of variants
/// in between, a full history loads several times faster.
///
/// Every reading function throws JsonError on malformed text, on a value of another type, and on nesting
/// deeper than `maxDepth`.
/// Owner: the caller keeps the text alive.
class JsonReader {
public:
    static constexpr int maxDepth = 64;

    explicit JsonReader(std::string_view text);

    /// Calls `member(std::string_view key)` for each member, which must read or skip the value. The key is
    /// invalid after that.
    template <typename Member>
    void object(Member member) {
        const Nesting nesting(*this, '{');
        for (bool first = true; nextItem(first, '}'); first = false) {
            const std::string_view key = rawString();
            expect(':');
            member(key);
        }
    }
    /// Calls `element()` for each element, which must read or skip it.
    template <typename Element>
    void array(Element element) {
        const Nesting nesting(*this, '[');
        for (bool first = true; nextItem(first, ']'); first = false)
            element();
    }
    QString string();
    /// A finite double.
    double number();
    /// An integer in any spelling: 5, 5.0 and 5e0 are the same.
    std::int64_t integer();
    bool boolean();
    /// Reads a null, if one comes next.
    bool tryNull();
    /// Skips a value of any type.
    void skip();
    /// Calls `read`, which must read one value. If it throws JsonError, the value is skipped.
    /// Fails: false. Malformed text throws all the same.
    template <typename Read>
    bool tryRead(Read read) {
        const std::size_t begin = m_at;
        try {
            read();
            return true;
        } catch (const JsonError&) {
            m_at = begin;
            skip();
            return false;
        }
    }
    /// Requires that only blanks follow.
    void end();

    /// The position in the text behind what has been read.
    std::size_t position() const { return m_at; }
    /// Continues at a position with no open object or array. Allowed after a failure.
    void goTo(std::size_t position) {
        m_at = position;
        m_depth = 0;
    }

private:
    class Nesting {
    public:
        Nesting(JsonReader& reader, char opening);
        ~Nesting() { --m_reader.m_depth; }
        Nesting(const Nesting&) = delete;
        Nesting& operator=(const Nesting&) = delete;

    private:
        JsonReader& m_reader;
    };

    char peek();
    void expect(char character);
    bool tryWord(std::string_view word);
    bool nextItem(bool first, char closing);
    std::string_view rawString();
    void appendEscape();
    char32_t hexCodeUnit();
    std::string_view numberToken();

    std::string_view m_text;
    std::size_t m_at = 0;
    int m_depth = 0;
    std::string m_unescaped;
};

} // namespace TarnwickKit::model
