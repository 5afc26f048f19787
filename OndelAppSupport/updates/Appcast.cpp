#include "OndelAppSupport/updates/Appcast.h"

#include "OndelAppSupport/updates/PlainNotes.h"
#include "OndelAppSupport/updates/VersionOrder.h"

#include <QRegularExpression>
#include <QStringDecoder>
#include <QXmlStreamReader>

#include <algorithm>
#include <utility>

namespace OndelAppSupport::updates {

namespace {

using Cause = UpdateError::Cause;

constexpr QStringView updateNamespace = u"http://www.andymatuschak.org/xml-namespaces/sparkle";
constexpr qint64 longestFeed = 1 << 20;              // bytes
constexpr qint64 longestNotes = 1 << 18;             // bytes
constexpr qint64 longestPackage = qint64{256} << 20; // bytes
constexpr qsizetype signatureSize = 64;              // bytes
constexpr qsizetype longestWord = 64;                // characters of a version

/// A version that is safe to show: one line without invisible characters.
QString word(const QString& text) { return showableNotes(text.simplified()).left(longestWord); }

/// The encoding is that of the byte order mark or the first character, else the declared one, else UTF-8.
QString decoded(const QByteArray& feed) {
    constexpr qsizetype longestDeclaration = 200; // bytes
    if (const auto encoding = QStringDecoder::encodingForData(feed, u'<'))
        return QStringDecoder(*encoding).decode(feed);
    static const QRegularExpression declaration(
        QStringLiteral("^<\\?xml[^>]*\\sencoding\\s*=\\s*[\"']([A-Za-z0-9._-]{1,40})[\"']"));
    const auto match = declaration.match(QString::fromLatin1(feed.left(longestDeclaration)));
    QStringDecoder decoder(match.captured(1).toLatin1().constData());
    return decoder.isValid() ? QString(decoder.decode(feed)) : QString::fromUtf8(feed);
}

/// Checks the tags of a feed in one pass before the XML reader sees them. The reader compares each attribute
/// with all others of its element, and each name with the namespaces of all enclosing elements.
class TagScan {
public:
    explicit TagScan(QStringView feed)
        : m_rest(feed) {}

    bool isOrdinary() {
        constexpr int deepest = 64;
        for (int depth = 0; depth <= deepest;) {
            const auto tag = m_rest.indexOf(u'<');
            if (tag < 0)
                return true;
            m_rest = m_rest.mid(tag);
            if (m_rest.startsWith(u"<!--"))
                skipPast(u"-->");
            else if (m_rest.startsWith(u"<![CDATA["))
                skipPast(u"]]>");
            else if (m_rest.startsWith(u"<?"))
                skipPast(u"?>");
            else if (const auto change = scanTag())
                depth += *change;
            else
                return false;
        }
        return false;
    }

private:
    void skipPast(QStringView end) {
        const auto found = m_rest.indexOf(end);
        m_rest = found < 0 ? QStringView() : m_rest.mid(found + end.size());
    }

    /// The change of depth; absent for a document type and for too many attributes.
    std::optional<int> scanTag() {
        if (m_rest.startsWith(u"<!"))
            return std::nullopt;
        constexpr int mostAttributes = 48;
        const bool isEnd = m_rest.startsWith(u"</");
        int attributes = 0;
        QChar quote;
        qsizetype at = 1;
        for (; at < m_rest.size() && (!quote.isNull() || m_rest[at] != u'>'); ++at) {
            const QChar c = m_rest[at];
            if (!quote.isNull())
                quote = c == quote ? QChar() : quote;
            else if (c == u'"' || c == u'\'')
                quote = c;
            else if (c == u'=' && ++attributes > mostAttributes)
                return std::nullopt;
        }
        const bool isEmpty = at > 1 && m_rest[at - 1] == u'/';
        m_rest = m_rest.mid(at);
        return isEnd ? -1 : isEmpty ? 0 : 1;
    }

    QStringView m_rest;
};

class Reader {
public:
    Reader(const QString& feed, std::stop_token stop)
        : m_xml(feed)
        , m_stop(std::move(stop)) {}

