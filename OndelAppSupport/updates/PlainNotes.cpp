#include "OndelAppSupport/updates/PlainNotes.h"

#include <QList>
#include <QStringList>

#include <algorithm>
#include <array>

namespace OndelAppSupport::updates {

namespace {

constexpr qsizetype longestText = 20'000; // characters: some ten pages

constexpr std::array hidden{u"script",   u"style", u"head",   u"title",
                            u"template", u"svg",   u"iframe", u"object"};
constexpr std::array paragraphs{u"p", u"h1", u"h2", u"h3", u"h4", u"h5", u"h6", u"pre", u"blockquote"};
constexpr std::array blocks{u"div", u"ul", u"ol", u"tr", u"dl", u"dt", u"dd", u"section", u"article"};

bool isOneOf(const auto& names, const QString& name) {
    return std::ranges::find(names, QStringView(name)) != names.end();
}

struct NamedCharacter {
    QStringView name;
    char16_t character;
};
constexpr std::array namedCharacters{
    NamedCharacter{u"amp", u'&'},   NamedCharacter{u"lt", u'<'},    NamedCharacter{u"gt", u'>'},
    NamedCharacter{u"quot", u'"'},  NamedCharacter{u"apos", u'\''}, NamedCharacter{u"nbsp", u' '},
    NamedCharacter{u"ndash", u'–'}, NamedCharacter{u"mdash", u'—'}, NamedCharacter{u"hellip", u'…'},
    NamedCharacter{u"lsquo", u'‘'}, NamedCharacter{u"rsquo", u'’'}, NamedCharacter{u"ldquo", u'“'},
    NamedCharacter{u"rdquo", u'”'}, NamedCharacter{u"copy", u'©'},  NamedCharacter{u"times", u'×'},
};

/// Empty for an unknown reference.
QString referenced(QStringView name) {
    if (name.startsWith(u'#')) {
        const bool hex = name.size() > 1 && name[1].toLower() == u'x';
        bool isNumber = false;
        const uint code = name.mid(hex ? 2 : 1).toUInt(&isNumber, hex ? 16 : 10);
        const bool isCharacter =
            isNumber && code > 0 && code <= QChar::LastValidCodePoint && !QChar::isSurrogate(code);
        return isCharacter ? QString::fromUcs4(reinterpret_cast<const char32_t*>(&code), 1) : QString();
    }
    const auto known = std::ranges::find(namedCharacters, name, &NamedCharacter::name);
    return known == namedCharacters.end() ? QString() : QString(QChar(known->character));
}

/// Reads HTML in one pass and ignores nesting.
class NotesReader {
public:
    explicit NotesReader(QStringView html)
        : m_rest(html) {}

    QString read() {
        while (!m_rest.empty()) {
            if (m_rest.startsWith(u"<!--"))
                skipPast(u"-->");
            else if (m_rest[0] == u'<' && m_rest.size() > 1 &&
                     (m_rest[1].isLetter() || m_rest[1] == u'/' || m_rest[1] == u'!'))
                tag();
            else if (m_rest[0] == u'&')
                reference();
            else
                character();
        }
        return m_text.trimmed();
    }

private:
    void skipPast(QStringView end) {
        const auto found = m_rest.indexOf(end, 0, Qt::CaseInsensitive);
        m_rest = found < 0 ? QStringView() : m_rest.mid(found + end.size());
    }

    void tag() {
        m_rest = m_rest.mid(1);
        const bool closes = m_rest.startsWith(u'/');
        if (closes)
            m_rest = m_rest.mid(1);
        const auto end = std::ranges::find_if_not(m_rest, [](QChar c) { return c.isLetterOrNumber(); });
        const QString name = m_rest.left(end - m_rest.begin()).toString().toLower();
        skipPast(u">");
        const bool isParagraph = isOneOf(paragraphs, name);
        if (!closes && isOneOf(hidden, name)) {
            skipPast(QStringLiteral("</") + name);
            skipPast(u">");
        } else if (name == QLatin1String("br")) {
            m_text += u'\n';
        } else if (name == QLatin1String("li") && !closes) {
            breakLine();
            m_text += QStringLiteral("• ");
        } else if (isParagraph || isOneOf(blocks, name)) {
            breakLine();
            if (isParagraph && !closes && !m_text.isEmpty() && !m_text.endsWith(QLatin1String("\n\n")))
                m_text += u'\n';
        }
    }

    void reference() {
        const auto end = m_rest.left(12).indexOf(u';');
        const QString character = end < 0 ? QString() : referenced(m_rest.mid(1, end - 1));
        m_text += character.isEmpty() ? QStringLiteral("&") : character;
        m_rest = m_rest.mid(character.isEmpty() ? 1 : end + 1);
    }

    void character() {
        const QChar c = m_rest[0];
        m_rest = m_rest.mid(1);
        if (!c.isSpace())
            m_text += c;
        else if (!m_text.isEmpty() && !m_text.back().isSpace())
            m_text += u' ';
    }

    void breakLine() {
        while (m_text.endsWith(u' '))
            m_text.chop(1);
        if (!m_text.isEmpty() && !m_text.endsWith(u'\n'))
            m_text += u'\n';
    }

    QStringView m_rest;
    QString m_text;
};

} // namespace

QString plainNotes(const QString& html) { return NotesReader(html).read(); }

QString showableNotes(const QString& text) {
    QString shown = text.left(longestText);
    if (shown.size() < text.size())
        shown += u'…';
    shown.removeIf([](QChar c) {
        return c != u'\n' && c != u'\t' &&
               (c.category() == QChar::Other_Control || c.category() == QChar::Other_Format);
    });
    return shown.trimmed();
}

} // namespace OndelAppSupport::updates
