#include "TarnwickKit/model/language/CatalogueFile.h"

#include <QtEndian>

namespace TarnwickKit::model {

namespace {

constexpr qsizetype magicSize = 16; // QTranslator compares it

/// What stands before each part of the file.
enum class FilePart : quint8 { contexts = 0x2f, places = 0x42, messages = 0x69, dependencies = 0x96 };

/// What stands before each part of a message that has a length. A message ends at any other.
enum class MessagePart : quint8 { translation = 3, source = 6, context = 7, comment = 8 };

/// Takes numbers and blocks from the front of bytes. Zero and nothing once they are used up.
class CatalogueReader {
public:
    explicit CatalogueReader(QByteArrayView bytes)
        : m_rest(bytes) {}

    template <typename Number>
    Number number() {
        const QByteArrayView bytes = block(sizeof(Number));
        return bytes.isEmpty() ? Number{0} : qFromBigEndian<Number>(bytes.data());
    }

    QByteArrayView block(qsizetype length) {
        m_isWhole = m_isWhole && length <= m_rest.size();
        if (!m_isWhole)
            return {};
        const QByteArrayView taken = m_rest.first(length);
        m_rest = m_rest.sliced(length);
        return taken;
    }

    QByteArrayView rest() const { return m_rest; }
    qsizetype size() const { return m_rest.size(); }
    /// Whether everything that was asked for was there.
    bool isWhole() const { return m_isWhole; }

private:
    QByteArrayView m_rest;
    bool m_isWhole = true;
};

/// A message with an end. An odd length, as of an empty translation, ends it too.
bool isWholeMessage(QByteArrayView bytes) {
    CatalogueReader reader(bytes);
    for (;;) {
        const MessagePart part{reader.number<quint8>()};
        if (part != MessagePart::translation && part != MessagePart::source && part != MessagePart::context &&
            part != MessagePart::comment)
            return reader.isWhole();
        const auto length = reader.number<quint32>();
        if (part == MessagePart::translation && length % 2 == 1)
            return reader.isWhole();
        reader.block(length);
    }
}

/// Places of messages, each after a hash.
bool areWholeMessages(QByteArrayView bytes, QByteArrayView all) {
    CatalogueReader reader(bytes);
    while (reader.size() > 0) {
        reader.number<quint32>();
        const qsizetype place = reader.number<quint32>();
        if (!reader.isWhole() || place > all.size() || !isWholeMessage(all.sliced(place)))
            return false;
    }
    return true;
}

} // namespace

QByteArray wholeCatalogue(QByteArrayView file) {
    CatalogueReader reader(file);
    QByteArray whole = reader.block(magicSize).toByteArray();
    QByteArrayView allPlaces;
    QByteArrayView allMessages;
    while (reader.size() > 0 && reader.isWhole()) {
        const QByteArrayView before = reader.rest();
        const FilePart part{reader.number<quint8>()};
        const QByteArrayView content = reader.block(reader.number<quint32>());
        if (part == FilePart::places)
            allPlaces = content;
        else if (part == FilePart::messages)
            allMessages = content;
        else if (part == FilePart::dependencies)
            return {};
        if (part != FilePart::contexts)
            whole += before.first(before.size() - reader.size());
    }
    return reader.isWhole() && areWholeMessages(allPlaces, allMessages) ? whole : QByteArray();
}

} // namespace TarnwickKit::model