    std::optional<QList<Offer>> read() {
        bool isFeed = false;
        while (!m_xml.atEnd()) {
            next();
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
    void next() {
        m_xml.readNext();
        if (m_stop.stop_requested())
            m_xml.raiseError(QStringLiteral("a stop"));
    }

    /// Whether a child element begins before the current one ends.
    bool nextElement() {
        do
            next();
        while (!m_xml.atEnd() && !m_xml.isStartElement() && !m_xml.isEndElement());
        return m_xml.isStartElement();
    }

    /// Skips the rest of the element and its end.
    void skipElement() { text(); }

    void readItem() {
        Offer item;
        QList<Offer> enclosures;
        bool isRelease = true;
        while (nextElement()) {
            const QString name = m_xml.name().toString();
            const bool isOurs = m_xml.namespaceUri() == updateNamespace;
            if (name == QLatin1String("enclosure")) {
                enclosures.append(readEnclosure());
            } else if (isOurs && name == QLatin1String("channel")) {
                isRelease = false;
                skipElement();
            } else if (name == QLatin1String("description")) {
                readNotes(item);
            } else if (QString* place = field(item, name, isOurs)) {
                *place = word(text());
            } else if (isOurs && name == QLatin1String("releaseNotesLink")) {
                item.notesLink = QUrl(text().trimmed(), QUrl::StrictMode);
            } else {
                skipElement();
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

    /// Includes the text of nested elements. (The reader's own function recurses, and nesting may exceed the
    /// stack.)
    QString text() {
        QString text;
        for (int depth = 1; depth > 0 && !m_xml.hasError();) {
            next();
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
        skipElement();
        return offer;
    }

    /// Versions belong to the item or, in older feeds, to its enclosure.
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
    std::stop_token m_stop;
    QList<Offer> m_offers;
};

QString loadNotes(const QUrl& link, const https::Connection& connection, const std::stop_token& stop) {
    try {
        const auto [contentType, body] =
            httpsGetSmall(link, connection, Cause::feedUnreachable, longestNotes, stop);
        const QString text = QString::fromUtf8(body);
        const bool isPlain = contentType.startsWith("text/plain") || contentType.startsWith("text/markdown");
        return showableNotes(isPlain ? text : plainNotes(text));
    } catch (const UpdateError&) {
        return {};
    }
}

} // namespace

bool Offer::isComplete() const {
    return url.isValid() && url.scheme() == QLatin1String("https") && length > 0 &&
           length <= longestPackage && signature.size() == signatureSize;
}

std::optional<QList<Offer>> readAppcast(const QByteArray& feed, const std::stop_token& stop) {
    const QString text = decoded(feed);
    return TagScan(text).isOrdinary() ? Reader(text, stop).read() : std::nullopt;
}

std::optional<Offer> newestOffer(const QList<Offer>& offers, const QStringList& platforms,
                                 const QString& systemVersion, const QString& currentVersion) {
    const auto isBetter = [](const Offer& offer, const Offer& other) {
        return offer.isComplete() != other.isComplete()
                   ? offer.isComplete()
                   : std::is_gt(compareVersions(offer.version, other.version));
    };
    const Offer* newest = nullptr;
    for (const Offer& offer : offers) {
        const bool fits = !offer.version.isEmpty() &&
                          platforms.contains(offer.platform, Qt::CaseInsensitive) &&
                          (offer.minimumSystemVersion.isEmpty() ||
                           std::is_lteq(compareVersions(offer.minimumSystemVersion, systemVersion))) &&
                          std::is_gt(compareVersions(offer.version, currentVersion));
        if (fits && (!newest || isBetter(offer, *newest)))
            newest = &offer;
    }
    return newest ? std::optional(*newest) : std::nullopt;
}

std::optional<Offer> findUpdate(const Search& search, const std::stop_token& stop) {
    if (search.feed.scheme() != QLatin1String("https"))
        throw UpdateError(Cause::feedNotSecure);
    const auto feed =
        httpsGetSmall(search.feed, search.connection, Cause::feedUnreachable, longestFeed, stop);
    const auto offers = readAppcast(feed.body, stop);
    if (stop.stop_requested())
        throw https::Stopped();
    if (!offers)
        throw UpdateError(Cause::feedUnreadable);
    auto offer = newestOffer(*offers, search.platforms, search.systemVersion, search.currentVersion);
    if (!offer)
        return std::nullopt;
    if (!offer->isComplete())
        throw UpdateError(Cause::offerIncomplete);
    if (offer->notes.isEmpty() && !offer->notesLink.isEmpty())
        offer->notes = loadNotes(offer->notesLink, search.connection, stop);
    return offer;
}

} // namespace OndelAppSupport::updates
