#include "OndelAppSupport/updates/Appcast.h"

#include "OndelAppSupport/updates/PlainNotes.h"
#include "OndelAppSupport/updates/VersionOrder.h"

#include <QXmlStreamReader>

#include <algorithm>

namespace OndelAppSupport::updates {

namespace {

constexpr QStringView updateNamespace = u"http://www.andymatuschak.org/xml-namespaces/sparkle";
constexpr qint64 longestPackage = qint64{256} << 20; // bytes
constexpr qsizetype signatureSize = 64;              // bytes
constexpr qsizetype longestWord = 64;                // characters of a version

/// A name as it may be shown: one line without signs that nobody sees.
QString word(const QString& text) { return showableNotes(text.simplified()).left(longestWord); }

class Reader {
public:
    explicit Reader(const QByteArray& feed)
        : m_xml(feed) {}

    std::optional<QList<Offer>> read() {
        bool isFeed = false;
        while (!m_xml.atEnd()) {
            m_xml.readNext();
            if (m_xml.isDTD())
                m_xml.raiseError(QStringLiteral("a document type"));
            if (!m_xml.isStartElement())
                continue;
            if (!isFeed && m_xml.name() != u"rss")
                return std::nullopt;
            isFeed = true;
            if (m_xml.name() == u"item")
                readItem();
        }
        return m_xml.hasError() ? std::nullopt : std::optional(m_offers);
    }

private:
    void readItem() {
        Offer item;
        QList<Offer> enclosures;
        bool isRelease = true;
        while (m_xml.readNextStartElement()) {
            const QString name = m_xml.name().toString();
            const bool isOurs = m_xml.namespaceUri() == updateNamespace;
            if (name == QLatin1String("enclosure")) {
                enclosures.append(readEnclosure());
            } else if (isOurs && name == QLatin1String("channel")) {
                isRelease = false;
                m_xml.skipCurrentElement();
            } else if (name == QLatin1String("description")) {
                readNotes(item);
            } else if (QString* place = field(item, name, isOurs)) {
                *place = word(text());
            } else if (isOurs && name == QLatin1String("releaseNotesLink")) {
                item.notesLink = QUrl(text().trimmed(), QUrl::StrictMode);
            } else {
                m_xml.skipCurrentElement();
            }
        }
        if (isRelease)
            for (const Offer& enclosure : enclosures)
                m_offers.append(combined(item, enclosure));
    }

    static QString* field(Offer& item, const QString& name, bool isOurs) {
        if (isOurs && name == QLatin1String("version"))
            return &item.version;
        if (isOurs && name == QLatin1String("shortVersionString"))
            return &item.shortVersion;
        if (isOurs && name == QLatin1String("minimumSystemVersion"))
            return &item.minimumSystemVersion;
        return nullptr;
    }

    /// With the text of the elements inside. (The reader's own function for it recurses, and elements can be
    /// nested deeper than a stack.)
    QString text() {
        QString text;
        for (int depth = 1; depth > 0 && !m_xml.hasError();) {
            m_xml.readNext();
            if (m_xml.isCharacters())
                text += m_xml.text();
            depth += m_xml.isStartElement() ? 1 : m_xml.isEndElement() ? -1 : 0;
        }
        return text;
    }

    void readNotes(Offer& item) {
        const QString format =
            m_xml.attributes().value(updateNamespace.toString(), QStringLiteral("format")).toString();
        const QString notes = text();
        const bool isPlain = format == QLatin1String("plain-text") || format == QLatin1String("markdown");
        item.notes = showableNotes(isPlain ? notes : plainNotes(notes));
    }

    Offer readEnclosure() {
        const QXmlStreamAttributes attributes = m_xml.attributes();
        const auto ours = [&](const QString& name) {
            return attributes.value(updateNamespace.toString(), name).toString().trimmed();
        };
        Offer offer;
        offer.url = QUrl(attributes.value(QLatin1String("url")).trimmed().toString(), QUrl::StrictMode);
        offer.length = attributes.value(QLatin1String("length")).trimmed().toLongLong();
        offer.platform = ours(QStringLiteral("os"));
        offer.version = word(ours(QStringLiteral("version")));
        offer.shortVersion = word(ours(QStringLiteral("shortVersionString")));
        const auto signature = QByteArray::fromBase64Encoding(ours(QStringLiteral("edSignature")).toLatin1(),
                                                              QByteArray::AbortOnBase64DecodingErrors);
        offer.signature = signature ? *signature : QByteArray();
        m_xml.skipCurrentElement();
        return offer;
    }

    /// Versions stand with the item, or, in older feeds, with its enclosure.
    static Offer combined(const Offer& item, const Offer& enclosure) {
        Offer offer = item;
        if (offer.version.isEmpty())
            offer.version = enclosure.version;
        if (offer.shortVersion.isEmpty())
            offer.shortVersion = enclosure.shortVersion.isEmpty() ? offer.version : enclosure.shortVersion;
        offer.url = enclosure.url;
        offer.length = enclosure.length;
        offer.platform = enclosure.platform;
        offer.signature = enclosure.signature;
        return offer;
    }

    QXmlStreamReader m_xml;
    QList<Offer> m_offers;
};

} // namespace

bool Offer::isComplete() const {
    return url.isValid() && url.scheme() == QLatin1String("https") && length > 0 &&
           length <= longestPackage && signature.size() == signatureSize;
}

std::optional<QList<Offer>> readAppcast(const QByteArray& feed) { return Reader(feed).read(); }

std::optional<Offer> newestOffer(const QList<Offer>& offers, const QStringList& platforms,
                                 const QString& systemVersion) {
    const Offer* newest = nullptr;
    for (const Offer& offer : offers) {
        const bool suits = !offer.version.isEmpty() &&
                           platforms.contains(offer.platform, Qt::CaseInsensitive) &&
                           (offer.minimumSystemVersion.isEmpty() ||
                            std::is_lteq(compareVersions(offer.minimumSystemVersion, systemVersion)));
        if (suits && (!newest || std::is_gt(compareVersions(offer.version, newest->version))))
            newest = &offer;
    }
    return newest ? std::optional(*newest) : std::nullopt;
}

} // namespace OndelAppSupport::updates
